#pragma once

#include "platform/drawing.h"

#include <cstdint>
#include <vector>

/// The saturation curve: taxa seen against individuals counted.

/// The red line through a curve's points, in tenths of an individual to the right and tenths of a taxon
/// upwards. `curve`: at index n ten times the taxa seen at n individuals, 0 for no point. `columns`: of
/// pixels that the individuals are spread over. Where several points fall into one column of pixels they
/// become its upright stroke, so there are never more than two lines a column, and the picture is the same.
Drawing planCurve(const std::vector<std::int16_t>& curve, int columns);

/// The all total has changed: adds its point, unless the sample has only just come on show, and draws anew.
void DrawDiversity();
/// Picture2 has another size.
void Picture2_Resize();
/// The pop-up of the picture opens; without a curve there is nothing to copy or to save.
void mnuDiversityRB_Open();
/// "Copy image".
void mnuCopyDiversity_Click();
