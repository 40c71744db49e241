#pragma once

#include "platform/drawing.h"

#include <QFont>
#include <QRectF>

class QPainter;

/// How lines come out on a device.
enum class LineWidth {
    onePixel, ///< as fine as a screen shows them
    hairline  ///< half a pixel of the design, for pages and vector files
};

/// The face of a text on a device of that resolution.
QFont fontOf(const Letters& letters, int dotsPerInch);

/// Paints a drawing so that its scale fills `target` (in the painter's own units, pixels of the design).
void paintDrawing(QPainter& painter, const Drawing& drawing, const Scale& scale, const QRectF& target,
                  LineWidth lines);
