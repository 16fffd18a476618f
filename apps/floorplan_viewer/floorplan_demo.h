#pragma once
// The viewer's interactions for screenshots: one of the zoom area's modal
// interactions started with real mouse events, and the window grabbed while
// its overlay shows.
#include <QImage>
#include <QString>

class FLOORPLAN_WINDOW;

struct FLOORPLAN_DEMO {
  QImage image;   // the window while the overlay showed; null if none did
  QString report; // what was done and shown, one line
  QString error;  // why nothing was shown; empty on success
};

// kind "lens", "zoom-drag" or "gesture" at argument "X,Y", pixels from the
// visible top-left of the floor plan; or kind "set-zoom" with the per cent
// to type into the dialog that a click on the zoom read-out opens; or one of
// the reports' kinds below.
FLOORPLAN_DEMO run_floorplan_demo(FLOORPLAN_WINDOW& window, const QString& kind, const QString& argument);

// kind "hierarchy" with argument "before", "filtered" or "cleared": a place
// made in the Hierarchy panel with clicks, then the leaf's cell type typed
// into the filter line, then the filter cleared with its button; the
// screenshot at that stage. Kind "export-hierarchy" with a file name: File >
// Export Hierarchy... with the name typed into its dialog and any question
// or error that follows answered. Kind "variants" with variant names
// ("SRAM_64K_HS,PLL_FRAC", or none for a few): Tools > Block Variants...,
// a click on each name's row for the first macro offering it, the window
// and the report in the picture.
FLOORPLAN_DEMO run_report_demo(FLOORPLAN_WINDOW& window, const QString& kind, const QString& argument);

// Changes a column of the Hierarchy panel as a user does: "hide:NAME" and
// "show:NAME" through the header's menu, "width:NAME=PIXELS" by dragging the
// header. Returns what went wrong, or an empty string.
QString change_hierarchy_column(FLOORPLAN_WINDOW& window, const QString& change);
