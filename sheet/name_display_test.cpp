#include "sheet/name_display.h"

#include "core/program_test.h"
#include "sheet/focus_and_pointer.h"

#include <algorithm>

class Names : public ProgramTest {
protected:
    static auto italics()
    {
        return std::count_if(frmMain.Text1.begin(), frmMain.Text1.end(),
                             [](const TextBox& n) { return n.italic; });
    }
};

TEST_F(Names, areItalicUnlessTheyAreFamiliesOrDashes)
{
    const std::pair<const char*, bool> cases[] = {
        {"Poaceae", false},   {"POACEAE", false},     {"ae", false}, {"---", false}, {"Quercus", true},
        {"AsteraceaE", true}, {"Poaceae type", true}, {"e", true},   {"--", true}};
    int slot = 0;
    for (const auto& [name, italic] : cases)
        frmMain.Text1[++slot].text = name;
    ApplyItalics();
    slot = 0;
    for (const auto& [name, italic] : cases)
        EXPECT_EQ(italic, frmMain.Text1[++slot].italic) << name;
    mnuItalic_Click();
    EXPECT_TRUE(!frmMain.mnuItalic.checked && italics() == 0);
    mnuItalic_Click();
    EXPECT_TRUE(frmMain.mnuItalic.checked && italics() == 5);
}

TEST_F(Names, ofASheetWithoutAnyFamilyStayUpright)
{
    for (int slot = 1; slot <= taxonSlots; ++slot)
        frmMain.Text1[slot].text = "Code " + decimalText(slot);
    frmMain.Text1[135].text = "---";
    ApplyItalics();
    EXPECT_EQ(134, italics());
    frmMain.Text1[135].text = "Code 135";
    ApplyItalics();
    EXPECT_EQ(0, italics());
}

TEST_F(Names, showTheirEndOrTheirStart)
{
    frmMain.Text1[135].text = "Quercus robur";
    const auto expectShown = [](int caret, bool right, int checked) {
        EXPECT_EQ(caret, frmMain.Text1[135].caret);
        EXPECT_TRUE(frmMain.Text1[1].rightAligned == right && frmMain.Text1[135].rightAligned == right);
        EXPECT_TRUE(frmMain.mnuAlign[checked].checked && !frmMain.mnuAlign[1 - checked].checked);
    };
    mnuAlign_Click(1);
    expectShown(13, false, 1);
    Command8_Click();
    expectShown(13, true, 1);
    mnuAlign_Click(0);
    expectShown(0, true, 0);
    Command8_Click();
    expectShown(0, false, 1); // "Right" is marked after either flip
}

class Focus : public ProgramTest {};

TEST_F(Focus, goesBackToCountingUnlessTheSheetIsEditedOrADiagramIsOpen)
{
    for (const auto event : {+[] { giveFocusBack(); }, +[] { SSTab1_Click(2); }, +[] { Text1_MouseMove(); }})
        for (const bool modifying : {false, true}) {
            sheet.Modifying = modifying;
            frmMain.focus = MainFocus::elsewhere;
            event();
            EXPECT_EQ(modifying ? MainFocus::elsewhere : MainFocus::Text99, frmMain.focus);
        }
    EXPECT_EQ(2, frmMain.SSTab1);
    EXPECT_EQ(Pointer::iBeam, frmMain.pointer);
    sheet.Modifying = false;
    sheet.DiagramOpen = true;
    frmMain.focus = MainFocus::elsewhere;
    Text1_MouseMove();
    EXPECT_EQ(MainFocus::elsewhere, frmMain.focus); // the mouse alone takes no keys from the diagram
    EXPECT_EQ(Pointer::arrow, frmMain.pointer);
}

TEST_F(Focus, clickOnAKeyIndexMarksItsRowAlone)
{
    Label1_Click(12);
    Label1_Click(60);
    EXPECT_EQ(60, sheet.MoveSource);
    EXPECT_TRUE(frmMain.Label1[60].bold && !frmMain.Label1[12].bold);
    Label1_Click(0);
    EXPECT_EQ(0, sheet.MoveSource);
    EXPECT_FALSE(frmMain.Label1[60].bold || frmMain.Label1[0].bold);
}
