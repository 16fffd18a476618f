// Both gesture overlays: they share one loop and one source for their
// reports.
#include "orq_mouse_gesture_widget.h"

#include "orq_require_p.h"
#include "orq_selection_mode_mouse_gesture_widget.h"
#include "orq_view.h"
#include "orq_zoom_scroll_area.h"

#include <QEventLoop>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QtMath>

#include <algorithm>
#include <cmath>

void ORQ_MOUSE_GESTURE_WIDGET::show_mouse_gesture(ORQ_ZOOM_SCROLL_AREA* scroll_area, ORQ_VIEW* view,
                                                  const QPoint& point)
{
  ORQ_REQUIRE(view != nullptr);
  ORQ_REQUIRE(scroll_area != nullptr);
  ORQ_MOUSE_GESTURE_WIDGET overlay(scroll_area, view, point);
  run(overlay);
}

void ORQ_SELECTION_MODE_MOUSE_GESTURE_WIDGET::show_mouse_gesture(ORQ_ZOOM_SCROLL_AREA* scroll_area, ORQ_VIEW* view,
                                                                 const QPoint& point)
{
  ORQ_REQUIRE(view != nullptr);
  ORQ_REQUIRE(scroll_area != nullptr);
  ORQ_SELECTION_MODE_MOUSE_GESTURE_WIDGET overlay(scroll_area, view, point);
  run(overlay);
}

void ORQ_MOUSE_GESTURE_WIDGET::run(ORQ_MOUSE_GESTURE_WIDGET& overlay)
{
  overlay.m_view->installEventFilter(&overlay);
  overlay.setGeometry(overlay.m_view->rect());
  QEventLoop loop;
  overlay.m_event_loop = &loop;
  loop.exec();
  overlay.m_event_loop = nullptr;
  overlay.m_view->removeEventFilter(&overlay);
}

ORQ_MOUSE_GESTURE_WIDGET::ORQ_MOUSE_GESTURE_WIDGET(ORQ_ZOOM_SCROLL_AREA* scroll_area, ORQ_VIEW* view,
                                                   const QPoint& point)
    : QWidget(view)
    , m_scroll_area(scroll_area)
    , m_view(view)
    , m_label(nullptr)
{
  ORQ_REQUIRE(m_view != nullptr);
  ORQ_REQUIRE(m_scroll_area != nullptr);
  setObjectName(QStringLiteral("orq_mouse_gesture_widget"));
  // Drawn over the view, never in the way of the view's own mouse events.
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setAttribute(Qt::WA_NoSystemBackground);
  hide();
  initialize_points(point);
  m_label = new QLabel(QStringLiteral("Gesture Label"), this);
  m_label->setObjectName(QStringLiteral("gesture_label"));
  m_label->setForegroundRole(QPalette::Highlight);
  m_label->setAlignment(Qt::AlignLeft);
  m_label->setAutoFillBackground(true);
  m_label->setStyleSheet(QStringLiteral("background-color: rgba(255, 255, 255, 200);"));
  m_label->hide();
  setMouseTracking(true);
}

ORQ_MOUSE_GESTURE_WIDGET::~ORQ_MOUSE_GESTURE_WIDGET() = default;

int ORQ_MOUSE_GESTURE_WIDGET::get_quadrant() const
{
  return m_quadrant;
}

float ORQ_MOUSE_GESTURE_WIDGET::get_zoom_percentage() const
{
  return m_zoom_percentage;
}

QLabel* ORQ_MOUSE_GESTURE_WIDGET::get_label() const
{
  return m_label;
}

void ORQ_MOUSE_GESTURE_WIDGET::initialize_points(const QPoint& point)
{
  m_start_point = m_current_point = mapToParent(point);
}

void ORQ_MOUSE_GESTURE_WIDGET::reset_points()
{
  m_start_point = m_current_point = QPoint(0, 0);
}

bool ORQ_MOUSE_GESTURE_WIDGET::eventFilter(QObject* watched, QEvent* event)
{
  if (watched != m_view)
    return false;
  switch (event->type()) {
  case QEvent::MouseButtonRelease:
    mouseReleaseEvent(static_cast<QMouseEvent*>(event));
    return true;
  case QEvent::MouseMove:
    mouseMoveEvent(static_cast<QMouseEvent*>(event));
    return true;
  default:
    return false;
  }
}

void ORQ_MOUSE_GESTURE_WIDGET::stop_event_filter()
{
  m_label->hide();
  update_rect();
  reset_points();
  if (m_event_loop)
    m_event_loop->exit();
  setMouseTracking(false);
}

void ORQ_MOUSE_GESTURE_WIDGET::mouseMoveEvent(QMouseEvent* event)
{
  if (event->buttons() != Qt::LeftButton || event->modifiers() != Qt::NoModifier) {
    // Another button or a modifier: the gesture is dropped, nothing runs.
    stop_event_filter();
    return;
  }
  show();
  update_rect();
  m_current_point = mapToParent(event->pos());
  update_quadrant();
  update_label(event->pos());
  update_rect();
}

void ORQ_MOUSE_GESTURE_WIDGET::update_quadrant()
{
  const int dx = m_current_point.x() - m_start_point.x();
  const int dy = m_current_point.y() - m_start_point.y();
  const float t = float(dy) * 0.2f;
  if (dx < 0 && dy < 0) {
    m_quadrant = 3;
    m_zoom_percentage = 100.0f - t;
  } else if (dx < 0) {
    m_quadrant = 2;
  } else if (dy < 0) {
    m_quadrant = 0;
    m_zoom_percentage = std::max(0.5f, 100.0f + t);
  } else {
    m_quadrant = 1;
  }
}

