// The menu bar. Each entry stands once in the table: its menu, name, caption, record and handler.

#include "core/cue.h"
#include "core/endings.h"
#include "core/main_screen.h"
#include "core/sample_sort.h"
#include "core/transfer_taxa.h"
#include "core/undo.h"
#include "diagram/diagram_window.h"
#include "extras/about.h"
#include "extras/diagnose.h"
#include "extras/manual.h"
#include "extras/pictures.h"
#include "figure/figure_form.h"
#include "files/new_sheet.h"
#include "files/next_sample.h"
#include "files/open_sheet.h"
#include "files/save_sheet.h"
#include "files/template_file.h"
#include "files/text_exports.h"
#include "keys/first_run.h"
#include "keys/key_editor.h"
#include "printing/printing.h"
#include "sheet/find.h"
#include "sheet/focus_and_pointer.h"
#include "sheet/key_names.h"
#include "sheet/live_curve.h"
#include "sheet/modify_mode.h"
#include "sheet/name_display.h"
#include "sheet/subtotals.h"
#include "sheet/summary.h"
#include "statistics/statistics_form.h"
#include "statistics/statistics_line.h"
#include "statistics/target.h"
#include "tables/table_exports.h"
#include "tables/table_form.h"
#include "tables/taxa_form.h"
#include "window/diagram_window.h"
#include "window/main_window.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

