#!/usr/bin/env python3
"""Paints the two pictures that rest the eyes: a cup of coffee on a quiet morning, and a calm evening at the sea.

Usage: make_rest_pictures.py [target folder]

Needs Debian's python3-pyqt6. Every irregularity comes from seeded generators, so the pictures are the same at each run.
The canvas is 1600 by 1000; it is painted half as large again.
"""

import math
import os
import random
import sys
from pathlib import Path

os.environ.setdefault("QT_QPA_PLATFORM", "offscreen")
from PyQt6.QtCore import QPointF as P, QRectF, Qt
from PyQt6.QtGui import (QBrush, QColor, QGuiApplication, QImage, QLinearGradient, QPainter, QPainterPath, QPen,
                         QPolygonF, QRadialGradient)

WIDTH, HEIGHT, ENLARGED = 1600, 1000, 1.5
ROUND = (Qt.PenStyle.SolidLine, Qt.PenCapStyle.RoundCap)


def colour(text, alpha=255):
    made = QColor("#" + text)
    made.setAlpha(alpha)
    return made


def gradient(x1, y1, x2, y2, stops):
    made = QLinearGradient(x1, y1, x2, y2)
    for place, hue in stops:
        made.setColorAt(place, colour(hue) if isinstance(hue, str) else hue)
    return made


def downward(top, bottom, *stops):
    return gradient(0, top, 0, bottom, stops)


def across(left, right, *stops):
    return gradient(left, 0, right, 0, stops)


def path(start, *parts, closed=False):
    """Parts of two numbers are lines, of four quadratic and of six cubic curves."""
    made = QPainterPath(start if isinstance(start, P) else P(*start))
    for part in parts:
        numbers = []
        for piece in part:
            numbers += [piece.x(), piece.y()] if isinstance(piece, P) else [piece]
        {2: made.lineTo, 4: made.quadTo, 6: made.cubicTo}[len(numbers)](*map(float, numbers))
    if closed:
        made.closeSubpath()
    return made


class Canvas(QPainter):
    def fill(self, shape, brush):
        """A path or the numbers of a rectangle."""
        if isinstance(shape, QPainterPath):
            self.fillPath(shape, brush if isinstance(brush, QBrush) else QBrush(brush))
        else:
            self.fillRect(QRectF(*shape), brush if isinstance(brush, QBrush) else QBrush(brush))

    def oval(self, centre, wide, high, brush=None):
        if brush is not None:
            self.setBrush(brush if isinstance(brush, QBrush) else QBrush(brush))
        self.drawEllipse(centre if isinstance(centre, P) else P(*centre), wide, high)

    def stroke(self, shape, hue, thick, round_ends=True):
        self.setBrush(Qt.BrushStyle.NoBrush)
        self.setPen(QPen(QBrush(hue), thick, *ROUND) if round_ends else QPen(QBrush(hue), thick))
        if isinstance(shape, QPainterPath):
            self.drawPath(shape)
        else:
            self.drawLine(*(P(*end) for end in shape))
        self.setPen(Qt.PenStyle.NoPen)

    def spot(self, centre, wide, high, hue):
        """A soft oval of light or shade."""
        fading = QRadialGradient(P(0, 0), 1)
        for place, share in ((0, 1), (0.55, 0.45), (1, 0)):
            faded = QColor(hue)
            faded.setAlpha(int(hue.alpha() * share))
            fading.setColorAt(place, faded)
        self.save()
        self.translate(centre if isinstance(centre, P) else P(*centre))
        self.scale(wide, high)
        self.fillRect(QRectF(-1, -1, 2, 2), QBrush(fading))
        self.restore()


# A cup of coffee at the window.

TABLE = 640  # its far edge
CUP = P(930, 560)  # middle of the rim
RIM_WIDE, RIM_HIGH, CUP_DEEP = 190, 52, 236


