// Systems without an answer of their own: what Qt knows to do.

#include "platform/qt/disk.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QSaveFile>

static bool writeAll(QFileDevice& file, std::string_view bytes)
{
    const auto size = static_cast<qint64>(bytes.size());
    return file.write(bytes.data(), size) == size;
}

bool disk::write(const std::string& path, std::string_view bytes)
{
    QFile file(QString::fromStdString(path));
    const bool written = file.open(QIODevice::ReadWrite | QIODevice::Unbuffered) && writeAll(file, bytes) &&
                         file.resize(static_cast<qint64>(bytes.size())) && file.flush();
    file.close();
    return written && file.error() == QFile::NoError;
}

bool disk::create(const std::string& path)
{
    return QFile(QString::fromStdString(path)).open(QIODevice::ReadWrite);
}

bool disk::replace(const std::string& path, std::string_view bytes)
{
    QSaveFile file(QString::fromStdString(path));
    // A flush that fails would go unnoticed in commit().
    return file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && writeAll(file, bytes) && file.flush() &&
           file.commit();
}

bool disk::append(const std::string& path, std::string_view bytes)
{
    QFile file(QString::fromStdString(path));
    if (!file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered))
        return false;
    const qint64 before = file.size();
    if (writeAll(file, bytes) && file.flush())
        return true;
    file.resize(before);
    return false;
}

bool disk::settle(const std::string& path)
{
    const QString name = QString::fromStdString(path);
    QFile file(name);
    return !QFileInfo::exists(name) ||
           (file.open(QIODevice::ReadWrite | QIODevice::Unbuffered) && file.flush());
}

bool disk::remove(const std::string& path)
{
    QFile file(QString::fromStdString(path));
    return !file.exists() || file.remove();
}

namespace {

class QtLock : public disk::Lock {
public:
    explicit QtLock(const std::string& path) : file_(QString::fromStdString(path))
    {
        file_.setStaleLockTime(0); // only that of a program that runs no more is taken over, however old
    }
    /// What a living program holds cannot be removed.
    bool lock()
    {
        return file_.tryLock() ||
               ((file_.removeStaleLockFile() || QFile::remove(file_.fileName())) && file_.tryLock());
    }

private:
    QLockFile file_;
};

} // namespace

std::unique_ptr<disk::Lock> disk::tryLock(const std::string& path)
{
    auto lock = std::make_unique<QtLock>(path);
    return lock->lock() ? std::move(lock) : nullptr;
}
