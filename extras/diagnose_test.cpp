#include "extras/diagnose.h"

#include "core/program_test.h"

#include <algorithm>

namespace {

class Diagnose : public ProgramTest {
protected:
    Diagnose()
    {
        frmDiagnose = DiagnoseForm();
        mnuDiagnose_Click();
    }
    static void readSettings()
    {
        for (int row = 1; row <= keysPerLayer; ++row)
            sheet.KeySetting[row] = {"k", decimalText(100 + row), decimalText(row)};
        const int functional[] = {186, 80, 186, 8, 187};
        for (int i = 0; i < 5; ++i)
            sheet.KeySetting[rowShift1 + i].Code = decimalText(functional[i]);
        sheet.KeySetting[55] = {"Esc", "27", "n/a"};
        sheet.UseKeySettings = sheet.KeysInitialised = true;
        sheet.Shift1Key = 186;
        sheet.Shift2Key = 80;
    }
    static std::string report()
    {
        return diagnoseReport(sheet, frmDiagnose.keys,
                              {"15/11/2026 (14:05:09)", "/home/Zo\u00EB", "pipewire, open", "6.4.2", "2.26.5",
                               "Debian", "1024 x 768"});
    }
    static void expectLines(const std::string& text, std::initializer_list<const char*> lines)
    {
        for (const char* line : lines)
            EXPECT_NE(text.find(std::string("\n") + line + "\n"), std::string::npos) << line << " in\n"
                                                                                     << text;
    }
};

} // namespace

TEST_F(Diagnose, keysRaiseTheLayerAndCountNothing)
{
    EXPECT_TRUE(frmDiagnose.visible && !isMainEnabled());
    readSettings();
    sheet.TaxonRecord[47].Name = "Aln\xE9";
    frmDiagnose_KeyDown(186);
    frmDiagnose_KeyDown(102);
    EXPECT_EQ(shown(47), 0);
    EXPECT_EQ(frmMain.SSTab1, 0);
    expectLines(report(),
                {"Last key:         102  [keypad 6]", "Stands in:        row 2 (key number 2)",
                 "While counting:   counts 47: Aln\u00E9", "Layer:            1, Shift 1 or 2",
                 "Shift keys:       Shift-1 is down, Shift-2 is up",
                 "Key setting:      the user's, from References/KeySetting.csv",
                 "14:05:09:27  down  102  [keypad 6]     layer 1  row 2 (key number 2)",
                 "Device:           pipewire, open",
                 "Backups:          /home/Zo\u00EB/References/Back up files", "Qt:               6.4.2"});
    frmDiagnose_KeyDown(80);
    EXPECT_EQ(effectOfKey(sheet, 145), "counts 135: ---");
    frmDiagnose_Command2_Click();
    EXPECT_EQ(sheet.Layer, 0) << "the releases go to another window";
    EXPECT_TRUE(!sheet.Shift1Down && isMainEnabled());
}

TEST_F(Diagnose, tellsEveryRowOfAKeyAndWhatItDoes)
{
    readSettings();
    sheet.KeySetting[3].Code = "145"; // that of row 45
    const struct {
        int code;
        const char* rows;
        const char* effect;
    } cases[] = {
        {145, "row 3 (key number 3), row 45 (key number 45)", "counts 45: ---"},
        {186, "row 46 (Shift-1), row 48 (Shift-1 again)", "raises the layer while it is held"},
        {187, "row 50 (Save)", "saves the sheet"},
        {27, "row 55 (reference key Esc)", "nothing"},
        {9, "none", "nothing"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(rowsOfKey(sheet, c.code), c.rows);
        EXPECT_EQ(effectOfKey(sheet, c.code), c.effect);
    }
    expectLines(report(), {"Codes used twice: 145  [ScrollLock] in rows 3, 45"});
    sheet.UseKeySettings = false;
    EXPECT_EQ(rowsOfKey(sheet, 'Q'), "built-in key number 1");
    EXPECT_EQ(effectOfKey(sheet, 'Q'), "counts 1: ---");
}

TEST_F(Diagnose, keepsTheLatestKeysAndTellsThoseWithoutACode)
{
    for (int i = 0; i < 40; ++i)
        frmDiagnose_KeyDown('A' + i % 26);
    frmDiagnose_KeyUp('A');
    frmDiagnose_KeyWithoutCode(248);
    EXPECT_EQ(frmDiagnose.keys.size(), DiagnoseForm::keysKept);
    expectLines(report(), {"Last key:         no code (the system's key 248)"});
}
