#pragma once

#include "platform/controls.h"

#include <array>

constexpr int referenceKeys = 12;

/// "Initialize": the user presses twelve named keys, by which the key editor names keys such as [Space].
/// Box i belongs to row 51 + i of the key settings.
struct InitialForm {
    bool visible = false;
    int FirstRun = 1;                         ///< 0: the keyboard was not identified when the window opened
    std::array<TextBox, referenceKeys> Text1; ///< key codes
    std::array<Label, referenceKeys> Label4;  ///< names of the keys
    Button Command1;                          ///< "OK"
    int focus = referenceKeys;                ///< box that has the focus; 12: "OK"
};
extern InitialForm frmInitial;

/// A first run: the window stands alone, the main one comes when it closes.
void ShowInitial();
void mnuInitial_Click();

void frmInitial_Text1_GotFocus(int box);
void frmInitial_Command1_GotFocus();
/// The key gives the box its code and the focus goes on.
void frmInitial_Text1_KeyDown(int box, int keyCode);
/// "OK": stores the codes. After a first run the first sheet begins. The window stays, with a message and
/// nothing stored, if a box holds no code or the file cannot be written.
void frmInitial_Command1_Click();
/// The frame: nothing is stored.
void closeInitial();
