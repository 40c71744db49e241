#include "window/figure_window.h"

#include "platform/qt/text.h"
#include "window/bring_forward.h"
#include "window/cluster_window.h"
#include "window/figure_preview.h"
#include "window/figure_settings_panel.h"
#include "window/figure_taxa_panel.h"
#include "window/main_window.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenuBar>
#include <QScreen>
#include <QScrollBar>
#include <QSplitter>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

const std::vector<MenuRow> menus = {{"mnuFigureFile", "&File", nullptr}};

std::vector<EntryRow> entryTable()
{
    return {
        {"mnuFigureFile", "mnuFigureSave", "Save picture...", nullptr, mnuFigureSave_Click},
        {"mnuFigureFile", "mnuFigureCopy", "Copy", nullptr, mnuFigureCopy_Click},
        {"mnuFigureFile", "mnuFigureCaption", "Copy caption", nullptr, mnuFigureCaption_Click},
        {"mnuFigureFile"},
        {"mnuFigureFile", "mnuFigureKeep", "Keep settings", nullptr, mnuFigureKeep_Click},
        {"mnuFigureFile", "mnuFigureOther", "Use the settings of another sheet...", nullptr,
         mnuFigureOther_Click},
        {"mnuFigureFile"},
        {"mnuFigureFile", "mnuFigureClusters", "Table of clusters...", nullptr, mnuFigureClusters_Click},
        {"mnuFigureFile"},
        {"mnuFigureFile", "mnuFigureClose", "Close", nullptr, closeFigure},
    };
}

} // namespace

FigureWindow::FigureWindow(MainWindow& main) : BoundWindow(*this, main, {})
{
    setObjectName("frmFigure");
    setWindowTitle("Figure");
    makeMenus(*menuBar(), menus, entryTable());
    const auto changed = [this](const std::function<void(FigureSettings&)>& one) { change(one); };
    settings_ = new FigureSettingsPanel(changed);
    taxa_ = new FigureTaxaPanel(changed);
    settings_->setTaxaPanel(taxa_);
    preview_ = new FigurePreview;
    notice_ = new QLabel;
    notice_->setObjectName("notice");
    notice_->setWordWrap(true);
    notice_->setTextFormat(Qt::PlainText);
    notice_->setContentsMargins(8, 4, 8, 4);

    auto* const right = new QWidget;
    auto* const column = new QVBoxLayout(right);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(notice_);
    column->addWidget(preview_, 1);
    column->addWidget(zoomRow());
    auto* const parts = new QSplitter;
    parts->addWidget(settings_);
    parts->addWidget(right);
    parts->setStretchFactor(1, 1);
    parts->setCollapsible(0, false);
    parts->setCollapsible(1, false);
    setCentralWidget(parts);
    clusters_ = new ClusterWindow(*this, [this](const std::function<void()>& handler) { runEvent(handler); });
    resize(QSize(1180, 820).boundedTo(screen()->availableGeometry().size() - QSize(8, 40)));
}

FigureWindow::~FigureWindow() = default;

QWidget* FigureWindow::zoomRow()
{
    auto* const row = new QWidget;
    auto* const line = new QHBoxLayout(row);
    line->setContentsMargins(6, 2, 6, 2);
    line->addStretch(1);
    const auto add = [&](const char* name, const char* caption, const char* spoken,
                         std::function<double()> zoom) {
        auto* const button = new QToolButton;
        button->setObjectName(name);
        button->setText(caption);
        button->setAccessibleName(spoken);
        button->setToolTip(spoken);
        button->setAutoRaise(true);
        connect(button, &QToolButton::clicked, this,
                [this, zoom = std::move(zoom)] { preview_->setZoom(zoom()); });
        line->addWidget(button);
    };
    add("zoomOut", "\u2212", "Smaller", [this] { return preview_->shownZoom() * 0.8; });
    add("zoomIn", "+", "Larger", [this] { return preview_->shownZoom() * 1.25; });
    add("zoomTrue", "100 %", "True size", [] { return 100.0; });
    add("zoomFit", "Whole page", "Whole page", [] { return 0.0; });
    return row;
}

void FigureWindow::change(const std::function<void(FigureSettings&)>& one)
{
    runEvent([&] {
        FigureSettings settings = frmFigure.settings;
        one(settings);
        changeFigure(settings);
    });
}

void FigureWindow::present()
{
    const FigureForm& f = frmFigure;
    figureMayHaveChanged();
    clusters_->present();
    if (f.visible && planShown_ != f.planRevision) {
        planShown_ = f.planRevision;
        settings_->present(f.settings);
        taxa_->present();
        preview_->showPage(f.plan.page);
        const QString name = QString::fromStdString(f.plan.data.sheetName);
        setWindowTitle(name.isEmpty() ? "Figure" : "Figure - " + name);
    }
    presentNotice();
    if (f.visible != isVisible())
        setVisible(f.visible);
    if (forwardShown_ != f.forwardRevision) {
        forwardShown_ = f.forwardRevision;
        bringForward(*this);
    }
}

/// Faults stand above all else: such a figure does not leave the program.
void FigureWindow::presentNotice()
{
    const FigureForm& f = frmFigure;
    QStringList lines;
    for (const std::string& fault : f.plan.faults)
        lines += QString::fromStdString(fault);
    if (!f.fit.empty())
        lines += QString::fromStdString(f.fit);
    if (!f.notice.empty())
        lines += QString::fromStdString(f.notice);
    const QString text = lines.join('\n');
    if (notice_->text() != text)
        notice_->setText(text);
    notice_->setVisible(!text.isEmpty());
    QFont font = notice_->font();
    font.setBold(!f.plan.faults.empty());
    notice_->setFont(font);
}

void FigureWindow::closeEvent(QCloseEvent* event)
{
    event->ignore(); // the record says whether it is open
    runEvent(closeFigure);
}
