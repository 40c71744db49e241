#include "files/open_sheet.h"

#include "core/action_log.h"
#include "core/cue.h"
#include "core/editing.h"
#include "core/fields.h"
#include "core/forms.h"
#include "core/highlight.h"
#include "core/hooks.h"
#include "core/main_screen.h"
#include "core/messages.h"
#include "core/number_text.h"
#include "core/offers.h"
#include "core/recount_totals.h"
#include "core/reset_sheet.h"
#include "core/sample_names.h"
#include "core/sheet_name.h"
#include "core/sheet_state.h"
#include "core/show_sample.h"
#include "core/snapshot.h"
#include "core/text_changes.h"
#include "files/backup.h"
#include "files/data_sheet_reader.h"
#include "files/kept_work.h"
#include "files/new_sheet.h"
#include "files/reading_check.h"
#include "files/recovery.h"
#include "files/sheet_on_screen.h"
#include "platform/code_page.h"
#include "platform/ports.h"
#include "sheet/basis.h"
#include "sheet/cell_grid.h"
#include "sheet/file_location.h"
#include "sheet/name_display.h"
#include "sheet/subtotals.h"

#include <algorithm>
#include <functional>
#include <optional>

namespace {

/// What becomes of unsaved work when another sheet takes its place.
struct UnsavedWork {
    bool givenUp = false;            ///< the user has said so
    std::optional<std::string> kept; ///< name of the file among the backups that holds it all the same
};

/// Before a sheet goes that nothing has been asked about. What can be kept nowhere is asked about after all.
bool keepOrAsk(UnsavedWork& work)
{
    if (hasUnsavedWork() && !(work.kept = keepUnsavedWork()))
        work.givenUp = mayLoseCounts();
    return !hasUnsavedWork() || work.kept || work.givenUp;
}

/// True if the sheet in memory may go.
bool mayGo(bool dropped, UnsavedWork& work)
{
    // No dialog follows a drop, so it asks wherever there is unsaved work. Names that were edited leave the
    // sheet pristine, and are work all the same.
    const bool unsaved = frmMain.Command5[0].enabled;
    if (sheet.SheetPristine && !(unsaved && (dropped || sheet.UnsavedEdits)))
        return keepOrAsk(work);
    if (wholeNumber(frmMain.Text3[0].text) > 0)
        playCue(Cue::SoundError);
    const bool begun = frmMain.Label4.caption != "1/0";
    if (begun)
        playCue(Cue::SoundError);
    if (!begun && sheet.SampleTotal == 0 && !unsaved)
        return keepOrAsk(work);
    if (!mayLoseCounts()) {
        // On purpose: the next opening asks nothing.
        sheet.SheetPristine = true;
        sheet.UnsavedEdits = false;
        sheet.FreshSheet = false;
        return false;
    }
    work.givenUp = true;
    if (hasUnsavedWork()) // the dialog may be cancelled yet
        work.kept = keepUnsavedWork();
    RestoreSnapshot();
    hooks.CloseDiagram(); // also if the dialog is cancelled then
    for (int i = 0; i <= 100; ++i)
        sheet.UndoStack[i].slot = 0;
    return true;
}

/// Names of the sheet, its subtotals and its samples, with the last sample on show.
void showHeads()
{
    const int last = sheet.SampleCount;
    frmMain.Text99.text = decimalText(last);
    showSerial(last);
    showSubtotalNames();

    listSampleNames();
    setText1(0, sheet.SampleField(last, 2)); // without samples that of column 0: no name yet
    frmMain.Combo2.text = sheet.SampleField(last, 2);
    sheet.TaxonRecord[0].Subtotal1 = sheet.TaxonRecord[0].Subtotal2 = "0";
    sheet.SampleTotal = 0;
    for (int total = 0; total < 3; ++total)
        setText3(total, "0");
}

/// The row's key index shows its name and its count in the last sample.
void showTaxon(int row)
{
    const int keyIndex = sheet.KeyIndexOfRow[row];
    if (keyIndex == 0) // has no box; it is given an index when all rows are known
        return;
    setText1(keyIndex, sheet.TaxonRecord[keyIndex].Name);
    setText2(keyIndex, sheet.SampleCount > 0 ? decimalText(sheet.Count(sheet.SampleCount, keyIndex)) : "0");
}

enum class Reading {
    complete,
    percentages, ///< complete, but no counts
    failed,      ///< ended early
    refused      ///< a key index stands twice
};

/// The part of a text that is read: behind a line with other than the expected fields every count would be
/// another taxon's. Only if the fields come out even all the same is all of it read.
std::string_view readablePart(std::string_view text, const std::optional<LineFault>& fault)
{
    if (!fault || fault->ends || contentsOf(text) != Contents::other)
        return text;
    if (fault->line > 1)
        return text.substr(0, fault->begin);
    FieldReader fields(text);
    fields.next();
    return text.substr(0, text.size() - fields.left()); // no more than what the sheet is called by
}

/// Nothing of the sheet before stands among what little is read of such a file.
void emptySheet()
{
    const bool unnamed = sheet.SheetUnnamed;
    resetSheet();
    sheet.SheetUnnamed = unnamed;
}

/// Shows each part as soon as it is read: of a file that ends early as much as it has.
Reading readSheet(DataSheetReader& reader, const std::string& path, const std::string& name)
{
    const ShowingSample showing;
    sheet.SheetPath = path;
    sheet.ProposedPath.clear();
    showSheetName(name);
    if (!reader.readPath() || !reader.readSerials() || !reader.readNames())
        return Reading::failed;
    showHeads();
    for (int row = 1; row <= taxonSlots; ++row) {
        if (!reader.readTaxon(row))
            return Reading::failed;
        showTaxon(row);
    }
    if (const auto repeated = reader.repeatedKeyIndex()) {
        ports.dialogs->ask("Same key index (" + decimalText(*repeated) + ") is being used more than once.",
                           "Error", Buttons::ok, Icon::exclamation);
        return Reading::refused;
    }
    if (const int row = completeKeyIndexes(sheet))
        showTaxon(row);
    if (sheet.SampleCount == 0) {
        reader.beginFromTemplate(frmMain.Text1[0].text);
        showSerial(1);
    }
    RecountTotals(sheet.CurrentSample);
    return !reader.readTexts()        ? Reading::failed
           : isPercentageTable(sheet) ? Reading::percentages
                                      : Reading::complete;
}

/// What can be taken back and the row counted last belong to the sheet before.
void forgetCounts()
{
    sheet.UndoStack.fill({1, 0});
    frmMain.mnuUndo.enabled = false;
    forgetCurve();
    highlight(0, plainRow);
    sheet.HighlightRow = 0;
}

/// A file that ended early. What was read stays; boxes and tables must still agree, or the next key would
/// store counts of the sheet before.
void endEarly()
{
    completeKeyIndexes(sheet);
    if (sheet.SampleCount == 0) { // a column to count in
        sheet.SampleCount = sheet.CurrentSample = 1;
        sheet.SampleField(1, 1) = "1";
        sheet.SampleField(1, 2) = sheet.SampleField(0, 2);
    }
    forgetCounts();
    {
        const ShowingSample showing;
        showHeads();
    }
    for (int slot = 1; slot <= taxonSlots; ++slot) // also of a row whose name was the last to be read
        setText1(slot, sheet.TaxonRecord[slot].Name);
    showSample(sheet.CurrentSample);
    TakeSnapshot(); // a reset must not bring counts of the sheet before
}

void showTexts()
{
    const int last = sheet.CurrentSample;
    for (int date = 0; date < 3; ++date)
        frmMain.Label14[date].caption = orDashes(sheet.SampleStamp(last, date + 1));
    frmMain.Text4.text = sheet.SampleNote(last, 0);
    for (int item = 1; item <= infoItems; ++item) {
        std::string label = "Additional info-" + decimalText(item) + ":";
        if (sheet.FileGeneration >= 2) {
            label = sheet.AdditionalHeader[item][4];
            if (label.empty() || label.back() != ':')
                label += ':';
        }
        frmMain.Label10[item].caption = sheet.AdditionalInfo(0, item) = label;
        frmMain.Text5[item].text = orDashes(sheet.AdditionalInfo(last, item));
    }
}

/// After the file has been closed: totals, curve, offers and marks follow what was read.
void settle()
{
    ArrangeTaxonCells();
    forgetCounts();
    sheet.WarnNotLatest = true; // another sample comes on show
    {
        const ShowingSample showing;
        RecountTotals(sheet.CurrentSample);
        showTexts();
    }
    frmMain.Picture2.clearPicture();
    TakeSnapshot();
    const std::string path = toCodePageFromUtf8(sheet.SheetPath);
    if (!path.empty())
        logAction("(Open) " + path);
    frmMain.Text6.text = path.empty() ? "File location: ---" : path;
    WrapFileLocation();
    offerNextSample(true);
    offerSave(false);
    sheet.UnsavedEdits = false;
    selectBasis(0);
    AutoBackup();
    ApplyItalics();

    constexpr int widthAtFifty = 7545; // and the whole screen at the most samples
    sheet.DiagramHeight = 0;
    sheet.DiagramWidth = 0;
    if (sheet.SampleCount > 50)
        sheet.DiagramWidth =
            widthAtFifty + (ports.screenWidth - widthAtFifty) * (sheet.SampleCount - 50) / 200;
    TestSampleNames();
    if (sheet.TemplateOpened)
        showSiteName();
}

/// Kept is what went without having been given up for the sheet that came. A file can be dropped by accident.
void settleUnsavedWork(const UnsavedWork& work, bool replaced, bool dropped)
{
    if (!work.kept)
        return;
    if (replaced ? work.givenUp && !dropped : !work.givenUp) {
        dropUnsavedWork(*work.kept);
        return;
    }
    pruneUnsavedWork();
    frmMain.notice = "What was not saved is kept among the back up files: " + *work.kept;
}

void open(const std::function<std::optional<std::string>()>& choose, bool dropped)
{
    const RecoveryHeld held;
    UnsavedWork work;
    if (!mayGo(dropped, work))
        return;
    sheet.FreshSheet = true;
    bool replaced = false;
    if (const auto path = choose()) {
        if (const auto bytes = ports.files->read(*path, sheetLimit))
            replaced = openSheetText(fileTextInCodePage(*bytes), *path, fingerprintOf(*bytes));
        else
            frmMain.notice = "The file could not be read.";
    }
    if (!replaced) // the sheet that stays is still none of the template's own
        sheet.TemplateOpened = false;
    endProgress();
    ApplyItalics();
    TestSampleNames();
    settleUnsavedWork(work, replaced, dropped);
}

} // namespace

