#pragma once

#include <QContextMenuEvent>
#include <QKeyEvent>

/// Does the user ask for the menu of what has the focus, by the menu key or Shift and F10?
inline bool asksForMenu(const QEvent& event)
{
    if (event.type() == QEvent::ContextMenu)
        return static_cast<const QContextMenuEvent&>(event).reason() == QContextMenuEvent::Keyboard;
    if (event.type() != QEvent::KeyPress)
        return false;
    const auto& key = static_cast<const QKeyEvent&>(event);
    return key.key() == Qt::Key_F10 && key.modifiers() == Qt::ShiftModifier;
}
