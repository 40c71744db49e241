#include "window/bindings.h"

#include "platform/qt/text.h"
#include "window/key_map.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QSlider>
#include <algorithm>

namespace {

/// The style of the letters; their size belongs to the layout.
void showFont(QWidget& widget, bool bold, bool italic, bool underline)
{
    QFont font = widget.font();
    font.setBold(bold);
    font.setItalic(italic);
    font.setUnderline(underline);
    widget.setFont(font);
}

} // namespace

void placeView(const LineBinding& binding)
{
    QLineEdit& widget = *binding.widget;
    const bool visited = widget.window()->focusWidget() == &widget;
    const int end = static_cast<int>(binding.record->text.size());
    widget.setCursorPosition(visited ? binding.record->caret : binding.record->showsEnd ? end : 0);
}

void show(LineBinding& binding)
{
    const TextBox& now = *binding.record;
    TextBox& was = binding.shown;
    if (now == was)
        return;
    QLineEdit& widget = *binding.widget;
    if (now.text != was.text) {
        widget.setMaxLength(std::max(textLimit, static_cast<int>(now.text.size())));
        widget.setText(shownText(now.text));
    }
    if (now.rightAligned != was.rightAligned)
        widget.setAlignment((now.rightAligned ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    placeView(binding);
    if (now.bold != was.bold || now.italic != was.italic || now.underline != was.underline)
        showFont(widget, now.bold, now.italic, now.underline);
    if (now.backColor != was.backColor) {
        QPalette colours = widget.palette();
        colours.setColor(QPalette::Base, QColor(now.backColor.red, now.backColor.green, now.backColor.blue));
        widget.setPalette(colours);
    }
    widget.setEnabled(now.enabled);
    was = now;
}

namespace {

/// What of a widget's text goes into a record; it tells by itself how far a caret has moved, since a part of
/// a text becomes a part of the result.
QString accepted(const QString& text, bool oneLine)
{
    QString composed = text.normalized(QString::NormalizationForm_C);
    composed.remove(QChar::Null);
    if (!oneLine)
        return composed;
    composed.replace("\r\n", " ");
    for (QChar& character : composed)
        if (character.isSpace() && character != QChar::Nbsp)
            character = ' ';
    return composed;
}

/// Records end their lines with CR LF, the widget with one character.
std::string heldLines(const QString& text)
{
    return heldText(QString(text).replace('\n', "\r\n"));
}

} // namespace

TypedText typedInto(QLineEdit& widget)
{
    const QString text = widget.text();
    const std::string held = heldText(accepted(text, true));
    const auto before = heldText(accepted(text.left(widget.cursorPosition()), true)).size();
    const int caret = static_cast<int>(std::min(before, held.size()));
    if (const QString shown = shownText(held); shown != text) {
        widget.setText(shown);
        widget.setCursorPosition(caret);
    }
    return {held, caret, text.size() >= widget.maxLength()};
}

TypedText typedInto(LineBinding& binding)
{
    const TypedText typed = typedInto(*binding.widget);
    binding.shown.text = typed.text;
    binding.shown.caret = typed.caret;
    return typed;
}

static int caretInWidget(const TextBox& record)
{
    return static_cast<int>(
        shownText(std::string_view(record.text).substr(0, record.caret)).remove('\r').size());
}

TypedText typedInto(NoteBinding& binding)
{
    QPlainTextEdit& widget = *binding.widget;
    const auto limit = std::max<qsizetype>(textLimit, shownText(binding.shown.text).remove('\r').size());
    const QString text = widget.toPlainText();
    const std::string held = heldLines(accepted(text.left(limit), false));
    const auto before = heldLines(accepted(text.left(widget.textCursor().position()), false)).size();
    const int caret = static_cast<int>(std::min(before, held.size()));
    binding.shown.text = held;
    binding.shown.caret = caret;
    if (shownText(held).remove('\r') != text)
        binding.shown.text += '?'; // so that it is shown anew
    return {held, caret, text.size() >= limit};
}

void show(NoteBinding& binding)
{
    const TextBox& now = *binding.record;
    TextBox& was = binding.shown;
    if (now == was)
        return;
    const QSignalBlocker quiet(binding.widget); // it has no signal for a user's edits alone
    if (now.text != was.text)
        binding.widget->setPlainText(shownText(now.text));
    QTextCursor cursor = binding.widget->textCursor();
    cursor.setPosition(caretInWidget(now));
    binding.widget->setTextCursor(cursor);
    binding.widget->setEnabled(now.enabled);
    was = now;
}

void show(LabelBinding& binding)
{
    const Label& now = *binding.record;
    Label& was = binding.shown;
    if (now == was)
        return;
    QLabel& widget = *binding.widget;
    if (now.caption != was.caption)
        widget.setText(shownText(now.caption));
    widget.setVisible(now.visible);
    widget.setEnabled(now.enabled);
    if (now.bold != was.bold)
        showFont(widget, now.bold, false, false);
    was = now;
}

// What follows is cheap to compare with the widget itself, which also puts back what a click has toggled.

void show(ButtonBinding& binding)
{
    binding.widget->setEnabled(binding.record->enabled);
    binding.widget->setVisible(binding.record->visible);
}

void show(OptionBinding& binding)
{
    binding.widget->setAutoExclusive(false);
    binding.widget->setChecked(binding.record->selected);
    binding.widget->setAutoExclusive(true);
}

void show(CheckBinding& binding)
{
    binding.widget->setChecked(binding.record->checked);
}

void show(SliderBinding& binding)
{
    const QSignalBlocker quiet(binding.widget); // it has no signal for a user's changes alone
    binding.widget->setRange(binding.record->min, binding.record->max);
    binding.widget->setValue(binding.record->value);
}

void show(ScrollBinding& binding)
{
    const ScrollBar& now = *binding.record;
    const QSignalBlocker quiet(binding.widget);
    binding.widget->setRange(0, now.max);
    binding.widget->setSingleStep(now.smallChange);
    binding.widget->setPageStep(now.largeChange);
    binding.widget->setValue(now.value);
    binding.widget->setVisible(now.visible);
}

void show(KeyBinding& binding)
{
    if (const QString text = shownText(binding.record->text); text != binding.widget->text())
        binding.widget->setText(text);
    showRed(*binding.widget, binding.record->red);
}

void show(ListBinding& binding)
{
    const ListBox& now = *binding.record;
    QListWidget& widget = *binding.widget;
    const QSignalBlocker quiet(binding.widget);
    if (now.items != binding.shown.items) {
        widget.clear();
        for (const std::string& item : now.items)
            widget.addItem(shownText(item));
        binding.shown.items = now.items;
    }
    if (widget.currentRow() != now.chosen)
        widget.setCurrentRow(now.chosen);
}

void show(ActionBinding& binding)
{
    binding.widget->setEnabled(binding.record->enabled);
    if (binding.widget->isCheckable())
        binding.widget->setChecked(binding.record->checked);
    if (binding.record->caption != binding.shown.caption)
        // A name with an "&" has no shortcut letter.
        binding.widget->setText(
            shownText(binding.shown.caption = binding.record->caption).replace('&', "&&"));
}

void show(BarBinding& binding)
{
    binding.widget->setVisible(binding.record->visible);
    binding.widget->setMaximum(binding.record->max);
    binding.widget->setValue(binding.record->value);
}

void show(ComboBinding& binding)
{
    const ComboBox& now = *binding.record;
    QComboBox& widget = *binding.widget;
    if (now.itemsRevision != binding.shownRevision) {
        widget.clear();
        binding.shownItems = 0;
        binding.shownRevision = now.itemsRevision;
    }
    const bool added = binding.shownItems < now.items.size();
    for (; binding.shownItems < now.items.size(); ++binding.shownItems)
        widget.addItem(shownText(now.items[binding.shownItems]));
    const QString text = shownText(now.text);
    if (!added && widget.currentText() == text)
        return;
    const int last = widget.count() - 1; // what a log shows
    widget.setCurrentIndex(widget.itemText(last) == text ? last
                                                         : widget.findText(text)); // the list opens there
    widget.setEditText(text);
    widget.lineEdit()->setCursorPosition(0);
}

void show(LogBinding& binding)
{
    const std::string& now = binding.record->text;
    if (now.size() == binding.shownLength)
        return;
    // The line break in front of an added line is what appending makes of itself.
    const std::string_view added = std::string_view(now).substr(binding.shownLength);
    const QString lines =
        shownText(added.substr(binding.shownLength != 0 && added.starts_with("\r\n") ? 2 : 0));
    binding.widget->appendPlainText(lines);
    binding.widget->moveCursor(QTextCursor::End);
    binding.shownLength = now.size();
}
