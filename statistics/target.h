#pragma once

#include "platform/controls.h"

#include <array>
#include <string>

/// How many individuals each sample is to have, of the sum that the alarm watches. It lasts for the run.
struct Target {
    Target();

    int individuals = 0;         ///< 0: no target
    std::array<Label, 3> Label1; ///< beside the sums: "300: 112 to go", of the one that the alarm watches
    int sum = 0;                 ///< what was watched last: 0 all total, 1 and 2 the subtotals,
    std::string sample;          ///< the serial number of the sample,
    int counted = 0;             ///< and the individuals there
    bool hasRung = false;        ///< for that sample
};
extern Target target;

/// The window that asks for the target.
struct TargetForm {
    bool visible = false;
    Label Label1;  ///< of the box: which sum it is
    TextBox Text1; ///< the number; empty: no target
};
extern TargetForm frmTarget;

void mnuTarget_Click();
/// "OK". What is no whole number above 0 is refused with a message.
void frmTarget_Command1_Click();
/// "Cancel"
void frmTarget_Command2_Click();
/// Brings the text up to date, and rings once when the sample on show gets to the target.
void watchTarget();
