#pragma once

#include "keys/key_settings_file.h"

/// Reads "References/KeySetting.csv" into the key settings and arranges the taxon cells by it. False, with
/// the settings as they were, if the file is missing or is no key settings file.
bool ReadKeySettings();

/// The key settings that the windows begin with: those in memory, or the delivered ones if none were read.
const KeySettingTable& knownKeySettings();

/// Writes the whole table to the same file and puts it in force at once. False, after a message and with
/// everything as it was, if it could not be written. Each outcome has its cue.
bool WriteKeySettings(const KeySettingTable& table);
