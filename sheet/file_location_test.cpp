#include "sheet/file_location.h"

#include "core/program_test.h"

class FileLocation : public ProgramTest {};

TEST_F(FileLocation, isBrokenBehindFoldersAndBlanks)
{
    const std::string x38(38, 'x');
    const std::string thirty = "123456789\\123456789\\123456789\\";
    const std::pair<std::string, std::string> cases[] = {
        {thirty + "1234567\\90", thirty + "1234567\\90"}, // 40 characters fit
        {thirty + "12345678901", thirty + "\r\n12345678901"},
        {"ab\\" + x38, "ab\\\r\n" + x38},
        {"a\\" + x38 + "x", "a\\" + x38 + "x"}, // two characters are no line
        {x38 + "x\\" + x38, x38 + "x\\" + x38}, // behind the 40th is too late
        {thirty + "123456789\\" + x38,
         thirty + "\r\n123456789\\" + x38}, // the second line would be too short
        {thirty + thirty + thirty + thirty,
         thirty + "\r\n" + thirty + "\r\n" + thirty + thirty}, // three lines at most
        {"/home/ana/sediment cores of the year/Lake Superior/north.csv",
         "/home/ana/sediment cores of the year/\r\nLake Superior/north.csv"},
        {"folders with blanks in their names are broken",
         "folders with blanks in their names are \r\nbroken"}};
    for (const auto& [path, shown] : cases) {
        frmMain.Text6.text = path;
        WrapFileLocation();
        EXPECT_EQ(shown, frmMain.Text6.text);
    }
}
