// The fullest sheet as text. Limit: read in 1 millisecond. With an argument it writes that sheet to a file,
// for others to read.

#include "bench/full_sheet.h"
#include "bench/report.h"
#include "files/data_sheet_reader.h"

#include <chrono>
#include <fstream>

int main(int argc, char* argv[])
{
    const std::string text = fullSheetText();
    if (argc == 2) {
        std::ofstream(argv[1], std::ios::binary) << text;
        return 0;
    }
    SheetTables tables;
    std::vector<double> times;
    for (int round = 0; round < 101; ++round) {
        const auto begin = std::chrono::steady_clock::now();
        DataSheetReader reader(text, tables);
        bool whole = reader.readPath() && reader.readSerials() && reader.readNames();
        for (int row = 1; row <= taxonSlots; ++row)
            whole = whole && reader.readTaxon(row);
        if (!whole || reader.repeatedKeyIndex() || !reader.readTexts())
            return 1;
        times.push_back(
            std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begin).count());
    }
    report("read the fullest sheet", median(times), "ms", 1);
    return 0;
}
