#pragma once

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

/// A folder of its own with the delivered files, for tests and measurements: a program that runs leaves
/// backups and recovery copies in its folder.
class DeliveredCopy {
public:
    explicit DeliveredCopy(const QString& source)
    {
        for (const char* name : {"References", "Sound files"}) {
            const QDir from(source + "/" + name);
            QDir(folder_.path()).mkpath(QString(name) + "/Back up files");
            for (const QString& file : from.entryList(QDir::Files))
                QFile::copy(from.filePath(file), folder_.path() + "/" + name + "/" + file);
        }
    }
    QString path() const { return folder_.path(); }

private:
    QTemporaryDir folder_;
};
