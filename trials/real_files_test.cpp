// The disk as it can be: full, missing, in the way. Nothing that is there may be lost.

#include "platform/qt/real_files.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/resource.h>

namespace {

class RealDisk : public ::testing::Test {
protected:
    QTemporaryDir folder;
    RealFiles files;

    std::string path(const char* name) const { return folder.filePath(name).toStdString(); }
    std::string text(const char* name) { return files.read(path(name), 1000000).value_or("(none)"); }
};

/// No file may grow beyond a size while one lives, as on a full disk. The signal that comes with it would end
/// the program.
class FullDisk {
public:
    explicit FullDisk(rlim_t bytes)
    {
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit full{bytes, before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &full);
    }
    ~FullDisk() { setrlimit(RLIMIT_FSIZE, &before_); }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    rlimit before_{};
};

} // namespace

TEST_F(RealDisk, filesAreWrittenAndReadWhole)
{
    ASSERT_TRUE(files.write(path("a.csv"), "a longer text\r\n"));
    ASSERT_TRUE(files.write(path("a.csv"), "short"));
    EXPECT_EQ(text("a.csv"), "short") << "nothing of the old text stands behind the new";
    EXPECT_EQ(files.read(path("a.csv"), 4), std::nullopt) << "larger than the limit";
    EXPECT_TRUE(files.create(path("a.csv")) && files.create(path("new")));
    EXPECT_EQ(text("a.csv") + text("new"), "short");
    EXPECT_EQ(files.read(folder.path().toStdString(), 100), std::nullopt) << "a folder";
    EXPECT_EQ(files.read(path("missing.csv"), 100), std::nullopt);
}

TEST_F(RealDisk, aFullDiskLeavesTheOldFileAlone)
{
    const std::string old(3000, 'o');
    ASSERT_TRUE(files.write(path("sheet.csv"), old));
    {
        const FullDisk full(4096);
        EXPECT_FALSE(files.write(path("sheet.csv"), std::string(100000, 'n')));
    }
    EXPECT_EQ(text("sheet.csv"), old);
    EXPECT_FALSE(files.write("/dev/full", "some text"));
}

TEST_F(RealDisk, aPlaceIsClaimedOnceUnlessItsHolderIsGoneOnWhateverMachine)
{
    const std::string elsewhere = "1\nprogram\nelsewhere\n00112233445566778899aabbccddeeff\n0-0-0-0-0\n";
    ASSERT_TRUE(files.claim(path("held")));
    ASSERT_TRUE(files.write(path("held.lock"), elsewhere)); // as another machine's on a shared drive
    EXPECT_FALSE(RealFiles().claim(path("held")));

    ASSERT_TRUE(files.write(path("left.lock"), elsewhere));
    EXPECT_TRUE(RealFiles().claim(path("left")));
    ASSERT_TRUE(files.write(path("empty.lock"), ""));
    EXPECT_TRUE(RealFiles().claim(path("empty")));
    ASSERT_TRUE(files.write(path("garbage.lock"), "\xff\n\n\n"));
    EXPECT_TRUE(RealFiles().claim(path("garbage")));
    std::filesystem::create_symlink(path("nowhere"), path("dangling.lock"));
    EXPECT_TRUE(RealFiles().claim(path("dangling")));
    EXPECT_FALSE(QFile::exists(folder.filePath("dangling.lock"))) << "its file goes with it";
}

TEST_F(RealDisk, whatIsInTheWayFailsWithoutHarm)
{
    QDir(folder.path()).mkdir("sheet.csv");
    EXPECT_FALSE(files.write(path("sheet.csv"), "text")) << "a folder of that name";
    EXPECT_FALSE(files.write(path("missing/sheet.csv"), "text")) << "no such folder";
    EXPECT_FALSE(files.create(path("missing/sheet.csv")));
    if (geteuid() == 0)
        return; // the superuser may write anything
    ASSERT_TRUE(files.write(path("locked.csv"), "old"));
    QFile::setPermissions(folder.filePath("locked.csv"), QFile::ReadOwner);
    EXPECT_FALSE(files.write(path("locked.csv"), "new"));
    EXPECT_EQ(text("locked.csv"), "old");
}
