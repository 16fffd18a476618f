#include "orq_pen.h"

#include "orq_require_p.h"
#include "orq_theme_p.h"

namespace {
const ORQ_PEN_DATA& checked_pen_data(ORQ_PEN_RESOURCE pen)
{
  const ORQ_PEN_DATA* pen_data = orq_gdi_mgr()->get_pen_data(pen);
  ORQ_REQUIRE(pen_data != NULL);
  return *pen_data;
}
} // namespace

ORQ_PEN::ORQ_PEN(ORQ_PEN_RESOURCE pen)
{
  set_pen(pen);
}

ORQ_PEN::ORQ_PEN(const QPen& pen)
    : m_pen(pen)
{
}

ORQ_PEN::ORQ_PEN(const ORQ_PEN& other) = default;
ORQ_PEN::~ORQ_PEN() = default;
ORQ_PEN& ORQ_PEN::operator=(const ORQ_PEN& other) = default;

bool ORQ_PEN::operator==(const ORQ_PEN& other) const
{
  if (m_pen_resource != ORQ_MIN_PEN || other.m_pen_resource != ORQ_MIN_PEN)
    return m_pen_resource == other.m_pen_resource;
  return m_pen == other.m_pen;
}

QDataStream& ORQ_PEN::operator>>(QDataStream& stream)
{
  qint32 resource = 0;
  QPen pen;
  stream >> resource >> pen;
  if (stream.status() != QDataStream::Ok ||
      (resource != ORQ_MIN_PEN && !orq_gdi_mgr()->get_pen_data(ORQ_PEN_RESOURCE(resource))))
    ORQ_INTERNAL_ERROR("Error at ORQ_PEN::operator >>");
  m_pen_resource = ORQ_PEN_RESOURCE(resource);
  m_pen = pen;
  return stream;
}

QDataStream& ORQ_PEN::operator<<(QDataStream& stream)
{
  return stream << qint32(m_pen_resource) << m_pen;
}

QPen ORQ_PEN::current() const
{
  if (m_pen_resource == ORQ_MIN_PEN)
    return m_pen;
  return orq_gdi_mgr()->get_pen(m_pen_resource);
}

QPen* ORQ_PEN::get_pen()
{
  if (m_pen_resource != ORQ_MIN_PEN)
    m_pen = current();
  return &m_pen;
}

ORQ_COLOR ORQ_PEN::get_color() const
{
  if (m_pen_resource != ORQ_MIN_PEN) {
    const ORQ_PEN_DATA& data = checked_pen_data(m_pen_resource);
    if (data.m_color != ORQ_MIN_COLOR)
      return ORQ_COLOR(data.m_color);
  }
  return ORQ_COLOR(current().color());
}

Qt::PenStyle ORQ_PEN::get_style() const
{
  return current().style();
}
Qt::PenCapStyle ORQ_PEN::get_cap_style() const
{
  return current().capStyle();
}
int ORQ_PEN::get_width() const
{
  return current().width();
}

void ORQ_PEN::make_literal()
{
  if (m_pen_resource == ORQ_MIN_PEN)
    return;
  m_pen = current();
  m_pen_resource = ORQ_MIN_PEN;
}

void ORQ_PEN::set_pen(const QPen& pen)
{
  m_pen_resource = ORQ_MIN_PEN;
  m_pen = pen;
}

void ORQ_PEN::set_pen(ORQ_PEN_RESOURCE pen)
{
  ORQ_REQUIRE(pen != ORQ_MIN_PEN);
  checked_pen_data(pen);
  m_pen_resource = pen;
}

void ORQ_PEN::set_color(ORQ_COLOR color)
{
  make_literal();
  m_pen.setColor(color.get_color());
}

void ORQ_PEN::set_style(Qt::PenStyle style)
{
  make_literal();
  m_pen.setStyle(style);
}

void ORQ_PEN::set_width(int width)
{
  make_literal();
  m_pen.setWidth(width);
}

void ORQ_PEN::set_default_pen_color(ORQ_PEN_RESOURCE pen, ORQ_COLOR_RESOURCE color)
{
  orq_gdi_mgr()->set_pen_color(pen, color);
}

void ORQ_PEN::set_default_pen_width(ORQ_PEN_RESOURCE pen, int width)
{
  ORQ_REQUIRE(width >= 0);
  orq_gdi_mgr()->set_pen_width(pen, width);
}

void ORQ_PEN::save_pens_in_registry()
{
  orq_gdi_mgr()->save_pens();
}
