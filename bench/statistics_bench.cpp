// What a key costs more while the line of statistics is on, in the fullest sheet, and while neither the line
// nor a target was asked for; beside 135 plain parses and sums done twice, of which a key press is made.

#include "bench/yardsticks.h"
#include "core/main_screen.h"
#include "core/number_text.h"
#include "core/sheet_state.h"
#include "statistics/statistics_line.h"
#include "statistics/watch_counts.h"

namespace {

void fillSheet()
{
    sheet.SampleCount = sheet.CurrentSample = sampleLimit;
    for (int sample = 1; sample <= sampleLimit; ++sample)
        for (int slot = 1; slot <= taxonSlots; ++slot)
            sheet.Count(sample, slot) = 1 + (sample * slot) % 300;
    for (int slot = 1; slot <= taxonSlots; ++slot) {
        sheet.TaxonRecord[slot].Name = "Taxon name " + decimalText(slot);
        sheet.TaxonRecord[slot].Subtotal1 = slot % 2 == 0 ? "1" : "0";
    }
    sheet.UndoStack[0] = {sheet.CurrentSample, 12};
}

/// Each look is at a count that has changed, in a sample that other samples have driven
/// out of the nearest memory.
std::vector<double> looks()
{
    std::vector<double> times;
    for (int look = 0; look < 20000; ++look) {
        sheet.CurrentSample = 1 + look % sampleLimit;
        sheet.UndoStack[0].sample = sheet.CurrentSample;
        ++sheet.Count(sheet.CurrentSample, 12);
        times.push_back(milliseconds(watchCounts));
    }
    return times;
}

} // namespace

int main()
{
    fillSheet();
    frmMain.Option1[0].selected = false;
    frmMain.Option1[1].selected = true; // the basis that has to be looked up
    const std::vector<double> off = looks();
    mnuStatisticsLine_Click();
    const std::vector<double> on = looks();
    std::printf("%s\n", statisticsLine.Label1.caption.c_str());
    const SampleSum sum;
    volatile std::int64_t kept = 0;
    std::vector<double> sums;
    for (int round = 0; round < 20000; ++round)
        sums.push_back(milliseconds([&] { kept = sum() + sum(); }));
    report("statistics line, 135 taxa, on, p99", p99(on), p99(sums), 8);
    report("the same, off", median(off), median(sums), 0.05);
    return 0;
}
