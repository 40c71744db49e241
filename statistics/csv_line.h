#pragma once

#include <optional>
#include <string>
#include <string_view>

/// Lines of the tables that statistics are saved as: commas, CR LF, quotation marks only where a field needs
/// them, numbers with ten significant digits.
class CsvLines {
public:
    CsvLines() = default;
    /// `heads`: the first line, its fields separated by commas.
    explicit CsvLines(std::string_view heads) : text_(std::string(heads) + "\r\n") {}
    CsvLines& text(std::string_view field);
    /// An empty field without a number.
    CsvLines& number(std::optional<double> field);
    void endLine();
    std::string take() { return std::move(text_); }

private:
    void separate();

    std::string text_;
    bool begun_ = false;
};

/// UTF-8 from a text in the code page, with a byte order mark only if a character beyond ASCII occurs.
std::string utf8WithMark(std::string_view text);
