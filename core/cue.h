#pragma once

#include "platform/controls.h"
#include "platform/ports.h"

/// Whether anything is to be heard. It is a matter of the ears alone: with the cues muted alarms are marked
/// and backups made as with them.
struct Hearing {
    MenuEntry mnuMute; ///< checked: no cue is played
};
extern Hearing hearing;

/// Plays a cue; silent while the sound is off or muted.
void playCue(Cue cue);
/// The system's own beep; silent while muted.
void beep();

void mnuMute_Click();
