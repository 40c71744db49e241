#pragma once

#include "core/user_event.h"
#include "files/recovery.h"
#include "window/bindings.h"

#include <QMainWindow>
#include <QPalette>
#include <array>
#include <functional>
#include <memory>

struct MainMenuEntry;
class DiagramWindow;
class FormWindow;
class ManualWindow;
class QHelpEvent;
class QMenu;
class QMouseEvent;
class QTabWidget;
class SurfaceView;
class TaxonPage;

/// The widgets of frmMain. They show the record and turn what the user does into handler calls; they decide
/// nothing. Each widget's object name is its control's name with its index, as in "Text2(12)".
class MainWindow : public QMainWindow {
public:
    MainWindow();
    ~MainWindow() override;

    /// Runs the handler of one event of the user, then shows what it changed.
    template <class Handler>
    void onEvent(Handler&& handler)
    {
        beginEvent();
        {
            const UserEvent event;
            handler();
        }
        watchUnsavedWork();
        present();
    }

    /// Brings the widgets up to date with the records. Touches only what differs, so it costs microseconds
    /// and does not grow with the sheet.
    void present();
    /// Of all that, only the line at the foot.
    void presentNotice();

    /// The window of the diagram, where keys count too.
    const DiagramWindow& diagramWindow() const { return *diagram_; }

protected:
    bool eventFilter(QObject* target, QEvent* event) override;
    void resizeEvent(QResizeEvent*) override;
    void closeEvent(QCloseEvent*) override;
    void dragEnterEvent(QDragEnterEvent*) override;
    void dropEvent(QDropEvent*) override;

private:
    void beginEvent();

    // main_window_layout.cpp
    QWidget* sampleStrip();
    QWidget* sheetPages();
    QWidget* sumStrip();
    QWidget* infoPanel();
    QWidget* notePanel();
    QWidget* historyPanel();
    QWidget* curvePanel();
    QLabel* boundLabel(const QString& name, const Label& record, QLabel* label = nullptr);
    /// The user's edits of the box bound last reach `edited`.
    void listen(void (*edited)(int, std::string_view, int), int index);
    QLineEdit* boundBox(const QString& name, const TextBox& record);
    QAbstractButton* boundButton(const QString& name, const Button& record, const QString& caption,
                                 std::function<void()> clicked);
    QComboBox* boundCombo(const QString& name, const QString& accessibleName, const ComboBox& record);

    // main_window_menus.cpp
    void makeMenus();
    void addEntry(QMenu& menu, const MainMenuEntry& entry);
    void makeRowMenu();
    void takeCtrlLetters();

    // main_window_editing.cpp
    bool boxPressed(QWidget* box, const QMouseEvent& press);
    /// True if the key press, its release or the wish for a menu goes no further.
    bool keyOnControl(QWidget* control, const QEvent& event);
    void boxDoubleClicked(const QWidget* box);
    void boxEntered(QWidget* box, Qt::FocusReason reason);
    void presentMode();

    void presentNames();
    void presentFocusAndPointer();
    void scaleFont();
    static bool showCutText(const QObject* target, const QHelpEvent& event);

    QWidget* focusSink_; ///< Text99
    QTabWidget* tabs_ = nullptr;
    std::array<TaxonPage*, 3> pages_{};
    std::array<QLineEdit*, 3> sums_{};
    QPlainTextEdit* note_ = nullptr;      ///< Text4
    QPlainTextEdit* location_ = nullptr;  ///< Text6
    QMenu* rowMenu_ = nullptr;            ///< mnuRightButton
    QLineEdit* enteredByMouse_ = nullptr; ///< a box that is selected when the button comes up
    std::array<QLabel*, 3> hundredMarks_{};
    QAbstractButton* percent_ = nullptr; ///< Command6
    QComboBox* samples_ = nullptr;       ///< Combo2
    SurfaceView* curve_ = nullptr;       ///< Picture2
    QMenu* curveMenu_ = nullptr;         ///< mnuDiversityRB
    bool modifyingShown_ = false;
    QPalette plainColours_; ///< of the sheet outside Modify template mode

    QList<LineBinding> lines_;
    QList<NoteBinding> notes_;
    QList<LabelBinding> labels_;
    QList<ButtonBinding> buttons_;
    QList<OptionBinding> options_;
    QList<ActionBinding> actions_;
    QList<BarBinding> bars_;
    QList<ComboBinding> combos_;
    QList<LogBinding> logs_;
    std::array<std::string, taxonSlots + 1> namesShown_;
    std::unique_ptr<DiagramWindow> diagram_;
    std::unique_ptr<ManualWindow> manual_;
    int forwardShown_ = 0;
    QList<FormWindow*> forms_; ///< the small windows above this one
    Pointer pointerShown_ = Pointer::arrow;
};
