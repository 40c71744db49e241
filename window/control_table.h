#pragma once

// What the tables say from which the windows, and the tests of the windows, learn what their controls are.

#include "core/main_screen_type.h"
#include "diagram/diagram_form.h"
#include "keys/key_editor.h"

#include <QMetaType>
#include <optional>
#include <string_view>
#include <variant>
#include <vector>

constexpr int noIndex = -1; ///< of a control that is not one of several

/// A function without a value that takes the index of its control, a value of its own, or nothing.
class Handler {
public:
    Handler() = default;
    Handler(void (*plain)()) : plain_(plain) {}
    Handler(void (*indexed)(int)) : indexed_(indexed) {}
    Handler(void (*indexed)(int), int value) : indexed_(indexed), value_(value) {}

    explicit operator bool() const { return plain_ != nullptr || indexed_ != nullptr; }
    void operator()(int index) const
    {
        if (plain_ != nullptr)
            plain_();
        else if (indexed_ != nullptr)
            indexed_(value_.value_or(index));
    }
    std::optional<int> value() const { return value_; }
    /// Where its code stands.
    const void* address() const
    {
        return plain_ != nullptr ? reinterpret_cast<const void*>(plain_)
                                 : reinterpret_cast<const void*>(indexed_);
    }

private:
    void (*plain_)() = nullptr;
    void (*indexed_)(int) = nullptr;
    std::optional<int> value_;
};

/// What the user typed. `caret`: characters before the caret, 0 to the length of `text`.
class EditHandler {
public:
    EditHandler() = default;
    EditHandler(void (*plain)(std::string_view, int)) : plain_(plain) {}
    EditHandler(void (*indexed)(int, std::string_view, int)) : indexed_(indexed) {}

    explicit operator bool() const { return plain_ != nullptr || indexed_ != nullptr; }
    void operator()(int index, std::string_view text, int caret) const
    {
        if (plain_ != nullptr)
            plain_(text, caret);
        else
            indexed_(index, text, caret);
    }

private:
    void (*plain_)(std::string_view, int) = nullptr;
    void (*indexed_)(int, std::string_view, int) = nullptr;
};

/// The record that a control shows: of several controls that with index 0.
using RecordOf = std::variant<std::monostate, TextBox*, Label*, Button*, OptionButton*, CheckBox*, ComboBox*,
                              ListBox*, LogBox*, ProgressBar*, Slider*, ScrollBar*, KeyBox*>;

/// A control of a window, or several of one name.
struct ControlRow {
    const char* name;
    RecordOf record = {};
    int first = noIndex; ///< indexes; noIndex: it is a single one, without an index
    int last = noIndex;
    Handler clicked = {};    ///< a button, an option or a mark
    EditHandler edited = {}; ///< a box with a TextBox and without this takes what is typed as typeInto() does
    Handler entered = {};    ///< a visit of a box begins
    Handler left = {};       ///< and ends
    Handler changed = {};    ///< the user moved a slider or chose a line: its value or number
    void (*chosen)(std::string_view item) = nullptr;        ///< an item of a ComboBox
    bool (*pressed)(int index, bool rightButton) = nullptr; ///< a mouse button; true: `menu` opens
    const char* menu = nullptr;                             ///< name of the menu that a press may open
    void (*doubleClicked)() = nullptr;
    bool (*pasted)(int index, std::string_view text) = nullptr; ///< true: the box takes nothing of it
    void (*keyDown)(int index, int keyCode) = nullptr; ///< of a box that takes keys by their being pressed
    void (*keyPress)(int index, char32_t character) = nullptr;
    void (*keyUp)(int index, int keyCode) = nullptr;
    void (*hovered)() = nullptr; ///< the mouse moves over it
    bool isNumber = false;       ///< typing replaces what stands there
};

/// Which control a widget stands for.
struct Control {
    const ControlRow* kind = nullptr; ///< nullptr: none
    int index = noIndex;
};
Q_DECLARE_METATYPE(Control)

/// A menu. It comes where its first entry stands; those of the bar come first of all, in their order.
struct MenuRow {
    const char* name;
    const char* caption; ///< nullptr: it pops up
    const char* parent;  ///< nullptr: stands in the bar, or pops up
};

/// An entry of a menu.
struct EntryRow {
    const char* menu;           ///< name of the one that it stands in
    const char* name = nullptr; ///< nullptr: a line between entries
    const char* caption = nullptr;
    MenuEntry* record = nullptr; ///< entries without one are always enabled
    Handler clicked = {};
    bool checkable = false;
    bool hidden = false;
    const int* chosen = nullptr; ///< one of several: checked while this is what `clicked` is given
};

/// The styles of the diagram, as they stand in both windows' menus: `clicked` is given the style's number.
std::vector<EntryRow> styleEntries(const char* menu, MenuEntry* record, void (*clicked)(int style),
                                   const int* chosen = nullptr);
