#include "window/summary_window.h"

#include "platform/qt/text.h"
#include "sheet/summary.h"

#include <QPlainTextEdit>
#include <QVBoxLayout>

SummaryWindow::SummaryWindow(MainWindow& main)
    : FormWindow(main, "frmSummary", "Summary", frmSummary.visible, frmSummary_Unload)
{
    ranking_ = new QPlainTextEdit;
    ranking_->setObjectName("Text1(0)");
    ranking_->setAccessibleName("Taxa ranked by their counts");
    ranking_->setReadOnly(true);
    ranking_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    ranking_->setLineWrapMode(QPlainTextEdit::NoWrap);
    setFirst(ranking_);
    (new QVBoxLayout(this))->addWidget(ranking_);
    resize(460, 480);
}

void SummaryWindow::presentMore()
{
    const QString text = shownText(frmSummary.Text1.text).remove('\r');
    if (ranking_->toPlainText() != text)
        ranking_->setPlainText(text);
}
