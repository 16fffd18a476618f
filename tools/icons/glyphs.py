"""Glyphs and badges of the ORQ icon set, drawn on a 16-unit grid.

Conventions every drawing keeps, so the set reads as one family at 16 px
and stays crisp at 32 px:

* Outlines are 1-unit strokes on half-unit coordinates (x.5): at 16 px a
  stroke then covers exactly one pixel column or row instead of smearing
  over two.  Filled shapes without a stroke sit on whole units.
* Outlines use OUTLINE; bodies use WHITE, LIGHT or MID.  One accent hue per
  glyph, reached only through the canvas roles A (full), S (half tint),
  T (light tint) and D (darkened), so that a recipe accent recolours every
  accent part and nothing else.  The palette's paint dots and the pencil's
  bare wood are the only fixed colours outside that scheme.
* A badge lives in the lower-right 8x8 quadrant and is preceded by a white
  knockout one unit wider than its shapes, which keeps it legible whatever
  lies under it.
"""

import math

OUTLINE = "#3c4856"
WHITE = "#ffffff"
LIGHT = "#eef2f6"
MID = "#dfe6ee"
# Text lines and other fine detail: light enough to stay behind the outline,
# dark enough not to vanish on white at 16 px.
DETAIL = "#97a3b0"
# Bare wood of a sharpened pencil, its only fixed non-neutral colour.
WOOD = "#f2dcb3"

ACCENTS = {
    "blue": "#1f6fd1",
    "green": "#2e8b3a",
    "red": "#d13b2f",
    "orange": "#e08a1e",
    "purple": "#7b4bb5",
    "teal": "#1a9a9a",
    "gray": "#6b7785",
    "yellow": "#d9a400",
}
BLUE, GREEN, RED, ORANGE, PURPLE, TEAL, GRAY, YELLOW = (
    ACCENTS[k] for k in ("blue", "green", "red", "orange", "purple", "teal", "gray", "yellow"))


def mix(a, b, t):
    """Colour a moved the fraction t towards colour b."""
    ca = [int(a[i:i + 2], 16) for i in (1, 3, 5)]
    cb = [int(b[i:i + 2], 16) for i in (1, 3, 5)]
    return "#%02x%02x%02x" % tuple(int(round(x + (y - x) * t)) for x, y in zip(ca, cb))


def num(v):
    """Shortest decimal text for a coordinate (two decimals are below what 32 px can show)."""
    v = round(float(v), 2)
    if v == int(v):
        return str(int(v))
    s = ("%.2f" % v).rstrip("0")
    if s.startswith("0."):
        s = s[1:]
    elif s.startswith("-0."):
        s = "-" + s[2:]
    return s


def dp(template, *vals):
    """Path data from a str.format template whose fields are numbers."""
    return template.format(*(num(v) for v in vals))


def short_colour(c):
    if c[0] == "#" and len(c) == 7 and c[1] == c[2] and c[3] == c[4] and c[5] == c[6]:
        return "#" + c[1] + c[3] + c[5]
    return c


class Canvas:
    """Collects the shapes of one icon.

    accent is None for the glyph's own neutral look: then A and D fall back to
    the outline colour and the tints to white/light, so an accent-less glyph
    still honours a recipe accent through the same roles.
    """

    def __init__(self, accent):
        self.set_accent(accent)
        self.items = []
        self._stack = [self.items]

    def set_accent(self, accent):
        if accent is None:
            self.A, self.S, self.T, self.D = OUTLINE, MID, WHITE, OUTLINE
        else:
            self.A = accent
            self.S = mix(accent, WHITE, 0.45)
            self.T = mix(accent, WHITE, 0.75)
            self.D = mix(accent, OUTLINE, 0.35)

    # -- primitives -------------------------------------------------------
    def _add(self, tag, attrs):
        self._stack[-1].append((tag, attrs, None))

    @staticmethod
    def _paint(attrs, fill, stroke, w=None, dash=None, cap=None, join=None):
        if fill is not None:
            attrs["fill"] = fill
        if stroke is not None:
            attrs["stroke"] = stroke
            if w is not None and w != 1:
                attrs["stroke-width"] = num(w)
            if dash:
                attrs["stroke-dasharray"] = dash
                # Round caps would lengthen every dash into its neighbour.
                attrs["stroke-linecap"] = "butt"
            if cap:
                attrs["stroke-linecap"] = cap
            if join:
                attrs["stroke-linejoin"] = join
        return attrs

    def path(self, d, fill=None, stroke=None, w=None, dash=None, cap=None, join=None):
        self._add("path", self._paint({"d": d}, fill, stroke, w, dash, cap, join))

    def line(self, d, colour=OUTLINE, w=None, cap=None, dash=None):
        self.path(d, stroke=colour, w=w, cap=cap, dash=dash)

    def fill(self, x, y, w, h, colour):
        """Filled rectangle on whole units (no stroke)."""
        self._add("rect", {"x": num(x), "y": num(y), "width": num(w), "height": num(h), "fill": colour})

    def box(self, x0, y0, x1, y1, fill=WHITE, stroke=OUTLINE, r=0, dash=None, w=None):
        """Outlined rectangle whose outline covers pixel columns x0, x1 and rows y0, y1."""
        attrs = {"x": num(x0 + .5), "y": num(y0 + .5), "width": num(x1 - x0), "height": num(y1 - y0)}
        if r:
            attrs["rx"] = num(r)
        self._add("rect", self._paint(attrs, fill, stroke, w, dash))

    def rect(self, x, y, w, h, r, fill=None, stroke=None, sw=None):
        """Rounded rectangle at free coordinates, for shapes that are not pixel boxes."""
        attrs = {"x": num(x), "y": num(y), "width": num(w), "height": num(h), "rx": num(r)}
        self._add("rect", self._paint(attrs, fill, stroke, sw))

    def circle(self, cx, cy, r, fill=None, stroke=None, w=None, dash=None):
        attrs = {"cx": num(cx), "cy": num(cy), "r": num(r)}
        self._add("circle", self._paint(attrs, fill, stroke, w, dash))

    def poly(self, points, fill=None, stroke=None, w=None):
        pts = " ".join(num(p) for p in points)
        self._add("polygon", self._paint({"points": pts}, fill, stroke, w))

    def group(self, transform):
        canvas = self

        class _Group:
            def __enter__(self_inner):
                children = []
                canvas._stack[-1].append(("g", {"transform": transform}, children))
                canvas._stack.append(children)

            def __exit__(self_inner, *exc):
                canvas._stack.pop()
        return _Group()

    def mirrored(self):
        """Left-right mirror about the icon's centre line, which keeps half-unit alignment."""
        return self.group("matrix(-1 0 0 1 16 0)")

    def lifted(self):
        """Shapes drawn inside get a one-unit white knockout around them."""
        canvas = self

        class _Lift:
            def __enter__(self_inner):
                self_inner.shapes = []
                canvas._stack.append(self_inner.shapes)

            def __exit__(self_inner, *exc):
                canvas._stack.pop()
                canvas._stack[-1].extend(_halo(self_inner.shapes))
                canvas._stack[-1].extend(self_inner.shapes)
        return _Lift()

    def badge(self, name, colour=None):
        """Draws a badge in the lower-right quadrant on top of its white knockout."""
        fn, default, _semantic = BADGES[name]
        saved = (self.A, self.S, self.T, self.D)
        self.set_accent(colour or default)
        with self.lifted():
            fn(self)
        self.A, self.S, self.T, self.D = saved


def _halo(items):
    out = []
    for tag, attrs, children in items:
        if tag == "g":
            out.append((tag, dict(attrs), _halo(children)))
            continue
        a = dict(attrs)
        has_fill = a.get("fill", "none") != "none"
        stroke = a.get("stroke")
        if not has_fill and stroke is None:
            continue
        w = float(a.get("stroke-width", 1)) if stroke is not None else 0.0
        a.pop("stroke-dasharray", None)
        if a.get("stroke-linecap") == "butt":
            del a["stroke-linecap"]
        if has_fill:
            a["fill"] = WHITE
        a["stroke"] = WHITE
        a["stroke-width"] = num(w + 2)
        out.append((tag, a, None))
    return out


# ---------------------------------------------------------------------------
# Serialisation

ATTR_ORDER = ("d", "x", "y", "width", "height", "rx", "cx", "cy", "r", "points", "transform",
              "fill", "stroke", "stroke-width", "stroke-dasharray", "stroke-linecap",
              "stroke-linejoin")


def _merge(items):
    """Joins neighbouring stroke-only paths of identical paint into one element.

    Only unfilled paths: joining filled ones could change what the nonzero
    fill rule paints where the pieces overlap.
    """
    out = []
    for tag, attrs, children in items:
        if children is not None:
            out.append((tag, attrs, _merge(children)))
            continue
        if (tag == "path" and out and out[-1][0] == "path" and out[-1][2] is None
                and attrs.get("fill", "none") == "none"):
            prev = out[-1][1]
            if prev.get("fill", "none") == "none" and \
                    {k: v for k, v in prev.items() if k != "d"} == {k: v for k, v in attrs.items() if k != "d"}:
                merged = dict(prev)
                merged["d"] = prev["d"] + attrs["d"]
                out[-1] = ("path", merged, None)
                continue
        out.append((tag, attrs, children))
    return out


def _xml(items):
    lines = []
    for tag, attrs, children in items:
        parts = []
        for key in ATTR_ORDER:
            if key in attrs:
                v = attrs[key]
                if key in ("fill", "stroke"):
                    v = short_colour(v)
                parts.append('%s="%s"' % (key, v))
        if children is not None:
            lines.append("<%s %s>" % (tag, " ".join(parts)))
            lines.extend(_xml(children))
            lines.append("</%s>" % tag)
        else:
            lines.append("<%s %s/>" % (tag, " ".join(parts)))
    return lines


