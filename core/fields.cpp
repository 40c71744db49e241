#include "core/fields.h"

#include <algorithm>

constexpr std::string_view separators = ",\r\n";

std::optional<std::string> FieldReader::next()
{
    rest_.remove_prefix(std::min(rest_.find_first_not_of(" \t"), rest_.size()));
    if (rest_.empty())
        return std::nullopt;

    std::string field;
    if (rest_.front() == '"') {
        const std::size_t closing = rest_.find('"', 1);
        if (closing == std::string_view::npos) {
            rest_ = {};
            return std::nullopt;
        }
        field = rest_.substr(1, closing - 1);
        rest_.remove_prefix(closing + 1);
        rest_.remove_prefix(std::min(rest_.find_first_of(separators), rest_.size()));
    } else {
        const std::size_t end = std::min(rest_.find_first_of(separators), rest_.size());
        const std::size_t last = rest_.substr(0, end).find_last_not_of(" \t");
        field = last == std::string_view::npos ? "" : rest_.substr(0, last + 1);
        rest_.remove_prefix(end);
    }

    atLineEnd_ = rest_.empty() || rest_.front() != ',';
    if (!rest_.empty())
        rest_.remove_prefix(rest_.substr(0, 2) == "\r\n" ? 2 : 1);
    return field;
}
