#include "platform/key_codes.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <set>
#include <string_view>
#include <tuple>
#include <utility>

namespace {

using keycodes::Layout;
using keycodes::numLockIn;
using keycodes::virtualKeyFromEventAlone;
using keycodes::virtualKeyFromMac;

constexpr std::uint32_t keyOne = 10, keyQ = 24, keyI = 31, keyApostrophe = 48, keyZ = 52, keyX = 53;
constexpr std::uint32_t keyM = 58, keyComma = 59, keySlash = 61, capsLock = 66, altGr = 108;

/// What the rows of the main block type, from the digit row down; each row starts at its leftmost key.
struct Rows {
    const char* name;
    std::u32string_view digits, upper, home, lower;
    char32_t grave, backslash, besideShift;
};

const Rows us{"us", U"1234567890-=", U"qwertyuiop[]", U"asdfghjkl;'", U"zxcvbnm,./", U'`', U'\\', U'<'};
const Rows fr{"fr", U"&é\"'(-è_çà)=", U"azertyuiop^$", U"qsdfghjklmù", U"wxcvbn,;:!", U'²', U'*', U'<'};
const Rows de{"de", U"1234567890ß´", U"qwertzuiopü+", U"asdfghjklöä", U"yxcvbnm,.-", U'^', U'#', U'<'};
const Rows dvorak{"dv", U"1234567890[]", U"',.pyfgcrl/=", U"aoeuidhtns-", U";qjkxbmwvz", U'`', U'\\', U'<'};
const Rows tr{"tr", U"1234567890*-", U"qwertyuıopğü", U"asdfghjklşi", U"zxcvbnmöç.", U'"', U',', U'<'};
const Rows ku{"tr ku", U"1234567890*-", U"qwertyuıopxû", U"asdfghjklşî", U"zxcvbnmêç.", U'"', U',', U'<'};
const Rows bepo{"bépo", U"\"«»()@+-/*=%", U"bépoè^vdljzw", U"auie,ctsrnm", U"àyx.k’qghf", U'$', U'ç', U'ê'};
const Rows ru{"ru", U"1234567890-=", U"йцукенгшщзхъ", U"фывапролджэ", U"ячсмитьбю.", U'ё', U'\\', U'/'};
const Rows gr{"gr", U"1234567890-=", U";ςερτυθιοπ[]", U"ασδφγηξκλ΄'", U"ζχψωβνμ,./", U'`', U'\\', U'«'};

keycodes::BaseKeysyms keysymsOf(const Rows& rows)
{
    keycodes::BaseKeysyms keysyms{};
    const auto fill = [&keysyms](std::size_t keycode, std::u32string_view row) {
        for (const char32_t character : row)
            keysyms[keycode++] = character < 0x100 ? character : 0x1000000 | character;
    };
    fill(10, rows.digits);
    fill(24, rows.upper);
    fill(38, rows.home);
    fill(52, rows.lower);
    fill(49, {&rows.grave, 1});
    fill(51, {&rows.backslash, 1});
    fill(94, {&rows.besideShift, 1});
    return keysyms;
}

/// A key and the code it should have.
struct KeyCode {
    std::uint32_t key;
    char32_t types;
    int code;
};

TEST(KeyCodes, NoTwoKeysShareACodeAndTheDigitRowIsTheSameEverywhere)
{
    const std::set<int> onBothSides{13, 16, 17, 18, 91}; // Enter, Shift, Ctrl, Alt, Command
    for (const Rows& rows : {us, fr, de, dvorak, tr, ku, bepo, ru, gr}) {
        const keycodes::BaseKeysyms keysyms = keysymsOf(rows);
        const Layout layout(keysyms);
        std::multiset<int> codes;
        for (std::uint32_t keycode = 0; keycode < keysyms.size(); ++keycode) {
            codes.insert(layout.virtualKey(keycode, true));
            EXPECT_TRUE(codes.count(0) == 0 || keysyms[keycode] == 0) << rows.name << ' ' << keycode;
            codes.erase(0);
        }
        for (const int code : codes)
            EXPECT_LE(codes.count(code), onBothSides.count(code) + 1) << rows.name << ' ' << code;
        for (std::uint32_t digit = 1; digit <= 10; ++digit)
            EXPECT_EQ(layout.virtualKey(9 + digit, false), '0' + static_cast<int>(digit % 10)) << rows.name;
    }
    std::multiset<int> codes;
    for (std::uint32_t key = 0; key < 127; ++key)
        codes.insert(virtualKeyFromMac(key, U'\0'));
    for (int code = 1; code <= 255; ++code)
        EXPECT_LE(codes.count(code), onBothSides.count(code) + 1) << code;
}

TEST(KeyCodes, LettersFollowTheLayout)
{
    const struct {
        const Rows& rows;
        std::uint32_t key;
        int code;
    } cases[] = {{us, keyQ, 'Q'}, {fr, keyQ, 'A'},          {de, keyZ, 'Y'},     {dvorak, keySlash, 'Z'},
                 {ru, keyQ, 'Q'}, {tr, keyApostrophe, 'I'}, {gr, keyQ, 'Q'},     {ru, keyComma, 188},
                 {ku, keyX, 'X'}, // the left bracket types x as well
                 {fr, keyM, 205}, {tr, keyI, 201},          {dvorak, keyQ, 209}, {us, 300, 0}};
    for (const auto& [rows, key, code] : cases)
        EXPECT_EQ(Layout(keysymsOf(rows)).virtualKey(key, false), code) << rows.name << ' ' << key;
}

TEST(KeyCodes, KeypadFollowsNumLockOnly)
{
    constexpr std::uint32_t kpOne = 0xffb1, kpEnd = 0xff9c, shift = 1, numLock = 16;
    const Layout layout(keysymsOf(us));
    for (const auto& [key, digit, navigation] : {std::tuple{79, 103, 36}, {84, 101, 12}, {87, 97, 35}}) {
        EXPECT_EQ(layout.virtualKey(key, numLockIn(shift | numLock)), digit);
        EXPECT_EQ(layout.virtualKey(key, numLockIn(shift)), navigation);
    }
    EXPECT_EQ(virtualKeyFromEventAlone(87, kpEnd, true), 97);
    EXPECT_EQ(virtualKeyFromEventAlone(87, kpOne, false), 35);
}

TEST(KeyCodes, EventAloneTellsTheSame)
{
    constexpr char32_t eacute = 0xe9, openE = 0x100025b, deadCircumflex = 0xfe52, cyrillicShortI = 0x6ca;
    constexpr char32_t escape = 0xff1b, level3 = 0xfe03, metaL = 0xffe7;
    const KeyCode cases[] = {{keyQ, 'a', 'A'},
                             {keyQ, 'A', 'A'},
                             {keyOne, '&', '1'},
                             {keyM, ',', 205},
                             {25, eacute, 215},
                             {keyQ, openE, 209},
                             {29, deadCircumflex, 217},
                             {keyQ, cyrillicShortI, 'Q'},
                             {capsLock, escape, 27},
                             {altGr, level3, 18},
                             {64, metaL, 18},
                             {300, 'a', 0},
                             {22, 0, 8},
                             {65, 0, 32},
                             {67, 0, 112},
                             {96, 0, 123},
                             {202, 0, 135},
                             {119, 0, 46}};
    for (const auto& [key, types, code] : cases)
        EXPECT_EQ(virtualKeyFromEventAlone(key, types, false), code) << key << ' ' << code;
}

TEST(KeyCodes, WindowsAndMac)
{
    for (const auto& [native, code] :
         {std::pair{160U, 16}, {163U, 17}, {165U, 18}, {65U, 65}, {97U, 97}, {256U, 0}})
        EXPECT_EQ(keycodes::virtualKeyFromWindows(native), code);
    const KeyCode cases[] = {{0x00, 'a', 'A'},  {0x00, 'q', 'Q'}, {0x2e, ',', 205}, {0x2e, 0, 'M'},
                             {0x0c, U'й', 'Q'}, {0x12, '&', '1'}, {0x53, '1', 97},  {0x7a, 0xf704, 112},
                             {0x7e, 0, 38},     {0x7f, 0, 0}};
    for (const auto& [key, types, code] : cases)
        EXPECT_EQ(virtualKeyFromMac(key, types), code) << key;
}

} // namespace
