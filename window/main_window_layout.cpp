// What stands where in the main window.

#include "core/main_screen.h"
#include "platform/qt/text.h"
#include "sheet/focus_and_pointer.h"
#include "sheet/live_curve.h"
#include "window/cell_box.h"
#include "window/elided_label.h"
#include "window/main_window.h"
#include "window/steady_label.h"
#include "window/surface_view.h"
#include "window/taxon_page.h"
#include "window/text_area.h"
#include "window/total_frame.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPainterPath>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>

namespace {

QLabel* fixedLabel(const char* name, const QString& text)
{
    auto* const label = new QLabel(text);
    label->setObjectName(name);
    return label;
}

QPlainTextEdit* textArea(const QString& accessibleName)
{
    auto* const area = new TextArea;
    area->setAccessibleName(accessibleName);
    area->setReadOnly(true);
    area->setUndoRedoEnabled(false);
    area->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard); // shows a caret
    area->setTabChangesFocus(true);
    area->setFocusPolicy(Qt::TabFocus);
    return area;
}

/// The alarm's visible twin.
QPixmap bellPicture(qreal devicePixelRatio)
{
    constexpr int size = 16;
    QPixmap picture((QSizeF(size, size) * devicePixelRatio).toSize());
    picture.setDevicePixelRatio(devicePixelRatio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(200, 110, 0));
    QPainterPath bell(QPointF(2, 12));
    bell.cubicTo(5, 10, 3, 3, 8, 3);
    bell.cubicTo(13, 3, 11, 10, 14, 12);
    bell.closeSubpath();
    painter.drawPath(bell);
    painter.drawEllipse(QPointF(8, 2.5), 1.2, 1.2);
    painter.drawEllipse(QPointF(8, 13.3), 1.8, 1.5);
    return picture;
}

template <class Layout>
QWidget* panel(Layout* layout)
{
    auto* const widget = new QWidget;
    layout->setContentsMargins(0, 0, 0, 0);
    widget->setLayout(layout);
    return widget;
}

} // namespace

QLineEdit* MainWindow::readBox(const char* name, int index)
{
    QLineEdit* const box = bind(new QLineEdit, name, index);
    box->setReadOnly(true);
    box->setFocusPolicy(Qt::NoFocus);
    return box;
}

QAbstractButton* MainWindow::toolButton(const char* name, const QString& caption, int index)
{
    QToolButton* const button = bind(new QToolButton, name, index);
    button->setText(caption);
    button->setFocusPolicy(Qt::TabFocus); // a click leaves the focus where the keys count
    return button;
}

QComboBox* MainWindow::nameList(const char* name, const QString& accessibleName)
{
    auto* const combo = new QComboBox;
    combo->setAccessibleName(accessibleName);
    combo->setEditable(true); // its text need not be one of its items
    combo->lineEdit()->setReadOnly(true);
    combo->lineEdit()->setAccessibleName(accessibleName);
    combo->setFocusPolicy(Qt::TabFocus);
    combo->setInsertPolicy(QComboBox::NoInsert);
    combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon); // never measures its list
    combo->setMinimumContentsLength(9);
    combo->setCompleter(nullptr);
    return bind(combo, name);
}

QWidget* MainWindow::sampleStrip()
{
    auto* const row = new QHBoxLayout;
    row->addWidget(bind(new QLabel, "Label1", 0));
    QLineEdit* const name = readBox("Text1", 0);
    editedBoxes_ += name;
    name->setAccessibleName("Sample name");
    name->setMinimumWidth(name->fontMetrics().horizontalAdvance("CORE-A-12/3") + 12);
    row->addWidget(name, 2);
    QComboBox* const samples = nameList("Combo2", "Choose a sample");
    // Leaving the box, or Enter in it, is no pick.
    samples->lineEdit()->disconnect(SIGNAL(editingFinished()), samples);
    samples->lineEdit()->disconnect(SIGNAL(returnPressed()), samples);
    samples_ = samples;
    row->addWidget(samples, 2);
    row->addSpacing(8);
    row->addWidget(fixedLabel("Label3", "Serial No.:"));
    row->addWidget(bind(new SteadyLabel("888/888"), "Label4"));
    row->addSpacing(8);
    row->addWidget(fixedLabel("Label15", "Latest sample:"));
    row->addWidget(toolButton("Command9", "Go"));
    row->addStretch(1);
    row->addWidget(toolButton("Command4", "Open", 0));
    row->addWidget(toolButton("Command5", "Save", 0));
    row->addWidget(toolButton("Command5", "Next sample", 1));
    row->addWidget(toolButton("Command3", "Modify", 0));
    row->addWidget(toolButton("Command3", "Resume", 1));
    row->addWidget(toolButton("Command2", "Reset", 0));
    return panel(row);
}

