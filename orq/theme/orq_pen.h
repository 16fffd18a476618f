#pragma once
// A pen that either follows a theme resource or holds a literal QPen.
#include "orq_color.h"
#include "orq_export.h"
#include "orq_pen_resource.h"

#include <QPen>

class ORQ_EXPORT ORQ_PEN {
public:
  ORQ_PEN(ORQ_PEN_RESOURCE pen);
  ORQ_PEN(const QPen& pen);
  ORQ_PEN(const ORQ_PEN& other);
  virtual ~ORQ_PEN();
  ORQ_PEN& operator=(const ORQ_PEN& other);
  bool operator==(const ORQ_PEN& other) const;
  bool operator!=(const ORQ_PEN& other) const { return !(*this == other); }

  virtual QDataStream& operator>>(QDataStream& stream);
  virtual QDataStream& operator<<(QDataStream& stream);

  // The pen to paint with: the resource's current pen, or the literal one.
  QPen* get_pen();
  ORQ_COLOR get_color() const;
  Qt::PenStyle get_style() const;
  Qt::PenCapStyle get_cap_style() const;
  int get_width() const;
  ORQ_PEN_RESOURCE get_resource() const { return m_pen_resource; }

  // Each of these turns a resource pen into a literal one first.
  void set_pen(const QPen& pen);
  void set_pen(ORQ_PEN_RESOURCE pen);
  void set_color(ORQ_COLOR color);
  void set_style(Qt::PenStyle style);
  void set_width(int width);

  static void set_default_pen_color(ORQ_PEN_RESOURCE pen, ORQ_COLOR_RESOURCE color);
  static void set_default_pen_width(ORQ_PEN_RESOURCE pen, int width);
  static void save_pens_in_registry();

private:
  QPen current() const;
  void make_literal();

  ORQ_PEN_RESOURCE m_pen_resource = ORQ_MIN_PEN;
  QPen m_pen;
};
