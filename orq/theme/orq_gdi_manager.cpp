#include "orq_gdi_manager.h"

#include "orq_require_p.h"
#include "orq_theme_id_map_p.h"
#include "orq_theme_tables_p.h"

#include "gen_config_vars.h"
#include "gen_message_service.h"
#include "gen_settings.h"

#include <QEvent>
#include <QGuiApplication>
#include <QPointer>

namespace {
ORQ_GDI_MANAGER* g_instance = nullptr;

// Pens and brushes on system colours are kept in step with the application
// palette, so that code reading the manager's records sees what a wrapper
// would paint with.
class PALETTE_WATCH : public QObject {
public:
  using QObject::QObject;
  bool eventFilter(QObject* watched, QEvent* event) override
  {
    if (watched == QCoreApplication::instance() && event->type() == QEvent::ApplicationPaletteChange &&
        g_instance)
      g_instance->refresh_pen_and_brush_colors();
    return QObject::eventFilter(watched, event);
  }
};
QPointer<PALETTE_WATCH> g_palette_watch;

// Stored values come from a file the user can edit: every number is checked
// against what Qt accepts before it reaches a QPen or QFont.
bool valid_pen_style(int v)
{
  return v >= Qt::NoPen && v <= Qt::CustomDashLine;
}
bool valid_cap(int v)
{
  return v == Qt::FlatCap || v == Qt::SquareCap || v == Qt::RoundCap;
}
bool valid_join(int v)
{
  return v == Qt::MiterJoin || v == Qt::BevelJoin || v == Qt::RoundJoin || v == Qt::SvgMiterJoin;
}
constexpr int k_max_pen_width = 1000;
constexpr int k_max_point_size = 1000;

bool parse_int(const QString& token, int* value)
{
  bool ok = false;
  const int v = token.toInt(&ok);
  if (ok)
    *value = v;
  return ok;
}

// The fields a stored font value keeps.
bool same_font(const QFont& a, const QFont& b)
{
  return a.family() == b.family() && a.pointSize() == b.pointSize() && a.bold() == b.bold() &&
         a.italic() == b.italic() && a.underline() == b.underline() && a.strikeOut() == b.strikeOut() &&
         a.fixedPitch() == b.fixedPitch() && a.styleHint() == b.styleHint();
}

bool parse_flag(const QString& token, int* value)
{
  return parse_int(token, value) && (*value == 0 || *value == 1);
}
} // namespace

struct ORQ_GDI_TABLES {
  ORQ_THEME_ID_MAP<ORQ_COLOR_DATA> colors;
  ORQ_THEME_ID_MAP<ORQ_PEN_DATA> pens;
  ORQ_THEME_ID_MAP<ORQ_BRUSH_DATA> brushes;
  ORQ_THEME_ID_MAP<ORQ_FONT_DATA> fonts;
};

bool ORQ_GDI_MANAGER::m_instance_has_been_deleted = false;
const QString ORQ_GDI_MANAGER::k_colors_key = QStringLiteral("Theme/Colors");
const QString ORQ_GDI_MANAGER::k_pens_key = QStringLiteral("Theme/Pens");
const QString ORQ_GDI_MANAGER::k_fonts_key = QStringLiteral("Theme/Fonts");

ORQ_GDI_MANAGER* ORQ_GDI_MANAGER::get_instance()
{
  if (g_instance)
    return g_instance;
  ORQ_REQUIRE(!ORQ_GDI_MANAGER::m_instance_has_been_deleted);
  if (!qobject_cast<QGuiApplication*>(QCoreApplication::instance()))
    return nullptr;
  g_instance = new ORQ_GDI_MANAGER;
  g_palette_watch = new PALETTE_WATCH(QCoreApplication::instance());
  QCoreApplication::instance()->installEventFilter(g_palette_watch);
  // The palette and fonts belong to the application: the manager ends with it.
  qAddPostRoutine(&ORQ_GDI_MANAGER::delete_instance);
  return g_instance;
}

void ORQ_GDI_MANAGER::delete_instance()
{
  if (!g_instance)
    return;
  delete g_palette_watch.data();
  delete g_instance;
  g_instance = nullptr;
  m_instance_has_been_deleted = true;
}

