#pragma once

#include "core/sheet_size.h"
#include "platform/controls.h"

#include <array>
#include <string_view>

/// "Subtotal setting": which taxa belong to each of the two groups that are counted apart, and what the
/// groups are called. Groups are 1 and 2. What is ticked and typed is stored at once.
struct SubtotalForm {
    bool visible = false;
    std::array<CheckBox, taxonSlots + 1> Check1; ///< by slot: the taxon is in the group on show
    std::array<OptionButton, 3> Option1;         ///< 1, 2: the group on show
    std::array<TextBox, 3> Text1;                ///< 1, 2: names of the groups
};
extern SubtotalForm frmSubtotal;

/// "Subtotal settings": opens the form with its check boxes where the taxa stand on the sheet.
void mnuSubtotal_Click();

void frmSubtotal_Option1_Click(int group);
/// The user turns a check box over.
void frmSubtotal_Check1_Click(int slot);
/// "Clear" (0) and "Select all" (1): every slot, with or without a taxon.
void frmSubtotal_Command2_Click(int value);
void frmSubtotal_Text1_Edited(int group, std::string_view text, int caret);
/// "OK".
void frmSubtotal_Command1_Click();
/// "Cancel": both groups get back the members that they had. Their names stay as typed.
void frmSubtotal_Command3_Click();

/// The names of the groups, from the heads of the sheet, in the captions of the sums and of the entries of
/// percentage tables.
void showSubtotalNames();
