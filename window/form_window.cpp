#include "window/form_window.h"

#include "core/character_rule.h"
#include "core/editing.h"
#include "core/sheet_state.h"
#include "platform/qt/text.h"
#include "window/capture_box.h"
#include "window/elided_label.h"
#include "window/main_window.h"

#include <QApplication>
#include <QFocusEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QSignalBlocker>

FormWindow::FormWindow(MainWindow& main, const char* name, const QString& title, const bool& visible,
                       void (*cancel)())
    : QDialog(&main), main_(main), shouldShow_(visible), cancel_(cancel)
{
    setObjectName(name);
    setWindowTitle(title);
    setModal(true);
}

void FormWindow::present()
{
    if (!shouldShow_ && !isVisible())
        return;
    for (const auto& showOne : shows_)
        showOne();
    presentMore();
    if (shouldShow_ == isVisible())
        return;
    if (!shouldShow_)
        visited_ = nullptr;
    if (shouldShow_ && (layout() == nullptr || layout()->sizeConstraint() != QLayout::SetFixedSize))
        resize(size().boundedTo(screen()->availableGeometry().size() - QSize(8, 40))); // with its frame
    setVisible(shouldShow_);
    if (shouldShow_ && !main_.isVisible())
        move(screen()->availableGeometry().center() - QRect(QPoint(), frameSize()).center());
    if (shouldShow_ && first_ != nullptr)
        first_->setFocus();
    if (auto* const box = qobject_cast<QLineEdit*>(first_); shouldShow_ && box != nullptr)
        box->selectAll(); // typing replaces what it holds
    if (!shouldShow_ && QApplication::activeModalWidget() == nullptr)
        main_.activateWindow(); // a question in between may have left the keyboard with no window at all
}

QLineEdit* FormWindow::box(const QString& name, TextBox& record, BoxHandlers handlers)
{
    if (!handlers.edited)
        handlers.edited = [&record](std::string_view text, int caret) { typeInto(record, text, caret); };
    auto* const edit = new QLineEdit(this);
    edit->setObjectName(name);
    edit->setMinimumWidth(220);
    connect(edit, &QLineEdit::textEdited, this,
            [this, edit, edited = std::move(handlers.edited)](const QString& text) {
                main_.onEvent([&] { edited(heldText(text), edit->cursorPosition()); });
            });
    shows_ += [edit, &record] {
        if (edit->text() == shownText(record.text))
            return;
        edit->setText(shownText(record.text));
        edit->setCursorPosition(record.caret);
    };
    watchVisits(edit, std::move(handlers.entered), std::move(handlers.left));
    return edit;
}

QPlainTextEdit* FormWindow::area(const QString& name, TextBox& record)
{
    auto* const edit = new QPlainTextEdit(this);
    edit->setObjectName(name);
    edit->setTabChangesFocus(true);
    edit->setFixedHeight(4 * edit->fontMetrics().lineSpacing());
    connect(edit, &QPlainTextEdit::textChanged, this, [this, edit, &record] {
        const QString text = edit->toPlainText();
        const QString before = text.left(edit->textCursor().position());
        main_.onEvent([&] { // line ends are two characters in the record
            typeInto(record, heldText(QString(text).replace("\n", "\r\n")),
                     static_cast<int>(before.size() + before.count('\n')));
        });
    });
    shows_ += [edit, &record] {
        const QString text = shownText(record.text).replace("\r\n", "\n");
        if (edit->toPlainText() == text)
            return;
        const QSignalBlocker quiet(edit);
        edit->setPlainText(text);
        edit->moveCursor(QTextCursor::End);
    };
    watchVisits(edit, {}, {});
    return edit;
}

QPushButton* FormWindow::button(const QString& name, const QString& caption, std::function<void()> clicked,
                                const Button* record)
{
    auto* const made = new QPushButton(caption, this);
    made->setObjectName(name);
    made->setAutoDefault(false);
    connect(made, &QPushButton::clicked, this,
            [this, clicked = std::move(clicked)] { main_.onEvent(clicked); });
    if (record != nullptr)
        shows_ += [made, record] { made->setVisible(record->visible); };
    return made;
}

QLayout* FormWindow::buttonRow(std::initializer_list<QWidget*> buttons)
{
    auto* const row = new QHBoxLayout;
    row->addStretch(1);
    for (QWidget* const one : buttons)
        row->addWidget(one);
    return row;
}

QLabel* FormWindow::label(const QString& name, const std::string& caption)
{
    auto* const made = new ElidedLabel;
    made->setParent(this);
    made->setObjectName(name);
    made->setMaximumWidth(360); // captions of additional info are the user's own
    shows_ += [made, &caption] { made->setText(shownText(caption)); };
    return made;
}

QLabel* FormWindow::fixedText(const QString& name, const QString& text)
{
    auto* const made = new QLabel(text, this);
    made->setObjectName(name);
    made->setTextFormat(Qt::PlainText);
    return made;
}

void FormWindow::watchVisits(QWidget* widget, std::function<void()> entered, std::function<void()> left)
{
    focusHandlers_[widget] = {std::move(entered), std::move(left)};
    widget->installEventFilter(this);
}

void FormWindow::bindMark(QAbstractButton* widget, const bool& marked, std::function<void()> clicked)
{
    connect(widget, &QAbstractButton::clicked, this,
            [this, clicked = std::move(clicked)] { main_.onEvent(clicked); });
    shows_ += [widget, &marked] {
        const bool exclusive = widget->autoExclusive(); // the arrow keys go by it
        widget->setAutoExclusive(false);
        widget->setChecked(marked);
        widget->setAutoExclusive(exclusive);
    };
}

bool FormWindow::eventFilter(QObject* target, QEvent* event)
{
    const auto handlers = focusHandlers_.constFind(target);
    if (handlers == focusHandlers_.constEnd())
        return false;
    const auto comesBy = [target, event] { // Tab, on its way over boxes that take any key
        return dynamic_cast<CaptureBox*>(target) != nullptr &&
               !CaptureBox::beginsVisit(static_cast<QFocusEvent&>(*event).reason());
    };
    if (event->type() == QEvent::FocusIn && visited_ != target && !comesBy()) {
        visited_ = target;
        sheet.LastKeyDown = noKeyYet;
        if (handlers->first)
            main_.onEvent(handlers->first);
    }
    if (event->type() == QEvent::FocusOut && visited_ == target) {
        const Qt::FocusReason reason = static_cast<QFocusEvent&>(*event).reason();
        const bool lasts = reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason;
        if (shouldShow_ && lasts)
            return false;
        visited_ = nullptr;
        if (shouldShow_ && handlers->second)
            main_.onEvent(handlers->second);
    }
    return false;
}

/// Esc and the frame's own close button.
void FormWindow::reject()
{
    main_.onEvent(cancel_);
}