ORQ_GDI_MANAGER::ORQ_GDI_MANAGER()
    : m_tables(std::make_unique<ORQ_GDI_TABLES>())
{
  for (int i = 0; i < orq_color_table_size; ++i) {
    const ORQ_COLOR_ENTRY& e = orq_color_table[i];
    ORQ_COLOR_DATA data;
    data.m_system = e.system;
    data.m_role = data.m_default_role = QPalette::ColorRole(e.role);
    data.m_has_role = e.system || e.role != 0;
    data.m_changeable = e.changeable != 0;
    data.m_color = data.m_default_color = QColor(QLatin1String(e.color));
    data.m_name = QLatin1String(e.name);
    orq_theme_insert_row(m_tables->colors, e.id, data);
    m_color_names.insert(data.m_name, e.id);
  }
  for (int i = 0; i < orq_pen_table_size; ++i) {
    const ORQ_PEN_ENTRY& e = orq_pen_table[i];
    ORQ_PEN_DATA data;
    data.m_name = QLatin1String(e.name);
    data.m_color = data.m_default_color = e.color;
    data.m_pen = QPen(QBrush(get_color(e.color)), e.width, e.style, e.cap, e.join);
    data.m_default_pen = data.m_pen;
    orq_theme_insert_row(m_tables->pens, e.id, data);
  }
  for (int i = 0; i < orq_brush_table_size; ++i) {
    const ORQ_BRUSH_ENTRY& e = orq_brush_table[i];
    ORQ_BRUSH_DATA data;
    data.m_color = data.m_default_color = e.color;
    data.m_brush = data.m_default_brush = QBrush(get_color(e.color), e.style);
    orq_theme_insert_row(m_tables->brushes, e.id, data);
  }
  const bool kerning = gen_config_vars().get_bool(QStringLiteral("orq_enable_kerning"), false);
  for (int i = 0; i < orq_font_table_size; ++i) {
    const ORQ_FONT_ENTRY& e = orq_font_table[i];
    ORQ_FONT_DATA data;
    data.m_name = QLatin1String(e.name);
    data.m_changeable = e.changeable != 0;
    data.m_text_color = data.m_default_text_color = e.text_color;
    data.m_background_color = data.m_default_background_color = e.background_color;
    QFont font(QLatin1String(e.face), e.point_size);
    font.setBold(e.bold);
    font.setItalic(e.italic);
    font.setUnderline(e.underline);
    font.setStrikeOut(e.strike_out);
    font.setFixedPitch(e.style_hint == QFont::TypeWriter);
    font.setStyleHint(QFont::StyleHint(e.style_hint));
    font.setKerning(kerning);
    data.m_font = data.m_default_font = font;
    orq_theme_insert_row(m_tables->fonts, e.id, data);
  }

  for (const char* family : {"DejaVu Sans", "Arial", "Tahoma", "Microsoft Sans Serif", "MS Sans Serif"})
    QFont::insertSubstitution(QLatin1String(family), QStringLiteral("Bitstream Vera Sans"));
  for (const char* family : {"Microsoft Sans Serif", "Tahoma", "Arial"})
    QFont::insertSubstitution(QLatin1String(family), QStringLiteral("MS Sans Serif"));
  QFont::insertSubstitution(QStringLiteral("Courier New"), QStringLiteral("Lucida Console"));

  load_colors();
  load_pens();
  load_fonts();
}

ORQ_GDI_MANAGER::~ORQ_GDI_MANAGER() = default;

const ORQ_COLOR_DATA* ORQ_GDI_MANAGER::get_color_data(ORQ_COLOR_RESOURCE color) const
{
  return m_tables->colors.find(color);
}

const ORQ_PEN_DATA* ORQ_GDI_MANAGER::get_pen_data(ORQ_PEN_RESOURCE pen) const
{
  return m_tables->pens.find(pen);
}

const ORQ_BRUSH_DATA* ORQ_GDI_MANAGER::get_brush_data(ORQ_BRUSH_RESOURCE brush) const
{
  return m_tables->brushes.find(brush);
}

