#include "extras/diagnose_report.h"

#include "core/built_in_keys.h"
#include "core/number_text.h"
#include "core/version.h"
#include "platform/code_page.h"
#include "platform/key_names.h"

#include <algorithm>

namespace {

constexpr std::size_t labelWidth = 18;

std::string padded(std::string text, std::size_t width)
{
    text.resize(std::max(width, text.size() + 1), ' ');
    return text;
}

std::string line(const std::string& label, const std::string& text)
{
    return padded(label + ":", labelWidth) + text + "\n";
}

std::string heading(const std::string& text)
{
    return "\n" + text + "\n";
}

std::string codeAndName(int keyCode)
{
    return decimalText(keyCode) + "  " + keyName(keyCode);
}

/// What a row of the settings is for.
std::string rowFunction(const SheetState& sheet, int row)
{
    switch (row) {
    case rowShift1:
        return "Shift-1";
    case rowShift2:
        return "Shift-2";
    case rowShift1Copy:
        return "Shift-1 again";
    case rowUndo:
        return "Undo";
    case rowSave:
        return "Save";
    default:
        return row < rowShift1 ? "key number " + decimalText(row)
                               : "reference key " + utf8FromCodePage(sheet.KeySetting[row].Definition);
    }
}

std::vector<int> settingsRows(const SheetState& sheet, int keyCode)
{
    std::vector<int> rows;
    for (int row = 1; row < keySettingRows; ++row)
        if (leadingNumber(sheet.KeySetting[row].Code) == keyCode)
            rows.push_back(row);
    return rows;
}

bool isSaveKey(const SheetState& sheet, int keyCode)
{
    return leadingNumber(sheet.KeySetting[rowSave].Code) == keyCode;
}

/// Key number that the key counts, 0 if it counts none. Of a code that stands in two rows the last row
/// counts.
int countedNumber(const SheetState& sheet, int keyCode)
{
    if (!sheet.UseKeySettings)
        return builtInKeyNumber(keyCode);
    int number = 0;
    for (const int row : settingsRows(sheet, keyCode))
        if (row <= keysPerLayer)
            number = wholeNumber(sheet.TaxonRecord[row].KeyIndex);
    return number;
}

std::string sharedCodes(const SheetState& sheet)
{
    std::string all;
    for (int row = 1; row <= rowSave; ++row) {
        const int code = wholeNumber(sheet.KeySetting[row].Code);
        std::vector<int> rows = settingsRows(sheet, code);
        // Reference rows repeat codes by their nature, and so does the copy of Shift-1.
        const bool copyIsMeant = sheet.KeySetting[rowShift1].Code == sheet.KeySetting[rowShift1Copy].Code;
        rows.erase(std::remove_if(
                       rows.begin(), rows.end(),
                       [&](int other) { return other > rowSave || (copyIsMeant && other == rowShift1Copy); }),
                   rows.end());
        if (code == 0 || rows.size() < 2 || rows.front() != row)
            continue;
        all += (all.empty() ? "" : "; ") + codeAndName(code) + " in rows";
        for (const int other : rows)
            all += (other == rows.front() ? " " : ", ") + decimalText(other);
    }
    return all.empty() ? "none" : all;
}

std::string withoutCode(const SeenKey& key)
{
    return "no code (the system's key " + std::to_string(key.physicalKey) + ")";
}

std::string keyLine(const SheetState& sheet, const SeenKey& key)
{
    const std::string name =
        key.code != 0 ? padded(decimalText(key.code), 5) + keyName(key.code) : withoutCode(key);
    return key.time + "  " + (key.isDown ? "down  " : "up    ") + padded(name, 20) + "layer " +
           decimalText(key.layer) + "  " + (key.code != 0 ? rowsOfKey(sheet, key.code) : "") + "\n";
}

std::string keyboard(const SheetState& sheet, const std::vector<SeenKey>& keys)
{
    constexpr const char* layers[] = {"0, Neutral", "1, Shift 1 or 2", "2, Shift 1 and 2"};
    std::string text = heading("Keyboard");
    const auto last = std::find_if(keys.rbegin(), keys.rend(), [](const SeenKey& key) { return key.isDown; });
    if (last == keys.rend()) {
        text += line("Last key", "none yet");
    } else if (last->code == 0) {
        text += line("Last key", withoutCode(*last));
    } else {
        text += line("Last key", codeAndName(last->code));
        text += line("Stands in", rowsOfKey(sheet, last->code));
        text += line("While counting", effectOfKey(sheet, last->code));
    }
    text += line("Layer", layers[sheet.Layer]);
    text += line("Shift keys", std::string("Shift-1 is ") + (sheet.Shift1Down ? "down" : "up") +
                                   ", Shift-2 is " + (sheet.Shift2Down ? "down" : "up"));
    text += line("Key setting", sheet.UseKeySettings
                                    ? "the user's, from References/KeySetting.csv"
                                    : "the built-in map (key settings or a sound could not be read)");
    text += line("Shift-1, Shift-2", codeAndName(sheet.Shift1Key) + "   " + codeAndName(sheet.Shift2Key));
    const int save = wholeNumber(sheet.KeySetting[rowSave].Code);
    text += line("Undo, Save",
                 codeAndName(sheet.MinusKey) + "   " + (save != 0 ? codeAndName(save) : "no Save key"));
    if (sheet.UseKeySettings)
        text += line("Codes used twice", sharedCodes(sheet));
    text += line("Reference keys", sheet.KeysInitialised ? "identified" : "not identified");
    if (sheet.Modifying)
        text += line("Mode", "Modify template: keys edit and count nothing");
    text += heading("Keys pressed here, newest first");
    if (keys.empty())
        text += "none yet\n";
    for (auto key = keys.rbegin(); key != keys.rend(); ++key)
        text += keyLine(sheet, *key);
    return text;
}

} // namespace

