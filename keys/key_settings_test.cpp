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
    for (const std::string& text :
         {good, settingsFile("", "\r\n"), settingsFile("\"", "\n"), settingsFile("", "\r"),
          good.substr(0, good.size() - 2), good + "\"and\",\"more\"\r\n"}) {
        sheet = SheetState();
        arranged = 0;
        ASSERT_TRUE(read(text)) << text;
        EXPECT_TRUE(sheet.KeySetting[45].Definition == "key 45" && sheet.KeySetting[45].Number == "1");
        EXPECT_TRUE(sheet.KeySetting[62].Code == "262" && sheet.KeySetting[62].Number == "n/a");
        EXPECT_TRUE(sheet.Shift1Key == 246 && sheet.Shift2Key == 247 && sheet.MinusKey == 249);
        EXPECT_EQ(1, arranged); // by the settings just read
    }
}

TEST_F(KeySettings, stayAsTheyWereIfTheFileIsMissingOrNone)
{
    sheet.KeySetting[5].Code = "65";
    EXPECT_FALSE(ReadKeySettings());
    std::string noCodes;
    for (int row = 0; row < 63; ++row)
        noCodes += "\"k\",\"\",\"1\"\r\n";
    for (const std::string& text :
         {std::string(), settingsFile("\"", "\r\n", 62), good + std::string(2'000'000, ' '), noCodes,
          std::string(100'000, '\xFF'), std::string(5000, '\0'), std::string(5000, '\n'),
          std::string(5000, ','), goodBut("\"key 20\",", ""), goodBut("\"key 20\",", "\"key 20\",,"),
          goodBut("\"key 62\"", "\"key 62"), goodBut("\"243\",", "\"243\"\r\n")}) {
        EXPECT_FALSE(read(text)) << text.substr(0, 60);
        EXPECT_TRUE(sheet.KeySetting[5].Code == "65" && sheet.Shift1Key == 16 && arranged == 0);
    }
}
