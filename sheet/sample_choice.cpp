#include "sheet/sample_choice.h"

#include "core/action_log.h"
#include "core/editing.h"
#include "core/main_screen.h"
#include "core/number_text.h"
#include "core/sheet_state.h"
#include "core/show_sample.h"
#include "sheet/percent_view.h"

static void leaveShownSample()
{
    Command6_MouseUp(); // what it would put back belongs to that sample
    leaveEditedBox();
}

static void choose(int sample)
{
    showSample(sample);
    logAction("(Change sample: " + frmMain.Combo2.text + ")");
    frmMain.focus = sheet.Modifying ? MainFocus::Text4 : MainFocus::Text99;
}

void Combo2_Click(std::string_view name)
{
    leaveShownSample();
    sheet.SampleChangeFlag = true;
    int chosen = 0;
    for (int sample = 1; sample <= sheet.SampleCount; ++sample)
        if (sheet.SampleField(sample, 2) == name)
            chosen = sample;
    if (chosen != 0)
        choose(chosen);
}

void Command9_Click()
{
    leaveShownSample();
    int latest = 1;
    for (int sample = 2; sample <= sheet.SampleCount; ++sample)
        if (leadingNumber(sheet.SampleField(sample, 1)) >= leadingNumber(sheet.SampleField(latest, 1)))
            latest = sample;
    choose(latest);
    sheet.SampleChangeFlag = false; // spent on the name that came into the list's box
}

void Combo2_Change(std::string_view text, int caret)
{
    if (!sheet.SampleChangeFlag) {
        frmMain.Combo2.text = sheet.SampleField(sheet.CurrentSample, 2);
        return;
    }
    sheet.SampleChangeFlag = false;
    sheet.WarnNotLatest = true;
    frmMain.Text4.text = sheet.SampleNote(sheet.CurrentSample, 0);
    renameShownSample(text, caret);
}
