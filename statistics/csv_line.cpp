#include "statistics/csv_line.h"

#include "platform/code_page.h"
#include "statistics/written_numbers.h"

#include <algorithm>

void CsvLines::separate()
{
    if (begun_)
        text_ += ',';
    begun_ = true;
}

CsvLines& CsvLines::text(std::string_view field)
{
    separate();
    constexpr std::string_view blanks = " \t"; // readers take those around a field for none of it
    const bool losesBlanks = !field.empty() && (blanks.find(field.front()) != std::string_view::npos ||
                                                blanks.find(field.back()) != std::string_view::npos);
    if (!losesBlanks && field.find_first_of(",\"\r\n") == std::string_view::npos) {
        text_ += field;
        return *this;
    }
    text_ += '"';
    for (const char c : field)
        text_.append(c == '"' ? 2 : 1, c);
    text_ += '"';
    return *this;
}

CsvLines& CsvLines::number(std::optional<double> field)
{
    separate();
    if (field)
        text_ += tenDigits(*field);
    return *this;
}

void CsvLines::endLine()
{
    text_ += "\r\n";
    begun_ = false;
}

std::string utf8WithMark(std::string_view text)
{
    const bool isPlain = std::all_of(text.begin(), text.end(), [](char c) { return (c & 0x80) == 0; });
    return (isPlain ? "" : "\xEF\xBB\xBF") + utf8FromCodePage(text);
}
