#pragma once

/// The keys that raise the layer, whatever window they come from. They set sheet.Layer and the two shift
/// flags and turn no page.

bool isShiftKey(int keyCode);
/// A key of any kind goes down; one shift key raises the layer to 1, both to 2 in either order. A held one
/// that repeats adds nothing to a layer of its own.
void layerKeyDown(int keyCode);
void layerKeyUp(int keyCode);
/// Nothing counts as held any more.
void releaseLayerKeys();
