#include "app/wiring.h"
#include "core/built_in_keys.h"
#include "core/program_test.h"
#include "core/start_up.h"

#include <filesystem>
#include <fstream>
#include <iterator>

namespace {

const std::string soundNames[] = {"Key-1", "Key-2", "Key-3", "Opening", "Undo", "Save", "Alarm", "Error"};
const std::string keyFile = "/program/References/KeySetting.csv";
const std::string pictureFile = "/program/References/My_favorite.jpg";

std::string soundFile(const std::string& name)
{
    return "/program/Sound files/" + name + ".wav";
}

/// Keys that are none of the built-in map: 201 to 245 count, 246 and 247 shift, 249 takes back.
std::string keySettings(const std::string& lastReferenceCode, int records = 63)
{
    std::string text;
    for (int row = 0; row < records; ++row)
        text += "\"k\",\"" + (row == 62 ? lastReferenceCode : decimalText(200 + row)) + "\",\"" +
                (row <= 45 ? decimalText(46 - row) : "n/a") + "\"\r\n";
    return text;
}

int initials = 0;
std::vector<Cue> cuesBeforeInitial;
SoundRecorder* recorder = nullptr;

class StartUp : public ProgramTest {
protected:
    StartUp()
    {
        connectRooms();
        hooks.ShowInitial = [] {
            ++initials;
            cuesBeforeInitial = recorder->played;
        };
        recorder = &sound;
        deliver();
    }
    void deliver()
    {
        files.contents = {{keyFile, keySettings("13")}, {pictureFile, "\xFF\xD8\xFF picture"}};
        for (const std::string& name : soundNames)
            files.contents[soundFile(name)] = "wave of " + name;
    }
    void expectMissing(const std::string& what)
    {
        dialogs.expect("TallyStrata could not find " + what +
                           " file(s). Please use installer package to installe TallyStrata in your computer.",
                       "Error");
    }
    void start()
    {
        sheet = SheetState();
        frmMain = MainScreen();
        sound.images.clear();
        sound.played.clear();
        initials = 0;
        Form_Load();
    }
    /// Layers, shift keys and Undo of one of the maps.
    void expectCounting(int key1, int key2, int firstShift, int secondShift, int undo)
    {
        tapWith(undo, key2);
        tap(key1);
        down(firstShift);
        tapWith(secondShift, key1);
        tap(key2);
        up(firstShift);
        tap(key2);
        tap(undo);
        for (const auto& [slot, count] : {std::pair{1, 1}, {91, 1}, {47, 1}, {2, -1}})
            EXPECT_EQ(count, shown(slot)) << slot;
        EXPECT_EQ("2", frmMain.Text3[0].text);
    }
    void expectCountingBySettings() { expectCounting(201, 202, 246, 247, 249); }
    void expectSilentCountingByBuiltInKeys()
    {
        EXPECT_FALSE(sheet.SoundOn || sheet.UseKeySettings);
        EXPECT_TRUE(sheet.Shift1Key == 16 && sheet.Shift2Key == 17 && sheet.MinusKey == 8);
        for (const int key : {201, 246, 247, 249})
            tap(key);
        EXPECT_TRUE(sheet.FreshSheet);
        expectCounting('Q', 'W', 16, 17, 8);
        EXPECT_TRUE(sound.played.empty());
    }
};

} // namespace

TEST_F(StartUp, withAllFilesPlaysTheOpeningAndIsReadyToCount)
{
    start();
    EXPECT_EQ(std::vector{Cue::SoundOpening}, sound.played);
    for (int cue = 0; cue < cueCount; ++cue)
        EXPECT_EQ("wave of " + soundNames[cue], sound.images[static_cast<Cue>(cue)]);
    EXPECT_TRUE(sheet.SoundOn && sheet.UseKeySettings && sheet.KeysInitialised &&
                frmMain.mnuFavorite.enabled);
    EXPECT_EQ(0, initials);
    EXPECT_EQ(240, frmMain.Text1[90].left); // the settings number the positions backwards
    expectCountingBySettings();
    EXPECT_EQ(7U, sound.played.size());
}