namespace {

const std::vector<MenuRow> menus = {
    {"mnuFile", "&File", nullptr},
    {"mnuPercent", "Save percentage table", "mnuFile"},
    {"mnuExport", "Export for R and Python", "mnuFile"},
    {"mnuPrint", "Print", "mnuFile"},
    {"mnuEdit", "&Edit", nullptr},
    {"mnuDiagram", "&Diagram", nullptr},
    {"mnuTools", "&Tools", nullptr},
    {"mnuView", "&View", nullptr},
    {"mnuFont", "Font size", "mnuView"},
    {"mnuAlignment", "Alignment", "mnuView"},
    {"mnuHelp", "&Help", nullptr},
    {"mnuTired", "Are you tired?", "mnuHelp"},
    {"mnuDiversityRB", nullptr, nullptr},
    {"mnuHalfWidth", nullptr, nullptr},
};

std::vector<EntryRow> entryTable()
{
    MainScreen& f = frmMain;
    auto& h = statisticsLine.mnuHalfWidth;
    return {
        {"mnuFile", "mnuNew", "New", &f.mnuNew, mnuNew_Click},
        {"mnuFile", "mnuOpen", "Open...", &f.mnuOpen, mnuOpen_Click},
        {"mnuFile", "mnuNewFromTable", "New from a table...", &f.mnuNewFromTable, mnuNewFromTable_Click},
        {"mnuFile"},
        {"mnuFile", "mnuSave", "Save", &f.mnuSave, mnuSave_Click},
        {"mnuFile", "mnuSaveAs", "Save as...", &f.mnuSaveAs, mnuSaveAs_Click},
        {"mnuFile", "mnuSaveCopy", "Save copy...", &f.mnuSaveCopy, mnuSaveCopy_Click},
        {"mnuFile", "mnuTemplate", "Create template", nullptr, mnuTemplate_Click},
        {"mnuFile"},
        {"mnuFile", "mnuNext", "Next sample", &f.mnuNext, mnuNext_Click},
        {"mnuFile"},
        {"mnuFile", "mnuSaveHistory", "Save history", &f.mnuSaveHistory, mnuSaveHistory_Click},
        {"mnuFile", "mnuSaveSaturation", "Save Saturation curve", nullptr, mnuSaveSaturation_Click},
        {"mnuPercent", "mnuPercentAll", "% by All total", &f.mnuPercentAll, mnuPercentAll_Click},
        {"mnuPercent", "mnuPercentSub1", "% by Subtotal-1", &f.mnuPercentSub1, mnuPercentSub1_Click},
        {"mnuPercent", "mnuPercentSub2", "% by Subtotal-2", &f.mnuPercentSub2, mnuPercentSub2_Click},
        {"mnuExport", "mnuExportCounts", "Counts...", nullptr, mnuExportCounts_Click},
        {"mnuExport", "mnuExportTidy", "Tidy table...", nullptr, mnuExportTidy_Click},
        {"mnuExport", "mnuExportTaxa", "Taxa...", nullptr, mnuExportTaxa_Click},
        {"mnuExport", "mnuExportAll", "All three...", nullptr, mnuExportAll_Click},
        {"mnuPrint", "mnuPrintSheet", "Sheet as PDF...", nullptr, mnuPrintSheet_Click},
        {"mnuPrint", "mnuPrintSummary", "Summary as PDF...", nullptr, mnuPrintSummary_Click},
        {"mnuFile"},
        {"mnuFile", "mnuQuit", "Quit", nullptr, mnuQuit_Click},

        {"mnuEdit", "mnuUndo", "Undo", &f.mnuUndo, mnuUndo_Click},
        {"mnuEdit", "mnuReset", "Reset", &f.mnuReset, AbortCount},
        {"mnuEdit"},
        {"mnuEdit", "mnuStartAmend", "Modify template", &f.mnuStartAmend, mnuStartAmend_Click},
        {"mnuEdit", "mnuFinishAmend", "Resume counting", &f.mnuFinishAmend, mnuFinishAmend_Click},
        {"mnuEdit", "mnuTaxaFromList", "Taxa from a list...", &f.mnuTaxaFromList, mnuTaxaFromList_Click},
        {"mnuEdit", "mnuSortSamples", "Sort samples by depth", &sampleSort.mnuSortSamples,
         mnuSortSamples_Click},
        {"mnuEdit"},
        {"mnuEdit", "mnuFind", "Find", &f.mnuFind, mnuFind_Click},

        {"mnuDiagram"},
        {"mnuDiagram", "mnuFigure", "Figure...", nullptr, mnuFigure_Click},

        {"mnuTools", "mnuKeyCodeReader", "Key settings", nullptr, mnuKeyCodeReader_Click},
        {"mnuTools", "mnuInitial", "Initialise", nullptr, mnuInitial_Click},
        {"mnuTools", "mnuSubtotal", "Subtotal settings", nullptr, mnuSubtotal_Click},
        {"mnuTools"},
        {"mnuTools", "mnuSummary", "Summary", nullptr, LaunchSummary},
        {"mnuTools", "mnuDiagnose", "Diagnose", nullptr, mnuDiagnose_Click},

        {"mnuView", "mnuItalic", "Italics", &f.mnuItalic, mnuItalic_Click, true},
        {"mnuFont", "mnuFontSize(6)", "6", &f.mnuFontSize[6], {mnuFontSize_Click, 6}, true},
        {"mnuFont", "mnuFontSize(7)", "7", &f.mnuFontSize[7], {mnuFontSize_Click, 7}, true},
        {"mnuFont", "mnuFontSize(8)", "8", &f.mnuFontSize[8], {mnuFontSize_Click, 8}, true},
        {"mnuFont", "mnuFontSize(9)", "9", &f.mnuFontSize[9], {mnuFontSize_Click, 9}, true},
        {"mnuFont", "mnuFontSize(10)", "10", &f.mnuFontSize[10], {mnuFontSize_Click, 10}, true},
        {"mnuAlignment", "mnuAlign(0)", "Left", &f.mnuAlign[0], {mnuAlign_Click, 0}, true},
        {"mnuAlignment", "mnuAlign(1)", "Right", &f.mnuAlign[1], {mnuAlign_Click, 1}, true},

        {"mnuView"},
        {"mnuView", "mnuKeyNames", "Key names", &keyNames.mnuKeyNames, mnuKeyNames_Click, true},
        {"mnuView", "mnuStatisticsLine", "Statistics line", &statisticsLine.mnuStatisticsLine,
         mnuStatisticsLine_Click, true},
        {"mnuView", "mnuTarget", "Target...", nullptr, mnuTarget_Click},
        {"mnuView", "mnuStatistics", "Statistics...", nullptr, mnuStatistics_Click},

        {"mnuView"},
        {"mnuView", "mnuMute", "Mute", &hearing.mnuMute, mnuMute_Click, true},

        {"mnuTired", "mnuCoffee", "Coffee", nullptr, mnuCoffee_Click},
        {"mnuTired", "mnuBeach", "Beach", nullptr, mnuBeach_Click},
        {"mnuTired", "mnuFavorite", "My favorite", &f.mnuFavorite, mnuFavorite_Click},
        {"mnuHelp"},
        {"mnuHelp", "mnuManual", "Manual", nullptr, mnuManual_Click},
        {"mnuHelp", "mnuAboutDX1", "About programmable keypads", nullptr, mnuAboutDX1_Click},
        {"mnuHelp", "mnuAboutApp", "About TallyStrata", nullptr, mnuAboutApp_Click},

        {"mnuDiversityRB", "mnuCopyDiversity", "Copy image", &f.mnuCopyDiversity, mnuCopyDiversity_Click},
        {"mnuDiversityRB", "mnuSaveDiversity", "Save data", &f.mnuSaveDiversity, SaveDiversity},

        {"mnuHalfWidth", "mnuHalfWidth(0)", "", &h[0], {mnuHalfWidth_Click, 0}, true},
        {"mnuHalfWidth", "mnuHalfWidth(1)", "", &h[1], {mnuHalfWidth_Click, 1}, true},
        {"mnuHalfWidth", "mnuHalfWidth(2)", "", &h[2], {mnuHalfWidth_Click, 2}, true},
        {"mnuHalfWidth", "mnuHalfWidth(3)", "", &h[3], {mnuHalfWidth_Click, 3}, true},
        {"mnuHalfWidth", "mnuHalfWidth(4)", "", &h[4], {mnuHalfWidth_Click, 4}, true},
        {"mnuHalfWidth", "mnuHalfWidth(5)", "", &h[5], {mnuHalfWidth_Click, 5}, true},
    };
}

} // namespace

