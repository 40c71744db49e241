#include "window/statistics_window.h"

#include "core/forms.h"
#include "platform/qt/text.h"
#include "statistics/statistics_form.h"
#include "window/bring_forward.h"
#include "window/main_window.h"
#include "window/stat_table_view.h"
#include "window/surface_view.h"

#include <QClipboard>
#include <QComboBox>
#include <QFrame>
#include <QGridLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>

namespace {

std::vector<ControlRow> controls()
{
    StatisticsForm& f = frmStatistics;
    return {{.name = "Label1", .record = &f.Label1},
            {.name = "Option1",
             .record = f.Option1.data(),
             .first = 0,
             .last = 1,
             .clicked = frmStatistics_Option1_Click},
            {.name = "Text1", .record = &f.Text1, .edited = frmStatistics_Text1_Edited},
            {.name = "Text2", .record = &f.Text2, .edited = frmStatistics_Text2_Edited},
            {.name = "Combo1", .record = f.Combo1.data(), .chosen = pickFirstSample},
            {.name = "Combo3", .record = f.Combo1.data() + 1, .chosen = pickSecondSample},
            {.name = "Command3", .record = &f.Command3, .clicked = frmStatistics_Command3_Click},
            {.name = "Command4", .record = &f.Command4, .clicked = frmStatistics_Command4_Click},
            {.name = "Label2", .record = &f.Label2},
            {.name = "Combo2", .record = &f.Combo2, .chosen = pickMarker},
            {.name = "Text3",
             .record = f.Text3.data(),
             .first = 0,
             .last = labColumns - 1,
             .left = frmStatistics_Text3_LostFocus},
            {.name = "Text4", .record = &f.Text4, .edited = frmStatistics_Text4_Edited},
            {.name = "Command5", .record = &f.Command5, .clicked = frmStatistics_Command5_Click},
            {.name = "Label3", .record = &f.Label3},
            {.name = "Command1",
             .first = 0,
             .last = statisticsPages - 1,
             .clicked = frmStatistics_Command1_Click}};
}

QComboBox* listOf(const QString& accessibleName)
{
    auto* const combo = new QComboBox;
    combo->setAccessibleName(accessibleName);
    combo->setEditable(true); // its text need not be one of its items
    combo->lineEdit()->setReadOnly(true);
    combo->lineEdit()->setAccessibleName(accessibleName);
    combo->setInsertPolicy(QComboBox::NoInsert);
    combo->setCompleter(nullptr);
    combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    combo->setMinimumContentsLength(14);
    return combo;
}

} // namespace

StatisticsWindow::StatisticsWindow(MainWindow& main)
    : FormWindow(main, "frmStatistics", "Statistics", controls())
{
    setModal(false);
    setWindowFlags(Qt::Window); // a click brings the main window in front of it
    auto* const whole = new QVBoxLayout(this);
    whole->addLayout(scopeRow());
    tabs_ = new QTabWidget;
    tabs_->setObjectName("SSTab1");
    tabs_->setAccessibleName("Statistics");
    tabs_->addTab(richness(), "Richness");
    tabs_->addTab(limits(), "Limits");
    tabs_->addTab(compare(), "Compare");
    tabs_->addTab(concentration(), "Concentration");
    connect(tabs_, &QTabWidget::currentChanged, this, [this](int page) {
        if (page != frmStatistics.SSTab1)
            runEvent([page] { frmStatistics_SSTab1_Click(page); });
    });
    setFirst(tabs_->tabBar());
    whole->addWidget(tabs_);
    resize(980, 690);
}

QLayout* StatisticsWindow::scopeRow()
{
    auto* const row = new QHBoxLayout;
    row->addWidget(wrappedLabel("Label1"), 1);
    const char* const captions[] = {"Sample on show", "All samples"};
    for (int scope = 0; scope < 2; ++scope) {
        scopes_[scope] = mark<QRadioButton>("Option1", scope);
        scopes_[scope]->setText(captions[scope]);
        QSizePolicy policy = scopes_[scope]->sizePolicy();
        policy.setRetainSizeWhenHidden(true); // or the pages would jump
        scopes_[scope]->setSizePolicy(policy);
        row->addWidget(scopes_[scope]);
    }
    return row;
}

