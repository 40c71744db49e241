// Every call to the system that writing makes, failing in every way it can, once and for good: the old bytes
// or the new ones stand, and what was reported is true. The calls are caught by the linker (--wrap).

#include "platform/qt/disk.h"

#include <algorithm>
#include <cerrno>
#include <cstdarg>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <functional>
#include <gtest/gtest.h>
#include <iterator>
#include <string>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

/// The next fault. Calls are numbered from the beginning of an operation.
struct Fault {
    int call = 0; ///< 0: none
    int error = 0;
    bool forGood = false;
    bool shortWrite = false; ///< a write takes half of the bytes, and fails from then on
};
Fault fault;
int calls = 0;
const char* failed = ""; ///< name of the call that failed first
bool touched = false;    ///< bytes of a file have been written

/// True if the call that is being made fails.
bool fails(const char* name)
{
    ++calls;
    if (fault.call == 0 || calls < fault.call || (calls > fault.call && !fault.forGood))
        return false;
    if (calls == fault.call)
        failed = name;
    errno = fault.error;
    return true;
}

} // namespace

// NOLINTBEGIN(bugprone-reserved-identifier): the linker's names
extern "C" {
int __real_open(const char*, int, ...);
ssize_t __real_pwrite(int, const void*, size_t, off_t);
ssize_t __real_pread(int, void*, size_t, off_t);
int __real_ftruncate(int, off_t);
int __real_fdatasync(int);
int __real_fsync(int);
int __real_close(int);
int __real_rename(const char*, const char*);
int __real_unlink(const char*);
int __real_fallocate(int, int, off_t, off_t);
int __real_fstat(int, struct stat*);
int __real_flock(int, int);

int __wrap_open(const char* path, int flags, ...)
{
    va_list rest;
    va_start(rest, flags);
    // NOLINTNEXTLINE(clang-analyzer-valist.Uninitialized): va_start() has just begun it
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(rest, mode_t) : 0;
    va_end(rest);
    return fails("open") ? -1 : __real_open(path, flags, mode);
}
ssize_t __wrap_pwrite(int file, const void* bytes, size_t size, off_t at)
{
    if (!fails("write")) {
        touched = true;
        return __real_pwrite(file, bytes, size, at);
    }
    if (fault.shortWrite && calls == fault.call && size > 1) {
        touched = true;
        return __real_pwrite(file, bytes, size / 2, at);
    }
    return -1;
}
ssize_t __wrap_pread(int file, void* bytes, size_t size, off_t at)
{
    return fails("read") ? -1 : __real_pread(file, bytes, size, at);
}
int __wrap_ftruncate(int file, off_t size)
{
    return fails("truncate") ? -1 : __real_ftruncate(file, size);
}
int __wrap_fdatasync(int file)
{
    return fails("sync") ? -1 : __real_fdatasync(file);
}
int __wrap_fsync(int file)
{
    return fails("sync of the folder") ? -1 : __real_fsync(file);
}
int __wrap_close(int file)
{
    const bool failing = fails("close");
    const int closed = __real_close(file);
    if (failing)
        errno = fault.error;
    return failing ? -1 : closed;
}
int __wrap_rename(const char* from, const char* to)
{
    return fails("rename") ? -1 : __real_rename(from, to);
}
int __wrap_unlink(const char* path)
{
    return fails("unlink") ? -1 : __real_unlink(path);
}
int __wrap_fallocate(int file, int how, off_t at, off_t size)
{
    return fails("reserve") ? -1 : __real_fallocate(file, how, at, size);
}
int __wrap_fstat(int file, struct stat* facts)
{
    return fails("stat") ? -1 : __real_fstat(file, facts);
}
int __wrap_flock(int file, int how)
{
    return fails("lock") ? -1 : __real_flock(file, how);
}
}
// NOLINTEND(bugprone-reserved-identifier)

namespace {

constexpr int errors[] = {EIO, ENOSPC, EDQUOT, EACCES, EINTR, EFBIG};
constexpr std::size_t sizes[] = {1000, 15000, 17000, 117000};

class DiskFaults : public ::testing::Test {
protected:
    const std::filesystem::path folder = roomyFolder() / ("disk_faults_" + std::to_string(::getpid()));
    const std::string path = folder / "file.csv";

    DiskFaults() { std::filesystem::create_directory(folder); }
    ~DiskFaults() override { std::filesystem::remove_all(folder); }

