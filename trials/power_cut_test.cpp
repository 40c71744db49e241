// The power goes after any call to the system that writing makes, and what was not synced is dropped, or half
// of it, with entries of folders as they were at their last sync or as they are. Then: no recovery copy and
// no backup is torn, a sheet that is has a good twin, and what had settled in the journal is there. The calls
// are caught by the linker (--wrap).

#include "core/endings.h"
#include "core/program_test.h"
#include "files/backup.h"
#include "files/data_sheet_reader.h"
#include "files/kept_work.h"
#include "files/left_work.h"
#include "files/recovery.h"
#include "files/save_sheet.h"
#include "platform/code_page.h"
#include "platform/qt/real_files.h"

#include <algorithm>
#include <cstdarg>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

void afterCall(int synced);

} // namespace

extern "C" {
int __real_open(const char*, int, ...);
ssize_t __real_pwrite(int, const void*, size_t, off_t);
int __real_ftruncate(int, off_t);
int __real_fdatasync(int);
int __real_fsync(int);
int __real_rename(const char*, const char*);
int __real_unlink(const char*);

int __wrap_open(const char* path, int flags, ...)
{
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(rest, mode_t) : 0;
    va_end(rest);
    const int file = __real_open(path, flags, mode);
    if ((flags & O_CREAT) != 0)
        afterCall(-1);
    return file;
}
ssize_t __wrap_pwrite(int file, const void* bytes, size_t size, off_t at)
{
    const ssize_t written = __real_pwrite(file, bytes, size, at);
    afterCall(-1);
    return written;
}
int __wrap_ftruncate(int file, off_t size)
{
    const int done = __real_ftruncate(file, size);
    afterCall(-1);
    return done;
}
int __wrap_fdatasync(int file)
{
    const int done = __real_fdatasync(file);
    afterCall(file);
    return done;
}
int __wrap_fsync(int file)
{
    const int done = __real_fsync(file);
    afterCall(file);
    return done;
}
int __wrap_rename(const char* from, const char* to)
{
    const int done = __real_rename(from, to);
    afterCall(-1);
    return done;
}
int __wrap_unlink(const char* path)
{
    const int done = __real_unlink(path);
    afterCall(-1);
    return done;
}
}

