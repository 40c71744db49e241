#include "core/number_text.h"

#include <gtest/gtest.h>

TEST(NumberText, takesTheNumberThatATextBeginsWith)
{
    for (const char* none : {"", "abc", "-", "-.", "--5", "- 5", "0x10", "inf", "nan", "\"3"})
        EXPECT_EQ(0, leadingNumber(none)) << none;
    for (const char* twelve : {"12", "+12", " \t12", "012", "12.", "12-3", "12,5", "12E1", "12 cm"})
        EXPECT_EQ(12, leadingNumber(twelve)) << twelve;
    EXPECT_DOUBLE_EQ(-0.25, leadingNumber("-.25"));
    EXPECT_DOUBLE_EQ(1.2, leadingNumber("1.2.3"));
}

TEST(NumberText, roundsHalvesToEvenAndStaysWithin32Bits)
{
    const std::pair<std::string, std::int32_t> cases[] = {{"2.5", 2},
                                                          {"3.5", 4},
                                                          {"-1.5", -2},
                                                          {"-9999", -9999},
                                                          {"2147483648", 2147483647},
                                                          {"-" + std::string(400, '9'), INT32_MIN},
                                                          {"0." + std::string(400, '0') + "1", 0}};
    for (const auto& [text, number] : cases)
        EXPECT_EQ(number, wholeNumber(text)) << text;
    EXPECT_TRUE(isWholeNumber("-2147483648") && isWholeNumber("2147483647") && isWholeNumber("0"));
    EXPECT_FALSE(isWholeNumber("2147483648"));
}
