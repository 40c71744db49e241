#pragma once

#include "diagram/diagram_form.h"
#include "window/bindings.h"

#include <QMainWindow>
#include <functional>

class MainWindow;
class QCheckBox;
class QFrame;
class QMenu;
class QMouseEvent;
class QScrollBar;
class QSlider;
class SurfaceView;

/// The widgets of frmDiagram, a window of its own beside the main one. Its controls stand where their records
/// say.
class DiagramWindow : public QMainWindow {
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
    void makePopups();
    QAction* entry(QMenu& menu, const char* name, const QString& caption, void (*handler)(),
                   const MenuEntry* record = nullptr);

    SurfaceView* picture(const char* name, Surface& surface, const QString& accessibleName);
    QWidget* sampleButtons();
    QWidget* samplePanel();
    QWidget* corner();
    void resized();
    void presentPlaces();
    void takeSize(QSize wanted);
    void presentScales();
    bool pictureEvent(SurfaceView* view, QMouseEvent& event);
    bool keyOnPicture(SurfaceView* view, QEvent& event);
    void onEvent(const std::function<void()>& handler);

    MainWindow& main_;
    QLabel* notice_ = nullptr;
    SurfaceView* diagram_ = nullptr;
    SurfaceView* dendrogram_ = nullptr;
    SurfaceView* names_ = nullptr;
    QWidget* strip_ = nullptr;
    QFrame* parting_ = nullptr;
    QScrollBar* scroll_ = nullptr;
    QSlider* sample_ = nullptr;
    QSlider* zoom_ = nullptr;
    QWidget* move_ = nullptr; ///< what was moved from where to where
    QWidget* panel_ = nullptr;
    QWidget* buttons_ = nullptr;
    QWidget* corner_ = nullptr;
    QCheckBox* check_ = nullptr;
    QMenu* diagramMenu_ = nullptr;    ///< RB1
    QMenu* dendrogramMenu_ = nullptr; ///< RBConiss
    QMenu* namesMenu_ = nullptr;      ///< RB3
    QList<ActionBinding> actions_;
    QList<ComboBinding> combos_;
    QList<LineBinding> lines_;
    int forwardShown_ = 0;
    bool resizeWaits_ = false;
};
