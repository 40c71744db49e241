// What stands where in the main window.

#include "core/editing.h"
#include "core/endings.h"
#include "core/main_screen.h"
#include "files/next_sample.h"
#include "files/open_sheet.h"
#include "files/rename_info.h"
#include "files/save_sheet.h"
#include "platform/qt/text.h"
#include "sheet/basis.h"
#include "sheet/focus_and_pointer.h"
#include "sheet/live_curve.h"
#include "sheet/modify_mode.h"
#include "sheet/name_display.h"
#include "sheet/sample_choice.h"
#include "window/elided_label.h"
#include "window/main_window.h"
#include "window/surface_view.h"
#include "window/taxon_page.h"

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

QPlainTextEdit* textArea(const char* name, const QString& accessibleName)
{
    auto* const area = new QPlainTextEdit;
    area->setObjectName(name);
    area->setAccessibleName(accessibleName);
    area->setReadOnly(true);
    area->setUndoRedoEnabled(false);
    area->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard); // shows a caret
    area->setTabChangesFocus(true);
    area->setFocusPolicy(Qt::TabFocus);
    area->viewport()->setObjectName(QString(name) + ".text");
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

void modify()
{
    Command3_Click(0);
}

void resume()
{
    Command3_Click(1);
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

QLabel* MainWindow::boundLabel(const QString& name, const Label& record, QLabel* label)
{
    if (label == nullptr)
        label = new QLabel;
    label->setObjectName(name);
    labels_.append({label, &record});
    return label;
}

QLineEdit* MainWindow::boundBox(const QString& name, const TextBox& record)
{
    auto* const box = new QLineEdit;
    box->setObjectName(name);
    box->setReadOnly(true);
    box->setFocusPolicy(Qt::NoFocus);
    lines_.append({box, &record});
    return box;
}

void MainWindow::listen(void (*edited)(int, std::string_view, int), int index)
{
    const qsizetype at = lines_.size() - 1;
    connect(lines_[at].widget, &QLineEdit::textEdited, this, [this, edited, index, at] {
        const TypedText typed = typedInto(lines_[at]);
        onEvent([&] { edited(index, typed.text, typed.caret); });
        if (edited == Text2_Edited && lines_[at].record->text != typed.text)
            lines_[at].widget->selectAll(); // a number was refused: typing replaces the one that came back
    });
}

QAbstractButton* MainWindow::boundButton(const QString& name, const Button& record, const QString& caption,
                                         std::function<void()> clicked)
{
    auto* const button = new QToolButton;
    button->setText(caption);
    button->setObjectName(name);
    button->setFocusPolicy(Qt::TabFocus); // a click leaves the focus where the keys count
    connect(button, &QToolButton::clicked, this, [this, clicked = std::move(clicked)] { onEvent(clicked); });
    buttons_.append({button, &record});
    return button;
}

QComboBox* MainWindow::boundCombo(const QString& name, const QString& accessibleName, const ComboBox& record)
{
    auto* const combo = new QComboBox;
    combo->setObjectName(name);
    combo->setAccessibleName(accessibleName);
    combo->setEditable(true); // its text need not be one of its items
    combo->lineEdit()->setReadOnly(true);
    combo->lineEdit()->setAccessibleName(accessibleName);
    combo->setFocusPolicy(Qt::TabFocus);
    combo->setInsertPolicy(QComboBox::NoInsert);
    combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon); // never measures its list
    combo->setMinimumContentsLength(12);
    combo->setCompleter(nullptr);
    combos_.append({combo, &record});
    return combo;
}

