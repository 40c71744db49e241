// The menus of the diagram window: its bar and the pop-ups of its pictures, and the keys that these take.

#include "diagram/coniss_window.h"
#include "diagram/diagram_hand.h"
#include "diagram/diagram_window.h"
#include "diagram/figures.h"
#include "window/diagram_window.h"
#include "window/menu_key.h"
#include "window/surface_view.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QScrollBar>
#include <QSlider>
#include <utility>

namespace {

const std::vector<MenuRow> menus = {{"mnuDiagramFile", "&File", nullptr},
                                    {"mnuBasis", "% &Basis", nullptr},
                                    {"mnuDrawMode", "&Style", nullptr},
                                    {"mnuColour", "Colour", "mnuDrawMode"},
                                    {"nmuTools", "&Tools", nullptr},
                                    {"RB1", nullptr, nullptr},
                                    {"RBConiss", nullptr, nullptr},
                                    {"RB3", nullptr, nullptr},
                                    {"RB2", nullptr, nullptr}};

std::vector<EntryRow> entryTable()
{
    DiagramForm& f = frmDiagram;
    return {
        {"mnuDiagramFile", "mnuSavePicture3", "Save picture...", nullptr, mnuSavePicture_Click},
        {"mnuDiagramFile", "mnuCopyDiagram3", "Copy", nullptr, mnuCopyDiagram_Click},
        {"mnuDiagramFile", "mnuSaveConiss3", "Save matrix", &diagramHand.mnuSaveConiss, mnuSaveConiss_Click},

        {"mnuBasis", "mnuSub1", "Subtotal-1", &f.mnuSub1, {frmDiagram_Basis_Click, 1}, true},
        {"mnuBasis", "mnuSub2", "Subtotal-2", &f.mnuSub2, {frmDiagram_Basis_Click, 2}, true},
        {"mnuBasis", "mnuAll", "All total", &f.mnuAll, {frmDiagram_Basis_Click, 0}, true},

        {"mnuDrawMode"},
        {"mnuColour", "mnuDefaultDGColour", "Default", nullptr, mnuDefaultDGColour_Click},
        {"mnuColour", "mnuCustomDGColour", "Custom", nullptr, mnuCustomDGColour_Click},

        {"nmuTools", "mnuVertical", "Vertical line", &f.mnuVertical, mnuVertical_Click, true},
        {"nmuTools", "mnuHorizontal", "Horizontal line", &f.mnuHorizontal, mnuHorizontal_Click, true},
        {"nmuTools", "mnuTaxaName", "Taxa name", &f.mnuTaxaName, mnuTaxaName_Click, true},
        {"nmuTools"},
        {"nmuTools", "nmuConiss", "&CONISS", &f.nmuConiss, nmuConiss_Click, true},
        {.menu = "nmuTools", .hidden = true},
        {.menu = "nmuTools",
         .name = "mnuECC",
         .caption = "&EOF-Climate correlation",
         .clicked = mnuECC_Click,
         .hidden = true},

        {"RB1", "mnuCopyDiagram", "&Copy", nullptr, mnuCopyDiagram_Click},
        {"RB1", "mnuSavePicture1", "Save picture...", nullptr, mnuSavePicture_Click},
        {"RB1"},
        {"RB1", "mnuVertical1", "Vertical line", &f.mnuVertical, mnuVertical_Click, true},
        {"RB1", "mnuHorizontal1", "Horizontal line", &f.mnuHorizontal, mnuHorizontal_Click, true},

        {"RBConiss", "mnuCopyConiss", "&Copy", nullptr, mnuCopyConiss_Click},
        {"RBConiss", "mnuSavePicture2", "Save picture...", nullptr, mnuSavePicture_Click},
        {"RBConiss"},
        {"RBConiss", "mnuSaveConiss", "Save matrix", nullptr, mnuSaveConiss_Click},
        {"RBConiss"},
        {"RBConiss", "mnuVertical2", "Vertical line", &f.mnuVertical, mnuVertical_Click, true},
        {"RBConiss", "mnuHorizontal2", "Horizontal line", &f.mnuHorizontal, mnuHorizontal_Click, true},

        {"RB3", "mnuCopyTaxaName", "&Copy", nullptr, mnuCopyTaxaName_Click},
        {"RB3", "mnuSavePicture4", "Save picture...", nullptr, mnuSavePicture_Click},

        // Opened by nothing: for an analysis that does not exist yet.
        {"RB2", "mnuCopyEOF", "&Copy", nullptr, mnuCopyEOF_Click},
        {"RB2"},
        {"RB2", "mnuSaveEOF", "&Save This EOF Only", nullptr, mnuSaveEOF_Click},
        {"RB2", "mnuSaveAllEOF", "Save &All EOF", nullptr, mnuSaveAllEOF_Click},
    };
}

} // namespace

void DiagramWindow::makeMenus()
{
    std::vector<EntryRow> entries =
        styleEntries("mnuDrawMode", nullptr, frmDiagram_Style_Click, &frmDiagram.style);
    for (const EntryRow& entry : entryTable())
        entries.push_back(entry);
    BoundWindow::makeMenus(*menuBar(), menus, entries);
    connect(menuNamed("mnuDiagramFile"), &QMenu::aboutToShow, this,
            [this] { runPassing(mnuDiagramFile_Open); });
}

/// Up and down pick a sample, with Ctrl they move it; on the slider they pick by themselves, and left and
/// right, which would go the other way round, do as they do.
bool DiagramWindow::arrowKey(const QObject* target, const QKeyEvent& key)
{
    const Qt::KeyboardModifiers held = key.modifiers() & ~Qt::KeypadModifier;
    const bool isAcross = key.key() == Qt::Key_Left || key.key() == Qt::Key_Right;
    if (target == sample_ && isAcross && held == Qt::NoModifier) {
        runEvent([&] { pickSample(key.key() == Qt::Key_Left ? -1 : 1); });
        return true;
    }
    const int step = key.key() == Qt::Key_Up ? -1 : key.key() == Qt::Key_Down ? 1 : 0;
    if (step == 0 || (held != Qt::NoModifier && held != Qt::ControlModifier))
        return false;
    if (held == Qt::NoModifier && target == sample_)
        return false;
    runEvent([&] { held == Qt::NoModifier ? pickSample(step) : carryPickedSample(step); });
    return true;
}

/// A picture with the focus opens its menu by the menu key, and the arrows scroll through the taxa.
bool DiagramWindow::keyOnPicture(SurfaceView* view, QEvent& event)
{
    if (asksForMenu(event)) {
        QMenu* const menu = view == diagram_ ? menuNamed("RB1")
                            : view == names_ ? menuNamed("RB3")
                                             : menuNamed("RBConiss");
        menu->popup(view->mapToGlobal(view->rect().center()));
        return true;
    }
    if (event.type() != QEvent::KeyPress)
        return false;
    if (arrowKey(view, static_cast<QKeyEvent&>(event)))
        return true;
    constexpr std::pair<int, QAbstractSlider::SliderAction> scrolls[] = {
        {Qt::Key_Left, QAbstractSlider::SliderSingleStepSub},
        {Qt::Key_Right, QAbstractSlider::SliderSingleStepAdd},
        {Qt::Key_PageUp, QAbstractSlider::SliderPageStepSub},
        {Qt::Key_PageDown, QAbstractSlider::SliderPageStepAdd}};
    for (const auto& [key, action] : scrolls)
        if (static_cast<QKeyEvent&>(event).key() == key) {
            scroll_->triggerAction(action);
            view->setFocus(Qt::TabFocusReason); // the next arrow scrolls too, and changes no sample
            return true;
        }
    return false;
}
