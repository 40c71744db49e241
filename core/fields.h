#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

/// Reads the comma-separated files of the program, one field after the other. Blanks and tabs before a field
/// are skipped. A field that begins with a double quotation mark runs to the next one, across commas and line
/// ends; what stands from there to the next comma or line end is dropped. Any other field runs to the next
/// comma or line end and loses trailing blanks. CR, LF and CR LF end a line.
class FieldReader {
public:
    /// `text` must outlive the reader.
    explicit FieldReader(std::string_view text) : rest_(text) {}

    /// The next field; nothing at the end of the text and behind a quotation mark that is never closed.
    std::optional<std::string> next();
    /// True if the field read last was the last of its line.
    bool atLineEnd() const { return atLineEnd_; }

private:
    std::string_view rest_;
    bool atLineEnd_ = true;
};
