#pragma once

#include "diagram/diagram_form.h"
#include "window/bound_window.h"

#include <QMainWindow>
#include <functional>

class MainWindow;
class QCheckBox;
class QFrame;
class QMouseEvent;
class QScrollBar;
class QSlider;
class QToolButton;
class SurfaceView;

/// The widgets of frmDiagram, a window of its own beside the main one. Its controls stand where their records
/// say.
class DiagramWindow : public QMainWindow, public BoundWindow {
public:
    explicit DiagramWindow(MainWindow& main);

    /// Brings the window up to date with its record.
    void present();

protected:
    bool eventFilter(QObject* target, QEvent* event) override;
    void closeEvent(QCloseEvent*) override;
    void changeEvent(QEvent*) override;

private:
    // diagram_window_menus.cpp
    void makeMenus();

    SurfaceView* picture(const char* name, Surface& surface, const QString& accessibleName);
    QWidget* sampleButtons();
    QWidget* samplePanel();
    QWidget* corner();
    void resized();
    void presentPlaces();
    void takeSize(QSize wanted);
    void presentPanel();
    bool pictureEvent(SurfaceView* view, QMouseEvent& event);
    bool arrowKey(const QObject* target, const QKeyEvent& key);
    bool keyOnPicture(SurfaceView* view, QEvent& event);

    QLabel* notice_ = nullptr;
    QToolButton* sort_ = nullptr; ///< stands before it
    SurfaceView* diagram_ = nullptr;
    SurfaceView* dendrogram_ = nullptr;
    SurfaceView* names_ = nullptr;
    QWidget* strip_ = nullptr;
    QFrame* parting_ = nullptr;
    QScrollBar* scroll_ = nullptr;
    QSlider* sample_ = nullptr;
    QWidget* move_ = nullptr; ///< what was moved from where to where
    QWidget* panel_ = nullptr;
    QWidget* buttons_ = nullptr;
    QWidget* corner_ = nullptr;
    QCheckBox* check_ = nullptr;
    int forwardShown_ = 0;
    bool resizeWaits_ = false;
};
