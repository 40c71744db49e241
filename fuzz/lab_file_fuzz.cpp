// Any bytes in place of a file of laboratory data: what can be taken is numbers and names, and is the same
// when it is written and read again.

#include "platform/code_page.h"
#include "statistics/lab_file.h"

#include <cstdint>
#include <cstdlib>

static void require(bool holds)
{
    if (!holds)
        std::abort();
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const LabTable table = readLabText(fileTextInCodePage({reinterpret_cast<const char*>(data), size}));
    if (!table.fault.empty())
        return 0;
    for (const LabRow& row : table.rows) {
        require(!row.sample.empty());
        for (int column = 0; column < labColumns; ++column)
            require(isLabEntry(static_cast<LabColumn>(column), row.fields[column]));
    }
    const LabTable again = readLabText(fileTextInCodePage(labText(table.marker, table.rows)));
    require(again.fault.empty());
    require(again.marker == table.marker);
    require(again.rows.size() == table.rows.size());
    for (std::size_t row = 0; row < table.rows.size(); ++row) {
        require(again.rows[row].sample == table.rows[row].sample);
        require(again.rows[row].fields == table.rows[row].fields);
    }
    return 0;
}
