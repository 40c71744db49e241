#include "files/recovery.h"

#include "core/action_log.h"
#include "core/editing.h"
#include "core/fields.h"
#include "core/main_screen.h"
#include "core/number_text.h"
#include "core/sheet_name.h"
#include "core/sheet_state.h"
#include "files/data_sheet_reader.h"
#include "files/fingerprint.h"
#include "files/open_sheet.h"
#include "files/sample_totals.h"
#include "files/sheet_on_screen.h"
#include "files/sheet_text.h"
#include "platform/code_page.h"
#include "platform/ports.h"

RecoveryCopy recoveryCopy;

namespace {

constexpr int delay = 5000; // milliseconds
constexpr int places = 9;   // programs that may run at once

/// A sheet begun from a template is not the template.
std::string pathOfSheet()
{
    return sheet.TemplateOpened ? std::string() : sheet.SheetPath;
}

/// False if the counts are not all on disk.
bool writeCopy()
{
    if (recoveryCopy.path.empty())
        return false;
    storeShownSample();
    stampHead("Last modified (dd/mm/yyyy):", pathOfSheet(), ports.clock->now());
    fillEmptyCells(sheet, shownCaptions());
    const auto totals = sampleTotals(sheet);
    // Sums are never read back, and no sum keeps a copy from being written.
    std::string text = dataSheetText(
        sheet, totals.value_or(std::vector<SampleTotals>(static_cast<std::size_t>(sheet.SampleCount) + 1)));
    if (recoveryCopy.onDisk && text == recoveryCopy.written)
        return true;
    if (!ports.files->replace(recoveryCopy.path, text))
        return false;
    recoveryCopy.onDisk = true;
    recoveryCopy.written = std::move(text);
    return true;
}

void removeCopy()
{
    if (recoveryCopy.onDisk)
        ports.files->remove(recoveryCopy.path);
    recoveryCopy.onDisk = false;
    recoveryCopy.written.clear();
}

/// The sheet's own file as line 1 names it, if it is still there; else the sheet has no file yet.
std::string originalPath(std::string_view text)
{
    const std::string path = utf8FromCodePage(FieldReader(text).next().value_or(""));
    return baseName(path) && ports.files->read(path, sheetLimit) ? path : std::string();
}

void takeUp(const std::string& text)
{
    const std::string path = originalPath(text);
    openSheetText(text, recoveryCopy.path, fingerprintOfFile(path));
    standUnsaved(path);
    recoveryCopy.onDisk = true;
    logAction("(Recovery copy taken up)");
}

/// A copy that a crash has left at `path`. True if it was taken up.
bool offer(const std::string& path, const std::string& text)
{
    const auto name = baseName(utf8FromCodePage(FieldReader(text).next().value_or("")));
    const bool wanted =
        ports.dialogs->ask("TallyStrata ended while '" + toCodePageFromUtf8(name.value_or("Untitled")) +
                               "' was not saved. Do you want to take up what was counted?",
                           "TallyStrata", Buttons::yesNo, Icon::question) == Answer::yes;
    if (wanted) {
        recoveryCopy.path = path;
        takeUp(text);
    } else if (ports.files->write(
                   ports.programFolder + "/References/Back up files/Declined_recovery_copy.csv", text)) {
        ports.files->remove(path);
    }
    return wanted;
}

} // namespace

void findRecoveryCopies()
{
    for (int place = 1; place <= places; ++place) {
        const std::string path =
            ports.programFolder + "/References/Recovery_copy_(" + decimalText(place) + ").csv";
        if (!ports.files->claim(path))
            continue; // another program's
        const auto left = ports.files->read(path, sheetLimit);
        if (left && offer(path, fileTextInCodePage(*left)))
            return;
        if (recoveryCopy.path.empty())
            recoveryCopy.path = path;
        else
            ports.files->release(path);
    }
}

void watchUnsavedWork()
{
    if (!hasUnsavedWork()) {
        removeCopy();
    } else if (!recoveryCopy.waiting && !recoveryCopy.path.empty()) {
        recoveryCopy.waiting = true;
        ports.recoveryTimer->start(delay);
    }
}

void RecoveryTimer_Timer()
{
    recoveryCopy.waiting = false;
    if (hasUnsavedWork() && !writeCopy())
        watchUnsavedWork(); // a disk that is full now may have room again before the next key
}

void copyBeforeOverwriting()
{
    writeCopy();
}

void endRecovery(bool lossConfirmed)
{
    ports.recoveryTimer->stop();
    if (lossConfirmed)
        removeCopy();
    else if (hasUnsavedWork())
        writeCopy();
}
