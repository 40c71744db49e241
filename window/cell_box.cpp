#include "window/cell_box.h"

#include "platform/qt/text.h"
#include "sheet/short_name.h"

#include <QFontMetrics>
#include <QPainter>

constexpr int margin = 3; // pixels left and right

const CellBox::Fitted& CellBox::fitted() const
{
    const int room = width() - 2 * margin;
    const bool fromEnd = cursorPosition() > 0;
    if (fitted_.of == text() && fitted_.letters == font() && fitted_.room == room &&
        fitted_.fromEnd == fromEnd)
        return fitted_;
    fitted_ = {text(), font(), room, fromEnd, text(), font()};
    if (3 * QFontMetrics(font()).horizontalAdvance(text()) <= 2 * room)
        return fitted_; // bold it has room, too
    QFont widest = font();
    widest.setBold(true); // a name looks the same when its first count makes it bold
    const auto fits = [&widest, room](const QString& name) {
        return QFontMetrics(widest).horizontalAdvance(name) <= room;
    };
    for (const int stretch : {int{QFont::AnyStretch}, 92, 85}) {
        widest.setStretch(stretch);
        fitted_.narrowed.setStretch(stretch);
        if (fits(fitted_.text))
            return fitted_;
    }
    if (!fromEnd) {
        const std::string cut =
            shortName(heldText(text()), [&fits](const std::string& name) { return fits(shownText(name)); });
        fitted_.text = shownText(cut);
    }
    if (!fits(fitted_.text))
        fitted_.text =
            QFontMetrics(widest).elidedText(text(), fromEnd ? Qt::ElideLeft : Qt::ElideMiddle, room);
    return fitted_;
}

void CellBox::paintEvent(QPaintEvent* event)
{
    if (!isReadOnly()) {
        QLineEdit::paintEvent(event);
        return;
    }
    const Fitted& shown = fitted();
    QPainter painter(this);
    painter.fillRect(rect(), palette().brush(QPalette::Base));
    painter.setFont(shown.narrowed);
    painter.setPen(palette().color(QPalette::Text));
    painter.drawText(rect().adjusted(margin, 0, -margin, 0),
                     static_cast<int>(alignment()) | Qt::TextSingleLine, shown.text);
}
