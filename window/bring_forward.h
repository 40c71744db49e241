#pragma once

#include <QWidget>

/// Shows a window above all others and gives it the keyboard, also out of its icon.
inline void bringForward(QWidget& window)
{
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.raise();
    window.activateWindow();
}
