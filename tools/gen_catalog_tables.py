#!/usr/bin/env python3
"""Writes the action and icon enumerations, exported texts and tables.

    tools/gen_catalog_tables.py     # rewrites orq/catalog/orq_{action,icon}_enum.h,
                                    # orq_action_texts.h and orq_catalog_tables.cpp

The rows live in tools/catalog/. Values are the alphabetical positions of the
enumerator names; the framework rows carry values that tools depend on, so
the generator refuses to write anything when the order does not land every
one of them on its value, or when the catalogue's totals are off.
"""

import os
import sys

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, os.path.join(HERE, "catalog"))

from actions_framework import FRAMEWORK, TOOLTIPS  # noqa: E402
from actions_tools import TCL_FUNCTIONS, TOOL_ROWS  # noqa: E402
from icons import ICON_COUNT, ICONS  # noqa: E402

OUT = os.path.join(HERE, "..", "orq", "catalog")
ACTION_COUNT = 746
# The help-topics row kept the value it had before the suite was renamed, so
# it is the one row that does not sit at its alphabetical place.
PINNED = {"VANTOR_HELP": 458}
GROUPS = {"SHOW": 75, "HIDE": 8, "NODE": 54, "CREATE": 30, "START": 18, "GENERATE": 13, "LOCATE": 13,
          "PROJECT": 11, "EXPORT": 9, "SUPPRESS": 9, "VIEW": 9, "CLEAR": 8, "INSTANCE": 7}
STANDARD_KEYS = {"New", "Open", "Save", "Print", "Undo", "Redo", "Cut", "Copy", "Paste", "Delete", "SelectAll",
                 "Find", "HelpContents"}


def fail(text):
    sys.stderr.write("gen_catalog_tables: %s\n" % text)
    sys.exit(1)


def without_symbol(text):
    return text.replace(" && ", " AND ").replace("&", "").replace("...", "")


def load_actions():
    rows = {}
    for name, value, menu, shortcut, tip, recipe in FRAMEWORK:
        rows[name] = dict(value=value, menu=menu, shortcut=shortcut, tip=tip, recipe=recipe)
    for line in TOOL_ROWS.strip().splitlines():
        fields = line.split("|")
        if len(fields) != 5:
            fail("tool row needs 5 fields: %r" % line)
        name, menu, shortcut, tip, recipe = fields
        if name in rows:
            fail("duplicate action %s" % name)
        if tip == "~":
            tip = "Shows or hides the %s window" % without_symbol(menu)
        rows[name] = dict(value=None, menu=menu, shortcut=shortcut, tip=tip, recipe=recipe)
    return rows


def number_actions(rows):
    order = sorted((n for n in rows if n not in PINNED), key=lambda n: "ORQ_%s_ACTION" % n)
    for name, value in sorted(PINNED.items(), key=lambda p: p[1]):
        order.insert(value - 1, name)
    for position, name in enumerate(order, 1):
        wanted = rows[name]["value"]
        if wanted is not None and wanted != position:
            fail("ORQ_%s_ACTION sorts to %d but must be %d" % (name, position, wanted))
        rows[name]["value"] = position
    return order


def check_actions(rows, order, icon_names):
    if len(order) != ACTION_COUNT:
        fail("%d actions instead of %d" % (len(order), ACTION_COUNT))
    for group, size in GROUPS.items():
        count = sum(1 for n in rows if n.startswith(group + "_"))
        if count != size:
            fail("group %s_ has %d rows instead of %d" % (group, count, size))
    standard = [n for n in rows if rows[n]["shortcut"].startswith("S ")]
    custom = [n for n in rows if rows[n]["shortcut"] and not rows[n]["shortcut"].startswith("S ")]
    with_icon = [n for n in rows if rows[n]["recipe"]]
    if (len(standard), len(custom), len(with_icon)) != (16, 88, 340):
        fail("%d standard keys, %d custom shortcuts, %d icons instead of 16, 88, 340"
             % (len(standard), len(custom), len(with_icon)))
    for name in standard:
        if rows[name]["shortcut"][2:] not in STANDARD_KEYS:
            fail("unknown standard key for %s" % name)
    for name, row in rows.items():
        if not row["menu"] or not row["tip"]:
            fail("%s lacks a menu text or status tip" % name)
        if '"' in row["menu"] + row["tip"] or "\\" in row["menu"] + row["tip"]:
            fail("%s: quotes and backslashes are not allowed in texts" % name)
        recipe = row["recipe"]
        icon = recipe[1:] if recipe.startswith("=") else name
        if recipe and icon not in icon_names:
            fail("%s refers to a missing icon %s" % (name, icon))
        row["icon"] = icon if recipe else None
    for name in list(TCL_FUNCTIONS) + list(TOOLTIPS):
        if name not in rows:
            fail("unknown action %s" % name)


HEADER = "// Written by tools/gen_catalog_tables.py; edit the tables in tools/catalog, not this file.\n"


