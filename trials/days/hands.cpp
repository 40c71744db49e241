#include "trials/days/hands.h"

#include "core/built_in_keys.h"
#include "core/main_keys.h"
#include "core/main_screen.h"
#include "core/number_text.h"
#include "core/sheet_state.h"
#include "diagram/diagram_window.h"

namespace {

bool isShift(int key)
{
    return key == sheet.Shift1Key || key == sheet.Shift2Key;
}

int codeOfRow(int row)
{
    if (sheet.UseKeySettings || row == rowSave)
        return wholeNumber(sheet.KeySetting[row].Code);
    switch (row) {
    case rowShift1:
    case rowShift1Copy:
        return builtInShift1;
    case rowShift2:
        return builtInShift2;
    case rowUndo:
        return builtInMinus;
    default:
        return builtInKeyCode(row);
    }
}

/// 1 to 45 for a key that counts, 0 for one that is only accepted, -1 for one that is not. Of equal codes the
/// last row counts.
int numberOf(int key)
{
    int number = -1;
    for (int row = 1; row <= rowUndo; ++row)
        if (codeOfRow(row) == key)
            number = row <= keysPerLayer ? row : std::max(number, 0);
    return number;
}

} // namespace

int Hands::anyKey()
{
    const int kind = chance_.below(100);
    return kind < 70 ? codeOfRow(chance_.oneIn(3) ? chance_.between(1, keysPerLayer) : chance_.between(1, 6))
           : kind < 80 ? codeOfRow(rowShift1)
           : kind < 88 ? codeOfRow(rowShift2)
           : kind < 97 ? codeOfRow(rowUndo)
           : kind < 98 ? codeOfRow(rowShift1Copy)
           : kind < 99 ? codeOfRow(rowSave)
                       : chance_.between(1, 255);
}

int Hands::layer() const
{
    return static_cast<int>(held_.count(sheet.Shift1Key) + held_.count(sheet.Shift2Key));
}

void Hands::lookAgain()
{
    guarded_ = sheet.RepeatGuard ? sheet.LastKey : 0;
}

UndoEntry Hands::play(const OneEvent& event, const bool& staleSampleKept)
{
    const bool inDiagram = sheet.DiagramOpen && chance_.oneIn(2);
    if (!down_.empty() && chance_.oneIn(down_.size() > 3 ? 2 : 3))
        return letGo(chance_.oneOf(down_), inDiagram, event);
    int key = anyKey();
    if (sheet.Modifying && isShift(key)) // the layer follows the key-ups there and not the key-downs
        key = 'Q';
    return press(key, inDiagram, event, staleSampleKept);
}

UndoEntry Hands::press(int key, bool inDiagram, const OneEvent& event, const bool& staleSampleKept)
{
    down_.insert(key);
    UndoEntry newest = sheet.UndoStack[0];
    const bool dispatched = inDiagram || !sheet.Modifying;
    const bool guarded = key == guarded_;
    const bool taken = dispatched && !guarded && sheet.KeysActive && numberOf(key) >= 0;
    bool counts = false;
    const bool isUndo = taken && key == sheet.MinusKey;
    if (isUndo)
        undoUsed_ = undoUsed_ && held_.count(key) != 0;
    if (isUndo || (dispatched && isShift(key))) { // settings may make one key both
        held_.insert(key);
    } else if (taken) {
        counts = !sheet.Modifying;
        undoUsed_ = true;
        const int number = numberOf(key);
        const int slot = number == 0 ? 0 : number + keysPerLayer * layer();
        newest = {sheet.CurrentSample, held_.count(sheet.MinusKey) != 0 ? -slot : slot};
    }
    if (dispatched && !isShift(key))
        guarded_ = key;
    const UndoEntry before = sheet.UndoStack[0];
    event([&] { inDiagram ? frmDiagram_KeyDown(key, 0) : Form_KeyDown(key, 0); });
    return counts && !staleSampleKept ? newest : before;
}

UndoEntry Hands::letGo(int key, bool inDiagram, const OneEvent& event)
{
    const bool takesBack = held_.count(sheet.MinusKey) != 0 && !undoUsed_ && !inDiagram && !sheet.Modifying &&
                           sheet.KeysActive && sheet.UndoStack[0].slot != 0;
    const UndoEntry newest = sheet.UndoStack[takesBack ? 1 : 0];
    held_.erase(key);
    down_.erase(key);
    event([&] { inDiagram ? frmDiagram_KeyUp(key) : Form_KeyUp(key, 0); });
    return newest;
}
