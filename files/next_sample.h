#pragma once

#include "files/sample_form.h"

/// The window that adds a sample. On a sheet without a sample it also offers another file.
struct NextForm : SampleForm {
    Button Command2;                            ///< "Open data file or template"
    Button Command3;                            ///< "Cancel"
    Button Command4;                            ///< "Create new data file"
    std::array<Button, infoItems + 1> Command5; ///< "Rename" beside additional info 1 to 6
    bool entryBoxes =
        true; ///< the boxes are on show; after a first run they come with "Create new data file"
};
extern NextForm frmNext;

/// "Next sample", from the menu and from the button.
void mnuNext_Click();
/// Brings up frmNext, or tells that the sheet is full.
void NextFile();
/// After a first run: the choice between a new sheet and a file; nothing if a sheet has been taken up.
void showFirstRunChoice();

/// "OK": adds the sample; the window stays open if its name is refused.
void frmNext_Command1_Click();
void frmNext_Command2_Click();
void frmNext_Command3_Click();
void frmNext_Command4_Click();
/// A visit of the box of an additional info, 1 to 6.
void frmNext_Text3_GotFocus(int item);
void frmNext_Text3_LostFocus(int item);
