#include "orq_font.h"

#include "orq_require_p.h"
#include "orq_theme_p.h"

namespace {
const ORQ_FONT_DATA& checked_font_data(ORQ_FONT_RESOURCE font)
{
  const ORQ_FONT_DATA* font_data = orq_gdi_mgr()->get_font_data(font);
  ORQ_REQUIRE(font_data != NULL);
  return *font_data;
}

ORQ_COLOR colour_of(ORQ_COLOR_RESOURCE color)
{
  return color == ORQ_MIN_COLOR ? ORQ_COLOR() : ORQ_COLOR(color);
}
} // namespace

// A font that follows its resource needs no record of its own: it is made
// when the font first becomes literal, so wrappers made in paint code stay
// cheap.
ORQ_FONT::ORQ_FONT(ORQ_FONT_RESOURCE font)
{
  set_font(font);
}

ORQ_FONT::ORQ_FONT(const ORQ_FONT& other)
    : m_font_resource(other.m_font_resource)
    , m_font(other.m_font ? std::make_unique<ORQ_FONT_RECORD>(*other.m_font) : nullptr)
{
}

ORQ_FONT::~ORQ_FONT() = default;

ORQ_FONT& ORQ_FONT::operator=(const ORQ_FONT& other)
{
  if (this != &other) {
    m_font_resource = other.m_font_resource;
    m_font = other.m_font ? std::make_unique<ORQ_FONT_RECORD>(*other.m_font) : nullptr;
  }
  return *this;
}

bool ORQ_FONT::operator==(const ORQ_FONT& other) const
{
  if (m_font_resource != ORQ_MIN_FONT || other.m_font_resource != ORQ_MIN_FONT)
    return m_font_resource == other.m_font_resource;
  return m_font->m_text_color == other.m_font->m_text_color &&
         m_font->m_background_color == other.m_font->m_background_color &&
         m_font->m_font == other.m_font->m_font;
}

QDataStream& ORQ_FONT::operator>>(QDataStream& stream)
{
  // The colours are read field by field so that any failure inside the
  // record is reported as the font's.
  qint32 resource = 0;
  qint32 text_resource = 0;
  qint32 background_resource = 0;
  QColor text;
  QColor background;
  QFont font;
  stream >> resource >> text_resource >> text >> background_resource >> background >> font;
  if (stream.status() != QDataStream::Ok ||
      (resource != ORQ_MIN_FONT && !orq_gdi_mgr()->get_font_data(ORQ_FONT_RESOURCE(resource))) ||
      !orq_theme_color_exists(text_resource) || !orq_theme_color_exists(background_resource))
    ORQ_INTERNAL_ERROR("Error at ORQ_FONT::operator >>");
  m_font_resource = ORQ_FONT_RESOURCE(resource);
  if (!m_font)
    m_font = std::make_unique<ORQ_FONT_RECORD>();
  m_font->m_text_color = text_resource ? ORQ_COLOR(ORQ_COLOR_RESOURCE(text_resource)) : ORQ_COLOR(text);
  m_font->m_background_color =
      background_resource ? ORQ_COLOR(ORQ_COLOR_RESOURCE(background_resource)) : ORQ_COLOR(background);
  m_font->m_font = font;
  return stream;
}

QDataStream& ORQ_FONT::operator<<(QDataStream& stream)
{
  const ORQ_FONT_RECORD record = current();
  stream << qint32(m_font_resource);
  stream << qint32(record.m_text_color.get_resource()) << record.m_text_color.get_color();
  stream << qint32(record.m_background_color.get_resource()) << record.m_background_color.get_color();
  return stream << record.m_font;
}

ORQ_FONT_RECORD ORQ_FONT::current() const
{
  if (m_font_resource == ORQ_MIN_FONT)
    return *m_font;
  const ORQ_FONT_DATA& data = checked_font_data(m_font_resource);
  return ORQ_FONT_RECORD{colour_of(data.m_text_color), colour_of(data.m_background_color), data.m_font};
}

