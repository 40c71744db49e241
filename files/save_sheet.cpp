#include "files/save_sheet.h"

#include "core/action_log.h"
#include "core/cue.h"
#include "core/editing.h"
#include "core/hooks.h"
#include "core/main_screen.h"
#include "core/messages.h"
#include "core/offers.h"
#include "core/sheet_name.h"
#include "core/sheet_state.h"
#include "core/snapshot.h"
#include "files/fingerprint.h"
#include "files/former_bytes.h"
#include "files/recovery.h"
#include "files/sheet_on_screen.h"
#include "files/sheet_text.h"
#include "platform/code_page.h"
#include "platform/ports.h"
#include "sheet/basis.h"
#include "sheet/file_location.h"

namespace {

bool isPercentageTable(SaveMode mode)
{
    return mode >= SaveMode::percentAll;
}

const char* dialogTitle(SaveMode mode)
{
    return mode == SaveMode::copy    ? "Save copy of data sheet"
           : isPercentageTable(mode) ? "Save percentage table"
                                     : "Save data sheet";
}

std::string proposedName(SaveMode mode)
{
    if (mode == SaveMode::copy)
        return proposedCopyName(sheet.SheetPath, ports.clock->now().date);
    if (isPercentageTable(mode))
        return proposedTableName(sheet.SheetPath);
    return sheet.SheetPath.empty() ? sheet.ProposedPath : sheet.SheetPath;
}

/// The dialog was cancelled.
void endCancelled()
{
    sheet.SaveResult = 2;
    endProgress();
}

/// Anything else that went wrong. One message stands for all.
void endFailed()
{
    sheet.SaveResult = 2;
    tellFileInUse();
    endProgress();
}

/// Another program has been at the sheet's file.
bool mayWriteOver(const std::string& path)
{
    return ports.dialogs->ask("'" + toCodePageFromUtf8(fileNameOf(path)) +
                                  "' has been changed by another program. Do you want to write over it?",
                              "Caution!", Buttons::yesNo, Icon::question) == Answer::yes;
}

std::string fileText(SaveMode mode, const std::vector<SampleTotals>& totals)
{
    if (!isPercentageTable(mode))
        return dataSheetText(sheet, totals);
    for (int sample = 1; sample <= sheet.SampleCount; ++sample)
        ComputePercentages(sample);
    return percentageTableText(sheet, sheet.Share, totals,
                               static_cast<int>(mode) - static_cast<int>(SaveMode::percentAll));
}

/// Writes the sheet; what the writing has changed in it goes back if it fails. `sheetPath`: what the file
/// calls the sheet.
bool write(SaveMode mode, const std::string& path, const std::string& sheetPath,
           const std::vector<SampleTotals>& totals)
{
    const Moment now = ports.clock->now();
    const auto headBefore = sheet.SheetHeader[1];
    std::string& modified = sheet.SampleStamp(sheet.CurrentSample, 3);
    const std::string modifiedBefore = modified;

    copyBeforeOverwriting();
    stampHead("Last modified (dd/mm/yyyy):", sheetPath, now);
    if (mode == SaveMode::plain && !sheet.FreshSheet)
        modified = dateStamp(now);
    fillEmptyCells(sheet, shownCaptions());
    const std::string text = fileText(mode, totals);
    const bool written = ports.files->write(path, text);
    if (path == sheetPath && (written || path == sheet.SheetPath))
        sheet.KnownFile = written ? fingerprintOf(text) : fingerprintOfFile(path);
    if (!written) {
        sheet.SheetHeader[1] = headBefore;
        modified = modifiedBefore;
        if (path == sheet.SheetPath)
            markUnsavedWork(); // what was saved there may be cut short
        return false;
    }
    if (mode == SaveMode::plain && !sheet.FreshSheet)
        frmMain.Label14[2].caption = modified;
    return true;
}

void takeName(const std::string& path, const std::string& name)
{
    sheet.SheetPath = path;
    sheet.ProposedPath.clear();
    sheet.SheetUnnamed = false;
    showSheetName(name);
    frmMain.Text6.text = toCodePageFromUtf8(path);
    WrapFileLocation();
}

/// What stands at the path may be nobody's copy of it. False if it is left alone and the save has ended.
bool mayTake(const std::string& path, bool isTable)
{
    const bool isOwn = path == sheet.SheetPath;
    const bool changed = isOwn && !sheet.NotItsFile && sheetFileHasChanged();
    if (changed && !mayWriteOver(path)) {
        endCancelled();
        return false;
    }
    const bool unknown = changed || (isOwn && sheet.NotItsFile);
    if (!(unknown || (!isOwn && !isTable)) || keepFormerBytes(path, unknown))
        return true;
    frmMain.notice = "What the file holds could not be kept among the backups: save under another name.";
    endFailed();
    return false;
}

} // namespace

