#include "core/start_up.h"

#include "core/action_log.h"
#include "core/built_in_keys.h"
#include "core/hooks.h"
#include "core/main_screen.h"
#include "core/number_text.h"
#include "core/recount_totals.h"
#include "core/sheet_state.h"
#include "platform/ports.h"

#include <array>

namespace {

constexpr std::size_t soundLimit = 16u << 20;
constexpr std::size_t pictureLimit = 64u << 20;

constexpr std::array<const char*, cueCount> soundFiles = {
    "Key-1.wav", "Key-2.wav", "Key-3.wav", "Opening.wav", "Undo.wav", "Save.wav", "Alarm.wav", "Error.wav"};

void tellMissing(const char* what)
{
    ports.dialogs->ask(std::string("TallyStrata could not find ") + what +
                           " file(s). Please use installer package to installe TallyStrata in your computer.",
                       "Error", Buttons::ok, Icon::exclamation);
}

void startLog()
{
    sheet.ActionText = {"Created: )"}; // as every history begins
    sheet.ActionTime = {logTime(ports.clock->now())};
    frmMain.Combo1.items = {"(Start)"};
    frmMain.Combo1.text = frmMain.Text7.text = "(Start)";
}

bool readSounds()
{
    for (int cue = 0; cue < cueCount; ++cue) {
        const auto image =
            ports.files->read(ports.programFolder + "/Sound files/" + soundFiles[cue], soundLimit);
        if (!image)
            return false;
        ports.sound->load(static_cast<Cue>(cue), *image);
    }
    return true;
}

void readKeysAndSounds()
{
    if (!hooks.ReadKeySettings()) {
        tellMissing("reference");
        return;
    }
    sheet.KeysInitialised = isKeyboardIdentified();
    if (!readSounds()) {
        // The built-in map is in force without the cues too, so its layer and Undo keys have to be.
        sheet.Shift1Key = builtInShift1;
        sheet.Shift2Key = builtInShift2;
        sheet.MinusKey = builtInMinus;
        tellMissing("sound");
        return;
    }
    ports.sound->play(Cue::SoundOpening);
    sheet.SoundOn = sheet.UseKeySettings = true;
}

void readFavorite()
{
    const auto picture = ports.files->read(ports.programFolder + "/References/My_favorite.jpg", pictureLimit);
    frmMain.mnuFavorite.enabled = picture && picture->substr(0, 3) == "\xFF\xD8\xFF";
}

void LoadStartup()
{
    startLog();
    RecountTotals(sheet.CurrentSample);
    hooks.ArrangeTaxonCells();
    readKeysAndSounds();
    frmMain.visible = true;
    if (!sheet.KeysInitialised)
        hooks.ShowInitial();
    readFavorite();
}

} // namespace

bool isKeyboardIdentified()
{
    for (int row = rowFirstReference; row < keySettingRows; ++row) {
        const double code = leadingNumber(sheet.KeySetting[row].Code);
        if (code == 0 || code == 999)
            return false;
    }
    return true;
}

void Form_Load()
{
    ports.Timer1->stop();
    LoadStartup();
}
