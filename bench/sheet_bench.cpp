// The fullest sheet, read from its text, beside the plain parsing and summing of its counts. With an argument
// it writes that sheet to a file, for others to read.

#include "bench/full_sheet.h"
#include "bench/yardsticks.h"
#include "files/data_sheet_reader.h"

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
    std::vector<double> sums;
    bool whole = true;
    for (int round = 0; round < 101; ++round) {
        times.push_back(milliseconds([&] { whole = readDataSheet(text, tables) && whole; }));
        sums.push_back(sheetSumMilliseconds());
    }
    if (!whole)
        return 1;
    report("read the fullest sheet", median(times), median(sums), 5);
    return 0;
}
