#!/usr/bin/python3
"""Draws the library's cursors, pixmaps and animations.

    /usr/bin/python3 tools/gen_bitmaps.py                 # rewrites orq/resources/{cursors,pixmaps,movies}
    /usr/bin/python3 tools/gen_bitmaps.py --sheet X.png   # also writes a contact sheet for review

Needs PIL and the DejaVu fonts. Everything is drawn from code so that the art
can be changed and rebuilt; PIL writes no timestamps, so reruns are identical.
"""
import io
import math
import os
import sys

from PIL import Image, ImageChops, ImageDraw, ImageFont, ImageStat, features

HERE = os.path.dirname(os.path.abspath(__file__))
RES = os.path.normpath(os.path.join(HERE, "..", "orq", "resources"))
FONT_DIR = "/usr/share/fonts/truetype/dejavu"
S = 4  # supersampling factor of the pixmaps

SLATE_DARK, SLATE_LIGHT = (0x1d, 0x2b, 0x3a), (0x2f, 0x4a, 0x66)
SLATE_MID, SLATE_PALE = (0x5a, 0x7e, 0xa6), (0xd6, 0xdf, 0xe8)
TEAL, TEAL_DARK = (0x3c, 0xbf, 0xb4), (0x1f, 0x8f, 0x86)
WHITE, MUTED = (0xff, 0xff, 0xff), (0x9f, 0xb3, 0xc8)
GREEN, RED, AMBER = (0x3a, 0x9d, 0x5d), (0xd0, 0x46, 0x3c), (0xf0, 0xa0, 0x30)


def rgba(c, a=255):
    return tuple(c[:3]) + (a,)


def mix(a, b, t):
    return tuple(round(x + (y - x) * t) for x, y in zip(a, b))


# ============================================================== cursors
# Cursors are pixel sets in a 32x32 grid, coordinates of pixel centres, so a
# shape centred on an integer point is exactly symmetric about that pixel.

def disc(cx, cy, r0, r1):
    return {(x, y) for x in range(32) for y in range(32)
            if r0 <= math.hypot(x - cx, y - cy) <= r1}


def segment(x0, y0, x1, y1, hw):
    out, dx, dy = set(), x1 - x0, y1 - y0
    n = dx * dx + dy * dy
    for x in range(32):
        for y in range(32):
            t = max(0.0, min(1.0, ((x - x0) * dx + (y - y0) * dy) / n))
            if math.hypot(x - x0 - t * dx, y - y0 - t * dy) <= hw:
                out.add((x, y))
    return out


def dilate(px):
    return {(x + dx, y + dy) for x, y in px for dx in (-1, 0, 1) for dy in (-1, 0, 1)}


# Drawn by hand: rasterised polygons this small come out ragged at the notch.
# Tip at the top left; the stem leaves the body at a notch, as pointers do.
ARROW = ["X", "XX", "XXX", "XXXX", "XXXXX", "XXXXXX", "XXXXXXX", "XXXXXXXX", "XXXXXXXXX",
         "XXXXXXXXXX", "XXXXXXXXXXX", "XXXXXXX", "XXX.XXX", "XX..XXX", "X....XXX", ".....XXX",
         "......XXX", "......XXX"]


def arrow(tx, ty):
    return {(tx + x, ty + y) for y, row in enumerate(ARROW) for x, c in enumerate(row) if c == "X"}


def lens(cx, cy):
    ring = disc(cx, cy, 5.6, 7.4)
    a = 1 / math.sqrt(2)
    handle = segment(cx + 7.6 * a, cy + 7.6 * a, cx + 14.5 * a, cy + 14.5 * a, 1.6)
    return ring | handle, disc(cx, cy, 0, 5.6)


def forbidden(cx, cy, r):
    ring = disc(cx, cy, r - 2.2, r)
    d = (r - 2) / math.sqrt(2)
    return ring | segment(cx - d, cy - d, cx + d, cy + d, 1.2), disc(cx, cy, 0, r - 2.2)


def clock_badge(cx, cy):
    ink = disc(cx, cy, 5.5, 6.5) | segment(cx, cy, cx, cy - 4, 0.5) | segment(cx, cy, cx + 3, cy, 0.5)
    return ink, disc(cx, cy, 0, 6.5)


def dashed_rect_badge(x0, y0, x1, y1):
    ink = {(x, y) for x in range(x0, x1 + 1) for y in (y0, y1) if (x - x0) % 4 < 2}
    ink |= {(x, y) for y in range(y0, y1 + 1) for x in (x0, x1) if (y - y0) % 4 < 2}
    return ink, {(x, y) for x in range(x0, x1 + 1) for y in range(y0, y1 + 1)}


