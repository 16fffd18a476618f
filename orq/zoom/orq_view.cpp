#include "orq_view.h"

#include "orq_require_p.h"

#include <QLabel>
#include <QPaintEvent>
#include <QPainter>
#include <QPrinter>
#include <QPropertyAnimation>
#include <QScrollArea>
#include <QScrollBar>

#include <algorithm>
#include <limits>

ORQ_VIEW::ORQ_PHYSICAL_DRAWING_HANDLE::ORQ_PHYSICAL_DRAWING_HANDLE(QPainter* painter, bool physical)
    : m_painter(painter)
{
  m_painter->save();
  if (physical)
    m_painter->resetTransform();
}

ORQ_VIEW::ORQ_PHYSICAL_DRAWING_HANDLE::~ORQ_PHYSICAL_DRAWING_HANDLE()
{
  m_painter->restore();
}

ORQ_VIEW::ORQ_VIEW(QWidget* parent)
    : QWidget(parent)
{
  // The largest finite float, which the size cap brings down to what a
  // widget can be for the one-unit drawing a view starts with.
  set_max(std::numeric_limits<float>::max());
}

ORQ_VIEW::~ORQ_VIEW() = default;

QPoint ORQ_VIEW::get_logical(const QPoint& point) const
{
  return m_logical_transform.map(point);
}

QRect ORQ_VIEW::get_logical(const QRect& rect) const
{
  return m_logical_transform.mapRect(rect);
}

QSize ORQ_VIEW::get_logical(const QSize& size) const
{
  return {int(float(size.width()) / m_zoom), int(float(size.height()) / m_zoom)};
}

QPoint ORQ_VIEW::get_physical(const QPoint& point) const
{
  return m_transform.map(point);
}

QRect ORQ_VIEW::get_physical(const QRect& rect) const
{
  return m_transform.mapRect(rect);
}

QRect ORQ_VIEW::get_logical_rect() const
{
  return m_logical_rect;
}

QSize ORQ_VIEW::get_logical_size() const
{
  return m_logical_rect.size();
}

const QTransform& ORQ_VIEW::get_transform() const
{
  return m_transform;
}

float ORQ_VIEW::get_zoom() const
{
  return m_zoom / m_zoom_scaling;
}

float ORQ_VIEW::get_zoom_scaling() const
{
  return m_zoom_scaling;
}

float ORQ_VIEW::get_absolute_zoom_multiplier() const
{
  return m_zoom;
}

float ORQ_VIEW::get_min() const
{
  return m_min;
}

float ORQ_VIEW::get_max() const
{
  return m_max;
}

float ORQ_VIEW::clamp_zoom(float zoom) const
{
  // Written as two tests rather than std::clamp so that a NaN comes through
  // unchanged, as it always has for the tools that test for it.
  if (m_min > zoom)
    return m_min;
  if (zoom > m_max)
    return m_max;
  return zoom;
}

void ORQ_VIEW::set_zoom_min_max(float min, float max)
{
  min *= m_zoom_scaling;
  ORQ_REQUIRE(min > 0.0f);
  m_min = min;
  set_max(max * m_zoom_scaling);
}

void ORQ_VIEW::set_min(float min)
{
  ORQ_REQUIRE(min > 0.0f);
  m_min = min;
}

float ORQ_VIEW::set_max(float max)
{
  ORQ_REQUIRE(max > 0.0f);
  // No zoom may make the widget larger than Qt lets a widget be.
  constexpr int largest = 16777215;
  const int width = m_logical_rect.width();
  const int height = m_logical_rect.height();
  const int cap_width = width == 0 ? largest : largest / width;
  const int cap_height = height == 0 ? largest : largest / height;
  const float cap = float(std::min(cap_width, cap_height));
  if (max > cap && cap > 0)
    max = cap;
  m_max = max;
  return m_max;
}

void ORQ_VIEW::set_zoom_internal(float zoom)
{
  m_zoom = clamp_zoom(zoom);
}

