#include "window/capture_box.h"

#include <QKeyEvent>
#include <utility>

CaptureBox::CaptureBox()
{
    setReadOnly(true);
    setFocusPolicy(Qt::StrongFocus);
    setContextMenuPolicy(Qt::NoContextMenu);
    setAlignment(Qt::AlignCenter);
}

bool CaptureBox::beginsVisit(Qt::FocusReason reason)
{
    return reason != Qt::TabFocusReason && reason != Qt::BacktabFocusReason;
}

void CaptureBox::focusInEvent(QFocusEvent* event)
{
    const Qt::FocusReason reason = event->reason();
    if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason)
        comesBy_ = !beginsVisit(reason);
    QLineEdit::focusInEvent(event);
}

/// A visit ends and begins with the focus, so what changes between coming by and taking keys gives it up
/// first.
void CaptureBox::comeAnew(Qt::FocusReason reason)
{
    clearFocus();
    setFocus(reason);
}

void CaptureBox::mousePressEvent(QMouseEvent* event)
{
    leavesAfterKey_ = false;
    if (comesBy_)
        comeAnew(Qt::MouseFocusReason);
    QLineEdit::mousePressEvent(event);
}

void CaptureBox::keyWentDown(int keyCode, const QString& typed)
{
    lastDown_ = keyCode;
    taker_({keyCode, true, typed.isEmpty() ? char32_t{0} : typed.toUcs4().front()});
}

void CaptureBox::keyCameUp(int keyCode)
{
    taker_({keyCode, false, 0});
    if (keyCode != lastDown_)
        return;
    const bool byKeyboard = std::exchange(leavesAfterKey_, false);
    QWidget* const next = next_();
    if (next == this || (next == nullptr && byKeyboard))
        comeAnew(Qt::TabFocusReason);
    else if (next != nullptr)
        next->setFocus(byKeyboard ? Qt::TabFocusReason : Qt::OtherFocusReason);
}

/// Else a dead key would wait for the letter that it belongs to.
QVariant CaptureBox::inputMethodQuery(Qt::InputMethodQuery query) const
{
    return query == Qt::ImEnabled ? QVariant(false) : QLineEdit::inputMethodQuery(query);
}

/// Keys that are taken have come already. Enter and Space act when they come up: pressed in a box that takes
/// keys they would fill it.
bool CaptureBox::event(QEvent* event)
{
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease)
        return QLineEdit::event(event);
    if (takesKeys())
        return true;
    const auto& key = static_cast<QKeyEvent&>(*event);
    if (key.key() != Qt::Key_Return && key.key() != Qt::Key_Enter && key.key() != Qt::Key_Space)
        return QLineEdit::event(event);
    if (event->type() == QEvent::KeyRelease && !key.isAutoRepeat()) {
        leavesAfterKey_ = true;
        comeAnew(Qt::OtherFocusReason);
    }
    return true;
}
