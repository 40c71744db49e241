#include "extras/about.h"

#include "extras/above_main.h"

AboutAppForm frmAboutApp;
AboutKeypadForm frmAboutDX1;

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
