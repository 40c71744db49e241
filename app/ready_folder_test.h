#pragma once

#include "keys/delivered_keys.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

/// The delivered files as they are after a first run on an ordinary keyboard, in a folder of their own that
/// may be written.
class ReadyFolder {
public:
    ReadyFolder()
    {
        QDir(path()).mkpath("References/Back up files");
        for (const QString name : {"Sound files", "References/My_favorite.jpg"})
            QFile::link(DELIVERED_FOLDER "/" + name, folder_.filePath(name));
        KeySettingTable table = deliveredKeySettings();
        int row = rowFirstReference;
        for (const int code : {16, 17, 46, 8, 27, 13, 32, 112, 37, 38, 39, 40})
            table[row++].Code = std::to_string(code);
        QFile file(settings());
        if (file.open(QIODevice::WriteOnly))
            file.write(QByteArray::fromStdString(keySettingsText(table)));
    }
    QString path() const { return folder_.path(); }
    QString settings() const { return folder_.filePath("References/KeySetting.csv"); }

private:
    QTemporaryDir folder_;
};
