#pragma once

#include "platform/controls.h"
#include "tables/count_table.h"

#include <array>
#include <string>

constexpr int tablePreview = 5; ///< taxa and samples that the preview shows

/// "New from a table": what a table of counts holds, before it becomes the sheet.
struct TableForm {
    bool visible = false;
    std::string name;     ///< of the file
    std::string encoding; ///< for people to read
    std::string text;     ///< of the table, in the code page
    int replaced = 0;     ///< characters that the code page lacks
    TableReading reading;
    CountTable table; ///< as it is read now

    Label Label1; ///< the file and how it is written
    Label Label2; ///< how many taxa, samples and individuals
    Label Label3; ///< why it cannot be taken; visible only then
    std::array<Label, (tablePreview + 1) * (tablePreview + 1)>
        Label4;      ///< row by row: heads of samples in the first one, of taxa at the start of each other
    TextBox Text1;   ///< what is left out and why, a sentence a line
    CheckBox Check1; ///< "Leave out the rarest taxa"; visible while there are more than a sheet holds
    Button Command1; ///< "New sheet"; enabled while the table can be taken
};
extern TableForm frmTable;

/// Reads a table that the user chooses and brings up its preview.
void mnuNewFromTable_Click();
/// "New sheet": asks if there is something to lose, then the table is the sheet, unsaved and without a file.
void frmTable_Command1_Click();
/// "Cancel".
void frmTable_Command2_Click();
/// "Swap rows and columns".
void frmTable_Command3_Click();
void frmTable_Check1_Click();
