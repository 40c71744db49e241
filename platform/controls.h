#pragma once

#include "platform/colour.h"

#include <string>
#include <vector>

/// Control records: what the program's behaviour reads or writes of a control, and nothing of its looks.
/// Texts are in the single-byte code page of the data sheets (Windows-1252), so a position in a text is a
/// character. Places and sizes are in twips (15 to a pixel at the design size).

struct TextBox {
    std::string text;
    bool enabled = true;
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool rightAligned = false;
    int fontSize = 8; ///< points at the design size
    int caret = 0;    ///< characters before the caret
    Colour backColor = RGB(255, 255, 255);
    int top = 0;
    int left = 0;
    bool showsEnd = false; ///< a text too long for its box is seen from its end
    friend bool operator==(const TextBox&, const TextBox&) = default;
};

struct Label {
    std::string caption;
    bool visible = true;
    bool enabled = true;
    bool bold = false;
    int top = 0;
    int left = 0;
    friend bool operator==(const Label&, const Label&) = default;
};

struct Button {
    bool enabled = true;
    bool visible = true;
};

struct OptionButton {
    bool selected = false;
};

struct CheckBox {
    std::string caption;
    bool checked = false;
    bool visible = true;
    int top = 0;
    int left = 0;
};

/// A box with a list. `itemsRevision` goes up whenever `items` is changed in another way than by adding at
/// its end, so that a view of a long list need not compare it item by item.
struct ComboBox {
    std::string text;
    std::vector<std::string> items;
    int itemsRevision = 0;
};

/// A list of which one line may be chosen.
struct ListBox {
    std::vector<std::string> items;
    int chosen = -1; ///< from 0; -1: none
};

/// A text that only grows at its end while the program runs.
struct LogBox {
    std::string text;
};

struct MenuEntry {
    bool enabled = true;
    bool checked = false;
    std::string caption = {}; ///< empty: as designed
};

struct ProgressBar {
    bool visible = false;
    int value = 0;
    int max = 100;
};

enum class Pointer { arrow, iBeam, hourglass };
