#include "platform/qt/capture_box.h"

#include "platform/qt/main_window.h"

#include <QEvent>

CaptureBox::CaptureBox(MainWindow& main, Handlers handlers) : main_(main), handlers_(std::move(handlers))
{
    setReadOnly(true);
    setFocusPolicy(Qt::ClickFocus);
    setContextMenuPolicy(Qt::NoContextMenu);
    setAlignment(Qt::AlignCenter);
}

void CaptureBox::keyWentDown(int keyCode, const QString& typed)
{
    main_.onEvent([&] {
        if (handlers_.keyDown)
            handlers_.keyDown(keyCode);
        if (handlers_.keyPress && !typed.isEmpty())
            handlers_.keyPress(typed.toUcs4().front());
    });
}

void CaptureBox::keyCameUp(int keyCode)
{
    if (handlers_.keyUp)
        main_.onEvent([&] { handlers_.keyUp(keyCode); });
}

/// Else a dead key would wait for the letter that it belongs to.
QVariant CaptureBox::inputMethodQuery(Qt::InputMethodQuery query) const
{
    return query == Qt::ImEnabled ? QVariant(false) : QLineEdit::inputMethodQuery(query);
}

/// The keys have come already.
bool CaptureBox::event(QEvent* event)
{
    if (event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease)
        return true;
    return QLineEdit::event(event);
}
