#pragma once

#include "core/main_screen_type.h"

/// The one main window: display and store of the moment.
extern MainScreen frmMain;