def four_way(cx, cy):
    up = {(cx + dx, cy - 7 + k) for k in range(3) for dx in range(-k, k + 1)}
    up |= {(cx, cy - 7 + k) for k in range(3, 8)}
    out = set()
    for _ in range(4):
        out |= up
        up = {(cx - (y - cy), cy + (x - cx)) for x, y in up}
    return out


def cursors():
    zi_ink, zi_fill = lens(11, 11)
    zo_ink, zo_fill = set(zi_ink), zi_fill
    zi_ink |= {(x, 11) for x in range(8, 15)} | {(11, y) for y in range(8, 15)}
    zo_ink |= {(x, 11) for x in range(8, 15)}
    mg_ink, _ = lens(11, 11)  # empty lens: the user sees what is aimed at
    ck_ink, ck_fill = clock_badge(23, 23)
    dr_ink, dr_fill = dashed_rect_badge(17, 20, 29, 28)
    fb_ink, _ = forbidden(15, 15, 10.5)
    fa_ink, fa_fill = forbidden(24, 24, 6.5)
    return [
        ("orq_zoomin_cur", (11, 11), zi_ink, zi_fill),
        ("orq_zoomout_cur", (11, 11), zo_ink, zo_fill),
        ("orq_clock_assignment_cursor", (0, 0), arrow(0, 0) | ck_ink, ck_fill),
        ("orq_create_ll_region", (0, 0), arrow(0, 0) | dr_ink, dr_fill),
        ("orq_move_cursor", (8, 8), four_way(8, 8), set()),
        ("orq_arrow_cursor", (8, 6), arrow(8, 6), set()),
        ("orq_forbidden_cursor", (15, 15), fb_ink, set()),
        ("orq_arrow_forbidden_cursor", (4, 2), arrow(4, 2) | fa_ink, fa_fill),
        ("orq_magnifying_cur", (11, 11), mg_ink, set()),
    ]


def write_cursors(out):
    os.makedirs(out, exist_ok=True)
    sheet = []
    for name, hot, ink, fill in cursors():
        # Black ink gets a white rim so it reads on dark and light backgrounds.
        ink = {p for p in ink if 0 <= p[0] < 32 and 0 <= p[1] < 32}
        visible = {p for p in (ink | fill | dilate(ink)) if 0 <= p[0] < 32 and 0 <= p[1] < 32}
        assert name == "orq_magnifying_cur" or hot in ink, name
        bitmap, mask = Image.new("1", (32, 32), 1), Image.new("1", (32, 32), 1)
        for p in ink:
            bitmap.putpixel(p, 0)
        for p in visible:
            mask.putpixel(p, 0)
        bitmap.save(os.path.join(out, name + ".png"), optimize=True)
        mask.save(os.path.join(out, name + "_mask.png"), optimize=True)
        sheet.append((name, hot, bitmap, mask))
    return sheet


# ============================================================== pixmaps

def font(size, face="DejaVuSans.ttf"):
    return ImageFont.truetype(os.path.join(FONT_DIR, face), round(size * S))


BOLD = "DejaVuSans-Bold.ttf"
# libimagequant keeps soft edges best; Pillow builds without it fall back.
QUANTIZER = (Image.Quantize.LIBIMAGEQUANT if features.check("libimagequant")
             else Image.Quantize.FASTOCTREE)


