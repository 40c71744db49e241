#include "core/layer_keys.h"

#include "core/sheet_state.h"

bool isShiftKey(int keyCode)
{
    return keyCode == sheet.Shift1Key || keyCode == sheet.Shift2Key;
}

void layerKeyDown(int keyCode)
{
    if (keyCode == sheet.Shift1Key && sheet.Shift2Down)
        ++sheet.Layer;
    if (keyCode == sheet.Shift2Key)
        sheet.Layer += (sheet.Shift1Down ? 1 : 0) + (sheet.Shift2Down ? 0 : 1);
    if (keyCode == sheet.Shift1Key && !sheet.Shift1Down)
        ++sheet.Layer;
    if (sheet.Layer > 2)
        sheet.Layer = 2;
    if (keyCode == sheet.Shift1Key)
        sheet.Shift1Down = true;
    if (keyCode == sheet.Shift2Key)
        sheet.Shift2Down = true;
}

void layerKeyUp(int keyCode)
{
    if (isShiftKey(keyCode) && sheet.Layer > 0)
        --sheet.Layer;
    if (keyCode == sheet.Shift1Key)
        sheet.Shift1Down = false;
    else if (keyCode == sheet.Shift2Key)
        sheet.Shift2Down = false;
}

void releaseLayerKeys()
{
    sheet.Layer = 0;
    sheet.Shift1Down = sheet.Shift2Down = false;
}
