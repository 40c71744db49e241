#include "files/text_exports.h"

#include "core/action_log.h"
#include "core/cue.h"
#include "core/main_screen.h"
#include "core/sheet_state.h"
#include "files/export_text.h"
#include "files/sheet_on_screen.h"
#include "platform/ports.h"
#include "sheet/focus_and_pointer.h"

static std::optional<std::string> chooseExport(const char* title, const char* proposed)
{
    return ports.dialogs->chooseFileToSave(title, ports.programFolder + "/References/" + proposed);
}

void mnuSaveHistory_Click()
{
    beginProgress(sheet.ActionCount);
    if (const auto path = chooseExport("Save history", "History.csv")) {
        if (ports.files->write(*path, historyText(sheet, logTime(ports.clock->now())))) {
            playCue(Cue::SoundSave);
            giveFocusBack();
        } else {
            ports.dialogs->ask("Save failed (file is being usd by another application).", "Error!",
                               Buttons::ok, Icon::exclamation);
        }
    }
    endProgress();
}

void SaveDiversity()
{
    beginProgress(sheet.DiversityTotal);
    if (const auto path = chooseExport("Save saturation curve", "Saturation.csv"))
        if (ports.files->write(*path, saturationText(sheet, frmMain.Combo2.text)))
            giveFocusBack();
    endProgress();
}

void mnuSaveSaturation_Click()
{
    SaveDiversity();
}
