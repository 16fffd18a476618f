#pragma once
// One modal drag on a widget: the static functions run a local event loop
// until the mouse button is released or Escape is pressed, hand every move
// to a callback and return when the drag is over. Also the drawing and
// hit-testing of resize handles for the rectangles such drags edit.
#include "orq_export.h"

#include <QCursor>
#include <QObject>
#include <QPoint>
#include <QRect>

class ORQ_DRAG_TRACKER_CALLBACK;
class QEventLoop;
class QMouseEvent;
class QPainter;
class QScrollArea;
class QWidget;

class ORQ_EXPORT ORQ_DRAG_TRACKER : public QObject {
  Q_OBJECT
public:
  // The eight handles of a rectangle, clockwise from the top-left corner.
  enum RESIZE_HANDLES {
    NO_HANDLE = 0,
    TOP_LEFT_HANDLE,
    TOP_HANDLE,
    TOP_RIGHT_HANDLE,
    RIGHT_HANDLE,
    BOTTOM_RIGHT_HANDLE,
    BOTTOM_HANDLE,
    BOTTOM_LEFT_HANDLE,
    LEFT_HANDLE
  };
  Q_ENUM(RESIZE_HANDLES)

  // ratio 0 is a free drag; otherwise the ratio of horizontal to vertical
  // extent the drag keeps.
  static void track(QWidget* widget, const QPoint& start, ORQ_DRAG_TRACKER_CALLBACK* callback, double ratio);
  // The rubber band's final rectangle in the widget's coordinates, QRect()
  // when the user pressed Escape.
  static QRect track_rect(QWidget* widget, const QPoint& start, QScrollArea* scroll_area, double ratio);
  static QRect track_rect(QWidget* widget, const QPoint& start, const QPoint& fixed_point_1,
                          const QPoint& fixed_point_2, QScrollArea* scroll_area, double ratio);

  // Handles are squares of handle_size pixels centred on their point.
  static constexpr int handle_size = 7;
  static void draw_resize_handle(QPainter* painter, const QPoint& center);
  static void draw_resize_handles(QPainter* painter, const QRect& rect);
  static void draw_resize_handles(QPainter* painter, const QPoint& point_1, const QPoint& point_2);
  // Whether point lies within distance pixels (in x and in y) of handle.
  static bool hit_handle(const QPoint& point, const QPoint& handle, int distance);
  // The handle of rect that point hits, corners first; NO_HANDLE for none.
  static RESIZE_HANDLES hit_handle(const QPoint& point, const QRect& rect, int distance);
  static QPoint handle_position(const QRect& rect, RESIZE_HANDLES handle);
  static QCursor get_cursor(RESIZE_HANDLES handle);

  bool eventFilter(QObject* watched, QEvent* event) override;

protected:
  virtual void mouseReleaseEvent(QMouseEvent* event);
  virtual void mouseMoveEvent(QMouseEvent* event);

private:
  ORQ_DRAG_TRACKER(QWidget* widget, ORQ_DRAG_TRACKER_CALLBACK* callback, const QPoint& start, double ratio);

  QWidget* m_widget;
  ORQ_DRAG_TRACKER_CALLBACK* m_callback;
  QEventLoop* m_event_loop = nullptr;
  QPoint m_current_point;
  double m_ratio;
};
