#pragma once

#include "keys/key_settings_file.h"
#include "platform/controls.h"

/// A box of a key map.
struct KeyBox {
    std::string text;
    int top = 0; ///< twips within the map
    int left = 0;
    bool red = false; ///< one of two that a commit found equal
};

constexpr int keyBoxWidth = 505; ///< twips
constexpr int keyBoxHeight = 285;
constexpr int keyMapWidth = 6415;
constexpr int keyMapHeight = 2280;
constexpr int lastKeyBox = 51; ///< second box of Shift-2; mirrors box 47

/// "Key settings". Index 1 to 45: key number (Text1, Text2) or grid position (Text3); 46 to 50: the function
/// keys, as the rows of the key settings.
struct KeyCodeForm {
    bool visible = false;
    int SSTab1 = 0; ///< 0 "Key definition", 1 "Key code", 2 "Key number"
    std::array<KeyBox, lastKeyBox + 1>
        Text1; ///< key definition map; boxes 46 to 51 only name their functions
    std::array<KeyBox, lastKeyBox + 1> Text2; ///< key code map; filled by presses, never typed in
    std::array<KeyBox, lastKeyBox + 1> Text3; ///< key number map
    std::array<KeyBox, 5> Text4;         ///< capture: 0 Shift-1, 1 Shift-2, 2 Undo, 3 Save, 4 the [F1] key
    std::array<OptionButton, 2> Option1; ///< 0 "Left handed", 1 "Right handed"
    Button Command5;                     ///< "Default", on page 2 only
    Label Label2;                        ///< always empty: the code is seen in the key code map
    Label Label4;                        ///< character code of the last press in a Text1 box
    ProgressBar ProgressBar1;            ///< on show while the settings are being saved
    std::string savedDefinition;         ///< of the Text1 box in visit, when the visit began
    std::string savedCode;               ///< its code, or that of the Text4 box in visit
    std::string savedText;               ///< of the Text3 or Text4 box in visit
    KeySettingTable snapshot;            ///< rows 0 to 50 when the window opened
};
extern KeyCodeForm frmKeyCode;

void mnuKeyCodeReader_Click();

void frmKeyCode_SSTab1_Click(int page);
/// "Left handed" (0) or "Right handed" (1). Each click moves the boxes again, also of the button that is
/// selected already: on purpose no position is stored, and the Save key's box may leave the map.
void frmKeyCode_Option1_Click(int side);
/// "All clear": empties the boxes of the page in view; nothing is stored before "OK".
void frmKeyCode_Command2_Click();
/// "Default": each key number goes to its own place, at once in the key settings too.
void frmKeyCode_Command5_Click();

/// "Delivered keys": the boxes take what was delivered with the program; nothing is stored before "OK".
void frmKeyCode_DeliveredKeys_Click();

/// A visit of a box of the key number map, position 1 to 45: the number is typed.
void frmKeyCode_Text3_GotFocus(int position);
void frmKeyCode_Text3_LostFocus(int position);
void frmKeyCode_Text3_Edited(int position, std::string_view text, int caret);

/// The boxes show a table: texts, codes, numbers and the places that the key number map gives them.
void showKeySettings(const KeySettingTable& table);
void closeKeyEditor();
