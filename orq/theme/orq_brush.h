#pragma once
// A brush that either follows a theme resource or holds a literal QBrush.
#include "orq_brush_resource.h"
#include "orq_color.h"
#include "orq_export.h"

#include <QBrush>

class ORQ_EXPORT ORQ_BRUSH {
public:
  ORQ_BRUSH(ORQ_BRUSH_RESOURCE brush);
  ORQ_BRUSH(Qt::BrushStyle style, ORQ_COLOR color);
  ORQ_BRUSH(const ORQ_BRUSH& other);
  virtual ~ORQ_BRUSH();
  ORQ_BRUSH& operator=(const ORQ_BRUSH& other);
  bool operator==(const ORQ_BRUSH& other) const;
  bool operator!=(const ORQ_BRUSH& other) const { return !(*this == other); }

  virtual QDataStream& operator>>(QDataStream& stream);
  virtual QDataStream& operator<<(QDataStream& stream);

  // The brush to paint with.
  QBrush get_brush() const;
  ORQ_COLOR get_color() const;
  Qt::BrushStyle get_style() const;
  ORQ_BRUSH_RESOURCE get_resource() const { return m_brush_resource; }

  void set_brush(const QBrush& brush);
  void set_brush(ORQ_BRUSH_RESOURCE brush);
  void set_brush(Qt::BrushStyle style, ORQ_COLOR color);
  void set_color(ORQ_COLOR color);
  void set_style(Qt::BrushStyle style);

  static void set_default_brush_color(ORQ_BRUSH_RESOURCE brush, ORQ_COLOR_RESOURCE color);

private:
  void make_literal();

  ORQ_BRUSH_RESOURCE m_brush_resource = ORQ_MIN_BRUSH;
  QBrush m_brush;
};
