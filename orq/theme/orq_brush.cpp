#include "orq_brush.h"

#include "orq_require_p.h"
#include "orq_theme_p.h"

namespace {
const ORQ_BRUSH_DATA& checked_brush_data(ORQ_BRUSH_RESOURCE brush)
{
  const ORQ_BRUSH_DATA* brush_data = orq_gdi_mgr()->get_brush_data(brush);
  ORQ_REQUIRE(brush_data != NULL);
  return *brush_data;
}
} // namespace

ORQ_BRUSH::ORQ_BRUSH(ORQ_BRUSH_RESOURCE brush)
{
  set_brush(brush);
}

ORQ_BRUSH::ORQ_BRUSH(Qt::BrushStyle style, ORQ_COLOR color)
    : m_brush(color.get_color(), style)
{
}

ORQ_BRUSH::ORQ_BRUSH(const ORQ_BRUSH& other) = default;
ORQ_BRUSH::~ORQ_BRUSH() = default;
ORQ_BRUSH& ORQ_BRUSH::operator=(const ORQ_BRUSH& other) = default;

bool ORQ_BRUSH::operator==(const ORQ_BRUSH& other) const
{
  if (m_brush_resource != ORQ_MIN_BRUSH || other.m_brush_resource != ORQ_MIN_BRUSH)
    return m_brush_resource == other.m_brush_resource;
  return m_brush == other.m_brush;
}

QDataStream& ORQ_BRUSH::operator>>(QDataStream& stream)
{
  qint32 resource = 0;
  QBrush brush;
  stream >> resource >> brush;
  if (stream.status() != QDataStream::Ok ||
      (resource != ORQ_MIN_BRUSH && !orq_gdi_mgr()->get_brush_data(ORQ_BRUSH_RESOURCE(resource))))
    ORQ_INTERNAL_ERROR("Error in ORQ_BRUSH::operator >>");
  m_brush_resource = ORQ_BRUSH_RESOURCE(resource);
  m_brush = brush;
  return stream;
}

QDataStream& ORQ_BRUSH::operator<<(QDataStream& stream)
{
  return stream << qint32(m_brush_resource) << m_brush;
}

QBrush ORQ_BRUSH::get_brush() const
{
  if (m_brush_resource == ORQ_MIN_BRUSH)
    return m_brush;
  return orq_gdi_mgr()->get_brush(m_brush_resource);
}

ORQ_COLOR ORQ_BRUSH::get_color() const
{
  if (m_brush_resource != ORQ_MIN_BRUSH) {
    const ORQ_BRUSH_DATA& data = checked_brush_data(m_brush_resource);
    if (data.m_color != ORQ_MIN_COLOR)
      return ORQ_COLOR(data.m_color);
  }
  return ORQ_COLOR(get_brush().color());
}

Qt::BrushStyle ORQ_BRUSH::get_style() const
{
  return get_brush().style();
}

void ORQ_BRUSH::make_literal()
{
  if (m_brush_resource == ORQ_MIN_BRUSH)
    return;
  m_brush = get_brush();
  m_brush_resource = ORQ_MIN_BRUSH;
}

void ORQ_BRUSH::set_brush(const QBrush& brush)
{
  m_brush_resource = ORQ_MIN_BRUSH;
  m_brush = brush;
}

void ORQ_BRUSH::set_brush(ORQ_BRUSH_RESOURCE brush)
{
  ORQ_REQUIRE(brush != ORQ_MIN_BRUSH);
  checked_brush_data(brush);
  m_brush_resource = brush;
}

void ORQ_BRUSH::set_brush(Qt::BrushStyle style, ORQ_COLOR color)
{
  set_brush(QBrush(color.get_color(), style));
}

void ORQ_BRUSH::set_color(ORQ_COLOR color)
{
  make_literal();
  m_brush.setColor(color.get_color());
}

void ORQ_BRUSH::set_style(Qt::BrushStyle style)
{
  make_literal();
  m_brush.setStyle(style);
}

void ORQ_BRUSH::set_default_brush_color(ORQ_BRUSH_RESOURCE brush, ORQ_COLOR_RESOURCE color)
{
  orq_gdi_mgr()->set_brush_color(brush, color);
}
