// A calm evening at the sea.

#include "window/rest_scenes.h"
#include "window/scene_brushes.h"

#include <QPainterPath>
#include <QRandomGenerator>
#include <cmath>
#include <numbers>

namespace {

constexpr double width = 1600;
constexpr double height = 1000;
constexpr double horizon = 430;
constexpr QPointF sun(1060, 352);

/// A long cloud of soft ellipses, lit from below.
void cloud(QPainter& painter, QPointF centre, double length, QColor colour)
{
    QRandomGenerator chance(static_cast<quint32>(centre.x()));
    for (int i = 0; i < 9; ++i) {
        const double along = (i - 4) / 4.0;
        const QPointF place(centre.x() + along * length / 2, centre.y() + chance.bounded(10.0) - 5);
        const double wide = length * (0.34 - 0.16 * along * along);
        spot(painter, place, wide, wide * 0.10, colour);
    }
}

void sky(QPainter& painter)
{
    painter.fillRect(QRectF(0, 0, width, horizon + 2), downward(0, horizon,
                                                                {{0, QColor(0x5B, 0x8F, 0xB0)},
                                                                 {0.35, QColor(0x93, 0xB9, 0xC6)},
                                                                 {0.65, QColor(0xE4, 0xCF, 0xBB)},
                                                                 {0.88, QColor(0xF6, 0xC9, 0x9B)},
                                                                 {1, QColor(0xF8, 0xD6, 0xA8)}}));
    painter.setClipRect(QRectF(0, 0, width, horizon));
    spot(painter, sun, 620, 620, QColor(255, 226, 170, 150));
    cloud(painter, {330, 120}, 620, QColor(255, 246, 236, 90));
    cloud(painter, {1290, 170}, 540, QColor(255, 240, 224, 95));
    cloud(painter, {700, 250}, 700, QColor(255, 232, 208, 80));
    cloud(painter, {170, 310}, 420, QColor(255, 222, 192, 90));
    cloud(painter, {1430, 320}, 460, QColor(255, 220, 186, 100));
    spot(painter, sun, 170, 170, QColor(255, 244, 214, 220));
    painter.setBrush(QColor(0xFF, 0xF6, 0xDE));
    painter.drawEllipse(sun, 44, 44);
    painter.setClipping(false);
}

void headland(QPainter& painter, const QList<QPointF>& ridge, QColor top, QColor foot)
{
    QPainterPath land(QPointF(ridge.front().x(), horizon + 1));
    land.lineTo(ridge.front());
    for (int i = 1; i < ridge.size(); ++i) {
        const double half = (ridge[i].x() - ridge[i - 1].x()) / 2;
        land.cubicTo(ridge[i - 1] + QPointF(half, 0), ridge[i] - QPointF(half, 0), ridge[i]);
    }
    land.lineTo(ridge.back().x(), horizon + 1);
    painter.fillPath(land, downward(horizon - 110, horizon, {{0, top}, {1, foot}}));
}

void coast(QPainter& painter)
{
    headland(painter, {{0, 372}, {120, 340}, {240, 366}, {360, 384}, {470, 406}, {600, 431}},
             QColor(0x9C, 0xA5, 0xAB), QColor(0xD5, 0xBC, 0xA3));
    headland(painter, {{0, 330}, {70, 352}, {150, 380}, {230, 392}, {300, 412}, {380, 431}},
             QColor(0x5F, 0x78, 0x80), QColor(0x9E, 0x98, 0x8C));
}

/// Light that lies on the water in short strokes, denser towards its middle.
void glitter(QPainter& painter)
{
    QRandomGenerator chance(7);
    for (int i = 0; i < 620; ++i) {
        const double depth = chance.generateDouble();
        const double y = horizon + 3 + depth * depth * 250;
        const double spread = 36 + depth * 190;
        const double aside = chance.generateDouble() + chance.generateDouble() - 1;
        const double length = (5 + 46 * depth) * (0.4 + chance.generateDouble());
        const int alpha = static_cast<int>(165 * (1 - std::abs(aside)) * (1 - 0.45 * depth));
        painter.setBrush(QColor(255, 240, 205, alpha));
        painter.drawRoundedRect(QRectF(sun.x() + aside * spread - length / 2, y, length, 1 + 2.6 * depth), 2,
                                2);
    }
}

/// The edge of a wave that has run up the sand. `phase` shifts its bays.
QPainterPath shore(double y, double phase, double depth)
{
    QPolygonF line;
    for (int x = 0; x <= width; x += 20) {
        const double t = x / width;
        line << QPointF(x,
                        y + 26 * std::sin(7.2 * t + phase) + 10 * std::sin(17 * t + 2 * phase) + depth * t);
    }
    QPainterPath path;
    path.addPolygon(line);
    return path;
}

QPainterPath below(QPainterPath line)
{
    line.lineTo(width, height);
    line.lineTo(0, height);
    line.closeSubpath();
    return line;
}

void sea(QPainter& painter)
{
    painter.fillRect(QRectF(0, horizon, width, 330), downward(horizon, horizon + 330,
                                                              {{0, QColor(0xE0, 0xC6, 0xA4)},
                                                               {0.05, QColor(0x9F, 0xB7, 0xB3)},
                                                               {0.30, QColor(0x5B, 0x9A, 0xA6)},
                                                               {0.70, QColor(0x63, 0xAF, 0xB0)},
                                                               {1, QColor(0x9A, 0xCF, 0xC4)}}));
    QRandomGenerator chance(3);
    for (int i = 0; i < 230; ++i) { // the swell, wider towards the beach
        const double depth = chance.generateDouble();
        const double y = horizon + 8 + depth * 270;
        const double length = 40 + 260 * depth * chance.generateDouble();
        const bool crest = i % 3 == 0;
        painter.setBrush(crest ? QColor(255, 250, 240, 34) : QColor(20, 80, 100, 26));
        painter.drawEllipse(QPointF(chance.generateDouble() * width, y), length, 1 + 3.2 * depth);
    }
    glitter(painter);
}

void foam(QPainter& painter, const QPainterPath& edge, double thickness, int alpha)
{
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(255, 255, 250, alpha / 3), 3.4 * thickness, Qt::SolidLine, Qt::RoundCap));
    painter.drawPath(edge.translated(0, -1.6 * thickness));
    painter.setPen(QPen(QColor(255, 255, 250, alpha), thickness, Qt::SolidLine, Qt::RoundCap));
    painter.drawPath(edge);
    painter.setPen(Qt::NoPen);
    QRandomGenerator chance(static_cast<quint32>(thickness * 31));
    for (int i = 0; i < 260; ++i) { // bubbles behind the edge
        const QPointF place = edge.pointAtPercent(chance.generateDouble());
        const double behind = 4 + 34 * chance.generateDouble() * chance.generateDouble();
        const double size = 1 + 2.4 * chance.generateDouble();
        painter.setBrush(QColor(255, 255, 250, alpha * 2 / 5));
        painter.drawEllipse(place - QPointF(0, behind), 2.2 * size, size);
    }
}

