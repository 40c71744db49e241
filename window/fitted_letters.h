#pragma once

#include <QFontMetrics>

/// The letters, or smaller ones if the text needs more than `room` pixels.
inline QFont fittedLetters(QFont letters, const QString& text, int room)
{
    const int wanted = QFontMetrics(letters).horizontalAdvance(text);
    if (wanted > room)
        letters.setPointSizeF(letters.pointSizeF() * room / wanted);
    return letters;
}
