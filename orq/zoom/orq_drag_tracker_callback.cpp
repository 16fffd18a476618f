#include "orq_drag_tracker_callback.h"

#include "orq_pen.h"
#include "orq_require_p.h"

#include <QCursor>
#include <QPainter>
#include <QRubberBand>
#include <QScrollArea>
#include <QTimer>

namespace {
// The rubber band in the theme's tracker pens, so that it follows the
// user's colours and the palette like the rest of the drawing.
class TRACKER_RUBBER_BAND : public QRubberBand {
public:
  explicit TRACKER_RUBBER_BAND(QWidget* parent)
      : QRubberBand(QRubberBand::Rectangle, parent)
  {
  }

protected:
  void paintEvent(QPaintEvent*) override
  {
    QPainter painter(this);
    const QPen solid = *ORQ_PEN(ORQ_RECT_TRACKER_SOLID_PEN).get_pen();
    QColor fill = solid.color();
    fill.setAlpha(40);
    painter.fillRect(rect(), fill);
    painter.setPen(solid);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    painter.setPen(*ORQ_PEN(ORQ_RECT_TRACKER_DOTTED_PEN).get_pen());
    painter.drawRect(rect().adjusted(1, 1, -2, -2));
  }
};
} // namespace

QPoint ORQ_DRAG_TRACKER_CALLBACK::adjust_mouse_point(const QPoint& point)
{
  return point;
}

ORQ_RECT_DRAG_TRACKER_CALLBACK::ORQ_RECT_DRAG_TRACKER_CALLBACK(QWidget* widget, QPoint start,
                                                               QScrollArea* scroll_area)
    : m_anchor(start)
    , m_scroll_area(scroll_area)
    , m_fixed_point_1(start)
    , m_fixed_point_2(start)
{
  // Corner form with right and bottom one short of the start: an empty
  // rectangle at the start point.
  QRect empty;
  empty.setCoords(start.x(), start.y(), start.x() - 1, start.y() - 1);
  show_rubber_band(widget, empty);
}

ORQ_RECT_DRAG_TRACKER_CALLBACK::ORQ_RECT_DRAG_TRACKER_CALLBACK(QWidget* widget, QPoint start,
                                                               QPoint fixed_point_1, QPoint fixed_point_2,
                                                               QScrollArea* scroll_area)
    : m_scroll_area(scroll_area)
    , m_fixed_point_1(fixed_point_1)
    , m_fixed_point_2(fixed_point_2)
{
  if (fixed_point_1.x() != fixed_point_2.x() && fixed_point_1.y() != fixed_point_2.y())
    ORQ_INTERNAL_ERROR("Incorrect fixed points");
  QPoint opposite = fixed_point_1;
  if (fixed_point_1.x() != fixed_point_2.x()) {
    m_keep_x = true;
    opposite = QPoint(fixed_point_2.x(), start.y());
  } else if (fixed_point_1.y() != fixed_point_2.y()) {
    m_keep_y = true;
    opposite = QPoint(start.x(), fixed_point_2.y());
  }
  m_anchor = fixed_point_1;
  m_current_geometry = QRect(fixed_point_1, opposite).normalized();
  show_rubber_band(widget, m_current_geometry);
}

ORQ_RECT_DRAG_TRACKER_CALLBACK::~ORQ_RECT_DRAG_TRACKER_CALLBACK()
{
  delete m_rubber_band;
}

void ORQ_RECT_DRAG_TRACKER_CALLBACK::show_rubber_band(QWidget* widget, const QRect& geometry)
{
  m_rubber_band = new TRACKER_RUBBER_BAND(widget);
  m_rubber_band->setGeometry(geometry);
  m_rubber_band->setMouseTracking(true);
  m_rubber_band->show();
  if (m_scroll_area) {
    m_scroll_timer = new QTimer(this);
    connect(m_scroll_timer, &QTimer::timeout, this, &ORQ_RECT_DRAG_TRACKER_CALLBACK::drag_scroll_timer);
    m_scroll_timer->start(300);
  }
}

void ORQ_RECT_DRAG_TRACKER_CALLBACK::update_drag_position(const QPoint&, const QPoint& current)
{
  QPoint opposite = current;
  if (m_keep_x)
    opposite = QPoint(m_fixed_point_2.x(), current.y());
  else if (m_keep_y)
    opposite = QPoint(current.x(), m_fixed_point_2.y());
  QRect geometry = QRect(m_anchor, opposite).normalized();
  if (QWidget* parent = m_rubber_band->parentWidget())
    geometry &= parent->rect();
  m_current_geometry = geometry;
  m_rubber_band->setGeometry(geometry);
}

QRect ORQ_RECT_DRAG_TRACKER_CALLBACK::get_geometry() const
{
  return cancelled() ? QRect() : m_rubber_band->geometry();
}

void ORQ_RECT_DRAG_TRACKER_CALLBACK::drag_scroll_timer()
{
  if (!m_scroll_area || !m_rubber_band)
    return;
  const QPoint point = m_rubber_band->mapToParent(m_rubber_band->mapFromGlobal(QCursor::pos()));
  m_scroll_area->ensureVisible(point.x(), point.y(), 50, 50);
}
