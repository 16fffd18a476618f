#!/usr/bin/python3
"""Builds the house fonts of the library from the DejaVu Sans faces.

    /usr/bin/python3 tools/make_house_fonts.py     # rewrites orq/resources/fonts/*

Needs fontTools (Debian's python3-fonttools) and fonts-dejavu-core/-extra.

The Bitstream Vera licence lets a font be modified only if it is renamed, so
every face becomes "Corvan Clear": the family, full and PostScript names and
any other record that would still carry the old family are rewritten. The
copyright notice (ID 0) and the licence text (ID 13) stay, because the licence
asks for both in every copy and its text necessarily names the fonts it covers;
the description (ID 10) names the source on purpose, as attribution. Output is
byte-for-byte reproducible: fixed head dates, no FFTM table.
"""
import hashlib
import os
import sys

from fontTools import subset
from fontTools.ttLib.sfnt import WOFFDirectoryEntry
from fontTools.ttLib import TTFont, newTable

HERE = os.path.dirname(os.path.abspath(__file__))
OUT = os.path.normpath(os.path.join(HERE, "..", "orq", "resources", "fonts"))
SRC = "/usr/share/fonts/truetype/dejavu"
LICENCE_SRC = "/usr/share/doc/fonts-dejavu-core/copyright"

FAMILY = "Corvan Clear"
PS_FAMILY = "CorvanClear"
# 2020-01-01 00:00:00 UTC in seconds since 1904; any fixed value would do.
FIXED_DATE = 3660681600
DESCRIPTION = ("Corvan Clear is a renamed, subsetted derivative of DejaVu Sans made for "
               "the ORQ library. Hinting was removed; outlines, metrics, kerning and "
               "OpenType layout are unchanged.")


def ranges(*spans):
    out = set()
    for s in spans:
        lo, hi = s if isinstance(s, tuple) else (s, s)
        out.update(range(lo, hi + 1))
    return sorted(out)


# Widgets show units (µ, Ω), arrows, dashes, sub/superscripts and the odd
# status square; Latin Extended-A covers the names of European users.
UI_CHARS = ranges((0x20, 0x7E), (0xA0, 0x17F), (0x391, 0x3C9), (0x2010, 0x2027),
                  (0x2030, 0x203A), (0x2070, 0x209F), 0x20AC, 0x2122, 0x2126,
                  (0x2190, 0x2195), 0x2212, (0x2264, 0x2265), (0x25A0, 0x25CF))
# The web faces only set page text of the embedded help and welcome pages.
WEB_CHARS = ranges((0x20, 0x7E), (0xA0, 0xFF), (0x2013, 0x2014), (0x2018, 0x201E),
                   0x2022, 0x2026, 0x20AC)

BOLD, ITALIC, REGULAR = 1 << 5, 1 << 0, 1 << 6   # OS/2 fsSelection bits
MAC_BOLD, MAC_ITALIC, MAC_CONDENSED = 1 << 0, 1 << 1, 1 << 5

# (file, source, legacy subfamily, typographic subfamily, weight, width, chars)
# The legacy subfamily (ID 2) stays one of the four RIBBI names so that it can
# agree with fsSelection and macStyle; Light and Condensed Bold say what they
# are through ID 17, the weight and the width class.
FACES = [
    ("CorvanClear_Rg.ttf", "DejaVuSans.ttf", "Regular", "Regular", 400, 5, UI_CHARS),
    ("CorvanClear_Bd.ttf", "DejaVuSans-Bold.ttf", "Bold", "Bold", 700, 5, UI_CHARS),
    ("CorvanClear_It.ttf", "DejaVuSans-Oblique.ttf", "Italic", "Italic", 400, 5, UI_CHARS),
    ("CorvanClear_BdIt.ttf", "DejaVuSans-BoldOblique.ttf", "Bold Italic", "Bold Italic", 700, 5,
     UI_CHARS),
    ("corvan-clear-latin.woff", "DejaVuSans.ttf", "Regular", "Regular", 400, 5, WEB_CHARS),
    ("corvan-clear-latin-bold.woff", "DejaVuSans-Bold.ttf", "Bold", "Bold", 700, 5, WEB_CHARS),
    ("corvan-clear-latin-lite.woff", "DejaVuSans-ExtraLight.ttf", "Regular", "Light", 300, 5,
     WEB_CHARS),
    ("corvan-clear-headline.woff", "DejaVuSansCondensed-Bold.ttf", "Bold", "Condensed Bold", 700, 3,
     WEB_CHARS),
]

OLD_NAMES = ("dejavu", "bitstream vera")
KEEP_IDS = {0, 13}      # copyright and licence text, see the module comment
MAY_NAME_SOURCE = KEEP_IDS | {10}
DROP_IDS = {3, 8, 11, 14}  # vendor, vendor and licence URLs all point at the old project


def subset_font(path, chars):
    opts = subset.Options()
    opts.hinting = False
    opts.layout_features = ["*"]
    opts.legacy_kern = True          # older renderers only read 'kern'
    opts.name_IDs = ["*"]
    opts.name_languages = ["*"]
    opts.notdef_outline = True
    opts.glyph_names = False
    opts.drop_tables += ["FFTM", "MATH", "gasp"]
    font = TTFont(path, recalcTimestamp=False, recalcBBoxes=True)
    sub = subset.Subsetter(opts)
    sub.populate(unicodes=chars)
    sub.subset(font)
    return font


