#pragma once

#include "platform/controls.h"

/// "Parameter name": renames one of the six additional infos, from the main window or from frmNext.
struct ParameterNameForm {
    bool visible = false;
    Label Label2;    ///< old name
    TextBox Text1;   ///< new name
    int Slider1 = 1; ///< which one, 1 to 6; never shown as a choice
    Label Label4;    ///< the window that called: "frmMain" or "frmNext"
};
extern ParameterNameForm frmParaName;

/// "Rename" of the main window and of frmNext. `item`: 1 to 6.
void Command7_Click(int item);
void frmNext_Command5_Click(int item);

/// "OK". An empty name is taken as it is.
void frmParaName_Command1_Click();
/// "Cancel": nothing is stored.
void frmParaName_Command2_Click();
