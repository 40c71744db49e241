#pragma once

#include "window/bindings.h"
#include "window/control_table.h"

#include <QString>
#include <functional>
#include <vector>

class MainWindow;
class QEvent;
class QMenu;
class QMenuBar;
class QObject;
class QWidget;

/// What the main window, the diagram window and the small windows have in common: the one way between their
/// controls and the records. A window gives its table of controls, makes the widgets and binds each to its
/// row; from then on a widget carries its Control, shows its record and turns what the user does into calls
/// of the row's handlers.
class BoundWindow {
public:
    struct Bound {
        QObject* widget;
        Control control;
    };
    struct BoundEntry {
        QAction* action;
        Handler clicked;
        const MenuEntry* record; ///< nullptr: always enabled
    };
    const std::vector<ControlRow>& table() const { return table_; }
    const std::vector<Bound>& bound() const { return bound_; }
    const std::vector<BoundEntry>& entries() const { return entries_; }

    /// The control that a widget, or the inside of one, stands for.
    static Control controlOf(const QObject* widget);

protected:
    /// `self`: the window.
    BoundWindow(QWidget& self, MainWindow& main, std::vector<ControlRow> table);
    ~BoundWindow() = default;

    /// Gives the widget its name and its control. There must be a row of this name and with this index, whose
    /// record fits the widget.
    template <class Widget>
    Widget* bind(Widget* widget, const char* name, int index = noIndex)
    {
        bindWidget(widget, name, index);
        return widget;
    }
    /// `bar`: where menus stand that do not pop up.
    void makeMenus(QMenuBar& bar, const std::vector<MenuRow>& menus, const std::vector<EntryRow>& entries);
    QAction* addEntry(QMenu& menu, const EntryRow& row);
    /// One of those made.
    QMenu* menuNamed(const char* name) const;
    /// Shows a record by an entry without a row: a submenu.
    void bindAction(QAction* action, MenuEntry& record);

    /// Brings the bound widgets up to date with their records.
    void showControls();
    /// A box has been left, and is seen from the beginning of its text again, or from its end.
    void boxLeft(const QObject* widget);
    /// Runs the handler of one event of the user, then shows what it changed.
    void runEvent(const std::function<void()>& handler);
    /// The same where the focus follows a press or a key: the line at the foot stays.
    void runPassing(const std::function<void()>& handler);

private:
    /// Of several entries one is checked: that whose number is the chosen one.
    struct Choice {
        QAction* action;
        const int* chosen;
        int number;
    };
    void bindWidget(QWidget* widget, const char* name, int index);
    void bindText(QWidget* widget, TextBox& record, Control control);
    void bindButton(QWidget* widget, Control control);
    void bindChoice(QWidget* widget, ComboBox& record, Control control);
    void bindList(QWidget* widget, ListBox& record, Control control);
    void bindUse(QWidget* widget, Control control);
    template <class AnyBinding>
    void textEdited(QList<AnyBinding>& bindings, qsizetype at, TextBox& record, Control control);

    QWidget& self_;
    MainWindow& main_;
    const std::vector<ControlRow> table_;
    std::vector<Bound> bound_;
    std::vector<BoundEntry> entries_;
    QList<LineBinding> lines_;
    QList<NoteBinding> notes_;
    QList<LabelBinding> labels_;
    QList<ButtonBinding> buttons_;
    QList<OptionBinding> options_;
    QList<CheckBinding> checks_;
    QList<ActionBinding> actions_;
    std::vector<Choice> choices_;
    QList<BarBinding> bars_;
    QList<SliderBinding> sliders_;
    QList<ScrollBinding> scrolls_;
    QList<KeyBinding> keys_;
    QList<ComboBinding> combos_;
    QList<ListBinding> lists_;
    QList<LogBinding> logs_;
};
