#pragma once

#include "diagram/diagram_styles.h"
#include "diagram/plot_data.h"
#include "platform/drawing.h"

#include <vector>

/// What part of a diagram is painted, and how.
struct DiagramView {
    void (*paintColumn)(ColumnPainter&) = diagramStyles[styleAtStart].paintColumn;
    Colour colour;    ///< of bars, curves and dots
    float zoom = 1;   ///< units of width to one percent
    float scroll = 0; ///< percent that lie left of the view
    Scale scale{0, 0, 500, 1};
};

/// Scale of a diagram of `samples` rows, 2 or more: row i at 10 x i, with a margin above and below.
Scale rowScale(int samples, float width);

/// The diagram: for each column in view its shares, its axis and a tick at each ten percent above and below.
/// A sample whose basis holds no individual breaks the curve, which is closed against the axis on both sides.
/// `rows`: place of each row, 1 to N. Nothing for fewer than two samples.
Drawing planDiagram(const PlotData& plot, const std::vector<float>& rows, const DiagramView& view);

/// The names above the columns in view, running upwards from `origin`, in pixels. Genera and species are
/// italic; families, whose names end in "ae" or "AE", stand upright, and so does a list without families.
Drawing planNames(const PlotData& plot, const DiagramView& view, float origin);

/// The letters of a column's name. `longest`: pixels; 0 for no limit.
Letters nameLetters(const std::string& name, bool italic, float longest = 0);

constexpr float pixelsPerUnit = 0.99F; ///< of the diagram's width and of the places of the names
