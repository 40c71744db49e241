#include "tables/table_file.h"

#include "core/sheet_name.h"
#include "platform/code_page.h"
#include "platform/ports.h"

constexpr std::size_t sizeLimit = 16u << 20; // a full sheet as a table takes a hundredth of that

/// Text in UTF-16 has its mark.
static bool isText(const std::string& bytes)
{
    const std::string_view start = std::string_view(bytes).substr(0, 2);
    return start == "\xFF\xFE" || start == "\xFE\xFF" || bytes.find('\0') == std::string::npos;
}

void tellTableFault(const std::string& text)
{
    ports.dialogs->ask(text, "Error", Buttons::ok, Icon::exclamation);
}

std::optional<TableFile> chooseTable(std::string_view dialogTitle)
{
    const auto path = ports.dialogs->chooseTableToOpen(dialogTitle);
    if (!path)
        return std::nullopt;
    const std::string name = toCodePageFromUtf8(fileNameOf(*path));
    auto bytes = ports.files->read(*path, sizeLimit);
    if (!bytes)
        tellTableFault("'" + name + "' cannot be read, or is larger than 16 megabytes.");
    else if (!isText(*bytes))
        tellTableFault("'" + name +
                       "' is no text. Save the table as CSV or text in the program that it comes from.");
    else
        return TableFile{name, decodeTable(std::move(*bytes))};
    return std::nullopt;
}
