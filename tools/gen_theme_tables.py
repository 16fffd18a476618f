#!/usr/bin/env python3
"""Writes the theme resource enumerations and tables of the library.

    tools/gen_theme_tables.py            # rewrites orq/theme/orq_*_resource.h and orq_theme_tables.cpp

The framework's own rows are written out below as they stand. The rows of the
suite's tools are described per tool (prefix, items, colours) and expanded
here, so that the totals and distributions the tables must keep are checked
every time the tables are written.
"""
import colorsys
import os
import sys

HERE = os.path.dirname(os.path.abspath(__file__))
OUT = os.path.join(HERE, "..", "orq", "theme")


def rgb(r, g, b):
    return "#%02x%02x%02x" % (r, g, b)


def hexrgb(h):
    return "#" + h.lower()


def ramp(start, end, n):
    """n colours from hue start to hue end (degrees), full saturation."""
    out = []
    for i in range(n):
        h = (start + (end - start) * i / max(1, n - 1)) / 360.0
        r, g, b = colorsys.hsv_to_rgb(h, 0.85, 0.95)
        out.append(rgb(round(r * 255), round(g * 255), round(b * 255)))
    return out


CYCLE = ["#1f77b4", "#ff7f0e", "#2ca02c", "#d62728", "#9467bd", "#8c564b", "#e377c2", "#7f7f7f",
         "#bcbd22", "#17becf", "#393b79", "#637939", "#8c6d31", "#843c39", "#7b4173", "#3182bd"]

# --------------------------------------------------------------------------- colours
# (name, system, changeable, colour, palette role)
ROLES = {"WindowText": 0, "Button": 1, "Light": 2, "Midlight": 3, "Dark": 4, "Mid": 5, "Text": 6,
         "Base": 9, "Window": 10, "Highlight": 12, "HighlightedText": 13, "AlternateBase": 16}

colors = []  # (id, name, system, changeable, colour, role)


def add_color(cid, name, system, changeable, colour, role=0):
    colors.append((cid, name, system, changeable, colour, role))


basic = [("BLACK", 0, 0, 0), ("WHITE", 255, 255, 255), ("BLUE", 0, 0, 255), ("GREEN", 0, 255, 0),
         ("RED", 255, 0, 0), ("CYAN", 0, 255, 255), ("PINK", 255, 0, 255), ("YELLOW", 255, 255, 0),
         ("DARK_BLUE", 0, 0, 128), ("DARK_GREEN", 0, 128, 0), ("DARK_RED", 128, 0, 0),
         ("DARK_CYAN", 0, 128, 128), ("DARK_PINK", 128, 0, 128), ("BROWN", 128, 128, 0),
         ("DARK_GRAY", 128, 128, 128), ("GRAY", 192, 192, 192), ("STEEL_BLUE", 0, 75, 230),
         ("PURPLE", 67, 47, 219)]
for i, (n, r, g, b) in enumerate(basic, start=1):
    add_color(i, "ORQ_%s_COLOR" % n, 0, 0, rgb(r, g, b))
add_color(19, "ORQ_DARK_ORANGE_COLOR", 0, 0, "darkorange")
system = [("WINDOW_TEXT", "WindowText"), ("WINDOW_BACKGROUND", "Base"), ("WINDOW_HIGHLIGHT", "Highlight"),
          ("WINDOW_HIGHLIGHT_TEXT", "HighlightedText"), ("WINDOW_3D_FACE", "Button"),
          ("WINDOW_3D_HIGHLIGHT", "Light"), ("WINDOW_3D_LIGHT", "Midlight"), ("WINDOW_3D_SHADOW", "Mid"),
          ("WINDOW_3D_DARK_SHADOW", "Dark"), ("WINDOW_TOOLTIP_BKGND", "AlternateBase"),
          ("WINDOW_TOOLTIP_TEXT", "Text")]
for i, (n, role) in enumerate(system, start=20):
    add_color(i, "ORQ_%s_COLOR" % n, 1, 0, "#000000", ROLES[role])
add_color(31, "ORQ_GENERAL_BACKGROUND_COLOR", 0, 1, "#f0f0f0", ROLES["Window"])

house = [("RED", "C8102E"), ("ORANGE", "E87722"), ("YELLOW", "F2C500"), ("GREEN", "3A8D3F"),
         ("LIGHT_BLUE", "5BB4E5"), ("BLUE", "1F5FA8"), ("DARK_BLUE", "0B2D5B"), ("LIGHT_GRAY", "D5D8DC"),
         ("GRAY", "8E959C"), ("DARK_GRAY", "4A5056"), ("CHARCOAL", "26292C")]
for i, (n, h) in enumerate(house, start=32):
    add_color(i, "ORQ_CORVAN_%s_COLOR" % n, 0, 0, hexrgb(h))

# Ten hues, lightest tint to darkest shade. Six have all five steps, three
# lack _S2 and one lacks _T2: 46 rows.
ramp_hues = [("RED", "C8102E", "T2 T1 B S1 S2"), ("ORANGE", "E87722", "T2 T1 B S1 S2"),
             ("YELLOW", "F2C500", "T2 T1 B S1"), ("GREEN", "3A8D3F", "T2 T1 B S1 S2"),
             ("TEAL", "00857C", "T2 T1 B S1"), ("SKY", "5BB4E5", "T1 B S1 S2"),
             ("BLUE", "1F5FA8", "T2 T1 B S1 S2"), ("INDIGO", "3B3B98", "T2 T1 B S1 S2"),
             ("PLUM", "7D3C98", "T2 T1 B S1"), ("SLATE", "5D6D7E", "T2 T1 B S1 S2")]


def step(h, kind):
    r, g, b = int(h[0:2], 16), int(h[2:4], 16), int(h[4:6], 16)
    f = {"T2": 0.6, "T1": 0.3, "B": 0.0, "S1": -0.25, "S2": -0.5}[kind]
    if f >= 0:
        return rgb(round(r + (255 - r) * f), round(g + (255 - g) * f), round(b + (255 - b) * f))
    return rgb(round(r * (1 + f)), round(g * (1 + f)), round(b * (1 + f)))


cid = 43
for hue, base, steps in ramp_hues:
    for s in steps.split():
        suffix = "" if s == "B" else "_" + s
        add_color(cid, "ORQ_COLOR_CORVAN_%s%s" % (hue, suffix), 0, 0, step(base, s))
        cid += 1
assert cid == 89, cid

# Tool groups: (prefix, changeable, [(item, colour), ...]). Identifiers run on
# from 89; 544, 545, 554 and 555 are retired and stay unused.
def items(names, colours):
    return list(zip(names, colours))


