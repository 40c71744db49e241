#include "window/key_map.h"

#include "window/fitted_letters.h"
#include "window/legible_style.h"

#include <QApplication>
#include <QLineEdit>
#include <QPainter>

/// A long name of a key has smaller letters.
static void fitLetters(QLineEdit& box, bool bold)
{
    QFont letters = box.parentWidget()->font();
    letters.setBold(bold);
    letters = fittedLetters(letters, box.text(), box.width() - 8);
    if (letters != box.font())
        box.setFont(letters);
}

void showRed(QWidget& box, bool red)
{
    QPalette colours = box.palette();
    const QPalette around = box.parentWidget()->palette();
    const QColor plain = around.color(QPalette::Active, QPalette::Text);
    const QColor wanted =
        red ? legible(Qt::red, plain, {around.color(QPalette::Base), around.color(QPalette::Window)}) : plain;
    if (QFont letters = box.font(); letters.bold() != red) {
        letters.setBold(red);
        box.setFont(letters);
    }
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
        colours.setColor(group, QPalette::Text, wanted); // a disabled box is read too
    if (colours != box.palette())
        box.setPalette(colours);
}

KeyMap::KeyMap()
{
    across_ = (fontMetrics().horizontalAdvance("[Delete]") + 12) / double(keyBoxWidth);
    down_ = (fontMetrics().height() + 9) / double(keyBoxHeight);
    setFixedSize(static_cast<int>(keyMapWidth * across_), static_cast<int>(keyMapHeight * down_));
    connect(qApp, &QApplication::focusChanged, this, [this] { update(); }); // the outlines tell who has it
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
    const auto x = [this](int twips) { return qRound(twips * across_); };
    const auto y = [this](int twips) { return qRound(twips * down_); };
    for (const Entry& entry : entries_) {
        const QRect place(x(entry.record->left), y(entry.record->top), x(keyBoxWidth), y(keyBoxHeight));
        if (place != entry.box->geometry())
            entry.box->setGeometry(place);
        fitLetters(*entry.box, entry.record->red);
    }
    update();
}

/// The outlines of the keys; that of the one with the focus is strong, since its box has no caret. Boxes that
/// a commit has found equal have a dashed one: red alone is not enough for every eye.
void KeyMap::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    for (const Entry& entry : entries_) {
        const bool visited = entry.box->hasFocus();
        painter.setPen(visited             ? QPen(palette().color(QPalette::Highlight), 3)
                       : entry.record->red ? QPen(entry.box->palette().color(QPalette::Text), 2, Qt::DashLine)
                                           : QPen(palette().color(QPalette::Mid), 1));
        painter.drawRoundedRect(QRectF(entry.box->geometry()).adjusted(-0.5, -0.5, 0.5, 0.5), 3, 3);
    }
}
