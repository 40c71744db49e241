#include "core/sample_move.h"

#include "core/editing.h"
#include "core/hooks.h"
#include "core/main_screen.h"
#include "core/sheet_state.h"
#include "core/show_sample.h"

#include <algorithm>
#include <utility>

/// The element of `from` goes to `to`; those between move one place towards where it was.
template <class Element, int Rows>
static void moveColumn(SampleTable<Element, Rows>& table, int from, int to)
{
    const int step = from < to ? 1 : -1;
    for (int row = 0; row < Rows; ++row)
        for (int column = from; column != to; column += step)
            std::swap(table(column, row), table(column + step, row));
}

static int placeAfterMove(int sample, int from, int to)
{
    if (sample == from)
        return to;
    if (sample > from && sample <= to)
        --sample;
    else if (sample < from && sample >= to)
        ++sample;
    return sample;
}

void carrySample(int from, int to)
{
    forEachSampleTable(sheet, [&](auto&... tables) { (moveColumn(tables, from, to), ...); });
    for (UndoEntry& entry : sheet.UndoStack)
        entry.sample = placeAfterMove(entry.sample, from, to);
    sheet.CurrentSample = placeAfterMove(sheet.CurrentSample, from, to);
}

void MoveSample()
{
    if (sheet.MoveFrom != sheet.MoveTo) {
        carrySample(sheet.MoveFrom, sheet.MoveTo);
        markUnsavedWork();
        listSampleNames();
        frmMain.Combo2.text = sheet.SampleField(sheet.CurrentSample, 2);
    }
    hooks.ReorderDiagram();
}
