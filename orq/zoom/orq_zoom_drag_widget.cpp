#include "orq_zoom_drag_widget.h"

#include "orq_font.h"
#include "orq_require_p.h"
#include "orq_view.h"
#include "orq_zoom_scroll_area.h"

#include <QApplication>
#include <QEventLoop>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace {
// Read by the scroll area once the drag has returned: whether the press was
// a drag (taken) or a click (handed back).
bool s_zoom_drag_active = false;
} // namespace

void ORQ_ZOOM_DRAG_WIDGET::start_zoom_drag(ORQ_ZOOM_SCROLL_AREA* scroll_area, ORQ_VIEW* source_view,
                                           const QPoint& point)
{
  ORQ_REQUIRE(source_view != NULL);
  ORQ_REQUIRE(scroll_area != NULL);
  ORQ_ZOOM_DRAG_WIDGET overlay(scroll_area, source_view, point);
  s_zoom_drag_active = false;
  overlay.update_widget_geometry();
  overlay.on_r_button_down(point);
  source_view->installEventFilter(&overlay);
  QEventLoop loop;
  overlay.m_event_loop = &loop;
  loop.exec();
  overlay.m_event_loop = nullptr;
  source_view->removeEventFilter(&overlay);
}

bool ORQ_ZOOM_DRAG_WIDGET::is_zoom_drag_activate()
{
  return s_zoom_drag_active;
}

ORQ_ZOOM_DRAG_WIDGET::ORQ_ZOOM_DRAG_WIDGET(ORQ_ZOOM_SCROLL_AREA* scroll_area, ORQ_VIEW* source_view, QPoint point)
    : QWidget(source_view)
    , m_start_point(point)
    , m_current_point(point)
    , m_label(nullptr)
    , m_scroll_area(scroll_area)
    , m_view(source_view)
{
  ORQ_REQUIRE(source_view != NULL);
  ORQ_REQUIRE(scroll_area != NULL);
  setObjectName(QStringLiteral("orq_zoom_drag_widget"));
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setMouseTracking(true);
  setFocusPolicy(Qt::WheelFocus);
  hide();
  m_label = new QLabel(QStringLiteral("100%"), this);
  m_label->setObjectName(QStringLiteral("zoom_drag_label"));
  m_label->setForegroundRole(QPalette::Highlight);
  m_label->setBackgroundRole(QPalette::Base);
  m_label->ensurePolished();
  m_label->setAlignment(Qt::AlignLeft);
  m_label->setAutoFillBackground(true);
  m_label->setStyleSheet(QStringLiteral("background-color: rgba(255, 255, 255, 200);"));
  m_label->setFont(ORQ_FONT(ORQ_ZOOM_DRAG_FONT).get_font());
  m_label->hide();
  s_zoom_drag_active = false;
}

ORQ_ZOOM_DRAG_WIDGET::~ORQ_ZOOM_DRAG_WIDGET() = default;

double ORQ_ZOOM_DRAG_WIDGET::get_percent() const
{
  return m_percent;
}

QLabel* ORQ_ZOOM_DRAG_WIDGET::get_label() const
{
  return m_label;
}

QPoint ORQ_ZOOM_DRAG_WIDGET::convert_to_widget_coordinate(const QPoint& global)
{
  return mapToParent(mapFromGlobal(global));
}

QRect ORQ_ZOOM_DRAG_WIDGET::get_rect() const
{
  return m_view->rect();
}

void ORQ_ZOOM_DRAG_WIDGET::on_r_button_down(QPoint point)
{
  m_start_point = m_current_point = mapToParent(point);
}

void ORQ_ZOOM_DRAG_WIDGET::set_cursor(ORQ_CURSOR_ENUM cursor)
{
  m_view->setCursor(orq_get_cursor(cursor));
}

void ORQ_ZOOM_DRAG_WIDGET::update_view()
{
  m_view->update();
}

void ORQ_ZOOM_DRAG_WIDGET::update_widget_geometry()
{
  setGeometry(get_rect());
}

