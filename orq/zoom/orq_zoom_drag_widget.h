#pragma once
// Continuous zoom by a vertical right-button drag in the zoom mode of an
// ORQ_ZOOM_SCROLL_AREA: up enlarges, down shrinks, five pixels a per cent.
// A line from the press to the mouse and the percentage are drawn over the
// view while the button is held; the release zooms once, about the mouse. A
// press released without a right-button move is handed back to the scroll
// area as a click.
#include "orq_images.h"
#include "orq_export.h"

#include <QPoint>
#include <QWidget>

class ORQ_VIEW;
class ORQ_ZOOM_SCROLL_AREA;
class QEventLoop;
class QLabel;

class ORQ_EXPORT ORQ_ZOOM_DRAG_WIDGET : public QWidget {
  Q_OBJECT
public:
  // Runs one drag from point (the press, in the view's pixels) and returns
  // after the release.
  static void start_zoom_drag(ORQ_ZOOM_SCROLL_AREA* scroll_area, ORQ_VIEW* source_view, const QPoint& point);
  // Whether the last drag moved with the right button, and so zoomed.
  static bool is_zoom_drag_activate();

  ORQ_ZOOM_DRAG_WIDGET(ORQ_ZOOM_SCROLL_AREA* scroll_area, ORQ_VIEW* source_view, QPoint point);
  ~ORQ_ZOOM_DRAG_WIDGET() override;

  // The zoom the drag would apply, in per cent.
  double get_percent() const;
  QLabel* get_label() const;

  bool eventFilter(QObject* watched, QEvent* event) override;

protected:
  QPoint convert_to_widget_coordinate(const QPoint& global);
  void draw_line(QPainter& painter);
  QRect get_rect() const;
  void on_r_button_down(QPoint point);
  void set_cursor(ORQ_CURSOR_ENUM cursor);
  void stop_event_filter();
  void update_view();
  void update_widget_geometry();
  void zoom_in(float factor);
  void zoom_out(float factor);

  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

private:
  void update_percent();

  double m_percent = 100.0;
  double m_opacity = 1.0;
  QPoint m_start_point;
  QPoint m_current_point;
  QEventLoop* m_event_loop = nullptr;
  QLabel* m_label;
  ORQ_ZOOM_SCROLL_AREA* m_scroll_area;
  ORQ_VIEW* m_view;
};
