#pragma once

/// While the user counts, no control of the main window keeps the focus: every click sends it back to the
/// hidden box whose keys count. In Modify template mode the cells are edited and the focus stays where it is.

/// A click on the window, a frame, the picture, the sums, the file location or the latest action, and the end
/// of a menu command that returns to counting.
void giveFocusBack();
/// A page was chosen by its tab: 0 to 2.
void SSTab1_Click(int page);
/// A click on the key index of a cell (slot 1 to 135) or on the caption of the sample's name (0) marks the
/// row from which a move starts. True if the menu of the row, mnuRightButton, opens.
bool Label1_Click(int slot);
/// The mouse moves over a taxon's name or count: it feels editable only in Modify template mode.
void Text1_MouseMove();
/// The mouse leaves the taxon cells.
void Form_MouseMove();