QFont ORQ_FONT::get_font() const
{
  return m_font_resource == ORQ_MIN_FONT ? m_font->m_font : checked_font_data(m_font_resource).m_font;
}

ORQ_COLOR ORQ_FONT::get_text_color() const
{
  return current().m_text_color;
}
ORQ_COLOR ORQ_FONT::get_background_color() const
{
  return current().m_background_color;
}
QString ORQ_FONT::get_face_name() const
{
  return get_font().family();
}
int ORQ_FONT::get_point_size() const
{
  return get_font().pointSize();
}
bool ORQ_FONT::get_bold() const
{
  return get_font().bold();
}
bool ORQ_FONT::get_italic() const
{
  return get_font().italic();
}

void ORQ_FONT::make_literal()
{
  if (m_font_resource == ORQ_MIN_FONT)
    return;
  m_font = std::make_unique<ORQ_FONT_RECORD>(current());
  m_font_resource = ORQ_MIN_FONT;
}

void ORQ_FONT::set_text_color(ORQ_COLOR color)
{
  make_literal();
  m_font->m_text_color = color;
}

void ORQ_FONT::set_background_color(ORQ_COLOR color)
{
  make_literal();
  m_font->m_background_color = color;
}

void ORQ_FONT::set_face_name(const QString& face_name)
{
  ORQ_REQUIRE(!face_name.isEmpty());
  make_literal();
  m_font->m_font.setFamily(face_name);
}

void ORQ_FONT::set_point_size(int point_size)
{
  make_literal();
  m_font->m_font.setPointSize(point_size);
}

void ORQ_FONT::set_bold(bool bold)
{
  make_literal();
  m_font->m_font.setBold(bold);
}

void ORQ_FONT::set_italic(bool italic)
{
  make_literal();
  m_font->m_font.setItalic(italic);
}

void ORQ_FONT::set_font(ORQ_COLOR text, ORQ_COLOR background, const QString& face, int point_size, bool bold,
                        bool italic)
{
  set_face_name(face);
  m_font->m_text_color = text;
  m_font->m_background_color = background;
  m_font->m_font.setPointSize(point_size);
  m_font->m_font.setBold(bold);
  m_font->m_font.setItalic(italic);
}

void ORQ_FONT::set_font(ORQ_FONT_RESOURCE font)
{
  ORQ_REQUIRE(font != ORQ_MIN_FONT);
  checked_font_data(font);
  m_font_resource = font;
}

ORQ_FONT ORQ_FONT::get_default_font(ORQ_FONT_RESOURCE font)
{
  ORQ_FONT copy(font);
  copy.make_literal();
  return copy;
}

void ORQ_FONT::set_default_font(ORQ_FONT_RESOURCE font, const ORQ_FONT* value)
{
  ORQ_REQUIRE(value != NULL);
  const ORQ_FONT_DATA& data = checked_font_data(font);
  const ORQ_FONT_RECORD record = value->current();
  // The stored form names colour resources; a literal colour keeps the
  // resource the font had.
  const ORQ_COLOR_RESOURCE text = record.m_text_color.get_resource() != ORQ_MIN_COLOR
                                      ? record.m_text_color.get_resource()
                                      : data.m_text_color;
  const ORQ_COLOR_RESOURCE background = record.m_background_color.get_resource() != ORQ_MIN_COLOR
                                            ? record.m_background_color.get_resource()
                                            : data.m_background_color;
  orq_gdi_mgr()->set_font(font, text, background, record.m_font);
}

bool ORQ_FONT::can_change_default_font(ORQ_FONT_RESOURCE font)
{
  return checked_font_data(font).m_changeable;
}

void ORQ_FONT::reset_fonts(std::set<ORQ_FONT_RESOURCE> font_set)
{
  orq_gdi_mgr()->reset_fonts(font_set);
}

void ORQ_FONT::save_fonts_in_registry()
{
  orq_gdi_mgr()->save_fonts();
}