def render(glyph, badge=None, accent=None):
    """SVG text of one icon: glyph name, optional badge name, optional accent colour."""
    fn, default = GLYPHS[glyph]
    canvas = Canvas(accent if accent is not None else default)
    fn(canvas)
    if badge:
        # A semantic badge (add, remove, error...) keeps the colour that carries
        # its meaning; any other follows the recipe accent so the icon stays one hue.
        _fn, bdefault, semantic = BADGES[badge]
        canvas.badge(badge, bdefault if (semantic or accent is None) else accent)
    body = _xml(_merge(canvas.items))
    return ('<svg xmlns="http://www.w3.org/2000/svg" width="16" height="16" viewBox="0 0 16 16" '
            'fill="none" stroke-linecap="round" stroke-linejoin="round">\n'
            + "\n".join(body) + "\n</svg>\n")


# ---------------------------------------------------------------------------
# Registries

GLYPHS = {}   # name -> (draw function, default accent or None)
BADGES = {}   # name -> (draw function, default colour, semantic)


def glyph(name, accent=None):
    def register(fn):
        if name in GLYPHS:
            raise ValueError("glyph %s drawn twice" % name)
        GLYPHS[name] = (fn, accent)
        return fn
    return register


def alias(name, other):
    """A vocabulary name that draws the same picture as another glyph."""
    GLYPHS[name] = GLYPHS[other]


def badge(name, colour, semantic=False):
    """semantic badges (add, remove, error...) keep their colour under any accent."""
    def register(fn):
        BADGES[name] = (fn, colour, semantic)
        return fn
    return register


# ---------------------------------------------------------------------------
# Geometry helpers

def slab(x0, y0, x1, y1, hw):
    """Corners of a bar of half-width hw from (x0, y0) to (x1, y1)."""
    dx, dy = x1 - x0, y1 - y0
    n = math.hypot(dx, dy)
    nx, ny = -dy / n * hw, dx / n * hw
    return [x0 + nx, y0 + ny, x1 + nx, y1 + ny, x1 - nx, y1 - ny, x0 - nx, y0 - ny]


def polar(cx, cy, r, deg):
    a = math.radians(deg)
    return cx + r * math.cos(a), cy + r * math.sin(a)


def arc_d(cx, cy, r, start, end):
    """Path data of a circular arc, angles in degrees; clockwise on screen when end > start."""
    x0, y0 = polar(cx, cy, r, start)
    x1, y1 = polar(cx, cy, r, end)
    large = 1 if abs(end - start) > 180 else 0
    sweep = 1 if end > start else 0
    return dp("M{} {}A{} {} 0 %d %d {} {}" % (large, sweep), x0, y0, r, r, x1, y1)


def arc_arrow(c, cx, cy, r, start, end, colour, w=2, length=3.5, half=2.5):
    """Arc from start to end with a head at end that follows the arc's direction."""
    c.path(arc_d(cx, cy, r, start, end), stroke=colour, w=w, cap="butt")
    ex, ey = polar(cx, cy, r, end)
    direction = end + (90 if end > start else -90)
    tx, ty = polar(ex, ey, length, direction)
    head(c, tx, ty, direction, length, half, colour)


def head(c, x, y, deg, length, half, colour):
    """Filled arrow head with its tip at (x, y) pointing towards deg."""
    bx, by = polar(x, y, -length, deg)
    lx, ly = polar(bx, by, half, deg - 90)
    rx, ry = polar(bx, by, half, deg + 90)
    c.poly([x, y, lx, ly, rx, ry], fill=colour)


def star_points(cx, cy, ro, ri, n=5, rot=-90):
    pts = []
    for i in range(2 * n):
        r = ro if i % 2 == 0 else ri
        pts.extend(polar(cx, cy, r, rot + i * 180.0 / n))
    return pts


def gear_d(cx, cy, ro, ri, teeth, hole):
    """Gear outline with flat-topped teeth; the hole winds the other way, so nonzero filling leaves it open."""
    pts = []
    step = 360.0 / teeth
    for i in range(teeth):
        a = -90 + i * step
        for da, r in ((-0.30, ri), (-0.17, ro), (0.17, ro), (0.30, ri)):
            pts.append(polar(cx, cy, r, a + da * step))
    d = "M" + " ".join("%s %s" % (num(x), num(y)) for x, y in pts) + "z"
    d += dp("M{} {}a{} {} 0 1 0 {} 0a{} {} 0 1 0 {} 0z", cx - hole, cy, hole, hole, 2 * hole, hole, hole, -2 * hole)
    return d


# ---------------------------------------------------------------------------
# Motifs shared by several glyphs

def doc(c, x0=3, y0=1, x1=12, y1=14, fold=3, fill=WHITE, lines=0, line_colour=DETAIL):
    """Sheet with a folded top-right corner; outline on pixel columns x0, x1 and rows y0, y1."""
    X0, Y0, X1, Y1 = x0 + .5, y0 + .5, x1 + .5, y1 + .5
    if fold:
        c.path(dp("M{} {}H{}L{} {}V{}H{}z", X0, Y0, X1 - fold, X1, Y0 + fold, Y1, X0), fill=fill, stroke=OUTLINE)
        c.path(dp("M{} {}V{}H{}", X1 - fold, Y0, Y0 + fold, X1), fill=MID, stroke=OUTLINE)
    else:
        c.box(x0, y0, x1, y1, fill=fill)
    for i in range(lines):
        y = Y0 + 3 + 2 * i
        right = X1 - fold - 1 if (fold and y <= Y0 + fold) else X1 - 2
        c.line(dp("M{} {}H{}", X0 + 2, y, right), line_colour)


def text_lines(c, x0, x1, ys, colour=DETAIL):
    for y in ys:
        c.line(dp("M{} {}H{}", x0, y, x1), colour)


def magnifier(c, cx=6.5, cy=6.5, r=4, tip=14, glass=None, handle=2.5):
    """Lens with its handle to the lower right; r whole so the ring lands on pixel centres."""
    k = r * 0.72
    c.line(dp("M{} {}L{} {}", cx + k, cy + k, tip, tip), OUTLINE, w=handle)
    c.circle(cx, cy, r, fill=glass or c.T, stroke=OUTLINE)


def window(c, x0, y0, x1, y1, bar=2):
    c.box(x0, y0, x1, y1)
    if bar:
        c.fill(x0 + 1, y0 + 1, x1 - x0 - 1, bar, c.A)


def folder_back(c, open_=False):
    tail = "V7.5H3.5L1.5 13.5z" if open_ else "V13.5z"
    c.path("M1.5 13.5V3.5a1 1 0 0 1 1-1H6l1 1h6.5a1 1 0 0 1 1 1" + tail, fill=c.S, stroke=OUTLINE)


def folder_closed(c):
    folder_back(c)
    c.box(1, 5, 14, 13, fill=c.T)


def folder_opened(c, paper=True):
    folder_back(c, open_=True)
    if paper:
        c.box(3, 5, 12, 9)
    c.path("M1.5 13.5L3.5 7.5H15.5L13.5 13.5z", fill=c.T, stroke=OUTLINE)


def floppy(c, x0, y0, x1, y1, shutter, label, lines=()):
    """shutter = (first column, last column, last row); label = (first column, last column, first row)."""
    X0, Y0, X1, Y1 = x0 + .5, y0 + .5, x1 + .5, y1 + .5
    c.path(dp("M{} {}a1 1 0 0 1 1-1H{}L{} {}V{}a1 1 0 0 1-1 1H{}a1 1 0 0 1-1-1z",
              X0, Y0 + 1, X1 - 2, X1, Y0 + 2, Y1 - 1, X0 + 1), fill=c.A, stroke=OUTLINE)
    c.box(shutter[0], y0, shutter[1], shutter[2], fill=LIGHT)
    c.box(label[0], label[2], label[1], y1, fill=WHITE)
    text_lines(c, label[0] + 2.5, label[1] - 2.5, lines)


def chip_body(c, x0, y0, x1, y1, pins=2, sides="lrtb", pin_len=1, fill=None, dot=True):
    """Package with pins every other unit along the requested sides."""
    for s in sides:
        if s in "lr":
            for y in range(y0 + 2, y1 - 1, pins):
                x = x0 - pin_len if s == "l" else x1 + 1
                c.fill(x, y, pin_len, 1, OUTLINE)
        else:
            for x in range(x0 + 2, x1 - 1, pins):
                y = y0 - pin_len if s == "t" else y1 + 1
                c.fill(x, y, 1, pin_len, OUTLINE)
    c.box(x0, y0, x1, y1, fill=fill or c.A, r=.5)
    if dot:
        c.fill(x0 + 2, y0 + 2, 1, 1, WHITE)


def small_chip(c, x0, y0, x1, y1):
    """Chip drawn as a secondary element: light body so it does not compete with the accent."""
    chip_body(c, x0, y0, x1, y1, sides="tb", fill=MID, dot=False)


def plus_mark(c, cx, cy, arm, colour, w=1):
    c.line(dp("M{} {}H{}M{} {}V{}", cx - arm, cy, cx + arm, cx, cy - arm, cy + arm), colour, w=w)


def minus_mark(c, cx, cy, arm, colour, w=1):
    c.line(dp("M{} {}H{}", cx - arm, cy, cx + arm), colour, w=w)


