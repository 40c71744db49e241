#include "sheet/short_name.h"

#include <gtest/gtest.h>

static std::string within(std::size_t letters, std::string_view name)
{
    return shortName(name, [letters](const std::string& text) { return text.size() <= letters; });
}

TEST(ShortName, cutsTheGenusAndThenTheLongestWords)
{
    EXPECT_EQ(within(30, "Aulacoseira crassipunctata"), "Aulacoseira crassipunctata");
    EXPECT_EQ(within(24, "Aulacoseira crassipunctata"), "Aulacose. crassipunctata");
    EXPECT_EQ(within(15, "Aulacoseira crassipunctata"), "Aulac. crassip.");
    EXPECT_EQ(within(15, "Frustulia saxonica"), "Frust. saxonica");
    EXPECT_EQ(within(19, "Pinus subgen. Strobus"), "Pinus subge. Strob.");
}

TEST(ShortName, leavesThreeLettersAndSingleWords)
{
    EXPECT_EQ(within(4, "Aulacoseira crassipunctata"), "Aul. cra.");
    EXPECT_EQ(within(4, "Navicula sp. 1 ?"), "Nav. sp. 1 ?");
    EXPECT_EQ(within(4, "Chenopodiaceae"), "Chenopodiaceae");
    EXPECT_EQ(within(1, ""), "");
}
