#include "statistics/target.h"

#include "core/main_screen.h"
#include "core/number_text.h"
#include "core/return_to_main.h"
#include "core/sheet_state.h"
#include "platform/ports.h"
#include "statistics/recount.h"
#include "statistics/written_numbers.h"

#include <cstdlib>

Target target;
TargetForm frmTarget;

namespace {

int watchedSum()
{
    for (int total = 1; total < 3; ++total)
        if (frmMain.Option1[total].selected)
            return total;
    return 0;
}

std::string remaining(std::int64_t counted)
{
    const std::string number = withThousands(target.individuals) + ": ";
    if (counted >= target.individuals)
        return number + "reached";
    if (areSumsHidden())
        return number + "hidden";
    return number + withThousands(static_cast<double>(target.individuals - counted)) + " to go";
}

void close()
{
    frmTarget.visible = false;
    returnToMain();
}

} // namespace

void mnuTarget_Click()
{
    frmTarget = {
        .visible = true, .label = "Individuals of " + frmMain.Label2[watchedSum()].caption, .Text1 = {}};
    if (target.individuals > 0)
        frmTarget.Text1.text = decimalText(target.individuals);
    frmMain.enabled = false;
}

void frmTarget_Command1_Click()
{
    const std::string& text = frmTarget.Text1.text;
    const int individuals = wholeNumber(text);
    if (!text.empty() && (!isWholeNumber(text) || individuals < 1)) {
        ports.dialogs->ask("Please input digit(s).", "Error", Buttons::ok, Icon::exclamation);
        return;
    }
    target = {};
    target.individuals = individuals;
    close();
}

void frmTarget_Command2_Click()
{
    close();
}

void watchTarget()
{
    if (target.individuals == 0 || !sheet.KeysActive) // the boxes show percentages
        return;
    const int sum = watchedSum();
    const std::int32_t counted = wholeNumber(frmMain.Text3[sum].text);
    const std::string& sample = sheet.SampleField(sheet.CurrentSample, 1);
    // One key makes one step; anything else is another sample, perhaps of another sheet, or an edit.
    const bool goesOn =
        target.sum == sum && target.sample == sample && std::abs(std::int64_t{counted} - target.counted) <= 1;
    const bool arrives = goesOn && counted > target.counted && counted == target.individuals;
    target.hasRung = goesOn && target.hasRung;
    if (arrives && !target.hasRung) {
        target.hasRung = true;
        if (sheet.SoundOn)
            ports.sound->play(Cue::SoundAlarm);
    }
    target.sum = sum;
    target.sample = sample;
    target.counted = counted;
    target.text = remaining(counted);
}