def x_mark(c, cx, cy, arm, colour, w=1):
    c.line(dp("M{} {}L{} {}M{} {}L{} {}", cx - arm, cy - arm, cx + arm, cy + arm,
              cx + arm, cy - arm, cx - arm, cy + arm), colour, w=w)


def pointer(c, x=3.5, y=1.5, s=1.0, fill=None):
    """Arrow cursor with its hot spot at (x, y), s scales it."""
    # Whole-unit offsets keep the straight edges on pixel centres; the long edges are exact diagonals.
    pts = [(0, 0), (0, 11), (3, 8), (5, 12.5), (7, 11.5), (5, 7), (7, 7)]
    d = "M" + " ".join("%s %s" % (num(x + px * s), num(y + py * s)) for px, py in pts) + "z"
    c.path(d, fill=fill or c.T, stroke=OUTLINE)


def sparkle(c, cx, cy, r, colour):
    c.poly(star_points(cx, cy, r, r * 0.32, n=4, rot=-90), fill=colour)


# ---------------------------------------------------------------------------
# Badges: drawn in absolute coordinates of the lower-right quadrant, whose
# visible part is pixels 9..15 (the knockout takes column and row 8).

@badge("plus", GREEN, semantic=True)
def b_plus(c):
    c.poly([11, 9, 14, 9, 14, 11, 16, 11, 16, 14, 14, 14, 14, 16, 11, 16, 11, 14, 9, 14, 9, 11, 11, 11], fill=c.A)


@badge("minus", RED, semantic=True)
def b_minus(c):
    c.fill(9, 11, 7, 3, c.A)


@badge("x", RED, semantic=True)
def b_x(c):
    x_mark(c, 12.5, 12.5, 2.5, c.A, w=2)


@badge("check", GREEN, semantic=True)
def b_check(c):
    c.line("M9.5 12.5l2 2.5 3.5-5", c.A, w=2)


@badge("arrow_right", BLUE)
def b_arrow_right(c):
    c.poly([9, 11, 12, 11, 12, 9, 15.5, 12.5, 12, 16, 12, 14, 9, 14], fill=c.A)


@badge("arrow_left", BLUE)
def b_arrow_left(c):
    c.poly([16, 11, 13, 11, 13, 9, 9.5, 12.5, 13, 16, 13, 14, 16, 14], fill=c.A)


@badge("arrow_down", BLUE)
def b_arrow_down(c):
    c.poly([11, 9, 11, 12, 9, 12, 12.5, 15.5, 16, 12, 14, 12, 14, 9], fill=c.A)


@badge("arrow_up", BLUE)
def b_arrow_up(c):
    c.poly([11, 16, 11, 13, 9, 13, 12.5, 9.5, 16, 13, 14, 13, 14, 16], fill=c.A)


@badge("gear", GRAY)
def b_gear(c):
    c.path(gear_d(12.5, 12.5, 3.6, 2.6, 6, 1), fill=c.A)


@badge("star", YELLOW, semantic=True)
def b_star(c):
    c.poly(star_points(12.5, 12.8, 3.8, 1.6), fill=c.A)


@badge("lock", YELLOW)
def b_lock(c):
    c.path("M10.5 12V11a2 2 0 0 1 4 0v1", stroke=OUTLINE)
    c.box(9, 12, 15, 15, fill=c.A, r=.5)


@badge("search", None)
def b_search(c):
    c.line("M13 13l2 2", OUTLINE, w=2)
    c.circle(11.5, 11.5, 2, fill=c.T, stroke=OUTLINE)


@badge("warning", YELLOW, semantic=True)
def b_warning(c):
    c.path("M12.5 9L16 15.5H9z", fill=c.A, stroke=c.A, w=.6)
    c.line("M12.5 11.3v1.8", OUTLINE, w=1.1)
    c.circle(12.5, 14.4, .55, fill=OUTLINE)


@badge("error", RED, semantic=True)
def b_error(c):
    c.circle(12.5, 12.5, 3.5, fill=c.A)
    x_mark(c, 12.5, 12.5, 1.4, WHITE, w=1.1)


@badge("info", BLUE, semantic=True)
def b_info(c):
    c.circle(12.5, 12.5, 3.5, fill=c.A)
    c.circle(12.5, 10.6, .7, fill=WHITE)
    c.line("M12.5 12.2v2.3", WHITE, w=1.3)


@badge("help", BLUE, semantic=True)
def b_help(c):
    c.circle(12.5, 12.5, 3.5, fill=c.A)
    c.line("M11.3 11.4a1.25 1.25 0 1 1 1.6 1.2c-.3.1-.4.3-.4.6v.2", WHITE, w=1.1)
    c.circle(12.5, 14.6, .6, fill=WHITE)


@badge("play", GREEN, semantic=True)
def b_play(c):
    c.path("M10 9.3v6.4a.4.4 0 0 0 .6.3l5-3.2a.4.4 0 0 0 0-.6l-5-3.2a.4.4 0 0 0-.6.3z", fill=c.A)


@badge("stop", RED, semantic=True)
def b_stop(c):
    c.rect(9, 9, 7, 7, .8, fill=c.A)


def pencil(c, x0, y0, x1, y1, hw, tip):
    """Pencil from its point (x0, y0) to its end (x1, y1); tip is the length of the sharpened part."""
    k = tip / math.hypot(x1 - x0, y1 - y0)
    bx, by = x0 + (x1 - x0) * k, y0 + (y1 - y0) * k
    body = slab(bx, by, x1, y1, hw)
    edge = OUTLINE if hw > 1.5 else None
    c.poly(body, fill=c.A, stroke=edge)
    c.poly([x0, y0, body[0], body[1], body[6], body[7]], fill=WOOD, stroke=edge)
    k2 = 0.4
    c.poly([x0, y0, x0 + (body[0] - x0) * k2, y0 + (body[1] - y0) * k2,
            x0 + (body[6] - x0) * k2, y0 + (body[7] - y0) * k2], fill=OUTLINE)


@badge("pencil", ORANGE)
def b_pencil(c):
    pencil(c, 9, 16, 15.2, 9.8, 1.45, 2.6)


@badge("clock", BLUE)
def b_clock(c):
    c.circle(12.5, 12.5, 3, fill=WHITE, stroke=OUTLINE)
    c.line("M12.5 10.5v2h1.5", c.A)


@badge("link", BLUE)
def b_link(c):
    with c.group("rotate(-45 12.5 12.5)"):
        c.rect(8.3, 11.2, 5, 2.6, 1.3, stroke=c.A, sw=1.2)
        c.rect(11.7, 11.2, 5, 2.6, 1.3, stroke=c.A, sw=1.2)


@badge("eye", None)
def b_eye(c):
    c.path("M9 12.5q3.5-4.5 7 0q-3.5 4.5-7 0z", fill=WHITE, stroke=OUTLINE)
    c.circle(12.5, 12.5, 1.3, fill=c.A)


@badge("key", YELLOW)
def b_key(c):
    c.fill(12, 12, 4, 1.5, OUTLINE)
    c.fill(14, 13, 1.5, 2, OUTLINE)
    c.circle(11, 12.5, 2, fill=c.A, stroke=OUTLINE)


@badge("power", YELLOW)
def b_power(c):
    c.path("M13.8 8.6L9.6 13h2.6l-1 2.9 4.2-4.5h-2.6z", fill=c.A, stroke=OUTLINE, w=.8)


@badge("refresh", GREEN)
def b_refresh(c):
    arc_arrow(c, 12.5, 12.5, 2.5, -60, 200, c.A, w=1.4, length=2.2, half=1.8)


@badge("target", RED)
def b_target(c):
    c.circle(12.5, 12.5, 2.5, fill=WHITE, stroke=c.A)
    c.line("M12.5 9v2M12.5 14v2M9 12.5h2M14 12.5h2", c.A)
    c.circle(12.5, 12.5, .8, fill=c.A)


@badge("wand", PURPLE)
def b_wand(c):
    c.line("M9.5 15.5l4-4", OUTLINE, w=1.6)
    sparkle(c, 14, 10, 2.4, c.A)


@badge("list", BLUE)
def b_list(c):
    c.fill(9, 9, 7, 7, WHITE)
    for y in (10, 12, 14):
        c.fill(9, y, 2, 1, c.A)
        c.fill(12, y, 4, 1, OUTLINE)


@badge("user", BLUE)
def b_user(c):
    c.circle(12.5, 11, 1.8, fill=c.T, stroke=OUTLINE)
    c.path("M9.5 15.5a3 2.6 0 0 1 6 0z", fill=c.T, stroke=OUTLINE)


@badge("eraser", RED)
def b_eraser(c):
    c.poly(slab(10.8, 14.2, 14.6, 10.4, 1.7), fill=c.S, stroke=OUTLINE)
    c.poly(slab(10.2, 14.8, 11.9, 13.1, 1.7), fill=c.A, stroke=OUTLINE)


@badge("filter", None)
def b_filter(c):
    c.path("M9.5 9.5h6l-2.3 2.8v3.2l-1.4-.8v-2.4z", fill=c.S, stroke=OUTLINE)


@badge("generic_file", None)
def b_generic_file(c):
    c.path("M10.5 9.5h2.5l2 2v4h-4.5z", fill=WHITE, stroke=OUTLINE)


@badge("selection_tool", None)
def b_selection_tool(c):
    pointer(c, 10.5, 8.5, .55, fill=WHITE)


# ---------------------------------------------------------------------------
# Framework glyphs: files and folders

@glyph("generic_file")
def g_generic_file(c):
    doc(c, fill=WHITE if c.T == WHITE else c.T)


@glyph("new", YELLOW)
def g_new(c):
    doc(c, 4, 1, 13, 14, lines=0)
    with c.lifted():
        sparkle(c, 4, 4, 3.6, c.A)


