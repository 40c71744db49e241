#include "core/dispatch_key.h"

#include "core/program_test.h"

namespace {

int savedMode = -1;
int backups = 0;
int refreshes = 0;

class Keyboard : public ProgramTest {
protected:
    Keyboard()
    {
        savedMode = -1;
        backups = refreshes = 0;
        hooks.SaveSheet = [](int mode) { savedMode = mode; };
        hooks.AutoBackup = [] { ++backups; };
        hooks.RefreshDiagram = [] { ++refreshes; };
    }
    /// As if `individuals` of slot 1 had been counted.
    static void haveCounted(int individuals)
    {
        frmMain.Text2[1].text = frmMain.Text3[0].text = decimalText(individuals);
        sheet.Count(1, 1) = individuals;
    }
    Cue lastCue() const { return sound.played.at(sound.played.size() - 1); }
    static int all() { return wholeNumber(frmMain.Text3[0].text); }
};
using Layers = Keyboard;
using RepeatGuard = Keyboard;
using Acceptance = Keyboard;
using Alarm = Keyboard;
using StaleSample = Keyboard;
using LostFocus = Keyboard;

} // namespace

TEST_F(Layers, bothShiftsReachTheThirdPageInEitherOrder)
{
    // 1 and 2: that shift key goes down; a and b: it comes up.
    const std::pair<int, std::vector<std::string>> cases[] = {
        {0, {"", "a", "12ba", "12ab", "1a"}},
        {1, {"1", "2", "111", "222", "12a", "12b", "12a22"}},
        {2, {"12", "21", "1222", "2111", "12a1", "12b2"}}};
    for (const auto& [layer, sequences] : cases)
        for (const std::string& events : sequences) {
            sheet = SheetState();
            sheet.SoundOn = true;
            frmMain = MainScreen();
            for (const char event : events)
                event < 'a' ? down(shift1 + event - '1') : up(shift1 + event - 'a');
            EXPECT_EQ(layer, frmMain.SSTab1) << events;
            tap('Q');
            EXPECT_EQ(1, shown(1 + 45 * layer)) << events;
            EXPECT_EQ(static_cast<Cue>(layer), lastCue()) << events;
        }
}

TEST_F(RepeatGuard, dropsTheSameKeyAndIsProlongedOnlyByKeysThatAreTaken)
{
    for (const int key : {int{'Q'}, int{'Q'}, shift1})
        down(key);
    EXPECT_EQ(1, all());
    EXPECT_EQ(70, timer.milliseconds);
    EXPECT_EQ(1, timer.starts);
    down('W');
    EXPECT_EQ(2, timer.starts); // a full time of its own
    down('Q');
    EXPECT_EQ(3, all());
    runOutTimer();
    EXPECT_EQ(0, timer.milliseconds);
    down('Q'); // a held key counts again and again
    EXPECT_EQ(4, all());
}

TEST_F(Acceptance, keysThatMayNotCountChangeNothing)
{
    tap('P');
    sheet.KeysActive = false;
    tap('Q');
    sheet.KeysActive = sheet.Modifying = true;
    down(shift1);
    tap('Q');
    tap(undoKey);
    EXPECT_EQ(0, all());
    EXPECT_TRUE(sheet.FreshSheet && sheet.SheetPristine);
    EXPECT_FALSE(frmMain.Command5[0].enabled);
    EXPECT_EQ(0, frmMain.SSTab1);
    EXPECT_TRUE(sound.played.empty());
    EXPECT_EQ(0, sheet.ActionCount);
}

TEST_F(Acceptance, firstKeysOpenTheEntriesTheyNeed)
{
    frmMain.mnuNext.enabled = true;
    frmMain.enabled = false; // as a dialog may have left it
    tap(undoKey);
    EXPECT_TRUE(sheet.SheetPristine && !sheet.FreshSheet);
    EXPECT_TRUE(!frmMain.mnuNext.enabled && frmMain.enabled);
    tap(shift1);
    EXPECT_FALSE(sheet.SheetPristine);
    EXPECT_TRUE(frmMain.mnuNew.enabled && frmMain.mnuUndo.enabled);
    EXPECT_FALSE(frmMain.Command5[0].enabled || frmMain.Command2[0].enabled ||
                 frmMain.mnuSaveHistory.enabled);
    tap('Q');
    EXPECT_TRUE(frmMain.Command5[0].enabled && frmMain.mnuSave.enabled && frmMain.mnuSaveHistory.enabled);
    EXPECT_TRUE(frmMain.Command2[0].enabled && frmMain.mnuReset.enabled);
}

