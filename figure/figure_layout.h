#pragma once

#include "figure/taxon_choice.h"

#include <array>
#include <functional>

/// Where everything of a figure stands: millimetres from the top left of the page.

/// How wide a UTF-8 text is, as a multiple of the size of its letters.
using LetterWidths = std::function<double(std::string_view text, bool italic)>;

struct FigureColumn {
    ShownTaxon shown;
    double left = 0;
    double width = 0;
    double reach = 0;     ///< percent at the end of its axis
    double largest = 0;   ///< percent
    double labelStep = 0; ///< percent between labels
};

struct FigurePanel {
    double left = 0;
    double width = 0; ///< 0: absent
    double right() const { return left + width; }
};

struct FigureLayout {
    double titleHeight = 0;
    double headingHeight = 0; ///< of the group headings or the legend
    double header = 0;        ///< all above the columns, below the top margin
    double neededHeader = 0;
    double axisLeft = 0;   ///< where the room of the depth axis begins
    double plotLeft = 0;   ///< left edge of the first column
    double plotRight = 0;  ///< right edge of the last column or panel
    double plotTop = 0;    ///< upper end of the columns' frames
    double plotBottom = 0; ///< and lower end
    double mmPerPercent = 0;
    double firstDepth = 0; ///< at plotTop + pad
    double lastDepth = 0;  ///< at plotBottom - pad
    std::vector<FigureColumn> columns;
    FigurePanel cumulative, total, concentration, zones, dendrogram;
    std::vector<double> y; ///< of each sample
    double pad = 0;

    /// Where a depth stands; a place in the sheet where names are no numbers.
    double yOf(double depth) const;
};

constexpr double leastScale = 0.1; ///< millimetres to a percent: below, nothing can be read

/// The panels right of the taxa, from left to right.
struct PanelKind {
    FigurePanel FigureLayout::*place;
    double FigureSettings::*width;
    const char* id;
    const char* name; ///< stands above it
};
std::array<PanelKind, 5> panelKinds(const FigureSettings& settings);

/// `headings`: height that the group headings need, 0 for none. The scale is 0 or less, and there are no
/// places of columns, where the page has no room for them.
FigureLayout layOutFigure(const FigureData& data, const FigureShares& shares,
                          const std::vector<ShownTaxon>& taxa, const FigureSettings& settings,
                          double headings, const LetterWidths& widths);

/// The room of the depth axis: names that are no numbers need more.
double depthAxisWidth(const FigureData& data, const FigureSettings& settings);

/// The slant of a taxon's name.
NameSlant slantOf(const FigureSettings& settings, const std::string& taxon);