tool_colors = []
tool_colors.append(("GED", 1, items(
    ["BACKGROUND", "GRID", "GRID_MAJOR", "PAGE_BORDER", "TITLE_BLOCK_TEXT", "SELECTION", "SELECTION_FILL",
     "HOVER", "RUBBER_BAND", "CROSSHAIR", "NET", "NET_SELECTED", "BUS", "BUS_RIPPER", "CLOCK_NET",
     "RESET_NET", "POWER_NET", "GROUND_NET", "CONSTANT_NET", "UNCONNECTED_NET", "PIN_INPUT", "PIN_OUTPUT",
     "PIN_INOUT", "PORT_FILL", "PORT_TEXT", "INSTANCE_BORDER", "INSTANCE_FILL", "INSTANCE_TEXT",
     "HIER_INSTANCE_FILL", "PRIMITIVE_FILL", "BLACK_BOX_FILL", "ANNOTATION_TEXT", "PROPERTY_TEXT",
     "NET_LABEL", "JUNCTION", "ERROR_MARKER", "WARNING_MARKER", "INFO_MARKER", "PROBE", "GHOST",
     "CROSS_PROBE", "SEARCH_MATCH", "DIFF_ADDED", "DIFF_REMOVED", "DIFF_CHANGED"],
    ["#ffffff", "#e4e7eb", "#c7ccd3", "#5d6d7e", "#26292c", "#ff8c00", "#ffe0b3", "#5bb4e5", "#1f5fa8",
     "#8e959c", "#1b5e20", "#ff8c00", "#0b2d5b", "#0b2d5b", "#c8102e", "#7d3c98", "#c8102e", "#26292c",
     "#8e959c", "#e87722", "#1f5fa8", "#3a8d3f", "#7d3c98", "#fff3c4", "#26292c", "#4a5056", "#f7f9fb",
     "#26292c", "#e8f1fb", "#fdf6e3", "#4a5056", "#1f5fa8", "#5d6d7e", "#00857c", "#1b5e20", "#c8102e",
     "#e87722", "#1f5fa8", "#e377c2", "#c7ccd3", "#ff00ff", "#ffff00", "#3a8d3f", "#c8102e", "#e87722"])))
tool_colors.append(("MSW", 1, items(
    ["EXTRA_INFO", "INFO", "WARNING", "CRITICAL_WARNING", "ERROR", "KEYWORD_HIGHLIGHT_TEXT",
     "KEYWORD_HIGHLIGHT_BKGND"],
    ["#008000", "#008000", "#0000ff", "#ff00ff", "#ff0000", "#000000", "#ffff00"])))
tool_colors.append(("IO", 0, items(["BANK_%d" % i for i in range(1, 25)], CYCLE + ramp(0, 330, 8))))
tool_colors.append(("PROG_BAR", 1, items(
    ["BACKGROUND", "BORDER", "CHUNK", "CHUNK_GRADIENT", "TEXT", "DONE", "FAILED"],
    ["#e4e7eb", "#8e959c", "#1f5fa8", "#5bb4e5", "#26292c", "#3a8d3f", "#c8102e"])))
fpv = (["DIE", "DIE_BORDER", "CORE", "CORE_BORDER", "IO_RING", "PAD", "PAD_SELECTED", "PAD_POWER",
        "PAD_GROUND", "BLOCK_FILL", "BLOCK_BORDER", "BLOCK_TEXT", "BLOCK_SELECTED", "BLOCK_FIXED",
        "BLOCK_SOFT", "MACRO_FILL", "MACRO_BORDER", "MACRO_HALO", "BLOCKAGE", "PARTIAL_BLOCKAGE",
        "ROW", "SITE", "KEEPOUT", "REGION_FILL", "REGION_BORDER", "BOUND", "GUIDE", "FENCE",
        "POWER_STRIPE", "POWER_RING", "GROUND_STRIPE", "FLYLINE", "FLYLINE_SELECTED", "CUT_LINE",
        "RULER", "RULER_TEXT"] +
       ["CLOCK_REGION_%d" % i for i in range(1, 17)] +
       ["LAYER_M%d" % i for i in range(1, 13)] +
       ["CONGESTION_%d" % i for i in range(1, 11)] +
       ["DENSITY_%d" % i for i in range(1, 11)] +
       ["SLR_%d" % i for i in range(1, 5)] +
       ["PLACEMENT_LEGAL", "PLACEMENT_ILLEGAL", "OVERLAP", "UNPLACED", "HEAT_LOW", "HEAT_HIGH",
        "LABEL", "BACKGROUND"])
fpv_colours = (["#2b3242", "#8a94a6", "#323b4e", "#56607a", "#3f4a5e", "#c9a227", "#ffd54f", "#c8102e",
                "#26292c", "#4e79a7", "#a0cbe8", "#ffffff", "#ff8c00", "#7f7f7f", "#76b7b2", "#59a14f",
                "#8cd17d", "#b6992d", "#e15759", "#ff9d9a", "#3f4a5e", "#4a5056", "#d62728", "#79706e",
                "#bab0ac", "#edc948", "#b07aa1", "#ff9da7", "#c8102e", "#e87722", "#1f5fa8", "#9c755f",
                "#ffd54f", "#ffffff", "#d5d8dc", "#ffffff"] +
               ramp(200, 340, 16) + CYCLE[:12] + ramp(240, 0, 10) + ramp(120, 0, 10) +
               ["#4e79a7", "#f28e2b", "#59a14f", "#e15759"] +
               ["#3a8d3f", "#c8102e", "#ff00ff", "#8e959c", "#1f5fa8", "#c8102e", "#d5d8dc", "#1e2430"])
tool_colors.append(("FPV", 1, items(fpv, fpv_colours)))
wav = (["BACKGROUND", "GRID", "NAME_BKGND", "NAME_TEXT", "VALUE_TEXT", "CURSOR_1", "CURSOR_2",
        "CURSOR_3", "CURSOR_4", "MARKER", "SELECTION", "SIGNAL_HIGH", "SIGNAL_LOW", "SIGNAL_X",
        "SIGNAL_Z", "BUS", "BUS_TEXT", "ANALOG", "EVENT", "TRIGGER", "TIMESCALE_TEXT", "DIVIDER"] +
       ["TRACE_%d" % i for i in range(1, 17)])
wav_colours = (["#000000", "#333333", "#202020", "#e4e7eb", "#ffd54f", "#ffff00", "#00ffff", "#ff00ff",
                "#ff8c00", "#5bb4e5", "#1f5fa8", "#00ff00", "#008000", "#ff0000", "#ffaa00", "#00c0c0",
                "#ffffff", "#5bb4e5", "#ff00ff", "#ff8c00", "#d5d8dc", "#8e959c"] + CYCLE)
tool_colors.append(("WAV", 1, items(wav, wav_colours)))
tmv = (["BACKGROUND", "PATH", "CRITICAL_PATH", "SLACK_POSITIVE", "SLACK_NEGATIVE", "SLACK_ZERO",
        "CLOCK_LAUNCH", "CLOCK_CAPTURE", "CLOCK_SKEW", "DATA_ARRIVAL", "DATA_REQUIRED", "SETUP",
        "HOLD", "RECOVERY", "REMOVAL", "PULSE_WIDTH", "MAX_DELAY", "FALSE_PATH", "MULTICYCLE",
        "EXCEPTION"] + ["HISTOGRAM_%d" % i for i in range(1, 12)])