QWidget* MainWindow::sheetPages()
{
    tabs_ = new QTabWidget;
    tabs_->setObjectName("SSTab1");
    tabs_->setAccessibleName("Layers");
    tabs_->tabBar()->setFocusPolicy(Qt::NoFocus); // while counting the shift keys turn the pages
    connect(tabs_, &QTabWidget::currentChanged, this, [this](int page) { // by the arrow keys
        if (page != frmMain.SSTab1)
            onEvent([page] { SSTab1_Click(page); });
    });
    connect(tabs_->tabBar(), &QTabBar::tabBarClicked, this, [this](int page) {
        if (page >= 0)
            onEvent([page] { SSTab1_Click(page); });
    });
    for (const char* const caption : {"Neutral", "Shift 1 or 2", "Shift 1 and 2"})
        tabs_->addTab(panel(new QVBoxLayout), caption);
    return tabs_;
}

void MainWindow::makePages(int count)
{
    while (pages_.size() < count) {
        const int layer = static_cast<int>(pages_.size());
        QWidget* const tab = tabs_->widget(layer);
        auto* const page = new TaxonPage(layer, tab);
        page->setObjectName(indexed("Frame1", layer));
        page->setAccessibleName(tabs_->tabText(layer));
        for (int slot = page->firstSlot(); slot <= page->lastSlot(); ++slot) {
            bind(page->nameBox(slot), "Text1", slot);
            bind(page->countBox(slot), "Text2", slot);
            bind(page->indexLabel(slot), "Label1", slot);
        }
        page->showKeyNames(keyNamesOnShow_);
        if (modifyingShown_)
            page->makeEditable(true);
        watch(page);
        for (QWidget* const part : page->findChildren<QWidget*>())
            watch(part);
        if (layer > 0)
            setTabOrder(pages_.back()->countBox(pages_.back()->lastSlot()), page->nameBox(page->firstSlot()));
        pages_ << page;
        tab->layout()->addWidget(page);
        tab->layout()->activate(); // cells that are shown before it has its place would be placed twice
        page->show();
    }
}

/// A total with its alarm, in a frame of its own.
TotalFrame* MainWindow::totalFrame(int total, const char* name)
{
    auto* const row = new QHBoxLayout;
    row->setSpacing(3);
    QLabel* const caption = total == 0 ? new QLabel : new ElidedLabel; // groups are named by the user
    row->addWidget(bind(caption, "Label2", total));
    QLineEdit* const sum = sums_[total] = readBox("Text3", total);
    sum->setAccessibleName(name);
    sum->setAlignment(Qt::AlignRight);
    sum->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed); // captions first, then more room here
    row->addWidget(sum, 2);
    QLabel* const bell = hundredMarks_[total] = fixedLabel("hundredMark", {});
    bell->setObjectName(indexed("hundredMark", total));
    bell->setPixmap(bellPicture(devicePixelRatioF()));
    bell->setToolTip("A full hundred");
    bell->setAccessibleName(QString("A full hundred of ") + name);
    QSizePolicy kept = bell->sizePolicy();
    kept.setRetainSizeWhenHidden(true);
    bell->setSizePolicy(kept);
    bell->hide();
    row->addWidget(bell);
    QLabel* const toGo = bind(new QLabel, "Target", total);
    toGo->setAccessibleName(QString("Target of ") + name);
    row->addWidget(toGo);
    auto* const option = bind(new QRadioButton("Set alarm"), "Option1", total);
    option->setAccessibleName(QString("Set alarm on ") + name);
    option->setFocusPolicy(Qt::TabFocus);
    alarms_.addButton(option); // one choice, though they stand in different frames
    row->addWidget(option);
    return totals_[total] = new TotalFrame(row);
}

QWidget* MainWindow::sumStrip()
{
    auto* const row = new QHBoxLayout;
    row->setSpacing(4);
    row->addWidget(totalFrame(0, "All total"), 2);
    row->addWidget(totalFrame(1, "First subtotal"), 2);
    row->addWidget(totalFrame(2, "Second subtotal"), 2);
    heading_ = fixedLabel("Label6", "Alarm and % basis");
    heading_->setWordWrap(true); // two lines leave room to the names of the groups
    row->addWidget(heading_);
    percent_ = toolButton("Command6", "%");
    percent_->setAccessibleName("Show percentages while held down");
    percent_->setToolTip("Percentages while held down, by the mouse or the space bar");
    row->addWidget(percent_);
    row->addWidget(toolButton("Command8", "Alignment"));
    return panel(row);
}