def hills(to, base, rise, phase, top, foot):
    ridge = QPolygonF()
    for x in range(0, WIDTH + 1, 16):
        t = x / WIDTH
        ridge.append(P(x, base - rise * (0.55 * math.sin(5.1 * t + phase) + 0.3 * math.sin(11.3 * t + 2.1 * phase)
                                         + 0.12 * math.sin(27 * t + phase))))
    ridge.append(P(WIDTH, TABLE))
    ridge.append(P(0, TABLE))
    land = QPainterPath()
    land.addPolygon(ridge)
    to.fill(land, downward(base - rise, base + 130, (0, top), (1, foot)))


def fir(to, x, y, high, hue):
    tree = QPainterPath()
    tiers = 5
    for side in (1, -1):
        tree.moveTo(x, y - high)
        for tier in range(1, tiers + 1):
            level = y - high + high * tier / tiers
            half = high * 0.20 * tier / tiers
            tree.lineTo(x + side * half, level)
            tree.lineTo(x + side * half * 0.55, level - high * 0.03)
        tree.lineTo(x, y)
        tree.closeSubpath()
    tree.setFillRule(Qt.FillRule.WindingFill)
    to.fill(tree, hue)


def morning(to):
    to.fill((0, 0, WIDTH, TABLE), downward(0, TABLE, (0, "A9C3CC"), (0.45, "DDDDD2"), (0.75, "F7E2C2"), (1, "F6D9B4")))
    to.spot((430, 330), 620, 430, colour("FFF0CE", 190))
    to.spot((430, 330), 120, 120, colour("FFFAE8", 230))
    hills(to, 400, 70, 0.6, "B3C0C2", "E8DCC6")
    hills(to, 470, 64, 2.4, "8DA5A8", "D6D2C0")
    to.spot((800, 520), 1100, 60, colour("FFF6E6", 150))
    hills(to, 548, 44, 4.4, "628280", "A9B5A4")
    chance = random.Random(21)
    for _ in range(46):
        x, away = chance.random() * WIDTH, chance.random()
        fir(to, x, 590 + 44 * away, 40 + 62 * away, QColor.fromHsl(168, 40, int(112 - 40 * away)))
    to.spot((700, 626), 1300, 46, colour("FFF6E6", 215))


def window_frame(to):
    lit, shade, dark = "F2E6D4", "C9B59B", colour("5A4632", 34)

    def post(left, wide):
        to.fill((left, 0, wide, TABLE), across(left, left + wide, (0, lit), (0.7, lit), (1, shade)))
        to.fill((left + wide, 0, 7, TABLE), dark)

    post(-10, 58)
    post(690, 30)
    post(1530, 80)
    to.fill((0, 150, WIDTH, 20), downward(150, 170, (0, lit), (0.6, lit), (1, shade)))
    to.fill((0, 170, WIDTH, 5), dark)
    post(690, 30)
    to.fill((0, TABLE - 26, WIDTH, 30), downward(TABLE - 26, TABLE + 4, (0, lit), (1, shade)))


def table_top(to):
    to.fill((0, TABLE, WIDTH, HEIGHT - TABLE), downward(TABLE, HEIGHT, (0, "B9865A"), (0.25, "A26E45"), (1, "74492C")))
    chance = random.Random(5)
    for i in range(130):  # the grain, wider towards the eye
        near = chance.random()
        y = TABLE + 4 + near * near * (HEIGHT - TABLE)
        bend = (chance.random() - 0.5) * 26 * near
        left = -200 + chance.random() * 1500
        length = 300 + chance.random() * 900
        line = path((left, y), (left + length / 3, y + bend, left + 2 * length / 3, y - bend, left + length, y + bend / 3))
        to.stroke(line, colour("EEBE8C", 40) if i % 3 == 0 else colour("422410", 46), 0.8 + 2.4 * near)
    for seam in (724, 862):
        to.fill((0, seam, WIDTH, 3), colour("341C0C", 110))
        to.fill((0, seam + 3, WIDTH, 1.6), colour("F4C898", 60))
    to.spot((430, 700), 760, 150, colour("FFE2B2", 110))  # the morning lies on it
    to.fill((0, TABLE, WIDTH, 16), downward(TABLE, TABLE + 16, (0, colour("321C0E", 90)), (1, colour("321C0E", 0))))


