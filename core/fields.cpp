#include "core/fields.h"

#include "core/number_text.h"

#include <charconv>

static bool isSeparator(char c)
{
    return c == ',' || c == '\r' || c == '\n';
}

static bool isBlank(char c)
{
    return c == ' ' || c == '\t';
}

std::optional<std::string_view> FieldReader::next()
{
    const char* at = rest_.data();
    const char* const end = at + rest_.size();
    while (at != end && isBlank(*at))
        ++at;
    if (at == end) {
        rest_ = {};
        return std::nullopt;
    }

    std::string_view field;
    if (*at == '"') {
        const std::size_t begin = static_cast<std::size_t>(at + 1 - rest_.data());
        const std::size_t closing = rest_.find('"', begin);
        if (closing == std::string_view::npos) {
            rest_ = {};
            return std::nullopt;
        }
        field = rest_.substr(begin, closing - begin);
        at = rest_.data() + closing + 1;
        while (at != end && !isSeparator(*at))
            ++at;
    } else {
        const char* const begin = at;
        while (at != end && !isSeparator(*at))
            ++at;
        const char* last = at;
        while (last != begin && isBlank(last[-1]))
            --last;
        field = {begin, static_cast<std::size_t>(last - begin)};
    }

    atLineEnd_ = at == end || *at != ',';
    if (at != end)
        at += *at == '\r' && at + 1 != end && at[1] == '\n' ? 2 : 1;
    rest_ = {at, static_cast<std::size_t>(end - at)};
    return field;
}

void FieldWriter::separate()
{
    if (lineBegun_)
        text_ += ',';
    lineBegun_ = true;
}

FieldWriter& FieldWriter::text(std::string_view field)
{
    separate();
    text_ += '"';
    text_ += field;
    text_ += '"';
    return *this;
}

FieldWriter& FieldWriter::number(long long field)
{
    separate();
    char digits[24];
    const auto written = std::to_chars(digits, digits + sizeof digits, field);
    text_.append(digits, written.ptr);
    return *this;
}

FieldWriter& FieldWriter::decimal(double field)
{
    separate();
    text_ += plainDecimal(field);
    return *this;
}

FieldWriter& FieldWriter::decimal(float field)
{
    separate();
    text_ += plainDecimal(field);
    return *this;
}

void FieldWriter::endLine()
{
    text_ += "\r\n";
    lineBegun_ = false;
}