QWidget* StatisticsWindow::richness()
{
    auto* const page = new QWidget;
    auto* const column = new QVBoxLayout(page);
    auto* const row = new QHBoxLayout;
    row->addWidget(fixedText("Label4", "E(S) also at"));
    row->addWidget(numberBox("Text1", "E(S) also at so many individuals"));
    row->addWidget(fixedText("Label5", "individuals"));
    row->addStretch(1);
    column->addLayout(row);
    column->addWidget(table(richnessPage, "Richness"), 3);
    auto* const frame = new QFrame;
    frame->setFrameShape(QFrame::StyledPanel);
    pictureFrame_ = frame;
    picture_ = new SurfaceView(frmStatistics.Picture1, frmStatistics_Picture1_Resize);
    picture_->setObjectName("Picture1");
    picture_->setAccessibleName("Rarefaction curve beside the saturation curve");
    picture_->setMinimumHeight(120);
    auto* const inside = new QVBoxLayout(frame);
    inside->setContentsMargins(1, 1, 1, 1);
    inside->addWidget(picture_);
    column->addWidget(frame, 2);
    column->addLayout(leavingRow(richnessPage));
    return page;
}

QWidget* StatisticsWindow::limits()
{
    auto* const page = new QWidget;
    auto* const column = new QVBoxLayout(page);
    auto* const row = new QHBoxLayout;
    row->addWidget(fixedText("Label6", "Count until the limits are +-"));
    row->addWidget(numberBox("Text2", "Half-width of the limits, percent"));
    row->addWidget(fixedText("Label7", "%"));
    row->addStretch(1);
    column->addLayout(row);
    column->addWidget(table(limitsPage, "Shares and their limits"));
    column->addLayout(leavingRow(limitsPage));
    return page;
}

QWidget* StatisticsWindow::compare()
{
    auto* const page = new QWidget;
    auto* const column = new QVBoxLayout(page);
    auto* const row = new QHBoxLayout;
    row->addWidget(bind(listOf("First sample"), "Combo1"));
    row->addWidget(fixedText("Label8", "and"));
    row->addWidget(bind(listOf("Second sample"), "Combo3"));
    row->addStretch(1);
    QPushButton* const again = button("Command3", "Count again");
    again->setToolTip(
        "<qt>Adds a sample to count the one on show once more, without a look at the first count. "
        "Its name is no depth, so diagrams have no depth axis from then on.</qt>");
    row->addWidget(again);
    QPushButton* const finish = button("Command4", "Finish recount");
    finish->setToolTip("Shows the sums of the recount");
    row->addWidget(finish);
    column->addLayout(row);
    QLabel* const said = wrappedLabel("Label2");
    said->setToolTip(
        "<qt>Percentage similarity: the sum of the smaller share of each taxon (Renkonen 1938). "
        "Chi-square test of homogeneity: p is the chance of samples as different as these from one "
        "assemblage; taxa with expected counts below 5 are pooled (Cochran 1954). Both are of the "
        "% basis, without the marker. The test does not hold where individuals cling together.</qt>");
    column->addWidget(said);
    column->addWidget(table(comparePage, "Two samples side by side"));
    column->addLayout(leavingRow(comparePage));
    return page;
}

QWidget* StatisticsWindow::concentration()
{
    auto* const page = new QWidget;
    auto* const column = new QVBoxLayout(page);
    auto* const row = new QHBoxLayout;
    row->addWidget(fixedText("Label9", "Marker"));
    row->addWidget(bind(listOf("Marker"), "Combo2"), 1);
    row->addSpacing(16);
    row->addWidget(fixedText("Label10", "Count until the error is"));
    row->addWidget(numberBox("Text4", "Relative error to count for, percent"));
    row->addWidget(fixedText("Label11", "%"));
    row->addStretch(1);
    column->addLayout(row);
    column->addLayout(laboratoryBoxes());
    QLabel* const said = wrappedLabel("Label3");
    said->setToolTip(
        "<qt>Markers to go: (1 + markers/individuals) / (error^2 - that of tablets and quantity), "
        "if both keep coming as they did (Stockmarr 1971). At least 20 markers are advised; below 4 "
        "there are no limits.</qt>");
    column->addWidget(said);
    column->addWidget(table(concentrationPage, "Concentrations"));
    column->addLayout(leavingRow(concentrationPage));
    return page;
}

