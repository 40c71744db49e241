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
