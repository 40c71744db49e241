#pragma once

/// Takes back the newest count of the undo stack, in the sample where it was made: that sample comes on show
/// first. An entry without a slot stops it for good. Does nothing while KeysActive is false. No messages.
void Undo();
/// "Undo".
void mnuUndo_Click();
/// Counting in reverse is told by MinusArmed; this operation does nothing and is kept for its name.
void Amend();
