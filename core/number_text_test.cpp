#include "core/number_text.h"

#include <gtest/gtest.h>

TEST(NumberText, takesTheNumberThatATextBeginsWith)
{
    for (const char* none : {"", "abc", "-", ".", "-.", "--5", "- 5", "0x10", "inf", "nan", "x7", "\"3"})
        EXPECT_EQ(0, leadingNumber(none)) << none;
    for (const char* twelve :
         {"12", "+12", " \t12", "012", "12.", "12.0", "12-3", "12,5", "12E1", "12 cm", "12.x"})
        EXPECT_EQ(12, leadingNumber(twelve)) << twelve;
    EXPECT_EQ(-9999, leadingNumber("-9999"));
    EXPECT_DOUBLE_EQ(-0.25, leadingNumber("-.25"));
    EXPECT_DOUBLE_EQ(1.2, leadingNumber("1.2.3"));
    EXPECT_DOUBLE_EQ(1234567890123456789.0, leadingNumber("1234567890123456789"));
}

TEST(NumberText, roundsHalvesToEvenAndStaysWithin32Bits)
{
    EXPECT_EQ(2, wholeNumber("2.5"));
    EXPECT_EQ(4, wholeNumber("3.5"));
    EXPECT_EQ(-2, wholeNumber("-1.5"));
    EXPECT_EQ(0, wholeNumber("0." + std::string(400, '0') + "1"));
    EXPECT_EQ(2147483647, wholeNumber(std::string(400, '9')));
    EXPECT_EQ(2147483647, wholeNumber("2147483648"));
    EXPECT_EQ(-2147483648, wholeNumber("-" + std::string(400, '9')));
    EXPECT_EQ(-2147483648, within32Bits(-2147483649));
}

TEST(NumberText, tellsPlainWholeNumbersFromAllOtherWritings)
{
    for (const char* plain : {"0", "12", "-3", "2147483647", "-2147483648"})
        EXPECT_TRUE(isWholeNumber(plain)) << plain;
    for (const char* other :
         {"", "abc", "012", "+1", " 1", "1 ", "1.0", "12.5", "-0", "-", "3a", "2147483648"})
        EXPECT_FALSE(isWholeNumber(other)) << other;
}
