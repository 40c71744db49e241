#include "extras/manual.h"

ManualForm frmManual;

void mnuManual_Click()
{
    frmManual.visible = true;
    ++frmManual.forwardRevision;
}

void closeManual()
{
    frmManual.visible = false;
}
