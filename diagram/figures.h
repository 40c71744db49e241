#pragma once

#include "platform/drawing.h"

/// Pictures of the diagram that leave the program.

enum class DiagramPart { diagram, names, dendrogram };

/// One picture of the window as it is in view.
Figure figureInView(DiagramPart part);
/// The whole diagram: all columns with their names and, while it is on show, the dendrogram.
Figure wholeFigure();
/// "Save picture...": the whole diagram as SVG, PDF or PNG, by the file's ending.
void mnuSavePicture_Click();
