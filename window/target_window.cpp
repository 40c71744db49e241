#include "window/target_window.h"

#include "statistics/target.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

TargetWindow::TargetWindow(MainWindow& main)
    : FormWindow(main, "frmTarget", "Target",
                 {{.name = "Label1", .record = &frmTarget.Label1},
                  {.name = "Text1", .record = &frmTarget.Text1},
                  {.name = "Command1", .clicked = frmTarget_Command1_Click},
                  {.name = "Command2", .clicked = frmTarget_Command2_Click}})
{
    auto* const grid = new QGridLayout(this);
    grid->addWidget(label("Label1"), 0, 0);
    QLineEdit* const number = box("Text1");
    number->setAccessibleName("Individuals of each sample");
    setFirst(number);
    grid->addWidget(number, 0, 1);
    grid->addWidget(fixedText("Label2", "The bell rings once when a sample gets there.\n"
                                        "An empty box takes the target away."),
                    1, 0, 1, 2);
    QPushButton* const ok = button("Command1", "OK");
    ok->setDefault(true);
    grid->addLayout(buttonRow({ok, button("Command2", "Cancel")}), 2, 0, 1, 2);
    layout()->setSizeConstraint(QLayout::SetFixedSize);
}
