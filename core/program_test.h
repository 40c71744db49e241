#pragma once

#include "core/forms.h"
#include "core/hooks.h"
#include "core/main_keys.h"
#include "core/main_screen.h"
#include "core/number_text.h"
#include "core/sheet_state.h"
#include "core/user_event.h"
#include "platform/fakes/hand_clock.h"
#include "platform/fakes/memory_files.h"
#include "platform/fakes/picture_recorder.h"
#include "platform/fakes/scripted_dialogs.h"
#include "platform/fakes/sound_recorder.h"

#include <gtest/gtest.h>

/// The program on fresh records and ports in memory, with hands on its keyboard. The built-in key map is in
/// force and the cues are on.
class ProgramTest : public ::testing::Test {
protected:
    static constexpr int shift1 = 16;
    static constexpr int shift2 = 17;
    static constexpr int undoKey = 8;

    MemoryFiles files;
    ScriptedDialogs dialogs;
    SoundRecorder sound;
    HandClock clock;
    HandTimer timer;
    HandTimer recoveryTimer;
    HandTimer journalTimer;
    HandTimer pauseTimer;
    HandTimer deadlineTimer;
    PictureRecorder pictures;

    ProgramTest()
    {
        sheet = SheetState();
        sheet.ActionText = {"Created: )"};
        sheet.ActionTime = {""};
        sheet.SoundOn = true;
        frmMain = MainScreen();
        for (const Form* const form : forms())
            form->visible = false;
        hooks = Hooks();
        ports = {&files,    &dialogs,   &sound, &clock,        &timer,      &recoveryTimer,
                 &pictures, "/program", 15360,  &journalTimer, &pauseTimer, &deadlineTimer};
        dialogs.whenOpened =
            [this] { // a message box takes the keyboard, and stays longer than the repeat guard
                Form_Deactivate();
                runOutTimer();
            };
    }

    static void down(int key)
    {
        const UserEvent event;
        Form_KeyDown(key, 0);
    }
    static void up(int key)
    {
        const UserEvent event;
        Form_KeyUp(key, 0);
    }
    void runOutTimer()
    {
        if (timer.milliseconds > 0) {
            const UserEvent event;
            Timer1_Timer();
        }
    }
    void tap(int key, int times = 1)
    {
        for (int i = 0; i < times; ++i) {
            down(key);
            up(key);
            runOutTimer();
        }
    }
    /// Presses `key` while `held` is down.
    void tapWith(int held, int key)
    {
        down(held);
        tap(key);
        up(held);
    }
    /// The next count asks whether it may go into another sample than the latest.
    void expectStaleQuestion(Answer answer)
    {
        dialogs.expect("The datasheet that you are trying to modify is not the latest one. Do you continue?",
                       "Warning!!", answer);
    }
    static int shown(int slot) { return wholeNumber(frmMain.Text2[slot].text); }
    static int stored(int slot) { return sheet.Count(sheet.CurrentSample, slot); }
    /// Puts more columns into the sheet without going by way of its windows.
    static void addSamples(int count)
    {
        for (int sample = 2; sample <= count; ++sample) {
            sheet.SampleField(sample, 1) = decimalText(sample);
            sheet.SampleField(sample, 2) = decimalText(10 * sample);
            sheet.SampleNote(sample, 0) = "note " + decimalText(sample);
        }
        sheet.SampleField(1, 2) = "10";
        sheet.SampleCount = sheet.LatestSerial = count;
    }
};
