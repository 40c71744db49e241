#pragma once

#include "window/control_table.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QRadioButton>
#include <QSlider>
#include <gtest/gtest.h>

// Gives a record what its control is to show, and looks whether it does.

/// What several controls of one kind show must differ, or one that shows its neighbour's record is not found.
inline std::string textFor(const Control& control)
{
    return std::string(control.kind->name) + "\xE6" + std::to_string(control.index);
}

inline int numberFor(const Control& control)
{
    return 3 + control.index % 5;
}

inline void give(TextBox& record, const Control& control)
{
    record.text = textFor(control);
}
inline void expectShown(const QWidget* widget, const TextBox& record)
{
    const QString text = QString::fromLatin1(record.text);
    if (const auto* const line = qobject_cast<const QLineEdit*>(widget))
        EXPECT_EQ(line->text(), text);
    else
        EXPECT_EQ(qobject_cast<const QPlainTextEdit*>(widget)->toPlainText(), text);
}
inline void give(Label& record, const Control& control)
{
    record.caption = textFor(control);
}
inline void expectShown(const QWidget* widget, const Label& record)
{
    EXPECT_EQ(qobject_cast<const QLabel*>(widget)->text(), QString::fromLatin1(record.caption));
}
inline void give(Button& record, const Control& control)
{
    record.enabled = numberFor(control) % 2 == 0;
}
inline void expectShown(const QWidget* widget, const Button& record)
{
    EXPECT_EQ(widget->isEnabled(), record.enabled);
}
inline void give(OptionButton& record, const Control& control)
{
    record.selected = control.index == 1;
}
inline void expectShown(const QWidget* widget, const OptionButton& record)
{
    EXPECT_EQ(qobject_cast<const QRadioButton*>(widget)->isChecked(), record.selected);
}
inline void give(CheckBox& record, const Control& control)
{
    record.checked = numberFor(control) % 2 == 0;
}
inline void expectShown(const QWidget* widget, const CheckBox& record)
{
    EXPECT_EQ(qobject_cast<const QCheckBox*>(widget)->isChecked(), record.checked);
}
inline void give(ComboBox& record, const Control& control)
{
    record.items = {"first", textFor(control)};
    record.text = record.items[1];
    ++record.itemsRevision;
}
inline void expectShown(const QWidget* widget, const ComboBox& record)
{
    const auto* const combo = qobject_cast<const QComboBox*>(widget);
    EXPECT_TRUE(combo->count() == 2 && combo->currentText() == QString::fromLatin1(record.text));
}
inline void give(ListBox& record, const Control& control)
{
    record = {{"first", textFor(control)}, 1};
}
inline void expectShown(const QWidget* widget, const ListBox& record)
{
    const auto* const list = qobject_cast<const QListWidget*>(widget);
    EXPECT_TRUE(list->count() == 2 && list->currentItem()->text() == QString::fromLatin1(record.items[1]));
}
inline void give(LogBox& record, const Control& control)
{
    record.text += "\r\n" + textFor(control);
}
inline void expectShown(const QWidget* widget, const LogBox& record)
{
    EXPECT_EQ(qobject_cast<const QPlainTextEdit*>(widget)->toPlainText(),
              QString::fromLatin1(record.text).remove('\r'));
}
inline void give(ProgressBar& record, const Control& control)
{
    record = {true, numberFor(control), 9};
}
inline void expectShown(const QWidget* widget, const ProgressBar& record)
{
    const auto* const bar = qobject_cast<const QProgressBar*>(widget);
    EXPECT_TRUE(bar->value() == record.value && bar->maximum() == record.max && !bar->isHidden());
}
inline void give(Slider& record, const Control& control)
{
    record = {1, 9, numberFor(control)};
}
inline void expectShown(const QWidget* widget, const Slider& record)
{
    const auto* const slider = qobject_cast<const QAbstractSlider*>(widget);
    EXPECT_TRUE(slider->value() == record.value && slider->minimum() == 1 && slider->maximum() == 9);
}
inline void give(ScrollBar& record, const Control& control)
{
    record = {900, 1, 2, 50 + numberFor(control), true};
}
inline void expectShown(const QWidget* widget, const ScrollBar& record)
{
    const auto* const bar = qobject_cast<const QAbstractSlider*>(widget);
    EXPECT_TRUE(bar->value() == record.value && bar->maximum() == 900 && !bar->isHidden());
}
inline void give(KeyBox& record, const Control& control)
{
    record.text = std::to_string(100 + control.index);
}
inline void expectShown(const QWidget* widget, const KeyBox& record)
{
    EXPECT_EQ(qobject_cast<const QLineEdit*>(widget)->text(), QString::fromLatin1(record.text));
}

/// Calls `use` with the control's own record, if it has one.
template <class Use>
void withRecord(const Control& control, Use use)
{
    std::visit(
        [&](auto record) {
            if constexpr (!std::is_same_v<decltype(record), std::monostate>)
                use(record[std::max(control.index, 0)]);
        },
        control.kind->record);
}