void ORQ_VIEW::set_zoom_scaling(float zoom_scaling)
{
  ORQ_REQUIRE(zoom_scaling > 0.0f);
  const float ratio = zoom_scaling / m_zoom_scaling;
  const float min = m_min * ratio;
  ORQ_REQUIRE(min > 0.0f);
  m_min = min;
  set_max(m_max * ratio);
  m_zoom_scaling = zoom_scaling;
}

void ORQ_VIEW::set_logical_size(const QRect& rect)
{
  m_logical_rect = rect;
  set_max(m_max);
  update_transform();
  emit update_birds_eye_view_size();
}

void ORQ_VIEW::set_static_scaling_transform(QTransform transform)
{
  m_static_scaling_transform = transform;
}

void ORQ_VIEW::set_zoom(float factor)
{
  ORQ_REQUIRE(factor > 0.0f);
  m_zoom = clamp_zoom(factor * m_zoom_scaling);
  update_transform();
}

float ORQ_VIEW::zoom_in(float delta)
{
  ORQ_REQUIRE(delta > 0.0f);
  const float old = m_zoom;
  m_zoom = clamp_zoom(old * delta);
  update_transform();
  return m_zoom / old;
}

float ORQ_VIEW::zoom_out(float delta)
{
  ORQ_REQUIRE(delta > 0.0f);
  return 1.0f / zoom_in(1.0f / delta);
}

void ORQ_VIEW::zoom_fit(const QSize& size)
{
  // One pixel short of each far edge, so the fitted drawing never touches it.
  const float fy = float(size.height() - 1) / float(m_logical_rect.height());
  const float fx = float(size.width() - 1) / float(m_logical_rect.width());
  m_zoom = clamp_zoom(std::min(fx, fy));
  update_transform();
}

void ORQ_VIEW::update_transform()
{
  const float z = m_zoom;
  const int scaled_width = int(float(m_logical_rect.width()) * z);
  const int scaled_height = int(float(m_logical_rect.height()) * z);
  setMinimumSize(scaled_width, scaled_height);
  if (QWidget* parent = parentWidget())
    parent->updateGeometry();

  int offset_x = int(float(m_logical_rect.left()) * z);
  int offset_y = int(float(m_logical_rect.top()) * z);
  // A drawing narrower or lower than the viewport sits in its middle.
  const QRect viewport = get_viewport_rect();
  if (viewport.width() > scaled_width)
    offset_x -= (viewport.width() - scaled_width) / 2;
  if (viewport.height() > scaled_height)
    offset_y -= (viewport.height() - scaled_height) / 2;

  m_transform = m_static_scaling_transform * QTransform(z, 0, 0, z, -offset_x, -offset_y);
  m_logical_transform = m_transform.inverted();
}

QRect ORQ_VIEW::get_viewport_rect() const
{
  for (QObject* object = parent(); object; object = object->parent()) {
    if (!object->inherits("QScrollArea"))
      continue;
    auto* area = static_cast<QScrollArea*>(object);
    return {QPoint(area->horizontalScrollBar()->value(), area->verticalScrollBar()->value()),
            area->maximumViewportSize()};
  }
  return rect();
}

void ORQ_VIEW::adjust_painter(QPainter* painter)
{
  painter->setTransform(m_transform);
}

void ORQ_VIEW::adjust_painter(QPainter* painter, const QPrinter* printer)
{
  const QRect page = printer->pageLayout().paintRectPixels(printer->resolution());
  // One logical unit of margin on each side of the drawing.
  const float k = std::min(float(page.height()) / float(m_logical_rect.height() + 1),
                           float(page.width()) / float(m_logical_rect.width() + 1));
  painter->setTransform(QTransform(k, 0, 0, k, float(page.left() - m_logical_rect.left()) * k,
                                   float(page.top() - m_logical_rect.top()) * k));
}

void ORQ_VIEW::adjust_size_to_ratio(double ratio, QSize& size)
{
  if (ratio <= 0)
    return;
  const double width = size.width();
  const double height = size.height();
  if (ratio >= 1) {
    if (width * ratio >= height)
      size.setHeight(int(width * ratio));
    else
      size.setWidth(int(height / ratio));
  } else {
    if (height / ratio >= width)
      size.setWidth(int(height / ratio));
    else
      size.setHeight(int(width * ratio));
  }
}

