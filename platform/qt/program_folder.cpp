#include "platform/qt/program_folder.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryFile>

static void copyMissing(const QString& from, const QString& to, const QStringList& names)
{
    QDir().mkpath(to);
    for (const QString& name : names) {
        const QString target = to + '/' + name;
        if (!QFileInfo::exists(target) && QFile::copy(from + '/' + name, target))
            QFile::setPermissions(target, QFile::permissions(target) | QFile::WriteOwner);
    }
}

/// Asked by doing it: rights that the system grants by other means than the folder's own marks (Windows) or
/// takes by the medium do not always show.
static bool canBeWritten(const QString& folder)
{
    return QTemporaryFile(folder + "/tallystrata_XXXXXX").open();
}

QString programFolder(const QString& executableFolder, const QString& userFolder)
{
    const QFileInfo beside(executableFolder + "/References");
    if (beside.isDir() && canBeWritten(beside.filePath()))
        return executableFolder;

    const QString delivered =
        beside.isDir() ? executableFolder : QDir::cleanPath(executableFolder + "/../share/tallystrata");
    // By name: in a folder that was in use (a stick, now write-protected) backups and unsaved work lie beside
    // them.
    copyMissing(delivered + "/References", userFolder + "/References", {"KeySetting.csv", "My_favorite.jpg"});
    const QString sounds = "/Sound files";
    copyMissing(delivered + sounds, userFolder + sounds, QDir(delivered + sounds).entryList(QDir::Files));
    QDir().mkpath(userFolder + "/References/Back up files");
    return QFileInfo(userFolder + "/References").isDir() ? userFolder : delivered;
}
