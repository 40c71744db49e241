#include "keys/key_settings.h"

#include "core/cue.h"
#include "core/hooks.h"
#include "core/number_text.h"
#include "core/sheet_state.h"
#include "keys/delivered_keys.h"
#include "platform/ports.h"

static std::string settingsPath()
{
    return ports.programFolder + "/References/KeySetting.csv";
}

static void take(const KeySettingTable& table)
{
    sheet.KeySetting = table;
    sheet.Shift1Key = wholeNumber(table[rowShift1].Code);
    sheet.Shift2Key = wholeNumber(table[rowShift2].Code);
    sheet.MinusKey = wholeNumber(table[rowUndo].Code);
    hooks.ArrangeTaxonCells();
}

bool ReadKeySettings()
{
    constexpr std::size_t limit = 1u << 20; // a hundred times what 63 records take
    const auto text = ports.files->read(settingsPath(), limit);
    if (!text)
        return false;
    const auto table = parseKeySettings(*text);
    if (!table)
        return false;
    take(*table);
    return true;
}

const KeySettingTable& knownKeySettings()
{
    if (hasCounterKey(sheet.KeySetting))
        return sheet.KeySetting;
    return deliveredKeySettings();
}

bool WriteKeySettings(const KeySettingTable& table, bool inForce)
{
    const bool written = ports.files->write(settingsPath(), keySettingsText(table));
    playCue(written ? Cue::SoundSave : Cue::SoundError);
    if (!written) {
        ports.dialogs->ask("TallyStrata could not write the key settings (KeySetting.csv). The settings that "
                           "were in use stay in use. Please check that the file is not read-only and that "
                           "the disk is not full, and try again.",
                           "Error", Buttons::ok, Icon::exclamation);
        return false;
    }
    if (inForce) {
        take(table);
        sheet.UseKeySettings = true;
    } else {
        sheet.KeySetting = table;
    }
    return true;
}
