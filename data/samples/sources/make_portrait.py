# SPDX-FileCopyrightText: 2026 Korvanta contributors
# SPDX-License-Identifier: MIT
"""Paints ../pictures/portrait.jpg: a woman with a daisy in her hair, in soft light from the upper left."""

import random
from pathlib import Path

import numpy as np
from PIL import Image, ImageDraw, ImageFilter

W, H = 900, 1200
S = 2  # painted at twice the size, then brought down
RNG = random.Random(41)


def curve(points, closed=True, steps=24):
    """A Catmull-Rom curve through the points."""
    p = np.array(points, float)
    n = len(p)
    out = []
    for i in range(n if closed else n - 1):
        a, b, c, d = (p[k % n] if closed else p[min(max(k, 0), n - 1)] for k in (i - 1, i, i + 1, i + 2))
        for t in np.arange(steps) / steps:
            out.append(b + 0.5 * t * (c - a + t * (2 * a - 5 * b + 4 * c - d + t * (3 * (b - c) + d - a))))
    if not closed:
        out.append(p[-1])
    return np.array(out)


def mask_of(points, closed_curve=True):
    m = Image.new("L", (W * S, H * S), 0)
    pts = curve(points) if closed_curve else np.array(points, float)
    ImageDraw.Draw(m).polygon([tuple(q) for q in pts * S], fill=255)
    return m


def blur(mask, radius, dx=0, dy=0):
    m = mask.filter(ImageFilter.GaussianBlur(radius * S))
    if dx == 0 and dy == 0:
        return m
    x, y = round(dx * S), round(dy * S)
    pad = max(abs(x), abs(y))
    wide = np.pad(np.asarray(m), pad, mode="edge")  # what lies beyond the picture goes on as it is at the edge
    return Image.fromarray(wide[pad - y : pad - y + m.height, pad - x : pad - x + m.width])


def arr(mask):
    return np.asarray(mask, np.float32) / 255


class Canvas:
    def __init__(self, pixels):
        self.px = pixels.astype(np.float32)

    def paint(self, colour, alpha):
        a = (arr(alpha) if isinstance(alpha, Image.Image) else alpha)[:, :, None]
        self.px += (np.array(colour, np.float32) - self.px) * a

    def multiply(self, colour, alpha):
        a = (arr(alpha) if isinstance(alpha, Image.Image) else alpha)[:, :, None]
        self.px *= 1 + (np.array(colour, np.float32) / 255 - 1) * a

    def lighten(self, colour, alpha):
        a = (arr(alpha) if isinstance(alpha, Image.Image) else alpha)[:, :, None]
        self.px += (255 - self.px) * (np.array(colour, np.float32) / 255) * a

    def volume(self, mask, radius, shade, light, strength=1.0):
        """Rounds a flat shape: dark towards the lower right rim, light towards the upper left."""
        m = arr(mask)
        low = m * (1 - arr(blur(mask, radius, -radius * 0.7, -radius * 0.7)))
        high = m * (1 - arr(blur(mask, radius * 0.8, radius * 0.6, radius * 0.6)))
        self.multiply(shade, np.clip(low * 1.25 * strength, 0, 1))
        self.lighten(light, np.clip(high * 0.8 * strength, 0, 1))

    def strokes(self, draw):
        image = Image.fromarray(np.clip(self.px, 0, 255).astype(np.uint8))
        draw(ImageDraw.Draw(image, "RGBA"))
        self.px = np.asarray(image, np.float32).copy()


def spot(cx, cy, rx, ry, power=1.0):
    y, x = np.mgrid[0 : H * S, 0 : W * S].astype(np.float32)
    d = ((x / S - cx) / rx) ** 2 + ((y / S - cy) / ry) ** 2
    return np.exp(-d * 1.5) ** power


HAIR = [(44, 20, 14), (74, 32, 18), (112, 50, 24), (150, 74, 34), (188, 106, 52), (222, 150, 88)]


