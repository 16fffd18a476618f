#pragma once
// Continuous zoom by a vertical right-button drag in the zoom mode of an
// ORQ_ZOOM_SCROLL_AREA: up enlarges, down shrinks. A press released without
// a right-button move is handed back to the scroll area as a click.
#include "orq_export.h"

#include <QPoint>
#include <QWidget>

class ORQ_VIEW;
class ORQ_ZOOM_SCROLL_AREA;

class ORQ_EXPORT ORQ_ZOOM_DRAG_WIDGET : public QWidget {
  Q_OBJECT
public:
  // Runs one drag from point (the press, in the view's pixels) and returns
  // after the release.
  static void start_zoom_drag(ORQ_ZOOM_SCROLL_AREA* scroll_area, ORQ_VIEW* view, const QPoint& point);
  // Whether the last drag moved with the right button, and so zoomed.
  static bool is_zoom_drag_activate();
};
