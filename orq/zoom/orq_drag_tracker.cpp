#include "orq_drag_tracker.h"

#include "orq_brush.h"
#include "orq_drag_tracker_callback.h"
#include "orq_pen.h"
#include "orq_require_p.h"

#include <QEvent>
#include <QEventLoop>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWidget>

#include <cmath>
#include <cstdlib>

namespace {
bool is_input(QEvent::Type type)
{
  switch (type) {
  case QEvent::MouseButtonPress:
  case QEvent::MouseButtonDblClick:
  case QEvent::Wheel:
  case QEvent::Enter:
  case QEvent::Leave:
  case QEvent::HoverEnter:
  case QEvent::HoverLeave:
  case QEvent::HoverMove:
  case QEvent::ContextMenu:
  case QEvent::Shortcut:
  case QEvent::ShortcutOverride:
  case QEvent::InputMethod:
  case QEvent::TouchBegin:
  case QEvent::TouchUpdate:
  case QEvent::TouchEnd:
  case QEvent::TouchCancel:
  case QEvent::TabletPress:
  case QEvent::TabletMove:
  case QEvent::TabletRelease:
  case QEvent::DragEnter:
  case QEvent::DragMove:
  case QEvent::DragLeave:
  case QEvent::Drop:
  case QEvent::NativeGesture:
  case QEvent::Gesture:
  case QEvent::ToolTip:
  case QEvent::WhatsThis:
  case QEvent::StatusTip:
    return true;
  default:
    return false;
  }
}
} // namespace

ORQ_DRAG_TRACKER::ORQ_DRAG_TRACKER(QWidget* widget, ORQ_DRAG_TRACKER_CALLBACK* callback, const QPoint& start,
                                   double ratio)
    : m_widget(widget)
    , m_callback(callback)
    , m_current_point(start)
    , m_ratio(ratio)
{
}

void ORQ_DRAG_TRACKER::track(QWidget* widget, const QPoint& start, ORQ_DRAG_TRACKER_CALLBACK* callback,
                             double ratio)
{
  ORQ_DRAG_TRACKER tracker(widget, callback, start, ratio);
  widget->installEventFilter(&tracker);
  QEventLoop loop;
  tracker.m_event_loop = &loop;
  loop.exec();
  tracker.m_event_loop = nullptr;
  widget->removeEventFilter(&tracker);
}

QRect ORQ_DRAG_TRACKER::track_rect(QWidget* widget, const QPoint& start, QScrollArea* scroll_area,
                                   double ratio)
{
  ORQ_RECT_DRAG_TRACKER_CALLBACK callback(widget, start, scroll_area);
  track(widget, start, &callback, ratio);
  return callback.get_geometry();
}

QRect ORQ_DRAG_TRACKER::track_rect(QWidget* widget, const QPoint& start, const QPoint& fixed_point_1,
                                   const QPoint& fixed_point_2, QScrollArea* scroll_area, double ratio)
{
  ORQ_RECT_DRAG_TRACKER_CALLBACK callback(widget, start, fixed_point_1, fixed_point_2, scroll_area);
  track(widget, fixed_point_1, &callback, ratio);
  return callback.get_geometry();
}

bool ORQ_DRAG_TRACKER::eventFilter(QObject* watched, QEvent* event)
{
  if (watched != m_widget)
    return false;
  switch (event->type()) {
  case QEvent::MouseMove:
    mouseMoveEvent(static_cast<QMouseEvent*>(event));
    return true;
  case QEvent::MouseButtonRelease:
    mouseReleaseEvent(static_cast<QMouseEvent*>(event));
    return true;
  case QEvent::KeyPress:
  case QEvent::KeyRelease:
    if (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
      if (m_callback)
        m_callback->set_cancelled(true);
      if (m_event_loop)
        m_event_loop->exit();
    }
    return true;
  case QEvent::Paint:
    return false;
  default:
    // Only the user's input belongs to the drag. Timers, queued calls,
    // layout and geometry events still reach the widget, or a queued call or
    // timer of the view would be lost for good by a drag.
    return is_input(event->type());
  }
}

void ORQ_DRAG_TRACKER::mouseReleaseEvent(QMouseEvent*)
{
  if (m_event_loop)
    m_event_loop->exit();
}

