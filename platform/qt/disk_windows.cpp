#include "platform/qt/disk.h"
#include "platform/qt/write_over.h"

#include <algorithm>
#include <cstdio>
#include <optional>
#include <random>
#include <utility>
#include <windows.h>

namespace {

/// As the system's calls take it: UTF-16, and behind a prefix that allows more than 260 letters.
std::wstring wide(const std::string& path)
{
    const int bytes = static_cast<int>(path.size());
    std::wstring text(
        static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, path.data(), bytes, nullptr, 0)), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, path.data(), bytes, text.data(), static_cast<int>(text.size()));
    std::replace(text.begin(), text.end(), L'/', L'\\');
    if (text.size() < 240 || text.rfind(L"\\\\?\\", 0) == 0)
        return text;
    if (text.rfind(L"\\\\", 0) == 0)
        return L"\\\\?\\UNC" + text.substr(1);
    return L"\\\\?\\" + text;
}

/// Virus scanners, indexers and programs that synchronise folders hold a file for a moment after it was
/// written; a spreadsheet holds it as long as it shows it. The former are waited for, some tenth of a second.
/// `held`: what the call says of a held file besides. The call's last failure, or 0.
template <class Call>
DWORD withPatience(Call&& call, DWORD held = ERROR_SHARING_VIOLATION)
{
    for (int tries = 0;; ++tries) {
        if (call())
            return 0;
        const DWORD failure = GetLastError();
        if (tries == 6 ||
            (failure != ERROR_SHARING_VIOLATION && failure != ERROR_LOCK_VIOLATION && failure != held))
            return failure;
        Sleep(10U << tries / 2);
    }
}

bool isReadOnly(const std::wstring& path)
{
    const DWORD marks = GetFileAttributesW(path.c_str());
    return marks != INVALID_FILE_ATTRIBUTES && (marks & FILE_ATTRIBUTE_READONLY) != 0;
}

constexpr DWORD quotaExceeded = 1295; // ERROR_DISK_QUOTA_EXCEEDED, which not all headers have

constexpr DWORD forReaders = FILE_SHARE_READ;
constexpr DWORD forAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

class HeldFile {
public:
    /// `how`: one of CREATE_NEW, OPEN_ALWAYS, OPEN_EXISTING.
    HeldFile(const std::wstring& path, DWORD access, DWORD shared, DWORD how,
             DWORD marks = FILE_ATTRIBUTE_NORMAL)
    {
        failure_ = withPatience([&] {
            file_ = CreateFileW(path.c_str(), access, shared, nullptr, how, marks, nullptr);
            return file_ != INVALID_HANDLE_VALUE;
        });
    }
    ~HeldFile() { close(); }
    HeldFile(const HeldFile&) = delete;
    HeldFile& operator=(const HeldFile&) = delete;

    explicit operator bool() const { return file_ != INVALID_HANDLE_VALUE; }
    bool isMissing() const { return failure_ == ERROR_FILE_NOT_FOUND || failure_ == ERROR_PATH_NOT_FOUND; }
    std::optional<LONGLONG> size() const
    {
        LARGE_INTEGER length;
        return GetFileSizeEx(file_, &length) != 0 ? std::optional(length.QuadPart) : std::nullopt;
    }
    /// Asks for the room of the new bytes while the old ones still stand.
    bool reserveRoom(LONGLONG before, std::size_t bytes) const
    {
        FILE_ALLOCATION_INFO room;
        room.AllocationSize.QuadPart = std::max(before, static_cast<LONGLONG>(bytes));
        return SetFileInformationByHandle(file_, FileAllocationInfo, &room, sizeof room) != 0 ||
               (GetLastError() != ERROR_DISK_FULL && GetLastError() != ERROR_HANDLE_DISK_FULL &&
                GetLastError() != quotaExceeded); // else it finds out while it writes
    }
    bool write(std::string_view bytes, LONGLONG at) const
    {
        if (!goTo(at))
            return false;
        while (!bytes.empty()) {
            DWORD written = 0;
            if (WriteFile(file_, bytes.data(), portion(bytes.size()), &written, nullptr) == 0 || written == 0)
                return false;
            bytes.remove_prefix(written);
        }
        return true;
    }
    bool cutTo(LONGLONG size) const { return goTo(size) && SetEndOfFile(file_) != 0; }
    bool sync() const
    {
        return FlushFileBuffers(file_) != 0 || GetFileType(file_) != FILE_TYPE_DISK; // a pipe has no disk
    }
    bool close()
    {
        const HANDLE closed = std::exchange(file_, INVALID_HANDLE_VALUE);
        return closed == INVALID_HANDLE_VALUE || CloseHandle(closed) != 0;
    }
    /// Up to a gigabyte; nothing if it cannot be read.
    std::optional<std::string> text() const
    {
        const auto length = size();
        if (!length || *length > (1 << 30) || !goTo(0))
            return std::nullopt;
        std::string bytes(static_cast<std::size_t>(*length), '\0');
        for (std::size_t at = 0; at < bytes.size();) {
            DWORD got = 0;
            if (ReadFile(file_, &bytes[at], portion(bytes.size() - at), &got, nullptr) == 0 || got == 0)
                return std::nullopt;
            at += got;
        }
        return bytes;
    }

private:
    static DWORD portion(std::size_t bytes)
    {
        return static_cast<DWORD>(std::min<std::size_t>(bytes, 1U << 20));
    }
    bool goTo(LONGLONG at) const
    {
        LARGE_INTEGER place;
        place.QuadPart = at;
        return SetFilePointerEx(file_, place, nullptr, FILE_BEGIN) != 0;
    }