class Art:
    """A canvas S times the output size; coordinates are in output pixels."""

    def __init__(self, w, h, bg=(0, 0, 0, 0)):
        self.w, self.h = w, h
        self.im = Image.new("RGBA", (w * S, h * S), bg)
        self.d = ImageDraw.Draw(self.im)

    @staticmethod
    def _s(seq):
        return [v * S for v in seq]

    def rect(self, box, fill=None, outline=None, width=1, r=0):
        self.d.rounded_rectangle(self._s(box), radius=r * S, fill=fill, outline=outline,
                                 width=round(width * S))

    def circle(self, cx, cy, r, fill=None, outline=None, width=1):
        self.d.ellipse(self._s((cx - r, cy - r, cx + r, cy + r)), fill=fill, outline=outline,
                       width=round(width * S))

    def arc(self, cx, cy, r, a0, a1, fill, width):
        self.d.arc(self._s((cx - r, cy - r, cx + r, cy + r)), a0, a1, fill=fill, width=round(width * S))

    def line(self, pts, fill, width, caps=True):
        flat = self._s([v for p in pts for v in p])
        self.d.line(flat, fill=fill, width=round(width * S), joint="curve")
        if caps:  # PIL lines end square; round caps look calmer
            for x, y in (pts[0], pts[-1]):
                self.circle(x, y, width / 2, fill=fill)

    def poly(self, pts, fill):
        self.d.polygon(self._s([v for p in pts for v in p]), fill=fill)

    def text(self, xy, s, size, fill, face="DejaVuSans.ttf", anchor="ls"):
        f = font(size, face)
        box = self.d.textbbox(self._s(xy), s, font=f, anchor=anchor)
        # Clipped text is the easiest mistake to miss in review.
        assert box[0] >= 0 and box[1] >= 0 and box[2] <= self.im.width and box[3] <= self.im.height, s
        self.d.text(self._s(xy), s, font=f, fill=fill, anchor=anchor)

    def layer(self, other):
        self.im.alpha_composite(other.im)

    def gradient(self, top, bottom, diagonal=0.35):
        """Vertical gradient leaning towards the lower right."""
        ramp = Image.linear_gradient("L")
        v, h = ramp.resize(self.im.size), ramp.rotate(-90).resize(self.im.size)
        m = Image.blend(v, h, diagonal)
        self.im.paste(Image.composite(Image.new("RGBA", self.im.size, rgba(bottom)),
                                      Image.new("RGBA", self.im.size, rgba(top)), m))

    def result(self):
        return self.im.resize((self.w, self.h), Image.Resampling.LANCZOS)


def backdrop(w, h, diagonal=0.35):
    """The house background, and a clear layer for translucent decoration on it."""
    a = Art(w, h)
    a.gradient(SLATE_DARK, SLATE_LIGHT, diagonal)
    return a, Art(w, h)


def save_png(im, path):
    """A palette PNG where 256 colours reproduce the image closely and save bytes, else RGBA."""
    q = im.quantize(256, method=QUANTIZER, dither=Image.Dither.NONE)
    # Compared premultiplied: the colour of a transparent pixel does not matter.
    err = ImageStat.Stat(ImageChops.difference(q.convert("RGBA").convert("RGBa"), im.convert("RGBa"))).mean
    blobs = []
    for candidate in ([q] if max(err) < 0.6 else []) + [im]:
        buf = io.BytesIO()
        candidate.save(buf, "PNG", optimize=True)
        blobs.append(buf.getvalue())
    with open(path, "wb") as f:
        f.write(min(blobs, key=len))


def mark(a, cx, cy, s, frame=WHITE, v=TEAL):
    """The Vantor mark: a die outline with pins, a V etched into it."""
    h = s / 2
    a.rect((cx - h, cy - h, cx + h, cy + h), outline=frame, width=s * 0.07, r=s * 0.12)
    for o in (-s * 0.25, 0, s * 0.25):
        for dx, dy in ((0, -1), (0, 1), (-1, 0), (1, 0)):
            x, y = cx + (dx * h if dx else o), cy + (dy * h if dy else o)
            a.line([(x, y), (x + dx * s * 0.13, y + dy * s * 0.13)], frame, s * 0.055)
    a.circle(cx - h + s * 0.17, cy - h + s * 0.17, s * 0.045, fill=frame)  # pin-1 dot
    a.line([(cx - s * 0.23, cy - s * 0.2), (cx, cy + s * 0.22), (cx + s * 0.23, cy - s * 0.2)], v, s * 0.1)


def bus(a, ys, x_start, bend, jog, ends, colour, vias=(True, True)):
    """Parallel routed wires with one 45-degree jog, like a bus on a board.

    Wire i runs at ys[i] - jog, jogs onto ys[i] and ends at ends[i]. Lower
    wires jog earlier so the diagonal keeps the same pitch as the straights.
    """
    k = (math.sqrt(2) - 1) * (1 if jog > 0 else -1)
    for i, (y, xe) in enumerate(zip(ys, ends)):
        bx = bend - k * (y - ys[0])
        pts = [(x_start - 7 * (i % 3), y - jog), (bx, y - jog), (bx + abs(jog), y), (xe, y)]
        a.line(pts, colour, 1.4, caps=False)
        for (x, yy), on in zip((pts[0], pts[-1]), vias):
            if on:
                a.circle(x, yy, 2.6, fill=colour)


