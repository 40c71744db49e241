#include "platform/qt/real_files.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <algorithm>
#include <cerrno>
#if defined(Q_OS_LINUX)
#include <fcntl.h>
#include <unistd.h>
#endif

/// Asks the disk for the room of the new bytes while the old ones still stand. A file that only grew by that
/// is given its old length back if the room is not there.
static bool reserveRoom([[maybe_unused]] QFile& file, [[maybe_unused]] qint64 bytes)
{
#if defined(Q_OS_LINUX)
    const qint64 before = file.size();
    const int failure = posix_fallocate(file.handle(), 0, std::max<qint64>(bytes, 1));
    if (failure == ENOSPC || failure == EDQUOT || failure == EFBIG) {
        file.resize(before);
        return false;
    }
#endif
    return true; // a system that cannot tell finds out while it writes
}

std::optional<std::string> RealFiles::read(const std::string& path, std::size_t limit)
{
    QFile file(QString::fromStdString(path));
    if (!QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly) ||
        file.size() > static_cast<qint64>(limit))
        return std::nullopt;
    const QByteArray bytes = file.readAll();
    if (file.error() != QFile::NoError || bytes.size() != file.size())
        return std::nullopt;
    return bytes.toStdString();
}

/// Until then a power cut could still take what was written.
static bool reachesTheDisk([[maybe_unused]] QFile& file)
{
#if defined(Q_OS_LINUX)
    return fdatasync(file.handle()) == 0 || errno == EINVAL; // some targets, such as pipes, have none
#else
    return true;
#endif
}

bool RealFiles::write(const std::string& path, std::string_view bytes)
{
    QFile file(QString::fromStdString(path));
    const auto size = static_cast<qint64>(bytes.size());
    // ReadWrite keeps the old bytes until the new ones have their room.
    if (!file.open(QIODevice::ReadWrite | QIODevice::Unbuffered) || !reserveRoom(file, size))
        return false;
    const bool written =
        file.write(bytes.data(), size) == size && file.resize(size) && file.flush() && reachesTheDisk(file);
    file.close();
    return written && file.error() == QFile::NoError;
}

bool RealFiles::create(const std::string& path)
{
    return QFile(QString::fromStdString(path)).open(QIODevice::ReadWrite);
}

bool RealFiles::replace(const std::string& path, std::string_view bytes)
{
    QSaveFile file(QString::fromStdString(path));
    const auto size = static_cast<qint64>(bytes.size());
    return file.open(QIODevice::WriteOnly) && file.write(bytes.data(), size) == size && file.commit();
}

bool RealFiles::remove(const std::string& path)
{
    return QFile::remove(QString::fromStdString(path));
}

/// On a stick that was carried here a crash on another machine may have left its lock, which looks held. What
/// a living program holds cannot be removed, on a shared drive either.
static bool removedAsLeft(QLockFile& lock)
{
    qint64 process = 0;
    QString host;
    QString program;
    return lock.getLockInfo(&process, &host, &program) && lock.removeStaleLockFile();
}

bool RealFiles::claim(const std::string& path)
{
    auto lock = std::make_unique<QLockFile>(QString::fromStdString(path + ".lock"));
    lock->setStaleLockTime(0); // only that of a program that runs no more is taken over, however old
    if (!lock->tryLock() && !(removedAsLeft(*lock) && lock->tryLock()))
        return false;
    claims_[path] = std::move(lock);
    return true;
}

void RealFiles::release(const std::string& path)
{
    claims_.erase(path);
}
