"""The icon catalogue: every ORQ_<NAME>_ICON with its picture.

ICONS is a list of (name, file stem, recipe). Icons of actions come from the
action tables (an action with a recipe gets ORQ_<ACTION NAME>_ICON); the rest
are the framework's own pictures, the file types of the suite and the object
kinds that the tools show in their trees. Icons with the same recipe share
one physical file; every icon still has its own resource path.
"""

import os
import sys

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))

from actions_framework import FRAMEWORK  # noqa: E402
from actions_tools import TOOL_ROWS  # noqa: E402

ICON_COUNT = 766

# Framework pictures that no action carries: window chrome, trees, filters,
# messages. (name, recipe)
FRAMEWORK_ICONS = [
    ("GRAY_X", "gray_x"), ("GRAY_X_HOVER", "gray_x"), ("TREE_VIEW_FILTER_OPTION", "tree_view_filter_option"),
    ("GENERIC_FILE", "generic_file"), ("FOLDER", "folder"), ("FOLDER_OPEN", "folder_open"),
    ("TREE_EXPAND", "tree_expand"), ("TREE_COLLAPSE", "tree_collapse"),
    ("DOCK_PIN", "pin"), ("DOCK_PIN_HOVER", "pin"), ("DOCK_UNPIN", "unpin"), ("DOCK_UNPIN_HOVER", "unpin"),
    ("DOCK_FLOAT", "dock_float"), ("DOCK_FLOAT_HOVER", "dock_float"), ("DOCK_CLOSE", "dock_close"),
    ("DOCK_CLOSE_HOVER", "dock_close"), ("DOCK_MENU", "dock_menu"), ("DOCK_MENU_HOVER", "dock_menu"),
    ("DOCK_SEARCH", "dock_search"), ("DOCK_SEARCH_HOVER", "dock_search"), ("DOCK_RESTORE", "dock_restore"),
    ("DOCK_PIN_PRESSED", "pin"), ("DOCK_UNPIN_PRESSED", "unpin"), ("DOCK_FLOAT_PRESSED", "dock_float"),
    ("DOCK_CLOSE_PRESSED", "dock_close"), ("DOCK_MENU_PRESSED", "dock_menu"), ("DOCK_SEARCH_PRESSED", "dock_search"),
    ("WINDOW", "window"), ("MDI_CHILD", "window"), ("INFO", "info"), ("EXTRA_INFO", "info:green"),
    ("WARNING", "warning"), ("CRITICAL_WARNING", "warning:red"), ("ERROR", "error"), ("QUESTION", "question"),
    ("MESSAGE", "message"), ("SUPPRESSED_MESSAGE", "bell_off"), ("CHECK", "check:green"),
    ("LOCK", "lock"), ("UNLOCK", "unlock"), ("EYE", "eye"), ("EYE_OFF", "eye_off"),
    ("PLAY", "play:green"), ("PAUSE", "pause"), ("CLOCK", "clock"), ("GEAR", "gear"),
    ("BOOKMARK", "bookmark"), ("TAG", "tag"), ("LINK", "link"), ("FILTER", "filter"),
    ("SORT_ASCENDING_HEADER", "sort_ascending"), ("SORT_DESCENDING_HEADER", "sort_descending"),
    ("ARROW_UP", "arrow_up"), ("ARROW_DOWN", "arrow_down"), ("ARROW_LEFT", "arrow_left"),
    ("ARROW_RIGHT", "arrow_right"), ("HOME", "home"), ("BACK", "back"), ("FORWARD_ARROW", "forward"),
    ("PLUS", "plus"), ("MINUS", "minus"), ("LIST", "list"), ("TABLE", "table"), ("REPORT", "report"),
    ("CONSOLE", "console"), ("BUG", "bug"), ("CHART", "chart"), ("BELL", "bell"), ("ERASER", "eraser"),
    ("WAND", "wand"), ("TARGET", "target"), ("DATABASE", "database"), ("KEY", "key"), ("USER", "user"),
    ("STAR", "star"), ("GRID", "grid"), ("RULER_ICON", "ruler"), ("LAYERS", "layers"), ("PALETTE", "palette"),
    ("FONT", "font"), ("SCRIPT", "script"), ("PROJECT", "project"), ("WEB", "web_page"),
    ("TASK_QUEUED", "clock:gray"), ("TASK_RUNNING", "play:blue"), ("TASK_DONE", "check:green"),
    ("TASK_FAILED", "error"), ("TASK_CANCELLED", "stop:gray"), ("TASK_WARNING", "warning"),
    ("MAGNIFIER_LENS", "magnifying_tool"), ("HAND_GRAB", "pan_tool"), ("BUSY", "refresh:gray"),
]