def splash():
    a, t = backdrop(480, 300)
    bus(t, [218 + 11 * i for i in range(6)], 268, 340, 18, [452 - 18 * (i % 3) for i in range(6)],
        rgba(TEAL, 70))
    a.layer(t)
    mark(a, 108, 128, 92)
    a.text((190, 125), "Vantor", 46, WHITE, BOLD)
    a.text((192, 162), "Design Suite", 25, rgba(SLATE_PALE), "DejaVuSans.ttf")
    a.line([(192, 180), (300, 180)], TEAL, 2, caps=False)
    return a.result()  # the bottom left stays free for the version line


def fpv_splash():
    a, t = backdrop(480, 300)
    # A die floorplan: macro blocks on a placement grid.
    t.rect((280, 40, 450, 230), outline=rgba(TEAL, 110), width=1.5, r=3)
    for box in ((292, 52, 360, 110), (368, 52, 438, 88), (368, 96, 438, 150), (292, 118, 360, 218),
                (368, 158, 404, 218), (410, 158, 438, 218)):
        t.rect(box, fill=rgba(TEAL, 28), outline=rgba(TEAL, 90), width=1)
    a.layer(t)
    mark(a, 58, 80, 40)
    a.text((94, 88), "Vantor", 22, rgba(SLATE_PALE), BOLD)
    a.text((34, 160), "Floorplan", 36, WHITE, BOLD)
    a.text((34, 200), "Viewer", 36, WHITE, BOLD)
    a.line([(36, 218), (150, 218)], TEAL, 2, caps=False)
    return a.result()


def cloud(a, cx, cy, s, fill):
    a.circle(cx - s * 0.22, cy + s * 0.02, s * 0.2, fill=fill)
    a.circle(cx + s * 0.06, cy - s * 0.08, s * 0.27, fill=fill)
    a.circle(cx + s * 0.3, cy + s * 0.06, s * 0.17, fill=fill)
    a.rect((cx - s * 0.42, cy + s * 0.02, cx + s * 0.47, cy + s * 0.23), fill=fill, r=s * 0.1)


def magnifier(a, cx, cy, r, ring=SLATE_LIGHT):
    d = r / math.sqrt(2)
    a.line([(cx + d, cy + d), (cx + d * 2.1, cy + d * 2.1)], ring, r * 0.5)
    a.circle(cx, cy, r, fill=WHITE, outline=ring, width=r * 0.3)


def gear(a, cx, cy, r_out, r_in, teeth, fill, hole, angle=0.0):
    p, pts = 2 * math.pi / teeth, []
    for i in range(teeth):
        for f, r in ((-0.5, r_in), (-0.3, r_in), (-0.17, r_out), (0.17, r_out), (0.3, r_in)):
            t = angle + (i + f) * p
            pts.append((cx + r * math.cos(t), cy + r * math.sin(t)))
    a.poly(pts, fill)
    a.circle(cx, cy, hole, fill=(0, 0, 0, 0))


def tick(a, cx, cy, s, colour, width):
    a.line([(cx - s * 0.5, cy), (cx - s * 0.15, cy + s * 0.35), (cx + s * 0.5, cy - s * 0.35)], colour, width)


def status_circle(a, cx, cy, r, colour, glyph):
    a.circle(cx, cy, r, fill=colour)
    if glyph == "check":
        tick(a, cx, cy + r * 0.05, r * 1.05, WHITE, r * 0.22)
    else:
        k = r * 0.38
        a.line([(cx - k, cy - k), (cx + k, cy + k)], WHITE, r * 0.22)
        a.line([(cx - k, cy + k), (cx + k, cy - k)], WHITE, r * 0.22)


def update_icon(kind):
    a = Art(64, 64)
    if kind == "check":
        cloud(a, 28, 28, 52, SLATE_MID)
        magnifier(a, 38, 38, 11, SLATE_LIGHT)
    elif kind == "available":
        cloud(a, 31, 30, 56, SLATE_MID)
        a.line([(32, 22), (32, 42)], WHITE, 5)
        a.line([(24, 35), (32, 43), (40, 35)], WHITE, 5)
        a.circle(52, 13, 8, fill=WHITE)
        a.circle(52, 13, 6, fill=AMBER)
    elif kind == "downloading":
        a.circle(32, 32, 24, outline=SLATE_PALE, width=7)
        a.arc(32, 32, 24, -90, 150, TEAL, 7)
        for t in (-90, 150):
            r = math.radians(t)
            a.circle(32 + 20.5 * math.cos(r), 32 + 20.5 * math.sin(r), 3.5, fill=TEAL)
        a.line([(32, 21), (32, 40)], SLATE_LIGHT, 4.5)
        a.line([(25, 34), (32, 41), (39, 34)], SLATE_LIGHT, 4.5)
    elif kind == "ready":
        a.rect((8, 20, 50, 54), fill=SLATE_MID, r=3)
        a.rect((5, 12, 53, 22), fill=SLATE_LIGHT, r=3)
        a.rect((24, 12, 34, 38), fill=SLATE_PALE)
        a.circle(48, 48, 13, fill=WHITE)
        status_circle(a, 48, 48, 11, GREEN, "check")
    elif kind == "installed":
        status_circle(a, 32, 32, 27, GREEN, "check")
    elif kind == "failed":
        status_circle(a, 32, 32, 27, RED, "cross")
    elif kind == "settings":
        gear(a, 32, 32, 28, 21, 8, SLATE_LIGHT, 8)
        a.circle(32, 32, 14, outline=SLATE_MID, width=3)
    return a.result()


