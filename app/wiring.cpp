#include "app/wiring.h"

#include "core/hooks.h"
#include "diagram/diagram_window.h"
#include "extras/about.h"
#include "extras/diagnose.h"
#include "extras/manual.h"
#include "extras/pictures.h"
#include "files/backup.h"
#include "files/new_sheet.h"
#include "files/next_sample.h"
#include "files/recovery.h"
#include "files/rename_info.h"
#include "files/save_sheet.h"
#include "keys/first_run.h"
#include "keys/key_editor.h"
#include "keys/key_note.h"
#include "keys/key_settings.h"
#include "sheet/cell_grid.h"
#include "sheet/find.h"
#include "sheet/live_curve.h"
#include "sheet/subtotals.h"

/// In this order; nothing asks for when frmFind, frmDiagnose and the manual go.
static void unloadForms()
{
    frmAboutDX1.visible = false;
    frmAboutApp.visible = false;
    closeDiagram();
    frmInitial.visible = false;
    frmKeyCode.visible = false;
    frmNext.visible = false;
    frmNote.visible = false;
    frmParaName.visible = false;
    frmSiteName.visible = false;
    frmSubtotal.visible = false;
    frmPicture.visible = false;
    frmFind.visible = false;
    frmDiagnose.visible = false;
    closeManual();
}

void connectRooms()
{
    hooks.UnloadForms = unloadForms;
    hooks.ReadKeySettings = ReadKeySettings;
    hooks.ArrangeTaxonCells = ArrangeTaxonCells;
    hooks.ShowInitial = ShowInitial;
    hooks.ShowFirstRunChoice = showFirstRunChoice;
    hooks.SaveSheet = SaveSheet;
    hooks.AutoBackup = AutoBackup;
    hooks.EndRecovery = endRecovery;
    hooks.DrawDiversity = DrawDiversity;
    hooks.CloseDiagram = closeDiagram;
    hooks.ReloadDiagram = reloadDiagram;
    hooks.ReorderDiagram = reorderDiagram;
    hooks.RefreshDiagram = refreshDiagram;
    hooks.RedrawDiagram = redrawDiagram;
}