# The suite's file types (see FIO_FILE_TYPE) and their pictures.
FILE_TYPE_ICONS = [
    ("VERILOG_FILE", "script:blue"), ("SYSTEMVERILOG_FILE", "script:purple"), ("VHDL_FILE", "script:green"),
    ("BLOCK_DIAGRAM_FILE", "schematic:blue"), ("SYMBOL_FILE", "schematic"), ("CONSTRAINT_FILE", "constraint"),
    ("ASSIGNMENT_FILE", "table:blue"), ("PROJECT_FILE", "project"), ("TCL_FILE", "console"),
    ("NETLIST_FILE", "netlist"), ("WAVEFORM_FILE", "waveform:purple"), ("VCD_FILE", "waveform:gray"),
    ("MEMORY_INIT_FILE", "memory"), ("PROGRAMMING_FILE", "program:orange"), ("BITSTREAM_FILE", "program"),
    ("PIN_FILE", "io_pin"), ("REPORT_FILE", "report"), ("TIMING_REPORT_FILE", "timing:red"),
    ("POWER_REPORT_FILE", "power:yellow"), ("FLOORPLAN_FILE", "floorplan:teal"), ("IP_VARIATION_FILE", "ip_core"),
    ("DEBUG_FILE", "trigger:orange"), ("SIMULATION_FILE", "simulate"), ("ARCHIVE_FILE", "project/lock"),
    ("LOG_FILE", "list"), ("HTML_FILE", "web_page"),
]

# One application icon per tool of the suite, plus its mark for locating.
TOOL_ICONS = [
    ("GED_APP", "schematic:blue"), ("FPV_APP", "floorplan:teal"), ("WAV_APP", "waveform:purple"),
    ("TMV_APP", "timing:red"), ("NLV_APP", "netlist:purple"), ("PKG_APP", "package:orange"),
    ("SRC_APP", "script:blue"), ("DBG_APP", "trigger:orange"), ("PWR_APP", "power:yellow"),
    ("HIE_APP", "hierarchy"), ("CONWQ_APP", "console"), ("RPT_APP", "report"), ("CLK_APP", "clock_net:blue"),
    ("IPC_APP", "ip_core:teal"), ("SIM_APP", "simulate:green"), ("DRC_APP", "check:green"),
    ("CST_APP", "constraint:orange"),
]
TOOL_ICONS += [(name + "_LARGE", recipe) for name, recipe in TOOL_ICONS]

