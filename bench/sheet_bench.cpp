// The fullest sheet as text. Limits: read in 1 millisecond. With an argument it writes that sheet to a file,
// for others to read.

#include "bench/full_sheet.h"
#include "files/data_sheet_reader.h"

#include <benchmark/benchmark.h>
#include <fstream>

static void readSheet(benchmark::State& state)
{
    const std::string text = fullSheetText();
    SheetState tables;
    for (auto _ : state) {
        DataSheetReader reader(text, tables);
        bool whole = reader.readPath() && reader.readSerials() && reader.readNames();
        for (int row = 1; row <= taxonSlots; ++row)
            whole = whole && reader.readTaxon(row);
        if (!whole || reader.repeatedKeyIndex() || !reader.readTexts())
            state.SkipWithError("the sheet could not be read");
    }
}
BENCHMARK(readSheet)->Unit(benchmark::kMillisecond);

static void composeSheet(benchmark::State& state)
{
    const std::string text = fullSheetText();
    SheetState tables;
    DataSheetReader reader(text, tables);
    reader.readPath();
    reader.readSerials();
    for (auto _ : state)
        benchmark::DoNotOptimize(dataSheetText(tables, *sampleTotals(tables)));
}
BENCHMARK(composeSheet)->Unit(benchmark::kMillisecond);

int main(int argc, char* argv[])
{
    if (argc == 2 && argv[1][0] != '-') {
        std::ofstream(argv[1], std::ios::binary) << fullSheetText();
        return 0;
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
