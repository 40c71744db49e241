#include "files/new_sheet.h"

#include "core/action_log.h"
#include "core/cue.h"
#include "core/editing.h"
#include "core/forms.h"
#include "core/hooks.h"
#include "core/main_screen.h"
#include "core/messages.h"
#include "core/number_text.h"
#include "core/offers.h"
#include "core/reset_sheet.h"
#include "core/sample_names.h"
#include "core/sheet_name.h"
#include "core/sheet_state.h"
#include "core/show_sample.h"
#include "core/snapshot.h"
#include "core/taxon_name.h"
#include "core/text_changes.h"
#include "files/sheet_on_screen.h"
#include "platform/ports.h"

SampleForm frmSiteName;
static const Form form("frmSiteName", frmSiteName.visible, frmSiteName_Command3_Click);

void mnuNew_Click()
{
    if (frmMain.Text3[0].text != "0")
        playCue(Cue::SoundError);
    if (!mayLoseCounts())
        return;
    hooks.CloseDiagram();
    resetSheet();
    showSiteName();
}

void showSiteName()
{
    frmSiteName.begin("Name of the first sample: ");
    openAboveMain(frmSiteName.visible);
}

static void closeSiteName()
{
    closeAboveMain(frmSiteName.visible);
    frmMain.Text99.text.clear();
}

void frmSiteName_Command1_Click()
{
    sheet.SheetHeader[1][1] = frmSiteName.Text1.text;
    showSheetName(baseName(sheet.SheetPath).value_or("Untitled"));
    sheet.NamesNotNumeric = !isDepth(frmSiteName.Text1.text);
    const std::string name = frmSiteName.Text1.text.empty() ? "1: ---" : frmSiteName.Text1.text;
    logAction("(New sample: " + name + ")");
    sheet.CurrentSample = 1;
    sheet.SampleField(1, 1) = "1";
    sheet.SampleField(1, 2) = name;
    frmMain.Combo2.items = {name};
    ++frmMain.Combo2.itemsRevision;
    setText1(0, name); // shows in Combo2 too
    frmMain.Label14[0].caption = sheet.SampleStamp(1, 1) = dateStamp(ports.clock->now());
    for (int date = 2; date <= 3; ++date)
        frmMain.Label14[date - 1].caption = sheet.SampleStamp(1, date) = noText;
    frmMain.Text4.text = sheet.SampleNote(1, 0) = orDashes(frmSiteName.Text2.text);
    for (int item = 1; item <= infoItems; ++item)
        frmMain.Text5[item].text = sheet.AdditionalInfo(1, item) = orDashes(frmSiteName.Text3[item].text);
    TakeSnapshot();
    markUnsavedWork(); // what was typed
    frmMain.mnuNew.enabled = true;
    tellOfName(name);
    closeSiteName();
    showSerial(1);
    sheet.TaxonRecord[0].Subtotal1 = sheet.TaxonRecord[0].Subtotal2 = "0";
    // A second stamp of the same text, as every history has it here.
    StampAction();
}

void frmSiteName_Command3_Click()
{
    closeSiteName();
}

void frmSiteName_Text3_GotFocus(int item)
{
    frmSiteName.enterInfo(item);
}

void frmSiteName_Text3_LostFocus(int item)
{
    frmSiteName.leaveInfo(item);
}
