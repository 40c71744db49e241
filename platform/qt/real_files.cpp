#include "platform/qt/real_files.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <csignal>

RealFiles::RealFiles()
{
#if defined(SIGXFSZ)
    // A file that may not grow any more is a write that fails, as on a full disk, and not the program's end.
    std::signal(SIGXFSZ, SIG_IGN);
#endif
}

RealFiles::~RealFiles()
{
    if (!settler_.joinable())
        return;
    {
        const std::lock_guard lock(mutex_);
        ending_ = true;
    }
    wake_.notify_one();
    settler_.join();
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

bool RealFiles::write(const std::string& path, std::string_view bytes)
{
    return disk::write(path, bytes);
}

bool RealFiles::create(const std::string& path)
{
    return disk::create(path);
}

bool RealFiles::replace(const std::string& path, std::string_view bytes)
{
    return disk::replace(path, bytes);
}

bool RealFiles::append(const std::string& path, std::string_view bytes)
{
    const bool appended = disk::append(path, bytes);
    const std::lock_guard lock(mutex_);
    return unsettled_.erase(path) == 0 && appended;
}

void RealFiles::settle(const std::string& path)
{
    {
        const std::lock_guard lock(mutex_);
        toSettle_.insert(path);
    }
    if (!settler_.joinable())
        settler_ = std::thread([this] { settleAll(); });
    wake_.notify_one();
}

void RealFiles::settleAll()
{
    std::unique_lock lock(mutex_);
    for (;;) {
        wake_.wait(lock, [this] { return ending_ || !toSettle_.empty(); });
        if (toSettle_.empty())
            return;
        const std::string path = *toSettle_.begin();
        toSettle_.erase(toSettle_.begin());
        lock.unlock();
        const bool settled = disk::settle(path);
        lock.lock();
        if (!settled)
            unsettled_.insert(path);
    }
}

bool RealFiles::remove(const std::string& path)
{
    const bool removed = disk::remove(path);
    const std::lock_guard lock(mutex_);
    toSettle_.erase(path);
    unsettled_.erase(path);
    return removed;
}

std::vector<std::string> RealFiles::list(const std::string& folder)
{
    std::vector<std::string> names;
    for (const QString& name :
         QDir(QString::fromStdString(folder)).entryList(QDir::Files, QDir::Time | QDir::Reversed))
        names.push_back(name.toStdString());
    return names;
}

bool RealFiles::claim(const std::string& path)
{
    auto lock = disk::tryLock(path + ".lock");
    if (!lock)
        return false;
    claims_[path] = std::move(lock);
    return true;
}

void RealFiles::release(const std::string& path)
{
    claims_.erase(path);
}
