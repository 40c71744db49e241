#pragma once

/// Reads "References/KeySetting.csv" into the key settings and arranges the taxon cells by it. False, with
/// the settings as they were, if the file is missing or is no key settings file.
bool ReadKeySettings();
