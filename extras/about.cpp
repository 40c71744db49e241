#include "extras/about.h"

#include "core/forms.h"

AboutAppForm frmAboutApp;
AboutKeypadForm frmAboutDX1;
static const Form aboutAppForm("frmAboutApp", frmAboutApp.visible, frmAboutApp_Command1_Click);
static const Form aboutKeypadForm("frmAboutDX1", frmAboutDX1.visible, frmAboutDX1_Command1_Click);

void mnuAboutApp_Click()
{
    openAboveMain(frmAboutApp.visible);
}

void mnuAboutDX1_Click()
{
    openAboveMain(frmAboutDX1.visible);
}

void frmAboutApp_Command1_Click()
{
    closeAboveMain(frmAboutApp.visible);
}

void frmAboutDX1_Command1_Click()
{
    closeAboveMain(frmAboutDX1.visible);
}
