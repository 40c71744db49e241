#include "sheet/find.h"

#include "core/dispatch_key.h"
#include "core/forms.h"
#include "core/highlight.h"
#include "core/main_screen.h"
#include "core/number_text.h"
#include "core/sheet_state.h"
#include "sheet/cell_grid.h"
#include "sheet/key_names.h"

FindForm frmFind;
static const Form form("frmFind", frmFind.visible, frmFind_Command2_Click);

namespace {

constexpr int shift1Left = 46;
constexpr int shift2Left = 47;
constexpr int shift1Right = 48;
constexpr int undoPlace = 49;
constexpr int savePlace = 50;
constexpr int shift2Right = 51;

int keyNumberOf(int slot)
{
    return (slot - 1) % keysPerLayer + 1;
}

int layerOf(int slot)
{
    return (slot - 1) / keysPerLayer;
}

void paintCell(int slot, Colour colour)
{
    frmMain.Text1[slot].backColor = frmMain.Text2[slot].backColor = colour;
}

void reset()
{
    for (MapKey& key : frmFind.Command1)
        key.backColor = frmFind.Command1[0].backColor;
    for (int slot = 1; slot <= taxonSlots; ++slot)
        paintCell(slot, plainRow);
    sheet.FoundSlot = 0;
}

std::string captionOf(const char* function, int row)
{
    const std::string key = keyDefinition(row);
    return key.empty() ? function : std::string(function) + ": " + key;
}

bool mapHolds(int position, int keyNumber)
{
    return wholeNumber(sheet.KeySetting[position].Number) == keyNumber;
}

/// Each position that the map gives the number to; for a number that it leaves out, the one of its cell.
std::vector<int> positionsOf(int keyNumber)
{
    std::vector<int> positions;
    for (int position = 1; position <= keysPerLayer; ++position)
        if (mapHolds(position, keyNumber))
            positions.push_back(position);
    if (positions.empty())
        positions.push_back(positionOfNumber()[keyNumber]);
    return positions;
}

void labelKeyMap()
{
    // A cell of a number that the map leaves out is seen at its position, so that one is labelled last.
    for (const bool heldByMap : {true, false})
        for (int number = 1; number <= keysPerLayer; ++number)
            for (const int position : positionsOf(number))
                if (mapHolds(position, number) == heldByMap)
                    frmFind.Command1[position].caption = keyDefinition(number);
    for (const int place : {shift1Left, shift1Right})
        frmFind.Command1[place].caption = captionOf("Shift-1", rowShift1);
    for (const int place : {shift2Left, shift2Right})
        frmFind.Command1[place].caption = captionOf("Shift-2", rowShift2);
    frmFind.Command1[undoPlace].caption = captionOf("Undo", rowUndo);
    frmFind.Command1[savePlace].caption = captionOf("Save", rowSave);
}

/// The shift keys for the hand that does not press the key: those beside the block in which it lies. Key
/// numbers 1 to 27 are three blocks of nine, 28 to 45 three blocks of six.
std::vector<int> shiftKeysFor(int slot)
{
    const int number = keyNumberOf(slot);
    const int block = number <= 27 ? (number - 1) / 9 : (number - 28) / 6;
    constexpr int one[] = {shift1Right, shift2Left, shift1Left};
    constexpr int two[][2] = {{shift1Right, shift2Left}, {shift2Left, shift1Left}, {shift1Left, shift2Right}};
    switch (layerOf(slot)) {
    case 1:
        return {one[block]};
    case 2:
        return {two[block][0], two[block][1]};
    default:
        return {};
    }
}

/// The colours of the rows come back as they were before the search.
void unload()
{
    for (int slot = 1; slot <= taxonSlots; ++slot)
        paintCell(slot, frmFind.savedColours[slot]);
    sheet.Layer = 0;
    frmMain.SSTab1 = 0;
    closeAboveMain(frmFind.visible);
}

} // namespace

