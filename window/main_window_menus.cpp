// The menu bar. Each entry stands once in the table: its menu, name, caption, record and handler.

#include "core/endings.h"
#include "core/main_screen.h"
#include "core/transfer_taxa.h"
#include "core/undo.h"
#include "diagram/diagram_window.h"
#include "extras/about.h"
#include "extras/diagnose.h"
#include "extras/manual.h"
#include "extras/pictures.h"
#include "files/new_sheet.h"
#include "files/next_sample.h"
#include "files/open_sheet.h"
#include "files/save_sheet.h"
#include "files/template_file.h"
#include "files/text_exports.h"
#include "keys/first_run.h"
#include "keys/key_editor.h"
#include "sheet/find.h"
#include "sheet/focus_and_pointer.h"
#include "sheet/live_curve.h"
#include "sheet/modify_mode.h"
#include "sheet/name_display.h"
#include "sheet/subtotals.h"
#include "sheet/summary.h"
#include "window/diagram_window.h"
#include "window/main_window.h"

#include <QAction>
#include <QMap>
#include <QMenu>
#include <QMenuBar>

struct MainMenuEntry {
    const char* menu; ///< name of the menu it stands in; see `menus`
    const char* name; ///< nullptr: a line between entries
    const char* caption;
    MenuEntry* record = nullptr; ///< entries without one are always enabled
    void (*handler)() = nullptr;
    bool checkable = false;
};

namespace {

struct Menu {
    const char* name;
    const char* caption;
    const char* parent; ///< nullptr: stands in the bar
};

constexpr Menu menus[] = {
    {"mnuFile", "&File", nullptr},       {"mnuPercent", "Save percentage table", "mnuFile"},
    {"mnuEdit", "&Edit", nullptr},       {"mnuDiagram", "&Diagram", nullptr},
    {"mnuTools", "&Tools", nullptr},     {"mnuView", "&View", nullptr},
    {"mnuFont", "Font size", "mnuView"}, {"mnuAlignment", "Alignment", "mnuView"},
    {"mnuHelp", "&Help", nullptr},       {"mnuTired", "Are you tired?", "mnuHelp"},
};

void undo()
{
    Undo();
    giveFocusBack();
}

template <int points>
void fontSize()
{
    mnuFontSize_Click(points);
}

template <int side>
void align()
{
    mnuAlign_Click(side);
}

QList<MainMenuEntry> entries()
{
    MainScreen& f = frmMain;
    return {
        {"mnuFile", "mnuNew", "New", &f.mnuNew, mnuNew_Click},
        {"mnuFile", "mnuOpen", "Open...", &f.mnuOpen, mnuOpen_Click},
        {"mnuFile", nullptr, nullptr},
        {"mnuFile", "mnuSave", "Save", &f.mnuSave, mnuSave_Click},
        {"mnuFile", "mnuSaveAs", "Save as...", &f.mnuSaveAs, mnuSaveAs_Click},
        {"mnuFile", "mnuSaveCopy", "Save copy...", &f.mnuSaveCopy, mnuSaveCopy_Click},
        {"mnuFile", "mnuTemplate", "Create template", nullptr, mnuTemplate_Click},
        {"mnuFile", nullptr, nullptr},
        {"mnuFile", "mnuNext", "Next sample", &f.mnuNext, mnuNext_Click},
        {"mnuFile", nullptr, nullptr},
        {"mnuFile", "mnuSaveHistory", "Save history", &f.mnuSaveHistory, mnuSaveHistory_Click},
        {"mnuFile", "mnuSaveSaturation", "Save Saturation curve", nullptr, mnuSaveSaturation_Click},
        {"mnuPercent", "mnuPercentAll", "% by All total", &f.mnuPercentAll, mnuPercentAll_Click},
        {"mnuPercent", "mnuPercentSub1", "% by Subtotal-1", &f.mnuPercentSub1, mnuPercentSub1_Click},
        {"mnuPercent", "mnuPercentSub2", "% by Subtotal-2", &f.mnuPercentSub2, mnuPercentSub2_Click},
        {"mnuFile", nullptr, nullptr},
        {"mnuFile", "mnuQuit", "Quit", nullptr, mnuQuit_Click},

        {"mnuEdit", "mnuUndo", "Undo", &f.mnuUndo, undo},
        {"mnuEdit", "mnuReset", "Reset", &f.mnuReset, AbortCount},
        {"mnuEdit", nullptr, nullptr},
        {"mnuEdit", "mnuStartAmend", "Modify template", &f.mnuStartAmend, mnuStartAmend_Click},
        {"mnuEdit", "mnuFinishAmend", "Resume counting", &f.mnuFinishAmend, mnuFinishAmend_Click},
        {"mnuEdit", nullptr, nullptr},
        {"mnuEdit", "mnuFind", "Find", &f.mnuFind, mnuFind_Click},

        {"mnuDiagram", "mnuBar", "&Bar", &f.mnuBar, mnuBar_Click},
        {"mnuDiagram", "mnuArea", "&Curve", &f.mnuArea, mnuArea_Click},
        {"mnuDiagram", "mnuDot", "&Dot (>0.5% only)", &f.mnuDot, mnuDot_Click},
        {"mnuDiagram", nullptr, nullptr},
        {"mnuDiagram", "mnuCurve", "Bar and curve", &f.mnuCurve, mnuCurve_Click},
        {"mnuDiagram", "mnuDotCurve", "Dot and curve", &f.mnuDotCurve, mnuDotCurve_Click},

        {"mnuTools", "mnuKeyCodeReader", "Key settings", nullptr, mnuKeyCodeReader_Click},
        {"mnuTools", "mnuInitial", "Initialise", nullptr, mnuInitial_Click},
        {"mnuTools", "mnuSubtotal", "Subtotal settings", nullptr, mnuSubtotal_Click},
        {"mnuTools", nullptr, nullptr},
        {"mnuTools", "mnuSummary", "Summary", nullptr, LaunchSummary},
        {"mnuTools", "mnuDiagnose", "Diagnose", nullptr, mnuDiagnose_Click},

        {"mnuView", "mnuItalic", "Italics", &f.mnuItalic, mnuItalic_Click, true},
        {"mnuFont", "mnuFontSize(6)", "6", &f.mnuFontSize[6], fontSize<6>, true},
        {"mnuFont", "mnuFontSize(7)", "7", &f.mnuFontSize[7], fontSize<7>, true},
        {"mnuFont", "mnuFontSize(8)", "8", &f.mnuFontSize[8], fontSize<8>, true},
        {"mnuFont", "mnuFontSize(9)", "9", &f.mnuFontSize[9], fontSize<9>, true},
        {"mnuFont", "mnuFontSize(10)", "10", &f.mnuFontSize[10], fontSize<10>, true},
        {"mnuAlignment", "mnuAlign(0)", "Left", &f.mnuAlign[0], align<0>, true},
        {"mnuAlignment", "mnuAlign(1)", "Right", &f.mnuAlign[1], align<1>, true},

        {"mnuTired", "mnuCoffee", "Coffee", nullptr, mnuCoffee_Click},
        {"mnuTired", "mnuBeach", "Beach", nullptr, mnuBeach_Click},
        {"mnuTired", "mnuFavorite", "My favorite", &f.mnuFavorite, mnuFavorite_Click},
        {"mnuHelp", nullptr, nullptr},
        {"mnuHelp", "mnuManual", "Manual", nullptr, mnuManual_Click},
        {"mnuHelp", "mnuAboutDX1", "About programmable keypads", nullptr, mnuAboutDX1_Click},
        {"mnuHelp", "mnuAboutApp", "About TallyStrata", nullptr, mnuAboutApp_Click},
    };
}

} // namespace

