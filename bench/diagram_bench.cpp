// The numbers of the diagram of the fullest sheet, 250 samples of 135 taxa, and its cluster analysis, beside
// the plain parsing and summing of its counts.

#include "bench/full_sheet.h"
#include "bench/yardsticks.h"
#include "core/main_screen.h"
#include "core/sheet_state.h"
#include "diagram/diagram_form.h"
#include "diagram/diagram_view.h"
#include "files/data_sheet_reader.h"
#include "sheet/basis.h"

static void fillSheet()
{
    static const std::string text = fullSheetText();
    sheet = SheetState();
    readDataSheet(text, sheet);
    for (int sample = 1; sample <= sheet.SampleCount; ++sample)
        sheet.SampleField(sample, 0) = sheet.SampleField(sample, 2);
}

int main()
{
    fillSheet();
    std::vector<double> preparing;
    std::vector<double> clustering;
    std::vector<double> sums;
    for (int round = 0; round < 101; ++round) {
        sums.push_back(sheetSumMilliseconds());
        preparing.push_back(milliseconds(PrepareDiagram));
        Profiles profiles(static_cast<std::size_t>(sheet.SampleCount) + 1, std::vector<float>(taxonSlots));
        for (int rank = 1; rank <= sheet.SampleCount; ++rank)
            for (int slot = 1; slot <= taxonSlots; ++slot)
                profiles[rank][slot - 1] = frmDiagram.plot.Share(rank, slot);
        MergeTable merges;
        clustering.push_back(
            milliseconds([&] { merges = clusterSamples(std::move(profiles), diagramRows()); }));
        if (merges.merges() != sheet.SampleCount - 1)
            return 1;
    }
    report("prepare the fullest diagram", median(preparing), median(sums), 5);
    report("cluster 250 samples of 135 taxa", median(clustering), median(sums), 2.5);
    return 0;
}