def hair_tone(level):
    level = min(max(level, 0), len(HAIR) - 1.001)
    i = int(level)
    return tuple(int(a + (b - a) * (level - i)) for a, b in zip(HAIR[i], HAIR[i + 1]))


def lock(canvas, first, second, count, tone, shine=1.0, wave=4.0, width=2.4, ragged=0.22):
    """Strands from one guide curve to another; lighter where the lock bulges towards the light."""
    a, b = curve(first, False, 20), curve(second, False, 20)
    n = min(len(a), len(b))

    def draw(d):
        for i in range(count):
            t = (i + RNG.random()) / count if RNG.random() < 0.7 else RNG.random()
            base = a[:n] * (1 - t) + b[:n] * t
            phase, amount = RNG.random() * 6.3, wave * RNG.random()
            s = np.linspace(0, 1, n)
            base = base + np.stack([np.sin(9 * s + phase), np.cos(7 * s + phase)], 1) * amount * s[:, None]
            own = RNG.gauss(0, 0.42)
            bulge = 1 - abs(2 * t - 0.85)
            w = width * (0.6 + 0.8 * RNG.random())
            stop = int((n - 1) * (1 - ragged * RNG.random() ** 2))
            for k in range(stop):
                band = np.exp(-(((s[k] - 0.30) / 0.13) ** 2)) + 0.6 * np.exp(-(((s[k] - 0.72) / 0.12) ** 2))
                level = tone + own + 0.9 * bulge + 1.25 * shine * band * (0.4 + bulge)
                d.line([tuple(base[k] * S), tuple(base[k + 1] * S)], fill=hair_tone(level) + (205,),
                       width=max(1, round(w * S * (1 - 0.6 * k / max(1, stop)) / 2)))

    canvas.strokes(draw)


def background():
    y, x = np.mgrid[0 : H * S, 0 : W * S].astype(np.float32)
    t = np.clip(0.55 * y / (H * S) + 0.45 * x / (W * S), 0, 1)[:, :, None]
    top, low = np.array([176, 196, 186.0]), np.array([58, 88, 98.0])
    c = Canvas(top * (1 - t) + low * t)
    for _ in range(46):
        r = RNG.uniform(22, 74)
        at = (RNG.uniform(-30, W + 30), RNG.uniform(-30, H))
        disc = Image.new("L", (W * S, H * S), 0)
        ImageDraw.Draw(disc).ellipse([(at[0] - r) * S, (at[1] - r) * S, (at[0] + r) * S, (at[1] + r) * S], fill=255)
        tone = RNG.choice([(255, 236, 170), (190, 222, 150), (255, 210, 160), (140, 190, 180)])
        c.lighten(tone, arr(blur(disc, 7)) * RNG.uniform(0.06, 0.24))
    return c


BODY = [(60, 1260), (84, 1090), (170, 985), (300, 930), (372, 880), (455, 900), (548, 880), (620, 930), (742, 985),
        (832, 1090), (850, 1260)]
NECK = [(376, 620), (378, 760), (366, 850), (330, 905), (390, 985), (455, 1010), (530, 985), (592, 905), (552, 850), (544, 760),
        (548, 620)]
FACE = [(452, 262), (540, 290), (594, 372), (606, 470), (598, 548), (580, 624), (542, 694), (494, 740), (450, 750), (406, 740),
        (358, 694), (320, 624), (304, 548), (298, 470), (308, 372), (362, 290)]


def clothes(c):
    body = mask_of(BODY)
    c.paint((36, 84, 104), body)
    c.volume(body, 70, (10, 30, 52), (120, 160, 170), 0.8)

    def ribs(d):
        for i in range(-40, 150):
            x = 10 * i
            d.line([(x * S + 90 * S, 900 * S), (x * S - 10 * S, 1210 * S)], fill=(12, 46, 66, 46), width=3 * S)
            d.line([(x * S + 94 * S, 900 * S), (x * S - 6 * S, 1210 * S)], fill=(150, 196, 206, 26), width=2 * S)

    before = c.px.copy()
    c.strokes(ribs)
    m = arr(body)[:, :, None]
    c.px = before * (1 - m) + c.px * m
    c.multiply((70, 80, 100), np.clip(arr(body) * arr(blur(mask_of(NECK), 26, 14, 26)) * 0.6, 0, 1))


