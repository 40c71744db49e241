#include "platform/qt/program_folder.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

void write(const QString& path, const QByteArray& text)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
}

QByteArray text(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
}

} // namespace

TEST(ProgramFolder, isTheExecutablesOwnWhereItCanBeWrittenElseAFilledFolderOfTheUser)
{
    const QTemporaryDir root;
    const QString portable = root.filePath("stick");
    write(portable + "/References/KeySetting.csv", "keys");
    EXPECT_EQ(programFolder(portable, root.filePath("unused")), portable);
    EXPECT_FALSE(QFileInfo::exists(root.filePath("unused")));

    const QString shared = root.filePath("usr/share/tallystrata");
    const QString user = root.filePath("home/TallyStrata");
    write(shared + "/References/KeySetting.csv", "keys");
    write(shared + "/References/Recovery_copy_(1).csv", "another's unsaved work");
    write(shared + "/References/Back up files/Master_back_up.csv", "another's backup");
    write(shared + "/Sound files/Key-1.wav", "cue");
    QDir().mkpath(root.filePath("usr/bin"));
    EXPECT_EQ(programFolder(root.filePath("usr/bin"), user), user);
    EXPECT_EQ(text(user + "/Sound files/Key-1.wav"), "cue");
    EXPECT_TRUE(QFileInfo(user + "/References/Back up files").isDir());
    EXPECT_EQ(QDir(user + "/References").entryList(QDir::Files), QStringList("KeySetting.csv"));
    EXPECT_TRUE(QDir(user + "/References/Back up files").isEmpty());

    // What the user has changed stays; what is missing comes back.
    write(user + "/References/KeySetting.csv", "my keys");
    QFile::remove(user + "/Sound files/Key-1.wav");
    programFolder(root.filePath("usr/bin"), user);
    EXPECT_EQ(text(user + "/References/KeySetting.csv"), "my keys");
    EXPECT_EQ(text(user + "/Sound files/Key-1.wav"), "cue");

    EXPECT_EQ(programFolder(root.filePath("usr/bin"), "/proc/no_such_home"), shared);
}
