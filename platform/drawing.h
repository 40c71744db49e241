#pragma once

#include "platform/colour.h"

#include <cstdint>
#include <string>
#include <vector>

/// Pictures as lists of what is painted, so that the same picture can be shown, copied, written to a file and
/// read by a test. Later marks lie over earlier ones.

/// The user coordinates of a surface: `left` and `top` are those of its upper left corner. A negative height
/// lets y grow upwards.
struct Scale {
    float left = 0;
    float top = 0;
    float width = 1;
    float height = 1;
    friend bool operator==(const Scale&, const Scale&) = default;
};

/// One thing painted.
struct Mark {
    enum class Kind : std::uint8_t {
        line,   ///< from (x1, y1) to (x2, y2), as thin as the device draws it
        box,    ///< filled, corners (x1, y1) and (x2, y2), no outline
        circle, ///< filled and outlined: centre (x1, y1), radius x2 in horizontal units; round on the device
        text    ///< (x1, y1) is where its first letter's upper left corner stands
    };
    Kind kind = Kind::line;
    Colour pen;  ///< of lines, outlines and texts
    Colour fill; ///< of boxes and circles
    float x1 = 0;
    float y1 = 0;
    float x2 = 0;
    float y2 = 0;
    int letters = -1; ///< of a text: index in Drawing::texts
    friend bool operator==(const Mark&, const Mark&) = default;
};

/// What a text mark says and how. Its height is in pixels of the design.
struct Letters {
    std::string text; ///< in the code page of the data sheets
    float height = 12;
    bool italic = false;
    float longest = 0;    ///< pixels; a longer text is cut and ends in an ellipsis; 0: no limit
    bool upwards = false; ///< runs from bottom to top, its letters' tops to the left
    friend bool operator==(const Letters&, const Letters&) = default;
};

struct Drawing {
    std::vector<Mark> marks;
    std::vector<Letters> texts;

    void line(float x1, float y1, float x2, float y2, Colour pen)
    {
        marks.push_back({Mark::Kind::line, pen, {}, x1, y1, x2, y2});
    }
    void box(float x1, float y1, float x2, float y2, Colour fill)
    {
        marks.push_back({Mark::Kind::box, {}, fill, x1, y1, x2, y2});
    }
    void circle(float x, float y, float radius, Colour pen, Colour fill)
    {
        marks.push_back({Mark::Kind::circle, pen, fill, x, y, radius});
    }
    void text(float x, float y, Letters letters, Colour pen)
    {
        marks.push_back({Mark::Kind::text, pen, {}, x, y, 0, 0, static_cast<int>(texts.size())});
        texts.push_back(std::move(letters));
    }
    void clear()
    {
        marks.clear();
        texts.clear();
    }
};

/// A picture on the screen: one that lasts, and a layer of passing lines over it. The revisions go up with
/// each change, so that a view need not compare the lists.
struct Surface {
    Scale scale;
    float width = 220; ///< its size on the screen, pixels of the design; a letter of 12 is 12 of them
    float height = 150;
    float devicePixels = 1; ///< of the screen to one pixel of the design
    Drawing picture;
    Drawing layer;
    int pictureRevision = 0;
    int layerRevision = 0;

    void setPicture(Drawing drawing)
    {
        picture = std::move(drawing);
        ++pictureRevision;
    }
    void clearPicture() { setPicture({}); }
    void clearLayer()
    {
        layer.clear();
        ++layerRevision;
    }
    /// Adds a line to the layer.
    void lineInLayer(float x1, float y1, float x2, float y2, Colour pen)
    {
        layer.line(x1, y1, x2, y2, pen);
        ++layerRevision;
    }
};

/// Pictures laid out on one page, as they leave the program. Lengths in pixels of the design.
struct Figure {
    struct Panel {
        float left = 0;
        float top = 0;
        float width = 0;
        float height = 0;
        Scale scale;
        Drawing drawing; ///< what stands outside of the panel is not seen
    };
    float width = 0;
    float height = 0;
    std::vector<Panel> panels;
};
