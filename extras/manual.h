#pragma once

/// The manual. It is read while counting goes on, so it disables no other window and gets no key that counts
/// while another one has the keyboard.
struct ManualForm {
    bool visible = false;
    int forwardRevision = 0; ///< each step brings the window to the front
};
extern ManualForm frmManual;

void mnuManual_Click();
void closeManual();