@glyph("close", RED)
def g_close(c):
    doc(c, 2, 1, 11, 14, lines=4)
    c.badge("x", c.A)


@glyph("close_all", RED)
def g_close_all(c):
    doc(c, 1, 0, 9, 10, fold=2)
    doc(c, 4, 3, 12, 14, fold=2, lines=3)
    c.badge("x", c.A)


@glyph("export", BLUE)
def g_export(c):
    doc(c, 1, 1, 10, 14, lines=0)
    text_lines(c, 3.5, 6.5, (5.5, 11.5))
    with c.lifted():
        c.poly([6, 7, 11, 7, 11, 4, 15, 8, 11, 12, 11, 9, 6, 9], fill=c.A)


@glyph("import", BLUE)
def g_import(c):
    doc(c, 5, 1, 14, 14, lines=0)
    text_lines(c, 9.5, 12.5, (5.5, 11.5))
    with c.lifted():
        c.poly([1, 7, 6, 7, 6, 4, 10, 8, 6, 12, 6, 9, 1, 9], fill=c.A)


@glyph("page_setup", BLUE)
def g_page_setup(c):
    c.box(2, 1, 13, 14)
    c.box(4, 3, 11, 12, fill=c.T, stroke=c.A, dash="1 1")


@glyph("print", GREEN)
def g_print(c):
    c.box(4, 1, 11, 5)
    c.box(1, 5, 14, 11, fill=MID, r=1)
    c.fill(12, 7, 1, 1, c.A)
    c.box(4, 9, 11, 14)
    text_lines(c, 5.5, 9.5, (11.5,))
    c.line("M2.5 8.5h1", OUTLINE)


@glyph("print_preview", BLUE)
def g_print_preview(c):
    doc(c, 1, 1, 10, 14, lines=4)
    with c.lifted():
        magnifier(c, 10.5, 10.5, 3, 15, handle=2)


@glyph("exit", RED)
def g_exit(c):
    c.path("M9.5 5V1.5h-7v13h7V11", stroke=OUTLINE)
    c.path("M2.5 1.5l4 2v12l-4-1z", fill=MID, stroke=OUTLINE)
    c.poly([8, 7, 11, 7, 11, 4, 15, 8, 11, 12, 11, 9, 8, 9], fill=c.A)


# ---------------------------------------------------------------------------
# Framework glyphs: saving

@glyph("save", BLUE)
def g_save(c):
    floppy(c, 1, 1, 14, 14, shutter=(4, 10, 5), label=(3, 12, 8), lines=(10.5, 12.5))
    c.fill(8, 2, 1, 3, OUTLINE)


@glyph("save_all", BLUE)
def g_save_all(c):
    floppy(c, 0, 0, 9, 9, shutter=(2, 6, 3), label=(2, 7, 6))
    with c.lifted():
        floppy(c, 5, 5, 14, 14, shutter=(7, 11, 8), label=(7, 12, 11))


@glyph("save_as", BLUE)
def g_save_as(c):
    floppy(c, 0, 0, 13, 13, shutter=(3, 9, 4), label=(2, 11, 7), lines=(9.5, 11.5))
    c.fill(7, 1, 1, 3, OUTLINE)
    c.badge("pencil")


# ---------------------------------------------------------------------------
# Framework glyphs: folders

@glyph("folder", YELLOW)
def g_folder(c):
    folder_closed(c)


@glyph("folder_open", YELLOW)
def g_folder_open(c):
    folder_opened(c)


alias("open", "folder_open")


@glyph("project", YELLOW)
def g_project(c):
    folder_closed(c)
    small_chip(c, 5, 7, 10, 11)


@glyph("open_project", YELLOW)
def g_open_project(c):
    folder_opened(c, paper=False)
    small_chip(c, 6, 9, 11, 12)


# ---------------------------------------------------------------------------
# Framework glyphs: editing

@glyph("undo", BLUE)
def g_undo(c):
    c.path("M5 6h5a3.5 3.5 0 0 1 0 7H6.5", stroke=c.A, w=2)
    c.poly([1, 6, 6, 1.5, 6, 10.5], fill=c.A)


@glyph("redo", BLUE)
def g_redo(c):
    with c.mirrored():
        g_undo(c)


@glyph("cut", BLUE)
def g_cut(c):
    c.line("M5.5 9L10.5 1.5M10.5 9L5.5 1.5", OUTLINE, w=1.3)
    c.circle(4.5, 11.5, 2.5, fill=WHITE, stroke=c.A, w=1.5)
    c.circle(11.5, 11.5, 2.5, fill=WHITE, stroke=c.A, w=1.5)


@glyph("copy", BLUE)
def g_copy(c):
    c.box(1, 1, 9, 11, fill=c.T)
    c.box(6, 5, 14, 15)
    text_lines(c, 8.5, 11.5, (8.5, 10.5, 12.5))


@glyph("paste", ORANGE)
def g_paste(c):
    c.box(2, 2, 13, 15, fill=c.S, r=1)
    c.box(4, 4, 11, 13)
    text_lines(c, 5.5, 9.5, (7.5, 9.5, 11.5))
    c.box(5, 1, 10, 3, fill=LIGHT)


@glyph("delete", RED)
def g_delete(c):
    x_mark(c, 8, 8, 5, c.A, w=2.5)


@glyph("select_all", BLUE)
def g_select_all(c):
    c.box(1, 1, 14, 14, fill=c.T, stroke=c.A, dash="2 1")
    text_lines(c, 4.5, 11.5, (4.5, 7.5, 10.5), OUTLINE)


# ---------------------------------------------------------------------------
# Framework glyphs: find and zoom

@glyph("find", BLUE)
def g_find(c):
    magnifier(c)
    c.line("M4.5 5.5h4M4.5 7.5h3", c.D)


@glyph("zoom", BLUE)
def g_zoom(c):
    magnifier(c)


@glyph("find_next", BLUE)
def g_find_next(c):
    magnifier(c, 6.5, 6.5, 4, 13)
    c.badge("arrow_right", c.A)


@glyph("find_previous", BLUE)
def g_find_previous(c):
    magnifier(c, 6.5, 6.5, 4, 13)
    c.badge("arrow_left", c.A)


@glyph("zoom_in", BLUE)
def g_zoom_in(c):
    magnifier(c)
    plus_mark(c, 6.5, 6.5, 2, c.D, w=1.2)


@glyph("zoom_out", BLUE)
def g_zoom_out(c):
    magnifier(c)
    minus_mark(c, 6.5, 6.5, 2, c.D, w=1.2)


@glyph("zoom_fit", BLUE)
def g_zoom_fit(c):
    c.line("M.5 4.5v-4h4M11.5 .5h4v4M15.5 11.5v4h-4M4.5 15.5h-4v-4", c.A)
    magnifier(c, 7, 7, 3, 12, handle=2)


@glyph("zoom_selection", BLUE)
def g_zoom_selection(c):
    c.box(1, 1, 14, 14, fill=None, stroke=OUTLINE, dash="2 1")
    magnifier(c, 7, 7, 3.5, 12.5, handle=2)


@glyph("zoom_tool", BLUE)
def g_zoom_tool(c):
    magnifier(c, 6.5, 8.5, 4, 15)
    plus_mark(c, 13.5, 2.5, 1.5, c.D)
    minus_mark(c, 13.5, 6.5, 1.5, c.D)
    plus_mark(c, 6.5, 8.5, 2, c.D)


@glyph("magnifying_tool", BLUE)
def g_magnifying_tool(c):
    magnifier(c, glass=c.S)
    c.path("M4 6.5a2.5 2.5 0 0 1 2.5-2.5", stroke=WHITE, w=1.2)


# ---------------------------------------------------------------------------
# Framework glyphs: tools and views

@glyph("selection_tool")
def g_selection_tool(c):
    pointer(c, 4.5, 1.5, 1.0)


@glyph("area_selection_tool", BLUE)
def g_area_selection_tool(c):
    c.box(0, 0, 11, 11, fill=None, stroke=c.A, dash="2 1")
    with c.lifted():
        pointer(c, 6.5, 5.5, .8, fill=WHITE)


@glyph("pan_tool")
def g_pan_tool(c):
    c.path("M5 14.5L1.8 10.2a1.1 1.1 0 0 1 1.7-1.4L4.5 10V4.5a1 1 0 0 1 2 0V3a1 1 0 0 1 2 0v.5a1 1 0 0 1 2 0V5"
           "a1 1 0 0 1 2 0V11c0 2-1.2 3.5-3 3.5z", fill=c.T, stroke=OUTLINE)
    c.line("M6.5 4.5V8M8.5 3.5V8M10.5 5V8", OUTLINE)


@glyph("birds_eye_view", BLUE)
def g_birds_eye_view(c):
    c.box(1, 2, 14, 13, fill=LIGHT)
    c.box(6, 6, 12, 11, fill=c.T, stroke=c.A)


@glyph("window", BLUE)
def g_window(c):
    window(c, 1, 2, 14, 13)


@glyph("cascade", BLUE)
def g_cascade(c):
    window(c, 1, 1, 10, 8)
    window(c, 3, 4, 12, 11)
    window(c, 5, 7, 14, 14)


@glyph("tile", BLUE)
def g_tile(c):
    window(c, 1, 1, 7, 7, bar=1)
    window(c, 8, 1, 14, 7, bar=1)
    window(c, 1, 8, 7, 14, bar=1)
    window(c, 8, 8, 14, 14, bar=1)


