#include "window/diagnose_window.h"

#include "core/sheet_state.h"
#include "platform/key_names.h"
#include "window/system_facts.h"

#include <QClipboard>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

DiagnoseWindow::DiagnoseWindow(MainWindow& main)
    : FormWindow(main, "frmDiagnose", "Diagnose",
                 {{.name = "Label1"},
                  {.name = "Label2"},
                  {.name = "Text1"},
                  {.name = "Command1"}, // what is copied is what this window shows
                  {.name = "Command2", .clicked = frmDiagnose_Command2_Click}})
{
    key_ = bind(new QLabel, "Label1");
    QFont large = key_->font();
    large.setPointSizeF(2 * large.pointSizeF());
    large.setBold(true);
    key_->setFont(large);
    meaning_ = bind(new QLabel, "Label2");
    meaning_->setWordWrap(true);
    meaning_->setAlignment(Qt::AlignTop);
    meaning_->setFixedHeight(2 * meaning_->fontMetrics().lineSpacing()); // so that nothing below it moves

    report_ = bind(new QPlainTextEdit, "Text1");
    report_->setAccessibleName("Report");
    report_->setReadOnly(true);
    report_->setFocusPolicy(Qt::NoFocus);
    report_->setLineWrapMode(QPlainTextEdit::NoWrap);
    report_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));

    copied_ = new QLabel;
    copy_ = button("Command1", "Copy");
    connect(copy_, &QPushButton::clicked, this, [this] {
        QGuiApplication::clipboard()->setText(report_->toPlainText());
        copied_->setText("Copied to the clipboard.");
    });
    close_ = button("Command2", "Close");
    auto* const foot = new QHBoxLayout;
    foot->addWidget(copied_, 1);
    foot->addWidget(copy_);
    foot->addWidget(close_);

    auto* const whole = new QVBoxLayout(this);
    whole->addWidget(
        new QLabel("Press keys: they show here what they send and what they would do, and count nothing.\n"
                   "Esc twice in a row hands the keyboard to the buttons."));
    whole->addWidget(key_);
    whole->addWidget(meaning_);
    whole->addWidget(report_, 1);
    whole->addLayout(foot);
    setFocusPolicy(Qt::StrongFocus);
    setFirst(this);
    resize(720, 600);
}

void DiagnoseWindow::presentLastKey()
{
    key_->setText("No key yet");
    meaning_->clear();
    for (const SeenKey& key : frmDiagnose.keys) { // the last one that went down
        if (!key.isDown)
            continue;
        key_->setText(key.code == 0
                          ? "No code"
                          : QString("%1   %2").arg(key.code).arg(QString::fromStdString(keyName(key.code))));
        meaning_->setText(key.code == 0 ? "TallyStrata has no code for this key and does not take it."
                                        : QString::fromStdString(
                                              "Stands in: " + rowsOfKey(sheet, key.code) +
                                              ".  While counting: " + effectOfKey(sheet, key.code) + "."));
    }
}

void DiagnoseWindow::presentMore()
{
    for (QPushButton* const one : {copy_, close_}) {
        one->setFocusPolicy(frmDiagnose.takesKeys ? Qt::NoFocus : Qt::StrongFocus);
        one->setAutoDefault(!frmDiagnose.takesKeys); // for Enter
    }
    if (!frmDiagnose.takesKeys && !copy_->hasFocus() && !close_->hasFocus())
        close_->setFocus(Qt::TabFocusReason); // shows its frame
    if (isVisible() && frmDiagnose.keys == shownKeys_)
        return;
    shownKeys_ = frmDiagnose.keys;
    copied_->clear();
    presentLastKey();
    report_->setPlainText(QString::fromStdString(diagnoseReport(sheet, frmDiagnose.keys, systemFacts())));
}
