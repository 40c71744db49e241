// Modify template mode in the main window: what makes its boxes editable, and what the mouse and the focus do
// on them.

#include "core/main_screen.h"
#include "core/sheet_state.h"
#include "core/taxon_name.h"
#include "platform/qt/text.h"
#include "sheet/focus_and_pointer.h"
#include "sheet/modify_mode.h"
#include "sheet/percent_view.h"
#include "window/cell_box.h"
#include "window/main_window.h"
#include "window/menu_key.h"
#include "window/surface_view.h"
#include "window/taxon_page.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QTabBar>
#include <QTabWidget>

namespace {

void makeEditable(QLineEdit* box, bool editable)
{
    box->setReadOnly(!editable);
    box->setFocusPolicy(editable ? Qt::StrongFocus : Qt::NoFocus);
    if (!editable)
        box->deselect();
}

/// What stands in the box of a row without a taxon, and of a sheet without a sample.
bool isNoName(const QString& name)
{
    return name == noText || name == "-9999";
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
    const auto [kind, index] = controlOf(box);
    const bool right = press.button() == Qt::RightButton;
    bool menuOpens = false;
    onEvent([&, row = kind, place = index] {
        if (row != nullptr && row->pressed != nullptr)
            menuOpens = row->pressed(place, right);
        else if (qobject_cast<QAbstractButton*>(box) == nullptr)
            giveFocusBack();
    });
    if (menuOpens)
        menuNamed(kind->menu)->popup(press.globalPosition().toPoint());
    return menuOpens;
}

/// The menu key is a right click on what has the focus, and Space on "%" holds it as the mouse does.
bool MainWindow::keyOnControl(QWidget* control, const QEvent& event)
{
    if (asksForMenu(event)) {
        const ControlRow* const kind = controlOf(control).kind;
        if (kind == nullptr || kind->menu == nullptr || qobject_cast<QLabel*>(control) != nullptr)
            return false;
        const QPoint middle = control->rect().center();
        return boxPressed(control, QMouseEvent(QEvent::MouseButtonPress, middle, control->mapToGlobal(middle),
                                               Qt::RightButton, Qt::RightButton, Qt::NoModifier));
    }
    if (event.type() == QEvent::ContextMenu)
        return false;
    const auto& key = static_cast<const QKeyEvent&>(event);
    if (event.type() == QEvent::KeyPress && key.matches(QKeySequence::Paste))
        return boxPasted(control, QClipboard::Clipboard);
    if (event.type() == QEvent::KeyPress && keyInCell(control, key))
        return true;
    if (control != percent_)
        return false;
    if (key.key() == Qt::Key_Space && !key.isAutoRepeat())
        onEvent(event.type() == QEvent::KeyPress ? Command6_MouseDown : Command6_MouseUp);
    return false;
}

/// Enter and the arrows go from name to name, or from count to count, so that a flora is named without the
/// mouse. The box is chosen before its page is turned to: a page that goes hands the focus on.
bool MainWindow::keyInCell(QWidget* box, const QKeyEvent& key)
{
    const auto [kind, slot] = controlOf(box);
    if (!sheet.Modifying || kind == nullptr || kind->hovered == nullptr || slot == 0)
        return false;
    const Qt::KeyboardModifiers held = key.modifiers() & ~Qt::KeypadModifier;
    const bool enter = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
    int step = 0;
    if ((enter || key.key() == Qt::Key_Down) && held == Qt::NoModifier)
        step = 1;
    else if ((enter && held == Qt::ShiftModifier) || (key.key() == Qt::Key_Up && held == Qt::NoModifier))
        step = -1;
    if (step == 0)
        return false;
    beginEvent();
    const int next = [from = slot, step] {
        const UserEvent event;
        return goFromCell(from, step);
    }();
    const TaxonPage& page = *pages_[(next - 1) / keysPerLayer];
    QLineEdit* const to = kind->isNumber ? page.countBox(next) : page.nameBox(next);
    to->setFocus(Qt::TabFocusReason);
    present();
    to->selectAll();
    return true;
}

void MainWindow::boxDoubleClicked(const QWidget* box)
{
    if (const ControlRow* const kind = controlOf(box).kind; kind != nullptr && kind->doubleClicked != nullptr)
        onEvent(kind->doubleClicked);
}

bool MainWindow::boxPasted(const QWidget* box, QClipboard::Mode clipboard)
{
    const auto [kind, index] = controlOf(box);
    if (kind == nullptr || kind->pasted == nullptr || !sheet.Modifying)
        return false;
    const std::string text = heldText(QApplication::clipboard()->text(clipboard));
    bool elsewhere = false;
    onEvent([&, row = kind, place = index] { elsewhere = row->pasted(place, text); });
    return elsewhere;
}

void MainWindow::boxEntered(QWidget* box, Qt::FocusReason reason)
{
    if (!sheet.Modifying || reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason)
        return;
    const auto [kind, index] = controlOf(box);
    onPassing([&, row = kind, place = index] {
        if (row != nullptr)
            row->entered(place);
    });
    auto* const line = qobject_cast<QLineEdit*>(box);
    // Typing replaces a count, and what stands for a name. Tab selects by itself; of a click, the press would
    // take the selection away.
    const bool replaced = kind != nullptr && line != nullptr && (kind->isNumber || isNoName(line->text()));
    enteredByMouse_ = replaced && reason == Qt::MouseFocusReason ? line : nullptr;
}

void MainWindow::presentMode()
{
    const bool on = frmMain.sheetColour.has_value();
    if (on == modifyingShown_)
        return;
    modifyingShown_ = on;
    if (menuNamed("mnuRightButton") == nullptr)
        makeRowMenu(); // rows have it in this mode only
    const QPalette colours = on ? modifyColours(plainColours_, *frmMain.sheetColour) : plainColours_;
    centralWidget()->setPalette(colours);
    centralWidget()->setAutoFillBackground(on);
    tabs_->tabBar()->setFocusPolicy(on ? Qt::TabFocus : Qt::NoFocus);
    QPalette tabs; // stand on a ground of their own
    tabs.setColor(QPalette::WindowText, plainColours_.color(QPalette::WindowText));
    tabs_->tabBar()->setPalette(tabs);
    for (TaxonPage* const page : pages_)
        page->makeEditable(on);
    for (QLineEdit* const box : editedBoxes_)
        makeEditable(box, on);
    makeEditable(samples_->lineEdit(), on);
    samples_->setFocusPolicy(on ? Qt::StrongFocus : Qt::TabFocus);
    QPalette path = colours; // stands on the window itself
    path.setColor(QPalette::Text, colours.color(QPalette::WindowText));
    location_->setPalette(path);
    note_->setReadOnly(!on);
    note_->setUndoRedoEnabled(on);
    note_->setFocusPolicy(on ? Qt::StrongFocus : Qt::NoFocus);
}