const ORQ_FONT_DATA* ORQ_GDI_MANAGER::get_font_data(ORQ_FONT_RESOURCE font) const
{
  return m_tables->fonts.find(font);
}

ORQ_COLOR_DATA& ORQ_GDI_MANAGER::color_data(ORQ_COLOR_RESOURCE color)
{
  ORQ_COLOR_DATA* i = m_tables->colors.find(color);
  // Said as a map lookup: that is what the identifier was missing from.
  if (!i)
    ORQ_INTERNAL_ERROR("i != m_colors.end()");
  return *i;
}

ORQ_PEN_DATA& ORQ_GDI_MANAGER::pen_data(ORQ_PEN_RESOURCE pen)
{
  ORQ_PEN_DATA* i = m_tables->pens.find(pen);
  // Said as a map lookup: that is what the identifier was missing from.
  if (!i)
    ORQ_INTERNAL_ERROR("i != m_pens.end()");
  return *i;
}

ORQ_BRUSH_DATA& ORQ_GDI_MANAGER::brush_data(ORQ_BRUSH_RESOURCE brush)
{
  ORQ_BRUSH_DATA* i = m_tables->brushes.find(brush);
  // Said as a map lookup: that is what the identifier was missing from.
  if (!i)
    ORQ_INTERNAL_ERROR("i != m_brushes.end()");
  return *i;
}

ORQ_FONT_DATA& ORQ_GDI_MANAGER::font_data(ORQ_FONT_RESOURCE font)
{
  ORQ_FONT_DATA* i = m_tables->fonts.find(font);
  // Said as a map lookup: that is what the identifier was missing from.
  if (!i)
    ORQ_INTERNAL_ERROR("i != m_fonts.end()");
  return *i;
}

ORQ_COLOR_RESOURCE ORQ_GDI_MANAGER::find_color(const QString& name) const
{
  return m_color_names.value(name, ORQ_MIN_COLOR);
}

QPen ORQ_GDI_MANAGER::get_pen(ORQ_PEN_RESOURCE pen) const
{
  const ORQ_PEN_DATA* pen_data = get_pen_data(pen);
  ORQ_REQUIRE(pen_data != NULL);
  if (pen_data->m_color == ORQ_MIN_COLOR)
    return pen_data->m_pen;
  const QColor now = get_color(pen_data->m_color);
  if (now == pen_data->m_pen.color())
    return pen_data->m_pen;
  QPen result = pen_data->m_pen;
  result.setColor(now);
  return result;
}

QBrush ORQ_GDI_MANAGER::get_brush(ORQ_BRUSH_RESOURCE brush) const
{
  const ORQ_BRUSH_DATA* brush_data = get_brush_data(brush);
  ORQ_REQUIRE(brush_data != NULL);
  if (brush_data->m_color == ORQ_MIN_COLOR)
    return brush_data->m_brush;
  const QColor now = get_color(brush_data->m_color);
  if (now == brush_data->m_brush.color())
    return brush_data->m_brush;
  QBrush result = brush_data->m_brush;
  result.setColor(now);
  return result;
}

QColor ORQ_GDI_MANAGER::get_color(ORQ_COLOR_RESOURCE color) const
{
  const ORQ_COLOR_DATA* color_data = get_color_data(color);
  ORQ_REQUIRE(color_data != NULL);
  if (color_data->m_system)
    return QGuiApplication::palette().color(color_data->m_role);
  return color_data->m_color;
}

void ORQ_GDI_MANAGER::set_color(ORQ_COLOR_RESOURCE color, const QColor& value)
{
  ORQ_COLOR_DATA& data = color_data(color);
  // Changeable only says what a user may override and what is saved; a tool
  // may set any colour.
  data.m_color = value;
}

void ORQ_GDI_MANAGER::set_pen_color(ORQ_PEN_RESOURCE pen, ORQ_COLOR_RESOURCE color)
{
  ORQ_PEN_DATA& data = pen_data(pen);
  data.m_color = color;
  data.m_pen.setColor(get_color(color));
}

void ORQ_GDI_MANAGER::set_pen_width(ORQ_PEN_RESOURCE pen, int width)
{
  pen_data(pen).m_pen.setWidth(width);
}

