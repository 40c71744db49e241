#pragma once

/// A key pressed in a box of frmKeyCode gives the box its text and the key its code. Each key that goes down
/// takes the place of the one before, so that text and code are always of one key. A box that is left empty
/// gets its old key back. `key`: 1 to 45. `keyCode`: Windows virtual-key code. `character`: Unicode, what the
/// key typed, control characters included.

void frmKeyCode_Text1_GotFocus(int key);
void frmKeyCode_Text1_KeyDown(int key, int keyCode);
void frmKeyCode_Text1_KeyPress(int key, char32_t character);
void frmKeyCode_Text1_KeyUp(int key, int keyCode);
void frmKeyCode_Text1_LostFocus(int key);

/// Where the keys go on to: the key that stands behind `key`, by rows as they are seen, or the function
/// behind `function`. 0 or -1: there is none, or the box has taken no key.
int keyBehind(int key);
int functionBehind(int function);

/// `function`: 0 Shift-1, 1 Shift-2, 2 Undo, 3 Save; 4 gives the upper row of the grid the nine codes from
/// the pressed one on.
void frmKeyCode_Text4_GotFocus(int function);
void frmKeyCode_Text4_KeyDown(int function, int keyCode);
void frmKeyCode_Text4_KeyPress(int function, char32_t character);
void frmKeyCode_Text4_KeyUp(int function, int keyCode);
void frmKeyCode_Text4_LostFocus(int function);