def documentation_url():
    a = Art(32, 32)
    a.rect((6, 3, 25, 27), fill=SLATE_LIGHT, r=2)
    a.rect((6, 24, 25, 29), fill=SLATE_PALE, outline=SLATE_LIGHT, width=1.2, r=1.5)
    a.rect((6, 3, 10, 29), fill=SLATE_DARK, r=1.5)
    a.line([(14, 9), (21, 9)], TEAL, 1.6)
    a.line([(14, 13), (19, 13)], SLATE_PALE, 1.2)
    for (x0, y0, x1, y1) in ((17, 26, 22, 21), (22, 24, 27, 19)):  # two chain links
        a.line([(x0, y0), (x1, y1)], WHITE, 6.4)
        a.line([(x0, y0), (x1, y1)], TEAL_DARK, 4.4)
        a.line([(x0, y0), (x1, y1)], WHITE, 1.6)
    return a.result()


def notification_center():
    a = Art(32, 32)
    a.circle(16, 25.5, 3.2, fill=SLATE_LIGHT)  # clapper
    a.poly([(9, 14), (23, 14), (25, 22), (27, 24), (5, 24), (7, 22)], SLATE_LIGHT)
    a.circle(16, 13.5, 7, fill=SLATE_LIGHT)
    a.rect((4, 22.5, 28, 25.5), fill=SLATE_LIGHT, r=1.5)
    a.circle(16, 5, 2, fill=SLATE_LIGHT)
    a.arc(16, 14, 4.5, 200, 260, SLATE_MID, 1.4)
    return a.result()


def mdi_watermark():
    a = Art(256, 256)
    mark(a, 128, 128, 150, frame=(0xe4, 0xe7, 0xea, 255), v=(0xe4, 0xe7, 0xea, 255))
    return a.result()