TEST_F(Acceptance, saveKeySavesAndCountsIfItIsACounterKeyToo)
{
    sheet.KeySetting[rowSave].Code = decimalText('P');
    tap('P');
    EXPECT_EQ(99, savedMode);
    EXPECT_TRUE(sheet.FreshSheet);
    sheet.KeySetting[rowSave].Code = decimalText('Q');
    tap('Q', 2);
    EXPECT_EQ(0, savedMode);
    EXPECT_EQ(2, all());
}

TEST_F(Acceptance, diagramFollowsEveryKeyThatIsTakenButTheShiftKeys)
{
    sheet.DiagramOpen = true;
    tap(shift1);
    tap('P');
    EXPECT_EQ(0, refreshes);
    tap('Q');
    down(undoKey);
    EXPECT_EQ(2, refreshes);
}

TEST_F(Alarm, ringsAndBacksUpOnceOnTheWayUp)
{
    haveCounted(98);
    tap('Q', 3);
    EXPECT_EQ((std::vector{Cue::SoundKey1, Cue::SoundAlarm, Cue::SoundKey1}), sound.played);
    tapWith(undoKey, 'Q'); // 100 again, not armed
    EXPECT_EQ(Cue::SoundUndo, lastCue());
    tap('Q');
    tapWith(undoKey, 'Q'); // armed by the reverse count before
    EXPECT_EQ(Cue::SoundAlarm, lastCue());
    tapWith(undoKey, 'Q'); // 99
    EXPECT_EQ(Cue::SoundUndo, lastCue());
    tap('Q');
    EXPECT_EQ(Cue::SoundAlarm, lastCue());
    EXPECT_EQ(3, backups);
}

TEST_F(Alarm, watchesTheChosenTotalUnlessItIsZero)
{
    frmMain.Option1[0].selected = false;
    frmMain.Option1[1].selected = true;
    sheet.TaxonRecord[1].Subtotal1 = "1";
    tap('W', 100);
    tap('Q', 99);
    EXPECT_EQ(0, backups);
    tap('Q');
    EXPECT_EQ(1, backups);
    tap('W'); // the subtotal still stands at 100
    EXPECT_EQ(1, backups);
}

TEST_F(Alarm, needsTheSound)
{
    sheet.SoundOn = false;
    haveCounted(99);
    tap('Q');
    EXPECT_EQ(0, backups);
    EXPECT_TRUE(sound.played.empty() && sheet.AlarmArmed);
    EXPECT_FALSE(sheet.WarnNotLatest);
}

TEST_F(StaleSample, asksUntilAnsweredYes)
{
    addSamples(2);
    tap(undoKey);
    down(shift1);
    down(shift2); // none of the three counts
    expectStaleQuestion(Answer::no);
    tap('Q');
    EXPECT_EQ(0, all());
    EXPECT_EQ(0, sheet.UndoStack[0].slot);
    EXPECT_EQ(std::vector{Cue::SoundError}, sound.played);
    EXPECT_EQ(0, sheet.Layer + frmMain.SSTab1); // the key-ups went to the message

    sheet.SoundOn = false;
    dialogs.whenOpened = [] {}; // even if the window never hears of it
    down(shift1);
    down(shift2);
    expectStaleQuestion(Answer::yes);
    tap('Q');
    EXPECT_EQ(1, shown(91)); // on the layer that it was pressed on
    EXPECT_EQ(1, sound.beeps);
    EXPECT_EQ(0, sheet.Layer + frmMain.SSTab1);
    EXPECT_FALSE(sheet.Shift1Down || sheet.Shift2Down);
    tap('W');
    EXPECT_EQ(1, shown(2));
}

TEST_F(LostFocus, forgetsHeldKeysAndTakesNothingBack)
{
    tap('Q');
    for (const int key : {shift1, shift2, undoKey})
        down(key);
    Form_Deactivate();
    EXPECT_EQ(0, sheet.Layer + frmMain.SSTab1);
    EXPECT_FALSE(sheet.Shift1Down || sheet.Shift2Down);
    for (const int key : {undoKey, shift2, shift1})
        up(key);
    EXPECT_EQ(1, shown(1));
    EXPECT_EQ(0, sheet.Layer);
}

TEST_F(LostFocus, letsTheKeyThatOpenedAWindowCountOnItsLayer)
{
    sheet.KeySetting[rowSave].Code = decimalText('Q');
    hooks.SaveSheet = [](int) { Form_Deactivate(); };
    down(shift1);
    down('Q');
    EXPECT_EQ(1, shown(46));
    EXPECT_EQ(0, sheet.Layer);
}
