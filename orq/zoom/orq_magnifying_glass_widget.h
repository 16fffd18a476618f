#pragma once
// The magnifying glass of a zoomable view: a round lens that shows the
// drawing enlarged under the mouse while the button is held.
#include "orq_export.h"

#include <QPoint>
#include <QWidget>

class ORQ_VIEW;
class ORQ_ZOOM_SCROLL_AREA;

class ORQ_EXPORT ORQ_MAGNIFYING_GLASS_WIDGET : public QWidget {
  Q_OBJECT
public:
  // Opens the lens at global (a press position) and returns when it has
  // been dismissed.
  static void magnifying(ORQ_ZOOM_SCROLL_AREA* scroll_area, ORQ_VIEW* view, QPoint global);
};
