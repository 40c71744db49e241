#include "statistics/lab_file.h"

#include "core/fields.h"
#include "core/number_text.h"
#include "statistics/csv_line.h"

#include <algorithm>

namespace {

constexpr std::string_view markerHead = "# marker:";
constexpr std::array<std::string_view, labColumns + 1> heads = {
    "sample",      "tablets",   "tablet_mean",  "tablet_sd", "quantity",  "quantity_unit",
    "quantity_sd", "depth_top", "depth_bottom", "age_top",   "age_bottom"};

/// The fields of one line after another.
class Lines {
public:
    explicit Lines(std::string_view text) : fields_(text) {}
    bool next(std::vector<std::string_view>& line)
    {
        line.clear();
        ++number_;
        while (const auto field = fields_.next()) {
            line.push_back(*field);
            if (fields_.atLineEnd())
                break;
        }
        return !line.empty();
    }
    int number() const { return number_; }

private:
    FieldReader fields_;
    int number_ = 0;
};

bool isBlank(const std::vector<std::string_view>& line, std::size_t from)
{
    return std::all_of(line.begin() + static_cast<std::ptrdiff_t>(std::min(from, line.size())), line.end(),
                       [](std::string_view field) { return field.empty(); });
}

std::string at(int line, const std::string& what)
{
    return "line " + decimalText(line) + ": " + what;
}

std::string quoted(std::string_view text)
{
    return '"' + std::string(text) + '"';
}

/// Why a line is no row; empty if it is one.
std::string takeRow(const std::vector<std::string_view>& line, LabRow& row)
{
    if (line.size() < heads.size() || !isBlank(line, heads.size()))
        return decimalText(static_cast<long long>(line.size())) + " fields, not " +
               decimalText(static_cast<long long>(heads.size()));
    row.sample = line[0];
    if (row.sample.empty())
        return "no name of a sample";
    for (int column = 0; column < labColumns; ++column) {
        const std::string_view field = line[column + 1];
        if (!isLabEntry(static_cast<LabColumn>(column), field))
            return std::string(heads[column + 1]) + " is " + quoted(field);
        row.fields[column] = field;
    }
    return {};
}

/// The line with a quotation mark that neither begins nor ends a whole field, of which the reader would lose
/// something; 0: there is none.
int lineWithStrayMark(std::string_view text)
{
    int line = 1;
    bool fieldBegins = true;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const char c = text[at];
        if (c == '"') {
            const std::size_t closing = text.find('"', at + 1);
            const std::size_t next = text.find_first_not_of(' ', closing + 1);
            if (!fieldBegins || closing == std::string_view::npos ||
                (next != std::string_view::npos && text[next] != ',' && text[next] != '\r' &&
                 text[next] != '\n'))
                return line;
            at = closing;
        }
        line += c == '\n';
        fieldBegins = c == ',' || c == '\n' || (fieldBegins && c == ' ');
    }
    return 0;
}

} // namespace

bool isLabEntry(LabColumn column, std::string_view text)
{
    if (column == labQuantityUnit)
        return true;
    const bool mayBeNegative = column >= labDepthTop;
    if (mayBeNegative && !text.empty() && text.front() == '-')
        text.remove_prefix(1);
    else if (text.empty())
        return true;
    const auto digits = static_cast<std::size_t>(
        std::count_if(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; }));
    const auto points = static_cast<std::size_t>(std::count(text.begin(), text.end(), '.'));
    return digits > 0 && points <= 1 && digits + points == text.size();
}

LabTable readLabText(std::string_view text)
{
    LabTable table;
    if (const int line = lineWithStrayMark(text); line > 0) {
        table.fault = at(line, "a quotation mark within a field");
        return table;
    }
    Lines lines(text);
    std::vector<std::string_view> line;
    bool more = lines.next(line);
    if (!more)
        return table; // an empty file holds no data
    if (line[0].substr(0, markerHead.size()) == markerHead) {
        std::string_view marker = line[0].substr(markerHead.size());
        marker.remove_prefix(std::min(marker.find_first_not_of(' '), marker.size()));
        table.marker = marker;
        if (!isBlank(line, 1)) {
            table.fault = at(1, "more than the name of the marker");
            return table;
        }
        more = lines.next(line);
    }
    const bool isHead = more && line.size() >= heads.size() && isBlank(line, heads.size()) &&
                        std::equal(heads.begin(), heads.end(), line.begin());
    if (!isHead) {
        table.fault = at(lines.number(), "not the names of the columns");
        return table;
    }
    while (lines.next(line)) {
        if (isBlank(line, 0))
            continue;
        LabRow row;
        if (const std::string fault = takeRow(line, row); !fault.empty()) {
            table.fault = at(lines.number(), fault);
            return table;
        }
        table.rows.push_back(std::move(row));
    }
    return table;
}

std::string labText(const std::string& marker, const std::vector<LabRow>& rows)
{
    CsvLines lines;
    lines.text(std::string(markerHead) + (marker.empty() ? "" : " " + marker)).endLine();
    for (const std::string_view head : heads)
        lines.text(head);
    lines.endLine();
    for (const LabRow& row : rows) {
        lines.text(row.sample);
        for (const std::string& field : row.fields)
            lines.text(field);
        lines.endLine();
    }
    return utf8WithMark(lines.take());
}
