#include "window/total_frame.h"

#include "window/legible_style.h"

#include <QLayout>
#include <QPainter>

TotalFrame::TotalFrame(QLayout* inside)
{
    inside->setContentsMargins(5, 3, 4, 3);
    setLayout(inside);
}

void TotalFrame::setWatched(bool watched)
{
    if (watched == watched_)
        return;
    watched_ = watched;
    update();
}

void TotalFrame::paintEvent(QPaintEvent*)
{
    const QColor ground = palette().color(QPalette::Window);
    const QColor text = palette().color(QPalette::WindowText);
    const QColor chosen = legible(palette().color(QPalette::Active, QPalette::Highlight), text, {ground});
    const double line = watched_ ? 2 : 1;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(watched_ ? chosen : mixed(ground, text, 0.3), line));
    painter.setBrush(watched_ ? mixed(ground, chosen, 0.1) : Qt::transparent);
    painter.drawRoundedRect(QRectF(rect()).adjusted(line / 2, line / 2, -line / 2, -line / 2), 4, 4);
}
