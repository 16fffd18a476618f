#!/usr/bin/env python3
"""Writes the SVG icons of the library and their resource file from the icon catalogue.

    tools/gen_icons.py                    # rewrites orq/resources/icons/svg/orq_*.svg and orq_icons.qrc
    tools/gen_icons.py --check            # exit status 1 if those files are not what the catalogue gives
    tools/gen_icons.py --html sheet.html  # also writes a page showing every icon at 16 and 32 px
    tools/gen_icons.py --gallery DIR      # only writes every glyph and every badge into DIR, for review

The catalogue (tools/catalog/icons.py) is a list ICONS of rows
(name, file_stem, recipe).  A recipe is "glyph[/badge][:accent]", drawn by
tools/icons/glyphs.py, or "png:<path>" for a bitmap made elsewhere that only
needs its resource entry.  Rows sharing a file_stem are variants of one
picture: one SVG file, one resource alias per row, so code can still ask for
every icon by its own path.

Nothing is written unless the whole catalogue is valid, so a bad row never
leaves a half-updated resource directory behind.
"""
import argparse
import base64
import html
import os
import re
import runpy
import sys

# The tool runs inside the source tree; keep it free of bytecode caches.
sys.dont_write_bytecode = True

HERE = os.path.dirname(os.path.abspath(__file__))
ROOT = os.path.dirname(HERE)
sys.path.insert(0, os.path.join(HERE, "icons"))
import glyphs  # noqa: E402

CATALOG = os.path.join(HERE, "catalog", "icons.py")
RESOURCES = os.path.join(ROOT, "orq", "resources")
SVG_SUBDIR = "icons/svg"
QRC_NAME = "orq_icons.qrc"

NAME_RE = re.compile(r"^[A-Z][A-Z0-9_]*$")
STEM_RE = re.compile(r"^[a-z0-9][a-z0-9_]*$")
PNG_RE = re.compile(r"^png:([a-z0-9_/]+\.png)$")


class CatalogError(Exception):
    pass


def load_catalog(path):
    # Loaded by file path: the module is named icons.py, which must not be
    # confused with the glyph directory tools/icons.
    try:
        return list(runpy.run_path(path)["ICONS"])
    except Exception as e:  # a broken table must still end in one clear message
        raise CatalogError("cannot read ICONS: %s: %s" % (type(e).__name__, e))


def parse_recipe(recipe):
    """(glyph, badge, accent name) of a drawn recipe; raises ValueError with the reason."""
    body, colon, accent = recipe.partition(":")
    glyph, slash, badge = body.partition("/")
    problems = []
    if glyph not in glyphs.GLYPHS:
        problems.append("unknown glyph '%s'" % glyph)
    if slash and not badge:
        problems.append("empty badge")
    elif "/" in badge:
        problems.append("more than one badge")
    elif badge and badge not in glyphs.BADGES:
        problems.append("unknown badge '%s'" % badge)
    if colon and not accent:
        problems.append("empty accent")
    elif ":" in accent:
        problems.append("more than one accent")
    elif accent and accent not in glyphs.ACCENTS:
        problems.append("unknown accent '%s' (one of %s)" % (accent, ", ".join(sorted(glyphs.ACCENTS))))
    if problems:
        raise ValueError("; ".join(problems))
    return glyph, badge or None, accent or None


def validate(rows):
    """Checks every row and returns (rows sorted by name, {file_stem: recipe} of drawn files).

    All problems are collected so one run reports the whole list.
    """
    errors = []
    seen = {}
    stems = {}
    for index, row in enumerate(rows, 1):
        where = "row %d" % index
        if not (isinstance(row, tuple) and len(row) == 3 and all(isinstance(v, str) for v in row)):
            errors.append("%s: expected (name, file_stem, recipe) strings, got %r" % (where, row))
            continue
        name, stem, recipe = row
        where = "row %d (%s)" % (index, name)
        if not NAME_RE.match(name):
            errors.append("%s: name must be upper case letters, digits and underscores" % where)
        if name in seen:
            errors.append("%s: duplicate name, first used in row %d" % (where, seen[name]))
        seen.setdefault(name, index)
        if not STEM_RE.match(stem):
            errors.append("%s: file_stem '%s' must be lower case letters, digits and underscores" % (where, stem))
        if recipe.startswith("png:"):
            if not PNG_RE.match(recipe):
                errors.append("%s: bitmap recipe '%s' must be png:<relative path>.png" % (where, recipe))
        else:
            try:
                parse_recipe(recipe)
            except ValueError as e:
                errors.append("%s: recipe '%s': %s" % (where, recipe, e))
        if stem in stems and stems[stem][0] != recipe:
            errors.append("%s: file_stem '%s' has recipe '%s' but row %d gave it '%s'"
                          % (where, stem, recipe, stems[stem][1], stems[stem][0]))
        stems.setdefault(stem, (recipe, index))
    if errors:
        raise CatalogError("\n".join(errors))
    drawn = {stem: recipe for stem, (recipe, _) in stems.items() if not recipe.startswith("png:")}
    return sorted(rows, key=lambda r: r[0]), drawn


def draw(recipe):
    glyph, badge, accent = parse_recipe(recipe)
    return glyphs.render(glyph, badge, glyphs.ACCENTS[accent] if accent else None)


def qrc_text(rows):
    lines = ['<!DOCTYPE RCC>', '<RCC version="1.0">', '<qresource prefix="/">']
    bitmaps = set()
    for name, stem, recipe in rows:
        m = PNG_RE.match(recipe)
        if m:
            # A bitmap keeps its own path, so rows sharing it must not list it twice.
            path = "icons/" + m.group(1)
            if path not in bitmaps:
                bitmaps.add(path)
                lines.append('  <file alias="%s">%s</file>' % (path, path))
        else:
            lines.append('  <file alias="%s/orq_%s.svg">%s/orq_%s.svg</file>'
                         % (SVG_SUBDIR, name.lower(), SVG_SUBDIR, stem))
    lines += ['</qresource>', '</RCC>', '']
    return "\n".join(lines)