def write(name, text):
    with open(os.path.join(OUT, name), "w") as out:
        out.write(text)


def enum_header(doc, enum, names, suffix, count_name):
    width = max(len("ORQ_%s_%s" % (n, suffix)) for n in names) + 1
    lines = [HEADER, "#pragma once\n", doc, "enum %s {\n" % enum]
    lines += ["  %-*s = %d,\n" % (width, "ORQ_%s_%s" % (n, suffix), i) for i, n in enumerate(names, 1)]
    lines += ["};\n\n", "// The last valid value; 0 and anything above it are not %ss.\n" % suffix.lower(),
              "constexpr int %s = %d;\n" % (count_name, len(names))]
    return "".join(lines)


def main():
    if not os.path.isdir(OUT):
        os.makedirs(OUT)
    rows = load_actions()
    order = number_actions(rows)
    icon_names = [i[0] for i in ICONS]
    if len(icon_names) != ICON_COUNT or len(set(icon_names)) != ICON_COUNT:
        fail("%d icons (%d distinct) instead of %d" % (len(icon_names), len(set(icon_names)), ICON_COUNT))
    if icon_names != sorted(icon_names, key=lambda n: "ORQ_%s_ICON" % n):
        fail("icons are not in alphabetical order")
    icon_value = {n: i for i, n in enumerate(icon_names, 1)}
    check_actions(rows, order, set(icon_names))

    texts = {}
    action_enum = enum_header(
        "// The standard actions, numbered in alphabetical order of their names.\n",
        "ORQ_ACTION_ENUM", order, "ACTION", "ORQ_ACTION_COUNT")
    icon_enum = enum_header(
        "// The icons of the library, numbered in alphabetical order of their names.\n",
        "ORQ_ICON_ENUM", icon_names, "ICON", "ORQ_ICON_COUNT")

    decl = [HEADER, "#pragma once\n",
            "// The catalogue's texts as constants of the library, for tools that need the\n",
            "// words of a standard action without creating it.\n",
            '#include "orq_export.h"\n\n']
    defs = []
    for name in order:
        row = rows[name]
        items = [("MENU_TEXT", row["menu"]), ("STATUSTIP", row["tip"])]
        if row["shortcut"] and not row["shortcut"].startswith("S "):
            items.append(("CUSTOM_SHORTCUT", row["shortcut"]))
        if name in TCL_FUNCTIONS:
            items.append(("TCL_FUNCTION", TCL_FUNCTIONS[name]))
        if name in TOOLTIPS:
            items.append(("TOOLTIP", TOOLTIPS[name]))
        for kind, text in items:
            constant = "ORQ_ACTION_%s_%s" % (kind, name)
            texts[(name, kind)] = constant
            decl.append("extern ORQ_EXPORT const char* const %s;\n" % constant)
            defs.append('constexpr const char* %s = "%s";\n' % (constant, text))

    table = [HEADER, '#include "orq_catalog_tables_p.h"\n\n#include <QKeySequence>\n\n',
             "// clang-format off\n"] + defs + ["\n"]
    table.append("const ORQ_ACTION_ROW orq_action_table[ORQ_ACTION_COUNT + 1] = {\n")
    table.append("  // name, menu text, status tip, custom shortcut, Tcl function, tool tip, standard key, icon\n")
    table.append('  {nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},\n')
    for name in order:
        row = rows[name]
        ref = lambda kind: texts.get((name, kind), "nullptr")  # noqa: E731
        key = "QKeySequence::" + row["shortcut"][2:] if row["shortcut"].startswith("S ") else "QKeySequence::UnknownKey"
        icon = "ORQ_%s_ICON" % row["icon"] if row["icon"] else "ORQ_ICON_ENUM(0)"
        table.append('  {"ORQ_%s_ACTION", %s, %s, %s, %s, %s, %s, %s},\n'
                     % (name, ref("MENU_TEXT"), ref("STATUSTIP"), ref("CUSTOM_SHORTCUT"), ref("TCL_FUNCTION"),
                        ref("TOOLTIP"), key, icon))
    table.append("};\n\n")
    table.append("const ORQ_ICON_ROW orq_icon_table[ORQ_ICON_COUNT + 1] = {\n")
    table.append("  // name, resource path\n  {nullptr, nullptr},\n")
    for name, _stem, recipe in ICONS:
        path = (":/icons/" + recipe[4:]) if recipe.startswith("png:") else ":/icons/svg/orq_%s.svg" % name.lower()
        table.append('  {"ORQ_%s_ICON", "%s"},\n' % (name, path))
    table.append("};\n// clang-format on\n")

    write("orq_action_enum.h", action_enum)
    write("orq_icon_enum.h", icon_enum)
    write("orq_action_texts.h", "".join(decl))
    write("orq_catalog_tables.cpp", "".join(table))
    print("actions %d, icons %d, constants %d" % (len(order), len(icon_names), len(texts)))


if __name__ == "__main__":
    main()