def neck(c):
    skin = mask_of(NECK)
    c.paint((226, 172, 140), skin)
    c.volume(skin, 34, (150, 84, 66), (90, 70, 50), 0.9)
    chin = np.clip(arr(skin) * arr(blur(mask_of(FACE), 22, 12, 46)), 0, 1)
    c.multiply((158, 92, 74), chin * 0.85)
    # The collar, a soft roll of knitting.
    roll = mask_of([(346, 838), (398, 868), (458, 876), (520, 868), (572, 838), (594, 900), (584, 968), (530, 1000), (460, 1010),
                    (386, 1000), (332, 968), (324, 900)])
    c.multiply((60, 60, 80), arr(blur(roll, 14, 6, 14)) * 0.5)
    c.paint((230, 218, 194), roll)
    c.volume(roll, 26, (124, 104, 92), (190, 180, 170), 1.0)
    c.multiply((150, 130, 118), arr(roll) * arr(blur(mask_of(NECK[:4] + NECK[-4:]), 16, 8, 10)) * spot(480, 840, 160, 60) * 0.6)

    def stripes(d):
        for i in range(46):
            t = i / 45 * 2 - 1
            p, q = np.array([459 + 124 * np.sin(1.45 * t), 876 - 34 * t * t]), np.array([459 + 138 * np.sin(1.45 * t), 1010 - 44 * t * t])
            d.line([tuple(p * S), tuple(q * S)], fill=(116, 96, 80, 80), width=2 * S)
            d.line([tuple((p + 2.5) * S), tuple((q + 2.5) * S)], fill=(255, 250, 236, 60), width=S)

    before = c.px.copy()
    c.strokes(stripes)
    m = arr(roll)[:, :, None]
    c.px = before * (1 - m) + c.px * m


def head(c):
    face = mask_of(FACE)
    f = arr(face)
    c.paint((240, 192, 160), face)
    c.volume(face, 58, (168, 96, 74), (90, 74, 58), 0.95)
    c.multiply((206, 140, 116), f * spot(585, 560, 70, 170) * 0.75)
    c.multiply((216, 150, 128), f * spot(452, 300, 170, 60) * 0.55)  # under the fringe
    for x, s in ((370, 0.40), (542, 0.26)):
        c.multiply((236, 118, 104), f * spot(x, 598, 52, 38) * s)
    for x in (384, 524):
        c.multiply((196, 122, 104), f * spot(x, 488, 54, 26) * 0.40)
    c.lighten((190, 160, 130), f * spot(420, 380, 80, 46) * 0.34)
    c.lighten((200, 170, 140), f * spot(366, 566, 34, 20) * 0.45)
    c.lighten((170, 140, 120), f * spot(448, 718, 32, 16) * 0.34)
    nose(c, f)
    mouth(c, f)
    for cx, side in ((382, -1), (524, 1)):
        eye(c, cx, 500, side)


def nose(c, f):
    side = mask_of([(462, 486), (472, 540), (490, 590), (478, 612), (458, 606), (456, 540)])
    c.multiply((186, 114, 94), arr(blur(side, 8)) * 0.62)
    c.lighten((230, 210, 190), f * spot(446, 540, 8, 52) * 0.42)
    c.lighten((250, 236, 222), f * spot(447, 588, 12, 9) * 0.62)
    c.multiply((190, 110, 92), f * spot(452, 618, 36, 9) * 0.52)
    for x, w in ((430, 11), (472, 11)):
        n = mask_of([(x - w, 610), (x, 604), (x + w, 610), (x, 615)])
        c.multiply((108, 48, 40), arr(blur(n, 2.2)) * 0.85)
    wing = mask_of([(416, 590), (421, 612), (410, 608), (409, 596)])
    c.multiply((200, 130, 108), arr(blur(wing, 4)) * 0.5)
    wing = mask_of([(487, 588), (496, 600), (492, 614), (482, 612)])
    c.multiply((170, 98, 80), arr(blur(wing, 4)) * 0.65)


