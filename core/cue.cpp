#include "core/cue.h"

#include "core/main_screen.h"
#include "core/sheet_state.h"

Hearing hearing;

void playCue(Cue cue)
{
    if (sheet.SoundOn && !hearing.mnuMute.checked)
        ports.sound->play(cue);
}

void beep()
{
    if (!hearing.mnuMute.checked)
        ports.sound->beep();
}

void mnuMute_Click()
{
    hearing.mnuMute.checked = !hearing.mnuMute.checked;
    if (hearing.mnuMute.checked)
        frmMain.notice = "Muted: alarms are marked and backups made all the same.";
    if (!sheet.Modifying)
        frmMain.focus = MainFocus::Text99;
}
