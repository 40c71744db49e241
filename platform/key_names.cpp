#include "platform/key_names.h"

namespace {

struct Name {
    int code;
    const char* text;
};

constexpr Name names[] = {
    {3, "Cancel"},
    {8, "BkSp"},
    {9, "Tab"},
    {12, "Clear"},
    {13, "Enter"},
    {16, "Shift"},
    {17, "Ctrl"},
    {18, "Alt"},
    {19, "Pause"},
    {20, "CapsLock"},
    {27, "Esc"},
    {32, "Space"},
    {33, "PageUp"},
    {34, "PageDown"},
    {35, "End"},
    {36, "Home"},
    {37, "Left"},
    {38, "Up"},
    {39, "Right"},
    {40, "Down"},
    {44, "Print"},
    {45, "Insert"},
    {46, "Delete"},
    {91, "Win"},
    {92, "right Win"},
    {93, "Menu"},
    {106, "keypad *"},
    {107, "keypad +"},
    {108, "keypad ,"},
    {109, "keypad -"},
    {110, "keypad ."},
    {111, "keypad /"},
    {144, "NumLock"},
    {145, "ScrollLock"},
    {225, "Yen"},
    {223, "beside right Shift"},
    {226, "beside left Shift"},
};

constexpr Name signs[] = {
    {186, ";"}, {187, "="}, {188, ","},  {189, "-"}, {190, "."}, {191, "/"},
    {192, "`"}, {219, "["}, {220, "\\"}, {221, "]"}, {222, "'"},
};

std::string inBrackets(const std::string& text)
{
    return "[" + text + "]";
}

} // namespace

std::string keyName(int keyCode)
{
    const auto between = [keyCode](int first, int last) { return keyCode >= first && keyCode <= last; };
    if (between('0', '9'))
        return {static_cast<char>(keyCode)};
    if (between('A', 'Z'))
        return {static_cast<char>(keyCode - 'A' + 'a')};
    if (between(96, 105))
        return inBrackets("keypad " + std::to_string(keyCode - 96));
    if (between(112, 135))
        return inBrackets("F" + std::to_string(keyCode - 111));
    if (between(193, 218)) // a letter key that types no Latin letter
        return inBrackets(std::string("place of ") + static_cast<char>(keyCode - 193 + 'A'));
    for (const Name& sign : signs)
        if (sign.code == keyCode)
            return sign.text;
    for (const Name& name : names)
        if (name.code == keyCode)
            return inBrackets(name.text);
    return inBrackets(std::to_string(keyCode));
}
