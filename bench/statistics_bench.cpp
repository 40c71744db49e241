// What a key costs more while the line of statistics is on, in the fullest sheet. Limit: 20 microseconds
// (p99); and while neither the line nor a target was asked for. Limit: a tenth of a microsecond.

#include "bench/report.h"
#include "core/main_screen.h"
#include "core/number_text.h"
#include "core/sheet_state.h"
#include "statistics/statistics_line.h"
#include "statistics/watch_counts.h"

#include <chrono>

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

/// Microseconds, sorted. Each look is at a count that has changed, in a sample that other samples have driven
/// out of the nearest memory.
std::vector<double> looks()
{
    std::vector<double> microseconds;
    for (int look = 0; look < 20000; ++look) {
        sheet.CurrentSample = 1 + look % sampleLimit;
        sheet.UndoStack[0].sample = sheet.CurrentSample;
        ++sheet.Count(sheet.CurrentSample, 12);
        const auto before = std::chrono::steady_clock::now();
        watchCounts();
        const std::chrono::duration<double, std::micro> took = std::chrono::steady_clock::now() - before;
        microseconds.push_back(took.count());
    }
    std::sort(microseconds.begin(), microseconds.end());
    return microseconds;
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
    report("statistics line, 135 taxa, on, p99", on[on.size() * 99 / 100], "us", 20);
    report("the same, off, median", median(off), "us", 0.1);
    return 0;
}
