#include "platform/code_page.h"

#include <gtest/gtest.h>

TEST(CodePage, everyByteComesBackAndWhatItLacksShowsAsQuestionMark)
{
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte)
        bytes += static_cast<char>(byte);
    EXPECT_EQ(toCodePage(fromCodePage(bytes)), bytes);
    EXPECT_EQ(fromCodePage("\x80 \xE6"), u"\u20AC \u00E6");
    EXPECT_EQ(toCodePage(u"\u0141\u00F3\u017A \U0001F33F"), "?\xF3? ?");
}

TEST(CodePage, bytesThatAreNoProperUtf8StayTheCodePagesOwn)
{
    EXPECT_EQ(fileTextInCodePage("\xC3\xA4"), "\xE4");
    // Overlong, a surrogate, beyond Unicode, cut off: two characters or more as they stand.
    for (const char* own : {"\xC1\x81", "\xE0\x80\xAF", "\xE0\x9F\xBF", "\xF0\x8F\xBF\xBF", "\xED\xA0\x80",
                            "\xF4\x90\x80\x80", "\xC3"})
        EXPECT_EQ(fileTextInCodePage(own), own);
}
