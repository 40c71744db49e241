#include "keys/key_name.h"

#include "core/number_text.h"
#include "platform/code_page.h"
#include "platform/key_names.h"

namespace {

constexpr int rowF1 = 58;
constexpr int functionKeys = 12;

/// 0 for a reference key that has not been identified, which no key has.
int referenceCode(const KeySettingTable& table, int row)
{
    const int code = wholeNumber(table[row].Code);
    return code == 999 ? 0 : code;
}

} // namespace

std::string specialKeyName(const KeySettingTable& table, int keyCode)
{
    std::string name;
    for (int row = rowFirstReference; row < keySettingRows; ++row)
        if (referenceCode(table, row) == keyCode)
            name = "[" + table[row].Definition + "]";
    const int f1 = referenceCode(table, rowF1);
    if (f1 != 0 && keyCode >= f1 && keyCode < f1 + functionKeys)
        name = "[F" + decimalText(keyCode - f1 + 1) + "]";
    return name;
}

std::string plainKeyName(int keyCode, char32_t character)
{
    if (character < ' ' || (character >= 0x7F && character < 0xA0))
        return {};
    if (character == '"')
        return "'";
    std::string name = toCodePage({std::u16string(1, static_cast<char16_t>(character))});
    if (character < 0x10000 && (name != "?" || character == '?'))
        return name;
    return keyName(keyCode);
}
