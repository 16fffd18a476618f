#pragma once
// A left-button drag on a zoomable view read as a gesture: the direction of
// the drag from the press point picks a zoom command (up-left zooms in,
// up-right zooms out, down-left fits, down-right zooms into the dragged
// rectangle), a label beside the mouse says which, and the release runs it.
// A transparent overlay on the view, alive for one gesture.
#include "orq_export.h"

#include <QPoint>
#include <QWidget>

class ORQ_VIEW;
class ORQ_ZOOM_SCROLL_AREA;
class QEventLoop;
class QLabel;
class QMouseEvent;

class ORQ_EXPORT ORQ_MOUSE_GESTURE_WIDGET : public QWidget {
  Q_OBJECT
public:
  // Runs one gesture from point (the press, in the view's pixels); returns
  // when it is over.
  static void show_mouse_gesture(ORQ_ZOOM_SCROLL_AREA* scroll_area, ORQ_VIEW* view, const QPoint& point);

  ORQ_MOUSE_GESTURE_WIDGET(ORQ_ZOOM_SCROLL_AREA* scroll_area, ORQ_VIEW* view, const QPoint& point);
  ~ORQ_MOUSE_GESTURE_WIDGET() override;

  bool eventFilter(QObject* watched, QEvent* event) override;

  // 0 north-east, 1 south-east, 2 south-west, 3 north-west; -1 before the
  // first move.
  int get_quadrant() const;
  float get_zoom_percentage() const;
  QLabel* get_label() const;

protected:
  // What the south-east gesture is called, and what it does.
  virtual void update_label_for_southeast(QString& text);
  virtual void do_action_for_southeast(const QRect& rect, const QPoint& point);
  // A release so close to the press that it was a click.
  virtual void no_mouse_gesture_action(QMouseEvent* event);

  void initialize_points(const QPoint& point);
  void reset_points();
  void update_quadrant();
  void update_label(const QPoint& pos);
  void update_rect();
  void draw_gesture_indicator(QPainter& painter);
  void stop_event_filter();

  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

  // The loop both variants run.
  static void run(ORQ_MOUSE_GESTURE_WIDGET& overlay);

  ORQ_ZOOM_SCROLL_AREA* m_scroll_area;
  ORQ_VIEW* m_view;
  QEventLoop* m_event_loop = nullptr;
  QPoint m_start_point;
  QPoint m_current_point;
  QLabel* m_label;
  float m_zoom_percentage = 100.0f;
  int m_quadrant = -1;
};
