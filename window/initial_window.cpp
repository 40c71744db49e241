#include "window/initial_window.h"

#include "window/capture_box.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

InitialWindow::InitialWindow(MainWindow& main)
    : FormWindow(
          main, "frmInitial", "Initialize",
          {{.name = "Text1",
            .record = frmInitial.Text1.data(),
            .first = 0,
            .last = referenceKeys - 1,
            .entered = frmInitial_Text1_GotFocus,
            .keyDown = frmInitial_Text1_KeyDown},
           {.name = "Label4", .record = frmInitial.Label4.data(), .first = 0, .last = referenceKeys - 1},
           {.name = "Command1",
            .record = &frmInitial.Command1,
            .clicked = frmInitial_Command1_Click,
            .entered = frmInitial_Command1_GotFocus}})
{
    auto* const whole = new QVBoxLayout(this);
    QLabel* const welcome = fixedText("Label1", "Welcome to TallyStrata.");
    QFont letters = welcome->font();
    letters.setBold(true);
    letters.setPointSizeF(letters.pointSizeF() * 1.3);
    welcome->setFont(letters);
    whole->addWidget(welcome);
    whole->addWidget(fixedText("Label2", "Before starting, please help TallyStrata to recognize \n"
                                         "the type of your key board. "));
    whole->addWidget(fixedText("Label3", "Please place your cursor in the text box and press the \n"
                                         "requested key on your key board\n"
                                         "(NOT the Ergodex DX-1 but the one you normally use for typing "
                                         "texts)."));
    auto* const columns = new QHBoxLayout;
    columns->addWidget(column(0));
    columns->addStretch(1);
    columns->addWidget(column(referenceKeys / 2));
    whole->addLayout(columns);
    ok_ = button("Command1", "OK");
    ok_->setDefault(true);
    whole->addLayout(buttonRow({ok_}));
    whole->setSpacing(10);
    whole->setContentsMargins(20, 16, 20, 16);
    whole->setSizeConstraint(QLayout::SetFixedSize);
}

QWidget* InitialWindow::column(int firstBox)
{
    auto* const part = new QWidget;
    auto* const grid = new QGridLayout(part);
    grid->setContentsMargins(0, 0, 0, 0);
    QLabel* const head = fixedText("Label9", "Key code");
    grid->addWidget(head, 0, 1, Qt::AlignCenter);
    for (int i = firstBox; i < firstBox + referenceKeys / 2; ++i) {
        labels_[i] = label("Label4", i);
        boxes_[i] = bind(new CaptureBox, "Text1", i);
        boxes_[i]->setFixedWidth(fontMetrics().horizontalAdvance("0000000000"));
        grid->addWidget(labels_[i], i - firstBox + 1, 0, Qt::AlignRight);
        grid->addWidget(boxes_[i], i - firstBox + 1, 1);
    }
    return part;
}

void InitialWindow::presentMore()
{
    const InitialForm& f = frmInitial;
    for (int i = 0; i < referenceKeys; ++i)
        boxes_[i]->setAccessibleName(labels_[i]->text());
    QWidget* const wanted = f.focus < referenceKeys ? static_cast<QWidget*>(boxes_[f.focus]) : ok_;
    if (f.visible && isVisible() && !wanted->hasFocus() && isActiveWindow())
        wanted->setFocus();
    setFirst(wanted);
}