tmv_colours = (["#ffffff", "#1f5fa8", "#c8102e", "#3a8d3f", "#c8102e", "#e87722", "#00857c", "#7d3c98",
                "#f2c500", "#1f77b4", "#ff7f0e", "#2ca02c", "#d62728", "#9467bd", "#8c564b", "#e377c2",
                "#7f7f7f", "#bcbd22", "#17becf", "#393b79"] + ramp(0, 120, 11))
tool_colors.append(("TMV", 1, items(tmv, tmv_colours)))
nlv = ["BACKGROUND", "CELL", "CELL_FILL", "CELL_TEXT", "HIER_CELL", "HIER_CELL_FILL", "NET", "NET_SELECTED",
       "BUS", "PORT", "PORT_TEXT", "PIN", "PIN_TEXT", "HIGHLIGHT_1", "HIGHLIGHT_2", "HIGHLIGHT_3",
       "HIGHLIGHT_4", "HIGHLIGHT_5", "HIGHLIGHT_6", "HIGHLIGHT_7", "HIGHLIGHT_8", "FANIN", "FANOUT",
       "LOOP", "CONSTANT"]
tool_colors.append(("NLV", 1, items(nlv, ["#ffffff", "#4a5056", "#f7f9fb", "#26292c", "#1f5fa8", "#e8f1fb",
                                          "#1b5e20", "#ff8c00", "#0b2d5b", "#7d3c98", "#26292c", "#4a5056",
                                          "#5d6d7e"] + CYCLE[:8] + ["#1f77b4", "#d62728", "#ff00ff", "#8e959c"])))
pkg = (["BACKGROUND", "PACKAGE_OUTLINE", "BALL", "BALL_SELECTED", "BALL_UNUSED", "BALL_POWER", "BALL_GROUND",
        "BALL_CLOCK", "BALL_CONFIG", "BALL_DIFF_P", "BALL_DIFF_N", "BALL_PROHIBITED", "BALL_TEXT",
        "VREF", "VCCO", "GT_QUAD", "GT_REFCLK", "DIFF_PAIR_LINK", "PLACED_PORT", "UNPLACED_PORT",
        "CONFLICT", "ROW_LABEL", "COLUMN_LABEL", "DIE_VIEW_BKGND", "PACKAGE_VIEW_BKGND"])
tool_colors.append(("PKG", 1, items(pkg, ["#ffffff", "#4a5056", "#c7ccd3", "#ff8c00", "#e4e7eb", "#c8102e",
                                          "#26292c", "#00857c", "#7d3c98", "#1f5fa8", "#5bb4e5", "#8e959c",
                                          "#26292c", "#f2c500", "#e87722", "#3b3b98", "#5d6d7e", "#9467bd",
                                          "#3a8d3f", "#c8102e", "#ff00ff", "#4a5056", "#4a5056", "#f7f9fb",
                                          "#ffffff"])))
src = ["BACKGROUND", "TEXT", "LINE_NUMBER", "LINE_NUMBER_BKGND", "CURRENT_LINE", "SELECTION",
       "KEYWORD", "TYPE", "COMMENT", "STRING", "NUMBER", "OPERATOR", "PREPROCESSOR", "ATTRIBUTE",
       "MODULE_NAME", "INSTANCE_NAME", "SIGNAL_NAME", "PARAMETER", "BRACE_MATCH", "BRACE_MISMATCH",
       "SEARCH_MATCH", "ERROR_SQUIGGLE", "WARNING_SQUIGGLE", "BOOKMARK", "FOLD_MARKER", "WHITESPACE",
       "TCL_COMMAND", "TCL_VARIABLE", "TCL_OPTION", "TCL_BRACKET"]
tool_colors.append(("SRC", 1, items(src, ["#ffffff", "#000000", "#8e959c", "#f0f0f0", "#fffbe6", "#b3d4fc",
                                          "#0000ff", "#267f99", "#008000", "#a31515", "#098658", "#000000",
                                          "#af00db", "#795e26", "#001080", "#0070c1", "#267f99", "#811f3f",
                                          "#b4e6b4", "#ffb3b3", "#ffff00", "#ff0000", "#e87722", "#5bb4e5",
                                          "#8e959c", "#d5d8dc", "#0000ff", "#001080", "#795e26", "#af00db"])))
dbg = (["BACKGROUND", "TRIGGER_ARMED", "TRIGGER_FIRED", "TRIGGER_IDLE", "PROBE", "PROBE_SELECTED",
        "CAPTURE_WINDOW", "PRE_TRIGGER", "POST_TRIGGER", "MARKER_T", "MARKER_X", "MARKER_O",
        "COMPARATOR", "STORAGE_QUALIFIER", "COUNTER", "STATE_MACHINE", "STATE_ACTIVE", "STATE_IDLE",
        "STATE_TRANSITION", "BREAKPOINT"])
tool_colors.append(("DBG", 1, items(dbg, ["#000000", "#f2c500", "#c8102e", "#8e959c", "#5bb4e5", "#ff8c00",
                                          "#1f5fa8", "#3b3b98", "#00857c", "#ffff00", "#00ffff", "#ff00ff",
                                          "#7d3c98", "#e377c2", "#17becf", "#bcbd22", "#3a8d3f", "#8e959c",
                                          "#ffffff", "#c8102e"])))
pwr = (["BACKGROUND", "STATIC", "DYNAMIC", "CLOCKS", "SIGNALS", "LOGIC", "BRAM", "DSP", "IO", "TRANSCEIVER",
        "PLL", "THERMAL_MARGIN_OK", "THERMAL_MARGIN_LOW", "THERMAL_MARGIN_NONE", "RAIL_1", "RAIL_2",
        "RAIL_3", "RAIL_4", "RAIL_5", "RAIL_6"])
tool_colors.append(("PWR", 1, items(pwr, ["#ffffff", "#5d6d7e", "#e87722", "#1f5fa8", "#3a8d3f", "#7d3c98",
                                          "#00857c", "#c8102e", "#f2c500", "#3b3b98", "#5bb4e5", "#3a8d3f",
                                          "#e87722", "#c8102e"] + CYCLE[:6])))
hie = ["BACKGROUND", "MODULE", "MODULE_TOP", "MODULE_BLACK_BOX", "MODULE_IP", "MODULE_GENERATED",
       "MODULE_MISSING", "MODULE_SELECTED", "UTILIZATION_LOW", "UTILIZATION_MEDIUM", "UTILIZATION_HIGH",
       "FILTER_MATCH"]
tool_colors.append(("HIE", 1, items(hie, ["#ffffff", "#26292c", "#0b2d5b", "#4a5056", "#7d3c98", "#00857c",
                                          "#c8102e", "#ff8c00", "#3a8d3f", "#f2c500", "#c8102e", "#ffff00"])))