void MainWindow::makeMenus()
{
    std::vector<EntryRow> entries =
        styleEntries("mnuDiagram", &frmMain.mnuDiagramStyles, mnuDiagramStyle_Click);
    for (const EntryRow& entry : entryTable())
        entries.push_back(entry);
    BoundWindow::makeMenus(*menuBar(), menus, entries);
    bindAction(menuNamed("mnuPercent")->menuAction(), frmMain.mnuPercent); // one entry of its own
    connect(menuNamed("mnuEdit"), &QMenu::aboutToShow, this, [this] { onPassing(mnuEdit_Open); });
}

/// mnuByPass: Ctrl and a letter is taken and does nothing. It counts nothing either, here and where the
/// diagram is: there it is meant for copying.
void MainWindow::takeCtrlLetters(QWidget& window)
{
    for (char letter = 'A'; letter <= 'Z'; ++letter) {
        auto* const taken = new QAction(&window);
        taken->setObjectName(QString("mnu") + letter);
        taken->setShortcut(QKeySequence(QString("Ctrl+") + letter));
        window.addAction(taken);
    }
}

/// The menu of a row. What the end of a target menu sets off waits until the entry that was chosen in it has
/// done its work, since a menu closes first.
void MainWindow::makeRowMenu()
{
    auto* const rowMenu = new QMenu("RB", this);
    rowMenu->setObjectName("mnuRightButton");
    QMenu* const move = rowMenu->addMenu("Move");
    move->setObjectName("mnuMove2");
    const char* const names[] = {"mnu1to45", "mnu46to90", "mnu91to135"};
    const char* const captions[] = {"1-45 (Neutral)", "46-90 (Shift 1 or 2)", "91-135 (Shift 1 and 2)"};
    for (int layer = 0; layer < 3; ++layer) {
        QMenu* const targets = move->addMenu(captions[layer]);
        targets->setObjectName(names[layer]);
        connect(targets, &QMenu::aboutToShow, this,
                [this, layer] { onEvent([&] { openTargetMenu(layer); }); });
        connect(
            targets, &QMenu::aboutToHide, this, [this, layer] { onEvent([&] { targetMenuClosed(layer); }); },
            Qt::QueuedConnection);
        for (int key = 1; key <= keysPerLayer; ++key) {
            const int slot = layer * keysPerLayer + key;
            const std::string number = std::to_string(slot);
            const std::string name = "mnuMoveTo" + std::to_string(layer + 1) + "(" + number + ")";
            addEntry(*targets, {names[layer],
                                name.c_str(),
                                number.c_str(),
                                &frmMain.mnuMoveTo[slot],
                                {mnuMoveTo_Click, slot}});
        }
    }
}
