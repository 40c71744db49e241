#pragma once

#include "platform/colour.h"

#include <cstddef>
#include <optional>
#include <string>
#include <utility>
#include <vector>

/// What a figure looks like. Texts are UTF-8. Lengths are millimetres, letters and lines points unless said
/// otherwise; taxa are named as FigureData names them.

enum class TaxonOrder {
    rows,    ///< by the rows of the sheet
    group,   ///< group after group, in each by the rows of the sheet
    wa,      ///< by the average depth, weighted with the shares: those that lie deepest first
    groupWa, ///< group after group, in each by that average
};
enum class FigureBasis { all, sub1, sub2 };
enum class NameSlant { plain, italic, words };
enum class ZonesBy { none, stick, hand };
enum class Transform { sqrt, none };
enum class ClusterMethod {
    grimm,     ///< incremental sum of squares, Grimm (1987)
    unweighted ///< the variant of the diagram window
};
enum class GroupFill { colours, greys, hatches };

/// How a taxon's shares are drawn; any of them together.
struct FigureStyle {
    bool silhouette = true;
    bool line = false;
    bool thickBars = false;
    bool thinBars = true;
    bool points = false;
    friend bool operator==(const FigureStyle&, const FigureStyle&) = default;
};

/// A group of taxa. Taxa that no group holds make one more, "Other taxa".
struct FigureGroup {
    std::string name;
    Colour colour;
    std::vector<std::string> taxa;
    friend bool operator==(const FigureGroup&, const FigureGroup&) = default;
};

struct DatedDepth {
    double depth = 0;
    double age = 0;
    friend bool operator==(const DatedDepth&, const DatedDepth&) = default;
};

struct FigureSettings {
    // The page.
    double width = 180;
    double height = 240;
    double left = 3;
    double right = 3;
    double top = 3;
    double bottom = 9;            ///< holds ticks, labels and the unit line
    std::optional<double> header; ///< what stands above the columns; absent: as high as it needs
    double pad = 1.5;             ///< free above the first and below the last sample
    std::string title;
    std::string foot;      ///< empty: the basis
    int dotsPerInch = 600; ///< of images

    // The taxa.
    FigureBasis basis = FigureBasis::all;
    double threshold = 2; ///< percent that a taxon reaches
    int samples = 2;      ///< in at least so many samples
    TaxonOrder order = TaxonOrder::rows;
    std::optional<std::vector<std::string>> taxa; ///< ticked, in their order; absent: threshold and order
    NameSlant slant = NameSlant::words;
    std::vector<std::pair<std::string, NameSlant>> slants; ///< of single taxa
    double namePoints = 8;
    double nameAngle = 60;           ///< degrees; 90 is upright
    double gap = 1.6;                ///< after each taxon
    std::vector<FigureGroup> groups; ///< empty: the two subtotals and what is outside of both
    bool headings = true;            ///< of groups, where these stand together

    // The style.
    FigureStyle style;
    double exaggeration = 10; ///< 0: none
    double below = 5;         ///< percent: taxa that stay below it are exaggerated
    bool plus = true;         ///< "+" for less than half a percent
    GroupFill fill = GroupFill::colours;

    // The axes.
    double step = 5;       ///< percent that the end of an axis is a multiple of
    double minPercent = 5; ///< that an axis shows at least
    double labelRoom = 4;  ///< least distance of two percent labels
    double axis = 14;      ///< room for the depth axis; at least 24 for names that are no numbers
    double axis2 = 14;     ///< room for the age axis, if there are ages
    std::string depthTitle = "Depth";
    std::string depthUnit = "cm";
    double depthStep = 0;            ///< of the labels; 0: chosen
    std::optional<double> depthFrom; ///< upper and lower end; absent: first and last sample
    std::optional<double> depthTo;
    std::vector<DatedDepth> ages; ///< ages lie on straight lines between them, and nowhere else
    std::string ageTitle = "Age";
    std::string ageUnit = "cal. yr BP";
    double ageStep = 0;

    // The zones.
    ZonesBy zonesBy = ZonesBy::stick;
    std::vector<double> cuts;          ///< by hand: depths, or places in the sheet where names are no numbers
    std::optional<std::string> prefix; ///< absent: from the name of the sheet
    std::vector<std::string> zoneNames; ///< from the bottom up; empty ones are made from the prefix
    Transform transform = Transform::sqrt;
    ClusterMethod method = ClusterMethod::grimm;

    // The panels, from left to right; 0: absent.
    double panelGap = 2.5; ///< before each
    double cumulative = 25;
    double total = 9;
    double concentration = 0;
    double zones = 9;
    double dendrogram = 22;

    friend bool operator==(const FigureSettings&, const FigureSettings&) = default;
};

enum class SettingsGroup { page, taxa, style, axes, zones, panels };

/// One number among the settings: its name in the file, its caption and unit in the window, its limits.
struct NumberSetting {
    const char* key;
    double FigureSettings::*member;
    double least;
    double most;
    const char* unit;
    const char* caption;
    SettingsGroup group;
};
extern const std::vector<NumberSetting> numberSettings;

/// The colours of Okabe and Ito, told apart by colour-blind eyes, in turn.
Colour groupColour(std::size_t index);
