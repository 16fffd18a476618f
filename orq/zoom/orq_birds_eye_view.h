#pragma once
// The overview of a zoomable view: the whole drawing, small, with the part
// the scroll area shows outlined. A click or drag moves the main view there,
// the wheel zooms it. A dock on the right of the tool's main window, or a
// small tool window of its own where there is no main window.
#include "orq_dock_widget.h"
#include "orq_export.h"

#include <QPointer>

class ORQ_VIEW;
class ORQ_ZOOM_SCROLL_AREA;

class ORQ_EXPORT ORQ_BIRDS_EYE_VIEW : public ORQ_DOCK_WIDGET {
  Q_OBJECT
public:
  ORQ_BIRDS_EYE_VIEW(ORQ_ZOOM_SCROLL_AREA* scroll_area, ORQ_VIEW* view);
  ~ORQ_BIRDS_EYE_VIEW() override;

  ORQ_ZOOM_SCROLL_AREA* get_scroll_area() const;
  ORQ_VIEW* get_view() const;
  // The widget the overview is drawn on.
  QWidget* get_canvas() const;
  // The transform from the view's logical coordinates to the canvas.
  QTransform get_canvas_transform() const;
  // The logical rectangle the scroll area shows.
  QRect get_visible_logical_rect() const;

  void setVisible(bool visible) override;

public slots:
  // The drawing's size or the window's changed: lay out and draw anew.
  void update_geometry();
  // What the drawing shows changed: draw the overview anew.
  void refresh();
  // Only the visible part moved: redraw its outline.
  void update_view_rect();

private:
  void place_in_window();

  QPointer<ORQ_ZOOM_SCROLL_AREA> m_scroll_area;
  QPointer<ORQ_VIEW> m_view;
  QWidget* m_canvas;
};
