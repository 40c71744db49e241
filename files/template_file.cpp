#include "files/template_file.h"

#include "core/cue.h"
#include "core/main_screen.h"
#include "core/sheet_state.h"
#include "files/sheet_on_screen.h"
#include "files/sheet_text.h"
#include "platform/ports.h"

void mnuTemplate_Click()
{
    beginProgress();
    if (const auto path = ports.dialogs->chooseFileToSave("Save template", "Template.csv")) {
        stampHead("Last modified (dd/mm/yyyy):", sheet.SheetPath, ports.clock->now());
        fillEmptyCells(sheet, shownCaptions());
        if (ports.files->write(*path, templateText(sheet))) {
            if (!sheet.Modifying)
                frmMain.focus = MainFocus::Text99;
            playCue(Cue::SoundSave);
        }
    }
    endProgress();
}