void ORQ_ZOOM_DRAG_WIDGET::zoom_in(float factor)
{
  m_scroll_area->zoom_in(nullptr, factor);
}

void ORQ_ZOOM_DRAG_WIDGET::zoom_out(float factor)
{
  m_scroll_area->zoom_out(nullptr, factor);
}

bool ORQ_ZOOM_DRAG_WIDGET::eventFilter(QObject* watched, QEvent* event)
{
  if (watched != m_view)
    return false;
  switch (event->type()) {
  case QEvent::MouseButtonRelease:
    if (s_zoom_drag_active) {
      mouseReleaseEvent(static_cast<QMouseEvent*>(event));
      return true;
    }
    // No drag: the release goes on, and the scroll area reads the press as
    // a click.
    stop_event_filter();
    return false;
  case QEvent::MouseMove:
    mouseMoveEvent(static_cast<QMouseEvent*>(event));
    return true;
  default:
    return false;
  }
}

void ORQ_ZOOM_DRAG_WIDGET::mouseMoveEvent(QMouseEvent* event)
{
  // Only the right button drags: a Ctrl-left press stays a click however
  // the mouse moves.
  if (event->buttons() != Qt::RightButton)
    return;
  show();
  m_current_point = mapToParent(event->pos());
  s_zoom_drag_active = true;
  // Worked out here as well as when drawn, so the release applies what the
  // mouse last showed even when no frame was painted in between.
  update_percent();
  update();
}

void ORQ_ZOOM_DRAG_WIDGET::update_percent()
{
  const int dy = m_current_point.y() - m_start_point.y();
  if (dy > 0)
    m_percent = std::max(0.5, 100.0 - dy * 0.2);
  else
    m_percent = 100.0 + (-dy) * 0.2;
}

void ORQ_ZOOM_DRAG_WIDGET::mouseReleaseEvent(QMouseEvent*)
{
  if (m_percent >= 100.0)
    zoom_in(float(m_percent / 100.0));
  else
    zoom_out(float(100.0 / m_percent));
  stop_event_filter();
}

void ORQ_ZOOM_DRAG_WIDGET::stop_event_filter()
{
  hide();
  m_label->hide();
  set_cursor(ORQ_ZOOM_IN_CURSOR);
  if (m_event_loop && m_event_loop->isRunning())
    m_event_loop->exit(0);
}

void ORQ_ZOOM_DRAG_WIDGET::paintEvent(QPaintEvent*)
{
  QPainter painter(this);
  painter.setOpacity(m_opacity);
  draw_line(painter);
  // The view under the overlay is drawn again with every frame of the drag,
  // so that what the line passed over never keeps a trace of it.
  update_view();
}

void ORQ_ZOOM_DRAG_WIDGET::draw_line(QPainter& painter)
{
  painter.setFont(ORQ_FONT(ORQ_ZOOM_DRAG_FONT).get_font());
  painter.setPen(QPen(QApplication::palette().color(QPalette::Highlight), 2.0));
  QPainterPath path(mapFromParent(m_start_point));
  path.lineTo(mapFromParent(m_current_point));
  painter.drawPath(path);
  if (!s_zoom_drag_active)
    return;
  const int dy = m_current_point.y() - m_start_point.y();
  update_percent();
  int top = m_start_point.y();
  if (dy > 0) {
    set_cursor(ORQ_ZOOM_OUT_CURSOR);
    top = m_start_point.y() - 40;
  } else {
    set_cursor(ORQ_ZOOM_IN_CURSOR);
  }
  const int left = m_start_point.x() - 40;
  const QString text = QString::number(m_percent, 'g', 6) + QStringLiteral("%");
  m_label->setText(text);
  const QFontMetrics metrics(m_label->font());
  m_label->setFixedWidth(metrics.boundingRect(text).width() + metrics.averageCharWidth());
  m_label->move(mapFromParent(QPoint(left, top)));
  m_label->show();
}
