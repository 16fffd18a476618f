#pragma once
// The gesture overlay of a view in its selection mode: the south-east drag
// selects what the rectangle covers, where the view allows rectangle
// selection, and a click is the view's own.
#include "orq_mouse_gesture_widget.h"

class ORQ_EXPORT ORQ_SELECTION_MODE_MOUSE_GESTURE_WIDGET : public ORQ_MOUSE_GESTURE_WIDGET {
  Q_OBJECT
public:
  static void show_mouse_gesture(ORQ_ZOOM_SCROLL_AREA* scroll_area, ORQ_VIEW* view, const QPoint& point);

  ORQ_SELECTION_MODE_MOUSE_GESTURE_WIDGET(ORQ_ZOOM_SCROLL_AREA* scroll_area, ORQ_VIEW* view, const QPoint& point);

protected:
  void update_label_for_southeast(QString& text) override;
  void do_action_for_southeast(const QRect& rect, const QPoint& point) override;
  void no_mouse_gesture_action(QMouseEvent* event) override;
};
