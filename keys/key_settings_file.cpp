#include "keys/key_settings_file.h"

#include "core/fields.h"
#include "core/number_text.h"

#include <algorithm>

bool hasCounterKey(const KeySettingTable& table)
{
    return std::any_of(table.begin() + 1, table.begin() + 1 + keysPerLayer,
                       [](const KeySettingRow& row) { return leadingNumber(row.Code) != 0; });
}

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
            std::replace(field->begin(), field->end(), '"', '\''); // it would end the field when it is saved
        }
    }
    return hasCounterKey(table) ? std::optional(table) : std::nullopt;
}

std::string keySettingsText(const KeySettingTable& table)
{
    FieldWriter writer;
    for (const KeySettingRow& row : table)
        writer.text(row.Definition).text(row.Code).text(row.Number).endLine();
    return writer.take();
}