con = ["BACKGROUND", "TEXT", "PROMPT", "COMMAND", "RESULT", "ERROR", "WARNING", "SELECTION"]
tool_colors.append(("CONWQ", 1, items(con, ["#ffffff", "#000000", "#1f5fa8", "#0b2d5b", "#26292c", "#c8102e",
                                            "#e87722", "#b3d4fc"])))
rpt = ["HEADER", "HEADER_TEXT", "ROW_EVEN", "ROW_ODD", "GRID", "LINK", "PASS", "FAIL", "WAIVED", "NOT_RUN"]
tool_colors.append(("RPT", 1, items(rpt, ["#d5d8dc", "#26292c", "#ffffff", "#f5f7f9", "#d5d8dc", "#1f5fa8",
                                          "#3a8d3f", "#c8102e", "#e87722", "#8e959c"])))
clk = ["CLOCK_%d" % i for i in range(1, 13)] + ["GENERATED_CLOCK", "VIRTUAL_CLOCK", "ASYNC_GROUP",
                                               "EXCLUSIVE_GROUP", "UNCONSTRAINED", "CDC_SAFE", "CDC_UNSAFE",
                                               "CDC_WAIVED"]
tool_colors.append(("CLK", 1, items(clk, CYCLE[:12] + ["#8e959c", "#c7ccd3", "#7d3c98", "#00857c", "#c8102e",
                                                       "#3a8d3f", "#c8102e", "#e87722"])))
ipc = ["BACKGROUND", "CATEGORY", "IP_CORE", "IP_LOCKED", "IP_UPGRADE", "INTERFACE", "INTERFACE_CONNECTED",
       "PORT", "ADDRESS_MAPPED", "ADDRESS_UNMAPPED", "ADDRESS_EXCLUDED", "VALIDATION_OK", "VALIDATION_FAILED"]
tool_colors.append(("IPC", 1, items(ipc, ["#ffffff", "#26292c", "#1f5fa8", "#8e959c", "#e87722", "#00857c",
                                          "#3a8d3f", "#4a5056", "#3a8d3f", "#c8102e", "#8e959c", "#3a8d3f",
                                          "#c8102e"])))
sim = ["BACKGROUND", "RUNNING", "PAUSED", "STOPPED", "BREAK", "SCOPE", "PROCESS", "OBJECT", "VALUE_CHANGED",
       "FORCED", "DEPOSITED", "COVERAGE_HIT", "COVERAGE_MISS", "COVERAGE_EXCLUDED", "ASSERTION_PASS",
       "ASSERTION_FAIL"]
tool_colors.append(("SIM", 1, items(sim, ["#ffffff", "#3a8d3f", "#f2c500", "#c8102e", "#ff00ff", "#1f5fa8",
                                          "#00857c", "#4a5056", "#e87722", "#c8102e", "#7d3c98", "#3a8d3f",
                                          "#c8102e", "#8e959c", "#3a8d3f", "#c8102e"])))
drc = ["BACKGROUND", "CRITICAL", "ERROR", "WARNING", "ADVISORY", "WAIVED", "FIXED", "NEW", "SELECTED",
       "RULE_TEXT", "CELL_HIGHLIGHT", "NET_HIGHLIGHT", "SITE_HIGHLIGHT", "PIN_HIGHLIGHT", "BOUNDARY",
       "FILTERED", "CHECKED", "UNCHECKED", "RUNNING", "SUMMARY_BAR", "SUMMARY_TEXT"]
tool_colors.append(("DRC", 1, items(drc, ["#ffffff", "#8b0000", "#c8102e", "#e87722", "#1f5fa8", "#8e959c",
                                          "#3a8d3f", "#ff00ff", "#ff8c00", "#26292c", "#ffff00", "#00ffff",
                                          "#ff00ff", "#ff8c00", "#4a5056", "#c7ccd3", "#3a8d3f", "#8e959c",
                                          "#5bb4e5", "#1f5fa8", "#ffffff"])))
cst = ["BACKGROUND", "COMMAND", "OBJECT", "OPTION", "VALUE", "COMMENT", "INVALID", "UNUSED", "OVERRIDDEN",
       "SCOPED", "TARGET_FILE", "READ_ONLY", "MODIFIED", "TIMING", "PHYSICAL", "DEBUG"]
tool_colors.append(("CST", 1, items(cst, ["#ffffff", "#0000ff", "#267f99", "#795e26", "#098658", "#008000",
                                          "#c8102e", "#8e959c", "#e87722", "#7d3c98", "#1f5fa8", "#5d6d7e",
                                          "#ff8c00", "#00857c", "#3b3b98", "#e377c2"])))
# Heat maps and histograms are scales a legend explains, and difference
# colours are a convention users rely on; they are fixed.
FIXED_ITEMS = {("GED", "DIFF_ADDED"), ("GED", "DIFF_REMOVED"), ("GED", "DIFF_CHANGED")} | \
              {("FPV", "CONGESTION_%d" % i) for i in range(1, 11)} | \
              {("FPV", "DENSITY_%d" % i) for i in range(1, 11)} | \
              {("TMV", "HISTOGRAM_%d" % i) for i in range(1, 12)}

RETIRED = {544, 545, 554, 555}
cid = 89
group_sizes = {}
for prefix, changeable, rows in tool_colors:
    group_sizes[prefix] = len(rows)
    for item, colour in rows:
        while cid in RETIRED:
            cid += 1
        fixed = (prefix, item) in FIXED_ITEMS
        add_color(cid, "ORQ_%s_%s_COLOR" % (prefix, item), 0, 0 if fixed or not changeable else 1, colour)
        cid += 1
assert cid == 577, "colour identifiers end at %d, not 576" % (cid - 1)
assert len(colors) == 572, len(colors)
assert sum(c[3] for c in colors) == 427, sum(c[3] for c in colors)
assert max(group_sizes.values()) == 96, group_sizes
assert len({c[1] for c in colors}) == 572
color_ids = {c[1]: c[0] for c in colors}

# --------------------------------------------------------------------------- pens
# (id, name, colour, style, cap, width)
pens = []
basic_names = [b[0] for b in basic[:16]]
for i, n in enumerate(basic_names, start=1):
    pens.append((i, "ORQ_%s_PEN" % n, "ORQ_%s_COLOR" % n, "SolidLine", "SquareCap", 1))
for i, (n, _) in enumerate(system, start=18):
    pens.append((i, "ORQ_%s_PEN" % n, "ORQ_%s_COLOR" % n, "SolidLine", "SquareCap", 1))
pens.append((29, "ORQ_RECT_TRACKER_SOLID_PEN", "ORQ_WINDOW_HIGHLIGHT_COLOR", "SolidLine", "SquareCap", 1))
pens.append((30, "ORQ_RECT_TRACKER_DOTTED_PEN", "ORQ_WINDOW_HIGHLIGHT_COLOR", "DotLine", "SquareCap", 1))

