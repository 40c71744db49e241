// The diagram of the fullest sheet, 250 samples of 135 taxa. Limits: PrepareDiagram 1 millisecond, cluster
// analysis 0.5 milliseconds.

#include "bench/full_sheet.h"
#include "bench/report.h"
#include "core/main_screen.h"
#include "core/sheet_state.h"
#include "diagram/diagram_form.h"
#include "diagram/diagram_view.h"
#include "files/data_sheet_reader.h"
#include "sheet/basis.h"

#include <chrono>

static void fillSheet()
{
    static const std::string text = fullSheetText();
    sheet = SheetState();
    DataSheetReader reader(text, sheet);
    reader.readPath();
    reader.readSerials();
    reader.readNames();
    for (int row = 1; row <= taxonSlots; ++row)
        reader.readTaxon(row);
    for (int sample = 1; sample <= sheet.SampleCount; ++sample)
        sheet.SampleField(sample, 0) = sheet.SampleField(sample, 2);
}

int main()
{
    fillSheet();
    std::vector<double> preparing;
    std::vector<double> clustering;
    const auto milliseconds = [](auto&& work) {
        const auto begin = std::chrono::steady_clock::now();
        work();
        return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begin).count();
    };
    for (int round = 0; round < 101; ++round) {
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
    report("prepare the fullest diagram", median(preparing), "ms", 1);
    report("cluster 250 samples of 135 taxa", median(clustering), "ms", 0.5);
    return 0;
}
