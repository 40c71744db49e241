#pragma once

#include "window/form_window.h"

class CaptureBox;
class KeyMap;
class QTabWidget;

/// frmKeyCode.
class KeyCodeWindow : public FormWindow {
public:
    explicit KeyCodeWindow(MainWindow& main);

protected:
    void presentMore() override;
    void mousePressEvent(QMouseEvent*) override;

private:
    QWidget* definitionPage();
    QWidget* codePage();
    QWidget* numberPage();
    QWidget* functionKeys();
    CaptureBox* functionBox(int function);
    QWidget* boxNamed(const char* name, int index) const; ///< nullptr: there is none
    QWidget* nextStop(const char* name, int taken, int next) const;
    QWidget* framed(const char* name, const char* title, KeyMap* map);
    QPushButton* actionButton(const char* name, const char* caption);
    /// A box that only shows.
    QLineEdit* readBox(const char* name, int index);

    QTabWidget* pages_;
    QList<KeyMap*> maps_;
    QPushButton* ok_;
};

/// frmNote.
class KeyNoteWindow : public FormWindow {
public:
    explicit KeyNoteWindow(MainWindow& main);
};
