#include "files/reading_check.h"

#include "core/fields.h"
#include "core/number_text.h"
#include "files/data_sheet_reader.h"

#include <vector>

namespace {

constexpr int leastFields = 4;

std::vector<std::string_view> nextLine(FieldReader& fields)
{
    std::vector<std::string_view> line;
    while (const auto field = fields.next()) {
        line.push_back(*field);
        if (fields.atLineEnd())
            break;
    }
    return line;
}

/// Fields of each line as the first one tells; 0 if it is no first line. One more may stand in it.
int fieldsOfLines(const std::vector<std::string_view>& first)
{
    const auto isSerials = [&](std::size_t place) {
        return first.size() > place && first[place] == "Serial No.";
    };
    const int fields = static_cast<int>(first.size());
    return isSerials(leastFields - 1) ? fields : isSerials(leastFields) ? fields - 1 : 0;
}

int linesOf(std::string_view tag)
{
    switch (fileGeneration(tag)) {
    case 3:
        return 147;
    case 2:
        return 144;
    default:
        return 138;
    }
}

} // namespace

std::optional<LineFault> firstLineFault(std::string_view text)
{
    FieldReader fields(text);
    const auto first = nextLine(fields);
    LineFault at{1, static_cast<int>(first.size()), fieldsOfLines(first), 0, false};
    if (at.expected == 0) {
        at.expected = at.fields < leastFields ? leastFields : 0;
        return at;
    }
    const int lines = linesOf(first[1]);
    while (at.line < lines) {
        const std::size_t begin = text.size() - fields.left();
        const auto fieldsOfLine = static_cast<int>(nextLine(fields).size());
        at.ends = fields.left() == 0 && (fieldsOfLine < at.expected || at.line + 1 < lines);
        if (fieldsOfLine == 0)
            return at; // it ended with the line before
        ++at.line;
        at.begin = begin;
        at.fields = fieldsOfLine;
        if (at.fields != at.expected || at.ends)
            return at;
    }
    return std::nullopt;
}

Contents contentsOf(std::string_view text)
{
    SheetTables tables;
    DataSheetReader reader(text, tables);
    if (!reader.readPath() || !reader.readSerials() || !reader.readNames())
        return Contents::other;
    for (int row = 1; row <= taxonSlots; ++row)
        if (!reader.readTaxon(row))
            return Contents::other;
    if (reader.repeatedKeyIndex())
        return Contents::repeatedKeyIndex;
    if (tables.SampleCount == 0)
        reader.beginFromTemplate("");
    if (!reader.readTexts())
        return Contents::other;
    return isPercentageTable(tables) ? Contents::percentageTable : Contents::dataSheet;
}

std::string tellFault(std::string_view text, const LineFault& fault)
{
    if (text.starts_with("PK\x03\x04") || text.starts_with("\xD0\xCF\x11\xE0"))
        return "This is a spreadsheet's own format; nothing of it was taken. Save it there as CSV.";
    const std::string line = "line " + decimalText(fault.line) + ": ";
    if (fault.ends)
        return line + "the file ends there; what should follow is missing.";
    std::string told = line;
    if (fault.expected == 0)
        told += "no first line of a data sheet";
    else
        told += decimalText(fault.fields) + (fault.fields == 1 ? " field" : " fields") + " instead of " +
                decimalText(fault.expected);
    if (fault.line > 3)
        return told + "; nothing from there on was taken.";
    told += "; nothing of it was taken. ";
    const std::string_view firstLine = text.substr(0, text.find('\n'));
    if (firstLine.find("Serial No.") != std::string_view::npos &&
        firstLine.find(';') != std::string_view::npos)
        told += "Semicolons stand between its fields: save it with commas. ";
    return told + "Was it a plain table? File > New from a table";
}

std::string tellUnreadLine(int line)
{
    return "line " + decimalText(line) + ": a number is out of range; nothing from there on was taken.";
}