std::string FindForm::Capitalise(std::string text)
{
    if (!text.empty() && text[0] >= 'a' && text[0] <= 'z')
        text[0] = static_cast<char>(text[0] - 'a' + 'A');
    return text;
}

void FindForm::Display()
{
    const std::string name = List1.items[static_cast<std::size_t>(List1.chosen)];
    // The last match has the page and the count.
    reset();
    for (int slot = 1; slot <= taxonSlots; ++slot) {
        if (frmMain.Text1[slot].text != name)
            continue;
        paintCell(slot, foundCell);
        frmMain.SSTab1 = layerOf(slot);
        sheet.FoundSlot = slot;
    }
    for (const int key : shiftKeysFor(sheet.FoundSlot))
        Command1[key].backColor = keyToTake;
    for (const int position : positionsOf(keyNumberOf(sheet.FoundSlot)))
        Command1[position].backColor = keyToTake;
    Command3.enabled = true;
}

void FindForm::SelectTaxon()
{
    const int slot = sheet.FoundSlot;
    if (slot == 0)
        return;
    const int code = keyCodeOf(keyNumberOf(slot));
    if (code == 0) {
        frmMain.notice = "No key counts this taxon alone. See the key settings.";
        return;
    }
    const std::int32_t before = sheet.ActionCount;
    sheet.Layer = layerOf(slot);
    DispatchKey(code, 0);
    const bool counted = sheet.ActionCount != before;
    unload();
    // After a No to the question about an older sample nothing was counted, so nothing is marked.
    if (!counted)
        return;
    for (int other = 1; other <= taxonSlots; ++other)
        paintCell(other, frmMain.Text99.backColor);
    paintCell(slot, countedRow);
}

void mnuFind_Click()
{
    for (int slot = 1; slot <= taxonSlots; ++slot)
        frmFind.savedColours[slot] = frmMain.Text1[slot].backColor;
    for (MapKey& key : frmFind.Command1)
        key.backColor = frmFind.Command1[0].backColor;
    labelKeyMap();
    frmFind.Text1 = TextBox();
    frmFind.List1 = ListBox();
    frmFind.Command3.enabled = false;
    sheet.FoundSlot = 0;
    openAboveMain(frmFind.visible);
}

void frmFind_Text1_Change()
{
    reset();
    ListBox& list = frmFind.List1;
    list = ListBox();
    frmFind.Command3.enabled = false;
    const std::string text = frmFind.Text1.text;
    if (text.empty())
        return;
    // Only a small letter at the beginning is forgiven.
    const std::string capitalised = FindForm::Capitalise(text);
    for (const bool longer : {false, true})
        for (int slot = 1; slot <= taxonSlots; ++slot) {
            const std::string& name = frmMain.Text1[slot].text;
            if ((name.starts_with(text) || name.starts_with(capitalised)) &&
                (name.size() > text.size()) == longer)
                list.items.push_back(name);
        }
    if (list.items.empty())
        return;
    list.chosen = 0;
    frmFind.Command3.enabled = true;
    if (list.items.size() == 1)
        frmFind.Display();
}

void frmFind_Text1_Edited(std::string_view text, int caret)
{
    frmFind.Text1.text = text;
    frmFind.Text1.caret = caret;
    frmFind_Text1_Change();
}

void frmFind_List1_Click(int line)
{
    if (line < 0 || line >= static_cast<int>(frmFind.List1.items.size()))
        return;
    frmFind.List1.chosen = line;
    frmFind.Display();
}

void frmFind_List1_DblClick()
{
    if (!frmFind.Text1.text.empty())
        frmFind.SelectTaxon();
}

void frmFind_Enter()
{
    if (frmFind.List1.chosen < 0)
        return;
    if (sheet.FoundSlot == 0)
        frmFind.Display();
    else
        frmFind.SelectTaxon();
}

void frmFind_Command2_Click()
{
    unload();
}

void frmFind_Command3_Click()
{
    if (frmFind.List1.chosen < 0)
        return;
    frmFind.Display();
    frmFind.SelectTaxon();
}
