#pragma once

#include "core/fingerprint.h"
#include "platform/colour.h"

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

constexpr int taxonSlots = 135;    ///< slots 1 to 135; slot 0 holds headers or totals, never a taxon
constexpr int keysPerLayer = 45;   ///< slot = key number + 45 x layer
constexpr int sampleLimit = 250;   ///< most samples in a sheet
constexpr int sampleColumns = 256; ///< columns that the tables have room for, 0 to 255
constexpr int infoItems = 6;       ///< additional info items of a sample, 1 to 6

/// A table with one column for each sample, 0 to 255; its rows lie behind one another.
template <class Element, int Rows>
class SampleTable {
public:
    Element& operator()(int sample, int row)
    {
        return elements_[static_cast<std::size_t>(row) * sampleColumns + static_cast<std::size_t>(sample)];
    }
    const Element& operator()(int sample, int row) const
    {
        return elements_[static_cast<std::size_t>(row) * sampleColumns + static_cast<std::size_t>(sample)];
    }
    friend bool operator==(const SampleTable&, const SampleTable&) = default;

private:
    std::vector<Element> elements_ = std::vector<Element>(static_cast<std::size_t>(Rows) * sampleColumns);
};

/// One taxon row. All fields are text, as they go into the file.
struct TaxonFields {
    std::string RowNumber;       ///< the slot number: a stable label of the row
    std::string KeyIndex;        ///< number of the key whose press counts this row, "1" to "135"
    std::string Subtotal1 = "0"; ///< "1" if the taxon belongs to the first subtotal
    std::string Subtotal2 = "0"; ///< "1" if the taxon belongs to the second subtotal
    std::string Name = "---";    ///< "---" for a row without a taxon
};

/// One row of the key settings.
struct KeySettingRow {
    std::string Definition; ///< what the user sees for the key, such as "[F1]" or "q"
    std::string Code;       ///< decimal Windows virtual-key code
    std::string Number;     ///< rows 1 to 45: the key number shown at this position of the grid
};

/// Rows of the key settings with a function of their own; rows 1 to 45 are the counter keys.
enum KeySettingRows {
    rowShift1 = 46,
    rowShift2 = 47,
    rowShift1Copy = 48,
    rowUndo = 49,
    rowSave = 50,
    rowFirstReference = 51, ///< to 62: twelve named keys that tell one keyboard from another
    keySettingRows = 63
};

/// One count that can be taken back.
struct UndoEntry {
    std::int16_t sample = 0; ///< column that was counted
    std::int16_t slot = 0;   ///< positive: counted, negative: counted in reverse, 0: no count
};

/// Kind of box that the user edits.
enum class EditedBox { none, Text1, Text2, Text4, Text5 };

/// Everything about the open sheet, the key settings, the log and the modes. The member initialisers are the
/// state of a program that has just been started: an empty sheet with one sample.
struct SheetState {
    SheetState();

    // The sheet. Index (sample, slot) or (sample, row); sample 1 to SampleCount is a column of the sheet.
    SampleTable<std::int32_t, taxonSlots + 1> Count; ///< may be negative; slot 0 is scratch of the % basis
    SampleTable<float, taxonSlots + 1> Share; ///< of the % basis, as a fraction; filled anew for each use
    SampleTable<std::string, 3> SampleField;  ///< row 0 place on the depth axis, 1 serial number, 2 name
    SampleTable<std::string, 1> SampleNote;   ///< row 0: the note, "---" if there is none
    SampleTable<std::string, 4> SampleStamp;  ///< rows 1 created, 2 count start, 3 last modified
    SampleTable<std::string, infoItems + 1> AdditionalInfo; ///< row = item 1 to 6; column 0: the captions
    std::array<TaxonFields, taxonSlots + 1> TaxonRecord; ///< 0: the running subtotals of the sample on show
    std::array<std::int16_t, taxonSlots + 1> KeyIndexOfRow; ///< file row 1 to 135 -> key index
    std::array<std::int16_t, taxonSlots + 1> RowOfKeyIndex; ///< the inverse
    std::array<std::array<std::string, 5>, 3> SheetHeader;  ///< rows 1, 2, columns 1 to 4: heads of the file
    std::array<std::string, 5> NoteHeader;                  ///< columns 1 to 4
    std::array<std::array<std::string, 5>, infoItems + 1> AdditionalHeader; ///< rows 1 to 6; column 4: label
    std::array<std::array<std::string, 5>, 4> DateHeader;                   ///< rows 1 to 3
    int FileGeneration = 3;      ///< layout of the file that was read last: 0 unknown, 1, 2, or 3 as written
    bool TemplateOpened = false; ///< the sheet came from a template and has not been saved since
    std::array<std::int16_t, sampleColumns> SampleSerial{}; ///< column -> serial number, as last read
    std::array<std::int16_t, sampleColumns> SerialSample{}; ///< serial number 0 to 255 -> column
    std::string SheetPath;                                  ///< UTF-8; shorter than 4 characters: no file yet
    std::optional<Fingerprint> KnownFile; ///< of the file at SheetPath as last read or written; none: no file
    bool SheetUnnamed = true;             ///< no dialog has named the sheet yet