void ORQ_GDI_MANAGER::set_pen(ORQ_PEN_RESOURCE pen, ORQ_COLOR_RESOURCE color, const QPen& value)
{
  ORQ_PEN_DATA& data = pen_data(pen);
  data.m_color = color;
  data.m_pen = value;
}

void ORQ_GDI_MANAGER::set_brush_color(ORQ_BRUSH_RESOURCE brush, ORQ_COLOR_RESOURCE color)
{
  ORQ_BRUSH_DATA& data = brush_data(brush);
  data.m_color = color;
  data.m_brush.setColor(get_color(color));
}

void ORQ_GDI_MANAGER::set_font(ORQ_FONT_RESOURCE font, ORQ_COLOR_RESOURCE text, ORQ_COLOR_RESOURCE background,
                               const QFont& value)
{
  ORQ_FONT_DATA& data = font_data(font);
  data.m_text_color = text;
  data.m_background_color = background;
  data.m_font = value;
  data.m_flag = 1;
}

void ORQ_GDI_MANAGER::reset_colors(const std::set<ORQ_COLOR_RESOURCE>& color_set)
{
  ORQ_REQUIRE(!color_set.empty());
  for (ORQ_COLOR_RESOURCE color : color_set) {
    ORQ_COLOR_DATA& data = color_data(color);
    data.m_color = data.m_default_color;
    data.m_role = data.m_default_role;
  }
}

void ORQ_GDI_MANAGER::reset_fonts(const std::set<ORQ_FONT_RESOURCE>& font_set)
{
  ORQ_REQUIRE(!font_set.empty());
  for (ORQ_FONT_RESOURCE font : font_set) {
    ORQ_FONT_DATA& data = font_data(font);
    data.m_font = data.m_default_font;
    data.m_text_color = data.m_default_text_color;
    data.m_background_color = data.m_default_background_color;
    data.m_flag = 0;
  }
}

void ORQ_GDI_MANAGER::refresh_pen_and_brush_colors()
{
  for (int i = 0; i < orq_pen_table_size; ++i) {
    ORQ_PEN_DATA& pen = pen_data(orq_pen_table[i].id);
    if (pen.m_color != ORQ_MIN_COLOR)
      pen.m_pen.setColor(get_color(pen.m_color));
  }
  for (int i = 0; i < orq_brush_table_size; ++i) {
    ORQ_BRUSH_DATA& brush = brush_data(orq_brush_table[i].id);
    if (brush.m_color != ORQ_MIN_COLOR)
      brush.m_brush.setColor(get_color(brush.m_color));
  }
}

void ORQ_GDI_MANAGER::set_change_non_windows_color(bool on)
{
  m_change_non_windows_color = on;
}

bool ORQ_GDI_MANAGER::get_change_non_windows_color() const
{
  return m_change_non_windows_color;
}

bool ORQ_GDI_MANAGER::overrides_apply(const QString& key, const QString& version_name) const
{
  if (gen_message_service().is_regression_test_mode())
    return false;
  bool ok = false;
  const int version = gen_settings().value(key, version_name).toInt(&ok);
  return ok && version == k_version;
}

void ORQ_GDI_MANAGER::load_colors()
{
  const bool apply = overrides_apply(k_colors_key, QStringLiteral("Color_version"));
  const QPalette palette = QGuiApplication::palette();
  for (int i = 0; i < orq_color_table_size; ++i) {
    ORQ_COLOR_DATA& data = color_data(orq_color_table[i].id);
    QColor override_colour;
    if (apply && !data.m_system && data.m_changeable) {
      // Anything QColor reads as a colour name is taken ("#1b5e20", "#abc",
      // "darkorange"); the rest leaves the default.
      const QString text = gen_settings().value(k_colors_key, data.m_name).toString();
      if (QColor::isValidColor(text))
        override_colour.setNamedColor(text);
    }
    if (!data.m_system && data.m_has_role)
      data.m_default_color = palette.color(data.m_default_role);
    data.m_color = override_colour.isValid() ? override_colour : data.m_default_color;
  }
  refresh_pen_and_brush_colors();
}

