#include "orq_magnifying_glass_widget.h"

#include "orq_images.h"
#include "orq_require_p.h"
#include "orq_view.h"
#include "orq_zoom_scroll_area.h"

#include <QEventLoop>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>

namespace {
double s_size_level = 2.0;
double s_magnification = 3.0;
} // namespace

void ORQ_MAGNIFYING_GLASS_WIDGET::magnifying(ORQ_ZOOM_SCROLL_AREA* scroll_area, ORQ_VIEW* view, QPoint global)
{
  ORQ_REQUIRE(scroll_area != NULL);
  ORQ_REQUIRE(view != NULL);
  ORQ_MAGNIFYING_GLASS_WIDGET lens(scroll_area, view, global);
  lens.show();
  view->installEventFilter(&lens);
  view->setCursor(Qt::CrossCursor);
  QEventLoop loop;
  lens.m_event_loop = &loop;
  loop.exec();
  lens.m_event_loop = nullptr;
  view->removeEventFilter(&lens);
  lens.hide();
  view->setCursor(orq_get_cursor(ORQ_MAGNIFYING_CURSOR));
}

ORQ_MAGNIFYING_GLASS_WIDGET::ORQ_MAGNIFYING_GLASS_WIDGET(ORQ_ZOOM_SCROLL_AREA* scroll_area, ORQ_VIEW* view,
                                                         QPoint global)
    : QWidget(scroll_area)
    , m_scroll_area(scroll_area)
    , m_view(view)
    , m_radius(s_size_level * 50.0)
{
  setObjectName(QStringLiteral("orq_magnifying_glass"));
  m_centre = convert_to_widget_coordinate(global);
  setGeometry(get_bounding_box(m_centre, m_radius, 0));
  setMouseTracking(true);
  setFocusPolicy(Qt::WheelFocus);
}

ORQ_MAGNIFYING_GLASS_WIDGET::~ORQ_MAGNIFYING_GLASS_WIDGET() = default;

double ORQ_MAGNIFYING_GLASS_WIDGET::get_size_level()
{
  return s_size_level;
}

double ORQ_MAGNIFYING_GLASS_WIDGET::get_magnification()
{
  return s_magnification;
}

void ORQ_MAGNIFYING_GLASS_WIDGET::set_size_level(double level)
{
  s_size_level = std::clamp(level, 1.0, 5.0);
}

void ORQ_MAGNIFYING_GLASS_WIDGET::set_magnification(double magnification)
{
  s_magnification = std::max(1.0, magnification);
}

double ORQ_MAGNIFYING_GLASS_WIDGET::get_radius() const
{
  return m_radius;
}

QPoint ORQ_MAGNIFYING_GLASS_WIDGET::get_centre() const
{
  return m_centre;
}

QPoint ORQ_MAGNIFYING_GLASS_WIDGET::convert_to_widget_coordinate(const QPoint& global)
{
  return mapToParent(mapFromGlobal(global));
}

QRect ORQ_MAGNIFYING_GLASS_WIDGET::get_bounding_box(const QPointF& centre, double radius, double extra)
{
  // Three radii: the handle hangs off the lens towards the bottom right.
  const int size = qRound((radius + extra) * 3);
  return {qRound(centre.x() - radius - extra), qRound(centre.y() - radius - extra), size, size};
}

void ORQ_MAGNIFYING_GLASS_WIDGET::update_widget_geometry(const QPoint& centre)
{
  m_centre = centre;
  setGeometry(get_bounding_box(m_centre, m_radius, 0));
}

bool ORQ_MAGNIFYING_GLASS_WIDGET::eventFilter(QObject* watched, QEvent* event)
{
  if (watched != m_view)
    return false;
  switch (event->type()) {
  case QEvent::MouseButtonPress:
    mousePressEvent(static_cast<QMouseEvent*>(event));
    return true;
  case QEvent::MouseButtonRelease:
    mouseReleaseEvent(static_cast<QMouseEvent*>(event));
    return true;
  case QEvent::MouseMove:
    mouseMoveEvent(static_cast<QMouseEvent*>(event));
    return true;
  case QEvent::Wheel:
    wheelEvent(static_cast<QWheelEvent*>(event));
    return true;
  default:
    return false;
  }
}

