#include "keys/key_settings.h"

#include "core/program_test.h"

namespace {

int arranged = 0;

/// A key settings file: row r holds the code 200 + r, position i of the grid the number 46 - i.
std::string settingsFile(const std::string& mark, const std::string& lineEnd, int records = 63)
{
    std::string text;
    for (int row = 0; row < records; ++row)
        text += mark + "key " + decimalText(row) + mark + "," + mark + decimalText(200 + row) + mark + "," +
                mark + (row >= 1 && row <= 45 ? decimalText(46 - row) : "n/a") + mark + lineEnd;
    return text;
}
const std::string good = settingsFile("\"", "\r\n");

std::string goodBut(const std::string& part, const std::string& other)
{
    std::string text = good;
    return text.replace(text.find(part), part.size(), other);
}

class KeySettings : public ProgramTest {
protected:
    KeySettings()
    {
        arranged = 0;
        hooks.ArrangeTaxonCells = [] { arranged += wholeNumber(sheet.KeySetting[1].Number) == 45; };
    }
    bool read(const std::string& text)
    {
        files.contents["/program/References/KeySetting.csv"] = text;
        return ReadKeySettings();
    }
};

} // namespace

TEST_F(KeySettings, areReadWithOrWithoutMarksAndWithAnyLineEnd)
{
    for (const std::string& text : {good, settingsFile("", "\r\n"), settingsFile("\"", "\n"),
                                    settingsFile("", "\r"), good.substr(0, good.size() - 2),
                                    good + "\"and\",\"more\"\r\n", goodBut("\"key 26\"", "\"key 26\" ")}) {
        sheet = SheetState();
        arranged = 0;
        ASSERT_TRUE(read(text)) << text;
        for (int row = 0; row < keySettingRows; ++row) {
            EXPECT_EQ("key " + decimalText(row), sheet.KeySetting[row].Definition);
            EXPECT_EQ(decimalText(200 + row), sheet.KeySetting[row].Code);
        }
        EXPECT_EQ("1", sheet.KeySetting[45].Number);
        EXPECT_EQ("n/a", sheet.KeySetting[62].Number);
        EXPECT_EQ(246, sheet.Shift1Key);
        EXPECT_EQ(247, sheet.Shift2Key);
        EXPECT_EQ(249, sheet.MinusKey);
        EXPECT_EQ(1, arranged); // by the settings just read
    }
    ASSERT_TRUE(read(goodBut("key 26", ",")));
    EXPECT_EQ(",", sheet.KeySetting[26].Definition);
    EXPECT_EQ("226", sheet.KeySetting[26].Code);
}

TEST_F(KeySettings, stayAsTheyWereIfTheFileIsMissingOrNone)
{
    sheet.KeySetting[5].Code = "65";
    EXPECT_FALSE(ReadKeySettings());
    std::string noCodes;
    for (int row = 0; row < 63; ++row)
        noCodes += "\"k\",\"\",\"1\"\r\n";
    for (const std::string& text :
         {std::string(), settingsFile("\"", "\r\n", 62), good + std::string(100'000'000, ' '), noCodes,
          std::string(100'000, '\xFF'), std::string(5000, '\0'), std::string(5000, '\n'),
          std::string(5000, '"'), std::string(5000, ','), goodBut("\"key 20\",", ""),
          goodBut("\"key 20\",", "\"key 20\",,"), goodBut("key 20\"", "key 20"),
          goodBut("\"key 62\"", "\"key 62"), goodBut("\"243\",", "\"243\"\r\n")}) {
        EXPECT_FALSE(read(text)) << text.substr(0, 60);
        EXPECT_EQ("65", sheet.KeySetting[5].Code);
        EXPECT_EQ(16, sheet.Shift1Key);
        EXPECT_EQ(0, arranged);
    }
}