QString ORQ_GDI_MANAGER::format_pen(const ORQ_PEN_DATA& pen)
{
  const ORQ_GDI_MANAGER* self = g_instance;
  const ORQ_COLOR_DATA* colour = self ? self->get_color_data(pen.m_color) : nullptr;
  return QStringLiteral("%1 %2 %3 %4 %5 %6")
      .arg(colour ? colour->m_name : QStringLiteral("ORQ_MIN_COLOR"))
      .arg(int(pen.m_pen.style()))
      .arg(int(pen.m_pen.capStyle()))
      .arg(int(pen.m_pen.joinStyle()))
      .arg(pen.m_pen.width())
      .arg(uint(pen.m_pen.color().rgb()));
}

bool ORQ_GDI_MANAGER::parse_pen(const QString& text, ORQ_COLOR_RESOURCE* color, QPen* pen) const
{
  const QStringList tokens = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
  if (tokens.size() != 6)
    return false;
  const ORQ_COLOR_RESOURCE resource = find_color(tokens.at(0));
  int style = 0;
  int cap = 0;
  int join = 0;
  int width = 0;
  bool rgb_ok = false;
  const uint rgb = tokens.at(5).toUInt(&rgb_ok);
  if (resource == ORQ_MIN_COLOR || !parse_int(tokens.at(1), &style) || !valid_pen_style(style) ||
      !parse_int(tokens.at(2), &cap) || !valid_cap(cap) || !parse_int(tokens.at(3), &join) ||
      !valid_join(join) || !parse_int(tokens.at(4), &width) || width < 0 || width > k_max_pen_width ||
      !rgb_ok)
    return false;
  *color = resource;
  *pen = QPen(QBrush(QColor::fromRgb(rgb)), width, Qt::PenStyle(style), Qt::PenCapStyle(cap),
              Qt::PenJoinStyle(join));
  return true;
}

void ORQ_GDI_MANAGER::load_pens()
{
  const bool apply = overrides_apply(k_pens_key, QStringLiteral("Pen_version"));
  for (int i = 0; i < orq_pen_table_size; ++i) {
    ORQ_PEN_DATA& data = pen_data(orq_pen_table[i].id);
    data.m_color = data.m_default_color;
    data.m_pen = data.m_default_pen;
    if (!apply)
      continue;
    ORQ_COLOR_RESOURCE color = ORQ_MIN_COLOR;
    QPen pen;
    if (parse_pen(gen_settings().value(k_pens_key, data.m_name).toString(), &color, &pen)) {
      data.m_color = color;
      data.m_pen = pen;
    }
  }
  refresh_pen_and_brush_colors();
}

QString ORQ_GDI_MANAGER::format_font(const ORQ_FONT_DATA& font)
{
  const ORQ_GDI_MANAGER* self = g_instance;
  auto name = [self](ORQ_COLOR_RESOURCE c) {
    const ORQ_COLOR_DATA* d = self ? self->get_color_data(c) : nullptr;
    return d ? d->m_name : QStringLiteral("ORQ_MIN_COLOR");
  };
  const QFont& f = font.m_font;
  return QStringLiteral("%1 %2 %3 %4 %5 %6 %7 %8 %9 %10, %11")
      .arg(font.m_flag)
      .arg(name(font.m_text_color), name(font.m_background_color))
      .arg(f.pointSize())
      .arg(int(f.bold()))
      .arg(int(f.italic()))
      .arg(int(f.underline()))
      .arg(int(f.strikeOut()))
      .arg(int(f.fixedPitch()))
      .arg(int(f.styleHint()))
      .arg(f.family());
}

