#pragma once

/// "OK": stores the boxes in the key settings, writes their file and closes the window. If two keys are alike
/// or the file cannot be written, a message tells it and nothing is stored.
void frmKeyCode_Command4_Click();

/// "Cancel", and the frame: the key settings are again as they were when the window opened.
void frmKeyCode_Command1_Click();

/// Looks for equal boxes and tells no one. Nothing calls it: the test that counts is the one of "OK".
void CheckDouble();
