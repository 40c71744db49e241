#!/usr/bin/env python3
"""Draw the picture of the opening page: a lake at dusk over its own sediment.

Usage: make_favorite.py [target file]

Needs the Pillow library.  Every irregularity comes from one seeded generator,
so the drawing is the same at each run.
"""

import math
import random
import sys
from pathlib import Path

from PIL import Image, ImageChops, ImageDraw, ImageFilter

OVERSAMPLING = 3
WIDTH, HEIGHT = 1600 * OVERSAMPLING, 1000 * OVERSAMPLING
HORIZON = 400 * OVERSAMPLING
SHORE = 535 * OVERSAMPLING   # where the lake is cut open
BOTTOM = 650 * OVERSAMPLING  # mean level of the lake floor

rng = random.Random(1863)


def px(length):
    return length * OVERSAMPLING


def mix(a, b, share):
    return tuple(round(x + (y - x) * share) for x, y in zip(a, b))


def gradient(size, stops):
    """A vertical gradient; stops are (relative height, colour)."""
    width, height = size
    column = Image.new("RGB", (1, height))
    for y in range(height):
        at = y / max(1, height - 1)
        for (low, first), (high, second) in zip(stops, stops[1:]):
            if at <= high:
                column.putpixel((0, y), mix(first, second, (at - low) / (high - low)))
                break
    return column.resize(size)


def noise(cells, size):
    """Smooth random grey clouds, as many as there are cells."""
    grid = Image.frombytes("L", cells, rng.randbytes(cells[0] * cells[1]))
    return grid.resize(size, Image.BICUBIC)


def wave_sum(lengths, heights):
    """A random smooth curve over x as a sum of sine waves."""
    waves = [(2 * math.pi / px(length), px(height), rng.uniform(0, 2 * math.pi))
             for length, height in zip(lengths, heights)]
    return lambda x: sum(h * math.sin(k * x + phase) for k, h, phase in waves)


def below(curve, step=6):
    """The polygon from a curve down to the lower edge."""
    line = [(x, curve(x)) for x in range(0, WIDTH + step, step)]
    return line + [(WIDTH, HEIGHT), (0, HEIGHT)]


