#include "platform/qt/program_folder.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

static void copyMissing(const QString& from, const QString& to)
{
    QDirIterator files(from, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString source = files.next();
        const QString target = to + source.mid(from.size());
        if (QFileInfo::exists(target))
            continue;
        QDir().mkpath(QFileInfo(target).path());
        if (QFile::copy(source, target))
            QFile::setPermissions(target, QFile::permissions(target) | QFile::WriteOwner);
    }
}

QString programFolder(const QString& executableFolder, const QString& userFolder)
{
    const QFileInfo beside(executableFolder + "/References");
    if (beside.isDir() && beside.isWritable())
        return executableFolder;

    const QString delivered =
        beside.isDir() ? executableFolder : QDir::cleanPath(executableFolder + "/../share/tallystrata");
    for (const char* folder : {"/References", "/Sound files"})
        copyMissing(delivered + folder, userFolder + folder);
    QDir().mkpath(userFolder + "/References/Back up files");
    return userFolder;
}
