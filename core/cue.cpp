#include "core/cue.h"

#include "core/sheet_state.h"

void playCue(Cue cue)
{
    if (sheet.SoundOn)
        ports.sound->play(cue);
}
