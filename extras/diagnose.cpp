#include "extras/diagnose.h"

#include "core/action_log.h"
#include "core/layer_keys.h"
#include "core/sheet_state.h"
#include "extras/above_main.h"
#include "platform/ports.h"

DiagnoseForm frmDiagnose;

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
    openAboveMain(frmDiagnose.visible);
}

void frmDiagnose_KeyDown(int keyCode)
{
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
