#include "window/summary_window.h"

#include "sheet/summary.h"

#include <QPlainTextEdit>
#include <QVBoxLayout>

SummaryWindow::SummaryWindow(MainWindow& main)
    : FormWindow(main, "frmSummary", "Summary",
                 {{.name = "Text1", .record = &frmSummary.Text1, .first = 0, .last = 0}})
{
    auto* const ranking = bind(new QPlainTextEdit, "Text1", 0);
    ranking->setAccessibleName("Taxa ranked by their counts");
    ranking->setReadOnly(true);
    ranking->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    ranking->setLineWrapMode(QPlainTextEdit::NoWrap);
    setFirst(ranking);
    (new QVBoxLayout(this))->addWidget(ranking);
    resize(460, 480);
}