S, DA, DO = "SolidLine", "DashLine", "DotLine"
SQ, RO, FL = "SquareCap", "RoundCap", "FlatCap"
# (prefix, [(item, colour item, style, cap, width)]) ; colour item names a tool colour of that prefix
tool_pens = [
    ("GED", [("GRID", "GRID", S, FL, 0), ("GRID_MAJOR", "GRID_MAJOR", S, FL, 1),
             ("PAGE_BORDER", "PAGE_BORDER", S, SQ, 1), ("SELECTION", "SELECTION", S, SQ, 2),
             ("HOVER", "HOVER", S, SQ, 2), ("RUBBER_BAND", "RUBBER_BAND", DA, SQ, 1),
             ("NET", "NET", S, RO, 1), ("NET_SELECTED", "NET_SELECTED", S, RO, 3), ("BUS", "BUS", S, RO, 3),
             ("BUS_SELECTED", "NET_SELECTED", S, RO, 4), ("CLOCK_NET", "CLOCK_NET", S, RO, 2),
             ("RESET_NET", "RESET_NET", S, RO, 1), ("POWER_NET", "POWER_NET", S, RO, 2),
             ("GROUND_NET", "GROUND_NET", S, RO, 2), ("UNCONNECTED_NET", "UNCONNECTED_NET", DA, RO, 1),
             ("PIN", "PIN_INPUT", S, SQ, 1), ("PORT", "PORT_TEXT", S, SQ, 1),
             ("INSTANCE_BORDER", "INSTANCE_BORDER", S, SQ, 1), ("HIER_INSTANCE_BORDER", "INSTANCE_BORDER", S, SQ, 2),
             ("BLACK_BOX_BORDER", "BLACK_BOX_FILL", S, SQ, 2), ("GHOST", "GHOST", DO, SQ, 1),
             ("PROBE", "PROBE", S, RO, 3), ("CROSS_PROBE", "CROSS_PROBE", S, RO, 3),
             ("ERROR_MARKER", "ERROR_MARKER", S, SQ, 2), ("WARNING_MARKER", "WARNING_MARKER", S, SQ, 2),
             ("CROSSHAIR", "CROSSHAIR", S, FL, 1), ("JUNCTION", "JUNCTION", S, RO, 5),
             ("SEARCH_MATCH", "SEARCH_MATCH", S, SQ, 3)]),
    ("FPV", [("DIE", "DIE_BORDER", S, SQ, 3), ("CORE", "CORE_BORDER", DA, SQ, 1), ("PAD", "PAD", S, SQ, 1),
             ("BLOCK", "BLOCK_BORDER", S, SQ, 1), ("BLOCK_SELECTED", "BLOCK_SELECTED", S, SQ, 3),
             ("MACRO", "MACRO_BORDER", S, SQ, 2), ("MACRO_HALO", "MACRO_HALO", DO, SQ, 1),
             ("REGION", "REGION_BORDER", S, SQ, 2), ("FENCE", "FENCE", S, SQ, 3), ("GUIDE", "GUIDE", S, SQ, 1),
             ("ROW", "ROW", S, FL, 0), ("SITE", "SITE", S, FL, 0), ("POWER_STRIPE", "POWER_STRIPE", S, FL, 4),
             ("POWER_RING", "POWER_RING", S, FL, 6), ("GROUND_STRIPE", "GROUND_STRIPE", S, FL, 4),
             ("FLYLINE", "FLYLINE", S, RO, 1), ("FLYLINE_SELECTED", "FLYLINE_SELECTED", S, RO, 2),
             ("CUT_LINE", "CUT_LINE", S, SQ, 1), ("RULER", "RULER", S, SQ, 1), ("OVERLAP", "OVERLAP", S, SQ, 3)]),
    ("WAV", [("GRID", "GRID", DO, FL, 0), ("CURSOR_1", "CURSOR_1", S, FL, 1), ("CURSOR_2", "CURSOR_2", S, FL, 1),
             ("CURSOR_3", "CURSOR_3", S, FL, 1), ("CURSOR_4", "CURSOR_4", S, FL, 1), ("MARKER", "MARKER", DA, FL, 1),
             ("SIGNAL_HIGH", "SIGNAL_HIGH", S, SQ, 1), ("SIGNAL_LOW", "SIGNAL_LOW", S, SQ, 1),
             ("SIGNAL_X", "SIGNAL_X", S, SQ, 2), ("SIGNAL_Z", "SIGNAL_Z", S, SQ, 1), ("BUS", "BUS", S, SQ, 1),
             ("ANALOG", "ANALOG", S, RO, 2), ("EVENT", "EVENT", S, SQ, 1), ("TRIGGER", "TRIGGER", S, SQ, 3),
             ("DIVIDER", "DIVIDER", S, SQ, 1), ("SELECTION", "SELECTION", S, SQ, 2)]),
    ("TMV", [("PATH", "PATH", S, RO, 2), ("CRITICAL_PATH", "CRITICAL_PATH", S, RO, 3),
             ("CLOCK_LAUNCH", "CLOCK_LAUNCH", S, SQ, 1), ("CLOCK_CAPTURE", "CLOCK_CAPTURE", S, SQ, 1),
             ("DATA_ARRIVAL", "DATA_ARRIVAL", S, RO, 2), ("DATA_REQUIRED", "DATA_REQUIRED", S, SQ, 2),
             ("SETUP", "SETUP", S, SQ, 1), ("HOLD", "HOLD", S, SQ, 1), ("FALSE_PATH", "FALSE_PATH", DO, SQ, 1),
             ("MULTICYCLE", "MULTICYCLE", S, SQ, 1), ("SLACK_ZERO", "SLACK_ZERO", S, SQ, 1),
             ("HISTOGRAM_AXIS", "PATH", S, SQ, 1)]),
    ("NLV", [("CELL", "CELL", S, SQ, 1), ("HIER_CELL", "HIER_CELL", S, SQ, 2), ("NET", "NET", S, RO, 1),
             ("NET_SELECTED", "NET_SELECTED", S, RO, 3), ("BUS", "BUS", S, RO, 3), ("PORT", "PORT", S, SQ, 1),
             ("PIN", "PIN", S, SQ, 1), ("FANIN", "FANIN", S, RO, 2), ("FANOUT", "FANOUT", S, RO, 2),
             ("LOOP", "LOOP", S, RO, 2)]),
    ("PKG", [("PACKAGE_OUTLINE", "PACKAGE_OUTLINE", S, SQ, 2), ("BALL", "BALL", S, SQ, 1),
             ("BALL_SELECTED", "BALL_SELECTED", S, SQ, 3), ("DIFF_PAIR_LINK", "DIFF_PAIR_LINK", S, RO, 2),
             ("CONFLICT", "CONFLICT", S, SQ, 3), ("GT_QUAD", "GT_QUAD", DA, SQ, 1), ("VREF", "VREF", S, SQ, 1),
             ("LABEL", "ROW_LABEL", S, SQ, 1), ("DIE_OUTLINE", "PACKAGE_OUTLINE", S, SQ, 10),
             ("PROHIBITED", "BALL_PROHIBITED", S, SQ, 2)]),
    ("DBG", [("TRIGGER", "TRIGGER_FIRED", S, RO, 2), ("MARKER_T", "MARKER_T", S, FL, 1),
             ("MARKER_X", "MARKER_X", S, FL, 1), ("MARKER_O", "MARKER_O", S, FL, 1),
             ("CAPTURE_WINDOW", "CAPTURE_WINDOW", DA, SQ, 1), ("STATE_TRANSITION", "STATE_TRANSITION", S, RO, 2),
             ("STATE_ACTIVE", "STATE_ACTIVE", S, RO, 3), ("BREAKPOINT", "BREAKPOINT", S, SQ, 2)]),
    ("PWR", [("RAIL_1", "RAIL_1", S, SQ, 3), ("RAIL_2", "RAIL_2", S, SQ, 3), ("RAIL_3", "RAIL_3", S, SQ, 3),
             ("RAIL_4", "RAIL_4", S, SQ, 3), ("RAIL_5", "RAIL_5", S, SQ, 3), ("RAIL_6", "RAIL_6", S, SQ, 3)]),
    ("SRC", [("CURRENT_LINE", "CURRENT_LINE", S, RO, 1), ("BRACE_MATCH", "BRACE_MATCH", S, SQ, 1),
             ("ERROR_SQUIGGLE", "ERROR_SQUIGGLE", S, RO, 1), ("WARNING_SQUIGGLE", "WARNING_SQUIGGLE", DO, RO, 1)]),
    ("HIE", [("MODULE_SELECTED", "MODULE_SELECTED", S, SQ, 2), ("FILTER_MATCH", "FILTER_MATCH", S, SQ, 1)]),
    ("CLK", [("CLOCK", "CLOCK_1", S, SQ, 2), ("GENERATED_CLOCK", "GENERATED_CLOCK", S, SQ, 2),
             ("CDC_UNSAFE", "CDC_UNSAFE", S, RO, 3)]),
    ("DRC", [("CRITICAL", "CRITICAL", S, SQ, 3), ("ERROR", "ERROR", S, SQ, 3), ("WARNING", "WARNING", S, SQ, 2),
             ("BOUNDARY", "BOUNDARY", S, SQ, 1), ("SELECTED", "SELECTED", S, SQ, 8)]),
]
RETIRED_PENS = {17, 111, 112, 155}
pid = 31
pen_group_sizes = []
for prefix, rows in tool_pens:
    pen_group_sizes.append(len(rows))
    for item, colour_item, style, cap, width in rows:
        while pid in RETIRED_PENS:
            pid += 1
        colour = "ORQ_%s_%s_COLOR" % (prefix, colour_item)
        assert colour in color_ids, colour
        pens.append((pid, "ORQ_%s_%s_PEN" % (prefix, item), colour, style, cap, width))
        pid += 1