void sand(QPainter& painter)
{
    painter.fillPath(below(shore(640, 0.4, 60)),
                     downward(620, 760, {{0, QColor(0xB7, 0xD6, 0xC6)}, {1, QColor(0xCF, 0xD3, 0xB4)}}));
    foam(painter, shore(640, 0.4, 60), 5, 150);
    painter.fillPath(below(shore(700, 1.5, 60)),
                     downward(690, 830, {{0, QColor(0xC3, 0xB3, 0x90)}, {1, QColor(0xD9, 0xBF, 0x94)}}));
    foam(painter, shore(700, 1.5, 60), 7, 235);
    // Where the last wave reached, the sand is dark and gives back the sky.
    painter.fillPath(below(shore(770, 1.1, 66)), downward(770, 1000,
                                                          {{0, QColor(0xE8, 0xCF, 0xA4)},
                                                           {0.5, QColor(0xEC, 0xD5, 0xAC)},
                                                           {1, QColor(0xE2, 0xC2, 0x92)}}));
    painter.setClipPath(below(shore(776, 1.1, 66)));
    QRandomGenerator chance(11);
    for (int i = 0; i < 2600; ++i) {
        const QPointF place(chance.generateDouble() * width, 760 + chance.generateDouble() * 240);
        const double size = 0.6 + 1.1 * chance.generateDouble();
        painter.setBrush(i % 2 == 0 ? QColor(150, 112, 66, 60) : QColor(255, 248, 228, 90));
        painter.drawEllipse(place, 1.6 * size, size);
    }
    for (int i = 0; i < 7; ++i) { // wind ripples
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(QColor(190, 150, 98, 32), 5));
        painter.drawPath(shore(840 + 26 * i, 2.2 + 0.5 * i, 30));
    }
    painter.setPen(Qt::NoPen);
    painter.setClipping(false);
}

