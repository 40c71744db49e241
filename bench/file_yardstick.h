#pragma once

#include "bench/report.h"

#include <QByteArray>
#include <QFile>
#include <unistd.h>

/// Writes the bytes to a new file, brings them to the disk and reads them again. Milliseconds.
inline double writeAndReadMilliseconds(const QString& path, const QByteArray& bytes)
{
    return milliseconds([&] {
        QFile file(path);
        if (file.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
            file.write(bytes);
            file.flush();
            fdatasync(file.handle());
            file.close();
        }
        if (file.open(QIODevice::ReadOnly) && file.readAll().size() != bytes.size())
            std::abort();
        file.close();
        file.remove();
    });
}
