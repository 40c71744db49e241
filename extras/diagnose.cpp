#include "extras/diagnose.h"

#include "core/action_log.h"
#include "core/forms.h"
#include "core/layer_keys.h"
#include "core/sheet_state.h"
#include "platform/ports.h"

DiagnoseForm frmDiagnose;
static const Form form("frmDiagnose", frmDiagnose.visible, frmDiagnose_Command2_Click);

static void keep(bool isDown, int keyCode, unsigned physicalKey)
{
    std::vector<SeenKey>& keys = frmDiagnose.keys;
    if (keys.size() == DiagnoseForm::keysKept)
        keys.erase(keys.begin());
    keys.push_back({TimeStamp(ports.clock->now()), isDown, keyCode, physicalKey, sheet.Layer});
}

void mnuDiagnose_Click()
{
    frmDiagnose.keys.clear();
    frmDiagnose.takesKeys = true;
    openAboveMain(frmDiagnose.visible);
}

/// Else a hand without a mouse would never get out.
static bool isSecondEscape(int keyCode)
{
    constexpr int escape = 27;
    if (keyCode != escape || frmDiagnose.keys.empty())
        return false;
    const SeenKey& before = frmDiagnose.keys.back();
    return before.code == escape && !before.isDown; // a held one repeats without coming up
}

void frmDiagnose_KeyDown(int keyCode)
{
    frmDiagnose.takesKeys = !isSecondEscape(keyCode);
    layerKeyDown(keyCode);
    keep(true, keyCode, 0);
}

void frmDiagnose_KeyUp(int keyCode)
{
    layerKeyUp(keyCode);
    keep(false, keyCode, 0);
}

void frmDiagnose_KeyWithoutCode(unsigned physicalKey)
{
    keep(true, 0, physicalKey);
}

void frmDiagnose_Command2_Click()
{
    releaseLayerKeys();
    closeAboveMain(frmDiagnose.visible);
}