QWidget* MainWindow::sampleStrip()
{
    auto* const row = new QHBoxLayout;
    row->addWidget(boundLabel("Label1(0)", frmMain.Label1[0]));
    QLineEdit* const name = boundBox("Text1(0)", frmMain.Text1[0]);
    listen(Text1_Edited, 0);
    name->setAccessibleName("Sample name");
    row->addWidget(name, 2);
    QComboBox* const samples = boundCombo("Combo2", "Choose a sample", frmMain.Combo2);
    connect(samples, &QComboBox::activated, this,
            [this](int index) { onEvent([&] { Combo2_Click(std::string(frmMain.Combo2.items[index])); }); });
    connect(samples->lineEdit(), &QLineEdit::textEdited, this, [this, samples](const QString& text) {
        const auto caret = heldText(text.left(samples->lineEdit()->cursorPosition())).size();
        onEvent([&] { Combo2_Change(heldText(text), static_cast<int>(caret)); });
    });
    // Leaving the box, or Enter in it, is no pick.
    samples->lineEdit()->disconnect(SIGNAL(editingFinished()), samples);
    samples->lineEdit()->disconnect(SIGNAL(returnPressed()), samples);
    samples_ = samples;
    row->addWidget(samples, 2);
    row->addSpacing(8);
    row->addWidget(fixedLabel("Label3", "Serial No.:"));
    QLabel* const serial = boundLabel("Label4", frmMain.Label4);
    serial->setMinimumWidth(serial->fontMetrics().horizontalAdvance("888/888")); // nothing moves with it
    row->addWidget(serial);
    row->addSpacing(8);
    row->addWidget(fixedLabel("Label15", "Latest sample:"));
    row->addWidget(boundButton("Command9", frmMain.Command9, "Go", Command9_Click));
    row->addStretch(1);
    row->addWidget(boundButton("Command4(0)", frmMain.Command4[0], "Open", mnuOpen_Click));
    row->addWidget(boundButton("Command5(0)", frmMain.Command5[0], "Save", mnuSave_Click));
    row->addWidget(boundButton("Command5(1)", frmMain.Command5[1], "Next sample", mnuNext_Click));
    row->addWidget(boundButton("Command3(0)", frmMain.Command3[0], "Modify", modify));
    row->addWidget(boundButton("Command3(1)", frmMain.Command3[1], "Resume", resume));
    row->addWidget(boundButton("Command2(0)", frmMain.Command2[0], "Reset", AbortCount));
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
    const char* const captions[] = {"Neutral", "Shift 1 or 2", "Shift 1 and 2"};
    for (int layer = 0; layer < 3; ++layer) {
        auto* const page = pages_[layer] = new TaxonPage(layer);
        page->setObjectName(indexed("Frame1", layer));
        page->setAccessibleName(captions[layer]);
        for (int slot = page->firstSlot(); slot <= page->lastSlot(); ++slot) {
            page->nameBox(slot)->setObjectName(indexed("Text1", slot));
            page->countBox(slot)->setObjectName(indexed("Text2", slot));
            page->indexLabel(slot)->setObjectName(indexed("Label1", slot));
            lines_.append({page->nameBox(slot), &frmMain.Text1[slot]});
            listen(Text1_Edited, slot);
            lines_.append({page->countBox(slot), &frmMain.Text2[slot]});
            listen(Text2_Edited, slot);
            labels_.append({page->indexLabel(slot), &frmMain.Label1[slot]});
        }
        tabs_->addTab(page, captions[layer]);
    }
    return tabs_;
}

QWidget* MainWindow::sumStrip()
{
    auto* const row = new QHBoxLayout;
    row->setSpacing(4);
    const char* const names[] = {"All total", "First subtotal", "Second subtotal"};
    for (int total = 0; total < 3; ++total) {
        row->addWidget(boundLabel(indexed("Label2", total), frmMain.Label2[total],
                                  total == 0 ? nullptr : new ElidedLabel)); // groups are named by the user
        QLineEdit* const sum = sums_[total] = boundBox(indexed("Text3", total), frmMain.Text3[total]);
        sum->setAccessibleName(names[total]);
        sum->setAlignment(Qt::AlignRight);
        sum->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed); // captions first, then more room here
        row->addWidget(sum, 2);
        QLabel* const bell = hundredMarks_[total] = fixedLabel("hundredMark", {});
        bell->setObjectName(indexed("hundredMark", total));
        bell->setPixmap(bellPicture(devicePixelRatioF()));
        bell->setToolTip("A full hundred");
        bell->setAccessibleName(QString("A full hundred of ") + names[total]);
        QSizePolicy kept = bell->sizePolicy();
        kept.setRetainSizeWhenHidden(true);
        bell->setSizePolicy(kept);
        bell->hide();
        row->addWidget(bell);
    }
    row->addStretch(1);
    row->addWidget(fixedLabel("Label6", "Alarm and % basis"));
    for (int total = 0; total < 3; ++total) {
        auto* const option = new QRadioButton("Set alarm");
        option->setObjectName(indexed("Option1", total));
        option->setAccessibleName(QString("Set alarm on ") + names[total]);
        option->setFocusPolicy(Qt::TabFocus);
        connect(option, &QRadioButton::clicked, this,
                [this, total] { onEvent([&] { selectBasis(total); }); });
        options_.append({option, &frmMain.Option1[total]});
        row->insertWidget(4 * total + 3, option);
    }
    percent_ = boundButton("Command6", frmMain.Command6, "%", [] {}); // works while it is held: boxPressed()
    percent_->setAccessibleName("Show percentages while held down");
    percent_->setToolTip("Percentages while held down, by the mouse or the space bar");
    row->addWidget(percent_);
    row->addWidget(boundButton("Command8", frmMain.Command8, "Alignment", Command8_Click));
    return panel(row);
}

