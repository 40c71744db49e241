#pragma once

#include "platform/controls.h"

#include <set>
#include <string>

/// How many individuals each sample is to have, of the sum that the alarm watches. It lasts for the run.
struct Target {
    int individuals = 0;  ///< 0: no target
    int sum = 0;          ///< the sum that `text` stands beside: 0 all total, 1 and 2 the subtotals
    std::string text;     ///< "300: 112 to go"; empty without a target
    std::string sample;   ///< what was watched last: serial number of the sample
    int counted = 0;      ///< and its sum
    bool hasRung = false; ///< for that sample
};
extern Target target;

/// The window that asks for the target.
struct TargetForm {
    bool visible = false;
    std::string label; ///< of the box: which sum it is
    TextBox Text1;     ///< the number; empty: no target
};
extern TargetForm frmTarget;

void mnuTarget_Click();
/// "OK". What is no whole number above 0 is refused with a message.
void frmTarget_Command1_Click();
/// "Cancel"
void frmTarget_Command2_Click();
/// Brings the text up to date, and rings once when the sample on show gets to the target.
void watchTarget();
