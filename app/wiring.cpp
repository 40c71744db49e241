#include "app/wiring.h"

#include "core/hooks.h"
#include "diagram/diagram_window.h"
#include "figure/figure_form.h"
#include "files/backup.h"
#include "files/next_sample.h"
#include "files/recovery.h"
#include "files/save_sheet.h"
#include "keys/first_run.h"
#include "keys/key_settings.h"
#include "sheet/cell_grid.h"
#include "sheet/live_curve.h"
#include "statistics/laboratory.h"
#include "statistics/recount.h"
#include "statistics/sheet_concentrations.h"

/// What belongs to the sheet before goes with it.
static void sheetOpened()
{
    recount = {};
    readLaboratory();
}

void connectRooms()
{
    hooks.ReadKeySettings = ReadKeySettings;
    hooks.ArrangeTaxonCells = ArrangeTaxonCells;
    hooks.ShowInitial = ShowInitial;
    hooks.ShowFirstRunChoice = showFirstRunChoice;
    hooks.SaveSheet = SaveSheet;
    hooks.AutoBackup = AutoBackup;
    hooks.SheetOpened = sheetOpened;
    hooks.SheetSaved = followSavedSheet;
    hooks.EndRecovery = endRecovery;
    hooks.DrawDiversity = DrawDiversity;
    hooks.CloseDiagram = [] {
        closeDiagram();
        figureSheetGoes();
    };
    hooks.ReloadDiagram = reloadDiagram;
    hooks.ReorderDiagram = reorderDiagram;
    hooks.RefreshDiagram = refreshDiagram;
    hooks.RedrawDiagram = redrawDiagram;
    hooks.SampleRenamed = followSampleNames;
    hooks.ConcentrationOf = concentrationOfSums;
}
