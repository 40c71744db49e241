#include "platform/qt/key_map.h"

#include "platform/qt/text.h"

#include <QLineEdit>
#include <QPainter>

/// A long name of a key has smaller letters.
static void fitLetters(QLineEdit& box)
{
    QFont letters = box.parentWidget()->font();
    const int wanted = QFontMetrics(letters).horizontalAdvance(box.text());
    const int room = box.width() - 8;
    if (wanted > room)
        letters.setPointSizeF(letters.pointSizeF() * room / wanted);
    if (letters != box.font())
        box.setFont(letters);
}

void showRed(QWidget& box, bool red)
{
    QPalette colours = box.palette();
    const QColor plain = box.parentWidget()->palette().color(QPalette::Active, QPalette::Text);
    const QColor wanted = red ? QColor(Qt::red) : plain;
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
        colours.setColor(group, QPalette::Text, wanted); // a disabled box is read too
    if (colours != box.palette())
        box.setPalette(colours);
}

KeyMap::KeyMap()
{
    pixelsPerTwip_ = (fontMetrics().horizontalAdvance("[Delete]") + 12) / double(keyBoxWidth);
    setFixedSize(static_cast<int>(keyMapWidth * pixelsPerTwip_),
                 static_cast<int>(keyMapHeight * pixelsPerTwip_));
}

void KeyMap::add(QLineEdit* box, const KeyBox& record)
{
    box->setParent(this);
    box->setFrame(false);
    box->setAlignment(Qt::AlignCenter);
    entries_.append({box, &record});
}

void KeyMap::present()
{
    const auto pixels = [this](int twips) { return qRound(twips * pixelsPerTwip_); };
    for (const Entry& entry : entries_) {
        const QRect place(pixels(entry.record->left), pixels(entry.record->top), pixels(keyBoxWidth),
                          pixels(keyBoxHeight));
        if (place != entry.box->geometry())
            entry.box->setGeometry(place);
        if (const QString text = shownText(entry.record->text); text != entry.box->text()) {
            entry.box->setText(text);
            fitLetters(*entry.box);
        }
        showRed(*entry.box, entry.record->red);
    }
    update();
}

/// The outlines of the keys; that of the one in visit is strong, since its box has no caret.
void KeyMap::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    for (const Entry& entry : entries_) {
        const bool visited = entry.box->hasFocus();
        painter.setPen(visited ? QPen(palette().color(QPalette::Highlight), 3)
                               : QPen(palette().color(QPalette::Mid), 1));
        painter.drawRoundedRect(QRectF(entry.box->geometry()).adjusted(-0.5, -0.5, 0.5, 0.5), 3, 3);
    }
}
