#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

/// Reads the comma-separated files of the program, one field after the other. Blanks and tabs before a field
/// are skipped. A field that begins with a double quotation mark runs to the next one, across commas and line
/// ends; what stands from there to the next comma or line end is dropped. Any other field runs to the next
/// comma or line end and loses trailing blanks. CR, LF and CR LF end a line.
class FieldReader {
public:
    /// `text` must outlive the reader and the fields that it gives.
    explicit FieldReader(std::string_view text) : rest_(text) {}

    /// The next field; nothing at the end of the text and behind a quotation mark that is never closed.
    std::optional<std::string_view> next();
    /// True if the field read last was the last of its line.
    bool atLineEnd() const { return atLineEnd_; }
    /// Bytes behind the field read last and its comma or line end.
    std::size_t left() const { return rest_.size(); }

private:
    std::string_view rest_;
    bool atLineEnd_ = true;
};

/// Writes the same files, CR LF at the end of each line. A text goes between double quotation marks as it
/// stands: the files have no escape, so a quotation mark inside it would end the field for the reader.
class FieldWriter {
public:
    void reserve(std::size_t bytes) { text_.reserve(bytes); }
    FieldWriter& text(std::string_view field);
    FieldWriter& number(long long field);
    /// A number with decimals, in its plain decimal writing.
    FieldWriter& decimal(double field);
    FieldWriter& decimal(float field);
    /// Ends the line; the fields before it are separated by commas.
    void endLine();
    std::string take() { return std::move(text_); }

private:
    void separate();

    std::string text_;
    bool lineBegun_ = false;
};
