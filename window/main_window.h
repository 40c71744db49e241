#pragma once

#include "core/user_event.h"
#include "files/recovery.h"
#include "statistics/watch_counts.h"
#include "window/bound_window.h"

#include <QButtonGroup>
#include <QClipboard>
#include <QMainWindow>
#include <QPalette>
#include <array>
#include <functional>
#include <memory>

class DiagramWindow;
struct Form;
class FormWindow;
class FigureWindow;
class ManualWindow;
class QHelpEvent;
class QMenu;
class QMouseEvent;
class QTabWidget;
class SurfaceView;
class TaxonPage;
class TotalFrame;

/// The controls of frmMain.
std::vector<ControlRow> mainControls();

/// The widgets of frmMain. They show the record and turn what the user does into handler calls; they decide
/// nothing. Each widget's object name is its control's name with its index, as in "Text2(12)".
class MainWindow : public QMainWindow, public BoundWindow {
public:
    MainWindow();
    ~MainWindow() override;

    /// Runs the handler of one event of the user, then shows what it changed.
    template <class Handler>
    void onEvent(Handler&& handler)
    {
        beginEvent();
        onPassing(handler);
    }

    /// The same where the mouse only passes, the focus follows a press or a key, or a key comes up: what the
    /// line at the foot says was not read yet.
    template <class Handler>
    void onPassing(Handler&& handler)
    {
        {
            const UserEvent event;
            handler();
        }
        watchUnsavedWork();
        watchCounts();
        present();
    }

    /// Brings the widgets up to date with the records. Touches only what differs, so it costs microseconds
    /// and does not grow with the sheet.
    void present();
    /// Of all that, only the line at the foot.
    void presentNotice();

    /// Whether it is the window of the diagram, where keys count too.
    bool isDiagram(const QObject* window) const;
    bool isManual(const QObject* window) const;
    /// Before a small window is shown.
    void keepManualReadable(QWidget& smallWindow);

protected:
    bool eventFilter(QObject* target, QEvent* event) override;
    void resizeEvent(QResizeEvent*) override;
    void paintEvent(QPaintEvent*) override;
    void closeEvent(QCloseEvent*) override;
    void dragEnterEvent(QDragEnterEvent*) override;
    void dropEvent(QDropEvent*) override;

private:
    void beginEvent();

    // main_window_layout.cpp
    QWidget* sampleStrip();
    QWidget* sheetPages();
    /// The pages of the first `count` layers, as far as there are none yet.
    void makePages(int count);
    TotalFrame* totalFrame(int total, const char* name);
    QWidget* sumStrip();
    QWidget* statisticsStrip();
    QWidget* infoPanel();
    QWidget* notePanel();
    QWidget* historyPanel();
    QWidget* curvePanel();
    QLineEdit* readBox(const char* name, int index = noIndex);
    QAbstractButton* toolButton(const char* name, const QString& caption, int index = noIndex);
    QComboBox* nameList(const char* name, const QString& accessibleName);

    // main_window_menus.cpp
    void makeMenus();
    void makeRowMenu();
    static void takeCtrlLetters(QWidget& window);

    // main_window_editing.cpp
    bool boxPressed(QWidget* box, const QMouseEvent& press);
    /// True if the key press, its release or the wish for a menu goes no further.
    bool keyOnControl(QWidget* control, const QEvent& event);
    /// True if the key went from a cell to the next one.
    bool keyInCell(QWidget* box, const QKeyEvent& key);
    void boxDoubleClicked(const QWidget* box);
    /// True if what is pasted from a clipboard does not go into the box.
    bool boxPasted(const QWidget* box, QClipboard::Mode clipboard);
    void boxEntered(QWidget* box, Qt::FocusReason reason);
    void presentMode();

    /// Mouse and focus of a control come here first.
    void watch(QWidget* control);
    void presentNames();
    void presentKeyNames();
    void presentRecount();
    void presentFocusAndPointer();
    void scaleFont();
    static const ControlRow* cellRow(const QObject* target);
    static bool showCutText(const QObject* target, const QHelpEvent& event);

    QWidget* focusSink_; ///< Text99
    QTabWidget* tabs_ = nullptr;
    QList<TaxonPage*> pages_; ///< by layer, as far as they are made
    std::array<QLineEdit*, 3> sums_{};
    QLabel* statisticsLine_ = nullptr;    ///< under the sums
    QPlainTextEdit* note_ = nullptr;      ///< Text4
    QPlainTextEdit* location_ = nullptr;  ///< Text6
    QList<QLineEdit*> editedBoxes_;       ///< of the sample: its name and additional info
    QLineEdit* enteredByMouse_ = nullptr; ///< a box that is selected when the button comes up
    std::array<QLabel*, 3> hundredMarks_{};
    std::array<TotalFrame*, 3> totals_{};
    QLabel* heading_ = nullptr;          ///< Label6
    QButtonGroup alarms_;                ///< Option1
    QAbstractButton* percent_ = nullptr; ///< Command6
    QComboBox* samples_ = nullptr;       ///< Combo2
    SurfaceView* curve_ = nullptr;       ///< Picture2
    bool modifyingShown_ = false;
    bool isPainted_ = false;
    QPalette plainColours_; ///< of the sheet outside Modify template mode

    struct SmallWindow { ///< above this one
        SmallWindow(const char* name, FormWindow* (*maker)(MainWindow&));
        const Form& form;
        FormWindow* (*make)(MainWindow&);
        FormWindow* window = nullptr; ///< built when it is opened for the first time
    };
    static std::vector<SmallWindow> smallWindows();
    void presentForms();
    void makeDiagram();

    std::array<std::string, taxonSlots + 1> namesShown_;
    int keyNamesShown_ = -1; ///< revision
    bool keyNamesOnShow_ = false;
    std::unique_ptr<DiagramWindow> diagram_;
    std::unique_ptr<FigureWindow> figure_; ///< made when it is opened first
    std::unique_ptr<ManualWindow> manual_;
    int forwardShown_ = 0;
    std::vector<SmallWindow> smallWindows_ = smallWindows();
    Pointer pointerShown_ = Pointer::arrow;
};
