#pragma once
// The magnifying glass of a zoomable view: in magnifying mode a press shows
// a round lens with a handle at the pointer, in which the view paints
// itself again, enlarged. The lens follows the mouse while the left button
// is held; the wheel changes its magnification, with Ctrl its size; the
// release removes it. Size and magnification are kept for the process.
#include "orq_export.h"

#include <QPoint>
#include <QWidget>

class ORQ_VIEW;
class ORQ_ZOOM_SCROLL_AREA;
class QEventLoop;

class ORQ_EXPORT ORQ_MAGNIFYING_GLASS_WIDGET : public QWidget {
  Q_OBJECT
public:
  // Opens the lens at global (a press position) and returns when it has
  // been dismissed.
  static void magnifying(ORQ_ZOOM_SCROLL_AREA* scroll_area, ORQ_VIEW* view, QPoint global);

  ORQ_MAGNIFYING_GLASS_WIDGET(ORQ_ZOOM_SCROLL_AREA* scroll_area, ORQ_VIEW* view, QPoint global);
  ~ORQ_MAGNIFYING_GLASS_WIDGET() override;

  // The values every lens shares: 1 to 5 (radius 50 a level), and at least 1.
  static double get_size_level();
  static double get_magnification();
  static void set_size_level(double level);
  static void set_magnification(double magnification);

  double get_radius() const;
  QPoint get_centre() const;

  bool eventFilter(QObject* watched, QEvent* event) override;

protected:
  // A global position in the lens's parent's coordinates.
  QPoint convert_to_widget_coordinate(const QPoint& global);
  // Three radii (plus extra) across: the lens takes the top-left two
  // thirds, centred on centre, the handle the rest.
  QRect get_bounding_box(const QPointF& centre, double radius, double extra);
  void update_widget_geometry(const QPoint& centre);

  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

private:
  ORQ_ZOOM_SCROLL_AREA* m_scroll_area;
  ORQ_VIEW* m_view;
  QPoint m_centre;
  double m_radius;
  QEventLoop* m_event_loop = nullptr;
};
