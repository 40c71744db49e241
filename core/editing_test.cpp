#include "core/editing.h"

#include "core/amending.h"
#include "core/endings.h"
#include "core/program_test.h"
#include "core/text_changes.h"

class Editing : public ProgramTest {
protected:
    static constexpr int otherKey = 65;

    Editing()
    {
        addSamples(3);
        setText1(0, "10");
        AmendingOnOff(0);
    }
    static void press(int key) { Form_KeyDown(key, 0); }
    static const std::string& lastLine() { return sheet.ActionText.back(); }
    void expectRefusal(const char* title)
    {
        dialogs.expect("Using double quotation mark causes fatal error. Please choose another symbol.",
                       title);
    }
};

TEST_F(Editing, aNameIsStoredAtOnceAndLoggedWhenItIsLeft)
{
    Text1_GotFocus(50);
    press(otherKey);
    Text1_Edited(50, "Pinus", 5);
    EXPECT_EQ("Pinus", sheet.TaxonRecord[50].Name);
    EXPECT_EQ("(Modify)", lastLine());
    Text2_GotFocus(50); // leaves the name
    EXPECT_EQ("50: Taxa name [Pinus]", lastLine());

    const auto lines = sheet.ActionText.size();
    Text1_GotFocus(50);
    Text1_Edited(50, "Pinu", 4);
    Text1_Edited(50, "Pinus", 5);
    leaveEditedBox();
    EXPECT_EQ(lines, sheet.ActionText.size()) << "there and back again is no change";
    Text1_GotFocus(50);
    Text1_Edited(50, "", 0);
    leaveEditedBox();
    EXPECT_EQ("---", sheet.TaxonRecord[50].Name);
}

TEST_F(Editing, theQuotationMarkIsRefusedByItsKeyAndReplacedInAPaste)
{
    struct Box {
        void (*enter)();
        void (*edit)(std::string_view text, int caret);
        const std::string& stored;
        const TextBox& box;
    };
    const Box boxes[] = {
        {[] { Text1_GotFocus(7); }, [](std::string_view text, int caret) { Text1_Edited(7, text, caret); },
         sheet.TaxonRecord[7].Name, frmMain.Text1[7]},
        {[] { Text1_GotFocus(0); }, [](std::string_view text, int caret) { Text1_Edited(0, text, caret); },
         sheet.SampleField(1, 2), frmMain.Text1[0]},
        {Text4_GotFocus, Text4_Edited, sheet.SampleNote(1, 0), frmMain.Text4},
        {[] { Text5_GotFocus(6); }, [](std::string_view text, int caret) { Text5_Edited(6, text, caret); },
         sheet.AdditionalInfo(1, 6), frmMain.Text5[6]}};
    for (const Box& box : boxes) {
        box.enter();
        box.edit("ab", 2);
        press(50);
        expectRefusal("Caution!");
        box.edit("a\"b", 2);
        EXPECT_EQ("ab", box.stored);
        EXPECT_EQ(1, box.box.caret);
        press(51);
        expectRefusal("Are you an AZERTY keyboard user?");
        box.edit("#ab", 1);
        EXPECT_EQ("ab", box.stored);
        press(86);
        box.edit("a\"pasted\"b", 9);
        EXPECT_EQ("a'pasted'b", box.stored);
        EXPECT_EQ(box.stored, box.box.text);
        EXPECT_FALSE(frmMain.notice.empty());
        leaveEditedBox();
    }
}

TEST_F(Editing, aCountIsReplacedAndABadOneGivesWayOnce)
{
    Text2_GotFocus(3);
    Text2_Edited(3, "12", 2);
    leaveEditedBox();
    EXPECT_EQ("3 (---): Replace 0 by 12", lastLine());
    EXPECT_EQ(12, stored(3));
    EXPECT_EQ("12", frmMain.Text3[0].text);
    EXPECT_FALSE(sheet.SheetPristine);
    EXPECT_FALSE(frmMain.Command5[1].enabled || frmMain.mnuNext.enabled) << "not while the sheet is edited";

    Text2_GotFocus(4); // by Tab: no mouse press told the number
    dialogs.expect("Please input digit(s).", "Error");
    Text2_Edited(4, "x", 1);
    EXPECT_EQ(0, shown(4)) << "not the number of another cell";
    EXPECT_EQ(0, stored(4));
}

TEST_F(Editing, aSampleNameIsItsOwn)
{
    Text1_GotFocus(0);
    Text1_Edited(0, "30", 2);
    dialogs.expect("The sample name is already used. Choose another name.", "Error!");
    leaveEditedBox();
    EXPECT_EQ("10", sheet.SampleField(1, 2));
    EXPECT_EQ("10", frmMain.Combo2.text);
    EXPECT_EQ("(Modify)", lastLine());
    Text1_GotFocus(0);
    Text1_Edited(0, "15", 2);
    leaveEditedBox();
    EXPECT_EQ((std::vector<std::string>{"15", "20", "30"}), frmMain.Combo2.items);
    EXPECT_EQ("Sample name: : Taxa name [15]", lastLine());
}

TEST_F(Editing, aDepthWithACommaIsTakenAndToldToBeNoNumber)
{
    Text1_GotFocus(0);
    for (const char* name : {"12,", ",5", "12,5,1", "1a,5", "core 1,2", "12.5", "-"}) {
        Text1_Edited(0, name, 1);
        EXPECT_EQ("", frmMain.notice) << name;
    }
    Text1_Edited(0, "-12,5", 5);
    EXPECT_EQ("'-12,5' is no number, so the diagram has no depth scale: write -12.5.", frmMain.notice);
    EXPECT_EQ("-12,5", sheet.SampleField(1, 2));
}

TEST_F(Editing, additionalInfoOffersAnEmptyBox)
{
    frmMain.Text5[2].text = "---";
    Text5_GotFocus(2);
    EXPECT_EQ("", frmMain.Text5[2].text);
    EXPECT_TRUE(sheet.SheetPristine) << "a visit is no edit";
    leaveEditedBox();
    EXPECT_EQ("---", frmMain.Text5[2].text);
    Text5_GotFocus(2);
    Text5_Edited(2, "Slide 4", 7);
    EXPECT_EQ("Slide 4", sheet.AdditionalInfo(1, 2));
    EXPECT_EQ("Slide 4", frmMain.Label8.caption);
    EXPECT_TRUE(!sheet.SheetPristine && frmMain.mnuNew.enabled);
}

TEST_F(Editing, closingAsksForWorkFromBeforeTheModeAndOfIt)
{
    const char* const question = "Do you want to save the changes you made to 'Untitled.csv'?";
    bool cancel = false;
    Text4_GotFocus();
    Text4_Edited("Few grains", 10);
    dialogs.expect(question, "TallyStrata", Answer::cancel);
    Form_Unload(cancel);
    EXPECT_TRUE(cancel);

    AmendingOnOff(1);
    EXPECT_TRUE(frmMain.Command5[0].enabled && frmMain.mnuSave.enabled);
    AmendingOnOff(0);
    dialogs.expect(question, "TallyStrata", Answer::cancel);
    Form_Unload(cancel);

    frmMain.Command5[0].enabled = false;
    sheet.Modifying = false;
    AmendingOnOff(0);
    Form_Unload(cancel); // nothing to save: no question
    EXPECT_TRUE(sheet.Unloading);
}