void ORQ_MOUSE_GESTURE_WIDGET::update_label(const QPoint& pos)
{
  QString text;
  switch (m_quadrant) {
  case 3:
    text = QStringLiteral("zoom in ") + QString::number(m_zoom_percentage, 'g', 6) + QStringLiteral("%");
    break;
  case 0:
    text = QStringLiteral("zoom out ") + QString::number(m_zoom_percentage, 'g', 6) + QStringLiteral("%");
    break;
  case 2:
    text = QStringLiteral("zoom fit");
    break;
  case 1:
    update_label_for_southeast(text);
    break;
  default:
    return;
  }
  m_label->setText(text);
  const QFontMetrics metrics(m_label->font());
  const int character = metrics.averageCharWidth();
  m_label->setFixedWidth(metrics.boundingRect(text).width() + character);
  // South-east, the label goes to the left of the mouse, off the rectangle
  // being drawn.
  const int x = m_quadrant == 1 ? pos.x() - m_label->geometry().width() - character : pos.x() + character;
  m_label->move(x, pos.y() - 32);
  m_label->show();
}

void ORQ_MOUSE_GESTURE_WIDGET::update_rect()
{
  update(QRect(m_start_point, m_current_point).normalized().adjusted(-100, -100, 100, 100));
}

void ORQ_MOUSE_GESTURE_WIDGET::mouseReleaseEvent(QMouseEvent* event)
{
  const QRect parent_rect = QRect(m_start_point, m_current_point).normalized();
  const QRect rect(mapFromParent(parent_rect.topLeft()), parent_rect.size());
  stop_event_filter();
  if (rect.right() - rect.left() < 10 && rect.bottom() - rect.top() < 10) {
    no_mouse_gesture_action(event);
    return;
  }
  switch (m_quadrant) {
  case 1:
    do_action_for_southeast(rect, event->pos());
    break;
  case 2:
    m_scroll_area->zoom_fit();
    break;
  case 3:
    m_scroll_area->zoom_in(nullptr, m_zoom_percentage / 100.0f);
    break;
  case 0:
    m_scroll_area->zoom_out(nullptr, 100.0f / m_zoom_percentage);
    break;
  default:
    break;
  }
}

void ORQ_MOUSE_GESTURE_WIDGET::update_label_for_southeast(QString& text)
{
  text = QStringLiteral("zoom in");
}

void ORQ_MOUSE_GESTURE_WIDGET::do_action_for_southeast(const QRect& rect, const QPoint&)
{
  m_scroll_area->zoom_rect(rect.normalized().intersected(m_view->rect()));
}

void ORQ_MOUSE_GESTURE_WIDGET::no_mouse_gesture_action(QMouseEvent* event)
{
  m_scroll_area->zoom_mode_no_mouse_gesture(event, false);
}

void ORQ_MOUSE_GESTURE_WIDGET::paintEvent(QPaintEvent*)
{
  QPainter painter(this);
  draw_gesture_indicator(painter);
}

void ORQ_MOUSE_GESTURE_WIDGET::draw_gesture_indicator(QPainter& painter)
{
  if (m_quadrant < 0 || m_start_point == m_current_point)
    return;
  const QPointF start = mapFromParent(m_start_point);
  const QPointF end = mapFromParent(m_current_point);
  QColor colour = palette().color(QPalette::Highlight);
  painter.setRenderHint(QPainter::Antialiasing);
  if (m_quadrant == 1) {
    // The rectangle that will be zoomed into or selected.
    QColor fill = colour;
    fill.setAlpha(40);
    painter.setPen(QPen(colour, 1, Qt::DashLine));
    painter.setBrush(fill);
    painter.drawRect(QRectF(start, end).normalized());
  }
  // The drag as an arrow from the press point.
  painter.setPen(QPen(colour, 2, Qt::SolidLine, Qt::RoundCap));
  painter.setBrush(Qt::NoBrush);
  painter.drawEllipse(start, 4.0, 4.0);
  painter.drawLine(start, end);
  const double angle = std::atan2(end.y() - start.y(), end.x() - start.x());
  const double head = 10.0;
  painter.setBrush(colour);
  const QPointF left = end - QPointF(std::cos(angle - M_PI / 7) * head, std::sin(angle - M_PI / 7) * head);
  const QPointF right = end - QPointF(std::cos(angle + M_PI / 7) * head, std::sin(angle + M_PI / 7) * head);
  painter.drawPolygon(QPolygonF({end, left, right}));
}

ORQ_SELECTION_MODE_MOUSE_GESTURE_WIDGET::ORQ_SELECTION_MODE_MOUSE_GESTURE_WIDGET(ORQ_ZOOM_SCROLL_AREA* scroll_area,
                                                                                 ORQ_VIEW* view, const QPoint& point)
    : ORQ_MOUSE_GESTURE_WIDGET(scroll_area, view, point)
{
}

void ORQ_SELECTION_MODE_MOUSE_GESTURE_WIDGET::update_label_for_southeast(QString& text)
{
  text = m_view->is_rect_selection_enabled() ? QStringLiteral("select") : QStringLiteral("zoom in");
}

void ORQ_SELECTION_MODE_MOUSE_GESTURE_WIDGET::do_action_for_southeast(const QRect& rect, const QPoint& point)
{
  const QRect area = rect.normalized().intersected(m_view->rect());
  if (m_view->is_rect_selection_enabled())
    m_view->do_rect_selection(area, point);
  else
    m_scroll_area->zoom_rect(area);
}

void ORQ_SELECTION_MODE_MOUSE_GESTURE_WIDGET::no_mouse_gesture_action(QMouseEvent* event)
{
  m_view->selection_mode_no_mouse_gesture(event);
}
