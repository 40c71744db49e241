#include "trials/days/session.h"

#include "core/endings.h"
#include "core/main_screen.h"
#include "core/sheet_state.h"
#include "core/undo.h"
#include "diagram/diagram_window.h"
#include "extras/about.h"
#include "extras/diagnose.h"
#include "extras/pictures.h"
#include "files/new_sheet.h"
#include "files/next_sample.h"
#include "files/open_sheet.h"
#include "files/save_sheet.h"
#include "files/template_file.h"
#include "files/text_exports.h"
#include "keys/first_run.h"
#include "keys/key_editor.h"
#include "sheet/basis.h"
#include "sheet/find.h"
#include "sheet/focus_and_pointer.h"
#include "sheet/live_curve.h"
#include "sheet/modify_mode.h"
#include "sheet/name_display.h"
#include "sheet/percent_view.h"
#include "sheet/sample_choice.h"
#include "sheet/subtotals.h"
#include "sheet/summary.h"
#include "tables/table_exports.h"
#include "tables/table_form.h"
#include "tables/taxa_form.h"

namespace {

bool always()
{
    return true;
}

/// The mouse is free: it does not hold the % button.
bool isMouseFree()
{
    return sheet.KeysActive;
}

DayEvent entry(const char* name, int weight, void (*handler)(), const MenuEntry* record = nullptr,
               Effect effect = Effect::none)
{
    return {name, weight, effect, [record] { return record == nullptr || record->enabled; },
            [handler](Session& s) { s.fromMenu(handler); }};
}

/// Buttons are reached by Tab and Space too, whatever the mouse does.
DayEvent button(const char* name, int weight, const Button& record, void (*handler)(),
                Effect effect = Effect::none)
{
    return {name, weight, effect, [&record] { return record.enabled && record.visible; },
            [handler](Session&) { Session::event(handler); }};
}

DayEvent percentages(const char* name, void (*handler)(), const MenuEntry& record)
{
    return {name, 1, Effect::none, [&record] { return frmMain.mnuPercent.enabled && record.enabled; },
            [handler](Session& s) { s.fromMenu(handler); }};
}

void quit()
{
    mnuQuit_Click();
}

void closeWindow()
{
    bool cancel = false;
    Form_Unload(cancel);
}

} // namespace

