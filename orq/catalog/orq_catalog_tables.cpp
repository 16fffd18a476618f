// Written by tools/gen_catalog_tables.py; edit the tables in tools/catalog, not this file.
#include "orq_catalog_tables_p.h"

#include <QKeySequence>

// clang-format off
constexpr const char* ORQ_ACTION_MENU_TEXT_ABOUT_VANTOR = "&About Vantor...";
constexpr const char* ORQ_ACTION_STATUSTIP_ABOUT_VANTOR = "Displays program information, version number, and copyright";
constexpr const char* ORQ_ACTION_MENU_TEXT_ACTIVATE_LICENSE = "Acti&vate License...";
constexpr const char* ORQ_ACTION_STATUSTIP_ACTIVATE_LICENSE = "Activates a license for this computer";
constexpr const char* ORQ_ACTION_MENU_TEXT_ADD_BOOKMARK = "Add &Bookmark";
constexpr const char* ORQ_ACTION_STATUSTIP_ADD_BOOKMARK = "Adds a bookmark at the current location";
constexpr const char* ORQ_ACTION_MENU_TEXT_ADD_BREAKPOINT = "Add &Breakpoint...";
constexpr const char* ORQ_ACTION_STATUSTIP_ADD_BREAKPOINT = "Adds a breakpoint to the current line";
constexpr const char* ORQ_ACTION_MENU_TEXT_ADD_CLOCK = "Add &Clock...";
constexpr const char* ORQ_ACTION_STATUSTIP_ADD_CLOCK = "Adds a clock to the selected node";
constexpr const char* ORQ_ACTION_MENU_TEXT_ADD_FILE = "&Add File...";
constexpr const char* ORQ_ACTION_STATUSTIP_ADD_FILE = "Adds a file to the current project";
constexpr const char* ORQ_ACTION_MENU_TEXT_ADD_GROUP = "Add &Group...";
constexpr const char* ORQ_ACTION_STATUSTIP_ADD_GROUP = "Groups the selected nodes under a new name";
constexpr const char* ORQ_ACTION_MENU_TEXT_ADD_NODE = "Add &Node...";
constexpr const char* ORQ_ACTION_STATUSTIP_ADD_NODE = "Adds a node to the list";
constexpr const char* ORQ_ACTION_MENU_TEXT_ADD_PROBE = "Add &Probe";
constexpr const char* ORQ_ACTION_STATUSTIP_ADD_PROBE = "Adds a signal probe at the selected net";
constexpr const char* ORQ_ACTION_MENU_TEXT_ADD_REGION = "Add &Region";
constexpr const char* ORQ_ACTION_STATUSTIP_ADD_REGION = "Adds a placement region";
constexpr const char* ORQ_ACTION_MENU_TEXT_ADD_SIGNAL = "Add &Signal...";
constexpr const char* ORQ_ACTION_STATUSTIP_ADD_SIGNAL = "Adds signals to the waveform";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_ADD_SIGNAL = "Ctrl+Shift+A";
constexpr const char* ORQ_ACTION_MENU_TEXT_ADD_TO_PROJECT = "Add to &Project";
constexpr const char* ORQ_ACTION_STATUSTIP_ADD_TO_PROJECT = "Adds the current file to the project";
constexpr const char* ORQ_ACTION_MENU_TEXT_ADD_WAVE_MARKER = "Add &Marker";
constexpr const char* ORQ_ACTION_STATUSTIP_ADD_WAVE_MARKER = "Adds a time marker at the cursor";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_ADD_WAVE_MARKER = "Ctrl+M";
constexpr const char* ORQ_ACTION_MENU_TEXT_ADVANCED_SEARCH = "Ad&vanced Search...";
constexpr const char* ORQ_ACTION_STATUSTIP_ADVANCED_SEARCH = "Searches with patterns and filters";
constexpr const char* ORQ_ACTION_MENU_TEXT_ALIGN_BOTTOM = "Align &Bottom";
constexpr const char* ORQ_ACTION_STATUSTIP_ALIGN_BOTTOM = "Aligns the selected objects to the lowest bottom edge";
constexpr const char* ORQ_ACTION_MENU_TEXT_ALIGN_HORIZONTAL_CENTER = "Align &Horizontal Centers";
constexpr const char* ORQ_ACTION_STATUSTIP_ALIGN_HORIZONTAL_CENTER = "Aligns the selected objects on their horizontal centers";
constexpr const char* ORQ_ACTION_MENU_TEXT_ALIGN_LEFT = "Align &Left";
constexpr const char* ORQ_ACTION_STATUSTIP_ALIGN_LEFT = "Aligns the selected objects to the leftmost edge";
constexpr const char* ORQ_ACTION_MENU_TEXT_ALIGN_RIGHT = "Align &Right";
constexpr const char* ORQ_ACTION_STATUSTIP_ALIGN_RIGHT = "Aligns the selected objects to the rightmost edge";
constexpr const char* ORQ_ACTION_MENU_TEXT_ALIGN_TOP = "Align &Top";
constexpr const char* ORQ_ACTION_STATUSTIP_ALIGN_TOP = "Aligns the selected objects to the highest top edge";
constexpr const char* ORQ_ACTION_MENU_TEXT_ALIGN_VERTICAL_CENTER = "Align &Vertical Centers";
constexpr const char* ORQ_ACTION_STATUSTIP_ALIGN_VERTICAL_CENTER = "Aligns the selected objects on their vertical centers";
constexpr const char* ORQ_ACTION_MENU_TEXT_ALL_MESSAGES = "&All Messages";
constexpr const char* ORQ_ACTION_STATUSTIP_ALL_MESSAGES = "Shows messages of every type";
constexpr const char* ORQ_ACTION_MENU_TEXT_ANALYZE_CURRENT_FILE = "Analyze &Current File";
constexpr const char* ORQ_ACTION_STATUSTIP_ANALYZE_CURRENT_FILE = "Checks the syntax of the current file";
constexpr const char* ORQ_ACTION_MENU_TEXT_ANALYZE_ELABORATE = "&Analysis && Elaboration...";
constexpr const char* ORQ_ACTION_STATUSTIP_ANALYZE_ELABORATE = "Analyzes the sources and builds the design hierarchy";
constexpr const char* ORQ_ACTION_MENU_TEXT_ANALYZE_TIMING = "Analyze &Timing";
constexpr const char* ORQ_ACTION_STATUSTIP_ANALYZE_TIMING = "Runs timing analysis on the current design";
constexpr const char* ORQ_ACTION_MENU_TEXT_ANNOTATE = "&Annotate...";
constexpr const char* ORQ_ACTION_STATUSTIP_ANNOTATE = "Writes back-annotation data into the design";
constexpr const char* ORQ_ACTION_MENU_TEXT_APPLY_CONSTRAINTS = "Apply &Constraints";
constexpr const char* ORQ_ACTION_STATUSTIP_APPLY_CONSTRAINTS = "Applies the constraints of the constraint files to the design";
constexpr const char* ORQ_ACTION_MENU_TEXT_APPLY_TEMPLATE = "Apply &Template...";
constexpr const char* ORQ_ACTION_STATUSTIP_APPLY_TEMPLATE = "Applies a saved template to the selection";
constexpr const char* ORQ_ACTION_MENU_TEXT_ARCHIVE_PROJECT = "Archive Pro&ject...";
constexpr const char* ORQ_ACTION_STATUSTIP_ARCHIVE_PROJECT = "Saves the project and its files in one archive";
constexpr const char* ORQ_ACTION_MENU_TEXT_AREA_REPORT = "Area &Report";
constexpr const char* ORQ_ACTION_STATUSTIP_AREA_REPORT = "Shows the resource usage of the selected area";
constexpr const char* ORQ_ACTION_MENU_TEXT_AREA_SELECTION_TOOL = "Area Selection Tool";
constexpr const char* ORQ_ACTION_STATUSTIP_AREA_SELECTION_TOOL = "Selects multiple objects in an area";
constexpr const char* ORQ_ACTION_MENU_TEXT_ARRANGE_BLOCKS = "Arrange &Blocks";
constexpr const char* ORQ_ACTION_STATUSTIP_ARRANGE_BLOCKS = "Arranges the blocks of the floorplan in rows";
constexpr const char* ORQ_ACTION_MENU_TEXT_ARRANGE_ICONS = "Arrange &Icons";
constexpr const char* ORQ_ACTION_STATUSTIP_ARRANGE_ICONS = "Arranges the icons of minimized windows";
constexpr const char* ORQ_ACTION_MENU_TEXT_ASSIGNMENT_EDITOR = "Assignment &Editor";
constexpr const char* ORQ_ACTION_STATUSTIP_ASSIGNMENT_EDITOR = "Opens the assignment editor";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_ASSIGNMENT_EDITOR = "Ctrl+Shift+E";
constexpr const char* ORQ_ACTION_MENU_TEXT_ASSIGN_CLOCK = "Assign &Clock...";
constexpr const char* ORQ_ACTION_STATUSTIP_ASSIGN_CLOCK = "Assigns a clock to the selected nodes";
constexpr const char* ORQ_ACTION_MENU_TEXT_ASSIGN_IO_STANDARD = "Assign I/O &Standard...";
constexpr const char* ORQ_ACTION_STATUSTIP_ASSIGN_IO_STANDARD = "Assigns an I/O standard to the selected pins";
constexpr const char* ORQ_ACTION_MENU_TEXT_ASSIGN_LOCATION = "Assign &Location...";
constexpr const char* ORQ_ACTION_STATUSTIP_ASSIGN_LOCATION = "Assigns a location to the selected nodes";
constexpr const char* ORQ_ACTION_MENU_TEXT_ASSIGN_PIN = "Assign &Pin...";
constexpr const char* ORQ_ACTION_STATUSTIP_ASSIGN_PIN = "Assigns the selected node to a pin";
constexpr const char* ORQ_ACTION_MENU_TEXT_ASSIGN_TO_PARTITION = "Assign to &Partition...";
constexpr const char* ORQ_ACTION_STATUSTIP_ASSIGN_TO_PARTITION = "Assigns the selected instances to a design partition";
constexpr const char* ORQ_ACTION_MENU_TEXT_ASSIGN_TO_REGION = "Assign to &Region...";
constexpr const char* ORQ_ACTION_STATUSTIP_ASSIGN_TO_REGION = "Assigns the selected instances to a placement region";
constexpr const char* ORQ_ACTION_MENU_TEXT_ASSIGN_VOLTAGE = "Assign &Voltage...";
constexpr const char* ORQ_ACTION_STATUSTIP_ASSIGN_VOLTAGE = "Assigns a supply voltage to the selected bank";
constexpr const char* ORQ_ACTION_MENU_TEXT_ATTACH = "&Attach Window";
constexpr const char* ORQ_ACTION_STATUSTIP_ATTACH = "Attaches the window";
constexpr const char* ORQ_ACTION_MENU_TEXT_ATTACH_ALL = "Attach &All Windows";
constexpr const char* ORQ_ACTION_STATUSTIP_ATTACH_ALL = "Attaches all detached windows";
constexpr const char* ORQ_ACTION_MENU_TEXT_AUTO_PLACE = "Auto &Place";
constexpr const char* ORQ_ACTION_STATUSTIP_AUTO_PLACE = "Places the unplaced blocks automatically";
constexpr const char* ORQ_ACTION_MENU_TEXT_AUTO_SCROLL = "Auto &Scroll";
constexpr const char* ORQ_ACTION_STATUSTIP_AUTO_SCROLL = "Scrolls the view with the simulation time";
constexpr const char* ORQ_ACTION_MENU_TEXT_BACKWARD = "&Backward";
constexpr const char* ORQ_ACTION_STATUSTIP_BACKWARD = "Goes back to the previous location";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_BACKWARD = "Alt+Left Arrow";
constexpr const char* ORQ_ACTION_MENU_TEXT_BACK_ANNOTATE = "Back-&Annotate Assignments...";
constexpr const char* ORQ_ACTION_STATUSTIP_BACK_ANNOTATE = "Copies the placement results into the assignments";
constexpr const char* ORQ_ACTION_MENU_TEXT_BIRDS_EYE_VIEW = "Bird's Eye View";
constexpr const char* ORQ_ACTION_STATUSTIP_BIRDS_EYE_VIEW = "Toggles the bird's eye view on and off";
constexpr const char* ORQ_ACTION_MENU_TEXT_BOOKMARK_NEXT = "&Next Bookmark";
constexpr const char* ORQ_ACTION_STATUSTIP_BOOKMARK_NEXT = "Goes to the next bookmark";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_BOOKMARK_NEXT = "F2";
constexpr const char* ORQ_ACTION_MENU_TEXT_BOOKMARK_PREVIOUS = "&Previous Bookmark";
constexpr const char* ORQ_ACTION_STATUSTIP_BOOKMARK_PREVIOUS = "Goes to the previous bookmark";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_BOOKMARK_PREVIOUS = "Shift+F2";
constexpr const char* ORQ_ACTION_MENU_TEXT_BROWSE_IP_CATALOG = "Browse IP &Catalog";
constexpr const char* ORQ_ACTION_STATUSTIP_BROWSE_IP_CATALOG = "Opens the IP catalog";
constexpr const char* ORQ_ACTION_MENU_TEXT_CASCADE = "&Cascade";
constexpr const char* ORQ_ACTION_STATUSTIP_CASCADE = "Arranges all the child windows in a cascade pattern";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_CASCADE = "Shift+F5";
constexpr const char* ORQ_ACTION_MENU_TEXT_CHANGE_DEVICE = "Change &Device...";
constexpr const char* ORQ_ACTION_STATUSTIP_CHANGE_DEVICE = "Selects another device for the project";
constexpr const char* ORQ_ACTION_MENU_TEXT_CHECK_DESIGN_RULES = "Check Design &Rules";
constexpr const char* ORQ_ACTION_STATUSTIP_CHECK_DESIGN_RULES = "Checks the design against the design rules";
constexpr const char* ORQ_ACTION_MENU_TEXT_CHECK_FOR_UPDATES = "Check for &Updates...";
constexpr const char* ORQ_ACTION_STATUSTIP_CHECK_FOR_UPDATES = "Checks whether a newer release is available";
constexpr const char* ORQ_ACTION_MENU_TEXT_CLEAR_ALL_BOOKMARKS = "Clear All Boo&kmarks";
constexpr const char* ORQ_ACTION_STATUSTIP_CLEAR_ALL_BOOKMARKS = "Removes every bookmark from the file";
constexpr const char* ORQ_ACTION_MENU_TEXT_CLEAR_BREAKPOINTS = "Clear &Breakpoints";
constexpr const char* ORQ_ACTION_STATUSTIP_CLEAR_BREAKPOINTS = "Removes every breakpoint";
constexpr const char* ORQ_ACTION_MENU_TEXT_CLEAR_HIGHLIGHT = "Clear &Highlight";
constexpr const char* ORQ_ACTION_STATUSTIP_CLEAR_HIGHLIGHT = "Removes the highlight from all objects";
constexpr const char* ORQ_ACTION_MENU_TEXT_CLEAR_MARKERS = "Clear &Markers";
constexpr const char* ORQ_ACTION_STATUSTIP_CLEAR_MARKERS = "Removes every time marker";
constexpr const char* ORQ_ACTION_MENU_TEXT_CLEAR_MESSAGES = "&Clear Messages";
constexpr const char* ORQ_ACTION_STATUSTIP_CLEAR_MESSAGES = "Removes all messages from the message window";
constexpr const char* ORQ_ACTION_MENU_TEXT_CLEAR_PROBES = "Clear &Probes";
constexpr const char* ORQ_ACTION_STATUSTIP_CLEAR_PROBES = "Removes every probe";
constexpr const char* ORQ_ACTION_MENU_TEXT_CLEAR_RECENT_FILES = "Clear &Recent Files";
constexpr const char* ORQ_ACTION_STATUSTIP_CLEAR_RECENT_FILES = "Empties the list of recently used files";
constexpr const char* ORQ_ACTION_MENU_TEXT_CLEAR_SELECTION = "Clear &Selection";
constexpr const char* ORQ_ACTION_STATUSTIP_CLEAR_SELECTION = "Deselects all objects";
constexpr const char* ORQ_ACTION_MENU_TEXT_CLK_SHOW_CLOCK_REGIONS = "Show Clock &Regions";
constexpr const char* ORQ_ACTION_STATUSTIP_CLK_SHOW_CLOCK_REGIONS = "Shows or hides the clock regions of the device";
constexpr const char* ORQ_ACTION_MENU_TEXT_CLK_SHOW_CLOCK_TREE = "Show Clock &Tree";
constexpr const char* ORQ_ACTION_STATUSTIP_CLK_SHOW_CLOCK_TREE = "Shows the clock tree of the selected clock";
constexpr const char* ORQ_ACTION_MENU_TEXT_CLOSE = "&Close";
constexpr const char* ORQ_ACTION_STATUSTIP_CLOSE = "Closes the current file";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_CLOSE = "Ctrl+F4";
constexpr const char* ORQ_ACTION_MENU_TEXT_CLOSE_ALL = "Close Al&l";
constexpr const char* ORQ_ACTION_STATUSTIP_CLOSE_ALL = "Closes all open windows";
constexpr const char* ORQ_ACTION_MENU_TEXT_CLOSE_PROJECT = "Close Pro&ject";
constexpr const char* ORQ_ACTION_STATUSTIP_CLOSE_PROJECT = "Closes the current project";
constexpr const char* ORQ_ACTION_MENU_TEXT_COLLAPSE_ALL = "Co&llapse All";
constexpr const char* ORQ_ACTION_STATUSTIP_COLLAPSE_ALL = "Collapse the selected entity";
constexpr const char* ORQ_ACTION_MENU_TEXT_COLLAPSE_ONE_LEVEL = "Collapse &One Level";
constexpr const char* ORQ_ACTION_STATUSTIP_COLLAPSE_ONE_LEVEL = "Collapses the selected item by one level";
constexpr const char* ORQ_ACTION_MENU_TEXT_COMMENT_SELECTION = "Comment &Selection";
constexpr const char* ORQ_ACTION_STATUSTIP_COMMENT_SELECTION = "Turns the selected lines into comments";
constexpr const char* ORQ_ACTION_MENU_TEXT_COMPARE_REVISIONS = "Compare &Revisions...";
constexpr const char* ORQ_ACTION_STATUSTIP_COMPARE_REVISIONS = "Compares the results of two revisions";
constexpr const char* ORQ_ACTION_MENU_TEXT_COMPILE_DESIGN = "Co&mpile Design";
constexpr const char* ORQ_ACTION_STATUSTIP_COMPILE_DESIGN = "Runs the full compilation of the design";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_COMPILE_DESIGN = "Ctrl+L";
constexpr const char* ORQ_ACTION_MENU_TEXT_CONNECT_TO_DEVICE = "Connect to &Device...";
constexpr const char* ORQ_ACTION_STATUSTIP_CONNECT_TO_DEVICE = "Connects to a device on the board";
constexpr const char* ORQ_ACTION_MENU_TEXT_CONTINUE = "&Continue";
constexpr const char* ORQ_ACTION_STATUSTIP_CONTINUE = "Continues the simulation to the next breakpoint";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_CONTINUE = "F5";
constexpr const char* ORQ_ACTION_MENU_TEXT_CONVERT_PROGRAMMING_FILE = "Convert Pro&gramming File...";
constexpr const char* ORQ_ACTION_STATUSTIP_CONVERT_PROGRAMMING_FILE = "Converts a programming file into another format";
constexpr const char* ORQ_ACTION_MENU_TEXT_CONWQ_CLEAR_CONSOLE = "&Clear Console";
constexpr const char* ORQ_ACTION_STATUSTIP_CONWQ_CLEAR_CONSOLE = "Removes all text from the console";
constexpr const char* ORQ_ACTION_MENU_TEXT_CONWQ_SAVE_TRANSCRIPT = "&Save Transcript...";
constexpr const char* ORQ_ACTION_STATUSTIP_CONWQ_SAVE_TRANSCRIPT = "Saves the console transcript to a file";
constexpr const char* ORQ_ACTION_MENU_TEXT_COPY = "&Copy";
constexpr const char* ORQ_ACTION_STATUSTIP_COPY = "Copies the selection to the Clipboard";
constexpr const char* ORQ_ACTION_MENU_TEXT_COPY_FILE_NAME = "Copy File Name";
constexpr const char* ORQ_ACTION_STATUSTIP_COPY_FILE_NAME = "Copies the file name of the current file to the clipboard";
constexpr const char* ORQ_ACTION_MENU_TEXT_COPY_FULL_PATH = "Copy Full Path";
constexpr const char* ORQ_ACTION_STATUSTIP_COPY_FULL_PATH = "Copies the full path of the current file to the clipboard";
constexpr const char* ORQ_ACTION_MENU_TEXT_COPY_NODE_NAME = "Copy &Node Name";
constexpr const char* ORQ_ACTION_STATUSTIP_COPY_NODE_NAME = "Copies the full name of the selected node to the clipboard";
constexpr const char* ORQ_ACTION_MENU_TEXT_COPY_TOOLTIP = "Copy Tooltip";
constexpr const char* ORQ_ACTION_STATUSTIP_COPY_TOOLTIP = "Copies the tooltip text into the clipboard";
constexpr const char* ORQ_ACTION_MENU_TEXT_COPY_VALUE = "Copy &Value";
constexpr const char* ORQ_ACTION_STATUSTIP_COPY_VALUE = "Copies the value at the cursor to the clipboard";
constexpr const char* ORQ_ACTION_MENU_TEXT_CREATE_BLOCK = "Create &Block";
constexpr const char* ORQ_ACTION_STATUSTIP_CREATE_BLOCK = "Creates a new block";
constexpr const char* ORQ_ACTION_MENU_TEXT_CREATE_BOOKMARK = "Create Book&mark...";
constexpr const char* ORQ_ACTION_STATUSTIP_CREATE_BOOKMARK = "Creates a named bookmark";
constexpr const char* ORQ_ACTION_MENU_TEXT_CREATE_BUS = "Create B&us...";
constexpr const char* ORQ_ACTION_STATUSTIP_CREATE_BUS = "Creates a bus from the selected nodes";
constexpr const char* ORQ_ACTION_MENU_TEXT_CREATE_CLOCK = "Create &Clock...";
constexpr const char* ORQ_ACTION_STATUSTIP_CREATE_CLOCK = "Creates a clock constraint";
constexpr const char* ORQ_ACTION_MENU_TEXT_CREATE_CONSTRAINT = "Create Co&nstraint...";
constexpr const char* ORQ_ACTION_STATUSTIP_CREATE_CONSTRAINT = "Creates a timing constraint";
constexpr const char* ORQ_ACTION_MENU_TEXT_CREATE_DESIGN_PARTITION = "Create Design &Partition...";
constexpr const char* ORQ_ACTION_STATUSTIP_CREATE_DESIGN_PARTITION = "Creates a design partition from the selected instance";
constexpr const char* ORQ_ACTION_MENU_TEXT_CREATE_DIFFERENTIAL_PAIR = "Create &Differential Pair";
constexpr const char* ORQ_ACTION_STATUSTIP_CREATE_DIFFERENTIAL_PAIR = "Pairs the two selected pins";
constexpr const char* ORQ_ACTION_MENU_TEXT_CREATE_FALSE_PATH = "Create &False Path...";
constexpr const char* ORQ_ACTION_STATUSTIP_CREATE_FALSE_PATH = "Creates a false path exception";
constexpr const char* ORQ_ACTION_MENU_TEXT_CREATE_GENERATED_CLOCK = "Create &Generated Clock...";
constexpr const char* ORQ_ACTION_STATUSTIP_CREATE_GENERATED_CLOCK = "Creates a clock derived from another clock";
constexpr const char* ORQ_ACTION_MENU_TEXT_CREATE_GROUP = "Create Gro&up...";
constexpr const char* ORQ_ACTION_STATUSTIP_CREATE_GROUP = "Creates a group of nodes";
constexpr const char* ORQ_ACTION_MENU_TEXT_CREATE_INSTANCE = "Create &Instance...";
constexpr const char* ORQ_ACTION_STATUSTIP_CREATE_INSTANCE = "Creates an instance of a design entity";
constexpr const char* ORQ_ACTION_MENU_TEXT_CREATE_IP_VARIATION = "Create IP &Variation...";
constexpr const char* ORQ_ACTION_STATUSTIP_CREATE_IP_VARIATION = "Creates a parameterized variation of an IP core";
constexpr const char* ORQ_ACTION_MENU_TEXT_CREATE_KEEPOUT = "Create &Keepout";
constexpr const char* ORQ_ACTION_STATUSTIP_CREATE_KEEPOUT = "Creates a keepout area";
constexpr const char* ORQ_ACTION_MENU_TEXT_CREATE_LOGIC_LOCK_REGION = "Create Logic &Lock Region";
constexpr const char* ORQ_ACTION_STATUSTIP_CREATE_LOGIC_LOCK_REGION = "Creates a region that locks logic in place";
constexpr const char* ORQ_ACTION_MENU_TEXT_CREATE_MEMORY_FILE = "Create &Memory File...";
constexpr const char* ORQ_ACTION_STATUSTIP_CREATE_MEMORY_FILE = "Creates a memory initialization file";
constexpr const char* ORQ_ACTION_MENU_TEXT_CREATE_MULTICYCLE_PATH = "Create &Multicycle Path...";
constexpr const char* ORQ_ACTION_STATUSTIP_CREATE_MULTICYCLE_PATH = "Creates a multicycle path exception";
constexpr const char* ORQ_ACTION_MENU_TEXT_CREATE_NET = "Create Ne&t";
constexpr const char* ORQ_ACTION_STATUSTIP_CREATE_NET = "Creates a net between the selected ports";
constexpr const char* ORQ_ACTION_MENU_TEXT_CREATE_PIN = "Create &Pin";
constexpr const char* ORQ_ACTION_STATUSTIP_CREATE_PIN = "Creates a top-level pin";
constexpr const char* ORQ_ACTION_MENU_TEXT_CREATE_PORT = "Create P&ort";
constexpr const char* ORQ_ACTION_STATUSTIP_CREATE_PORT = "Creates a port on the selected block";
constexpr const char* ORQ_ACTION_MENU_TEXT_CREATE_PROBE = "Create Pro&be...";
constexpr const char* ORQ_ACTION_STATUSTIP_CREATE_PROBE = "Creates a debug probe on the selected net";
constexpr const char* ORQ_ACTION_MENU_TEXT_CREATE_PROJECT = "Create Pro&ject...";
constexpr const char* ORQ_ACTION_STATUSTIP_CREATE_PROJECT = "Creates a new project with the project wizard";
constexpr const char* ORQ_ACTION_MENU_TEXT_CREATE_REGION = "Create &Region";
constexpr const char* ORQ_ACTION_STATUSTIP_CREATE_REGION = "Creates a placement region";
constexpr const char* ORQ_ACTION_MENU_TEXT_CREATE_REVISION = "Create Re&vision...";
constexpr const char* ORQ_ACTION_STATUSTIP_CREATE_REVISION = "Creates a new revision of the project";
constexpr const char* ORQ_ACTION_MENU_TEXT_CREATE_SIGNAL_GROUP = "Create Signal &Group";
constexpr const char* ORQ_ACTION_STATUSTIP_CREATE_SIGNAL_GROUP = "Groups the selected signals";
constexpr const char* ORQ_ACTION_MENU_TEXT_CREATE_SNAPSHOT = "Create &Snapshot";
constexpr const char* ORQ_ACTION_STATUSTIP_CREATE_SNAPSHOT = "Saves the current waveform as a snapshot";
constexpr const char* ORQ_ACTION_MENU_TEXT_CREATE_SYMBOL = "Create S&ymbol File";
constexpr const char* ORQ_ACTION_STATUSTIP_CREATE_SYMBOL = "Creates a symbol for the current design file";
constexpr const char* ORQ_ACTION_MENU_TEXT_CREATE_TESTBENCH = "Create &Testbench...";
constexpr const char* ORQ_ACTION_STATUSTIP_CREATE_TESTBENCH = "Creates a testbench for the top-level entity";
constexpr const char* ORQ_ACTION_MENU_TEXT_CREATE_TIMING_GROUP = "Create Timin&g Group...";
constexpr const char* ORQ_ACTION_STATUSTIP_CREATE_TIMING_GROUP = "Creates a group of timing nodes";
constexpr const char* ORQ_ACTION_MENU_TEXT_CREATE_TRIGGER = "Create T&rigger...";
constexpr const char* ORQ_ACTION_STATUSTIP_CREATE_TRIGGER = "Creates a trigger condition";
constexpr const char* ORQ_ACTION_MENU_TEXT_CREATE_VIRTUAL_PIN = "Create Virt&ual Pin";
constexpr const char* ORQ_ACTION_STATUSTIP_CREATE_VIRTUAL_PIN = "Makes the selected pins virtual";
constexpr const char* ORQ_ACTION_MENU_TEXT_CROSS_PROBE = "Cross-&Probe";
constexpr const char* ORQ_ACTION_STATUSTIP_CROSS_PROBE = "Shows the selection in the other open tools";
constexpr const char* ORQ_ACTION_MENU_TEXT_CST_VALIDATE_CONSTRAINTS = "&Validate Constraints";
constexpr const char* ORQ_ACTION_STATUSTIP_CST_VALIDATE_CONSTRAINTS = "Checks the constraint files for errors";
constexpr const char* ORQ_ACTION_MENU_TEXT_CUSTOMIZE = "Customi&ze...";
constexpr const char* ORQ_ACTION_STATUSTIP_CUSTOMIZE = "Customizes the user interface";
constexpr const char* ORQ_ACTION_MENU_TEXT_CUSTOMIZE_COLUMN = "C&ustomize Columns...";
constexpr const char* ORQ_ACTION_STATUSTIP_CUSTOMIZE_COLUMN = "Opens customize column dialog";
constexpr const char* ORQ_ACTION_MENU_TEXT_CUSTOMIZE_FILTER = "Customize &Filter...";
constexpr const char* ORQ_ACTION_STATUSTIP_CUSTOMIZE_FILTER = "Opens customize filter dialog";
constexpr const char* ORQ_ACTION_MENU_TEXT_CUT = "Cu&t";
constexpr const char* ORQ_ACTION_STATUSTIP_CUT = "Cuts the selection and puts it on the Clipboard";
constexpr const char* ORQ_ACTION_MENU_TEXT_DBG_ADD_TRIGGER = "Add &Trigger Condition";
constexpr const char* ORQ_ACTION_STATUSTIP_DBG_ADD_TRIGGER = "Adds a trigger condition";
constexpr const char* ORQ_ACTION_MENU_TEXT_DBG_AUTORUN_ANALYSIS = "&Autorun Analysis";
constexpr const char* ORQ_ACTION_STATUSTIP_DBG_AUTORUN_ANALYSIS = "Runs the analysis again whenever it stops";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_DBG_AUTORUN_ANALYSIS = "F6";
constexpr const char* ORQ_ACTION_MENU_TEXT_DBG_RUN_ANALYSIS = "&Run Analysis";
constexpr const char* ORQ_ACTION_STATUSTIP_DBG_RUN_ANALYSIS = "Starts acquiring data from the device";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_DBG_RUN_ANALYSIS = "F5";
constexpr const char* ORQ_ACTION_MENU_TEXT_DBG_STOP_ANALYSIS = "&Stop Analysis";
constexpr const char* ORQ_ACTION_STATUSTIP_DBG_STOP_ANALYSIS = "Stops acquiring data from the device";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_DBG_STOP_ANALYSIS = "Ctrl+Shift+F5";
constexpr const char* ORQ_ACTION_MENU_TEXT_DECREASE_FONT_SIZE = "&Decrease Font Size";
constexpr const char* ORQ_ACTION_STATUSTIP_DECREASE_FONT_SIZE = "Makes the text smaller";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_DECREASE_FONT_SIZE = "Ctrl+-";
constexpr const char* ORQ_ACTION_MENU_TEXT_DEFAULT_LAYOUT = "Default &Layout";
constexpr const char* ORQ_ACTION_STATUSTIP_DEFAULT_LAYOUT = "Restores the default window layout";
constexpr const char* ORQ_ACTION_MENU_TEXT_DEFINE_GROUP = "&Define Group...";
constexpr const char* ORQ_ACTION_STATUSTIP_DEFINE_GROUP = "Defines a group of objects";
constexpr const char* ORQ_ACTION_MENU_TEXT_DELETE = "&Delete";
constexpr const char* ORQ_ACTION_STATUSTIP_DELETE = "Deletes the selection";
constexpr const char* ORQ_ACTION_MENU_TEXT_DELETE_ALL_MARKERS = "Delete All &Markers";
constexpr const char* ORQ_ACTION_STATUSTIP_DELETE_ALL_MARKERS = "Deletes every marker in the view";
constexpr const char* ORQ_ACTION_MENU_TEXT_DELETE_ASSIGNMENT = "Delete &Assignment";
constexpr const char* ORQ_ACTION_STATUSTIP_DELETE_ASSIGNMENT = "Deletes the selected assignments";
constexpr const char* ORQ_ACTION_MENU_TEXT_DELETE_BLOCK = "Delete &Block";
constexpr const char* ORQ_ACTION_STATUSTIP_DELETE_BLOCK = "Deletes the selected blocks";
constexpr const char* ORQ_ACTION_MENU_TEXT_DELETE_REGION = "Delete &Region";
constexpr const char* ORQ_ACTION_STATUSTIP_DELETE_REGION = "Deletes the selected regions";
constexpr const char* ORQ_ACTION_MENU_TEXT_DESELECT_ALL = "Dese&lect All";
constexpr const char* ORQ_ACTION_STATUSTIP_DESELECT_ALL = "Deselects all objects";
constexpr const char* ORQ_ACTION_MENU_TEXT_DESIGN_PARTITIONS_WINDOW = "Design &Partitions Window";
constexpr const char* ORQ_ACTION_STATUSTIP_DESIGN_PARTITIONS_WINDOW = "Opens the design partitions window";
constexpr const char* ORQ_ACTION_MENU_TEXT_DESIGN_SPACE_EXPLORER = "Design Space E&xplorer";
constexpr const char* ORQ_ACTION_STATUSTIP_DESIGN_SPACE_EXPLORER = "Explores compilation settings for better results";
constexpr const char* ORQ_ACTION_MENU_TEXT_DETACH = "&Detach Window";
constexpr const char* ORQ_ACTION_STATUSTIP_DETACH = "Detaches the window";
constexpr const char* ORQ_ACTION_MENU_TEXT_DETACH_ALL = "Detach A&ll Windows";
constexpr const char* ORQ_ACTION_STATUSTIP_DETACH_ALL = "Detaches every attached window";
constexpr const char* ORQ_ACTION_MENU_TEXT_DEVICE_PROPERTIES = "De&vice Properties...";
constexpr const char* ORQ_ACTION_STATUSTIP_DEVICE_PROPERTIES = "Shows the properties of the current device";
constexpr const char* ORQ_ACTION_MENU_TEXT_DISABLE_ASSIGNMENT = "D&isable Assignment";
constexpr const char* ORQ_ACTION_STATUSTIP_DISABLE_ASSIGNMENT = "Disables the selected assignments";
constexpr const char* ORQ_ACTION_MENU_TEXT_DISABLE_BREAKPOINT = "Disable Brea&kpoint";
constexpr const char* ORQ_ACTION_STATUSTIP_DISABLE_BREAKPOINT = "Disables the selected breakpoint";
constexpr const char* ORQ_ACTION_MENU_TEXT_DISPLAY_GRID = "Display &Grid";
constexpr const char* ORQ_ACTION_STATUSTIP_DISPLAY_GRID = "Shows or hides the grid";
constexpr const char* ORQ_ACTION_MENU_TEXT_DISPLAY_RULERS = "Display &Rulers";
constexpr const char* ORQ_ACTION_STATUSTIP_DISPLAY_RULERS = "Shows or hides the rulers";
constexpr const char* ORQ_ACTION_MENU_TEXT_DOCK_ALL_WINDOWS = "&Dock All Windows";
constexpr const char* ORQ_ACTION_STATUSTIP_DOCK_ALL_WINDOWS = "Docks every floating window";
constexpr const char* ORQ_ACTION_MENU_TEXT_DRC_RERUN = "&Rerun Rule Check";
constexpr const char* ORQ_ACTION_STATUSTIP_DRC_RERUN = "Runs the design rule check again";
constexpr const char* ORQ_ACTION_MENU_TEXT_DRC_SHOW_RULES = "Show &Rules...";
constexpr const char* ORQ_ACTION_STATUSTIP_DRC_SHOW_RULES = "Shows the design rules and their settings";
constexpr const char* ORQ_ACTION_MENU_TEXT_DUPLICATE = "D&uplicate";
constexpr const char* ORQ_ACTION_STATUSTIP_DUPLICATE = "Duplicates the selection";
constexpr const char* ORQ_ACTION_MENU_TEXT_EDIT_ASSIGNMENTS = "Edit &Assignments...";
constexpr const char* ORQ_ACTION_STATUSTIP_EDIT_ASSIGNMENTS = "Edits the assignments of the selection";
constexpr const char* ORQ_ACTION_MENU_TEXT_EDIT_CONSTRAINTS = "Edit &Constraints...";
constexpr const char* ORQ_ACTION_STATUSTIP_EDIT_CONSTRAINTS = "Edits the timing constraints";
constexpr const char* ORQ_ACTION_MENU_TEXT_EDIT_PROPERTIES = "Edit P&roperties...";
constexpr const char* ORQ_ACTION_STATUSTIP_EDIT_PROPERTIES = "Edits the properties of the selection";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_EDIT_PROPERTIES = "Alt+Enter";
constexpr const char* ORQ_ACTION_MENU_TEXT_EDIT_SOURCE = "Edit &Source";
constexpr const char* ORQ_ACTION_STATUSTIP_EDIT_SOURCE = "Opens the source file of the selection";
constexpr const char* ORQ_ACTION_MENU_TEXT_ELABORATE_DESIGN = "&Elaborate Design";
constexpr const char* ORQ_ACTION_STATUSTIP_ELABORATE_DESIGN = "Builds the design hierarchy from the sources";
constexpr const char* ORQ_ACTION_MENU_TEXT_ENABLE_ASSIGNMENT = "E&nable Assignment";
constexpr const char* ORQ_ACTION_STATUSTIP_ENABLE_ASSIGNMENT = "Enables the selected assignments";
constexpr const char* ORQ_ACTION_MENU_TEXT_ENABLE_DOCKING = "Enable Docking";
constexpr const char* ORQ_ACTION_STATUSTIP_ENABLE_DOCKING = "Enable docking";
constexpr const char* ORQ_ACTION_MENU_TEXT_ENABLE_TOOLTIPS = "Enable &Tooltips";
constexpr const char* ORQ_ACTION_STATUSTIP_ENABLE_TOOLTIPS = "Shows tool tips over objects";
constexpr const char* ORQ_ACTION_MENU_TEXT_END_SIMULATION = "E&nd Simulation";
constexpr const char* ORQ_ACTION_STATUSTIP_END_SIMULATION = "Ends the simulation";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_END_SIMULATION = "Shift+F5";
constexpr const char* ORQ_ACTION_MENU_TEXT_ERROR_NEXT = "Next &Error";
constexpr const char* ORQ_ACTION_STATUSTIP_ERROR_NEXT = "Goes to the next error message";
constexpr const char* ORQ_ACTION_MENU_TEXT_EVALUATE_EXPRESSION = "E&valuate Expression...";
constexpr const char* ORQ_ACTION_STATUSTIP_EVALUATE_EXPRESSION = "Evaluates an expression in the current context";
constexpr const char* ORQ_ACTION_MENU_TEXT_EXIT = "E&xit";
constexpr const char* ORQ_ACTION_STATUSTIP_EXIT = "Exits after prompting you to save any unsaved files";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_EXIT = "Alt+F4";
constexpr const char* ORQ_ACTION_MENU_TEXT_EXPAND_ALL = "E&xpand All";
constexpr const char* ORQ_ACTION_STATUSTIP_EXPAND_ALL = "Expand the selected entity";
constexpr const char* ORQ_ACTION_MENU_TEXT_EXPAND_ONE_LEVEL = "Expand &One Level";
constexpr const char* ORQ_ACTION_STATUSTIP_EXPAND_ONE_LEVEL = "Expands the selected item by one level";
constexpr const char* ORQ_ACTION_MENU_TEXT_EXPORT = "Export&...";
constexpr const char* ORQ_ACTION_STATUSTIP_EXPORT = "Exports the current file to a different format";
constexpr const char* ORQ_ACTION_MENU_TEXT_EXPORT_ASSIGNMENTS = "Export &Assignments...";
constexpr const char* ORQ_ACTION_STATUSTIP_EXPORT_ASSIGNMENTS = "Exports the assignments to a file";
constexpr const char* ORQ_ACTION_MENU_TEXT_EXPORT_CONSTRAINTS = "Export &Constraints...";
constexpr const char* ORQ_ACTION_STATUSTIP_EXPORT_CONSTRAINTS = "Exports the constraints to a file";
constexpr const char* ORQ_ACTION_MENU_TEXT_EXPORT_HTML_REPORT = "Export &HTML Report...";
constexpr const char* ORQ_ACTION_STATUSTIP_EXPORT_HTML_REPORT = "Exports the report as a web page";
constexpr const char* ORQ_ACTION_MENU_TEXT_EXPORT_IMAGE = "Export &Image...";
constexpr const char* ORQ_ACTION_STATUSTIP_EXPORT_IMAGE = "Exports the view as an image";
constexpr const char* ORQ_ACTION_MENU_TEXT_EXPORT_NETLIST = "Export &Netlist...";
constexpr const char* ORQ_ACTION_STATUSTIP_EXPORT_NETLIST = "Writes the netlist in another format";
constexpr const char* ORQ_ACTION_MENU_TEXT_EXPORT_PIN_FILE = "Export &Pin File...";
constexpr const char* ORQ_ACTION_STATUSTIP_EXPORT_PIN_FILE = "Writes the pin assignments to a file";
constexpr const char* ORQ_ACTION_MENU_TEXT_EXPORT_POWER_ESTIMATE = "Export Power &Estimate...";
constexpr const char* ORQ_ACTION_STATUSTIP_EXPORT_POWER_ESTIMATE = "Writes the power estimate to a file";
constexpr const char* ORQ_ACTION_MENU_TEXT_EXPORT_TIMING_REPORT = "Export &Timing Report...";
constexpr const char* ORQ_ACTION_STATUSTIP_EXPORT_TIMING_REPORT = "Writes the timing report to a file";
constexpr const char* ORQ_ACTION_MENU_TEXT_EXPORT_WAVEFORM = "Export &Waveform...";
constexpr const char* ORQ_ACTION_STATUSTIP_EXPORT_WAVEFORM = "Writes the waveform to a file";
constexpr const char* ORQ_ACTION_MENU_TEXT_EXTEND_SELECTION = "E&xtend Selection";
constexpr const char* ORQ_ACTION_STATUSTIP_EXTEND_SELECTION = "Extends the selection to the next object";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_EXTEND_SELECTION = "Shift+Right Arrow";
constexpr const char* ORQ_ACTION_MENU_TEXT_EXTRACT_CONSTRAINTS = "Extract &Constraints...";
constexpr const char* ORQ_ACTION_STATUSTIP_EXTRACT_CONSTRAINTS = "Extracts the constraints from the design";
constexpr const char* ORQ_ACTION_MENU_TEXT_FANIN_CONE = "Show Fan-&in Cone";
constexpr const char* ORQ_ACTION_STATUSTIP_FANIN_CONE = "Shows the logic that drives the selected node";
constexpr const char* ORQ_ACTION_MENU_TEXT_FANOUT_CONE = "Show Fan-&out Cone";
constexpr const char* ORQ_ACTION_STATUSTIP_FANOUT_CONE = "Shows the logic that the selected node drives";
constexpr const char* ORQ_ACTION_MENU_TEXT_FILE_PROPERTIES = "File P&roperties...";
constexpr const char* ORQ_ACTION_STATUSTIP_FILE_PROPERTIES = "Shows the properties of the current file";
constexpr const char* ORQ_ACTION_MENU_TEXT_FILL_REGION = "&Fill Region";
constexpr const char* ORQ_ACTION_STATUSTIP_FILL_REGION = "Fills the selected region with the selected blocks";
constexpr const char* ORQ_ACTION_MENU_TEXT_FILTER_BY_SELECTION = "Filter by &Selection";
constexpr const char* ORQ_ACTION_STATUSTIP_FILTER_BY_SELECTION = "Shows only the rows that match the selection";
constexpr const char* ORQ_ACTION_MENU_TEXT_FILTER_CLEAR = "&Clear Filter";
constexpr const char* ORQ_ACTION_STATUSTIP_FILTER_CLEAR = "Removes the filter";
constexpr const char* ORQ_ACTION_MENU_TEXT_FILTER_CRITICAL_WARNINGS = "&Critical Warnings";
constexpr const char* ORQ_ACTION_STATUSTIP_FILTER_CRITICAL_WARNINGS = "Shows or hides critical warnings";
constexpr const char* ORQ_ACTION_MENU_TEXT_FILTER_ERROR_MESSAGES = "&Errors";
constexpr const char* ORQ_ACTION_STATUSTIP_FILTER_ERROR_MESSAGES = "Shows or hides errors";
constexpr const char* ORQ_ACTION_MENU_TEXT_FILTER_INFO_MESSAGES = "&Information";
constexpr const char* ORQ_ACTION_STATUSTIP_FILTER_INFO_MESSAGES = "Shows or hides information messages";
constexpr const char* ORQ_ACTION_MENU_TEXT_FILTER_SUPPRESSED_MESSAGES = "&Suppressed";
constexpr const char* ORQ_ACTION_STATUSTIP_FILTER_SUPPRESSED_MESSAGES = "Shows or hides suppressed messages";
constexpr const char* ORQ_ACTION_MENU_TEXT_FILTER_WARNING_MESSAGES = "&Warnings";
constexpr const char* ORQ_ACTION_STATUSTIP_FILTER_WARNING_MESSAGES = "Shows or hides warnings";
constexpr const char* ORQ_ACTION_MENU_TEXT_FINALIZE_DESIGN = "Fi&nalize Design";
constexpr const char* ORQ_ACTION_STATUSTIP_FINALIZE_DESIGN = "Locks the design for sign-off";
constexpr const char* ORQ_ACTION_MENU_TEXT_FIND = "&Find...";
constexpr const char* ORQ_ACTION_STATUSTIP_FIND = "Searches for specified text";
constexpr const char* ORQ_ACTION_MENU_TEXT_FIND_NEXT = "Find Ne&xt";
constexpr const char* ORQ_ACTION_STATUSTIP_FIND_NEXT = "Searches for the next occurrence of the specified text";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_FIND_NEXT = "F3";
constexpr const char* ORQ_ACTION_MENU_TEXT_FIND_PREVIOUS = "Find P&revious";
constexpr const char* ORQ_ACTION_STATUSTIP_FIND_PREVIOUS = "Searches for the previous occurrence of the specified text";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_FIND_PREVIOUS = "Shift+F3";
constexpr const char* ORQ_ACTION_MENU_TEXT_FIND_REPLACE = "&Replace...";
constexpr const char* ORQ_ACTION_STATUSTIP_FIND_REPLACE = "Replaces specified text with different text";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_FIND_REPLACE = "Ctrl+H";
constexpr const char* ORQ_ACTION_MENU_TEXT_FIND_SIGNAL = "Find &Signal...";
constexpr const char* ORQ_ACTION_STATUSTIP_FIND_SIGNAL = "Searches for a signal by name";
constexpr const char* ORQ_ACTION_MENU_TEXT_FIND_USAGES = "Find &Usages";
constexpr const char* ORQ_ACTION_STATUSTIP_FIND_USAGES = "Lists every use of the selected name";
constexpr const char* ORQ_ACTION_MENU_TEXT_FIRST_PAGE = "&First Page";
constexpr const char* ORQ_ACTION_STATUSTIP_FIRST_PAGE = "Goes to the first page";
constexpr const char* ORQ_ACTION_MENU_TEXT_FLATTEN_HIERARCHY = "F&latten Hierarchy";
constexpr const char* ORQ_ACTION_STATUSTIP_FLATTEN_HIERARCHY = "Shows the design without hierarchy";
constexpr const char* ORQ_ACTION_MENU_TEXT_FLIP_HORIZONTAL = "Flip &Horizontal";
constexpr const char* ORQ_ACTION_STATUSTIP_FLIP_HORIZONTAL = "Mirrors the selection left to right";
constexpr const char* ORQ_ACTION_MENU_TEXT_FLIP_VERTICAL = "Flip &Vertical";
constexpr const char* ORQ_ACTION_STATUSTIP_FLIP_VERTICAL = "Mirrors the selection top to bottom";
constexpr const char* ORQ_ACTION_MENU_TEXT_FOCUS_VIEW = "F&ocus View";
constexpr const char* ORQ_ACTION_STATUSTIP_FOCUS_VIEW = "Shows only the selected objects";
constexpr const char* ORQ_ACTION_MENU_TEXT_FOLLOW_NET = "Follo&w Net";
constexpr const char* ORQ_ACTION_STATUSTIP_FOLLOW_NET = "Selects the objects the selected net connects";
constexpr const char* ORQ_ACTION_MENU_TEXT_FORMAT_SOURCE = "F&ormat Source";
constexpr const char* ORQ_ACTION_STATUSTIP_FORMAT_SOURCE = "Formats the indentation of the source";
constexpr const char* ORQ_ACTION_MENU_TEXT_FORWARD = "&Forward";
constexpr const char* ORQ_ACTION_STATUSTIP_FORWARD = "Goes forward to the next location";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_FORWARD = "Alt+Right Arrow";
constexpr const char* ORQ_ACTION_MENU_TEXT_FPV_HIGHLIGHT_CONGESTION = "Highlight &Congestion";
constexpr const char* ORQ_ACTION_STATUSTIP_FPV_HIGHLIGHT_CONGESTION = "Colours the floorplan by routing congestion";
constexpr const char* ORQ_ACTION_MENU_TEXT_FPV_MEASURE = "&Measure";
constexpr const char* ORQ_ACTION_STATUSTIP_FPV_MEASURE = "Measures a distance on the floorplan";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_FPV_MEASURE = "Ctrl+R";
constexpr const char* ORQ_ACTION_MENU_TEXT_FPV_SHOW_CLOCK_REGIONS = "Show Clock &Regions";
constexpr const char* ORQ_ACTION_STATUSTIP_FPV_SHOW_CLOCK_REGIONS = "Shows or hides the clock regions on the floorplan";
constexpr const char* ORQ_ACTION_MENU_TEXT_FPV_SHOW_DENSITY = "Show &Density";
constexpr const char* ORQ_ACTION_STATUSTIP_FPV_SHOW_DENSITY = "Shows or hides the placement density map";
constexpr const char* ORQ_ACTION_MENU_TEXT_FPV_SHOW_FLYLINES = "Show &Flylines";
constexpr const char* ORQ_ACTION_STATUSTIP_FPV_SHOW_FLYLINES = "Shows or hides the connections between blocks";
constexpr const char* ORQ_ACTION_MENU_TEXT_FPV_SHOW_IO_BANKS = "Show &I/O Banks";
constexpr const char* ORQ_ACTION_STATUSTIP_FPV_SHOW_IO_BANKS = "Shows or hides the I/O banks";
constexpr const char* ORQ_ACTION_MENU_TEXT_FPV_SHOW_KEEPOUTS = "Show &Keepouts";
constexpr const char* ORQ_ACTION_STATUSTIP_FPV_SHOW_KEEPOUTS = "Shows or hides the keepout areas";
constexpr const char* ORQ_ACTION_MENU_TEXT_FPV_SHOW_NET_BUNDLES = "Show Net &Bundles";
constexpr const char* ORQ_ACTION_STATUSTIP_FPV_SHOW_NET_BUNDLES = "Shows the connections between blocks as bundles";
constexpr const char* ORQ_ACTION_MENU_TEXT_FPV_SHOW_POWER_STRIPES = "Show &Power Stripes";
constexpr const char* ORQ_ACTION_STATUSTIP_FPV_SHOW_POWER_STRIPES = "Shows or hides the power grid";
constexpr const char* ORQ_ACTION_MENU_TEXT_FPV_SHOW_ROUTING = "Show Ro&uting";
constexpr const char* ORQ_ACTION_STATUSTIP_FPV_SHOW_ROUTING = "Shows or hides the routed wires";
constexpr const char* ORQ_ACTION_MENU_TEXT_FPV_SHOW_SLR = "Show Super &Logic Regions";
constexpr const char* ORQ_ACTION_STATUSTIP_FPV_SHOW_SLR = "Shows or hides the boundaries of the logic regions";
constexpr const char* ORQ_ACTION_MENU_TEXT_FULL_SCREEN = "F&ull Screen";
constexpr const char* ORQ_ACTION_STATUSTIP_FULL_SCREEN = "Shows the window over the whole screen";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_FULL_SCREEN = "F11";
constexpr const char* ORQ_ACTION_MENU_TEXT_GED_ADD_BUS = "Add &Bus";
constexpr const char* ORQ_ACTION_STATUSTIP_GED_ADD_BUS = "Draws a bus";
constexpr const char* ORQ_ACTION_MENU_TEXT_GED_ADD_JUNCTION = "Add &Junction";
constexpr const char* ORQ_ACTION_STATUSTIP_GED_ADD_JUNCTION = "Places a junction on a wire";
constexpr const char* ORQ_ACTION_MENU_TEXT_GED_ADD_LABEL = "Add &Label";
constexpr const char* ORQ_ACTION_STATUSTIP_GED_ADD_LABEL = "Places a net label";
constexpr const char* ORQ_ACTION_MENU_TEXT_GED_ADD_PORT = "Add &Port";
constexpr const char* ORQ_ACTION_STATUSTIP_GED_ADD_PORT = "Places a port on the page";
constexpr const char* ORQ_ACTION_MENU_TEXT_GED_ADD_WIRE = "Add &Wire";
constexpr const char* ORQ_ACTION_STATUSTIP_GED_ADD_WIRE = "Draws a wire";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_GED_ADD_WIRE = "Ctrl+W";
constexpr const char* ORQ_ACTION_MENU_TEXT_GED_BRING_TO_FRONT = "Bring to &Front";
constexpr const char* ORQ_ACTION_STATUSTIP_GED_BRING_TO_FRONT = "Brings the selection to the front";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_GED_BRING_TO_FRONT = "Ctrl+Shift+Up Arrow";
constexpr const char* ORQ_ACTION_MENU_TEXT_GED_EDIT_SYMBOL = "Edit &Symbol";
constexpr const char* ORQ_ACTION_STATUSTIP_GED_EDIT_SYMBOL = "Opens the symbol of the selected instance";
constexpr const char* ORQ_ACTION_MENU_TEXT_GED_ROTATE_LEFT = "Rotate &Left";
constexpr const char* ORQ_ACTION_STATUSTIP_GED_ROTATE_LEFT = "Rotates the selection 90 degrees to the left";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_GED_ROTATE_LEFT = "Ctrl+Shift+L";
constexpr const char* ORQ_ACTION_MENU_TEXT_GED_ROTATE_RIGHT = "Rotate &Right";
constexpr const char* ORQ_ACTION_STATUSTIP_GED_ROTATE_RIGHT = "Rotates the selection 90 degrees to the right";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_GED_ROTATE_RIGHT = "Ctrl+Shift+R";
constexpr const char* ORQ_ACTION_MENU_TEXT_GED_SEND_TO_BACK = "Send to &Back";
constexpr const char* ORQ_ACTION_STATUSTIP_GED_SEND_TO_BACK = "Sends the selection to the back";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_GED_SEND_TO_BACK = "Ctrl+Shift+Down Arrow";
constexpr const char* ORQ_ACTION_MENU_TEXT_GED_SNAP_TO_GRID = "&Snap to Grid";
constexpr const char* ORQ_ACTION_STATUSTIP_GED_SNAP_TO_GRID = "Snaps objects to the grid while they move";
constexpr const char* ORQ_ACTION_MENU_TEXT_GENERATE_BITSTREAM = "Generate &Bitstream";
constexpr const char* ORQ_ACTION_STATUSTIP_GENERATE_BITSTREAM = "Generates the configuration bitstream";
constexpr const char* ORQ_ACTION_MENU_TEXT_GENERATE_BOARD_FILES = "Generate B&oard Files...";
constexpr const char* ORQ_ACTION_STATUSTIP_GENERATE_BOARD_FILES = "Generates the files for board design tools";
constexpr const char* ORQ_ACTION_MENU_TEXT_GENERATE_FUNCTIONAL_NETLIST = "Generate &Functional Netlist";
constexpr const char* ORQ_ACTION_STATUSTIP_GENERATE_FUNCTIONAL_NETLIST = "Generates a netlist for functional simulation";
constexpr const char* ORQ_ACTION_MENU_TEXT_GENERATE_HDL_WRAPPER = "Generate &HDL Wrapper";
constexpr const char* ORQ_ACTION_STATUSTIP_GENERATE_HDL_WRAPPER = "Generates an HDL wrapper for the block design";
constexpr const char* ORQ_ACTION_MENU_TEXT_GENERATE_IBIS_MODEL = "Generate &IBIS Model";
constexpr const char* ORQ_ACTION_STATUSTIP_GENERATE_IBIS_MODEL = "Generates signal-integrity models for the pins";
constexpr const char* ORQ_ACTION_MENU_TEXT_GENERATE_INSTANTIATION_TEMPLATE = "Generate I&nstantiation Template";
constexpr const char* ORQ_ACTION_STATUSTIP_GENERATE_INSTANTIATION_TEMPLATE = "Generates a template that instantiates the entity";
constexpr const char* ORQ_ACTION_MENU_TEXT_GENERATE_MEMORY_INIT_FILE = "Generate &Memory Initialization File";
constexpr const char* ORQ_ACTION_STATUSTIP_GENERATE_MEMORY_INIT_FILE = "Generates the memory contents file";
constexpr const char* ORQ_ACTION_MENU_TEXT_GENERATE_PIN_REPORT = "Generate &Pin Report";
constexpr const char* ORQ_ACTION_STATUSTIP_GENERATE_PIN_REPORT = "Generates the report of all pins";
constexpr const char* ORQ_ACTION_MENU_TEXT_GENERATE_POWER_REPORT = "Generate Po&wer Report";
constexpr const char* ORQ_ACTION_STATUSTIP_GENERATE_POWER_REPORT = "Generates the power report";
constexpr const char* ORQ_ACTION_MENU_TEXT_GENERATE_PROGRAMMING_FILE = "Generate Pro&gramming File";
constexpr const char* ORQ_ACTION_STATUSTIP_GENERATE_PROGRAMMING_FILE = "Generates the device programming file";
constexpr const char* ORQ_ACTION_MENU_TEXT_GENERATE_SIMULATION_NETLIST = "Generate &Simulation Netlist";
constexpr const char* ORQ_ACTION_STATUSTIP_GENERATE_SIMULATION_NETLIST = "Generates a netlist for timing simulation";
constexpr const char* ORQ_ACTION_MENU_TEXT_GENERATE_SYMBOL_FILE = "Generate S&ymbol File";
constexpr const char* ORQ_ACTION_STATUSTIP_GENERATE_SYMBOL_FILE = "Generates a symbol for the design file";
constexpr const char* ORQ_ACTION_MENU_TEXT_GENERATE_TESTBENCH = "Generate &Testbench";
constexpr const char* ORQ_ACTION_STATUSTIP_GENERATE_TESTBENCH = "Generates a testbench template";
constexpr const char* ORQ_ACTION_MENU_TEXT_GO_TO_DEFINITION = "Go to &Definition";
constexpr const char* ORQ_ACTION_STATUSTIP_GO_TO_DEFINITION = "Opens the definition of the selected name";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_GO_TO_DEFINITION = "F12";
constexpr const char* ORQ_ACTION_MENU_TEXT_GO_TO_DRIVER = "Go to D&river";
constexpr const char* ORQ_ACTION_STATUSTIP_GO_TO_DRIVER = "Selects the driver of the selected net";
constexpr const char* ORQ_ACTION_MENU_TEXT_GO_TO_LINE = "&Go to Line...";
constexpr const char* ORQ_ACTION_STATUSTIP_GO_TO_LINE = "Moves the cursor to a line number";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_GO_TO_LINE = "Ctrl+G";
constexpr const char* ORQ_ACTION_MENU_TEXT_GO_TO_TIME = "Go to &Time...";
constexpr const char* ORQ_ACTION_STATUSTIP_GO_TO_TIME = "Moves the cursor to a simulation time";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_GO_TO_TIME = "Ctrl+T";
constexpr const char* ORQ_ACTION_MENU_TEXT_GRID_SETTINGS = "Grid &Settings...";
constexpr const char* ORQ_ACTION_STATUSTIP_GRID_SETTINGS = "Sets the grid spacing";
constexpr const char* ORQ_ACTION_MENU_TEXT_GROUP = "&Group";
constexpr const char* ORQ_ACTION_STATUSTIP_GROUP = "Groups the selected objects";
constexpr const char* ORQ_ACTION_MENU_TEXT_GROUP_SIGNALS = "Group &Signals";
constexpr const char* ORQ_ACTION_STATUSTIP_GROUP_SIGNALS = "Groups the selected signals into a bus";
constexpr const char* ORQ_ACTION_MENU_TEXT_HDL_TEMPLATES = "&HDL Templates...";
constexpr const char* ORQ_ACTION_STATUSTIP_HDL_TEMPLATES = "Inserts an HDL template";
constexpr const char* ORQ_ACTION_MENU_TEXT_HELP = "&Help";
constexpr const char* ORQ_ACTION_STATUSTIP_HELP = "Display help for the currently selected message";
constexpr const char* ORQ_ACTION_MENU_TEXT_HELP_ON_MESSAGE = "Help on &Message";
constexpr const char* ORQ_ACTION_STATUSTIP_HELP_ON_MESSAGE = "Shows help for the selected message";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_HELP_ON_MESSAGE = "Shift+F1";
constexpr const char* ORQ_ACTION_MENU_TEXT_HELP_TUTORIAL = "&Tutorial";
constexpr const char* ORQ_ACTION_STATUSTIP_HELP_TUTORIAL = "Opens the tutorial";
constexpr const char* ORQ_ACTION_MENU_TEXT_HIDE_ALL_DOCK_WINDOWS = "Hide All &Dock Windows";
constexpr const char* ORQ_ACTION_STATUSTIP_HIDE_ALL_DOCK_WINDOWS = "Hides every docked window";
constexpr const char* ORQ_ACTION_MENU_TEXT_HIDE_CONNECTIONS = "Hide &Connections";
constexpr const char* ORQ_ACTION_STATUSTIP_HIDE_CONNECTIONS = "Hides the connections between objects";
constexpr const char* ORQ_ACTION_MENU_TEXT_HIDE_GRID = "Hide &Grid";
constexpr const char* ORQ_ACTION_STATUSTIP_HIDE_GRID = "Hides the grid";
constexpr const char* ORQ_ACTION_MENU_TEXT_HIDE_INFO_MESSAGES = "Hide &Info Messages";
constexpr const char* ORQ_ACTION_STATUSTIP_HIDE_INFO_MESSAGES = "Hides information messages";
constexpr const char* ORQ_ACTION_MENU_TEXT_HIDE_NET_NAMES = "Hide &Net Names";
constexpr const char* ORQ_ACTION_STATUSTIP_HIDE_NET_NAMES = "Hides the names of the nets";
constexpr const char* ORQ_ACTION_MENU_TEXT_HIDE_PORT_NAMES = "Hide &Port Names";
constexpr const char* ORQ_ACTION_STATUSTIP_HIDE_PORT_NAMES = "Hides the names of the ports";
constexpr const char* ORQ_ACTION_MENU_TEXT_HIDE_SUPPRESSED_MESSAGES = "Hide &Suppressed Messages";
constexpr const char* ORQ_ACTION_STATUSTIP_HIDE_SUPPRESSED_MESSAGES = "Hides messages that were suppressed";
constexpr const char* ORQ_ACTION_MENU_TEXT_HIDE_UNUSED_PINS = "Hide &Unused Pins";
constexpr const char* ORQ_ACTION_STATUSTIP_HIDE_UNUSED_PINS = "Hides pins that carry no signal";
constexpr const char* ORQ_ACTION_MENU_TEXT_HIE_EXPAND_TO_LEAF = "Expand to &Leaf";
constexpr const char* ORQ_ACTION_STATUSTIP_HIE_EXPAND_TO_LEAF = "Expands the hierarchy down to the leaf instances";
constexpr const char* ORQ_ACTION_MENU_TEXT_HIE_SET_AS_TOP = "Set as &Top";
constexpr const char* ORQ_ACTION_STATUSTIP_HIE_SET_AS_TOP = "Makes the selected instance the top of the view";
constexpr const char* ORQ_ACTION_MENU_TEXT_HIE_SHOW_RESOURCES = "Show &Resources";
constexpr const char* ORQ_ACTION_STATUSTIP_HIE_SHOW_RESOURCES = "Shows the resources of each instance";
constexpr const char* ORQ_ACTION_MENU_TEXT_HIGHLIGHT_NET = "Highlight &Net";
constexpr const char* ORQ_ACTION_STATUSTIP_HIGHLIGHT_NET = "Highlights the selected net";
constexpr const char* ORQ_ACTION_MENU_TEXT_HIGHLIGHT_PATH = "Highlight &Path";
constexpr const char* ORQ_ACTION_STATUSTIP_HIGHLIGHT_PATH = "Highlights the selected timing path";
constexpr const char* ORQ_ACTION_MENU_TEXT_HIGHLIGHT_SELECTED = "&Highlight Selected";
constexpr const char* ORQ_ACTION_STATUSTIP_HIGHLIGHT_SELECTED = "Highlights the selected objects";
constexpr const char* ORQ_ACTION_MENU_TEXT_HISTORY = "&History";
constexpr const char* ORQ_ACTION_STATUSTIP_HISTORY = "Shows the history of commands";
constexpr const char* ORQ_ACTION_MENU_TEXT_IMPORT_ASSIGNMENTS = "Import &Assignments...";
constexpr const char* ORQ_ACTION_STATUSTIP_IMPORT_ASSIGNMENTS = "Imports assignments from a file";
constexpr const char* ORQ_ACTION_MENU_TEXT_IMPORT_CONSTRAINTS = "Import &Constraints...";
constexpr const char* ORQ_ACTION_STATUSTIP_IMPORT_CONSTRAINTS = "Imports constraints from a file";
constexpr const char* ORQ_ACTION_MENU_TEXT_IMPORT_NETLIST = "Import &Netlist...";
constexpr const char* ORQ_ACTION_STATUSTIP_IMPORT_NETLIST = "Imports a netlist";
constexpr const char* ORQ_ACTION_MENU_TEXT_IMPORT_PIN_FILE = "Import &Pin File...";
constexpr const char* ORQ_ACTION_STATUSTIP_IMPORT_PIN_FILE = "Imports pin assignments from a file";
constexpr const char* ORQ_ACTION_MENU_TEXT_IMPORT_WAVEFORM = "Import &Waveform...";
constexpr const char* ORQ_ACTION_STATUSTIP_IMPORT_WAVEFORM = "Imports a waveform from a file";
constexpr const char* ORQ_ACTION_MENU_TEXT_INCREASE_FONT_SIZE = "&Increase Font Size";
constexpr const char* ORQ_ACTION_STATUSTIP_INCREASE_FONT_SIZE = "Makes the text larger";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_INCREASE_FONT_SIZE = "Ctrl+=";
constexpr const char* ORQ_ACTION_MENU_TEXT_INSERT_COMMENT = "Insert &Comment";
constexpr const char* ORQ_ACTION_STATUSTIP_INSERT_COMMENT = "Inserts a comment";
constexpr const char* ORQ_ACTION_MENU_TEXT_INSERT_SIGNAL = "Insert &Signal...";
constexpr const char* ORQ_ACTION_STATUSTIP_INSERT_SIGNAL = "Inserts a signal above the selection";
constexpr const char* ORQ_ACTION_MENU_TEXT_INSERT_TEMPLATE = "Insert &Template...";
constexpr const char* ORQ_ACTION_STATUSTIP_INSERT_TEMPLATE = "Inserts a template at the cursor";
constexpr const char* ORQ_ACTION_MENU_TEXT_INSERT_TIME_BAR = "Insert Time &Bar";
constexpr const char* ORQ_ACTION_STATUSTIP_INSERT_TIME_BAR = "Inserts a time bar at the cursor";
constexpr const char* ORQ_ACTION_MENU_TEXT_INSTANCE_COPY_NAME = "Copy Instance &Name";
constexpr const char* ORQ_ACTION_STATUSTIP_INSTANCE_COPY_NAME = "Copies the full instance name to the clipboard";
constexpr const char* ORQ_ACTION_MENU_TEXT_INSTANCE_GO_TO_DEFINITION = "Go to &Definition";
constexpr const char* ORQ_ACTION_STATUSTIP_INSTANCE_GO_TO_DEFINITION = "Opens the design file of the instance";
constexpr const char* ORQ_ACTION_MENU_TEXT_INSTANCE_PROPERTIES = "Instance &Properties...";
constexpr const char* ORQ_ACTION_STATUSTIP_INSTANCE_PROPERTIES = "Shows the properties of the instance";
constexpr const char* ORQ_ACTION_MENU_TEXT_INSTANCE_RENAME = "&Rename Instance...";
constexpr const char* ORQ_ACTION_STATUSTIP_INSTANCE_RENAME = "Renames the selected instance";
constexpr const char* ORQ_ACTION_MENU_TEXT_INSTANCE_SHOW_PORTS = "Show &Ports";
constexpr const char* ORQ_ACTION_STATUSTIP_INSTANCE_SHOW_PORTS = "Shows the ports of the instance";
constexpr const char* ORQ_ACTION_MENU_TEXT_INSTANCE_SHOW_RESOURCES = "Show &Resources";
constexpr const char* ORQ_ACTION_STATUSTIP_INSTANCE_SHOW_RESOURCES = "Shows the resources the instance uses";
constexpr const char* ORQ_ACTION_MENU_TEXT_INSTANCE_UPDATE = "&Update Instance";
constexpr const char* ORQ_ACTION_STATUSTIP_INSTANCE_UPDATE = "Updates the instance to its current definition";
constexpr const char* ORQ_ACTION_MENU_TEXT_INVERT_SELECTION = "In&vert Selection";
constexpr const char* ORQ_ACTION_STATUSTIP_INVERT_SELECTION = "Selects what is not selected and deselects the rest";
constexpr const char* ORQ_ACTION_MENU_TEXT_IO_BANK_PROPERTIES = "I/O &Bank Properties...";
constexpr const char* ORQ_ACTION_STATUSTIP_IO_BANK_PROPERTIES = "Shows the properties of the I/O bank";
constexpr const char* ORQ_ACTION_MENU_TEXT_IPC_ADD_TO_PROJECT = "Add to &Project";
constexpr const char* ORQ_ACTION_STATUSTIP_IPC_ADD_TO_PROJECT = "Adds the selected IP variation to the project";
constexpr const char* ORQ_ACTION_MENU_TEXT_IPC_PARAMETERIZE = "&Parameterize...";
constexpr const char* ORQ_ACTION_STATUSTIP_IPC_PARAMETERIZE = "Opens the parameter editor of the IP core";
constexpr const char* ORQ_ACTION_MENU_TEXT_IPC_REFRESH_CATALOG = "&Refresh Catalog";
constexpr const char* ORQ_ACTION_STATUSTIP_IPC_REFRESH_CATALOG = "Reads the IP catalog again";
constexpr const char* ORQ_ACTION_MENU_TEXT_IPC_UPGRADE_IP = "&Upgrade IP...";
constexpr const char* ORQ_ACTION_STATUSTIP_IPC_UPGRADE_IP = "Upgrades the selected IP cores";
constexpr const char* ORQ_ACTION_MENU_TEXT_JUMP_TO_ERROR = "&Jump to Error";
constexpr const char* ORQ_ACTION_STATUSTIP_JUMP_TO_ERROR = "Goes to the source line of the selected error";
constexpr const char* ORQ_ACTION_MENU_TEXT_KEYBOARD_SHORTCUTS = "&Keyboard Shortcuts...";
constexpr const char* ORQ_ACTION_STATUSTIP_KEYBOARD_SHORTCUTS = "Lists and edits the keyboard shortcuts";
constexpr const char* ORQ_ACTION_MENU_TEXT_LAST_PAGE = "&Last Page";
constexpr const char* ORQ_ACTION_STATUSTIP_LAST_PAGE = "Goes to the last page";
constexpr const char* ORQ_ACTION_MENU_TEXT_LAUNCH_SIMULATION = "&Launch Simulation";
constexpr const char* ORQ_ACTION_STATUSTIP_LAUNCH_SIMULATION = "Starts the simulator with the current design";
constexpr const char* ORQ_ACTION_MENU_TEXT_LAYER_SETTINGS = "La&yer Settings...";
constexpr const char* ORQ_ACTION_STATUSTIP_LAYER_SETTINGS = "Chooses the layers shown";
constexpr const char* ORQ_ACTION_MENU_TEXT_LICENSE_SETUP = "&License Setup...";
constexpr const char* ORQ_ACTION_STATUSTIP_LICENSE_SETUP = "Sets up the licenses";
constexpr const char* ORQ_ACTION_MENU_TEXT_LOAD_DATABASE = "Load &Database...";
constexpr const char* ORQ_ACTION_STATUSTIP_LOAD_DATABASE = "Loads a compilation database";
constexpr const char* ORQ_ACTION_MENU_TEXT_LOAD_SESSION = "Load &Session...";
constexpr const char* ORQ_ACTION_STATUSTIP_LOAD_SESSION = "Restores a saved session";
constexpr const char* ORQ_ACTION_MENU_TEXT_LOCATE_IN_ASSIGNMENT_EDITOR = "Locate in &Assignment Editor";
constexpr const char* ORQ_ACTION_STATUSTIP_LOCATE_IN_ASSIGNMENT_EDITOR = "Shows the selection in the assignment editor";
constexpr const char* ORQ_ACTION_MENU_TEXT_LOCATE_IN_BLOCK_EDITOR = "Locate in &Block Editor";
constexpr const char* ORQ_ACTION_STATUSTIP_LOCATE_IN_BLOCK_EDITOR = "Shows the selection in the block editor";
constexpr const char* ORQ_ACTION_MENU_TEXT_LOCATE_IN_CHIP_PLANNER = "Locate in &Chip Planner";
constexpr const char* ORQ_ACTION_STATUSTIP_LOCATE_IN_CHIP_PLANNER = "Shows the selection in the chip planner";
constexpr const char* ORQ_ACTION_MENU_TEXT_LOCATE_IN_CLOCK_PLANNER = "Locate in C&lock Planner";
constexpr const char* ORQ_ACTION_STATUSTIP_LOCATE_IN_CLOCK_PLANNER = "Shows the selection in the clock planner";
constexpr const char* ORQ_ACTION_MENU_TEXT_LOCATE_IN_DESIGN_FILE = "Locate in &Design File";
constexpr const char* ORQ_ACTION_STATUSTIP_LOCATE_IN_DESIGN_FILE = "Shows the selection in its design file";
constexpr const char* ORQ_ACTION_MENU_TEXT_LOCATE_IN_FLOORPLAN_VIEWER = "Locate in &Floorplan Viewer";
constexpr const char* ORQ_ACTION_STATUSTIP_LOCATE_IN_FLOORPLAN_VIEWER = "Shows the selection in the floorplan viewer";
constexpr const char* ORQ_ACTION_MENU_TEXT_LOCATE_IN_HIERARCHY = "Locate in &Hierarchy";
constexpr const char* ORQ_ACTION_STATUSTIP_LOCATE_IN_HIERARCHY = "Shows the selection in the hierarchy";
constexpr const char* ORQ_ACTION_MENU_TEXT_LOCATE_IN_NETLIST_VIEWER = "Locate in &Netlist Viewer";
constexpr const char* ORQ_ACTION_STATUSTIP_LOCATE_IN_NETLIST_VIEWER = "Shows the selection in the netlist viewer";
constexpr const char* ORQ_ACTION_MENU_TEXT_LOCATE_IN_PIN_PLANNER = "Locate in &Pin Planner";
constexpr const char* ORQ_ACTION_STATUSTIP_LOCATE_IN_PIN_PLANNER = "Shows the selection in the pin planner";
constexpr const char* ORQ_ACTION_MENU_TEXT_LOCATE_IN_POWER_ANALYZER = "Locate in Po&wer Analyzer";
constexpr const char* ORQ_ACTION_STATUSTIP_LOCATE_IN_POWER_ANALYZER = "Shows the selection in the power analyzer";
constexpr const char* ORQ_ACTION_MENU_TEXT_LOCATE_IN_SIGNAL_DEBUGGER = "Locate in &Signal Debugger";
constexpr const char* ORQ_ACTION_STATUSTIP_LOCATE_IN_SIGNAL_DEBUGGER = "Shows the selection in the signal debugger";
constexpr const char* ORQ_ACTION_MENU_TEXT_LOCATE_IN_TIMING_ANALYZER = "Locate in &Timing Analyzer";
constexpr const char* ORQ_ACTION_STATUSTIP_LOCATE_IN_TIMING_ANALYZER = "Shows the selection in the timing analyzer";
constexpr const char* ORQ_ACTION_MENU_TEXT_LOCATE_IN_WAVEFORM_VIEWER = "Locate in &Waveform Viewer";
constexpr const char* ORQ_ACTION_STATUSTIP_LOCATE_IN_WAVEFORM_VIEWER = "Shows the selection in the waveform viewer";
constexpr const char* ORQ_ACTION_MENU_TEXT_LOCK_ASSIGNMENT = "Lo&ck Assignment";
constexpr const char* ORQ_ACTION_STATUSTIP_LOCK_ASSIGNMENT = "Protects the selected assignments from changes";
constexpr const char* ORQ_ACTION_MENU_TEXT_LOCK_VIEW = "Lock &View";
constexpr const char* ORQ_ACTION_STATUSTIP_LOCK_VIEW = "Keeps the view from scrolling";
constexpr const char* ORQ_ACTION_MENU_TEXT_MACRO_RECORD = "&Record Macro";
constexpr const char* ORQ_ACTION_STATUSTIP_MACRO_RECORD = "Records the following commands as a macro";
constexpr const char* ORQ_ACTION_MENU_TEXT_MACRO_RUN = "Run &Macro...";
constexpr const char* ORQ_ACTION_STATUSTIP_MACRO_RUN = "Runs a recorded macro";
constexpr const char* ORQ_ACTION_MENU_TEXT_MAGNIFYING_TOOL = "Magnifying Glass Tool";
constexpr const char* ORQ_ACTION_STATUSTIP_MAGNIFYING_TOOL = "Click to magnify area under the pointer";
constexpr const char* ORQ_ACTION_MENU_TEXT_MARKER_NEXT = "Next Mar&ker";
constexpr const char* ORQ_ACTION_STATUSTIP_MARKER_NEXT = "Moves the cursor to the next marker";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_MARKER_NEXT = "Ctrl+Right Arrow";
constexpr const char* ORQ_ACTION_MENU_TEXT_MARKER_PREVIOUS = "Previous Mark&er";
constexpr const char* ORQ_ACTION_STATUSTIP_MARKER_PREVIOUS = "Moves the cursor to the previous marker";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_MARKER_PREVIOUS = "Ctrl+Left Arrow";
constexpr const char* ORQ_ACTION_MENU_TEXT_MAXIMIZE_WINDOW = "Ma&ximize Window";
constexpr const char* ORQ_ACTION_STATUSTIP_MAXIMIZE_WINDOW = "Maximizes the active window";
constexpr const char* ORQ_ACTION_MENU_TEXT_MERGE_PARTITIONS = "Mer&ge Partitions";
constexpr const char* ORQ_ACTION_STATUSTIP_MERGE_PARTITIONS = "Merges the selected partitions";
constexpr const char* ORQ_ACTION_MENU_TEXT_MESSAGE_DETAILS = "Message &Details...";
constexpr const char* ORQ_ACTION_STATUSTIP_MESSAGE_DETAILS = "Shows the details of the selected message";
constexpr const char* ORQ_ACTION_MENU_TEXT_MINIMIZE_WINDOW = "Mi&nimize Window";
constexpr const char* ORQ_ACTION_STATUSTIP_MINIMIZE_WINDOW = "Minimizes the active window";
constexpr const char* ORQ_ACTION_MENU_TEXT_MODIFY_CONSTRAINT = "&Modify Constraint...";
constexpr const char* ORQ_ACTION_STATUSTIP_MODIFY_CONSTRAINT = "Edits the selected constraint";
constexpr const char* ORQ_ACTION_MENU_TEXT_MORE_WINDOWS = "&More Windows...";
constexpr const char* ORQ_ACTION_STATUSTIP_MORE_WINDOWS = "Activate this window";
constexpr const char* ORQ_ACTION_MENU_TEXT_MOVE_DOWN = "Move &Down";
constexpr const char* ORQ_ACTION_STATUSTIP_MOVE_DOWN = "Moves the selection down";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_MOVE_DOWN = "Ctrl+Down Arrow";
constexpr const char* ORQ_ACTION_MENU_TEXT_MOVE_UP = "Move &Up";
constexpr const char* ORQ_ACTION_STATUSTIP_MOVE_UP = "Moves the selection up";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_MOVE_UP = "Ctrl+Up Arrow";
constexpr const char* ORQ_ACTION_MENU_TEXT_NAVIGATE_BACK = "Navigate &Back";
constexpr const char* ORQ_ACTION_STATUSTIP_NAVIGATE_BACK = "Returns to the previous view";
constexpr const char* ORQ_ACTION_MENU_TEXT_NAVIGATE_FORWARD = "Navigate &Forward";
constexpr const char* ORQ_ACTION_STATUSTIP_NAVIGATE_FORWARD = "Goes to the next view";
constexpr const char* ORQ_ACTION_MENU_TEXT_NET_PROPERTIES = "&Net Properties...";
constexpr const char* ORQ_ACTION_STATUSTIP_NET_PROPERTIES = "Shows the properties of the selected net";
constexpr const char* ORQ_ACTION_MENU_TEXT_NEW = "&New...";
constexpr const char* ORQ_ACTION_STATUSTIP_NEW = "Creates a new file";
constexpr const char* ORQ_ACTION_MENU_TEXT_NEW_BLOCK_DIAGRAM = "New &Block Diagram";
constexpr const char* ORQ_ACTION_STATUSTIP_NEW_BLOCK_DIAGRAM = "Creates a new block diagram file";
constexpr const char* ORQ_ACTION_MENU_TEXT_NEW_CONSTRAINT_FILE = "New &Constraint File";
constexpr const char* ORQ_ACTION_STATUSTIP_NEW_CONSTRAINT_FILE = "Creates a new constraint file";
constexpr const char* ORQ_ACTION_MENU_TEXT_NEW_PROJECT_WIZARD = "New &Project Wizard...";
constexpr const char* ORQ_ACTION_STATUSTIP_NEW_PROJECT_WIZARD = "Creates a new project step by step";
constexpr const char* ORQ_ACTION_MENU_TEXT_NEW_SOURCE_FILE = "New &Source File";
constexpr const char* ORQ_ACTION_STATUSTIP_NEW_SOURCE_FILE = "Creates a new source file";
constexpr const char* ORQ_ACTION_MENU_TEXT_NEW_WINDOW = "New &Window";
constexpr const char* ORQ_ACTION_STATUSTIP_NEW_WINDOW = "Opens another window on the current file";
constexpr const char* ORQ_ACTION_MENU_TEXT_NEXT_EDGE = "Next &Edge";
constexpr const char* ORQ_ACTION_STATUSTIP_NEXT_EDGE = "Moves the cursor to the next edge of the signal";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_NEXT_EDGE = "Tab";
constexpr const char* ORQ_ACTION_MENU_TEXT_NEXT_ERROR = "Next E&rror";
constexpr const char* ORQ_ACTION_STATUSTIP_NEXT_ERROR = "Goes to the next error in the file";
constexpr const char* ORQ_ACTION_MENU_TEXT_NEXT_PAGE = "&Next Page";
constexpr const char* ORQ_ACTION_STATUSTIP_NEXT_PAGE = "Goes to the next page";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_NEXT_PAGE = "Ctrl+Page Down";
constexpr const char* ORQ_ACTION_MENU_TEXT_NEXT_TAB = "Next &Tab";
constexpr const char* ORQ_ACTION_STATUSTIP_NEXT_TAB = "Shows the next tab";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_NEXT_TAB = "Ctrl+Tab";
constexpr const char* ORQ_ACTION_MENU_TEXT_NEXT_TRANSITION = "Next T&ransition";
constexpr const char* ORQ_ACTION_STATUSTIP_NEXT_TRANSITION = "Moves the cursor to the next transition of the bus";
constexpr const char* ORQ_ACTION_MENU_TEXT_NLV_EXPAND_NET = "&Expand Net";
constexpr const char* ORQ_ACTION_STATUSTIP_NLV_EXPAND_NET = "Shows every instance the net connects";
constexpr const char* ORQ_ACTION_MENU_TEXT_NLV_FILTER_NETS = "&Filter Nets...";
constexpr const char* ORQ_ACTION_STATUSTIP_NLV_FILTER_NETS = "Shows only the nets that match a filter";
constexpr const char* ORQ_ACTION_MENU_TEXT_NLV_GROUP_INSTANCES = "&Group Instances";
constexpr const char* ORQ_ACTION_STATUSTIP_NLV_GROUP_INSTANCES = "Groups the selected instances into one box";
constexpr const char* ORQ_ACTION_MENU_TEXT_NLV_SHOW_PATH = "Show &Path";
constexpr const char* ORQ_ACTION_STATUSTIP_NLV_SHOW_PATH = "Shows the path between the two selected nodes";
constexpr const char* ORQ_ACTION_MENU_TEXT_NLV_SHOW_RTL = "Show &RTL View";
constexpr const char* ORQ_ACTION_STATUSTIP_NLV_SHOW_RTL = "Shows the design after elaboration";
constexpr const char* ORQ_ACTION_MENU_TEXT_NLV_SHOW_TECHNOLOGY_MAP = "Show &Technology Map";
constexpr const char* ORQ_ACTION_STATUSTIP_NLV_SHOW_TECHNOLOGY_MAP = "Shows the design after synthesis";
constexpr const char* ORQ_ACTION_MENU_TEXT_NLV_UNGROUP_INSTANCES = "&Ungroup Instances";
constexpr const char* ORQ_ACTION_STATUSTIP_NLV_UNGROUP_INSTANCES = "Shows the instances of the selected group";
constexpr const char* ORQ_ACTION_MENU_TEXT_NODE_ADD_TO_GROUP = "Add to &Group";
constexpr const char* ORQ_ACTION_STATUSTIP_NODE_ADD_TO_GROUP = "Adds the selected nodes to a group";
constexpr const char* ORQ_ACTION_MENU_TEXT_NODE_ADD_TO_WATCH = "Add to &Watch";
constexpr const char* ORQ_ACTION_STATUSTIP_NODE_ADD_TO_WATCH = "Adds the selected nodes to the watch list";
constexpr const char* ORQ_ACTION_MENU_TEXT_NODE_ASSIGN_LOCATION = "Assign &Location...";
constexpr const char* ORQ_ACTION_STATUSTIP_NODE_ASSIGN_LOCATION = "Assigns a location to the selected node";
constexpr const char* ORQ_ACTION_MENU_TEXT_NODE_ASSIGN_PIN = "Assign &Pin...";
constexpr const char* ORQ_ACTION_STATUSTIP_NODE_ASSIGN_PIN = "Assigns a pin to the selected node";
constexpr const char* ORQ_ACTION_MENU_TEXT_NODE_COLLAPSE = "&Collapse";
constexpr const char* ORQ_ACTION_STATUSTIP_NODE_COLLAPSE = "Collapses the selected bus node";
constexpr const char* ORQ_ACTION_MENU_TEXT_NODE_COPY = "&Copy Node";
constexpr const char* ORQ_ACTION_STATUSTIP_NODE_COPY = "Copies the selected nodes";
constexpr const char* ORQ_ACTION_MENU_TEXT_NODE_COPY_NAME = "Copy &Name";
constexpr const char* ORQ_ACTION_STATUSTIP_NODE_COPY_NAME = "Copies the names of the selected nodes";
constexpr const char* ORQ_ACTION_MENU_TEXT_NODE_CREATE_BUS = "Create &Bus";
constexpr const char* ORQ_ACTION_STATUSTIP_NODE_CREATE_BUS = "Creates a bus from the selected nodes";
constexpr const char* ORQ_ACTION_MENU_TEXT_NODE_DELETE = "&Delete Node";
constexpr const char* ORQ_ACTION_STATUSTIP_NODE_DELETE = "Removes the selected nodes from the list";
constexpr const char* ORQ_ACTION_MENU_TEXT_NODE_DISABLE = "Disa&ble";
constexpr const char* ORQ_ACTION_STATUSTIP_NODE_DISABLE = "Disables the selected nodes";
constexpr const char* ORQ_ACTION_MENU_TEXT_NODE_ENABLE = "E&nable";
constexpr const char* ORQ_ACTION_STATUSTIP_NODE_ENABLE = "Enables the selected nodes";
constexpr const char* ORQ_ACTION_MENU_TEXT_NODE_EXPAND = "E&xpand";
constexpr const char* ORQ_ACTION_STATUSTIP_NODE_EXPAND = "Expands the selected bus node";
constexpr const char* ORQ_ACTION_MENU_TEXT_NODE_FIND = "&Find Node...";
constexpr const char* ORQ_ACTION_STATUSTIP_NODE_FIND = "Searches for nodes in the design";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_NODE_FIND = "Ctrl+Shift+F";
constexpr const char* ORQ_ACTION_MENU_TEXT_NODE_FIND_DRIVERS = "Find &Drivers";
constexpr const char* ORQ_ACTION_STATUSTIP_NODE_FIND_DRIVERS = "Lists the drivers of the selected node";
constexpr const char* ORQ_ACTION_MENU_TEXT_NODE_FIND_IN_DESIGN_FILE = "Find in Design &File";
constexpr const char* ORQ_ACTION_STATUSTIP_NODE_FIND_IN_DESIGN_FILE = "Shows the node in its design file";
constexpr const char* ORQ_ACTION_MENU_TEXT_NODE_FIND_LOADS = "Find L&oads";
constexpr const char* ORQ_ACTION_STATUSTIP_NODE_FIND_LOADS = "Lists the loads of the selected node";
constexpr const char* ORQ_ACTION_MENU_TEXT_NODE_GROUP = "&Group Nodes";
constexpr const char* ORQ_ACTION_STATUSTIP_NODE_GROUP = "Groups the selected nodes";
constexpr const char* ORQ_ACTION_MENU_TEXT_NODE_HIGHLIGHT = "&Highlight";
constexpr const char* ORQ_ACTION_STATUSTIP_NODE_HIGHLIGHT = "Highlights the selected nodes";
constexpr const char* ORQ_ACTION_MENU_TEXT_NODE_INSERT_ABOVE = "Insert &Above";
constexpr const char* ORQ_ACTION_STATUSTIP_NODE_INSERT_ABOVE = "Inserts a node above the selection";
constexpr const char* ORQ_ACTION_MENU_TEXT_NODE_INSERT_BELOW = "Insert Belo&w";
constexpr const char* ORQ_ACTION_STATUSTIP_NODE_INSERT_BELOW = "Inserts a node below the selection";
constexpr const char* ORQ_ACTION_MENU_TEXT_NODE_INVERT = "&Invert Value";
constexpr const char* ORQ_ACTION_STATUSTIP_NODE_INVERT = "Inverts the value of the selected interval";
constexpr const char* ORQ_ACTION_MENU_TEXT_NODE_LOCATE_IN_FLOORPLAN = "Locate in &Floorplan";
constexpr const char* ORQ_ACTION_STATUSTIP_NODE_LOCATE_IN_FLOORPLAN = "Shows the node in the floorplan";
constexpr const char* ORQ_ACTION_MENU_TEXT_NODE_LOCATE_IN_NETLIST = "Locate in &Netlist";
constexpr const char* ORQ_ACTION_STATUSTIP_NODE_LOCATE_IN_NETLIST = "Shows the node in the netlist viewer";
constexpr const char* ORQ_ACTION_MENU_TEXT_NODE_LOCATE_IN_SOURCE = "Locate in &Source";
constexpr const char* ORQ_ACTION_STATUSTIP_NODE_LOCATE_IN_SOURCE = "Shows the node in its source file";
constexpr const char* ORQ_ACTION_MENU_TEXT_NODE_LOCATE_IN_TIMING = "Locate in &Timing";
constexpr const char* ORQ_ACTION_STATUSTIP_NODE_LOCATE_IN_TIMING = "Shows the node in the timing analyzer";
constexpr const char* ORQ_ACTION_MENU_TEXT_NODE_MOVE_DOWN = "Move &Down";
constexpr const char* ORQ_ACTION_STATUSTIP_NODE_MOVE_DOWN = "Moves the selected nodes down";
constexpr const char* ORQ_ACTION_MENU_TEXT_NODE_MOVE_UP = "Move &Up";
constexpr const char* ORQ_ACTION_STATUSTIP_NODE_MOVE_UP = "Moves the selected nodes up";
constexpr const char* ORQ_ACTION_MENU_TEXT_NODE_PROPERTIES = "Node &Properties...";
constexpr const char* ORQ_ACTION_STATUSTIP_NODE_PROPERTIES = "Shows the properties of the selected node";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_NODE_PROPERTIES = "Alt+Return";
constexpr const char* ORQ_ACTION_MENU_TEXT_NODE_RADIX_ASCII = "&ASCII";
constexpr const char* ORQ_ACTION_STATUSTIP_NODE_RADIX_ASCII = "Shows the value as ASCII characters";
constexpr const char* ORQ_ACTION_MENU_TEXT_NODE_RADIX_BINARY = "&Binary";
constexpr const char* ORQ_ACTION_STATUSTIP_NODE_RADIX_BINARY = "Shows the value in binary";
constexpr const char* ORQ_ACTION_MENU_TEXT_NODE_RADIX_DECIMAL = "&Decimal";
constexpr const char* ORQ_ACTION_STATUSTIP_NODE_RADIX_DECIMAL = "Shows the value in decimal";
constexpr const char* ORQ_ACTION_MENU_TEXT_NODE_RADIX_HEX = "&Hexadecimal";
constexpr const char* ORQ_ACTION_STATUSTIP_NODE_RADIX_HEX = "Shows the value in hexadecimal";
constexpr const char* ORQ_ACTION_MENU_TEXT_NODE_RADIX_OCTAL = "&Octal";
constexpr const char* ORQ_ACTION_STATUSTIP_NODE_RADIX_OCTAL = "Shows the value in octal";
constexpr const char* ORQ_ACTION_MENU_TEXT_NODE_RADIX_SIGNED = "&Signed Decimal";
constexpr const char* ORQ_ACTION_STATUSTIP_NODE_RADIX_SIGNED = "Shows the value as a signed decimal";
constexpr const char* ORQ_ACTION_MENU_TEXT_NODE_RADIX_UNSIGNED = "&Unsigned Decimal";
constexpr const char* ORQ_ACTION_STATUSTIP_NODE_RADIX_UNSIGNED = "Shows the value as an unsigned decimal";
constexpr const char* ORQ_ACTION_MENU_TEXT_NODE_RENAME = "&Rename...";
constexpr const char* ORQ_ACTION_STATUSTIP_NODE_RENAME = "Renames the selected node";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_NODE_RENAME = "F2";
constexpr const char* ORQ_ACTION_MENU_TEXT_NODE_REVERSE_BUS_ORDER = "Re&verse Bus Order";
constexpr const char* ORQ_ACTION_STATUSTIP_NODE_REVERSE_BUS_ORDER = "Reverses the bit order of the bus";
constexpr const char* ORQ_ACTION_MENU_TEXT_NODE_SET_CLOCK = "Set &Clock...";
constexpr const char* ORQ_ACTION_STATUSTIP_NODE_SET_CLOCK = "Sets a clock waveform on the selected interval";
constexpr const char* ORQ_ACTION_MENU_TEXT_NODE_SET_COUNT = "Set Coun&t Value...";
constexpr const char* ORQ_ACTION_STATUSTIP_NODE_SET_COUNT = "Sets a counting value on the selected interval";
constexpr const char* ORQ_ACTION_MENU_TEXT_NODE_SET_RANDOM = "Set &Random Values...";
constexpr const char* ORQ_ACTION_STATUSTIP_NODE_SET_RANDOM = "Sets random values on the selected interval";
constexpr const char* ORQ_ACTION_MENU_TEXT_NODE_SET_VALUE_0 = "Set Value &0";
constexpr const char* ORQ_ACTION_STATUSTIP_NODE_SET_VALUE_0 = "Sets the selected interval to logic 0";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_NODE_SET_VALUE_0 = "Ctrl+Alt+0";
constexpr const char* ORQ_ACTION_MENU_TEXT_NODE_SET_VALUE_1 = "Set Value &1";
constexpr const char* ORQ_ACTION_STATUSTIP_NODE_SET_VALUE_1 = "Sets the selected interval to logic 1";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_NODE_SET_VALUE_1 = "Ctrl+Alt+1";
constexpr const char* ORQ_ACTION_MENU_TEXT_NODE_SET_VALUE_X = "Set Value &X";
constexpr const char* ORQ_ACTION_STATUSTIP_NODE_SET_VALUE_X = "Sets the selected interval to unknown";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_NODE_SET_VALUE_X = "Ctrl+Alt+X";
constexpr const char* ORQ_ACTION_MENU_TEXT_NODE_SET_VALUE_Z = "Set Value &Z";
constexpr const char* ORQ_ACTION_STATUSTIP_NODE_SET_VALUE_Z = "Sets the selected interval to high impedance";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_NODE_SET_VALUE_Z = "Ctrl+Alt+Z";
constexpr const char* ORQ_ACTION_MENU_TEXT_NODE_SHOW_FANIN = "Show Fan-&in";
constexpr const char* ORQ_ACTION_STATUSTIP_NODE_SHOW_FANIN = "Shows the fan-in of the selected node";
constexpr const char* ORQ_ACTION_MENU_TEXT_NODE_SHOW_FANOUT = "Show Fan-&out";
constexpr const char* ORQ_ACTION_STATUSTIP_NODE_SHOW_FANOUT = "Shows the fan-out of the selected node";
constexpr const char* ORQ_ACTION_MENU_TEXT_NODE_SORT_ASCENDING = "Sort &Ascending";
constexpr const char* ORQ_ACTION_STATUSTIP_NODE_SORT_ASCENDING = "Sorts the nodes by name, A to Z";
constexpr const char* ORQ_ACTION_MENU_TEXT_NODE_SORT_DESCENDING = "Sort D&escending";
constexpr const char* ORQ_ACTION_STATUSTIP_NODE_SORT_DESCENDING = "Sorts the nodes by name, Z to A";
constexpr const char* ORQ_ACTION_MENU_TEXT_NODE_TRACE_BACK = "Trace &Back";
constexpr const char* ORQ_ACTION_STATUSTIP_NODE_TRACE_BACK = "Follows the selected node to its source";
constexpr const char* ORQ_ACTION_MENU_TEXT_NODE_TRACE_FORWARD = "Trace For&ward";
constexpr const char* ORQ_ACTION_STATUSTIP_NODE_TRACE_FORWARD = "Follows the selected node to its destinations";
constexpr const char* ORQ_ACTION_MENU_TEXT_NODE_UNGROUP = "&Ungroup Nodes";
constexpr const char* ORQ_ACTION_STATUSTIP_NODE_UNGROUP = "Ungroups the selected group";
constexpr const char* ORQ_ACTION_MENU_TEXT_NODE_UNHIGHLIGHT = "Remove Highligh&t";
constexpr const char* ORQ_ACTION_STATUSTIP_NODE_UNHIGHLIGHT = "Removes the highlight from the selected nodes";
constexpr const char* ORQ_ACTION_MENU_TEXT_NODE_VIEW_IN_WAVEFORM = "View in &Waveform";
constexpr const char* ORQ_ACTION_STATUSTIP_NODE_VIEW_IN_WAVEFORM = "Shows the node in the waveform viewer";
constexpr const char* ORQ_ACTION_MENU_TEXT_NODE_WATCH = "&Watch";
constexpr const char* ORQ_ACTION_STATUSTIP_NODE_WATCH = "Watches the value of the selected node";
constexpr const char* ORQ_ACTION_MENU_TEXT_NOTIFICATION_CENTER = "&Notification Center...";
constexpr const char* ORQ_ACTION_STATUSTIP_NOTIFICATION_CENTER = "Shows the notifications of the suite";
constexpr const char* ORQ_ACTION_MENU_TEXT_NUMBER_FORMAT_BINARY = "&Binary";
constexpr const char* ORQ_ACTION_STATUSTIP_NUMBER_FORMAT_BINARY = "Shows numbers in binary";
constexpr const char* ORQ_ACTION_MENU_TEXT_NUMBER_FORMAT_DECIMAL = "&Decimal";
constexpr const char* ORQ_ACTION_STATUSTIP_NUMBER_FORMAT_DECIMAL = "Shows numbers in decimal";
constexpr const char* ORQ_ACTION_MENU_TEXT_NUMBER_FORMAT_HEXADECIMAL = "&Hexadecimal";
constexpr const char* ORQ_ACTION_STATUSTIP_NUMBER_FORMAT_HEXADECIMAL = "Shows numbers in hexadecimal";
constexpr const char* ORQ_ACTION_MENU_TEXT_NUMBER_FORMAT_OCTAL = "&Octal";
constexpr const char* ORQ_ACTION_STATUSTIP_NUMBER_FORMAT_OCTAL = "Shows numbers in octal";
constexpr const char* ORQ_ACTION_MENU_TEXT_NUMBER_FORMAT_SIGNED = "&Signed";
constexpr const char* ORQ_ACTION_STATUSTIP_NUMBER_FORMAT_SIGNED = "Shows numbers as signed values";
constexpr const char* ORQ_ACTION_MENU_TEXT_OBJECT_PROPERTIES = "Object &Properties...";
constexpr const char* ORQ_ACTION_STATUSTIP_OBJECT_PROPERTIES = "Shows the properties of the selected object";
constexpr const char* ORQ_ACTION_MENU_TEXT_OFFLINE_DOCUMENTATION = "&Offline Documentation";
constexpr const char* ORQ_ACTION_STATUSTIP_OFFLINE_DOCUMENTATION = "Opens the installed documentation";
constexpr const char* ORQ_ACTION_MENU_TEXT_ON_CHIP_DEBUG = "On-Chip &Debug...";
constexpr const char* ORQ_ACTION_STATUSTIP_ON_CHIP_DEBUG = "Opens the on-chip debugging tools";
constexpr const char* ORQ_ACTION_MENU_TEXT_OPEN = "&Open...";
constexpr const char* ORQ_ACTION_STATUSTIP_OPEN = "Opens an existing file";
constexpr const char* ORQ_ACTION_MENU_TEXT_OPEN_FILE_LOCATION = "Open File &Location";
constexpr const char* ORQ_ACTION_STATUSTIP_OPEN_FILE_LOCATION = "Opens the folder that holds the current file";
constexpr const char* ORQ_ACTION_MENU_TEXT_OPEN_PROJECT = "Open P&roject...";
constexpr const char* ORQ_ACTION_STATUSTIP_OPEN_PROJECT = "Opens an existing project";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_OPEN_PROJECT = "Ctrl+J";
constexpr const char* ORQ_ACTION_MENU_TEXT_OPEN_PROPERTIES = "&Properties...";
constexpr const char* ORQ_ACTION_STATUSTIP_OPEN_PROPERTIES = "Opens up properties dialog";
constexpr const char* ORQ_ACTION_MENU_TEXT_OPEN_RECENT_PROJECT = "Open Re&cent Project";
constexpr const char* ORQ_ACTION_STATUSTIP_OPEN_RECENT_PROJECT = "Opens a recently used project";
constexpr const char* ORQ_ACTION_MENU_TEXT_OPTIMIZE_DESIGN = "Optimi&ze Design";
constexpr const char* ORQ_ACTION_STATUSTIP_OPTIMIZE_DESIGN = "Runs logic optimization on the design";
constexpr const char* ORQ_ACTION_MENU_TEXT_OPTIONS = "&Options...";
constexpr const char* ORQ_ACTION_STATUSTIP_OPTIONS = "Sets the options of the program";
constexpr const char* ORQ_ACTION_MENU_TEXT_OUTPUT_FILES = "O&utput Files";
constexpr const char* ORQ_ACTION_STATUSTIP_OUTPUT_FILES = "Shows the files the compilation wrote";
constexpr const char* ORQ_ACTION_MENU_TEXT_PAGE_SETUP = "Page Set&up...";
constexpr const char* ORQ_ACTION_STATUSTIP_PAGE_SETUP = "Sets margins, page orientation, and other layout options";
constexpr const char* ORQ_ACTION_MENU_TEXT_PAN_TOOL = "Hand Tool";
constexpr const char* ORQ_ACTION_STATUSTIP_PAN_TOOL = "Grab the document to pan side to side or up and down";
constexpr const char* ORQ_ACTION_MENU_TEXT_PASTE = "&Paste";
constexpr const char* ORQ_ACTION_STATUSTIP_PASTE = "Inserts the contents of the Clipboard";
constexpr const char* ORQ_ACTION_MENU_TEXT_PASTE_SPECIAL = "Paste &Special...";
constexpr const char* ORQ_ACTION_STATUSTIP_PASTE_SPECIAL = "Inserts the contents of the Clipboard in a chosen format";
constexpr const char* ORQ_ACTION_MENU_TEXT_PAUSE_SIMULATION = "&Pause Simulation";
constexpr const char* ORQ_ACTION_STATUSTIP_PAUSE_SIMULATION = "Pauses the simulation";
constexpr const char* ORQ_ACTION_MENU_TEXT_PERFORMANCE_PROFILER = "Performance &Profiler";
constexpr const char* ORQ_ACTION_STATUSTIP_PERFORMANCE_PROFILER = "Shows where the compilation spends its time";
constexpr const char* ORQ_ACTION_MENU_TEXT_PHYSICAL_VIEW = "P&hysical View";
constexpr const char* ORQ_ACTION_STATUSTIP_PHYSICAL_VIEW = "Shows the physical placement of the selection";
constexpr const char* ORQ_ACTION_MENU_TEXT_PIN_PLANNER = "&Pin Planner";
constexpr const char* ORQ_ACTION_STATUSTIP_PIN_PLANNER = "Opens the pin planner";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_PIN_PLANNER = "Ctrl+Shift+P";
constexpr const char* ORQ_ACTION_MENU_TEXT_PKG_ASSIGN_DIFFERENTIAL_PAIR = "Assign &Differential Pair";
constexpr const char* ORQ_ACTION_STATUSTIP_PKG_ASSIGN_DIFFERENTIAL_PAIR = "Assigns the two selected pins as a pair";
constexpr const char* ORQ_ACTION_MENU_TEXT_PKG_SHOW_BANKS = "Show I/O &Banks";
constexpr const char* ORQ_ACTION_STATUSTIP_PKG_SHOW_BANKS = "Colours the pins by I/O bank";
constexpr const char* ORQ_ACTION_MENU_TEXT_PKG_SHOW_BOTTOM_VIEW = "Show &Bottom View";
constexpr const char* ORQ_ACTION_STATUSTIP_PKG_SHOW_BOTTOM_VIEW = "Shows the package from below";
constexpr const char* ORQ_ACTION_MENU_TEXT_PKG_SHOW_DIFFERENTIAL_PAIRS = "Show Differential &Pairs";
constexpr const char* ORQ_ACTION_STATUSTIP_PKG_SHOW_DIFFERENTIAL_PAIRS = "Shows the differential pin pairs";
constexpr const char* ORQ_ACTION_MENU_TEXT_PKG_SHOW_TOP_VIEW = "Show &Top View";
constexpr const char* ORQ_ACTION_STATUSTIP_PKG_SHOW_TOP_VIEW = "Shows the package from above";
constexpr const char* ORQ_ACTION_MENU_TEXT_PKG_SHOW_VREF_GROUPS = "Show &VREF Groups";
constexpr const char* ORQ_ACTION_STATUSTIP_PKG_SHOW_VREF_GROUPS = "Shows the voltage reference groups";
constexpr const char* ORQ_ACTION_MENU_TEXT_PKG_SWAP_PINS = "&Swap Pins";
constexpr const char* ORQ_ACTION_STATUSTIP_PKG_SWAP_PINS = "Swaps the assignments of the two selected pins";
constexpr const char* ORQ_ACTION_MENU_TEXT_PLACE_BLOCK = "&Place Block";
constexpr const char* ORQ_ACTION_STATUSTIP_PLACE_BLOCK = "Places the selected block at the pointer";
constexpr const char* ORQ_ACTION_MENU_TEXT_PLACE_PIN = "Place P&in";
constexpr const char* ORQ_ACTION_STATUSTIP_PLACE_PIN = "Places the selected pin at the pointer";
constexpr const char* ORQ_ACTION_MENU_TEXT_PLACE_REGION = "Place &Region";
constexpr const char* ORQ_ACTION_STATUSTIP_PLACE_REGION = "Places the selected region at the pointer";
constexpr const char* ORQ_ACTION_MENU_TEXT_PORT_PROPERTIES = "P&ort Properties...";
constexpr const char* ORQ_ACTION_STATUSTIP_PORT_PROPERTIES = "Shows the properties of the selected port";
constexpr const char* ORQ_ACTION_MENU_TEXT_POWER_ANALYZER = "Power &Analyzer";
constexpr const char* ORQ_ACTION_STATUSTIP_POWER_ANALYZER = "Opens the power analyzer";
constexpr const char* ORQ_ACTION_MENU_TEXT_PRESERVE_REGISTERS = "Preserve &Registers";
constexpr const char* ORQ_ACTION_STATUSTIP_PRESERVE_REGISTERS = "Keeps the selected registers through optimization";
constexpr const char* ORQ_ACTION_MENU_TEXT_PREVIOUS_EDGE = "Previous &Edge";
constexpr const char* ORQ_ACTION_STATUSTIP_PREVIOUS_EDGE = "Moves the cursor to the previous edge of the signal";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_PREVIOUS_EDGE = "Shift+Tab";
constexpr const char* ORQ_ACTION_MENU_TEXT_PREVIOUS_ERROR = "Previous E&rror";
constexpr const char* ORQ_ACTION_STATUSTIP_PREVIOUS_ERROR = "Goes to the previous error in the file";
constexpr const char* ORQ_ACTION_MENU_TEXT_PREVIOUS_PAGE = "&Previous Page";
constexpr const char* ORQ_ACTION_STATUSTIP_PREVIOUS_PAGE = "Goes to the previous page";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_PREVIOUS_PAGE = "Ctrl+Page Up";
constexpr const char* ORQ_ACTION_MENU_TEXT_PREVIOUS_TAB = "Previous &Tab";
constexpr const char* ORQ_ACTION_STATUSTIP_PREVIOUS_TAB = "Shows the previous tab";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_PREVIOUS_TAB = "Ctrl+Shift+Tab";
constexpr const char* ORQ_ACTION_MENU_TEXT_PREVIOUS_TRANSITION = "Previous T&ransition";
constexpr const char* ORQ_ACTION_STATUSTIP_PREVIOUS_TRANSITION = "Moves the cursor to the previous transition of the bus";
constexpr const char* ORQ_ACTION_MENU_TEXT_PRINT = "&Print...";
constexpr const char* ORQ_ACTION_STATUSTIP_PRINT = "Prints the current file";
constexpr const char* ORQ_ACTION_MENU_TEXT_PRINT_ALL = "Print &All...";
constexpr const char* ORQ_ACTION_STATUSTIP_PRINT_ALL = "Prints every open file";
constexpr const char* ORQ_ACTION_MENU_TEXT_PRINT_CURRENT_VIEW = "Print Current &View...";
constexpr const char* ORQ_ACTION_STATUSTIP_PRINT_CURRENT_VIEW = "Prints what the view shows";
constexpr const char* ORQ_ACTION_MENU_TEXT_PRINT_PREVIEW = "Print Pre&view";
constexpr const char* ORQ_ACTION_STATUSTIP_PRINT_PREVIEW = "Shows how a file will look when it is printed";
constexpr const char* ORQ_ACTION_MENU_TEXT_PRINT_SELECTION = "Print &Selection...";
constexpr const char* ORQ_ACTION_STATUSTIP_PRINT_SELECTION = "Prints the selected objects";
constexpr const char* ORQ_ACTION_MENU_TEXT_PROGRAMMER = "Pro&grammer";
constexpr const char* ORQ_ACTION_STATUSTIP_PROGRAMMER = "Opens the device programmer";
constexpr const char* ORQ_ACTION_MENU_TEXT_PROGRAM_DEVICE = "Program &Device";
constexpr const char* ORQ_ACTION_STATUSTIP_PROGRAM_DEVICE = "Programs the device with the current file";
constexpr const char* ORQ_ACTION_MENU_TEXT_PROJECT_ADD_FILES = "Add &Files...";
constexpr const char* ORQ_ACTION_STATUSTIP_PROJECT_ADD_FILES = "Adds files to the project";
constexpr const char* ORQ_ACTION_MENU_TEXT_PROJECT_CLEAN = "&Clean Project...";
constexpr const char* ORQ_ACTION_STATUSTIP_PROJECT_CLEAN = "Removes the files the compilation wrote";
constexpr const char* ORQ_ACTION_MENU_TEXT_PROJECT_COPY = "Cop&y Project...";
constexpr const char* ORQ_ACTION_STATUSTIP_PROJECT_COPY = "Copies the project to another folder";
constexpr const char* ORQ_ACTION_MENU_TEXT_PROJECT_NAVIGATOR = "Project &Navigator";
constexpr const char* ORQ_ACTION_STATUSTIP_PROJECT_NAVIGATOR = "Shows the files and hierarchy of the project";
constexpr const char* ORQ_ACTION_MENU_TEXT_PROJECT_REMOVE_FILE = "&Remove File";
constexpr const char* ORQ_ACTION_STATUSTIP_PROJECT_REMOVE_FILE = "Removes the selected file from the project";
constexpr const char* ORQ_ACTION_MENU_TEXT_PROJECT_RESTORE_ARCHIVE = "Restore &Archived Project...";
constexpr const char* ORQ_ACTION_STATUSTIP_PROJECT_RESTORE_ARCHIVE = "Restores a project from an archive";
constexpr const char* ORQ_ACTION_MENU_TEXT_PROJECT_REVISIONS = "Re&visions...";
constexpr const char* ORQ_ACTION_STATUSTIP_PROJECT_REVISIONS = "Manages the revisions of the project";
constexpr const char* ORQ_ACTION_MENU_TEXT_PROJECT_SETTINGS = "Project &Settings...";
constexpr const char* ORQ_ACTION_STATUSTIP_PROJECT_SETTINGS = "Sets the options of the project";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_PROJECT_SETTINGS = "Ctrl+Shift+X";
constexpr const char* ORQ_ACTION_MENU_TEXT_PROJECT_SET_AS_TOP_LEVEL = "Set as &Top-Level Entity";
constexpr const char* ORQ_ACTION_STATUSTIP_PROJECT_SET_AS_TOP_LEVEL = "Makes the selected entity the top of the design";
constexpr const char* ORQ_ACTION_MENU_TEXT_PROJECT_SHOW_FILES = "Show &Files";
constexpr const char* ORQ_ACTION_STATUSTIP_PROJECT_SHOW_FILES = "Shows the files of the project";
constexpr const char* ORQ_ACTION_MENU_TEXT_PROJECT_SHOW_HIERARCHY = "Show &Hierarchy";
constexpr const char* ORQ_ACTION_STATUSTIP_PROJECT_SHOW_HIERARCHY = "Shows the design hierarchy of the project";
constexpr const char* ORQ_ACTION_MENU_TEXT_PROMOTE_ASSIGNMENTS = "Pro&mote Assignments";
constexpr const char* ORQ_ACTION_STATUSTIP_PROMOTE_ASSIGNMENTS = "Promotes instance assignments to the top level";
constexpr const char* ORQ_ACTION_MENU_TEXT_PROPAGATE_CONSTRAINTS = "Propa&gate Constraints";
constexpr const char* ORQ_ACTION_STATUSTIP_PROPAGATE_CONSTRAINTS = "Propagates the constraints through the hierarchy";
constexpr const char* ORQ_ACTION_MENU_TEXT_PWR_EARLY_ESTIMATE = "&Early Power Estimate...";
constexpr const char* ORQ_ACTION_STATUSTIP_PWR_EARLY_ESTIMATE = "Estimates the power before compilation";
constexpr const char* ORQ_ACTION_MENU_TEXT_VANTOR_HELP = "&Help Topics";
constexpr const char* ORQ_ACTION_STATUSTIP_VANTOR_HELP = "Displays program help topics";
constexpr const char* ORQ_ACTION_TOOLTIP_VANTOR_HELP = "Help Topics";
constexpr const char* ORQ_ACTION_MENU_TEXT_PWR_LOAD_ACTIVITY_FILE = "Load &Activity File...";
constexpr const char* ORQ_ACTION_STATUSTIP_PWR_LOAD_ACTIVITY_FILE = "Loads signal activity for the power analysis";
constexpr const char* ORQ_ACTION_MENU_TEXT_PWR_SHOW_RAIL_SUMMARY = "Show &Rail Summary";
constexpr const char* ORQ_ACTION_STATUSTIP_PWR_SHOW_RAIL_SUMMARY = "Shows the power of each supply rail";
constexpr const char* ORQ_ACTION_MENU_TEXT_PWR_SHOW_THERMAL_MAP = "Show &Thermal Map";
constexpr const char* ORQ_ACTION_STATUSTIP_PWR_SHOW_THERMAL_MAP = "Shows the estimated temperature of the die";
constexpr const char* ORQ_ACTION_MENU_TEXT_QUICK_ACCESS = "&Quick Access...";
constexpr const char* ORQ_ACTION_STATUSTIP_QUICK_ACCESS = "Searches the commands by name";
constexpr const char* ORQ_ACTION_MENU_TEXT_READ_ONLY = "&Read Only";
constexpr const char* ORQ_ACTION_STATUSTIP_READ_ONLY = "Protects the current file from changes";
constexpr const char* ORQ_ACTION_MENU_TEXT_RECENT_FILES = "Recent &Files";
constexpr const char* ORQ_ACTION_STATUSTIP_RECENT_FILES = "Shows the recently used files";
constexpr const char* ORQ_ACTION_MENU_TEXT_RECENT_PROJECTS = "Recent Pro&jects";
constexpr const char* ORQ_ACTION_STATUSTIP_RECENT_PROJECTS = "Shows the recently used projects";
constexpr const char* ORQ_ACTION_MENU_TEXT_RECOMPILE = "Reco&mpile";
constexpr const char* ORQ_ACTION_STATUSTIP_RECOMPILE = "Compiles the changed parts of the design";
constexpr const char* ORQ_ACTION_MENU_TEXT_RECOVER_DATABASE = "Recover &Database...";
constexpr const char* ORQ_ACTION_STATUSTIP_RECOVER_DATABASE = "Repairs a damaged compilation database";
constexpr const char* ORQ_ACTION_MENU_TEXT_REDO = "&Redo";
constexpr const char* ORQ_ACTION_STATUSTIP_REDO = "Reverses the last Undo";
constexpr const char* ORQ_ACTION_MENU_TEXT_REDO_ALL = "Redo A&ll";
constexpr const char* ORQ_ACTION_STATUSTIP_REDO_ALL = "Repeats every undone action";
constexpr const char* ORQ_ACTION_MENU_TEXT_REDRAW = "Re&draw";
constexpr const char* ORQ_ACTION_STATUSTIP_REDRAW = "Draws the view again";
constexpr const char* ORQ_ACTION_MENU_TEXT_REFRESH = "&Refresh";
constexpr const char* ORQ_ACTION_STATUSTIP_REFRESH = "Refreshes the current view";
constexpr const char* ORQ_ACTION_MENU_TEXT_REFRESH_ALL = "Refresh &All";
constexpr const char* ORQ_ACTION_STATUSTIP_REFRESH_ALL = "Refreshes every open view";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_REFRESH_ALL = "Ctrl+F5";
constexpr const char* ORQ_ACTION_MENU_TEXT_REGENERATE_FLOORPLAN = "Re&generate Floorplan";
constexpr const char* ORQ_ACTION_STATUSTIP_REGENERATE_FLOORPLAN = "Generates the floorplan again";
constexpr const char* ORQ_ACTION_MENU_TEXT_REGION_PROPERTIES = "Region &Properties...";
constexpr const char* ORQ_ACTION_STATUSTIP_REGION_PROPERTIES = "Shows the properties of the selected region";
constexpr const char* ORQ_ACTION_MENU_TEXT_RELOAD_FILE = "Re&load File";
constexpr const char* ORQ_ACTION_STATUSTIP_RELOAD_FILE = "Reads the current file again from disk";
constexpr const char* ORQ_ACTION_MENU_TEXT_REMOVE_ALL_BREAKPOINTS = "Remove &All Breakpoints";
constexpr const char* ORQ_ACTION_STATUSTIP_REMOVE_ALL_BREAKPOINTS = "Removes every breakpoint";
constexpr const char* ORQ_ACTION_MENU_TEXT_REMOVE_ASSIGNMENT = "&Remove Assignment";
constexpr const char* ORQ_ACTION_STATUSTIP_REMOVE_ASSIGNMENT = "Removes the selected assignments";
constexpr const char* ORQ_ACTION_MENU_TEXT_REMOVE_FROM_PROJECT = "Remove from &Project";
constexpr const char* ORQ_ACTION_STATUSTIP_REMOVE_FROM_PROJECT = "Removes the current file from the project";
constexpr const char* ORQ_ACTION_MENU_TEXT_REMOVE_SIGNAL = "Remove &Signal";
constexpr const char* ORQ_ACTION_STATUSTIP_REMOVE_SIGNAL = "Removes the selected signals from the waveform";
constexpr const char* ORQ_ACTION_MENU_TEXT_RENAME = "Re&name...";
constexpr const char* ORQ_ACTION_STATUSTIP_RENAME = "Renames the selection";
constexpr const char* ORQ_ACTION_MENU_TEXT_REOPEN_LAST_CLOSED = "Reopen &Last Closed";
constexpr const char* ORQ_ACTION_STATUSTIP_REOPEN_LAST_CLOSED = "Opens the file that was closed last";
constexpr const char* ORQ_ACTION_MENU_TEXT_REPLACE = "Re&place...";
constexpr const char* ORQ_ACTION_STATUSTIP_REPLACE = "Replaces the selection with another object";
constexpr const char* ORQ_ACTION_MENU_TEXT_REPORT_CLOCKS = "Report &Clocks";
constexpr const char* ORQ_ACTION_STATUSTIP_REPORT_CLOCKS = "Reports the clocks of the design";
constexpr const char* ORQ_ACTION_MENU_TEXT_REPORT_DATASHEET = "Report &Datasheet";
constexpr const char* ORQ_ACTION_STATUSTIP_REPORT_DATASHEET = "Reports setup, hold and clock-to-output times";
constexpr const char* ORQ_ACTION_MENU_TEXT_REPORT_FMAX = "Report &Fmax";
constexpr const char* ORQ_ACTION_STATUSTIP_REPORT_FMAX = "Reports the maximum frequency of each clock";
constexpr const char* ORQ_ACTION_MENU_TEXT_REPORT_PATH = "Report &Path...";
constexpr const char* ORQ_ACTION_STATUSTIP_REPORT_PATH = "Reports the timing of a path";
constexpr const char* ORQ_ACTION_MENU_TEXT_REPORT_RESOURCE_USAGE = "Report &Resource Usage";
constexpr const char* ORQ_ACTION_STATUSTIP_REPORT_RESOURCE_USAGE = "Reports the resources the design uses";
constexpr const char* ORQ_ACTION_MENU_TEXT_REPORT_TIMING = "Report &Timing...";
constexpr const char* ORQ_ACTION_STATUSTIP_REPORT_TIMING = "Reports the timing of the worst paths";
constexpr const char* ORQ_ACTION_MENU_TEXT_REPORT_UNCONSTRAINED_PATHS = "Report &Unconstrained Paths";
constexpr const char* ORQ_ACTION_STATUSTIP_REPORT_UNCONSTRAINED_PATHS = "Reports the paths that no constraint covers";
constexpr const char* ORQ_ACTION_MENU_TEXT_RERUN_ANALYSIS = "Re&run Analysis";
constexpr const char* ORQ_ACTION_STATUSTIP_RERUN_ANALYSIS = "Runs the last analysis again";
constexpr const char* ORQ_ACTION_MENU_TEXT_RESET_LAYOUT = "&Reset Layout";
constexpr const char* ORQ_ACTION_STATUSTIP_RESET_LAYOUT = "Restores the default arrangement of windows";
constexpr const char* ORQ_ACTION_MENU_TEXT_RESET_VIEW = "Reset &View";
constexpr const char* ORQ_ACTION_STATUSTIP_RESET_VIEW = "Restores the default view settings";
constexpr const char* ORQ_ACTION_MENU_TEXT_RESET_ZOOM = "Reset &Zoom";
constexpr const char* ORQ_ACTION_STATUSTIP_RESET_ZOOM = "Shows the view at 100 percent";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_RESET_ZOOM = "Ctrl+0";
constexpr const char* ORQ_ACTION_MENU_TEXT_RESTART_SIMULATION = "Re&start Simulation";
constexpr const char* ORQ_ACTION_STATUSTIP_RESTART_SIMULATION = "Restarts the simulation from time zero";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_RESTART_SIMULATION = "Ctrl+Shift+F2";
constexpr const char* ORQ_ACTION_MENU_TEXT_RESTORE_DEFAULTS = "Restore &Defaults";
constexpr const char* ORQ_ACTION_STATUSTIP_RESTORE_DEFAULTS = "Restores the default settings";
constexpr const char* ORQ_ACTION_MENU_TEXT_RESTORE_WINDOW = "Restore &Window";
constexpr const char* ORQ_ACTION_STATUSTIP_RESTORE_WINDOW = "Restores the active window to its normal size";
constexpr const char* ORQ_ACTION_MENU_TEXT_RESUME_SIMULATION = "Resu&me Simulation";
constexpr const char* ORQ_ACTION_STATUSTIP_RESUME_SIMULATION = "Resumes the paused simulation";
constexpr const char* ORQ_ACTION_MENU_TEXT_REVERT_FILE = "Re&vert File";
constexpr const char* ORQ_ACTION_STATUSTIP_REVERT_FILE = "Discards the changes to the current file";
constexpr const char* ORQ_ACTION_MENU_TEXT_ROTATE_CLOCKWISE = "Rotate Cloc&kwise";
constexpr const char* ORQ_ACTION_STATUSTIP_ROTATE_CLOCKWISE = "Rotates the selection clockwise";
constexpr const char* ORQ_ACTION_MENU_TEXT_ROTATE_COUNTERCLOCKWISE = "Rotate Counterclock&wise";
constexpr const char* ORQ_ACTION_STATUSTIP_ROTATE_COUNTERCLOCKWISE = "Rotates the selection counterclockwise";
constexpr const char* ORQ_ACTION_MENU_TEXT_RPT_COLLAPSE_SECTIONS = "&Collapse Sections";
constexpr const char* ORQ_ACTION_STATUSTIP_RPT_COLLAPSE_SECTIONS = "Collapses every section of the report";
constexpr const char* ORQ_ACTION_MENU_TEXT_RPT_EXPAND_SECTIONS = "&Expand Sections";
constexpr const char* ORQ_ACTION_STATUSTIP_RPT_EXPAND_SECTIONS = "Expands every section of the report";
constexpr const char* ORQ_ACTION_MENU_TEXT_RPT_SAVE_TABLE = "&Save Table...";
constexpr const char* ORQ_ACTION_STATUSTIP_RPT_SAVE_TABLE = "Saves the selected report table to a file";
constexpr const char* ORQ_ACTION_MENU_TEXT_RTL_VIEWER = "RT&L Viewer";
constexpr const char* ORQ_ACTION_STATUSTIP_RTL_VIEWER = "Opens the netlist viewer on the elaborated design";
constexpr const char* ORQ_ACTION_MENU_TEXT_RULER = "R&uler";
constexpr const char* ORQ_ACTION_STATUSTIP_RULER = "Shows or hides the ruler";
constexpr const char* ORQ_ACTION_MENU_TEXT_RUN_ALL = "Run &All";
constexpr const char* ORQ_ACTION_STATUSTIP_RUN_ALL = "Runs the simulation until it ends";
constexpr const char* ORQ_ACTION_MENU_TEXT_RUN_SCRIPT = "Run &Script...";
constexpr const char* ORQ_ACTION_STATUSTIP_RUN_SCRIPT = "Runs a Tcl script";
constexpr const char* ORQ_ACTION_MENU_TEXT_RUN_TO_CURSOR = "Run to &Cursor";
constexpr const char* ORQ_ACTION_STATUSTIP_RUN_TO_CURSOR = "Runs the simulation to the cursor";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_RUN_TO_CURSOR = "Ctrl+F10";
constexpr const char* ORQ_ACTION_MENU_TEXT_SAMPLE_NOW = "Sample &Now";
constexpr const char* ORQ_ACTION_STATUSTIP_SAMPLE_NOW = "Takes one sample of the signals now";
constexpr const char* ORQ_ACTION_MENU_TEXT_SAVE = "&Save";
constexpr const char* ORQ_ACTION_STATUSTIP_SAVE = "Saves the current file";
constexpr const char* ORQ_ACTION_MENU_TEXT_SAVE_ALL = "Save All";
constexpr const char* ORQ_ACTION_STATUSTIP_SAVE_ALL = "Saves all open files";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_SAVE_ALL = "Ctrl+Shift+S";
constexpr const char* ORQ_ACTION_MENU_TEXT_SAVE_AS = "Save &As...";
constexpr const char* ORQ_ACTION_STATUSTIP_SAVE_AS = "Saves the current file with a new name";
constexpr const char* ORQ_ACTION_MENU_TEXT_SAVE_COPY_AS = "Save a &Copy As...";
constexpr const char* ORQ_ACTION_STATUSTIP_SAVE_COPY_AS = "Saves a copy of the current file under another name";
constexpr const char* ORQ_ACTION_MENU_TEXT_SAVE_PROJECT = "Save &Project";
constexpr const char* ORQ_ACTION_STATUSTIP_SAVE_PROJECT = "Saves the project settings";
constexpr const char* ORQ_ACTION_MENU_TEXT_SAVE_SESSION = "Save &Session...";
constexpr const char* ORQ_ACTION_STATUSTIP_SAVE_SESSION = "Saves the open windows for later";
constexpr const char* ORQ_ACTION_MENU_TEXT_SCREENSHOT = "Screens&hot...";
constexpr const char* ORQ_ACTION_STATUSTIP_SCREENSHOT = "Saves an image of the window";
constexpr const char* ORQ_ACTION_MENU_TEXT_SCROLL_TO_CURSOR = "Scroll to &Cursor";
constexpr const char* ORQ_ACTION_STATUSTIP_SCROLL_TO_CURSOR = "Scrolls the view so that the cursor shows";
constexpr const char* ORQ_ACTION_MENU_TEXT_SEARCH_HELP = "Search &Help...";
constexpr const char* ORQ_ACTION_STATUSTIP_SEARCH_HELP = "Searches the help";
constexpr const char* ORQ_ACTION_MENU_TEXT_SEARCH_IN_FILES = "Search in &Files...";
constexpr const char* ORQ_ACTION_STATUSTIP_SEARCH_IN_FILES = "Searches for text in the files of the project";
constexpr const char* ORQ_ACTION_MENU_TEXT_SELECTED_ONLY = "&Selected Only";
constexpr const char* ORQ_ACTION_STATUSTIP_SELECTED_ONLY = "Shows only the selected objects";
constexpr const char* ORQ_ACTION_MENU_TEXT_SELECTION_FILTER = "Selection &Filter...";
constexpr const char* ORQ_ACTION_STATUSTIP_SELECTION_FILTER = "Chooses which kinds of objects can be selected";
constexpr const char* ORQ_ACTION_MENU_TEXT_SELECTION_TOOL = "Selection Tool";
constexpr const char* ORQ_ACTION_STATUSTIP_SELECTION_TOOL = "Selects objects and text";
constexpr const char* ORQ_ACTION_MENU_TEXT_SELECT_ALL = "Select &All";
constexpr const char* ORQ_ACTION_STATUSTIP_SELECT_ALL = "Selects everything in the file";
constexpr const char* ORQ_ACTION_MENU_TEXT_SELECT_ALL_NETS = "Select All &Nets";
constexpr const char* ORQ_ACTION_STATUSTIP_SELECT_ALL_NETS = "Selects every net";
constexpr const char* ORQ_ACTION_MENU_TEXT_SELECT_CONNECTED = "Select &Connected";
constexpr const char* ORQ_ACTION_STATUSTIP_SELECT_CONNECTED = "Selects the objects connected to the selection";
constexpr const char* ORQ_ACTION_MENU_TEXT_SELECT_DRIVERS = "Select &Drivers";
constexpr const char* ORQ_ACTION_STATUSTIP_SELECT_DRIVERS = "Selects the drivers of the selected nets";
constexpr const char* ORQ_ACTION_MENU_TEXT_SELECT_LOADS = "Select &Loads";
constexpr const char* ORQ_ACTION_STATUSTIP_SELECT_LOADS = "Selects the loads of the selected nets";
constexpr const char* ORQ_ACTION_MENU_TEXT_SELECT_MATCHING = "Select &Matching...";
constexpr const char* ORQ_ACTION_STATUSTIP_SELECT_MATCHING = "Selects the objects whose names match a pattern";
constexpr const char* ORQ_ACTION_MENU_TEXT_SELECT_NEXT = "Select &Next";
constexpr const char* ORQ_ACTION_STATUSTIP_SELECT_NEXT = "Selects the next object";
constexpr const char* ORQ_ACTION_MENU_TEXT_SELECT_PREVIOUS = "Select &Previous";
constexpr const char* ORQ_ACTION_STATUSTIP_SELECT_PREVIOUS = "Selects the previous object";
constexpr const char* ORQ_ACTION_MENU_TEXT_SELECT_SAME_TYPE = "Select Same &Type";
constexpr const char* ORQ_ACTION_STATUSTIP_SELECT_SAME_TYPE = "Selects the objects of the same type";
constexpr const char* ORQ_ACTION_MENU_TEXT_SEND_FEEDBACK = "Send &Feedback...";
constexpr const char* ORQ_ACTION_STATUSTIP_SEND_FEEDBACK = "Sends a comment to the developers of the suite";
constexpr const char* ORQ_ACTION_MENU_TEXT_SESSION_MANAGER = "Session &Manager...";
constexpr const char* ORQ_ACTION_STATUSTIP_SESSION_MANAGER = "Manages the saved sessions";
constexpr const char* ORQ_ACTION_MENU_TEXT_SETTINGS = "&Settings...";
constexpr const char* ORQ_ACTION_STATUSTIP_SETTINGS = "Sets the options of the current tool";
constexpr const char* ORQ_ACTION_MENU_TEXT_SET_ACTIVE_REVISION = "Set &Active Revision";
constexpr const char* ORQ_ACTION_STATUSTIP_SET_ACTIVE_REVISION = "Makes the selected revision the current one";
constexpr const char* ORQ_ACTION_MENU_TEXT_SET_AS_TOP_LEVEL = "Set as &Top Level";
constexpr const char* ORQ_ACTION_STATUSTIP_SET_AS_TOP_LEVEL = "Makes the selection the top level";
constexpr const char* ORQ_ACTION_MENU_TEXT_SET_CURSOR = "Set &Cursor";
constexpr const char* ORQ_ACTION_STATUSTIP_SET_CURSOR = "Moves the cursor to the pointer";
constexpr const char* ORQ_ACTION_MENU_TEXT_SET_ORIGIN = "Set &Origin";
constexpr const char* ORQ_ACTION_STATUSTIP_SET_ORIGIN = "Makes the pointer position the origin";
constexpr const char* ORQ_ACTION_MENU_TEXT_SET_RADIX = "Set &Radix...";
constexpr const char* ORQ_ACTION_STATUSTIP_SET_RADIX = "Chooses how the values of the selected signals are shown";
constexpr const char* ORQ_ACTION_MENU_TEXT_SET_TIME_RANGE = "Set Time &Range...";
constexpr const char* ORQ_ACTION_STATUSTIP_SET_TIME_RANGE = "Sets the time range of the simulation";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_ANNOTATIONS = "&Annotations";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_ANNOTATIONS = "Shows or hides the Annotations window";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_ASSIGNMENTS = "A&ssignments";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_ASSIGNMENTS = "Shows or hides the Assignments window";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_BLOCK_NAMES = "&Block Names";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_BLOCK_NAMES = "Shows or hides the names of the blocks";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_BLOCK_PROPERTIES = "Block &Properties";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_BLOCK_PROPERTIES = "Shows or hides the Block Properties window";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_BOOKMARKS = "&Bookmarks";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_BOOKMARKS = "Shows or hides the Bookmarks window";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_BREAKPOINTS = "Brea&kpoints";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_BREAKPOINTS = "Shows or hides the Breakpoints window";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_CALL_STACK = "Call &Stack";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_CALL_STACK = "Shows or hides the Call Stack window";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_CELL_TYPES = "&Cell Types";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_CELL_TYPES = "Shows or hides the cell type of each block";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_CLOCK_DOMAINS = "Clock &Domains";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_CLOCK_DOMAINS = "Shows or hides the Clock Domains window";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_COMPILATION_DASHBOARD = "Compilation &Dashboard";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_COMPILATION_DASHBOARD = "Shows or hides the Compilation Dashboard window";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_COMPILATION_REPORT = "Compilation &Report";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_COMPILATION_REPORT = "Shows or hides the Compilation Report window";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_SHOW_COMPILATION_REPORT = "Ctrl+Shift+R";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_CONGESTION = "C&ongestion";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_CONGESTION = "Shows or hides the congestion map";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_CONNECTIONS = "&Connections";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_CONNECTIONS = "Shows or hides the connections between objects";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_CONSOLE = "Tcl C&onsole";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_CONSOLE = "Shows or hides the Tcl Console window";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_SHOW_CONSOLE = "Alt+2";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_CONSTRAINTS = "Co&nstraints";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_CONSTRAINTS = "Shows or hides the Constraints window";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_CORE_AREA = "Core &Area";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_CORE_AREA = "Shows or hides the core area";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_CRITICAL_PATHS = "Critical &Paths";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_CRITICAL_PATHS = "Shows or hides the critical paths";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_DESIGN_SUMMARY = "Design &Summary";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_DESIGN_SUMMARY = "Shows or hides the Design Summary window";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_DEVICE = "De&vice";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_DEVICE = "Shows or hides the Device window";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_DIE_OUTLINE = "&Die Outline";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_DIE_OUTLINE = "Shows or hides the outline of the die";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_ERRORS_ONLY = "&Errors Only";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_ERRORS_ONLY = "Shows only the errors";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_FILES = "&Files";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_FILES = "Shows or hides the Files window";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_FLOORPLAN = "&Floorplan";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_FLOORPLAN = "Shows or hides the Floorplan window";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_FULL_NAMES = "F&ull Names";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_FULL_NAMES = "Shows full hierarchical names";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_GRID = "&Grid";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_GRID = "Shows or hides the grid";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_HIERARCHY = "&Hierarchy";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_HIERARCHY = "Shows or hides the Hierarchy window";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_HISTORY = "H&istory";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_HISTORY = "Shows or hides the History window";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_INFO_MESSAGES = "&Info Messages";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_INFO_MESSAGES = "Shows the information messages";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_IO_BANKS = "I/O &Banks";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_IO_BANKS = "Shows or hides the I/O banks";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_IP_CATALOG = "IP &Catalog";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_IP_CATALOG = "Shows or hides the IP Catalog window";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_SHOW_IP_CATALOG = "Alt+3";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_KEEPOUTS = "&Keepouts";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_KEEPOUTS = "Shows or hides the keepout areas";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_LAYERS = "La&yers";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_LAYERS = "Shows or hides the Layers window";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_LIBRARIES = "Li&braries";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_LIBRARIES = "Shows or hides the Libraries window";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_LOG = "&Log";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_LOG = "Shows or hides the Log window";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_MEMORY = "&Memory";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_MEMORY = "Shows or hides the Memory window";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_MESSAGES = "&Messages";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_MESSAGES = "Shows or hides the Messages window";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_SHOW_MESSAGES = "Alt+1";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_MINIMAP = "&Minimap";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_MINIMAP = "Shows or hides the Minimap window";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_NET_NAMES = "&Net Names";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_NET_NAMES = "Shows or hides the names of the nets";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_NODE_FINDER = "Node &Finder";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_NODE_FINDER = "Shows or hides the Node Finder window";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_NODE_LIST = "Node L&ist";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_NODE_LIST = "Shows or hides the Node List window";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_OUTPUT = "O&utput";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_OUTPUT = "Shows or hides the Output window";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_PACKAGE_VIEW = "&Package View";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_PACKAGE_VIEW = "Shows or hides the Package View window";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_PADS = "P&ads";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_PADS = "Shows or hides the pads";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_PARTITIONS = "Pa&rtitions";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_PARTITIONS = "Shows or hides the Partitions window";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_PIN_NAMES = "Pin &Names";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_PIN_NAMES = "Shows or hides the names of the pins";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_PLACEMENT_GRID = "Placement &Grid";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_PLACEMENT_GRID = "Shows or hides the placement grid";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_PORT_NAMES = "P&ort Names";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_PORT_NAMES = "Shows or hides the names of the ports";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_POWER_RAILS = "Power &Rails";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_POWER_RAILS = "Shows or hides the Power Rails window";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_PROBES = "Pro&bes";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_PROBES = "Shows or hides the Probes window";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_PROJECT_NAVIGATOR = "Project &Navigator";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_PROJECT_NAVIGATOR = "Shows or hides the Project Navigator window";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_SHOW_PROJECT_NAVIGATOR = "Alt+0";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_PROPERTIES = "P&roperties";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_PROPERTIES = "Shows or hides the Properties window";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_REGIONS = "R&egions";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_REGIONS = "Shows or hides the regions";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_REPORTS = "&Reports";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_REPORTS = "Shows or hides the Reports window";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_RESOURCE_USAGE = "Resource &Usage";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_RESOURCE_USAGE = "Shows or hides the Resource Usage window";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_ROUTING = "Ro&uting";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_ROUTING = "Shows or hides the routing";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_RULERS = "&Rulers";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_RULERS = "Shows or hides the rulers";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_SCHEMATIC = "Sc&hematic";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_SCHEMATIC = "Shows or hides the Schematic window";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_SEARCH_RESULTS = "Searc&h Results";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_SEARCH_RESULTS = "Shows or hides the Search Results window";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_SIGNALS = "&Signals";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_SIGNALS = "Shows or hides the Signals window";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_SLACK = "&Slack";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_SLACK = "Shows or hides the slack of each path";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_SOURCE = "So&urce";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_SOURCE = "Shows or hides the Source window";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_STATUS_BAR = "Status &Bar";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_STATUS_BAR = "Shows or hides the status bar";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_TASKS = "&Tasks";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_TASKS = "Shows or hides the Tasks window";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_TIMING_PATHS = "Timing &Paths";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_TIMING_PATHS = "Shows or hides the Timing Paths window";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_TIMING_SUMMARY = "Timing &Summary";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_TIMING_SUMMARY = "Shows or hides the Timing Summary window";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_TOOLBARS = "&Toolbars";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_TOOLBARS = "Shows or hides the tool bars";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_TOOLTIPS = "Tool&tips";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_TOOLTIPS = "Shows or hides tool tips";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_TRANSCRIPT = "T&ranscript";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_TRANSCRIPT = "Shows or hides the Transcript window";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_TRIGGERS = "T&riggers";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_TRIGGERS = "Shows or hides the Triggers window";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_UNUSED_PINS = "U&nused Pins";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_UNUSED_PINS = "Shows or hides the pins that carry no signal";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_VALUES = "&Values";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_VALUES = "Shows or hides the values of the signals";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_WARNINGS_ONLY = "&Warnings Only";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_WARNINGS_ONLY = "Shows only the warnings";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_WATCH = "&Watch";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_WATCH = "Shows or hides the Watch window";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_WAVEFORM = "&Waveform";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_WAVEFORM = "Shows or hides the Waveform window";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHOW_WELCOME_SCREEN = "Welcome &Screen";
constexpr const char* ORQ_ACTION_STATUSTIP_SHOW_WELCOME_SCREEN = "Shows or hides the Welcome Screen window";
constexpr const char* ORQ_ACTION_MENU_TEXT_SHRINK_REGION = "Shrin&k Region";
constexpr const char* ORQ_ACTION_STATUSTIP_SHRINK_REGION = "Shrinks the selected region to its contents";
constexpr const char* ORQ_ACTION_MENU_TEXT_SIGNAL_FINDER = "Signal &Finder...";
constexpr const char* ORQ_ACTION_STATUSTIP_SIGNAL_FINDER = "Searches for signals by name and type";
constexpr const char* ORQ_ACTION_MENU_TEXT_SIGNAL_PROPERTIES = "Signal &Properties...";
constexpr const char* ORQ_ACTION_STATUSTIP_SIGNAL_PROPERTIES = "Shows the properties of the selected signal";
constexpr const char* ORQ_ACTION_MENU_TEXT_SIMULATION_SETTINGS = "Simulation &Settings...";
constexpr const char* ORQ_ACTION_STATUSTIP_SIMULATION_SETTINGS = "Sets the options of the simulation";
constexpr const char* ORQ_ACTION_MENU_TEXT_SIM_ADD_WAVE = "Add to &Wave";
constexpr const char* ORQ_ACTION_STATUSTIP_SIM_ADD_WAVE = "Adds the selected objects to the waveform";
constexpr const char* ORQ_ACTION_MENU_TEXT_SIM_BREAK = "&Break";
constexpr const char* ORQ_ACTION_STATUSTIP_SIM_BREAK = "Stops the simulation at once";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_SIM_BREAK = "Ctrl+Pause";
constexpr const char* ORQ_ACTION_MENU_TEXT_SIM_RESTART = "Re&start";
constexpr const char* ORQ_ACTION_STATUSTIP_SIM_RESTART = "Restarts the simulation";
constexpr const char* ORQ_ACTION_MENU_TEXT_SIM_RUN = "&Run";
constexpr const char* ORQ_ACTION_STATUSTIP_SIM_RUN = "Runs the simulation for one run length";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_SIM_RUN = "F9";
constexpr const char* ORQ_ACTION_MENU_TEXT_SIM_RUN_FOR = "Run &For...";
constexpr const char* ORQ_ACTION_STATUSTIP_SIM_RUN_FOR = "Runs the simulation for a given time";
constexpr const char* ORQ_ACTION_MENU_TEXT_SIM_STEP = "&Step";
constexpr const char* ORQ_ACTION_STATUSTIP_SIM_STEP = "Runs the simulation to the next statement";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_SIM_STEP = "F10";
constexpr const char* ORQ_ACTION_MENU_TEXT_SNAPSHOT_MANAGER = "Snapshot &Manager...";
constexpr const char* ORQ_ACTION_STATUSTIP_SNAPSHOT_MANAGER = "Manages the waveform snapshots";
constexpr const char* ORQ_ACTION_MENU_TEXT_SORT_ASCENDING = "Sort &Ascending";
constexpr const char* ORQ_ACTION_STATUSTIP_SORT_ASCENDING = "Sorts the list from A to Z";
constexpr const char* ORQ_ACTION_MENU_TEXT_SORT_DESCENDING = "Sort &Descending";
constexpr const char* ORQ_ACTION_STATUSTIP_SORT_DESCENDING = "Sorts the list from Z to A";
constexpr const char* ORQ_ACTION_MENU_TEXT_SPLIT_BUS = "S&plit Bus";
constexpr const char* ORQ_ACTION_STATUSTIP_SPLIT_BUS = "Splits the selected bus into its bits";
constexpr const char* ORQ_ACTION_MENU_TEXT_SPLIT_PARTITION = "Split Pa&rtition";
constexpr const char* ORQ_ACTION_STATUSTIP_SPLIT_PARTITION = "Splits the selected partition in two";
constexpr const char* ORQ_ACTION_MENU_TEXT_SPLIT_VIEW_HORIZONTAL = "Split &Horizontally";
constexpr const char* ORQ_ACTION_STATUSTIP_SPLIT_VIEW_HORIZONTAL = "Splits the view into an upper and a lower part";
constexpr const char* ORQ_ACTION_MENU_TEXT_SPLIT_VIEW_VERTICAL = "Split &Vertically";
constexpr const char* ORQ_ACTION_STATUSTIP_SPLIT_VIEW_VERTICAL = "Splits the view into a left and a right part";
constexpr const char* ORQ_ACTION_MENU_TEXT_SRC_AUTOCOMPLETE = "&Autocomplete";
constexpr const char* ORQ_ACTION_STATUSTIP_SRC_AUTOCOMPLETE = "Completes the word at the cursor";
constexpr const char* ORQ_ACTION_MENU_TEXT_SRC_COMMENT_BLOCK = "&Comment Block";
constexpr const char* ORQ_ACTION_STATUSTIP_SRC_COMMENT_BLOCK = "Turns the selected lines into comments";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_SRC_COMMENT_BLOCK = "Ctrl+/";
constexpr const char* ORQ_ACTION_MENU_TEXT_SRC_DUPLICATE_LINE = "D&uplicate Line";
constexpr const char* ORQ_ACTION_STATUSTIP_SRC_DUPLICATE_LINE = "Duplicates the current line";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_SRC_DUPLICATE_LINE = "Ctrl+Shift+D";
constexpr const char* ORQ_ACTION_MENU_TEXT_SRC_GO_TO_MATCHING_BRACKET = "Go to &Matching Bracket";
constexpr const char* ORQ_ACTION_STATUSTIP_SRC_GO_TO_MATCHING_BRACKET = "Moves the cursor to the matching bracket";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_SRC_GO_TO_MATCHING_BRACKET = "Ctrl+]";
constexpr const char* ORQ_ACTION_MENU_TEXT_SRC_INDENT = "&Increase Indent";
constexpr const char* ORQ_ACTION_STATUSTIP_SRC_INDENT = "Indents the selected lines";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_SRC_INDENT = "Ctrl+Shift+I";
constexpr const char* ORQ_ACTION_MENU_TEXT_SRC_INSERT_TEMPLATE = "Insert &Template...";
constexpr const char* ORQ_ACTION_STATUSTIP_SRC_INSERT_TEMPLATE = "Inserts an HDL template";
constexpr const char* ORQ_ACTION_MENU_TEXT_SRC_LOWERCASE = "Make &Lowercase";
constexpr const char* ORQ_ACTION_STATUSTIP_SRC_LOWERCASE = "Turns the selected text into lowercase";
constexpr const char* ORQ_ACTION_MENU_TEXT_SRC_TOGGLE_BOOKMARK = "Toggle &Bookmark";
constexpr const char* ORQ_ACTION_STATUSTIP_SRC_TOGGLE_BOOKMARK = "Sets or removes a bookmark on the current line";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_SRC_TOGGLE_BOOKMARK = "Ctrl+F3";
constexpr const char* ORQ_ACTION_MENU_TEXT_SRC_UNCOMMENT_BLOCK = "&Uncomment Block";
constexpr const char* ORQ_ACTION_STATUSTIP_SRC_UNCOMMENT_BLOCK = "Removes the comment marks from the selected lines";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_SRC_UNCOMMENT_BLOCK = "Ctrl+Shift+/";
constexpr const char* ORQ_ACTION_MENU_TEXT_SRC_UNINDENT = "&Decrease Indent";
constexpr const char* ORQ_ACTION_STATUSTIP_SRC_UNINDENT = "Unindents the selected lines";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_SRC_UNINDENT = "Ctrl+Shift+U";
constexpr const char* ORQ_ACTION_MENU_TEXT_SRC_UPPERCASE = "Make &Uppercase";
constexpr const char* ORQ_ACTION_STATUSTIP_SRC_UPPERCASE = "Turns the selected text into uppercase";
constexpr const char* ORQ_ACTION_MENU_TEXT_START_BITSTREAM_GENERATION = "Start &Bitstream Generation";
constexpr const char* ORQ_ACTION_STATUSTIP_START_BITSTREAM_GENERATION = "Starts generating the bitstream";
constexpr const char* ORQ_ACTION_MENU_TEXT_START_CDC_ANALYSIS = "Start &Clock Domain Crossing Analysis";
constexpr const char* ORQ_ACTION_STATUSTIP_START_CDC_ANALYSIS = "Starts checking the clock domain crossings";
constexpr const char* ORQ_ACTION_MENU_TEXT_START_CLOCK_CHECK = "Start Cloc&k Check";
constexpr const char* ORQ_ACTION_STATUSTIP_START_CLOCK_CHECK = "Starts checking the clock constraints";
constexpr const char* ORQ_ACTION_MENU_TEXT_START_COMPILATION = "Start &Compilation";
constexpr const char* ORQ_ACTION_STATUSTIP_START_COMPILATION = "Starts the full compilation";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_START_COMPILATION = "Ctrl+Shift+L";
constexpr const char* ORQ_ACTION_MENU_TEXT_START_DESIGN_RULE_CHECK = "Start &Design Rule Check";
constexpr const char* ORQ_ACTION_STATUSTIP_START_DESIGN_RULE_CHECK = "Starts the design rule check";
constexpr const char* ORQ_ACTION_MENU_TEXT_START_EARLY_TIMING_ESTIMATE = "Start &Early Timing Estimate";
constexpr const char* ORQ_ACTION_STATUSTIP_START_EARLY_TIMING_ESTIMATE = "Starts estimating the timing before placement";
constexpr const char* ORQ_ACTION_MENU_TEXT_START_ELABORATION = "Start &Elaboration";
constexpr const char* ORQ_ACTION_STATUSTIP_START_ELABORATION = "Starts building the design hierarchy";
constexpr const char* ORQ_ACTION_MENU_TEXT_START_LINT = "Start &Lint";
constexpr const char* ORQ_ACTION_STATUSTIP_START_LINT = "Starts checking the sources for style problems";
constexpr const char* ORQ_ACTION_MENU_TEXT_START_NETLIST_EXPORT = "Start &Netlist Export";
constexpr const char* ORQ_ACTION_STATUSTIP_START_NETLIST_EXPORT = "Starts writing the netlists for other tools";
constexpr const char* ORQ_ACTION_MENU_TEXT_START_PARTITION_PLANNER = "Start &Partition Planner";
constexpr const char* ORQ_ACTION_STATUSTIP_START_PARTITION_PLANNER = "Opens the partition planner";
constexpr const char* ORQ_ACTION_TCL_FUNCTION_START_PARTITION_PLANNER = "::vantor::partition_planner::start";
constexpr const char* ORQ_ACTION_MENU_TEXT_START_PHYSICAL_OPTIMIZATION = "Start P&hysical Optimization";
constexpr const char* ORQ_ACTION_STATUSTIP_START_PHYSICAL_OPTIMIZATION = "Starts optimizing the placed design";
constexpr const char* ORQ_ACTION_MENU_TEXT_START_PIN_CHECK = "Start P&in Check";
constexpr const char* ORQ_ACTION_STATUSTIP_START_PIN_CHECK = "Starts checking the pin assignments";
constexpr const char* ORQ_ACTION_MENU_TEXT_START_PLACEMENT = "Start &Placement";
constexpr const char* ORQ_ACTION_STATUSTIP_START_PLACEMENT = "Starts placing the design";
constexpr const char* ORQ_ACTION_MENU_TEXT_START_POWER_ANALYSIS = "Start Po&wer Analysis";
constexpr const char* ORQ_ACTION_STATUSTIP_START_POWER_ANALYSIS = "Starts the power analysis";
constexpr const char* ORQ_ACTION_MENU_TEXT_START_RETIMING = "Start &Retiming";
constexpr const char* ORQ_ACTION_STATUSTIP_START_RETIMING = "Starts moving registers to balance the paths";
constexpr const char* ORQ_ACTION_MENU_TEXT_START_ROUTING = "Start Ro&uting";
constexpr const char* ORQ_ACTION_STATUSTIP_START_ROUTING = "Starts routing the design";
constexpr const char* ORQ_ACTION_MENU_TEXT_START_SYNTHESIS = "Start &Synthesis";
constexpr const char* ORQ_ACTION_STATUSTIP_START_SYNTHESIS = "Starts synthesizing the design";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_START_SYNTHESIS = "Ctrl+Shift+K";
constexpr const char* ORQ_ACTION_MENU_TEXT_START_TIMING_ANALYSIS = "Start &Timing Analysis";
constexpr const char* ORQ_ACTION_STATUSTIP_START_TIMING_ANALYSIS = "Starts the timing analysis";
constexpr const char* ORQ_ACTION_MENU_TEXT_STATISTICS = "Sta&tistics";
constexpr const char* ORQ_ACTION_STATUSTIP_STATISTICS = "Shows statistics of the design";
constexpr const char* ORQ_ACTION_MENU_TEXT_STATUS_BAR = "Status &Bar";
constexpr const char* ORQ_ACTION_STATUSTIP_STATUS_BAR = "Shows or hides the status bar";
constexpr const char* ORQ_ACTION_MENU_TEXT_STEP_INTO = "Step &Into";
constexpr const char* ORQ_ACTION_STATUSTIP_STEP_INTO = "Steps into the next call";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_STEP_INTO = "F11";
constexpr const char* ORQ_ACTION_MENU_TEXT_STEP_OUT = "Step &Out";
constexpr const char* ORQ_ACTION_STATUSTIP_STEP_OUT = "Steps out of the current call";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_STEP_OUT = "Shift+F11";
constexpr const char* ORQ_ACTION_MENU_TEXT_STEP_OVER = "Step &Over";
constexpr const char* ORQ_ACTION_STATUSTIP_STEP_OVER = "Steps over the next call";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_STEP_OVER = "F10";
constexpr const char* ORQ_ACTION_MENU_TEXT_STOP = "&Stop";
constexpr const char* ORQ_ACTION_STATUSTIP_STOP = "Stops the current task";
constexpr const char* ORQ_ACTION_MENU_TEXT_STOP_ALL = "Stop &All";
constexpr const char* ORQ_ACTION_STATUSTIP_STOP_ALL = "Stops every running task";
constexpr const char* ORQ_ACTION_MENU_TEXT_STOP_COMPILATION = "Stop &Compilation";
constexpr const char* ORQ_ACTION_STATUSTIP_STOP_COMPILATION = "Stops the compilation";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_STOP_COMPILATION = "Ctrl+Shift+Pause";
constexpr const char* ORQ_ACTION_MENU_TEXT_STOP_ON_ERROR = "Stop on &Error";
constexpr const char* ORQ_ACTION_STATUSTIP_STOP_ON_ERROR = "Stops the run at the first error";
constexpr const char* ORQ_ACTION_MENU_TEXT_STOP_SIMULATION = "Stop Si&mulation";
constexpr const char* ORQ_ACTION_STATUSTIP_STOP_SIMULATION = "Stops the simulation";
constexpr const char* ORQ_ACTION_MENU_TEXT_SUMMARY_REPORT = "Summary &Report";
constexpr const char* ORQ_ACTION_STATUSTIP_SUMMARY_REPORT = "Shows the summary of the results";
constexpr const char* ORQ_ACTION_MENU_TEXT_SUPPRESSION_MANAGER = "Suppression &Manager...";
constexpr const char* ORQ_ACTION_STATUSTIP_SUPPRESSION_MANAGER = "Manages the message suppression rules";
constexpr const char* ORQ_ACTION_MENU_TEXT_SUPPRESS_ALL_FROM_TOOL = "Suppress All from &Tool";
constexpr const char* ORQ_ACTION_STATUSTIP_SUPPRESS_ALL_FROM_TOOL = "Suppresses every message of the selected tool";
constexpr const char* ORQ_ACTION_MENU_TEXT_SUPPRESS_ALL_IN_HIERARCHY = "Suppress All in &Hierarchy";
constexpr const char* ORQ_ACTION_STATUSTIP_SUPPRESS_ALL_IN_HIERARCHY = "Suppresses the messages of the selected instance and below";
constexpr const char* ORQ_ACTION_MENU_TEXT_SUPPRESS_EXTRA_INFO = "Suppress E&xtra Information";
constexpr const char* ORQ_ACTION_STATUSTIP_SUPPRESS_EXTRA_INFO = "Suppresses extra information messages";
constexpr const char* ORQ_ACTION_MENU_TEXT_SUPPRESS_INFO_MESSAGES = "Suppress &Information";
constexpr const char* ORQ_ACTION_STATUSTIP_SUPPRESS_INFO_MESSAGES = "Suppresses information messages";
constexpr const char* ORQ_ACTION_MENU_TEXT_SUPPRESS_MESSAGES_IN_FILE = "Suppress Messages in &File";
constexpr const char* ORQ_ACTION_STATUSTIP_SUPPRESS_MESSAGES_IN_FILE = "Suppresses the messages of the selected file";
constexpr const char* ORQ_ACTION_MENU_TEXT_SUPPRESS_MESSAGE = "&Suppress Message";
constexpr const char* ORQ_ACTION_STATUSTIP_SUPPRESS_MESSAGE = "Suppresses the selected message";
constexpr const char* ORQ_ACTION_MENU_TEXT_SUPPRESS_MESSAGE_ID = "Suppress Message &ID";
constexpr const char* ORQ_ACTION_STATUSTIP_SUPPRESS_MESSAGE_ID = "Suppresses every message with the selected identifier";
constexpr const char* ORQ_ACTION_MENU_TEXT_SUPPRESS_SIMILAR_MESSAGES = "Suppress Si&milar Messages";
constexpr const char* ORQ_ACTION_STATUSTIP_SUPPRESS_SIMILAR_MESSAGES = "Suppresses messages like the selected one";
constexpr const char* ORQ_ACTION_MENU_TEXT_SUPPRESS_WARNINGS = "Suppress &Warnings";
constexpr const char* ORQ_ACTION_STATUSTIP_SUPPRESS_WARNINGS = "Suppresses warnings";
constexpr const char* ORQ_ACTION_MENU_TEXT_SWAP_NODES = "S&wap Nodes";
constexpr const char* ORQ_ACTION_STATUSTIP_SWAP_NODES = "Swaps the two selected nodes";
constexpr const char* ORQ_ACTION_MENU_TEXT_SWITCH_REVISION = "Switch Re&vision...";
constexpr const char* ORQ_ACTION_STATUSTIP_SWITCH_REVISION = "Opens another revision of the project";
constexpr const char* ORQ_ACTION_MENU_TEXT_SWITCH_TO_GATE_LEVEL = "Switch to &Gate Level";
constexpr const char* ORQ_ACTION_STATUSTIP_SWITCH_TO_GATE_LEVEL = "Shows the gate-level netlist";
constexpr const char* ORQ_ACTION_MENU_TEXT_SWITCH_TO_RTL = "Switch to &RTL";
constexpr const char* ORQ_ACTION_STATUSTIP_SWITCH_TO_RTL = "Shows the RTL netlist";
constexpr const char* ORQ_ACTION_MENU_TEXT_SYMBOL_EDITOR = "S&ymbol Editor";
constexpr const char* ORQ_ACTION_STATUSTIP_SYMBOL_EDITOR = "Opens the symbol editor";
constexpr const char* ORQ_ACTION_MENU_TEXT_SYNCHRONIZE_CURSORS = "Synchronize &Cursors";
constexpr const char* ORQ_ACTION_STATUSTIP_SYNCHRONIZE_CURSORS = "Moves the cursors of all views together";
constexpr const char* ORQ_ACTION_MENU_TEXT_SYNC_VIEWS = "S&ync Views";
constexpr const char* ORQ_ACTION_STATUSTIP_SYNC_VIEWS = "Keeps the views at the same position";
constexpr const char* ORQ_ACTION_MENU_TEXT_SYSTEM_INFO = "System &Information...";
constexpr const char* ORQ_ACTION_STATUSTIP_SYSTEM_INFO = "Shows information about this computer";
constexpr const char* ORQ_ACTION_MENU_TEXT_TABBED_DOCUMENTS = "&Tabbed Documents";
constexpr const char* ORQ_ACTION_STATUSTIP_TABBED_DOCUMENTS = "Shows the documents as tabs";
constexpr const char* ORQ_ACTION_MENU_TEXT_TCL_CONSOLE = "Tcl &Console";
constexpr const char* ORQ_ACTION_STATUSTIP_TCL_CONSOLE = "Opens the Tcl console";
constexpr const char* ORQ_ACTION_MENU_TEXT_TCL_SCRIPTS = "Tcl &Scripts...";
constexpr const char* ORQ_ACTION_STATUSTIP_TCL_SCRIPTS = "Lists and runs Tcl scripts";
constexpr const char* ORQ_ACTION_MENU_TEXT_TECHNOLOGY_MAP_VIEWER = "Technology &Map Viewer";
constexpr const char* ORQ_ACTION_STATUSTIP_TECHNOLOGY_MAP_VIEWER = "Opens the netlist viewer on the mapped design";
constexpr const char* ORQ_ACTION_MENU_TEXT_TEMPLATES = "T&emplates...";
constexpr const char* ORQ_ACTION_STATUSTIP_TEMPLATES = "Manages the templates";
constexpr const char* ORQ_ACTION_MENU_TEXT_TEXT_EDITOR = "Te&xt Editor";
constexpr const char* ORQ_ACTION_STATUSTIP_TEXT_EDITOR = "Opens the text editor";
constexpr const char* ORQ_ACTION_MENU_TEXT_TIE_OFF_UNUSED = "Tie Off &Unused Inputs";
constexpr const char* ORQ_ACTION_STATUSTIP_TIE_OFF_UNUSED = "Connects unused inputs to a constant";
constexpr const char* ORQ_ACTION_MENU_TEXT_TILE = "&Tile";
constexpr const char* ORQ_ACTION_STATUSTIP_TILE = "Arranges all child windows in a tile pattern";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_TILE = "Shift+F4";
constexpr const char* ORQ_ACTION_MENU_TEXT_TILE_HORIZONTALLY = "Tile &Horizontally";
constexpr const char* ORQ_ACTION_STATUSTIP_TILE_HORIZONTALLY = "Arranges the child windows side by side";
constexpr const char* ORQ_ACTION_MENU_TEXT_TILE_VERTICALLY = "Tile &Vertically";
constexpr const char* ORQ_ACTION_STATUSTIP_TILE_VERTICALLY = "Arranges the child windows one above the other";
constexpr const char* ORQ_ACTION_MENU_TEXT_TIMING_ANALYZER = "T&iming Analyzer";
constexpr const char* ORQ_ACTION_STATUSTIP_TIMING_ANALYZER = "Opens the timing analyzer";
constexpr const char* ORQ_ACTION_MENU_TEXT_TMV_SHOW_SLACK_HISTOGRAM = "Show Slack &Histogram";
constexpr const char* ORQ_ACTION_STATUSTIP_TMV_SHOW_SLACK_HISTOGRAM = "Shows the distribution of the slack";
constexpr const char* ORQ_ACTION_MENU_TEXT_TOGGLE_BREAKPOINT = "Toggle &Breakpoint";
constexpr const char* ORQ_ACTION_STATUSTIP_TOGGLE_BREAKPOINT = "Sets or removes a breakpoint on the current line";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_TOGGLE_BREAKPOINT = "F9";
constexpr const char* ORQ_ACTION_MENU_TEXT_TRACE_PATH = "Trace &Path";
constexpr const char* ORQ_ACTION_STATUSTIP_TRACE_PATH = "Follows the selected path through the design";
constexpr const char* ORQ_ACTION_MENU_TEXT_TREE_VIEW_FILTER_ALL_MSG = "Highlight search results";
constexpr const char* ORQ_ACTION_STATUSTIP_TREE_VIEW_FILTER_ALL_MSG = "Highlight search results";
constexpr const char* ORQ_ACTION_MENU_TEXT_TREE_VIEW_FILTER_MATCHED_ONLY = "Filter search results";
constexpr const char* ORQ_ACTION_STATUSTIP_TREE_VIEW_FILTER_MATCHED_ONLY = "Filter search results";
constexpr const char* ORQ_ACTION_MENU_TEXT_TREE_VIEW_FILTER_OPTIONS = "Filter &Options...";
constexpr const char* ORQ_ACTION_STATUSTIP_TREE_VIEW_FILTER_OPTIONS = "Sets the options of the tree filter";
constexpr const char* ORQ_ACTION_MENU_TEXT_UNDO = "&Undo";
constexpr const char* ORQ_ACTION_STATUSTIP_UNDO = "Reverses the last action";
constexpr const char* ORQ_ACTION_MENU_TEXT_UNDO_ALL = "Undo A&ll";
constexpr const char* ORQ_ACTION_STATUSTIP_UNDO_ALL = "Reverses every action";
constexpr const char* ORQ_ACTION_MENU_TEXT_UNGROUP = "&Ungroup";
constexpr const char* ORQ_ACTION_STATUSTIP_UNGROUP = "Ungroups the selected group";
constexpr const char* ORQ_ACTION_MENU_TEXT_UNLOCK_ASSIGNMENT = "Unloc&k Assignment";
constexpr const char* ORQ_ACTION_STATUSTIP_UNLOCK_ASSIGNMENT = "Allows changes to the selected assignments";
constexpr const char* ORQ_ACTION_MENU_TEXT_UPDATE_MEMORY_INIT_FILE = "Update &Memory Initialization File";
constexpr const char* ORQ_ACTION_STATUSTIP_UPDATE_MEMORY_INIT_FILE = "Writes new memory contents into the programming file";
constexpr const char* ORQ_ACTION_MENU_TEXT_UPGRADE_IP_CORES = "Upgrade IP &Cores...";
constexpr const char* ORQ_ACTION_STATUSTIP_UPGRADE_IP_CORES = "Upgrades the IP cores of the project";
constexpr const char* ORQ_ACTION_MENU_TEXT_USER_LIBRARIES = "User &Libraries...";
constexpr const char* ORQ_ACTION_STATUSTIP_USER_LIBRARIES = "Sets the folders of user libraries";
constexpr const char* ORQ_ACTION_MENU_TEXT_VANTOR_COMMUNITY_WEB_PAGE = "&Community Forums";
constexpr const char* ORQ_ACTION_STATUSTIP_VANTOR_COMMUNITY_WEB_PAGE = "Opens the community forums in a web browser";
constexpr const char* ORQ_ACTION_MENU_TEXT_VANTOR_DOCUMENTATION_WEB_PAGE = "&Documentation";
constexpr const char* ORQ_ACTION_STATUSTIP_VANTOR_DOCUMENTATION_WEB_PAGE = "Opens the documentation in a web browser";
constexpr const char* ORQ_ACTION_MENU_TEXT_VANTOR_DOWNLOAD_CENTER_WEB_PAGE = "Download &Center";
constexpr const char* ORQ_ACTION_STATUSTIP_VANTOR_DOWNLOAD_CENTER_WEB_PAGE = "Opens the download center in a web browser";
constexpr const char* ORQ_ACTION_MENU_TEXT_VANTOR_HOME_WEB_PAGE = "Vantor &Home Page";
constexpr const char* ORQ_ACTION_STATUSTIP_VANTOR_HOME_WEB_PAGE = "Opens the home page in a web browser";
constexpr const char* ORQ_ACTION_MENU_TEXT_VANTOR_IP_CATALOG_WEB_PAGE = "&IP Catalog Online";
constexpr const char* ORQ_ACTION_STATUSTIP_VANTOR_IP_CATALOG_WEB_PAGE = "Opens the online IP catalog in a web browser";
constexpr const char* ORQ_ACTION_MENU_TEXT_VANTOR_KNOWLEDGE_BASE_WEB_PAGE = "&Knowledge Base";
constexpr const char* ORQ_ACTION_STATUSTIP_VANTOR_KNOWLEDGE_BASE_WEB_PAGE = "Opens the knowledge base in a web browser";
constexpr const char* ORQ_ACTION_MENU_TEXT_VANTOR_LICENSING_WEB_PAGE = "&Licensing";
constexpr const char* ORQ_ACTION_STATUSTIP_VANTOR_LICENSING_WEB_PAGE = "Opens the licensing pages in a web browser";
constexpr const char* ORQ_ACTION_MENU_TEXT_VANTOR_RELEASE_NOTES_WEB_PAGE = "&Release Notes";
constexpr const char* ORQ_ACTION_STATUSTIP_VANTOR_RELEASE_NOTES_WEB_PAGE = "Opens the release notes in a web browser";
constexpr const char* ORQ_ACTION_MENU_TEXT_VANTOR_SUPPORT_WEB_PAGE = "&Support";
constexpr const char* ORQ_ACTION_STATUSTIP_VANTOR_SUPPORT_WEB_PAGE = "Opens the support pages in a web browser";
constexpr const char* ORQ_ACTION_MENU_TEXT_VANTOR_TRAINING_WEB_PAGE = "&Training";
constexpr const char* ORQ_ACTION_STATUSTIP_VANTOR_TRAINING_WEB_PAGE = "Opens the training courses in a web browser";
constexpr const char* ORQ_ACTION_MENU_TEXT_VANTOR_VIDEOS_WEB_PAGE = "&Videos";
constexpr const char* ORQ_ACTION_STATUSTIP_VANTOR_VIDEOS_WEB_PAGE = "Opens the video library in a web browser";
constexpr const char* ORQ_ACTION_MENU_TEXT_VANTOR_WHATS_NEW_WEB_PAGE = "&What's New";
constexpr const char* ORQ_ACTION_STATUSTIP_VANTOR_WHATS_NEW_WEB_PAGE = "Opens the new features in a web browser";
constexpr const char* ORQ_ACTION_MENU_TEXT_VERIFY_DEVICE = "&Verify Device";
constexpr const char* ORQ_ACTION_STATUSTIP_VERIFY_DEVICE = "Compares the device contents with the programming file";
constexpr const char* ORQ_ACTION_MENU_TEXT_VIEW_ASSIGNMENTS = "View &Assignments";
constexpr const char* ORQ_ACTION_STATUSTIP_VIEW_ASSIGNMENTS = "Shows the assignments of the project";
constexpr const char* ORQ_ACTION_MENU_TEXT_VIEW_CONSTRAINTS = "View &Constraints";
constexpr const char* ORQ_ACTION_STATUSTIP_VIEW_CONSTRAINTS = "Shows the constraints of the project";
constexpr const char* ORQ_ACTION_MENU_TEXT_VIEW_DESIGN_SUMMARY = "View Design &Summary";
constexpr const char* ORQ_ACTION_STATUSTIP_VIEW_DESIGN_SUMMARY = "Shows the summary of the design";
constexpr const char* ORQ_ACTION_MENU_TEXT_VIEW_LOG_FILE = "View &Log File";
constexpr const char* ORQ_ACTION_STATUSTIP_VIEW_LOG_FILE = "Shows the log file of the last run";
constexpr const char* ORQ_ACTION_MENU_TEXT_VIEW_NETLIST = "View &Netlist";
constexpr const char* ORQ_ACTION_STATUSTIP_VIEW_NETLIST = "Shows the netlist of the design";
constexpr const char* ORQ_ACTION_MENU_TEXT_VIEW_PIN_OUT_FILE = "View &Pin-Out File";
constexpr const char* ORQ_ACTION_STATUSTIP_VIEW_PIN_OUT_FILE = "Shows the pin-out file";
constexpr const char* ORQ_ACTION_MENU_TEXT_VIEW_REPORT = "View &Report";
constexpr const char* ORQ_ACTION_STATUSTIP_VIEW_REPORT = "Shows the report of the last run";
constexpr const char* ORQ_ACTION_MENU_TEXT_VIEW_SOURCE = "View So&urce";
constexpr const char* ORQ_ACTION_STATUSTIP_VIEW_SOURCE = "Shows the source of the selection";
constexpr const char* ORQ_ACTION_MENU_TEXT_VIEW_TIMING_PATH = "View &Timing Path";
constexpr const char* ORQ_ACTION_STATUSTIP_VIEW_TIMING_PATH = "Shows the selected timing path";
constexpr const char* ORQ_ACTION_MENU_TEXT_WAV_ADD_CURSOR = "Add &Cursor";
constexpr const char* ORQ_ACTION_STATUSTIP_WAV_ADD_CURSOR = "Adds a cursor to the waveform";
constexpr const char* ORQ_ACTION_MENU_TEXT_WAV_ZOOM_TO_RANGE = "Zoom to &Range";
constexpr const char* ORQ_ACTION_STATUSTIP_WAV_ZOOM_TO_RANGE = "Shows the time between the two cursors";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_WAV_ZOOM_TO_RANGE = "Ctrl+Shift+Z";
constexpr const char* ORQ_ACTION_MENU_TEXT_WHATS_THIS = "What's &This?";
constexpr const char* ORQ_ACTION_STATUSTIP_WHATS_THIS = "Shows help for the object under the pointer";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_WHATS_THIS = "Shift+F12";
constexpr const char* ORQ_ACTION_MENU_TEXT_WORD_WRAP = "&Word Wrap";
constexpr const char* ORQ_ACTION_STATUSTIP_WORD_WRAP = "Wraps long lines at the window edge";
constexpr const char* ORQ_ACTION_MENU_TEXT_ZOOM = "&Zoom...";
constexpr const char* ORQ_ACTION_STATUSTIP_ZOOM = "Control how large the file contents appear on screen";
constexpr const char* ORQ_ACTION_MENU_TEXT_ZOOM_FIT = "&Fit in Window";
constexpr const char* ORQ_ACTION_STATUSTIP_ZOOM_FIT = "Changes the display scale to fit the entire view into the current window";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_ZOOM_FIT = "Ctrl+Alt+W";
constexpr const char* ORQ_ACTION_MENU_TEXT_ZOOM_IN = "Zoom &In";
constexpr const char* ORQ_ACTION_STATUSTIP_ZOOM_IN = "Zooms in to increase the scale of objects displayed";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_ZOOM_IN = "Ctrl+Space";
constexpr const char* ORQ_ACTION_MENU_TEXT_ZOOM_OUT = "Zoom &Out";
constexpr const char* ORQ_ACTION_STATUSTIP_ZOOM_OUT = "Zooms out to decrease the scale of objects displayed";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_ZOOM_OUT = "Ctrl+Shift+Space";
constexpr const char* ORQ_ACTION_MENU_TEXT_ZOOM_SELECTION = "Fit Selection in Window";
constexpr const char* ORQ_ACTION_STATUSTIP_ZOOM_SELECTION = "Changes the display scale to fit the selection into the current window";
constexpr const char* ORQ_ACTION_CUSTOM_SHORTCUT_ZOOM_SELECTION = "Ctrl+Shift+W";
constexpr const char* ORQ_ACTION_MENU_TEXT_ZOOM_TOOL = "Zoom Tool";
constexpr const char* ORQ_ACTION_STATUSTIP_ZOOM_TOOL = "Zooms in and out. Hold Shift to zoom out.";

const ORQ_ACTION_ROW orq_action_table[ORQ_ACTION_COUNT + 1] = {
  // name, menu text, status tip, custom shortcut, Tcl function, tool tip, standard key, icon
  {nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_ABOUT_VANTOR_ACTION", ORQ_ACTION_MENU_TEXT_ABOUT_VANTOR, ORQ_ACTION_STATUSTIP_ABOUT_VANTOR, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ABOUT_VANTOR_ICON},
  {"ORQ_ACTIVATE_LICENSE_ACTION", ORQ_ACTION_MENU_TEXT_ACTIVATE_LICENSE, ORQ_ACTION_STATUSTIP_ACTIVATE_LICENSE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ACTIVATE_LICENSE_ICON},
  {"ORQ_ADD_BOOKMARK_ACTION", ORQ_ACTION_MENU_TEXT_ADD_BOOKMARK, ORQ_ACTION_STATUSTIP_ADD_BOOKMARK, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ADD_BOOKMARK_ICON},
  {"ORQ_ADD_BREAKPOINT_ACTION", ORQ_ACTION_MENU_TEXT_ADD_BREAKPOINT, ORQ_ACTION_STATUSTIP_ADD_BREAKPOINT, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ADD_BREAKPOINT_ICON},
  {"ORQ_ADD_CLOCK_ACTION", ORQ_ACTION_MENU_TEXT_ADD_CLOCK, ORQ_ACTION_STATUSTIP_ADD_CLOCK, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ADD_CLOCK_ICON},
  {"ORQ_ADD_FILE_ACTION", ORQ_ACTION_MENU_TEXT_ADD_FILE, ORQ_ACTION_STATUSTIP_ADD_FILE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ADD_FILE_ICON},
  {"ORQ_ADD_GROUP_ACTION", ORQ_ACTION_MENU_TEXT_ADD_GROUP, ORQ_ACTION_STATUSTIP_ADD_GROUP, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_ADD_NODE_ACTION", ORQ_ACTION_MENU_TEXT_ADD_NODE, ORQ_ACTION_STATUSTIP_ADD_NODE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ADD_NODE_ICON},
  {"ORQ_ADD_PROBE_ACTION", ORQ_ACTION_MENU_TEXT_ADD_PROBE, ORQ_ACTION_STATUSTIP_ADD_PROBE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ADD_PROBE_ICON},
  {"ORQ_ADD_REGION_ACTION", ORQ_ACTION_MENU_TEXT_ADD_REGION, ORQ_ACTION_STATUSTIP_ADD_REGION, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ADD_REGION_ICON},
  {"ORQ_ADD_SIGNAL_ACTION", ORQ_ACTION_MENU_TEXT_ADD_SIGNAL, ORQ_ACTION_STATUSTIP_ADD_SIGNAL, ORQ_ACTION_CUSTOM_SHORTCUT_ADD_SIGNAL, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ADD_SIGNAL_ICON},
  {"ORQ_ADD_TO_PROJECT_ACTION", ORQ_ACTION_MENU_TEXT_ADD_TO_PROJECT, ORQ_ACTION_STATUSTIP_ADD_TO_PROJECT, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ADD_TO_PROJECT_ICON},
  {"ORQ_ADD_WAVE_MARKER_ACTION", ORQ_ACTION_MENU_TEXT_ADD_WAVE_MARKER, ORQ_ACTION_STATUSTIP_ADD_WAVE_MARKER, ORQ_ACTION_CUSTOM_SHORTCUT_ADD_WAVE_MARKER, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ADD_WAVE_MARKER_ICON},
  {"ORQ_ADVANCED_SEARCH_ACTION", ORQ_ACTION_MENU_TEXT_ADVANCED_SEARCH, ORQ_ACTION_STATUSTIP_ADVANCED_SEARCH, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ADVANCED_SEARCH_ICON},
  {"ORQ_ALIGN_BOTTOM_ACTION", ORQ_ACTION_MENU_TEXT_ALIGN_BOTTOM, ORQ_ACTION_STATUSTIP_ALIGN_BOTTOM, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ALIGN_BOTTOM_ICON},
  {"ORQ_ALIGN_HORIZONTAL_CENTER_ACTION", ORQ_ACTION_MENU_TEXT_ALIGN_HORIZONTAL_CENTER, ORQ_ACTION_STATUSTIP_ALIGN_HORIZONTAL_CENTER, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ALIGN_HORIZONTAL_CENTER_ICON},
  {"ORQ_ALIGN_LEFT_ACTION", ORQ_ACTION_MENU_TEXT_ALIGN_LEFT, ORQ_ACTION_STATUSTIP_ALIGN_LEFT, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ALIGN_LEFT_ICON},
  {"ORQ_ALIGN_RIGHT_ACTION", ORQ_ACTION_MENU_TEXT_ALIGN_RIGHT, ORQ_ACTION_STATUSTIP_ALIGN_RIGHT, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ALIGN_RIGHT_ICON},
  {"ORQ_ALIGN_TOP_ACTION", ORQ_ACTION_MENU_TEXT_ALIGN_TOP, ORQ_ACTION_STATUSTIP_ALIGN_TOP, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ALIGN_TOP_ICON},
  {"ORQ_ALIGN_VERTICAL_CENTER_ACTION", ORQ_ACTION_MENU_TEXT_ALIGN_VERTICAL_CENTER, ORQ_ACTION_STATUSTIP_ALIGN_VERTICAL_CENTER, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ALIGN_HORIZONTAL_CENTER_ICON},
  {"ORQ_ALL_MESSAGES_ACTION", ORQ_ACTION_MENU_TEXT_ALL_MESSAGES, ORQ_ACTION_STATUSTIP_ALL_MESSAGES, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ALL_MESSAGES_ICON},
  {"ORQ_ANALYZE_CURRENT_FILE_ACTION", ORQ_ACTION_MENU_TEXT_ANALYZE_CURRENT_FILE, ORQ_ACTION_STATUSTIP_ANALYZE_CURRENT_FILE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ANALYZE_CURRENT_FILE_ICON},
  {"ORQ_ANALYZE_ELABORATE_ACTION", ORQ_ACTION_MENU_TEXT_ANALYZE_ELABORATE, ORQ_ACTION_STATUSTIP_ANALYZE_ELABORATE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ANALYZE_ELABORATE_ICON},
  {"ORQ_ANALYZE_TIMING_ACTION", ORQ_ACTION_MENU_TEXT_ANALYZE_TIMING, ORQ_ACTION_STATUSTIP_ANALYZE_TIMING, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ANALYZE_TIMING_ICON},
  {"ORQ_ANNOTATE_ACTION", ORQ_ACTION_MENU_TEXT_ANNOTATE, ORQ_ACTION_STATUSTIP_ANNOTATE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ANNOTATE_ICON},
  {"ORQ_APPLY_CONSTRAINTS_ACTION", ORQ_ACTION_MENU_TEXT_APPLY_CONSTRAINTS, ORQ_ACTION_STATUSTIP_APPLY_CONSTRAINTS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_APPLY_CONSTRAINTS_ICON},
  {"ORQ_APPLY_TEMPLATE_ACTION", ORQ_ACTION_MENU_TEXT_APPLY_TEMPLATE, ORQ_ACTION_STATUSTIP_APPLY_TEMPLATE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_ARCHIVE_PROJECT_ACTION", ORQ_ACTION_MENU_TEXT_ARCHIVE_PROJECT, ORQ_ACTION_STATUSTIP_ARCHIVE_PROJECT, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ARCHIVE_PROJECT_ICON},
  {"ORQ_AREA_REPORT_ACTION", ORQ_ACTION_MENU_TEXT_AREA_REPORT, ORQ_ACTION_STATUSTIP_AREA_REPORT, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_AREA_REPORT_ICON},
  {"ORQ_AREA_SELECTION_TOOL_ACTION", ORQ_ACTION_MENU_TEXT_AREA_SELECTION_TOOL, ORQ_ACTION_STATUSTIP_AREA_SELECTION_TOOL, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_AREA_SELECTION_TOOL_ICON},
  {"ORQ_ARRANGE_BLOCKS_ACTION", ORQ_ACTION_MENU_TEXT_ARRANGE_BLOCKS, ORQ_ACTION_STATUSTIP_ARRANGE_BLOCKS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ARRANGE_BLOCKS_ICON},
  {"ORQ_ARRANGE_ICONS_ACTION", ORQ_ACTION_MENU_TEXT_ARRANGE_ICONS, ORQ_ACTION_STATUSTIP_ARRANGE_ICONS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_ASSIGNMENT_EDITOR_ACTION", ORQ_ACTION_MENU_TEXT_ASSIGNMENT_EDITOR, ORQ_ACTION_STATUSTIP_ASSIGNMENT_EDITOR, ORQ_ACTION_CUSTOM_SHORTCUT_ASSIGNMENT_EDITOR, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ASSIGNMENT_EDITOR_ICON},
  {"ORQ_ASSIGN_CLOCK_ACTION", ORQ_ACTION_MENU_TEXT_ASSIGN_CLOCK, ORQ_ACTION_STATUSTIP_ASSIGN_CLOCK, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_ASSIGN_IO_STANDARD_ACTION", ORQ_ACTION_MENU_TEXT_ASSIGN_IO_STANDARD, ORQ_ACTION_STATUSTIP_ASSIGN_IO_STANDARD, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_ASSIGN_LOCATION_ACTION", ORQ_ACTION_MENU_TEXT_ASSIGN_LOCATION, ORQ_ACTION_STATUSTIP_ASSIGN_LOCATION, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_ASSIGN_PIN_ACTION", ORQ_ACTION_MENU_TEXT_ASSIGN_PIN, ORQ_ACTION_STATUSTIP_ASSIGN_PIN, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_ASSIGN_TO_PARTITION_ACTION", ORQ_ACTION_MENU_TEXT_ASSIGN_TO_PARTITION, ORQ_ACTION_STATUSTIP_ASSIGN_TO_PARTITION, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_ASSIGN_TO_REGION_ACTION", ORQ_ACTION_MENU_TEXT_ASSIGN_TO_REGION, ORQ_ACTION_STATUSTIP_ASSIGN_TO_REGION, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_ASSIGN_VOLTAGE_ACTION", ORQ_ACTION_MENU_TEXT_ASSIGN_VOLTAGE, ORQ_ACTION_STATUSTIP_ASSIGN_VOLTAGE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_ATTACH_ACTION", ORQ_ACTION_MENU_TEXT_ATTACH, ORQ_ACTION_STATUSTIP_ATTACH, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ATTACH_ICON},
  {"ORQ_ATTACH_ALL_ACTION", ORQ_ACTION_MENU_TEXT_ATTACH_ALL, ORQ_ACTION_STATUSTIP_ATTACH_ALL, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_AUTO_PLACE_ACTION", ORQ_ACTION_MENU_TEXT_AUTO_PLACE, ORQ_ACTION_STATUSTIP_AUTO_PLACE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_AUTO_PLACE_ICON},
  {"ORQ_AUTO_SCROLL_ACTION", ORQ_ACTION_MENU_TEXT_AUTO_SCROLL, ORQ_ACTION_STATUSTIP_AUTO_SCROLL, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_BACKWARD_ACTION", ORQ_ACTION_MENU_TEXT_BACKWARD, ORQ_ACTION_STATUSTIP_BACKWARD, ORQ_ACTION_CUSTOM_SHORTCUT_BACKWARD, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_BACKWARD_ICON},
  {"ORQ_BACK_ANNOTATE_ACTION", ORQ_ACTION_MENU_TEXT_BACK_ANNOTATE, ORQ_ACTION_STATUSTIP_BACK_ANNOTATE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_BACK_ANNOTATE_ICON},
  {"ORQ_BIRDS_EYE_VIEW_ACTION", ORQ_ACTION_MENU_TEXT_BIRDS_EYE_VIEW, ORQ_ACTION_STATUSTIP_BIRDS_EYE_VIEW, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_BIRDS_EYE_VIEW_ICON},
  {"ORQ_BOOKMARK_NEXT_ACTION", ORQ_ACTION_MENU_TEXT_BOOKMARK_NEXT, ORQ_ACTION_STATUSTIP_BOOKMARK_NEXT, ORQ_ACTION_CUSTOM_SHORTCUT_BOOKMARK_NEXT, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_BOOKMARK_NEXT_ICON},
  {"ORQ_BOOKMARK_PREVIOUS_ACTION", ORQ_ACTION_MENU_TEXT_BOOKMARK_PREVIOUS, ORQ_ACTION_STATUSTIP_BOOKMARK_PREVIOUS, ORQ_ACTION_CUSTOM_SHORTCUT_BOOKMARK_PREVIOUS, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_BOOKMARK_PREVIOUS_ICON},
  {"ORQ_BROWSE_IP_CATALOG_ACTION", ORQ_ACTION_MENU_TEXT_BROWSE_IP_CATALOG, ORQ_ACTION_STATUSTIP_BROWSE_IP_CATALOG, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_BROWSE_IP_CATALOG_ICON},
  {"ORQ_CASCADE_ACTION", ORQ_ACTION_MENU_TEXT_CASCADE, ORQ_ACTION_STATUSTIP_CASCADE, ORQ_ACTION_CUSTOM_SHORTCUT_CASCADE, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_CASCADE_ICON},
  {"ORQ_CHANGE_DEVICE_ACTION", ORQ_ACTION_MENU_TEXT_CHANGE_DEVICE, ORQ_ACTION_STATUSTIP_CHANGE_DEVICE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_CHANGE_DEVICE_ICON},
  {"ORQ_CHECK_DESIGN_RULES_ACTION", ORQ_ACTION_MENU_TEXT_CHECK_DESIGN_RULES, ORQ_ACTION_STATUSTIP_CHECK_DESIGN_RULES, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_CHECK_DESIGN_RULES_ICON},
  {"ORQ_CHECK_FOR_UPDATES_ACTION", ORQ_ACTION_MENU_TEXT_CHECK_FOR_UPDATES, ORQ_ACTION_STATUSTIP_CHECK_FOR_UPDATES, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_CHECK_FOR_UPDATES_ICON},
  {"ORQ_CLEAR_ALL_BOOKMARKS_ACTION", ORQ_ACTION_MENU_TEXT_CLEAR_ALL_BOOKMARKS, ORQ_ACTION_STATUSTIP_CLEAR_ALL_BOOKMARKS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_CLEAR_BREAKPOINTS_ACTION", ORQ_ACTION_MENU_TEXT_CLEAR_BREAKPOINTS, ORQ_ACTION_STATUSTIP_CLEAR_BREAKPOINTS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_CLEAR_HIGHLIGHT_ACTION", ORQ_ACTION_MENU_TEXT_CLEAR_HIGHLIGHT, ORQ_ACTION_STATUSTIP_CLEAR_HIGHLIGHT, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_CLEAR_MARKERS_ACTION", ORQ_ACTION_MENU_TEXT_CLEAR_MARKERS, ORQ_ACTION_STATUSTIP_CLEAR_MARKERS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_CLEAR_MESSAGES_ACTION", ORQ_ACTION_MENU_TEXT_CLEAR_MESSAGES, ORQ_ACTION_STATUSTIP_CLEAR_MESSAGES, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_CLEAR_MESSAGES_ICON},
  {"ORQ_CLEAR_PROBES_ACTION", ORQ_ACTION_MENU_TEXT_CLEAR_PROBES, ORQ_ACTION_STATUSTIP_CLEAR_PROBES, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_CLEAR_RECENT_FILES_ACTION", ORQ_ACTION_MENU_TEXT_CLEAR_RECENT_FILES, ORQ_ACTION_STATUSTIP_CLEAR_RECENT_FILES, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_CLEAR_SELECTION_ACTION", ORQ_ACTION_MENU_TEXT_CLEAR_SELECTION, ORQ_ACTION_STATUSTIP_CLEAR_SELECTION, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_CLK_SHOW_CLOCK_REGIONS_ACTION", ORQ_ACTION_MENU_TEXT_CLK_SHOW_CLOCK_REGIONS, ORQ_ACTION_STATUSTIP_CLK_SHOW_CLOCK_REGIONS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_CLK_SHOW_CLOCK_REGIONS_ICON},
  {"ORQ_CLK_SHOW_CLOCK_TREE_ACTION", ORQ_ACTION_MENU_TEXT_CLK_SHOW_CLOCK_TREE, ORQ_ACTION_STATUSTIP_CLK_SHOW_CLOCK_TREE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_CLK_SHOW_CLOCK_TREE_ICON},
  {"ORQ_CLOSE_ACTION", ORQ_ACTION_MENU_TEXT_CLOSE, ORQ_ACTION_STATUSTIP_CLOSE, ORQ_ACTION_CUSTOM_SHORTCUT_CLOSE, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_CLOSE_ICON},
  {"ORQ_CLOSE_ALL_ACTION", ORQ_ACTION_MENU_TEXT_CLOSE_ALL, ORQ_ACTION_STATUSTIP_CLOSE_ALL, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_CLOSE_ALL_ICON},
  {"ORQ_CLOSE_PROJECT_ACTION", ORQ_ACTION_MENU_TEXT_CLOSE_PROJECT, ORQ_ACTION_STATUSTIP_CLOSE_PROJECT, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_CLOSE_PROJECT_ICON},
  {"ORQ_COLLAPSE_ALL_ACTION", ORQ_ACTION_MENU_TEXT_COLLAPSE_ALL, ORQ_ACTION_STATUSTIP_COLLAPSE_ALL, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_COLLAPSE_ALL_ICON},
  {"ORQ_COLLAPSE_ONE_LEVEL_ACTION", ORQ_ACTION_MENU_TEXT_COLLAPSE_ONE_LEVEL, ORQ_ACTION_STATUSTIP_COLLAPSE_ONE_LEVEL, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_COMMENT_SELECTION_ACTION", ORQ_ACTION_MENU_TEXT_COMMENT_SELECTION, ORQ_ACTION_STATUSTIP_COMMENT_SELECTION, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_COMPARE_REVISIONS_ACTION", ORQ_ACTION_MENU_TEXT_COMPARE_REVISIONS, ORQ_ACTION_STATUSTIP_COMPARE_REVISIONS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_COMPARE_REVISIONS_ICON},
  {"ORQ_COMPILE_DESIGN_ACTION", ORQ_ACTION_MENU_TEXT_COMPILE_DESIGN, ORQ_ACTION_STATUSTIP_COMPILE_DESIGN, ORQ_ACTION_CUSTOM_SHORTCUT_COMPILE_DESIGN, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_COMPILE_DESIGN_ICON},
  {"ORQ_CONNECT_TO_DEVICE_ACTION", ORQ_ACTION_MENU_TEXT_CONNECT_TO_DEVICE, ORQ_ACTION_STATUSTIP_CONNECT_TO_DEVICE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_CONNECT_TO_DEVICE_ICON},
  {"ORQ_CONTINUE_ACTION", ORQ_ACTION_MENU_TEXT_CONTINUE, ORQ_ACTION_STATUSTIP_CONTINUE, ORQ_ACTION_CUSTOM_SHORTCUT_CONTINUE, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_CONTINUE_ICON},
  {"ORQ_CONVERT_PROGRAMMING_FILE_ACTION", ORQ_ACTION_MENU_TEXT_CONVERT_PROGRAMMING_FILE, ORQ_ACTION_STATUSTIP_CONVERT_PROGRAMMING_FILE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_CONWQ_CLEAR_CONSOLE_ACTION", ORQ_ACTION_MENU_TEXT_CONWQ_CLEAR_CONSOLE, ORQ_ACTION_STATUSTIP_CONWQ_CLEAR_CONSOLE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_CONWQ_CLEAR_CONSOLE_ICON},
  {"ORQ_CONWQ_SAVE_TRANSCRIPT_ACTION", ORQ_ACTION_MENU_TEXT_CONWQ_SAVE_TRANSCRIPT, ORQ_ACTION_STATUSTIP_CONWQ_SAVE_TRANSCRIPT, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_CONWQ_SAVE_TRANSCRIPT_ICON},
  {"ORQ_COPY_ACTION", ORQ_ACTION_MENU_TEXT_COPY, ORQ_ACTION_STATUSTIP_COPY, nullptr, nullptr, nullptr, QKeySequence::Copy, ORQ_COPY_ICON},
  {"ORQ_COPY_FILE_NAME_ACTION", ORQ_ACTION_MENU_TEXT_COPY_FILE_NAME, ORQ_ACTION_STATUSTIP_COPY_FILE_NAME, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_COPY_FILE_NAME_ICON},
  {"ORQ_COPY_FULL_PATH_ACTION", ORQ_ACTION_MENU_TEXT_COPY_FULL_PATH, ORQ_ACTION_STATUSTIP_COPY_FULL_PATH, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_COPY_FULL_PATH_ICON},
  {"ORQ_COPY_NODE_NAME_ACTION", ORQ_ACTION_MENU_TEXT_COPY_NODE_NAME, ORQ_ACTION_STATUSTIP_COPY_NODE_NAME, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_COPY_NODE_NAME_ICON},
  {"ORQ_COPY_TOOLTIP_ACTION", ORQ_ACTION_MENU_TEXT_COPY_TOOLTIP, ORQ_ACTION_STATUSTIP_COPY_TOOLTIP, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_COPY_TOOLTIP_ICON},
  {"ORQ_COPY_VALUE_ACTION", ORQ_ACTION_MENU_TEXT_COPY_VALUE, ORQ_ACTION_STATUSTIP_COPY_VALUE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_CREATE_BLOCK_ACTION", ORQ_ACTION_MENU_TEXT_CREATE_BLOCK, ORQ_ACTION_STATUSTIP_CREATE_BLOCK, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_CREATE_BLOCK_ICON},
  {"ORQ_CREATE_BOOKMARK_ACTION", ORQ_ACTION_MENU_TEXT_CREATE_BOOKMARK, ORQ_ACTION_STATUSTIP_CREATE_BOOKMARK, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_CREATE_BUS_ACTION", ORQ_ACTION_MENU_TEXT_CREATE_BUS, ORQ_ACTION_STATUSTIP_CREATE_BUS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_CREATE_CLOCK_ACTION", ORQ_ACTION_MENU_TEXT_CREATE_CLOCK, ORQ_ACTION_STATUSTIP_CREATE_CLOCK, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_CREATE_CLOCK_ICON},
  {"ORQ_CREATE_CONSTRAINT_ACTION", ORQ_ACTION_MENU_TEXT_CREATE_CONSTRAINT, ORQ_ACTION_STATUSTIP_CREATE_CONSTRAINT, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_CREATE_DESIGN_PARTITION_ACTION", ORQ_ACTION_MENU_TEXT_CREATE_DESIGN_PARTITION, ORQ_ACTION_STATUSTIP_CREATE_DESIGN_PARTITION, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_CREATE_DESIGN_PARTITION_ICON},
  {"ORQ_CREATE_DIFFERENTIAL_PAIR_ACTION", ORQ_ACTION_MENU_TEXT_CREATE_DIFFERENTIAL_PAIR, ORQ_ACTION_STATUSTIP_CREATE_DIFFERENTIAL_PAIR, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_CREATE_FALSE_PATH_ACTION", ORQ_ACTION_MENU_TEXT_CREATE_FALSE_PATH, ORQ_ACTION_STATUSTIP_CREATE_FALSE_PATH, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_CREATE_GENERATED_CLOCK_ACTION", ORQ_ACTION_MENU_TEXT_CREATE_GENERATED_CLOCK, ORQ_ACTION_STATUSTIP_CREATE_GENERATED_CLOCK, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_CREATE_GROUP_ACTION", ORQ_ACTION_MENU_TEXT_CREATE_GROUP, ORQ_ACTION_STATUSTIP_CREATE_GROUP, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_CREATE_INSTANCE_ACTION", ORQ_ACTION_MENU_TEXT_CREATE_INSTANCE, ORQ_ACTION_STATUSTIP_CREATE_INSTANCE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_CREATE_IP_VARIATION_ACTION", ORQ_ACTION_MENU_TEXT_CREATE_IP_VARIATION, ORQ_ACTION_STATUSTIP_CREATE_IP_VARIATION, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_CREATE_KEEPOUT_ACTION", ORQ_ACTION_MENU_TEXT_CREATE_KEEPOUT, ORQ_ACTION_STATUSTIP_CREATE_KEEPOUT, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_CREATE_LOGIC_LOCK_REGION_ACTION", ORQ_ACTION_MENU_TEXT_CREATE_LOGIC_LOCK_REGION, ORQ_ACTION_STATUSTIP_CREATE_LOGIC_LOCK_REGION, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_CREATE_MEMORY_FILE_ACTION", ORQ_ACTION_MENU_TEXT_CREATE_MEMORY_FILE, ORQ_ACTION_STATUSTIP_CREATE_MEMORY_FILE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_CREATE_MULTICYCLE_PATH_ACTION", ORQ_ACTION_MENU_TEXT_CREATE_MULTICYCLE_PATH, ORQ_ACTION_STATUSTIP_CREATE_MULTICYCLE_PATH, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_CREATE_NET_ACTION", ORQ_ACTION_MENU_TEXT_CREATE_NET, ORQ_ACTION_STATUSTIP_CREATE_NET, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_CREATE_PIN_ACTION", ORQ_ACTION_MENU_TEXT_CREATE_PIN, ORQ_ACTION_STATUSTIP_CREATE_PIN, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_CREATE_PORT_ACTION", ORQ_ACTION_MENU_TEXT_CREATE_PORT, ORQ_ACTION_STATUSTIP_CREATE_PORT, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_CREATE_PROBE_ACTION", ORQ_ACTION_MENU_TEXT_CREATE_PROBE, ORQ_ACTION_STATUSTIP_CREATE_PROBE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_CREATE_PROJECT_ACTION", ORQ_ACTION_MENU_TEXT_CREATE_PROJECT, ORQ_ACTION_STATUSTIP_CREATE_PROJECT, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_CREATE_PROJECT_ICON},
  {"ORQ_CREATE_REGION_ACTION", ORQ_ACTION_MENU_TEXT_CREATE_REGION, ORQ_ACTION_STATUSTIP_CREATE_REGION, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_CREATE_REGION_ICON},
  {"ORQ_CREATE_REVISION_ACTION", ORQ_ACTION_MENU_TEXT_CREATE_REVISION, ORQ_ACTION_STATUSTIP_CREATE_REVISION, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_CREATE_SIGNAL_GROUP_ACTION", ORQ_ACTION_MENU_TEXT_CREATE_SIGNAL_GROUP, ORQ_ACTION_STATUSTIP_CREATE_SIGNAL_GROUP, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_CREATE_SNAPSHOT_ACTION", ORQ_ACTION_MENU_TEXT_CREATE_SNAPSHOT, ORQ_ACTION_STATUSTIP_CREATE_SNAPSHOT, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_CREATE_SYMBOL_ACTION", ORQ_ACTION_MENU_TEXT_CREATE_SYMBOL, ORQ_ACTION_STATUSTIP_CREATE_SYMBOL, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_CREATE_TESTBENCH_ACTION", ORQ_ACTION_MENU_TEXT_CREATE_TESTBENCH, ORQ_ACTION_STATUSTIP_CREATE_TESTBENCH, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_CREATE_TIMING_GROUP_ACTION", ORQ_ACTION_MENU_TEXT_CREATE_TIMING_GROUP, ORQ_ACTION_STATUSTIP_CREATE_TIMING_GROUP, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_CREATE_TRIGGER_ACTION", ORQ_ACTION_MENU_TEXT_CREATE_TRIGGER, ORQ_ACTION_STATUSTIP_CREATE_TRIGGER, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_CREATE_VIRTUAL_PIN_ACTION", ORQ_ACTION_MENU_TEXT_CREATE_VIRTUAL_PIN, ORQ_ACTION_STATUSTIP_CREATE_VIRTUAL_PIN, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_CROSS_PROBE_ACTION", ORQ_ACTION_MENU_TEXT_CROSS_PROBE, ORQ_ACTION_STATUSTIP_CROSS_PROBE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_CROSS_PROBE_ICON},
  {"ORQ_CST_VALIDATE_CONSTRAINTS_ACTION", ORQ_ACTION_MENU_TEXT_CST_VALIDATE_CONSTRAINTS, ORQ_ACTION_STATUSTIP_CST_VALIDATE_CONSTRAINTS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_CST_VALIDATE_CONSTRAINTS_ICON},
  {"ORQ_CUSTOMIZE_ACTION", ORQ_ACTION_MENU_TEXT_CUSTOMIZE, ORQ_ACTION_STATUSTIP_CUSTOMIZE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_CUSTOMIZE_ICON},
  {"ORQ_CUSTOMIZE_COLUMN_ACTION", ORQ_ACTION_MENU_TEXT_CUSTOMIZE_COLUMN, ORQ_ACTION_STATUSTIP_CUSTOMIZE_COLUMN, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_CUSTOMIZE_COLUMN_ICON},
  {"ORQ_CUSTOMIZE_FILTER_ACTION", ORQ_ACTION_MENU_TEXT_CUSTOMIZE_FILTER, ORQ_ACTION_STATUSTIP_CUSTOMIZE_FILTER, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_CUSTOMIZE_FILTER_ICON},
  {"ORQ_CUT_ACTION", ORQ_ACTION_MENU_TEXT_CUT, ORQ_ACTION_STATUSTIP_CUT, nullptr, nullptr, nullptr, QKeySequence::Cut, ORQ_CUT_ICON},
  {"ORQ_DBG_ADD_TRIGGER_ACTION", ORQ_ACTION_MENU_TEXT_DBG_ADD_TRIGGER, ORQ_ACTION_STATUSTIP_DBG_ADD_TRIGGER, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_DBG_AUTORUN_ANALYSIS_ACTION", ORQ_ACTION_MENU_TEXT_DBG_AUTORUN_ANALYSIS, ORQ_ACTION_STATUSTIP_DBG_AUTORUN_ANALYSIS, ORQ_ACTION_CUSTOM_SHORTCUT_DBG_AUTORUN_ANALYSIS, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_DBG_RUN_ANALYSIS_ACTION", ORQ_ACTION_MENU_TEXT_DBG_RUN_ANALYSIS, ORQ_ACTION_STATUSTIP_DBG_RUN_ANALYSIS, ORQ_ACTION_CUSTOM_SHORTCUT_DBG_RUN_ANALYSIS, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_DBG_RUN_ANALYSIS_ICON},
  {"ORQ_DBG_STOP_ANALYSIS_ACTION", ORQ_ACTION_MENU_TEXT_DBG_STOP_ANALYSIS, ORQ_ACTION_STATUSTIP_DBG_STOP_ANALYSIS, ORQ_ACTION_CUSTOM_SHORTCUT_DBG_STOP_ANALYSIS, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_DBG_STOP_ANALYSIS_ICON},
  {"ORQ_DECREASE_FONT_SIZE_ACTION", ORQ_ACTION_MENU_TEXT_DECREASE_FONT_SIZE, ORQ_ACTION_STATUSTIP_DECREASE_FONT_SIZE, ORQ_ACTION_CUSTOM_SHORTCUT_DECREASE_FONT_SIZE, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_DECREASE_FONT_SIZE_ICON},
  {"ORQ_DEFAULT_LAYOUT_ACTION", ORQ_ACTION_MENU_TEXT_DEFAULT_LAYOUT, ORQ_ACTION_STATUSTIP_DEFAULT_LAYOUT, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_DEFINE_GROUP_ACTION", ORQ_ACTION_MENU_TEXT_DEFINE_GROUP, ORQ_ACTION_STATUSTIP_DEFINE_GROUP, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_DELETE_ACTION", ORQ_ACTION_MENU_TEXT_DELETE, ORQ_ACTION_STATUSTIP_DELETE, nullptr, nullptr, nullptr, QKeySequence::Delete, ORQ_DELETE_ICON},
  {"ORQ_DELETE_ALL_MARKERS_ACTION", ORQ_ACTION_MENU_TEXT_DELETE_ALL_MARKERS, ORQ_ACTION_STATUSTIP_DELETE_ALL_MARKERS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_DELETE_ASSIGNMENT_ACTION", ORQ_ACTION_MENU_TEXT_DELETE_ASSIGNMENT, ORQ_ACTION_STATUSTIP_DELETE_ASSIGNMENT, nullptr, nullptr, nullptr, QKeySequence::Delete, ORQ_DELETE_ASSIGNMENT_ICON},
  {"ORQ_DELETE_BLOCK_ACTION", ORQ_ACTION_MENU_TEXT_DELETE_BLOCK, ORQ_ACTION_STATUSTIP_DELETE_BLOCK, nullptr, nullptr, nullptr, QKeySequence::Delete, ORQ_DELETE_BLOCK_ICON},
  {"ORQ_DELETE_REGION_ACTION", ORQ_ACTION_MENU_TEXT_DELETE_REGION, ORQ_ACTION_STATUSTIP_DELETE_REGION, nullptr, nullptr, nullptr, QKeySequence::Delete, ORQ_DELETE_REGION_ICON},
  {"ORQ_DESELECT_ALL_ACTION", ORQ_ACTION_MENU_TEXT_DESELECT_ALL, ORQ_ACTION_STATUSTIP_DESELECT_ALL, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_DESIGN_PARTITIONS_WINDOW_ACTION", ORQ_ACTION_MENU_TEXT_DESIGN_PARTITIONS_WINDOW, ORQ_ACTION_STATUSTIP_DESIGN_PARTITIONS_WINDOW, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_DESIGN_PARTITIONS_WINDOW_ICON},
  {"ORQ_DESIGN_SPACE_EXPLORER_ACTION", ORQ_ACTION_MENU_TEXT_DESIGN_SPACE_EXPLORER, ORQ_ACTION_STATUSTIP_DESIGN_SPACE_EXPLORER, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_DESIGN_SPACE_EXPLORER_ICON},
  {"ORQ_DETACH_ACTION", ORQ_ACTION_MENU_TEXT_DETACH, ORQ_ACTION_STATUSTIP_DETACH, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_DETACH_ICON},
  {"ORQ_DETACH_ALL_ACTION", ORQ_ACTION_MENU_TEXT_DETACH_ALL, ORQ_ACTION_STATUSTIP_DETACH_ALL, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_DEVICE_PROPERTIES_ACTION", ORQ_ACTION_MENU_TEXT_DEVICE_PROPERTIES, ORQ_ACTION_STATUSTIP_DEVICE_PROPERTIES, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_DEVICE_PROPERTIES_ICON},
  {"ORQ_DISABLE_ASSIGNMENT_ACTION", ORQ_ACTION_MENU_TEXT_DISABLE_ASSIGNMENT, ORQ_ACTION_STATUSTIP_DISABLE_ASSIGNMENT, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_DISABLE_ASSIGNMENT_ICON},
  {"ORQ_DISABLE_BREAKPOINT_ACTION", ORQ_ACTION_MENU_TEXT_DISABLE_BREAKPOINT, ORQ_ACTION_STATUSTIP_DISABLE_BREAKPOINT, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_DISABLE_BREAKPOINT_ICON},
  {"ORQ_DISPLAY_GRID_ACTION", ORQ_ACTION_MENU_TEXT_DISPLAY_GRID, ORQ_ACTION_STATUSTIP_DISPLAY_GRID, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_DISPLAY_GRID_ICON},
  {"ORQ_DISPLAY_RULERS_ACTION", ORQ_ACTION_MENU_TEXT_DISPLAY_RULERS, ORQ_ACTION_STATUSTIP_DISPLAY_RULERS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_DISPLAY_RULERS_ICON},
  {"ORQ_DOCK_ALL_WINDOWS_ACTION", ORQ_ACTION_MENU_TEXT_DOCK_ALL_WINDOWS, ORQ_ACTION_STATUSTIP_DOCK_ALL_WINDOWS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_DRC_RERUN_ACTION", ORQ_ACTION_MENU_TEXT_DRC_RERUN, ORQ_ACTION_STATUSTIP_DRC_RERUN, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_DRC_RERUN_ICON},
  {"ORQ_DRC_SHOW_RULES_ACTION", ORQ_ACTION_MENU_TEXT_DRC_SHOW_RULES, ORQ_ACTION_STATUSTIP_DRC_SHOW_RULES, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_DRC_SHOW_RULES_ICON},
  {"ORQ_DUPLICATE_ACTION", ORQ_ACTION_MENU_TEXT_DUPLICATE, ORQ_ACTION_STATUSTIP_DUPLICATE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_DUPLICATE_ICON},
  {"ORQ_EDIT_ASSIGNMENTS_ACTION", ORQ_ACTION_MENU_TEXT_EDIT_ASSIGNMENTS, ORQ_ACTION_STATUSTIP_EDIT_ASSIGNMENTS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_EDIT_CONSTRAINTS_ACTION", ORQ_ACTION_MENU_TEXT_EDIT_CONSTRAINTS, ORQ_ACTION_STATUSTIP_EDIT_CONSTRAINTS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_EDIT_PROPERTIES_ACTION", ORQ_ACTION_MENU_TEXT_EDIT_PROPERTIES, ORQ_ACTION_STATUSTIP_EDIT_PROPERTIES, ORQ_ACTION_CUSTOM_SHORTCUT_EDIT_PROPERTIES, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_EDIT_SOURCE_ACTION", ORQ_ACTION_MENU_TEXT_EDIT_SOURCE, ORQ_ACTION_STATUSTIP_EDIT_SOURCE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_ELABORATE_DESIGN_ACTION", ORQ_ACTION_MENU_TEXT_ELABORATE_DESIGN, ORQ_ACTION_STATUSTIP_ELABORATE_DESIGN, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ELABORATE_DESIGN_ICON},
  {"ORQ_ENABLE_ASSIGNMENT_ACTION", ORQ_ACTION_MENU_TEXT_ENABLE_ASSIGNMENT, ORQ_ACTION_STATUSTIP_ENABLE_ASSIGNMENT, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ENABLE_ASSIGNMENT_ICON},
  {"ORQ_ENABLE_DOCKING_ACTION", ORQ_ACTION_MENU_TEXT_ENABLE_DOCKING, ORQ_ACTION_STATUSTIP_ENABLE_DOCKING, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ENABLE_DOCKING_ICON},
  {"ORQ_ENABLE_TOOLTIPS_ACTION", ORQ_ACTION_MENU_TEXT_ENABLE_TOOLTIPS, ORQ_ACTION_STATUSTIP_ENABLE_TOOLTIPS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_END_SIMULATION_ACTION", ORQ_ACTION_MENU_TEXT_END_SIMULATION, ORQ_ACTION_STATUSTIP_END_SIMULATION, ORQ_ACTION_CUSTOM_SHORTCUT_END_SIMULATION, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_END_SIMULATION_ICON},
  {"ORQ_ERROR_NEXT_ACTION", ORQ_ACTION_MENU_TEXT_ERROR_NEXT, ORQ_ACTION_STATUSTIP_ERROR_NEXT, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ERROR_NEXT_ICON},
  {"ORQ_EVALUATE_EXPRESSION_ACTION", ORQ_ACTION_MENU_TEXT_EVALUATE_EXPRESSION, ORQ_ACTION_STATUSTIP_EVALUATE_EXPRESSION, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_EXIT_ACTION", ORQ_ACTION_MENU_TEXT_EXIT, ORQ_ACTION_STATUSTIP_EXIT, ORQ_ACTION_CUSTOM_SHORTCUT_EXIT, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_EXIT_ICON},
  {"ORQ_EXPAND_ALL_ACTION", ORQ_ACTION_MENU_TEXT_EXPAND_ALL, ORQ_ACTION_STATUSTIP_EXPAND_ALL, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_EXPAND_ALL_ICON},
  {"ORQ_EXPAND_ONE_LEVEL_ACTION", ORQ_ACTION_MENU_TEXT_EXPAND_ONE_LEVEL, ORQ_ACTION_STATUSTIP_EXPAND_ONE_LEVEL, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_EXPORT_ACTION", ORQ_ACTION_MENU_TEXT_EXPORT, ORQ_ACTION_STATUSTIP_EXPORT, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_EXPORT_ICON},
  {"ORQ_EXPORT_ASSIGNMENTS_ACTION", ORQ_ACTION_MENU_TEXT_EXPORT_ASSIGNMENTS, ORQ_ACTION_STATUSTIP_EXPORT_ASSIGNMENTS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_EXPORT_CONSTRAINTS_ACTION", ORQ_ACTION_MENU_TEXT_EXPORT_CONSTRAINTS, ORQ_ACTION_STATUSTIP_EXPORT_CONSTRAINTS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_EXPORT_HTML_REPORT_ACTION", ORQ_ACTION_MENU_TEXT_EXPORT_HTML_REPORT, ORQ_ACTION_STATUSTIP_EXPORT_HTML_REPORT, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_EXPORT_IMAGE_ACTION", ORQ_ACTION_MENU_TEXT_EXPORT_IMAGE, ORQ_ACTION_STATUSTIP_EXPORT_IMAGE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_EXPORT_IMAGE_ICON},
  {"ORQ_EXPORT_NETLIST_ACTION", ORQ_ACTION_MENU_TEXT_EXPORT_NETLIST, ORQ_ACTION_STATUSTIP_EXPORT_NETLIST, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_EXPORT_NETLIST_ICON},
  {"ORQ_EXPORT_PIN_FILE_ACTION", ORQ_ACTION_MENU_TEXT_EXPORT_PIN_FILE, ORQ_ACTION_STATUSTIP_EXPORT_PIN_FILE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_EXPORT_POWER_ESTIMATE_ACTION", ORQ_ACTION_MENU_TEXT_EXPORT_POWER_ESTIMATE, ORQ_ACTION_STATUSTIP_EXPORT_POWER_ESTIMATE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_EXPORT_TIMING_REPORT_ACTION", ORQ_ACTION_MENU_TEXT_EXPORT_TIMING_REPORT, ORQ_ACTION_STATUSTIP_EXPORT_TIMING_REPORT, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_EXPORT_WAVEFORM_ACTION", ORQ_ACTION_MENU_TEXT_EXPORT_WAVEFORM, ORQ_ACTION_STATUSTIP_EXPORT_WAVEFORM, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_EXTEND_SELECTION_ACTION", ORQ_ACTION_MENU_TEXT_EXTEND_SELECTION, ORQ_ACTION_STATUSTIP_EXTEND_SELECTION, ORQ_ACTION_CUSTOM_SHORTCUT_EXTEND_SELECTION, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_EXTRACT_CONSTRAINTS_ACTION", ORQ_ACTION_MENU_TEXT_EXTRACT_CONSTRAINTS, ORQ_ACTION_STATUSTIP_EXTRACT_CONSTRAINTS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_EXTRACT_CONSTRAINTS_ICON},
  {"ORQ_FANIN_CONE_ACTION", ORQ_ACTION_MENU_TEXT_FANIN_CONE, ORQ_ACTION_STATUSTIP_FANIN_CONE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_FANIN_CONE_ICON},
  {"ORQ_FANOUT_CONE_ACTION", ORQ_ACTION_MENU_TEXT_FANOUT_CONE, ORQ_ACTION_STATUSTIP_FANOUT_CONE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_FANOUT_CONE_ICON},
  {"ORQ_FILE_PROPERTIES_ACTION", ORQ_ACTION_MENU_TEXT_FILE_PROPERTIES, ORQ_ACTION_STATUSTIP_FILE_PROPERTIES, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_FILE_PROPERTIES_ICON},
  {"ORQ_FILL_REGION_ACTION", ORQ_ACTION_MENU_TEXT_FILL_REGION, ORQ_ACTION_STATUSTIP_FILL_REGION, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_FILL_REGION_ICON},
  {"ORQ_FILTER_BY_SELECTION_ACTION", ORQ_ACTION_MENU_TEXT_FILTER_BY_SELECTION, ORQ_ACTION_STATUSTIP_FILTER_BY_SELECTION, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_FILTER_CLEAR_ACTION", ORQ_ACTION_MENU_TEXT_FILTER_CLEAR, ORQ_ACTION_STATUSTIP_FILTER_CLEAR, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_FILTER_CRITICAL_WARNINGS_ACTION", ORQ_ACTION_MENU_TEXT_FILTER_CRITICAL_WARNINGS, ORQ_ACTION_STATUSTIP_FILTER_CRITICAL_WARNINGS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_FILTER_CRITICAL_WARNINGS_ICON},
  {"ORQ_FILTER_ERROR_MESSAGES_ACTION", ORQ_ACTION_MENU_TEXT_FILTER_ERROR_MESSAGES, ORQ_ACTION_STATUSTIP_FILTER_ERROR_MESSAGES, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_FILTER_ERROR_MESSAGES_ICON},
  {"ORQ_FILTER_INFO_MESSAGES_ACTION", ORQ_ACTION_MENU_TEXT_FILTER_INFO_MESSAGES, ORQ_ACTION_STATUSTIP_FILTER_INFO_MESSAGES, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_FILTER_INFO_MESSAGES_ICON},
  {"ORQ_FILTER_SUPPRESSED_MESSAGES_ACTION", ORQ_ACTION_MENU_TEXT_FILTER_SUPPRESSED_MESSAGES, ORQ_ACTION_STATUSTIP_FILTER_SUPPRESSED_MESSAGES, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_FILTER_SUPPRESSED_MESSAGES_ICON},
  {"ORQ_FILTER_WARNING_MESSAGES_ACTION", ORQ_ACTION_MENU_TEXT_FILTER_WARNING_MESSAGES, ORQ_ACTION_STATUSTIP_FILTER_WARNING_MESSAGES, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_FILTER_WARNING_MESSAGES_ICON},
  {"ORQ_FINALIZE_DESIGN_ACTION", ORQ_ACTION_MENU_TEXT_FINALIZE_DESIGN, ORQ_ACTION_STATUSTIP_FINALIZE_DESIGN, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_FINALIZE_DESIGN_ICON},
  {"ORQ_FIND_ACTION", ORQ_ACTION_MENU_TEXT_FIND, ORQ_ACTION_STATUSTIP_FIND, nullptr, nullptr, nullptr, QKeySequence::Find, ORQ_FIND_ICON},
  {"ORQ_FIND_NEXT_ACTION", ORQ_ACTION_MENU_TEXT_FIND_NEXT, ORQ_ACTION_STATUSTIP_FIND_NEXT, ORQ_ACTION_CUSTOM_SHORTCUT_FIND_NEXT, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_FIND_NEXT_ICON},
  {"ORQ_FIND_PREVIOUS_ACTION", ORQ_ACTION_MENU_TEXT_FIND_PREVIOUS, ORQ_ACTION_STATUSTIP_FIND_PREVIOUS, ORQ_ACTION_CUSTOM_SHORTCUT_FIND_PREVIOUS, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_FIND_PREVIOUS_ICON},
  {"ORQ_FIND_REPLACE_ACTION", ORQ_ACTION_MENU_TEXT_FIND_REPLACE, ORQ_ACTION_STATUSTIP_FIND_REPLACE, ORQ_ACTION_CUSTOM_SHORTCUT_FIND_REPLACE, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_FIND_REPLACE_ICON},
  {"ORQ_FIND_SIGNAL_ACTION", ORQ_ACTION_MENU_TEXT_FIND_SIGNAL, ORQ_ACTION_STATUSTIP_FIND_SIGNAL, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_FIND_SIGNAL_ICON},
  {"ORQ_FIND_USAGES_ACTION", ORQ_ACTION_MENU_TEXT_FIND_USAGES, ORQ_ACTION_STATUSTIP_FIND_USAGES, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_FIND_USAGES_ICON},
  {"ORQ_FIRST_PAGE_ACTION", ORQ_ACTION_MENU_TEXT_FIRST_PAGE, ORQ_ACTION_STATUSTIP_FIRST_PAGE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_FLATTEN_HIERARCHY_ACTION", ORQ_ACTION_MENU_TEXT_FLATTEN_HIERARCHY, ORQ_ACTION_STATUSTIP_FLATTEN_HIERARCHY, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_FLATTEN_HIERARCHY_ICON},
  {"ORQ_FLIP_HORIZONTAL_ACTION", ORQ_ACTION_MENU_TEXT_FLIP_HORIZONTAL, ORQ_ACTION_STATUSTIP_FLIP_HORIZONTAL, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_FLIP_VERTICAL_ACTION", ORQ_ACTION_MENU_TEXT_FLIP_VERTICAL, ORQ_ACTION_STATUSTIP_FLIP_VERTICAL, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_FOCUS_VIEW_ACTION", ORQ_ACTION_MENU_TEXT_FOCUS_VIEW, ORQ_ACTION_STATUSTIP_FOCUS_VIEW, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_FOCUS_VIEW_ICON},
  {"ORQ_FOLLOW_NET_ACTION", ORQ_ACTION_MENU_TEXT_FOLLOW_NET, ORQ_ACTION_STATUSTIP_FOLLOW_NET, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_FOLLOW_NET_ICON},
  {"ORQ_FORMAT_SOURCE_ACTION", ORQ_ACTION_MENU_TEXT_FORMAT_SOURCE, ORQ_ACTION_STATUSTIP_FORMAT_SOURCE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_FORMAT_SOURCE_ICON},
  {"ORQ_FORWARD_ACTION", ORQ_ACTION_MENU_TEXT_FORWARD, ORQ_ACTION_STATUSTIP_FORWARD, ORQ_ACTION_CUSTOM_SHORTCUT_FORWARD, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_FORWARD_ICON},
  {"ORQ_FPV_HIGHLIGHT_CONGESTION_ACTION", ORQ_ACTION_MENU_TEXT_FPV_HIGHLIGHT_CONGESTION, ORQ_ACTION_STATUSTIP_FPV_HIGHLIGHT_CONGESTION, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_FPV_HIGHLIGHT_CONGESTION_ICON},
  {"ORQ_FPV_MEASURE_ACTION", ORQ_ACTION_MENU_TEXT_FPV_MEASURE, ORQ_ACTION_STATUSTIP_FPV_MEASURE, ORQ_ACTION_CUSTOM_SHORTCUT_FPV_MEASURE, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_FPV_MEASURE_ICON},
  {"ORQ_FPV_SHOW_CLOCK_REGIONS_ACTION", ORQ_ACTION_MENU_TEXT_FPV_SHOW_CLOCK_REGIONS, ORQ_ACTION_STATUSTIP_FPV_SHOW_CLOCK_REGIONS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_FPV_SHOW_CLOCK_REGIONS_ICON},
  {"ORQ_FPV_SHOW_DENSITY_ACTION", ORQ_ACTION_MENU_TEXT_FPV_SHOW_DENSITY, ORQ_ACTION_STATUSTIP_FPV_SHOW_DENSITY, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_FPV_SHOW_DENSITY_ICON},
  {"ORQ_FPV_SHOW_FLYLINES_ACTION", ORQ_ACTION_MENU_TEXT_FPV_SHOW_FLYLINES, ORQ_ACTION_STATUSTIP_FPV_SHOW_FLYLINES, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_FPV_SHOW_FLYLINES_ICON},
  {"ORQ_FPV_SHOW_IO_BANKS_ACTION", ORQ_ACTION_MENU_TEXT_FPV_SHOW_IO_BANKS, ORQ_ACTION_STATUSTIP_FPV_SHOW_IO_BANKS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_FPV_SHOW_IO_BANKS_ICON},
  {"ORQ_FPV_SHOW_KEEPOUTS_ACTION", ORQ_ACTION_MENU_TEXT_FPV_SHOW_KEEPOUTS, ORQ_ACTION_STATUSTIP_FPV_SHOW_KEEPOUTS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_FPV_SHOW_KEEPOUTS_ICON},
  {"ORQ_FPV_SHOW_NET_BUNDLES_ACTION", ORQ_ACTION_MENU_TEXT_FPV_SHOW_NET_BUNDLES, ORQ_ACTION_STATUSTIP_FPV_SHOW_NET_BUNDLES, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_FPV_SHOW_NET_BUNDLES_ICON},
  {"ORQ_FPV_SHOW_POWER_STRIPES_ACTION", ORQ_ACTION_MENU_TEXT_FPV_SHOW_POWER_STRIPES, ORQ_ACTION_STATUSTIP_FPV_SHOW_POWER_STRIPES, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_FPV_SHOW_POWER_STRIPES_ICON},
  {"ORQ_FPV_SHOW_ROUTING_ACTION", ORQ_ACTION_MENU_TEXT_FPV_SHOW_ROUTING, ORQ_ACTION_STATUSTIP_FPV_SHOW_ROUTING, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_FPV_SHOW_ROUTING_ICON},
  {"ORQ_FPV_SHOW_SLR_ACTION", ORQ_ACTION_MENU_TEXT_FPV_SHOW_SLR, ORQ_ACTION_STATUSTIP_FPV_SHOW_SLR, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_FPV_SHOW_SLR_ICON},
  {"ORQ_FULL_SCREEN_ACTION", ORQ_ACTION_MENU_TEXT_FULL_SCREEN, ORQ_ACTION_STATUSTIP_FULL_SCREEN, ORQ_ACTION_CUSTOM_SHORTCUT_FULL_SCREEN, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_GED_ADD_BUS_ACTION", ORQ_ACTION_MENU_TEXT_GED_ADD_BUS, ORQ_ACTION_STATUSTIP_GED_ADD_BUS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_GED_ADD_BUS_ICON},
  {"ORQ_GED_ADD_JUNCTION_ACTION", ORQ_ACTION_MENU_TEXT_GED_ADD_JUNCTION, ORQ_ACTION_STATUSTIP_GED_ADD_JUNCTION, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_GED_ADD_JUNCTION_ICON},
  {"ORQ_GED_ADD_LABEL_ACTION", ORQ_ACTION_MENU_TEXT_GED_ADD_LABEL, ORQ_ACTION_STATUSTIP_GED_ADD_LABEL, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_GED_ADD_LABEL_ICON},
  {"ORQ_GED_ADD_PORT_ACTION", ORQ_ACTION_MENU_TEXT_GED_ADD_PORT, ORQ_ACTION_STATUSTIP_GED_ADD_PORT, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_GED_ADD_PORT_ICON},
  {"ORQ_GED_ADD_WIRE_ACTION", ORQ_ACTION_MENU_TEXT_GED_ADD_WIRE, ORQ_ACTION_STATUSTIP_GED_ADD_WIRE, ORQ_ACTION_CUSTOM_SHORTCUT_GED_ADD_WIRE, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_GED_ADD_WIRE_ICON},
  {"ORQ_GED_BRING_TO_FRONT_ACTION", ORQ_ACTION_MENU_TEXT_GED_BRING_TO_FRONT, ORQ_ACTION_STATUSTIP_GED_BRING_TO_FRONT, ORQ_ACTION_CUSTOM_SHORTCUT_GED_BRING_TO_FRONT, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_GED_BRING_TO_FRONT_ICON},
  {"ORQ_GED_EDIT_SYMBOL_ACTION", ORQ_ACTION_MENU_TEXT_GED_EDIT_SYMBOL, ORQ_ACTION_STATUSTIP_GED_EDIT_SYMBOL, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_GED_EDIT_SYMBOL_ICON},
  {"ORQ_GED_ROTATE_LEFT_ACTION", ORQ_ACTION_MENU_TEXT_GED_ROTATE_LEFT, ORQ_ACTION_STATUSTIP_GED_ROTATE_LEFT, ORQ_ACTION_CUSTOM_SHORTCUT_GED_ROTATE_LEFT, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_GED_ROTATE_LEFT_ICON},
  {"ORQ_GED_ROTATE_RIGHT_ACTION", ORQ_ACTION_MENU_TEXT_GED_ROTATE_RIGHT, ORQ_ACTION_STATUSTIP_GED_ROTATE_RIGHT, ORQ_ACTION_CUSTOM_SHORTCUT_GED_ROTATE_RIGHT, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_GED_ROTATE_RIGHT_ICON},
  {"ORQ_GED_SEND_TO_BACK_ACTION", ORQ_ACTION_MENU_TEXT_GED_SEND_TO_BACK, ORQ_ACTION_STATUSTIP_GED_SEND_TO_BACK, ORQ_ACTION_CUSTOM_SHORTCUT_GED_SEND_TO_BACK, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_GED_SEND_TO_BACK_ICON},
  {"ORQ_GED_SNAP_TO_GRID_ACTION", ORQ_ACTION_MENU_TEXT_GED_SNAP_TO_GRID, ORQ_ACTION_STATUSTIP_GED_SNAP_TO_GRID, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_GED_SNAP_TO_GRID_ICON},
  {"ORQ_GENERATE_BITSTREAM_ACTION", ORQ_ACTION_MENU_TEXT_GENERATE_BITSTREAM, ORQ_ACTION_STATUSTIP_GENERATE_BITSTREAM, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_GENERATE_BITSTREAM_ICON},
  {"ORQ_GENERATE_BOARD_FILES_ACTION", ORQ_ACTION_MENU_TEXT_GENERATE_BOARD_FILES, ORQ_ACTION_STATUSTIP_GENERATE_BOARD_FILES, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_GENERATE_FUNCTIONAL_NETLIST_ACTION", ORQ_ACTION_MENU_TEXT_GENERATE_FUNCTIONAL_NETLIST, ORQ_ACTION_STATUSTIP_GENERATE_FUNCTIONAL_NETLIST, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_GENERATE_HDL_WRAPPER_ACTION", ORQ_ACTION_MENU_TEXT_GENERATE_HDL_WRAPPER, ORQ_ACTION_STATUSTIP_GENERATE_HDL_WRAPPER, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_GENERATE_IBIS_MODEL_ACTION", ORQ_ACTION_MENU_TEXT_GENERATE_IBIS_MODEL, ORQ_ACTION_STATUSTIP_GENERATE_IBIS_MODEL, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_GENERATE_INSTANTIATION_TEMPLATE_ACTION", ORQ_ACTION_MENU_TEXT_GENERATE_INSTANTIATION_TEMPLATE, ORQ_ACTION_STATUSTIP_GENERATE_INSTANTIATION_TEMPLATE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_GENERATE_MEMORY_INIT_FILE_ACTION", ORQ_ACTION_MENU_TEXT_GENERATE_MEMORY_INIT_FILE, ORQ_ACTION_STATUSTIP_GENERATE_MEMORY_INIT_FILE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_GENERATE_PIN_REPORT_ACTION", ORQ_ACTION_MENU_TEXT_GENERATE_PIN_REPORT, ORQ_ACTION_STATUSTIP_GENERATE_PIN_REPORT, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_GENERATE_POWER_REPORT_ACTION", ORQ_ACTION_MENU_TEXT_GENERATE_POWER_REPORT, ORQ_ACTION_STATUSTIP_GENERATE_POWER_REPORT, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_GENERATE_PROGRAMMING_FILE_ACTION", ORQ_ACTION_MENU_TEXT_GENERATE_PROGRAMMING_FILE, ORQ_ACTION_STATUSTIP_GENERATE_PROGRAMMING_FILE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_GENERATE_PROGRAMMING_FILE_ICON},
  {"ORQ_GENERATE_SIMULATION_NETLIST_ACTION", ORQ_ACTION_MENU_TEXT_GENERATE_SIMULATION_NETLIST, ORQ_ACTION_STATUSTIP_GENERATE_SIMULATION_NETLIST, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_GENERATE_SYMBOL_FILE_ACTION", ORQ_ACTION_MENU_TEXT_GENERATE_SYMBOL_FILE, ORQ_ACTION_STATUSTIP_GENERATE_SYMBOL_FILE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_GENERATE_TESTBENCH_ACTION", ORQ_ACTION_MENU_TEXT_GENERATE_TESTBENCH, ORQ_ACTION_STATUSTIP_GENERATE_TESTBENCH, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_GO_TO_DEFINITION_ACTION", ORQ_ACTION_MENU_TEXT_GO_TO_DEFINITION, ORQ_ACTION_STATUSTIP_GO_TO_DEFINITION, ORQ_ACTION_CUSTOM_SHORTCUT_GO_TO_DEFINITION, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_GO_TO_DEFINITION_ICON},
  {"ORQ_GO_TO_DRIVER_ACTION", ORQ_ACTION_MENU_TEXT_GO_TO_DRIVER, ORQ_ACTION_STATUSTIP_GO_TO_DRIVER, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_GO_TO_DRIVER_ICON},
  {"ORQ_GO_TO_LINE_ACTION", ORQ_ACTION_MENU_TEXT_GO_TO_LINE, ORQ_ACTION_STATUSTIP_GO_TO_LINE, ORQ_ACTION_CUSTOM_SHORTCUT_GO_TO_LINE, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_GO_TO_TIME_ACTION", ORQ_ACTION_MENU_TEXT_GO_TO_TIME, ORQ_ACTION_STATUSTIP_GO_TO_TIME, ORQ_ACTION_CUSTOM_SHORTCUT_GO_TO_TIME, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_GO_TO_TIME_ICON},
  {"ORQ_GRID_SETTINGS_ACTION", ORQ_ACTION_MENU_TEXT_GRID_SETTINGS, ORQ_ACTION_STATUSTIP_GRID_SETTINGS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_GRID_SETTINGS_ICON},
  {"ORQ_GROUP_ACTION", ORQ_ACTION_MENU_TEXT_GROUP, ORQ_ACTION_STATUSTIP_GROUP, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_GROUP_SIGNALS_ACTION", ORQ_ACTION_MENU_TEXT_GROUP_SIGNALS, ORQ_ACTION_STATUSTIP_GROUP_SIGNALS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_GROUP_SIGNALS_ICON},
  {"ORQ_HDL_TEMPLATES_ACTION", ORQ_ACTION_MENU_TEXT_HDL_TEMPLATES, ORQ_ACTION_STATUSTIP_HDL_TEMPLATES, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_HDL_TEMPLATES_ICON},
  {"ORQ_HELP_ACTION", ORQ_ACTION_MENU_TEXT_HELP, ORQ_ACTION_STATUSTIP_HELP, nullptr, nullptr, nullptr, QKeySequence::HelpContents, ORQ_HELP_ICON},
  {"ORQ_HELP_ON_MESSAGE_ACTION", ORQ_ACTION_MENU_TEXT_HELP_ON_MESSAGE, ORQ_ACTION_STATUSTIP_HELP_ON_MESSAGE, ORQ_ACTION_CUSTOM_SHORTCUT_HELP_ON_MESSAGE, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_HELP_ON_MESSAGE_ICON},
  {"ORQ_HELP_TUTORIAL_ACTION", ORQ_ACTION_MENU_TEXT_HELP_TUTORIAL, ORQ_ACTION_STATUSTIP_HELP_TUTORIAL, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_HIDE_ALL_DOCK_WINDOWS_ACTION", ORQ_ACTION_MENU_TEXT_HIDE_ALL_DOCK_WINDOWS, ORQ_ACTION_STATUSTIP_HIDE_ALL_DOCK_WINDOWS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_HIDE_CONNECTIONS_ACTION", ORQ_ACTION_MENU_TEXT_HIDE_CONNECTIONS, ORQ_ACTION_STATUSTIP_HIDE_CONNECTIONS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_HIDE_GRID_ACTION", ORQ_ACTION_MENU_TEXT_HIDE_GRID, ORQ_ACTION_STATUSTIP_HIDE_GRID, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_HIDE_INFO_MESSAGES_ACTION", ORQ_ACTION_MENU_TEXT_HIDE_INFO_MESSAGES, ORQ_ACTION_STATUSTIP_HIDE_INFO_MESSAGES, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_HIDE_NET_NAMES_ACTION", ORQ_ACTION_MENU_TEXT_HIDE_NET_NAMES, ORQ_ACTION_STATUSTIP_HIDE_NET_NAMES, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_HIDE_PORT_NAMES_ACTION", ORQ_ACTION_MENU_TEXT_HIDE_PORT_NAMES, ORQ_ACTION_STATUSTIP_HIDE_PORT_NAMES, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_HIDE_SUPPRESSED_MESSAGES_ACTION", ORQ_ACTION_MENU_TEXT_HIDE_SUPPRESSED_MESSAGES, ORQ_ACTION_STATUSTIP_HIDE_SUPPRESSED_MESSAGES, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_HIDE_UNUSED_PINS_ACTION", ORQ_ACTION_MENU_TEXT_HIDE_UNUSED_PINS, ORQ_ACTION_STATUSTIP_HIDE_UNUSED_PINS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_HIE_EXPAND_TO_LEAF_ACTION", ORQ_ACTION_MENU_TEXT_HIE_EXPAND_TO_LEAF, ORQ_ACTION_STATUSTIP_HIE_EXPAND_TO_LEAF, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_HIE_SET_AS_TOP_ACTION", ORQ_ACTION_MENU_TEXT_HIE_SET_AS_TOP, ORQ_ACTION_STATUSTIP_HIE_SET_AS_TOP, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_HIE_SHOW_RESOURCES_ACTION", ORQ_ACTION_MENU_TEXT_HIE_SHOW_RESOURCES, ORQ_ACTION_STATUSTIP_HIE_SHOW_RESOURCES, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_HIGHLIGHT_NET_ACTION", ORQ_ACTION_MENU_TEXT_HIGHLIGHT_NET, ORQ_ACTION_STATUSTIP_HIGHLIGHT_NET, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_HIGHLIGHT_NET_ICON},
  {"ORQ_HIGHLIGHT_PATH_ACTION", ORQ_ACTION_MENU_TEXT_HIGHLIGHT_PATH, ORQ_ACTION_STATUSTIP_HIGHLIGHT_PATH, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_HIGHLIGHT_PATH_ICON},
  {"ORQ_HIGHLIGHT_SELECTED_ACTION", ORQ_ACTION_MENU_TEXT_HIGHLIGHT_SELECTED, ORQ_ACTION_STATUSTIP_HIGHLIGHT_SELECTED, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_HIGHLIGHT_SELECTED_ICON},
  {"ORQ_HISTORY_ACTION", ORQ_ACTION_MENU_TEXT_HISTORY, ORQ_ACTION_STATUSTIP_HISTORY, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_HISTORY_ICON},
  {"ORQ_IMPORT_ASSIGNMENTS_ACTION", ORQ_ACTION_MENU_TEXT_IMPORT_ASSIGNMENTS, ORQ_ACTION_STATUSTIP_IMPORT_ASSIGNMENTS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_IMPORT_CONSTRAINTS_ACTION", ORQ_ACTION_MENU_TEXT_IMPORT_CONSTRAINTS, ORQ_ACTION_STATUSTIP_IMPORT_CONSTRAINTS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_IMPORT_NETLIST_ACTION", ORQ_ACTION_MENU_TEXT_IMPORT_NETLIST, ORQ_ACTION_STATUSTIP_IMPORT_NETLIST, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_IMPORT_PIN_FILE_ACTION", ORQ_ACTION_MENU_TEXT_IMPORT_PIN_FILE, ORQ_ACTION_STATUSTIP_IMPORT_PIN_FILE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_IMPORT_WAVEFORM_ACTION", ORQ_ACTION_MENU_TEXT_IMPORT_WAVEFORM, ORQ_ACTION_STATUSTIP_IMPORT_WAVEFORM, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_INCREASE_FONT_SIZE_ACTION", ORQ_ACTION_MENU_TEXT_INCREASE_FONT_SIZE, ORQ_ACTION_STATUSTIP_INCREASE_FONT_SIZE, ORQ_ACTION_CUSTOM_SHORTCUT_INCREASE_FONT_SIZE, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_INCREASE_FONT_SIZE_ICON},
  {"ORQ_INSERT_COMMENT_ACTION", ORQ_ACTION_MENU_TEXT_INSERT_COMMENT, ORQ_ACTION_STATUSTIP_INSERT_COMMENT, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_INSERT_SIGNAL_ACTION", ORQ_ACTION_MENU_TEXT_INSERT_SIGNAL, ORQ_ACTION_STATUSTIP_INSERT_SIGNAL, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_INSERT_SIGNAL_ICON},
  {"ORQ_INSERT_TEMPLATE_ACTION", ORQ_ACTION_MENU_TEXT_INSERT_TEMPLATE, ORQ_ACTION_STATUSTIP_INSERT_TEMPLATE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_INSERT_TIME_BAR_ACTION", ORQ_ACTION_MENU_TEXT_INSERT_TIME_BAR, ORQ_ACTION_STATUSTIP_INSERT_TIME_BAR, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_INSERT_TIME_BAR_ICON},
  {"ORQ_INSTANCE_COPY_NAME_ACTION", ORQ_ACTION_MENU_TEXT_INSTANCE_COPY_NAME, ORQ_ACTION_STATUSTIP_INSTANCE_COPY_NAME, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_INSTANCE_GO_TO_DEFINITION_ACTION", ORQ_ACTION_MENU_TEXT_INSTANCE_GO_TO_DEFINITION, ORQ_ACTION_STATUSTIP_INSTANCE_GO_TO_DEFINITION, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_INSTANCE_PROPERTIES_ACTION", ORQ_ACTION_MENU_TEXT_INSTANCE_PROPERTIES, ORQ_ACTION_STATUSTIP_INSTANCE_PROPERTIES, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_INSTANCE_RENAME_ACTION", ORQ_ACTION_MENU_TEXT_INSTANCE_RENAME, ORQ_ACTION_STATUSTIP_INSTANCE_RENAME, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_INSTANCE_SHOW_PORTS_ACTION", ORQ_ACTION_MENU_TEXT_INSTANCE_SHOW_PORTS, ORQ_ACTION_STATUSTIP_INSTANCE_SHOW_PORTS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_INSTANCE_SHOW_RESOURCES_ACTION", ORQ_ACTION_MENU_TEXT_INSTANCE_SHOW_RESOURCES, ORQ_ACTION_STATUSTIP_INSTANCE_SHOW_RESOURCES, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_INSTANCE_UPDATE_ACTION", ORQ_ACTION_MENU_TEXT_INSTANCE_UPDATE, ORQ_ACTION_STATUSTIP_INSTANCE_UPDATE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_INVERT_SELECTION_ACTION", ORQ_ACTION_MENU_TEXT_INVERT_SELECTION, ORQ_ACTION_STATUSTIP_INVERT_SELECTION, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_IO_BANK_PROPERTIES_ACTION", ORQ_ACTION_MENU_TEXT_IO_BANK_PROPERTIES, ORQ_ACTION_STATUSTIP_IO_BANK_PROPERTIES, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_IO_BANK_PROPERTIES_ICON},
  {"ORQ_IPC_ADD_TO_PROJECT_ACTION", ORQ_ACTION_MENU_TEXT_IPC_ADD_TO_PROJECT, ORQ_ACTION_STATUSTIP_IPC_ADD_TO_PROJECT, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_IPC_PARAMETERIZE_ACTION", ORQ_ACTION_MENU_TEXT_IPC_PARAMETERIZE, ORQ_ACTION_STATUSTIP_IPC_PARAMETERIZE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_IPC_REFRESH_CATALOG_ACTION", ORQ_ACTION_MENU_TEXT_IPC_REFRESH_CATALOG, ORQ_ACTION_STATUSTIP_IPC_REFRESH_CATALOG, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_IPC_UPGRADE_IP_ACTION", ORQ_ACTION_MENU_TEXT_IPC_UPGRADE_IP, ORQ_ACTION_STATUSTIP_IPC_UPGRADE_IP, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_JUMP_TO_ERROR_ACTION", ORQ_ACTION_MENU_TEXT_JUMP_TO_ERROR, ORQ_ACTION_STATUSTIP_JUMP_TO_ERROR, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_JUMP_TO_ERROR_ICON},
  {"ORQ_KEYBOARD_SHORTCUTS_ACTION", ORQ_ACTION_MENU_TEXT_KEYBOARD_SHORTCUTS, ORQ_ACTION_STATUSTIP_KEYBOARD_SHORTCUTS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_KEYBOARD_SHORTCUTS_ICON},
  {"ORQ_LAST_PAGE_ACTION", ORQ_ACTION_MENU_TEXT_LAST_PAGE, ORQ_ACTION_STATUSTIP_LAST_PAGE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_LAUNCH_SIMULATION_ACTION", ORQ_ACTION_MENU_TEXT_LAUNCH_SIMULATION, ORQ_ACTION_STATUSTIP_LAUNCH_SIMULATION, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_LAUNCH_SIMULATION_ICON},
  {"ORQ_LAYER_SETTINGS_ACTION", ORQ_ACTION_MENU_TEXT_LAYER_SETTINGS, ORQ_ACTION_STATUSTIP_LAYER_SETTINGS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_LAYER_SETTINGS_ICON},
  {"ORQ_LICENSE_SETUP_ACTION", ORQ_ACTION_MENU_TEXT_LICENSE_SETUP, ORQ_ACTION_STATUSTIP_LICENSE_SETUP, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_LICENSE_SETUP_ICON},
  {"ORQ_LOAD_DATABASE_ACTION", ORQ_ACTION_MENU_TEXT_LOAD_DATABASE, ORQ_ACTION_STATUSTIP_LOAD_DATABASE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_LOAD_DATABASE_ICON},
  {"ORQ_LOAD_SESSION_ACTION", ORQ_ACTION_MENU_TEXT_LOAD_SESSION, ORQ_ACTION_STATUSTIP_LOAD_SESSION, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_LOCATE_IN_ASSIGNMENT_EDITOR_ACTION", ORQ_ACTION_MENU_TEXT_LOCATE_IN_ASSIGNMENT_EDITOR, ORQ_ACTION_STATUSTIP_LOCATE_IN_ASSIGNMENT_EDITOR, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_LOCATE_IN_ASSIGNMENT_EDITOR_ICON},
  {"ORQ_LOCATE_IN_BLOCK_EDITOR_ACTION", ORQ_ACTION_MENU_TEXT_LOCATE_IN_BLOCK_EDITOR, ORQ_ACTION_STATUSTIP_LOCATE_IN_BLOCK_EDITOR, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_LOCATE_IN_BLOCK_EDITOR_ICON},
  {"ORQ_LOCATE_IN_CHIP_PLANNER_ACTION", ORQ_ACTION_MENU_TEXT_LOCATE_IN_CHIP_PLANNER, ORQ_ACTION_STATUSTIP_LOCATE_IN_CHIP_PLANNER, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_LOCATE_IN_CHIP_PLANNER_ICON},
  {"ORQ_LOCATE_IN_CLOCK_PLANNER_ACTION", ORQ_ACTION_MENU_TEXT_LOCATE_IN_CLOCK_PLANNER, ORQ_ACTION_STATUSTIP_LOCATE_IN_CLOCK_PLANNER, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_LOCATE_IN_CLOCK_PLANNER_ICON},
  {"ORQ_LOCATE_IN_DESIGN_FILE_ACTION", ORQ_ACTION_MENU_TEXT_LOCATE_IN_DESIGN_FILE, ORQ_ACTION_STATUSTIP_LOCATE_IN_DESIGN_FILE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_LOCATE_IN_DESIGN_FILE_ICON},
  {"ORQ_LOCATE_IN_FLOORPLAN_VIEWER_ACTION", ORQ_ACTION_MENU_TEXT_LOCATE_IN_FLOORPLAN_VIEWER, ORQ_ACTION_STATUSTIP_LOCATE_IN_FLOORPLAN_VIEWER, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_LOCATE_IN_FLOORPLAN_VIEWER_ICON},
  {"ORQ_LOCATE_IN_HIERARCHY_ACTION", ORQ_ACTION_MENU_TEXT_LOCATE_IN_HIERARCHY, ORQ_ACTION_STATUSTIP_LOCATE_IN_HIERARCHY, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_LOCATE_IN_HIERARCHY_ICON},
  {"ORQ_LOCATE_IN_NETLIST_VIEWER_ACTION", ORQ_ACTION_MENU_TEXT_LOCATE_IN_NETLIST_VIEWER, ORQ_ACTION_STATUSTIP_LOCATE_IN_NETLIST_VIEWER, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_LOCATE_IN_NETLIST_VIEWER_ICON},
  {"ORQ_LOCATE_IN_PIN_PLANNER_ACTION", ORQ_ACTION_MENU_TEXT_LOCATE_IN_PIN_PLANNER, ORQ_ACTION_STATUSTIP_LOCATE_IN_PIN_PLANNER, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_LOCATE_IN_PIN_PLANNER_ICON},
  {"ORQ_LOCATE_IN_POWER_ANALYZER_ACTION", ORQ_ACTION_MENU_TEXT_LOCATE_IN_POWER_ANALYZER, ORQ_ACTION_STATUSTIP_LOCATE_IN_POWER_ANALYZER, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_LOCATE_IN_POWER_ANALYZER_ICON},
  {"ORQ_LOCATE_IN_SIGNAL_DEBUGGER_ACTION", ORQ_ACTION_MENU_TEXT_LOCATE_IN_SIGNAL_DEBUGGER, ORQ_ACTION_STATUSTIP_LOCATE_IN_SIGNAL_DEBUGGER, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_LOCATE_IN_SIGNAL_DEBUGGER_ICON},
  {"ORQ_LOCATE_IN_TIMING_ANALYZER_ACTION", ORQ_ACTION_MENU_TEXT_LOCATE_IN_TIMING_ANALYZER, ORQ_ACTION_STATUSTIP_LOCATE_IN_TIMING_ANALYZER, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_LOCATE_IN_TIMING_ANALYZER_ICON},
  {"ORQ_LOCATE_IN_WAVEFORM_VIEWER_ACTION", ORQ_ACTION_MENU_TEXT_LOCATE_IN_WAVEFORM_VIEWER, ORQ_ACTION_STATUSTIP_LOCATE_IN_WAVEFORM_VIEWER, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_LOCATE_IN_WAVEFORM_VIEWER_ICON},
  {"ORQ_LOCK_ASSIGNMENT_ACTION", ORQ_ACTION_MENU_TEXT_LOCK_ASSIGNMENT, ORQ_ACTION_STATUSTIP_LOCK_ASSIGNMENT, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_LOCK_VIEW_ACTION", ORQ_ACTION_MENU_TEXT_LOCK_VIEW, ORQ_ACTION_STATUSTIP_LOCK_VIEW, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_MACRO_RECORD_ACTION", ORQ_ACTION_MENU_TEXT_MACRO_RECORD, ORQ_ACTION_STATUSTIP_MACRO_RECORD, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_MACRO_RUN_ACTION", ORQ_ACTION_MENU_TEXT_MACRO_RUN, ORQ_ACTION_STATUSTIP_MACRO_RUN, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_MAGNIFYING_TOOL_ACTION", ORQ_ACTION_MENU_TEXT_MAGNIFYING_TOOL, ORQ_ACTION_STATUSTIP_MAGNIFYING_TOOL, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_MAGNIFYING_TOOL_ICON},
  {"ORQ_MARKER_NEXT_ACTION", ORQ_ACTION_MENU_TEXT_MARKER_NEXT, ORQ_ACTION_STATUSTIP_MARKER_NEXT, ORQ_ACTION_CUSTOM_SHORTCUT_MARKER_NEXT, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_MARKER_PREVIOUS_ACTION", ORQ_ACTION_MENU_TEXT_MARKER_PREVIOUS, ORQ_ACTION_STATUSTIP_MARKER_PREVIOUS, ORQ_ACTION_CUSTOM_SHORTCUT_MARKER_PREVIOUS, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_MAXIMIZE_WINDOW_ACTION", ORQ_ACTION_MENU_TEXT_MAXIMIZE_WINDOW, ORQ_ACTION_STATUSTIP_MAXIMIZE_WINDOW, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_MERGE_PARTITIONS_ACTION", ORQ_ACTION_MENU_TEXT_MERGE_PARTITIONS, ORQ_ACTION_STATUSTIP_MERGE_PARTITIONS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_MERGE_PARTITIONS_ICON},
  {"ORQ_MESSAGE_DETAILS_ACTION", ORQ_ACTION_MENU_TEXT_MESSAGE_DETAILS, ORQ_ACTION_STATUSTIP_MESSAGE_DETAILS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_MESSAGE_DETAILS_ICON},
  {"ORQ_MINIMIZE_WINDOW_ACTION", ORQ_ACTION_MENU_TEXT_MINIMIZE_WINDOW, ORQ_ACTION_STATUSTIP_MINIMIZE_WINDOW, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_MODIFY_CONSTRAINT_ACTION", ORQ_ACTION_MENU_TEXT_MODIFY_CONSTRAINT, ORQ_ACTION_STATUSTIP_MODIFY_CONSTRAINT, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_MODIFY_CONSTRAINT_ICON},
  {"ORQ_MORE_WINDOWS_ACTION", ORQ_ACTION_MENU_TEXT_MORE_WINDOWS, ORQ_ACTION_STATUSTIP_MORE_WINDOWS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_MOVE_DOWN_ACTION", ORQ_ACTION_MENU_TEXT_MOVE_DOWN, ORQ_ACTION_STATUSTIP_MOVE_DOWN, ORQ_ACTION_CUSTOM_SHORTCUT_MOVE_DOWN, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_MOVE_DOWN_ICON},
  {"ORQ_MOVE_UP_ACTION", ORQ_ACTION_MENU_TEXT_MOVE_UP, ORQ_ACTION_STATUSTIP_MOVE_UP, ORQ_ACTION_CUSTOM_SHORTCUT_MOVE_UP, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_MOVE_UP_ICON},
  {"ORQ_NAVIGATE_BACK_ACTION", ORQ_ACTION_MENU_TEXT_NAVIGATE_BACK, ORQ_ACTION_STATUSTIP_NAVIGATE_BACK, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_NAVIGATE_FORWARD_ACTION", ORQ_ACTION_MENU_TEXT_NAVIGATE_FORWARD, ORQ_ACTION_STATUSTIP_NAVIGATE_FORWARD, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_NET_PROPERTIES_ACTION", ORQ_ACTION_MENU_TEXT_NET_PROPERTIES, ORQ_ACTION_STATUSTIP_NET_PROPERTIES, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_NEW_ACTION", ORQ_ACTION_MENU_TEXT_NEW, ORQ_ACTION_STATUSTIP_NEW, nullptr, nullptr, nullptr, QKeySequence::New, ORQ_NEW_ICON},
  {"ORQ_NEW_BLOCK_DIAGRAM_ACTION", ORQ_ACTION_MENU_TEXT_NEW_BLOCK_DIAGRAM, ORQ_ACTION_STATUSTIP_NEW_BLOCK_DIAGRAM, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_NEW_BLOCK_DIAGRAM_ICON},
  {"ORQ_NEW_CONSTRAINT_FILE_ACTION", ORQ_ACTION_MENU_TEXT_NEW_CONSTRAINT_FILE, ORQ_ACTION_STATUSTIP_NEW_CONSTRAINT_FILE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_NEW_CONSTRAINT_FILE_ICON},
  {"ORQ_NEW_PROJECT_WIZARD_ACTION", ORQ_ACTION_MENU_TEXT_NEW_PROJECT_WIZARD, ORQ_ACTION_STATUSTIP_NEW_PROJECT_WIZARD, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_NEW_PROJECT_WIZARD_ICON},
  {"ORQ_NEW_SOURCE_FILE_ACTION", ORQ_ACTION_MENU_TEXT_NEW_SOURCE_FILE, ORQ_ACTION_STATUSTIP_NEW_SOURCE_FILE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_NEW_SOURCE_FILE_ICON},
  {"ORQ_NEW_WINDOW_ACTION", ORQ_ACTION_MENU_TEXT_NEW_WINDOW, ORQ_ACTION_STATUSTIP_NEW_WINDOW, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_NEW_WINDOW_ICON},
  {"ORQ_NEXT_EDGE_ACTION", ORQ_ACTION_MENU_TEXT_NEXT_EDGE, ORQ_ACTION_STATUSTIP_NEXT_EDGE, ORQ_ACTION_CUSTOM_SHORTCUT_NEXT_EDGE, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_NEXT_ERROR_ACTION", ORQ_ACTION_MENU_TEXT_NEXT_ERROR, ORQ_ACTION_STATUSTIP_NEXT_ERROR, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_NEXT_PAGE_ACTION", ORQ_ACTION_MENU_TEXT_NEXT_PAGE, ORQ_ACTION_STATUSTIP_NEXT_PAGE, ORQ_ACTION_CUSTOM_SHORTCUT_NEXT_PAGE, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_NEXT_TAB_ACTION", ORQ_ACTION_MENU_TEXT_NEXT_TAB, ORQ_ACTION_STATUSTIP_NEXT_TAB, ORQ_ACTION_CUSTOM_SHORTCUT_NEXT_TAB, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_NEXT_TRANSITION_ACTION", ORQ_ACTION_MENU_TEXT_NEXT_TRANSITION, ORQ_ACTION_STATUSTIP_NEXT_TRANSITION, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_NLV_EXPAND_NET_ACTION", ORQ_ACTION_MENU_TEXT_NLV_EXPAND_NET, ORQ_ACTION_STATUSTIP_NLV_EXPAND_NET, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_NLV_FILTER_NETS_ACTION", ORQ_ACTION_MENU_TEXT_NLV_FILTER_NETS, ORQ_ACTION_STATUSTIP_NLV_FILTER_NETS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_NLV_GROUP_INSTANCES_ACTION", ORQ_ACTION_MENU_TEXT_NLV_GROUP_INSTANCES, ORQ_ACTION_STATUSTIP_NLV_GROUP_INSTANCES, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_NLV_GROUP_INSTANCES_ICON},
  {"ORQ_NLV_SHOW_PATH_ACTION", ORQ_ACTION_MENU_TEXT_NLV_SHOW_PATH, ORQ_ACTION_STATUSTIP_NLV_SHOW_PATH, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_NLV_SHOW_RTL_ACTION", ORQ_ACTION_MENU_TEXT_NLV_SHOW_RTL, ORQ_ACTION_STATUSTIP_NLV_SHOW_RTL, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_NLV_SHOW_RTL_ICON},
  {"ORQ_NLV_SHOW_TECHNOLOGY_MAP_ACTION", ORQ_ACTION_MENU_TEXT_NLV_SHOW_TECHNOLOGY_MAP, ORQ_ACTION_STATUSTIP_NLV_SHOW_TECHNOLOGY_MAP, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_NLV_SHOW_TECHNOLOGY_MAP_ICON},
  {"ORQ_NLV_UNGROUP_INSTANCES_ACTION", ORQ_ACTION_MENU_TEXT_NLV_UNGROUP_INSTANCES, ORQ_ACTION_STATUSTIP_NLV_UNGROUP_INSTANCES, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_NLV_UNGROUP_INSTANCES_ICON},
  {"ORQ_NODE_ADD_TO_GROUP_ACTION", ORQ_ACTION_MENU_TEXT_NODE_ADD_TO_GROUP, ORQ_ACTION_STATUSTIP_NODE_ADD_TO_GROUP, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_NODE_ADD_TO_WATCH_ACTION", ORQ_ACTION_MENU_TEXT_NODE_ADD_TO_WATCH, ORQ_ACTION_STATUSTIP_NODE_ADD_TO_WATCH, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_NODE_ASSIGN_LOCATION_ACTION", ORQ_ACTION_MENU_TEXT_NODE_ASSIGN_LOCATION, ORQ_ACTION_STATUSTIP_NODE_ASSIGN_LOCATION, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_NODE_ASSIGN_PIN_ACTION", ORQ_ACTION_MENU_TEXT_NODE_ASSIGN_PIN, ORQ_ACTION_STATUSTIP_NODE_ASSIGN_PIN, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_NODE_COLLAPSE_ACTION", ORQ_ACTION_MENU_TEXT_NODE_COLLAPSE, ORQ_ACTION_STATUSTIP_NODE_COLLAPSE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_NODE_COPY_ACTION", ORQ_ACTION_MENU_TEXT_NODE_COPY, ORQ_ACTION_STATUSTIP_NODE_COPY, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_NODE_COPY_NAME_ACTION", ORQ_ACTION_MENU_TEXT_NODE_COPY_NAME, ORQ_ACTION_STATUSTIP_NODE_COPY_NAME, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_NODE_CREATE_BUS_ACTION", ORQ_ACTION_MENU_TEXT_NODE_CREATE_BUS, ORQ_ACTION_STATUSTIP_NODE_CREATE_BUS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_NODE_DELETE_ACTION", ORQ_ACTION_MENU_TEXT_NODE_DELETE, ORQ_ACTION_STATUSTIP_NODE_DELETE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_NODE_DISABLE_ACTION", ORQ_ACTION_MENU_TEXT_NODE_DISABLE, ORQ_ACTION_STATUSTIP_NODE_DISABLE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_NODE_ENABLE_ACTION", ORQ_ACTION_MENU_TEXT_NODE_ENABLE, ORQ_ACTION_STATUSTIP_NODE_ENABLE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_NODE_EXPAND_ACTION", ORQ_ACTION_MENU_TEXT_NODE_EXPAND, ORQ_ACTION_STATUSTIP_NODE_EXPAND, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_NODE_FIND_ACTION", ORQ_ACTION_MENU_TEXT_NODE_FIND, ORQ_ACTION_STATUSTIP_NODE_FIND, ORQ_ACTION_CUSTOM_SHORTCUT_NODE_FIND, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_NODE_FIND_ICON},
  {"ORQ_NODE_FIND_DRIVERS_ACTION", ORQ_ACTION_MENU_TEXT_NODE_FIND_DRIVERS, ORQ_ACTION_STATUSTIP_NODE_FIND_DRIVERS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_NODE_FIND_IN_DESIGN_FILE_ACTION", ORQ_ACTION_MENU_TEXT_NODE_FIND_IN_DESIGN_FILE, ORQ_ACTION_STATUSTIP_NODE_FIND_IN_DESIGN_FILE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_NODE_FIND_LOADS_ACTION", ORQ_ACTION_MENU_TEXT_NODE_FIND_LOADS, ORQ_ACTION_STATUSTIP_NODE_FIND_LOADS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_NODE_GROUP_ACTION", ORQ_ACTION_MENU_TEXT_NODE_GROUP, ORQ_ACTION_STATUSTIP_NODE_GROUP, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_NODE_HIGHLIGHT_ACTION", ORQ_ACTION_MENU_TEXT_NODE_HIGHLIGHT, ORQ_ACTION_STATUSTIP_NODE_HIGHLIGHT, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_NODE_INSERT_ABOVE_ACTION", ORQ_ACTION_MENU_TEXT_NODE_INSERT_ABOVE, ORQ_ACTION_STATUSTIP_NODE_INSERT_ABOVE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_NODE_INSERT_BELOW_ACTION", ORQ_ACTION_MENU_TEXT_NODE_INSERT_BELOW, ORQ_ACTION_STATUSTIP_NODE_INSERT_BELOW, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_NODE_INVERT_ACTION", ORQ_ACTION_MENU_TEXT_NODE_INVERT, ORQ_ACTION_STATUSTIP_NODE_INVERT, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_NODE_LOCATE_IN_FLOORPLAN_ACTION", ORQ_ACTION_MENU_TEXT_NODE_LOCATE_IN_FLOORPLAN, ORQ_ACTION_STATUSTIP_NODE_LOCATE_IN_FLOORPLAN, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_NODE_LOCATE_IN_NETLIST_ACTION", ORQ_ACTION_MENU_TEXT_NODE_LOCATE_IN_NETLIST, ORQ_ACTION_STATUSTIP_NODE_LOCATE_IN_NETLIST, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_NODE_LOCATE_IN_SOURCE_ACTION", ORQ_ACTION_MENU_TEXT_NODE_LOCATE_IN_SOURCE, ORQ_ACTION_STATUSTIP_NODE_LOCATE_IN_SOURCE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_NODE_LOCATE_IN_TIMING_ACTION", ORQ_ACTION_MENU_TEXT_NODE_LOCATE_IN_TIMING, ORQ_ACTION_STATUSTIP_NODE_LOCATE_IN_TIMING, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_NODE_MOVE_DOWN_ACTION", ORQ_ACTION_MENU_TEXT_NODE_MOVE_DOWN, ORQ_ACTION_STATUSTIP_NODE_MOVE_DOWN, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_NODE_MOVE_UP_ACTION", ORQ_ACTION_MENU_TEXT_NODE_MOVE_UP, ORQ_ACTION_STATUSTIP_NODE_MOVE_UP, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_NODE_PROPERTIES_ACTION", ORQ_ACTION_MENU_TEXT_NODE_PROPERTIES, ORQ_ACTION_STATUSTIP_NODE_PROPERTIES, ORQ_ACTION_CUSTOM_SHORTCUT_NODE_PROPERTIES, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_NODE_PROPERTIES_ICON},
  {"ORQ_NODE_RADIX_ASCII_ACTION", ORQ_ACTION_MENU_TEXT_NODE_RADIX_ASCII, ORQ_ACTION_STATUSTIP_NODE_RADIX_ASCII, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_NODE_RADIX_BINARY_ACTION", ORQ_ACTION_MENU_TEXT_NODE_RADIX_BINARY, ORQ_ACTION_STATUSTIP_NODE_RADIX_BINARY, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_NODE_RADIX_DECIMAL_ACTION", ORQ_ACTION_MENU_TEXT_NODE_RADIX_DECIMAL, ORQ_ACTION_STATUSTIP_NODE_RADIX_DECIMAL, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_NODE_RADIX_HEX_ACTION", ORQ_ACTION_MENU_TEXT_NODE_RADIX_HEX, ORQ_ACTION_STATUSTIP_NODE_RADIX_HEX, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_NODE_RADIX_OCTAL_ACTION", ORQ_ACTION_MENU_TEXT_NODE_RADIX_OCTAL, ORQ_ACTION_STATUSTIP_NODE_RADIX_OCTAL, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_NODE_RADIX_SIGNED_ACTION", ORQ_ACTION_MENU_TEXT_NODE_RADIX_SIGNED, ORQ_ACTION_STATUSTIP_NODE_RADIX_SIGNED, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_NODE_RADIX_UNSIGNED_ACTION", ORQ_ACTION_MENU_TEXT_NODE_RADIX_UNSIGNED, ORQ_ACTION_STATUSTIP_NODE_RADIX_UNSIGNED, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_NODE_RENAME_ACTION", ORQ_ACTION_MENU_TEXT_NODE_RENAME, ORQ_ACTION_STATUSTIP_NODE_RENAME, ORQ_ACTION_CUSTOM_SHORTCUT_NODE_RENAME, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_NODE_REVERSE_BUS_ORDER_ACTION", ORQ_ACTION_MENU_TEXT_NODE_REVERSE_BUS_ORDER, ORQ_ACTION_STATUSTIP_NODE_REVERSE_BUS_ORDER, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_NODE_SET_CLOCK_ACTION", ORQ_ACTION_MENU_TEXT_NODE_SET_CLOCK, ORQ_ACTION_STATUSTIP_NODE_SET_CLOCK, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_NODE_SET_COUNT_ACTION", ORQ_ACTION_MENU_TEXT_NODE_SET_COUNT, ORQ_ACTION_STATUSTIP_NODE_SET_COUNT, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_NODE_SET_RANDOM_ACTION", ORQ_ACTION_MENU_TEXT_NODE_SET_RANDOM, ORQ_ACTION_STATUSTIP_NODE_SET_RANDOM, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_NODE_SET_VALUE_0_ACTION", ORQ_ACTION_MENU_TEXT_NODE_SET_VALUE_0, ORQ_ACTION_STATUSTIP_NODE_SET_VALUE_0, ORQ_ACTION_CUSTOM_SHORTCUT_NODE_SET_VALUE_0, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_NODE_SET_VALUE_1_ACTION", ORQ_ACTION_MENU_TEXT_NODE_SET_VALUE_1, ORQ_ACTION_STATUSTIP_NODE_SET_VALUE_1, ORQ_ACTION_CUSTOM_SHORTCUT_NODE_SET_VALUE_1, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_NODE_SET_VALUE_X_ACTION", ORQ_ACTION_MENU_TEXT_NODE_SET_VALUE_X, ORQ_ACTION_STATUSTIP_NODE_SET_VALUE_X, ORQ_ACTION_CUSTOM_SHORTCUT_NODE_SET_VALUE_X, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_NODE_SET_VALUE_Z_ACTION", ORQ_ACTION_MENU_TEXT_NODE_SET_VALUE_Z, ORQ_ACTION_STATUSTIP_NODE_SET_VALUE_Z, ORQ_ACTION_CUSTOM_SHORTCUT_NODE_SET_VALUE_Z, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_NODE_SHOW_FANIN_ACTION", ORQ_ACTION_MENU_TEXT_NODE_SHOW_FANIN, ORQ_ACTION_STATUSTIP_NODE_SHOW_FANIN, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_NODE_SHOW_FANOUT_ACTION", ORQ_ACTION_MENU_TEXT_NODE_SHOW_FANOUT, ORQ_ACTION_STATUSTIP_NODE_SHOW_FANOUT, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_NODE_SORT_ASCENDING_ACTION", ORQ_ACTION_MENU_TEXT_NODE_SORT_ASCENDING, ORQ_ACTION_STATUSTIP_NODE_SORT_ASCENDING, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_NODE_SORT_DESCENDING_ACTION", ORQ_ACTION_MENU_TEXT_NODE_SORT_DESCENDING, ORQ_ACTION_STATUSTIP_NODE_SORT_DESCENDING, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_NODE_TRACE_BACK_ACTION", ORQ_ACTION_MENU_TEXT_NODE_TRACE_BACK, ORQ_ACTION_STATUSTIP_NODE_TRACE_BACK, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_NODE_TRACE_FORWARD_ACTION", ORQ_ACTION_MENU_TEXT_NODE_TRACE_FORWARD, ORQ_ACTION_STATUSTIP_NODE_TRACE_FORWARD, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_NODE_UNGROUP_ACTION", ORQ_ACTION_MENU_TEXT_NODE_UNGROUP, ORQ_ACTION_STATUSTIP_NODE_UNGROUP, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_NODE_UNHIGHLIGHT_ACTION", ORQ_ACTION_MENU_TEXT_NODE_UNHIGHLIGHT, ORQ_ACTION_STATUSTIP_NODE_UNHIGHLIGHT, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_NODE_VIEW_IN_WAVEFORM_ACTION", ORQ_ACTION_MENU_TEXT_NODE_VIEW_IN_WAVEFORM, ORQ_ACTION_STATUSTIP_NODE_VIEW_IN_WAVEFORM, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_NODE_WATCH_ACTION", ORQ_ACTION_MENU_TEXT_NODE_WATCH, ORQ_ACTION_STATUSTIP_NODE_WATCH, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_NOTIFICATION_CENTER_ACTION", ORQ_ACTION_MENU_TEXT_NOTIFICATION_CENTER, ORQ_ACTION_STATUSTIP_NOTIFICATION_CENTER, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_NOTIFICATION_CENTER_ICON},
  {"ORQ_NUMBER_FORMAT_BINARY_ACTION", ORQ_ACTION_MENU_TEXT_NUMBER_FORMAT_BINARY, ORQ_ACTION_STATUSTIP_NUMBER_FORMAT_BINARY, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_NUMBER_FORMAT_DECIMAL_ACTION", ORQ_ACTION_MENU_TEXT_NUMBER_FORMAT_DECIMAL, ORQ_ACTION_STATUSTIP_NUMBER_FORMAT_DECIMAL, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_NUMBER_FORMAT_HEXADECIMAL_ACTION", ORQ_ACTION_MENU_TEXT_NUMBER_FORMAT_HEXADECIMAL, ORQ_ACTION_STATUSTIP_NUMBER_FORMAT_HEXADECIMAL, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_NUMBER_FORMAT_OCTAL_ACTION", ORQ_ACTION_MENU_TEXT_NUMBER_FORMAT_OCTAL, ORQ_ACTION_STATUSTIP_NUMBER_FORMAT_OCTAL, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_NUMBER_FORMAT_SIGNED_ACTION", ORQ_ACTION_MENU_TEXT_NUMBER_FORMAT_SIGNED, ORQ_ACTION_STATUSTIP_NUMBER_FORMAT_SIGNED, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_OBJECT_PROPERTIES_ACTION", ORQ_ACTION_MENU_TEXT_OBJECT_PROPERTIES, ORQ_ACTION_STATUSTIP_OBJECT_PROPERTIES, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_OBJECT_PROPERTIES_ICON},
  {"ORQ_OFFLINE_DOCUMENTATION_ACTION", ORQ_ACTION_MENU_TEXT_OFFLINE_DOCUMENTATION, ORQ_ACTION_STATUSTIP_OFFLINE_DOCUMENTATION, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_OFFLINE_DOCUMENTATION_ICON},
  {"ORQ_ON_CHIP_DEBUG_ACTION", ORQ_ACTION_MENU_TEXT_ON_CHIP_DEBUG, ORQ_ACTION_STATUSTIP_ON_CHIP_DEBUG, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ON_CHIP_DEBUG_ICON},
  {"ORQ_OPEN_ACTION", ORQ_ACTION_MENU_TEXT_OPEN, ORQ_ACTION_STATUSTIP_OPEN, nullptr, nullptr, nullptr, QKeySequence::Open, ORQ_OPEN_ICON},
  {"ORQ_OPEN_FILE_LOCATION_ACTION", ORQ_ACTION_MENU_TEXT_OPEN_FILE_LOCATION, ORQ_ACTION_STATUSTIP_OPEN_FILE_LOCATION, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_OPEN_FILE_LOCATION_ICON},
  {"ORQ_OPEN_PROJECT_ACTION", ORQ_ACTION_MENU_TEXT_OPEN_PROJECT, ORQ_ACTION_STATUSTIP_OPEN_PROJECT, ORQ_ACTION_CUSTOM_SHORTCUT_OPEN_PROJECT, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_OPEN_PROJECT_ICON},
  {"ORQ_OPEN_PROPERTIES_ACTION", ORQ_ACTION_MENU_TEXT_OPEN_PROPERTIES, ORQ_ACTION_STATUSTIP_OPEN_PROPERTIES, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_OPEN_PROPERTIES_ICON},
  {"ORQ_OPEN_RECENT_PROJECT_ACTION", ORQ_ACTION_MENU_TEXT_OPEN_RECENT_PROJECT, ORQ_ACTION_STATUSTIP_OPEN_RECENT_PROJECT, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_OPEN_RECENT_PROJECT_ICON},
  {"ORQ_OPTIMIZE_DESIGN_ACTION", ORQ_ACTION_MENU_TEXT_OPTIMIZE_DESIGN, ORQ_ACTION_STATUSTIP_OPTIMIZE_DESIGN, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_OPTIMIZE_DESIGN_ICON},
  {"ORQ_OPTIONS_ACTION", ORQ_ACTION_MENU_TEXT_OPTIONS, ORQ_ACTION_STATUSTIP_OPTIONS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_OPTIONS_ICON},
  {"ORQ_OUTPUT_FILES_ACTION", ORQ_ACTION_MENU_TEXT_OUTPUT_FILES, ORQ_ACTION_STATUSTIP_OUTPUT_FILES, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_OUTPUT_FILES_ICON},
  {"ORQ_PAGE_SETUP_ACTION", ORQ_ACTION_MENU_TEXT_PAGE_SETUP, ORQ_ACTION_STATUSTIP_PAGE_SETUP, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_PAGE_SETUP_ICON},
  {"ORQ_PAN_TOOL_ACTION", ORQ_ACTION_MENU_TEXT_PAN_TOOL, ORQ_ACTION_STATUSTIP_PAN_TOOL, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_PAN_TOOL_ICON},
  {"ORQ_PASTE_ACTION", ORQ_ACTION_MENU_TEXT_PASTE, ORQ_ACTION_STATUSTIP_PASTE, nullptr, nullptr, nullptr, QKeySequence::Paste, ORQ_PASTE_ICON},
  {"ORQ_PASTE_SPECIAL_ACTION", ORQ_ACTION_MENU_TEXT_PASTE_SPECIAL, ORQ_ACTION_STATUSTIP_PASTE_SPECIAL, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_PASTE_SPECIAL_ICON},
  {"ORQ_PAUSE_SIMULATION_ACTION", ORQ_ACTION_MENU_TEXT_PAUSE_SIMULATION, ORQ_ACTION_STATUSTIP_PAUSE_SIMULATION, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_PAUSE_SIMULATION_ICON},
  {"ORQ_PERFORMANCE_PROFILER_ACTION", ORQ_ACTION_MENU_TEXT_PERFORMANCE_PROFILER, ORQ_ACTION_STATUSTIP_PERFORMANCE_PROFILER, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_PHYSICAL_VIEW_ACTION", ORQ_ACTION_MENU_TEXT_PHYSICAL_VIEW, ORQ_ACTION_STATUSTIP_PHYSICAL_VIEW, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_PIN_PLANNER_ACTION", ORQ_ACTION_MENU_TEXT_PIN_PLANNER, ORQ_ACTION_STATUSTIP_PIN_PLANNER, ORQ_ACTION_CUSTOM_SHORTCUT_PIN_PLANNER, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_PIN_PLANNER_ICON},
  {"ORQ_PKG_ASSIGN_DIFFERENTIAL_PAIR_ACTION", ORQ_ACTION_MENU_TEXT_PKG_ASSIGN_DIFFERENTIAL_PAIR, ORQ_ACTION_STATUSTIP_PKG_ASSIGN_DIFFERENTIAL_PAIR, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_PKG_ASSIGN_DIFFERENTIAL_PAIR_ICON},
  {"ORQ_PKG_SHOW_BANKS_ACTION", ORQ_ACTION_MENU_TEXT_PKG_SHOW_BANKS, ORQ_ACTION_STATUSTIP_PKG_SHOW_BANKS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_PKG_SHOW_BANKS_ICON},
  {"ORQ_PKG_SHOW_BOTTOM_VIEW_ACTION", ORQ_ACTION_MENU_TEXT_PKG_SHOW_BOTTOM_VIEW, ORQ_ACTION_STATUSTIP_PKG_SHOW_BOTTOM_VIEW, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_PKG_SHOW_BOTTOM_VIEW_ICON},
  {"ORQ_PKG_SHOW_DIFFERENTIAL_PAIRS_ACTION", ORQ_ACTION_MENU_TEXT_PKG_SHOW_DIFFERENTIAL_PAIRS, ORQ_ACTION_STATUSTIP_PKG_SHOW_DIFFERENTIAL_PAIRS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_PKG_SHOW_DIFFERENTIAL_PAIRS_ICON},
  {"ORQ_PKG_SHOW_TOP_VIEW_ACTION", ORQ_ACTION_MENU_TEXT_PKG_SHOW_TOP_VIEW, ORQ_ACTION_STATUSTIP_PKG_SHOW_TOP_VIEW, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_PKG_SHOW_TOP_VIEW_ICON},
  {"ORQ_PKG_SHOW_VREF_GROUPS_ACTION", ORQ_ACTION_MENU_TEXT_PKG_SHOW_VREF_GROUPS, ORQ_ACTION_STATUSTIP_PKG_SHOW_VREF_GROUPS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_PKG_SHOW_VREF_GROUPS_ICON},
  {"ORQ_PKG_SWAP_PINS_ACTION", ORQ_ACTION_MENU_TEXT_PKG_SWAP_PINS, ORQ_ACTION_STATUSTIP_PKG_SWAP_PINS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_PKG_SWAP_PINS_ICON},
  {"ORQ_PLACE_BLOCK_ACTION", ORQ_ACTION_MENU_TEXT_PLACE_BLOCK, ORQ_ACTION_STATUSTIP_PLACE_BLOCK, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_PLACE_BLOCK_ICON},
  {"ORQ_PLACE_PIN_ACTION", ORQ_ACTION_MENU_TEXT_PLACE_PIN, ORQ_ACTION_STATUSTIP_PLACE_PIN, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_PLACE_REGION_ACTION", ORQ_ACTION_MENU_TEXT_PLACE_REGION, ORQ_ACTION_STATUSTIP_PLACE_REGION, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_PLACE_REGION_ICON},
  {"ORQ_PORT_PROPERTIES_ACTION", ORQ_ACTION_MENU_TEXT_PORT_PROPERTIES, ORQ_ACTION_STATUSTIP_PORT_PROPERTIES, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_POWER_ANALYZER_ACTION", ORQ_ACTION_MENU_TEXT_POWER_ANALYZER, ORQ_ACTION_STATUSTIP_POWER_ANALYZER, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_POWER_ANALYZER_ICON},
  {"ORQ_PRESERVE_REGISTERS_ACTION", ORQ_ACTION_MENU_TEXT_PRESERVE_REGISTERS, ORQ_ACTION_STATUSTIP_PRESERVE_REGISTERS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_PRESERVE_REGISTERS_ICON},
  {"ORQ_PREVIOUS_EDGE_ACTION", ORQ_ACTION_MENU_TEXT_PREVIOUS_EDGE, ORQ_ACTION_STATUSTIP_PREVIOUS_EDGE, ORQ_ACTION_CUSTOM_SHORTCUT_PREVIOUS_EDGE, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_PREVIOUS_ERROR_ACTION", ORQ_ACTION_MENU_TEXT_PREVIOUS_ERROR, ORQ_ACTION_STATUSTIP_PREVIOUS_ERROR, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_PREVIOUS_PAGE_ACTION", ORQ_ACTION_MENU_TEXT_PREVIOUS_PAGE, ORQ_ACTION_STATUSTIP_PREVIOUS_PAGE, ORQ_ACTION_CUSTOM_SHORTCUT_PREVIOUS_PAGE, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_PREVIOUS_TAB_ACTION", ORQ_ACTION_MENU_TEXT_PREVIOUS_TAB, ORQ_ACTION_STATUSTIP_PREVIOUS_TAB, ORQ_ACTION_CUSTOM_SHORTCUT_PREVIOUS_TAB, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_PREVIOUS_TRANSITION_ACTION", ORQ_ACTION_MENU_TEXT_PREVIOUS_TRANSITION, ORQ_ACTION_STATUSTIP_PREVIOUS_TRANSITION, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_PRINT_ACTION", ORQ_ACTION_MENU_TEXT_PRINT, ORQ_ACTION_STATUSTIP_PRINT, nullptr, nullptr, nullptr, QKeySequence::Print, ORQ_PRINT_ICON},
  {"ORQ_PRINT_ALL_ACTION", ORQ_ACTION_MENU_TEXT_PRINT_ALL, ORQ_ACTION_STATUSTIP_PRINT_ALL, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_PRINT_ALL_ICON},
  {"ORQ_PRINT_CURRENT_VIEW_ACTION", ORQ_ACTION_MENU_TEXT_PRINT_CURRENT_VIEW, ORQ_ACTION_STATUSTIP_PRINT_CURRENT_VIEW, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_PRINT_CURRENT_VIEW_ICON},
  {"ORQ_PRINT_PREVIEW_ACTION", ORQ_ACTION_MENU_TEXT_PRINT_PREVIEW, ORQ_ACTION_STATUSTIP_PRINT_PREVIEW, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_PRINT_PREVIEW_ICON},
  {"ORQ_PRINT_SELECTION_ACTION", ORQ_ACTION_MENU_TEXT_PRINT_SELECTION, ORQ_ACTION_STATUSTIP_PRINT_SELECTION, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_PROGRAMMER_ACTION", ORQ_ACTION_MENU_TEXT_PROGRAMMER, ORQ_ACTION_STATUSTIP_PROGRAMMER, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_PROGRAMMER_ICON},
  {"ORQ_PROGRAM_DEVICE_ACTION", ORQ_ACTION_MENU_TEXT_PROGRAM_DEVICE, ORQ_ACTION_STATUSTIP_PROGRAM_DEVICE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_PROGRAM_DEVICE_ICON},
  {"ORQ_PROJECT_ADD_FILES_ACTION", ORQ_ACTION_MENU_TEXT_PROJECT_ADD_FILES, ORQ_ACTION_STATUSTIP_PROJECT_ADD_FILES, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_PROJECT_CLEAN_ACTION", ORQ_ACTION_MENU_TEXT_PROJECT_CLEAN, ORQ_ACTION_STATUSTIP_PROJECT_CLEAN, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_PROJECT_COPY_ACTION", ORQ_ACTION_MENU_TEXT_PROJECT_COPY, ORQ_ACTION_STATUSTIP_PROJECT_COPY, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_PROJECT_NAVIGATOR_ACTION", ORQ_ACTION_MENU_TEXT_PROJECT_NAVIGATOR, ORQ_ACTION_STATUSTIP_PROJECT_NAVIGATOR, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_PROJECT_NAVIGATOR_ICON},
  {"ORQ_PROJECT_REMOVE_FILE_ACTION", ORQ_ACTION_MENU_TEXT_PROJECT_REMOVE_FILE, ORQ_ACTION_STATUSTIP_PROJECT_REMOVE_FILE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_PROJECT_RESTORE_ARCHIVE_ACTION", ORQ_ACTION_MENU_TEXT_PROJECT_RESTORE_ARCHIVE, ORQ_ACTION_STATUSTIP_PROJECT_RESTORE_ARCHIVE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_PROJECT_REVISIONS_ACTION", ORQ_ACTION_MENU_TEXT_PROJECT_REVISIONS, ORQ_ACTION_STATUSTIP_PROJECT_REVISIONS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_PROJECT_SETTINGS_ACTION", ORQ_ACTION_MENU_TEXT_PROJECT_SETTINGS, ORQ_ACTION_STATUSTIP_PROJECT_SETTINGS, ORQ_ACTION_CUSTOM_SHORTCUT_PROJECT_SETTINGS, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_PROJECT_SETTINGS_ICON},
  {"ORQ_PROJECT_SET_AS_TOP_LEVEL_ACTION", ORQ_ACTION_MENU_TEXT_PROJECT_SET_AS_TOP_LEVEL, ORQ_ACTION_STATUSTIP_PROJECT_SET_AS_TOP_LEVEL, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_PROJECT_SHOW_FILES_ACTION", ORQ_ACTION_MENU_TEXT_PROJECT_SHOW_FILES, ORQ_ACTION_STATUSTIP_PROJECT_SHOW_FILES, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_PROJECT_SHOW_HIERARCHY_ACTION", ORQ_ACTION_MENU_TEXT_PROJECT_SHOW_HIERARCHY, ORQ_ACTION_STATUSTIP_PROJECT_SHOW_HIERARCHY, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_PROMOTE_ASSIGNMENTS_ACTION", ORQ_ACTION_MENU_TEXT_PROMOTE_ASSIGNMENTS, ORQ_ACTION_STATUSTIP_PROMOTE_ASSIGNMENTS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_PROMOTE_ASSIGNMENTS_ICON},
  {"ORQ_PROPAGATE_CONSTRAINTS_ACTION", ORQ_ACTION_MENU_TEXT_PROPAGATE_CONSTRAINTS, ORQ_ACTION_STATUSTIP_PROPAGATE_CONSTRAINTS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_PROPAGATE_CONSTRAINTS_ICON},
  {"ORQ_PWR_EARLY_ESTIMATE_ACTION", ORQ_ACTION_MENU_TEXT_PWR_EARLY_ESTIMATE, ORQ_ACTION_STATUSTIP_PWR_EARLY_ESTIMATE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_VANTOR_HELP_ACTION", ORQ_ACTION_MENU_TEXT_VANTOR_HELP, ORQ_ACTION_STATUSTIP_VANTOR_HELP, nullptr, nullptr, ORQ_ACTION_TOOLTIP_VANTOR_HELP, QKeySequence::UnknownKey, ORQ_VANTOR_HELP_ICON},
  {"ORQ_PWR_LOAD_ACTIVITY_FILE_ACTION", ORQ_ACTION_MENU_TEXT_PWR_LOAD_ACTIVITY_FILE, ORQ_ACTION_STATUSTIP_PWR_LOAD_ACTIVITY_FILE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_PWR_SHOW_RAIL_SUMMARY_ACTION", ORQ_ACTION_MENU_TEXT_PWR_SHOW_RAIL_SUMMARY, ORQ_ACTION_STATUSTIP_PWR_SHOW_RAIL_SUMMARY, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_PWR_SHOW_THERMAL_MAP_ACTION", ORQ_ACTION_MENU_TEXT_PWR_SHOW_THERMAL_MAP, ORQ_ACTION_STATUSTIP_PWR_SHOW_THERMAL_MAP, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_PWR_SHOW_THERMAL_MAP_ICON},
  {"ORQ_QUICK_ACCESS_ACTION", ORQ_ACTION_MENU_TEXT_QUICK_ACCESS, ORQ_ACTION_STATUSTIP_QUICK_ACCESS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_READ_ONLY_ACTION", ORQ_ACTION_MENU_TEXT_READ_ONLY, ORQ_ACTION_STATUSTIP_READ_ONLY, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_RECENT_FILES_ACTION", ORQ_ACTION_MENU_TEXT_RECENT_FILES, ORQ_ACTION_STATUSTIP_RECENT_FILES, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_RECENT_PROJECTS_ACTION", ORQ_ACTION_MENU_TEXT_RECENT_PROJECTS, ORQ_ACTION_STATUSTIP_RECENT_PROJECTS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_RECOMPILE_ACTION", ORQ_ACTION_MENU_TEXT_RECOMPILE, ORQ_ACTION_STATUSTIP_RECOMPILE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_RECOMPILE_ICON},
  {"ORQ_RECOVER_DATABASE_ACTION", ORQ_ACTION_MENU_TEXT_RECOVER_DATABASE, ORQ_ACTION_STATUSTIP_RECOVER_DATABASE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_RECOVER_DATABASE_ICON},
  {"ORQ_REDO_ACTION", ORQ_ACTION_MENU_TEXT_REDO, ORQ_ACTION_STATUSTIP_REDO, nullptr, nullptr, nullptr, QKeySequence::Redo, ORQ_REDO_ICON},
  {"ORQ_REDO_ALL_ACTION", ORQ_ACTION_MENU_TEXT_REDO_ALL, ORQ_ACTION_STATUSTIP_REDO_ALL, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_REDRAW_ACTION", ORQ_ACTION_MENU_TEXT_REDRAW, ORQ_ACTION_STATUSTIP_REDRAW, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_REFRESH_ACTION", ORQ_ACTION_MENU_TEXT_REFRESH, ORQ_ACTION_STATUSTIP_REFRESH, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_REFRESH_ICON},
  {"ORQ_REFRESH_ALL_ACTION", ORQ_ACTION_MENU_TEXT_REFRESH_ALL, ORQ_ACTION_STATUSTIP_REFRESH_ALL, ORQ_ACTION_CUSTOM_SHORTCUT_REFRESH_ALL, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_REFRESH_ALL_ICON},
  {"ORQ_REGENERATE_FLOORPLAN_ACTION", ORQ_ACTION_MENU_TEXT_REGENERATE_FLOORPLAN, ORQ_ACTION_STATUSTIP_REGENERATE_FLOORPLAN, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_REGENERATE_FLOORPLAN_ICON},
  {"ORQ_REGION_PROPERTIES_ACTION", ORQ_ACTION_MENU_TEXT_REGION_PROPERTIES, ORQ_ACTION_STATUSTIP_REGION_PROPERTIES, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_RELOAD_FILE_ACTION", ORQ_ACTION_MENU_TEXT_RELOAD_FILE, ORQ_ACTION_STATUSTIP_RELOAD_FILE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_RELOAD_FILE_ICON},
  {"ORQ_REMOVE_ALL_BREAKPOINTS_ACTION", ORQ_ACTION_MENU_TEXT_REMOVE_ALL_BREAKPOINTS, ORQ_ACTION_STATUSTIP_REMOVE_ALL_BREAKPOINTS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_REMOVE_ASSIGNMENT_ACTION", ORQ_ACTION_MENU_TEXT_REMOVE_ASSIGNMENT, ORQ_ACTION_STATUSTIP_REMOVE_ASSIGNMENT, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_REMOVE_FROM_PROJECT_ACTION", ORQ_ACTION_MENU_TEXT_REMOVE_FROM_PROJECT, ORQ_ACTION_STATUSTIP_REMOVE_FROM_PROJECT, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_REMOVE_SIGNAL_ACTION", ORQ_ACTION_MENU_TEXT_REMOVE_SIGNAL, ORQ_ACTION_STATUSTIP_REMOVE_SIGNAL, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_RENAME_ACTION", ORQ_ACTION_MENU_TEXT_RENAME, ORQ_ACTION_STATUSTIP_RENAME, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_RENAME_ICON},
  {"ORQ_REOPEN_LAST_CLOSED_ACTION", ORQ_ACTION_MENU_TEXT_REOPEN_LAST_CLOSED, ORQ_ACTION_STATUSTIP_REOPEN_LAST_CLOSED, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_REPLACE_ACTION", ORQ_ACTION_MENU_TEXT_REPLACE, ORQ_ACTION_STATUSTIP_REPLACE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_REPORT_CLOCKS_ACTION", ORQ_ACTION_MENU_TEXT_REPORT_CLOCKS, ORQ_ACTION_STATUSTIP_REPORT_CLOCKS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_REPORT_DATASHEET_ACTION", ORQ_ACTION_MENU_TEXT_REPORT_DATASHEET, ORQ_ACTION_STATUSTIP_REPORT_DATASHEET, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_REPORT_FMAX_ACTION", ORQ_ACTION_MENU_TEXT_REPORT_FMAX, ORQ_ACTION_STATUSTIP_REPORT_FMAX, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_REPORT_PATH_ACTION", ORQ_ACTION_MENU_TEXT_REPORT_PATH, ORQ_ACTION_STATUSTIP_REPORT_PATH, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_REPORT_RESOURCE_USAGE_ACTION", ORQ_ACTION_MENU_TEXT_REPORT_RESOURCE_USAGE, ORQ_ACTION_STATUSTIP_REPORT_RESOURCE_USAGE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_REPORT_TIMING_ACTION", ORQ_ACTION_MENU_TEXT_REPORT_TIMING, ORQ_ACTION_STATUSTIP_REPORT_TIMING, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_REPORT_UNCONSTRAINED_PATHS_ACTION", ORQ_ACTION_MENU_TEXT_REPORT_UNCONSTRAINED_PATHS, ORQ_ACTION_STATUSTIP_REPORT_UNCONSTRAINED_PATHS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_RERUN_ANALYSIS_ACTION", ORQ_ACTION_MENU_TEXT_RERUN_ANALYSIS, ORQ_ACTION_STATUSTIP_RERUN_ANALYSIS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_RERUN_ANALYSIS_ICON},
  {"ORQ_RESET_LAYOUT_ACTION", ORQ_ACTION_MENU_TEXT_RESET_LAYOUT, ORQ_ACTION_STATUSTIP_RESET_LAYOUT, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_RESET_VIEW_ACTION", ORQ_ACTION_MENU_TEXT_RESET_VIEW, ORQ_ACTION_STATUSTIP_RESET_VIEW, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_RESET_ZOOM_ACTION", ORQ_ACTION_MENU_TEXT_RESET_ZOOM, ORQ_ACTION_STATUSTIP_RESET_ZOOM, ORQ_ACTION_CUSTOM_SHORTCUT_RESET_ZOOM, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_RESTART_SIMULATION_ACTION", ORQ_ACTION_MENU_TEXT_RESTART_SIMULATION, ORQ_ACTION_STATUSTIP_RESTART_SIMULATION, ORQ_ACTION_CUSTOM_SHORTCUT_RESTART_SIMULATION, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_RESTART_SIMULATION_ICON},
  {"ORQ_RESTORE_DEFAULTS_ACTION", ORQ_ACTION_MENU_TEXT_RESTORE_DEFAULTS, ORQ_ACTION_STATUSTIP_RESTORE_DEFAULTS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_RESTORE_WINDOW_ACTION", ORQ_ACTION_MENU_TEXT_RESTORE_WINDOW, ORQ_ACTION_STATUSTIP_RESTORE_WINDOW, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_RESUME_SIMULATION_ACTION", ORQ_ACTION_MENU_TEXT_RESUME_SIMULATION, ORQ_ACTION_STATUSTIP_RESUME_SIMULATION, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_RESUME_SIMULATION_ICON},
  {"ORQ_REVERT_FILE_ACTION", ORQ_ACTION_MENU_TEXT_REVERT_FILE, ORQ_ACTION_STATUSTIP_REVERT_FILE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_REVERT_FILE_ICON},
  {"ORQ_ROTATE_CLOCKWISE_ACTION", ORQ_ACTION_MENU_TEXT_ROTATE_CLOCKWISE, ORQ_ACTION_STATUSTIP_ROTATE_CLOCKWISE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_ROTATE_COUNTERCLOCKWISE_ACTION", ORQ_ACTION_MENU_TEXT_ROTATE_COUNTERCLOCKWISE, ORQ_ACTION_STATUSTIP_ROTATE_COUNTERCLOCKWISE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_RPT_COLLAPSE_SECTIONS_ACTION", ORQ_ACTION_MENU_TEXT_RPT_COLLAPSE_SECTIONS, ORQ_ACTION_STATUSTIP_RPT_COLLAPSE_SECTIONS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_RPT_EXPAND_SECTIONS_ACTION", ORQ_ACTION_MENU_TEXT_RPT_EXPAND_SECTIONS, ORQ_ACTION_STATUSTIP_RPT_EXPAND_SECTIONS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_RPT_SAVE_TABLE_ACTION", ORQ_ACTION_MENU_TEXT_RPT_SAVE_TABLE, ORQ_ACTION_STATUSTIP_RPT_SAVE_TABLE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_RPT_SAVE_TABLE_ICON},
  {"ORQ_RTL_VIEWER_ACTION", ORQ_ACTION_MENU_TEXT_RTL_VIEWER, ORQ_ACTION_STATUSTIP_RTL_VIEWER, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_RTL_VIEWER_ICON},
  {"ORQ_RULER_ACTION", ORQ_ACTION_MENU_TEXT_RULER, ORQ_ACTION_STATUSTIP_RULER, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_RULER_ICON},
  {"ORQ_RUN_ALL_ACTION", ORQ_ACTION_MENU_TEXT_RUN_ALL, ORQ_ACTION_STATUSTIP_RUN_ALL, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_RUN_ALL_ICON},
  {"ORQ_RUN_SCRIPT_ACTION", ORQ_ACTION_MENU_TEXT_RUN_SCRIPT, ORQ_ACTION_STATUSTIP_RUN_SCRIPT, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_RUN_SCRIPT_ICON},
  {"ORQ_RUN_TO_CURSOR_ACTION", ORQ_ACTION_MENU_TEXT_RUN_TO_CURSOR, ORQ_ACTION_STATUSTIP_RUN_TO_CURSOR, ORQ_ACTION_CUSTOM_SHORTCUT_RUN_TO_CURSOR, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_RUN_TO_CURSOR_ICON},
  {"ORQ_SAMPLE_NOW_ACTION", ORQ_ACTION_MENU_TEXT_SAMPLE_NOW, ORQ_ACTION_STATUSTIP_SAMPLE_NOW, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_SAMPLE_NOW_ICON},
  {"ORQ_SAVE_ACTION", ORQ_ACTION_MENU_TEXT_SAVE, ORQ_ACTION_STATUSTIP_SAVE, nullptr, nullptr, nullptr, QKeySequence::Save, ORQ_SAVE_ICON},
  {"ORQ_SAVE_ALL_ACTION", ORQ_ACTION_MENU_TEXT_SAVE_ALL, ORQ_ACTION_STATUSTIP_SAVE_ALL, ORQ_ACTION_CUSTOM_SHORTCUT_SAVE_ALL, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_SAVE_ALL_ICON},
  {"ORQ_SAVE_AS_ACTION", ORQ_ACTION_MENU_TEXT_SAVE_AS, ORQ_ACTION_STATUSTIP_SAVE_AS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_SAVE_AS_ICON},
  {"ORQ_SAVE_COPY_AS_ACTION", ORQ_ACTION_MENU_TEXT_SAVE_COPY_AS, ORQ_ACTION_STATUSTIP_SAVE_COPY_AS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_SAVE_COPY_AS_ICON},
  {"ORQ_SAVE_PROJECT_ACTION", ORQ_ACTION_MENU_TEXT_SAVE_PROJECT, ORQ_ACTION_STATUSTIP_SAVE_PROJECT, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_SAVE_PROJECT_ICON},
  {"ORQ_SAVE_SESSION_ACTION", ORQ_ACTION_MENU_TEXT_SAVE_SESSION, ORQ_ACTION_STATUSTIP_SAVE_SESSION, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SCREENSHOT_ACTION", ORQ_ACTION_MENU_TEXT_SCREENSHOT, ORQ_ACTION_STATUSTIP_SCREENSHOT, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SCROLL_TO_CURSOR_ACTION", ORQ_ACTION_MENU_TEXT_SCROLL_TO_CURSOR, ORQ_ACTION_STATUSTIP_SCROLL_TO_CURSOR, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SEARCH_HELP_ACTION", ORQ_ACTION_MENU_TEXT_SEARCH_HELP, ORQ_ACTION_STATUSTIP_SEARCH_HELP, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_SEARCH_HELP_ICON},
  {"ORQ_SEARCH_IN_FILES_ACTION", ORQ_ACTION_MENU_TEXT_SEARCH_IN_FILES, ORQ_ACTION_STATUSTIP_SEARCH_IN_FILES, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_SEARCH_IN_FILES_ICON},
  {"ORQ_SELECTED_ONLY_ACTION", ORQ_ACTION_MENU_TEXT_SELECTED_ONLY, ORQ_ACTION_STATUSTIP_SELECTED_ONLY, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SELECTION_FILTER_ACTION", ORQ_ACTION_MENU_TEXT_SELECTION_FILTER, ORQ_ACTION_STATUSTIP_SELECTION_FILTER, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_SELECTION_FILTER_ICON},
  {"ORQ_SELECTION_TOOL_ACTION", ORQ_ACTION_MENU_TEXT_SELECTION_TOOL, ORQ_ACTION_STATUSTIP_SELECTION_TOOL, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_SELECTION_TOOL_ICON},
  {"ORQ_SELECT_ALL_ACTION", ORQ_ACTION_MENU_TEXT_SELECT_ALL, ORQ_ACTION_STATUSTIP_SELECT_ALL, nullptr, nullptr, nullptr, QKeySequence::SelectAll, ORQ_SELECT_ALL_ICON},
  {"ORQ_SELECT_ALL_NETS_ACTION", ORQ_ACTION_MENU_TEXT_SELECT_ALL_NETS, ORQ_ACTION_STATUSTIP_SELECT_ALL_NETS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SELECT_CONNECTED_ACTION", ORQ_ACTION_MENU_TEXT_SELECT_CONNECTED, ORQ_ACTION_STATUSTIP_SELECT_CONNECTED, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SELECT_DRIVERS_ACTION", ORQ_ACTION_MENU_TEXT_SELECT_DRIVERS, ORQ_ACTION_STATUSTIP_SELECT_DRIVERS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SELECT_LOADS_ACTION", ORQ_ACTION_MENU_TEXT_SELECT_LOADS, ORQ_ACTION_STATUSTIP_SELECT_LOADS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SELECT_MATCHING_ACTION", ORQ_ACTION_MENU_TEXT_SELECT_MATCHING, ORQ_ACTION_STATUSTIP_SELECT_MATCHING, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SELECT_NEXT_ACTION", ORQ_ACTION_MENU_TEXT_SELECT_NEXT, ORQ_ACTION_STATUSTIP_SELECT_NEXT, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SELECT_PREVIOUS_ACTION", ORQ_ACTION_MENU_TEXT_SELECT_PREVIOUS, ORQ_ACTION_STATUSTIP_SELECT_PREVIOUS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SELECT_SAME_TYPE_ACTION", ORQ_ACTION_MENU_TEXT_SELECT_SAME_TYPE, ORQ_ACTION_STATUSTIP_SELECT_SAME_TYPE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SEND_FEEDBACK_ACTION", ORQ_ACTION_MENU_TEXT_SEND_FEEDBACK, ORQ_ACTION_STATUSTIP_SEND_FEEDBACK, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_SEND_FEEDBACK_ICON},
  {"ORQ_SESSION_MANAGER_ACTION", ORQ_ACTION_MENU_TEXT_SESSION_MANAGER, ORQ_ACTION_STATUSTIP_SESSION_MANAGER, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SETTINGS_ACTION", ORQ_ACTION_MENU_TEXT_SETTINGS, ORQ_ACTION_STATUSTIP_SETTINGS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_SETTINGS_ICON},
  {"ORQ_SET_ACTIVE_REVISION_ACTION", ORQ_ACTION_MENU_TEXT_SET_ACTIVE_REVISION, ORQ_ACTION_STATUSTIP_SET_ACTIVE_REVISION, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SET_AS_TOP_LEVEL_ACTION", ORQ_ACTION_MENU_TEXT_SET_AS_TOP_LEVEL, ORQ_ACTION_STATUSTIP_SET_AS_TOP_LEVEL, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SET_CURSOR_ACTION", ORQ_ACTION_MENU_TEXT_SET_CURSOR, ORQ_ACTION_STATUSTIP_SET_CURSOR, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SET_ORIGIN_ACTION", ORQ_ACTION_MENU_TEXT_SET_ORIGIN, ORQ_ACTION_STATUSTIP_SET_ORIGIN, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SET_RADIX_ACTION", ORQ_ACTION_MENU_TEXT_SET_RADIX, ORQ_ACTION_STATUSTIP_SET_RADIX, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SET_TIME_RANGE_ACTION", ORQ_ACTION_MENU_TEXT_SET_TIME_RANGE, ORQ_ACTION_STATUSTIP_SET_TIME_RANGE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SHOW_ANNOTATIONS_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_ANNOTATIONS, ORQ_ACTION_STATUSTIP_SHOW_ANNOTATIONS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SHOW_ASSIGNMENTS_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_ASSIGNMENTS, ORQ_ACTION_STATUSTIP_SHOW_ASSIGNMENTS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SHOW_BLOCK_NAMES_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_BLOCK_NAMES, ORQ_ACTION_STATUSTIP_SHOW_BLOCK_NAMES, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SHOW_BLOCK_PROPERTIES_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_BLOCK_PROPERTIES, ORQ_ACTION_STATUSTIP_SHOW_BLOCK_PROPERTIES, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SHOW_BOOKMARKS_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_BOOKMARKS, ORQ_ACTION_STATUSTIP_SHOW_BOOKMARKS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SHOW_BREAKPOINTS_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_BREAKPOINTS, ORQ_ACTION_STATUSTIP_SHOW_BREAKPOINTS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SHOW_CALL_STACK_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_CALL_STACK, ORQ_ACTION_STATUSTIP_SHOW_CALL_STACK, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SHOW_CELL_TYPES_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_CELL_TYPES, ORQ_ACTION_STATUSTIP_SHOW_CELL_TYPES, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SHOW_CLOCK_DOMAINS_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_CLOCK_DOMAINS, ORQ_ACTION_STATUSTIP_SHOW_CLOCK_DOMAINS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SHOW_COMPILATION_DASHBOARD_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_COMPILATION_DASHBOARD, ORQ_ACTION_STATUSTIP_SHOW_COMPILATION_DASHBOARD, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SHOW_COMPILATION_REPORT_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_COMPILATION_REPORT, ORQ_ACTION_STATUSTIP_SHOW_COMPILATION_REPORT, ORQ_ACTION_CUSTOM_SHORTCUT_SHOW_COMPILATION_REPORT, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_SHOW_COMPILATION_REPORT_ICON},
  {"ORQ_SHOW_CONGESTION_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_CONGESTION, ORQ_ACTION_STATUSTIP_SHOW_CONGESTION, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SHOW_CONNECTIONS_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_CONNECTIONS, ORQ_ACTION_STATUSTIP_SHOW_CONNECTIONS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SHOW_CONSOLE_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_CONSOLE, ORQ_ACTION_STATUSTIP_SHOW_CONSOLE, ORQ_ACTION_CUSTOM_SHORTCUT_SHOW_CONSOLE, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_SHOW_CONSOLE_ICON},
  {"ORQ_SHOW_CONSTRAINTS_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_CONSTRAINTS, ORQ_ACTION_STATUSTIP_SHOW_CONSTRAINTS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SHOW_CORE_AREA_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_CORE_AREA, ORQ_ACTION_STATUSTIP_SHOW_CORE_AREA, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SHOW_CRITICAL_PATHS_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_CRITICAL_PATHS, ORQ_ACTION_STATUSTIP_SHOW_CRITICAL_PATHS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SHOW_DESIGN_SUMMARY_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_DESIGN_SUMMARY, ORQ_ACTION_STATUSTIP_SHOW_DESIGN_SUMMARY, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SHOW_DEVICE_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_DEVICE, ORQ_ACTION_STATUSTIP_SHOW_DEVICE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SHOW_DIE_OUTLINE_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_DIE_OUTLINE, ORQ_ACTION_STATUSTIP_SHOW_DIE_OUTLINE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SHOW_ERRORS_ONLY_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_ERRORS_ONLY, ORQ_ACTION_STATUSTIP_SHOW_ERRORS_ONLY, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SHOW_FILES_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_FILES, ORQ_ACTION_STATUSTIP_SHOW_FILES, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SHOW_FLOORPLAN_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_FLOORPLAN, ORQ_ACTION_STATUSTIP_SHOW_FLOORPLAN, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_SHOW_FLOORPLAN_ICON},
  {"ORQ_SHOW_FULL_NAMES_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_FULL_NAMES, ORQ_ACTION_STATUSTIP_SHOW_FULL_NAMES, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SHOW_GRID_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_GRID, ORQ_ACTION_STATUSTIP_SHOW_GRID, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_SHOW_GRID_ICON},
  {"ORQ_SHOW_HIERARCHY_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_HIERARCHY, ORQ_ACTION_STATUSTIP_SHOW_HIERARCHY, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_SHOW_HIERARCHY_ICON},
  {"ORQ_SHOW_HISTORY_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_HISTORY, ORQ_ACTION_STATUSTIP_SHOW_HISTORY, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SHOW_INFO_MESSAGES_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_INFO_MESSAGES, ORQ_ACTION_STATUSTIP_SHOW_INFO_MESSAGES, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SHOW_IO_BANKS_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_IO_BANKS, ORQ_ACTION_STATUSTIP_SHOW_IO_BANKS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SHOW_IP_CATALOG_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_IP_CATALOG, ORQ_ACTION_STATUSTIP_SHOW_IP_CATALOG, ORQ_ACTION_CUSTOM_SHORTCUT_SHOW_IP_CATALOG, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_SHOW_IP_CATALOG_ICON},
  {"ORQ_SHOW_KEEPOUTS_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_KEEPOUTS, ORQ_ACTION_STATUSTIP_SHOW_KEEPOUTS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SHOW_LAYERS_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_LAYERS, ORQ_ACTION_STATUSTIP_SHOW_LAYERS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SHOW_LIBRARIES_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_LIBRARIES, ORQ_ACTION_STATUSTIP_SHOW_LIBRARIES, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SHOW_LOG_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_LOG, ORQ_ACTION_STATUSTIP_SHOW_LOG, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SHOW_MEMORY_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_MEMORY, ORQ_ACTION_STATUSTIP_SHOW_MEMORY, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SHOW_MESSAGES_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_MESSAGES, ORQ_ACTION_STATUSTIP_SHOW_MESSAGES, ORQ_ACTION_CUSTOM_SHORTCUT_SHOW_MESSAGES, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_SHOW_MESSAGES_ICON},
  {"ORQ_SHOW_MINIMAP_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_MINIMAP, ORQ_ACTION_STATUSTIP_SHOW_MINIMAP, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SHOW_NET_NAMES_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_NET_NAMES, ORQ_ACTION_STATUSTIP_SHOW_NET_NAMES, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SHOW_NODE_FINDER_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_NODE_FINDER, ORQ_ACTION_STATUSTIP_SHOW_NODE_FINDER, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SHOW_NODE_LIST_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_NODE_LIST, ORQ_ACTION_STATUSTIP_SHOW_NODE_LIST, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SHOW_OUTPUT_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_OUTPUT, ORQ_ACTION_STATUSTIP_SHOW_OUTPUT, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SHOW_PACKAGE_VIEW_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_PACKAGE_VIEW, ORQ_ACTION_STATUSTIP_SHOW_PACKAGE_VIEW, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SHOW_PADS_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_PADS, ORQ_ACTION_STATUSTIP_SHOW_PADS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SHOW_PARTITIONS_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_PARTITIONS, ORQ_ACTION_STATUSTIP_SHOW_PARTITIONS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SHOW_PIN_NAMES_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_PIN_NAMES, ORQ_ACTION_STATUSTIP_SHOW_PIN_NAMES, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SHOW_PLACEMENT_GRID_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_PLACEMENT_GRID, ORQ_ACTION_STATUSTIP_SHOW_PLACEMENT_GRID, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SHOW_PORT_NAMES_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_PORT_NAMES, ORQ_ACTION_STATUSTIP_SHOW_PORT_NAMES, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SHOW_POWER_RAILS_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_POWER_RAILS, ORQ_ACTION_STATUSTIP_SHOW_POWER_RAILS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SHOW_PROBES_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_PROBES, ORQ_ACTION_STATUSTIP_SHOW_PROBES, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SHOW_PROJECT_NAVIGATOR_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_PROJECT_NAVIGATOR, ORQ_ACTION_STATUSTIP_SHOW_PROJECT_NAVIGATOR, ORQ_ACTION_CUSTOM_SHORTCUT_SHOW_PROJECT_NAVIGATOR, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_SHOW_PROJECT_NAVIGATOR_ICON},
  {"ORQ_SHOW_PROPERTIES_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_PROPERTIES, ORQ_ACTION_STATUSTIP_SHOW_PROPERTIES, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_SHOW_PROPERTIES_ICON},
  {"ORQ_SHOW_REGIONS_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_REGIONS, ORQ_ACTION_STATUSTIP_SHOW_REGIONS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SHOW_REPORTS_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_REPORTS, ORQ_ACTION_STATUSTIP_SHOW_REPORTS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SHOW_RESOURCE_USAGE_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_RESOURCE_USAGE, ORQ_ACTION_STATUSTIP_SHOW_RESOURCE_USAGE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SHOW_ROUTING_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_ROUTING, ORQ_ACTION_STATUSTIP_SHOW_ROUTING, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SHOW_RULERS_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_RULERS, ORQ_ACTION_STATUSTIP_SHOW_RULERS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SHOW_SCHEMATIC_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_SCHEMATIC, ORQ_ACTION_STATUSTIP_SHOW_SCHEMATIC, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SHOW_SEARCH_RESULTS_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_SEARCH_RESULTS, ORQ_ACTION_STATUSTIP_SHOW_SEARCH_RESULTS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SHOW_SIGNALS_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_SIGNALS, ORQ_ACTION_STATUSTIP_SHOW_SIGNALS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SHOW_SLACK_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_SLACK, ORQ_ACTION_STATUSTIP_SHOW_SLACK, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SHOW_SOURCE_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_SOURCE, ORQ_ACTION_STATUSTIP_SHOW_SOURCE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SHOW_STATUS_BAR_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_STATUS_BAR, ORQ_ACTION_STATUSTIP_SHOW_STATUS_BAR, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SHOW_TASKS_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_TASKS, ORQ_ACTION_STATUSTIP_SHOW_TASKS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SHOW_TIMING_PATHS_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_TIMING_PATHS, ORQ_ACTION_STATUSTIP_SHOW_TIMING_PATHS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SHOW_TIMING_SUMMARY_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_TIMING_SUMMARY, ORQ_ACTION_STATUSTIP_SHOW_TIMING_SUMMARY, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SHOW_TOOLBARS_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_TOOLBARS, ORQ_ACTION_STATUSTIP_SHOW_TOOLBARS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SHOW_TOOLTIPS_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_TOOLTIPS, ORQ_ACTION_STATUSTIP_SHOW_TOOLTIPS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SHOW_TRANSCRIPT_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_TRANSCRIPT, ORQ_ACTION_STATUSTIP_SHOW_TRANSCRIPT, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SHOW_TRIGGERS_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_TRIGGERS, ORQ_ACTION_STATUSTIP_SHOW_TRIGGERS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SHOW_UNUSED_PINS_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_UNUSED_PINS, ORQ_ACTION_STATUSTIP_SHOW_UNUSED_PINS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SHOW_VALUES_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_VALUES, ORQ_ACTION_STATUSTIP_SHOW_VALUES, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SHOW_WARNINGS_ONLY_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_WARNINGS_ONLY, ORQ_ACTION_STATUSTIP_SHOW_WARNINGS_ONLY, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SHOW_WATCH_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_WATCH, ORQ_ACTION_STATUSTIP_SHOW_WATCH, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SHOW_WAVEFORM_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_WAVEFORM, ORQ_ACTION_STATUSTIP_SHOW_WAVEFORM, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_SHOW_WAVEFORM_ICON},
  {"ORQ_SHOW_WELCOME_SCREEN_ACTION", ORQ_ACTION_MENU_TEXT_SHOW_WELCOME_SCREEN, ORQ_ACTION_STATUSTIP_SHOW_WELCOME_SCREEN, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SHRINK_REGION_ACTION", ORQ_ACTION_MENU_TEXT_SHRINK_REGION, ORQ_ACTION_STATUSTIP_SHRINK_REGION, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SIGNAL_FINDER_ACTION", ORQ_ACTION_MENU_TEXT_SIGNAL_FINDER, ORQ_ACTION_STATUSTIP_SIGNAL_FINDER, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SIGNAL_PROPERTIES_ACTION", ORQ_ACTION_MENU_TEXT_SIGNAL_PROPERTIES, ORQ_ACTION_STATUSTIP_SIGNAL_PROPERTIES, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SIMULATION_SETTINGS_ACTION", ORQ_ACTION_MENU_TEXT_SIMULATION_SETTINGS, ORQ_ACTION_STATUSTIP_SIMULATION_SETTINGS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_SIMULATION_SETTINGS_ICON},
  {"ORQ_SIM_ADD_WAVE_ACTION", ORQ_ACTION_MENU_TEXT_SIM_ADD_WAVE, ORQ_ACTION_STATUSTIP_SIM_ADD_WAVE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_SIM_ADD_WAVE_ICON},
  {"ORQ_SIM_BREAK_ACTION", ORQ_ACTION_MENU_TEXT_SIM_BREAK, ORQ_ACTION_STATUSTIP_SIM_BREAK, ORQ_ACTION_CUSTOM_SHORTCUT_SIM_BREAK, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_SIM_BREAK_ICON},
  {"ORQ_SIM_RESTART_ACTION", ORQ_ACTION_MENU_TEXT_SIM_RESTART, ORQ_ACTION_STATUSTIP_SIM_RESTART, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_SIM_RESTART_ICON},
  {"ORQ_SIM_RUN_ACTION", ORQ_ACTION_MENU_TEXT_SIM_RUN, ORQ_ACTION_STATUSTIP_SIM_RUN, ORQ_ACTION_CUSTOM_SHORTCUT_SIM_RUN, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_SIM_RUN_ICON},
  {"ORQ_SIM_RUN_FOR_ACTION", ORQ_ACTION_MENU_TEXT_SIM_RUN_FOR, ORQ_ACTION_STATUSTIP_SIM_RUN_FOR, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_SIM_RUN_FOR_ICON},
  {"ORQ_SIM_STEP_ACTION", ORQ_ACTION_MENU_TEXT_SIM_STEP, ORQ_ACTION_STATUSTIP_SIM_STEP, ORQ_ACTION_CUSTOM_SHORTCUT_SIM_STEP, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_SIM_STEP_ICON},
  {"ORQ_SNAPSHOT_MANAGER_ACTION", ORQ_ACTION_MENU_TEXT_SNAPSHOT_MANAGER, ORQ_ACTION_STATUSTIP_SNAPSHOT_MANAGER, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SORT_ASCENDING_ACTION", ORQ_ACTION_MENU_TEXT_SORT_ASCENDING, ORQ_ACTION_STATUSTIP_SORT_ASCENDING, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_SORT_ASCENDING_ICON},
  {"ORQ_SORT_DESCENDING_ACTION", ORQ_ACTION_MENU_TEXT_SORT_DESCENDING, ORQ_ACTION_STATUSTIP_SORT_DESCENDING, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_SORT_DESCENDING_ICON},
  {"ORQ_SPLIT_BUS_ACTION", ORQ_ACTION_MENU_TEXT_SPLIT_BUS, ORQ_ACTION_STATUSTIP_SPLIT_BUS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SPLIT_PARTITION_ACTION", ORQ_ACTION_MENU_TEXT_SPLIT_PARTITION, ORQ_ACTION_STATUSTIP_SPLIT_PARTITION, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SPLIT_VIEW_HORIZONTAL_ACTION", ORQ_ACTION_MENU_TEXT_SPLIT_VIEW_HORIZONTAL, ORQ_ACTION_STATUSTIP_SPLIT_VIEW_HORIZONTAL, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SPLIT_VIEW_VERTICAL_ACTION", ORQ_ACTION_MENU_TEXT_SPLIT_VIEW_VERTICAL, ORQ_ACTION_STATUSTIP_SPLIT_VIEW_VERTICAL, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SRC_AUTOCOMPLETE_ACTION", ORQ_ACTION_MENU_TEXT_SRC_AUTOCOMPLETE, ORQ_ACTION_STATUSTIP_SRC_AUTOCOMPLETE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SRC_COMMENT_BLOCK_ACTION", ORQ_ACTION_MENU_TEXT_SRC_COMMENT_BLOCK, ORQ_ACTION_STATUSTIP_SRC_COMMENT_BLOCK, ORQ_ACTION_CUSTOM_SHORTCUT_SRC_COMMENT_BLOCK, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SRC_DUPLICATE_LINE_ACTION", ORQ_ACTION_MENU_TEXT_SRC_DUPLICATE_LINE, ORQ_ACTION_STATUSTIP_SRC_DUPLICATE_LINE, ORQ_ACTION_CUSTOM_SHORTCUT_SRC_DUPLICATE_LINE, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SRC_GO_TO_MATCHING_BRACKET_ACTION", ORQ_ACTION_MENU_TEXT_SRC_GO_TO_MATCHING_BRACKET, ORQ_ACTION_STATUSTIP_SRC_GO_TO_MATCHING_BRACKET, ORQ_ACTION_CUSTOM_SHORTCUT_SRC_GO_TO_MATCHING_BRACKET, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SRC_INDENT_ACTION", ORQ_ACTION_MENU_TEXT_SRC_INDENT, ORQ_ACTION_STATUSTIP_SRC_INDENT, ORQ_ACTION_CUSTOM_SHORTCUT_SRC_INDENT, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SRC_INSERT_TEMPLATE_ACTION", ORQ_ACTION_MENU_TEXT_SRC_INSERT_TEMPLATE, ORQ_ACTION_STATUSTIP_SRC_INSERT_TEMPLATE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SRC_LOWERCASE_ACTION", ORQ_ACTION_MENU_TEXT_SRC_LOWERCASE, ORQ_ACTION_STATUSTIP_SRC_LOWERCASE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SRC_TOGGLE_BOOKMARK_ACTION", ORQ_ACTION_MENU_TEXT_SRC_TOGGLE_BOOKMARK, ORQ_ACTION_STATUSTIP_SRC_TOGGLE_BOOKMARK, ORQ_ACTION_CUSTOM_SHORTCUT_SRC_TOGGLE_BOOKMARK, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_SRC_TOGGLE_BOOKMARK_ICON},
  {"ORQ_SRC_UNCOMMENT_BLOCK_ACTION", ORQ_ACTION_MENU_TEXT_SRC_UNCOMMENT_BLOCK, ORQ_ACTION_STATUSTIP_SRC_UNCOMMENT_BLOCK, ORQ_ACTION_CUSTOM_SHORTCUT_SRC_UNCOMMENT_BLOCK, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SRC_UNINDENT_ACTION", ORQ_ACTION_MENU_TEXT_SRC_UNINDENT, ORQ_ACTION_STATUSTIP_SRC_UNINDENT, ORQ_ACTION_CUSTOM_SHORTCUT_SRC_UNINDENT, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SRC_UPPERCASE_ACTION", ORQ_ACTION_MENU_TEXT_SRC_UPPERCASE, ORQ_ACTION_STATUSTIP_SRC_UPPERCASE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_START_BITSTREAM_GENERATION_ACTION", ORQ_ACTION_MENU_TEXT_START_BITSTREAM_GENERATION, ORQ_ACTION_STATUSTIP_START_BITSTREAM_GENERATION, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_START_CDC_ANALYSIS_ACTION", ORQ_ACTION_MENU_TEXT_START_CDC_ANALYSIS, ORQ_ACTION_STATUSTIP_START_CDC_ANALYSIS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_START_CLOCK_CHECK_ACTION", ORQ_ACTION_MENU_TEXT_START_CLOCK_CHECK, ORQ_ACTION_STATUSTIP_START_CLOCK_CHECK, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_START_COMPILATION_ACTION", ORQ_ACTION_MENU_TEXT_START_COMPILATION, ORQ_ACTION_STATUSTIP_START_COMPILATION, ORQ_ACTION_CUSTOM_SHORTCUT_START_COMPILATION, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_START_COMPILATION_ICON},
  {"ORQ_START_DESIGN_RULE_CHECK_ACTION", ORQ_ACTION_MENU_TEXT_START_DESIGN_RULE_CHECK, ORQ_ACTION_STATUSTIP_START_DESIGN_RULE_CHECK, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_START_EARLY_TIMING_ESTIMATE_ACTION", ORQ_ACTION_MENU_TEXT_START_EARLY_TIMING_ESTIMATE, ORQ_ACTION_STATUSTIP_START_EARLY_TIMING_ESTIMATE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_START_ELABORATION_ACTION", ORQ_ACTION_MENU_TEXT_START_ELABORATION, ORQ_ACTION_STATUSTIP_START_ELABORATION, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_START_LINT_ACTION", ORQ_ACTION_MENU_TEXT_START_LINT, ORQ_ACTION_STATUSTIP_START_LINT, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_START_NETLIST_EXPORT_ACTION", ORQ_ACTION_MENU_TEXT_START_NETLIST_EXPORT, ORQ_ACTION_STATUSTIP_START_NETLIST_EXPORT, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_START_PARTITION_PLANNER_ACTION", ORQ_ACTION_MENU_TEXT_START_PARTITION_PLANNER, ORQ_ACTION_STATUSTIP_START_PARTITION_PLANNER, nullptr, ORQ_ACTION_TCL_FUNCTION_START_PARTITION_PLANNER, nullptr, QKeySequence::UnknownKey, ORQ_START_PARTITION_PLANNER_ICON},
  {"ORQ_START_PHYSICAL_OPTIMIZATION_ACTION", ORQ_ACTION_MENU_TEXT_START_PHYSICAL_OPTIMIZATION, ORQ_ACTION_STATUSTIP_START_PHYSICAL_OPTIMIZATION, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_START_PIN_CHECK_ACTION", ORQ_ACTION_MENU_TEXT_START_PIN_CHECK, ORQ_ACTION_STATUSTIP_START_PIN_CHECK, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_START_PLACEMENT_ACTION", ORQ_ACTION_MENU_TEXT_START_PLACEMENT, ORQ_ACTION_STATUSTIP_START_PLACEMENT, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_START_PLACEMENT_ICON},
  {"ORQ_START_POWER_ANALYSIS_ACTION", ORQ_ACTION_MENU_TEXT_START_POWER_ANALYSIS, ORQ_ACTION_STATUSTIP_START_POWER_ANALYSIS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_START_RETIMING_ACTION", ORQ_ACTION_MENU_TEXT_START_RETIMING, ORQ_ACTION_STATUSTIP_START_RETIMING, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_START_ROUTING_ACTION", ORQ_ACTION_MENU_TEXT_START_ROUTING, ORQ_ACTION_STATUSTIP_START_ROUTING, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_START_ROUTING_ICON},
  {"ORQ_START_SYNTHESIS_ACTION", ORQ_ACTION_MENU_TEXT_START_SYNTHESIS, ORQ_ACTION_STATUSTIP_START_SYNTHESIS, ORQ_ACTION_CUSTOM_SHORTCUT_START_SYNTHESIS, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_START_SYNTHESIS_ICON},
  {"ORQ_START_TIMING_ANALYSIS_ACTION", ORQ_ACTION_MENU_TEXT_START_TIMING_ANALYSIS, ORQ_ACTION_STATUSTIP_START_TIMING_ANALYSIS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_START_TIMING_ANALYSIS_ICON},
  {"ORQ_STATISTICS_ACTION", ORQ_ACTION_MENU_TEXT_STATISTICS, ORQ_ACTION_STATUSTIP_STATISTICS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_STATUS_BAR_ACTION", ORQ_ACTION_MENU_TEXT_STATUS_BAR, ORQ_ACTION_STATUSTIP_STATUS_BAR, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_STEP_INTO_ACTION", ORQ_ACTION_MENU_TEXT_STEP_INTO, ORQ_ACTION_STATUSTIP_STEP_INTO, ORQ_ACTION_CUSTOM_SHORTCUT_STEP_INTO, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_STEP_INTO_ICON},
  {"ORQ_STEP_OUT_ACTION", ORQ_ACTION_MENU_TEXT_STEP_OUT, ORQ_ACTION_STATUSTIP_STEP_OUT, ORQ_ACTION_CUSTOM_SHORTCUT_STEP_OUT, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_STEP_OUT_ICON},
  {"ORQ_STEP_OVER_ACTION", ORQ_ACTION_MENU_TEXT_STEP_OVER, ORQ_ACTION_STATUSTIP_STEP_OVER, ORQ_ACTION_CUSTOM_SHORTCUT_STEP_OVER, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_STEP_OVER_ICON},
  {"ORQ_STOP_ACTION", ORQ_ACTION_MENU_TEXT_STOP, ORQ_ACTION_STATUSTIP_STOP, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_STOP_ICON},
  {"ORQ_STOP_ALL_ACTION", ORQ_ACTION_MENU_TEXT_STOP_ALL, ORQ_ACTION_STATUSTIP_STOP_ALL, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_STOP_ALL_ICON},
  {"ORQ_STOP_COMPILATION_ACTION", ORQ_ACTION_MENU_TEXT_STOP_COMPILATION, ORQ_ACTION_STATUSTIP_STOP_COMPILATION, ORQ_ACTION_CUSTOM_SHORTCUT_STOP_COMPILATION, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_STOP_COMPILATION_ICON},
  {"ORQ_STOP_ON_ERROR_ACTION", ORQ_ACTION_MENU_TEXT_STOP_ON_ERROR, ORQ_ACTION_STATUSTIP_STOP_ON_ERROR, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_STOP_SIMULATION_ACTION", ORQ_ACTION_MENU_TEXT_STOP_SIMULATION, ORQ_ACTION_STATUSTIP_STOP_SIMULATION, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_STOP_SIMULATION_ICON},
  {"ORQ_SUMMARY_REPORT_ACTION", ORQ_ACTION_MENU_TEXT_SUMMARY_REPORT, ORQ_ACTION_STATUSTIP_SUMMARY_REPORT, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_SUMMARY_REPORT_ICON},
  {"ORQ_SUPPRESSION_MANAGER_ACTION", ORQ_ACTION_MENU_TEXT_SUPPRESSION_MANAGER, ORQ_ACTION_STATUSTIP_SUPPRESSION_MANAGER, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_SUPPRESSION_MANAGER_ICON},
  {"ORQ_SUPPRESS_ALL_FROM_TOOL_ACTION", ORQ_ACTION_MENU_TEXT_SUPPRESS_ALL_FROM_TOOL, ORQ_ACTION_STATUSTIP_SUPPRESS_ALL_FROM_TOOL, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SUPPRESS_ALL_IN_HIERARCHY_ACTION", ORQ_ACTION_MENU_TEXT_SUPPRESS_ALL_IN_HIERARCHY, ORQ_ACTION_STATUSTIP_SUPPRESS_ALL_IN_HIERARCHY, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SUPPRESS_EXTRA_INFO_ACTION", ORQ_ACTION_MENU_TEXT_SUPPRESS_EXTRA_INFO, ORQ_ACTION_STATUSTIP_SUPPRESS_EXTRA_INFO, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SUPPRESS_INFO_MESSAGES_ACTION", ORQ_ACTION_MENU_TEXT_SUPPRESS_INFO_MESSAGES, ORQ_ACTION_STATUSTIP_SUPPRESS_INFO_MESSAGES, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SUPPRESS_MESSAGES_IN_FILE_ACTION", ORQ_ACTION_MENU_TEXT_SUPPRESS_MESSAGES_IN_FILE, ORQ_ACTION_STATUSTIP_SUPPRESS_MESSAGES_IN_FILE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SUPPRESS_MESSAGE_ACTION", ORQ_ACTION_MENU_TEXT_SUPPRESS_MESSAGE, ORQ_ACTION_STATUSTIP_SUPPRESS_MESSAGE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_SUPPRESS_MESSAGE_ICON},
  {"ORQ_SUPPRESS_MESSAGE_ID_ACTION", ORQ_ACTION_MENU_TEXT_SUPPRESS_MESSAGE_ID, ORQ_ACTION_STATUSTIP_SUPPRESS_MESSAGE_ID, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SUPPRESS_SIMILAR_MESSAGES_ACTION", ORQ_ACTION_MENU_TEXT_SUPPRESS_SIMILAR_MESSAGES, ORQ_ACTION_STATUSTIP_SUPPRESS_SIMILAR_MESSAGES, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SUPPRESS_WARNINGS_ACTION", ORQ_ACTION_MENU_TEXT_SUPPRESS_WARNINGS, ORQ_ACTION_STATUSTIP_SUPPRESS_WARNINGS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SWAP_NODES_ACTION", ORQ_ACTION_MENU_TEXT_SWAP_NODES, ORQ_ACTION_STATUSTIP_SWAP_NODES, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SWITCH_REVISION_ACTION", ORQ_ACTION_MENU_TEXT_SWITCH_REVISION, ORQ_ACTION_STATUSTIP_SWITCH_REVISION, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_SWITCH_TO_GATE_LEVEL_ACTION", ORQ_ACTION_MENU_TEXT_SWITCH_TO_GATE_LEVEL, ORQ_ACTION_STATUSTIP_SWITCH_TO_GATE_LEVEL, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_SWITCH_TO_GATE_LEVEL_ICON},
  {"ORQ_SWITCH_TO_RTL_ACTION", ORQ_ACTION_MENU_TEXT_SWITCH_TO_RTL, ORQ_ACTION_STATUSTIP_SWITCH_TO_RTL, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_SWITCH_TO_RTL_ICON},
  {"ORQ_SYMBOL_EDITOR_ACTION", ORQ_ACTION_MENU_TEXT_SYMBOL_EDITOR, ORQ_ACTION_STATUSTIP_SYMBOL_EDITOR, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_SYMBOL_EDITOR_ICON},
  {"ORQ_SYNCHRONIZE_CURSORS_ACTION", ORQ_ACTION_MENU_TEXT_SYNCHRONIZE_CURSORS, ORQ_ACTION_STATUSTIP_SYNCHRONIZE_CURSORS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_SYNCHRONIZE_CURSORS_ICON},
  {"ORQ_SYNC_VIEWS_ACTION", ORQ_ACTION_MENU_TEXT_SYNC_VIEWS, ORQ_ACTION_STATUSTIP_SYNC_VIEWS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_SYNC_VIEWS_ICON},
  {"ORQ_SYSTEM_INFO_ACTION", ORQ_ACTION_MENU_TEXT_SYSTEM_INFO, ORQ_ACTION_STATUSTIP_SYSTEM_INFO, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_SYSTEM_INFO_ICON},
  {"ORQ_TABBED_DOCUMENTS_ACTION", ORQ_ACTION_MENU_TEXT_TABBED_DOCUMENTS, ORQ_ACTION_STATUSTIP_TABBED_DOCUMENTS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_TCL_CONSOLE_ACTION", ORQ_ACTION_MENU_TEXT_TCL_CONSOLE, ORQ_ACTION_STATUSTIP_TCL_CONSOLE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_TCL_CONSOLE_ICON},
  {"ORQ_TCL_SCRIPTS_ACTION", ORQ_ACTION_MENU_TEXT_TCL_SCRIPTS, ORQ_ACTION_STATUSTIP_TCL_SCRIPTS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_TCL_SCRIPTS_ICON},
  {"ORQ_TECHNOLOGY_MAP_VIEWER_ACTION", ORQ_ACTION_MENU_TEXT_TECHNOLOGY_MAP_VIEWER, ORQ_ACTION_STATUSTIP_TECHNOLOGY_MAP_VIEWER, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_TECHNOLOGY_MAP_VIEWER_ICON},
  {"ORQ_TEMPLATES_ACTION", ORQ_ACTION_MENU_TEXT_TEMPLATES, ORQ_ACTION_STATUSTIP_TEMPLATES, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_TEXT_EDITOR_ACTION", ORQ_ACTION_MENU_TEXT_TEXT_EDITOR, ORQ_ACTION_STATUSTIP_TEXT_EDITOR, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_TEXT_EDITOR_ICON},
  {"ORQ_TIE_OFF_UNUSED_ACTION", ORQ_ACTION_MENU_TEXT_TIE_OFF_UNUSED, ORQ_ACTION_STATUSTIP_TIE_OFF_UNUSED, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_TILE_ACTION", ORQ_ACTION_MENU_TEXT_TILE, ORQ_ACTION_STATUSTIP_TILE, ORQ_ACTION_CUSTOM_SHORTCUT_TILE, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_TILE_ICON},
  {"ORQ_TILE_HORIZONTALLY_ACTION", ORQ_ACTION_MENU_TEXT_TILE_HORIZONTALLY, ORQ_ACTION_STATUSTIP_TILE_HORIZONTALLY, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_TILE_VERTICALLY_ACTION", ORQ_ACTION_MENU_TEXT_TILE_VERTICALLY, ORQ_ACTION_STATUSTIP_TILE_VERTICALLY, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_TIMING_ANALYZER_ACTION", ORQ_ACTION_MENU_TEXT_TIMING_ANALYZER, ORQ_ACTION_STATUSTIP_TIMING_ANALYZER, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_TIMING_ANALYZER_ICON},
  {"ORQ_TMV_SHOW_SLACK_HISTOGRAM_ACTION", ORQ_ACTION_MENU_TEXT_TMV_SHOW_SLACK_HISTOGRAM, ORQ_ACTION_STATUSTIP_TMV_SHOW_SLACK_HISTOGRAM, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_TMV_SHOW_SLACK_HISTOGRAM_ICON},
  {"ORQ_TOGGLE_BREAKPOINT_ACTION", ORQ_ACTION_MENU_TEXT_TOGGLE_BREAKPOINT, ORQ_ACTION_STATUSTIP_TOGGLE_BREAKPOINT, ORQ_ACTION_CUSTOM_SHORTCUT_TOGGLE_BREAKPOINT, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_TOGGLE_BREAKPOINT_ICON},
  {"ORQ_TRACE_PATH_ACTION", ORQ_ACTION_MENU_TEXT_TRACE_PATH, ORQ_ACTION_STATUSTIP_TRACE_PATH, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_TRACE_PATH_ICON},
  {"ORQ_TREE_VIEW_FILTER_ALL_MSG_ACTION", ORQ_ACTION_MENU_TEXT_TREE_VIEW_FILTER_ALL_MSG, ORQ_ACTION_STATUSTIP_TREE_VIEW_FILTER_ALL_MSG, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_TREE_VIEW_FILTER_ALL_MSG_ICON},
  {"ORQ_TREE_VIEW_FILTER_MATCHED_ONLY_ACTION", ORQ_ACTION_MENU_TEXT_TREE_VIEW_FILTER_MATCHED_ONLY, ORQ_ACTION_STATUSTIP_TREE_VIEW_FILTER_MATCHED_ONLY, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_TREE_VIEW_FILTER_MATCHED_ONLY_ICON},
  {"ORQ_TREE_VIEW_FILTER_OPTIONS_ACTION", ORQ_ACTION_MENU_TEXT_TREE_VIEW_FILTER_OPTIONS, ORQ_ACTION_STATUSTIP_TREE_VIEW_FILTER_OPTIONS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_TREE_VIEW_FILTER_OPTIONS_ICON},
  {"ORQ_UNDO_ACTION", ORQ_ACTION_MENU_TEXT_UNDO, ORQ_ACTION_STATUSTIP_UNDO, nullptr, nullptr, nullptr, QKeySequence::Undo, ORQ_UNDO_ICON},
  {"ORQ_UNDO_ALL_ACTION", ORQ_ACTION_MENU_TEXT_UNDO_ALL, ORQ_ACTION_STATUSTIP_UNDO_ALL, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_UNGROUP_ACTION", ORQ_ACTION_MENU_TEXT_UNGROUP, ORQ_ACTION_STATUSTIP_UNGROUP, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_UNLOCK_ASSIGNMENT_ACTION", ORQ_ACTION_MENU_TEXT_UNLOCK_ASSIGNMENT, ORQ_ACTION_STATUSTIP_UNLOCK_ASSIGNMENT, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_UPDATE_MEMORY_INIT_FILE_ACTION", ORQ_ACTION_MENU_TEXT_UPDATE_MEMORY_INIT_FILE, ORQ_ACTION_STATUSTIP_UPDATE_MEMORY_INIT_FILE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_UPDATE_MEMORY_INIT_FILE_ICON},
  {"ORQ_UPGRADE_IP_CORES_ACTION", ORQ_ACTION_MENU_TEXT_UPGRADE_IP_CORES, ORQ_ACTION_STATUSTIP_UPGRADE_IP_CORES, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_UPGRADE_IP_CORES_ICON},
  {"ORQ_USER_LIBRARIES_ACTION", ORQ_ACTION_MENU_TEXT_USER_LIBRARIES, ORQ_ACTION_STATUSTIP_USER_LIBRARIES, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_USER_LIBRARIES_ICON},
  {"ORQ_VANTOR_COMMUNITY_WEB_PAGE_ACTION", ORQ_ACTION_MENU_TEXT_VANTOR_COMMUNITY_WEB_PAGE, ORQ_ACTION_STATUSTIP_VANTOR_COMMUNITY_WEB_PAGE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_VANTOR_DOCUMENTATION_WEB_PAGE_ACTION", ORQ_ACTION_MENU_TEXT_VANTOR_DOCUMENTATION_WEB_PAGE, ORQ_ACTION_STATUSTIP_VANTOR_DOCUMENTATION_WEB_PAGE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_VANTOR_DOCUMENTATION_WEB_PAGE_ICON},
  {"ORQ_VANTOR_DOWNLOAD_CENTER_WEB_PAGE_ACTION", ORQ_ACTION_MENU_TEXT_VANTOR_DOWNLOAD_CENTER_WEB_PAGE, ORQ_ACTION_STATUSTIP_VANTOR_DOWNLOAD_CENTER_WEB_PAGE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_VANTOR_HOME_WEB_PAGE_ACTION", ORQ_ACTION_MENU_TEXT_VANTOR_HOME_WEB_PAGE, ORQ_ACTION_STATUSTIP_VANTOR_HOME_WEB_PAGE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_VANTOR_HOME_WEB_PAGE_ICON},
  {"ORQ_VANTOR_IP_CATALOG_WEB_PAGE_ACTION", ORQ_ACTION_MENU_TEXT_VANTOR_IP_CATALOG_WEB_PAGE, ORQ_ACTION_STATUSTIP_VANTOR_IP_CATALOG_WEB_PAGE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_VANTOR_KNOWLEDGE_BASE_WEB_PAGE_ACTION", ORQ_ACTION_MENU_TEXT_VANTOR_KNOWLEDGE_BASE_WEB_PAGE, ORQ_ACTION_STATUSTIP_VANTOR_KNOWLEDGE_BASE_WEB_PAGE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_VANTOR_LICENSING_WEB_PAGE_ACTION", ORQ_ACTION_MENU_TEXT_VANTOR_LICENSING_WEB_PAGE, ORQ_ACTION_STATUSTIP_VANTOR_LICENSING_WEB_PAGE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_VANTOR_RELEASE_NOTES_WEB_PAGE_ACTION", ORQ_ACTION_MENU_TEXT_VANTOR_RELEASE_NOTES_WEB_PAGE, ORQ_ACTION_STATUSTIP_VANTOR_RELEASE_NOTES_WEB_PAGE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_VANTOR_SUPPORT_WEB_PAGE_ACTION", ORQ_ACTION_MENU_TEXT_VANTOR_SUPPORT_WEB_PAGE, ORQ_ACTION_STATUSTIP_VANTOR_SUPPORT_WEB_PAGE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_VANTOR_TRAINING_WEB_PAGE_ACTION", ORQ_ACTION_MENU_TEXT_VANTOR_TRAINING_WEB_PAGE, ORQ_ACTION_STATUSTIP_VANTOR_TRAINING_WEB_PAGE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_VANTOR_VIDEOS_WEB_PAGE_ACTION", ORQ_ACTION_MENU_TEXT_VANTOR_VIDEOS_WEB_PAGE, ORQ_ACTION_STATUSTIP_VANTOR_VIDEOS_WEB_PAGE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_VANTOR_WHATS_NEW_WEB_PAGE_ACTION", ORQ_ACTION_MENU_TEXT_VANTOR_WHATS_NEW_WEB_PAGE, ORQ_ACTION_STATUSTIP_VANTOR_WHATS_NEW_WEB_PAGE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_VERIFY_DEVICE_ACTION", ORQ_ACTION_MENU_TEXT_VERIFY_DEVICE, ORQ_ACTION_STATUSTIP_VERIFY_DEVICE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_VERIFY_DEVICE_ICON},
  {"ORQ_VIEW_ASSIGNMENTS_ACTION", ORQ_ACTION_MENU_TEXT_VIEW_ASSIGNMENTS, ORQ_ACTION_STATUSTIP_VIEW_ASSIGNMENTS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_VIEW_CONSTRAINTS_ACTION", ORQ_ACTION_MENU_TEXT_VIEW_CONSTRAINTS, ORQ_ACTION_STATUSTIP_VIEW_CONSTRAINTS, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_VIEW_DESIGN_SUMMARY_ACTION", ORQ_ACTION_MENU_TEXT_VIEW_DESIGN_SUMMARY, ORQ_ACTION_STATUSTIP_VIEW_DESIGN_SUMMARY, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_VIEW_LOG_FILE_ACTION", ORQ_ACTION_MENU_TEXT_VIEW_LOG_FILE, ORQ_ACTION_STATUSTIP_VIEW_LOG_FILE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_VIEW_NETLIST_ACTION", ORQ_ACTION_MENU_TEXT_VIEW_NETLIST, ORQ_ACTION_STATUSTIP_VIEW_NETLIST, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_VIEW_PIN_OUT_FILE_ACTION", ORQ_ACTION_MENU_TEXT_VIEW_PIN_OUT_FILE, ORQ_ACTION_STATUSTIP_VIEW_PIN_OUT_FILE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_VIEW_REPORT_ACTION", ORQ_ACTION_MENU_TEXT_VIEW_REPORT, ORQ_ACTION_STATUSTIP_VIEW_REPORT, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_VIEW_SOURCE_ACTION", ORQ_ACTION_MENU_TEXT_VIEW_SOURCE, ORQ_ACTION_STATUSTIP_VIEW_SOURCE, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_VIEW_TIMING_PATH_ACTION", ORQ_ACTION_MENU_TEXT_VIEW_TIMING_PATH, ORQ_ACTION_STATUSTIP_VIEW_TIMING_PATH, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_WAV_ADD_CURSOR_ACTION", ORQ_ACTION_MENU_TEXT_WAV_ADD_CURSOR, ORQ_ACTION_STATUSTIP_WAV_ADD_CURSOR, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_WAV_ADD_CURSOR_ICON},
  {"ORQ_WAV_ZOOM_TO_RANGE_ACTION", ORQ_ACTION_MENU_TEXT_WAV_ZOOM_TO_RANGE, ORQ_ACTION_STATUSTIP_WAV_ZOOM_TO_RANGE, ORQ_ACTION_CUSTOM_SHORTCUT_WAV_ZOOM_TO_RANGE, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_WAV_ZOOM_TO_RANGE_ICON},
  {"ORQ_WHATS_THIS_ACTION", ORQ_ACTION_MENU_TEXT_WHATS_THIS, ORQ_ACTION_STATUSTIP_WHATS_THIS, ORQ_ACTION_CUSTOM_SHORTCUT_WHATS_THIS, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_WHATS_THIS_ICON},
  {"ORQ_WORD_WRAP_ACTION", ORQ_ACTION_MENU_TEXT_WORD_WRAP, ORQ_ACTION_STATUSTIP_WORD_WRAP, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ICON_ENUM(0)},
  {"ORQ_ZOOM_ACTION", ORQ_ACTION_MENU_TEXT_ZOOM, ORQ_ACTION_STATUSTIP_ZOOM, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ZOOM_ICON},
  {"ORQ_ZOOM_FIT_ACTION", ORQ_ACTION_MENU_TEXT_ZOOM_FIT, ORQ_ACTION_STATUSTIP_ZOOM_FIT, ORQ_ACTION_CUSTOM_SHORTCUT_ZOOM_FIT, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ZOOM_FIT_ICON},
  {"ORQ_ZOOM_IN_ACTION", ORQ_ACTION_MENU_TEXT_ZOOM_IN, ORQ_ACTION_STATUSTIP_ZOOM_IN, ORQ_ACTION_CUSTOM_SHORTCUT_ZOOM_IN, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ZOOM_IN_ICON},
  {"ORQ_ZOOM_OUT_ACTION", ORQ_ACTION_MENU_TEXT_ZOOM_OUT, ORQ_ACTION_STATUSTIP_ZOOM_OUT, ORQ_ACTION_CUSTOM_SHORTCUT_ZOOM_OUT, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ZOOM_OUT_ICON},
  {"ORQ_ZOOM_SELECTION_ACTION", ORQ_ACTION_MENU_TEXT_ZOOM_SELECTION, ORQ_ACTION_STATUSTIP_ZOOM_SELECTION, ORQ_ACTION_CUSTOM_SHORTCUT_ZOOM_SELECTION, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ZOOM_SELECTION_ICON},
  {"ORQ_ZOOM_TOOL_ACTION", ORQ_ACTION_MENU_TEXT_ZOOM_TOOL, ORQ_ACTION_STATUSTIP_ZOOM_TOOL, nullptr, nullptr, nullptr, QKeySequence::UnknownKey, ORQ_ZOOM_TOOL_ICON},
};

const ORQ_ICON_ROW orq_icon_table[ORQ_ICON_COUNT + 1] = {
  // name, resource path
  {nullptr, nullptr},
  {"ORQ_ABOUT_VANTOR_ICON", ":/icons/svg/orq_about_vantor.svg"},
  {"ORQ_ACTIVATE_LICENSE_ICON", ":/icons/svg/orq_activate_license.svg"},
  {"ORQ_ADD_BOOKMARK_ICON", ":/icons/svg/orq_add_bookmark.svg"},
  {"ORQ_ADD_BREAKPOINT_ICON", ":/icons/svg/orq_add_breakpoint.svg"},
  {"ORQ_ADD_CLOCK_ICON", ":/icons/svg/orq_add_clock.svg"},
  {"ORQ_ADD_FILE_ICON", ":/icons/svg/orq_add_file.svg"},
  {"ORQ_ADD_NODE_ICON", ":/icons/svg/orq_add_node.svg"},
  {"ORQ_ADD_PROBE_ICON", ":/icons/svg/orq_add_probe.svg"},
  {"ORQ_ADD_REGION_ICON", ":/icons/svg/orq_add_region.svg"},
  {"ORQ_ADD_SIGNAL_ICON", ":/icons/svg/orq_add_signal.svg"},
  {"ORQ_ADD_TO_PROJECT_ICON", ":/icons/svg/orq_add_to_project.svg"},
  {"ORQ_ADD_WAVE_MARKER_ICON", ":/icons/svg/orq_add_wave_marker.svg"},
  {"ORQ_ADVANCED_SEARCH_ICON", ":/icons/svg/orq_advanced_search.svg"},
  {"ORQ_ALIGN_BOTTOM_ICON", ":/icons/svg/orq_align_bottom.svg"},
  {"ORQ_ALIGN_HORIZONTAL_CENTER_ICON", ":/icons/svg/orq_align_horizontal_center.svg"},
  {"ORQ_ALIGN_LEFT_ICON", ":/icons/svg/orq_align_left.svg"},
  {"ORQ_ALIGN_RIGHT_ICON", ":/icons/svg/orq_align_right.svg"},
  {"ORQ_ALIGN_TOP_ICON", ":/icons/svg/orq_align_top.svg"},
  {"ORQ_ALL_MESSAGES_ICON", ":/icons/svg/orq_all_messages.svg"},
  {"ORQ_ANALYZE_CURRENT_FILE_ICON", ":/icons/svg/orq_analyze_current_file.svg"},
  {"ORQ_ANALYZE_ELABORATE_ICON", ":/icons/svg/orq_analyze_elaborate.svg"},
  {"ORQ_ANALYZE_TIMING_ICON", ":/icons/svg/orq_analyze_timing.svg"},
  {"ORQ_ANNOTATE_ICON", ":/icons/svg/orq_annotate.svg"},
  {"ORQ_APPLY_CONSTRAINTS_ICON", ":/icons/svg/orq_apply_constraints.svg"},
  {"ORQ_ARCHIVE_FILE_ICON", ":/icons/svg/orq_archive_file.svg"},
  {"ORQ_ARCHIVE_PROJECT_ICON", ":/icons/svg/orq_archive_project.svg"},
  {"ORQ_AREA_REPORT_ICON", ":/icons/svg/orq_area_report.svg"},
  {"ORQ_AREA_SELECTION_TOOL_ICON", ":/icons/svg/orq_area_selection_tool.svg"},
  {"ORQ_ARRANGE_BLOCKS_ICON", ":/icons/svg/orq_arrange_blocks.svg"},
  {"ORQ_ARROW_DOWN_ICON", ":/icons/svg/orq_arrow_down.svg"},
  {"ORQ_ARROW_LEFT_ICON", ":/icons/svg/orq_arrow_left.svg"},
  {"ORQ_ARROW_RIGHT_ICON", ":/icons/svg/orq_arrow_right.svg"},
  {"ORQ_ARROW_UP_ICON", ":/icons/svg/orq_arrow_up.svg"},
  {"ORQ_ASSIGNMENT_EDITOR_ICON", ":/icons/svg/orq_assignment_editor.svg"},
  {"ORQ_ASSIGNMENT_FILE_ICON", ":/icons/svg/orq_assignment_file.svg"},
  {"ORQ_ATTACH_ICON", ":/icons/svg/orq_attach.svg"},
  {"ORQ_AUTO_PLACE_ICON", ":/icons/svg/orq_auto_place.svg"},
  {"ORQ_BACKWARD_ICON", ":/icons/svg/orq_backward.svg"},
  {"ORQ_BACK_ANNOTATE_ICON", ":/icons/svg/orq_back_annotate.svg"},
  {"ORQ_BACK_ICON", ":/icons/svg/orq_back.svg"},
  {"ORQ_BELL_ICON", ":/icons/svg/orq_bell.svg"},
  {"ORQ_BIRDS_EYE_VIEW_ICON", ":/icons/svg/orq_birds_eye_view.svg"},
  {"ORQ_BITSTREAM_FILE_ICON", ":/icons/svg/orq_bitstream_file.svg"},
  {"ORQ_BLOCK_DIAGRAM_FILE_ICON", ":/icons/svg/orq_block_diagram_file.svg"},
  {"ORQ_BOARD_BOARD_ICON", ":/icons/svg/orq_board_board.svg"},
  {"ORQ_BOARD_CABLE_ICON", ":/icons/svg/orq_board_cable.svg"},
  {"ORQ_BOARD_CONNECTOR_ICON", ":/icons/svg/orq_board_connector.svg"},
  {"ORQ_BOARD_LED_ICON", ":/icons/svg/orq_board_led.svg"},
  {"ORQ_BOARD_MEMORY_CHIP_ICON", ":/icons/svg/orq_board_memory_chip.svg"},
  {"ORQ_BOARD_OSCILLATOR_ICON", ":/icons/svg/orq_board_oscillator.svg"},
  {"ORQ_BOARD_POWER_SUPPLY_ICON", ":/icons/svg/orq_board_power_supply.svg"},
  {"ORQ_BOARD_SWITCH_ICON", ":/icons/svg/orq_board_switch.svg"},
  {"ORQ_BOOKMARK_ICON", ":/icons/svg/orq_bookmark.svg"},
  {"ORQ_BOOKMARK_NEXT_ICON", ":/icons/svg/orq_bookmark_next.svg"},
  {"ORQ_BOOKMARK_PREVIOUS_ICON", ":/icons/svg/orq_bookmark_previous.svg"},
  {"ORQ_BROWSE_IP_CATALOG_ICON", ":/icons/svg/orq_browse_ip_catalog.svg"},
  {"ORQ_BUG_ICON", ":/icons/svg/orq_bug.svg"},
  {"ORQ_BUSY_ICON", ":/icons/svg/orq_busy.svg"},
  {"ORQ_CASCADE_ICON", ":/icons/svg/orq_cascade.svg"},
  {"ORQ_CHANGE_DEVICE_ICON", ":/icons/svg/orq_change_device.svg"},
  {"ORQ_CHART_ICON", ":/icons/svg/orq_chart.svg"},
  {"ORQ_CHECK_DESIGN_RULES_ICON", ":/icons/svg/orq_check_design_rules.svg"},
  {"ORQ_CHECK_FOR_UPDATES_ICON", ":/icons/svg/orq_check_for_updates.svg"},
  {"ORQ_CHECK_ICON", ":/icons/svg/orq_check.svg"},
  {"ORQ_CLEAR_MESSAGES_ICON", ":/icons/svg/orq_clear_messages.svg"},
  {"ORQ_CLK_APP_ICON", ":/icons/svg/orq_clk_app.svg"},
  {"ORQ_CLK_APP_LARGE_ICON", ":/icons/svg/orq_clk_app_large.svg"},
  {"ORQ_CLK_CLOCK_BUFFER_ICON", ":/icons/svg/orq_clk_clock_buffer.svg"},
  {"ORQ_CLK_CLOCK_DOMAIN_ICON", ":/icons/svg/orq_clk_clock_domain.svg"},
  {"ORQ_CLK_CLOCK_ICON", ":/icons/svg/orq_clk_clock.svg"},
  {"ORQ_CLK_CLOCK_MUX_ICON", ":/icons/svg/orq_clk_clock_mux.svg"},
  {"ORQ_CLK_CROSSING_ICON", ":/icons/svg/orq_clk_crossing.svg"},
  {"ORQ_CLK_GENERATED_CLOCK_ICON", ":/icons/svg/orq_clk_generated_clock.svg"},
  {"ORQ_CLK_PLL_ICON", ":/icons/svg/orq_clk_pll.svg"},
  {"ORQ_CLK_SHOW_CLOCK_REGIONS_ICON", ":/icons/svg/orq_clk_show_clock_regions.svg"},
  {"ORQ_CLK_SHOW_CLOCK_TREE_ICON", ":/icons/svg/orq_clk_show_clock_tree.svg"},
  {"ORQ_CLOCK_ICON", ":/icons/svg/orq_clock.svg"},
  {"ORQ_CLOSE_ALL_ICON", ":/icons/svg/orq_close_all.svg"},
  {"ORQ_CLOSE_ICON", ":/icons/svg/orq_close.svg"},
  {"ORQ_CLOSE_PROJECT_ICON", ":/icons/svg/orq_close_project.svg"},
  {"ORQ_COLLAPSE_ALL_ICON", ":/icons/svg/orq_collapse_all.svg"},
  {"ORQ_COMPARE_REVISIONS_ICON", ":/icons/svg/orq_compare_revisions.svg"},
  {"ORQ_COMPILE_DESIGN_ICON", ":/icons/svg/orq_compile_design.svg"},
  {"ORQ_CONNECT_TO_DEVICE_ICON", ":/icons/svg/orq_connect_to_device.svg"},
  {"ORQ_CONSOLE_ICON", ":/icons/svg/orq_console.svg"},
  {"ORQ_CONSTRAINT_FILE_ICON", ":/icons/svg/orq_constraint_file.svg"},
  {"ORQ_CONTINUE_ICON", ":/icons/svg/orq_continue.svg"},
  {"ORQ_CONWQ_APP_ICON", ":/icons/svg/orq_conwq_app.svg"},
  {"ORQ_CONWQ_APP_LARGE_ICON", ":/icons/svg/orq_conwq_app_large.svg"},
  {"ORQ_CONWQ_CLEAR_CONSOLE_ICON", ":/icons/svg/orq_conwq_clear_console.svg"},
  {"ORQ_CONWQ_COMMAND_ICON", ":/icons/svg/orq_conwq_command.svg"},
  {"ORQ_CONWQ_ERROR_RESULT_ICON", ":/icons/svg/orq_conwq_error_result.svg"},
  {"ORQ_CONWQ_HISTORY_ENTRY_ICON", ":/icons/svg/orq_conwq_history_entry.svg"},
  {"ORQ_CONWQ_RESULT_ICON", ":/icons/svg/orq_conwq_result.svg"},
  {"ORQ_CONWQ_SAVE_TRANSCRIPT_ICON", ":/icons/svg/orq_conwq_save_transcript.svg"},
  {"ORQ_CONWQ_SCRIPT_ICON", ":/icons/svg/orq_conwq_script.svg"},
  {"ORQ_COPY_FILE_NAME_ICON", ":/icons/svg/orq_copy_file_name.svg"},
  {"ORQ_COPY_FULL_PATH_ICON", ":/icons/svg/orq_copy_full_path.svg"},
  {"ORQ_COPY_ICON", ":/icons/svg/orq_copy.svg"},
  {"ORQ_COPY_NODE_NAME_ICON", ":/icons/svg/orq_copy_node_name.svg"},
  {"ORQ_COPY_TOOLTIP_ICON", ":/icons/svg/orq_copy_tooltip.svg"},
  {"ORQ_CREATE_BLOCK_ICON", ":/icons/svg/orq_create_block.svg"},
  {"ORQ_CREATE_CLOCK_ICON", ":/icons/svg/orq_create_clock.svg"},
  {"ORQ_CREATE_DESIGN_PARTITION_ICON", ":/icons/svg/orq_create_design_partition.svg"},
  {"ORQ_CREATE_PROJECT_ICON", ":/icons/svg/orq_create_project.svg"},
  {"ORQ_CREATE_REGION_ICON", ":/icons/svg/orq_create_region.svg"},
  {"ORQ_CRITICAL_WARNING_ICON", ":/icons/svg/orq_critical_warning.svg"},
  {"ORQ_CROSS_PROBE_ICON", ":/icons/svg/orq_cross_probe.svg"},
  {"ORQ_CST_APP_ICON", ":/icons/svg/orq_cst_app.svg"},
  {"ORQ_CST_APP_LARGE_ICON", ":/icons/svg/orq_cst_app_large.svg"},
  {"ORQ_CST_CLOCK_CONSTRAINT_ICON", ":/icons/svg/orq_cst_clock_constraint.svg"},
  {"ORQ_CST_FALSE_PATH_ICON", ":/icons/svg/orq_cst_false_path.svg"},
  {"ORQ_CST_GROUP_ICON", ":/icons/svg/orq_cst_group.svg"},
  {"ORQ_CST_IO_DELAY_ICON", ":/icons/svg/orq_cst_io_delay.svg"},
  {"ORQ_CST_MAX_DELAY_ICON", ":/icons/svg/orq_cst_max_delay.svg"},
  {"ORQ_CST_MIN_DELAY_ICON", ":/icons/svg/orq_cst_min_delay.svg"},
  {"ORQ_CST_MULTICYCLE_ICON", ":/icons/svg/orq_cst_multicycle.svg"},
  {"ORQ_CST_VALIDATE_CONSTRAINTS_ICON", ":/icons/svg/orq_cst_validate_constraints.svg"},
  {"ORQ_CUSTOMIZE_COLUMN_ICON", ":/icons/svg/orq_customize_column.svg"},
  {"ORQ_CUSTOMIZE_FILTER_ICON", ":/icons/svg/orq_customize_filter.svg"},
  {"ORQ_CUSTOMIZE_ICON", ":/icons/svg/orq_customize.svg"},
  {"ORQ_CUT_ICON", ":/icons/svg/orq_cut.svg"},
  {"ORQ_DATABASE_ICON", ":/icons/svg/orq_database.svg"},
  {"ORQ_DBG_APP_ICON", ":/icons/svg/orq_dbg_app.svg"},
  {"ORQ_DBG_APP_LARGE_ICON", ":/icons/svg/orq_dbg_app_large.svg"},
  {"ORQ_DBG_CABLE_ICON", ":/icons/svg/orq_dbg_cable.svg"},
  {"ORQ_DBG_DEVICE_ICON", ":/icons/svg/orq_dbg_device.svg"},
  {"ORQ_DBG_INSTANCE_ICON", ":/icons/svg/orq_dbg_instance.svg"},
  {"ORQ_DBG_PROBE_ICON", ":/icons/svg/orq_dbg_probe.svg"},
  {"ORQ_DBG_RUN_ANALYSIS_ICON", ":/icons/svg/orq_dbg_run_analysis.svg"},
  {"ORQ_DBG_SAMPLE_ICON", ":/icons/svg/orq_dbg_sample.svg"},
  {"ORQ_DBG_STOP_ANALYSIS_ICON", ":/icons/svg/orq_dbg_stop_analysis.svg"},
  {"ORQ_DBG_STORAGE_ICON", ":/icons/svg/orq_dbg_storage.svg"},
  {"ORQ_DBG_TRIGGER_ARMED_ICON", ":/icons/svg/orq_dbg_trigger_armed.svg"},
  {"ORQ_DBG_TRIGGER_FIRED_ICON", ":/icons/svg/orq_dbg_trigger_fired.svg"},
  {"ORQ_DBG_TRIGGER_ICON", ":/icons/svg/orq_dbg_trigger.svg"},
  {"ORQ_DEBUG_FILE_ICON", ":/icons/svg/orq_debug_file.svg"},
  {"ORQ_DECREASE_FONT_SIZE_ICON", ":/icons/svg/orq_decrease_font_size.svg"},
  {"ORQ_DELETE_ASSIGNMENT_ICON", ":/icons/svg/orq_delete_assignment.svg"},
  {"ORQ_DELETE_BLOCK_ICON", ":/icons/svg/orq_delete_block.svg"},
  {"ORQ_DELETE_ICON", ":/icons/svg/orq_delete.svg"},
  {"ORQ_DELETE_REGION_ICON", ":/icons/svg/orq_delete_region.svg"},
  {"ORQ_DESIGN_PARTITIONS_WINDOW_ICON", ":/icons/svg/orq_design_partitions_window.svg"},
  {"ORQ_DESIGN_SPACE_EXPLORER_ICON", ":/icons/svg/orq_design_space_explorer.svg"},
  {"ORQ_DETACH_ICON", ":/icons/svg/orq_detach.svg"},
  {"ORQ_DEVICE_PROPERTIES_ICON", ":/icons/svg/orq_device_properties.svg"},
  {"ORQ_DISABLE_ASSIGNMENT_ICON", ":/icons/svg/orq_disable_assignment.svg"},
  {"ORQ_DISABLE_BREAKPOINT_ICON", ":/icons/svg/orq_disable_breakpoint.svg"},
  {"ORQ_DISPLAY_GRID_ICON", ":/icons/svg/orq_display_grid.svg"},
  {"ORQ_DISPLAY_RULERS_ICON", ":/icons/svg/orq_display_rulers.svg"},
  {"ORQ_DOCK_CLOSE_HOVER_ICON", ":/icons/svg/orq_dock_close_hover.svg"},
  {"ORQ_DOCK_CLOSE_ICON", ":/icons/svg/orq_dock_close.svg"},
  {"ORQ_DOCK_CLOSE_PRESSED_ICON", ":/icons/svg/orq_dock_close_pressed.svg"},
  {"ORQ_DOCK_FLOAT_HOVER_ICON", ":/icons/svg/orq_dock_float_hover.svg"},
  {"ORQ_DOCK_FLOAT_ICON", ":/icons/svg/orq_dock_float.svg"},
  {"ORQ_DOCK_FLOAT_PRESSED_ICON", ":/icons/svg/orq_dock_float_pressed.svg"},
  {"ORQ_DOCK_MENU_HOVER_ICON", ":/icons/svg/orq_dock_menu_hover.svg"},
  {"ORQ_DOCK_MENU_ICON", ":/icons/svg/orq_dock_menu.svg"},
  {"ORQ_DOCK_MENU_PRESSED_ICON", ":/icons/svg/orq_dock_menu_pressed.svg"},
  {"ORQ_DOCK_PIN_HOVER_ICON", ":/icons/svg/orq_dock_pin_hover.svg"},
  {"ORQ_DOCK_PIN_ICON", ":/icons/svg/orq_dock_pin.svg"},
  {"ORQ_DOCK_PIN_PRESSED_ICON", ":/icons/svg/orq_dock_pin_pressed.svg"},
  {"ORQ_DOCK_RESTORE_ICON", ":/icons/svg/orq_dock_restore.svg"},
  {"ORQ_DOCK_SEARCH_HOVER_ICON", ":/icons/svg/orq_dock_search_hover.svg"},
  {"ORQ_DOCK_SEARCH_ICON", ":/icons/svg/orq_dock_search.svg"},
  {"ORQ_DOCK_SEARCH_PRESSED_ICON", ":/icons/svg/orq_dock_search_pressed.svg"},
  {"ORQ_DOCK_UNPIN_HOVER_ICON", ":/icons/svg/orq_dock_unpin_hover.svg"},
  {"ORQ_DOCK_UNPIN_ICON", ":/icons/svg/orq_dock_unpin.svg"},
  {"ORQ_DOCK_UNPIN_PRESSED_ICON", ":/icons/svg/orq_dock_unpin_pressed.svg"},
  {"ORQ_DRC_APP_ICON", ":/icons/svg/orq_drc_app.svg"},
  {"ORQ_DRC_APP_LARGE_ICON", ":/icons/svg/orq_drc_app_large.svg"},
  {"ORQ_DRC_RERUN_ICON", ":/icons/svg/orq_drc_rerun.svg"},
  {"ORQ_DRC_RULE_FAILED_ICON", ":/icons/svg/orq_drc_rule_failed.svg"},
  {"ORQ_DRC_RULE_ICON", ":/icons/svg/orq_drc_rule.svg"},
  {"ORQ_DRC_RULE_PASSED_ICON", ":/icons/svg/orq_drc_rule_passed.svg"},
  {"ORQ_DRC_RULE_WAIVED_ICON", ":/icons/svg/orq_drc_rule_waived.svg"},
  {"ORQ_DRC_SHOW_RULES_ICON", ":/icons/svg/orq_drc_show_rules.svg"},
  {"ORQ_DRC_VIOLATION_ICON", ":/icons/svg/orq_drc_violation.svg"},
  {"ORQ_DUPLICATE_ICON", ":/icons/svg/orq_duplicate.svg"},
  {"ORQ_ELABORATE_DESIGN_ICON", ":/icons/svg/orq_elaborate_design.svg"},
  {"ORQ_ENABLE_ASSIGNMENT_ICON", ":/icons/svg/orq_enable_assignment.svg"},
  {"ORQ_ENABLE_DOCKING_ICON", ":/icons/svg/orq_enable_docking.svg"},
  {"ORQ_END_SIMULATION_ICON", ":/icons/svg/orq_end_simulation.svg"},
  {"ORQ_ERASER_ICON", ":/icons/svg/orq_eraser.svg"},
  {"ORQ_ERROR_ICON", ":/icons/svg/orq_error.svg"},
  {"ORQ_ERROR_NEXT_ICON", ":/icons/svg/orq_error_next.svg"},
  {"ORQ_EXIT_ICON", ":/icons/svg/orq_exit.svg"},
  {"ORQ_EXPAND_ALL_ICON", ":/icons/svg/orq_expand_all.svg"},
  {"ORQ_EXPORT_ICON", ":/icons/svg/orq_export.svg"},
  {"ORQ_EXPORT_IMAGE_ICON", ":/icons/svg/orq_export_image.svg"},
  {"ORQ_EXPORT_NETLIST_ICON", ":/icons/svg/orq_export_netlist.svg"},
  {"ORQ_EXTRACT_CONSTRAINTS_ICON", ":/icons/svg/orq_extract_constraints.svg"},
  {"ORQ_EXTRA_INFO_ICON", ":/icons/svg/orq_extra_info.svg"},
  {"ORQ_EYE_ICON", ":/icons/svg/orq_eye.svg"},
  {"ORQ_EYE_OFF_ICON", ":/icons/svg/orq_eye_off.svg"},
  {"ORQ_FANIN_CONE_ICON", ":/icons/svg/orq_fanin_cone.svg"},
  {"ORQ_FANOUT_CONE_ICON", ":/icons/svg/orq_fanout_cone.svg"},
  {"ORQ_FILE_EXCLUDED_ICON", ":/icons/svg/orq_file_excluded.svg"},
  {"ORQ_FILE_MISSING_ICON", ":/icons/svg/orq_file_missing.svg"},
  {"ORQ_FILE_MODIFIED_ICON", ":/icons/svg/orq_file_modified.svg"},
  {"ORQ_FILE_NEW_ICON", ":/icons/svg/orq_file_new.svg"},
  {"ORQ_FILE_PROPERTIES_ICON", ":/icons/svg/orq_file_properties.svg"},
  {"ORQ_FILE_READ_ONLY_ICON", ":/icons/svg/orq_file_read_only.svg"},
  {"ORQ_FILL_REGION_ICON", ":/icons/svg/orq_fill_region.svg"},
  {"ORQ_FILTER_CRITICAL_WARNINGS_ICON", ":/icons/svg/orq_filter_critical_warnings.svg"},
  {"ORQ_FILTER_ERROR_MESSAGES_ICON", ":/icons/svg/orq_filter_error_messages.svg"},
  {"ORQ_FILTER_ICON", ":/icons/svg/orq_filter.svg"},
  {"ORQ_FILTER_INFO_MESSAGES_ICON", ":/icons/svg/orq_filter_info_messages.svg"},
  {"ORQ_FILTER_SUPPRESSED_MESSAGES_ICON", ":/icons/svg/orq_filter_suppressed_messages.svg"},
  {"ORQ_FILTER_WARNING_MESSAGES_ICON", ":/icons/svg/orq_filter_warning_messages.svg"},
  {"ORQ_FINALIZE_DESIGN_ICON", ":/icons/svg/orq_finalize_design.svg"},
  {"ORQ_FIND_ICON", ":/icons/svg/orq_find.svg"},
  {"ORQ_FIND_NEXT_ICON", ":/icons/svg/orq_find_next.svg"},
  {"ORQ_FIND_PREVIOUS_ICON", ":/icons/svg/orq_find_previous.svg"},
  {"ORQ_FIND_REPLACE_ICON", ":/icons/svg/orq_find_replace.svg"},
  {"ORQ_FIND_SIGNAL_ICON", ":/icons/svg/orq_find_signal.svg"},
  {"ORQ_FIND_USAGES_ICON", ":/icons/svg/orq_find_usages.svg"},
  {"ORQ_FLAG_BLUE_ICON", ":/icons/svg/orq_flag_blue.svg"},
  {"ORQ_FLAG_GREEN_ICON", ":/icons/svg/orq_flag_green.svg"},
  {"ORQ_FLAG_NOTE_ICON", ":/icons/svg/orq_flag_note.svg"},
  {"ORQ_FLAG_ORANGE_ICON", ":/icons/svg/orq_flag_orange.svg"},
  {"ORQ_FLAG_PURPLE_ICON", ":/icons/svg/orq_flag_purple.svg"},
  {"ORQ_FLAG_RED_ICON", ":/icons/svg/orq_flag_red.svg"},
  {"ORQ_FLATTEN_HIERARCHY_ICON", ":/icons/svg/orq_flatten_hierarchy.svg"},
  {"ORQ_FLOORPLAN_FILE_ICON", ":/icons/svg/orq_floorplan_file.svg"},
  {"ORQ_FLOW_ASSEMBLER_DONE_ICON", ":/icons/svg/orq_flow_assembler_done.svg"},
  {"ORQ_FLOW_ASSEMBLER_FAILED_ICON", ":/icons/svg/orq_flow_assembler_failed.svg"},
  {"ORQ_FLOW_ASSEMBLER_ICON", ":/icons/svg/orq_flow_assembler.svg"},
  {"ORQ_FLOW_DRC_DONE_ICON", ":/icons/svg/orq_flow_drc_done.svg"},
  {"ORQ_FLOW_DRC_FAILED_ICON", ":/icons/svg/orq_flow_drc_failed.svg"},
  {"ORQ_FLOW_DRC_ICON", ":/icons/svg/orq_flow_drc.svg"},
  {"ORQ_FLOW_ELABORATION_DONE_ICON", ":/icons/svg/orq_flow_elaboration_done.svg"},
  {"ORQ_FLOW_ELABORATION_FAILED_ICON", ":/icons/svg/orq_flow_elaboration_failed.svg"},
  {"ORQ_FLOW_ELABORATION_ICON", ":/icons/svg/orq_flow_elaboration.svg"},
  {"ORQ_FLOW_NETLIST_WRITER_DONE_ICON", ":/icons/svg/orq_flow_netlist_writer_done.svg"},
  {"ORQ_FLOW_NETLIST_WRITER_FAILED_ICON", ":/icons/svg/orq_flow_netlist_writer_failed.svg"},
  {"ORQ_FLOW_NETLIST_WRITER_ICON", ":/icons/svg/orq_flow_netlist_writer.svg"},
  {"ORQ_FLOW_PARTITION_DONE_ICON", ":/icons/svg/orq_flow_partition_done.svg"},
  {"ORQ_FLOW_PARTITION_FAILED_ICON", ":/icons/svg/orq_flow_partition_failed.svg"},
  {"ORQ_FLOW_PARTITION_ICON", ":/icons/svg/orq_flow_partition.svg"},
  {"ORQ_FLOW_PLACEMENT_DONE_ICON", ":/icons/svg/orq_flow_placement_done.svg"},
  {"ORQ_FLOW_PLACEMENT_FAILED_ICON", ":/icons/svg/orq_flow_placement_failed.svg"},
  {"ORQ_FLOW_PLACEMENT_ICON", ":/icons/svg/orq_flow_placement.svg"},
  {"ORQ_FLOW_POWER_DONE_ICON", ":/icons/svg/orq_flow_power_done.svg"},
  {"ORQ_FLOW_POWER_FAILED_ICON", ":/icons/svg/orq_flow_power_failed.svg"},
  {"ORQ_FLOW_POWER_ICON", ":/icons/svg/orq_flow_power.svg"},
  {"ORQ_FLOW_ROUTING_DONE_ICON", ":/icons/svg/orq_flow_routing_done.svg"},
  {"ORQ_FLOW_ROUTING_FAILED_ICON", ":/icons/svg/orq_flow_routing_failed.svg"},
  {"ORQ_FLOW_ROUTING_ICON", ":/icons/svg/orq_flow_routing.svg"},
  {"ORQ_FLOW_SYNTHESIS_DONE_ICON", ":/icons/svg/orq_flow_synthesis_done.svg"},
  {"ORQ_FLOW_SYNTHESIS_FAILED_ICON", ":/icons/svg/orq_flow_synthesis_failed.svg"},
  {"ORQ_FLOW_SYNTHESIS_ICON", ":/icons/svg/orq_flow_synthesis.svg"},
  {"ORQ_FLOW_TIMING_DONE_ICON", ":/icons/svg/orq_flow_timing_done.svg"},
  {"ORQ_FLOW_TIMING_FAILED_ICON", ":/icons/svg/orq_flow_timing_failed.svg"},
  {"ORQ_FLOW_TIMING_ICON", ":/icons/svg/orq_flow_timing.svg"},
  {"ORQ_FOCUS_VIEW_ICON", ":/icons/svg/orq_focus_view.svg"},
  {"ORQ_FOLDER_ICON", ":/icons/svg/orq_folder.svg"},
  {"ORQ_FOLDER_OPEN_ICON", ":/icons/svg/orq_folder_open.svg"},
  {"ORQ_FOLLOW_NET_ICON", ":/icons/svg/orq_follow_net.svg"},
  {"ORQ_FONT_ICON", ":/icons/svg/orq_font.svg"},
  {"ORQ_FORMAT_SOURCE_ICON", ":/icons/svg/orq_format_source.svg"},
  {"ORQ_FORWARD_ARROW_ICON", ":/icons/svg/orq_forward_arrow.svg"},
  {"ORQ_FORWARD_ICON", ":/icons/svg/orq_forward.svg"},
  {"ORQ_FPV_APP_ICON", ":/icons/svg/orq_fpv_app.svg"},
  {"ORQ_FPV_APP_LARGE_ICON", ":/icons/svg/orq_fpv_app_large.svg"},
  {"ORQ_FPV_BLOCKAGE_ICON", ":/icons/svg/orq_fpv_blockage.svg"},
  {"ORQ_FPV_BLOCK_ICON", ":/icons/svg/orq_fpv_block.svg"},
  {"ORQ_FPV_CLOCK_REGION_ICON", ":/icons/svg/orq_fpv_clock_region.svg"},
  {"ORQ_FPV_CORE_ICON", ":/icons/svg/orq_fpv_core.svg"},
  {"ORQ_FPV_DIE_ICON", ":/icons/svg/orq_fpv_die.svg"},
  {"ORQ_FPV_FENCE_ICON", ":/icons/svg/orq_fpv_fence.svg"},
  {"ORQ_FPV_GUIDE_ICON", ":/icons/svg/orq_fpv_guide.svg"},
  {"ORQ_FPV_HIGHLIGHT_CONGESTION_ICON", ":/icons/svg/orq_fpv_highlight_congestion.svg"},
  {"ORQ_FPV_KEEPOUT_ICON", ":/icons/svg/orq_fpv_keepout.svg"},
  {"ORQ_FPV_MACRO_ICON", ":/icons/svg/orq_fpv_macro.svg"},
  {"ORQ_FPV_MEASURE_ICON", ":/icons/svg/orq_fpv_measure.svg"},
  {"ORQ_FPV_PAD_ICON", ":/icons/svg/orq_fpv_pad.svg"},
  {"ORQ_FPV_POWER_STRIPE_ICON", ":/icons/svg/orq_fpv_power_stripe.svg"},
  {"ORQ_FPV_REGION_ICON", ":/icons/svg/orq_fpv_region.svg"},
  {"ORQ_FPV_ROW_ICON", ":/icons/svg/orq_fpv_row.svg"},
  {"ORQ_FPV_SHOW_CLOCK_REGIONS_ICON", ":/icons/svg/orq_fpv_show_clock_regions.svg"},
  {"ORQ_FPV_SHOW_DENSITY_ICON", ":/icons/svg/orq_fpv_show_density.svg"},
  {"ORQ_FPV_SHOW_FLYLINES_ICON", ":/icons/svg/orq_fpv_show_flylines.svg"},
  {"ORQ_FPV_SHOW_IO_BANKS_ICON", ":/icons/svg/orq_fpv_show_io_banks.svg"},
  {"ORQ_FPV_SHOW_KEEPOUTS_ICON", ":/icons/svg/orq_fpv_show_keepouts.svg"},
  {"ORQ_FPV_SHOW_NET_BUNDLES_ICON", ":/icons/svg/orq_fpv_show_net_bundles.svg"},
  {"ORQ_FPV_SHOW_POWER_STRIPES_ICON", ":/icons/svg/orq_fpv_show_power_stripes.svg"},
  {"ORQ_FPV_SHOW_ROUTING_ICON", ":/icons/svg/orq_fpv_show_routing.svg"},
  {"ORQ_FPV_SHOW_SLR_ICON", ":/icons/svg/orq_fpv_show_slr.svg"},
  {"ORQ_FPV_SLR_ICON", ":/icons/svg/orq_fpv_slr.svg"},
  {"ORQ_GEAR_ICON", ":/icons/svg/orq_gear.svg"},
  {"ORQ_GED_ADD_BUS_ICON", ":/icons/svg/orq_ged_add_bus.svg"},
  {"ORQ_GED_ADD_JUNCTION_ICON", ":/icons/svg/orq_ged_add_junction.svg"},
  {"ORQ_GED_ADD_LABEL_ICON", ":/icons/svg/orq_ged_add_label.svg"},
  {"ORQ_GED_ADD_PORT_ICON", ":/icons/svg/orq_ged_add_port.svg"},
  {"ORQ_GED_ADD_WIRE_ICON", ":/icons/svg/orq_ged_add_wire.svg"},
  {"ORQ_GED_APP_ICON", ":/icons/svg/orq_ged_app.svg"},
  {"ORQ_GED_APP_LARGE_ICON", ":/icons/svg/orq_ged_app_large.svg"},
  {"ORQ_GED_ARC_ICON", ":/icons/svg/orq_ged_arc.svg"},
  {"ORQ_GED_BRING_TO_FRONT_ICON", ":/icons/svg/orq_ged_bring_to_front.svg"},
  {"ORQ_GED_BUS_WIRE_ICON", ":/icons/svg/orq_ged_bus_wire.svg"},
  {"ORQ_GED_CONDUIT_ICON", ":/icons/svg/orq_ged_conduit.svg"},
  {"ORQ_GED_EDIT_SYMBOL_ICON", ":/icons/svg/orq_ged_edit_symbol.svg"},
  {"ORQ_GED_ELLIPSE_ICON", ":/icons/svg/orq_ged_ellipse.svg"},
  {"ORQ_GED_GROUND_SYMBOL_ICON", ":/icons/svg/orq_ged_ground_symbol.svg"},
  {"ORQ_GED_IMAGE_ICON", ":/icons/svg/orq_ged_image.svg"},
  {"ORQ_GED_JUNCTION_ICON", ":/icons/svg/orq_ged_junction.svg"},
  {"ORQ_GED_LABEL_ICON", ":/icons/svg/orq_ged_label.svg"},
  {"ORQ_GED_LINE_ICON", ":/icons/svg/orq_ged_line.svg"},
  {"ORQ_GED_PAGE_ICON", ":/icons/svg/orq_ged_page.svg"},
  {"ORQ_GED_PORT_BIDIR_ICON", ":/icons/svg/orq_ged_port_bidir.svg"},
  {"ORQ_GED_PORT_IN_ICON", ":/icons/svg/orq_ged_port_in.svg"},
  {"ORQ_GED_PORT_OUT_ICON", ":/icons/svg/orq_ged_port_out.svg"},
  {"ORQ_GED_POWER_SYMBOL_ICON", ":/icons/svg/orq_ged_power_symbol.svg"},
  {"ORQ_GED_RECTANGLE_ICON", ":/icons/svg/orq_ged_rectangle.svg"},
  {"ORQ_GED_ROTATE_LEFT_ICON", ":/icons/svg/orq_ged_rotate_left.svg"},
  {"ORQ_GED_ROTATE_RIGHT_ICON", ":/icons/svg/orq_ged_rotate_right.svg"},
  {"ORQ_GED_SEND_TO_BACK_ICON", ":/icons/svg/orq_ged_send_to_back.svg"},
  {"ORQ_GED_SNAP_TO_GRID_ICON", ":/icons/svg/orq_ged_snap_to_grid.svg"},
  {"ORQ_GED_SYMBOL_ICON", ":/icons/svg/orq_ged_symbol.svg"},
  {"ORQ_GED_TEXT_ICON", ":/icons/svg/orq_ged_text.svg"},
  {"ORQ_GED_WIRE_ICON", ":/icons/svg/orq_ged_wire.svg"},
  {"ORQ_GENERATE_BITSTREAM_ICON", ":/icons/svg/orq_generate_bitstream.svg"},
  {"ORQ_GENERATE_PROGRAMMING_FILE_ICON", ":/icons/svg/orq_generate_programming_file.svg"},
  {"ORQ_GENERIC_FILE_ICON", ":/icons/svg/orq_generic_file.svg"},
  {"ORQ_GO_TO_DEFINITION_ICON", ":/icons/svg/orq_go_to_definition.svg"},
  {"ORQ_GO_TO_DRIVER_ICON", ":/icons/svg/orq_go_to_driver.svg"},
  {"ORQ_GO_TO_TIME_ICON", ":/icons/svg/orq_go_to_time.svg"},
  {"ORQ_GRAY_X_HOVER_ICON", ":/icons/svg/orq_gray_x_hover.svg"},
  {"ORQ_GRAY_X_ICON", ":/icons/svg/orq_gray_x.svg"},
  {"ORQ_GRID_ICON", ":/icons/svg/orq_grid.svg"},
  {"ORQ_GRID_SETTINGS_ICON", ":/icons/svg/orq_grid_settings.svg"},
  {"ORQ_GROUP_SIGNALS_ICON", ":/icons/svg/orq_group_signals.svg"},
  {"ORQ_HAND_GRAB_ICON", ":/icons/svg/orq_hand_grab.svg"},
  {"ORQ_HDL_TEMPLATES_ICON", ":/icons/svg/orq_hdl_templates.svg"},
  {"ORQ_HELP_ICON", ":/icons/svg/orq_help.svg"},
  {"ORQ_HELP_ON_MESSAGE_ICON", ":/icons/svg/orq_help_on_message.svg"},
  {"ORQ_HIER_BLACK_BOX_ICON", ":/icons/svg/orq_hier_black_box.svg"},
  {"ORQ_HIER_ENTITY_ICON", ":/icons/svg/orq_hier_entity.svg"},
  {"ORQ_HIER_FUNCTION_ICON", ":/icons/svg/orq_hier_function.svg"},
  {"ORQ_HIER_GENERATE_BLOCK_ICON", ":/icons/svg/orq_hier_generate_block.svg"},
  {"ORQ_HIER_INSTANCE_ICON", ":/icons/svg/orq_hier_instance.svg"},
  {"ORQ_HIER_IP_INSTANCE_ICON", ":/icons/svg/orq_hier_ip_instance.svg"},
  {"ORQ_HIER_LIBRARY_ICON", ":/icons/svg/orq_hier_library.svg"},
  {"ORQ_HIER_PACKAGE_ICON", ":/icons/svg/orq_hier_package.svg"},
  {"ORQ_HIER_PARTITION_ICON", ":/icons/svg/orq_hier_partition.svg"},
  {"ORQ_HIER_PRIMITIVE_ICON", ":/icons/svg/orq_hier_primitive.svg"},
  {"ORQ_HIE_APP_ICON", ":/icons/svg/orq_hie_app.svg"},
  {"ORQ_HIE_APP_LARGE_ICON", ":/icons/svg/orq_hie_app_large.svg"},
  {"ORQ_HIGHLIGHT_NET_ICON", ":/icons/svg/orq_highlight_net.svg"},
  {"ORQ_HIGHLIGHT_PATH_ICON", ":/icons/svg/orq_highlight_path.svg"},
  {"ORQ_HIGHLIGHT_SELECTED_ICON", ":/icons/svg/orq_highlight_selected.svg"},
  {"ORQ_HISTORY_ICON", ":/icons/svg/orq_history.svg"},
  {"ORQ_HOME_ICON", ":/icons/svg/orq_home.svg"},
  {"ORQ_HTML_FILE_ICON", ":/icons/svg/orq_html_file.svg"},
  {"ORQ_INCREASE_FONT_SIZE_ICON", ":/icons/svg/orq_increase_font_size.svg"},
  {"ORQ_INFO_ICON", ":/icons/svg/orq_info.svg"},
  {"ORQ_INSERT_SIGNAL_ICON", ":/icons/svg/orq_insert_signal.svg"},
  {"ORQ_INSERT_TIME_BAR_ICON", ":/icons/svg/orq_insert_time_bar.svg"},
  {"ORQ_IOSTD_HSTL_ICON", ":/icons/svg/orq_iostd_hstl.svg"},
  {"ORQ_IOSTD_LVCMOS_ICON", ":/icons/svg/orq_iostd_lvcmos.svg"},
  {"ORQ_IOSTD_LVDS_ICON", ":/icons/svg/orq_iostd_lvds.svg"},
  {"ORQ_IOSTD_LVTTL_ICON", ":/icons/svg/orq_iostd_lvttl.svg"},
  {"ORQ_IOSTD_PCI_ICON", ":/icons/svg/orq_iostd_pci.svg"},
  {"ORQ_IOSTD_SSTL_ICON", ":/icons/svg/orq_iostd_sstl.svg"},
  {"ORQ_IO_BANK_PROPERTIES_ICON", ":/icons/svg/orq_io_bank_properties.svg"},
  {"ORQ_IPC_APP_ICON", ":/icons/svg/orq_ipc_app.svg"},
  {"ORQ_IPC_APP_LARGE_ICON", ":/icons/svg/orq_ipc_app_large.svg"},
  {"ORQ_IPC_CATEGORY_ICON", ":/icons/svg/orq_ipc_category.svg"},
  {"ORQ_IPC_CORE_DEPRECATED_ICON", ":/icons/svg/orq_ipc_core_deprecated.svg"},
  {"ORQ_IPC_CORE_ICON", ":/icons/svg/orq_ipc_core.svg"},
  {"ORQ_IPC_CORE_LICENSED_ICON", ":/icons/svg/orq_ipc_core_licensed.svg"},
  {"ORQ_IPC_UPGRADE_NEEDED_ICON", ":/icons/svg/orq_ipc_upgrade_needed.svg"},
  {"ORQ_IPC_VARIATION_ICON", ":/icons/svg/orq_ipc_variation.svg"},
  {"ORQ_IP_VARIATION_FILE_ICON", ":/icons/svg/orq_ip_variation_file.svg"},
  {"ORQ_JUMP_TO_ERROR_ICON", ":/icons/svg/orq_jump_to_error.svg"},
  {"ORQ_KEYBOARD_SHORTCUTS_ICON", ":/icons/svg/orq_keyboard_shortcuts.svg"},
  {"ORQ_KEY_ICON", ":/icons/svg/orq_key.svg"},
  {"ORQ_LAUNCH_SIMULATION_ICON", ":/icons/svg/orq_launch_simulation.svg"},
  {"ORQ_LAYERS_ICON", ":/icons/svg/orq_layers.svg"},
  {"ORQ_LAYER_SETTINGS_ICON", ":/icons/svg/orq_layer_settings.svg"},
  {"ORQ_LICENSE_SETUP_ICON", ":/icons/svg/orq_license_setup.svg"},
  {"ORQ_LINK_ICON", ":/icons/svg/orq_link.svg"},
  {"ORQ_LIST_ICON", ":/icons/svg/orq_list.svg"},
  {"ORQ_LOAD_DATABASE_ICON", ":/icons/svg/orq_load_database.svg"},
  {"ORQ_LOCATE_IN_ASSIGNMENT_EDITOR_ICON", ":/icons/svg/orq_locate_in_assignment_editor.svg"},
  {"ORQ_LOCATE_IN_BLOCK_EDITOR_ICON", ":/icons/svg/orq_locate_in_block_editor.svg"},
  {"ORQ_LOCATE_IN_CHIP_PLANNER_ICON", ":/icons/svg/orq_locate_in_chip_planner.svg"},
  {"ORQ_LOCATE_IN_CLOCK_PLANNER_ICON", ":/icons/svg/orq_locate_in_clock_planner.svg"},
  {"ORQ_LOCATE_IN_DESIGN_FILE_ICON", ":/icons/svg/orq_locate_in_design_file.svg"},
  {"ORQ_LOCATE_IN_FLOORPLAN_VIEWER_ICON", ":/icons/svg/orq_locate_in_floorplan_viewer.svg"},
  {"ORQ_LOCATE_IN_HIERARCHY_ICON", ":/icons/svg/orq_locate_in_hierarchy.svg"},
  {"ORQ_LOCATE_IN_NETLIST_VIEWER_ICON", ":/icons/svg/orq_locate_in_netlist_viewer.svg"},
  {"ORQ_LOCATE_IN_PIN_PLANNER_ICON", ":/icons/svg/orq_locate_in_pin_planner.svg"},
  {"ORQ_LOCATE_IN_POWER_ANALYZER_ICON", ":/icons/svg/orq_locate_in_power_analyzer.svg"},
  {"ORQ_LOCATE_IN_SIGNAL_DEBUGGER_ICON", ":/icons/svg/orq_locate_in_signal_debugger.svg"},
  {"ORQ_LOCATE_IN_TIMING_ANALYZER_ICON", ":/icons/svg/orq_locate_in_timing_analyzer.svg"},
  {"ORQ_LOCATE_IN_WAVEFORM_VIEWER_ICON", ":/icons/svg/orq_locate_in_waveform_viewer.svg"},
  {"ORQ_LOCK_ICON", ":/icons/svg/orq_lock.svg"},
  {"ORQ_LOG_FILE_ICON", ":/icons/svg/orq_log_file.svg"},
  {"ORQ_MAGNIFIER_LENS_ICON", ":/icons/svg/orq_magnifier_lens.svg"},
  {"ORQ_MAGNIFYING_TOOL_ICON", ":/icons/svg/orq_magnifying_tool.svg"},
  {"ORQ_MDI_CHILD_ICON", ":/icons/svg/orq_mdi_child.svg"},
  {"ORQ_MEMORY_INIT_FILE_ICON", ":/icons/svg/orq_memory_init_file.svg"},
  {"ORQ_MERGE_PARTITIONS_ICON", ":/icons/svg/orq_merge_partitions.svg"},
  {"ORQ_MESSAGE_DETAILS_ICON", ":/icons/svg/orq_message_details.svg"},
  {"ORQ_MESSAGE_ICON", ":/icons/svg/orq_message.svg"},
  {"ORQ_MINUS_ICON", ":/icons/svg/orq_minus.svg"},
  {"ORQ_MODIFY_CONSTRAINT_ICON", ":/icons/svg/orq_modify_constraint.svg"},
  {"ORQ_MOVE_DOWN_ICON", ":/icons/svg/orq_move_down.svg"},
  {"ORQ_MOVE_UP_ICON", ":/icons/svg/orq_move_up.svg"},
  {"ORQ_MSG_CRITICAL_WARNING_ICON", ":/icons/svg/orq_msg_critical_warning.svg"},
  {"ORQ_MSG_DETAIL_ICON", ":/icons/svg/orq_msg_detail.svg"},
  {"ORQ_MSG_ERROR_ICON", ":/icons/svg/orq_msg_error.svg"},
  {"ORQ_MSG_EXTRA_INFO_ICON", ":/icons/svg/orq_msg_extra_info.svg"},
  {"ORQ_MSG_FLAGGED_ICON", ":/icons/svg/orq_msg_flagged.svg"},
  {"ORQ_MSG_INFO_ICON", ":/icons/svg/orq_msg_info.svg"},
  {"ORQ_MSG_PROCESSING_ICON", ":/icons/svg/orq_msg_processing.svg"},
  {"ORQ_MSG_SUPPRESSED_ICON", ":/icons/svg/orq_msg_suppressed.svg"},
  {"ORQ_MSG_SYSTEM_ICON", ":/icons/svg/orq_msg_system.svg"},
  {"ORQ_MSG_WARNING_ICON", ":/icons/svg/orq_msg_warning.svg"},
  {"ORQ_NAV_HISTORY_BACK_ICON", ":/icons/svg/orq_nav_history_back.svg"},
  {"ORQ_NAV_HISTORY_FORWARD_ICON", ":/icons/svg/orq_nav_history_forward.svg"},
  {"ORQ_NAV_PAN_DOWN_ICON", ":/icons/svg/orq_nav_pan_down.svg"},
  {"ORQ_NAV_PAN_LEFT_ICON", ":/icons/svg/orq_nav_pan_left.svg"},
  {"ORQ_NAV_PAN_RIGHT_ICON", ":/icons/svg/orq_nav_pan_right.svg"},
  {"ORQ_NAV_PAN_UP_ICON", ":/icons/svg/orq_nav_pan_up.svg"},
  {"ORQ_NAV_ZOOM_100_ICON", ":/icons/svg/orq_nav_zoom_100.svg"},
  {"ORQ_NAV_ZOOM_FIT_HEIGHT_ICON", ":/icons/svg/orq_nav_zoom_fit_height.svg"},
  {"ORQ_NAV_ZOOM_FIT_WIDTH_ICON", ":/icons/svg/orq_nav_zoom_fit_width.svg"},
  {"ORQ_NETLIST_FILE_ICON", ":/icons/svg/orq_netlist_file.svg"},
  {"ORQ_NEW_BLOCK_DIAGRAM_ICON", ":/icons/svg/orq_new_block_diagram.svg"},
  {"ORQ_NEW_CONSTRAINT_FILE_ICON", ":/icons/svg/orq_new_constraint_file.svg"},
  {"ORQ_NEW_ICON", ":/icons/svg/orq_new.svg"},
  {"ORQ_NEW_PROJECT_WIZARD_ICON", ":/icons/svg/orq_new_project_wizard.svg"},
  {"ORQ_NEW_SOURCE_FILE_ICON", ":/icons/svg/orq_new_source_file.svg"},
  {"ORQ_NEW_WINDOW_ICON", ":/icons/svg/orq_new_window.svg"},
  {"ORQ_NLV_ADDER_ICON", ":/icons/svg/orq_nlv_adder.svg"},
  {"ORQ_NLV_APP_ICON", ":/icons/svg/orq_nlv_app.svg"},
  {"ORQ_NLV_APP_LARGE_ICON", ":/icons/svg/orq_nlv_app_large.svg"},
  {"ORQ_NLV_BUFFER_ICON", ":/icons/svg/orq_nlv_buffer.svg"},
  {"ORQ_NLV_BUS_ICON", ":/icons/svg/orq_nlv_bus.svg"},
  {"ORQ_NLV_CARRY_CHAIN_ICON", ":/icons/svg/orq_nlv_carry_chain.svg"},
  {"ORQ_NLV_CONSTANT_ICON", ":/icons/svg/orq_nlv_constant.svg"},
  {"ORQ_NLV_DSP_ICON", ":/icons/svg/orq_nlv_dsp.svg"},
  {"ORQ_NLV_GROUP_INSTANCES_ICON", ":/icons/svg/orq_nlv_group_instances.svg"},
  {"ORQ_NLV_LATCH_ICON", ":/icons/svg/orq_nlv_latch.svg"},
  {"ORQ_NLV_LUT_ICON", ":/icons/svg/orq_nlv_lut.svg"},
  {"ORQ_NLV_MUX_ICON", ":/icons/svg/orq_nlv_mux.svg"},
  {"ORQ_NLV_NET_ICON", ":/icons/svg/orq_nlv_net.svg"},
  {"ORQ_NLV_PORT_INOUT_ICON", ":/icons/svg/orq_nlv_port_inout.svg"},
  {"ORQ_NLV_PORT_IN_ICON", ":/icons/svg/orq_nlv_port_in.svg"},
  {"ORQ_NLV_PORT_OUT_ICON", ":/icons/svg/orq_nlv_port_out.svg"},
  {"ORQ_NLV_RAM_ICON", ":/icons/svg/orq_nlv_ram.svg"},
  {"ORQ_NLV_REGISTER_ICON", ":/icons/svg/orq_nlv_register.svg"},
  {"ORQ_NLV_SHOW_RTL_ICON", ":/icons/svg/orq_nlv_show_rtl.svg"},
  {"ORQ_NLV_SHOW_TECHNOLOGY_MAP_ICON", ":/icons/svg/orq_nlv_show_technology_map.svg"},
  {"ORQ_NLV_UNGROUP_INSTANCES_ICON", ":/icons/svg/orq_nlv_ungroup_instances.svg"},
  {"ORQ_NODE_FIND_ICON", ":/icons/svg/orq_node_find.svg"},
  {"ORQ_NODE_PROPERTIES_ICON", ":/icons/svg/orq_node_properties.svg"},
  {"ORQ_NOTIFICATION_CENTER_ICON", ":/icons/svg/orq_notification_center.svg"},
  {"ORQ_OBJECT_PROPERTIES_ICON", ":/icons/svg/orq_object_properties.svg"},
  {"ORQ_OFFLINE_DOCUMENTATION_ICON", ":/icons/svg/orq_offline_documentation.svg"},
  {"ORQ_ON_CHIP_DEBUG_ICON", ":/icons/svg/orq_on_chip_debug.svg"},
  {"ORQ_OPEN_FILE_LOCATION_ICON", ":/icons/svg/orq_open_file_location.svg"},
  {"ORQ_OPEN_ICON", ":/icons/svg/orq_open.svg"},
  {"ORQ_OPEN_PROJECT_ICON", ":/icons/svg/orq_open_project.svg"},
  {"ORQ_OPEN_PROPERTIES_ICON", ":/icons/svg/orq_open_properties.svg"},
  {"ORQ_OPEN_RECENT_PROJECT_ICON", ":/icons/svg/orq_open_recent_project.svg"},
  {"ORQ_OPTIMIZE_DESIGN_ICON", ":/icons/svg/orq_optimize_design.svg"},
  {"ORQ_OPTIONS_ICON", ":/icons/svg/orq_options.svg"},
  {"ORQ_OUTPUT_FILES_ICON", ":/icons/svg/orq_output_files.svg"},
  {"ORQ_PAGE_SETUP_ICON", ":/icons/svg/orq_page_setup.svg"},
  {"ORQ_PALETTE_ICON", ":/icons/svg/orq_palette.svg"},
  {"ORQ_PAN_TOOL_ICON", ":/icons/svg/orq_pan_tool.svg"},
  {"ORQ_PASTE_ICON", ":/icons/svg/orq_paste.svg"},
  {"ORQ_PASTE_SPECIAL_ICON", ":/icons/svg/orq_paste_special.svg"},
  {"ORQ_PAUSE_ICON", ":/icons/svg/orq_pause.svg"},
  {"ORQ_PAUSE_SIMULATION_ICON", ":/icons/svg/orq_pause_simulation.svg"},
  {"ORQ_PIN_FILE_ICON", ":/icons/svg/orq_pin_file.svg"},
  {"ORQ_PIN_PLANNER_ICON", ":/icons/svg/orq_pin_planner.svg"},
  {"ORQ_PKG_APP_ICON", ":/icons/svg/orq_pkg_app.svg"},
  {"ORQ_PKG_APP_LARGE_ICON", ":/icons/svg/orq_pkg_app_large.svg"},
  {"ORQ_PKG_ASSIGN_DIFFERENTIAL_PAIR_ICON", ":/icons/svg/orq_pkg_assign_differential_pair.svg"},
  {"ORQ_PKG_BANK_ICON", ":/icons/svg/orq_pkg_bank.svg"},
  {"ORQ_PKG_PACKAGE_ICON", ":/icons/svg/orq_pkg_package.svg"},
  {"ORQ_PKG_PIN_CLOCK_ICON", ":/icons/svg/orq_pkg_pin_clock.svg"},
  {"ORQ_PKG_PIN_CONFIG_ICON", ":/icons/svg/orq_pkg_pin_config.svg"},
  {"ORQ_PKG_PIN_DIFF_N_ICON", ":/icons/svg/orq_pkg_pin_diff_n.svg"},
  {"ORQ_PKG_PIN_DIFF_P_ICON", ":/icons/svg/orq_pkg_pin_diff_p.svg"},
  {"ORQ_PKG_PIN_GROUND_ICON", ":/icons/svg/orq_pkg_pin_ground.svg"},
  {"ORQ_PKG_PIN_NC_ICON", ":/icons/svg/orq_pkg_pin_nc.svg"},
  {"ORQ_PKG_PIN_POWER_ICON", ":/icons/svg/orq_pkg_pin_power.svg"},
  {"ORQ_PKG_PIN_RESERVED_ICON", ":/icons/svg/orq_pkg_pin_reserved.svg"},
  {"ORQ_PKG_PIN_USER_IO_ICON", ":/icons/svg/orq_pkg_pin_user_io.svg"},
  {"ORQ_PKG_PIN_VREF_ICON", ":/icons/svg/orq_pkg_pin_vref.svg"},
  {"ORQ_PKG_SHOW_BANKS_ICON", ":/icons/svg/orq_pkg_show_banks.svg"},
  {"ORQ_PKG_SHOW_BOTTOM_VIEW_ICON", ":/icons/svg/orq_pkg_show_bottom_view.svg"},
  {"ORQ_PKG_SHOW_DIFFERENTIAL_PAIRS_ICON", ":/icons/svg/orq_pkg_show_differential_pairs.svg"},
  {"ORQ_PKG_SHOW_TOP_VIEW_ICON", ":/icons/svg/orq_pkg_show_top_view.svg"},
  {"ORQ_PKG_SHOW_VREF_GROUPS_ICON", ":/icons/svg/orq_pkg_show_vref_groups.svg"},
  {"ORQ_PKG_SWAP_PINS_ICON", ":/icons/svg/orq_pkg_swap_pins.svg"},
  {"ORQ_PLACE_BLOCK_ICON", ":/icons/svg/orq_place_block.svg"},
  {"ORQ_PLACE_REGION_ICON", ":/icons/svg/orq_place_region.svg"},
  {"ORQ_PLAY_ICON", ":/icons/svg/orq_play.svg"},
  {"ORQ_PLUS_ICON", ":/icons/svg/orq_plus.svg"},
  {"ORQ_POWER_ANALYZER_ICON", ":/icons/svg/orq_power_analyzer.svg"},
  {"ORQ_POWER_REPORT_FILE_ICON", ":/icons/svg/orq_power_report_file.svg"},
  {"ORQ_PRESERVE_REGISTERS_ICON", ":/icons/svg/orq_preserve_registers.svg"},
  {"ORQ_PRG_BLANK_CHECK_ICON", ":/icons/svg/orq_prg_blank_check.svg"},
  {"ORQ_PRG_CABLE_ETHERNET_ICON", ":/icons/svg/orq_prg_cable_ethernet.svg"},
  {"ORQ_PRG_CABLE_NONE_ICON", ":/icons/svg/orq_prg_cable_none.svg"},
  {"ORQ_PRG_CABLE_USB_ICON", ":/icons/svg/orq_prg_cable_usb.svg"},
  {"ORQ_PRG_CHAIN_ICON", ":/icons/svg/orq_prg_chain.svg"},
  {"ORQ_PRG_DEVICE_ICON", ":/icons/svg/orq_prg_device.svg"},
  {"ORQ_PRG_DEVICE_SELECTED_ICON", ":/icons/svg/orq_prg_device_selected.svg"},
  {"ORQ_PRG_ERASE_ICON", ":/icons/svg/orq_prg_erase.svg"},
  {"ORQ_PRG_FILE_ATTACHED_ICON", ":/icons/svg/orq_prg_file_attached.svg"},
  {"ORQ_PRG_VERIFY_ICON", ":/icons/svg/orq_prg_verify.svg"},
  {"ORQ_PRINT_ALL_ICON", ":/icons/svg/orq_print_all.svg"},
  {"ORQ_PRINT_CURRENT_VIEW_ICON", ":/icons/svg/orq_print_current_view.svg"},
  {"ORQ_PRINT_ICON", ":/icons/svg/orq_print.svg"},
  {"ORQ_PRINT_PREVIEW_ICON", ":/icons/svg/orq_print_preview.svg"},
  {"ORQ_PROGRAMMER_ICON", ":/icons/svg/orq_programmer.svg"},
  {"ORQ_PROGRAMMING_FILE_ICON", ":/icons/svg/orq_programming_file.svg"},
  {"ORQ_PROGRAM_DEVICE_ICON", ":/icons/svg/orq_program_device.svg"},
  {"ORQ_PROJECT_FILE_ICON", ":/icons/svg/orq_project_file.svg"},
  {"ORQ_PROJECT_ICON", ":/icons/svg/orq_project.svg"},
  {"ORQ_PROJECT_NAVIGATOR_ICON", ":/icons/svg/orq_project_navigator.svg"},
  {"ORQ_PROJECT_OUTPUT_FOLDER_ICON", ":/icons/svg/orq_project_output_folder.svg"},
  {"ORQ_PROJECT_REVISION_ICON", ":/icons/svg/orq_project_revision.svg"},
  {"ORQ_PROJECT_SETTINGS_GROUP_ICON", ":/icons/svg/orq_project_settings_group.svg"},
  {"ORQ_PROJECT_SETTINGS_ICON", ":/icons/svg/orq_project_settings.svg"},
  {"ORQ_PROJECT_SOURCE_FOLDER_ICON", ":/icons/svg/orq_project_source_folder.svg"},
  {"ORQ_PROJECT_TOP_LEVEL_ICON", ":/icons/svg/orq_project_top_level.svg"},
  {"ORQ_PROMOTE_ASSIGNMENTS_ICON", ":/icons/svg/orq_promote_assignments.svg"},
  {"ORQ_PROPAGATE_CONSTRAINTS_ICON", ":/icons/svg/orq_propagate_constraints.svg"},
  {"ORQ_PWR_APP_ICON", ":/icons/svg/orq_pwr_app.svg"},
  {"ORQ_PWR_APP_LARGE_ICON", ":/icons/svg/orq_pwr_app_large.svg"},
  {"ORQ_PWR_DYNAMIC_ICON", ":/icons/svg/orq_pwr_dynamic.svg"},
  {"ORQ_PWR_RAIL_ICON", ":/icons/svg/orq_pwr_rail.svg"},
  {"ORQ_PWR_RAIL_WARNING_ICON", ":/icons/svg/orq_pwr_rail_warning.svg"},
  {"ORQ_PWR_SHOW_THERMAL_MAP_ICON", ":/icons/svg/orq_pwr_show_thermal_map.svg"},
  {"ORQ_PWR_STATIC_ICON", ":/icons/svg/orq_pwr_static.svg"},
  {"ORQ_PWR_THERMAL_ICON", ":/icons/svg/orq_pwr_thermal.svg"},
  {"ORQ_PWR_TOGGLE_RATE_ICON", ":/icons/svg/orq_pwr_toggle_rate.svg"},
  {"ORQ_QUESTION_ICON", ":/icons/svg/orq_question.svg"},
  {"ORQ_RECOMPILE_ICON", ":/icons/svg/orq_recompile.svg"},
  {"ORQ_RECOVER_DATABASE_ICON", ":/icons/svg/orq_recover_database.svg"},
  {"ORQ_REDO_ICON", ":/icons/svg/orq_redo.svg"},
  {"ORQ_REFRESH_ALL_ICON", ":/icons/svg/orq_refresh_all.svg"},
  {"ORQ_REFRESH_ICON", ":/icons/svg/orq_refresh.svg"},
  {"ORQ_REGENERATE_FLOORPLAN_ICON", ":/icons/svg/orq_regenerate_floorplan.svg"},
  {"ORQ_RELOAD_FILE_ICON", ":/icons/svg/orq_reload_file.svg"},
  {"ORQ_RENAME_ICON", ":/icons/svg/orq_rename.svg"},
  {"ORQ_REPORT_FILE_ICON", ":/icons/svg/orq_report_file.svg"},
  {"ORQ_REPORT_ICON", ":/icons/svg/orq_report.svg"},
  {"ORQ_RERUN_ANALYSIS_ICON", ":/icons/svg/orq_rerun_analysis.svg"},
  {"ORQ_RESTART_SIMULATION_ICON", ":/icons/svg/orq_restart_simulation.svg"},
  {"ORQ_RESUME_SIMULATION_ICON", ":/icons/svg/orq_resume_simulation.svg"},
  {"ORQ_RES_ADDER_ICON", ":/icons/svg/orq_res_adder.svg"},
  {"ORQ_RES_CARRY_ICON", ":/icons/svg/orq_res_carry.svg"},
  {"ORQ_RES_CLOCK_BUFFER_ICON", ":/icons/svg/orq_res_clock_buffer.svg"},
  {"ORQ_RES_DSP_BLOCK_ICON", ":/icons/svg/orq_res_dsp_block.svg"},
  {"ORQ_RES_IO_ICON", ":/icons/svg/orq_res_io.svg"},
  {"ORQ_RES_LOGIC_CELL_ICON", ":/icons/svg/orq_res_logic_cell.svg"},
  {"ORQ_RES_LUT_ICON", ":/icons/svg/orq_res_lut.svg"},
  {"ORQ_RES_MEMORY_BLOCK_ICON", ":/icons/svg/orq_res_memory_block.svg"},
  {"ORQ_RES_PLL_ICON", ":/icons/svg/orq_res_pll.svg"},
  {"ORQ_RES_REGISTER_ICON", ":/icons/svg/orq_res_register.svg"},
  {"ORQ_RES_ROUTING_ICON", ":/icons/svg/orq_res_routing.svg"},
  {"ORQ_RES_TRANSCEIVER_ICON", ":/icons/svg/orq_res_transceiver.svg"},
  {"ORQ_REVERT_FILE_ICON", ":/icons/svg/orq_revert_file.svg"},
  {"ORQ_RPT_APP_ICON", ":/icons/svg/orq_rpt_app.svg"},
  {"ORQ_RPT_APP_LARGE_ICON", ":/icons/svg/orq_rpt_app_large.svg"},
  {"ORQ_RPT_CHART_ICON", ":/icons/svg/orq_rpt_chart.svg"},
  {"ORQ_RPT_ERROR_SECTION_ICON", ":/icons/svg/orq_rpt_error_section.svg"},
  {"ORQ_RPT_FOLDER_ICON", ":/icons/svg/orq_rpt_folder.svg"},
  {"ORQ_RPT_HTML_ICON", ":/icons/svg/orq_rpt_html.svg"},
  {"ORQ_RPT_MESSAGES_ICON", ":/icons/svg/orq_rpt_messages.svg"},
  {"ORQ_RPT_SAVE_TABLE_ICON", ":/icons/svg/orq_rpt_save_table.svg"},
  {"ORQ_RPT_SETTINGS_ICON", ":/icons/svg/orq_rpt_settings.svg"},
  {"ORQ_RPT_SUMMARY_ICON", ":/icons/svg/orq_rpt_summary.svg"},
  {"ORQ_RPT_TABLE_ICON", ":/icons/svg/orq_rpt_table.svg"},
  {"ORQ_RPT_TEXT_ICON", ":/icons/svg/orq_rpt_text.svg"},
  {"ORQ_RPT_WARNING_SECTION_ICON", ":/icons/svg/orq_rpt_warning_section.svg"},
  {"ORQ_RTL_VIEWER_ICON", ":/icons/svg/orq_rtl_viewer.svg"},
  {"ORQ_RULER_ICON", ":/icons/svg/orq_ruler.svg"},
  {"ORQ_RULER_ICON_ICON", ":/icons/svg/orq_ruler_icon.svg"},
  {"ORQ_RUN_ALL_ICON", ":/icons/svg/orq_run_all.svg"},
  {"ORQ_RUN_SCRIPT_ICON", ":/icons/svg/orq_run_script.svg"},
  {"ORQ_RUN_TO_CURSOR_ICON", ":/icons/svg/orq_run_to_cursor.svg"},
  {"ORQ_SAMPLE_NOW_ICON", ":/icons/svg/orq_sample_now.svg"},
  {"ORQ_SAVE_ALL_ICON", ":/icons/svg/orq_save_all.svg"},
  {"ORQ_SAVE_AS_ICON", ":/icons/svg/orq_save_as.svg"},
  {"ORQ_SAVE_COPY_AS_ICON", ":/icons/svg/orq_save_copy_as.svg"},
  {"ORQ_SAVE_ICON", ":/icons/svg/orq_save.svg"},
  {"ORQ_SAVE_PROJECT_ICON", ":/icons/svg/orq_save_project.svg"},
  {"ORQ_SCRIPT_ICON", ":/icons/svg/orq_script.svg"},
  {"ORQ_SEARCH_HELP_ICON", ":/icons/svg/orq_search_help.svg"},
  {"ORQ_SEARCH_IN_FILES_ICON", ":/icons/svg/orq_search_in_files.svg"},
  {"ORQ_SELECTION_FILTER_ICON", ":/icons/svg/orq_selection_filter.svg"},
  {"ORQ_SELECTION_TOOL_ICON", ":/icons/svg/orq_selection_tool.svg"},
  {"ORQ_SELECT_ALL_ICON", ":/icons/svg/orq_select_all.svg"},
  {"ORQ_SEND_FEEDBACK_ICON", ":/icons/svg/orq_send_feedback.svg"},
  {"ORQ_SETTINGS_ICON", ":/icons/svg/orq_settings.svg"},
  {"ORQ_SHOW_COMPILATION_REPORT_ICON", ":/icons/svg/orq_show_compilation_report.svg"},
  {"ORQ_SHOW_CONSOLE_ICON", ":/icons/svg/orq_show_console.svg"},
  {"ORQ_SHOW_FLOORPLAN_ICON", ":/icons/svg/orq_show_floorplan.svg"},
  {"ORQ_SHOW_GRID_ICON", ":/icons/svg/orq_show_grid.svg"},
  {"ORQ_SHOW_HIERARCHY_ICON", ":/icons/svg/orq_show_hierarchy.svg"},
  {"ORQ_SHOW_IP_CATALOG_ICON", ":/icons/svg/orq_show_ip_catalog.svg"},
  {"ORQ_SHOW_MESSAGES_ICON", ":/icons/svg/orq_show_messages.svg"},
  {"ORQ_SHOW_PROJECT_NAVIGATOR_ICON", ":/icons/svg/orq_show_project_navigator.svg"},
  {"ORQ_SHOW_PROPERTIES_ICON", ":/icons/svg/orq_show_properties.svg"},
  {"ORQ_SHOW_WAVEFORM_ICON", ":/icons/svg/orq_show_waveform.svg"},
  {"ORQ_SIMULATION_FILE_ICON", ":/icons/svg/orq_simulation_file.svg"},
  {"ORQ_SIMULATION_SETTINGS_ICON", ":/icons/svg/orq_simulation_settings.svg"},
  {"ORQ_SIM_ADD_WAVE_ICON", ":/icons/svg/orq_sim_add_wave.svg"},
  {"ORQ_SIM_APP_ICON", ":/icons/svg/orq_sim_app.svg"},
  {"ORQ_SIM_APP_LARGE_ICON", ":/icons/svg/orq_sim_app_large.svg"},
  {"ORQ_SIM_BREAKPOINT_DISABLED_ICON", ":/icons/svg/orq_sim_breakpoint_disabled.svg"},
  {"ORQ_SIM_BREAKPOINT_ICON", ":/icons/svg/orq_sim_breakpoint.svg"},
  {"ORQ_SIM_BREAK_ICON", ":/icons/svg/orq_sim_break.svg"},
  {"ORQ_SIM_CURRENT_LINE_ICON", ":/icons/svg/orq_sim_current_line.svg"},
  {"ORQ_SIM_PROCESS_ICON", ":/icons/svg/orq_sim_process.svg"},
  {"ORQ_SIM_RESTART_ICON", ":/icons/svg/orq_sim_restart.svg"},
  {"ORQ_SIM_RUN_FOR_ICON", ":/icons/svg/orq_sim_run_for.svg"},
  {"ORQ_SIM_RUN_ICON", ":/icons/svg/orq_sim_run.svg"},
  {"ORQ_SIM_SCOPE_ICON", ":/icons/svg/orq_sim_scope.svg"},
  {"ORQ_SIM_STEP_ICON", ":/icons/svg/orq_sim_step.svg"},
  {"ORQ_SIM_VARIABLE_ICON", ":/icons/svg/orq_sim_variable.svg"},
  {"ORQ_SORT_ASCENDING_HEADER_ICON", ":/icons/svg/orq_sort_ascending_header.svg"},
  {"ORQ_SORT_ASCENDING_ICON", ":/icons/svg/orq_sort_ascending.svg"},
  {"ORQ_SORT_DESCENDING_HEADER_ICON", ":/icons/svg/orq_sort_descending_header.svg"},
  {"ORQ_SORT_DESCENDING_ICON", ":/icons/svg/orq_sort_descending.svg"},
  {"ORQ_SRC_APP_ICON", ":/icons/svg/orq_src_app.svg"},
  {"ORQ_SRC_APP_LARGE_ICON", ":/icons/svg/orq_src_app_large.svg"},
  {"ORQ_SRC_MODULE_ICON", ":/icons/svg/orq_src_module.svg"},
  {"ORQ_SRC_PARAMETER_ICON", ":/icons/svg/orq_src_parameter.svg"},
  {"ORQ_SRC_PORT_ICON", ":/icons/svg/orq_src_port.svg"},
  {"ORQ_SRC_PROCESS_ICON", ":/icons/svg/orq_src_process.svg"},
  {"ORQ_SRC_SIGNAL_ICON", ":/icons/svg/orq_src_signal.svg"},
  {"ORQ_SRC_TASK_ICON", ":/icons/svg/orq_src_task.svg"},
  {"ORQ_SRC_TOGGLE_BOOKMARK_ICON", ":/icons/svg/orq_src_toggle_bookmark.svg"},
  {"ORQ_SRC_TYPE_ICON", ":/icons/svg/orq_src_type.svg"},
  {"ORQ_START_COMPILATION_ICON", ":/icons/svg/orq_start_compilation.svg"},
  {"ORQ_START_PARTITION_PLANNER_ICON", ":/icons/svg/orq_start_partition_planner.svg"},
  {"ORQ_START_PLACEMENT_ICON", ":/icons/svg/orq_start_placement.svg"},
  {"ORQ_START_ROUTING_ICON", ":/icons/svg/orq_start_routing.svg"},
  {"ORQ_START_SYNTHESIS_ICON", ":/icons/svg/orq_start_synthesis.svg"},
  {"ORQ_START_TIMING_ANALYSIS_ICON", ":/icons/svg/orq_start_timing_analysis.svg"},
  {"ORQ_STAR_ICON", ":/icons/svg/orq_star.svg"},
  {"ORQ_STATUS_BUSY_ICON", ":/icons/svg/orq_status_busy.svg"},
  {"ORQ_STATUS_CONNECTED_ICON", ":/icons/svg/orq_status_connected.svg"},
  {"ORQ_STATUS_DISCONNECTED_ICON", ":/icons/svg/orq_status_disconnected.svg"},
  {"ORQ_STATUS_ICON", ":/icons/flat/orq_status.png"},
  {"ORQ_STATUS_LICENSE_EXPIRED_ICON", ":/icons/svg/orq_status_license_expired.svg"},
  {"ORQ_STATUS_LICENSE_EXPIRING_ICON", ":/icons/svg/orq_status_license_expiring.svg"},
  {"ORQ_STATUS_LICENSE_VALID_ICON", ":/icons/svg/orq_status_license_valid.svg"},
  {"ORQ_STATUS_OFFLINE_ICON", ":/icons/svg/orq_status_offline.svg"},
  {"ORQ_STATUS_OK_ICON", ":/icons/svg/orq_status_ok.svg"},
  {"ORQ_STEP_INTO_ICON", ":/icons/svg/orq_step_into.svg"},
  {"ORQ_STEP_OUT_ICON", ":/icons/svg/orq_step_out.svg"},
  {"ORQ_STEP_OVER_ICON", ":/icons/svg/orq_step_over.svg"},
  {"ORQ_STOP_ALL_ICON", ":/icons/svg/orq_stop_all.svg"},
  {"ORQ_STOP_COMPILATION_ICON", ":/icons/svg/orq_stop_compilation.svg"},
  {"ORQ_STOP_ICON", ":/icons/svg/orq_stop.svg"},
  {"ORQ_STOP_SIMULATION_ICON", ":/icons/svg/orq_stop_simulation.svg"},
  {"ORQ_SUMMARY_REPORT_ICON", ":/icons/svg/orq_summary_report.svg"},
  {"ORQ_SUPPRESSED_MESSAGE_ICON", ":/icons/svg/orq_suppressed_message.svg"},
  {"ORQ_SUPPRESSION_MANAGER_ICON", ":/icons/svg/orq_suppression_manager.svg"},
  {"ORQ_SUPPRESS_MESSAGE_ICON", ":/icons/svg/orq_suppress_message.svg"},
  {"ORQ_SWITCH_TO_GATE_LEVEL_ICON", ":/icons/svg/orq_switch_to_gate_level.svg"},
  {"ORQ_SWITCH_TO_RTL_ICON", ":/icons/svg/orq_switch_to_rtl.svg"},
  {"ORQ_SYMBOL_EDITOR_ICON", ":/icons/svg/orq_symbol_editor.svg"},
  {"ORQ_SYMBOL_FILE_ICON", ":/icons/svg/orq_symbol_file.svg"},
  {"ORQ_SYNCHRONIZE_CURSORS_ICON", ":/icons/svg/orq_synchronize_cursors.svg"},
  {"ORQ_SYNC_VIEWS_ICON", ":/icons/svg/orq_sync_views.svg"},
  {"ORQ_SYSTEMVERILOG_FILE_ICON", ":/icons/svg/orq_systemverilog_file.svg"},
  {"ORQ_SYSTEM_INFO_ICON", ":/icons/svg/orq_system_info.svg"},
  {"ORQ_TABLE_ICON", ":/icons/svg/orq_table.svg"},
  {"ORQ_TAG_ICON", ":/icons/svg/orq_tag.svg"},
  {"ORQ_TARGET_ICON", ":/icons/svg/orq_target.svg"},
  {"ORQ_TASK_CANCELLED_ICON", ":/icons/svg/orq_task_cancelled.svg"},
  {"ORQ_TASK_DONE_ICON", ":/icons/svg/orq_task_done.svg"},
  {"ORQ_TASK_FAILED_ICON", ":/icons/svg/orq_task_failed.svg"},
  {"ORQ_TASK_QUEUED_ICON", ":/icons/svg/orq_task_queued.svg"},
  {"ORQ_TASK_RUNNING_ICON", ":/icons/svg/orq_task_running.svg"},
  {"ORQ_TASK_WARNING_ICON", ":/icons/svg/orq_task_warning.svg"},
  {"ORQ_TCL_CONSOLE_ICON", ":/icons/svg/orq_tcl_console.svg"},
  {"ORQ_TCL_FILE_ICON", ":/icons/svg/orq_tcl_file.svg"},
  {"ORQ_TCL_SCRIPTS_ICON", ":/icons/svg/orq_tcl_scripts.svg"},
  {"ORQ_TECHNOLOGY_MAP_VIEWER_ICON", ":/icons/svg/orq_technology_map_viewer.svg"},
  {"ORQ_TEXT_EDITOR_ICON", ":/icons/svg/orq_text_editor.svg"},
  {"ORQ_TILE_ICON", ":/icons/svg/orq_tile.svg"},
  {"ORQ_TIMING_ANALYZER_ICON", ":/icons/svg/orq_timing_analyzer.svg"},
  {"ORQ_TIMING_REPORT_FILE_ICON", ":/icons/svg/orq_timing_report_file.svg"},
  {"ORQ_TMV_APP_ICON", ":/icons/svg/orq_tmv_app.svg"},
  {"ORQ_TMV_APP_LARGE_ICON", ":/icons/svg/orq_tmv_app_large.svg"},
  {"ORQ_TMV_CLOCK_ICON", ":/icons/svg/orq_tmv_clock.svg"},
  {"ORQ_TMV_CONSTRAINT_ICON", ":/icons/svg/orq_tmv_constraint.svg"},
  {"ORQ_TMV_CORNER_ICON", ":/icons/svg/orq_tmv_corner.svg"},
  {"ORQ_TMV_EXCEPTION_ICON", ":/icons/svg/orq_tmv_exception.svg"},
  {"ORQ_TMV_GROUP_ICON", ":/icons/svg/orq_tmv_group.svg"},
  {"ORQ_TMV_PATH_FAILING_ICON", ":/icons/svg/orq_tmv_path_failing.svg"},
  {"ORQ_TMV_PATH_ICON", ":/icons/svg/orq_tmv_path.svg"},
  {"ORQ_TMV_PATH_PASSING_ICON", ":/icons/svg/orq_tmv_path_passing.svg"},
  {"ORQ_TMV_REPORT_ICON", ":/icons/svg/orq_tmv_report.svg"},
  {"ORQ_TMV_SHOW_SLACK_HISTOGRAM_ICON", ":/icons/svg/orq_tmv_show_slack_histogram.svg"},
  {"ORQ_TMV_SLACK_ICON", ":/icons/svg/orq_tmv_slack.svg"},
  {"ORQ_TOGGLE_BREAKPOINT_ICON", ":/icons/svg/orq_toggle_breakpoint.svg"},
  {"ORQ_TRACE_PATH_ICON", ":/icons/svg/orq_trace_path.svg"},
  {"ORQ_TREE_COLLAPSE_ICON", ":/icons/svg/orq_tree_collapse.svg"},
  {"ORQ_TREE_EXPAND_ICON", ":/icons/svg/orq_tree_expand.svg"},
  {"ORQ_TREE_VIEW_FILTER_ALL_MSG_ICON", ":/icons/svg/orq_tree_view_filter_all_msg.svg"},
  {"ORQ_TREE_VIEW_FILTER_MATCHED_ONLY_ICON", ":/icons/svg/orq_tree_view_filter_matched_only.svg"},
  {"ORQ_TREE_VIEW_FILTER_OPTIONS_ICON", ":/icons/svg/orq_tree_view_filter_options.svg"},
  {"ORQ_TREE_VIEW_FILTER_OPTION_ICON", ":/icons/svg/orq_tree_view_filter_option.svg"},
  {"ORQ_UNDO_ICON", ":/icons/svg/orq_undo.svg"},
  {"ORQ_UNLOCK_ICON", ":/icons/svg/orq_unlock.svg"},
  {"ORQ_UPDATE_MEMORY_INIT_FILE_ICON", ":/icons/svg/orq_update_memory_init_file.svg"},
  {"ORQ_UPGRADE_IP_CORES_ICON", ":/icons/svg/orq_upgrade_ip_cores.svg"},
  {"ORQ_USER_ICON", ":/icons/svg/orq_user.svg"},
  {"ORQ_USER_LIBRARIES_ICON", ":/icons/svg/orq_user_libraries.svg"},
  {"ORQ_VANTOR_DOCUMENTATION_WEB_PAGE_ICON", ":/icons/svg/orq_vantor_documentation_web_page.svg"},
  {"ORQ_VANTOR_HELP_ICON", ":/icons/svg/orq_vantor_help.svg"},
  {"ORQ_VANTOR_HOME_WEB_PAGE_ICON", ":/icons/svg/orq_vantor_home_web_page.svg"},
  {"ORQ_VCD_FILE_ICON", ":/icons/svg/orq_vcd_file.svg"},
  {"ORQ_VERIFY_DEVICE_ICON", ":/icons/svg/orq_verify_device.svg"},
  {"ORQ_VERILOG_FILE_ICON", ":/icons/svg/orq_verilog_file.svg"},
  {"ORQ_VHDL_FILE_ICON", ":/icons/svg/orq_vhdl_file.svg"},
  {"ORQ_WAND_ICON", ":/icons/svg/orq_wand.svg"},
  {"ORQ_WARNING_ICON", ":/icons/svg/orq_warning.svg"},
  {"ORQ_WAVEFORM_FILE_ICON", ":/icons/svg/orq_waveform_file.svg"},
  {"ORQ_WAV_ADD_CURSOR_ICON", ":/icons/svg/orq_wav_add_cursor.svg"},
  {"ORQ_WAV_ANALOG_SIGNAL_ICON", ":/icons/svg/orq_wav_analog_signal.svg"},
  {"ORQ_WAV_APP_ICON", ":/icons/svg/orq_wav_app.svg"},
  {"ORQ_WAV_APP_LARGE_ICON", ":/icons/svg/orq_wav_app_large.svg"},
  {"ORQ_WAV_BUS_SIGNAL_ICON", ":/icons/svg/orq_wav_bus_signal.svg"},
  {"ORQ_WAV_CLOCK_SIGNAL_ICON", ":/icons/svg/orq_wav_clock_signal.svg"},
  {"ORQ_WAV_CURSOR_ICON", ":/icons/svg/orq_wav_cursor.svg"},
  {"ORQ_WAV_DIVIDER_ICON", ":/icons/svg/orq_wav_divider.svg"},
  {"ORQ_WAV_ENUM_SIGNAL_ICON", ":/icons/svg/orq_wav_enum_signal.svg"},
  {"ORQ_WAV_GROUP_ICON", ":/icons/svg/orq_wav_group.svg"},
  {"ORQ_WAV_MARKER_ICON", ":/icons/svg/orq_wav_marker.svg"},
  {"ORQ_WAV_SIGNAL_BIDIR_ICON", ":/icons/svg/orq_wav_signal_bidir.svg"},
  {"ORQ_WAV_SIGNAL_ICON", ":/icons/svg/orq_wav_signal.svg"},
  {"ORQ_WAV_SIGNAL_INPUT_ICON", ":/icons/svg/orq_wav_signal_input.svg"},
  {"ORQ_WAV_SIGNAL_OUTPUT_ICON", ":/icons/svg/orq_wav_signal_output.svg"},
  {"ORQ_WAV_ZOOM_TO_RANGE_ICON", ":/icons/svg/orq_wav_zoom_to_range.svg"},
  {"ORQ_WEB_ICON", ":/icons/svg/orq_web.svg"},
  {"ORQ_WHATS_THIS_ICON", ":/icons/svg/orq_whats_this.svg"},
  {"ORQ_WINDOW_ICON", ":/icons/svg/orq_window.svg"},
  {"ORQ_WIZ_DEVICE_ICON", ":/icons/svg/orq_wiz_device.svg"},
  {"ORQ_WIZ_FILES_ICON", ":/icons/svg/orq_wiz_files.svg"},
  {"ORQ_WIZ_INTRO_ICON", ":/icons/svg/orq_wiz_intro.svg"},
  {"ORQ_WIZ_PROJECT_ICON", ":/icons/svg/orq_wiz_project.svg"},
  {"ORQ_WIZ_SETTINGS_ICON", ":/icons/svg/orq_wiz_settings.svg"},
  {"ORQ_WIZ_SUMMARY_ICON", ":/icons/svg/orq_wiz_summary.svg"},
  {"ORQ_ZOOM_FIT_ICON", ":/icons/svg/orq_zoom_fit.svg"},
  {"ORQ_ZOOM_ICON", ":/icons/svg/orq_zoom.svg"},
  {"ORQ_ZOOM_IN_ICON", ":/icons/svg/orq_zoom_in.svg"},
  {"ORQ_ZOOM_OUT_ICON", ":/icons/svg/orq_zoom_out.svg"},
  {"ORQ_ZOOM_SELECTION_ICON", ":/icons/svg/orq_zoom_selection.svg"},
  {"ORQ_ZOOM_TOOL_ICON", ":/icons/svg/orq_zoom_tool.svg"},
};
// clang-format on
