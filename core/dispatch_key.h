#pragma once

/// The single entry for every key press that is to count, from whatever window it comes.
/// `keyCode`: Windows virtual-key code, never 0; `shift`: modifier state, handed on unused.
/// A key that is bound to nothing, or that comes while KeysActive is false, is dropped without a word.
void DispatchKey(int keyCode, int shift);

/// True if the key has a function while counting: a counter key, a layer key, Undo or Save of the key map in
/// force. Such a key belongs to the count alone: it moves no focus, presses no button and opens no menu.
bool isBoundKey(int keyCode);
