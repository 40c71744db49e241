#include "files/left_work.h"

#include "core/action_log.h"
#include "core/editing.h"
#include "core/main_screen.h"
#include "core/number_text.h"
#include "core/sheet_name.h"
#include "core/sheet_state.h"
#include "core/show_sample.h"
#include "files/data_sheet_reader.h"
#include "files/fingerprint.h"
#include "files/journal.h"
#include "files/kept_work.h"
#include "files/open_sheet.h"
#include "files/recovery.h"
#include "files/recovery_copy.h"
#include "files/sheet_text.h"
#include "platform/code_page.h"
#include "platform/ports.h"

#include <algorithm>

namespace {

/// The files at one place.
struct LeftFiles {
    int place = 0;
    std::optional<std::string> copy;
    std::optional<std::string> journal;

    bool any() const { return copy || journal; }
};

LeftFiles filesAt(int place)
{
    return {place, ports.files->read(recoveryCopyPath(place), sheetLimit),
            ports.files->read(recoveryJournalPath(place), sheetLimit)};
}

/// The journal first: beside no copy it would go on from the sheet's file.
bool removeFiles(const LeftFiles& left)
{
    return ports.files->remove(recoveryJournalPath(left.place)) &&
           ports.files->remove(recoveryCopyPath(left.place));
}

/// The sheet's own file, if it is as it was when the journal began.
std::unique_ptr<SheetTables> tablesOfFile(const RecoveryLabel& label)
{
    const auto bytes = label.path.empty() ? std::nullopt : ports.files->read(label.path, sheetLimit);
    if (!bytes || fingerprintOf(*bytes) != label.file)
        return nullptr;
    auto tables = std::make_unique<SheetTables>();
    return readDataSheet(fileTextInCodePage(*bytes), *tables) ? std::move(tables) : nullptr;
}

std::int64_t individualsIn(const SheetTables& tables)
{
    std::int64_t sum = 0;
    for (int sample = 1; sample <= tables.SampleCount; ++sample)
        for (int slot = 1; slot <= taxonSlots; ++slot)
            sum += tables.Count(sample, slot);
    return sum;
}

/// The last column if no sample has the serial number.
int columnOfSerial(const std::string& serial, const SheetTables& tables)
{
    for (int sample = 1; sample <= tables.SampleCount; ++sample)
        if (tables.SampleField(sample, 1) == serial)
            return sample;
    return tables.SampleCount;
}

std::string sheetTextOf(SheetTables& tables)
{
    tables.SheetHeader[1][2] = "Last modified (dd/mm/yyyy):";
    tables.SheetHeader[1][4] = "Serial No.";
    std::array<std::string, infoItems + 1> captions;
    for (int item = 1; item <= infoItems; ++item)
        captions[item] = tables.FileGeneration >= 2 ? tables.AdditionalHeader[item][4] : "";
    fillEmptyCells(tables, captions);
    const auto totals = sampleTotals(tables);
    return dataSheetText(
        tables, totals.value_or(std::vector<SampleTotals>(static_cast<std::size_t>(tables.SampleCount) + 1)));
}

/// "Lake" of a path; "Untitled" without one.
std::string nameOf(const std::string& path)
{
    return toCodePageFromUtf8(baseName(path).value_or("Untitled"));
}

/// Path that the first save of a sheet proposes whose file is another one by now.
std::string recoveredPath(const std::string& path)
{
    const auto point = path.rfind('.');
    return path.substr(0, point) + " (recovered)" + (point == std::string::npos ? "" : path.substr(point));
}

std::string question(const LeftWork& work)
{
    const std::string name = nameOf(work.label.path);
    std::string text = "TallyStrata ended while '" + name + "' was not saved. " +
                       std::to_string(work.individuals) + " individuals are kept";
    if (!work.label.lastCounted.empty())
        text += ", the last counted " + work.label.lastCounted;
    text += ".";
    if (work.fileIsAnother)
        text += " '" + name +
                "' has been changed or is gone since, so they will be a sheet of their own, without a file.";
    return text + " Do you want to take up what was counted?";
}

void takeUp(LeftWork& work, const LeftFiles& left)
{
    const RecoveryLabel& label = work.label;
    const bool named = !label.path.empty() && !work.fileIsAnother;
    if (named)
        openUnsavedText(sheetTextOf(*work.tables), label.path, label.file);
    else
        openUnsavedText(sheetTextOf(*work.tables));
    if (work.fileIsAnother)
        sheet.ProposedPath = recoveredPath(label.path);
    showSample(work.sample);
    logAction("(Recovery copy taken up: " + std::to_string(work.fromJournal) + " counts from the journal)");
    goOnFromCopy(left.place, label, left.copy.has_value(), left.journal.has_value(), work.journalGoesOn);
    copyBeforeOverwriting(); // one copy that holds what came from the journal
}

/// Moves all of it to the backups. False if something could not be moved; then it stays.
bool moveToBackups(const LeftFiles& left, const std::string& kind, const std::optional<std::string>& whole)
{
    const std::string numbered = kind + decimalText(left.place) + "_";
    if (whole)
        return keepAmongBackups(numbered, *whole) && removeFiles(left);
    return (!left.copy || keepAmongBackups(numbered, *left.copy)) &&
           (!left.journal || left.journal->empty() || keepAmongBackups(numbered, *left.journal, ".txt")) &&
           removeFiles(left);
}

void tellDamage(const LeftFiles& left, bool moved)
{
    ports.dialogs->ask("What TallyStrata kept of unsaved work is damaged ('Recovery_copy_(" +
                           decimalText(left.place) + ").csv'). Nothing of it was taken up. " +
                           (moved ? "It was moved to the back up files." : "It stays where it is."),
                       "TallyStrata", Buttons::ok, Icon::exclamation);
}

/// A journal that ended before its first count.
bool isEmpty(const LeftFiles& left)
{
    if (left.copy || !left.journal)
        return false;
    const auto journal = readJournal(*left.journal, std::nullopt);
    return left.journal->empty() || (journal && journal->lines.empty());
}

/// True if it was taken up.
bool offer(const LeftFiles& left)
{
    if (isEmpty(left)) {
        removeFiles(left);
        return false;
    }
    auto work = understandLeftWork(left.copy, left.journal);
    if (!work) {
        const bool moved = moveToBackups(left, "Damaged_recovery_copy_", std::nullopt);
        tellDamage(left, moved);
        return false;
    }
    if (ports.dialogs->ask(question(*work), "TallyStrata", Buttons::yesNo, Icon::question) == Answer::yes) {
        takeUp(*work, left);
        return true;
    }
    moveToBackups(left, "Declined_recovery_copy_", sheetTextOf(*work->tables));
    return false;
}

} // namespace

