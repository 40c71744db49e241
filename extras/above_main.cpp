#include "extras/above_main.h"

#include "core/main_screen.h"
#include "core/return_to_main.h"

void openAboveMain(bool& visible)
{
    visible = true;
    frmMain.enabled = false;
}

void closeAboveMain(bool& visible)
{
    visible = false;
    returnToMain();
}
