#pragma once
// The process-wide owner of the theme tables: colours, pens, brushes and fonts
// with their built-in defaults and the user's overrides. Built on first use
// (it needs the application object) and kept until the application ends.
// Tools normally use the wrappers ORQ_COLOR, ORQ_PEN, ORQ_BRUSH, ORQ_FONT.
#include "orq_brush_resource.h"
#include "orq_color_resource.h"
#include "orq_export.h"
#include "orq_font_resource.h"
#include "orq_pen_resource.h"

#include <QBrush>
#include <QColor>
#include <QFont>
#include <QHash>
#include <QPalette>
#include <QPen>
#include <QString>

#include <memory>
#include <set>

struct ORQ_COLOR_DATA {
  int m_system = 0;
  QPalette::ColorRole m_role = QPalette::WindowText;
  QPalette::ColorRole m_default_role = QPalette::WindowText;
  bool m_changeable = false;
  QColor m_color;
  QColor m_default_color;
  QString m_name;
  bool m_has_role = false;
};

struct ORQ_PEN_DATA {
  QString m_name;
  ORQ_COLOR_RESOURCE m_color = ORQ_MIN_COLOR;
  ORQ_COLOR_RESOURCE m_default_color = ORQ_MIN_COLOR;
  QPen m_pen;
  QPen m_default_pen;
};

struct ORQ_BRUSH_DATA {
  ORQ_COLOR_RESOURCE m_color = ORQ_MIN_COLOR;
  ORQ_COLOR_RESOURCE m_default_color = ORQ_MIN_COLOR;
  QBrush m_brush;
  QBrush m_default_brush;
};

struct ORQ_FONT_DATA {
  int m_flag = 0; // 1 once the user chose this font; kept in the stored value
  QString m_name;
  bool m_changeable = false;
  ORQ_COLOR_RESOURCE m_text_color = ORQ_MIN_COLOR;
  ORQ_COLOR_RESOURCE m_background_color = ORQ_MIN_COLOR;
  ORQ_COLOR_RESOURCE m_default_text_color = ORQ_MIN_COLOR;
  ORQ_COLOR_RESOURCE m_default_background_color = ORQ_MIN_COLOR;
  QFont m_font;
  QFont m_default_font;
};

struct ORQ_GDI_TABLES;

class ORQ_EXPORT ORQ_GDI_MANAGER {
public:
  // The manager, built on first call; null while there is no QGuiApplication.
  // Asking again after it was deleted is an internal error.
  static ORQ_GDI_MANAGER* get_instance();
  // Deletes the manager; the application does this when it ends.
  static void delete_instance();

  // The settings-registry keys of the three kinds and their version values.
  static const QString k_colors_key;
  static const QString k_pens_key;
  static const QString k_fonts_key;
  static constexpr int k_version = 11;

  // Null for an identifier the tables do not have.
  const ORQ_COLOR_DATA* get_color_data(ORQ_COLOR_RESOURCE color) const;
  const ORQ_PEN_DATA* get_pen_data(ORQ_PEN_RESOURCE pen) const;
  const ORQ_BRUSH_DATA* get_brush_data(ORQ_BRUSH_RESOURCE brush) const;
  const ORQ_FONT_DATA* get_font_data(ORQ_FONT_RESOURCE font) const;

  // A system colour answers the application palette at the time of the call.
  QColor get_color(ORQ_COLOR_RESOURCE color) const;
  // What a pen or brush of the table paints with now: in its colour's
  // current value, a system colour read from the palette at the call.
  QPen get_pen(ORQ_PEN_RESOURCE pen) const;
  QBrush get_brush(ORQ_BRUSH_RESOURCE brush) const;
  void set_color(ORQ_COLOR_RESOURCE color, const QColor& value);
  void set_pen_color(ORQ_PEN_RESOURCE pen, ORQ_COLOR_RESOURCE color);
  void set_pen_width(ORQ_PEN_RESOURCE pen, int width);
  void set_pen(ORQ_PEN_RESOURCE pen, ORQ_COLOR_RESOURCE color, const QPen& value);
  void set_brush_color(ORQ_BRUSH_RESOURCE brush, ORQ_COLOR_RESOURCE color);
  void set_font(ORQ_FONT_RESOURCE font, ORQ_COLOR_RESOURCE text, ORQ_COLOR_RESOURCE background,
                const QFont& value);
  void reset_colors(const std::set<ORQ_COLOR_RESOURCE>& color_set);
  void reset_fonts(const std::set<ORQ_FONT_RESOURCE>& font_set);
  void refresh_pen_and_brush_colors();

  // Overrides in the per-user settings registry.
  void load_colors();
  void load_pens();
  void load_fonts();
  void save_colors();
  void save_pens();
  void save_fonts();

  // A switch for tools whose own colour editors offer colours that are not
  // changeable; the manager keeps it for them and does not consult it.
  void set_change_non_windows_color(bool on);
  bool get_change_non_windows_color() const;

  // How stored values are written and read back; parse_* return false for a
  // value that does not parse, leaving the outputs alone.
  static QString format_pen(const ORQ_PEN_DATA& pen);
  static QString format_font(const ORQ_FONT_DATA& font);
  bool parse_pen(const QString& text, ORQ_COLOR_RESOURCE* color, QPen* pen) const;
  bool parse_font(const QString& text, ORQ_FONT_DATA* font) const;
  ORQ_COLOR_RESOURCE find_color(const QString& name) const;

  static bool m_instance_has_been_deleted;

private:
  ORQ_GDI_MANAGER();
  ~ORQ_GDI_MANAGER();
  ORQ_COLOR_DATA& color_data(ORQ_COLOR_RESOURCE color);
  ORQ_PEN_DATA& pen_data(ORQ_PEN_RESOURCE pen);
  ORQ_BRUSH_DATA& brush_data(ORQ_BRUSH_RESOURCE brush);
  ORQ_FONT_DATA& font_data(ORQ_FONT_RESOURCE font);
  bool overrides_apply(const QString& key, const QString& version_name) const;

  // The four tables, indexed by identifier.
  std::unique_ptr<ORQ_GDI_TABLES> m_tables;
  QHash<QString, ORQ_COLOR_RESOURCE> m_color_names;
  bool m_change_non_windows_color = false;
};
