#pragma once

#include <string>

/// Kind of box that the user edits.
enum class EditedBox { none, Text1, Text2, Text4, Text5 };

/// The visit of a box in Modify template mode, from when it gets the focus until it is left.
struct BoxVisit {
    EditedBox Edited = EditedBox::none;
    int EditedIndex = 0;     ///< index of the box
    std::string EditOld;     ///< its text when the visit began
    int LastKeyDown = 9999;  ///< last key that went down in it, 9999 for none yet
    float PreviousCount = 0; ///< number that a refused one gives way to
};
