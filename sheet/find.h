#pragma once

#include "core/sheet_size.h"
#include "platform/controls.h"

#include <array>
#include <string>
#include <string_view>

constexpr Colour foundCell = RGB(255, 210, 127);
constexpr Colour keyToTake = RGB(255, 127, 0);

/// A key of the small map in frmFind.
struct MapKey {
    std::string caption;
    Colour backColor = RGB(240, 240, 240);
};

/// "Find": finds a taxon as its name is typed, shows its cell on the main window and its key and shift keys
/// on a small map, and counts one individual of it as if its key had been pressed. The main window stays
/// disabled below it.
struct FindForm {
    bool visible = false;
    TextBox Text1;   ///< "Find what:"
    ListBox List1;   ///< matching names: equal ones first, then those that begin with the text
    Button Command3; ///< "Count": enabled while a name is marked in the list
    /// Grid positions 1 to 45, then 46 and 48 Shift-1, 47 and 51 Shift-2, 49 Undo, 50 Save. 0 is no key: it
    /// has the plain colour of all and takes the focus from them.
    std::array<MapKey, 52> Command1;
    std::array<Colour, taxonSlots + 1> savedColours{}; ///< of the main window's name boxes before the search

    /// The text with a small letter a to z at its beginning made a capital.
    static std::string Capitalise(std::string text);
    /// Shows the cell and the keys of the name that is marked in the list. Of equal names the cell with the
    /// highest slot becomes FoundSlot. There must be a marked name.
    void Display();
    /// Counts one individual of FoundSlot and closes the window. Nothing happens if none is shown; a taxon
    /// that no key counts leaves the window open and a line at the foot of the main one.
    void SelectTaxon();
};
extern FindForm frmFind;

/// "Find". Its entry is disabled in Modify template mode, where no key counts.
void mnuFind_Click();

void frmFind_Text1_Change();
/// No box of the sheet: what is typed here goes into no file, so it keeps to no character rule.
void frmFind_Text1_Edited(std::string_view text, int caret);
/// A line of the list, from 0, was chosen.
void frmFind_List1_Click(int line);
void frmFind_List1_DblClick();
/// Enter in the search box or the list shows the marked name, and counts it once it is on show.
void frmFind_Enter();
/// "Close", Esc and the frame.
void frmFind_Command2_Click();
/// "Count": of the marked name.
void frmFind_Command3_Click();
