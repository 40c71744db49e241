#pragma once

#include "extras/diagnose_report.h"

/// "Diagnose": what somebody asks for when a keyboard misbehaves. Keys pressed while it is open raise the
/// layer as they do while counting, but they count nothing, save nothing, turn no page and do nothing else in
/// the window.
struct DiagnoseForm {
    static constexpr std::size_t keysKept = 24;

    bool visible = false;
    bool takesKeys = true;     ///< until Esc twice in a row hands them to the buttons
    std::vector<SeenKey> keys; ///< the latest, oldest first
};
extern DiagnoseForm frmDiagnose;

void mnuDiagnose_Click();
/// `keyCode`: Windows virtual-key code, 1 to 255; a held key comes as repeated key-downs.
void frmDiagnose_KeyDown(int keyCode);
void frmDiagnose_KeyUp(int keyCode);
/// A key that has no code went down. `physicalKey`: the system's number of it.
void frmDiagnose_KeyWithoutCode(unsigned physicalKey);
/// "Close".
void frmDiagnose_Command2_Click();