def count(rows, index, value):
    return sum(1 for p in rows if p[index] == value)


stats = {"pens": len(pens), "last": pid - 1, "solid": count(pens, 3, S), "dash": count(pens, 3, DA),
         "dot": count(pens, 3, DO), "square": count(pens, 4, SQ), "round": count(pens, 4, RO),
         "flat": count(pens, 4, FL), "w1": count(pens, 5, 1), "w2": count(pens, 5, 2),
         "wmin": min(p[5] for p in pens), "wmax": max(p[5] for p in pens)}
expected = {"pens": 153, "last": 157, "solid": 141, "dash": 6, "dot": 6, "square": 104, "round": 32,
            "flat": 17, "w1": 85, "w2": 32, "wmin": 0, "wmax": 10}
if stats != expected:
    sys.exit("pen table does not keep its distribution:\n  have %s\n  want %s" % (stats, expected))
assert all(2 <= n <= 28 for n in pen_group_sizes), pen_group_sizes

# --------------------------------------------------------------------------- brushes
brushes = []
for i, n in enumerate(basic_names, start=1):
    brushes.append((i, "ORQ_%s_BRUSH" % n, "ORQ_%s_COLOR" % n, "SolidPattern"))
brushes.append((17, "ORQ_EMPTY_BRUSH", "ORQ_WINDOW_BACKGROUND_COLOR", "NoBrush"))
for i, (n, _) in enumerate(system, start=18):
    brushes.append((i, "ORQ_%s_BRUSH" % n, "ORQ_%s_COLOR" % n, "SolidPattern"))
brushes.append((29, "ORQ_GED_BACKGROUND_BRUSH", "ORQ_GED_BACKGROUND_COLOR", "SolidPattern"))
assert [b[0] for b in brushes] == list(range(1, 30))

# --------------------------------------------------------------------------- fonts
# (id, name, changeable, text colour, background colour, points, bold, italic, underline, strikeout, hint, face)
PROP, MONO = "Corvan Clear", "Lucida Console"
fonts = []


def font(fid, name, changeable, text, bkgnd, points, bold=0, italic=0, underline=0, strike=0, mono=False,
         hint=None):
    face = MONO if mono else PROP
    if hint is None:
        hint = 2 if mono else 5  # TypeWriter for monospaced, AnyStyle otherwise
    fonts.append((fid, name, changeable, text, bkgnd, points, bold, italic, underline, strike, hint, face))


W_TEXT, W_BKGND = "ORQ_WINDOW_TEXT_COLOR", "ORQ_WINDOW_BACKGROUND_COLOR"
font(1, "ORQ_GUI_FONT", 1, W_TEXT, W_BKGND, 9, hint=4)
font(2, "ORQ_GUI_BOLD_FONT", 1, W_TEXT, W_BKGND, 9, bold=1, hint=4)
font(3, "ORQ_GUI_BOLD_UNDERLINE_FONT", 1, W_TEXT, W_BKGND, 9, bold=1, underline=1, hint=4)
font(4, "ORQ_GUI_UNDERLINE_FONT", 1, W_TEXT, W_BKGND, 9, underline=1, hint=4)
font(5, "ORQ_TOOLTIP_FONT", 0, "ORQ_WINDOW_TOOLTIP_TEXT_COLOR", "ORQ_WINDOW_TOOLTIP_BKGND_COLOR", 9)
font(6, "ORQ_HEADER_FOOTER_FONT", 1, "ORQ_BLACK_COLOR", "ORQ_WHITE_COLOR", 10)
font(7, "ORQ_MDI_BACKGROUND_FONT", 0, "ORQ_GRAY_COLOR", "ORQ_DARK_GRAY_COLOR", 10)