TEST_F(StartUp, showsAnEmptySheetWithOneSample)
{
    start();
    const MainScreen& f = frmMain;
    EXPECT_EQ("TallyStrata 3.2.5 - [Untitled], 1/1", f.caption + ", " + f.Label4.caption);
    EXPECT_EQ("-9999 -9999", f.Text1[0].text + " " + f.Combo2.text);
    EXPECT_EQ("0 0 0", f.Text3[0].text + " " + f.Text3[1].text + " " + f.Text3[2].text);
    EXPECT_EQ("135 --- 0", f.Label1[135].caption + " " + f.Text1[135].text + " " + f.Text2[135].text);
    EXPECT_EQ("(Start) (Start)", f.Text7.text + " " + f.Combo1.text);
    EXPECT_TRUE(f.Combo1.items == std::vector<std::string>{"(Start)"} && f.Combo2.items.empty());
    EXPECT_EQ(std::vector<std::string>{"Created: )"}, sheet.ActionText);
    EXPECT_EQ(std::vector<std::string>{"15/11/2026_14:05:09:27"}, sheet.ActionTime);
    EXPECT_FALSE(f.Command2[0].enabled || f.mnuReset.enabled || f.Command3[1].enabled ||
                 f.mnuFinishAmend.enabled);
    EXPECT_FALSE(f.Command5[0].enabled || f.mnuSave.enabled || f.Command5[1].enabled || f.mnuNext.enabled);
    EXPECT_FALSE(f.mnuUndo.enabled || f.mnuNew.enabled || f.mnuSaveHistory.enabled || f.mnuBar.enabled);
    EXPECT_FALSE(f.Text4.enabled || f.Label1[1].visible || f.Label1[135].enabled);
    EXPECT_TRUE(f.mnuItalic.checked && f.Option1[0].selected);
}

TEST_F(StartUp, withoutKeySettingsTellsItAndGoesOn)
{
    for (const std::string& text : {std::string(), keySettings("13", 62), std::string(3000, '\xE9'),
                                    keySettings("13") + std::string(100'000'000, '\n')}) {
        files.contents[keyFile] = text;
        if (text.empty())
            files.contents.erase(keyFile);
        expectMissing("reference");
        start();
        EXPECT_TRUE(sound.images.empty() && !sheet.KeysInitialised && frmMain.mnuFavorite.enabled);
        EXPECT_EQ(1, initials);
        EXPECT_EQ(240, frmMain.Text1[1].left);
        expectSilentCountingByBuiltInKeys();
    }
}

TEST_F(StartUp, withoutOneSoundTellsItAndGoesOn)
{
    for (const std::string& name : soundNames) {
        deliver();
        files.contents.erase(soundFile(name));
        expectMissing("sound");
        start();
        EXPECT_TRUE(sheet.KeysInitialised && initials == 0) << name;
        expectSilentCountingByBuiltInKeys();
    }
}

TEST_F(StartUp, withAnUnidentifiedKeyboardBringsUpItsWindow)
{
    for (const char* code : {"0", "999", "", "x", "999.0"}) {
        files.contents[keyFile] = keySettings(code);
        start();
        EXPECT_FALSE(sheet.KeysInitialised) << code;
        EXPECT_EQ(1, initials);
        EXPECT_EQ(std::vector{Cue::SoundOpening}, cuesBeforeInitial);
        EXPECT_TRUE(frmMain.mnuFavorite.enabled);
        expectCountingBySettings();
    }
    files.contents.erase(soundFile("Error"));
    expectMissing("sound");
    dialogs.whenOpened = [] { EXPECT_EQ(0, initials); }; // the message comes first
    start();
    EXPECT_EQ(1, initials);
}

TEST_F(StartUp, withoutThePictureSaysNothing)
{
    files.contents[pictureFile] = "GIF89a";
    for (int times = 0; times < 2; ++times) {
        start();
        EXPECT_TRUE(sheet.SoundOn && !frmMain.mnuFavorite.enabled);
        files.contents.erase(pictureFile);
    }
}

TEST_F(StartUp, withTheDeliveredFilesHasTheBuiltInKeysInTheirPlaces)
{
    files.contents.clear();
    for (const std::string folder : {"References", "Sound files"})
        for (const auto& entry : std::filesystem::directory_iterator(SOURCE_FOLDER "/" + folder)) {
            std::ifstream stream(entry.path(), std::ios::binary);
            files.contents["/program/" + folder + "/" + entry.path().filename().string()] =
                std::string(std::istreambuf_iterator<char>(stream), {});
        }
    start();
    EXPECT_TRUE(sheet.SoundOn && sheet.UseKeySettings && frmMain.mnuFavorite.enabled);
    EXPECT_EQ(1, initials); // no one has told it the keyboard yet
    for (const auto& [cue, image] : sound.images)
        EXPECT_EQ("RIFF", image.substr(0, 4)) << static_cast<int>(cue);
    for (int row = 1; row <= keysPerLayer; ++row) {
        const int key = wholeNumber(sheet.KeySetting[row].Code);
        EXPECT_EQ(row, builtInKeyNumber(key));
        EXPECT_EQ(row, wholeNumber(sheet.KeySetting[row].Number));
        tap(key);
        tapWith(sheet.Shift2Key, key);
        EXPECT_EQ(2, shown(row) + shown(45 + row));
    }
    tap(sheet.MinusKey);
    EXPECT_EQ("89", frmMain.Text3[0].text);
    EXPECT_EQ(sheet.KeySetting[rowShift1].Code, sheet.KeySetting[rowShift1Copy].Code);
    std::string references;
    for (int row = rowFirstReference; row < keySettingRows; ++row)
        references += sheet.KeySetting[row].Definition + " ";
    EXPECT_EQ("Shift Ctrl Delete BkSp Esc Enter Space F1 Left Up Right Down ", references);
}