bool ORQ_GDI_MANAGER::parse_font(const QString& text, ORQ_FONT_DATA* font) const
{
  const int comma = text.indexOf(QStringLiteral(", "));
  if (comma < 0)
    return false;
  const QStringList tokens = text.left(comma).split(QLatin1Char(' '), Qt::SkipEmptyParts);
  const QString face = text.mid(comma + 2).trimmed();
  if (tokens.size() != 10 || face.isEmpty())
    return false;
  int flag = 0;
  int points = 0;
  int bold = 0;
  int italic = 0;
  int underline = 0;
  int strike = 0;
  int fixed = 0;
  int hint = 0;
  const ORQ_COLOR_RESOURCE text_color = find_color(tokens.at(1));
  const ORQ_COLOR_RESOURCE background = find_color(tokens.at(2));
  if (!parse_flag(tokens.at(0), &flag) || text_color == ORQ_MIN_COLOR || background == ORQ_MIN_COLOR ||
      !parse_int(tokens.at(3), &points) || points < 1 || points > k_max_point_size ||
      !parse_flag(tokens.at(4), &bold) || !parse_flag(tokens.at(5), &italic) ||
      !parse_flag(tokens.at(6), &underline) || !parse_flag(tokens.at(7), &strike) ||
      !parse_flag(tokens.at(8), &fixed) || !parse_int(tokens.at(9), &hint) || hint < QFont::Helvetica ||
      hint > QFont::Fantasy)
    return false;
  QFont f = font->m_default_font;
  f.setFamily(face);
  f.setPointSize(points);
  f.setBold(bold);
  f.setItalic(italic);
  f.setUnderline(underline);
  f.setStrikeOut(strike);
  f.setFixedPitch(fixed);
  f.setStyleHint(QFont::StyleHint(hint));
  font->m_flag = flag;
  font->m_text_color = text_color;
  font->m_background_color = background;
  font->m_font = f;
  return true;
}

void ORQ_GDI_MANAGER::load_fonts()
{
  const bool apply = overrides_apply(k_fonts_key, QStringLiteral("Font_version"));
  for (int i = 0; i < orq_font_table_size; ++i) {
    ORQ_FONT_DATA& data = font_data(orq_font_table[i].id);
    data.m_font = data.m_default_font;
    data.m_text_color = data.m_default_text_color;
    data.m_background_color = data.m_default_background_color;
    data.m_flag = 0;
    if (apply && data.m_changeable)
      parse_font(gen_settings().value(k_fonts_key, data.m_name).toString(), &data);
  }
}

void ORQ_GDI_MANAGER::save_colors()
{
  GEN_SETTINGS& settings = gen_settings();
  settings.set_value(k_colors_key, QStringLiteral("Color_version"), k_version);
  m_tables->colors.for_each([&settings](const ORQ_COLOR_DATA& data) {
    if (!data.m_changeable || data.m_system)
      return;
    const bool changed = data.m_role != data.m_default_role || data.m_color != data.m_default_color;
    if (changed)
      settings.set_value(k_colors_key, data.m_name, data.m_color.name());
    else
      settings.remove(k_colors_key, data.m_name);
  });
}

void ORQ_GDI_MANAGER::save_pens()
{
  GEN_SETTINGS& settings = gen_settings();
  settings.set_value(k_pens_key, QStringLiteral("Pen_version"), k_version);
  m_tables->pens.for_each([&settings](const ORQ_PEN_DATA& data) {
    const bool changed = data.m_color != data.m_default_color ||
                         data.m_pen.style() != data.m_default_pen.style() ||
                         data.m_pen.capStyle() != data.m_default_pen.capStyle() ||
                         data.m_pen.joinStyle() != data.m_default_pen.joinStyle() ||
                         data.m_pen.width() != data.m_default_pen.width();
    if (changed)
      settings.set_value(k_pens_key, data.m_name, format_pen(data));
    else
      settings.remove(k_pens_key, data.m_name);
  });
}

void ORQ_GDI_MANAGER::save_fonts()
{
  GEN_SETTINGS& settings = gen_settings();
  settings.set_value(k_fonts_key, QStringLiteral("Font_version"), k_version);
  m_tables->fonts.for_each([&settings](const ORQ_FONT_DATA& data) {
    if (!data.m_changeable)
      return;
    const bool changed = data.m_text_color != data.m_default_text_color ||
                         data.m_background_color != data.m_default_background_color ||
                         !same_font(data.m_font, data.m_default_font);
    if (changed)
      settings.set_value(k_fonts_key, data.m_name, format_font(data));
    else
      settings.remove(k_fonts_key, data.m_name);
  });
}