bool openSheetText(const std::string& text, const std::string& path, const std::optional<Fingerprint>& file)
{
    const auto name = path.empty() ? std::optional<std::string>("Untitled") : baseName(path);
    if (!name || !FieldReader(text).next()) {
        frmMain.notice = name ? "The file is empty." : "A data sheet's name has an ending: .csv.";
        return false;
    }
    hooks.CloseDiagram(); // it shows the sheet that goes
    beginProgress();
    const auto fault = firstLineFault(text);
    const std::string_view readable = readablePart(text, fault);
    if (readable.size() < text.size() && fault->line <= 3)
        emptySheet();
    sheet.KnownFile = file;
    DataSheetReader reader(readable, sheet);
    const Reading reading = readSheet(reader, path, *name);
    if (reading == Reading::complete || reading == Reading::percentages) {
        settle();
    } else if (reading == Reading::refused) {
        resetSheet();
        sheet.SheetPristine = true;
        sheet.FreshSheet = false;
    } else {
        endEarly();
    }
    const bool inPart = reading == Reading::percentages || reading == Reading::failed;
    sheet.NotItsFile = inPart || sheet.TemplateOpened;
    if (reading == Reading::failed)
        sheet.TemplateOpened = false;
    frmMain.readingNotice = reading == Reading::percentages
                                ? "This is a percentage table: what stands in the "
                                  "cells are rounded percentages, not counts."
                            : reading == Reading::complete ? ""
                            : fault                        ? tellFault(text, *fault)
                            : reading == Reading::failed   ? tellUnreadLine(reader.line())
                                                           : "";
    endProgress();
    hooks.SheetOpened();
    return true;
}

void openUnsavedText(const std::string& text, const std::string& path, const std::optional<Fingerprint>& file)
{
    openSheetText(text, path, file);
    sheet.SheetUnnamed = path.empty();
    sheet.FreshSheet = false;
    markUnsavedWork();
}

void mnuOpen_Click()
{
    open([] { return ports.dialogs->chooseFileToOpen(); }, false);
}

void openDropped(const std::string& path)
{
    if (isMainEnabled() && frmMain.mnuOpen.enabled)
        open([&path] { return std::optional(path); }, true);
}
