#pragma once

#include "core/sheet_size.h"
#include "core/version.h"
#include "platform/controls.h"
#include "platform/drawing.h"

#include <array>
#include <optional>

/// Which control of the main window holds the keyboard focus, as far as handlers read or place it.
enum class MainFocus {
    Text99, ///< the hidden box that keeps the focus while keys count
    Text4,  ///< the note
    elsewhere
};

constexpr Colour modifyColour = RGB(200, 100, 100); ///< the sheet in Modify template mode

/// The main window. Index = slot 1 to 135 (key number + 45 x layer) unless said otherwise; element 0 is never
/// a taxon. The records are the sheet on show: the next key adds to the number in the text of Text2(slot).
/// A text whose change runs a handler is written with the setter of core/text_changes.h.
struct MainScreen {
    MainScreen();

    std::string caption = std::string("TallyStrata ") + programVersion + " - [Untitled]";
    bool visible = false;    ///< from the end of the start-up on; a first run comes before it
    int forwardRevision = 0; ///< goes up whenever the window is to come in front
    MainFocus focus = MainFocus::Text99;
    Pointer pointer = Pointer::arrow;
    int SSTab1 = 0;                    ///< page in view: 0 "Neutral", 1 "Shift 1 or 2", 2 "Shift 1 and 2"
    std::optional<Colour> sheetColour; ///< of Picture1 and SSTab1; nothing: the window's own
    std::string notice;                ///< line at the foot of the window: what an entry would say
    std::string readingNotice; ///< stands there while there is no other: what of the sheet's file was not
                               ///< read; until the sheet is counted in, edited or replaced
    std::string diskNotice;    ///< stands there while there is no other: unsaved work cannot be kept

    // The taxon cells.
    std::array<TextBox, taxonSlots + 1> Text1; ///< taxon name; 0: name of the sample on show; setText1()
    std::array<TextBox, taxonSlots + 1> Text2; ///< count of the sample on show, may be negative; setText2()
    std::array<Label, taxonSlots + 1> Label1;  ///< key index of the cell; 0: "Sample name: "

    TextBox Text0;  ///< hidden: carries a slot to the count; setText0()
    TextBox Text99; ///< hidden: keeps the focus

    // The sample on show and its sums.
    ComboBox Combo2;                     ///< names of all samples; text: the one on show
    Label Label4;                        ///< serial number / highest serial number, as in "1/1"; setLabel4()
    std::array<Label, 3> Label2;         ///< captions of the sums: 0 all total, 1 subtotal-1, 2 subtotal-2
    std::array<TextBox, 3> Text3;        ///< the sums, whole numbers; setText3()
    std::array<OptionButton, 3> Option1; ///< the sum that the alarm watches and percentages go by
    std::array<bool, 3> hundredMark{}; ///< the last key brought this sum, the watched one, to a full hundred
    TextBox Text4;                     ///< note
    std::array<TextBox, infoItems + 1> Text5;   ///< additional info 1 to 6
    Label Label8;                               ///< hidden: mirrors the additional info stored last
    std::array<Label, infoItems + 1> Label10;   ///< its captions
    std::array<Button, infoItems + 1> Command7; ///< "Rename"
    std::array<Label, 3> Label14;               ///< 0 sheet created, 1 count start, 2 last saved

    Surface Picture2; ///< the saturation curve; tenths of an individual to the right, of a taxon upwards

    // History and file.
    LogBox Text7;    ///< all actions, one a line
    ComboBox Combo1; ///< all actions; text: the latest
    TextBox Text6;   ///< path of the sheet, broken into lines that fit
    ProgressBar ProgressBar1;

    // Buttons.
    std::array<Button, 1> Command2; ///< "Reset"
    std::array<Button, 2> Command3; ///< 0 "Modify", 1 "Resume"
    std::array<Button, 1> Command4; ///< "Open"
    std::array<Button, 2> Command5; ///< 0 "Save": enabled while there is something to save; 1 "Next sample"
    Button Command6;                ///< "%"
    Button Command8;                ///< "Alignment"
    Button Command9;                ///< "Go"

    // Menus. Only entries whose state a handler changes stand here.
    MenuEntry mnuNew, mnuNewFromTable, mnuOpen, mnuSave, mnuSaveAs, mnuSaveCopy, mnuNext, mnuSaveHistory;
    MenuEntry mnuPercent, mnuPercentAll, mnuPercentSub1, mnuPercentSub2; ///< captions follow the subtotals
    MenuEntry mnuUndo, mnuReset, mnuStartAmend, mnuFinishAmend, mnuTaxaFromList, mnuFind;
    MenuEntry mnuDiagramStyles; ///< all styles of the menu Diagram, offered together
    MenuEntry mnuItalic, mnuFavorite;
    MenuEntry mnuCopyDiversity, mnuSaveDiversity;    ///< pop-up of the saturation curve
    std::array<MenuEntry, taxonSlots + 1> mnuMoveTo; ///< mnuMoveTo1, 2, 3: target slots of a move
    std::array<MenuEntry, 11> mnuFontSize;           ///< index 6 to 10: the size in points
    std::array<MenuEntry, 2> mnuAlign;               ///< 0 "Left", 1 "Right"
};
