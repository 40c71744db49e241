// The windows beside the main one. Each is built when it is opened for the first time.

#include "core/forms.h"
#include "core/sheet_state.h"
#include "extras/manual.h"
#include "window/about_windows.h"
#include "window/diagnose_window.h"
#include "window/diagram_window.h"
#include "window/figure_window.h"
#include "window/find_window.h"
#include "window/initial_window.h"
#include "window/key_windows.h"
#include "window/main_window.h"
#include "window/manual_window.h"
#include "window/picture_window.h"
#include "window/sample_windows.h"
#include "window/statistics_window.h"
#include "window/subtotal_window.h"
#include "window/summary_window.h"
#include "window/table_windows.h"
#include "window/target_window.h"

#include <QWindow>

namespace {

template <class Window>
FormWindow* build(MainWindow& main)
{
    return new Window(main);
}

} // namespace

MainWindow::SmallWindow::SmallWindow(const char* name, FormWindow* (*maker)(MainWindow&))
    : form(formNamed(name)), make(maker)
{
}

std::vector<MainWindow::SmallWindow> MainWindow::smallWindows()
{
    return {{"frmSiteName", build<SiteNameWindow>},
            {"frmNext", build<NextWindow>},
            {"frmParaName", build<ParameterNameWindow>},
            {"frmSubtotal", build<SubtotalWindow>},
            {"frmSummary", build<SummaryWindow>},
            {"frmFind", build<FindWindow>},
            {"frmPicture", build<PictureWindow>},
            {"frmAboutApp", build<AboutAppWindow>},
            {"frmAboutDX1", build<AboutKeypadWindow>},
            {"frmDiagnose", build<DiagnoseWindow>},
            {"frmInitial", build<InitialWindow>},
            {"frmKeyCode", build<KeyCodeWindow>},
            {"frmNote", build<KeyNoteWindow>},
            {"frmTarget", build<TargetWindow>},
            {"frmStatistics", build<StatisticsWindow>},
            {"frmTable", build<TableWindow>},
            {"frmTaxa", build<TaxaWindow>}};
}

void MainWindow::keepManualReadable(QWidget& smallWindow)
{
    if (manual_ != nullptr)
        manual_->standBy(smallWindow);
}

void MainWindow::makeDiagram()
{
    if (diagram_ != nullptr)
        return;
    diagram_ = std::make_unique<DiagramWindow>(*this);
    takeCtrlLetters(*diagram_);
}

bool MainWindow::isDiagram(const QObject* window) const
{
    return diagram_ != nullptr && window != nullptr && window == diagram_->windowHandle();
}

bool MainWindow::isManual(const QObject* window) const
{
    return manual_ != nullptr && window != nullptr && window == manual_->windowHandle();
}

void MainWindow::presentForms()
{
    for (SmallWindow& one : smallWindows_) {
        if (one.window == nullptr && one.form.visible)
            one.window = one.make(*this);
        if (one.window != nullptr)
            one.window->present();
    }
    if (sheet.DiagramOpen)
        makeDiagram();
    if (diagram_ != nullptr)
        diagram_->present();
    if (figure_ == nullptr && frmFigure.visible)
        figure_ = std::make_unique<FigureWindow>(*this);
    if (figure_ != nullptr)
        figure_->present();
    if (manual_ == nullptr && frmManual.visible)
        manual_ = std::make_unique<ManualWindow>(*this);
    if (manual_ != nullptr)
        manual_->present();
}
