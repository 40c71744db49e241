#pragma once

#include "core/program_test.h"
#include "files/backup.h"
#include "files/left_work.h"
#include "files/recovery.h"
#include "files/save_sheet.h"

/// A program whose unsaved work is kept, and which may be killed and started again on the same files.
class RecoveryProgram : public ProgramTest {
protected:
    RecoveryProgram()
    {
        start();
        findRecoveryCopies();
    }
    /// What follows each event in the running program.
    static void afterEvent()
    {
        watchUnsavedWork();
        JournalTimer_Timer();
    }
    void count(int key, int times)
    {
        for (int i = 0; i < times; ++i) {
            tap(key);
            afterEvent();
        }
    }
    void pause()
    {
        if (pauseTimer.milliseconds != 0)
            PauseTimer_Timer();
    }
    /// More than five seconds.
    void timePasses()
    {
        pause();
        if (recoveryTimer.milliseconds == 0)
            return;
        recoveryTimer.stop();
        RecoveryTimer_Timer();
    }
    /// The program was killed; another one is about to look for what it has left.
    void crash()
    {
        files.claimed.clear();
        start();
    }
    /// `individuals` and when the last was counted; nothing of the latter if it is empty.
    void expectOffer(const std::string& name, const std::string& individuals, Answer answer,
                     const std::string& more = "")
    {
        dialogs.expect("TallyStrata ended while '" + name + "' was not saved. " + individuals +
                           " individuals are kept, the last counted 15/11/2026 (14:05:09)." + more +
                           " Do you want to take up what was counted?",
                       "TallyStrata", answer);
    }
    void saveAs(const std::string& path)
    {
        dialogs.paths.push_back(path);
        mnuSaveAs_Click();
        afterEvent();
    }
    bool isThere(const std::string& path) const { return files.contents.count(path) != 0; }
    /// Names of the files among the backups that begin so.
    std::vector<std::string> backups(const std::string& beginning)
    {
        std::vector<std::string> found;
        for (const std::string& name : files.list("/program/References/Back up files"))
            if (name.rfind(beginning, 0) == 0)
                found.push_back(name);
        return found;
    }

private:
    void start()
    {
        sheet = SheetState();
        sheet.SoundOn = true;
        sheet.ActionText = sheet.ActionTime = {""};
        frmMain = MainScreen();
        recoveryCopy = {};
        recoveryTimer.stop();
        pauseTimer.stop();
        hooks.SaveSheet = SaveSheet;
        hooks.EndRecovery = endRecovery;
        hooks.AutoBackup = AutoBackup;
    }
};
