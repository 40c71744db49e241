#pragma once

#include "keys/key_settings_file.h"

/// The key settings as they are delivered: the built-in counter keys, each in its own place, and reference
/// keys that have names and no codes yet. They stand in for a file that could not be read.
const KeySettingTable& deliveredKeySettings();