def set_names(font, legacy_sub, typo_sub, version):
    name = font["name"]
    full = FAMILY if typo_sub == "Regular" else "%s %s" % (FAMILY, typo_sub)
    ps = "%s-%s" % (PS_FAMILY, typo_sub.replace(" ", ""))
    records = {
        1: FAMILY, 2: legacy_sub, 3: "%s;%s;ORQ" % (ps, version), 4: full, 5: version,
        6: ps, 10: DESCRIPTION, 16: FAMILY, 17: typo_sub,
    }
    kept = [n for n in name.names if n.nameID in KEEP_IDS]
    name.names = []
    for rec in kept:
        name.setName(rec.toUnicode(), rec.nameID, rec.platformID, rec.platEncID, rec.langID)
    for nid, text in records.items():
        name.setName(text, nid, 3, 1, 0x409)
    for n in name.names:
        if n.nameID not in MAY_NAME_SOURCE and any(o in n.toUnicode().lower() for o in OLD_NAMES):
            sys.exit("name ID %d still names the source family" % n.nameID)


def set_style(font, legacy_sub, weight, width):
    os2, head = font["OS/2"], font["head"]
    bold, italic = "Bold" in legacy_sub, "Italic" in legacy_sub
    sel = os2.fsSelection & ~(BOLD | ITALIC | REGULAR)
    sel |= (BOLD if bold else 0) | (ITALIC if italic else 0)
    if not (bold or italic):
        sel |= REGULAR
    os2.fsSelection = sel
    os2.usWeightClass = weight
    os2.usWidthClass = width
    head.macStyle = ((MAC_BOLD if bold else 0) | (MAC_ITALIC if italic else 0)
                     | (MAC_CONDENSED if width < 5 else 0))
    # PANOSE weight/proportion would disagree with the new classes; 0 = "any".
    os2.panose.bWeight = 0 if weight not in (400, 700) else os2.panose.bWeight
    head.created = head.modified = FIXED_DATE


def build(fname, src, legacy_sub, typo_sub, weight, width, chars):
    font = subset_font(os.path.join(SRC, src), chars)
    version = font["name"].getDebugName(5) or "Version 1.0"
    set_names(font, legacy_sub, typo_sub, version)
    set_style(font, legacy_sub, weight, width)
    # Unhinted outlines read best with plain grey smoothing at every size.
    gasp = newTable("gasp")
    gasp.version = 1
    gasp.gaspRange = {0xFFFF: 0x000A}
    font["gasp"] = gasp
    if fname.endswith(".woff"):
        # Tables stored, not deflated: every tool registers these fonts at
        # start-up, and inflating them there costs more than twice the time
        # of reading them plain (0.6 against 0.28 ms a file).
        font.flavor = "woff"
        WOFFDirectoryEntry.zlibCompressionLevel = 0
    path = os.path.join(OUT, fname)
    font.save(path)
    return path


def write_licence():
    with open(LICENCE_SRC, encoding="utf-8") as f:
        debian = f.read()
    # Only the font stanza applies; the packaging stanza is Debian's own.
    font_part = debian.split("\nFiles: debian/*")[0].rstrip() + "\n"
    arev = TTFont(os.path.join(SRC, "DejaVuSans.ttf"))["name"].getDebugName(13)
    arev = arev[arev.index("Arev Fonts Copyright"):].rstrip() + "\n"
    lines = ["The fonts in this directory are renamed, subsetted derivatives of the",
             "DejaVu fonts, made by tools/make_house_fonts.py:", ""]
    for fname, src, *_ in FACES:
        lines.append("    %-30s from %s" % (fname, src))
    lines += ["",
              "As the licence below requires of modified fonts, they were renamed to",
              "\"Corvan Clear\"; their names contain neither \"Bitstream\" nor \"Vera\" (nor",
              "\"Arev\"). Glyph outlines are unchanged; hinting was removed and the",
              "character set reduced. The licence texts follow as shipped with the",
              "sources (Debian package fonts-dejavu-core, and the Arev notice that the",
              "DejaVu Sans faces carry in their name table).",
              "", "=" * 72, ""]
    text = "\n".join(lines) + font_part + "\n" + "=" * 72 + "\n\n" + arev
    with open(os.path.join(OUT, "LICENSE.txt"), "w", encoding="utf-8") as f:
        f.write(text)


def check(paths):
    total_ttf = total = 0
    for path in paths:
        font = TTFont(path)
        size = os.path.getsize(path)
        total += size
        if path.endswith(".ttf"):
            total_ttf += size
        name = font["name"]
        print("%-30s %6d B  %4d glyphs  %-22s %-28s w%d/%d fsSel=%#06x mac=%d  md5 %s" % (
            os.path.basename(path), size, len(font.getGlyphOrder()), name.getDebugName(1),
            name.getDebugName(4), font["OS/2"].usWeightClass, font["OS/2"].usWidthClass,
            font["OS/2"].fsSelection, font["head"].macStyle,
            hashlib.md5(open(path, "rb").read()).hexdigest()[:8]))
        assert name.getDebugName(1) == FAMILY and name.getDebugName(16) == FAMILY
        assert font["head"].created == font["head"].modified == FIXED_DATE
        assert "fpgm" not in font and "prep" not in font and "GPOS" in font and "GSUB" in font
        assert font.flavor == ("woff" if path.endswith(".woff") else None)
        if path.endswith(".ttf"):
            assert size < 72 * 1024, "%s is larger than it should be" % path
    print("total %d B (TTF %d B)" % (total, total_ttf))
    assert total < 410 * 1024


def main():
    os.makedirs(OUT, exist_ok=True)
    paths = [build(*face) for face in FACES]
    write_licence()
    check(paths)


if __name__ == "__main__":
    main()
