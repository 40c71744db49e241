#include "window/cluster_window.h"

#include "figure/caption.h"
#include "figure/figure_form.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace {

QTableWidget* table(const char* name, const QStringList& heads)
{
    auto* const made = new QTableWidget(0, static_cast<int>(heads.size()));
    made->setObjectName(name);
    made->setHorizontalHeaderLabels(heads);
    made->setEditTriggers(QAbstractItemView::NoEditTriggers);
    made->verticalHeader()->hide();
    made->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    made->horizontalHeader()->setStretchLastSection(true);
    return made;
}

void fillRow(QTableWidget& table, int row, const QStringList& cells, bool bold)
{
    for (int column = 0; column < static_cast<int>(cells.size()); ++column) {
        auto* const item = new QTableWidgetItem(cells[column]);
        item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        QFont font = item->font();
        font.setBold(bold);
        item->setFont(font);
        table.setItem(row, column, item);
    }
}

QString number(double value)
{
    return QString::number(value, 'g', 10);
}

} // namespace

ClusterWindow::ClusterWindow(QWidget& figure, std::function<void(const std::function<void()>&)> runEvent)
    : QDialog(&figure), runEvent_(std::move(runEvent)), method_(new QLabel),
      merges_(table("merges", {"Step", "Upper from", "to", "Lower from", "to", "Increase", "Total"})),
      sticks_(table("sticks", {"Zones", "Drop", "Stick", "Above"})), lineOfR_(new QLineEdit)
{
    setObjectName("frmClusters");
    setWindowTitle("Clusters");
    method_->setWordWrap(true);
    merges_->setAccessibleName("Merges");
    sticks_->setAccessibleName("Broken stick");
    lineOfR_->setObjectName("lineOfR");
    lineOfR_->setAccessibleName("The same in R");
    lineOfR_->setReadOnly(true);
    const auto button = [&](const char* name, const char* caption, void (*handler)()) {
        auto* const made = new QPushButton(caption);
        made->setObjectName(name);
        made->setAutoDefault(false);
        connect(made, &QPushButton::clicked, this, [this, handler] { runEvent_(handler); });
        return made;
    };
    auto* const tables = new QHBoxLayout;
    tables->addWidget(merges_, 5);
    tables->addWidget(sticks_, 3);
    auto* const foot = new QHBoxLayout;
    foot->addWidget(button("saveMerges", "Save merges...", saveMerges));
    foot->addWidget(button("saveSticks", "Save broken stick...", saveSticks));
    foot->addStretch(1);
    foot->addWidget(button("closeClusters", "Close", closeClusters));
    auto* const whole = new QVBoxLayout(this);
    whole->addWidget(method_);
    whole->addLayout(tables, 1);
    whole->addWidget(new QLabel("The same in R, where x is the table of counts with samples as rows:"));
    whole->addWidget(lineOfR_);
    whole->addLayout(foot);
    resize(820, 520);
}

void ClusterWindow::present()
{
    const bool visible = frmFigure.clustersVisible;
    if (visible && planShown_ != frmFigure.planRevision) {
        planShown_ = frmFigure.planRevision;
        fill();
    }
    if (visible != isVisible())
        setVisible(visible);
}

void ClusterWindow::fill()
{
    const FigureClusters& clusters = frmFigure.plan.clusters;
    method_->setText(
        "Clusters: " + QString::fromStdString(methodName(frmFigure.settings)) +
        ". Samples are counted from the top of the figure. Zones of the first run above the broken "
        "stick (Bennett 1996) are bold.");
    merges_->setRowCount(static_cast<int>(clusters.merges.size()));
    for (int row = 0; row < merges_->rowCount(); ++row) {
        const ClusterMerge& merge = clusters.merges[row];
        QStringList cells = {QString::number(row + 1)};
        for (const int index : {merge.upperFirst, merge.upperLast, merge.lowerFirst, merge.lowerLast})
            cells += QString::number(clusters.samples[index] + 1);
        cells += {number(merge.increase), number(merge.total)};
        fillRow(*merges_, row, cells, false);
    }
    sticks_->setRowCount(static_cast<int>(clusters.sticks.size()));
    const int zones = zonesByStick(clusters.sticks);
    for (int row = 0; row < sticks_->rowCount(); ++row) {
        const BrokenStick& line = clusters.sticks[row];
        fillRow(*sticks_, row,
                {QString::number(line.zones), number(line.dispersion), number(line.stick),
                 line.above ? "yes" : "no"},
                line.zones <= zones);
    }
    sticks_->setVisible(!clusters.unweighted);
    findChild<QPushButton*>("saveSticks")->setEnabled(!clusters.unweighted);
    const QString line = QString::fromStdString(clusterLineOfR(frmFigure.settings));
    lineOfR_->setText(line.isEmpty() ? "None: the unweighted variant is this program's own." : line);
    lineOfR_->setCursorPosition(0);
}

void ClusterWindow::reject()
{
    runEvent_(closeClusters);
}
