#include "sheet/name_display.h"

#include "core/program_test.h"
#include "sheet/focus_and_pointer.h"

class Names : public ProgramTest {};

TEST_F(Names, areItalicUnlessTheyAreFamiliesOrDashes)
{
    const std::pair<const char*, bool> cases[] = {
        {"Poaceae", false},   {"POACEAE", false},     {"ae", false}, {"---", false}, {"Quercus", true},
        {"AsteraceaE", true}, {"Poaceae type", true}, {"e", true},   {"--", true}};
    for (const bool on : {true, false}) {
        for (const auto& [name, italic] : cases) {
            frmMain.Text1[1].text = name;
            ApplyItalics();
            EXPECT_EQ(italic && on, frmMain.Text1[1].italic) << name;
        }
        mnuItalic_Click();
    }
    for (int slot = 1; slot <= taxonSlots; ++slot)
        frmMain.Text1[slot].text = "Code " + decimalText(slot);
    ApplyItalics();
    EXPECT_FALSE(frmMain.Text1[1].italic); // a sheet without any family is one of codes
}

TEST_F(Names, showTheirEndOrTheirStart)
{
    frmMain.Text1[135].text = "Quercus robur";
    mnuAlign_Click(1);
    EXPECT_TRUE(frmMain.Text1[135].caret == 13 && !frmMain.Text1[135].rightAligned);
    mnuAlign_Click(0);
    EXPECT_TRUE(frmMain.Text1[135].caret == 0 && frmMain.mnuAlign[0].checked && !frmMain.mnuAlign[1].checked);
    Command8_Click();
    EXPECT_TRUE(frmMain.Text1[135].caret == 13 && frmMain.Text1[135].rightAligned);
    Command8_Click(); // "Right" is marked after either flip
    EXPECT_TRUE(frmMain.Text1[135].caret == 0 && !frmMain.mnuAlign[0].checked && frmMain.mnuAlign[1].checked);
}

TEST_F(Names, leaveTheFocusToCountingUnlessTheSheetIsEditedOrADiagramIsOpen)
{
    for (const auto event :
         {+[] { mnuItalic_Click(); }, +[] { SSTab1_Click(2); }, +[] { Text1_MouseMove(); }})
        for (const bool modifying : {false, true}) {
            sheet.Modifying = modifying;
            frmMain.focus = MainFocus::elsewhere;
            event();
            EXPECT_EQ(modifying ? MainFocus::elsewhere : MainFocus::Text99, frmMain.focus);
        }
    EXPECT_TRUE(frmMain.SSTab1 == 2 && frmMain.pointer == Pointer::iBeam);
    sheet.Modifying = false;
    sheet.DiagramOpen = true;
    Text1_MouseMove(); // the mouse alone takes no keys from the diagram
    EXPECT_TRUE(frmMain.focus == MainFocus::elsewhere && frmMain.pointer == Pointer::arrow);
}

TEST_F(Names, clickOnAKeyIndexMarksItsRowAlone)
{
    Label1_Click(12);
    Label1_Click(60);
    EXPECT_EQ(60, sheet.MoveSource);
    EXPECT_TRUE(frmMain.Label1[60].bold && !frmMain.Label1[12].bold);
    Label1_Click(0);
    EXPECT_EQ(0, sheet.MoveSource);
    EXPECT_FALSE(frmMain.Label1[60].bold || frmMain.Label1[0].bold);
}
