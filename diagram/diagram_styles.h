#pragma once

class ColumnPainter;

/// A style in which the diagram shows the shares of a taxon. Another style is its painter, declared and
/// written beside these, and its entry in the table: menus and painting follow it.
struct DiagramStyle {
    const char* name;    ///< of its entries in the menus of the main window and the diagram window
    const char* caption; ///< of both
    void (*paintColumn)(ColumnPainter& column);
    bool beginsGroup = false; ///< the menus draw a line above it
};

void paintBars(ColumnPainter& column);
void paintCurve(ColumnPainter& column);
void paintDots(ColumnPainter& column);
void paintBarsAndCurve(ColumnPainter& column);
void paintDotsAndCurve(ColumnPainter& column);

/// In the order of the menus.
inline constexpr DiagramStyle diagramStyles[] = {{"mnuBar", "&Bar", paintBars},
                                                 {"mnuArea", "&Curve", paintCurve},
                                                 {"mnuDot", "&Dot (>0.5% only)", paintDots},
                                                 {"mnuCurve", "Bar and curve", paintBarsAndCurve, true},
                                                 {"mnuDotCurve", "Dot and curve", paintDotsAndCurve}};

constexpr int styleAtStart = 3; ///< number in the table, from 0
