#pragma once

#include "keys/delivered_keys.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

/// A folder of its own with the delivered files, for tests and measurements: a program that runs leaves
/// backups and recovery copies in its folder. The keyboard is identified, as after a first run.
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
        KeySettingTable table = deliveredKeySettings();
        int row = rowFirstReference;
        for (const int code : {16, 17, 46, 8, 27, 13, 32, 112, 37, 38, 39, 40})
            table[row++].Code = std::to_string(code);
        QFile file(keySettings());
        if (file.open(QIODevice::WriteOnly))
            file.write(QByteArray::fromStdString(keySettingsText(table)));
    }
    QString path() const { return folder_.path(); }
    QString keySettings() const { return folder_.filePath("References/KeySetting.csv"); }

private:
    QTemporaryDir folder_;
};
