#include "statistics/written_numbers.h"

#include <gtest/gtest.h>
#include <limits>

namespace {

TEST(WrittenNumbers, AreWhatAScientistWrites)
{
    EXPECT_EQ(oneDecimal(5.32), "5.3");
    EXPECT_EQ(oneDecimal(100), "100.0");
    EXPECT_EQ(oneDecimal(-0.01), "0.0");
    EXPECT_EQ(threeDigits(111504), "112,000");
    EXPECT_EQ(threeDigits(1234567.8), "1,230,000");
    EXPECT_EQ(threeDigits(999.7), "1,000");
    EXPECT_EQ(threeDigits(99.96), "100");
    EXPECT_EQ(threeDigits(3.4), "3.40");
    EXPECT_EQ(threeDigits(0.0123456), "0.0123");
    EXPECT_EQ(threeDigits(0), "0");
    EXPECT_EQ(withThousands(1328), "1,328");
    EXPECT_EQ(withThousands(999), "999");
    EXPECT_EQ(withThousands(-1234567), "-1,234,567");
}

TEST(WrittenNumbers, InFilesAreTenDigitsWithoutExponentOrComma)
{
    EXPECT_EQ(tenDigits(1.0 / 3), "0.3333333333");
    EXPECT_EQ(tenDigits(17177.360770123), "17177.36077");
    EXPECT_EQ(tenDigits(1.5e-9), "0.0000000015");
    EXPECT_EQ(tenDigits(2e15 / 3), "666666666700000");
    EXPECT_EQ(tenDigits(12), "12");
    EXPECT_EQ(tenDigits(-0.0), "0");
    EXPECT_EQ(tenDigits(std::numeric_limits<double>::quiet_NaN()), "");
    EXPECT_EQ(oneDecimal(std::numeric_limits<double>::infinity()), "");
}

} // namespace
