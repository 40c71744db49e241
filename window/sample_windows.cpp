#include "window/sample_windows.h"

#include "files/new_sheet.h"
#include "files/next_sample.h"
#include "files/rename_info.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

namespace {

/// The rows that both windows of a sample have.
std::vector<ControlRow> sampleControls(SampleForm& form, void (*entered)(int), void (*left)(int))
{
    return {{.name = "Label1", .record = &form.Label1},
            {.name = "Text1", .record = &form.Text1},
            {.name = "Text2", .record = &form.Text2},
            {.name = "Label3", .record = form.Label3.data(), .first = 1, .last = infoItems},
            {.name = "Text3",
             .record = form.Text3.data(),
             .first = 1,
             .last = infoItems,
             .entered = entered,
             .left = left}};
}

std::vector<ControlRow> with(std::vector<ControlRow> rows, std::initializer_list<ControlRow> more)
{
    rows.insert(rows.end(), more);
    return rows;
}

} // namespace

QWidget* SampleWindow::entryBoxes(const std::function<QWidget*(int item)>& beside)
{
    auto* const frame = new QWidget;
    auto* const grid = new QGridLayout(frame);
    grid->setContentsMargins(0, 0, 0, 0);
    QLabel* const nameLabel = label("Label1");
    QLineEdit* const name = box("Text1");
    nameLabel->setBuddy(name);
    setFirst(name);
    grid->addWidget(nameLabel, 0, 0);
    grid->addWidget(name, 0, 1);
    auto* const noteLabel = new QLabel("Note: ");
    noteLabel->setObjectName("Label2");
    QPlainTextEdit* const note = area("Text2");
    note->setAccessibleName("Note");
    grid->addWidget(noteLabel, 1, 0, Qt::AlignTop);
    grid->addWidget(note, 1, 1);
    for (int item = 1; item <= infoItems; ++item) {
        grid->addWidget(label("Label3", item), item + 1, 0);
        QLineEdit* const info = box("Text3", item);
        info->setAccessibleName(QString("Additional info %1").arg(item));
        grid->addWidget(info, item + 1, 1);
        if (beside)
            grid->addWidget(beside(item), item + 1, 2);
    }
    return frame;
}

SiteNameWindow::SiteNameWindow(MainWindow& main)
    : SampleWindow(main, "frmSiteName", "TallyStrata",
                   with(sampleControls(frmSiteName, frmSiteName_Text3_GotFocus, frmSiteName_Text3_LostFocus),
                        {{.name = "Command1", .clicked = frmSiteName_Command1_Click},
                         {.name = "Command3", .clicked = frmSiteName_Command3_Click}}))
{
    auto* const frame = new QGroupBox(" Create a new data file");
    frame->setObjectName("Frame1");
    (new QVBoxLayout(frame))->addWidget(entryBoxes());
    QPushButton* const ok = button("Command1", "OK");
    ok->setDefault(true);
    auto* const whole = new QVBoxLayout(this);
    whole->addWidget(frame);
    whole->addLayout(buttonRow({ok, button("Command3", "Cancel")}));
    whole->setSizeConstraint(QLayout::SetFixedSize);
}

NextWindow::NextWindow(MainWindow& main)
    : SampleWindow(main, "frmNext", "Next sample",
                   with(sampleControls(frmNext, frmNext_Text3_GotFocus, frmNext_Text3_LostFocus),
                        {{.name = "Command1", .clicked = frmNext_Command1_Click},
                         {.name = "Command2", .record = &frmNext.Command2, .clicked = frmNext_Command2_Click},
                         {.name = "Command3", .record = &frmNext.Command3, .clicked = frmNext_Command3_Click},
                         {.name = "Command4", .record = &frmNext.Command4, .clicked = frmNext_Command4_Click},
                         {.name = "Command5",
                          .record = frmNext.Command5.data(),
                          .first = 1,
                          .last = infoItems,
                          .clicked = frmNext_Command5_Click}}))
{
    entries_ = entryBoxes([this](int item) {
        QPushButton* const rename = button("Command5", "Rename", item);
        rename->setAccessibleName(QString("Rename additional info %1").arg(item));
        return rename;
    });
    entries_->setObjectName("Frame1");
    ok_ = button("Command1", "OK");
    ok_->setDefault(true);
    auto* const choice = new QHBoxLayout;
    choice->addWidget(button("Command4", "Create new data file"));
    choice->addWidget(button("Command2", "Open data file or template"));
    auto* const whole = new QVBoxLayout(this);
    whole->addLayout(choice);
    whole->addWidget(entries_);
    whole->addLayout(buttonRow({ok_, button("Command3", "Cancel")}));
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
    : FormWindow(main, "frmParaName", "Parameter name",
                 {{.name = "Label2", .record = &frmParaName.Label2},
                  {.name = "Text1", .record = &frmParaName.Text1},
                  {.name = "Command1", .clicked = frmParaName_Command1_Click},
                  {.name = "Command2", .clicked = frmParaName_Command2_Click}})
{
    auto* const grid = new QGridLayout;
    grid->addWidget(new QLabel("Old name:"), 0, 0);
    grid->addWidget(label("Label2"), 0, 1);
    auto* const newLabel = new QLabel("New name: ");
    QLineEdit* const name = box("Text1");
    newLabel->setBuddy(name);
    setFirst(name);
    grid->addWidget(newLabel, 1, 0);
    grid->addWidget(name, 1, 1);
    QPushButton* const ok = button("Command1", "OK");
    ok->setDefault(true);
    auto* const whole = new QVBoxLayout(this);
    whole->addLayout(grid);
    whole->addLayout(buttonRow({ok, button("Command2", "Cancel")}));
    whole->setSizeConstraint(QLayout::SetFixedSize);
}
