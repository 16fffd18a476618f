"""Framework rows of the standard action catalogue.

Each row: (name, value, menu text, shortcut, status tip, icon recipe).
A shortcut "S <Key>" is a QKeySequence::StandardKey; anything else is a
custom shortcut in portable text. The values are fixed: tools have stored
them in their own settings and scripts for years, so the generator checks
that the alphabetical numbering lands every one of these on its value.
"""

FRAMEWORK = [
    ("ABOUT_VANTOR", 1, "&About Vantor...", "", "Displays program information, version number, and copyright", "about"),
    ("NEW", 322, "&New...", "S New", "Creates a new file", "new"),
    ("OPEN", 403, "&Open...", "S Open", "Opens an existing file", "open"),
    ("OPEN_PROJECT", 405, "Open P&roject...", "Ctrl+J", "Opens an existing project", "open_project"),
    ("CLOSE", 65, "&Close", "Ctrl+F4", "Closes the current file", "close"),
    ("CLOSE_ALL", 66, "Close Al&l", "", "Closes all open windows", "close_all"),
    ("SAVE", 510, "&Save", "S Save", "Saves the current file", "save"),
    ("SAVE_AS", 512, "Save &As...", "", "Saves the current file with a new name", "save_as"),
    ("SAVE_ALL", 511, "Save All", "Ctrl+Shift+S", "Saves all open files", "save_all"),
    ("EXPORT", 160, "Export&...", "", "Exports the current file to a different format", "export"),
    ("PAGE_SETUP", 411, "Page Set&up...", "", "Sets margins, page orientation, and other layout options", "page_setup"),
    ("PRINT_PREVIEW", 440, "Print Pre&view", "", "Shows how a file will look when it is printed", "print_preview"),
    ("PRINT", 437, "&Print...", "S Print", "Prints the current file", "print"),
    ("EXIT", 157, "E&xit", "Alt+F4", "Exits after prompting you to save any unsaved files", "exit"),
    ("UNDO", 708, "&Undo", "S Undo", "Reverses the last action", "undo"),
    ("REDO", 468, "&Redo", "S Redo", "Reverses the last Undo", "redo"),
    ("CUT", 119, "Cu&t", "S Cut", "Cuts the selection and puts it on the Clipboard", "cut"),
    ("COPY", 78, "&Copy", "S Copy", "Copies the selection to the Clipboard", "copy"),
    ("PASTE", 413, "&Paste", "S Paste", "Inserts the contents of the Clipboard", "paste"),
    ("DELETE", 127, "&Delete", "S Delete", "Deletes the selection", "delete"),
    ("SELECT_ALL", 523, "Select &All", "S SelectAll", "Selects everything in the file", "select_all"),
    ("FIND", 184, "&Find...", "S Find", "Searches for specified text", "find"),
    ("FIND_NEXT", 185, "Find Ne&xt", "F3", "Searches for the next occurrence of the specified text", "find_next"),
    ("FIND_PREVIOUS", 186, "Find P&revious", "Shift+F3", "Searches for the previous occurrence of the specified text", "find_previous"),
    ("COPY_FILE_NAME", 79, "Copy File Name", "", "Copies the file name of the current file to the clipboard", "copy_file_name"),
    ("COPY_FULL_PATH", 80, "Copy Full Path", "", "Copies the full path of the current file to the clipboard", "copy_full_path"),
    ("COPY_TOOLTIP", 82, "Copy Tooltip", "", "Copies the tooltip text into the clipboard", "copy_tooltip"),
    ("REFRESH", 471, "&Refresh", "", "Refreshes the current view", "refresh"),
    ("ZOOM", 741, "&Zoom...", "", "Control how large the file contents appear on screen", "zoom"),
    ("ZOOM_IN", 743, "Zoom &In", "Ctrl+Space", "Zooms in to increase the scale of objects displayed", "zoom_in"),
    ("ZOOM_OUT", 744, "Zoom &Out", "Ctrl+Shift+Space", "Zooms out to decrease the scale of objects displayed", "zoom_out"),
    ("ZOOM_FIT", 742, "&Fit in Window", "Ctrl+Alt+W", "Changes the display scale to fit the entire view into the current window", "zoom_fit"),
    ("ZOOM_SELECTION", 745, "Fit Selection in Window", "Ctrl+Shift+W", "Changes the display scale to fit the selection into the current window", "zoom_selection"),
    ("ZOOM_TOOL", 746, "Zoom Tool", "", "Zooms in and out. Hold Shift to zoom out.", "zoom_tool"),
    ("PAN_TOOL", 412, "Hand Tool", "", "Grab the document to pan side to side or up and down", "pan_tool"),
    ("SELECTION_TOOL", 522, "Selection Tool", "", "Selects objects and text", "selection_tool"),
    ("AREA_SELECTION_TOOL", 30, "Area Selection Tool", "", "Selects multiple objects in an area", "area_selection_tool"),
    ("MAGNIFYING_TOOL", 308, "Magnifying Glass Tool", "", "Click to magnify area under the pointer", "magnifying_tool"),
    ("BIRDS_EYE_VIEW", 47, "Bird's Eye View", "", "Toggles the bird's eye view on and off", "birds_eye_view"),
    ("CASCADE", 51, "&Cascade", "Shift+F5", "Arranges all the child windows in a cascade pattern", "cascade"),
    ("TILE", 698, "&Tile", "Shift+F4", "Arranges all child windows in a tile pattern", "tile"),
    ("MORE_WINDOWS", 316, "&More Windows...", "", "Activate this window", ""),
    ("DETACH", 135, "&Detach Window", "", "Detaches the window", "detach"),
    ("ATTACH", 41, "&Attach Window", "", "Attaches the window", "attach"),
    ("ENABLE_DOCKING", 152, "Enable Docking", "", "Enable docking", "enable_docking"),
    ("CUSTOMIZE", 116, "Customi&ze...", "", "Customizes the user interface", "customize"),
    ("CUSTOMIZE_COLUMN", 117, "C&ustomize Columns...", "", "Opens customize column dialog", "customize_column"),
    ("CUSTOMIZE_FILTER", 118, "Customize &Filter...", "", "Opens customize filter dialog", "customize_filter"),
    ("TREE_VIEW_FILTER_ALL_MSG", 705, "Highlight search results", "", "Highlight search results", "filter_all"),
    ("TREE_VIEW_FILTER_MATCHED_ONLY", 706, "Filter search results", "", "Filter search results", "filter_matched_only"),
    ("EXPAND_ALL", 158, "E&xpand All", "", "Expand the selected entity", "expand_all"),
    ("COLLAPSE_ALL", 68, "Co&llapse All", "", "Collapse the selected entity", "collapse_all"),
    ("OPEN_PROPERTIES", 406, "&Properties...", "", "Opens up properties dialog", "properties"),
    ("VANTOR_HELP", 458, "&Help Topics", "", "Displays program help topics", "help_topics"),
    ("HELP", 242, "&Help", "S HelpContents", "Display help for the currently selected message", "help"),
]

# The one tool tip that is not derived from the menu text and shortcut.
TOOLTIPS = {"VANTOR_HELP": "Help Topics"}
