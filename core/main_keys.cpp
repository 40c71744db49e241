#include "core/main_keys.h"

#include "core/dispatch_key.h"
#include "core/layer_keys.h"
#include "core/main_screen.h"
#include "core/sheet_state.h"
#include "core/undo.h"
#include "core/user_event.h"
#include "platform/ports.h"

void Form_KeyDown(int keyCode, int shift)
{
    if (sheet.Modifying)
        sheet.LastKeyDown = keyCode; // the box that has the focus takes the key next
    else
        DispatchKey(keyCode, shift);
}

void Form_KeyUp(int keyCode, int /*shift*/)
{
    layerKeyUp(keyCode);
    if (!sheet.Modifying && sheet.Layer < 2)
        frmMain.SSTab1 = sheet.Layer;
    // On purpose not tied to the key that came up.
    if (sheet.MinusState == 1 && !sheet.Modifying)
        Undo();
    if (keyCode == sheet.MinusKey)
        sheet.MinusState = 0;
}

void Timer1_Timer()
{
    sheet.RepeatGuard = false;
    ports.Timer1->stop();
}

static void forgetHeldKeys()
{
    releaseLayerKeys();
    sheet.MinusState = 0;
    if (!sheet.Modifying)
        frmMain.SSTab1 = 0;
}

void Form_Deactivate()
{
    atEndOfUserEvent(forgetHeldKeys);
}
