#pragma once

#include <QApplication>
#include <QFile>
#include <QWidget>
#include <QWindow>
#include <cstdio>
#include <ctime>
#include <unistd.h>

/// Milliseconds since this process was started, by the system's own account (in steps of 10).
inline double millisecondsSinceStart()
{
    QFile file("/proc/self/stat");
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    const QByteArray fields = file.readAll();
    const double startTicks = fields.mid(fields.lastIndexOf(')') + 2).split(' ').at(19).toDouble();
    timespec now{};
    clock_gettime(CLOCK_BOOTTIME, &now);
    return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6 -
           startTicks * 1e3 / static_cast<double>(sysconf(_SC_CLK_TCK));
}

/// Runs the event loop until the window is exposed and painted, and prints how long that took from the start.
/// `apart`: milliseconds since then that are not to count.
inline int reportReady(const QWidget& window, double apart = 0)
{
    while (!window.windowHandle()->isExposed() || !window.isActiveWindow())
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    QApplication::processEvents();
    std::printf("%.0f\n", millisecondsSinceStart() - apart);
    std::fflush(stdout);
    _exit(0);
}
