#include "files/former_bytes.h"

#include "core/number_text.h"
#include "core/sheet_name.h"
#include "files/data_sheet_reader.h"
#include "files/reading_check.h"
#include "platform/code_page.h"
#include "platform/ports.h"

#include <algorithm>

constexpr int mostOfAName = 99;

static std::string placeOf(const std::string& name, int number)
{
    const std::size_t point = std::min(name.rfind('.'), name.size());
    return ports.programFolder + "/References/Back up files/Before_" + name.substr(0, point) +
           (number == 1 ? "" : "_(" + decimalText(number) + ")") + name.substr(point);
}

bool keepFormerBytes(const std::string& path, bool always)
{
    const auto bytes = ports.files->read(path, sheetLimit);
    if (!bytes || bytes->empty() ||
        (!always && contentsOf(fileTextInCodePage(*bytes)) == Contents::dataSheet))
        return true;
    const std::string name = fileNameOf(path);
    int number = 1;
    for (; number < mostOfAName; ++number) {
        const auto kept = ports.files->read(placeOf(name, number), sheetLimit);
        if (kept == bytes)
            return true;
        if (!kept)
            break;
    }
    return ports.files->write(placeOf(name, number), *bytes);
}
