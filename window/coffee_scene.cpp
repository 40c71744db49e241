// A cup of coffee at the window, on a quiet morning.

#include "window/coffee_room.h"
#include "window/rest_scenes.h"
#include "window/scene_brushes.h"

#include <QPainterPath>
#include <QRandomGenerator>
#include <cmath>
#include <numbers>

namespace {

constexpr QPointF cup(930, 560); // middle of the rim
constexpr double rimWide = 190;
constexpr double rimHigh = 52;
constexpr double cupDeep = 236;

/// The notebook of somebody who counts: two pages, with a grain and its notes in pencil.
void notebook(QPainter& painter)
{
    painter.save();
    painter.translate(382, 826);
    spot(painter, {16, 36}, 370, 92, QColor(46, 24, 10, 120));
    const auto page = [&](double side) {
        QPainterPath sheet(QPointF(0, -62));
        sheet.cubicTo(side * 70, -90, side * 190, -84, side * 236, -70);
        sheet.lineTo(side * 300, 76);
        sheet.cubicTo(side * 220, 58, side * 90, 52, 0, 84);
        sheet.closeSubpath();
        painter.fillPath(sheet.translated(0, 9), QColor(0xD3, 0xC2, 0xA6));
        painter.fillPath(sheet, across(side * 300, 0,
                                       {{0, QColor(0xFD, 0xF7, 0xEA)},
                                        {0.8, QColor(0xF8, 0xEE, 0xDC)},
                                        {1, QColor(0xD8, 0xC8, 0xAE)}}));
    };
    page(-1);
    page(1);
    // A saccate pollen grain on the left page, seen as the pages lie.
    const QColor pencil(0x5A, 0x50, 0x48, 205);
    painter.save();
    painter.translate(-138, -12);
    painter.scale(1, 0.56);
    painter.setBrush(QColor(214, 172, 104, 90));
    painter.setPen(QPen(pencil, 3));
    painter.drawEllipse(QPointF(-52, 22), 38, 34);
    painter.drawEllipse(QPointF(52, 22), 38, 34);
    painter.setBrush(QColor(226, 186, 120, 255));
    painter.drawEllipse(QPointF(0, 0), 56, 40);
    painter.setPen(Qt::NoPen);
    painter.setBrush(pencil);
    QRandomGenerator chance(9);
    for (int i = 0; i < 60; ++i) {
        const double turn = chance.generateDouble() * 2 * std::numbers::pi;
        const double away = std::sqrt(chance.generateDouble());
        const double side = i % 2 == 0 ? -1 : 1;
        painter.drawEllipse(QPointF(side * 56 + 30 * away * std::cos(turn), 26 + 26 * away * std::sin(turn)),
                            1.5, 1.5);
    }
    painter.restore();
    painter.setPen(QPen(pencil, 2, Qt::SolidLine, Qt::RoundCap));
    for (int row = 0; row < 5; ++row) { // tallies in fives on the right page
        const double y = -48 + 23 * row;
        for (int five = 0; five < 4 - (row + 1) / 2; ++five) {
            const double x = 58 + 46 * five + 7 * row;
            for (int stroke = 0; stroke < 4; ++stroke)
                painter.drawLine(QPointF(x + 7 * stroke, y), QPointF(x + 2 + 7 * stroke, y + 12));
            painter.drawLine(QPointF(x - 5, y + 10), QPointF(x + 28, y + 1));
        }
    }
    painter.drawLine(QPointF(-216, 40), QPointF(-84, 32));
    painter.drawLine(QPointF(-222, 53), QPointF(-128, 47));
    painter.setPen(Qt::NoPen);
    QPainterPath fold(QPointF(0, -62)); // shade in the middle
    fold.lineTo(10, -66);
    fold.lineTo(14, 80);
    fold.lineTo(0, 84);
    fold.closeSubpath();
    painter.fillPath(fold, QColor(120, 96, 70, 70));
    painter.restore();
}

void pencil(QPainter& painter)
{
    painter.save();
    painter.translate(536, 944);
    painter.rotate(-13);
    spot(painter, {6, 12}, 160, 11, QColor(40, 20, 8, 130));
    painter.fillRect(QRectF(-130, -8, 236, 15), downward(-8, 7,
                                                         {{0, QColor(0xE7, 0xB7, 0x4E)},
                                                          {0.45, QColor(0xD7, 0x9B, 0x30)},
                                                          {1, QColor(0xA8, 0x70, 0x1E)}}));
    painter.fillRect(QRectF(-152, -8, 22, 15),
                     downward(-8, 7, {{0, QColor(0xD8, 0xD8, 0xD2)}, {1, QColor(0x8F, 0x8F, 0x8A)}}));
    QPainterPath rubber;
    rubber.addRoundedRect(QRectF(-172, -8, 24, 15), 6, 6);
    painter.fillPath(rubber, QColor(0xCF, 0x7E, 0x72));
    QPainterPath tip(QPointF(106, -8));
    tip.lineTo(146, 0);
    tip.lineTo(106, 7);
    tip.closeSubpath();
    painter.fillPath(tip, QColor(0xEB, 0xCF, 0xA4));
    QPainterPath lead(QPointF(134, -2.4));
    lead.lineTo(147, 0);
    lead.lineTo(134, 2.2);
    lead.closeSubpath();
    painter.fillPath(lead, QColor(0x3A, 0x36, 0x34));
    painter.restore();
}

void saucer(QPainter& painter)
{
    const QPointF middle = cup + QPointF(0, cupDeep + 4);
    spot(painter, middle + QPointF(40, 34), 380, 86, QColor(40, 20, 8, 150));
    const auto plate = [&](double wide, double high, double drop, const QBrush& brush) {
        painter.setBrush(brush);
        painter.drawEllipse(middle + QPointF(0, drop), wide, high);
    };
    const double left = middle.x() - 310;
    const double right = middle.x() + 310;
    plate(308, 74, 14, across(left, right, {{0, QColor(0xC9, 0xBC, 0xA8)}, {1, QColor(0x8E, 0x7C, 0x68)}}));
    plate(
        308, 74, 4,
        across(
            left, right,
            {{0, QColor(0xFF, 0xFA, 0xF0)}, {0.5, QColor(0xEE, 0xE3, 0xD2)}, {1, QColor(0xBE, 0xAC, 0x95)}}));
    plate(276, 62, 5, across(left, right, {{0, QColor(0xE4, 0xD8, 0xC6)}, {1, QColor(0xD6, 0xC7, 0xB1)}}));
    plate(268, 58, 8, across(left, right, {{0, QColor(0xF9, 0xF1, 0xE4)}, {1, QColor(0xC9, 0xB8, 0xA1)}}));
    spot(painter, middle + QPointF(30, 6), 200, 44, QColor(70, 46, 28, 150));
}

QPainterPath body()
{
    QPainterPath side(cup - QPointF(rimWide, 0));
    side.cubicTo(cup + QPointF(-rimWide + 4, 130), cup + QPointF(-150, cupDeep - 20),
                 cup + QPointF(-92, cupDeep));
    side.quadTo(cup + QPointF(0, cupDeep + 30), cup + QPointF(92, cupDeep));
    side.cubicTo(cup + QPointF(150, cupDeep - 20), cup + QPointF(rimWide - 4, 130),
                 cup + QPointF(rimWide, 0));
    side.closeSubpath();
    return side;
}

void handle(QPainter& painter)
{
    QPainterPath ring(cup + QPointF(rimWide - 10, 46));
    ring.cubicTo(cup + QPointF(rimWide + 118, 16), cup + QPointF(rimWide + 104, 176),
                 cup + QPointF(rimWide - 46, 166));
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(0x9A, 0x86, 0x6E), 34, Qt::SolidLine, Qt::RoundCap));
    painter.drawPath(ring.translated(1, 3));
    painter.setPen(QPen(QColor(0xD6, 0xC6, 0xB0), 30, Qt::SolidLine, Qt::RoundCap));
    painter.drawPath(ring);
    painter.setPen(QPen(QColor(0xF6, 0xEC, 0xDC), 9, Qt::SolidLine, Qt::RoundCap));
    painter.drawPath(ring.translated(-3, -7));
    painter.setPen(Qt::NoPen);
}

