#include "window/subtotal_window.h"

#include "platform/qt/text.h"
#include "sheet/cell_grid.h"
#include "sheet/short_name.h"
#include "sheet/subtotals.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QStyleOptionButton>
#include <algorithm>

/// The 45 check boxes of a layer. Their places are scaled to the frame; a name that does not fit is cut and
/// shows whole in its tip.
class CheckPage : public QGroupBox {
public:
    CheckPage(const QString& caption, int layer, const QList<QCheckBox*>& boxes)
        : QGroupBox(caption), firstSlot_(layer * keysPerLayer + 1), boxes_(boxes)
    {
        setObjectName(indexed("Frame1", layer));
        for (QCheckBox* const box : boxes_)
            box->setParent(this);
        const int row = boxes_.front()->sizeHint().height();
        setMinimumSize(840, fontMetrics().height() + 16 + 6 * row);
    }

    /// By the records of the check boxes.
    void placeBoxes();
    /// Tab goes through the boxes as a person reads.
    void orderBoxes();

protected:
    void resizeEvent(QResizeEvent*) override { placeBoxes(); }

private:
    const CheckBox& record(int box) const { return frmSubtotal.Check1[firstSlot_ + box]; }

    int firstSlot_;
    QList<QCheckBox*> boxes_;
};

void CheckPage::placeBoxes()
{
    constexpr int firstPlace = 28; // corners of the grid
    constexpr int lastPlace = 27;
    const CellGrid& grid = cellGrid();
    const QRect inside = contentsRect().adjusted(8, 2, -4, -4);
    const int height = boxes_.front()->sizeHint().height();
    constexpr int columnWidth = 1290; // nearly up to the next one
    constexpr int gap = 360;          // between the blocks of three columns
    const double across =
        inside.width() / double(grid.CellLeft[lastPlace] - grid.CellLeft[firstPlace] + columnWidth);
    const double down =
        (inside.height() - height) / double(grid.CellTop[lastPlace] - grid.CellTop[firstPlace]);
    for (int i = 0; i < keysPerLayer; ++i) {
        QCheckBox& box = *boxes_[i];
        const bool beforeGap = record(i).left == grid.CellLeft[30] || record(i).left == grid.CellLeft[36];
        box.setGeometry(inside.left() +
                            static_cast<int>((record(i).left - grid.CellLeft[firstPlace]) * across),
                        inside.top() + static_cast<int>((record(i).top - grid.CellTop[firstPlace]) * down),
                        static_cast<int>((columnWidth + (beforeGap ? gap : 0)) * across), height);
        const QString name = shownText(record(i).caption);
        QStyleOptionButton option;
        option.initFrom(&box);
        const int room = style()->subElementRect(QStyle::SE_CheckBoxContents, &option, &box).width();
        const auto fits = [&box, room](const std::string& text) {
            return box.fontMetrics().horizontalAdvance(shownText(text)) <= room;
        };
        const std::string cut = shortName(record(i).caption, fits);
        const QString text =
            fits(cut) ? shownText(cut) : box.fontMetrics().elidedText(name, Qt::ElideMiddle, room);
        box.setText(QString(text).replace('&', "&&"));
        box.setToolTip(name);
        box.setAccessibleName(name);
    }
}

void CheckPage::orderBoxes()
{
    QList<int> order;
    for (int i = 0; i < keysPerLayer; ++i)
        order << i;
    std::sort(order.begin(), order.end(), [this](int one, int other) {
        const auto place = [this](int i) { return std::pair(record(i).top, record(i).left); };
        return place(one) < place(other);
    });
    for (int i = 1; i < keysPerLayer; ++i)
        setTabOrder(boxes_[order[i - 1]], boxes_[order[i]]);
}

SubtotalWindow::SubtotalWindow(MainWindow& main)
    : FormWindow(main, "frmSubtotal", "Subtotal setting",
                 {{.name = "Option1",
                   .record = frmSubtotal.Option1.data(),
                   .first = 1,
                   .last = 2,
                   .clicked = frmSubtotal_Option1_Click},
                  {.name = "Text1",
                   .record = frmSubtotal.Text1.data(),
                   .first = 1,
                   .last = 2,
                   .edited = frmSubtotal_Text1_Edited},
                  {.name = "Check1",
                   .record = frmSubtotal.Check1.data(),
                   .first = 1,
                   .last = taxonSlots,
                   .clicked = frmSubtotal_Check1_Click},
                  {.name = "Command2", .first = 0, .last = 1, .clicked = frmSubtotal_Command2_Click},
                  {.name = "Command1", .clicked = frmSubtotal_Command1_Click},
                  {.name = "Command3", .clicked = frmSubtotal_Command3_Click}})
{
    auto* const groups = new QHBoxLayout;
    for (int group = 1; group <= 2; ++group) {
        auto* const option = mark<QRadioButton>("Option1", group);
        option->setText(QString("Subtotal-%1").arg(group));
        if (group == 1)
            setFirst(option);
        QLineEdit* const name = box("Text1", group);
        name->setAccessibleName(QString("Name of subtotal %1").arg(group));
        groups->addWidget(option);
        groups->addWidget(name);
        groups->addSpacing(24);
    }
    groups->addStretch(1);
    groups->addWidget(button("Command2", "Clear", 0));
    groups->addWidget(button("Command2", "Select all", 1));

    auto* const whole = new QVBoxLayout(this);
    whole->addLayout(groups);
    const char* const captions[] = {"Neutral", "Shift 1 or 2", "Shift 1 and 2"};
    for (int layer = 0; layer < 3; ++layer) {
        QList<QCheckBox*> boxes;
        for (int slot = layer * keysPerLayer + 1; slot <= (layer + 1) * keysPerLayer; ++slot)
            boxes << mark<QCheckBox>("Check1", slot);
        pages_ << new CheckPage(captions[layer], layer, boxes);
        whole->addWidget(pages_.back());
    }
    QPushButton* const ok = button("Command1", "OK");
    ok->setDefault(true);
    whole->addLayout(buttonRow({ok, button("Command3", "Cancel")}));
    resize(std::min(1280, screen()->availableGeometry().width() - 24), 520); // wide: names are long
}

void SubtotalWindow::presentMore()
{
    if (isVisible())
        return;
    for (CheckPage* const page : pages_) { // it is being opened
        page->placeBoxes();
        page->orderBoxes();
    }
}
