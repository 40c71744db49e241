// Modify template mode in the main window: what makes its boxes editable, and what the mouse and the focus do
// on them.

#include "core/editing.h"
#include "core/main_screen.h"
#include "core/sheet_state.h"
#include "sheet/focus_and_pointer.h"
#include "sheet/live_curve.h"
#include "sheet/modify_mode.h"
#include "sheet/percent_view.h"
#include "window/main_window.h"
#include "window/menu_key.h"
#include "window/surface_view.h"
#include "window/taxon_page.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QTabBar>
#include <QTabWidget>

namespace {

/// The control that a widget stands for, as in "Text2(12)".
struct Control {
    QString name;
    int index = 0;
};

Control controlOf(const QWidget* widget)
{
    const QString name = widget->objectName();
    const qsizetype bracket = name.indexOf('(');
    if (bracket < 0)
        return {name == "Text4.text" ? "Text4" : name};
    return {name.left(bracket), name.mid(bracket + 1).chopped(1).toInt()};
}

void makeEditable(QLineEdit* box, bool editable)
{
    box->setReadOnly(!editable);
    box->setFocusPolicy(editable ? Qt::StrongFocus : Qt::NoFocus);
    if (!editable)
        box->deselect();
}

/// What stands in the box of a row without a taxon, and of a sheet without a sample.
bool isNoName(const std::string& name)
{
    return name == "---" || name == "-9999";
}

QPalette modifyColours(QPalette colours, Colour sheet)
{
    const QColor back(sheet.red, sheet.green, sheet.blue);
    colours.setColor(QPalette::Window, back);
    colours.setColor(QPalette::WindowText, Qt::black); // in a dark theme too
    colours.setColor(QPalette::Mid, QColor(184, 181, 178));
    return colours;
}

} // namespace

/// True if the press goes no further.
bool MainWindow::boxPressed(QWidget* box, const QMouseEvent& press)
{
    const auto [name, index] = controlOf(box);
    const bool right = press.button() == Qt::RightButton;
    bool menuOpens = false;
    onEvent([&, name = name, index = index] {
        if (name == "Label1")
            menuOpens = Label1_Click(index);
        else if (name == "Text1")
            menuOpens = Text1_MouseDown(index, right);
        else if (name == "Text2")
            menuOpens = Text2_MouseDown(index, right);
        else if (name == "Label10")
            Label10_Click(index);
        else if (box == percent_ && press.button() == Qt::LeftButton)
            Command6_MouseDown();
        else if (box == curve_ && right)
            mnuDiversityRB_Open();
        else if (qobject_cast<QAbstractButton*>(box) == nullptr)
            giveFocusBack();
    });
    if (box == curve_ && right)
        curveMenu_->popup(press.globalPosition().toPoint());
    if (menuOpens)
        rowMenu_->popup(press.globalPosition().toPoint());
    return menuOpens;
}

/// The menu key is a right click on what has the focus, and Space on "%" holds it as the mouse does.
bool MainWindow::keyOnControl(QWidget* control, const QEvent& event)
{
    if (asksForMenu(event)) {
        const QString name = controlOf(control).name;
        if (control != curve_ && name != "Text1" && name != "Text2")
            return false;
        const QPoint middle = control->rect().center();
        return boxPressed(control, QMouseEvent(QEvent::MouseButtonPress, middle, control->mapToGlobal(middle),
                                               Qt::RightButton, Qt::RightButton, Qt::NoModifier));
    }
    if (control != percent_ || event.type() == QEvent::ContextMenu)
        return false;
    const auto& key = static_cast<const QKeyEvent&>(event);
    if (key.key() == Qt::Key_Space && !key.isAutoRepeat())
        onEvent(event.type() == QEvent::KeyPress ? Command6_MouseDown : Command6_MouseUp);
    return false;
}

void MainWindow::boxDoubleClicked(const QWidget* box)
{
    const QString name = controlOf(box).name;
    if (name == "Text1")
        onEvent(Text1_DblClick);
    else if (name == "Text2")
        onEvent(Text2_DblClick);
    else if (name == "Text4")
        onEvent(Text4_DblClick);
}

void MainWindow::boxEntered(QWidget* box, Qt::FocusReason reason)
{
    if (!sheet.Modifying || reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason)
        return;
    const auto [name, index] = controlOf(box);
    onPassing([&, name = name, index = index] {
        if (name == "Text1")
            Text1_GotFocus(index);
        else if (name == "Text2")
            Text2_GotFocus(index);
        else if (name == "Text4")
            Text4_GotFocus();
        else if (name == "Text5")
            Text5_GotFocus(index);
    });
    // Typing replaces a count, and what stands for a name. Tab selects by itself; of a click, the press would
    // take the selection away.
    const bool replaced = name == "Text2" || (name == "Text1" && isNoName(frmMain.Text1[index].text));
    enteredByMouse_ = replaced && reason == Qt::MouseFocusReason ? static_cast<QLineEdit*>(box) : nullptr;
}

void MainWindow::presentMode()
{
    const bool on = frmMain.sheetColour.has_value();
    if (on == modifyingShown_)
        return;
    modifyingShown_ = on;
    const QPalette colours = on ? modifyColours(plainColours_, *frmMain.sheetColour) : plainColours_;
    centralWidget()->setPalette(colours);
    centralWidget()->setAutoFillBackground(on);
    tabs_->tabBar()->setFocusPolicy(on ? Qt::TabFocus : Qt::NoFocus);
    QPalette tabs; // stand on a ground of their own
    tabs.setColor(QPalette::WindowText, plainColours_.color(QPalette::WindowText));
    tabs_->tabBar()->setPalette(tabs);
    for (TaxonPage* const page : pages_)
        page->makeEditable(on);
    for (const LineBinding& line : lines_) {
        const Control control = controlOf(line.widget);
        if (control.name == "Text5" || (control.name == "Text1" && control.index == 0))
            makeEditable(line.widget, on);
    }
    makeEditable(samples_->lineEdit(), on);
    samples_->setFocusPolicy(on ? Qt::StrongFocus : Qt::TabFocus);
    QPalette path = colours; // stands on the window itself
    path.setColor(QPalette::Text, colours.color(QPalette::WindowText));
    location_->setPalette(path);
    note_->setReadOnly(!on);
    note_->setUndoRedoEnabled(on);
    note_->setFocusPolicy(on ? Qt::StrongFocus : Qt::NoFocus);
}
