#pragma once

#include <string>
#include <string_view>

/// The manual. It is read while counting goes on, so it disables no other window and gets no key that counts
/// while another one has the keyboard.
struct ManualForm {
    bool visible = false;
    int forwardRevision = 0; ///< each step brings the window to the front
    std::string page; ///< that is wanted, within the folder docs; empty: the one on show, or the contents
};
extern ManualForm frmManual;

void mnuManual_Click();
/// F1: the page of the window that is in front. `window`: its name, as in "frmFind".
void openPageOf(std::string_view window);
/// Where that is, within the folder docs; the contents for a window without a page of its own.
std::string pageOf(std::string_view window);
void closeManual();
