#pragma once

#include <QPainter>

/// What the drawings of the rest pictures are painted with.

inline QLinearGradient downward(double top, double bottom, const QGradientStops& stops)
{
    QLinearGradient gradient(0, top, 0, bottom);
    gradient.setStops(stops);
    return gradient;
}

inline QLinearGradient across(double left, double right, const QGradientStops& stops)
{
    QLinearGradient gradient(left, 0, right, 0);
    gradient.setStops(stops);
    return gradient;
}

/// A soft oval of light or shade.
inline void spot(QPainter& painter, QPointF centre, double wide, double high, QColor colour)
{
    QRadialGradient fading(QPointF(0, 0), 1);
    const int alpha = colour.alpha();
    for (const auto& [place, share] : {std::pair(0.0, 1.0), {0.55, 0.45}, {1.0, 0.0}}) {
        colour.setAlpha(static_cast<int>(alpha * share));
        fading.setColorAt(place, colour);
    }
    painter.save();
    painter.translate(centre);
    painter.scale(wide, high);
    painter.fillRect(QRectF(-1, -1, 2, 2), fading);
    painter.restore();
}