void sailingBoat(QPainter& painter)
{
    painter.save();
    painter.translate(566, horizon + 12);
    painter.setBrush(QColor(70, 110, 122, 60));
    painter.drawEllipse(QPointF(2, 10), 44, 4);
    QPainterPath hull(QPointF(-34, 0));
    hull.lineTo(36, 0);
    hull.quadTo(28, 12, 18, 12);
    hull.lineTo(-24, 12);
    hull.quadTo(-30, 8, -34, 0);
    painter.fillPath(hull, QColor(0x4C, 0x5F, 0x6B));
    QPainterPath main(QPointF(2, -4));
    main.lineTo(2, -82);
    main.quadTo(34, -34, 34, -4);
    main.closeSubpath();
    painter.fillPath(main, QColor(0xFF, 0xF8, 0xE8));
    QPainterPath jib(QPointF(-3, -6));
    jib.lineTo(-3, -70);
    jib.quadTo(-24, -30, -30, -6);
    jib.closeSubpath();
    painter.fillPath(jib, QColor(0xF6, 0xE3, 0xC8));
    painter.restore();
}

void gulls(QPainter& painter)
{
    painter.setBrush(Qt::NoBrush);
    for (const auto& [place, wing] :
         {std::pair(QPointF(770, 148), 26.0), {QPointF(846, 116), 20.0}, {QPointF(716, 196), 15.0}}) {
        QPainterPath bird(place - QPointF(wing, wing * 0.10));
        bird.quadTo(place - QPointF(wing * 0.5, wing * 0.62), place);
        bird.quadTo(place + QPointF(wing * 0.5, -wing * 0.62), place + QPointF(wing, -wing * 0.10));
        painter.setPen(QPen(QColor(0x4A, 0x62, 0x70, 200), wing * 0.13, Qt::SolidLine, Qt::RoundCap));
        painter.drawPath(bird);
    }
    painter.setPen(Qt::NoPen);
}