    /// In memory if the system has such a place: thousands of files are synced here.
    static std::filesystem::path roomyFolder()
    {
        const std::filesystem::path inMemory = "/dev/shm";
        return std::filesystem::is_directory(inMemory) ? inMemory : std::filesystem::temp_directory_path();
    }
    std::string text() const
    {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    void put(const std::string& bytes) const { std::ofstream(path, std::ios::binary) << bytes; }
    static bool run(const Fault& next, const std::function<bool()>& operation)
    {
        calls = 0;
        failed = "none";
        touched = false;
        fault = next;
        const bool done = operation();
        fault = {};
        return done;
    }
    /// `done`: what was reported, under which fault, of which text.
    using Check =
        std::function<void(bool done, const Fault&, const std::string& old, const std::string& text)>;
    void everyFault(const std::function<bool(const std::string& text)>& operation, const Check& check)
    {
        for (const std::size_t oldSize : {std::size_t(0), std::size_t(16000)})
            for (const std::size_t size : sizes) {
                const std::string old(oldSize, 'o');
                const std::string text(size, 'n');
                put(old);
                ASSERT_TRUE(run({}, [&] { return operation(text); }));
                const int all = calls;
                for (int call = 1; call <= all; ++call)
                    for (const int error : errors)
                        for (const bool forGood : {false, true})
                            for (const bool shortWrite : {false, true}) {
                                put(old);
                                const Fault next{call, error, forGood, shortWrite};
                                const bool done = run(next, [&] { return operation(text); });
                                SCOPED_TRACE(std::string(failed) + ", call " + std::to_string(call) + ": " +
                                             std::strerror(error) + (forGood ? " for good" : " once") +
                                             (shortWrite ? " after half" : "") + ", " +
                                             std::to_string(oldSize) + " -> " + std::to_string(size));
                                check(done, next, old, text);
                                if (HasFailure())
                                    return;
                            }
            }
    }
    /// A disk that is gone keeps what it has.
    void clearLitter(bool allowed) const
    {
        EXPECT_TRUE(allowed || std::distance(std::filesystem::directory_iterator(folder), {}) == 1);
        for (const auto& entry : std::filesystem::directory_iterator(folder))
            if (entry.path() != path)
                std::filesystem::remove(entry.path());
    }
};

} // namespace

TEST_F(DiskFaults, whatIsPutInPlaceIsTheOldOrTheNewFile)
{
    everyFault([this](const std::string& text) { return disk::replace(path, text); },
               [this](bool done, const Fault& next, const std::string& old, const std::string& wanted) {
                   const std::string stands = text();
                   EXPECT_TRUE(stands == wanted || (!done && stands == old))
                       << stands.size() << " bytes stand";
                   clearLitter(next.forGood);
               });
}

TEST_F(DiskFaults, whatIsWrittenOverIsPutBackAsLongAsTheDiskTakesIt)
{
    everyFault([this](const std::string& text) { return disk::write(path, text); },
               [this](bool done, const Fault& next, const std::string& old, const std::string& wanted) {
                   const std::string stands = text();
                   if (done) {
                       EXPECT_EQ(stands, wanted);
                   } else if (!next.forGood ||
                              !touched) { // a disk that is gone from then on puts nothing back
                       EXPECT_TRUE(stands == wanted || stands == old) << stands.size() << " bytes stand";
                   }
               });
}

TEST_F(DiskFaults, aNewFileThatCannotBeWrittenIsNotLeftEmpty)
{
    const std::string text(15000, 'n');
    const auto writeNew = [&] {
        std::filesystem::remove(path);
        return disk::write(path, text);
    };
    ASSERT_TRUE(run({}, writeNew));
    const int all = calls;
    for (int call = 1; call <= all; ++call)
        for (const bool shortWrite : {false, true}) {
            const bool done = run({call, ENOSPC, false, shortWrite}, writeNew);
            EXPECT_TRUE(this->text() == text || (!done && !std::filesystem::exists(path)))
                << failed << ", call " << call;
        }
}

TEST_F(DiskFaults, whatIsAppendedStandsWholeOrNotAtAll)
{
    everyFault([this](const std::string& text) { return disk::append(path, text); },
               [this](bool done, const Fault& next, const std::string& old, const std::string& wanted) {
                   const std::string stands = text();
                   EXPECT_EQ(stands.substr(0, old.size()), old);
                   if (done) {
                       EXPECT_EQ(stands, old + wanted);
                   } else if (!next.forGood || !touched) {
                       EXPECT_TRUE(stands == old || stands == old + wanted);
                   }
               });
    everyFault(
        [this](const std::string&) { return disk::settle(path); },
        [this](bool, const Fault&, const std::string& old, const std::string&) { EXPECT_EQ(text(), old); });
}

TEST_F(DiskFaults, aPlaceIsNeverHeldTwice)
{
    put("");
    const auto first = disk::tryLock(path);
    ASSERT_NE(first, nullptr);
    run({}, [this] { return disk::tryLock(path) != nullptr; });
    for (int call = 1; call <= calls; ++call)
        for (const int error : errors)
            EXPECT_FALSE(run({call, error, false, false}, [this] { return disk::tryLock(path) != nullptr; }));
}