def mouth(c, f):
    upper = mask_of([(394, 654), (424, 646), (442, 642), (452, 646), (462, 642), (482, 646), (514, 654), (484, 663), (452, 667),
                     (422, 663)])
    lower = mask_of([(394, 654), (422, 663), (452, 667), (484, 663), (514, 654), (490, 682), (454, 691), (418, 682)])
    c.multiply((206, 140, 120), f * spot(455, 702, 40, 9) * 0.6)
    c.paint((176, 62, 66), arr(blur(upper, 1.4)))
    c.paint((204, 84, 84), arr(blur(lower, 1.6)))
    c.multiply((170, 90, 90), arr(upper) * spot(470, 660, 60, 8) * 0.5)
    c.lighten((230, 200, 196), arr(lower) * spot(440, 674, 24, 6) * 0.62)
    c.multiply((160, 80, 84), arr(lower) * spot(500, 672, 26, 18) * 0.5)

    def line(d):
        p = curve([(391, 652), (422, 663), (452, 666), (485, 663), (517, 651)], False) * S
        d.line([tuple(q) for q in p], fill=(104, 30, 36, 210), width=2 * S, joint="curve")

    c.strokes(line)
    for x in (389, 519):
        c.multiply((176, 96, 82), f * spot(x, 652, 8, 7) * 0.7)


def eye(c, cx, cy, side):
    out = side  # +1: the outer corner is to the right
    pts = [(-37, 4), (-20, -10), (0, -15), (20, -12), (40, -3), (22, 10), (0, 14), (-20, 12)]
    ball = mask_of([(cx + out * x, cy + y) for x, y in pts])
    b = arr(blur(ball, 0.8))
    c.paint((244, 238, 230), b)
    c.multiply((150, 124, 124), b * np.clip(1 - spot(cx - 4, cy + 6, 46, 15) * 1.1, 0, 1) * 0.8)
    iris, pupil = (Image.new("L", (W * S, H * S), 0) for _ in range(2))
    for m, r in ((iris, 17), (pupil, 7.5)):
        ImageDraw.Draw(m).ellipse([(cx - 2 - r) * S, (cy - 3 - r) * S, (cx - 2 + r) * S, (cy - 3 + r) * S], fill=255)
    i = arr(blur(iris, 0.9)) * b
    c.paint((64, 108, 88), i)
    c.lighten((160, 190, 110), i * spot(cx + 3, cy + 6, 13, 9) * 0.55)
    c.multiply((40, 60, 60), i * (1 - arr(blur(iris, 4))) * 1.1)
    c.paint((16, 14, 16), arr(blur(pupil, 0.8)) * b)
    c.multiply((70, 60, 66), b * spot(cx, cy - 20, 50, 11) * 0.75)
    c.paint((255, 255, 255), b * np.clip(spot(cx - 8, cy - 9, 5.5, 5.5) * 1.6, 0, 1))
    c.paint((255, 255, 255), b * spot(cx + 5, cy + 4, 3.4, 3.4) * 0.5)

    def lines(d):
        def path(p, colour, width):
            q = curve([(cx + out * x, cy + y) for x, y in p], False) * S
            d.line([tuple(v) for v in q], fill=colour, width=round(width * S), joint="curve")

        path([(-37, 4), (-20, -11), (0, -16), (20, -13), (44, -5)], (42, 20, 18, 255), 4.0)
        path([(-12, -15), (4, -18), (24, -15), (50, -10)], (42, 20, 18, 255), 3.2)
        path([(-34, -6), (-18, -20), (0, -26), (22, -24), (44, -15)], (150, 86, 70, 190), 2.2)
        path([(-30, 8), (0, 15), (24, 11), (38, 0)], (150, 84, 74, 170), 1.6)
        for k in range(8):
            x = 6 + 5.6 * k
            y = -18 + 0.0062 * (x - 2) ** 2
            path([(x, y), (x + 4 + 0.3 * k, y - 4), (x + 8 + 0.7 * k, y - 6 - 0.2 * k)], (36, 18, 16, 235), 1.5)
        for k in range(190):
            t = RNG.random()
            x, y = -44 + 92 * t, -46 - 17 * np.sin(np.pi * (0.10 + 0.70 * t)) + RNG.uniform(-5.5, 5.5) * (1.05 - 0.85 * t)
            path([(x, y + 3), (x + 6, y - 1), (x + 13, y - 1 + 6 * t)], (96, 48, 28, 92), 2.0)

    c.strokes(lines)


