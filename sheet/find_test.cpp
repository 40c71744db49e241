#include "sheet/find.h"

#include "core/highlight.h"
#include "core/program_test.h"

namespace {

class Find : public ProgramTest {
protected:
    Find() { frmFind = FindForm(); }

    static void name(int slot, const std::string& taxon)
    {
        frmMain.Text1[slot].text = sheet.TaxonRecord[slot].Name = taxon;
    }
    static void type(const std::string& text)
    {
        frmFind.Text1.text = text;
        frmFind_Text1_Change();
    }
    static void open(const std::string& text)
    {
        mnuFind_Click();
        EXPECT_TRUE(frmFind.visible && !isMainEnabled());
        type(text);
    }
    static void count()
    {
        const UserEvent event;
        frmFind_Command3_Click();
    }
    static std::string list()
    {
        std::string all;
        for (const std::string& item : frmFind.List1.items)
            all += item + ",";
        return all;
    }
    static std::string cellsOf(Colour colour)
    {
        std::string slots;
        for (int slot = 1; slot <= taxonSlots; ++slot) {
            EXPECT_EQ(frmMain.Text1[slot].backColor, frmMain.Text2[slot].backColor);
            if (frmMain.Text1[slot].backColor == colour)
                slots += decimalText(slot) + ",";
        }
        return slots;
    }
    static std::string keysToTake()
    {
        std::string keys;
        for (int key = 1; key <= 51; ++key)
            if (frmFind.Command1[key].backColor == keyToTake)
                keys += decimalText(key) + ",";
        return keys;
    }
    static void readSettings()
    {
        for (int row = 1; row <= keysPerLayer; ++row)
            sheet.KeySetting[row] = {"k" + decimalText(row), decimalText(100 + row), decimalText(row)};
        sheet.UseKeySettings = true;
    }
};

} // namespace

TEST_F(Find, listsEqualNamesAboveThoseThatBeginWithTheText)
{
    name(3, "Quercus-D");
    name(50, "Quercus");
    name(7, "quercus");
    name(8, "Picea");
    const std::pair<const char*, const char*> cases[] = {
        {"quercus", "quercus,Quercus,Quercus-D,"},
        {"Quercus", "Quercus,Quercus-D,"},
        {"quer", "Quercus-D,quercus,Quercus,"},
        {"QUERCUS", ""},
        {"PIC", ""},
        {"pic", "Picea,"},
        {"uercus", ""},
        {"", ""},
    };
    mnuFind_Click();
    for (const auto& [text, names] : cases) {
        type(text);
        EXPECT_EQ(list(), names) << text;
        EXPECT_EQ(frmFind.List1.chosen, *names == '\0' ? -1 : 0) << text;
        EXPECT_EQ(frmFind.Command3.enabled, *names != '\0') << text;
        EXPECT_EQ(sheet.FoundSlot, std::string(names) == "Picea," ? 8 : 0)
            << "only a name alone shows itself";
    }
    EXPECT_EQ(FindForm::Capitalise("\xE9pic\xE9"
                                   "a"),
              "\xE9pic\xE9"
              "a")
        << "a plain table of a to z";
}

TEST_F(Find, showsTheCellItsPageItsKeyAndTheShiftKeysOfTheOtherHand)
{
    const struct {
        int first, last;
        const char* shiftKeys;
    } table[] = {{1, 45, ""},          {46, 54, "48,"},      {55, 63, "47,"},      {64, 72, "46,"},
                 {73, 78, "48,"},      {79, 84, "47,"},      {85, 90, "46,"},      {91, 99, "47,48,"},
                 {100, 108, "46,47,"}, {109, 117, "46,51,"}, {118, 123, "47,48,"}, {124, 129, "46,47,"},
                 {130, 135, "46,51,"}};
    mnuFind_Click();
    for (const auto& row : table)
        for (int slot = row.first; slot <= row.last; ++slot) {
            name(slot, "Abies");
            type("abi");
            EXPECT_EQ(cellsOf(foundCell), decimalText(slot) + ",");
            EXPECT_EQ(frmMain.SSTab1, (slot - 1) / 45);
            EXPECT_EQ(keysToTake(), decimalText((slot - 1) % 45 + 1) + "," + row.shiftKeys) << slot;
            name(slot, "---");
        }
}

TEST_F(Find, theKeyMapFollowsTheKeyNumberMap)
{
    readSettings();
    std::swap(sheet.KeySetting[2].Number, sheet.KeySetting[40].Number);
    sheet.KeySetting[10].Number = "11"; // 11 stands twice, 10 nowhere
    for (const int slot : {2, 10, 11})
        name(slot, "Taxon " + decimalText(slot));
    open("taxon 2");
    EXPECT_EQ(keysToTake(), "40,");
    EXPECT_EQ(frmFind.Command1[40].caption, "k2");
    type("taxon 11");
    EXPECT_EQ(keysToTake(), "10,11,");
    type("taxon 10");
    EXPECT_EQ(keysToTake(), "10,") << "where its cell stands";
}

TEST_F(Find, countsAsTheKeyWould)
{
    readSettings();
    tap(101);
    name(1, "Abies");
    name(47, "Pinus");
    name(93, "Pinus");
    open("pin");
    EXPECT_EQ(list(), "Pinus,Pinus,");
    count(); // of the marked name: the later cell has the count
    EXPECT_EQ(shown(93), 1);
    EXPECT_EQ(shown(47), 0);
    EXPECT_EQ(sheet.ActionText.back(), "93: Pinus");
    EXPECT_EQ(sound.played.back(), Cue::SoundKey3);
    EXPECT_FALSE(frmFind.visible);
    EXPECT_TRUE(isMainEnabled() && frmMain.SSTab1 == 0 && sheet.Layer == 0);
    EXPECT_EQ(cellsOf(countedRow), "93,");
    runOutTimer();
    tap(101);
    EXPECT_EQ(cellsOf(countedRow), "1,") << "the next key has the pale row";
    open("abies");
    frmFind_List1_DblClick();
    EXPECT_EQ(shown(1), 3);

    sheet.KeySetting[45].Code = "101"; // whose press would count another taxon
    open("abies");
    count();
    EXPECT_TRUE(frmFind.visible);
    EXPECT_EQ(shown(1) + shown(45), 3);
}

TEST_F(Find, theBuiltInMapCountsToo)
{
    name(117, "Tilia"); // key number 27, the full stop
    open("til");
    EXPECT_EQ(frmFind.Command1[27].caption, ".");
    frmFind_Enter();
    EXPECT_EQ(shown(117), 1);
}

TEST_F(Find, closingOrANoLeavesTheSheetAsItWas)
{
    tap('Q', 2);
    name(46, "Betula");
    open("bet");
    EXPECT_EQ(cellsOf(countedRow), "") << "all rows are plain but the found one";
    frmFind_Command2_Click();
    EXPECT_EQ(cellsOf(countedRow), "1,");
    EXPECT_TRUE(!frmFind.visible && isMainEnabled() && frmMain.SSTab1 == 0);

    addSamples(2);
    sheet.WarnNotLatest = true;
    open("bet");
    expectStaleQuestion(Answer::no);
    count();
    EXPECT_EQ(shown(46), 0);
    EXPECT_EQ(cellsOf(countedRow), "1,") << "what was not counted is not marked";
    EXPECT_TRUE(!frmFind.visible && frmMain.SSTab1 == 0 && sheet.Layer == 0);
    open("bet");
    expectStaleQuestion(Answer::yes);
    count();
    EXPECT_EQ(shown(46), 1);
}