std::vector<DayEvent> eventsOfMainWindow()
{
    MainScreen& f = frmMain;
    return {
        {"keys", 600, Effect::none, always, [](Session& s) { s.playKeys(); }},
        {"timer", 300, Effect::none, always, [](Session& s) { s.runOutTimer(); }},
        {"recovery timer", 20, Effect::none, always, [](Session& s) { s.runOutRecoveryTimer(); }},
        {"crash", 1, Effect::replaced, always, [](Session& s) { s.crash(); }},
        {"keyboard lost", 4, Effect::none, always, [](Session& s) { s.loseKeyboard(); }},
        {"% down", 8, Effect::none, isMouseFree, [](Session& s) { s.event(Command6_MouseDown); }},
        {"% up", 100, Effect::none, [] { return !sheet.KeysActive; },
         [](Session& s) { s.event(Command6_MouseUp); }},

        entry("mnuNew", 1, mnuNew_Click, &f.mnuNew, Effect::replaced),
        entry("mnuOpen", 3, mnuOpen_Click, &f.mnuOpen, Effect::replaced),
        entry("mnuSave", 30, mnuSave_Click, &f.mnuSave),
        entry("mnuSaveAs", 3, mnuSaveAs_Click, &f.mnuSaveAs),
        entry("mnuSaveCopy", 2, mnuSaveCopy_Click, &f.mnuSaveCopy),
        entry("mnuTemplate", 2, mnuTemplate_Click),
        entry("mnuNext", 10, mnuNext_Click, &f.mnuNext),
        entry("mnuSaveHistory", 1, mnuSaveHistory_Click, &f.mnuSaveHistory),
        entry("mnuSaveSaturation", 1, mnuSaveSaturation_Click),
        percentages("mnuPercentAll", mnuPercentAll_Click, f.mnuPercentAll),
        percentages("mnuPercentSub1", mnuPercentSub1_Click, f.mnuPercentSub1),
        percentages("mnuPercentSub2", mnuPercentSub2_Click, f.mnuPercentSub2),
        entry("mnuExportCounts", 1, mnuExportCounts_Click),
        entry("mnuExportTidy", 1, mnuExportTidy_Click),
        entry("mnuExportTaxa", 1, mnuExportTaxa_Click),
        entry("mnuExportAll", 1, mnuExportAll_Click),
        entry("mnuNewFromTable", 3, mnuNewFromTable_Click, &f.mnuNewFromTable),
        entry("mnuTaxaFromList", 10, mnuTaxaFromList_Click, &f.mnuTaxaFromList),
        entry("mnuQuit", 1, quit, nullptr, Effect::replaced),
        entry("mnuUndo", 20, Undo, &f.mnuUndo, Effect::counted),
        entry("mnuReset", 2, AbortCount, &f.mnuReset, Effect::edited),
        entry("mnuStartAmend", 3, mnuStartAmend_Click, &f.mnuStartAmend),
        entry("mnuFinishAmend", 12, mnuFinishAmend_Click, &f.mnuFinishAmend),
        entry("mnuFind", 6, mnuFind_Click, &f.mnuFind),
        {"mnuDiagramStyles", 10, Effect::none, [] { return frmMain.mnuDiagramStyles.enabled; },
         [](Session& s) {
             constexpr int styles = std::size(diagramStyles);
             s.fromMenu([style = s.chance.below(styles)] { mnuDiagramStyle_Click(style); });
         }},
        entry("mnuKeyCodeReader", 2, mnuKeyCodeReader_Click),
        entry("mnuInitial", 2, mnuInitial_Click),
        entry("mnuSubtotal", 5, mnuSubtotal_Click),
        entry("mnuSummary", 2, LaunchSummary),
        entry("mnuDiagnose", 2, mnuDiagnose_Click),
        entry("mnuItalic", 1, mnuItalic_Click, &f.mnuItalic),
        entry(
            "mnuFontSize(9)", 1, [] { mnuFontSize_Click(9); }, &f.mnuFontSize[9]),
        entry(
            "mnuAlign(1)", 1, [] { mnuAlign_Click(1); }, &f.mnuAlign[1]),
        entry("mnuCoffee", 1, mnuCoffee_Click),
        entry("mnuBeach", 1, mnuBeach_Click),
        entry("mnuFavorite", 1, mnuFavorite_Click, &f.mnuFavorite),
        entry("mnuAboutDX1", 1, mnuAboutDX1_Click),
        entry("mnuAboutApp", 1, mnuAboutApp_Click),
        {"pop-up of the curve", 2, Effect::none, isMouseFree,
         [](Session& s) {
             s.fromMenu(mnuDiversityRB_Open);
             if (frmMain.mnuCopyDiversity.enabled)
                 s.event(s.chance.oneIn(2) ? mnuCopyDiversity_Click : SaveDiversity);
         }},

        button("Command2(0)", 2, f.Command2[0], AbortCount, Effect::edited),
        button("Command3(0)", 3, f.Command3[0], [] { Command3_Click(0); }),
        button("Command3(1)", 12, f.Command3[1], [] { Command3_Click(1); }),
        button("Command4(0)", 3, f.Command4[0], mnuOpen_Click, Effect::replaced),
        button("Command5(0)", 30, f.Command5[0], mnuSave_Click),
        button("Command5(1)", 10, f.Command5[1], mnuNext_Click),
        button("Command8", 1, f.Command8, Command8_Click),
        button("Command9", 6, f.Command9, Command9_Click),
        {"Option1", 6, Effect::none, always,
         [](Session& s) { s.event([basis = s.chance.below(3)] { selectBasis(basis); }); }},
        {"SSTab1", 3, Effect::none, always,
         [](Session& s) { s.event([page = s.chance.below(3)] { SSTab1_Click(page); }); }},
        {"Combo2", 14, Effect::none, [] { return !frmMain.Combo2.items.empty(); },
         [](Session& s) {
             s.leaveBox(); // the list takes the focus
             s.event([name = s.chance.oneOf(frmMain.Combo2.items)] { Combo2_Click(name); });
         }},
        {"mouse moves", 4, Effect::none, isMouseFree,
         [](Session& s) { s.event(s.chance.oneIn(2) ? Text1_MouseMove : Form_MouseMove); }},
        {"click on the sheet", 3, Effect::none, isMouseFree, [](Session& s) { s.event(giveFocusBack); }},
        {"size of the curve", 1, Effect::none, always,
         [](Session& s) {
             frmMain.Picture2.width = static_cast<float>(s.chance.between(1, 800));
             s.event(Picture2_Resize);
         }},
        {"file dropped", 2, Effect::replaced, isMouseFree,
         [](Session& s) { s.event([path = s.dialogs.fileToOpen()] { openDropped(path); }); }},
        {"window closed", 1, Effect::replaced, always, [](Session& s) { s.event(closeWindow); }},
    };
}
