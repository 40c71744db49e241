#include "extras/manual.h"

#include "core/forms.h"

ManualForm frmManual;
static const Form form("frmManual", frmManual.visible, closeManual, Form::Stands::beside);

void mnuManual_Click()
{
    frmManual.visible = true;
    ++frmManual.forwardRevision;
}

void closeManual()
{
    frmManual.visible = false;
}
