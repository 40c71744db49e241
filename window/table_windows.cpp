#include "window/table_windows.h"

#include "platform/qt/text.h"
#include "tables/table_form.h"
#include "tables/taxa_form.h"
#include "window/elided_label.h"

#include <QCheckBox>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>

namespace {

constexpr int lastCell = (tablePreview + 1) * (tablePreview + 1) - 1;

/// It takes the room that the window leaves.
void makeTall(QPlainTextEdit& area)
{
    area.setMinimumHeight(3 * area.fontMetrics().lineSpacing());
    area.setMaximumHeight(QWIDGETSIZE_MAX);
}

void makeReadOnly(QPlainTextEdit& area)
{
    area.setReadOnly(true);
    area.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
}

} // namespace

TableWindow::TableWindow(MainWindow& main)
    : FormWindow(main, "frmTable", "New from a table",
                 {{.name = "Label1", .record = &frmTable.Label1},
                  {.name = "Label2", .record = &frmTable.Label2},
                  {.name = "Label3", .record = &frmTable.Label3},
                  {.name = "Label4", .record = frmTable.Label4.data(), .first = 0, .last = lastCell},
                  {.name = "Text1", .record = &frmTable.Text1},
                  {.name = "Check1", .record = &frmTable.Check1, .clicked = frmTable_Check1_Click},
                  {.name = "Command1", .record = &frmTable.Command1, .clicked = frmTable_Command1_Click},
                  {.name = "Command2", .clicked = frmTable_Command2_Click},
                  {.name = "Command3", .clicked = frmTable_Command3_Click}})
{
    QLabel* const found = sentence("Label2");
    QFont strong = found->font();
    strong.setBold(true);
    found->setFont(strong);
    QLabel* const refusal = sentence("Label3");
    refusal->setFont(strong);
    QPlainTextEdit* const remarks = area("Text1");
    makeReadOnly(*remarks);
    makeTall(*remarks);
    remarks->setAccessibleName("What is left out and why");
    rarest_ = mark<QCheckBox>("Check1");
    QPushButton* const take = button("Command1", "New sheet");
    take->setDefault(true);
    setFirst(take);

    auto* const buttons = new QHBoxLayout;
    buttons->addWidget(button("Command3", "Swap rows and columns"));
    buttons->addStretch(1);
    buttons->addWidget(take);
    buttons->addWidget(button("Command2", "Cancel"));
    auto* const whole = new QVBoxLayout(this);
    whole->addWidget(sentence("Label1"));
    whole->addWidget(found);
    whole->addWidget(cells());
    whole->addWidget(refusal);
    whole->addWidget(rarest_);
    whole->addWidget(remarks, 1);
    whole->addLayout(buttons);
    resize(640, 400);
}

void TableWindow::presentMore()
{
    rarest_->setText(shownText(frmTable.Check1.caption));
    rarest_->setVisible(frmTable.Check1.visible);
}

QLabel* TableWindow::sentence(const char* name)
{
    auto* const made = new QLabel(this);
    made->setTextFormat(Qt::PlainText);
    made->setWordWrap(true);
    return bind(made, name);
}

/// Heads of samples above, of taxa at the left, counts in between.
QWidget* TableWindow::cells()
{
    auto* const frame = new QFrame;
    frame->setFrameShape(QFrame::StyledPanel);
    frame->setAccessibleName("The first taxa and samples");
    auto* const grid = new QGridLayout(frame);
    grid->setHorizontalSpacing(14);
    grid->setVerticalSpacing(3);
    for (int cell = 0; cell <= lastCell; ++cell) {
        const int row = cell / (tablePreview + 1);
        const int column = cell % (tablePreview + 1);
        QLabel* const made = label("Label4", cell);
        made->setMinimumHeight(made->fontMetrics().height());
        made->setAlignment(column == 0 ? Qt::AlignLeft : Qt::AlignRight);
        QFont letters = made->font();
        letters.setBold(row == 0);
        made->setFont(letters);
        grid->addWidget(made, row, column);
        grid->setColumnStretch(column, column == 0 ? 3 : 1);
    }
    return frame;
}

TaxaWindow::TaxaWindow(MainWindow& main)
    : FormWindow(main, "frmTaxa", "Taxa from a list",
                 {{.name = "Text1", .record = &frmTaxa.Text1, .edited = frmTaxa_Text1_Edited},
                  {.name = "Label1", .record = &frmTaxa.Label1},
                  {.name = "Text2", .record = &frmTaxa.Text2},
                  {.name = "Command1", .record = &frmTaxa.Command1, .clicked = frmTaxa_Command1_Click},
                  {.name = "Command2", .clicked = frmTaxa_Command2_Click},
                  {.name = "Command3", .clicked = frmTaxa_Command3_Click}})
{
    QPlainTextEdit* const list = area("Text1");
    list->setLineWrapMode(QPlainTextEdit::NoWrap);
    list->setPlaceholderText("Paste names here, one a line, or a table with a column \"taxon\".");
    list->setAccessibleName("List of taxa");
    setFirst(list);
    QPlainTextEdit* const plan = area("Text2");
    makeReadOnly(*plan);
    plan->setAccessibleName("Where the names go");
    for (QPlainTextEdit* const text : {list, plan})
        makeTall(*text);

    auto* const lists = new QGridLayout;
    lists->addWidget(fixedText("Label2", "List of taxa:"), 0, 0);
    lists->addWidget(label("Label1"), 0, 1);
    lists->addWidget(list, 1, 0);
    lists->addWidget(plan, 1, 1);
    lists->setColumnStretch(0, 1);
    lists->setColumnStretch(1, 1);
    QPushButton* const take = button("Command1", "Take over");
    auto* const buttons = new QHBoxLayout;
    buttons->addWidget(button("Command3", "Open a list..."));
    buttons->addStretch(1);
    buttons->addWidget(take);
    buttons->addWidget(button("Command2", "Cancel"));
    auto* const whole = new QVBoxLayout(this);
    whole->addLayout(lists, 1);
    whole->addLayout(buttons);
    resize(720, 420);
}
