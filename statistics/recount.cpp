#include "statistics/recount.h"

#include "core/main_screen.h"
#include "core/number_text.h"
#include "core/sheet_state.h"
#include "files/next_sample.h"
#include "statistics/laboratory.h"

Recount recount;

namespace {

int serialOf(int sample)
{
    return wholeNumber(sheet.SampleField(sample, 1));
}

bool isNameTaken(const std::string& name)
{
    for (int sample = 1; sample <= sheet.SampleCount; ++sample)
        if (sheet.SampleField(sample, 2) == name)
            return true;
    return false;
}

std::string recountName(const std::string& name)
{
    std::string free = name + " recount";
    for (int number = 2; isNameTaken(free); ++number)
        free = name + " recount " + decimalText(number);
    return free;
}

} // namespace

bool isHidden(int sample)
{
    return recount.hiddenSerial != 0 && serialOf(sample) == recount.hiddenSerial;
}

bool areSumsHidden()
{
    return isHidden(sheet.CurrentSample);
}

bool mayCountAgain()
{
    return recount.hiddenSerial == 0 && frmMain.Command5[1].enabled &&
           leadingNumber(sheet.SampleField(sheet.CurrentSample, 2)) != -9999;
}

void countAgain()
{
    if (!mayCountAgain())
        return;
    const int samplesBefore = sheet.SampleCount;
    const int counted = sheet.CurrentSample;
    mnuNext_Click();
    if (!frmNext.visible) // no room for another sample, and the user was told
        return;
    frmNext.Text1.text = recountName(sheet.SampleField(counted, 2));
    frmNext_Command1_Click();
    if (sheet.SampleCount == samplesBefore)
        return;
    recount.hiddenSerial = serialOf(sheet.CurrentSample);
    copyLabFields(counted, sheet.CurrentSample);
    ++frmMain.forwardRevision;
}

void finishRecount()
{
    recount.hiddenSerial = 0;
}

void watchRecount()
{
    if (recount.hiddenSerial == 0)
        return;
    for (int sample = 1; sample <= sheet.SampleCount; ++sample)
        if (isHidden(sample))
            return;
    recount.hiddenSerial = 0;
}