void ORQ_VIEW::set_paint_magnify_glass(bool paint_magnify_glass, QRect rect)
{
  m_paint_magnify_glass = paint_magnify_glass;
  m_magnify_glass_rect = rect;
}

bool ORQ_VIEW::get_paint_magnify_glass() const
{
  return m_paint_magnify_glass;
}

QRect ORQ_VIEW::get_paint_magnify_glass_rect() const
{
  return m_magnify_glass_rect;
}

void ORQ_VIEW::animate_selection_rect(const QRect& rect, const QColor& color, int duration)
{
  if (!m_animation_label_rect) {
    m_animation_label_rect = new (std::nothrow) QLabel(this);
    if (!m_animation_label_rect)
      ORQ_INTERNAL_ERROR("Failed to construct m_animation_label_rect.");
    m_animation_label_rect->setFrameStyle(QFrame::Box);
    m_animation_label_rect->setAutoFillBackground(true);
    m_animation_property = new (std::nothrow) QPropertyAnimation(m_animation_label_rect, "geometry", this);
    if (!m_animation_property)
      ORQ_INTERNAL_ERROR("Failed to construct m_animation_property.");
    connect(m_animation_property, &QPropertyAnimation::finished, this, &ORQ_VIEW::on_stop_animation_rect);
  }
  QPalette palette = m_animation_label_rect->palette();
  palette.setColor(m_animation_label_rect->backgroundRole(), color);
  palette.setColor(m_animation_label_rect->foregroundRole(), color);
  m_animation_label_rect->setPalette(palette);

  QRect flash = rect;
  const QRect viewport = get_viewport_rect();
  // A selection a tenth of the viewport or larger is seen without help: only
  // the shrinking geometry runs, the label is not brought up for it.
  if (!(flash.width() >= viewport.width() / 10 && flash.height() >= viewport.height() / 10)) {
    if (flash.width() < 50 || flash.height() < 50) {
      const int grow = 50 - std::min(flash.width(), flash.height());
      flash.adjust(-grow, -grow, grow, grow);
    }
    m_animation_label_rect->resize(flash.size());
    m_animation_label_rect->adjustSize();
    m_animation_label_rect->move(flash.topLeft());
    m_animation_label_rect->show();
  }
  m_animation_property->stop();
  m_animation_property->setCurrentTime(0);
  m_animation_property->setDuration(duration);
  m_animation_property->setStartValue(flash);
  m_animation_property->setEndValue(QRect(flash.center(), QSize(0, 0)));
  m_animation_property->start();
}

void ORQ_VIEW::on_stop_animation_rect()
{
  if (!m_animation_label_rect)
    return;
  ORQ_REQUIRE(m_animation_property != NULL);
  m_animation_property->stop();
  m_animation_label_rect->hide();
}

void ORQ_VIEW::paint(QPainter*, QPaintEvent*, QWidget*, QRect, bool) {}

void ORQ_VIEW::paint_birds_eye_view(QPainter*, QPaintEvent*, QWidget*, QRect) {}

QRect ORQ_VIEW::get_selected_rect() const
{
  return {};
}

bool ORQ_VIEW::is_rect_selection_enabled() const
{
  return true;
}

void ORQ_VIEW::do_rect_selection(const QRect&, const QPoint&) {}

void ORQ_VIEW::selection_mode_no_mouse_gesture(QMouseEvent*) {}

bool ORQ_VIEW::current_mode_supports_mouse_gesture(const QPoint&)
{
  return false;
}

void ORQ_VIEW::paintEvent(QPaintEvent* event)
{
  QPainter painter(this);
  painter.setClipRect(event->rect());
  adjust_painter(&painter);
  paint(&painter, event, this, event->rect(), false);
}

void ORQ_VIEW::resizeEvent(QResizeEvent* event)
{
  update_transform();
  QWidget::resizeEvent(event);
}
