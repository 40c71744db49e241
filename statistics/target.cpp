#include "statistics/target.h"

#include "core/cue.h"
#include "core/forms.h"
#include "core/main_screen.h"
#include "core/number_text.h"
#include "core/sheet_state.h"
#include "platform/ports.h"
#include "statistics/chosen_basis.h"
#include "statistics/recount.h"
#include "statistics/written_numbers.h"

#include <cstdlib>

Target target;
TargetForm frmTarget;
static const Form form("frmTarget", frmTarget.visible, frmTarget_Command2_Click);

Target::Target()
{
    for (Label& label : Label1)
        label.visible = false;
}

namespace {

std::string remaining(std::int64_t counted)
{
    const std::string number = withThousands(target.individuals) + ": ";
    if (counted >= target.individuals)
        return number + "reached";
    if (areSumsHidden())
        return number + "hidden";
    return number + withThousands(static_cast<double>(target.individuals - counted)) + " to go";
}

void showRemaining(std::int64_t counted)
{
    for (int sum = 0; sum < 3; ++sum) {
        Label& label = target.Label1[sum];
        label.visible = target.individuals > 0 && sum == target.sum;
        if (label.visible)
            label.caption = remaining(counted);
    }
}

void close()
{
    closeAboveMain(frmTarget.visible);
}

} // namespace

void mnuTarget_Click()
{
    frmTarget.Label1.caption = "Individuals of " + sumName(chosenBasis()) + ":";
    frmTarget.Text1 = {};
    if (target.individuals > 0)
        frmTarget.Text1.text = decimalText(target.individuals);
    openAboveMain(frmTarget.visible);
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
    const int sum = chosenBasis();
    const std::int32_t counted = wholeNumber(frmMain.Text3[sum].text);
    const std::string& sample = sheet.SampleField(sheet.CurrentSample, 1);
    // One key makes one step; anything else is another sample, perhaps of another sheet, or an edit.
    const bool goesOn =
        target.sum == sum && target.sample == sample && std::abs(std::int64_t{counted} - target.counted) <= 1;
    const bool arrives = goesOn && counted > target.counted && counted == target.individuals;
    target.hasRung = goesOn && target.hasRung;
    if (arrives && !target.hasRung) {
        target.hasRung = true;
        playCue(Cue::SoundAlarm);
    }
    target.sum = sum;
    target.sample = sample;
    target.counted = counted;
    showRemaining(counted);
}
