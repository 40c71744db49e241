#pragma once

#include "diagram/paint_diagram.h"

/// What the diagram window paints. All of it does nothing while the diagram is closed.

/// Brings shares, ranks, columns and the scroll bar up to date with the whole sheet. The only writer of the
/// plot data.
void PrepareDiagram();
void paintDiagram();
void paintTaxonNames();
/// The sample line: drawn while the box is checked or the pointer stands on it; red while the sample moves.
void paintSampleLine();
/// Moves the panel to the row of the selected sample.
void placePanel();

/// What of the diagram is in view.
DiagramView diagramView();
/// Places of the rows, 1 to SampleCount; and that of one sample.
std::vector<float> diagramRows();
float rowOfSample(int sample);
