#pragma once

#include <QApplication>
#include <QDeadlineTimer>
#include <QFile>
#include <cstdio>

/// Prints the memory of this process alone (PSS) in MiB, once the event loop has settled.
inline int reportMemory()
{
    const QDeadlineTimer deadline(500);
    while (!deadline.hasExpired())
        QApplication::processEvents(QEventLoop::AllEvents, 5);
    QFile file("/proc/self/smaps_rollup");
    if (!file.open(QIODevice::ReadOnly))
        return 1;
    for (QByteArray line = file.readLine(); !line.isEmpty(); line = file.readLine())
        if (line.startsWith("Pss:"))
            std::printf("%.2f\n", line.simplified().split(' ').at(1).toDouble() / 1024);
    return 0;
}
