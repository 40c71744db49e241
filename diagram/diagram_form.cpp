#include "diagram/diagram_form.h"

DiagramForm frmDiagram;

DiagramForm::DiagramForm()
{
    mnuSub1.checked = true;
    mnuTaxaName.checked = true;
    Text1.enabled = Text2.enabled = false;
}
