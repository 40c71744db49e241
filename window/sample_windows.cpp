#include "window/sample_windows.h"

#include "files/new_sheet.h"
#include "files/next_sample.h"
#include "files/rename_info.h"
#include "platform/qt/text.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

QWidget* SampleWindow::entryBoxes(SampleForm& form, const std::function<QWidget*(int item)>& beside)
{
    auto* const frame = new QWidget;
    auto* const grid = new QGridLayout(frame);
    grid->setContentsMargins(0, 0, 0, 0);
    QLabel* const nameLabel = label("Label1", form.nameLabel);
    QLineEdit* const name = box("Text1", form.Text1);
    nameLabel->setBuddy(name);
    setFirst(name);
    grid->addWidget(nameLabel, 0, 0);
    grid->addWidget(name, 0, 1);
    auto* const noteLabel = new QLabel("Note: ");
    noteLabel->setObjectName("Label2");
    QPlainTextEdit* const note = area("Text2", form.Text2);
    note->setAccessibleName("Note");
    grid->addWidget(noteLabel, 1, 0, Qt::AlignTop);
    grid->addWidget(note, 1, 1);
    for (int item = 1; item <= infoItems; ++item) {
        grid->addWidget(label(indexed("Label3", item), form.Label3[item].caption), item + 1, 0);
        QLineEdit* const info = box(indexed("Text3", item), form.Text3[item],
                                    {.entered = [&form, item] { form.enterInfo(item); },
                                     .left = [&form, item] { form.leaveInfo(item); }});
        info->setAccessibleName(QString("Additional info %1").arg(item));
        grid->addWidget(info, item + 1, 1);
        if (beside)
            grid->addWidget(beside(item), item + 1, 2);
    }
    return frame;
}

SiteNameWindow::SiteNameWindow(MainWindow& main)
    : SampleWindow(main, "frmSiteName", "TallyStrata", frmSiteName.visible, frmSiteName_Command3_Click)
{
    auto* const frame = new QGroupBox(" Create a new data file");
    frame->setObjectName("Frame1");
    (new QVBoxLayout(frame))->addWidget(entryBoxes(frmSiteName));
    QPushButton* const ok = button("Command1", "OK", frmSiteName_Command1_Click);
    ok->setDefault(true);
    auto* const whole = new QVBoxLayout(this);
    whole->addWidget(frame);
    whole->addLayout(buttonRow({ok, button("Command3", "Cancel", frmSiteName_Command3_Click)}));
    whole->setSizeConstraint(QLayout::SetFixedSize);
}

NextWindow::NextWindow(MainWindow& main)
    : SampleWindow(main, "frmNext", "Next sample", frmNext.visible, frmNext_Command3_Click)
{
    entries_ = entryBoxes(frmNext, [this](int item) {
        QPushButton* const rename = button(
            indexed("Command5", item), "Rename", [item] { frmNext_Command5_Click(item); },
            &frmNext.Command5[item]);
        rename->setAccessibleName(QString("Rename additional info %1").arg(item));
        return rename;
    });
    entries_->setObjectName("Frame1");
    ok_ = button("Command1", "OK", frmNext_Command1_Click);
    ok_->setDefault(true);
    auto* const choice = new QHBoxLayout;
    choice->addWidget(button("Command4", "Create new data file", frmNext_Command4_Click, &frmNext.Command4));
    choice->addWidget(
        button("Command2", "Open data file or template", frmNext_Command2_Click, &frmNext.Command2));
    auto* const whole = new QVBoxLayout(this);
    whole->addLayout(choice);
    whole->addWidget(entries_);
    whole->addLayout(
        buttonRow({ok_, button("Command3", "Cancel", frmNext_Command3_Click, &frmNext.Command3)}));
    whole->setSizeConstraint(QLayout::SetFixedSize);
}

void NextWindow::presentMore()
{
    const bool comeNow = frmNext.entryBoxes && !entries_->isVisibleTo(this);
    entries_->setVisible(frmNext.entryBoxes);
    ok_->setVisible(frmNext.entryBoxes);
    if (comeNow)
        entries_->findChild<QWidget*>("Text1")->setFocus();
}

ParameterNameWindow::ParameterNameWindow(MainWindow& main)
    : FormWindow(main, "frmParaName", "Parameter name", frmParaName.visible, frmParaName_Command2_Click)
{
    auto* const grid = new QGridLayout;
    grid->addWidget(new QLabel("Old name:"), 0, 0);
    grid->addWidget(label("Label2", frmParaName.Label2.caption), 0, 1);
    auto* const newLabel = new QLabel("New name: ");
    QLineEdit* const name = box("Text1", frmParaName.Text1);
    newLabel->setBuddy(name);
    setFirst(name);
    grid->addWidget(newLabel, 1, 0);
    grid->addWidget(name, 1, 1);
    QPushButton* const ok = button("Command1", "OK", frmParaName_Command1_Click);
    ok->setDefault(true);
    auto* const whole = new QVBoxLayout(this);
    whole->addLayout(grid);
    whole->addLayout(buttonRow({ok, button("Command2", "Cancel", frmParaName_Command2_Click)}));
    whole->setSizeConstraint(QLayout::SetFixedSize);
}