void MainWindow::addEntry(QMenu& menu, const MainMenuEntry& entry)
{
    QAction* const action = menu.addAction(entry.caption);
    action->setObjectName(entry.name);
    action->setMenuRole(QAction::NoRole); // entries stay in their menus on every system
    action->setCheckable(entry.checkable);
    connect(action, &QAction::triggered, this, [this, handler = entry.handler] { onEvent(handler); });
    if (entry.record != nullptr)
        actions_.append({action, entry.record});
}

void MainWindow::makeMenus()
{
    QMap<QString, QMenu*> made;
    // A submenu comes where its first entry stands; the menus of the bar come first of all, in their order.
    for (const Menu& menu : menus)
        if (menu.parent == nullptr) {
            made[menu.name] = menuBar()->addMenu(menu.caption);
            made[menu.name]->setObjectName(menu.name);
        }
    const auto menuOf = [&](const QString& name) {
        for (const Menu& menu : menus)
            if (made[name] == nullptr && name == menu.name) {
                made[name] = made[menu.parent]->addMenu(menu.caption);
                made[name]->setObjectName(menu.name);
            }
        return made[name];
    };

    for (const MainMenuEntry& entry : entries()) {
        QMenu* const menu = menuOf(entry.menu);
        if (entry.name == nullptr) {
            menu->addSeparator();
            continue;
        }
        addEntry(*menu, entry);
    }
    // The menu of percentage tables is one entry of its own.
    actions_.append({made["mnuPercent"]->menuAction(), &frmMain.mnuPercent});

    makeRowMenu();
    curveMenu_ = new QMenu(this);
    curveMenu_->setObjectName("mnuDiversityRB");
    addEntry(*curveMenu_, {"mnuDiversityRB", "mnuCopyDiversity", "Copy image", &frmMain.mnuCopyDiversity,
                           mnuCopyDiversity_Click});
    addEntry(*curveMenu_,
             {"mnuDiversityRB", "mnuSaveDiversity", "Save data", &frmMain.mnuSaveDiversity, SaveDiversity});
}

/// mnuByPass: Ctrl and a letter is taken and does nothing. It counts nothing either, here and where the
/// diagram is: there it is meant for copying.
void MainWindow::takeCtrlLetters()
{
    for (char letter = 'A'; letter <= 'Z'; ++letter) {
        auto* const taken = new QAction(this);
        taken->setObjectName(QString("mnu") + letter);
        taken->setShortcut(QKeySequence(QString("Ctrl+") + letter));
        addAction(taken);
        diagram_->addAction(taken);
    }
}

/// The menu of a row. What the end of a target menu sets off waits until the entry that was chosen in it has
/// done its work, since a menu closes first.
void MainWindow::makeRowMenu()
{
    rowMenu_ = new QMenu("RB", this);
    rowMenu_->setObjectName("mnuRightButton");
    QMenu* const move = rowMenu_->addMenu("Move");
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
            QAction* const target = targets->addAction(QString::number(slot));
            target->setObjectName(QString("mnuMoveTo%1(%2)").arg(layer + 1).arg(slot));
            connect(target, &QAction::triggered, this,
                    [this, slot] { onEvent([&] { mnuMoveTo_Click(slot); }); });
            actions_.append({target, &frmMain.mnuMoveTo[slot]});
        }
    }
}