def glow(image, centre, radius, colour, strength):
    """Add soft light round a point."""
    small = 16
    mask = Image.new("L", (WIDTH // small, HEIGHT // small))
    x, y, r = (value / small for value in (*centre, radius))
    ImageDraw.Draw(mask).ellipse([x - r / 2, y - r / 2, x + r / 2, y + r / 2],
                                 fill=round(255 * strength))
    mask = mask.filter(ImageFilter.GaussianBlur(r / 2.6)).resize(image.size, Image.BICUBIC)
    light = Image.composite(Image.new("RGB", image.size, colour),
                            Image.new("RGB", image.size), mask)
    image.paste(ImageChops.screen(image, light))


# --- The landscape -----------------------------------------------------------

SKY = [(0.00, (38, 44, 82)), (0.35, (92, 84, 126)), (0.62, (186, 128, 140)),
       (0.84, (238, 178, 142)), (1.00, (250, 214, 168))]
SUN = (px(1010), HORIZON - px(80))


def draw_sky(image):
    image.paste(gradient((WIDTH, HORIZON), SKY))
    draw = ImageDraw.Draw(image)
    for _ in range(70):
        x, y = rng.uniform(0, WIDTH), px(190) * rng.random() ** 1.6
        r = px(rng.uniform(0.4, 1.0))
        base = image.getpixel((int(x), int(y)))
        draw.ellipse([x - r, y - r, x + r, y + r],
                     fill=mix(base, (255, 246, 228), rng.uniform(0.25, 0.75) * (1 - y / px(260))))
    clouds = noise((5, 22), (WIDTH, HORIZON)).point(lambda v: max(0, v - 140))
    band = gradient((WIDTH, HORIZON), [(0, (0,) * 3), (0.3, (60,) * 3),
                                       (0.7, (255,) * 3), (1, (90,) * 3)]).convert("L")
    clouds = ImageChops.multiply(clouds, band)
    image.paste(Image.new("RGB", (WIDTH, HORIZON), (255, 206, 178)), (0, 0), clouds)
    glow(image, SUN, px(330), (255, 190, 120), 0.55)
    glow(image, SUN, px(110), (255, 224, 170), 0.8)
    x, y = SUN
    r = px(27)
    draw.ellipse([x - r, y - r, x + r, y + r], fill=(255, 240, 205))


def draw_hills(image):
    """Layer behind layer, the farther the paler."""
    far, near = (206, 152, 150), (42, 50, 74)
    layers = 5
    for n in range(layers):
        share = n / (layers - 1)
        curve = wave_sum((900 - 420 * share, 330 - 90 * share, 120, 45),
                         (34 - 10 * share, 15, 5, 1.6))
        base = HORIZON - px(88 - 62 * share)
        # The hills open towards the sun, to leave the light a way to the water.
        def ridge(x):
            valley = math.exp(-((x - SUN[0]) / px(300)) ** 2)
            lowered = px(34 + 26 * share) * valley
            return min(HORIZON, base + curve(x) * (1 - 0.55 * valley) + lowered)

        mask = Image.new("L", image.size)
        ImageDraw.Draw(mask).polygon(below(ridge), fill=255)
        colour = mix(far, near, share ** 0.8)
        haze = mix(colour, (244, 190, 158), 0.38 * (1 - share))
        fill = gradient((WIDTH, px(200)), [(0, colour), (1, haze)])
        sheet = Image.new("RGB", image.size, haze)
        sheet.paste(fill, (0, HORIZON - px(200)))
        image.paste(sheet, (0, 0), mask)


def draw_spruce(draw, x, foot, height, colour):
    tiers = 7
    half = height * 0.19
    draw.rectangle([x - height * 0.016, foot - height * 0.2, x + height * 0.016, foot + px(3)],
                   fill=colour)
    for n in range(tiers):
        top = foot - height * (1 - n / (tiers + 1.2))
        low = top + height * 0.27
        reach = half * (n + 1.2) / (tiers + 0.2)
        lean = rng.uniform(-0.12, 0.12) * reach
        draw.polygon([(x, top), (x + reach + lean, low), (x + reach * 0.35, low - height * 0.035),
                      (x, low), (x - reach * 0.35, low - height * 0.035),
                      (x - reach + lean, low)], fill=colour)


def draw_headland(image):
    """A wooded point of land that frames the left side."""
    draw = ImageDraw.Draw(image)
    colour = (24, 31, 50)
    def bank(x):
        return min(HORIZON, HORIZON - px(46) * (1 - (x / px(520)) ** 1.6)) if x < px(520) else HORIZON
    line = [(x, bank(x)) for x in range(0, px(520) + 6, 6)]
    draw.polygon(line + [(px(520), HORIZON + 1), (0, HORIZON + 1)], fill=colour)
    x = px(-8)
    while x < px(455):
        height = px(rng.uniform(48, 112)) * (1 - 0.62 * x / px(455))
        draw_spruce(draw, x, bank(max(0, x)) + px(5), height, colour)
        x += px(rng.uniform(9, 27))


def draw_lake(image):
    """Mirror the scene in the water, and let the ripples grow towards us."""
    depth = SHORE - HORIZON
    scene = image.crop((0, HORIZON - round(depth * 1.75), WIDTH, HORIZON))
    mirror = scene.transpose(Image.FLIP_TOP_BOTTOM).resize((WIDTH, depth), Image.LANCZOS)
    mirror = mirror.filter(ImageFilter.GaussianBlur(px(1.2)))
    water = mirror.copy()
    for y in range(depth):
        near = y / depth
        shift = px(0.6 + 6 * near) * math.sin(y / px(1.1 + 3.0 * near)) + px(2 * near) * math.sin(y / px(0.9))
        water.paste(mirror.crop((0, y, WIDTH, y + 1)), (round(shift), y))
    # The steeper the view, the less the water mirrors and the more it shows itself.
    own = gradient((WIDTH, depth), [(0, (28,) * 3), (0.4, (80,) * 3), (1, (150,) * 3)]).convert("L")
    water.paste(gradient((WIDTH, depth), [(0, (150, 124, 140)), (1, (46, 70, 100))]), (0, 0), own)
    image.paste(water, (0, HORIZON))

    glints = Image.new("L", image.size)
    draw = ImageDraw.Draw(glints)
    for _ in range(230):
        near = rng.random() ** 1.25
        y = HORIZON + px(3) + near * (depth - px(8))
        x = SUN[0] + rng.gauss(0, px(20 + 62 * near))
        length, thick = px(rng.uniform(5, 15) * (0.6 + 1.5 * near)), px(0.5 + 1.0 * near)
        draw.ellipse([x - length, y - thick, x + length, y + thick], fill=rng.randint(70, 190))
    for _ in range(110):
        near = rng.random() ** 0.8
        y = HORIZON + px(4) + near * (depth - px(8))
        x, length = rng.uniform(0, WIDTH), px(rng.uniform(14, 60)) * (0.4 + near)
        draw.ellipse([x - length, y - px(0.6), x + length, y + px(0.6)], fill=rng.randint(14, 46))
    image.paste(Image.new("RGB", image.size, (255, 226, 184)), (0, 0),
                glints.filter(ImageFilter.GaussianBlur(px(0.6))))


# --- The section -------------------------------------------------------------

def draw_water_column(image):
    height = HEIGHT - SHORE
    image.paste(gradient((WIDTH, height), [(0, (66, 116, 134)), (0.12, (44, 92, 114)),
                                           (0.34, (24, 58, 80)), (1, (18, 44, 62))]), (0, SHORE))
    rays = Image.new("L", image.size)
    draw = ImageDraw.Draw(rays)
    for _ in range(26):
        x, wide = rng.uniform(-px(100), WIDTH), px(rng.uniform(10, 46))
        slant = px(rng.uniform(26, 60))
        draw.polygon([(x, SHORE), (x + wide, SHORE), (x + wide * 1.5 - slant, BOTTOM),
                      (x - slant, BOTTOM)], fill=rng.randint(10, 30))
    rays = rays.filter(ImageFilter.GaussianBlur(px(7)))
    fade = Image.new("L", image.size)
    fade.paste(gradient((WIDTH, BOTTOM - SHORE), [(0, (255,) * 3), (1, (0,) * 3)]).convert("L"), (0, SHORE))
    image.paste(Image.new("RGB", image.size, (190, 226, 214)), (0, 0), ImageChops.multiply(rays, fade))

    snow = Image.new("L", image.size)
    draw = ImageDraw.Draw(snow)
    for _ in range(240):
        x, y, r = rng.uniform(0, WIDTH), rng.uniform(SHORE + px(8), BOTTOM + px(20)), px(rng.uniform(0.4, 1.3))
        draw.ellipse([x - r, y - r, x + r, y + r], fill=rng.randint(40, 130))
    image.paste(Image.new("RGB", image.size, (226, 238, 220)), (0, 0), snow)

    draw = ImageDraw.Draw(image)
    draw.rectangle([0, SHORE - px(1), WIDTH, SHORE + px(0.5)], fill=(206, 200, 186))
    draw.rectangle([0, SHORE + px(0.5), WIDTH, SHORE + px(2.5)], fill=(96, 142, 154))


# From the soft young mud down to the old clay: (thickness, summer, winter).
UNITS = [
    (46, (112, 106, 84), (72, 74, 66)),
    (62, (156, 132, 96), (104, 86, 68)),
    (9, (214, 204, 184), (198, 188, 170)),
    (70, (128, 98, 74), (82, 62, 54)),
    (54, (186, 150, 108), (134, 100, 76)),
    (26, (66, 52, 50), (50, 40, 42)),
    (96, (162, 146, 124), (116, 106, 98)),
]


def draw_sediment(image):
    """Yearly pairs of a pale summer and a dark winter lamina."""
    floor = wave_sum((1500, 520, 210, 70), (13, 6, 2.2, 0.8))
    older = wave_sum((1250, 430, 170), (12, 8, 2.5))
    layer = Image.new("RGB", image.size)
    draw = ImageDraw.Draw(layer)
    mask = Image.new("L", image.size)
    ImageDraw.Draw(mask).polygon(below(lambda x: BOTTOM + floor(x)), fill=255)

    depth, full = 0.0, (HEIGHT - BOTTOM)
    for thickness, summer, winter in UNITS:
        end = depth + px(thickness)
        pale = True
        while depth < end:
            tone = rng.uniform(-0.13, 0.13)
            colour = summer if pale else winter
            colour = mix(colour, (255, 240, 214) if tone > 0 else (20, 16, 24), abs(tone))
            share = min(1.0, depth / full)
            wobble = wave_sum((260, 90), (0.7, 0.35))
            draw.polygon(below(lambda x: BOTTOM + depth + floor(x) * (1 - share)
                               + older(x) * share + wobble(x)), fill=colour)
            depth += px(rng.uniform(2.6, 6.6) if pale else rng.uniform(1.2, 2.8))
            pale = not pale
        depth = end

    grain = noise((WIDTH // 14, full // 2), image.size).point(lambda v: 226 + v * 29 // 255)
    patches = noise((22, 9), image.size).point(lambda v: 214 + v * 41 // 255)
    for texture in (grain, patches):
        layer = ImageChops.multiply(layer, texture.convert("RGB"))
    image.paste(layer, (0, 0), mask)

    shade = Image.new("L", image.size)
    shade.paste(gradient((WIDTH, HEIGHT - BOTTOM), [(0, (0,) * 3), (0.45, (30,) * 3), (1, (120,) * 3)])
                .convert("L"), (0, BOTTOM))
    image.paste(Image.new("RGB", image.size, (26, 20, 34)), (0, 0), shade)
    rim = [(x, BOTTOM + floor(x)) for x in range(0, WIDTH + 6, 6)]
    ImageDraw.Draw(image).line(rim, fill=(150, 146, 118), width=round(px(1.5)))


# --- Diatoms and pollen ------------------------------------------------------
# Each is drawn in the unit of a tile from -1 to 1, then turned and set in place.

TILE = 640
LINE = (255, 246, 222, 235)
FINE = (255, 246, 222, 150)
GLASS = (238, 232, 204, 96)
AMBER = (222, 168, 92, 215)
BODY = (208, 148, 76, 235)
GRAIN = (250, 218, 158, 235)


class Tile:
    def __init__(self):
        self.image = Image.new("RGBA", (TILE, TILE))
        self.draw = ImageDraw.Draw(self.image)

    def at(self, x, y):
        return TILE / 2 * (1 + 0.94 * x), TILE / 2 * (1 + 0.94 * y)

    def outline(self, points, fill, width=9):
        spots = [self.at(*point) for point in points]
        self.draw.polygon(spots, fill=fill)
        self.draw.line(spots + spots[:2], fill=LINE, width=width, joint="curve")

    def stroke(self, points, colour=FINE, width=5):
        self.draw.line([self.at(*point) for point in points], fill=colour, width=width, joint="curve")

    def disc(self, x, y, radius, fill=None, colour=LINE, width=7):
        (left, top), (right, bottom) = self.at(x - radius, y - radius), self.at(x + radius, y + radius)
        self.draw.ellipse([left, top, right, bottom], fill=fill, outline=colour, width=width)


def ring(radius, count=120):
    """Points of a closed curve; radius is a function of the angle."""
    angles = (2 * math.pi * n / count for n in range(count))
    return [(radius(a) * math.cos(a), radius(a) * math.sin(a)) for a in angles]


def valve(half_width):
    """A pennate valve from its half width over the length."""
    steps = [n / 60 for n in range(-60, 61)]
    return [(x, half_width(x)) for x in steps] + [(x, -half_width(x)) for x in reversed(steps)]


def pennate(half_width, striae, slant):
    tile = Tile()
    tile.outline(valve(half_width), GLASS)
    for n in range(-striae, striae + 1):
        x = n / (striae + 1.2)
        edge = half_width(x) * 0.9
        gap = 0.035 + 0.05 * math.exp(-(x / 0.1) ** 2)
        tilt = slant * (1 - 2 * abs(x)) * (1 if x > 0 else -1)
        for side in (-1, 1):
            if edge > gap:
                tile.stroke([(x, side * gap), (x + tilt * (edge - gap), side * edge)])
    for side in (-1, 1):
        tile.stroke([(side * 0.04, 0), (side * 0.9, 0)], LINE, 6)
    return tile.image


def navicula():
    return pennate(lambda x: 0.27 * (1 - abs(x) ** 1.9) ** 0.95, 19, 0.35)


def pinnularia():
    return pennate(lambda x: 0.21 * (1 - abs(x) ** 7) ** 0.5 * (1 + 0.12 * math.cos(3.1 * math.pi * x)), 15, 0.3)


def cymbella():
    tile = Tile()
    def back(x): return -0.36 * (1 - abs(x) ** 2.1)
    def belly(x): return 0.10 * (1 - abs(x) ** 2.1)
    steps = [n / 60 for n in range(-60, 61)]
    tile.outline([(x, back(x)) for x in steps] + [(x, belly(x)) for x in reversed(steps)], GLASS)
    def spine(x): return back(x) * 0.12
    for n in range(-17, 18):
        x = n / 18.5
        tile.stroke([(x, spine(x) - 0.03), (x * 1.02, back(x) * 0.9)])
        tile.stroke([(x, spine(x) + 0.03), (x * 1.02, belly(x) * 0.85)])
    tile.stroke([(x, spine(x)) for x in steps[5:-5]], LINE, 6)
    return tile.image


def cyclotella():
    tile = Tile()
    tile.disc(0, 0, 0.97, GLASS, width=10)
    for n in range(56):
        a = 2 * math.pi * n / 56
        tile.stroke([(r * math.cos(a), r * math.sin(a)) for r in (0.5, 0.9)])
    tile.disc(0, 0, 0.46, None, FINE, 5)
    for n in range(7):
        a, r = n * 2.399, 0.15 * math.sqrt(n)
        tile.disc(r * math.cos(a), r * math.sin(a), 0.035, FINE, FINE)
    return tile.image


def asterionella():
    """Eight rods that hang together by their feet as a star."""
    tile = Tile()
    for n in range(8):
        a = 2 * math.pi * n / 8 + 0.2
        def spot(r, w):
            return r * math.cos(a) - w * math.sin(a), r * math.sin(a) + w * math.cos(a)
        tile.outline([spot(0.08, 0.05), spot(0.2, 0.03), spot(0.88, 0.022), spot(0.97, 0.045),
                      spot(1.0, 0), spot(0.97, -0.045), spot(0.88, -0.022), spot(0.2, -0.03),
                      spot(0.08, -0.05)], GLASS, 6)
    return tile.image


def pine():
    """A pine grain: a body between two air sacs."""
    tile = Tile()
    for side in (-1, 1):
        tile.disc(side * 0.58, 0.12, 0.41, AMBER)
        for n in range(26):
            a, r = n * 2.399, 0.36 * math.sqrt(n / 26)
            tile.disc(side * 0.58 + r * math.cos(a), 0.12 + r * math.sin(a), 0.03, None, GRAIN, 4)
    tile.outline([(0.52 * x, 0.44 * y - 0.1) for x, y in ring(lambda a: 1.0)], BODY)
    tile.stroke([(0.44 * x, 0.36 * y - 0.1) for x, y in ring(lambda a: 1.0)[60:]], GRAIN, 7)
    return tile.image


def birch():
    """A rounded triangle with a pore at each corner."""
    tile = Tile()
    tile.outline(ring(lambda a: 0.84 + 0.09 * math.cos(3 * a)), AMBER, 12)
    tile.stroke(ring(lambda a: 0.70 + 0.05 * math.cos(3 * a)) + [(0.75, 0)], GRAIN, 6)
    for n in range(3):
        a = 2 * math.pi * n / 3
        tile.disc(0.86 * math.cos(a), 0.86 * math.sin(a), 0.13, BODY)
        tile.disc(0.88 * math.cos(a), 0.88 * math.sin(a), 0.045, LINE)
    return tile.image


def daisy():
    """A spiny grain."""
    tile = Tile()
    tile.outline(ring(lambda a: 0.78 + 0.20 * abs(math.cos(8 * a)) ** 5, 320), AMBER, 8)
    tile.disc(0, 0, 0.66, None, GRAIN, 6)
    for n in range(1, 22):
        a, r = n * 2.399, 0.56 * math.sqrt(n / 22)
        tile.disc(r * math.cos(a), r * math.sin(a), 0.035, GRAIN, GRAIN)
    return tile.image


# Drawing, centre, diameter, turn in degrees.
SPECIMENS = [
    (asterionella, (300, 596), 66, 10), (asterionella, (1318, 588), 54, 35),
    (cyclotella, (820, 600), 30, 0), (navicula, (590, 610), 46, 24), (pine, (1080, 606), 42, -14),

    (navicula, (210, 770), 190, -18), (cyclotella, (430, 862), 118, 0),
    (pine, (655, 760), 128, 9), (pinnularia, (868, 876), 224, 14),
    (birch, (1078, 772), 96, 20), (cymbella, (1300, 868), 178, -16),
    (daisy, (1478, 752), 100, 0), (cyclotella, (1120, 930), 62, 0),
    (birch, (110, 912), 76, 50), (navicula, (640, 938), 112, 30),
    (cymbella, (446, 722), 84, 160), (daisy, (236, 944), 58, 0),
    (pinnularia, (880, 738), 92, -28), (pine, (1500, 932), 82, -20),
    (cyclotella, (1290, 726), 50, 0),
]


def place(image, specimen, centre, size, turn):
    tile = specimen().rotate(turn, Image.BICUBIC).resize((px(size), px(size)), Image.LANCZOS)
    x, y = (px(value) - px(size) // 2 for value in centre)
    shadow = Image.new("L", tile.size)
    shadow.paste(tile.getchannel("A").point(lambda v: min(150, v)))
    margin = px(12)
    canvas = Image.new("L", (tile.width + 2 * margin, tile.height + 2 * margin))
    canvas.paste(shadow, (margin, margin))
    canvas = canvas.filter(ImageFilter.GaussianBlur(px(4)))
    dark = Image.new("RGB", canvas.size, (24, 18, 26))
    image.paste(dark, (x - margin, y - margin + px(2)), canvas)
    image.paste(tile, (x, y), tile)


def main():
    beside_tools = Path(__file__).resolve().parent.parent / "References" / "My_favorite.jpg"
    target = Path(sys.argv[1]) if len(sys.argv) > 1 else beside_tools
    target.parent.mkdir(parents=True, exist_ok=True)

    image = Image.new("RGB", (WIDTH, HEIGHT))
    draw_sky(image)
    draw_hills(image)
    draw_headland(image)
    draw_lake(image)
    draw_water_column(image)
    draw_sediment(image)
    for specimen in SPECIMENS:
        place(image, *specimen)
    size = (WIDTH // OVERSAMPLING, HEIGHT // OVERSAMPLING)
    image.resize(size, Image.LANCZOS).save(target, quality=88, optimize=True)


if __name__ == "__main__":
    main()
