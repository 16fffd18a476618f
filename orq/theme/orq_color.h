#pragma once
// A colour that either follows a theme resource (and every later change of
// it) or holds a literal QColor.
#include "orq_color_resource.h"
#include "orq_export.h"

#include <QColor>
#include <QDataStream>

#include <set>

class ORQ_EXPORT ORQ_COLOR {
public:
  ORQ_COLOR();  // literal opaque black
  ORQ_COLOR(ORQ_COLOR_RESOURCE color);
  ORQ_COLOR(const QColor& color);
  ORQ_COLOR(const ORQ_COLOR& other);
  virtual ~ORQ_COLOR();
  ORQ_COLOR& operator=(const ORQ_COLOR& other);
  bool operator==(const ORQ_COLOR& other) const;
  bool operator!=(const ORQ_COLOR& other) const { return !(*this == other); }

  // Reads this colour from the stream; writes it to the stream.
  virtual QDataStream& operator>>(QDataStream& stream);
  virtual QDataStream& operator<<(QDataStream& stream);

  QColor get_color() const;
  // ORQ_MIN_COLOR for a literal colour.
  ORQ_COLOR_RESOURCE get_resource() const { return m_color_resource; }
  void set_color(const QColor& color);
  void set_color(ORQ_COLOR_RESOURCE color);

  // The resource's current colour, which every wrapper of it follows.
  static QColor get_default_color(ORQ_COLOR_RESOURCE color);
  static void set_default_color(ORQ_COLOR_RESOURCE color, const QColor& value);
  static bool can_change_default_color(ORQ_COLOR_RESOURCE color);
  static void reset_colors(std::set<ORQ_COLOR_RESOURCE> color_set);
  static void save_colors_in_registry();
  static void refresh_pen_and_brush_colors();

private:
  ORQ_COLOR_RESOURCE m_color_resource = ORQ_MIN_COLOR;
  QColor m_color = QColor(0, 0, 0);
};
