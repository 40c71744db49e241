#include "keys/key_settings_file.h"

#include "core/fields.h"
#include "core/number_text.h"

#include <algorithm>

std::optional<KeySettingTable> parseKeySettings(std::string_view fileText)
{
    KeySettingTable table;
    FieldReader reader(fileText);
    for (KeySettingRow& row : table) {
        std::string* const last = &row.Number;
        for (std::string* field : {&row.Definition, &row.Code, last}) {
            const auto text = reader.next();
            if (!text || reader.atLineEnd() != (field == last))
                return std::nullopt;
            *field = *text;
        }
    }
    const bool anyKey = std::any_of(table.begin() + 1, table.begin() + 1 + keysPerLayer,
                                    [](const KeySettingRow& row) { return leadingNumber(row.Code) != 0; });
    return anyKey ? std::optional(table) : std::nullopt;
}
