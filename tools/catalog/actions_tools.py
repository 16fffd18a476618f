"""Tool rows of the standard action catalogue.

One row per line: NAME | menu text | shortcut | status tip | icon recipe.
A shortcut "S <Key>" is a QKeySequence::StandardKey, anything else custom
portable text. The icon recipe names a glyph of tools/icons (glyph[/badge]
[:accent]); the action's icon is then ORQ_<NAME>_ICON. A recipe "=OTHER"
shares the icon ORQ_OTHER_ICON of another row instead. A status tip "~"
means "Shows or hides the <menu text> window".
"""

TOOL_ROWS = """
ACTIVATE_LICENSE|Acti&vate License...||Activates a license for this computer|key
ADD_BOOKMARK|Add &Bookmark||Adds a bookmark at the current location|bookmark/plus
ADD_BREAKPOINT|Add &Breakpoint...||Adds a breakpoint to the current line|bug/plus:red
ADD_FILE|&Add File...||Adds a file to the current project|generic_file/plus
ADD_NODE|Add &Node...||Adds a node to the list|node/plus
ADD_PROBE|Add &Probe||Adds a signal probe at the selected net|probe/plus
ADD_SIGNAL|Add &Signal...|Ctrl+Shift+A|Adds signals to the waveform|waveform/plus
ADD_TO_PROJECT|Add to &Project||Adds the current file to the project|project/plus
ADD_WAVE_MARKER|Add &Marker|Ctrl+M|Adds a time marker at the cursor|waveform/arrow_down:orange
ADVANCED_SEARCH|Ad&vanced Search...||Searches with patterns and filters|find/gear
ALIGN_BOTTOM|Align &Bottom||Aligns the selected objects to the lowest bottom edge|block/arrow_down
ALIGN_HORIZONTAL_CENTER|Align &Horizontal Centers||Aligns the selected objects on their horizontal centers|block/minus
ALIGN_LEFT|Align &Left||Aligns the selected objects to the leftmost edge|block/arrow_left
ALIGN_RIGHT|Align &Right||Aligns the selected objects to the rightmost edge|block/arrow_right
ALIGN_TOP|Align &Top||Aligns the selected objects to the highest top edge|block/arrow_up
ALIGN_VERTICAL_CENTER|Align &Vertical Centers||Aligns the selected objects on their vertical centers|=ALIGN_HORIZONTAL_CENTER
ALL_MESSAGES|&All Messages||Shows messages of every type|message
ANALYZE_CURRENT_FILE|Analyze &Current File||Checks the syntax of the current file|generic_file/check:green
ANALYZE_ELABORATE|&Analysis && Elaboration...||Analyzes the sources and builds the design hierarchy|hierarchy/play:green
ANALYZE_TIMING|Analyze &Timing||Runs timing analysis on the current design|timing/play:green
ANNOTATE|&Annotate...||Writes back-annotation data into the design|pencil
APPLY_CONSTRAINTS|Apply &Constraints||Applies the constraints of the constraint files to the design|constraint/check:green
APPLY_TEMPLATE|Apply &Template...||Applies a saved template to the selection|
ARCHIVE_PROJECT|Archive Pro&ject...||Saves the project and its files in one archive|project/arrow_down
AREA_REPORT|Area &Report||Shows the resource usage of the selected area|report
ADD_CLOCK|Add &Clock...||Adds a clock to the selected node|clock_net/plus:blue
ADD_GROUP|Add &Group...||Groups the selected nodes under a new name|
ADD_REGION|Add &Region||Adds a placement region|region/plus:teal
ARRANGE_BLOCKS|Arrange &Blocks||Arranges the blocks of the floorplan in rows|floorplan
ARRANGE_ICONS|Arrange &Icons||Arranges the icons of minimized windows|
ASSIGNMENT_EDITOR|Assignment &Editor|Ctrl+Shift+E|Opens the assignment editor|table:blue
ASSIGN_CLOCK|Assign &Clock...||Assigns a clock to the selected nodes|
ASSIGN_IO_STANDARD|Assign I/O &Standard...||Assigns an I/O standard to the selected pins|
ASSIGN_LOCATION|Assign &Location...||Assigns a location to the selected nodes|
ASSIGN_PIN|Assign &Pin...||Assigns the selected node to a pin|
ASSIGN_TO_PARTITION|Assign to &Partition...||Assigns the selected instances to a design partition|
ASSIGN_TO_REGION|Assign to &Region...||Assigns the selected instances to a placement region|
ASSIGN_VOLTAGE|Assign &Voltage...||Assigns a supply voltage to the selected bank|
ATTACH_ALL|Attach &All Windows||Attaches all detached windows|
AUTO_PLACE|Auto &Place||Places the unplaced blocks automatically|fitter
AUTO_SCROLL|Auto &Scroll||Scrolls the view with the simulation time|
BACKWARD|&Backward|Alt+Left Arrow|Goes back to the previous location|back
BACK_ANNOTATE|Back-&Annotate Assignments...||Copies the placement results into the assignments|pencil/arrow_left
BOOKMARK_NEXT|&Next Bookmark|F2|Goes to the next bookmark|bookmark/arrow_down
BOOKMARK_PREVIOUS|&Previous Bookmark|Shift+F2|Goes to the previous bookmark|bookmark/arrow_up
BROWSE_IP_CATALOG|Browse IP &Catalog||Opens the IP catalog|ip_core
CHANGE_DEVICE|Change &Device...||Selects another device for the project|device/pencil
CHECK_DESIGN_RULES|Check Design &Rules||Checks the design against the design rules|check:green
CHECK_FOR_UPDATES|Check for &Updates...||Checks whether a newer release is available|refresh/search
CLEAR_ALL_BOOKMARKS|Clear All Boo&kmarks||Removes every bookmark from the file|
CLEAR_BREAKPOINTS|Clear &Breakpoints||Removes every breakpoint|
CLEAR_HIGHLIGHT|Clear &Highlight||Removes the highlight from all objects|
CLEAR_MARKERS|Clear &Markers||Removes every time marker|
CLEAR_MESSAGES|&Clear Messages||Removes all messages from the message window|message/x
CLEAR_PROBES|Clear &Probes||Removes every probe|
CLEAR_RECENT_FILES|Clear &Recent Files||Empties the list of recently used files|
CLEAR_SELECTION|Clear &Selection||Deselects all objects|
CLK_SHOW_CLOCK_REGIONS|Show Clock &Regions||Shows or hides the clock regions of the device|clock_net/eye:blue
CLK_SHOW_CLOCK_TREE|Show Clock &Tree||Shows the clock tree of the selected clock|hierarchy/clock
CLOSE_PROJECT|Close Pro&ject||Closes the current project|project/x
COLLAPSE_ONE_LEVEL|Collapse &One Level||Collapses the selected item by one level|
COMMENT_SELECTION|Comment &Selection||Turns the selected lines into comments|
COMPARE_REVISIONS|Compare &Revisions...||Compares the results of two revisions|history
COMPILE_DESIGN|Co&mpile Design|Ctrl+L|Runs the full compilation of the design|compile:green
CONNECT_TO_DEVICE|Connect to &Device...||Connects to a device on the board|cable
CONTINUE|&Continue|F5|Continues the simulation to the next breakpoint|play:green
CONVERT_PROGRAMMING_FILE|Convert Pro&gramming File...||Converts a programming file into another format|
CONWQ_CLEAR_CONSOLE|&Clear Console||Removes all text from the console|console/x
CONWQ_SAVE_TRANSCRIPT|&Save Transcript...||Saves the console transcript to a file|console/arrow_down
COPY_NODE_NAME|Copy &Node Name||Copies the full name of the selected node to the clipboard|node/link
COPY_VALUE|Copy &Value||Copies the value at the cursor to the clipboard|
CREATE_BLOCK|Create &Block||Creates a new block|block/plus:blue
CREATE_BOOKMARK|Create Book&mark...||Creates a named bookmark|
CREATE_BUS|Create B&us...||Creates a bus from the selected nodes|
CREATE_CLOCK|Create &Clock...||Creates a clock constraint|clock_net/plus:blue
CREATE_CONSTRAINT|Create Co&nstraint...||Creates a timing constraint|
CREATE_DESIGN_PARTITION|Create Design &Partition...||Creates a design partition from the selected instance|partition/plus:purple
CREATE_DIFFERENTIAL_PAIR|Create &Differential Pair||Pairs the two selected pins|
CREATE_FALSE_PATH|Create &False Path...||Creates a false path exception|
CREATE_GENERATED_CLOCK|Create &Generated Clock...||Creates a clock derived from another clock|
CREATE_GROUP|Create Gro&up...||Creates a group of nodes|
CREATE_INSTANCE|Create &Instance...||Creates an instance of a design entity|
CREATE_IP_VARIATION|Create IP &Variation...||Creates a parameterized variation of an IP core|
CREATE_KEEPOUT|Create &Keepout||Creates a keepout area|
CREATE_LOGIC_LOCK_REGION|Create Logic &Lock Region||Creates a region that locks logic in place|
CREATE_MEMORY_FILE|Create &Memory File...||Creates a memory initialization file|
CREATE_MULTICYCLE_PATH|Create &Multicycle Path...||Creates a multicycle path exception|
CREATE_NET|Create Ne&t||Creates a net between the selected ports|
CREATE_PIN|Create &Pin||Creates a top-level pin|
CREATE_PORT|Create P&ort||Creates a port on the selected block|
CREATE_PROBE|Create Pro&be...||Creates a debug probe on the selected net|
CREATE_PROJECT|Create Pro&ject...||Creates a new project with the project wizard|project/plus
CREATE_REGION|Create &Region||Creates a placement region|region/plus
CREATE_REVISION|Create Re&vision...||Creates a new revision of the project|
CREATE_SIGNAL_GROUP|Create Signal &Group||Groups the selected signals|
CREATE_SNAPSHOT|Create &Snapshot||Saves the current waveform as a snapshot|
CREATE_SYMBOL|Create S&ymbol File||Creates a symbol for the current design file|
CREATE_TESTBENCH|Create &Testbench...||Creates a testbench for the top-level entity|
CREATE_TIMING_GROUP|Create Timin&g Group...||Creates a group of timing nodes|
CREATE_TRIGGER|Create T&rigger...||Creates a trigger condition|
CREATE_VIRTUAL_PIN|Create Virt&ual Pin||Makes the selected pins virtual|
CROSS_PROBE|Cross-&Probe||Shows the selection in the other open tools|target/link
CST_VALIDATE_CONSTRAINTS|&Validate Constraints||Checks the constraint files for errors|constraint/check
DBG_ADD_TRIGGER|Add &Trigger Condition||Adds a trigger condition|
DBG_AUTORUN_ANALYSIS|&Autorun Analysis|F6|Runs the analysis again whenever it stops|
DBG_RUN_ANALYSIS|&Run Analysis|F5|Starts acquiring data from the device|trigger/play:green
DBG_STOP_ANALYSIS|&Stop Analysis|Ctrl+Shift+F5|Stops acquiring data from the device|trigger/stop:red
DECREASE_FONT_SIZE|&Decrease Font Size|Ctrl+-|Makes the text smaller|font/minus
DEFAULT_LAYOUT|Default &Layout||Restores the default window layout|
DEFINE_GROUP|&Define Group...||Defines a group of objects|
DELETE_ALL_MARKERS|Delete All &Markers||Deletes every marker in the view|
DELETE_ASSIGNMENT|Delete &Assignment|S Delete|Deletes the selected assignments|table/x:red
DELETE_BLOCK|Delete &Block|S Delete|Deletes the selected blocks|block/x:red
DELETE_REGION|Delete &Region|S Delete|Deletes the selected regions|region/x:red
DESELECT_ALL|Dese&lect All||Deselects all objects|
DESIGN_PARTITIONS_WINDOW|Design &Partitions Window||Opens the design partitions window|partition
DESIGN_SPACE_EXPLORER|Design Space E&xplorer||Explores compilation settings for better results|chart
DETACH_ALL|Detach A&ll Windows||Detaches every attached window|
DEVICE_PROPERTIES|De&vice Properties...||Shows the properties of the current device|device
DISABLE_ASSIGNMENT|D&isable Assignment||Disables the selected assignments|table/stop
DISABLE_BREAKPOINT|Disable Brea&kpoint||Disables the selected breakpoint|bug/stop
DISPLAY_GRID|Display &Grid||Shows or hides the grid|grid
DISPLAY_RULERS|Display &Rulers||Shows or hides the rulers|ruler
DOCK_ALL_WINDOWS|&Dock All Windows||Docks every floating window|
DRC_RERUN|&Rerun Rule Check||Runs the design rule check again|check/refresh
DRC_SHOW_RULES|Show &Rules...||Shows the design rules and their settings|list
DUPLICATE|D&uplicate||Duplicates the selection|copy/plus
EDIT_ASSIGNMENTS|Edit &Assignments...||Edits the assignments of the selection|
EDIT_CONSTRAINTS|Edit &Constraints...||Edits the timing constraints|
EDIT_PROPERTIES|Edit P&roperties...|Alt+Enter|Edits the properties of the selection|
EDIT_SOURCE|Edit &Source||Opens the source file of the selection|
ELABORATE_DESIGN|&Elaborate Design||Builds the design hierarchy from the sources|hierarchy/play
ENABLE_ASSIGNMENT|E&nable Assignment||Enables the selected assignments|table/check
ENABLE_TOOLTIPS|Enable &Tooltips||Shows tool tips over objects|
END_SIMULATION|E&nd Simulation|Shift+F5|Ends the simulation|simulate/stop:red
ERROR_NEXT|Next &Error||Goes to the next error message|error/arrow_down
EVALUATE_EXPRESSION|E&valuate Expression...||Evaluates an expression in the current context|
EXPAND_ONE_LEVEL|Expand &One Level||Expands the selected item by one level|
EXPORT_ASSIGNMENTS|Export &Assignments...||Exports the assignments to a file|
EXPORT_CONSTRAINTS|Export &Constraints...||Exports the constraints to a file|
EXPORT_HTML_REPORT|Export &HTML Report...||Exports the report as a web page|
EXPORT_IMAGE|Export &Image...||Exports the view as an image|export
EXPORT_NETLIST|Export &Netlist...||Writes the netlist in another format|netlist/arrow_right
EXPORT_PIN_FILE|Export &Pin File...||Writes the pin assignments to a file|
EXPORT_POWER_ESTIMATE|Export Power &Estimate...||Writes the power estimate to a file|
EXPORT_TIMING_REPORT|Export &Timing Report...||Writes the timing report to a file|
EXPORT_WAVEFORM|Export &Waveform...||Writes the waveform to a file|
EXTEND_SELECTION|E&xtend Selection|Shift+Right Arrow|Extends the selection to the next object|
EXTRACT_CONSTRAINTS|Extract &Constraints...||Extracts the constraints from the design|constraint/arrow_up
FANIN_CONE|Show Fan-&in Cone||Shows the logic that drives the selected node|netlist/arrow_left
FANOUT_CONE|Show Fan-&out Cone||Shows the logic that the selected node drives|netlist/arrow_right
FILE_PROPERTIES|File P&roperties...||Shows the properties of the current file|generic_file/info
FILL_REGION|&Fill Region||Fills the selected region with the selected blocks|region
FILTER_BY_SELECTION|Filter by &Selection||Shows only the rows that match the selection|
FILTER_CLEAR|&Clear Filter||Removes the filter|
FILTER_CRITICAL_WARNINGS|&Critical Warnings||Shows or hides critical warnings|warning:red
FILTER_ERROR_MESSAGES|&Errors||Shows or hides errors|error
FILTER_INFO_MESSAGES|&Information||Shows or hides information messages|info
FILTER_SUPPRESSED_MESSAGES|&Suppressed||Shows or hides suppressed messages|bell_off
FILTER_WARNING_MESSAGES|&Warnings||Shows or hides warnings|warning
FINALIZE_DESIGN|Fi&nalize Design||Locks the design for sign-off|lock/check
FIND_REPLACE|&Replace...|Ctrl+H|Replaces specified text with different text|find/pencil
FIND_SIGNAL|Find &Signal...||Searches for a signal by name|waveform/search
FIND_USAGES|Find &Usages||Lists every use of the selected name|find/list
FIRST_PAGE|&First Page||Goes to the first page|
FLATTEN_HIERARCHY|F&latten Hierarchy||Shows the design without hierarchy|hierarchy/minus
FLIP_HORIZONTAL|Flip &Horizontal||Mirrors the selection left to right|
FLIP_VERTICAL|Flip &Vertical||Mirrors the selection top to bottom|
FOCUS_VIEW|F&ocus View||Shows only the selected objects|target
FOLLOW_NET|Follo&w Net||Selects the objects the selected net connects|net/arrow_right
FORMAT_SOURCE|F&ormat Source||Formats the indentation of the source|script
FORWARD|&Forward|Alt+Right Arrow|Goes forward to the next location|forward
FPV_HIGHLIGHT_CONGESTION|Highlight &Congestion||Colours the floorplan by routing congestion|floorplan/warning
FPV_MEASURE|&Measure|Ctrl+R|Measures a distance on the floorplan|ruler:teal
FPV_SHOW_CLOCK_REGIONS|Show Clock &Regions||Shows or hides the clock regions on the floorplan|clock_net:teal
FPV_SHOW_DENSITY|Show &Density||Shows or hides the placement density map|grid:teal
FPV_SHOW_FLYLINES|Show &Flylines||Shows or hides the connections between blocks|net:teal
FPV_SHOW_IO_BANKS|Show &I/O Banks||Shows or hides the I/O banks|io_bank:teal
FPV_SHOW_KEEPOUTS|Show &Keepouts||Shows or hides the keepout areas|region/stop:teal
FPV_SHOW_NET_BUNDLES|Show Net &Bundles||Shows the connections between blocks as bundles|bus:teal
FPV_SHOW_POWER_STRIPES|Show &Power Stripes||Shows or hides the power grid|power:teal
FPV_SHOW_ROUTING|Show Ro&uting||Shows or hides the routed wires|path:teal
FPV_SHOW_SLR|Show Super &Logic Regions||Shows or hides the boundaries of the logic regions|partition:teal
FULL_SCREEN|F&ull Screen|F11|Shows the window over the whole screen|
GED_ADD_BUS|Add &Bus||Draws a bus|bus/plus:blue
GED_ADD_JUNCTION|Add &Junction||Places a junction on a wire|net/plus:blue
GED_ADD_LABEL|Add &Label||Places a net label|tag/plus:blue
GED_ADD_PORT|Add &Port||Places a port on the page|io_pin/plus:blue
GED_ADD_WIRE|Add &Wire|Ctrl+W|Draws a wire|net/pencil:blue
GED_BRING_TO_FRONT|Bring to &Front|Ctrl+Shift+Up Arrow|Brings the selection to the front|layers/arrow_up
GED_EDIT_SYMBOL|Edit &Symbol||Opens the symbol of the selected instance|schematic/pencil
GED_ROTATE_LEFT|Rotate &Left|Ctrl+Shift+L|Rotates the selection 90 degrees to the left|undo:blue
GED_ROTATE_RIGHT|Rotate &Right|Ctrl+Shift+R|Rotates the selection 90 degrees to the right|redo:blue
GED_SEND_TO_BACK|Send to &Back|Ctrl+Shift+Down Arrow|Sends the selection to the back|layers/arrow_down
GED_SNAP_TO_GRID|&Snap to Grid||Snaps objects to the grid while they move|grid/check
GENERATE_BITSTREAM|Generate &Bitstream||Generates the configuration bitstream|program/play:orange
GENERATE_BOARD_FILES|Generate B&oard Files...||Generates the files for board design tools|
GENERATE_FUNCTIONAL_NETLIST|Generate &Functional Netlist||Generates a netlist for functional simulation|
GENERATE_HDL_WRAPPER|Generate &HDL Wrapper||Generates an HDL wrapper for the block design|
GENERATE_IBIS_MODEL|Generate &IBIS Model||Generates signal-integrity models for the pins|
GENERATE_INSTANTIATION_TEMPLATE|Generate I&nstantiation Template||Generates a template that instantiates the entity|
GENERATE_MEMORY_INIT_FILE|Generate &Memory Initialization File||Generates the memory contents file|
GENERATE_PIN_REPORT|Generate &Pin Report||Generates the report of all pins|
GENERATE_POWER_REPORT|Generate Po&wer Report||Generates the power report|
GENERATE_PROGRAMMING_FILE|Generate Pro&gramming File||Generates the device programming file|program/wand
GENERATE_SIMULATION_NETLIST|Generate &Simulation Netlist||Generates a netlist for timing simulation|
GENERATE_SYMBOL_FILE|Generate S&ymbol File||Generates a symbol for the design file|
GENERATE_TESTBENCH|Generate &Testbench||Generates a testbench template|
GO_TO_DEFINITION|Go to &Definition|F12|Opens the definition of the selected name|script/arrow_right
GO_TO_DRIVER|Go to D&river||Selects the driver of the selected net|net/arrow_left
GO_TO_LINE|&Go to Line...|Ctrl+G|Moves the cursor to a line number|
GO_TO_TIME|Go to &Time...|Ctrl+T|Moves the cursor to a simulation time|clock
GRID_SETTINGS|Grid &Settings...||Sets the grid spacing|grid/gear
GROUP|&Group||Groups the selected objects|
GROUP_SIGNALS|Group &Signals||Groups the selected signals into a bus|bus
HDL_TEMPLATES|&HDL Templates...||Inserts an HDL template|script/plus
HELP_ON_MESSAGE|Help on &Message|Shift+F1|Shows help for the selected message|help
HELP_TUTORIAL|&Tutorial||Opens the tutorial|
HIDE_ALL_DOCK_WINDOWS|Hide All &Dock Windows||Hides every docked window|
HIDE_CONNECTIONS|Hide &Connections||Hides the connections between objects|
HIDE_GRID|Hide &Grid||Hides the grid|
HIDE_INFO_MESSAGES|Hide &Info Messages||Hides information messages|
HIDE_NET_NAMES|Hide &Net Names||Hides the names of the nets|
HIDE_PORT_NAMES|Hide &Port Names||Hides the names of the ports|
HIDE_SUPPRESSED_MESSAGES|Hide &Suppressed Messages||Hides messages that were suppressed|
HIDE_UNUSED_PINS|Hide &Unused Pins||Hides pins that carry no signal|
HIE_EXPAND_TO_LEAF|Expand to &Leaf||Expands the hierarchy down to the leaf instances|
HIE_SET_AS_TOP|Set as &Top||Makes the selected instance the top of the view|
HIE_SHOW_RESOURCES|Show &Resources||Shows the resources of each instance|
HIGHLIGHT_NET|Highlight &Net||Highlights the selected net|net:yellow
HIGHLIGHT_PATH|Highlight &Path||Highlights the selected timing path|path:yellow
HIGHLIGHT_SELECTED|&Highlight Selected||Highlights the selected objects|filter_all
HISTORY|&History||Shows the history of commands|history
IMPORT_ASSIGNMENTS|Import &Assignments...||Imports assignments from a file|
IMPORT_CONSTRAINTS|Import &Constraints...||Imports constraints from a file|
IMPORT_NETLIST|Import &Netlist...||Imports a netlist|
IMPORT_PIN_FILE|Import &Pin File...||Imports pin assignments from a file|
IMPORT_WAVEFORM|Import &Waveform...||Imports a waveform from a file|
INCREASE_FONT_SIZE|&Increase Font Size|Ctrl+=|Makes the text larger|font/plus
INSERT_COMMENT|Insert &Comment||Inserts a comment|
INSERT_SIGNAL|Insert &Signal...||Inserts a signal above the selection|waveform/plus:blue
INSERT_TEMPLATE|Insert &Template...||Inserts a template at the cursor|
INSERT_TIME_BAR|Insert Time &Bar||Inserts a time bar at the cursor|waveform/clock
INSTANCE_COPY_NAME|Copy Instance &Name||Copies the full instance name to the clipboard|
INSTANCE_GO_TO_DEFINITION|Go to &Definition||Opens the design file of the instance|
INSTANCE_PROPERTIES|Instance &Properties...||Shows the properties of the instance|
INSTANCE_RENAME|&Rename Instance...||Renames the selected instance|
INSTANCE_SHOW_PORTS|Show &Ports||Shows the ports of the instance|
INSTANCE_SHOW_RESOURCES|Show &Resources||Shows the resources the instance uses|
INSTANCE_UPDATE|&Update Instance||Updates the instance to its current definition|
INVERT_SELECTION|In&vert Selection||Selects what is not selected and deselects the rest|
IO_BANK_PROPERTIES|I/O &Bank Properties...||Shows the properties of the I/O bank|io_bank/info
IPC_ADD_TO_PROJECT|Add to &Project||Adds the selected IP variation to the project|
IPC_PARAMETERIZE|&Parameterize...||Opens the parameter editor of the IP core|
IPC_REFRESH_CATALOG|&Refresh Catalog||Reads the IP catalog again|
IPC_UPGRADE_IP|&Upgrade IP...||Upgrades the selected IP cores|
JUMP_TO_ERROR|&Jump to Error||Goes to the source line of the selected error|error/arrow_right
KEYBOARD_SHORTCUTS|&Keyboard Shortcuts...||Lists and edits the keyboard shortcuts|key
LAST_PAGE|&Last Page||Goes to the last page|
LAUNCH_SIMULATION|&Launch Simulation||Starts the simulator with the current design|simulate/play:green
LAYER_SETTINGS|La&yer Settings...||Chooses the layers shown|layers
LICENSE_SETUP|&License Setup...||Sets up the licenses|key/gear
LOAD_DATABASE|Load &Database...||Loads a compilation database|database/arrow_up
LOAD_SESSION|Load &Session...||Restores a saved session|
LOCATE_IN_ASSIGNMENT_EDITOR|Locate in &Assignment Editor||Shows the selection in the assignment editor|table/target:blue
LOCATE_IN_BLOCK_EDITOR|Locate in &Block Editor||Shows the selection in the block editor|schematic/target:blue
LOCATE_IN_CHIP_PLANNER|Locate in &Chip Planner||Shows the selection in the chip planner|chip/target:teal
LOCATE_IN_CLOCK_PLANNER|Locate in C&lock Planner||Shows the selection in the clock planner|clock_net/target:blue
LOCATE_IN_DESIGN_FILE|Locate in &Design File||Shows the selection in its design file|script/target
LOCATE_IN_FLOORPLAN_VIEWER|Locate in &Floorplan Viewer||Shows the selection in the floorplan viewer|floorplan/target:teal
LOCATE_IN_HIERARCHY|Locate in &Hierarchy||Shows the selection in the hierarchy|hierarchy/target
LOCATE_IN_NETLIST_VIEWER|Locate in &Netlist Viewer||Shows the selection in the netlist viewer|netlist/target:purple
LOCATE_IN_PIN_PLANNER|Locate in &Pin Planner||Shows the selection in the pin planner|package/target:orange
LOCATE_IN_POWER_ANALYZER|Locate in Po&wer Analyzer||Shows the selection in the power analyzer|power/target:yellow
LOCATE_IN_SIGNAL_DEBUGGER|Locate in &Signal Debugger||Shows the selection in the signal debugger|trigger/target:orange
LOCATE_IN_TIMING_ANALYZER|Locate in &Timing Analyzer||Shows the selection in the timing analyzer|timing/target:red
LOCATE_IN_WAVEFORM_VIEWER|Locate in &Waveform Viewer||Shows the selection in the waveform viewer|waveform/target:purple
LOCK_ASSIGNMENT|Lo&ck Assignment||Protects the selected assignments from changes|
LOCK_VIEW|Lock &View||Keeps the view from scrolling|
MACRO_RECORD|&Record Macro||Records the following commands as a macro|
MACRO_RUN|Run &Macro...||Runs a recorded macro|
MARKER_NEXT|Next Mar&ker|Ctrl+Right Arrow|Moves the cursor to the next marker|
MARKER_PREVIOUS|Previous Mark&er|Ctrl+Left Arrow|Moves the cursor to the previous marker|
MAXIMIZE_WINDOW|Ma&ximize Window||Maximizes the active window|
MERGE_PARTITIONS|Mer&ge Partitions||Merges the selected partitions|partition/minus
MESSAGE_DETAILS|Message &Details...||Shows the details of the selected message|message/info
MINIMIZE_WINDOW|Mi&nimize Window||Minimizes the active window|
MODIFY_CONSTRAINT|&Modify Constraint...||Edits the selected constraint|constraint/pencil:orange
MOVE_DOWN|Move &Down|Ctrl+Down Arrow|Moves the selection down|arrow_down
MOVE_UP|Move &Up|Ctrl+Up Arrow|Moves the selection up|arrow_up
NAVIGATE_BACK|Navigate &Back||Returns to the previous view|
NAVIGATE_FORWARD|Navigate &Forward||Goes to the next view|
NET_PROPERTIES|&Net Properties...||Shows the properties of the selected net|
NEW_BLOCK_DIAGRAM|New &Block Diagram||Creates a new block diagram file|schematic/plus:blue
NEW_CONSTRAINT_FILE|New &Constraint File||Creates a new constraint file|constraint/plus:blue
NEW_PROJECT_WIZARD|New &Project Wizard...||Creates a new project step by step|project/wand
NEW_SOURCE_FILE|New &Source File||Creates a new source file|script/plus:blue
NEW_WINDOW|New &Window||Opens another window on the current file|window/plus
NEXT_EDGE|Next &Edge|Tab|Moves the cursor to the next edge of the signal|
NEXT_ERROR|Next E&rror||Goes to the next error in the file|
NEXT_PAGE|&Next Page|Ctrl+Page Down|Goes to the next page|
NEXT_TAB|Next &Tab|Ctrl+Tab|Shows the next tab|
NEXT_TRANSITION|Next T&ransition||Moves the cursor to the next transition of the bus|
NLV_EXPAND_NET|&Expand Net||Shows every instance the net connects|
NLV_FILTER_NETS|&Filter Nets...||Shows only the nets that match a filter|
NLV_GROUP_INSTANCES|&Group Instances||Groups the selected instances into one box|netlist/plus:purple
NLV_SHOW_PATH|Show &Path||Shows the path between the two selected nodes|
NLV_SHOW_RTL|Show &RTL View||Shows the design after elaboration|netlist:purple
NLV_SHOW_TECHNOLOGY_MAP|Show &Technology Map||Shows the design after synthesis|gate:purple
NLV_UNGROUP_INSTANCES|&Ungroup Instances||Shows the instances of the selected group|netlist/minus:purple
NODE_ADD_TO_GROUP|Add to &Group||Adds the selected nodes to a group|
NODE_ADD_TO_WATCH|Add to &Watch||Adds the selected nodes to the watch list|
NODE_ASSIGN_LOCATION|Assign &Location...||Assigns a location to the selected node|
NODE_ASSIGN_PIN|Assign &Pin...||Assigns a pin to the selected node|
NODE_COLLAPSE|&Collapse||Collapses the selected bus node|
NODE_COPY|&Copy Node||Copies the selected nodes|
NODE_COPY_NAME|Copy &Name||Copies the names of the selected nodes|
NODE_CREATE_BUS|Create &Bus||Creates a bus from the selected nodes|
NODE_DELETE|&Delete Node||Removes the selected nodes from the list|
NODE_DISABLE|Disa&ble||Disables the selected nodes|
NODE_ENABLE|E&nable||Enables the selected nodes|
NODE_EXPAND|E&xpand||Expands the selected bus node|
NODE_FIND|&Find Node...|Ctrl+Shift+F|Searches for nodes in the design|node/search
NODE_FIND_DRIVERS|Find &Drivers||Lists the drivers of the selected node|
NODE_FIND_IN_DESIGN_FILE|Find in Design &File||Shows the node in its design file|
NODE_FIND_LOADS|Find L&oads||Lists the loads of the selected node|
NODE_GROUP|&Group Nodes||Groups the selected nodes|
NODE_HIGHLIGHT|&Highlight||Highlights the selected nodes|
NODE_INSERT_ABOVE|Insert &Above||Inserts a node above the selection|
NODE_INSERT_BELOW|Insert Belo&w||Inserts a node below the selection|
NODE_INVERT|&Invert Value||Inverts the value of the selected interval|
NODE_LOCATE_IN_FLOORPLAN|Locate in &Floorplan||Shows the node in the floorplan|
NODE_LOCATE_IN_NETLIST|Locate in &Netlist||Shows the node in the netlist viewer|
NODE_LOCATE_IN_SOURCE|Locate in &Source||Shows the node in its source file|
NODE_LOCATE_IN_TIMING|Locate in &Timing||Shows the node in the timing analyzer|
NODE_MOVE_DOWN|Move &Down||Moves the selected nodes down|
NODE_MOVE_UP|Move &Up||Moves the selected nodes up|
NODE_PROPERTIES|Node &Properties...|Alt+Return|Shows the properties of the selected node|node/info
NODE_RADIX_ASCII|&ASCII||Shows the value as ASCII characters|
NODE_RADIX_BINARY|&Binary||Shows the value in binary|
NODE_RADIX_DECIMAL|&Decimal||Shows the value in decimal|
NODE_RADIX_HEX|&Hexadecimal||Shows the value in hexadecimal|
NODE_RADIX_OCTAL|&Octal||Shows the value in octal|
NODE_RADIX_SIGNED|&Signed Decimal||Shows the value as a signed decimal|
NODE_RADIX_UNSIGNED|&Unsigned Decimal||Shows the value as an unsigned decimal|
NODE_RENAME|&Rename...|F2|Renames the selected node|
NODE_REVERSE_BUS_ORDER|Re&verse Bus Order||Reverses the bit order of the bus|
NODE_SET_CLOCK|Set &Clock...||Sets a clock waveform on the selected interval|
NODE_SET_COUNT|Set Coun&t Value...||Sets a counting value on the selected interval|
NODE_SET_RANDOM|Set &Random Values...||Sets random values on the selected interval|
NODE_SET_VALUE_0|Set Value &0|Ctrl+Alt+0|Sets the selected interval to logic 0|
NODE_SET_VALUE_1|Set Value &1|Ctrl+Alt+1|Sets the selected interval to logic 1|
NODE_SET_VALUE_X|Set Value &X|Ctrl+Alt+X|Sets the selected interval to unknown|
NODE_SET_VALUE_Z|Set Value &Z|Ctrl+Alt+Z|Sets the selected interval to high impedance|
NODE_SHOW_FANIN|Show Fan-&in||Shows the fan-in of the selected node|
NODE_SHOW_FANOUT|Show Fan-&out||Shows the fan-out of the selected node|
NODE_SORT_ASCENDING|Sort &Ascending||Sorts the nodes by name, A to Z|
NODE_SORT_DESCENDING|Sort D&escending||Sorts the nodes by name, Z to A|
NODE_TRACE_BACK|Trace &Back||Follows the selected node to its source|
NODE_TRACE_FORWARD|Trace For&ward||Follows the selected node to its destinations|
NODE_UNGROUP|&Ungroup Nodes||Ungroups the selected group|
NODE_UNHIGHLIGHT|Remove Highligh&t||Removes the highlight from the selected nodes|
NODE_VIEW_IN_WAVEFORM|View in &Waveform||Shows the node in the waveform viewer|
NODE_WATCH|&Watch||Watches the value of the selected node|
NOTIFICATION_CENTER|&Notification Center...||Shows the notifications of the suite|bell
NUMBER_FORMAT_BINARY|&Binary||Shows numbers in binary|
NUMBER_FORMAT_DECIMAL|&Decimal||Shows numbers in decimal|
NUMBER_FORMAT_HEXADECIMAL|&Hexadecimal||Shows numbers in hexadecimal|
NUMBER_FORMAT_OCTAL|&Octal||Shows numbers in octal|
NUMBER_FORMAT_SIGNED|&Signed||Shows numbers as signed values|
OBJECT_PROPERTIES|Object &Properties...||Shows the properties of the selected object|properties
OFFLINE_DOCUMENTATION|&Offline Documentation||Opens the installed documentation|help_topics
ON_CHIP_DEBUG|On-Chip &Debug...||Opens the on-chip debugging tools|bug:orange
OPEN_FILE_LOCATION|Open File &Location||Opens the folder that holds the current file|folder_open
OPEN_RECENT_PROJECT|Open Re&cent Project||Opens a recently used project|open_project/clock
OPTIMIZE_DESIGN|Optimi&ze Design||Runs logic optimization on the design|gear/play
OPTIONS|&Options...||Sets the options of the program|gear
OUTPUT_FILES|O&utput Files||Shows the files the compilation wrote|folder
PASTE_SPECIAL|Paste &Special...||Inserts the contents of the Clipboard in a chosen format|paste/gear
PAUSE_SIMULATION|&Pause Simulation||Pauses the simulation|pause
PIN_PLANNER|&Pin Planner|Ctrl+Shift+P|Opens the pin planner|package:orange
PKG_ASSIGN_DIFFERENTIAL_PAIR|Assign &Differential Pair||Assigns the two selected pins as a pair|io_pin/link:orange
PKG_SHOW_BANKS|Show I/O &Banks||Colours the pins by I/O bank|io_bank:orange
PKG_SHOW_BOTTOM_VIEW|Show &Bottom View||Shows the package from below|package/arrow_up:orange
PKG_SHOW_DIFFERENTIAL_PAIRS|Show Differential &Pairs||Shows the differential pin pairs|io_pin/eye:orange
PKG_SHOW_TOP_VIEW|Show &Top View||Shows the package from above|package/arrow_down:orange
PKG_SHOW_VREF_GROUPS|Show &VREF Groups||Shows the voltage reference groups|power/eye:orange
PKG_SWAP_PINS|&Swap Pins||Swaps the assignments of the two selected pins|io_pin/refresh:orange
PLACE_BLOCK|&Place Block||Places the selected block at the pointer|block/arrow_down:teal
PLACE_REGION|Place &Region||Places the selected region at the pointer|region/arrow_down:teal
PORT_PROPERTIES|P&ort Properties...||Shows the properties of the selected port|
POWER_ANALYZER|Power &Analyzer||Opens the power analyzer|power:yellow
PRESERVE_REGISTERS|Preserve &Registers||Keeps the selected registers through optimization|flipflop/lock
PREVIOUS_EDGE|Previous &Edge|Shift+Tab|Moves the cursor to the previous edge of the signal|
PREVIOUS_ERROR|Previous E&rror||Goes to the previous error in the file|
PREVIOUS_PAGE|&Previous Page|Ctrl+Page Up|Goes to the previous page|
PREVIOUS_TAB|Previous &Tab|Ctrl+Shift+Tab|Shows the previous tab|
PREVIOUS_TRANSITION|Previous T&ransition||Moves the cursor to the previous transition of the bus|
PRINT_ALL|Print &All...||Prints every open file|print/plus
PRINT_CURRENT_VIEW|Print Current &View...||Prints what the view shows|print/eye
PRINT_SELECTION|Print &Selection...||Prints the selected objects|
PROGRAMMER|Pro&grammer||Opens the device programmer|program:orange
PROGRAM_DEVICE|Program &Device||Programs the device with the current file|program/play:orange
PROJECT_ADD_FILES|Add &Files...||Adds files to the project|
PROJECT_CLEAN|&Clean Project...||Removes the files the compilation wrote|
PROJECT_COPY|Cop&y Project...||Copies the project to another folder|
PROJECT_NAVIGATOR|Project &Navigator||Shows the files and hierarchy of the project|project
PROJECT_REMOVE_FILE|&Remove File||Removes the selected file from the project|
PROJECT_RESTORE_ARCHIVE|Restore &Archived Project...||Restores a project from an archive|
PROJECT_REVISIONS|Re&visions...||Manages the revisions of the project|
PROJECT_SETTINGS|Project &Settings...|Ctrl+Shift+X|Sets the options of the project|project/gear
PROJECT_SET_AS_TOP_LEVEL|Set as &Top-Level Entity||Makes the selected entity the top of the design|
PROJECT_SHOW_FILES|Show &Files||Shows the files of the project|
PROJECT_SHOW_HIERARCHY|Show &Hierarchy||Shows the design hierarchy of the project|
PROMOTE_ASSIGNMENTS|Pro&mote Assignments||Promotes instance assignments to the top level|table/arrow_up
PROPAGATE_CONSTRAINTS|Propa&gate Constraints||Propagates the constraints through the hierarchy|constraint/arrow_down
PWR_EARLY_ESTIMATE|&Early Power Estimate...||Estimates the power before compilation|
PWR_LOAD_ACTIVITY_FILE|Load &Activity File...||Loads signal activity for the power analysis|
PWR_SHOW_RAIL_SUMMARY|Show &Rail Summary||Shows the power of each supply rail|
PWR_SHOW_THERMAL_MAP|Show &Thermal Map||Shows the estimated temperature of the die|thermal:red
QUICK_ACCESS|&Quick Access...||Searches the commands by name|
READ_ONLY|&Read Only||Protects the current file from changes|
RECENT_FILES|Recent &Files||Shows the recently used files|
RECENT_PROJECTS|Recent Pro&jects||Shows the recently used projects|
RECOMPILE|Reco&mpile||Compiles the changed parts of the design|compile/refresh
RECOVER_DATABASE|Recover &Database...||Repairs a damaged compilation database|database/refresh
REDO_ALL|Redo A&ll||Repeats every undone action|
REDRAW|Re&draw||Draws the view again|
REFRESH_ALL|Refresh &All|Ctrl+F5|Refreshes every open view|refresh/plus
REGENERATE_FLOORPLAN|Re&generate Floorplan||Generates the floorplan again|floorplan/refresh
REGION_PROPERTIES|Region &Properties...||Shows the properties of the selected region|
RELOAD_FILE|Re&load File||Reads the current file again from disk|generic_file/refresh
REMOVE_ALL_BREAKPOINTS|Remove &All Breakpoints||Removes every breakpoint|
REMOVE_ASSIGNMENT|&Remove Assignment||Removes the selected assignments|
REMOVE_FROM_PROJECT|Remove from &Project||Removes the current file from the project|
REMOVE_SIGNAL|Remove &Signal||Removes the selected signals from the waveform|
RENAME|Re&name...||Renames the selection|pencil
REOPEN_LAST_CLOSED|Reopen &Last Closed||Opens the file that was closed last|
REPLACE|Re&place...||Replaces the selection with another object|
REPORT_CLOCKS|Report &Clocks||Reports the clocks of the design|
REPORT_DATASHEET|Report &Datasheet||Reports setup, hold and clock-to-output times|
REPORT_FMAX|Report &Fmax||Reports the maximum frequency of each clock|
REPORT_PATH|Report &Path...||Reports the timing of a path|
REPORT_RESOURCE_USAGE|Report &Resource Usage||Reports the resources the design uses|
REPORT_TIMING|Report &Timing...||Reports the timing of the worst paths|
REPORT_UNCONSTRAINED_PATHS|Report &Unconstrained Paths||Reports the paths that no constraint covers|
RERUN_ANALYSIS|Re&run Analysis||Runs the last analysis again|refresh/play
RESET_LAYOUT|&Reset Layout||Restores the default arrangement of windows|
RESET_VIEW|Reset &View||Restores the default view settings|
RESET_ZOOM|Reset &Zoom|Ctrl+0|Shows the view at 100 percent|
RESTART_SIMULATION|Re&start Simulation|Ctrl+Shift+F2|Restarts the simulation from time zero|simulate/refresh
RESTORE_DEFAULTS|Restore &Defaults||Restores the default settings|
RESTORE_WINDOW|Restore &Window||Restores the active window to its normal size|
RESUME_SIMULATION|Resu&me Simulation||Resumes the paused simulation|play
REVERT_FILE|Re&vert File||Discards the changes to the current file|undo/generic_file
ROTATE_CLOCKWISE|Rotate Cloc&kwise||Rotates the selection clockwise|
ROTATE_COUNTERCLOCKWISE|Rotate Counterclock&wise||Rotates the selection counterclockwise|
RPT_COLLAPSE_SECTIONS|&Collapse Sections||Collapses every section of the report|
RPT_EXPAND_SECTIONS|&Expand Sections||Expands every section of the report|
RPT_SAVE_TABLE|&Save Table...||Saves the selected report table to a file|table/arrow_down
RTL_VIEWER|RT&L Viewer||Opens the netlist viewer on the elaborated design|netlist
RULER|R&uler||Shows or hides the ruler|ruler
RUN_ALL|Run &All||Runs the simulation until it ends|play/plus:green
RUN_SCRIPT|Run &Script...||Runs a Tcl script|script/play
RUN_TO_CURSOR|Run to &Cursor|Ctrl+F10|Runs the simulation to the cursor|play/arrow_right
SAMPLE_NOW|Sample &Now||Takes one sample of the signals now|trigger
SAVE_COPY_AS|Save a &Copy As...||Saves a copy of the current file under another name|save/plus
SAVE_PROJECT|Save &Project||Saves the project settings|project/arrow_down
SAVE_SESSION|Save &Session...||Saves the open windows for later|
SCREENSHOT|Screens&hot...||Saves an image of the window|
SCROLL_TO_CURSOR|Scroll to &Cursor||Scrolls the view so that the cursor shows|
SEARCH_HELP|Search &Help...||Searches the help|help/search
SELECTED_ONLY|&Selected Only||Shows only the selected objects|
SELECTION_FILTER|Selection &Filter...||Chooses which kinds of objects can be selected|filter/selection_tool
SELECT_ALL_NETS|Select All &Nets||Selects every net|
SELECT_CONNECTED|Select &Connected||Selects the objects connected to the selection|
SELECT_DRIVERS|Select &Drivers||Selects the drivers of the selected nets|
SELECT_LOADS|Select &Loads||Selects the loads of the selected nets|
SELECT_MATCHING|Select &Matching...||Selects the objects whose names match a pattern|
SELECT_SAME_TYPE|Select Same &Type||Selects the objects of the same type|
SEND_FEEDBACK|Send &Feedback...||Sends a comment to the developers of the suite|message/arrow_right
SESSION_MANAGER|Session &Manager...||Manages the saved sessions|
SETTINGS|&Settings...||Sets the options of the current tool|gear
SET_ACTIVE_REVISION|Set &Active Revision||Makes the selected revision the current one|
SET_AS_TOP_LEVEL|Set as &Top Level||Makes the selection the top level|
SET_CURSOR|Set &Cursor||Moves the cursor to the pointer|
SET_ORIGIN|Set &Origin||Makes the pointer position the origin|
SET_TIME_RANGE|Set Time &Range...||Sets the time range of the simulation|
SHOW_ANNOTATIONS|&Annotations||~|
SHOW_ASSIGNMENTS|A&ssignments||~|
SHOW_BLOCK_NAMES|&Block Names||Shows or hides the names of the blocks|
SHOW_BLOCK_PROPERTIES|Block &Properties||~|
SHOW_BOOKMARKS|&Bookmarks||~|
SHOW_BREAKPOINTS|Brea&kpoints||~|
SHOW_CALL_STACK|Call &Stack||~|
SHOW_CELL_TYPES|&Cell Types||Shows or hides the cell type of each block|
SHOW_CLOCK_DOMAINS|Clock &Domains||~|
SHOW_COMPILATION_DASHBOARD|Compilation &Dashboard||~|
SHOW_COMPILATION_REPORT|Compilation &Report|Ctrl+Shift+R|~|report
SHOW_CONGESTION|C&ongestion||Shows or hides the congestion map|
SHOW_CONNECTIONS|&Connections||Shows or hides the connections between objects|
SHOW_CONSOLE|Tcl C&onsole|Alt+2|~|console
SHOW_CONSTRAINTS|Co&nstraints||~|
SHOW_CORE_AREA|Core &Area||Shows or hides the core area|
SHOW_CRITICAL_PATHS|Critical &Paths||Shows or hides the critical paths|
SHOW_DESIGN_SUMMARY|Design &Summary||~|
SHOW_DEVICE|De&vice||~|
SHOW_DIE_OUTLINE|&Die Outline||Shows or hides the outline of the die|
SHOW_ERRORS_ONLY|&Errors Only||Shows only the errors|
SHOW_FILES|&Files||~|
SHOW_FLOORPLAN|&Floorplan||~|floorplan
SHOW_FULL_NAMES|F&ull Names||Shows full hierarchical names|
SHOW_GRID|&Grid||Shows or hides the grid|grid
SHOW_HIERARCHY|&Hierarchy||~|hierarchy
SHOW_HISTORY|H&istory||~|
SHOW_INFO_MESSAGES|&Info Messages||Shows the information messages|
SHOW_IO_BANKS|I/O &Banks||Shows or hides the I/O banks|
SHOW_IP_CATALOG|IP &Catalog|Alt+3|~|ip_core
SHOW_KEEPOUTS|&Keepouts||Shows or hides the keepout areas|
SHOW_LAYERS|La&yers||~|
SHOW_LIBRARIES|Li&braries||~|
SHOW_LOG|&Log||~|
SHOW_MEMORY|&Memory||~|
SHOW_MESSAGES|&Messages|Alt+1|~|message
SHOW_MINIMAP|&Minimap||~|
SHOW_NET_NAMES|&Net Names||Shows or hides the names of the nets|
SHOW_NODE_FINDER|Node &Finder||~|
SHOW_NODE_LIST|Node L&ist||~|
SHOW_OUTPUT|O&utput||~|
SHOW_PACKAGE_VIEW|&Package View||~|
SHOW_PADS|P&ads||Shows or hides the pads|
SHOW_PARTITIONS|Pa&rtitions||~|
SHOW_PIN_NAMES|Pin &Names||Shows or hides the names of the pins|
SHOW_PLACEMENT_GRID|Placement &Grid||Shows or hides the placement grid|
SHOW_PORT_NAMES|P&ort Names||Shows or hides the names of the ports|
SHOW_POWER_RAILS|Power &Rails||~|
SHOW_PROBES|Pro&bes||~|
SHOW_PROJECT_NAVIGATOR|Project &Navigator|Alt+0|~|project
SHOW_PROPERTIES|P&roperties||~|properties
SHOW_REGIONS|R&egions||Shows or hides the regions|
SHOW_REPORTS|&Reports||~|
SHOW_RESOURCE_USAGE|Resource &Usage||~|
SHOW_ROUTING|Ro&uting||Shows or hides the routing|
SHOW_RULERS|&Rulers||Shows or hides the rulers|
SHOW_SCHEMATIC|Sc&hematic||~|
SHOW_SEARCH_RESULTS|Searc&h Results||~|
SHOW_SIGNALS|&Signals||~|
SHOW_SLACK|&Slack||Shows or hides the slack of each path|
SHOW_SOURCE|So&urce||~|
SHOW_STATUS_BAR|Status &Bar||Shows or hides the status bar|
SHOW_TASKS|&Tasks||~|
SHOW_TIMING_PATHS|Timing &Paths||~|
SHOW_TIMING_SUMMARY|Timing &Summary||~|
SHOW_TOOLBARS|&Toolbars||Shows or hides the tool bars|
SHOW_TOOLTIPS|Tool&tips||Shows or hides tool tips|
SHOW_TRANSCRIPT|T&ranscript||~|
SHOW_TRIGGERS|T&riggers||~|
SHOW_UNUSED_PINS|U&nused Pins||Shows or hides the pins that carry no signal|
SHOW_VALUES|&Values||Shows or hides the values of the signals|
SHOW_WARNINGS_ONLY|&Warnings Only||Shows only the warnings|
SHOW_WATCH|&Watch||~|
SHOW_WAVEFORM|&Waveform||~|waveform
SHOW_WELCOME_SCREEN|Welcome &Screen||~|
SIGNAL_PROPERTIES|Signal &Properties...||Shows the properties of the selected signal|
SIMULATION_SETTINGS|Simulation &Settings...||Sets the options of the simulation|simulate/gear
SIM_ADD_WAVE|Add to &Wave||Adds the selected objects to the waveform|waveform/plus:green
SIM_BREAK|&Break|Ctrl+Pause|Stops the simulation at once|pause:red
SIM_RESTART|Re&start||Restarts the simulation|refresh:green
SIM_RUN|&Run|F9|Runs the simulation for one run length|play:green
SIM_RUN_FOR|Run &For...||Runs the simulation for a given time|play/clock:green
SIM_STEP|&Step|F10|Runs the simulation to the next statement|step:green
SNAPSHOT_MANAGER|Snapshot &Manager...||Manages the waveform snapshots|
SORT_ASCENDING|Sort &Ascending||Sorts the list from A to Z|sort_ascending
SORT_DESCENDING|Sort &Descending||Sorts the list from Z to A|sort_descending
SPLIT_VIEW_HORIZONTAL|Split &Horizontally||Splits the view into an upper and a lower part|
SPLIT_VIEW_VERTICAL|Split &Vertically||Splits the view into a left and a right part|
SRC_COMMENT_BLOCK|&Comment Block|Ctrl+/|Turns the selected lines into comments|
SRC_DUPLICATE_LINE|D&uplicate Line|Ctrl+Shift+D|Duplicates the current line|
SRC_GO_TO_MATCHING_BRACKET|Go to &Matching Bracket|Ctrl+]|Moves the cursor to the matching bracket|
SRC_INDENT|&Increase Indent|Ctrl+Shift+I|Indents the selected lines|
SRC_INSERT_TEMPLATE|Insert &Template...||Inserts an HDL template|
SRC_LOWERCASE|Make &Lowercase||Turns the selected text into lowercase|
SRC_TOGGLE_BOOKMARK|Toggle &Bookmark|Ctrl+F3|Sets or removes a bookmark on the current line|bookmark
SRC_UNCOMMENT_BLOCK|&Uncomment Block|Ctrl+Shift+/|Removes the comment marks from the selected lines|
SRC_UNINDENT|&Decrease Indent|Ctrl+Shift+U|Unindents the selected lines|
SRC_UPPERCASE|Make &Uppercase||Turns the selected text into uppercase|
START_BITSTREAM_GENERATION|Start &Bitstream Generation||Starts generating the bitstream|
START_CDC_ANALYSIS|Start &Clock Domain Crossing Analysis||Starts checking the clock domain crossings|
START_CLOCK_CHECK|Start Cloc&k Check||Starts checking the clock constraints|
START_COMPILATION|Start &Compilation|Ctrl+Shift+L|Starts the full compilation|compile/play:green
START_DESIGN_RULE_CHECK|Start &Design Rule Check||Starts the design rule check|
START_EARLY_TIMING_ESTIMATE|Start &Early Timing Estimate||Starts estimating the timing before placement|
START_ELABORATION|Start &Elaboration||Starts building the design hierarchy|
START_LINT|Start &Lint||Starts checking the sources for style problems|
START_NETLIST_EXPORT|Start &Netlist Export||Starts writing the netlists for other tools|
START_PARTITION_PLANNER|Start &Partition Planner||Opens the partition planner|partition/play:purple
START_PHYSICAL_OPTIMIZATION|Start P&hysical Optimization||Starts optimizing the placed design|
START_PIN_CHECK|Start P&in Check||Starts checking the pin assignments|
START_PLACEMENT|Start &Placement||Starts placing the design|fitter/play
START_POWER_ANALYSIS|Start Po&wer Analysis||Starts the power analysis|
START_RETIMING|Start &Retiming||Starts moving registers to balance the paths|
START_ROUTING|Start Ro&uting||Starts routing the design|path/play
START_SYNTHESIS|Start &Synthesis|Ctrl+Shift+K|Starts synthesizing the design|synthesis/play
START_TIMING_ANALYSIS|Start &Timing Analysis||Starts the timing analysis|timing/play
STATUS_BAR|Status &Bar||Shows or hides the status bar|
STEP_INTO|Step &Into|F11|Steps into the next call|step
STEP_OUT|Step &Out|Shift+F11|Steps out of the current call|step/arrow_up
STEP_OVER|Step &Over|F10|Steps over the next call|step/arrow_right
STOP|&Stop||Stops the current task|stop:red
STOP_ALL|Stop &All||Stops every running task|stop/plus:red
STOP_COMPILATION|Stop &Compilation|Ctrl+Shift+Pause|Stops the compilation|compile/stop:red
STOP_SIMULATION|Stop Si&mulation||Stops the simulation|simulate/stop
SUMMARY_REPORT|Summary &Report||Shows the summary of the results|report/info
SUPPRESSION_MANAGER|Suppression &Manager...||Manages the message suppression rules|bell_off/gear
SUPPRESS_ALL_FROM_TOOL|Suppress All from &Tool||Suppresses every message of the selected tool|
SUPPRESS_ALL_IN_HIERARCHY|Suppress All in &Hierarchy||Suppresses the messages of the selected instance and below|
SUPPRESS_EXTRA_INFO|Suppress E&xtra Information||Suppresses extra information messages|
SUPPRESS_INFO_MESSAGES|Suppress &Information||Suppresses information messages|
SUPPRESS_MESSAGE|&Suppress Message||Suppresses the selected message|bell_off
SUPPRESS_MESSAGES_IN_FILE|Suppress Messages in &File||Suppresses the messages of the selected file|
SUPPRESS_MESSAGE_ID|Suppress Message &ID||Suppresses every message with the selected identifier|
SUPPRESS_SIMILAR_MESSAGES|Suppress Si&milar Messages||Suppresses messages like the selected one|
SUPPRESS_WARNINGS|Suppress &Warnings||Suppresses warnings|
SWAP_NODES|S&wap Nodes||Swaps the two selected nodes|
SWITCH_TO_GATE_LEVEL|Switch to &Gate Level||Shows the gate-level netlist|gate
SWITCH_TO_RTL|Switch to &RTL||Shows the RTL netlist|netlist
SYMBOL_EDITOR|S&ymbol Editor||Opens the symbol editor|schematic
SYNCHRONIZE_CURSORS|Synchronize &Cursors||Moves the cursors of all views together|link
SYNC_VIEWS|S&ync Views||Keeps the views at the same position|link/refresh
SYSTEM_INFO|System &Information...||Shows information about this computer|info
TABBED_DOCUMENTS|&Tabbed Documents||Shows the documents as tabs|
TCL_CONSOLE|Tcl &Console||Opens the Tcl console|console
TCL_SCRIPTS|Tcl &Scripts...||Lists and runs Tcl scripts|script
TECHNOLOGY_MAP_VIEWER|Technology &Map Viewer||Opens the netlist viewer on the mapped design|gate
TEMPLATES|T&emplates...||Manages the templates|
TEXT_EDITOR|Te&xt Editor||Opens the text editor|script/pencil
TIE_OFF_UNUSED|Tie Off &Unused Inputs||Connects unused inputs to a constant|
TILE_HORIZONTALLY|Tile &Horizontally||Arranges the child windows side by side|
TILE_VERTICALLY|Tile &Vertically||Arranges the child windows one above the other|
TIMING_ANALYZER|T&iming Analyzer||Opens the timing analyzer|timing:red
TMV_SHOW_SLACK_HISTOGRAM|Show Slack &Histogram||Shows the distribution of the slack|chart:red
TOGGLE_BREAKPOINT|Toggle &Breakpoint|F9|Sets or removes a breakpoint on the current line|bug/refresh:red
TRACE_PATH|Trace &Path||Follows the selected path through the design|path/arrow_right
TREE_VIEW_FILTER_OPTIONS|Filter &Options...||Sets the options of the tree filter|tree_view_filter_option
UNDO_ALL|Undo A&ll||Reverses every action|
UNGROUP|&Ungroup||Ungroups the selected group|
UNLOCK_ASSIGNMENT|Unloc&k Assignment||Allows changes to the selected assignments|
UPDATE_MEMORY_INIT_FILE|Update &Memory Initialization File||Writes new memory contents into the programming file|memory/refresh
UPGRADE_IP_CORES|Upgrade IP &Cores...||Upgrades the IP cores of the project|ip_core/arrow_up
USER_LIBRARIES|User &Libraries...||Sets the folders of user libraries|database/user
VANTOR_COMMUNITY_WEB_PAGE|&Community Forums||Opens the community forums in a web browser|
VANTOR_DOCUMENTATION_WEB_PAGE|&Documentation||Opens the documentation in a web browser|web_page/help
VANTOR_DOWNLOAD_CENTER_WEB_PAGE|Download &Center||Opens the download center in a web browser|
VANTOR_HOME_WEB_PAGE|Vantor &Home Page||Opens the home page in a web browser|web_page/star
VANTOR_IP_CATALOG_WEB_PAGE|&IP Catalog Online||Opens the online IP catalog in a web browser|
VANTOR_KNOWLEDGE_BASE_WEB_PAGE|&Knowledge Base||Opens the knowledge base in a web browser|
VANTOR_LICENSING_WEB_PAGE|&Licensing||Opens the licensing pages in a web browser|
VANTOR_RELEASE_NOTES_WEB_PAGE|&Release Notes||Opens the release notes in a web browser|
VANTOR_SUPPORT_WEB_PAGE|&Support||Opens the support pages in a web browser|
VANTOR_TRAINING_WEB_PAGE|&Training||Opens the training courses in a web browser|
VANTOR_VIDEOS_WEB_PAGE|&Videos||Opens the video library in a web browser|
VANTOR_WHATS_NEW_WEB_PAGE|&What's New||Opens the new features in a web browser|
VERIFY_DEVICE|&Verify Device||Compares the device contents with the programming file|program/check
VIEW_ASSIGNMENTS|View &Assignments||Shows the assignments of the project|
VIEW_CONSTRAINTS|View &Constraints||Shows the constraints of the project|
VIEW_DESIGN_SUMMARY|View Design &Summary||Shows the summary of the design|
VIEW_LOG_FILE|View &Log File||Shows the log file of the last run|
VIEW_NETLIST|View &Netlist||Shows the netlist of the design|
VIEW_PIN_OUT_FILE|View &Pin-Out File||Shows the pin-out file|
VIEW_REPORT|View &Report||Shows the report of the last run|
VIEW_SOURCE|View So&urce||Shows the source of the selection|
VIEW_TIMING_PATH|View &Timing Path||Shows the selected timing path|
WAV_ADD_CURSOR|Add &Cursor||Adds a cursor to the waveform|waveform/plus:purple
WAV_ZOOM_TO_RANGE|Zoom to &Range|Ctrl+Shift+Z|Shows the time between the two cursors|zoom_fit:purple
WHATS_THIS|What's &This?|Shift+F12|Shows help for the object under the pointer|question
WORD_WRAP|&Word Wrap||Wraps long lines at the window edge|
SELECT_NEXT|Select &Next||Selects the next object|
SELECT_PREVIOUS|Select &Previous||Selects the previous object|
SET_RADIX|Set &Radix...||Chooses how the values of the selected signals are shown|
SHRINK_REGION|Shrin&k Region||Shrinks the selected region to its contents|
SIGNAL_FINDER|Signal &Finder...||Searches for signals by name and type|
SPLIT_BUS|S&plit Bus||Splits the selected bus into its bits|
SPLIT_PARTITION|Split Pa&rtition||Splits the selected partition in two|
SRC_AUTOCOMPLETE|&Autocomplete||Completes the word at the cursor|
STATISTICS|Sta&tistics||Shows statistics of the design|
STOP_ON_ERROR|Stop on &Error||Stops the run at the first error|
SWITCH_REVISION|Switch Re&vision...||Opens another revision of the project|
PERFORMANCE_PROFILER|Performance &Profiler||Shows where the compilation spends its time|
PHYSICAL_VIEW|P&hysical View||Shows the physical placement of the selection|
PLACE_PIN|Place P&in||Places the selected pin at the pointer|
SEARCH_IN_FILES|Search in &Files...||Searches for text in the files of the project|find/list
"""

# The one action that runs a Tcl command of the suite.
TCL_FUNCTIONS = {"START_PARTITION_PLANNER": "::vantor::partition_planner::start"}
