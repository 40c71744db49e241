#include "sheet/summary.h"

#include "core/forms.h"
#include "core/main_screen.h"
#include "core/number_text.h"
#include "core/taxon_name.h"

#include <algorithm>

SummaryForm frmSummary;
static const Form form("frmSummary", frmSummary.visible, frmSummary_Unload);

std::vector<int> rankedTaxa()
{
    std::vector<int> slots;
    for (int slot = 1; slot <= taxonSlots; ++slot)
        if (wholeNumber(frmMain.Text2[slot].text) > 0)
            slots.push_back(slot);
    std::stable_sort(slots.begin(), slots.end(), [](int one, int other) {
        return wholeNumber(frmMain.Text2[one].text) > wholeNumber(frmMain.Text2[other].text);
    });
    return slots;
}

void LaunchSummary()
{
    frmSummary = {};
    openAboveMain(frmSummary.visible);
    int rank = 1;
    for (const int slot : rankedTaxa())
        frmSummary.Text1.text += decimalText(rank++) + ": " + frmMain.Text1[slot].text +
                                 " (n = " + decimalText(wholeNumber(frmMain.Text2[slot].text)) + ")\r\n";
    frmSummary.Text1.text += noText;
}

void frmSummary_Unload()
{
    closeAboveMain(frmSummary.visible);
}
