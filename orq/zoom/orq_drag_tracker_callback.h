#pragma once
// What a drag run by ORQ_DRAG_TRACKER does with the mouse: the tracker hands
// every move to a callback. ORQ_RECT_DRAG_TRACKER_CALLBACK shows a rubber
// band, optionally with a fixed corner or edge, and yields its rectangle.
#include "orq_export.h"

#include <QObject>
#include <QPoint>
#include <QRect>

class QRubberBand;
class QScrollArea;
class QTimer;
class QWidget;

class ORQ_EXPORT ORQ_DRAG_TRACKER_CALLBACK : public QObject {
  Q_OBJECT
public:
  ORQ_DRAG_TRACKER_CALLBACK() = default;

  bool cancelled() const { return m_cancelled; }
  void set_cancelled(bool cancelled) { m_cancelled = cancelled; }

  // Called for every mouse move with the point before and after it.
  virtual void update_drag_position(const QPoint& previous, const QPoint& current) = 0;
  // Lets a callback snap or restrict the mouse point before it is used.
  virtual QPoint adjust_mouse_point(const QPoint& point);

private:
  bool m_cancelled = false;
};

class ORQ_EXPORT ORQ_RECT_DRAG_TRACKER_CALLBACK : public ORQ_DRAG_TRACKER_CALLBACK {
  Q_OBJECT
public:
  // A free rubber band from start. With a scroll area, the area scrolls
  // towards the mouse while it is held outside the visible part.
  ORQ_RECT_DRAG_TRACKER_CALLBACK(QWidget* widget, QPoint start, QScrollArea* scroll_area);
  // A rubber band with a fixed corner (both points equal) or a fixed edge
  // from fixed_point_1 to fixed_point_2, which must share x or y.
  ORQ_RECT_DRAG_TRACKER_CALLBACK(QWidget* widget, QPoint start, QPoint fixed_point_1, QPoint fixed_point_2,
                                 QScrollArea* scroll_area);
  ~ORQ_RECT_DRAG_TRACKER_CALLBACK() override;

  void update_drag_position(const QPoint& previous, const QPoint& current) override;
  // The rubber band's rectangle in the widget's coordinates; QRect() when
  // the drag was cancelled.
  virtual QRect get_geometry() const;

  QRubberBand* rubber_band() const { return m_rubber_band; }

private slots:
  void drag_scroll_timer();

private:
  void show_rubber_band(QWidget* widget, const QRect& geometry);

  QRubberBand* m_rubber_band = nullptr;
  QTimer* m_scroll_timer = nullptr;
  QPoint m_anchor;
  QRect m_current_geometry;
  QScrollArea* m_scroll_area = nullptr;
  QPoint m_fixed_point_1;
  QPoint m_fixed_point_2;
  bool m_keep_x = false;
  bool m_keep_y = false;
};
