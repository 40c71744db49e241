#include "window/bound_window.h"

#include "core/editing.h"
#include "core/main_screen.h"
#include "extras/manual.h"
#include "platform/qt/text.h"
#include "window/capture_box.h"
#include "window/main_window.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QHash>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QRadioButton>
#include <QShortcut>
#include <QSlider>
#include <algorithm>
#include <cassert>

namespace {

constexpr const char* property = "control";

void carry(QWidget* widget, const Control& control)
{
    widget->setProperty(property, QVariant::fromValue(control));
}

template <class Widget>
Widget& as(QWidget* widget)
{
    assert(qobject_cast<Widget*>(widget) != nullptr);
    return *static_cast<Widget*>(widget);
}

} // namespace

BoundWindow::BoundWindow(QWidget& self, MainWindow& main, std::vector<ControlRow> table)
    : self_(self), main_(main), table_(std::move(table))
{
    // Where F1 is a key that counts, or is being captured, it never gets here.
    auto* const help = new QShortcut(Qt::Key_F1, &self);
    help->setObjectName("help");
    QObject::connect(help, &QShortcut::activated, &self,
                     [this] { runEvent([this] { openPageOf(self_.objectName().toStdString()); }); });
}

Control BoundWindow::controlOf(const QObject* widget)
{
    return widget->property(property).value<Control>();
}

void BoundWindow::runEvent(const std::function<void()>& handler)
{
    main_.onEvent(handler);
}

void BoundWindow::runPassing(const std::function<void()>& handler)
{
    main_.onPassing(handler);
}

void BoundWindow::bindWidget(QWidget* widget, const char* name, int index)
{
    const auto row = std::find_if(table_.begin(), table_.end(), [&](const ControlRow& one) {
        return std::string_view(one.name) == name && index >= one.first && index <= one.last;
    });
    assert(row != table_.end());
    const Control control{&*row, index};
    widget->setObjectName(index == noIndex ? QString(name) : indexed(name, index));
    carry(widget, control);
    bound_.push_back({widget, control});
    const int place = std::max(index, 0);
    std::visit(
        [&](auto record) {
            using Record = decltype(record);
            if constexpr (std::is_same_v<Record, TextBox*>)
                bindText(widget, record[place], control);
            else if constexpr (std::is_same_v<Record, KeyBox*>) {
                keys_.append({&as<QLineEdit>(widget), record + place});
                if (control.kind->edited)
                    QObject::connect(&as<QLineEdit>(widget), &QLineEdit::textEdited, &self_,
                                     [this, control, box = &as<QLineEdit>(widget)] {
                                         runEvent([&] {
                                             const TypedText typed = typedInto(*box);
                                             control.kind->edited(control.index, typed.text, typed.caret);
                                         });
                                     });
            } else if constexpr (std::is_same_v<Record, Label*>)
                labels_.append({&as<QLabel>(widget), record + place});
            else if constexpr (std::is_same_v<Record, Button*>)
                buttons_.append({&as<QAbstractButton>(widget), record + place});
            else if constexpr (std::is_same_v<Record, OptionButton*>)
                options_.append({&as<QRadioButton>(widget), record + place});
            else if constexpr (std::is_same_v<Record, CheckBox*>)
                checks_.append({&as<QCheckBox>(widget), record + place});
            else if constexpr (std::is_same_v<Record, ComboBox*>)
                bindChoice(widget, record[place], control);
            else if constexpr (std::is_same_v<Record, ListBox*>)
                bindList(widget, record[place], control);
            else if constexpr (std::is_same_v<Record, LogBox*>)
                logs_.append({&as<QPlainTextEdit>(widget), record + place});
            else if constexpr (std::is_same_v<Record, ProgressBar*>)
                bars_.append({&as<QProgressBar>(widget), record + place});
            else if constexpr (std::is_same_v<Record, Slider*>)
                sliders_.append({&as<QAbstractSlider>(widget), record + place});
            else if constexpr (std::is_same_v<Record, ScrollBar*>)
                scrolls_.append({&as<QAbstractSlider>(widget), record + place});
        },
        row->record);
    bindUse(widget, control);
    if (row->entered || row->left || std::holds_alternative<TextBox*>(row->record))
        widget->installEventFilter(&self_); // to see its visits
}

/// What the user does that is no edit of a text or list.
void BoundWindow::bindUse(QWidget* widget, Control control)
{
    if (auto* const button = qobject_cast<QAbstractButton*>(widget))
        QObject::connect(button, &QAbstractButton::clicked, &self_,
                         [this, control] { runEvent([&] { control.kind->clicked(control.index); }); });
    if (auto* const slider = qobject_cast<QAbstractSlider*>(widget))
        QObject::connect(slider, &QAbstractSlider::valueChanged, &self_,
                         [this, control](int value) { runEvent([&] { control.kind->changed(value); }); });
    if (auto* const taking = dynamic_cast<CaptureBox*>(widget))
        taking->giveTo([this, control](const CaptureBox::Key& key) {
            runEvent([&] {
                const ControlRow& row = *control.kind;
                if (key.isDown && row.keyDown != nullptr)
                    row.keyDown(control.index, key.code);
                if (key.isDown && key.character != 0 && row.keyPress != nullptr)
                    row.keyPress(control.index, key.character);
                if (!key.isDown && row.keyUp != nullptr)
                    row.keyUp(control.index, key.code);
            });
        });
}