@glyph("more_windows", BLUE)
def g_more_windows(c):
    window(c, 1, 1, 10, 8)
    window(c, 4, 4, 13, 11)
    for x in (9, 11, 13):
        c.fill(x, 13, 1, 2, OUTLINE)


@glyph("detach", BLUE)
def g_detach(c):
    c.path("M6.5 2.5h-5v12h12v-5", fill=WHITE, stroke=OUTLINE)
    c.line("M6 10L13.5 2.5M9 2.5h4.5V7", c.A, w=1.5)


@glyph("attach", BLUE)
def g_attach(c):
    c.path("M6.5 2.5h-5v12h12v-5", fill=WHITE, stroke=OUTLINE)
    c.line("M13.5 2.5L6 10M6 5.5V10h4.5", c.A, w=1.5)


@glyph("enable_docking", BLUE)
def g_enable_docking(c):
    window(c, 1, 2, 14, 13, bar=0)
    c.fill(2, 3, 4, 10, c.S)
    c.line("M6.5 3v10", OUTLINE)


@glyph("refresh", GREEN)
def g_refresh(c):
    arc_arrow(c, 8, 8, 5.5, 165, 285, c.A, w=1.8, length=3.2, half=2.8)
    arc_arrow(c, 8, 8, 5.5, 345, 465, c.A, w=1.8, length=3.2, half=2.8)


def _copy_sheets(c):
    c.box(1, 0, 7, 8, fill=c.T)
    c.box(4, 2, 10, 10)
    text_lines(c, 5.5, 8.5, (4.5, 6.5))


@glyph("copy_file_name", BLUE)
def g_copy_file_name(c):
    _copy_sheets(c)
    with c.lifted():
        c.box(5, 10, 15, 15, fill=c.T, stroke=c.A)
        c.line("M7.5 12.5h4", OUTLINE)


@glyph("copy_full_path", BLUE)
def g_copy_full_path(c):
    _copy_sheets(c)
    with c.lifted():
        c.line("M6.5 13.5h7", OUTLINE)
        for x in (5, 9, 13):
            c.fill(x, 12, 3, 3, c.A)


@glyph("copy_tooltip", YELLOW)
def g_copy_tooltip(c):
    _copy_sheets(c)
    with c.lifted():
        c.path("M5.5 9.5h10v5h-7l-2 1.5z", fill=mix(c.A, WHITE, 0.6), stroke=OUTLINE)


@glyph("pencil", ORANGE)
def g_pencil(c):
    pencil(c, 1.5, 14.5, 14.2, 1.8, 2.3, 4)


# ---------------------------------------------------------------------------
# Framework glyphs: customising and filtering

@glyph("customize", BLUE)
def g_customize(c):
    c.line("M1.5 3.5h13M1.5 8.5h13M1.5 13.5h13", OUTLINE)
    with c.lifted():
        for x, y in ((9, 1), (3, 6), (7, 11)):
            c.fill(x, y, 3, 5, c.A)


@glyph("customize_column", BLUE)
def g_customize_column(c):
    c.box(1, 1, 14, 14)
    c.fill(2, 2, 12, 2, c.A)
    c.line("M5.5 4v10M10.5 4v10", DETAIL)
    c.badge("gear")


def funnel(c, fill=None):
    c.path("M1.5 2.5h13l-5 5.5v5l-3 2v-7z", fill=fill or c.S, stroke=OUTLINE)


@glyph("filter", BLUE)
def g_filter(c):
    funnel(c)


@glyph("customize_filter", BLUE)
def g_customize_filter(c):
    funnel(c)
    c.badge("gear")


@glyph("filter_matched_only", BLUE)
def g_filter_matched_only(c):
    funnel(c)
    c.badge("check")


@glyph("filter_all", YELLOW)
def g_filter_all(c):
    c.fill(1, 13, 14, 2, c.S)
    c.poly(slab(5.5, 9.5, 13, 2, 2.2), fill=WHITE, stroke=OUTLINE)
    c.poly(slab(3.8, 11.2, 5.8, 9.2, 2.2), fill=c.A, stroke=OUTLINE)
    c.poly([2, 13, 2.3, 10.5, 4.5, 12.7], fill=c.A, stroke=OUTLINE)


@glyph("tree_view_filter_option")
def g_tree_view_filter_option(c):
    c.path("M1.5 3.5h9l-3.5 4v4l-2 1.5v-5.5z", fill=c.S, stroke=OUTLINE)
    c.poly([11, 7, 15, 7, 13, 9], fill=OUTLINE)


def _tree(c, mark):
    c.box(1, 1, 7, 7)
    mark(c, 4.5, 4.5, 1.5, c.A)
    c.line("M4.5 8v5.5H8.5M4.5 10.5H8.5", DETAIL)
    c.line("M10.5 10.5h4M10.5 13.5h4", OUTLINE)


@glyph("expand_all", BLUE)
def g_expand_all(c):
    _tree(c, plus_mark)


@glyph("collapse_all", BLUE)
def g_collapse_all(c):
    _tree(c, minus_mark)


@glyph("tree_expand")
def g_tree_expand(c):
    c.box(3, 3, 11, 11)
    plus_mark(c, 7.5, 7.5, 2, c.A)


@glyph("tree_collapse")
def g_tree_collapse(c):
    c.box(3, 3, 11, 11)
    minus_mark(c, 7.5, 7.5, 2, c.A)


@glyph("properties", BLUE)
def g_properties(c):
    c.box(1, 1, 14, 14)
    c.fill(2, 2, 12, 2, c.A)
    for y in (6.5, 9.5, 12.5):
        c.line(dp("M3.5 {}h2", y), DETAIL)
        c.line(dp("M7.5 {}h5", y), OUTLINE)


# ---------------------------------------------------------------------------
# Framework glyphs: help and status

def question_mark(c, colour, cy=8):
    c.path(dp("M5.8 {}a2.3 2.3 0 1 1 3.3 2.1c-.7.3-1.1.8-1.1 1.5v.4", cy - 2.2), stroke=colour, w=1.9)
    c.circle(8, cy + 4.1, 1.1, fill=colour)


def info_mark(c, colour):
    c.circle(8, 4.6, 1.2, fill=colour)
    c.fill(7, 7, 2, 5, colour)


@glyph("help", BLUE)
def g_help(c):
    c.circle(8, 8, 7, fill=c.A)
    question_mark(c, WHITE)


@glyph("question", BLUE)
def g_question(c):
    c.circle(8, 8, 6.5, fill=WHITE, stroke=OUTLINE)
    question_mark(c, c.A)


@glyph("info", BLUE)
def g_info(c):
    c.circle(8, 8, 7, fill=c.A)
    info_mark(c, WHITE)


@glyph("about", BLUE)
def g_about(c):
    c.circle(8, 8, 6.5, fill=WHITE, stroke=OUTLINE)
    info_mark(c, c.A)


@glyph("help_topics", BLUE)
def g_help_topics(c):
    c.path("M2.5 2.5a1 1 0 0 1 1-1h10v11h-10a1 1 0 0 0 0 2h10v1h-10a1 1 0 0 1-1-1z", fill=c.A, stroke=OUTLINE)
    c.fill(3, 13, 10, 1, WHITE)
    with c.group("matrix(.7 0 0 .7 2.4 1.5)"):
        question_mark(c, WHITE)


@glyph("warning", YELLOW)
def g_warning(c):
    c.path("M8 1.5l6.8 12.2a.6.6 0 0 1-.5.8H1.7a.6.6 0 0 1-.5-.8z", fill=c.A, stroke=OUTLINE)
    c.fill(7, 5, 2, 5, OUTLINE)
    c.fill(7, 11, 2, 2, OUTLINE)


@glyph("error", RED)
def g_error(c):
    c.circle(8, 8, 7, fill=c.A)
    x_mark(c, 8, 8, 2.8, WHITE, w=2)


@glyph("check", GREEN)
def g_check(c):
    c.line("M2.5 8.5l3.5 3.5 7.5-8", c.A, w=2.5)


@glyph("web_page", BLUE)
def g_web_page(c):
    c.circle(7.5, 7.5, 6, fill=c.T, stroke=OUTLINE)
    c.path("M7.5 1.5c-2 1.6-3 3.6-3 6s1 4.4 3 6c2-1.6 3-3.6 3-6s-1-4.4-3-6z", stroke=c.D)
    c.line("M1.5 7.5h12M2.7 4.5h9.6M2.7 10.5h9.6", c.D)


@glyph("gray_x")
def g_gray_x(c):
    c.circle(8, 8, 5.5, fill=DETAIL)
    x_mark(c, 8, 8, 2.2, WHITE, w=1.5)


@glyph("message", BLUE)
def g_message(c):
    c.path("M2.5 2.5h11a1 1 0 0 1 1 1v7a1 1 0 0 1-1 1H7.5l-3.5 3v-3H2.5a1 1 0 0 1-1-1v-7a1 1 0 0 1 1-1z",
           fill=c.T, stroke=OUTLINE)
    c.line("M4.5 5.5h7M4.5 8.5h5", c.D)


# ---------------------------------------------------------------------------
# Framework glyphs: docking

@glyph("pin")
def g_pin(c):
    c.line("M7.5 11v3.5", OUTLINE)
    c.path("M4.5 1.5h6v2h-1v4l2 2v1h-8v-1l2-2v-4h-1z", fill=c.S, stroke=OUTLINE)


@glyph("unpin")
def g_unpin(c):
    with c.group("rotate(90 8 8)"):
        g_pin(c)


@glyph("dock_float")
def g_dock_float(c):
    c.box(5, 2, 14, 10, fill=WHITE, stroke=c.A)
    c.fill(6, 3, 8, 1, c.A)
    c.box(2, 5, 11, 13, fill=WHITE, stroke=c.A)
    c.fill(3, 6, 8, 1, c.A)