QWidget* MainWindow::statisticsStrip()
{
    statisticsLine_ = bind(new ElidedLabel, "StatisticsLine");
    statisticsLine_->setAccessibleName("Statistics line");
    statisticsLine_->setCursor(Qt::PointingHandCursor);
    statisticsLine_->setToolTip("<qt>Of the % basis. Coverage: share of the assemblage that the taxa seen "
                                "make up (Chao & Jost 2012); new taxa "
                                "by Shen, Chao & Lin (2003). In brackets the 95 % limits of the taxon "
                                "counted last (Wilson 1927, Mosimann "
                                "1965), and how many individuals more would bring them to the half-width. A "
                                "click chooses that. They do not "
                                "hold where individuals cling together.</qt>");
    return statisticsLine_;
}

QWidget* MainWindow::infoPanel()
{
    auto* const grid = new QGridLayout;
    grid->setVerticalSpacing(2);
    for (int item = 1; item <= infoItems; ++item) {
        auto* const caption = bind(new ElidedLabel, "Label10", item);
        QSizePolicy size = caption->sizePolicy();
        size.setRetainSizeWhenHidden(true); // the boxes stay where they are when counting goes on
        caption->setSizePolicy(size);
        grid->addWidget(caption, item, 0);
        QLineEdit* const box = readBox("Text5", item);
        editedBoxes_ += box;
        box->setAccessibleName(QString("Additional info %1").arg(item));
        box->setMinimumWidth(72);
        grid->addWidget(box, item, 1);
        QAbstractButton* const rename = toolButton("Command7", "Rename", item);
        rename->setAccessibleName(QString("Rename additional info %1").arg(item));
        grid->addWidget(rename, item, 2);
    }
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(infoItems + 1, 1);
    return panel(grid);
}

QWidget* MainWindow::notePanel()
{
    auto* const grid = new QGridLayout;
    grid->setVerticalSpacing(2);
    grid->addWidget(fixedLabel("Label7(0)", "Note:"), 0, 0, 1, 2);
    note_ = bind(textArea("Note of the sample"), "Text4");
    grid->addWidget(note_, 1, 0, 1, 2);
    const char* const captions[] = {"Sheet created:", "Count start:", "Last saved: "};
    const char* const names[] = {"Label11", "Label12", "Label13"};
    for (int date = 0; date < 3; ++date) {
        grid->addWidget(fixedLabel(names[date], captions[date]), 2 + date, 0);
        grid->addWidget(bind(new SteadyLabel("88/88/8888 (88:88:88)"), "Label14", date), 2 + date, 1);
    }
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(1, 1);
    return panel(grid);
}

QWidget* MainWindow::historyPanel()
{
    auto* const grid = new QGridLayout;
    grid->setVerticalSpacing(2);
    grid->addWidget(fixedLabel("Label7(1)", "History:"), 0, 0, 1, 2);
    grid->addWidget(bind(textArea("History of all actions"), "Text7"), 1, 0, 1, 2);
    grid->addWidget(fixedLabel("Label5", "Latest:"), 2, 0);
    grid->addWidget(nameList("Combo1", "Latest action"), 2, 1);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(1, 1);
    return panel(grid);
}

QWidget* MainWindow::curvePanel()
{
    auto* const grid = new QGridLayout;
    grid->setVerticalSpacing(2);
    grid->addWidget(fixedLabel("Label7(2)", "Saturation:"), 0, 0);
    QLabel* const axis = fixedLabel("Label9", "Diversity");
    axis->setAlignment(Qt::AlignRight);
    grid->addWidget(axis, 0, 1);
    auto* const frame = new QFrame;
    frame->setFrameShape(QFrame::StyledPanel);
    curve_ = bind(new SurfaceView(frmMain.Picture2, Picture2_Resize), "Picture2");
    curve_->setAccessibleName("Taxa diversity vs. total count");
    curve_->setToolTip("Taxa diversity vs. total count");
    curve_->setFocusPolicy(Qt::TabFocus);
    auto* const inside = new QVBoxLayout(frame);
    inside->setContentsMargins(1, 1, 1, 1);
    inside->addWidget(curve_);
    grid->addWidget(frame, 1, 0, 1, 2);
    location_ = bind(textArea("File location"), "Text6");
    location_->setFrameShape(QFrame::NoFrame);
    location_->viewport()->setAutoFillBackground(false);
    location_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    location_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    location_->document()->setDocumentMargin(0); // whole lines, see scaleFont()
    grid->addWidget(location_, 2, 0, 1, 2);
    auto* const progress = bind(new QProgressBar, "ProgressBar1");
    progress->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed); // takes no room from the other panels
    grid->addWidget(progress, 3, 0, 1, 2);
    grid->setRowStretch(1, 1);
    return panel(grid);
}