    HANDLE file_ = INVALID_HANDLE_VALUE;
    DWORD failure_ = 0; ///< of the opening
};

/// Name of a file beside another one that nobody else writes.
std::string nameBeside(const std::string& path)
{
    static std::random_device chance;
    char suffix[24];
    std::snprintf(suffix, sizeof suffix, ".%08x.new", chance());
    return path + suffix;
}

/// A held file that the system removes when it is closed, by whomever and however.
class FileLock : public disk::Lock {
public:
    explicit FileLock(std::unique_ptr<HeldFile> file) : file_(std::move(file)) {}

private:
    std::unique_ptr<HeldFile> file_;
};

} // namespace

// A new or renamed file's entry in its folder reaches the disk with the file itself: the file system's own
// journal keeps the order.

bool disk::write(const std::string& path, std::string_view bytes)
{
    const std::wstring target = wide(path);
    if (isReadOnly(target)) // an administrator of the disk's own system could
        return false;
    const bool isNew = GetFileAttributesW(target.c_str()) == INVALID_FILE_ATTRIBUTES;
    HeldFile file(target, GENERIC_READ | GENERIC_WRITE, forReaders, OPEN_ALWAYS);
    if (file && writeOver(file, bytes))
        return file.close();
    if (isNew && file && file.close())
        DeleteFileW(target.c_str());
    return false;
}

bool disk::create(const std::string& path)
{
    const HeldFile file(wide(path), GENERIC_READ | GENERIC_WRITE, forAll, OPEN_ALWAYS);
    return file && file.sync();
}

bool disk::replace(const std::string& path, std::string_view bytes)
{
    const std::wstring target = wide(path);
    const std::wstring beside = wide(nameBeside(path));
    HeldFile file(beside, GENERIC_WRITE, forReaders, CREATE_NEW);
    if (!file)
        return false;
    const auto takesTheName = [&] {
        return MoveFileExW(beside.c_str(), target.c_str(),
                           MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
    };
    if (file.write(bytes, 0) && file.sync() && file.close() && !isReadOnly(target) &&
        withPatience(takesTheName, ERROR_ACCESS_DENIED) == 0)
        return true;
    file.close();
    DeleteFileW(beside.c_str());
    return false;
}

bool disk::append(const std::string& path, std::string_view bytes)
{
    HeldFile file(wide(path), GENERIC_WRITE, forAll, OPEN_ALWAYS);
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
    HeldFile file(wide(path), GENERIC_WRITE, forAll, OPEN_EXISTING);
    if (!file)
        return file.isMissing(); // removed meanwhile
    return file.sync() && file.close();
}

bool disk::remove(const std::string& path)
{
    const std::wstring target = wide(path);
    if (isReadOnly(target))
        SetFileAttributesW(target.c_str(), FILE_ATTRIBUTE_NORMAL);
    const DWORD failure = withPatience([&] { return DeleteFileW(target.c_str()) != 0; });
    return failure == 0 || failure == ERROR_FILE_NOT_FOUND || failure == ERROR_PATH_NOT_FOUND;
}

std::unique_ptr<disk::Lock> disk::tryLock(const std::string& path)
{
    const std::wstring target = wide(path);
    if (isReadOnly(target)) // left by a copy of the folder
        SetFileAttributesW(target.c_str(), FILE_ATTRIBUTE_NORMAL);
    auto file = std::make_unique<HeldFile>(target, GENERIC_WRITE | DELETE, forReaders, OPEN_ALWAYS,
                                           FILE_FLAG_DELETE_ON_CLOSE | FILE_FLAG_OPEN_REPARSE_POINT);
    return *file ? std::make_unique<FileLock>(std::move(file)) : nullptr;
}