    std::int16_t SampleCount = 1;   ///< samples in the sheet, 1 to 250
    std::int16_t CurrentSample = 1; ///< column on show and being counted
    std::int16_t LatestSerial = 1;  ///< highest serial number in the sheet
    std::int32_t SampleTotal = 0;   ///< all total of the sample on show

    // The sheet as it was last saved; what a reset goes back to.
    SampleTable<std::int32_t, taxonSlots + 1> SavedCount;
    std::array<TaxonFields, taxonSlots + 1> SavedTaxon;
    SampleTable<std::string, infoItems + 1> SavedInfo;

    // What can be taken back, newest first, and the log of all actions (entry 0 is the start).
    std::array<UndoEntry, 1001> UndoStack{};
    std::vector<std::string> ActionText;
    std::vector<std::string> ActionTime;
    std::int32_t ActionCount = 0; ///< index of the last entry

    // The saturation curve.
    std::int16_t DiversityNow = 0;               ///< taxa with a count in the sample on show
    std::int16_t DiversityTotal = 0;             ///< individuals that the curve has reached, at most 32767
    std::vector<std::int16_t> DiversityCurve{0}; ///< at n individuals ten times the taxa seen; 0: no point

    // Which key is which. The codes hold for the built-in map and are replaced by the settings file.
    std::array<KeySettingRow, keySettingRows> KeySetting;
    int Shift1Key = 16;
    int Shift2Key = 17;
    int MinusKey = 8;
    bool UseKeySettings = false;  ///< false: the built-in key map is in force
    bool KeysInitialised = false; ///< false: the keyboard has not been identified yet

    // The keyboard as an instrument.
    int Layer = 0; ///< 0 neutral, 1 "Shift 1 or 2", 2 "Shift 1 and 2"
    bool Shift1Down = false;
    bool Shift2Down = false;
    bool RepeatGuard = false; ///< Timer1 runs: the same key is not taken again
    int LastKey = 0;          ///< last key that was no shift key
    int MinusState = 0;       ///< 0 idle, 1 Undo key down, above 1 a counter key went down meanwhile
    bool MinusArmed = false;  ///< the key in work counts in reverse
    bool KeysActive = true;   ///< false while the % button is held: nothing counts, nothing is stored

    // Modes and marks.
    bool Modifying = false;        ///< "Modify template": keys edit and do not count
    bool UnsavedEdits = false;     ///< in that mode: there is work to save, from before it or of it
    bool SheetPristine = true;     ///< no count and no edit since the last reset of the sheet
    bool FreshSheet = true;        ///< no accepted key yet: nothing is logged
    bool WarnNotLatest = true;     ///< counting in another than the latest sample asks first
    bool AlarmArmed = true;        ///< the next hundred rings
    std::int16_t HighlightRow = 0; ///< slot of the pale row, 0 for none
    std::int16_t FoundSlot = 0;    ///< slot of the taxon that frmFind shows or showed last, 0 for none
    std::int16_t MoveSource = 0;   ///< slot that a move would start from
    std::int16_t MoveFrom = 0;     ///< source and target column of a sample move
    std::int16_t MoveTo = 0;
    float PreviousCount = 0;            ///< number that a refused one gives way to
    EditedBox Edited = EditedBox::none; ///< box that is being visited in Modify template mode
    int EditedIndex = 0;                ///< its index
    std::string EditOld;                ///< its text when the visit began
    int LastKeyDown = 9999;             ///< last key that went down in it, 9999 for none yet
    bool SampleChangeFlag = false;      ///< a sample was picked: what is typed next in the list names it
    bool SampleSwitching = false;       ///< a whole sample is being shown: change handlers store nothing
    bool SoundOn = false;               ///< all eight cues could be read
    bool Unloading = false;             ///< the windows are being taken down
    bool DiagramOpen = false;
    bool NamesNotNumeric = false; ///< at least one sample name is no plain number: no depth order
    int SaveResult = 0;           ///< 1: closing began, 2: the save did not complete
    int DiagramWidth = 0;         ///< size of the diagram window to open with, twips; 0: its default
    int DiagramHeight = 0;
    int BackupSlot = 99; ///< 99: the master copy is still to come
    Colour DiagramColour = RGB(0, 128, 0);
};
