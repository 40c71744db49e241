#include "platform/qt/drawing_painter.h"

#include "platform/qt/text.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <cmath>

namespace {

QColor shownColour(Colour colour)
{
    return {colour.red, colour.green, colour.blue};
}

class DrawingPainter {
public:
    DrawingPainter(QPainter& painter, const Drawing& drawing, const Scale& scale, const QRectF& target,
                   LineWidth lines)
        : painter_(painter), drawing_(drawing), scale_(scale), target_(target), lines_(lines),
          perX_(target.width() / scale.width), perY_(target.height() / scale.height)
    {
    }

    void paint()
    {
        const auto& marks = drawing_.marks;
        for (auto mark = marks.begin(); mark != marks.end();) {
            if (mark->kind == Mark::Kind::line) {
                mark = paintLines(mark);
                continue;
            }
            if (mark->kind == Mark::Kind::box)
                paintBox(*mark);
            else if (mark->kind == Mark::Kind::circle)
                paintCircle(*mark);
            else
                paintText(*mark);
            ++mark;
        }
    }

private:
    qreal x(float user) const { return target_.left() + (user - scale_.left) * perX_; }
    qreal y(float user) const { return target_.top() + (user - scale_.top) * perY_; }

    void setPen(Colour colour)
    {
        QPen pen(shownColour(colour), lines_ == LineWidth::onePixel ? 1 : 0.5);
        pen.setCosmetic(lines_ == LineWidth::onePixel);
        pen.setCapStyle(Qt::FlatCap);
        painter_.setPen(pen);
    }

    /// All lines of one colour that follow on one another go out at once.
    std::vector<Mark>::const_iterator paintLines(std::vector<Mark>::const_iterator mark)
    {
        const Colour pen = mark->pen;
        segments_.clear();
        for (; mark != drawing_.marks.end() && mark->kind == Mark::Kind::line && mark->pen == pen; ++mark) {
            const QLineF line(x(mark->x1), y(mark->y1), x(mark->x2), y(mark->y2));
            // A share of 0 must not leave a dot.
            if (line.p1() != line.p2())
                segments_.push_back(line);
        }
        setPen(pen);
        painter_.drawLines(segments_.data(), static_cast<int>(segments_.size()));
        return mark;
    }

    void paintBox(const Mark& mark)
    {
        painter_.fillRect(
            QRectF(QPointF(x(mark.x1), y(mark.y1)), QPointF(x(mark.x2), y(mark.y2))).normalized(),
            shownColour(mark.fill));
    }

    void paintCircle(const Mark& mark)
    {
        painter_.save();
        painter_.setRenderHint(QPainter::Antialiasing);
        setPen(mark.pen);
        painter_.setBrush(shownColour(mark.fill));
        const qreal radius = mark.x2 * std::abs(perX_);
        painter_.drawEllipse(QPointF(x(mark.x1), y(mark.y1)), radius, radius);
        painter_.restore();
    }

    void paintText(const Mark& mark)
    {
        const Letters& letters = drawing_.texts[mark.letters];
        const QFont font = fontOf(letters, painter_.device()->logicalDpiY());
        painter_.save();
        painter_.setFont(font);
        painter_.setPen(shownColour(mark.pen));
        painter_.translate(std::max(x(mark.x1), target_.left()), y(mark.y1)); // no digit is cut
        if (letters.upwards)
            painter_.rotate(-90);
        const QFontMetricsF metrics(font, painter_.device());
        QString text = shownText(letters.text);
        if (letters.longest > 0)
            text = metrics.elidedText(text, Qt::ElideRight, letters.longest);
        painter_.drawText(QPointF(0, metrics.ascent()), text);
        painter_.restore();
    }

    QPainter& painter_;
    const Drawing& drawing_;
    const Scale scale_;
    const QRectF target_;
    const LineWidth lines_;
    const qreal perX_;
    const qreal perY_;
    std::vector<QLineF> segments_;
};

} // namespace

QFont fontOf(const Letters& letters, int dotsPerInch)
{
    QFont font;
    font.setFamilies({"Arial", "Liberation Sans", "Helvetica", "DejaVu Sans"});
    font.setStyleHint(QFont::SansSerif);
    font.setItalic(letters.italic);
    font.setPointSizeF(qreal{letters.height} * 72 / dotsPerInch);
    return font;
}

void paintDrawing(QPainter& painter, const Drawing& drawing, const Scale& scale, const QRectF& target,
                  LineWidth lines)
{
    DrawingPainter(painter, drawing, scale, target, lines).paint();
}
