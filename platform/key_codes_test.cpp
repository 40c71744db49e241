#include "platform/key_codes.h"

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <set>
#include <string_view>
#include <utility>
#include <vector>

namespace {

using keycodes::Layout;
using keycodes::numLockIn;
using keycodes::virtualKeyFromEventAlone;

constexpr std::uint32_t keyI = 31, keyM = 58, keyQ = 24, keyX = 53, keyZ = 52;
constexpr std::uint32_t keyOne = 10, keyComma = 59, keySemicolon = 47, keyApostrophe = 48, keySlash = 61;
constexpr std::uint32_t capsLock = 66, leftControl = 37, altGr = 108;

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
const Rows ku{"tr ku", U"1234567890*-", U"qwertyuiopxû", U"asdfghjklşî", U"zxcvbnmêç.", U'"', U',', U'<'};
const Rows bepo{"bépo", U"\"«»()@+-/*=%", U"bépoè^vdljzw", U"auie,ctsrnm", U"àyx.k’qghf", U'$', U'ç', U'ê'};
const Rows ru{"ru", U"1234567890-=", U"йцукенгшщзхъ", U"фывапролджэ", U"ячсмитьбю.", U'ё', U'\\', U'/'};
const Rows gr{"gr", U"1234567890-=", U";ςερτυθιοπ[]", U"ασδφγηξκλ΄'", U"ζχψωβνμ,./", U'`', U'\\', U'«'};

std::uint32_t keysymOf(char32_t character)
{
    return character < 0x100 ? character : 0x1000000 | character;
}

keycodes::BaseKeysyms keysymsOf(const Rows& rows)
{
    keycodes::BaseKeysyms keysyms{};
    const auto fill = [&keysyms](std::size_t keycode, std::u32string_view row) {
        for (const char32_t character : row)
            keysyms[keycode++] = keysymOf(character);
    };
    fill(10, rows.digits);
    fill(24, rows.upper);
    fill(38, rows.home);
    fill(52, rows.lower);
    keysyms[49] = keysymOf(rows.grave);
    keysyms[51] = keysymOf(rows.backslash);
    keysyms[94] = keysymOf(rows.besideShift);
    return keysyms;
}

Layout layoutOf(const Rows& rows)
{
    return Layout(keysymsOf(rows));
}

std::vector<std::uint32_t> mainBlock(const Rows& rows)
{
    std::vector<std::uint32_t> keycodes;
    const keycodes::BaseKeysyms keysyms = keysymsOf(rows);
    for (std::uint32_t keycode = 0; keycode < keysyms.size(); ++keycode)
        if (keysyms[keycode] != 0)
            keycodes.push_back(keycode);
    return keycodes;
}

TEST(KeyCodes, NoTwoKeysOfTheMainBlockShareACode)
{
    for (const Rows& rows : {us, fr, de, dvorak, tr, ku, bepo, ru, gr}) {
        const Layout layout = layoutOf(rows);
        std::set<int> codes;
        for (const std::uint32_t keycode : mainBlock(rows)) {
            const int code = layout.virtualKey(keycode, false);
            EXPECT_GT(code, 0) << rows.name << ' ' << keycode;
            EXPECT_TRUE(codes.insert(code).second) << rows.name << ' ' << keycode << " shares " << code;
        }
        EXPECT_EQ(codes.size(), 48U);
    }
}

TEST(KeyCodes, DigitRowIsTheSameOnEveryLayout)
{
    for (const Rows& rows : {us, fr, dvorak, bepo, ru}) {
        const Layout layout = layoutOf(rows);
        for (std::uint32_t digit = 1; digit <= 10; ++digit)
            EXPECT_EQ(layout.virtualKey(9 + digit, false), '0' + static_cast<int>(digit % 10)) << rows.name;
    }
}

TEST(KeyCodes, LettersFollowTheLayout)
{
    EXPECT_EQ(layoutOf(us).virtualKey(keyQ, false), 'Q');
    EXPECT_EQ(layoutOf(fr).virtualKey(keyQ, false), 'A');
    EXPECT_EQ(layoutOf(fr).virtualKey(keySemicolon, false), 'M');
    EXPECT_EQ(layoutOf(de).virtualKey(keyZ, false), 'Y');
    EXPECT_EQ(layoutOf(dvorak).virtualKey(keySlash, false), 'Z');
    EXPECT_EQ(layoutOf(tr).virtualKey(keyApostrophe, false), 'I');
    EXPECT_EQ(layoutOf(ku).virtualKey(keyX, false), 'X'); // the left bracket types x as well
}

TEST(KeyCodes, LetterKeysWithoutALatinLetter)
{
    EXPECT_EQ(layoutOf(fr).virtualKey(keyM, false), 205);
    EXPECT_EQ(layoutOf(tr).virtualKey(keyI, false), 201);
    EXPECT_EQ(layoutOf(dvorak).virtualKey(keyQ, false), 209);
    EXPECT_EQ(layoutOf(ru).virtualKey(keyQ, false), 'Q');
    EXPECT_EQ(layoutOf(gr).virtualKey(keyQ, false), 'Q');
    EXPECT_EQ(layoutOf(ru).virtualKey(keyComma, false), 188);
}

TEST(KeyCodes, KeypadFollowsNumLockOnly)
{
    constexpr std::uint32_t kpOne = 0xffb1, kpEnd = 0xff9c, shift = 1, numLock = 16;
    const Layout layout = layoutOf(us);
    const std::vector<std::array<int, 2>> codes{{103, 36}, {104, 38}, {105, 33},  {109, 109}, {100, 37},
                                                {101, 12}, {102, 39}, {107, 107}, {97, 35},   {98, 40},
                                                {99, 34},  {96, 45},  {110, 46}};
    for (std::uint32_t key = 0; key < codes.size(); ++key) {
        EXPECT_EQ(layout.virtualKey(79 + key, numLockIn(shift | numLock)), codes[key][0]);
        EXPECT_EQ(layout.virtualKey(79 + key, numLockIn(shift)), codes[key][1]);
    }
    EXPECT_EQ(virtualKeyFromEventAlone(87, kpEnd, true), 97);
    EXPECT_EQ(virtualKeyFromEventAlone(87, kpOne, false), 35);
}

TEST(KeyCodes, ModifiersAndEscapeFollowTheirKeysym)
{
    constexpr std::uint32_t controlL = 0xffe3, capsKeysym = 0xffe5, escape = 0xff1b;
    constexpr std::uint32_t level3 = 0xfe03, metaL = 0xffe7, voidSymbol = 0xffffff;
    keycodes::BaseKeysyms swapped = keysymsOf(us);
    swapped[capsLock] = controlL;
    swapped[leftControl] = capsKeysym;
    swapped[altGr] = level3;
    const Layout layout(swapped);
    EXPECT_EQ(layout.virtualKey(capsLock, false), 17);
    EXPECT_EQ(layout.virtualKey(leftControl, false), 20);
    EXPECT_EQ(layout.virtualKey(altGr, false), 18);

    EXPECT_EQ(virtualKeyFromEventAlone(capsLock, escape, false), 27);
    EXPECT_EQ(virtualKeyFromEventAlone(capsLock, voidSymbol, false), 20);
    EXPECT_EQ(virtualKeyFromEventAlone(altGr, level3, false), 18);
    EXPECT_EQ(virtualKeyFromEventAlone(64, metaL, false), 18);
    EXPECT_EQ(virtualKeyFromEventAlone(133, metaL, false), 91);
}

TEST(KeyCodes, FunctionKeysArePlaces)
{
    const Layout layout = layoutOf(fr);
    const std::vector<std::pair<std::uint32_t, int>> keys{
        {9, 27},    {22, 8},    {23, 9},    {36, 13},  {65, 32},  {67, 112}, {96, 123},
        {191, 124}, {202, 135}, {107, 44},  {78, 145}, {127, 19}, {110, 36}, {117, 34},
        {118, 45},  {119, 46},  {113, 37},  {116, 40}, {104, 13}, {63, 106}, {86, 107},
        {82, 109},  {106, 111}, {129, 108}, {77, 144}, {134, 92}, {135, 93}, {123, 0}};
    for (const auto& [keycode, code] : keys) {
        EXPECT_EQ(layout.virtualKey(keycode, false), code) << keycode;
        EXPECT_EQ(virtualKeyFromEventAlone(keycode, 0, false), code) << keycode;
    }
    EXPECT_EQ(layout.virtualKey(300, false), 0);
    EXPECT_EQ(virtualKeyFromEventAlone(300, 'a', false), 0);
}

TEST(KeyCodes, EventAlone)
{
    constexpr std::uint32_t cyrillicShortI = 0x6ca, eacute = 0xe9, openE = 0x100025b, deadCircumflex = 0xfe52;
    EXPECT_EQ(virtualKeyFromEventAlone(keyQ, 'a', false), 'A');
    EXPECT_EQ(virtualKeyFromEventAlone(keyQ, 'A', false), 'A');
    EXPECT_EQ(virtualKeyFromEventAlone(keyOne, '&', false), '1');
    EXPECT_EQ(virtualKeyFromEventAlone(keyM, ',', false), 205);
    EXPECT_EQ(virtualKeyFromEventAlone(keyM, '?', false), 205);
    EXPECT_EQ(virtualKeyFromEventAlone(25, eacute, false), 215);
    EXPECT_EQ(virtualKeyFromEventAlone(keyQ, openE, false), 209);
    EXPECT_EQ(virtualKeyFromEventAlone(29, deadCircumflex, false), 217);
    EXPECT_EQ(virtualKeyFromEventAlone(keyQ, cyrillicShortI, false), 'Q');
    EXPECT_EQ(virtualKeyFromEventAlone(keySlash, 'z', false), 'Z');
}

TEST(KeyCodes, Windows)
{
    for (const auto& [native, code] :
         {std::pair{160U, 16}, {161U, 16}, {163U, 17}, {165U, 18}, {65U, 65}, {97U, 97}, {0U, 0}, {256U, 0}})
        EXPECT_EQ(keycodes::virtualKeyFromWindows(native), code);
}

TEST(KeyCodes, Mac)
{
    using keycodes::virtualKeyFromMac;
    EXPECT_EQ(virtualKeyFromMac(0x00, U'a'), 'A');
    EXPECT_EQ(virtualKeyFromMac(0x00, U'q'), 'Q');
    EXPECT_EQ(virtualKeyFromMac(0x2e, U','), 205);
    EXPECT_EQ(virtualKeyFromMac(0x0c, U'й'), 'Q');
    EXPECT_EQ(virtualKeyFromMac(0x12, U'&'), '1');
    EXPECT_EQ(virtualKeyFromMac(0x53, U'1'), 97);
    EXPECT_EQ(virtualKeyFromMac(0x7a, U'\xf704'), 112);
    EXPECT_EQ(virtualKeyFromMac(0x7e, U'\0'), 38);
    EXPECT_EQ(virtualKeyFromMac(0x37, U'\0'), 91);
    EXPECT_EQ(virtualKeyFromMac(0x7f, U'\0'), 0);
}

TEST(KeyCodes, MacKeysAreDistinct)
{
    std::multiset<int> codes;
    for (std::uint32_t key = 0; key < 127; ++key)
        codes.insert(keycodes::virtualKeyFromMac(key, U'\0'));
    for (int code = 1; code <= 255; ++code) {
        const bool twoKeysOnPurpose = (code >= 16 && code <= 18) || code == 13 || code == 91;
        EXPECT_LE(codes.count(code), twoKeysOnPurpose ? 2U : 1U) << code;
    }
    for (int code = 'A'; code <= 'Z'; ++code)
        EXPECT_EQ(codes.count(code), 1U) << code;
}

} // namespace
