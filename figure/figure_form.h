#pragma once

#include "figure/plan_figure.h"
#include "platform/json.h"

/// "Figure...": the figure of the open sheet, its settings and what leaves the program of it.
struct FigureForm {
    bool visible = false;
    int forwardRevision = 0;      ///< goes up whenever the window is to come in front
    bool clustersVisible = false; ///< the table of clusters stands open
    FigureSettings settings;
    FigurePlan plan;
    std::string fit;      ///< what would make a plan with faults printable
    std::string notice;   ///< what became of the last action, or what was wrong with the settings' file
    int planRevision = 0; ///< goes up with each plan

    Json kept;                   ///< what the settings' file holds, also what this program does not know
    FigureData data;             ///< as last read from the sheet
    bool settingsBelong = false; ///< the settings are those of the open sheet
    bool unkept = false;         ///< they were changed and not kept
};
extern FigureForm frmFigure;

/// "Figure...": opens the window with the settings that lie beside the sheet.
void mnuFigure_Click();
void closeFigure();
/// The sheet goes, or may go: the window closes; settings that were not kept are remembered for it.
void figureSheetGoes();

/// The user has changed settings.
void changeFigure(const FigureSettings& settings);
/// Something may have been counted or edited. Costs nothing while the window is closed.
void figureMayHaveChanged();
/// The hand pauses: the figure follows the sheet.
void FigureTimer_Timer();

/// "Save...": the picture, and its settings beside the sheet.
void mnuFigureSave_Click();
void mnuFigureCopy_Click();
/// "Copy caption".
void mnuFigureCaption_Click();
/// "Keep settings".
void mnuFigureKeep_Click();
/// "Use the settings of another sheet...".
void mnuFigureOther_Click();
void mnuFigureClusters_Click();
void closeClusters();
/// "Save merges...", "Save broken stick...".
void saveMerges();
void saveSticks();
/// "Read ages...": the table of a CSV file.
void readAges();
/// Depths and ages, one pair a line, separated by blanks, tabs, commas or semicolons; lines without two
/// numbers are skipped. Beside tabs or semicolons a comma is decimal.
std::vector<DatedDepth> agesIn(std::string_view text);
