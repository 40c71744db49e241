#pragma once

#include "window/form_window.h"

class CaptureBox;
class KeyMap;
class QLabel;
class QProgressBar;
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
    QWidget* framed(const char* name, const char* title, KeyMap* map);
    QPushButton* actionButton(const char* name, const char* caption, void (*clicked)(),
                              const Button* record = nullptr);

    QTabWidget* pages_;
    QList<KeyMap*> maps_;
    std::array<CaptureBox*, 5> functions_{};
    QLabel* characterCode_ = nullptr;
    QProgressBar* progress_;
    QPushButton* ok_;
};

/// frmNote.
class KeyNoteWindow : public FormWindow {
public:
    explicit KeyNoteWindow(MainWindow& main);
};