QWidget* MainWindow::infoPanel()
{
    auto* const grid = new QGridLayout;
    grid->setVerticalSpacing(2);
    for (int item = 1; item <= infoItems; ++item) {
        QLabel* const caption = boundLabel(indexed("Label10", item), frmMain.Label10[item], new ElidedLabel);
        QSizePolicy size = caption->sizePolicy();
        size.setRetainSizeWhenHidden(true); // the boxes stay where they are when counting goes on
        caption->setSizePolicy(size);
        grid->addWidget(caption, item, 0);
        QLineEdit* const box = boundBox(indexed("Text5", item), frmMain.Text5[item]);
        listen(Text5_Edited, item);
        box->setAccessibleName(QString("Additional info %1").arg(item));
        box->setMinimumWidth(72);
        grid->addWidget(box, item, 1);
        QAbstractButton* const rename = boundButton(indexed("Command7", item), frmMain.Command7[item],
                                                    "Rename", [item] { Command7_Click(item); });
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
    QPlainTextEdit* const note = textArea("Text4", "Note of the sample");
    notes_.append({note, &frmMain.Text4});
    connect(note, &QPlainTextEdit::textChanged, this, [this, at = notes_.size() - 1] {
        onEvent([&] {
            const TypedText typed = typedInto(notes_[at]);
            Text4_Edited(typed.text, typed.caret);
        });
    });
    note_ = note;
    grid->addWidget(note, 1, 0, 1, 2);
    const char* const captions[] = {"Sheet created:", "Count start:", "Last saved: "};
    const char* const names[] = {"Label11", "Label12", "Label13"};
    for (int date = 0; date < 3; ++date) {
        grid->addWidget(fixedLabel(names[date], captions[date]), 2 + date, 0);
        QLabel* const stamp = boundLabel(indexed("Label14", date), frmMain.Label14[date]);
        stamp->setMinimumWidth(stamp->fontMetrics().horizontalAdvance("88/88/8888 (88:88:88)"));
        grid->addWidget(stamp, 2 + date, 1);
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
    QPlainTextEdit* const history = textArea("Text7", "History of all actions");
    logs_.append({history, &frmMain.Text7});
    grid->addWidget(history, 1, 0, 1, 2);
    grid->addWidget(fixedLabel("Label5", "Latest:"), 2, 0);
    QComboBox* const latest = boundCombo("Combo1", "Latest action", frmMain.Combo1);
    connect(latest, &QComboBox::activated, this, [this] { onEvent(giveFocusBack); });
    grid->addWidget(latest, 2, 1);
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
    curve_ = new SurfaceView(frmMain.Picture2, Picture2_Resize);
    curve_->setObjectName("Picture2");
    curve_->setAccessibleName("Taxa diversity vs. total count");
    curve_->setToolTip("Taxa diversity vs. total count");
    curve_->setFocusPolicy(Qt::TabFocus);
    auto* const inside = new QVBoxLayout(frame);
    inside->setContentsMargins(1, 1, 1, 1);
    inside->addWidget(curve_);
    grid->addWidget(frame, 1, 0, 1, 2);
    location_ = textArea("Text6", "File location");
    location_->setFrameShape(QFrame::NoFrame);
    location_->viewport()->setAutoFillBackground(false);
    location_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    location_->document()->setDocumentMargin(0); // whole lines, see scaleFont()
    notes_.append({location_, &frmMain.Text6});
    grid->addWidget(location_, 2, 0, 1, 2);
    auto* const progress = new QProgressBar;
    progress->setObjectName("ProgressBar1");
    bars_.append({progress, &frmMain.ProgressBar1});
    grid->addWidget(progress, 3, 0, 1, 2);
    grid->setRowStretch(1, 1);
    return panel(grid);
}
