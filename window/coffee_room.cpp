#include "window/coffee_room.h"

#include "window/scene_brushes.h"

#include <QPainterPath>
#include <QRandomGenerator>
#include <cmath>

namespace {

constexpr double width = 1600;
constexpr double height = 1000;
constexpr double table = 640; // its far edge

void hills(QPainter& painter, double base, double rise, double phase, QColor top, QColor foot)
{
    QPolygonF ridge;
    for (int x = 0; x <= width; x += 16) {
        const double t = x / width;
        ridge << QPointF(x, base - rise * (0.55 * std::sin(5.1 * t + phase) +
                                           0.3 * std::sin(11.3 * t + 2.1 * phase) +
                                           0.12 * std::sin(27 * t + phase)));
    }
    ridge << QPointF(width, table) << QPointF(0, table);
    QPainterPath land;
    land.addPolygon(ridge);
    painter.fillPath(land, downward(base - rise, base + 130, {{0, top}, {1, foot}}));
}

void fir(QPainter& painter, QPointF foot, double high, QColor colour)
{
    QPainterPath tree(foot - QPointF(0, high));
    constexpr int tiers = 5;
    for (const int side : {1, -1}) {
        tree.moveTo(foot - QPointF(0, high));
        for (int tier = 1; tier <= tiers; ++tier) {
            const double y = foot.y() - high + high * tier / tiers;
            const double half = high * 0.20 * tier / tiers;
            tree.lineTo(foot.x() + side * half, y);
            tree.lineTo(foot.x() + side * half * 0.55, y - high * 0.03);
        }
        tree.lineTo(foot);
        tree.closeSubpath();
    }
    tree.setFillRule(Qt::WindingFill);
    painter.fillPath(tree, colour);
}

void morning(QPainter& painter)
{
    painter.fillRect(QRectF(0, 0, width, table), downward(0, table,
                                                          {{0, QColor(0xA9, 0xC3, 0xCC)},
                                                           {0.45, QColor(0xDD, 0xDD, 0xD2)},
                                                           {0.75, QColor(0xF7, 0xE2, 0xC2)},
                                                           {1, QColor(0xF6, 0xD9, 0xB4)}}));
    spot(painter, {430, 330}, 620, 430, QColor(255, 240, 206, 190));
    spot(painter, {430, 330}, 120, 120, QColor(255, 250, 232, 230));
    hills(painter, 400, 70, 0.6, QColor(0xB3, 0xC0, 0xC2), QColor(0xE8, 0xDC, 0xC6));
    hills(painter, 470, 64, 2.4, QColor(0x8D, 0xA5, 0xA8), QColor(0xD6, 0xD2, 0xC0));
    spot(painter, {800, 520}, 1100, 60, QColor(255, 246, 230, 150));
    hills(painter, 548, 44, 4.4, QColor(0x62, 0x82, 0x80), QColor(0xA9, 0xB5, 0xA4));
    QRandomGenerator chance(21);
    for (int i = 0; i < 46; ++i) {
        const double x = chance.generateDouble() * width;
        const double away = chance.generateDouble();
        fir(painter, {x, 590 + 44 * away}, 40 + 62 * away,
            QColor::fromHsl(168, 40, static_cast<int>(112 - 40 * away)));
    }
    spot(painter, {700, 626}, 1300, 46, QColor(255, 246, 230, 215));
}

/// The frame before the morning: two posts, a rail, a sill.
void window(QPainter& painter)
{
    const QColor lit(0xF2, 0xE6, 0xD4);
    const QColor shade(0xC9, 0xB5, 0x9B);
    const auto post = [&](double left, double wide) {
        painter.fillRect(QRectF(left, 0, wide, table),
                         across(left, left + wide, {{0, lit}, {0.7, lit}, {1, shade}}));
        painter.fillRect(QRectF(left + wide, 0, 7, table), QColor(90, 70, 50, 34));
    };
    post(-10, 58);
    post(690, 30);
    post(1530, 80);
    painter.fillRect(QRectF(0, 150, width, 20), downward(150, 170, {{0, lit}, {0.6, lit}, {1, shade}}));
    painter.fillRect(QRectF(0, 170, width, 5), QColor(90, 70, 50, 34));
    post(690, 30);
    painter.fillRect(QRectF(0, table - 26, width, 30),
                     downward(table - 26, table + 4, {{0, lit}, {1, shade}}));
}

void tableTop(QPainter& painter)
{
    painter.fillRect(QRectF(0, table, width, height - table), downward(table, height,
                                                                       {{0, QColor(0xB9, 0x86, 0x5A)},
                                                                        {0.25, QColor(0xA2, 0x6E, 0x45)},
                                                                        {1, QColor(0x74, 0x49, 0x2C)}}));
    QRandomGenerator chance(5);
    painter.setBrush(Qt::NoBrush);
    for (int i = 0; i < 130; ++i) { // the grain, wider towards the eye
        const double near = chance.generateDouble();
        const double y = table + 4 + near * near * (height - table);
        const double bend = (chance.generateDouble() - 0.5) * 26 * near;
        const double from = -200 + chance.generateDouble() * 1500;
        const double length = 300 + chance.generateDouble() * 900;
        QPainterPath line(QPointF(from, y));
        line.cubicTo(from + length / 3, y + bend, from + 2 * length / 3, y - bend, from + length,
                     y + bend / 3);
        painter.setPen(QPen(i % 3 == 0 ? QColor(238, 190, 140, 40) : QColor(66, 36, 16, 46), 0.8 + 2.4 * near,
                            Qt::SolidLine, Qt::RoundCap));
        painter.drawPath(line);
    }
    painter.setPen(Qt::NoPen);
    for (const double seam : {724.0, 862.0}) {
        painter.fillRect(QRectF(0, seam, width, 3), QColor(52, 28, 12, 110));
        painter.fillRect(QRectF(0, seam + 3, width, 1.6), QColor(244, 200, 152, 60));
    }
    spot(painter, {430, 700}, 760, 150, QColor(255, 226, 178, 110)); // the morning lies on it
    painter.fillRect(QRectF(0, table, width, 16),
                     downward(table, table + 16, {{0, QColor(50, 28, 14, 90)}, {1, QColor(50, 28, 14, 0)}}));
}

/// A fern in a pot on the sill.
void plant(QPainter& painter)
{
    painter.save();
    painter.translate(1372, table - 6);
    spot(painter, {24, 12}, 130, 18, QColor(50, 30, 14, 130));
    painter.setBrush(Qt::NoBrush);
    for (int frond = 0; frond < 11; ++frond) {
        const double lean = (frond - 5) / 5.0;
        const QPointF tip(lean * 190, -330 + 190 * lean * lean + (frond % 2 == 0 ? 0 : 34));
        QPainterPath stalk(QPointF(lean * 16, -112));
        stalk.quadTo(QPointF(lean * 60, tip.y() - 20), tip);
        const QColor leaf = QColor::fromHsl(128 + 3 * frond, 70, 78 + (frond * 37) % 34);
        painter.setPen(QPen(leaf.darker(115), 3.4, Qt::SolidLine, Qt::RoundCap));
        painter.drawPath(stalk);
        for (int pair = 3; pair < 20; ++pair) {
            const double along = pair / 20.0;
            const QPointF place = stalk.pointAtPercent(along);
            const double angle = stalk.angleAtPercent(along);
            const double size = 34 * std::sin(3.0 * (0.10 + 0.86 * along)) + 6;
            for (const int side : {-1, 1}) {
                painter.save();
                painter.translate(place);
                painter.rotate(-angle + side * 58);
                QPainterPath blade(QPointF(0, 0));
                blade.quadTo(QPointF(size * 0.5, -size * 0.17), QPointF(size, 0));
                blade.quadTo(QPointF(size * 0.5, size * 0.17), QPointF(0, 0));
                painter.fillPath(blade, leaf);
                painter.restore();
            }
        }
    }
    painter.setPen(Qt::NoPen);
    QPainterPath pot(QPointF(-84, -118));
    pot.lineTo(84, -118);
    pot.lineTo(62, 6);
    pot.quadTo(0, 18, -62, 6);
    pot.closeSubpath();
    painter.fillPath(pot, across(-84, 84,
                                 {{0, QColor(0xD9, 0x8E, 0x6A)},
                                  {0.5, QColor(0xC2, 0x71, 0x4E)},
                                  {1, QColor(0x8E, 0x4C, 0x34)}}));
    QPainterPath rim;
    rim.addRoundedRect(QRectF(-92, -134, 184, 30), 7, 7);
    painter.fillPath(rim, across(-92, 92,
                                 {{0, QColor(0xE3, 0x9C, 0x78)},
                                  {0.5, QColor(0xCE, 0x7E, 0x5A)},
                                  {1, QColor(0x9A, 0x56, 0x3C)}}));
    painter.fillRect(QRectF(-84, -104, 168, 6), QColor(70, 34, 20, 60));
    painter.restore();
}

} // namespace

void paintCoffeeRoom(QPainter& painter)
{
    morning(painter);
    window(painter);
    tableTop(painter);
    plant(painter);
}
