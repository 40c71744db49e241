#include "app/wiring.h"
#include "core/built_in_keys.h"
#include "core/program_test.h"
#include "core/start_up.h"
#include "keys/delivered_keys.h"

#include <filesystem>
#include <fstream>
#include <iterator>

namespace {

const std::string soundNames[] = {"Key-1", "Key-2", "Key-3", "Opening", "Undo", "Save", "Alarm", "Error"};
const std::string soundFolder = "/program/Sound files/";
const std::string keyFile = "/program/References/KeySetting.csv";
const std::string pictureFile = "/program/References/My_favorite.jpg";

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

class StartUp : public ProgramTest {
protected:
    StartUp()
    {
        connectRooms();
        hooks.ShowInitial = [] { ++initials; };
        deliver();
    }
    void deliver()
    {
        files.contents = {{keyFile, keySettings("13")}, {pictureFile, "\xFF\xD8\xFF picture"}};
        for (const std::string& name : soundNames)
            files.contents[soundFolder + name + ".wav"] = "wave of " + name;
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
        up(firstShift);
        tap(key2);
        tap(undo);
        for (const auto& [slot, count] : {std::pair{1, 1}, {91, 1}, {2, -1}})
            EXPECT_EQ(count, shown(slot)) << slot;
        EXPECT_EQ("1", frmMain.Text3[0].text);
    }
    void expectSilentCountingByBuiltInKeys()
    {
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
    EXPECT_TRUE(sheet.KeysInitialised && initials == 0 && frmMain.mnuFavorite.enabled);
    EXPECT_EQ(240, frmMain.Text1[90].left); // the settings number the positions backwards
    EXPECT_EQ("(Start) Created: ) 15/11/2026_14:05:09:27",
              frmMain.Text7.text + " " + sheet.ActionText.at(0) + " " + sheet.ActionTime.at(0));
    EXPECT_FALSE(frmMain.Command5[0].enabled || frmMain.mnuUndo.enabled || frmMain.Label1[1].visible);
    expectCounting(201, 202, 246, 247, 249);
    EXPECT_EQ(6U, sound.played.size());

    files.contents[pictureFile] = "GIF89a";
    for (int times = 0; times < 2; ++times) { // nothing is said of the picture
        start();
        EXPECT_TRUE(sheet.SoundOn && !frmMain.mnuFavorite.enabled);
        files.contents.erase(pictureFile);
    }
}

TEST_F(StartUp, withoutKeySettingsOrASoundTellsItAndGoesOn)
{
    for (const std::string& text : {std::string(), keySettings("13", 62)}) {
        files.contents[keyFile] = text;
        expectMissing("reference");
        start();
        EXPECT_TRUE(initials == 1 && frmMain.mnuFavorite.enabled && frmMain.Text1[1].left == 240);
        expectSilentCountingByBuiltInKeys();
    }
    for (const std::string& name : soundNames) {
        deliver();
        files.contents.erase(soundFolder + name + ".wav");
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
        EXPECT_TRUE(!sheet.KeysInitialised && initials == 1) << code;
        expectCounting(201, 202, 246, 247, 249);
    }
    files.contents.erase(soundFolder + "Error.wav");
    expectMissing("sound");
    dialogs.whenOpened = [] { EXPECT_EQ(0, initials); }; // the message comes first
    start();
    EXPECT_EQ(1, initials);
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
    EXPECT_TRUE(sheet.SoundOn && frmMain.mnuFavorite.enabled);
    EXPECT_EQ(1, initials); // no one has told it the keyboard yet
    EXPECT_EQ(keySettingsText(deliveredKeySettings()), keySettingsText(sheet.KeySetting));
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
}