namespace {

std::string bytesOf(const fs::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// Files by their names below the disk's folder; a file is its inode.
using Entries = std::map<std::string, ino_t>;

/// What of a folder has reached the disk itself. The files in `disk` are as the program sees them.
class PowerCut {
public:
    explicit PowerCut(fs::path disk) : disk_(std::move(disk)) {}
    ~PowerCut()
    {
        for (const auto& [file, handle] : held_)
            ::close(handle);
    }
    PowerCut(const PowerCut&) = delete;
    PowerCut& operator=(const PowerCut&) = delete;

    /// After a call of the program; `synced`: the file or folder that it has brought to the disk, or -1.
    void note(int synced)
    {
        for (const auto& [name, file] : entriesNow())
            if (held_.count(file) == 0)
                held_[file] = __real_open((disk_ / name).c_str(), O_RDONLY);
        if (synced == -1)
            return;
        struct stat facts;
        ::fstat(synced, &facts);
        const fs::path named = fs::read_symlink("/proc/self/fd/" + std::to_string(synced));
        if (!S_ISDIR(facts.st_mode)) {
            bytes_[facts.st_ino] = bytesOf(named);
            return;
        }
        std::erase_if(entries_,
                      [&](const auto& entry) { return (disk_ / entry.first).parent_path() == named; });
        for (const auto& [name, file] : entriesNow())
            if ((disk_ / name).parent_path() == named)
                entries_[name] = file;
    }
    enum class Data { dropped, half, all };
    /// The files after a cut, by name.
    std::map<std::string, std::string> left(bool entriesToo, Data data) const
    {
        const Entries now = entriesNow();
        std::map<std::string, std::string> files;
        for (const auto& [name, file] : entriesToo ? now : entries_) {
            const auto found = bytes_.find(file);
            const std::string synced = found == bytes_.end() ? "" : found->second;
            const std::string current = bytesNow(now, file, synced);
            if (data == Data::dropped)
                files[name] = synced;
            else if (data == Data::all)
                files[name] = current;
            else // overwritten from its beginning
                files[name] = current.substr(0, current.size() / 2) +
                              (synced.size() > current.size() / 2 ? synced.substr(current.size() / 2) : "");
        }
        return files;
    }

private:
    Entries entriesNow() const
    {
        Entries entries;
        for (const auto& entry : fs::recursive_directory_iterator(disk_))
            if (entry.is_regular_file()) {
                struct stat facts;
                ::stat(entry.path().c_str(), &facts);
                entries[fs::relative(entry.path(), disk_)] = facts.st_ino;
            }
        return entries;
    }
    /// Of a file without a name any more only what was synced is known.
    std::string bytesNow(const Entries& now, ino_t file, const std::string& synced) const
    {
        for (const auto& [name, inode] : now)
            if (inode == file)
                return bytesOf(disk_ / name);
        return synced;
    }

    fs::path disk_;
    Entries entries_;
    std::map<ino_t, std::string> bytes_;
    std::map<ino_t, int> held_; ///< open, so that no other file gets the inode of one that is gone
};

class PowerCutTest;
PowerCutTest* running = nullptr;

class PowerCutTest : public ProgramTest {
protected:
    fs::path place = fs::temp_directory_path() / ("power_cut_" + std::to_string(::getpid()));
    fs::path disk = place / "disk";
    PowerCut cut{disk};
    RealFiles realFiles;
    int settled = 0; ///< individuals that may not be lost any more
    int counted = 0;
    int states = 0;
    bool looking = false;

    PowerCutTest()
    {
        fs::create_directories(disk / "References/Back up files");
        ports.files = &realFiles;
        ports.programFolder = disk;
        hooks.SaveSheet = SaveSheet;
        hooks.AutoBackup = AutoBackup;
        hooks.EndRecovery = endRecovery;
        recoveryCopy = {};
        running = this;
        findRecoveryCopies();
    }
    ~PowerCutTest() override
    {
        running = nullptr;
        realFiles.release(recoveryCopyPath(recoveryCopy.place));
        fs::remove_all(place);
    }
    void count(int times)
    {
        for (int i = 0; i < times; ++i) {
            ++counted;
            tap('Q');
            watchUnsavedWork();
            JournalTimer_Timer();
        }
    }
    /// A second has passed: the journal has settled.
    void settle()
    {
        ASSERT_TRUE(disk::settle(recoveryJournalPath(recoveryCopy.place)));
        settled = counted;
    }
    void writeTheCopy()
    {
        RecoveryTimer_Timer();
        settled = counted;
    }
    void save()
    {
        SaveSheet(SaveMode::plain);
        settled = counted;
        watchUnsavedWork();
        JournalTimer_Timer();
    }
    /// The program was killed without a power cut, and another one starts.
    void startAgain()
    {
        realFiles.release(recoveryCopyPath(recoveryCopy.place));
        sheet = SheetState();
        sheet.SoundOn = true;
        sheet.ActionText = sheet.ActionTime = {""};
        frmMain = MainScreen();
        recoveryCopy = {};
        findRecoveryCopies();
    }

    static int countIn(const SheetTables& tables) { return tables.Count(1, 1); }

    /// What a program finds after the cut. The files stand where the program knows them.
    void look(const std::map<std::string, std::string>& onDisk)
    {
        ++states;
        const fs::path aside = place / "aside";
        fs::rename(disk, aside);
        fs::create_directories(disk / "References/Back up files");
        for (const auto& [name, bytes] : onDisk)
            std::ofstream(disk / name, std::ios::binary) << bytes;
        int most = 0;
        const auto read = [&](const std::string& name) {
            const auto file = onDisk.find(name);
            return file == onDisk.end() ? std::nullopt : std::optional(file->second);
        };
        const auto copy = read("References/Recovery_copy_(1).csv");
        const auto journal = read("References/Recovery_journal_(1).txt");
        if (copy || journal) {
            const auto work = understandLeftWork(copy, journal);
            EXPECT_TRUE(work || !copy) << "a torn copy";
            if (work) {
                EXPECT_LE(countIn(*work->tables), counted) << "counts that never were";
                most = countIn(*work->tables);
            }
        }
        for (const auto& [name, bytes] : onDisk)
            if (name.ends_with(".csv") && name.find("Recovery_copy") == std::string::npos) {
                SheetTables tables;
                bool whole = readDataSheet(bytes, tables);
                if (name.find("_back_up") != std::string::npos) // ends with its notes
                    whole = std::count(bytes.begin(), bytes.end(), '\n') == 144 && bytes.back() == '\n';
                EXPECT_TRUE(whole || name == "Lake.csv") << name << " is torn";
                if (whole)
                    most = std::max(most, countIn(tables));
            }
        EXPECT_GE(most, settled) << "of " << counted << " counted";
        fs::remove_all(disk);
        fs::rename(aside, disk);
    }

public:
    void after(int synced)
    {
        if (looking)
            return;
        looking = true;
        cut.note(synced);
        for (const bool entriesToo : {false, true})
            for (const auto data : {PowerCut::Data::dropped, PowerCut::Data::half, PowerCut::Data::all})
                look(cut.left(entriesToo, data));
        looking = false;
    }
};

void afterCall(int synced)
{
    if (running != nullptr)
        running->after(synced);
}

} // namespace

TEST_F(PowerCutTest, tearsNothingThatHasNoTwinAndTakesNothingThatHasSettled)
{
    const std::string offer = "TallyStrata ended while '";
    const auto expectOffer = [&](const std::string& name, Answer answer) {
        dialogs.expect(
            offer + name + "' was not saved. " + std::to_string(counted) +
                " individuals are kept, the last counted 15/11/2026 (14:05:09). Do you want to take up what "
                "was counted?",
            "TallyStrata", answer);
    };
    count(3);
    settle();
    count(2);
    writeTheCopy();
    count(4);
    settle();
    dialogs.paths = {disk / "Lake.csv"};
    save(); // a new file
    count(5);
    settle();
    save(); // over the file
    count(2);
    AutoBackup();
    settled = counted;
    AutoBackup();
    writeTheCopy();
    count(3);
    settle();
    expectOffer("Lake", Answer::yes);
    startAgain();
    EXPECT_EQ(shown(1), counted);
    count(1);
    settle();
    ASSERT_TRUE(keepUnsavedWork());
    expectOffer("Lake", Answer::no);
    startAgain();
    EXPECT_GT(states, 300);
}
