#include "core/hooks.h"

Hooks hooks;