/// A leaf of milk, as it is poured.
void leafOfMilk(QPainter& painter)
{
    painter.save();
    painter.translate(cup + QPointF(0, 6));
    painter.scale(1, rimHigh / rimWide);
    painter.rotate(-28);
    const QColor milk(0xF6, 0xE4, 0xC6);
    painter.setBrush(Qt::NoBrush);
    for (int leaf = 0; leaf < 6; ++leaf) {
        const double y = -84 + 27 * leaf;
        const double half = 46 + 13 * leaf - 2.4 * leaf * leaf;
        painter.setPen(QPen(milk, 15 + leaf, Qt::SolidLine, Qt::RoundCap));
        for (const int side : {-1, 1}) {
            QPainterPath vein(QPointF(0, y + 26));
            vein.quadTo(QPointF(side * half * 0.8, y + 24), QPointF(side * half, y - 16));
            painter.drawPath(vein);
        }
    }
    painter.setPen(QPen(milk, 9, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(0, -112), QPointF(0, 118));
    painter.setPen(Qt::NoPen);
    painter.restore();
}

void coffeeCup(QPainter& painter)
{
    handle(painter);
    painter.fillPath(body(), across(cup.x() - rimWide, cup.x() + rimWide,
                                    {{0, QColor(0xFF, 0xF9, 0xEE)},
                                     {0.22, QColor(0xFD, 0xF4, 0xE6)},
                                     {0.62, QColor(0xE2, 0xD3, 0xBE)},
                                     {0.9, QColor(0xB3, 0x9F, 0x86)},
                                     {1, QColor(0xC6, 0xB4, 0x9C)}}));
    painter.setClipPath(body());
    // Rings of glaze.
    painter.setBrush(Qt::NoBrush);
    for (const auto& [drop, thick] : {std::pair(64.0, 15.0), {88.0, 4.0}}) {
        painter.setPen(QPen(QColor(0x3F, 0x74, 0x7E, 215), thick));
        painter.drawArc(QRectF(cup.x() - rimWide, cup.y() + drop - rimHigh, 2 * rimWide, 2 * rimHigh),
                        180 * 16, 180 * 16);
    }
    painter.setPen(Qt::NoPen);
    spot(painter, cup + QPointF(150, 150), 150, 150, QColor(92, 64, 40, 70));
    painter.setClipping(false);

    const auto ring = [&](double wide, double high, double drop, const QBrush& brush) {
        painter.setBrush(brush);
        painter.drawEllipse(cup + QPointF(0, drop), wide, high);
    };
    ring(rimWide, rimHigh, 0,
         across(cup.x() - rimWide, cup.x() + rimWide,
                {{0, QColor(0xFF, 0xFC, 0xF4)}, {1, QColor(0xDD, 0xCC, 0xB6)}}));
    ring(rimWide - 11, rimHigh - 7, 2,
         across(cup.x() - rimWide, cup.x() + rimWide,
                {{0, QColor(0xB9, 0xA5, 0x8C)}, {1, QColor(0xF0, 0xE3, 0xD0)}}));
    QPainterPath inside;
    inside.addEllipse(cup + QPointF(0, 2), rimWide - 11, rimHigh - 7);
    painter.setClipPath(inside);
    ring(
        rimWide - 18, rimHigh - 9, 9,
        across(
            cup.x() - rimWide, cup.x() + rimWide,
            {{0, QColor(0x5E, 0x34, 0x1C)}, {0.5, QColor(0x86, 0x50, 0x2C)}, {1, QColor(0x6B, 0x3D, 0x22)}}));
    ring(
        rimWide - 26, rimHigh - 13, 10,
        across(
            cup.x() - rimWide, cup.x() + rimWide,
            {{0, QColor(0x8A, 0x55, 0x2E)}, {0.5, QColor(0xA8, 0x6D, 0x3E)}, {1, QColor(0x90, 0x5A, 0x33)}}));
    leafOfMilk(painter);
    painter.setClipping(false);
}

/// Wisps that widen and fade as they rise.
void steam(QPainter& painter)
{
    for (const auto& [aside, sway, high] :
         {std::tuple(-78.0, 46.0, 300.0), {4.0, -54.0, 380.0}, {84.0, 40.0, 280.0}}) {
        const QPointF foot = cup + QPointF(aside, -8);
        QPainterPath wisp(foot);
        wisp.cubicTo(foot + QPointF(sway, -high * 0.25), foot + QPointF(-sway, -high * 0.45),
                     foot + QPointF(sway * 0.4, -high * 0.66));
        wisp.cubicTo(foot + QPointF(sway * 1.5, -high * 0.82), foot + QPointF(-sway * 0.5, -high * 0.92),
                     foot + QPointF(sway * 0.5, -high));
        constexpr int puffs = 90;
        for (int puff = 0; puff < puffs; ++puff) {
            const double risen = puff / double(puffs);
            const double size = 15 + 26 * risen;
            const int alpha = static_cast<int>(34 * std::sin(std::numbers::pi * std::pow(risen, 0.7)));
            spot(painter, wisp.pointAtPercent(risen), size, 1.5 * size, QColor(255, 253, 248, alpha));
        }
    }
}

void spoon(QPainter& painter)
{
    painter.save();
    painter.translate(cup + QPointF(212, cupDeep + 46));
    painter.rotate(-24);
    spot(painter, {40, 12}, 150, 14, QColor(40, 22, 10, 110));
    const auto metal = downward(
        -16, 16,
        {{0, QColor(0xFB, 0xF8, 0xF2)}, {0.5, QColor(0xC4, 0xBF, 0xB8)}, {1, QColor(0x8A, 0x84, 0x7C)}});
    QPainterPath shape;
    shape.addEllipse(QPointF(-46, 0), 40, 16);
    QPainterPath stem(QPointF(-12, -5));
    stem.cubicTo(40, -3, 110, -4, 168, -8);
    stem.quadTo(182, 0, 168, 8);
    stem.cubicTo(110, 4, 40, 3, -12, 5);
    stem.closeSubpath();
    painter.fillPath(shape.united(stem), metal);
    painter.setBrush(QColor(120, 110, 100, 110));
    painter.drawEllipse(QPointF(-46, 1), 31, 11);
    painter.setBrush(QColor(255, 255, 255, 120));
    painter.drawEllipse(QPointF(-54, -3), 14, 4);
    painter.restore();
}

} // namespace

void paintCoffee(QPainter& painter)
{
    painter.setPen(Qt::NoPen);
    paintCoffeeRoom(painter);
    notebook(painter);
    pencil(painter);
    saucer(painter);
    coffeeCup(painter);
    spoon(painter);
    steam(painter);
}
