#include "tables/plain_table.h"

#include <algorithm>
#include <map>

namespace {

bool isLineEnd(char c)
{
    return c == '\r' || c == '\n';
}

std::string_view withoutBlanks(std::string_view field)
{
    const auto isBlank = [](char c) { return c == ' ' || c == '\t' || c == '\xA0'; };
    while (!field.empty() && isBlank(field.front()))
        field.remove_prefix(1);
    while (!field.empty() && isBlank(field.back()))
        field.remove_suffix(1);
    return field;
}

} // namespace

PlainTable::PlainTable(std::string_view text, char separator) : separator_(separator)
{
    const auto endsField = [separator](char c) { return c == separator || isLineEnd(c); };
    std::size_t at = 0;
    std::size_t first = 0;
    int number = 1;
    while (at < text.size()) {
        while (at < text.size() && text[at] == ' ')
            ++at;
        if (at < text.size() && text[at] == '"') {
            fields_.push_back(withoutBlanks(quotedField(text, at, number)));
        } else {
            const std::size_t begin = at;
            while (at < text.size() && !endsField(text[at]))
                ++at;
            fields_.push_back(withoutBlanks(text.substr(begin, at - begin)));
        }
        if (at < text.size() && text[at] == separator) {
            ++at;
            if (at < text.size() && !isLineEnd(text[at]))
                continue;
            fields_.emplace_back(); // the line ends with a separator
        }
        endRow(number++, first);
        first = fields_.size();
        if (at < text.size())
            at += text[at] == '\r' && at + 1 < text.size() && text[at + 1] == '\n' ? 2 : 1;
    }
}

/// Keeps a row that has a text.
void PlainTable::endRow(int number, std::size_t first)
{
    const auto begin = fields_.begin() + static_cast<std::ptrdiff_t>(first);
    const bool empty =
        std::all_of(begin, fields_.end(), [](std::string_view field) { return field.empty(); });
    if (empty)
        fields_.erase(begin, fields_.end());
    else
        rows_.push_back({number, first, fields_.size() - first});
}

/// The field whose quotation mark stands at `at`, which goes to the separator or line end behind the field.
/// Whatever stands between its closing mark and them belongs to it.
std::string_view PlainTable::quotedField(std::string_view text, std::size_t& at, int row)
{
    const std::size_t close = text.find('"', at + 1);
    const auto endsAt = [&](std::size_t place) {
        return place == text.size() || text[place] == separator_ || isLineEnd(text[place]);
    };
    if (close != std::string_view::npos && endsAt(close + 1)) { // nearly all
        const std::string_view field = text.substr(at + 1, close - at - 1);
        at = close + 1;
        return field;
    }
    std::string& field = unescaped_.emplace_back();
    for (bool quoted = true; quoted || !endsAt(at + 1);) {
        ++at;
        if (at == text.size()) {
            openQuote_ = openQuote_.value_or(row);
            return field;
        }
        if (text[at] != '"') {
            field += text[at];
        } else if (quoted && at + 1 < text.size() && text[at + 1] == '"') {
            field += text[at++];
        } else {
            quoted = !quoted;
        }
    }
    ++at;
    return field;
}

char separatorOf(std::string_view text)
{
    constexpr int looked = 20;
    std::size_t end = 0;
    for (int lines = 0; lines < looked && end < text.size(); ++end)
        lines += text[end] == '\n' || (text[end] == '\r' && text.substr(end + 1, 1) != "\n");
    char best = ',';
    std::pair<int, int> most;
    for (const char separator : {',', ';', '\t'}) {
        const PlainTable table(text.substr(0, end), separator);
        std::map<int, int> rowsOf; // by their number of fields
        for (int row = 0; row < table.rows(); ++row)
            if (table.fields(row) > 1)
                ++rowsOf[table.fields(row)];
        for (const auto& [fields, rows] : rowsOf)
            if (std::pair(rows, fields) > most) {
                most = {rows, fields};
                best = separator;
            }
    }
    return best;
}
