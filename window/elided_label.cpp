#include "window/elided_label.h"

#include <QHelpEvent>
#include <QStylePainter>
#include <QToolTip>

ElidedLabel::ElidedLabel()
{
    setTextFormat(Qt::PlainText);
}

QSize ElidedLabel::minimumSizeHint() const
{
    constexpr int leastLetters = 4;
    return {fontMetrics().averageCharWidth() * leastLetters, QLabel::minimumSizeHint().height()};
}

QString ElidedLabel::cut() const
{
    return fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
}

bool ElidedLabel::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QLabel::event(event);
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), cut() == text() ? toolTip() : text(),
                       this);
    return true;
}

void ElidedLabel::paintEvent(QPaintEvent*)
{
    QStylePainter(this).drawItemText(contentsRect(), static_cast<int>(alignment()), palette(), isEnabled(),
                                     cut(), foregroundRole());
}
