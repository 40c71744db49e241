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
}

TEST(ShortName, keepsWhatTellsTheTaxaOfAGenusApart)
{
    EXPECT_EQ(within(19, "Pinus subgen. Strobus"), "Pinus subg. Strobus");
    EXPECT_EQ(within(17, "Tabellaria flocculosa (strain III)"), "Tabe. f. (s. III)");
    EXPECT_EQ(within(17, "Tabellaria flocculosa (strain IIIp)"), "Tab. f. (s. IIIp)");
    EXPECT_EQ(within(16, "Silica skeleton Culm"), "Silica ske. Culm");
    EXPECT_EQ(within(16, "Silica skeleton Culm/leaf"), "Sil. s. Culm/le.");
}

TEST(ShortName, leavesSomethingOfEachWordAndSingleWordsWhole)
{
    EXPECT_EQ(within(4, "Aulacoseira crassipunctata"), "Aul. cra.");
    EXPECT_EQ(within(4, "Navicula sp. 1 ?"), "N. s. 1 ?");
    EXPECT_EQ(within(4, "Chenopodiaceae"), "Chenopodiaceae");
    EXPECT_EQ(within(1, ""), "");
}