void ORQ_DRAG_TRACKER::mouseMoveEvent(QMouseEvent* event)
{
  ORQ_REQUIRE(m_widget != NULL);
  ORQ_REQUIRE(m_callback != NULL);
  const QPoint p = m_widget->mapFromGlobal(event->globalPos());
  const QPoint q = m_callback->adjust_mouse_point(p);
  if (m_ratio == 0.0) {
    m_callback->update_drag_position(m_current_point, q);
    m_current_point = q;
    return;
  }
  const int dx = q.x() - m_current_point.x();
  const int dy = q.y() - m_current_point.y();
  // The offset goes onto the mouse's own coordinate rather than the start
  // point's, and the current point stays the start: tools rely on the shape
  // this gives, so it is kept.
  QPoint moved;
  if (std::abs(dx) >= std::abs(dy)) {
    const int t = int(std::abs(dx) / m_ratio);
    moved = QPoint(q.x(), dy >= 0 ? q.y() + t : q.y() - t);
  } else {
    const int t = int(std::abs(dy) * m_ratio);
    moved = QPoint(dx >= 0 ? q.x() + t : q.x() - t, q.y());
  }
  m_callback->update_drag_position(m_current_point, moved);
}

void ORQ_DRAG_TRACKER::draw_resize_handle(QPainter* painter, const QPoint& center)
{
  if (!painter)
    return;
  const int half = handle_size / 2;
  painter->save();
  painter->setPen(*ORQ_PEN(ORQ_RECT_TRACKER_SOLID_PEN).get_pen());
  painter->setBrush(ORQ_BRUSH(ORQ_WINDOW_BACKGROUND_BRUSH).get_brush());
  painter->drawRect(QRect(center.x() - half, center.y() - half, handle_size - 1, handle_size - 1));
  painter->restore();
}

void ORQ_DRAG_TRACKER::draw_resize_handles(QPainter* painter, const QRect& rect)
{
  for (int handle = TOP_LEFT_HANDLE; handle <= LEFT_HANDLE; ++handle)
    draw_resize_handle(painter, handle_position(rect, RESIZE_HANDLES(handle)));
}

void ORQ_DRAG_TRACKER::draw_resize_handles(QPainter* painter, const QPoint& point_1, const QPoint& point_2)
{
  draw_resize_handle(painter, point_1);
  draw_resize_handle(painter, point_2);
}

bool ORQ_DRAG_TRACKER::hit_handle(const QPoint& point, const QPoint& handle, int distance)
{
  return std::abs(point.x() - handle.x()) <= distance && std::abs(point.y() - handle.y()) <= distance;
}

ORQ_DRAG_TRACKER::RESIZE_HANDLES ORQ_DRAG_TRACKER::hit_handle(const QPoint& point, const QRect& rect,
                                                              int distance)
{
  // Corners first: on a small rectangle a corner and an edge handle overlap,
  // and the corner resizes in both directions.
  static const RESIZE_HANDLES order[] = {TOP_LEFT_HANDLE,    TOP_RIGHT_HANDLE, BOTTOM_RIGHT_HANDLE,
                                         BOTTOM_LEFT_HANDLE, TOP_HANDLE,       RIGHT_HANDLE,
                                         BOTTOM_HANDLE,      LEFT_HANDLE};
  for (RESIZE_HANDLES handle : order)
    if (hit_handle(point, handle_position(rect, handle), distance))
      return handle;
  return NO_HANDLE;
}

QPoint ORQ_DRAG_TRACKER::handle_position(const QRect& rect, RESIZE_HANDLES handle)
{
  const QRect r = rect.normalized();
  const int mid_x = r.left() + r.width() / 2;
  const int mid_y = r.top() + r.height() / 2;
  switch (handle) {
  case TOP_LEFT_HANDLE:
    return r.topLeft();
  case TOP_HANDLE:
    return QPoint(mid_x, r.top());
  case TOP_RIGHT_HANDLE:
    return r.topRight();
  case RIGHT_HANDLE:
    return QPoint(r.right(), mid_y);
  case BOTTOM_RIGHT_HANDLE:
    return r.bottomRight();
  case BOTTOM_HANDLE:
    return QPoint(mid_x, r.bottom());
  case BOTTOM_LEFT_HANDLE:
    return r.bottomLeft();
  case LEFT_HANDLE:
    return QPoint(r.left(), mid_y);
  case NO_HANDLE:
    break;
  }
  return r.center();
}

QCursor ORQ_DRAG_TRACKER::get_cursor(RESIZE_HANDLES handle)
{
  switch (handle) {
  case TOP_LEFT_HANDLE:
  case BOTTOM_RIGHT_HANDLE:
    return QCursor(Qt::SizeFDiagCursor);
  case TOP_RIGHT_HANDLE:
  case BOTTOM_LEFT_HANDLE:
    return QCursor(Qt::SizeBDiagCursor);
  case TOP_HANDLE:
  case BOTTOM_HANDLE:
    return QCursor(Qt::SizeVerCursor);
  case RIGHT_HANDLE:
  case LEFT_HANDLE:
    return QCursor(Qt::SizeHorCursor);
  case NO_HANDLE:
    break;
  }
  return QCursor(Qt::ArrowCursor);
}
