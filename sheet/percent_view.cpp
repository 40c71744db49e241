#include "sheet/percent_view.h"

#include "core/main_screen.h"
#include "core/number_text.h"
#include "core/sheet_state.h"
#include "core/text_changes.h"
#include "sheet/basis.h"
#include "sheet/focus_and_pointer.h"

#include <array>
#include <cmath>

namespace {

std::array<std::string, taxonSlots + 1> keptCounts;
std::array<std::string, 3> keptTotals;

/// One decimal, halves to even.
std::string oneDecimal(double number)
{
    return plainDecimal(std::nearbyint(number * 10) / 10 + 0.0); // no minus in front of a 0
}

} // namespace

void Command6_MouseDown()
{
    if (!sheet.KeysActive)
        return;
    for (int slot = 1; slot <= taxonSlots; ++slot)
        keptCounts[slot] = frmMain.Text2[slot].text;
    for (int total = 0; total < 3; ++total)
        keptTotals[total] = frmMain.Text3[total].text;
    ComputePercentages(sheet.CurrentSample);
    sheet.KeysActive = false;

    for (int slot = 1; slot <= taxonSlots; ++slot) {
        const float share = sheet.Share(sheet.CurrentSample, slot);
        setText2(slot, share == noShare ? "0" : oneDecimal(share * 100.0F));
    }
    if (const std::int32_t basis = sheet.Count(sheet.CurrentSample, 0); basis != 0)
        for (int total = 0; total < 3; ++total)
            setText3(total, oneDecimal(wholeNumber(keptTotals[total]) * 100.0 / basis));
}

void Command6_MouseUp()
{
    if (sheet.KeysActive)
        return;
    for (int slot = 1; slot <= taxonSlots; ++slot)
        setText2(slot, keptCounts[slot]);
    for (int total = 0; total < 3; ++total)
        setText3(total, keptTotals[total]);
    sheet.KeysActive = true;
    giveFocusBack();
}