@glyph("dock_close")
def g_dock_close(c):
    x_mark(c, 8, 8, 3.5, c.A, w=1.4)


@glyph("dock_menu")
def g_dock_menu(c):
    c.poly([4, 6, 12, 6, 8, 10], fill=c.A)


@glyph("dock_search")
def g_dock_search(c):
    c.line("M9.7 9.7l3 3", c.A, w=1.6)
    c.circle(6.5, 6.5, 3, fill=WHITE, stroke=c.A)


@glyph("dock_restore")
def g_dock_restore(c):
    c.box(3, 3, 12, 12, fill=WHITE, stroke=c.A)
    c.fill(4, 4, 8, 1, c.A)


# ---------------------------------------------------------------------------
# Framework glyphs: common objects

@glyph("lock", YELLOW)
def g_lock(c):
    c.path("M5 7.5V5.5a2.5 2.5 0 0 1 5 0V7.5", stroke=OUTLINE, w=2, cap="butt")
    c.box(2, 7, 13, 14, fill=c.A, r=1)
    c.fill(7, 9, 1, 3, OUTLINE)


@glyph("unlock", YELLOW)
def g_unlock(c):
    c.path("M10 7.5V4a2.5 2.5 0 0 0-5 0v1.5", stroke=OUTLINE, w=2, cap="butt")
    c.box(2, 7, 13, 14, fill=c.A, r=1)
    c.fill(7, 9, 1, 3, OUTLINE)


def eye_shape(c):
    c.path("M1 8c1.8-3 4-4.5 7-4.5s5.2 1.5 7 4.5c-1.8 3-4 4.5-7 4.5S2.8 11 1 8z", fill=WHITE, stroke=OUTLINE)
    c.circle(8, 8, 3, fill=c.A)
    c.circle(8, 8, 1.2, fill=OUTLINE)


@glyph("eye", BLUE)
def g_eye(c):
    eye_shape(c)


@glyph("eye_off", BLUE)
def g_eye_off(c):
    eye_shape(c)
    with c.lifted():
        c.line("M2.5 14.5l11-13", OUTLINE, w=1.5)


@glyph("play", GREEN)
def g_play(c):
    c.path("M4 2.8v10.4a.8.8 0 0 0 1.2.7l8.6-5.2a.8.8 0 0 0 0-1.4L5.2 2.1a.8.8 0 0 0-1.2.7z", fill=c.A)


@glyph("stop", RED)
def g_stop(c):
    c.rect(3, 3, 10, 10, 1, fill=c.A)


@glyph("pause", BLUE)
def g_pause(c):
    c.fill(4, 3, 3, 10, c.A)
    c.fill(9, 3, 3, 10, c.A)


@glyph("step", GREEN)
def g_step(c):
    c.path("M3 3.6v8.8a.7.7 0 0 0 1.1.6l6.8-4.4a.7.7 0 0 0 0-1.2L4.1 3a.7.7 0 0 0-1.1.6z", fill=c.A)
    c.fill(11, 3, 2, 10, c.A)


def clock_face(c, hands=None):
    c.circle(8, 8, 6.5, fill=WHITE, stroke=OUTLINE)
    c.line("M8 4v4h3", hands or c.A, w=2, cap="butt")


@glyph("clock", BLUE)
def g_clock(c):
    clock_face(c)


@glyph("history", BLUE)
def g_history(c):
    c.circle(8, 8, 6.5, fill=WHITE)
    arc_arrow(c, 8, 8, 6.5, 510, 215, OUTLINE, w=1, length=3, half=2.2)
    c.line("M8 4v4h3", c.A, w=2, cap="butt")


@glyph("gear", GRAY)
def g_gear(c):
    c.path(gear_d(8, 8, 7, 5, 8, 2.2), fill=c.S, stroke=OUTLINE)


@glyph("bookmark", BLUE)
def g_bookmark(c):
    c.path("M3.5 1.5h9v13l-4.5-3.5-4.5 3.5z", fill=c.A, stroke=OUTLINE)


@glyph("tag", ORANGE)
def g_tag(c):
    c.path("M1.5 8l4-4.5h8a1 1 0 0 1 1 1v7a1 1 0 0 1-1 1h-8z", fill=c.S, stroke=OUTLINE)
    c.circle(5.5, 8, 1.2, fill=WHITE, stroke=OUTLINE)


@glyph("link", BLUE)
def g_link(c):
    with c.group("rotate(-45 8 8)"):
        for x in (1.5, 7.5):
            c.rect(x, 5.5, 7, 5, 2.5, stroke=c.A, sw=1.6)


def _sort(c, lengths, down):
    for y, n in zip((2, 7, 12), lengths):
        c.fill(1, y, n, 2, OUTLINE)
    if down:
        c.poly([11, 1, 13, 1, 13, 10, 15, 10, 12, 14, 9, 10, 11, 10], fill=c.A)
    else:
        c.poly([11, 15, 13, 15, 13, 6, 15, 6, 12, 2, 9, 6, 11, 6], fill=c.A)


@glyph("sort_ascending", BLUE)
def g_sort_ascending(c):
    _sort(c, (3, 5, 7), down=False)


@glyph("sort_descending", BLUE)
def g_sort_descending(c):
    _sort(c, (7, 5, 3), down=True)


ARROW = [2, 7, 9, 7, 9, 3, 14, 8, 9, 13, 9, 9, 2, 9]


@glyph("arrow_right", BLUE)
def g_arrow_right(c):
    c.poly(ARROW, fill=c.A)


@glyph("arrow_left", BLUE)
def g_arrow_left(c):
    with c.mirrored():
        c.poly(ARROW, fill=c.A)


@glyph("arrow_down", BLUE)
def g_arrow_down(c):
    with c.group("rotate(90 8 8)"):
        c.poly(ARROW, fill=c.A)


@glyph("arrow_up", BLUE)
def g_arrow_up(c):
    with c.group("rotate(-90 8 8)"):
        c.poly(ARROW, fill=c.A)


def _round_arrow(c, mirror):
    c.circle(8, 8, 7, fill=c.A)
    with c.group("matrix(-1 0 0 1 16 0)" if mirror else "translate(0 0)"):
        c.poly([4, 7, 8, 7, 8, 4, 12, 8, 8, 12, 8, 9, 4, 9], fill=WHITE)


@glyph("back", GREEN)
def g_back(c):
    _round_arrow(c, True)


@glyph("forward", GREEN)
def g_forward(c):
    _round_arrow(c, False)


@glyph("home", BLUE)
def g_home(c):
    c.box(3, 7, 12, 14)
    c.box(6, 10, 9, 14, fill=c.S)
    c.path("M1 8.5L8 1.5l7 7z", fill=c.A, stroke=OUTLINE)


@glyph("plus", GREEN)
def g_plus(c):
    c.poly([6, 2, 10, 2, 10, 6, 14, 6, 14, 10, 10, 10, 10, 14, 6, 14, 6, 10, 2, 10, 2, 6, 6, 6], fill=c.A)


@glyph("minus", RED)
def g_minus(c):
    c.fill(2, 6, 12, 4, c.A)


@glyph("list", BLUE)
def g_list(c):
    for y in (2, 7, 12):
        c.fill(1, y, 3, 3, c.A)
        c.line(dp("M6.5 {}h8", y + 1.5), OUTLINE)


@glyph("table", BLUE)
def g_table(c):
    c.box(1, 2, 14, 13)
    c.fill(2, 3, 12, 2, c.A)
    c.line("M2 9.5h12M5.5 5v8M10.5 5v8", DETAIL)


@glyph("report", BLUE)
def g_report(c):
    doc(c)
    text_lines(c, 5.5, 7.5, (4.5,))
    c.fill(5, 9, 2, 4, c.A)
    c.fill(8, 6, 2, 7, c.A)


@glyph("console", GREEN)
def g_console(c):
    window(c, 1, 2, 14, 13)
    c.line("M4.5 7.5l2 2-2 2", c.D, w=1.3)
    c.line("M8.5 11.5h3", OUTLINE)


@glyph("bug", RED)
def g_bug(c):
    c.line("M1.5 6.5l3 1.5M14.5 6.5l-3 1.5M1.5 10.5h3M14.5 10.5h-3M2.5 14.5l2.5-2M13.5 14.5l-2.5-2"
           "M6 2.5l1 1.5M10 2.5l-1 1.5", OUTLINE)
    c.circle(8, 5, 2.5, fill=OUTLINE)
    c.path("M8 6.5c2.5 0 3.5 1.8 3.5 4s-1.5 4-3.5 4-3.5-1.8-3.5-4 1-4 3.5-4z", fill=c.A, stroke=OUTLINE)
    c.line("M8 7v7", OUTLINE)


@glyph("chart", BLUE)
def g_chart(c):
    c.line("M1.5 1.5v13h13", OUTLINE)
    for x, top in ((3, 9), (6, 5), (9, 7), (12, 3)):
        c.fill(x, top, 2, 13 - top, c.A)


def bell_shape(c):
    c.line("M8 1v2", OUTLINE)
    c.path("M3.5 11.5V7.5a4.5 4.5 0 0 1 9 0v4l1.5 1.5H2z", fill=c.A, stroke=OUTLINE)
    c.path("M6.5 13.5a1.5 1.5 0 0 0 3 0", fill=OUTLINE, stroke=OUTLINE)


@glyph("bell", YELLOW)
def g_bell(c):
    bell_shape(c)


