// Windows as it can be: files held by other programs, marked read-only, deep below long names.

#include "platform/qt/disk.h"

#include <chrono>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <thread>
#include <windows.h>

namespace {

namespace fs = std::filesystem;

std::string text(const fs::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::string utf8(const fs::path& path)
{
    const std::u8string bytes = path.u8string();
    return {bytes.begin(), bytes.end()};
}

/// As the system takes a path of more than 260 letters.
fs::path deepPath(const std::string& utf8)
{
    return L"\\\\?\\" + fs::path(std::u8string(utf8.begin(), utf8.end())).make_preferred().wstring();
}

class DiskOfWindows : public ::testing::Test {
protected:
    DiskOfWindows() { fs::create_directories(folder); }
    ~DiskOfWindows() override { fs::remove_all(folder); }

    fs::path folder =
        fs::temp_directory_path() / (L"Z\u00e4hlung \u03b1 " + std::to_wstring(GetCurrentProcessId()));
    fs::path sheet = folder / L"\u00e9t\u00e9.csv";
    const std::string path = utf8(sheet);

    std::size_t filesThere() const
    {
        return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder), {}));
    }
};

/// A file as a spreadsheet holds it: others may read it.
class Held {
public:
    explicit Held(const fs::path& path)
        : file_(CreateFileW(path.c_str(), GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                            OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr))
    {
        EXPECT_NE(file_, INVALID_HANDLE_VALUE);
    }
    ~Held() { CloseHandle(file_); }
    Held(const Held&) = delete;
    Held& operator=(const Held&) = delete;

private:
    HANDLE file_;
};

} // namespace

TEST_F(DiskOfWindows, filesAreWrittenWholeAndWithoutTraces)
{
    ASSERT_TRUE(disk::write(path, "a longer text\r\n"));
    ASSERT_TRUE(disk::write(path, "short"));
    EXPECT_EQ(text(sheet), "short");
    EXPECT_TRUE(disk::create(path));
    EXPECT_EQ(text(sheet), "short");
    EXPECT_TRUE(disk::replace(path, "new"));
    EXPECT_TRUE(disk::append(path, "+1") && disk::append(path, "+2") && disk::settle(path));
    EXPECT_EQ(text(sheet), "new+1+2");
    EXPECT_EQ(filesThere(), 1U);
    EXPECT_TRUE(disk::remove(path) && disk::remove(path) && disk::settle(path));
    EXPECT_EQ(filesThere(), 0U);
}

TEST_F(DiskOfWindows, whatASpreadsheetHoldsIsNotWrittenAndNotLost)
{
    ASSERT_TRUE(disk::write(path, "old"));
    {
        const Held held(sheet);
        EXPECT_FALSE(disk::write(path, "new"));
        EXPECT_FALSE(disk::replace(path, "new"));
        EXPECT_FALSE(disk::append(path, "new"));
        EXPECT_FALSE(disk::remove(path));
    }
    EXPECT_EQ(text(sheet), "old");
    EXPECT_EQ(filesThere(), 1U) << "nothing half lies beside it";
    EXPECT_TRUE(disk::replace(path, "new"));
}

TEST_F(DiskOfWindows, whoHoldsAFileForAMomentIsWaitedFor)
{
    ASSERT_TRUE(disk::write(path, "old"));
    auto held = std::make_unique<Held>(sheet);
    std::thread scanner([&held] {
        std::this_thread::sleep_for(std::chrono::milliseconds(30));
        held.reset();
    });
    const bool written = disk::write(path, "new");
    scanner.join();
    EXPECT_TRUE(written);
}

TEST_F(DiskOfWindows, whatIsMarkedReadOnlyIsNotWritten)
{
    ASSERT_TRUE(disk::write(path, "old"));
    SetFileAttributesW(sheet.c_str(), FILE_ATTRIBUTE_READONLY);
    EXPECT_FALSE(disk::write(path, "new"));
    EXPECT_FALSE(disk::replace(path, "new"));
    EXPECT_EQ(text(sheet), "old");
    EXPECT_EQ(filesThere(), 1U);
    EXPECT_TRUE(disk::remove(path));
}

TEST_F(DiskOfWindows, aPathMayBeLong)
{
    std::string deep = utf8(folder);
    for (int level = 0; level < 12; ++level) {
        deep += "/a folder with a long and telling name";
        fs::create_directory(deepPath(deep));
    }
    const std::string file = deep + "/sheet.csv";
    ASSERT_GT(file.size(), 300U);
    EXPECT_TRUE(disk::write(file, "old") && disk::replace(file, "new") && disk::append(file, "er"));
    EXPECT_EQ(text(deepPath(file)), "newer");
    EXPECT_TRUE(disk::remove(file));
    for (; deep != utf8(folder); deep.erase(deep.rfind('/')))
        RemoveDirectoryW(deepPath(deep).c_str());
}

TEST_F(DiskOfWindows, aLockIsHeldOnceAndLeavesNothing)
{
    auto lock = disk::tryLock(path);
    ASSERT_TRUE(lock);
    EXPECT_FALSE(disk::tryLock(path));
    lock.reset();
    EXPECT_EQ(filesThere(), 0U);

    std::ofstream(sheet) << "left by a machine that lost its power";
    SetFileAttributesW(sheet.c_str(), FILE_ATTRIBUTE_READONLY);
    EXPECT_TRUE(disk::tryLock(path));
    EXPECT_FALSE(disk::tryLock(utf8(folder / "missing" / "lock")));
}

TEST_F(DiskOfWindows, whatIsInTheWayFailsWithoutHarm)
{
    fs::create_directory(sheet);
    EXPECT_FALSE(disk::write(path, "text")) << "a folder of that name";
    EXPECT_FALSE(disk::replace(path, "text"));
    EXPECT_FALSE(disk::create(utf8(folder / "missing" / "sheet.csv")));
    EXPECT_EQ(filesThere(), 1U);
}
