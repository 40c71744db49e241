#pragma once

/// Modify template mode: its two doors, and what the mouse does on the boxes in it.

void mnuStartAmend_Click();
void mnuFinishAmend_Click();
/// "Modify" (0) and "Resume" (1).
void Command3_Click(int index);

/// A mouse button goes down on a taxon's name (slot 1 to 135), the sample's name (0) or a count. True if the
/// menu of the row, mnuRightButton, opens.
bool Text1_MouseDown(int slot, bool rightButton);
bool Text2_MouseDown(int slot, bool rightButton);
/// The cell whose box comes `step` places after that of `slot`, both 1 to 135, in the order of the keys; at
/// an end of the sheet the same. Its page comes into view.
int goFromCell(int slot, int step);
/// A double click ends the editing.
void Text1_DblClick();
void Text2_DblClick();
void Text4_DblClick();
/// A click on the caption of an additional info gives it the colon that it lacks.
void Label10_Click(int item);
