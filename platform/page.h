#pragma once

#include "platform/colour.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// A page as a list of what is on it, replayed alike on the screen, into an SVG or PDF file and
/// into an image. Lengths are millimetres from the top left of the page, sizes of letters and widths of lines
/// points (1/72 inch). Texts are UTF-8. Later marks lie over earlier ones.

constexpr double millimetresPerPoint = 25.4 / 72;

/// How a line is drawn.
struct Stroke {
    Colour colour;
    double points = 0; ///< width; 0: no line
    double dash = 0;   ///< mm drawn and mm left out; 0: unbroken
    double space = 0;
};

struct PagePoint {
    double x = 0;
    double y = 0;
    friend bool operator==(const PagePoint&, const PagePoint&) = default;
};

struct PageBox {
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;
};

/// Letters of one slant within a text.
struct TextRun {
    std::string text;
    bool italic = false;
};

enum class Anchor : std::uint8_t { start, middle, end };

struct PageText {
    std::vector<TextRun> runs;
    double points = 8;
    double angle = 0; ///< degrees that it is turned counterclockwise about its place
    Anchor anchor = Anchor::start;
    Colour colour;
    double width = 0; ///< mm, as measured when the page was planned
};

struct PageMark {
    enum class Kind : std::uint8_t {
        line,   ///< each two of its points are the ends of a line
        curve,  ///< one line through its points
        area,   ///< filled and outlined
        circle, ///< round its point, filled and outlined
        text    ///< its point is on the base line, where the anchor says
    };
    Kind kind = Kind::line;
    Stroke stroke;
    std::optional<Colour> fill;
    double radius = 0;
    std::uint32_t firstPoint = 0; ///< in Page::points
    std::uint32_t points = 0;
    int text = -1;  ///< in Page::texts
    std::string id; ///< empty for most
};

/// Marks that belong together, one after the other; the groups do not overlap.
struct PageGroup {
    std::string id;
    std::string title;                ///< empty: none
    std::optional<double> left = {};  ///< of the panel that it is
    std::optional<double> width = {}; ///< of that panel
    std::optional<PageBox> clip = {}; ///< what stands outside is not seen
    std::size_t first = 0;            ///< in Page::marks
    std::size_t end = 0;              ///< behind the last
};

struct Page {
    double width = 0;
    double height = 0;
    std::string title;
    std::string description;
    std::vector<PageMark> marks;
    std::vector<PagePoint> points;
    std::vector<PageText> texts;
    std::vector<PageGroup> groups;

    void begin(PageGroup group)
    {
        group.first = group.end = marks.size();
        groups.push_back(std::move(group));
    }
    void end() { groups.back().end = marks.size(); }
    /// One mark; returned to be completed.
    PageMark& mark(PageMark::Kind kind, const Stroke& stroke)
    {
        PageMark made;
        made.kind = kind;
        made.stroke = stroke;
        made.firstPoint = static_cast<std::uint32_t>(points.size());
        marks.push_back(std::move(made));
        return marks.back();
    }
    /// One more point of the mark made last.
    void point(double x, double y)
    {
        points.push_back({x, y});
        ++marks.back().points;
    }
    void line(double x1, double y1, double x2, double y2, const Stroke& stroke)
    {
        mark(PageMark::Kind::line, stroke);
        point(x1, y1);
        point(x2, y2);
    }
    void text(double x, double y, PageText letters)
    {
        mark(PageMark::Kind::text, {}).text = static_cast<int>(texts.size());
        point(x, y);
        texts.push_back(std::move(letters));
    }
};