def fern(to):
    """In a pot on the sill."""
    to.save()
    to.translate(1372, TABLE - 6)
    to.spot((24, 12), 130, 18, colour("321E0E", 130))
    for frond in range(11):
        lean = (frond - 5) / 5
        tip = P(lean * 190, -330 + 190 * lean * lean + (0 if frond % 2 == 0 else 34))
        stalk = path((lean * 16, -112), (lean * 60, tip.y() - 20, tip))
        leaf = QColor.fromHsl(128 + 3 * frond, 70, 78 + (frond * 37) % 34)
        to.stroke(stalk, leaf.darker(115), 3.4)
        for pair in range(3, 20):
            along = pair / 20
            size = 34 * math.sin(3 * (0.10 + 0.86 * along)) + 6
            for side in (-1, 1):
                to.save()
                to.translate(stalk.pointAtPercent(along))
                to.rotate(-stalk.angleAtPercent(along) + side * 58)
                to.fill(path((0, 0), (size * 0.5, -size * 0.17, size, 0), (size * 0.5, size * 0.17, 0, 0)), leaf)
                to.restore()
    pot = path((-84, -118), (84, -118), (62, 6), (0, 18, -62, 6), closed=True)
    to.fill(pot, across(-84, 84, (0, "D98E6A"), (0.5, "C2714E"), (1, "8E4C34")))
    rim = QPainterPath()
    rim.addRoundedRect(QRectF(-92, -134, 184, 30), 7, 7)
    to.fill(rim, across(-92, 92, (0, "E39C78"), (0.5, "CE7E5A"), (1, "9A563C")))
    to.fill((-84, -104, 168, 6), colour("462214", 60))
    to.restore()


