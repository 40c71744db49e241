#pragma once

/// What the main window does with its keys: it sees each before any of its controls.
/// `keyCode`: Windows virtual-key code, never 0; a held key comes as repeated key-downs without key-ups.
void Form_KeyDown(int keyCode, int shift);
/// The other half of the layer and Undo keys. A key-up of whatever key takes back the last count while the
/// Undo key is down and nothing was counted with it.
void Form_KeyUp(int keyCode, int shift);
/// The repeat guard ends.
void Timer1_Timer();
/// The window lost the keyboard: key-ups will not come, so no key counts as held any more. Nothing is taken
/// back. Within a running handler this waits for its end, so that a key that raised a question still counts
/// on its layer.
void Form_Deactivate();
