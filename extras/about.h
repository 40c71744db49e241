#pragma once

/// "About TallyStrata": version, licences, folders.
struct AboutAppForm {
    bool visible = false;
};
extern AboutAppForm frmAboutApp;

/// "About programmable keypads": how they act as keyboards and how their keys are set up.
struct AboutKeypadForm {
    bool visible = false;
};
extern AboutKeypadForm frmAboutDX1;

void mnuAboutApp_Click();
void mnuAboutDX1_Click();
/// "Close" of each.
void frmAboutApp_Command1_Click();
void frmAboutDX1_Command1_Click();