void SaveSheet(SaveMode mode)
{
    if (!sheet.KeysActive) { // the boxes show percentages, which must not become counts
        sheet.SaveResult = 2;
        return;
    }
    beginProgress();
    storeShownSample();
    // Before any dialog and any file: totals that no file can hold.
    const auto totals = sampleTotals(sheet);
    if (!totals) {
        frmMain.notice = "A sample has more than 32767 individuals in a total: no data sheet holds that.";
        endFailed();
        return;
    }
    const bool isTable = isPercentageTable(mode);
    if (!isTable && (sheet.SheetPath.empty() || (sheet.NotItsFile && mode != SaveMode::copy)))
        mode = SaveMode::saveAs;

    std::string path = sheet.SheetPath;
    if (mode == SaveMode::saveAs || mode == SaveMode::copy || isTable) {
        const auto chosen = ports.dialogs->chooseFileToSave(dialogTitle(mode), proposedName(mode));
        if (!chosen) {
            endCancelled();
            return;
        }
        path = *chosen;
    }
    const bool namesSheet =
        mode == SaveMode::saveAs || (isTable && sheet.SheetUnnamed); // on purpose of a table too
    const auto name = baseName(path);
    if (namesSheet &&
        !name) { // a name without a point: the file is there, empty, and the sheet stays unnamed
        ports.files->create(path);
        endFailed();
        return;
    }
    if (!mayTake(path, isTable))
        return;
    if (!write(mode, path, namesSheet ? path : sheet.SheetPath, *totals)) {
        endFailed();
        return;
    }

    if (namesSheet)
        takeName(path, *name);
    if (isTable && namesSheet)
        frmMain.notice = "The sheet now has the name of this table: Save will write its counts over it.";
    if (isTable) {
        if (path == sheet.SheetPath)
            markUnsavedWork(); // the sheet's own file holds no counts now
    } else if (mode != SaveMode::copy || path == sheet.SheetPath) {
        offerSave(false);
        sheet.TemplateOpened = sheet.NotItsFile = false;
        TakeSnapshot(); // what a reset goes back to is what is on disk
        hooks.SheetSaved();
    }
    playCue(Cue::SoundSave);
    if (!sheet.Modifying) { // its Save key works in the diagram's window only, and no next sample follows
        offerNextSample(true);
        frmMain.mnuSaveCopy.enabled = true;
    }
    logAction(mode == SaveMode::saveAs ? "(Save as)" : mode == SaveMode::copy ? "(Save copy)" : "(Save)");
    if (mode == SaveMode::plain && !sheet.Modifying)
        frmMain.focus = MainFocus::Text99;
    endProgress();
}

void mnuSave_Click()
{
    SaveSheet(plainOrUntouched());
}

void mnuSaveAs_Click()
{
    SaveSheet(SaveMode::saveAs);
}

void mnuSaveCopy_Click()
{
    SaveSheet(SaveMode::copy);
}

static void savePercentageTable(int basis)
{
    selectBasis(basis); // on the main window too, and it stays so
    constexpr SaveMode tables[] = {SaveMode::percentAll, SaveMode::percentSubtotal1,
                                   SaveMode::percentSubtotal2};
    SaveSheet(tables[basis]);
    sheet.AlarmArmed = true;
}

void mnuPercentAll_Click()
{
    savePercentageTable(0);
}

void mnuPercentSub1_Click()
{
    savePercentageTable(1);
}

void mnuPercentSub2_Click()
{
    savePercentageTable(2);
}