def notebook(to):
    """Of somebody who counts: two pages, with a grain and its notes in pencil."""
    to.save()
    to.translate(382, 826)
    to.spot((16, 36), 370, 92, colour("2E180A", 120))
    for side in (-1, 1):
        sheet = path((0, -62), (side * 70, -90, side * 190, -84, side * 236, -70), (side * 300, 76),
                     (side * 220, 58, side * 90, 52, 0, 84), closed=True)
        to.fill(sheet.translated(0, 9), colour("D3C2A6"))
        to.fill(sheet, across(side * 300, 0, (0, "FDF7EA"), (0.8, "F8EEDC"), (1, "D8C8AE")))
    drawn = colour("5A5048", 205)
    to.save()
    to.translate(-138, -12)  # a saccate grain, seen as the pages lie
    to.scale(1, 0.56)
    to.setPen(QPen(drawn, 3))
    to.oval((-52, 22), 38, 34, colour("D6AC68", 90))
    to.oval((52, 22), 38, 34)
    to.oval((0, 0), 56, 40, colour("E2BA78"))
    to.setPen(Qt.PenStyle.NoPen)
    to.setBrush(drawn)
    chance = random.Random(9)
    for i in range(60):
        turn, away = chance.random() * 2 * math.pi, math.sqrt(chance.random())
        side = -1 if i % 2 == 0 else 1
        to.oval((side * 56 + 30 * away * math.cos(turn), 26 + 26 * away * math.sin(turn)), 1.5, 1.5)
    to.restore()
    for row in range(5):  # tallies in fives on the right page
        y = -48 + 23 * row
        for five in range(4 - (row + 1) // 2):
            x = 58 + 46 * five + 7 * row
            for stroke in range(4):
                to.stroke(((x + 7 * stroke, y), (x + 2 + 7 * stroke, y + 12)), drawn, 2)
            to.stroke(((x - 5, y + 10), (x + 28, y + 1)), drawn, 2)
    to.stroke(((-216, 40), (-84, 32)), drawn, 2)
    to.stroke(((-222, 53), (-128, 47)), drawn, 2)
    to.fill(path((0, -62), (10, -66), (14, 80), (0, 84), closed=True), colour("786046", 70))  # shade in the middle
    to.restore()


def pencil(to):
    to.save()
    to.translate(536, 944)
    to.rotate(-13)
    to.spot((6, 12), 160, 11, colour("281408", 130))
    to.fill((-130, -8, 236, 15), downward(-8, 7, (0, "E7B74E"), (0.45, "D79B30"), (1, "A8701E")))
    to.fill((-152, -8, 22, 15), downward(-8, 7, (0, "D8D8D2"), (1, "8F8F8A")))
    rubber = QPainterPath()
    rubber.addRoundedRect(QRectF(-172, -8, 24, 15), 6, 6)
    to.fill(rubber, colour("CF7E72"))
    to.fill(path((106, -8), (146, 0), (106, 7), closed=True), colour("EBCFA4"))
    to.fill(path((134, -2.4), (147, 0), (134, 2.2), closed=True), colour("3A3634"))
    to.restore()


def saucer(to):
    middle = CUP + P(0, CUP_DEEP + 4)
    to.spot(middle + P(40, 34), 380, 86, colour("281408", 150))
    left, right = middle.x() - 310, middle.x() + 310
    for wide, high, drop, stops in ((308, 74, 14, ((0, "C9BCA8"), (1, "8E7C68"))),
                                    (308, 74, 4, ((0, "FFFAF0"), (0.5, "EEE3D2"), (1, "BEAC95"))),
                                    (276, 62, 5, ((0, "E4D8C6"), (1, "D6C7B1"))),
                                    (268, 58, 8, ((0, "F9F1E4"), (1, "C9B8A1")))):
        to.oval(middle + P(0, drop), wide, high, across(left, right, *stops))
    to.spot(middle + P(30, 6), 200, 44, colour("462E1C", 150))


def cup_body():
    return path(CUP - P(RIM_WIDE, 0),
                (CUP + P(-RIM_WIDE + 4, 130), CUP + P(-150, CUP_DEEP - 20), CUP + P(-92, CUP_DEEP)),
                (CUP + P(0, CUP_DEEP + 30), CUP + P(92, CUP_DEEP)),
                (CUP + P(150, CUP_DEEP - 20), CUP + P(RIM_WIDE - 4, 130), CUP + P(RIM_WIDE, 0)), closed=True)


def handle(to):
    ring = path(CUP + P(RIM_WIDE - 10, 46),
                (CUP + P(RIM_WIDE + 118, 16), CUP + P(RIM_WIDE + 104, 176), CUP + P(RIM_WIDE - 46, 166)))
    to.stroke(ring.translated(1, 3), colour("9A866E"), 34)
    to.stroke(ring, colour("D6C6B0"), 30)
    to.stroke(ring.translated(-3, -7), colour("F6ECDC"), 9)


def leaf_of_milk(to):
    """As it is poured."""
    to.save()
    to.translate(CUP + P(0, 6))
    to.scale(1, RIM_HIGH / RIM_WIDE)
    to.rotate(-28)
    milk = colour("F6E4C6")
    for leaf in range(6):
        y = -84 + 27 * leaf
        half = 46 + 13 * leaf - 2.4 * leaf * leaf
        for side in (-1, 1):
            to.stroke(path((0, y + 26), (side * half * 0.8, y + 24, side * half, y - 16)), milk, 15 + leaf)
    to.stroke(((0, -112), (0, 118)), milk, 9)
    to.restore()


def coffee_cup(to):
    left, right = CUP.x() - RIM_WIDE, CUP.x() + RIM_WIDE
    handle(to)
    to.fill(cup_body(), across(left, right, (0, "FFF9EE"), (0.22, "FDF4E6"), (0.62, "E2D3BE"), (0.9, "B39F86"), (1, "C6B49C")))
    to.setClipPath(cup_body())
    to.setBrush(Qt.BrushStyle.NoBrush)
    for drop, thick in ((64, 15), (88, 4)):  # rings of glaze
        to.setPen(QPen(QBrush(colour("3F747E", 215)), thick))
        to.drawArc(QRectF(left, CUP.y() + drop - RIM_HIGH, 2 * RIM_WIDE, 2 * RIM_HIGH), 180 * 16, 180 * 16)
    to.setPen(Qt.PenStyle.NoPen)
    to.spot(CUP + P(150, 150), 150, 150, colour("5C4028", 70))
    to.setClipping(False)
    to.oval(CUP, RIM_WIDE, RIM_HIGH, across(left, right, (0, "FFFCF4"), (1, "DDCCB6")))
    to.oval(CUP + P(0, 2), RIM_WIDE - 11, RIM_HIGH - 7, across(left, right, (0, "B9A58C"), (1, "F0E3D0")))
    inside = QPainterPath()
    inside.addEllipse(CUP + P(0, 2), RIM_WIDE - 11, RIM_HIGH - 7)
    to.setClipPath(inside)
    to.oval(CUP + P(0, 9), RIM_WIDE - 18, RIM_HIGH - 9, across(left, right, (0, "5E341C"), (0.5, "86502C"), (1, "6B3D22")))
    to.oval(CUP + P(0, 10), RIM_WIDE - 26, RIM_HIGH - 13, across(left, right, (0, "8A552E"), (0.5, "A86D3E"), (1, "905A33")))
    leaf_of_milk(to)
    to.setClipping(False)


def steam(to):
    """Wisps that widen and fade as they rise."""
    for aside, sway, high in ((-78, 46, 300), (4, -54, 380), (84, 40, 280)):
        foot = CUP + P(aside, -8)
        wisp = path(foot, (foot + P(sway, -high * 0.25), foot + P(-sway, -high * 0.45), foot + P(sway * 0.4, -high * 0.66)),
                    (foot + P(sway * 1.5, -high * 0.82), foot + P(-sway * 0.5, -high * 0.92), foot + P(sway * 0.5, -high)))
        for puff in range(90):
            risen = puff / 90
            size = 15 + 26 * risen
            to.spot(wisp.pointAtPercent(risen), size, 1.5 * size,
                    colour("FFFDF8", int(34 * math.sin(math.pi * risen ** 0.7))))


def spoon(to):
    to.save()
    to.translate(CUP + P(212, CUP_DEEP + 46))
    to.rotate(-24)
    to.spot((40, 12), 150, 14, colour("28160A", 110))
    bowl = QPainterPath()
    bowl.addEllipse(P(-46, 0), 40, 16)
    stem = path((-12, -5), (40, -3, 110, -4, 168, -8), (182, 0, 168, 8), (110, 4, 40, 3, -12, 5), closed=True)
    to.fill(bowl.united(stem), downward(-16, 16, (0, "FBF8F2"), (0.5, "C4BFB8"), (1, "8A847C")))
    to.oval((-46, 1), 31, 11, colour("786E64", 110))
    to.oval((-54, -3), 14, 4, colour("FFFFFF", 120))
    to.restore()


def coffee(to):
    for part in (morning, window_frame, table_top, fern, notebook, pencil, saucer, coffee_cup, spoon, steam):
        part(to)


# A calm evening at the sea.

HORIZON = 430
SUN = P(1060, 352)


def cloud(to, x, y, length, hue):
    """A long one of soft ellipses, lit from below."""
    chance = random.Random(x)
    for i in range(9):
        along = (i - 4) / 4
        wide = length * (0.34 - 0.16 * along * along)
        to.spot((x + along * length / 2, y + chance.random() * 10 - 5), wide, wide * 0.10, hue)


def sky(to):
    to.fill((0, 0, WIDTH, HORIZON + 2),
            downward(0, HORIZON, (0, "5B8FB0"), (0.35, "93B9C6"), (0.65, "E4CFBB"), (0.88, "F6C99B"), (1, "F8D6A8")))
    to.setClipRect(QRectF(0, 0, WIDTH, HORIZON))
    to.spot(SUN, 620, 620, colour("FFE2AA", 150))
    cloud(to, 330, 120, 620, colour("FFF6EC", 90))
    cloud(to, 1290, 170, 540, colour("FFF0E0", 95))
    cloud(to, 700, 250, 700, colour("FFE8D0", 80))
    cloud(to, 170, 310, 420, colour("FFDEC0", 90))
    cloud(to, 1430, 320, 460, colour("FFDCBA", 100))
    to.spot(SUN, 170, 170, colour("FFF4D6", 220))
    to.oval(SUN, 44, 44, colour("FFF6DE"))
    to.setClipping(False)


def headland(to, ridge, top, foot):
    land = path((ridge[0][0], HORIZON + 1), ridge[0])
    for (x1, y1), (x2, y2) in zip(ridge, ridge[1:]):
        half = (x2 - x1) / 2
        land.cubicTo(P(x1 + half, y1), P(x2 - half, y2), P(x2, y2))
    land.lineTo(ridge[-1][0], HORIZON + 1)
    to.fill(land, downward(HORIZON - 110, HORIZON, (0, top), (1, foot)))


def coast(to):
    headland(to, ((0, 372), (120, 340), (240, 366), (360, 384), (470, 406), (600, 431)), "9CA5AB", "D5BCA3")
    headland(to, ((0, 330), (70, 352), (150, 380), (230, 392), (300, 412), (380, 431)), "5F7880", "9E988C")


def sea(to):
    to.fill((0, HORIZON, WIDTH, 330), downward(HORIZON, HORIZON + 330, (0, "E0C6A4"), (0.05, "9FB7B3"), (0.30, "5B9AA6"),
                                               (0.70, "63AFB0"), (1, "9ACFC4")))
    chance = random.Random(3)
    for i in range(230):  # the swell, wider towards the beach
        depth = chance.random()
        length = 40 + 260 * depth * chance.random()
        to.oval((chance.random() * WIDTH, HORIZON + 8 + depth * 270), length, 1 + 3.2 * depth,
                colour("FFFAF0", 34) if i % 3 == 0 else colour("145064", 26))
    chance = random.Random(7)
    for _ in range(620):  # light that lies on the water in short strokes, denser towards its middle
        depth = chance.random()
        aside = chance.random() + chance.random() - 1
        length = (5 + 46 * depth) * (0.4 + chance.random())
        to.setBrush(colour("FFF0CD", int(165 * (1 - abs(aside)) * (1 - 0.45 * depth))))
        to.drawRoundedRect(QRectF(SUN.x() + aside * (36 + depth * 190) - length / 2, HORIZON + 3 + depth * depth * 250,
                                  length, 1 + 2.6 * depth), 2, 2)


def shore(y, phase, depth):
    """The edge of a wave that has run up the sand. `phase` shifts its bays."""
    line = QPolygonF()
    for x in range(0, WIDTH + 1, 20):
        t = x / WIDTH
        line.append(P(x, y + 26 * math.sin(7.2 * t + phase) + 10 * math.sin(17 * t + 2 * phase) + depth * t))
    made = QPainterPath()
    made.addPolygon(line)
    return made


def below(line):
    line.lineTo(WIDTH, HEIGHT)
    line.lineTo(0, HEIGHT)
    line.closeSubpath()
    return line


def foam(to, edge, thickness, alpha):
    to.stroke(edge.translated(0, -1.6 * thickness), colour("FFFFFA", alpha // 3), 3.4 * thickness)
    to.stroke(edge, colour("FFFFFA", alpha), thickness)
    chance = random.Random(thickness * 31)
    to.setBrush(colour("FFFFFA", alpha * 2 // 5))
    for _ in range(260):  # bubbles behind the edge
        behind = 4 + 34 * chance.random() * chance.random()
        size = 1 + 2.4 * chance.random()
        to.oval(edge.pointAtPercent(chance.random()) - P(0, behind), 2.2 * size, size)


def sand(to):
    to.fill(below(shore(640, 0.4, 60)), downward(620, 760, (0, "B7D6C6"), (1, "CFD3B4")))
    foam(to, shore(640, 0.4, 60), 5, 150)
    to.fill(below(shore(700, 1.5, 60)), downward(690, 830, (0, "C3B390"), (1, "D9BF94")))
    foam(to, shore(700, 1.5, 60), 7, 235)
    # Where the last wave reached, the sand is dark and gives back the sky.
    to.fill(below(shore(770, 1.1, 66)), downward(770, 1000, (0, "E8CFA4"), (0.5, "ECD5AC"), (1, "E2C292")))
    to.setClipPath(below(shore(776, 1.1, 66)))
    chance = random.Random(11)
    for i in range(2600):
        size = 0.6 + 1.1 * chance.random()
        to.oval((chance.random() * WIDTH, 760 + chance.random() * 240), 1.6 * size, size,
                colour("967042", 60) if i % 2 == 0 else colour("FFF8E4", 90))
    for i in range(7):  # wind ripples
        to.stroke(shore(840 + 26 * i, 2.2 + 0.5 * i, 30), colour("BE9662", 32), 5, round_ends=False)
    to.setClipping(False)


def sailing_boat(to):
    to.save()
    to.translate(566, HORIZON + 12)
    to.oval((2, 10), 44, 4, colour("466E7A", 60))
    to.fill(path((-34, 0), (36, 0), (28, 12, 18, 12), (-24, 12), (-30, 8, -34, 0)), colour("4C5F6B"))
    to.fill(path((2, -4), (2, -82), (34, -34, 34, -4), closed=True), colour("FFF8E8"))
    to.fill(path((-3, -6), (-3, -70), (-24, -30, -30, -6), closed=True), colour("F6E3C8"))
    to.restore()


def gulls(to):
    for place, wing in ((P(770, 148), 26), (P(846, 116), 20), (P(716, 196), 15)):
        bird = path(place - P(wing, wing * 0.10), (place - P(wing * 0.5, wing * 0.62), place),
                    (place + P(wing * 0.5, -wing * 0.62), place + P(wing, -wing * 0.10)))
        to.stroke(bird, colour("4A6270", 200), wing * 0.13)


def parasol(to):
    to.save()
    to.translate(330, 880)
    to.oval((-96, 14), 210, 26, colour("785432", 62))  # its shadow, away from the sun
    to.rotate(-9)
    to.stroke(((0, 6), (0, -330)), colour("F3EADA"), 9)
    # Gores from rim to top; each hangs a little between its ribs.
    rim, top = (-220, -168, -92, 0, 92, 168, 220), P(0, -372)

    def rib(n):
        return P(rim[n], -226 - 14 * math.cos(rim[n] / 220 * 1.57))

    def bend(n):
        return P(rim[n] * 0.86, -352 + 10 * abs(rim[n]) / 220)

    for i in range(6):
        gore = path(top, (bend(i), rib(i)), ((rib(i) + rib(i + 1)) / 2 - P(0, 17), rib(i + 1)), (bend(i + 1), top))
        stops = ((0, "B9564C"), (1, "E4806A")) if i % 2 == 0 else ((0, "E2D2BA"), (1, "FFF6E4"))
        to.fill(gore, across(-220, 220, *stops))
    to.oval(top + P(0, -4), 7, 9, colour("F3EADA"))
    to.restore()


def deck_chair(to):
    to.save()
    to.translate(468, 902)
    to.oval((-30, 10), 150, 15, colour("785432", 56))
    wood = colour("9A6A42")
    to.stroke(((-62, 4), (62, -66)), wood, 8)
    to.stroke(((70, 8), (-18, -62)), wood, 8)
    seat = path((-92, -158), (-54, -60, -20, -34, 74, -72), (88, -58), (-20, -10, -66, -36, -112, -146), closed=True)
    to.fill(seat, downward(-158, -30, (0, "6FA6A6"), (1, "3F7C85")))
    to.stroke(path((-100, -154), (-60, -48, -22, -24, 80, -66)), colour("F4E8D2"), 5, round_ends=False)
    to.stroke(((-102, -152), (-62, 4)), wood, 7)
    to.restore()


def starfish(to):
    to.save()
    to.translate(1180, 912)
    to.scale(1, 0.62)
    to.oval((-6, 9), 40, 30, colour("785432", 70))
    to.rotate(14)

    def at(turn, radius):
        return P(radius * math.sin(turn), -radius * math.cos(turn))

    half = math.pi / 5
    arms = []
    for arm in range(5):
        turn = 2 * half * arm
        arms += [(at(turn - 0.16, 40), at(turn - 0.13, 56), at(turn, 56)),
                 (at(turn + 0.13, 56), at(turn + 0.16, 40), at(turn + half, 19))]
    body = QRadialGradient(P(0, 0), 58)
    body.setColorAt(0, colour("E99A6C"))
    body.setColorAt(1, colour("CB6A4A"))
    to.fill(path(at(-half, 19), *arms), body)
    to.setBrush(colour("FFE2BE", 170))
    for arm in range(5):
        to.save()
        to.rotate(72 * arm)
        for along in (8, 18, 28, 38, 46):
            to.oval((0, -along), 2.6 - along / 40, 2.6 - along / 40)
        to.restore()
    to.restore()


def scallop(to, place, size, turn):
    """Seen from above."""
    to.save()
    to.translate(place)
    to.oval((-3, size * 0.5), size * 0.95, size * 0.35, colour("785432", 64))
    to.rotate(turn)
    ribs = 9
    angles = [(rib - ribs / 2) * 0.30 for rib in range(ribs + 1)]
    parts = []
    for angle in angles:
        tip = P(size * math.sin(angle), size * 0.62 - 1.25 * size * math.cos(angle))
        parts.append((tip + P(-size * 0.16 * math.cos(angle), -size * 0.14), tip) if parts else (tip,))
    fan = path((0, size * 0.62), *parts, closed=True)
    to.fill(fan, downward(-size, size * 0.6, (0, "FFF2E2"), (1, "E3B498")))
    for angle in angles[1:-1]:
        to.stroke(((0, size * 0.58), (0.94 * size * math.sin(angle), size * 0.62 - 1.15 * size * math.cos(angle))),
                  colour("C8947A", 150), size * 0.045, round_ends=False)
    to.restore()


def beach(to):
    for part in (sky, coast, sea, sailing_boat, gulls, sand, parasol, deck_chair, starfish):
        part(to)
    scallop(to, P(1302, 950), 24, 20)
    scallop(to, P(956, 962), 17, -32)


def main():
    target = Path(sys.argv[1]) if len(sys.argv) > 1 else Path(__file__).resolve().parent.parent / "window/pictures"
    application = QGuiApplication([])
    for scene in (coffee, beach):
        image = QImage(round(WIDTH * ENLARGED), round(HEIGHT * ENLARGED), QImage.Format.Format_RGB32)
        to = Canvas(image)
        to.setRenderHint(QPainter.RenderHint.Antialiasing)
        to.scale(ENLARGED, ENLARGED)
        to.setPen(Qt.PenStyle.NoPen)
        scene(to)
        to.end()
        image.save(str(target / f"{scene.__name__}.jpg"), quality=88)
    del application


main()