std::string rowsOfKey(const SheetState& sheet, int keyCode)
{
    std::string text;
    const auto add = [&text](const std::string& what) { text += (text.empty() ? "" : ", ") + what; };
    if (sheet.UseKeySettings) {
        for (const int row : settingsRows(sheet, keyCode))
            add("row " + decimalText(row) + " (" + rowFunction(sheet, row) + ")");
        return text.empty() ? "none" : text;
    }
    if (const int number = builtInKeyNumber(keyCode))
        add("built-in key number " + decimalText(number));
    if (keyCode == builtInShift1)
        add("built-in Shift-1");
    if (keyCode == builtInShift2)
        add("built-in Shift-2");
    if (keyCode == builtInMinus)
        add("built-in Undo");
    if (isSaveKey(sheet, keyCode))
        add("row " + decimalText(rowSave) + " (Save)");
    return text.empty() ? "none" : text;
}

std::string effectOfKey(const SheetState& sheet, int keyCode)
{
    std::string text = isSaveKey(sheet, keyCode) ? "saves the sheet; " : "";
    const int slot = countedNumber(sheet, keyCode) + keysPerLayer * sheet.Layer;
    if (keyCode == sheet.Shift1Key || keyCode == sheet.Shift2Key)
        text += "raises the layer while it is held; ";
    else if (keyCode == sheet.MinusKey)
        text += "takes the last count back; held with a counter key it takes one off that taxon; ";
    else if (countedNumber(sheet, keyCode) != 0 && slot >= 1 && slot <= taxonSlots)
        text += "counts " + decimalText(slot) + ": " + utf8FromCodePage(sheet.TaxonRecord[slot].Name) + "; ";
    return text.empty() ? "nothing" : text.substr(0, text.size() - 2);
}

std::string diagnoseReport(const SheetState& sheet, const std::vector<SeenKey>& keys,
                           const SystemFacts& facts)
{
    const std::string& folder = facts.programFolder;
    // As the system writes paths: the folder tells.
    const std::string separator = folder.find('\\') != std::string::npos ? "\\" : "/";
    const std::string references = folder + separator + "References";
    return std::string("TallyStrata ") + programVersion + ", diagnosis of " + facts.date + "\n" +
           keyboard(sheet, keys) + heading("Sound") +
           line("Cues", sheet.SoundOn ? "on, all eight were read"
                                      : "off: not all could be read, so there is no alarm and no backup") +
           line("Device", facts.soundDevice) + heading("Folders") + line("Program", folder) +
           line("Key settings", references) + line("Backups", references + separator + "Back up files") +
           line("Cues", folder + separator + "Sound files") + heading("Versions") +
           line("TallyStrata", programVersion) + line("Qt", facts.qt) + line("SDL", facts.sdl) +
           line("System", facts.system) + line("Screen", facts.screen);
}