# Object kinds the tools show in their trees and lists: (tool prefix, [(kind, recipe)]).
NODE_KINDS = [
    ("HIER", [("ENTITY", "block"), ("INSTANCE", "instance"), ("BLACK_BOX", "block:gray"), ("PRIMITIVE", "gate"),
              ("IP_INSTANCE", "ip_core"), ("PARTITION", "partition:purple"), ("LIBRARY", "database"),
              ("PACKAGE", "package"), ("FUNCTION", "script"), ("GENERATE_BLOCK", "wand")]),
    ("NLV", [("PORT_IN", "arrow_right"), ("PORT_OUT", "arrow_left"), ("PORT_INOUT", "io_pin"), ("NET", "net"),
             ("BUS", "bus"), ("REGISTER", "flipflop"), ("LATCH", "flipflop:gray"), ("LUT", "gate:blue"),
             ("MUX", "gate:purple"), ("ADDER", "gate:green"), ("RAM", "memory"), ("DSP", "chip:orange"),
             ("CARRY_CHAIN", "path"), ("CONSTANT", "minus"), ("BUFFER", "gate:gray")]),
    ("WAV", [("SIGNAL", "signal"), ("SIGNAL_INPUT", "signal/arrow_right"), ("SIGNAL_OUTPUT", "signal/arrow_left"),
             ("SIGNAL_BIDIR", "signal/link"), ("BUS_SIGNAL", "bus"), ("CLOCK_SIGNAL", "clock_net"),
             ("GROUP", "list"), ("MARKER", "bookmark:orange"), ("CURSOR", "target:purple"),
             ("DIVIDER", "minus:gray"), ("ANALOG_SIGNAL", "signal:green"), ("ENUM_SIGNAL", "tag")]),
    ("TMV", [("CLOCK", "clock_net:red"), ("PATH", "path:red"), ("PATH_FAILING", "path/error"),
             ("PATH_PASSING", "path/check"), ("EXCEPTION", "path/x"), ("CONSTRAINT", "constraint:red"),
             ("CORNER", "chart"), ("SLACK", "chart:red"), ("GROUP", "list:red"), ("REPORT", "report:red")]),
    ("PKG", [("PIN_USER_IO", "io_pin"), ("PIN_CLOCK", "io_pin/clock"), ("PIN_POWER", "io_pin/power"),
             ("PIN_GROUND", "io_pin:gray"), ("PIN_CONFIG", "io_pin/gear"), ("PIN_RESERVED", "io_pin/lock"),
             ("PIN_DIFF_P", "io_pin/plus"), ("PIN_DIFF_N", "io_pin/minus"), ("PIN_VREF", "io_pin:yellow"),
             ("PIN_NC", "io_pin/x"), ("BANK", "io_bank:orange"), ("PACKAGE", "package:orange")]),
    ("FPV", [("DIE", "die"), ("CORE", "chip:teal"), ("BLOCK", "block:teal"), ("MACRO", "memory:teal"),
             ("PAD", "io_pin:teal"), ("REGION", "region:teal"), ("KEEPOUT", "region/stop"),
             ("BLOCKAGE", "region/x"), ("ROW", "grid:teal"), ("CLOCK_REGION", "clock_net:teal"),
             ("POWER_STRIPE", "power:teal"), ("SLR", "partition:teal"), ("GUIDE", "region/arrow_right"),
             ("FENCE", "region/lock")]),
    ("DBG", [("TRIGGER", "trigger"), ("TRIGGER_ARMED", "trigger/play"), ("TRIGGER_FIRED", "trigger/check"),
             ("PROBE", "probe"), ("INSTANCE", "instance:orange"), ("DEVICE", "device"), ("CABLE", "cable"),
             ("SAMPLE", "waveform:orange"), ("STORAGE", "memory:orange")]),
    ("PWR", [("RAIL", "power"), ("RAIL_WARNING", "power/warning"), ("THERMAL", "thermal"),
             ("TOGGLE_RATE", "signal:yellow"), ("STATIC", "power:gray"), ("DYNAMIC", "power/play")]),
    ("CLK", [("CLOCK", "clock_net:blue"), ("GENERATED_CLOCK", "clock_net/gear"), ("PLL", "pll"),
             ("CLOCK_BUFFER", "gate:blue"), ("CLOCK_MUX", "gate/clock"), ("CLOCK_DOMAIN", "region/clock"),
             ("CROSSING", "path/clock")]),
    ("SRC", [("MODULE", "block:blue"), ("PORT", "io_pin:blue"), ("SIGNAL", "signal:blue"),
             ("PROCESS", "gear:blue"), ("TASK", "script:blue"), ("PARAMETER", "tag:blue"), ("TYPE", "font")]),
    ("IPC", [("CATEGORY", "folder"), ("CORE", "ip_core"), ("CORE_DEPRECATED", "ip_core/warning"),
             ("CORE_LICENSED", "ip_core/key"), ("VARIATION", "ip_core/pencil"), ("UPGRADE_NEEDED", "ip_core/arrow_up")]),
    ("SIM", [("SCOPE", "hierarchy:green"), ("PROCESS", "gear:green"), ("VARIABLE", "tag:green"),
             ("BREAKPOINT", "bug:red"), ("BREAKPOINT_DISABLED", "bug:gray"), ("CURRENT_LINE", "arrow_right:yellow")]),
    ("DRC", [("RULE", "check"), ("RULE_FAILED", "error"), ("RULE_PASSED", "check:green"),
             ("RULE_WAIVED", "check:gray"), ("VIOLATION", "warning")]),
    ("CST", [("CLOCK_CONSTRAINT", "clock_net/pencil"), ("IO_DELAY", "io_pin/clock"), ("FALSE_PATH", "path/x"),
             ("MULTICYCLE", "path/clock"), ("MAX_DELAY", "path/arrow_up"), ("MIN_DELAY", "path/arrow_down"),
             ("GROUP", "list:orange")]),
    ("PROJECT", [("TOP_LEVEL", "block/star"), ("REVISION", "history"), ("SETTINGS_GROUP", "gear"),
                 ("SOURCE_FOLDER", "folder:blue"), ("OUTPUT_FOLDER", "folder:gray")]),
    ("GED", [("PAGE", "new"), ("SYMBOL", "schematic"), ("WIRE", "net:blue"), ("BUS_WIRE", "bus:blue"),
             ("JUNCTION", "node:blue"), ("LABEL", "tag:blue"), ("PORT_IN", "io_pin/arrow_right"),
             ("PORT_OUT", "io_pin/arrow_left"), ("PORT_BIDIR", "io_pin/link"), ("POWER_SYMBOL", "power:blue"),
             ("GROUND_SYMBOL", "minus:blue"), ("TEXT", "font:blue"), ("LINE", "ruler:blue"),
             ("RECTANGLE", "region:blue"), ("ELLIPSE", "target:gray"), ("ARC", "undo:gray"),
             ("IMAGE", "palette"), ("CONDUIT", "cable:blue")]),
    ("RPT", [("FOLDER", "folder:gray"), ("TABLE", "table"), ("TEXT", "list"), ("CHART", "chart"),
             ("SUMMARY", "report/info"), ("SETTINGS", "gear:gray"), ("MESSAGES", "message:gray"),
             ("WARNING_SECTION", "report/warning"), ("ERROR_SECTION", "report/error"), ("HTML", "web_page:gray")]),
    ("CONWQ", [("COMMAND", "console:blue"), ("RESULT", "console:green"), ("ERROR_RESULT", "console/error"),
               ("HISTORY_ENTRY", "history:gray"), ("SCRIPT", "script:gray")]),
    ("MSG", [("INFO", "info"), ("EXTRA_INFO", "info:green"), ("WARNING", "warning"),
             ("CRITICAL_WARNING", "warning:red"), ("ERROR", "error"), ("SUPPRESSED", "bell_off"),
             ("FLAGGED", "bookmark:red"), ("SYSTEM", "gear:gray"), ("PROCESSING", "refresh:blue"),
             ("DETAIL", "list:gray")]),
    ("FLOW", [(step + state, recipe + badge)
              for step, recipe in [("ELABORATION", "hierarchy"), ("SYNTHESIS", "synthesis"), ("PLACEMENT", "fitter"),
                                   ("ROUTING", "path"), ("TIMING", "timing"), ("POWER", "power"),
                                   ("ASSEMBLER", "assembler"), ("NETLIST_WRITER", "netlist"), ("DRC", "check"),
                                   ("PARTITION", "partition")]
              for state, badge in [("", ""), ("_DONE", "/check"), ("_FAILED", "/error")]]),
    ("RES", [("LOGIC_CELL", "gate"), ("REGISTER", "flipflop"), ("LUT", "table:green"), ("MEMORY_BLOCK", "memory"),
             ("DSP_BLOCK", "chip:orange"), ("PLL", "pll"), ("IO", "io_pin"), ("CLOCK_BUFFER", "clock_net"),
             ("TRANSCEIVER", "cable:purple"), ("ROUTING", "path:gray"), ("CARRY", "arrow_right:gray"),
             ("ADDER", "plus:gray")]),
    ("STATUS", [("OK", "check:green"), ("BUSY", "clock:blue"), ("OFFLINE", "cable:gray"),
                ("CONNECTED", "cable:green"), ("DISCONNECTED", "cable/x"), ("LICENSE_VALID", "key:green"),
                ("LICENSE_EXPIRING", "key/warning"), ("LICENSE_EXPIRED", "key/error")]),
    ("PRG", [("CHAIN", "link"), ("DEVICE", "device"), ("DEVICE_SELECTED", "device/check"),
             ("FILE_ATTACHED", "program/link"), ("BLANK_CHECK", "device/search"), ("VERIFY", "program/check"),
             ("ERASE", "device/eraser"), ("CABLE_USB", "cable"), ("CABLE_ETHERNET", "cable:blue"),
             ("CABLE_NONE", "cable/x")]),
    ("NAV", [("ZOOM_100", "zoom"), ("ZOOM_FIT_WIDTH", "zoom_fit/arrow_right"), ("ZOOM_FIT_HEIGHT", "zoom_fit/arrow_up"),
             ("PAN_UP", "arrow_up:gray"), ("PAN_DOWN", "arrow_down:gray"), ("PAN_LEFT", "arrow_left:gray"),
             ("PAN_RIGHT", "arrow_right:gray"), ("HISTORY_BACK", "back:gray"), ("HISTORY_FORWARD", "forward:gray")]),
    ("WIZ", [("INTRO", "wand"), ("PROJECT", "project/wand"), ("FILES", "folder/wand"), ("DEVICE", "device/wand"),
             ("SETTINGS", "gear/wand"), ("SUMMARY", "report/wand")]),
    ("BOARD", [("BOARD", "board"), ("CONNECTOR", "cable"), ("CABLE", "cable:orange"), ("POWER_SUPPLY", "power"),
               ("OSCILLATOR", "clock_net"), ("MEMORY_CHIP", "memory:blue"), ("LED", "star:red"),
               ("SWITCH", "key:gray")]),
    ("IOSTD", [("LVCMOS", "io_pin:blue"), ("LVDS", "io_pin:purple"), ("SSTL", "io_pin:green"),
               ("HSTL", "io_pin:orange"), ("LVTTL", "io_pin:gray"), ("PCI", "io_pin:red")]),
    ("FILE", [("MODIFIED", "generic_file/pencil"), ("READ_ONLY", "generic_file/lock"),
              ("MISSING", "generic_file/error"), ("EXCLUDED", "generic_file/minus"), ("NEW", "generic_file/plus")]),
    ("FLAG", [("NOTE", "message:yellow"), ("RED", "bookmark:red"), ("GREEN", "bookmark:green"),
              ("BLUE", "bookmark:blue"), ("ORANGE", "bookmark:orange"), ("PURPLE", "bookmark:purple")]),
]


def _action_rows():
    for name, _value, _menu, _shortcut, _tip, recipe in FRAMEWORK:
        yield name, recipe
    for line in TOOL_ROWS.strip().splitlines():
        fields = line.split("|")
        yield fields[0], fields[4]


def build():
    rows = []
    for name, recipe in _action_rows():
        if recipe and not recipe.startswith("="):
            rows.append((name, recipe))
    rows += FRAMEWORK_ICONS + FILE_TYPE_ICONS + TOOL_ICONS
    for prefix, kinds in NODE_KINDS:
        rows += [("%s_%s" % (prefix, kind), recipe) for kind, recipe in kinds]
    rows.append(("STATUS", "png:flat/orq_status.png"))
    # Icons that look alike share the file of the first one in name order.
    stem_of_recipe = {}
    icons = []
    for name, recipe in sorted(rows, key=lambda r: "ORQ_%s_ICON" % r[0]):
        stem = stem_of_recipe.setdefault(recipe, name.lower())
        icons.append((name, stem, recipe))
    return icons


ICONS = build()
