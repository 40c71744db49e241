#pragma once

#include "platform/ports.h"

/// Plays a cue; silent while the sound is off.
void playCue(Cue cue);
