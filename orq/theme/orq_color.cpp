#include "orq_color.h"

#include "orq_gdi_manager.h"
#include "orq_require_p.h"
#include "orq_theme_p.h"

ORQ_COLOR::ORQ_COLOR() = default;

ORQ_COLOR::ORQ_COLOR(ORQ_COLOR_RESOURCE color)
{
  set_color(color);
}

ORQ_COLOR::ORQ_COLOR(const QColor& color)
    : m_color(color)
{
}

ORQ_COLOR::ORQ_COLOR(const ORQ_COLOR& other) = default;
ORQ_COLOR::~ORQ_COLOR() = default;
ORQ_COLOR& ORQ_COLOR::operator=(const ORQ_COLOR& other) = default;

bool ORQ_COLOR::operator==(const ORQ_COLOR& other) const
{
  if (m_color_resource != ORQ_MIN_COLOR || other.m_color_resource != ORQ_MIN_COLOR)
    return m_color_resource == other.m_color_resource;
  return m_color == other.m_color;
}

QDataStream& ORQ_COLOR::operator>>(QDataStream& stream)
{
  qint32 resource = 0;
  QColor color;
  stream >> resource >> color;
  if (stream.status() != QDataStream::Ok || !orq_theme_color_exists(resource))
    ORQ_INTERNAL_ERROR("Error in ORQ_COLOR::operator >>");
  m_color_resource = ORQ_COLOR_RESOURCE(resource);
  m_color = color;
  return stream;
}

QDataStream& ORQ_COLOR::operator<<(QDataStream& stream)
{
  return stream << qint32(m_color_resource) << m_color;
}

QColor ORQ_COLOR::get_color() const
{
  if (m_color_resource == ORQ_MIN_COLOR)
    return m_color;
  return orq_gdi_mgr()->get_color(m_color_resource);
}

void ORQ_COLOR::set_color(const QColor& color)
{
  m_color_resource = ORQ_MIN_COLOR;
  m_color = color;
}

void ORQ_COLOR::set_color(ORQ_COLOR_RESOURCE color)
{
  ORQ_REQUIRE(color != ORQ_MIN_COLOR);
  const ORQ_COLOR_DATA* color_data = orq_gdi_mgr()->get_color_data(color);
  ORQ_REQUIRE(color_data != NULL);
  m_color_resource = color;
}

QColor ORQ_COLOR::get_default_color(ORQ_COLOR_RESOURCE color)
{
  return orq_gdi_mgr()->get_color(color);
}

void ORQ_COLOR::set_default_color(ORQ_COLOR_RESOURCE color, const QColor& value)
{
  orq_gdi_mgr()->set_color(color, value);
}

bool ORQ_COLOR::can_change_default_color(ORQ_COLOR_RESOURCE color)
{
  const ORQ_COLOR_DATA* color_data = orq_gdi_mgr()->get_color_data(color);
  ORQ_REQUIRE(color_data != NULL);
  return color_data->m_changeable;
}

void ORQ_COLOR::reset_colors(std::set<ORQ_COLOR_RESOURCE> color_set)
{
  orq_gdi_mgr()->reset_colors(color_set);
}

void ORQ_COLOR::save_colors_in_registry()
{
  orq_gdi_mgr()->save_colors();
}

void ORQ_COLOR::refresh_pen_and_brush_colors()
{
  orq_gdi_mgr()->refresh_pen_and_brush_colors();
}