void ORQ_MAGNIFYING_GLASS_WIDGET::mousePressEvent(QMouseEvent* event)
{
  mouseMoveEvent(event);
}

void ORQ_MAGNIFYING_GLASS_WIDGET::mouseMoveEvent(QMouseEvent* event)
{
  // Only the left button moves the lens: one opened with the right button
  // stays where it was put, to be read at leisure.
  if (event->buttons() != Qt::LeftButton)
    return;
  update_widget_geometry(convert_to_widget_coordinate(event->globalPos()));
}

void ORQ_MAGNIFYING_GLASS_WIDGET::mouseReleaseEvent(QMouseEvent*)
{
  if (m_event_loop)
    m_event_loop->exit(0);
}

void ORQ_MAGNIFYING_GLASS_WIDGET::wheelEvent(QWheelEvent* event)
{
  event->accept();
  const bool down = event->angleDelta().y() < 1;
  if (event->modifiers() & Qt::ControlModifier) {
    s_size_level = down ? std::max(1.0, s_size_level - 1.0) : std::min(5.0, s_size_level + 1.0);
    m_radius = s_size_level * 50.0;
    update_widget_geometry(m_centre);
  } else {
    s_magnification = down ? std::max(1.0, s_magnification - 1.0) : s_magnification + 1.0;
  }
  update();
}

void ORQ_MAGNIFYING_GLASS_WIDGET::paintEvent(QPaintEvent* event)
{
  const double r = m_radius;
  const double z = m_view->get_absolute_zoom_multiplier();
  const double m = z * s_magnification;
  QPainterPath lens;
  lens.addEllipse(QRectF(0, 0, 2 * r, 2 * r));
  const QPoint origin = m_view->get_logical(QPoint(0, 0));
  const int h = m_scroll_area->horizontalScrollBar()->value();
  const int v = m_scroll_area->verticalScrollBar()->value();

  {
    QPainter handle(this);
    handle.setBrush(QBrush(Qt::gray, Qt::Dense1Pattern));
    handle.rotate(-45);
    handle.translate(-r, r);
    const int w = int(r / 5);
    handle.drawRoundedRect(QRectF(int(r - w / 2), int(r), w, int(2 * r)), 15, 15);
  }

  const double centre_x = (m_centre.x() + h) / z + origin.x();
  const double centre_y = (m_centre.y() + v) / z + origin.y();
  {
    QPainter content(this);
    content.setClipPath(lens, Qt::ReplaceClip);
    content.scale(m, m);
    content.translate(-(centre_x - r / m), -(centre_y - r / m));
    m_view->set_paint_magnify_glass(true, QRect(0, 0, width(), height()));
    m_view->paint(&content, event, m_view, QRect(0, 0, width(), height()), false);
    m_view->set_paint_magnify_glass(false, QRect());
  }

  QPainter rim(this);
  rim.setRenderHint(QPainter::Antialiasing);
  QRadialGradient gradient(QPointF(r, r), r, QPointF(r, r));
  // Clear glass up to the rim, which then shades in.
  gradient.setColorAt(0.0, QColor(150, 150, 200, 0));
  gradient.setColorAt(0.85, QColor(150, 150, 200, 0));
  gradient.setColorAt(0.9, QColor(150, 150, 200, 63));
  gradient.setColorAt(0.95, QColor(0, 0, 0, 127));
  gradient.setColorAt(1.0, QColor(0, 0, 0, 0));
  rim.setPen(Qt::NoPen);
  rim.setBrush(gradient);
  rim.drawEllipse(QRectF(0, 0, 2 * r, 2 * r));
}
