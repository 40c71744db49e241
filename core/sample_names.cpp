#include "core/sample_names.h"

#include "core/number_text.h"
#include "core/sheet_state.h"

bool isDepth(std::string_view name)
{
    const std::string number = plainDecimal(leadingNumber(name));
    if (name.substr(0, number.size()) != number)
        return false;
    std::string_view tail = name.substr(number.size());
    if (tail.empty())
        return true;
    if (tail.front() == '.')
        tail.remove_prefix(1);
    return !tail.empty() && tail.size() <= 6 && tail.find_first_not_of('0') == std::string_view::npos;
}

void TestSampleNames()
{
    sheet.NamesNotNumeric = false;
    for (int sample = 1; sample <= sheet.SampleCount && !sheet.NamesNotNumeric; ++sample)
        sheet.NamesNotNumeric = !isDepth(sheet.SampleField(sample, 2));
}
