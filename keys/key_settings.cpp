#include "keys/key_settings.h"

#include "core/hooks.h"
#include "core/number_text.h"
#include "core/sheet_state.h"
#include "keys/key_settings_file.h"
#include "platform/ports.h"

bool ReadKeySettings()
{
    constexpr std::size_t limit = 1u << 20; // a hundred times what 63 records take
    const auto text = ports.files->read(ports.programFolder + "/References/KeySetting.csv", limit);
    if (!text)
        return false;
    const auto table = parseKeySettings(*text);
    if (!table)
        return false;
    sheet.KeySetting = *table;
    sheet.Shift1Key = wholeNumber(sheet.KeySetting[rowShift1].Code);
    sheet.Shift2Key = wholeNumber(sheet.KeySetting[rowShift2].Code);
    sheet.MinusKey = wholeNumber(sheet.KeySetting[rowUndo].Code);
    hooks.ArrangeTaxonCells();
    return true;
}