def html_text(rows, svgs, resources):
    """A self-contained review page; each picture is embedded once, however many rows share it."""
    pictures = {}
    for name, stem, recipe in rows:
        m = PNG_RE.match(recipe)
        if m:
            png = os.path.join(resources, "icons", m.group(1))
            if os.path.exists(png):
                with open(png, "rb") as f:
                    pictures[stem] = "data:image/png;base64," + base64.b64encode(f.read()).decode("ascii")
        else:
            pictures[stem] = "data:image/svg+xml;base64," + base64.b64encode(svgs[stem].encode("utf-8")).decode("ascii")
    css = "\n".join(".p_%s{background-image:url(%s)}" % (stem, uri) for stem, uri in sorted(pictures.items()))
    cells = []
    for name, stem, recipe in rows:
        if stem in pictures:
            pics = "".join('<span class="pic p_%s s%d"></span>' % (stem, s) for s in (16, 32))
        else:
            pics = '<span class="missing">bitmap not built</span>'
        cells.append('<div class="cell"><div class="pics">%s</div><div class="name">%s</div>'
                     '<div class="recipe">%s &middot; orq_%s</div></div>'
                     % (pics, html.escape(name), html.escape(recipe), html.escape(stem)))
    return """<!DOCTYPE html>
<html><head><meta charset="utf-8"><title>ORQ icons</title>
<style>
body{font:12px sans-serif;color:#3c4856;margin:16px}
.grid{display:flex;flex-wrap:wrap;gap:6px}
.cell{width:210px;padding:6px;border:1px solid #dfe6ee}
.pics{display:flex;align-items:center;gap:10px;height:36px}
.pic{display:inline-block;background-size:contain;background-repeat:no-repeat}
.s16{width:16px;height:16px}
.s32{width:32px;height:32px}
.name{font-weight:bold;overflow-wrap:anywhere}
.recipe{color:#6b7785;overflow-wrap:anywhere}
.missing{color:#d13b2f}
%s
</style></head><body>
<h1>ORQ icons (%d)</h1>
<div class="grid">
%s
</div></body></html>
""" % (css, len(rows), "\n".join(cells))


def write_if_changed(path, text, dry_run, stale):
    old = None
    if os.path.exists(path):
        with open(path, "r", encoding="utf-8", newline="") as f:
            old = f.read()
    if old == text:
        return
    stale.append(path)
    if not dry_run:
        with open(path, "w", encoding="utf-8", newline="\n") as f:
            f.write(text)


def shown(path):
    rel = os.path.relpath(path, ROOT)
    return path if rel.startswith("..") else rel


def write_gallery(directory):
    os.makedirs(directory, exist_ok=True)
    for name in sorted(glyphs.GLYPHS):
        with open(os.path.join(directory, "g_%s.svg" % name), "w") as f:
            f.write(glyphs.render(name))
    for name in sorted(glyphs.BADGES):
        with open(os.path.join(directory, "zb_%s.svg" % name), "w") as f:
            f.write(glyphs.render("generic_file", name))
    print("%d glyphs and %d badges written to %s" % (len(glyphs.GLYPHS), len(glyphs.BADGES), directory))


def main(argv=None):
    ap = argparse.ArgumentParser(description=__doc__.split("\n\n")[0])
    ap.add_argument("--catalog", default=CATALOG, help="catalogue module (default: %(default)s)")
    ap.add_argument("--resources", default=RESOURCES, help="resource directory (default: %(default)s)")
    ap.add_argument("--check", action="store_true", help="write nothing; fail if any output is out of date")
    ap.add_argument("--html", metavar="OUT", help="also write a page showing every icon")
    ap.add_argument("--gallery", metavar="DIR", help="only write every glyph and badge into DIR")
    args = ap.parse_args(argv)

    if args.gallery:
        write_gallery(args.gallery)
        return 0

    try:
        rows, drawn = validate(load_catalog(args.catalog))
        svgs = {stem: draw(recipe) for stem, recipe in drawn.items()}
    except CatalogError as e:
        print("gen_icons: the icon catalogue %s has errors, nothing written:\n%s" % (args.catalog, e),
              file=sys.stderr)
        return 1

    svg_dir = os.path.join(args.resources, *SVG_SUBDIR.split("/"))
    wanted = {"orq_%s.svg" % stem for stem in svgs}
    existing = set(f for f in os.listdir(svg_dir) if f.startswith("orq_") and f.endswith(".svg")) \
        if os.path.isdir(svg_dir) else set()
    stale = []
    if not args.check:
        os.makedirs(svg_dir, exist_ok=True)
    for stem in sorted(svgs):
        write_if_changed(os.path.join(svg_dir, "orq_%s.svg" % stem), svgs[stem], args.check, stale)
    for extra in sorted(existing - wanted):
        stale.append(os.path.join(svg_dir, extra))
        if not args.check:
            os.remove(os.path.join(svg_dir, extra))
    write_if_changed(os.path.join(args.resources, QRC_NAME), qrc_text(rows), args.check, stale)

    if args.check:
        for path in stale:
            print("gen_icons: out of date: %s" % shown(path), file=sys.stderr)
        return 1 if stale else 0
    if args.html:
        with open(args.html, "w", encoding="utf-8", newline="\n") as f:
            f.write(html_text(rows, svgs, args.resources))
    print("gen_icons: %d icons in %d SVG files; %d output files changed" % (len(rows), len(svgs), len(stale)))
    return 0


if __name__ == "__main__":
    sys.exit(main())
