// The menus of the diagram window: its bar and the pop-ups of its pictures, and the keys that these take.

#include "diagram/coniss_window.h"
#include "diagram/diagram_window.h"
#include "diagram/figures.h"
#include "window/diagram_window.h"
#include "window/menu_key.h"
#include "window/surface_view.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QScrollBar>
#include <utility>

namespace {

template <DiagramStyle style>
void chooseStyle()
{
    frmDiagram_Style_Click(style);
}

template <int basis>
void chooseBasis()
{
    frmDiagram_Basis_Click(basis);
}

} // namespace

QAction* DiagramWindow::entry(QMenu& menu, const char* name, const QString& caption, void (*handler)(),
                              const MenuEntry* record)
{
    QAction* const action = menu.addAction(caption);
    action->setObjectName(name);
    action->setMenuRole(QAction::NoRole);
    action->setCheckable(record != nullptr);
    connect(action, &QAction::triggered, this, [this, handler] { onEvent(handler); });
    if (record != nullptr)
        actions_.append({action, record});
    return action;
}

void DiagramWindow::makeMenus()
{
    DiagramForm& f = frmDiagram;
    const auto menu = [](QMenu* made, const char* name) -> QMenu& {
        made->setObjectName(name);
        return *made;
    };
    QMenu& basis = menu(menuBar()->addMenu("% &Basis"), "mnuBasis");
    entry(basis, "mnuSub1", "Subtotal-1", chooseBasis<1>, &f.mnuSub1);
    entry(basis, "mnuSub2", "Subtotal-2", chooseBasis<2>, &f.mnuSub2);
    entry(basis, "mnuAll", "All total", chooseBasis<0>, &f.mnuAll);

    QMenu& style = menu(menuBar()->addMenu("&Style"), "mnuDrawMode");
    entry(style, "mnuBar", "&Bar", chooseStyle<DiagramStyle::bar>, &f.mnuBar);
    entry(style, "mnuArea", "&Curve", chooseStyle<DiagramStyle::curve>, &f.mnuArea);
    entry(style, "mnuDot", "&Dot (>0.5% only)", chooseStyle<DiagramStyle::dot>, &f.mnuDot);
    style.addSeparator();
    entry(style, "mnuCurve", "Bar and curve", chooseStyle<DiagramStyle::barAndCurve>, &f.mnuCurve);
    entry(style, "mnuDotCurve", "Dot and curve", chooseStyle<DiagramStyle::dotAndCurve>, &f.mnuDotCurve);
    style.addSeparator();
    QMenu& colour = menu(style.addMenu("Colour"), "mnuColour");
    entry(colour, "mnuDefaultDGColour", "Default", mnuDefaultDGColour_Click);
    entry(colour, "mnuCustomDGColour", "Custom", mnuCustomDGColour_Click);

    QMenu& tools = menu(menuBar()->addMenu("&Tools"), "nmuTools");
    entry(tools, "mnuVertical", "Vertical line", mnuVertical_Click, &f.mnuVertical);
    entry(tools, "mnuHorizontal", "Horizontal line", mnuHorizontal_Click, &f.mnuHorizontal);
    entry(tools, "mnuTaxaName", "Taxa name", mnuTaxaName_Click, &f.mnuTaxaName);
    tools.addSeparator();
    entry(tools, "nmuConiss", "&CONISS", nmuConiss_Click, &f.nmuConiss);
    tools.addSeparator()->setVisible(false);
    entry(tools, "mnuECC", "&EOF-Climate correlation", mnuECC_Click)->setVisible(false);
}

void DiagramWindow::makePopups()
{
    DiagramForm& f = frmDiagram;
    const auto popup = [this](const char* name) {
        auto* const made = new QMenu(this);
        made->setObjectName(name);
        return made;
    };
    diagramMenu_ = popup("RB1");
    entry(*diagramMenu_, "mnuCopyDiagram", "&Copy", mnuCopyDiagram_Click);
    entry(*diagramMenu_, "mnuSavePicture1", "Save picture...", mnuSavePicture_Click);
    diagramMenu_->addSeparator();
    entry(*diagramMenu_, "mnuVertical1", "Vertical line", mnuVertical_Click, &f.mnuVertical);
    entry(*diagramMenu_, "mnuHorizontal1", "Horizontal line", mnuHorizontal_Click, &f.mnuHorizontal);

    dendrogramMenu_ = popup("RBConiss");
    entry(*dendrogramMenu_, "mnuCopyConiss", "&Copy", mnuCopyConiss_Click);
    entry(*dendrogramMenu_, "mnuSavePicture2", "Save picture...", mnuSavePicture_Click);
    dendrogramMenu_->addSeparator();
    entry(*dendrogramMenu_, "mnuSaveConiss", "Save matrix", mnuSaveConiss_Click);
    dendrogramMenu_->addSeparator();
    entry(*dendrogramMenu_, "mnuVertical2", "Vertical line", mnuVertical_Click, &f.mnuVertical);
    entry(*dendrogramMenu_, "mnuHorizontal2", "Horizontal line", mnuHorizontal_Click, &f.mnuHorizontal);

    namesMenu_ = popup("RB3");
    entry(*namesMenu_, "mnuCopyTaxaName", "&Copy", mnuCopyTaxaName_Click);
    entry(*namesMenu_, "mnuSavePicture4", "Save picture...", mnuSavePicture_Click);

    // Opened by nothing: for an analysis that does not exist yet.
    QMenu* const eof = popup("RB2");
    entry(*eof, "mnuCopyEOF", "&Copy", mnuCopyEOF_Click);
    eof->addSeparator();
    entry(*eof, "mnuSaveEOF", "&Save This EOF Only", mnuSaveEOF_Click);
    entry(*eof, "mnuSaveAllEOF", "Save &All EOF", mnuSaveAllEOF_Click);
}

/// A picture with the focus opens its menu by the menu key, and the arrows scroll through the taxa.
bool DiagramWindow::keyOnPicture(SurfaceView* view, QEvent& event)
{
    if (asksForMenu(event)) {
        QMenu* const menu = view == diagram_ ? diagramMenu_ : view == names_ ? namesMenu_ : dendrogramMenu_;
        menu->popup(view->mapToGlobal(view->rect().center()));
        return true;
    }
    if (event.type() != QEvent::KeyPress)
        return false;
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
