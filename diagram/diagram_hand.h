#pragma once

#include "platform/controls.h"

/// What the keyboard, the wheel and the menu bar of the diagram window do beside the mouse.
struct DiagramHand {
    MenuEntry mnuSaveConiss; ///< of the menu bar; the dendrogram is on show
    int turned = 0;          ///< of the wheel since the last step of the zoom, in eighths of a degree
};
extern DiagramHand diagramHand;

/// The menu File of the window is about to be seen.
void mnuDiagramFile_Open();

/// Selects the sample above (-1) or below (1), as far as there is one.
void pickSample(int step);
/// Moves the selected sample up or down by one place, in a sheet in which the mouse may.
void carryPickedSample(int step);
/// The wheel is turned over a picture, in eighths of a degree, a notch being 120; away from the user it goes
/// to the left, and `zooms` in.
void turnWheel(int angle, bool zooms);
