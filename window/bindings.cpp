#include "window/bindings.h"

#include "platform/qt/text.h"

#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QRadioButton>
#include <QSignalBlocker>

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

void show(LineBinding& binding)
{
    const TextBox& now = *binding.record;
    TextBox& was = binding.shown;
    if (now == was)
        return;
    QLineEdit& widget = *binding.widget;
    if (now.text != was.text)
        widget.setText(shownText(now.text));
    if (now.rightAligned != was.rightAligned)
        widget.setAlignment((now.rightAligned ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    widget.setCursorPosition(now.caret); // also decides which end of a long text is in view
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

TypedText typedInto(LineBinding& binding)
{
    QLineEdit& widget = *binding.widget;
    QString text = widget.text();
    for (QChar& character : text)
        if (character.isSpace() && character != QChar::Nbsp)
            character = ' ';
    const int caret = static_cast<int>(heldText(text.left(widget.cursorPosition())).size());
    const std::string held = heldText(text);
    if (const QString shown = shownText(held); shown != widget.text()) {
        widget.setText(shown);
        widget.setCursorPosition(caret);
    }
    binding.shown.text = held;
    binding.shown.caret = caret;
    return {held, caret};
}

/// Records end their lines with CR LF, the widget with one character.
static std::string heldLines(const QString& text)
{
    return heldText(QString(text).replace('\n', "\r\n"));
}

static int caretInWidget(const TextBox& record)
{
    return static_cast<int>(
        shownText(std::string_view(record.text).substr(0, record.caret)).remove('\r').size());
}

TypedText typedInto(NoteBinding& binding)
{
    QPlainTextEdit& widget = *binding.widget;
    const QString text = widget.toPlainText();
    const int caret = static_cast<int>(heldLines(text.left(widget.textCursor().position())).size());
    const std::string held = heldLines(text);
    binding.shown.text = held;
    binding.shown.caret = caret;
    if (shownText(held).remove('\r') != text)
        binding.shown.text += '?'; // so that it is shown anew
    return {held, caret};
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
