#include "files/next_sample.h"

#include "core/action_log.h"
#include "core/editing.h"
#include "core/forms.h"
#include "core/hooks.h"
#include "core/main_screen.h"
#include "core/messages.h"
#include "core/number_text.h"
#include "core/offers.h"
#include "core/sample_move.h"
#include "core/sample_names.h"
#include "core/sheet_state.h"
#include "core/show_sample.h"
#include "core/snapshot.h"
#include "core/taxon_name.h"
#include "core/text_changes.h"
#include "files/open_sheet.h"
#include "platform/ports.h"

#include <algorithm>

NextForm frmNext;
static const Form form("frmNext", frmNext.visible, frmNext_Command3_Click);

namespace {

/// The sheet's only column still has its placeholder name.
bool hasNoSample()
{
    return sheet.SampleCount == 1 && leadingNumber(sheet.SampleField(1, 2)) == -9999;
}

void load()
{
    const bool first = hasNoSample();
    frmNext.begin(first ? "Name of the first sample: " : "Name of the next sample: ");
    frmNext.Command2.visible = first;
    frmNext.Command3.visible = !first;
}

void close()
{
    for (Button& rename : frmNext.Command5)
        rename.visible = true;
    closeAboveMain(frmNext.visible);
}

bool isNameTaken()
{
    for (int sample = 1; sample <= sheet.SampleCount; ++sample)
        if (sheet.SampleField(sample, 2) == frmNext.Text1.text)
            return true;
    return false;
}

/// Counts in a column that has no sample yet would go; the user decides.
bool mayEmptyPlaceholder()
{
    bool counted = false;
    for (int slot = 1; slot <= taxonSlots; ++slot)
        counted = counted || sheet.Count(1, slot) != 0;
    if (!counted)
        return true;
    if (!mayLoseCounts())
        return false;
    for (UndoEntry& entry : sheet.UndoStack)
        if (entry.sample == 1)
            entry = {};
    return true;
}

int largestSerial()
{
    double largest = -9999;
    for (int sample = 1; sample <= sheet.SampleCount; ++sample)
        largest = std::max(largest, leadingNumber(sheet.SampleField(sample, 1)));
    return static_cast<int>(largest > -9999 ? std::min(largest, 32766.0) : 0);
}

/// Of equal depths the new sample comes last.
void moveToDepth()
{
    TestSampleNames();
    if (sheet.NamesNotNumeric)
        return;
    const auto depth = [](int sample) { return leadingNumber(sheet.SampleField(sample, 2)); };
    sheet.MoveFrom = sheet.SampleCount;
    sheet.MoveTo = 1;
    while (sheet.MoveTo < sheet.SampleCount && depth(sheet.MoveTo) <= depth(sheet.SampleCount))
        ++sheet.MoveTo;
    MoveSample();
}

/// False if the name is refused or the user keeps the counts of the placeholder.
bool AddSample()
{
    if (isNameTaken()) {
        ports.dialogs->ask("The sample name is already used. Choose another name.", "Error!", Buttons::ok,
                           Icon::exclamation);
        return false;
    }
    const bool takesPlaceholder = hasNoSample();
    if (takesPlaceholder && !mayEmptyPlaceholder())
        return false;
    sheet.LatestSerial = largestSerial();
    if (!takesPlaceholder) {
        ++sheet.SampleCount;
        ++sheet.LatestSerial;
        sheet.CurrentSample = sheet.SampleCount;
    }
    const int sample = sheet.CurrentSample = sheet.SampleCount;
    forEachSampleTable(sheet, [sample](auto&... tables) { (clearColumn(tables, sample), ...); });
    const std::string name = frmNext.Text1.text.empty() ? decimalText(sample) + ": ---" : frmNext.Text1.text;
    sheet.SampleField(sample, 1) = decimalText(sheet.LatestSerial);
    sheet.SampleField(sample, 2) = name;
    listSampleNames(); // without the placeholder
    setText1(0, name); // shows in Combo2 too
    for (int slot = 0; slot <= taxonSlots; ++slot) {
        frmMain.Text1[slot].bold = frmMain.Text2[slot].bold = false;
        if (slot > 0)
            setText2(slot, "0");
    }
    // An info may have been renamed for the first sample.
    frmMain.Text4.text = sheet.SampleNote(sample, 0) = orDashes(frmNext.Text2.text);
    for (int item = 1; item <= infoItems; ++item) {
        frmMain.Label10[item].caption = sheet.AdditionalInfo(0, item) = frmNext.Label3[item].caption;
        frmMain.Text5[item].text = sheet.AdditionalInfo(sample, item) = orDashes(frmNext.Text3[item].text);
    }
    showSerial(sample);
    sheet.TaxonRecord[0].Subtotal1 = sheet.TaxonRecord[0].Subtotal2 = "0";
    sheet.SampleTotal = 0;
    for (int total = 0; total < 3; ++total)
        setText3(total, "0");
    logAction("(New sample: " + name + ")");
    moveToDepth();
    hooks.ReloadDiagram();
    TakeSnapshot();
    markUnsavedWork();
    frmMain.mnuNew.enabled = true;
    tellOfName(name);
    return true;
}

} // namespace

void mnuNext_Click()
{
    TakeSnapshot();
    NextFile();
    for (Button& rename : frmNext.Command5)
        rename.visible = false;
    frmNext.Command3.visible = true;
    frmNext.Command4.visible = false;
    frmNext.entryBoxes = true;
}

void NextFile()
{
    if (sheet.SampleCount >= sampleLimit) {
        ports.dialogs->ask("Sample number reached 250. Please create new data sheet.", "Format regulation",
                           Buttons::ok, Icon::information);
        return;
    }
    load();
    openAboveMain(frmNext.visible);
}

void showFirstRunChoice()
{
    // A sheet that a crash had left was taken up meanwhile, or the names of the first one are being edited.
    if (!hasNoSample() || sheet.Modifying)
        return;
    NextFile();
    frmNext.Command4.visible = true;
    frmNext.entryBoxes = false;
}

void frmNext_Command1_Click()
{
    if (!AddSample())
        return;
    if (sheet.FreshSheet)
        hooks.CloseDiagram();
    frmMain.Label14[0].caption = dateStamp(ports.clock->now());
    frmMain.Label14[1].caption = frmMain.Label14[2].caption = noText;
    for (int date = 0; date < 3; ++date)
        sheet.SampleStamp(sheet.CurrentSample, date + 1) = frmMain.Label14[date].caption;
    close();
}

void frmNext_Command2_Click()
{
    close();
    mnuOpen_Click();
}

void frmNext_Command3_Click()
{
    close();
}

void frmNext_Command4_Click()
{
    frmNext.Command4.visible = false;
    frmNext.entryBoxes = true;
}

void frmNext_Text3_GotFocus(int item)
{
    frmNext.enterInfo(item);
}

void frmNext_Text3_LostFocus(int item)
{
    frmNext.leaveInfo(item);
}