def diagonal_text(text, colour, size, face=BOLD):
    a = Art(256, 256)
    f = font(size, face)
    w = int(a.d.textlength(text, font=f)) + 8 * S
    strip = Image.new("RGBA", (w, int(size * 1.6 * S)), (0, 0, 0, 0))
    ImageDraw.Draw(strip).text((w / 2, strip.height / 2), text, font=f, fill=colour, anchor="mm")
    strip = strip.rotate(35, resample=Image.Resampling.BICUBIC, expand=True)
    assert strip.width <= a.im.width and strip.height <= a.im.height, text
    a.im.alpha_composite(strip, ((a.im.width - strip.width) // 2, (a.im.height - strip.height) // 2))
    return a.result()


def welcome(globe=False):
    a, t = backdrop(640, 400)
    if globe:
        cx, cy, r, c = 500, 250, 110, rgba(TEAL, 70)
        t.circle(cx, cy, r, outline=c, width=2)
        for k in (0.35, 0.7):
            t.d.ellipse(t._s((cx - r * k, cy - r, cx + r * k, cy + r)), outline=c, width=round(1.5 * S))
        for k in (-0.55, 0, 0.55):
            hw = r * math.sqrt(1 - k * k)
            t.line([(cx - hw, cy + k * r), (cx + hw, cy + k * r)], c, 1.5, caps=False)
        t.line([(cx, cy - r), (cx, cy + r)], c, 1.5, caps=False)
    else:
        # Wires routed into the pins of a faint die, away from the title.
        cx, cy, s = 540, 262, 120
        bus(t, [cy + s * 0.25 * i for i in (-1, 0, 1)], 320, 400, 26, [cx - s * 0.63] * 3,
            rgba(TEAL, 70), vias=(True, False))
        mark(t, cx, cy, s, frame=rgba(WHITE, 30), v=rgba(TEAL, 50))
    a.layer(t)
    mark(a, 62, 66, 40)
    a.text((102, 78), "Welcome to Vantor", 30, WHITE, BOLD)
    a.line([(104, 94), (230, 94)], TEAL, 2, caps=False)
    return a.result()


def window(a, x, y, w, h, title_col=SLATE_LIGHT):
    """A small application window: title bar, list on the left, pane on the right."""
    a.rect((x, y, x + w, y + h), fill=(0xf3, 0xf6, 0xf9), outline=SLATE_LIGHT, width=1.2, r=4)
    a.rect((x, y, x + w, y + 16), fill=title_col, r=4)
    a.rect((x, y + 10, x + w, y + 16), fill=title_col)
    for i, c in enumerate(((0xe0, 0x6c, 0x5f), AMBER, TEAL)):
        a.circle(x + w - 10 - i * 9, y + 8, 2.6, fill=c)
    a.rect((x + 5, y + 8 - 1.5, x + 40, y + 8 + 1.5), fill=SLATE_PALE, r=1)
    a.rect((x + 5, y + 21, x + 62, y + h - 5), fill=(0xe2, 0xe9, 0xf0), r=2)
    for i in range(int((h - 32) // 12)):
        sel = i == 1
        ry = y + 26 + i * 12
        if sel:
            a.rect((x + 7, ry - 2, x + 60, ry + 8), fill=rgba(TEAL, 90), r=1.5)
        a.rect((x + 11, ry + 1.5, x + 41 + (i * 7) % 16, ry + 4.5), fill=SLATE_LIGHT if sel else SLATE_MID,
               r=1)
    return x + 68, y + 21, x + w - 5, y + h - 5


def mwpim(kind):
    a = Art(240, 160)
    a.gradient((0xe9, 0xee, 0xf3), (0xd3, 0xdc, 0xe6))
    x0, y0, x1, y1 = window(a, 8, 8, 224, 144)
    a.rect((x0, y0, x1, y1), fill=WHITE, outline=SLATE_PALE, width=1, r=2)
    if kind == "cec":
        cx, cy = (x0 + x1) / 2, (y0 + y1) / 2
        for i in range(4):  # pins in, pins out, with wires to the frame
            yy = cy - 22 + i * 14.7
            a.line([(x0 + 10, yy), (cx - 28, yy)], SLATE_MID, 1.4, caps=False)
            a.line([(cx + 28, yy), (x1 - 10, yy)], SLATE_MID, 1.4, caps=False)
            a.circle(x0 + 10, yy, 2.2, fill=TEAL_DARK)
            a.circle(x1 - 10, yy, 2.2, fill=TEAL_DARK)
        a.rect((cx - 28, cy - 32, cx + 28, cy + 32), fill=SLATE_LIGHT, r=4)
        a.circle(cx - 20, cy - 24, 2, fill=SLATE_MID)
        a.text((cx, cy + 1), "CEC", 15, WHITE, BOLD, anchor="mm")
    else:
        for i in range(5):
            ry = y0 + 10 + i * 21
            a.rect((x0 + 8, ry + 3, x0 + 40, ry + 7), fill=SLATE_MID, r=1)
            if i == 2:  # a check box row
                a.rect((x0 + 50, ry, x0 + 60, ry + 10), fill=TEAL, r=1.5)
                tick(a, x0 + 55, ry + 5, 6, WHITE, 1.6)
            else:
                a.rect((x0 + 50, ry, x1 - 8, ry + 10), fill=WHITE, outline=SLATE_MID, width=1, r=1.5)
                a.rect((x0 + 54, ry + 3.5, x0 + 54 + 18 + i * 9, ry + 6.5), fill=SLATE_PALE, r=1)
                if i == 1:  # a drop-down
                    a.poly([(x1 - 17, ry + 3.5), (x1 - 11, ry + 3.5), (x1 - 14, ry + 7)], SLATE_LIGHT)
        a.rect((x1 - 40, y1 - 14, x1 - 6, y1 - 4), fill=TEAL_DARK, r=2)
    return a.result()


def banner(title, motif):
    a, t = backdrop(480, 80, diagonal=0.7)
    if motif == "catalog":
        for i in range(7):
            for j in range(3):
                t.rect((330 + i * 20, 14 + j * 20, 344 + i * 20, 28 + j * 20),
                       outline=rgba(TEAL, 40 + ((i + 2 * j) % 4) * 25), width=1.2, r=2)
    else:
        for i in range(4):
            px = 340 + i * 32
            t.rect((px, 12 + i % 2 * 6, px + 26, 70 + i % 2 * 6), outline=rgba(TEAL, 70), width=1.2, r=2)
            for k in range(4):
                t.line([(px + 5, 22 + i % 2 * 6 + k * 9), (px + 21 - (k % 2) * 6, 22 + i % 2 * 6 + k * 9)],
                       rgba(SLATE_PALE, 70), 1.2, caps=False)
    a.layer(t)
    mark(a, 38, 40, 30)
    a.text((76, 51), title, 28, WHITE, BOLD)
    return a.result()


def tedq_error():
    a = Art(16, 16)
    a.circle(8, 8, 7.5, fill=RED)
    a.rect((7, 3.2, 9, 9.6), fill=WHITE, r=1)
    a.circle(8, 12, 1.15, fill=WHITE)
    return a.result()


def status_light():
    # The one flat icon of the icon catalogue: a status light for status bars.
    # 32 pixels: Qt scales a bitmap icon down for 16, never up.
    a = Art(32, 32)
    a.circle(16, 16, 13, fill=SLATE_MID)
    a.circle(16, 16, 10.4, fill=GREEN)
    a.circle(13.2, 12.8, 3.2, fill=(0xd8, 0xf5, 0xdc, 255))
    return a.result()


def ip_upgrade():
    a = Art(320, 200)
    a.rect((0, 0, 320, 200), fill=(0xf3, 0xf6, 0xf9))
    a.rect((0, 0, 320, 24), fill=SLATE_LIGHT)
    a.text((10, 17), "IP Upgrade", 11, WHITE, BOLD)
    a.rect((8, 32, 312, 48), fill=SLATE_PALE, r=2)
    for cx, w in ((16, 60), (130, 40), (190, 40), (262, 36)):
        a.rect((cx, 38.5, cx + w, 41.5), fill=SLATE_LIGHT, r=1)
    states = (GREEN, AMBER, GREEN, RED, AMBER, GREEN, GREEN)
    for i, c in enumerate(states):
        ry = 52 + i * 20
        if i % 2:
            a.rect((8, ry, 312, ry + 20), fill=(0xe7, 0xed, 0xf3))
        a.rect((16, ry + 8.5, 16 + 50 + (i * 13) % 40, ry + 11.5), fill=SLATE_MID, r=1)
        for cx in (130, 190):
            a.rect((cx, ry + 8.5, cx + 24, ry + 11.5), fill=MUTED, r=1)
        a.circle(268, ry + 10, 4.2, fill=c)
        if c != GREEN:
            a.line([(280, ry + 10), (298, ry + 10)], TEAL_DARK if c == AMBER else RED, 3)
    a.rect((8, 32, 312, 192), outline=SLATE_PALE, width=1, r=2)
    return a.result()


def pixmaps():
    kinds = ("check", "available", "downloading", "ready", "installed", "failed", "settings")
    out = [("pixmaps/orq_splash_screen.png", splash()), ("pixmaps/orq_fpv_splash_screen.png", fpv_splash())]
    out += [("pixmaps/orq_update_%s.png" % k, update_icon(k)) for k in kinds]
    out += [("pixmaps/orq_documentation_url.png", documentation_url()),
            ("pixmaps/orq_notification_center.png", notification_center()),
            ("pixmaps/orq_mdi_watermark.png", mdi_watermark()),
            ("pixmaps/orq_welcome_screen.png", welcome()),
            ("pixmaps/orq_out_of_date_watermark.png",
             diagonal_text("Out of date", (0xf0, 0xa8, 0xa8, 255), 36)),
            ("pixmaps/orq_mwpim_cec.png", mwpim("cec")),
            ("pixmaps/orq_mwpim_config.png", mwpim("config")),
            ("pixmaps/orq_web_welcome_screen.png", welcome(globe=True)),
            ("pixmaps/orq_ip_catalog_banner.png", banner("IP Catalog", "catalog")),
            ("pixmaps/orq_release_notes_banner.png", banner("Release Notes", "notes")),
            ("pixmaps/orq_tedq_error_indicator.png", tedq_error()),
            ("pixmaps/orq_ip_upgrade_screenshot.png", ip_upgrade()),
            ("icons/orq_beta.png", diagonal_text("BETA", (0xa8, 0xcc, 0xf0, 255), 64)),
            ("icons/flat/orq_status.png", status_light())]
    return out


# ============================================================== animations

def gif_frames(draw, size, matte=(0xf0, 0xf0, 0xf0)):
    """Renders the frames on one shared palette; index 0 is the transparent colour.

    GIF has no partial alpha. Edges are blended against the library's window
    colour and cut at half coverage: smooth where the animations are shown,
    and only a faint rim on a dark background.
    """
    rgb, masks = [], []
    for f in range(12):
        a = Art(size, size)
        draw(a, f)
        im = a.result()
        bg = Image.new("RGBA", im.size, rgba(matte))
        bg.alpha_composite(im)
        rgb.append(bg.convert("RGB"))
        masks.append(im.getchannel("A").point(lambda v: 0 if v >= 128 else 255))
    strip = Image.new("RGB", (size * 12, size))
    for f, im in enumerate(rgb):
        strip.paste(im, (f * size, 0))
    pal = strip.quantize(255, method=Image.Quantize.MEDIANCUT, dither=Image.Dither.NONE).getpalette()
    pal_im = Image.new("P", (1, 1))
    pal_im.putpalette([255, 0, 255] + pal[:255 * 3])
    frames = []
    for im, m in zip(rgb, masks):
        q = im.quantize(palette=pal_im, dither=Image.Dither.NONE)
        q.paste(0, mask=m)
        frames.append(q)
    return frames


def spinner():
    steps = [mix(SLATE_LIGHT, (0xc3, 0xce, 0xd9), k / 11) for k in range(12)]

    def draw(a, f):
        for i in range(12):
            age = (f - i) % 12
            t = math.radians(i * 30 - 90)
            # Centred on pixel centres: hard-edged GIF dots are only round there.
            x, y = math.floor(16 + 11 * math.cos(t)) + 0.5, math.floor(16 + 11 * math.sin(t)) + 0.5
            a.circle(x, y, 2.9 - age * 0.09, fill=steps[age])
    return gif_frames(draw, 32)


def rgen_wheel():
    def draw(a, f):
        # One tooth pitch per loop keeps the seam invisible.
        gear(a, 24, 24, 22, 16.5, 8, SLATE_LIGHT, 0, angle=2 * math.pi / 8 * f / 12)
        a.circle(24, 24, 11, fill=TEAL)
        a.circle(24, 24, 5, fill=(0, 0, 0, 0))
    return gif_frames(draw, 48)


def save_gif(frames, path):
    frames[0].save(path, save_all=True, append_images=frames[1:], duration=80, loop=0,
                   transparency=0, disposal=2, optimize=False)


# ============================================================== review sheet

def contact_sheet(path, cursor_list, images, gifs):
    tiles = []
    for name, hot, bitmap, mask in cursor_list:
        t = Image.new("RGB", (32, 32), (128, 128, 128))
        t.paste((255, 255, 255), mask=ImageChops.invert(mask.convert("L")))
        t.paste((0, 0, 0), mask=ImageChops.invert(bitmap.convert("L")))
        t.putpixel(hot, (255, 0, 0))
        tiles.append(t.resize((128, 128), Image.Resampling.NEAREST))
    for _, im in images + gifs:
        bg = Image.new("RGBA", im.size, (128, 128, 128, 255))
        bg.alpha_composite(im.convert("RGBA"))
        tiles.append(bg.convert("RGB"))
    width, x, y, row_h, placed = 1300, 0, 0, 0, []
    for t in tiles:
        if x + t.width > width:
            x, y, row_h = 0, y + row_h + 8, 0
        placed.append((t, x, y))
        x, row_h = x + t.width + 8, max(row_h, t.height)
    sheet = Image.new("RGB", (width, y + row_h), (60, 60, 60))
    for t, x, y in placed:
        sheet.paste(t, (x, y))
    sheet.save(path)


def main():
    sheet = sys.argv[sys.argv.index("--sheet") + 1] if "--sheet" in sys.argv else None
    cursor_list = write_cursors(os.path.join(RES, "cursors"))
    images = pixmaps()
    for rel, im in images:
        os.makedirs(os.path.dirname(os.path.join(RES, rel)), exist_ok=True)
        save_png(im, os.path.join(RES, rel))
    os.makedirs(os.path.join(RES, "movies"), exist_ok=True)
    gifs = []
    for name, frames in (("orq_busy_spinner.gif", spinner()), ("orq_ip_rgenwheel.gif", rgen_wheel())):
        save_gif(frames, os.path.join(RES, "movies", name))
        gifs.append((name, Image.open(os.path.join(RES, "movies", name)).convert("RGBA")))
    if sheet:
        contact_sheet(sheet, cursor_list, images, gifs)


if __name__ == "__main__":
    main()