def back_hair(c):
    shape = mask_of([(450, 190), (570, 210), (656, 310), (676, 450), (690, 620), (738, 780), (752, 930), (690, 1050), (610, 1000),
                     (560, 860), (350, 860), (300, 1010), (214, 1046), (160, 930), (176, 780), (222, 620), (232, 450), (250, 310),
                     (330, 215)])
    c.multiply((60, 60, 70), arr(blur(shape, 26, 20, 24)) * 0.45)
    c.paint((58, 26, 16), arr(blur(shape, 2)))
    for d, tone in ((0, 0.5), (26, 0.9)):
        lock(c, [(560, 240), (640, 420), (640 - d, 640), (700 - d, 800), (690 - d, 940), (620, 1060)],
             [(590, 250), (672, 400), (700, 600), (764, 780), (762, 940), (690, 1070)], 150, tone, 0.7, 12)
        lock(c, [(330, 240), (250, 400), (220, 600), (150, 780), (150, 930), (210, 1060)],
             [(350, 250), (270, 420), (286 + d, 640), (226 + d, 800), (232 + d, 940), (300, 1050)], 150, tone + 0.5, 0.9, 12)
    lock(c, [(300, 560), (280, 760), (310, 960)], [(470, 560), (450, 760), (400, 960)], 150, -0.1, 0.2, 8)
    lock(c, [(450, 560), (470, 760), (520, 960)], [(610, 560), (650, 760), (620, 960)], 150, -0.3, 0.2, 8)


def front_hair(c):
    crown = mask_of([(296, 470), (300, 400), (350, 352), (436, 322), (508, 276), (556, 322), (596, 390), (606, 470), (632, 470),
                     (640, 350), (590, 235), (470, 184), (350, 202), (264, 290), (262, 420)])
    c.multiply((120, 70, 60), arr(blur(crown, 12, 5, 16)) * arr(mask_of(FACE)) * 0.6)
    c.paint((84, 38, 20), arr(blur(crown, 2)))
    part = (512, 208)
    lock(c, [(512, 196), (440, 190), (350, 230), (284, 320), (262, 420)],
         [(512, 268), (470, 306), (400, 346), (330, 384), (296, 470)], 260, 1.5, 0.9, 3)
    lock(c, [(508, 196), (570, 202), (630, 280), (652, 400)],
         [(510, 276), (548, 312), (590, 380), (610, 480)], 220, 1.0, 0.8, 3)
    lock(c, [part, (400, 196), (300, 260), (262, 380), (250, 500), (214, 640), (180, 790), (176, 900), (214, 1010)],
         [part, (440, 250), (350, 310), (306, 400), (290, 500), (262, 640), (224, 780), (226, 900), (262, 1000)], 230, 1.7, 1.0, 9)
    lock(c, [part, (470, 236), (400, 300), (330, 356), (298, 440), (292, 520), (270, 620), (236, 740), (240, 840)],
         [part, (506, 262), (470, 330), (392, 384), (322, 440), (304, 500), (296, 600), (268, 720), (274, 840)], 150, 2.1, 1.1, 7)
    lock(c, [part, (560, 228), (612, 300), (634, 400), (640, 500), (664, 640), (712, 780), (716, 900), (662, 1020)],
         [part, (544, 262), (590, 350), (600, 430), (604, 520), (616, 640), (660, 780), (664, 900), (616, 1000)], 220, 0.9, 0.9, 9)
    lock(c, [(520, 208), (450, 176), (350, 196), (272, 280), (246, 400), (236, 520)],
         [(516, 218), (420, 206), (320, 262), (280, 340), (262, 440), (250, 540)], 120, 1.6, 1.2, 4)
    lock(c, [(500, 206), (570, 196), (630, 270), (654, 380), (668, 520)],
         [(514, 216), (566, 238), (612, 310), (634, 400), (642, 520)], 100, 0.8, 0.9, 4)


