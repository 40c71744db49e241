#include "core/offers.h"

#include "core/main_screen.h"

void offerSave(bool offered)
{
    frmMain.Command5[0].enabled = frmMain.mnuSave.enabled = offered;
}

void offerNextSample(bool offered)
{
    frmMain.Command5[1].enabled = frmMain.mnuNext.enabled = offered;
}

void offerReset(bool offered)
{
    frmMain.Command2[0].enabled = frmMain.mnuReset.enabled = offered;
}