std::optional<LeftWork> understandLeftWork(const std::optional<std::string>& copy,
                                           const std::optional<std::string>& journal)
{
    LeftWork work;
    std::optional<Journal> lines;
    if (copy) {
        const auto proved = readRecoveryCopy(*copy);
        work.tables = std::make_unique<SheetTables>();
        if (!proved || !readDataSheet(proved->sheetText, *work.tables))
            return std::nullopt;
        work.label = proved->label;
        if (journal)
            lines = readJournal(*journal, proved->label.number);
    } else if (journal) {
        lines = readJournal(*journal, std::nullopt);
        if (!lines)
            return std::nullopt;
        work.label = lines->head.label;
        if (!lines->head.overCopy)
            work.tables = tablesOfFile(work.label);
        if (!work.tables) { // the counts alone
            work.tables = std::make_unique<SheetTables>();
            work.fileIsAnother = !work.label.path.empty();
        }
    }
    work.journalGoesOn = lines.has_value();
    if (lines && !lines->lines.empty()) {
        const BroughtCounts brought = bringCounts(lines->lines, *work.tables);
        work.fromJournal = brought.individuals;
        work.sample = brought.lastSample;
        work.label.lastCounted = lines->lines.back().clock;
    }
    if (!work.label.path.empty() && fingerprintOfFile(work.label.path) != work.label.file)
        work.fileIsAnother = true;
    work.individuals = individualsIn(*work.tables);
    if (work.sample == 0)
        work.sample = columnOfSerial(work.label.shownSerial, *work.tables);
    return work;
}

void findRecoveryCopies()
{
    for (int place = 1; place <= recoveryPlaces; ++place) {
        if (!filesAt(place).any() || !ports.files->claim(recoveryCopyPath(place)))
            continue;                          // nothing there, or another program's
        const LeftFiles left = filesAt(place); // its program may have ended only now
        if (left.any() && offer(left))
            return;
        ports.files->release(recoveryCopyPath(place));
    }
    takeRecoveryPlace();
    recoveryCopy.recorded = recordOf(sheet, sheet);
}