@glyph("bell_off", YELLOW)
def g_bell_off(c):
    bell_shape(c)
    with c.lifted():
        c.line("M2.5 14.5l11-13", OUTLINE, w=1.5)


@glyph("eraser", RED)
def g_eraser(c):
    c.line("M7.5 14.5h7", DETAIL)
    c.poly(slab(6.5, 11.5, 12.5, 5.5, 3.2), fill=WHITE, stroke=OUTLINE)
    c.poly(slab(3.5, 14.5, 6.5, 11.5, 3.2), fill=c.A, stroke=OUTLINE)


@glyph("wand", PURPLE)
def g_wand(c):
    c.line("M2 14l8-8", OUTLINE, w=2.2)
    c.line("M9 7l1-1", WHITE, w=1.2)
    sparkle(c, 11.5, 4.5, 4, c.A)
    sparkle(c, 5, 3, 2, c.A)
    sparkle(c, 13.5, 11, 2, c.A)


@glyph("target", RED)
def g_target(c):
    c.circle(7.5, 7.5, 5, fill=WHITE, stroke=c.A)
    c.line("M7.5 .5v4M7.5 10.5v4M.5 7.5h4M10.5 7.5h4", c.A)
    c.fill(6, 6, 3, 3, c.A)


@glyph("database", BLUE)
def g_database(c):
    c.path("M2.5 4v8c0 1.4 2.5 2.5 5.5 2.5s5.5-1.1 5.5-2.5V4", fill=c.T, stroke=OUTLINE)
    c.path("M2.5 8c0 1.4 2.5 2.5 5.5 2.5s5.5-1.1 5.5-2.5", stroke=OUTLINE)
    c.path("M2.5 4a5.5 2.5 0 1 0 11 0a5.5 2.5 0 1 0-11 0z", fill=c.S, stroke=OUTLINE)


@glyph("key", YELLOW)
def g_key(c):
    c.fill(7, 7, 8, 2, OUTLINE)
    c.fill(11, 9, 1, 2, OUTLINE)
    c.fill(13, 9, 2, 3, OUTLINE)
    c.circle(4.5, 8, 3.5, fill=c.A, stroke=OUTLINE)
    c.circle(3.5, 8, 1, fill=WHITE)


@glyph("user", BLUE)
def g_user(c):
    c.path("M2.5 14.5v-1a4 4 0 0 1 4-4h3a4 4 0 0 1 4 4v1z", fill=c.S, stroke=OUTLINE)
    c.circle(8, 5, 2.5, fill=c.T, stroke=OUTLINE)


@glyph("star", YELLOW)
def g_star(c):
    c.poly(star_points(8, 8.6, 7.4, 3), fill=c.A)


@glyph("grid", BLUE)
def g_grid(c):
    c.box(1, 1, 13, 13)
    c.fill(6, 6, 3, 3, c.S)
    c.line("M5.5 1v12M9.5 1v12M1 5.5h12M1 9.5h12", OUTLINE)


@glyph("ruler", YELLOW)
def g_ruler(c):
    c.box(0, 4, 15, 11, fill=c.S)
    for i, x in enumerate(range(2, 15, 2)):
        c.line(dp("M{} 5v{}", x + .5, 3 if i % 2 else 2), OUTLINE)


@glyph("layers", BLUE)
def g_layers(c):
    c.path("M1.5 10.5L8 14l6.5-3.5", stroke=OUTLINE)
    c.path("M1.5 7.5L8 11l6.5-3.5", stroke=OUTLINE)
    c.path("M8 1.5l6.5 3.5L8 8.5 1.5 5z", fill=c.S, stroke=OUTLINE)


@glyph("palette")
def g_palette(c):
    c.path("M8 1.5C4 1.5 1.5 4.3 1.5 8s2.8 6.5 6 6.5c1.3 0 1.8-.7 1.8-1.6 0-1.2-1.1-1.4-1.1-2.4 0-.8.6-1.3 "
           "1.5-1.3h2c1.8 0 2.8-1.2 2.8-3 0-2.8-2.9-4.7-6.5-4.7z", fill=WHITE, stroke=OUTLINE)
    natural = c.A == OUTLINE
    dots = (RED, YELLOW, GREEN, BLUE) if natural else (c.A, c.S, c.D, c.A)
    for (x, y), colour in zip(((4.5, 8), (5.5, 4.8), (8.8, 4), (11.6, 5.6)), dots):
        c.circle(x, y, 1.3, fill=colour)


@glyph("font", BLUE)
def g_font(c):
    c.path("M3 12L8 1.5 13 12M5 8.5h6", stroke=OUTLINE, w=2)
    c.fill(1, 13, 14, 2, c.A)


@glyph("script", ORANGE)
def g_script(c):
    c.box(4, 2, 12, 13)
    text_lines(c, 6.5, 9.5, (5.5, 7.5, 9.5))
    c.box(3, 1, 14, 3, fill=c.S, r=1)
    c.box(1, 12, 11, 14, fill=c.S, r=1)


# ---------------------------------------------------------------------------
# Hardware-design glyphs

@glyph("chip", GRAY)
def g_chip(c):
    chip_body(c, 4, 1, 11, 13, sides="lr", pin_len=2)
    c.path("M6.5 1.5a1.5 1.5 0 0 0 3 0", fill=c.T, stroke=OUTLINE)


def qfp(c, fill=None, dot=True):
    for a in (4, 7, 10):
        c.fill(a, 1, 2, 2, OUTLINE)
        c.fill(a, 13, 2, 2, OUTLINE)
        c.fill(1, a, 2, 2, OUTLINE)
        c.fill(13, a, 2, 2, OUTLINE)
    c.box(3, 3, 12, 12, fill=fill or c.A, r=.5)
    if dot:
        c.fill(5, 5, 2, 2, WHITE)


@glyph("device", GRAY)
def g_device(c):
    qfp(c)


@glyph("ip_core", PURPLE)
def g_ip_core(c):
    qfp(c, dot=False)
    c.fill(5, 5, 1, 6, WHITE)
    c.path("M7.5 11V5.5H9a1.5 1.5 0 0 1 0 3H7.5", stroke=WHITE)


@glyph("block", BLUE)
def g_block(c):
    c.line("M.5 4.5h3M.5 10.5h3M12 7.5h3.5", OUTLINE)
    c.box(3, 1, 12, 14, fill=c.T)
    c.fill(3, 4, 2, 1, c.A)
    c.fill(3, 10, 2, 1, c.A)
    c.fill(11, 7, 2, 1, c.A)


@glyph("instance", BLUE)
def g_instance(c):
    c.line("M.5 4.5h3M.5 10.5h3M12 7.5h3.5", OUTLINE)
    c.box(3, 1, 12, 14, fill=c.T)
    c.poly([4, 2, 9, 2, 4, 7], fill=c.A)


@glyph("net", GREEN)
def g_net(c):
    c.line("M.5 8.5h15M5.5 8.5v-6h10M10.5 8.5v6h5", c.A)
    c.circle(5.5, 8.5, 1.6, fill=c.A)
    c.circle(10.5, 8.5, 1.6, fill=c.A)


@glyph("bus", GREEN)
def g_bus(c):
    c.fill(1, 3, 14, 3, c.A)
    c.line("M2.5 6l2 2v6.5M7.5 6l2 2v6.5M12.5 6l2 2v6.5", OUTLINE)


@glyph("io_pin", BLUE)
def g_io_pin(c):
    c.line("M11 8.5h4.5", OUTLINE)
    c.path("M1.5 5.5h7l3 3-3 3h-7z", fill=c.S, stroke=OUTLINE)


@glyph("io_bank", BLUE)
def g_io_bank(c):
    c.box(1, 2, 14, 9, fill=c.T)
    for x in (3, 6, 9, 12):
        c.fill(x, 4, 2, 3, c.A)
        c.fill(x, 10, 1, 5, OUTLINE)


@glyph("package", GRAY)
def g_package(c):
    c.path("M1.5 3.5l2-2h11v13h-13z", fill=LIGHT, stroke=OUTLINE)
    for y in (4, 8, 12):
        for x in (4, 8, 12):
            c.circle(x, y, 1.25, fill=c.A)


@glyph("die", TEAL)
def g_die(c):
    c.box(1, 1, 14, 14, fill=LIGHT)
    for a in (4, 6, 9, 11):
        c.fill(a, 2, 1, 1, OUTLINE)
        c.fill(a, 13, 1, 1, OUTLINE)
        c.fill(2, a, 1, 1, OUTLINE)
        c.fill(13, a, 1, 1, OUTLINE)
    c.box(4, 4, 11, 11, fill=c.A)


@glyph("waveform", GREEN)
def g_waveform(c):
    c.line("M.5 6.5h3v-5h4v5h3v-5h5", c.A)
    c.line("M.5 10.5h2l1.5 2 1.5-2h5l1.5 2 1.5-2h2M.5 14.5h2l1.5-2 1.5 2h5l1.5-2 1.5 2h2", OUTLINE)


@glyph("clock_net", BLUE)
def g_clock_net(c):
    c.line("M.5 12.5h2v-9h4v9h4v-9h4v9h1", c.A)
    for x in (2.5, 10.5):
        head(c, x, 6, -90, 2.5, 2, c.A)


@glyph("signal", GREEN)
def g_signal(c):
    c.line("M.5 8.5h15", DETAIL)
    c.path("M.5 8.5c1.8-8 5.2-8 7 0s5.2 8 7 0", stroke=c.A, w=1.5)


@glyph("trigger", ORANGE)
def g_trigger(c):
    c.line("M.5 8.5h15", DETAIL, dash="2 1")
    c.path("M0 14h6V2h10", stroke=c.A, w=2, join="miter", cap="butt")
    head(c, 6, 5, -90, 4, 3.5, c.A)


