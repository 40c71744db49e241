#include "sheet/summary.h"

#include "core/forms.h"
#include "core/main_screen.h"
#include "core/number_text.h"
#include "core/taxon_name.h"

#include <algorithm>

SummaryForm frmSummary;
static const Form form("frmSummary", frmSummary.visible, frmSummary_Unload);

void LaunchSummary()
{
    std::vector<int> slots;
    for (int slot = 1; slot <= taxonSlots; ++slot)
        if (wholeNumber(frmMain.Text2[slot].text) > 0)
            slots.push_back(slot);
    std::stable_sort(slots.begin(), slots.end(), [](int one, int other) {
        return wholeNumber(frmMain.Text2[one].text) > wholeNumber(frmMain.Text2[other].text);
    });

    frmSummary = {};
    openAboveMain(frmSummary.visible);
    int rank = 1;
    for (const int slot : slots)
        frmSummary.Text1.text += decimalText(rank++) + ": " + frmMain.Text1[slot].text +
                                 " (n = " + decimalText(wholeNumber(frmMain.Text2[slot].text)) + ")\r\n";
    frmSummary.Text1.text += noText;
}

void frmSummary_Unload()
{
    closeAboveMain(frmSummary.visible);
}