template <class AnyBinding>
void BoundWindow::textEdited(QList<AnyBinding>& bindings, qsizetype at, TextBox& record, Control control)
{
    const ControlRow& row = *control.kind;
    TypedText typed;
    runEvent([&] {
        typed = typedInto(bindings[at]);
        if (typed.full)
            frmMain.notice = "A box holds " + std::to_string(textLimit) +
                             " characters: what would come after them is left out.";
        if (row.edited)
            row.edited(control.index, typed.text, typed.caret);
        else
            typeInto(record, typed.text, typed.caret);
    });
    if (row.isNumber && record.text != typed.text)
        bindings[at].widget->selectAll(); // a number was refused: typing replaces the one that came back
}

void BoundWindow::bindText(QWidget* widget, TextBox& record, Control control)
{
    if (auto* const box = qobject_cast<QLineEdit*>(widget)) {
        lines_.append({box, &record});
        QObject::connect(
            box, &QLineEdit::textEdited, &self_,
            [this, &record, control, at = lines_.size() - 1] { textEdited(lines_, at, record, control); });
        return;
    }
    auto* const area = &as<QPlainTextEdit>(widget);
    carry(area->viewport(), control);
    notes_.append({area, &record});
    QObject::connect(area, &QPlainTextEdit::textChanged, &self_,
                     [this, area, &record, control, at = notes_.size() - 1] {
                         if (!area->isReadOnly()) // it has no signal for a user's edits alone
                             textEdited(notes_, at, record, control);
                     });
}

void BoundWindow::boxLeft(const QObject* widget)
{
    for (const LineBinding& line : lines_)
        if (line.widget == widget)
            placeView(line);
}

void BoundWindow::bindChoice(QWidget* widget, ComboBox& record, Control control)
{
    auto& combo = as<QComboBox>(widget);
    combos_.append({&combo, &record});
    const ControlRow& row = *control.kind;
    QObject::connect(&combo, &QComboBox::activated, &self_, [this, &row, &record, control](int item) {
        runEvent([&] {
            if (row.chosen != nullptr)
                row.chosen(std::string(record.items[static_cast<std::size_t>(item)]));
            else
                row.clicked(control.index);
        });
    });
    if (row.edited)
        QObject::connect(combo.lineEdit(), &QLineEdit::textEdited, &self_,
                         [this, &row, control, box = combo.lineEdit()] {
                             runEvent([&] {
                                 const TypedText typed = typedInto(*box);
                                 row.edited(control.index, typed.text, typed.caret);
                             });
                         });
}

void BoundWindow::bindList(QWidget* widget, ListBox& record, Control control)
{
    auto* const list = &as<QListWidget>(widget);
    lists_.append({list, &record});
    const ControlRow& row = *control.kind;
    const auto choose = [this, &row, list] {
        runEvent([&row, line = list->currentRow()] { row.changed(line); });
    };
    QObject::connect(list, &QListWidget::currentRowChanged, &self_, choose);
    QObject::connect(list, &QListWidget::itemClicked, &self_, choose);
    QObject::connect(list, &QListWidget::itemDoubleClicked, &self_, [this, &row] {
        if (row.doubleClicked != nullptr)
            runEvent(row.doubleClicked);
    });
}

void BoundWindow::makeMenus(QMenuBar& bar, const std::vector<MenuRow>& menus,
                            const std::vector<EntryRow>& entries)
{
    QHash<QString, QMenu*> made;
    const auto make = [&](const MenuRow& row) {
        QMenu* const menu = row.parent != nullptr    ? made[row.parent]->addMenu(row.caption)
                            : row.caption != nullptr ? bar.addMenu(row.caption)
                                                     : new QMenu(&self_);
        menu->setObjectName(row.name);
        made[row.name] = menu;
    };
    for (const MenuRow& row : menus)
        if (row.parent == nullptr)
            make(row);
    for (const EntryRow& entry : entries) {
        for (const MenuRow& row : menus)
            if (made[row.name] == nullptr && std::string_view(row.name) == entry.menu)
                make(row);
        QMenu& menu = *made[entry.menu];
        if (entry.name == nullptr)
            menu.addSeparator()->setVisible(!entry.hidden);
        else
            addEntry(menu, entry);
    }
}

QMenu* BoundWindow::menuNamed(const char* name) const
{
    return self_.findChild<QMenu*>(name);
}

QAction* BoundWindow::addEntry(QMenu& menu, const EntryRow& row)
{
    QAction* const action = menu.addAction(row.caption);
    action->setObjectName(row.name);
    action->setMenuRole(QAction::NoRole); // entries stay in their menus on every system
    action->setCheckable(row.checkable);
    action->setVisible(!row.hidden);
    QObject::connect(action, &QAction::triggered, &self_,
                     [this, clicked = row.clicked] { runEvent([&] { clicked(noIndex); }); });
    entries_.push_back({action, row.clicked, row.record});
    if (row.record != nullptr)
        bindAction(action, *row.record);
    if (row.chosen != nullptr)
        choices_.push_back({action, row.chosen, *row.clicked.value()});
    return action;
}

void BoundWindow::bindAction(QAction* action, MenuEntry& record)
{
    actions_.append({action, &record});
}

void BoundWindow::showControls()
{
    showAll(lines_);
    showAll(notes_);
    showAll(labels_);
    showAll(buttons_);
    showAll(options_);
    showAll(checks_);
    showAll(actions_);
    for (const Choice& one : choices_)
        one.action->setChecked(*one.chosen == one.number);
    showAll(bars_);
    showAll(sliders_);
    showAll(scrolls_);
    showAll(keys_);
    showAll(combos_);
    showAll(lists_);
    showAll(logs_);
}
