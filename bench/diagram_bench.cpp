// The diagram of the fullest sheet, 250 samples of 135 taxa. Limits: PrepareDiagram 1 millisecond, cluster
// analysis 0.5 milliseconds.

#include "bench/full_sheet.h"
#include "core/main_screen.h"
#include "core/sheet_state.h"
#include "diagram/diagram_form.h"
#include "diagram/diagram_view.h"
#include "files/data_sheet_reader.h"
#include "sheet/basis.h"

#include <benchmark/benchmark.h>

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

static void prepareDiagram(benchmark::State& state)
{
    fillSheet();
    for (auto _ : state)
        PrepareDiagram();
}
BENCHMARK(prepareDiagram)->Unit(benchmark::kMillisecond);

static void clusterAnalysis(benchmark::State& state)
{
    fillSheet();
    PrepareDiagram();
    Profiles profiles(static_cast<std::size_t>(sheet.SampleCount) + 1, std::vector<float>(taxonSlots));
    for (int rank = 1; rank <= sheet.SampleCount; ++rank)
        for (int slot = 1; slot <= taxonSlots; ++slot)
            profiles[rank][slot - 1] = sheet.Share(rank, slot);
    for (auto _ : state)
        benchmark::DoNotOptimize(clusterSamples(profiles, diagramRows()));
}
BENCHMARK(clusterAnalysis)->Unit(benchmark::kMillisecond);

BENCHMARK_MAIN();
