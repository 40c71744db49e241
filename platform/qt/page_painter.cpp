#include "platform/qt/page_painter.h"

#include "platform/page_svg.h"

#include <QFont>
#include <QFontMetricsF>
#include <QHash>
#include <QPaintDevice>
#include <QPainter>
#include <array>
#include <vector>

namespace {

// Widths of letters are true from here on; smaller ones are fitted to a grid of pixels.
constexpr int measured = 100;

/// Letters that are not kept as pixels are drawn as areas, whose corners depend on which letters of a window
/// were drawn before; kept ones are the same in each run. By default only those up to 64 pixels are kept.
const bool largeLettersAreKept = qputenv("QT_MAX_CACHED_GLYPH_SIZE", "400");

QFont pageFont(bool italic)
{
    QFont font;
    QStringList families;
    for (const char* const family : pageLetters)
        families += family;
    font.setFamilies(families);
    font.setStyleHint(QFont::SansSerif);
    font.setPixelSize(measured);
    font.setItalic(italic);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

QColor shown(Colour colour)
{
    return {colour.red, colour.green, colour.blue};
}

class PagePainter {
public:
    PagePainter(QPainter& painter, const Page& page) : painter_(painter), page_(page) {}

    void paint()
    {
        painter_.fillRect(QRectF(0, 0, page_.width, page_.height), Qt::white);
        std::size_t mark = 0;
        for (const PageGroup& group : page_.groups) {
            for (; mark < group.first; ++mark)
                paintMark(page_.marks[mark]);
            if (group.clip) {
                painter_.save();
                painter_.setClipRect(QRectF(QPointF(group.clip->left, group.clip->top),
                                            QPointF(group.clip->right, group.clip->bottom)));
            }
            for (; mark < group.end; ++mark)
                paintMark(page_.marks[mark]);
            if (group.clip)
                painter_.restore();
        }
        for (; mark < page_.marks.size(); ++mark)
            paintMark(page_.marks[mark]);
    }

private:
    void setPen(const Stroke& stroke)
    {
        if (stroke.points <= 0) {
            painter_.setPen(Qt::NoPen);
            return;
        }
        const double width = stroke.points * millimetresPerPoint;
        QPen pen(shown(stroke.colour), width, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin);
        if (stroke.dash > 0) // counts in widths of the pen
            pen.setDashPattern({stroke.dash / width, stroke.space / width});
        painter_.setPen(pen);
    }

    void paintMark(const PageMark& mark)
    {
        const PagePoint* const at = page_.points.data() + mark.firstPoint;
        if (mark.kind == PageMark::Kind::text) {
            paintText(page_.texts[mark.text], *at);
            return;
        }
        setPen(mark.stroke);
        painter_.setBrush(mark.fill ? QBrush(shown(*mark.fill)) : QBrush(Qt::NoBrush));
        if (mark.kind == PageMark::Kind::circle) {
            painter_.drawEllipse(QPointF(at->x, at->y), mark.radius, mark.radius);
            return;
        }
        points_.clear();
        for (std::uint32_t i = 0; i < mark.points; ++i)
            points_.emplace_back(at[i].x, at[i].y);
        const int count = static_cast<int>(points_.size());
        if (mark.kind == PageMark::Kind::line)
            painter_.drawLines(points_.data(), count / 2);
        else if (mark.kind == PageMark::Kind::curve)
            painter_.drawPolyline(points_.data(), count);
        else
            painter_.drawPolygon(points_.data(), count);
    }

    void paintText(const PageText& text, PagePoint at)
    {
        painter_.save();
        painter_.translate(at.x, at.y);
        painter_.rotate(-text.angle);
        const double scale = text.points * millimetresPerPoint / measured;
        painter_.scale(scale, scale);
        painter_.setPen(shown(text.colour));
        const double width = text.width / scale;
        double x = text.anchor == Anchor::start ? 0 : text.anchor == Anchor::middle ? -width / 2 : -width;
        for (const TextRun& run : text.runs) {
            painter_.setFont(fonts_[run.italic]);
            painter_.drawText(QPointF(x, 0), QString::fromStdString(run.text));
            x += pageLetterWidth(run.text, run.italic) * measured;
        }
        painter_.restore();
    }

    QPainter& painter_;
    const Page& page_;
    const std::array<QFont, 2> fonts_ = {pageFont(false), pageFont(true)};
    std::vector<QPointF> points_;
};

} // namespace

void paintPage(QPainter& painter, const Page& page)
{
    PagePainter(painter, page).paint();
}

double pageLetterWidth(std::string_view text, bool italic)
{
    // A page is planned anew with each change, and most of its texts are the same.
    static std::array<QHash<QByteArray, double>, 2> known;
    auto& widths = known[italic];
    const QByteArray key(text.data(), static_cast<qsizetype>(text.size()));
    if (const auto found = widths.constFind(key); found != widths.constEnd())
        return *found;
    constexpr qsizetype most = 20000;
    if (widths.size() > most)
        widths.clear();
    const double width = QFontMetricsF(pageFont(italic)).horizontalAdvance(QString::fromUtf8(key)) / measured;
    widths.insert(key, width);
    return width;
}