QLayout* StatisticsWindow::laboratoryBoxes()
{
    const char* const captions[labColumns] = {
        "Tablets",       "Grains a tablet", "their deviation", "Quantity", "Unit",
        "its deviation", "Depth, top",      "Depth, bottom",   "Age, top", "Age, bottom"};
    auto* const grid = new QGridLayout;
    grid->setVerticalSpacing(2);
    for (int column = 0; column < labColumns; ++column) {
        const int place = column < labDepthTop ? column : column - labDepthTop;
        const int row = column < labDepthTop ? 0 : 2;
        QLineEdit* const entry = numberBox("Text3", captions[column], column);
        entry->setMaximumWidth(QWIDGETSIZE_MAX);
        QLabel* const caption = fixedText(indexed("Label12", column), captions[column]);
        caption->setBuddy(entry);
        grid->addWidget(caption, row, place);
        grid->addWidget(entry, row + 1, place);
    }
    QPushButton* const copy = button("Command5", "Use for samples without data");
    copy->setToolTip("Gives tablets and quantity to all samples of which nothing is known");
    grid->addWidget(copy, 3, 4, 1, 2);
    return grid;
}

StatTableView* StatisticsWindow::table(int page, const QString& accessibleName)
{
    StatTableView* const view = tables_[page] = new StatTableView(
        frmStatistics.tables[page], [this](int column) { runEvent([column] { sortStatistics(column); }); });
    view->setObjectName(indexed("Table1", page));
    view->setAccessibleName(accessibleName);
    return view;
}

QLayout* StatisticsWindow::leavingRow(int page)
{
    auto* const copy = new QPushButton("Copy");
    copy->setObjectName(indexed("Command2", page));
    copy->setAutoDefault(false);
    copy->setToolTip("Puts the table on the clipboard, as a spreadsheet takes it");
    connect(copy, &QPushButton::clicked, this,
            [] { QGuiApplication::clipboard()->setText(shownText(copiedStatistics())); });
    return buttonRow({copy, button("Command1", "Save table...", page)});
}

QLineEdit* StatisticsWindow::numberBox(const char* name, const QString& accessibleName, int index)
{
    QLineEdit* const made = box(name, index);
    made->setAccessibleName(accessibleName);
    made->setMinimumWidth(48);
    made->setMaximumWidth(made->fontMetrics().horizontalAdvance("888888888"));
    return made;
}

QLabel* StatisticsWindow::wrappedLabel(const char* name)
{
    QLabel* const made = bind(new QLabel, name);
    made->setTextFormat(Qt::PlainText);
    made->setWordWrap(true);
    made->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return made;
}

void StatisticsWindow::presentMore()
{
    const StatisticsForm& f = frmStatistics;
    if (tabs_->currentIndex() != f.SSTab1)
        tabs_->setCurrentIndex(f.SSTab1);
    for (QRadioButton* const scope : scopes_)
        scope->setVisible(f.SSTab1 != comparePage);
    tables_[f.SSTab1]->present();
    pictureFrame_->setVisible(!f.Option1[1].selected);
    picture_->present();
    if (isVisible() && f.forwardRevision != forwardShown_)
        bringForward(*this);
    forwardShown_ = f.forwardRevision;
}

/// A click in the main window leaves a box without a word; what stands there belongs to the sample on show.
void StatisticsWindow::changeEvent(QEvent* event)
{
    FormWindow::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && !isActiveWindow() && form().visible)
        runEvent(takeLaboratoryEntries);
}