void parasol(QPainter& painter)
{
    painter.save();
    painter.translate(330, 880);
    painter.setBrush(QColor(120, 84, 50, 62)); // its shadow, away from the sun
    painter.drawEllipse(QPointF(-96, 14), 210, 26);
    painter.rotate(-9);
    painter.setPen(QPen(QColor(0xF3, 0xEA, 0xDA), 9, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(0, 6), QPointF(0, -330));
    painter.setPen(Qt::NoPen);
    // Gores from rim to top; each hangs a little between its ribs.
    constexpr double rim[] = {-220, -168, -92, 0, 92, 168, 220};
    constexpr double sag = 17;
    const QPointF top(0, -372);
    for (int i = 0; i < 6; ++i) {
        const auto rib = [&](int n) { return QPointF(rim[n], -226 - 14 * std::cos(rim[n] / 220 * 1.57)); };
        QPainterPath gore(top);
        const auto bend = [&](int n) { return QPointF(rim[n] * 0.86, -352 + 10 * std::abs(rim[n]) / 220); };
        gore.quadTo(bend(i), rib(i));
        gore.quadTo((rib(i) + rib(i + 1)) / 2 - QPointF(0, sag), rib(i + 1));
        gore.quadTo(bend(i + 1), top);
        const bool red = i % 2 == 0;
        QLinearGradient side(-220, 0, 220, 0);
        side.setColorAt(0, red ? QColor(0xB9, 0x56, 0x4C) : QColor(0xE2, 0xD2, 0xBA));
        side.setColorAt(1, red ? QColor(0xE4, 0x80, 0x6A) : QColor(0xFF, 0xF6, 0xE4));
        painter.fillPath(gore, side);
    }
    painter.setBrush(QColor(0xF3, 0xEA, 0xDA));
    painter.drawEllipse(top + QPointF(0, -4), 7, 9);
    painter.restore();
}

void deckChair(QPainter& painter)
{
    painter.save();
    painter.translate(468, 902);
    painter.setBrush(QColor(120, 84, 50, 56));
    painter.drawEllipse(QPointF(-30, 10), 150, 15);
    const QColor wood(0x9A, 0x6A, 0x42);
    const auto bar = [&](QPointF from, QPointF to, double thick) {
        painter.setPen(QPen(wood, thick, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(from, to);
        painter.setPen(Qt::NoPen);
    };
    bar({-62, 4}, {62, -66}, 8);
    bar({70, 8}, {-18, -62}, 8);
    QPainterPath seat(QPointF(-92, -158));
    seat.cubicTo(-54, -60, -20, -34, 74, -72);
    seat.lineTo(88, -58);
    seat.cubicTo(-20, -10, -66, -36, -112, -146);
    seat.closeSubpath();
    painter.fillPath(seat,
                     downward(-158, -30, {{0, QColor(0x6F, 0xA6, 0xA6)}, {1, QColor(0x3F, 0x7C, 0x85)}}));
    QPainterPath stripe(QPointF(-100, -154));
    stripe.cubicTo(-60, -48, -22, -24, 80, -66);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(0xF4, 0xE8, 0xD2), 5));
    painter.drawPath(stripe);
    painter.setPen(Qt::NoPen);
    bar({-102, -152}, {-62, 4}, 7);
    painter.restore();
}

void starfish(QPainter& painter)
{
    painter.save();
    painter.translate(1180, 912);
    painter.scale(1, 0.62);
    painter.setBrush(QColor(120, 84, 50, 70));
    painter.drawEllipse(QPointF(-6, 9), 40, 30);
    painter.rotate(14);
    QPainterPath star;
    for (int arm = 0; arm < 5; ++arm) {
        const auto at = [](double turn, double radius) {
            return QPointF(radius * std::sin(turn), -radius * std::cos(turn));
        };
        const double turn = arm * 2 * std::numbers::pi / 5;
        const double half = std::numbers::pi / 5;
        if (arm == 0)
            star.moveTo(at(turn - half, 19));
        star.cubicTo(at(turn - 0.16, 40), at(turn - 0.13, 56), at(turn, 56));
        star.cubicTo(at(turn + 0.13, 56), at(turn + 0.16, 40), at(turn + half, 19));
    }
    QRadialGradient body(QPointF(0, 0), 58);
    body.setColorAt(0, QColor(0xE9, 0x9A, 0x6C));
    body.setColorAt(1, QColor(0xCB, 0x6A, 0x4A));
    painter.fillPath(star, body);
    painter.setBrush(QColor(255, 226, 190, 170));
    for (int arm = 0; arm < 5; ++arm) {
        painter.save();
        painter.rotate(72.0 * arm);
        for (const double along : {8.0, 18.0, 28.0, 38.0, 46.0})
            painter.drawEllipse(QPointF(0, -along), 2.6 - along / 40, 2.6 - along / 40);
        painter.restore();
    }
    painter.restore();
}

/// A scallop, seen from above.
void shell(QPainter& painter, QPointF place, double size, double turn)
{
    painter.save();
    painter.translate(place);
    painter.setBrush(QColor(120, 84, 50, 64));
    painter.drawEllipse(QPointF(-3, size * 0.5), size * 0.95, size * 0.35);
    painter.rotate(turn);
    QPainterPath fan(QPointF(0, size * 0.62));
    constexpr int ribs = 9;
    for (int rib = 0; rib <= ribs; ++rib) {
        const double angle = (rib - ribs / 2.0) * 0.30;
        const QPointF tip(size * std::sin(angle), size * 0.62 - 1.25 * size * std::cos(angle));
        if (rib == 0)
            fan.lineTo(tip);
        else
            fan.quadTo(tip + QPointF(-size * 0.16 * std::cos(angle), -size * 0.14), tip);
    }
    fan.closeSubpath();
    painter.fillPath(
        fan, downward(-size, size * 0.6, {{0, QColor(0xFF, 0xF2, 0xE2)}, {1, QColor(0xE3, 0xB4, 0x98)}}));
    painter.setPen(QPen(QColor(0xC8, 0x94, 0x7A, 150), size * 0.045));
    for (int rib = 1; rib < ribs; ++rib) {
        const double angle = (rib - ribs / 2.0) * 0.30;
        painter.drawLine(QPointF(0, size * 0.58),
                         QPointF(0.94 * size * std::sin(angle), size * 0.62 - 1.15 * size * std::cos(angle)));
    }
    painter.setPen(Qt::NoPen);
    painter.restore();
}

} // namespace

void paintBeach(QPainter& painter)
{
    painter.setPen(Qt::NoPen);
    sky(painter);
    coast(painter);
    sea(painter);
    sailingBoat(painter);
    gulls(painter);
    sand(painter);
    parasol(painter);
    deckChair(painter);
    starfish(painter);
    shell(painter, {1302, 950}, 24, 20);
    shell(painter, {956, 962}, 17, -32);
}
