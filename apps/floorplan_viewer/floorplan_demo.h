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
// to type into the dialog that a click on the zoom read-out opens.
FLOORPLAN_DEMO run_floorplan_demo(FLOORPLAN_WINDOW& window, const QString& kind, const QString& argument);