@glyph("probe", RED)
def g_probe(c):
    c.line("M1.5 14.5l4-4", OUTLINE, w=1.2)
    c.poly(slab(5, 11, 6.7, 9.3, 1.6), fill=MID, stroke=OUTLINE)
    c.poly(slab(6.7, 9.3, 12.8, 3.2, 2.2), fill=c.A, stroke=OUTLINE)
    c.line("M12.8 3.2l2.2-2.2", OUTLINE, w=1.6)


@glyph("node", BLUE)
def g_node(c):
    c.line("M3 3l4 4M13 3l-4 4M3 13l4-4M13 13l-4-4", OUTLINE)
    for x, y in ((2.5, 2.5), (13.5, 2.5), (2.5, 13.5), (13.5, 13.5)):
        c.circle(x, y, 1.5, fill=WHITE, stroke=OUTLINE)
    c.circle(8, 8, 3, fill=c.A, stroke=OUTLINE)


@glyph("hierarchy", BLUE)
def g_hierarchy(c):
    c.line("M7.5 5v3M3.5 10V8h8v2", OUTLINE)
    c.box(5, 1, 10, 5, fill=c.A)
    c.box(1, 10, 6, 14, fill=c.T)
    c.box(9, 10, 14, 14, fill=c.T)


@glyph("netlist", GREEN)
def g_netlist(c):
    c.line("M6 3.5h4.5V8M6 12.5h4.5V9", c.A)
    c.box(1, 1, 5, 5, fill=c.T)
    c.box(1, 10, 5, 14, fill=c.T)
    c.box(9, 7, 14, 11, fill=c.T)
    c.line("M14.5 9h1", c.A)


def and_gate(c, x0, y0, h, fill):
    """AND gate body whose flat side is at x0 + .5 and whose outline rows run y0 .. y0 + h."""
    r = h / 2.0
    c.path(dp("M{} {}h{}a{} {} 0 0 1 0 {}h-{}z", x0 + .5, y0 + .5, r - 1, r, r, h, r - 1),
           fill=fill, stroke=OUTLINE)


@glyph("gate", BLUE)
def g_gate(c):
    c.line("M.5 4.5h3M.5 10.5h3M12 7.5h3.5", OUTLINE)
    and_gate(c, 3, 2, 11, c.S)


@glyph("schematic", GREEN)
def g_schematic(c):
    c.line("M.5 8.5h3M13.5 8.5h2", c.A)
    c.path("M3.5 3.5v10l8-5z", fill=c.T, stroke=OUTLINE)
    c.circle(12.5, 8.5, 1.5, fill=WHITE, stroke=OUTLINE)


@glyph("flipflop", BLUE)
def g_flipflop(c):
    c.line("M.5 4.5h2.5M.5 11.5h2.5M13 4.5h2.5M13 11.5h2.5", OUTLINE)
    c.box(3, 1, 12, 14, fill=c.T)
    c.path("M3.5 9.5l3 2-3 2", fill=WHITE, stroke=c.A)
    c.fill(5, 4, 2, 1, c.A)
    c.fill(9, 4, 2, 1, c.A)


@glyph("memory", BLUE)
def g_memory(c):
    c.box(1, 1, 14, 14)
    for i, y in enumerate((2, 5, 8, 11)):
        for j, x in enumerate((2, 5, 8, 11)):
            c.fill(x, y, 2 + (j == 3), 2 + (i == 3), c.S if (i + j) % 3 else c.A)
    c.line("M4.5 2v12M7.5 2v12M10.5 2v12M2 4.5h12M2 7.5h12M2 10.5h12", WHITE)


@glyph("pll", TEAL)
def g_pll(c):
    c.circle(8, 8, 6.5, fill=c.T, stroke=OUTLINE)
    c.path("M3.5 8c1.2-4 3.3-4 4.5 0s3.3 4 4.5 0", stroke=c.A, w=1.5)


@glyph("power", YELLOW)
def g_power(c):
    c.path("M9.5.5L2.5 9.5h5l-2 6 8-9h-5l2-6z", fill=c.A, stroke=OUTLINE)


@glyph("thermal", RED)
def g_thermal(c):
    c.path("M6.5 9V3a1.5 1.5 0 0 1 3 0v6a3.2 3.2 0 1 1-3 0z", fill=WHITE, stroke=OUTLINE)
    c.fill(7, 5, 2, 6, c.A)
    c.circle(8, 11.8, 1.9, fill=c.A)
    c.line("M11.5 3.5h2M11.5 5.5h1M11.5 7.5h2", DETAIL)


@glyph("timing", BLUE)
def g_timing(c):
    c.fill(6, 0, 4, 2, OUTLINE)
    c.line("M12.5 3.5l1.5-1.5", OUTLINE, w=1.5)
    c.circle(8, 9, 5.5, fill=WHITE, stroke=OUTLINE)
    c.fill(7, 5, 2, 5, c.A)


@glyph("path", ORANGE)
def g_path(c):
    c.line("M2.5 12.5L6.5 4.5l4 7 2.6-5.2", c.A, w=1.5)
    head(c, 15, 2.5, -63, 3.2, 2.4, c.A)
    for x, y in ((2.5, 12.5), (6.5, 4.5), (10.5, 11.5)):
        c.circle(x, y, 1.5, fill=WHITE, stroke=OUTLINE)


@glyph("constraint", PURPLE)
def g_constraint(c):
    doc(c)
    c.path("M7 6.5h-.5a1 1 0 0 0-1 1v1l-1 1 1 1v1a1 1 0 0 0 1 1H7M9 6.5h.5a1 1 0 0 1 1 1v1l1 1-1 1v1"
           "a1 1 0 0 1-1 1H9", stroke=c.A)


@glyph("compile", GRAY)
def g_compile(c):
    c.path(gear_d(7, 7, 6.5, 4.6, 8, 2), fill=c.S, stroke=OUTLINE)
    c.badge("play")


@glyph("synthesis", BLUE)
def g_synthesis(c):
    c.line("M.5 2.5h5M.5 5.5h3M.5 8.5h4", OUTLINE)
    c.line("M.5 10.5h7.5M.5 13.5h7.5", DETAIL)
    and_gate(c, 8, 8, 7, c.S)
    c.path("M7 3.5h1.5a3 3 0 0 1 3 3", stroke=c.A, w=1.5, cap="butt")
    head(c, 11.5, 7.5, 90, 2.5, 2.2, c.A)


@glyph("fitter", GREEN)
def g_fitter(c):
    placed = {(0, 0), (1, 0), (0, 1), (2, 2), (3, 2), (3, 3), (1, 3)}
    for i in range(4):
        for j in range(4):
            c.fill(i * 4, j * 4, 3, 3, c.A if (i, j) in placed else MID)


@glyph("assembler", BLUE)
def g_assembler(c):
    small_chip(c, 3, 10, 12, 14)
    c.poly([6, 0, 10, 0, 10, 4, 13, 4, 8, 9, 3, 4, 6, 4], fill=c.A)


@glyph("program", YELLOW)
def g_program(c):
    small_chip(c, 3, 10, 12, 14)
    c.poly([2, 0, 5, 0, 5, 3, 7.5, 3, 3.5, 7.5, -.5, 3, 2, 3], fill=OUTLINE)
    c.path("M11.5.5L8 5h2.5l-1.5 3.5 4.5-5H11l1.5-3z", fill=c.A, stroke=OUTLINE)


@glyph("analyzer", BLUE)
def g_analyzer(c):
    chip_body(c, 4, 5, 13, 13, sides="lrb", fill=MID, dot=False)
    with c.lifted():
        c.line("M1 9.5l3.5-4 3 2.5 6-6.5", c.A, w=1.6)


@glyph("simulate", GREEN)
def g_simulate(c):
    g_waveform(c)
    c.badge("play")


@glyph("board", GREEN)
def g_board(c):
    c.box(0, 2, 15, 13, fill=c.S, r=1)
    c.line("M5.5 9.5h3v-3h2", c.D)
    c.fill(2, 4, 4, 4, OUTLINE)
    c.fill(10, 5, 3, 3, OUTLINE)
    c.fill(8, 9, 5, 2, OUTLINE)
    c.circle(2.5, 11, .8, fill=WHITE)


@glyph("cable", GRAY)
def g_cable(c):
    c.fill(5, 0, 2, 3, OUTLINE)
    c.fill(9, 0, 2, 3, OUTLINE)
    c.box(3, 3, 12, 9, fill=c.A, r=1)
    c.box(6, 9, 9, 11, fill=MID)
    c.path("M7.5 11.5v1a2 2 0 0 1-2 2H1", stroke=OUTLINE, w=1.6)


@glyph("floorplan", TEAL)
def g_floorplan(c):
    c.box(0, 0, 15, 15, fill=WHITE)
    c.box(2, 2, 7, 8, fill=c.S)
    c.box(9, 2, 13, 6, fill=c.T)
    c.box(9, 8, 13, 13, fill=c.S)
    c.box(2, 10, 7, 13, fill=c.T)


@glyph("region", TEAL)
def g_region(c):
    c.box(1, 2, 14, 13, fill=c.T, stroke=c.A, dash="2 1")
    c.box(4, 5, 8, 9, fill=c.S)


@glyph("partition", TEAL)
def g_partition(c):
    c.box(1, 1, 14, 14)
    c.fill(2, 2, 6, 6, c.S)
    c.fill(9, 2, 5, 12, c.T)
    c.line("M8.5 1v13M1 8.5h7", OUTLINE)