# Tool font groups: (prefix, [(item, changeable, points, bold, italic, mono)]); colours are the tool's
# text colour on its background.
tool_fonts = [
    ("GED", "INSTANCE_TEXT", "BACKGROUND",
     [("INSTANCE_NAME", 1, 8, 0, 0, 0), ("CELL_NAME", 1, 8, 1, 0, 0), ("PIN_NAME", 1, 7, 0, 0, 0),
      ("NET_LABEL", 1, 7, 0, 1, 0), ("PORT_NAME", 1, 8, 1, 0, 0), ("PROPERTY", 1, 7, 0, 1, 0),
      ("ANNOTATION", 1, 9, 0, 0, 0), ("TITLE_BLOCK", 1, 10, 1, 0, 0), ("TITLE", 1, 14, 1, 0, 0),
      ("PAGE_NUMBER", 0, 8, 0, 0, 0), ("MARKER", 0, 7, 1, 0, 0), ("GRID_LABEL", 0, 6, 0, 0, 0),
      ("TOOLTIP", 0, 9, 0, 0, 0)]),
    ("FPV", "BLOCK_TEXT", "BACKGROUND",
     [("BLOCK_NAME", 1, 9, 1, 0, 0), ("CELL_TYPE", 1, 8, 0, 0, 0), ("PAD_NAME", 1, 7, 0, 0, 0),
      ("REGION_NAME", 1, 10, 1, 1, 0), ("RULER", 1, 8, 0, 0, 1), ("LEGEND", 1, 8, 0, 0, 0),
      ("LEGEND_TITLE", 1, 9, 1, 0, 0), ("COORDINATES", 0, 8, 0, 0, 1), ("DIE_TITLE", 1, 16, 1, 0, 0),
      ("HEAT_MAP_SCALE", 0, 7, 0, 0, 0)]),
    ("WAV", "NAME_TEXT", "BACKGROUND",
     [("SIGNAL_NAME", 1, 9, 0, 0, 1), ("SIGNAL_VALUE", 1, 8, 0, 0, 1), ("BUS_VALUE", 1, 8, 0, 0, 1),
      ("TIMESCALE", 1, 8, 0, 0, 0), ("CURSOR_LABEL", 1, 8, 1, 0, 0), ("MARKER_LABEL", 1, 8, 0, 0, 0),
      ("GROUP_NAME", 1, 9, 1, 0, 0), ("DIVIDER", 0, 9, 1, 1, 0)]),
    ("TMV", "PATH", "BACKGROUND",
     [("PATH_TABLE", 1, 9, 0, 0, 1), ("SLACK", 1, 9, 1, 0, 1), ("CLOCK_NAME", 1, 9, 0, 0, 0),
      ("SCHEMATIC", 1, 8, 0, 0, 0), ("HISTOGRAM_LABEL", 0, 7, 0, 0, 0), ("HISTOGRAM_TITLE", 0, 11, 1, 0, 0)]),
    ("NLV", "CELL_TEXT", "BACKGROUND",
     [("CELL_NAME", 1, 8, 0, 0, 0), ("PIN_NAME", 1, 7, 0, 0, 0), ("PORT_NAME", 1, 8, 1, 0, 0),
      ("NET_NAME", 1, 7, 0, 1, 0)]),
    ("PKG", "BALL_TEXT", "BACKGROUND",
     [("BALL_NAME", 1, 6, 0, 0, 0), ("BANK_LABEL", 1, 9, 1, 0, 0), ("ROW_LABEL", 1, 8, 0, 0, 0),
      ("COLUMN_LABEL", 1, 8, 0, 0, 0), ("PORT_NAME", 1, 8, 0, 0, 0), ("PACKAGE_TITLE", 0, 18, 1, 0, 0)]),
    ("SRC", "TEXT", "BACKGROUND",
     [("EDITOR", 1, 10, 0, 0, 1), ("LINE_NUMBER", 1, 9, 0, 0, 1), ("FOLD_MARKER", 0, 8, 0, 0, 1),
      ("MINIMAP", 0, 6, 0, 0, 1)]),
    ("RPT", "HEADER_TEXT", "ROW_EVEN",
     [("HEADER", 1, 10, 1, 0, 0), ("BODY", 1, 9, 0, 0, 0), ("BODY_MONOSPACE", 1, 9, 0, 0, 1),
      ("TITLE", 1, 14, 1, 0, 0), ("SUBTITLE", 1, 11, 1, 1, 0), ("FOOTNOTE", 1, 7, 0, 1, 0),
      ("LINK", 1, 9, 0, 0, 0)]),
    ("DBG", "PROBE", "BACKGROUND",
     [("PROBE_NAME", 1, 9, 0, 0, 1), ("TRIGGER_STATUS", 1, 10, 1, 0, 0), ("STATE_NAME", 1, 9, 0, 0, 0),
      ("MARKER_LABEL", 0, 8, 1, 0, 0)]),
    ("PWR", "STATIC", "BACKGROUND",
     [("SUMMARY", 1, 11, 1, 0, 0), ("TABLE", 1, 9, 0, 0, 0), ("CHART_LABEL", 0, 8, 0, 0, 0),
      ("CHART_TITLE", 0, 12, 1, 0, 0)]),
    ("HIE", "MODULE", "BACKGROUND", [("MODULE_NAME", 1, 9, 0, 0, 0), ("UTILIZATION", 1, 8, 0, 0, 1)]),
    ("CLK", "CLOCK_1", "CLOCK_2",
     [("CLOCK_NAME", 1, 9, 1, 0, 0), ("WAVEFORM_LABEL", 0, 8, 0, 0, 1)]),
    ("ZOOM", "WINDOW_HIGHLIGHT", "WINDOW_BACKGROUND", []),
    ("IPC", "IP_CORE", "BACKGROUND",
     [("CATALOG", 1, 9, 0, 0, 0), ("IP_NAME", 1, 10, 1, 0, 0), ("PARAMETER", 1, 9, 0, 0, 1),
      ("DOCUMENTATION", 1, 9, 0, 1, 0), ("BANNER", 0, 24, 1, 0, 0)]),
    ("DRC", "RULE_TEXT", "BACKGROUND",
     [("RULE", 1, 9, 1, 0, 0), ("DESCRIPTION", 1, 9, 0, 0, 0)]),
]
fid = 8
for prefix, text_item, bkgnd_item, rows in tool_fonts:
    if prefix == "ZOOM":
        assert fid == 78, "the zoom-drag font must be 78, is %d" % fid
        font(78, "ORQ_ZOOM_DRAG_FONT", 0, "ORQ_WINDOW_HIGHLIGHT_COLOR", "ORQ_WINDOW_BACKGROUND_COLOR", 10, bold=1)
        fid += 1
        continue
    text = "ORQ_%s_%s_COLOR" % (prefix, text_item)
    bkgnd = "ORQ_%s_%s_COLOR" % (prefix, bkgnd_item)
    assert text in color_ids and bkgnd in color_ids, (text, bkgnd)
    assert 1 <= len(rows) <= 13
    for item, changeable, points, bold, italic, mono in rows:
        if fid == 86:
            break
        font(fid, "ORQ_%s_%s_FONT" % (prefix, item), changeable, text, bkgnd, points, bold, italic, mono=bool(mono))
        fid += 1
    if fid == 86:
        break
