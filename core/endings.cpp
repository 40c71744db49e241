#include "core/endings.h"

#include "core/action_log.h"
#include "core/cue.h"
#include "core/editing.h"
#include "core/forms.h"
#include "core/hooks.h"
#include "core/main_screen.h"
#include "core/messages.h"
#include "core/sheet_name.h"
#include "core/sheet_state.h"
#include "core/snapshot.h"
#include "platform/code_page.h"
#include "platform/ports.h"

void AbortCount()
{
    playCue(Cue::SoundError);
    if (sheet.SampleTotal != 0) { // with nothing counted there is nothing to ask about
        if (ports.dialogs->ask("This action will abort all inputs after last saving. Do you proceed?",
                               "Caution!", Buttons::yesNo, Icon::question) == Answer::yes) {
            RestoreSnapshot();
            logAction("(Reset)");
            for (int i = 0; i <= 100; ++i)
                sheet.UndoStack[i].slot = 0;
            frmMain.Command2[0].enabled = false;
        } else {
            frmMain.Command2[0].enabled = true;
        }
    }
    if (sheet.DiagramOpen)
        hooks.RedrawDiagram();
    if (!sheet.Modifying)
        frmMain.focus = MainFocus::Text99;
}

static void endWindows()
{
    UnloadAll();
    hooks.EndProgram();
}

/// What is not saved is given up.
static void endProgram()
{
    hooks.EndRecovery(true);
    endWindows();
}

void mnuQuit_Click()
{
    playCue(Cue::SoundError);
    if (!mayLoseCounts())
        return;
    RestoreSnapshot();
    sheet.SoundOn = false;
    endProgram();
}

static Answer askToSave()
{
    std::string name = "Untitled";
    if (sheet.SheetPath.size() >= 4)
        name = toCodePageFromUtf8(baseName(sheet.SheetPath).value_or(sheet.SheetPath));
    return ports.dialogs->ask("Do you want to save the changes you made to '" + name + ".csv'?",
                              "TallyStrata", Buttons::yesNoCancel, Icon::question);
}

void Form_Unload(bool& cancel)
{
    sheet.SaveResult = 1;
    const VisitInterrupted interrupted; // after a Cancel the user types on in the same box
    if (hasUnsavedWork()) {
        const Answer answer = askToSave();
        if (answer == Answer::cancel) {
            cancel = true;
            return;
        }
        if (answer == Answer::yes)
            hooks.SaveSheet(plainOrUntouched());
        if (answer == Answer::yes && sheet.SaveResult == 2) {
            cancel = true;
            const bool backedUp = hooks.AutoBackup(); // the program ends, the counts do not
            const bool copied = hooks.EndRecovery(false);
            if (backedUp || copied)
                endWindows();
            else
                ports.dialogs->ask("Neither the sheet nor a backup of it could be written. The program stays "
                                   "open, so that nothing is lost.",
                                   "TallyStrata", Buttons::ok, Icon::exclamation);
            return;
        }
    }
    sheet.SoundOn = false;
    endProgram();
}

void UnloadAll()
{
    sheet.Unloading = true;
    takeDownForms();
}

void Form_Terminate()
{
    sheet.SoundOn = false;
    UnloadAll();
}

void CheckIfReallyEnd()
{
    TakeSnapshot();
    hooks.SaveSheet(SaveMode::plain);
}
