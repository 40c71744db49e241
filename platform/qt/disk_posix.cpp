#include "platform/qt/disk.h"
#include "platform/qt/write_over.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <optional>
#include <random>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace {

/// What a signal has cut off is tried again, but not for ever.
template <class Call>
auto withoutInterruption(Call&& call)
{
    auto result = call();
    for (int tries = 0; result == -1 && errno == EINTR && tries < 50; ++tries)
        result = call();
    return result;
}

class OpenFile {
public:
    OpenFile(const std::string& path, int flags)
        : file_(withoutInterruption([&] { return ::open(path.c_str(), flags | O_CLOEXEC, 0666); }))
    {
    }
    ~OpenFile() { close(); }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    explicit operator bool() const { return file_ != -1; }
    int handle() const { return file_; }
    std::optional<off_t> size() const
    {
        struct stat facts;
        return ::fstat(file_, &facts) == 0 ? std::optional(facts.st_size) : std::nullopt;
    }
    /// Asks for the room of the new bytes while the old ones still stand, and their length with them.
    bool reserveRoom([[maybe_unused]] off_t before, [[maybe_unused]] std::size_t bytes) const
    {
#if defined(__linux__)
        const auto wanted = static_cast<off_t>(bytes == 0 ? 1 : bytes);
        if (withoutInterruption([&] { return ::fallocate(file_, FALLOC_FL_KEEP_SIZE, 0, wanted); }) != 0 &&
            errno != EOPNOTSUPP && errno != ENODEV && errno != ESPIPE && errno != ENOSYS) {
            cutTo(before);
            return false;
        }
#endif
        return true; // a system that cannot tell finds out while it writes
    }
    /// At `at` bytes from the start; an appending file takes it to its end.
    bool write(std::string_view bytes, off_t at) const
    {
        while (!bytes.empty()) {
            const ssize_t written =
                withoutInterruption([&] { return ::pwrite(file_, bytes.data(), bytes.size(), at); });
            if (written <= 0)
                return false;
            bytes.remove_prefix(static_cast<std::size_t>(written));
            at += written;
        }
        return true;
    }
    bool cutTo(off_t size) const
    {
        return withoutInterruption([&] { return ::ftruncate(file_, size); }) == 0;
    }
    bool sync() const
    {
        // Some targets, such as pipes, have no disk.
        return withoutInterruption([&] { return ::fdatasync(file_); }) == 0 || errno == EINVAL;
    }
    bool close()
    {
        // The file is closed after a signal too: another try could close somebody else's.
        const bool closed = file_ == -1 || ::close(file_) == 0 || errno == EINTR;
        file_ = -1;
        return closed;
    }
    /// Up to a gigabyte; nothing if it cannot be read.
    std::optional<std::string> text() const
    {
        const auto length = size();
        if (!length || *length > (1 << 30))
            return std::nullopt;
        std::string bytes(static_cast<std::size_t>(*length), '\0');
        for (std::size_t at = 0; at < bytes.size();) {
            const ssize_t got = withoutInterruption(
                [&] { return ::pread(file_, &bytes[at], bytes.size() - at, static_cast<off_t>(at)); });
            if (got <= 0)
                return std::nullopt;
            at += static_cast<std::size_t>(got);
        }
        return bytes;
    }

private:
    int file_;
};

/// The entry of a new or renamed file is part of its folder. A folder that cannot be opened or does not know
/// how to sync is no failure of the file.
bool syncFolderOf(const std::string& path)
{
    const auto end = path.rfind('/');
    const OpenFile folder(end == std::string::npos ? "."
                          : end == 0               ? "/"
                                                   : path.substr(0, end),
                          O_RDONLY | O_DIRECTORY);
    return !folder || withoutInterruption([&] { return ::fsync(folder.handle()); }) == 0 || errno == EINVAL ||
           errno == ENOTSUP || errno == EACCES;
}

bool exists(const std::string& path)
{
    struct stat facts;
    return ::stat(path.c_str(), &facts) == 0;
}

/// Name of a file beside another one that nobody else writes.
std::string nameBeside(const std::string& path)
{
    static std::random_device chance;
    char suffix[24];
    std::snprintf(suffix, sizeof suffix, ".%08x.new", chance());
    return path + suffix;
}

bool isSameFile(int file, const std::string& path)
{
    struct stat opened;
    struct stat named;
    return ::fstat(file, &opened) == 0 && ::lstat(path.c_str(), &named) == 0 &&
           opened.st_ino == named.st_ino && opened.st_dev == named.st_dev;
}

class FileLock : public disk::Lock {
public:
    FileLock(std::unique_ptr<OpenFile> file, std::string path)
        : file_(std::move(file)), path_(std::move(path))
    {
    }
    ~FileLock() override { ::unlink(path_.c_str()); }
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;

private:
    std::unique_ptr<OpenFile> file_; ///< closed, and so given free, after its name is gone
    std::string path_;
};

} // namespace

bool disk::write(const std::string& path, std::string_view bytes)
{
    const bool isNew = !exists(path);
    OpenFile file(path, O_RDWR | O_CREAT);
    if (file && writeOver(file, bytes))
        return file.close() && (!isNew || syncFolderOf(path));
    if (isNew && file && isSameFile(file.handle(), path))
        ::unlink(path.c_str());
    return false;
}

bool disk::create(const std::string& path)
{
    const bool isNew = !exists(path);
    return OpenFile(path, O_RDWR | O_CREAT) && (!isNew || syncFolderOf(path));
}

bool disk::replace(const std::string& path, std::string_view bytes)
{
    const std::string beside = nameBeside(path);
    OpenFile file(beside, O_WRONLY | O_CREAT | O_EXCL);
    if (!file)
        return false;
    struct stat old;
    if (::stat(path.c_str(), &old) == 0)
        ::fchmod(file.handle(), old.st_mode & 0777U);
    if (!file.write(bytes, 0) || !file.sync() || !file.close() ||
        withoutInterruption([&] { return ::rename(beside.c_str(), path.c_str()); }) != 0) {
        ::unlink(beside.c_str());
        return false;
    }
    return syncFolderOf(path);
}

bool disk::append(const std::string& path, std::string_view bytes)
{
    OpenFile file(path, O_WRONLY | O_APPEND | O_CREAT);
    const auto before = file ? file.size() : std::nullopt;
    if (!before)
        return false;
    if (file.write(bytes, *before))
        return file.close();
    file.cutTo(*before); // nothing half stands before what comes next
    return false;
}

bool disk::settle(const std::string& path)
{
    OpenFile file(path, O_WRONLY);
    if (!file)
        return errno == ENOENT; // removed meanwhile
    return file.sync() && file.close() && syncFolderOf(path);
}

bool disk::remove(const std::string& path)
{
    return withoutInterruption([&] { return ::unlink(path.c_str()); }) == 0 || errno == ENOENT;
}

std::unique_ptr<disk::Lock> disk::tryLock(const std::string& path)
{
    for (int tries = 0; tries < 5; ++tries) {
        auto file = std::make_unique<OpenFile>(path, O_RDONLY | O_CREAT | O_NOFOLLOW);
        if (!*file && errno == ELOOP && ::unlink(path.c_str()) == 0)
            continue; // a link, wherever it led
        if (!*file || withoutInterruption([&] { return ::flock(file->handle(), LOCK_EX | LOCK_NB); }) != 0)
            return nullptr;
        if (isSameFile(file->handle(), path)) // and not one whose holder has just ended and removed it
            return std::make_unique<FileLock>(std::move(file), path);
    }
    return nullptr;
}