assert fid == 86, "tool fonts end at %d, not 85" % (fid - 1)
font(86, "ORQ_MSG_TEXT_FONT", 1, W_TEXT, W_BKGND, 10, mono=True)
font(87, "ORQ_MSG_COLUMN_HEADER_FONT", 1, W_TEXT, W_BKGND, 10, mono=True)
msg_more = [("ORQ_MSG_SEVERITY_FONT", 1, 9, 1), ("ORQ_MSG_ID_FONT", 1, 9, 0), ("ORQ_MSG_FILTER_FONT", 1, 9, 0),
            ("ORQ_MSG_SUMMARY_FONT", 0, 9, 1)]
fid = 88
for name, changeable, points, bold in msg_more:
    font(fid, name, changeable, W_TEXT, W_BKGND, points, bold=bold)
    fid += 1
for item, changeable, points, bold, mono in [("PROMPT", 1, 10, 1, True), ("RESULT", 1, 10, 0, True),
                                             ("ERROR", 1, 10, 0, True), ("HISTORY", 1, 9, 0, True),
                                             ("COMPLETION", 1, 9, 0, False), ("HELP", 1, 9, 0, False),
                                             ("TITLE", 0, 11, 1, False), ("STATUS", 0, 8, 0, False),
                                             ("BANNER", 0, 12, 1, False)]:
    font(fid, "ORQ_CONWQ_%s_FONT" % item, changeable, "ORQ_CONWQ_TEXT_COLOR", "ORQ_CONWQ_BACKGROUND_COLOR",
         points, bold=bold, mono=mono)
    fid += 1
assert fid == 101, fid
font(101, "ORQ_CONWQ_CONSOLE_FONT", 1, "ORQ_CONWQ_TEXT_COLOR", "ORQ_CONWQ_BACKGROUND_COLOR", 10, mono=True)
font(102, "ORQ_TABLE_MONOSPACE_FONT", 1, W_TEXT, W_BKGND, 8, mono=True)
fonts.sort()
assert [f[0] for f in fonts] == list(range(1, 103)), [f[0] for f in fonts]
assert sum(f[2] for f in fonts) == 78, "changeable fonts: %d" % sum(f[2] for f in fonts)
assert min(f[5] for f in fonts) == 6 and max(f[5] for f in fonts) == 24
for f in fonts:
    assert f[3] in color_ids and f[4] in color_ids, f

# --------------------------------------------------------------------------- output
HEADER = "// Written by tools/gen_theme_tables.py; edit the generator, not this file.\n"


def write(name, text):
    path = os.path.join(OUT, name)
    with open(path, "w") as out:
        out.write(text)


def enum_header(guard_doc, enum, minimum, rows, maximum):
    width = max(len(r[1]) for r in rows) + 1
    lines = [HEADER, "#pragma once\n", "// %s\n" % guard_doc,
             "enum %s {\n" % enum, "  %s = 0,\n" % minimum]
    lines += ["  %-*s = %d,\n" % (width, r[1], r[0]) for r in rows]
    lines += ["  %s = %d\n" % (maximum, rows[-1][0] + 1), "};\n"]
    write(enum.lower() + ".h", "".join(lines))


enum_header("Theme colours: value 0 is no colour; 544, 545, 554 and 555 are retired.",
            "ORQ_COLOR_RESOURCE", "ORQ_MIN_COLOR", colors, "ORQ_MAX_COLOR")
enum_header("Theme pens: value 0 is no pen; 17, 111, 112 and 155 are retired.",
            "ORQ_PEN_RESOURCE", "ORQ_MIN_PEN", pens, "ORQ_MAX_PEN")
enum_header("Theme brushes: value 0 is no brush.", "ORQ_BRUSH_RESOURCE", "ORQ_MIN_BRUSH", brushes, "ORQ_MAX_BRUSH")
enum_header("Theme fonts: value 0 is no font.", "ORQ_FONT_RESOURCE", "ORQ_MIN_FONT", fonts, "ORQ_MAX_FONT")

ROLE_NAMES = {v: k for k, v in ROLES.items()}
out = [HEADER, '#include "orq_theme_tables_p.h"\n\n', "// clang-format off\n"]
out.append("const ORQ_COLOR_ENTRY orq_color_table[] = {\n")
out.append("  // identifier, name, system, changeable, default, palette role\n")
for c in colors:
    role = "QPalette::" + ROLE_NAMES[c[5]] if c[5] or c[2] else "0"
    out.append('  {%s, "%s", %d, %d, "%s", %s},\n' % (c[1], c[1], c[2], c[3], c[4], role))
out.append("};\n\n")
out.append("const ORQ_PEN_ENTRY orq_pen_table[] = {\n")
out.append("  // identifier, name, colour, style, cap, join, width, reserved\n")
for p in pens:
    out.append('  {%s, "%s", %s, Qt::%s, Qt::%s, Qt::MiterJoin, %d, 0},\n' % (p[1], p[1], p[2], p[3], p[4], p[5]))
out.append("};\n\n")
out.append("const ORQ_BRUSH_ENTRY orq_brush_table[] = {\n")
out.append("  // identifier, colour, style\n")
for b in brushes:
    out.append("  {%s, %s, Qt::%s},\n" % (b[1], b[2], b[3]))
out.append("};\n\n")
out.append("const ORQ_FONT_ENTRY orq_font_table[] = {\n")
out.append("  // identifier, name, changeable, text, background, points, bold, italic, underline, strike-out, "
           "style hint, face\n")
for f in fonts:
    out.append('  {%s, "%s", %d, %s, %s, %d, %d, %d, %d, %d, %d, "%s"},\n'
               % (f[1], f[1], f[2], f[3], f[4], f[5], f[6], f[7], f[8], f[9], f[10], f[11]))
out.append("};\n// clang-format on\n\n")
out.append("const int orq_color_table_size = int(sizeof orq_color_table / sizeof orq_color_table[0]);\n")
out.append("const int orq_pen_table_size = int(sizeof orq_pen_table / sizeof orq_pen_table[0]);\n")
out.append("const int orq_brush_table_size = int(sizeof orq_brush_table / sizeof orq_brush_table[0]);\n")
out.append("const int orq_font_table_size = int(sizeof orq_font_table / sizeof orq_font_table[0]);\n")
write("orq_theme_tables.cpp", "".join(out))
print("colours %d (changeable %d), pens %d, brushes %d, fonts %d (changeable %d)"
      % (len(colors), sum(c[3] for c in colors), len(pens), len(brushes), len(fonts), sum(f[2] for f in fonts)))