def daisy(c, cx, cy, r):
    shadow = mask_of([(cx + r * 1.0 * np.cos(a), cy + r * 1.0 * np.sin(a)) for a in np.arange(0, 6.28, 0.5)])
    c.multiply((70, 40, 40), arr(blur(shadow, 9, 6, 8)) * 0.7)
    for ring in range(2):
        for i in range(15):
            a = 2 * np.pi * (i + 0.5 * ring) / 15 + RNG.uniform(-0.06, 0.06)
            long = r * (1.0 - 0.08 * ring) * RNG.uniform(0.93, 1.04)
            u, v = np.array([np.cos(a), np.sin(a)]), np.array([-np.sin(a), np.cos(a)])
            o = np.array([cx, cy])
            petal = mask_of([tuple(o + u * long * p + v * r * q) for p, q in
                             ((0.1, 0), (0.4, 0.10), (0.78, 0.15), (1.0, 0.05), (1.0, -0.05), (0.78, -0.15), (0.4, -0.10))])
            c.multiply((150, 140, 150), arr(blur(petal, 3, 1.5, 2)) * 0.5)
            light = 0.5 - 0.5 * (u[0] + u[1]) / 1.42
            c.paint((225 + 26 * light, 224 + 27 * light, 224 + 24 * light), arr(petal))
            c.multiply((190, 190, 205), arr(petal) * spot(cx, cy, r * 0.5, r * 0.5) * 0.7)
    heart = mask_of([(cx + r * 0.3 * np.cos(a), cy + r * 0.28 * np.sin(a)) for a in np.arange(0, 6.2, 0.6)])
    c.paint((240, 180, 40), heart)
    c.volume(heart, 9, (170, 80, 10), (255, 240, 150), 1.0)


def finish(c):
    y, x = np.mgrid[0 : H * S, 0 : W * S].astype(np.float32)
    edge = np.clip(np.hypot((x / S - 430) / 640, (y / S - 560) / 800) - 0.55, 0, 1)
    c.multiply((90, 84, 90), np.clip(edge * 0.95, 0, 1))
    c.lighten((255, 226, 180), spot(120, 140, 330, 360) * 0.16)
    small = Image.fromarray(np.clip(c.px, 0, 255).astype(np.uint8)).resize((W, H), Image.LANCZOS)
    grain = np.random.default_rng(5).normal(0, 1.6, (H, W, 1))
    return Image.fromarray(np.clip(np.asarray(small, np.float32) + grain, 0, 255).astype(np.uint8))


if __name__ == "__main__":
    canvas = background()
    back_hair(canvas)
    clothes(canvas)
    neck(canvas)
    head(canvas)
    front_hair(canvas)
    daisy(canvas, 612, 352, 50)
    target = Path(__file__).resolve().parent.parent / "pictures/portrait.jpg"
    finish(canvas).save(target, quality=88, optimize=True, progressive=True)
