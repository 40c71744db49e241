#include "files/proved_line.h"

#include "core/fields.h"
#include "core/fingerprint.h"

#include <charconv>

namespace {

constexpr char digits[] = "0123456789ABCDEF";

bool isPlain(char byte)
{
    return byte >= ' ' && byte <= '~' && byte != '"' && byte != '%';
}

/// Other bytes as "%" and two digits.
std::string inPlainBytes(std::string_view text)
{
    std::string plain;
    for (const char byte : text)
        if (isPlain(byte))
            plain += byte;
        else
            plain.append({'%', digits[static_cast<unsigned char>(byte) >> 4U], digits[byte & 15]});
    return plain;
}

std::string fromPlainBytes(std::string_view plain)
{
    std::string text;
    for (std::size_t at = 0; at < plain.size(); ++at) {
        unsigned byte = 0;
        if (plain[at] == '%' && at + 2 < plain.size() &&
            std::from_chars(&plain[at + 1], &plain[at + 1] + 2, byte, 16).ec == std::errc()) {
            text += static_cast<char>(byte);
            at += 2;
        } else {
            text += plain[at];
        }
    }
    return text;
}

std::string proof(std::string_view bytes, std::uint64_t before)
{
    char text[16];
    const auto end = std::to_chars(text, text + sizeof text, checksumOf(bytes, before), 16).ptr;
    return {text, end};
}

} // namespace

std::string provedLine(const std::vector<std::string>& fields, std::uint64_t before)
{
    std::string line;
    for (const std::string& field : fields)
        line += '"' + inPlainBytes(field) + "\",";
    return line + '"' + proof(line, before) + "\"\r\n";
}

std::optional<std::vector<std::string>> fieldsOfProvedLine(std::string_view line, std::uint64_t before)
{
    while (!line.empty() && (line.back() == '\n' || line.back() == '\r'))
        line.remove_suffix(1);
    if (line.size() < 3 || line.back() != '"')
        return std::nullopt;
    const auto last = line.rfind('"', line.size() - 2);
    if (last == std::string_view::npos ||
        line.substr(last + 1, line.size() - last - 2) != proof(line.substr(0, last), before))
        return std::nullopt;
    std::vector<std::string> fields;
    FieldReader reader(line.substr(0, last));
    while (const auto field = reader.next())
        fields.push_back(fromPlainBytes(*field));
    return fields;
}

std::optional<std::uint64_t> wholeField(const std::string& field)
{
    std::uint64_t number = 0;
    const auto [end, fault] = std::from_chars(field.data(), field.data() + field.size(), number);
    return fault == std::errc() && end == field.data() + field.size() && !field.empty()
               ? std::optional(number)
               : std::nullopt;
}
