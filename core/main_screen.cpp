#include "core/main_screen.h"

MainScreen frmMain;
