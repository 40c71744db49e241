#pragma once

/// Moving a taxon with its counts in all samples to another slot. `layer`: 0 to 2, the block of 45 slots that
/// a target menu offers.

/// A target menu opens: its page comes into view and its entries show slots and names.
void openTargetMenu(int layer);
/// A target menu has closed, and what was chosen in it has been done: entries of slots with counts are
/// disabled for the next opening. On purpose not for this one, so what stands in a menu is what was seen when
/// it closed last.
void targetMenuClosed(int layer);

/// A target was chosen: slots 1 to 45, 46 to 90, 91 to 135. One with counts, which a menu opened for the
/// first time still offers, is overwritten after a question only.
void mnuMoveTo_Click(int target);

/// Moves the row of `sheet.MoveSource` to `target`, over what stands there. Nothing happens without a source,
/// or if both are the same. The undo stack goes on naming the old slot, and the move cannot be undone.
void TransferTaxa(int target);
