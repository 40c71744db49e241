#include "core/dispatch_key.h"

#include "core/program_test.h"

namespace {

std::optional<SaveMode> savedMode;
int backups = 0;
int refreshes = 0;

class Keyboard : public ProgramTest {
protected:
    Keyboard()
    {
        savedMode.reset();
        backups = refreshes = 0;
        hooks.SaveSheet = [](SaveMode mode) { savedMode = mode; };
        hooks.AutoBackup = [] { return ++backups > 0; };
        hooks.RefreshDiagram = [] { ++refreshes; };
    }
    static int all() { return wholeNumber(frmMain.Text3[0].text); }
    static bool noShiftIsHeld()
    {
        return sheet.Layer == 0 && frmMain.SSTab1 == 0 && !sheet.Shift1Down && !sheet.Shift2Down;
    }
};

} // namespace

TEST_F(Keyboard, eachLayerHasItsCueAndBothShiftsTogetherTheThird)
{
    down(shift2);
    tapWith(shift1, 'Q');
    up(shift2);
    tapWith(shift1, 'Q');
    tap('Q');
    EXPECT_TRUE(shown(91) == 1 && shown(46) == 1 && shown(1) == 1);
    EXPECT_EQ((std::vector{Cue::SoundKey3, Cue::SoundKey2, Cue::SoundKey1}), sound.played);
}

TEST_F(Keyboard, guardHoldsOffTheSameKeyFor70MillisecondsOfItsOwn)
{
    for (const int key : {int{'Q'}, int{'Q'}, shift1, int{'W'}})
        down(key);
    EXPECT_EQ(2, all());
    EXPECT_TRUE(timer.milliseconds == 70 && timer.starts == 2);
    runOutTimer();
    down('W'); // a held key counts again and again
    EXPECT_EQ(3, all());
}

TEST_F(Keyboard, keysThatMayNotCountChangeNothing)
{
    tap('P');
    sheet.KeysActive = false;
    tap('Q');
    sheet.KeysActive = sheet.Modifying = true;
    for (const int key : {shift1, int{'Q'}, undoKey})
        tap(key);
    EXPECT_EQ(0, all() + sheet.ActionCount + frmMain.SSTab1);
    EXPECT_TRUE(sheet.FreshSheet && sheet.SheetPristine && sound.played.empty());
    EXPECT_FALSE(frmMain.Command5[0].enabled);
}

TEST_F(Keyboard, firstKeysOpenTheEntriesTheyNeed)
{
    frmMain.mnuNext.enabled = true;
    tap(undoKey);
    EXPECT_TRUE(sheet.SheetPristine && !sheet.FreshSheet);
    EXPECT_TRUE(!frmMain.mnuNext.enabled);
    tap(shift1);
    EXPECT_TRUE(!sheet.SheetPristine && frmMain.mnuNew.enabled && frmMain.mnuUndo.enabled);
    EXPECT_FALSE(frmMain.Command5[0].enabled || frmMain.Command2[0].enabled);
    tap('Q');
    EXPECT_TRUE(frmMain.Command5[0].enabled && frmMain.mnuSave.enabled && frmMain.mnuSaveHistory.enabled);
    EXPECT_TRUE(frmMain.Command2[0].enabled && frmMain.mnuReset.enabled);
}

TEST_F(Keyboard, saveKeySavesAndCountsIfItIsACounterKeyToo)
{
    sheet.KeySetting[rowSave].Code = decimalText('P');
    sheet.DiagramOpen = true; // follows every key that is taken but the shift keys
    tap('P');
    EXPECT_EQ(SaveMode::untouched, savedMode);
    EXPECT_TRUE(sheet.FreshSheet);
    sheet.KeySetting[rowSave].Code = decimalText('Q');
    for (const int key : {int{'Q'}, int{'Q'}, shift1, undoKey})
        tap(key);
    EXPECT_EQ(SaveMode::plain, savedMode);
    EXPECT_EQ(1, all());
    EXPECT_EQ(3, refreshes);
}

TEST_F(Keyboard, alarmRingsAndBacksUpOnceOnTheWayUp)
{
    frmMain.Text2[1].text = "98";
    tap('Q', 3);
    EXPECT_EQ((std::vector{Cue::SoundKey1, Cue::SoundAlarm, Cue::SoundKey1}), sound.played);
    // Down to 100 it is not armed, but the reverse count arms it; so does 99.
    for (const auto& [reverse, cue] : {std::pair{true, Cue::SoundUndo},
                                       {false, Cue::SoundKey1},
                                       {true, Cue::SoundAlarm},
                                       {true, Cue::SoundUndo},
                                       {false, Cue::SoundAlarm}}) {
        reverse ? tapWith(undoKey, 'Q') : tap('Q');
        EXPECT_EQ(cue, sound.played.back()) << all();
    }
    EXPECT_EQ(3, backups);
}

TEST_F(Keyboard, alarmWatchesTheChosenTotalUnlessItIsZeroAndNeedsTheSound)
{
    frmMain.Option1[0].selected = false;
    frmMain.Option1[1].selected = true;
    sheet.TaxonRecord[1].Subtotal1 = "1";
    tap('W', 100);
    tap('Q', 99);
    EXPECT_EQ(0, backups);
    tap('Q');
    tap('W'); // the subtotal still stands at 100
    EXPECT_EQ(1, backups);
    tap('Q', 99);
    sound.played.clear();
    sheet.SoundOn = false;
    tap('Q');
    EXPECT_TRUE(backups == 1 && sound.played.empty() && sheet.AlarmArmed && !sheet.WarnNotLatest);
}

TEST_F(Keyboard, asksBeforeItCountsInAnOlderSampleUntilAnsweredYes)
{
    addSamples(2);
    tap(undoKey);
    down(shift1);
    down(shift2); // none of the three counts
    expectStaleQuestion(Answer::no);
    tap('Q');
    EXPECT_EQ(0, all() + sheet.UndoStack[0].slot);
    EXPECT_EQ(std::vector{Cue::SoundError}, sound.played);
    EXPECT_TRUE(noShiftIsHeld()); // the key-ups went to the message

    sheet.SoundOn = false;
    dialogs.whenOpened = [] {}; // even if the window never hears of it
    down(shift1);
    down(shift2);
    expectStaleQuestion(Answer::yes);
    tap('Q');
    EXPECT_EQ(1, shown(91)); // on the layer that it was pressed on
    EXPECT_EQ(1, sound.beeps);
    EXPECT_TRUE(noShiftIsHeld());
    tap('W');
    EXPECT_EQ(1, shown(2));
}

TEST_F(Keyboard, forgetsHeldKeysWithTheFocusButNotBeforeTheKeyInWorkHasCounted)
{
    sheet.KeySetting[rowSave].Code = decimalText('Q');
    hooks.SaveSheet = [](SaveMode) { Form_Deactivate(); };
    down(shift1);
    down('Q');
    EXPECT_EQ(1, shown(46));
    EXPECT_TRUE(noShiftIsHeld());
    down(undoKey);
    Form_Deactivate();
    up(undoKey); // takes nothing back
    EXPECT_EQ(1, stored(46));
}
