#include "sheet/summary.h"

#include "core/main_screen.h"
#include "core/number_text.h"
#include "core/return_to_main.h"
#include "core/taxon_name.h"

#include <algorithm>

SummaryForm frmSummary;

void LaunchSummary()
{
    std::vector<int> slots;
    for (int slot = 1; slot <= taxonSlots; ++slot)
        if (wholeNumber(frmMain.Text2[slot].text) > 0)
            slots.push_back(slot);
    std::stable_sort(slots.begin(), slots.end(), [](int one, int other) {
        return wholeNumber(frmMain.Text2[one].text) > wholeNumber(frmMain.Text2[other].text);
    });

    frmMain.enabled = false;
    frmSummary = {.visible = true, .Text1 = {}};
    int rank = 1;
    for (const int slot : slots)
        frmSummary.Text1.text += decimalText(rank++) + ": " + frmMain.Text1[slot].text +
                                 " (n = " + decimalText(wholeNumber(frmMain.Text2[slot].text)) + ")\r\n";
    frmSummary.Text1.text += noText;
}

void frmSummary_Unload()
{
    frmSummary.visible = false;
    returnToMain();
}
