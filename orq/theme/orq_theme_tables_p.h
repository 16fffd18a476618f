#pragma once
// The built-in theme tables: one row per resource, as the generator wrote them.
#include "orq_brush_resource.h"
#include "orq_color_resource.h"
#include "orq_export.h"
#include "orq_font_resource.h"
#include "orq_pen_resource.h"

#include <QPalette>
#include <Qt>

struct ORQ_COLOR_ENTRY {
  ORQ_COLOR_RESOURCE id;
  const char* name;
  int system;                // read from the application palette at the time of use
  unsigned char changeable;  // the user may override it
  const char* color;         // "#rrggbb" or a colour name
  int role;                  // QPalette::ColorRole; 0 where unused
};

struct ORQ_PEN_ENTRY {
  ORQ_PEN_RESOURCE id;
  const char* name;
  ORQ_COLOR_RESOURCE color;
  Qt::PenStyle style;
  Qt::PenCapStyle cap;
  Qt::PenJoinStyle join;
  int width;
  int reserved;  // 0 in every row
};

struct ORQ_BRUSH_ENTRY {
  ORQ_BRUSH_RESOURCE id;
  ORQ_COLOR_RESOURCE color;
  Qt::BrushStyle style;
};

struct ORQ_FONT_ENTRY {
  ORQ_FONT_RESOURCE id;
  const char* name;
  unsigned char changeable;
  ORQ_COLOR_RESOURCE text_color;
  ORQ_COLOR_RESOURCE background_color;
  int point_size;
  unsigned char bold;
  unsigned char italic;
  unsigned char underline;
  unsigned char strike_out;
  int style_hint;  // QFont::StyleHint
  const char* face;
};

ORQ_EXPORT extern const ORQ_COLOR_ENTRY orq_color_table[];
ORQ_EXPORT extern const ORQ_PEN_ENTRY orq_pen_table[];
ORQ_EXPORT extern const ORQ_BRUSH_ENTRY orq_brush_table[];
ORQ_EXPORT extern const ORQ_FONT_ENTRY orq_font_table[];
ORQ_EXPORT extern const int orq_color_table_size;
ORQ_EXPORT extern const int orq_pen_table_size;
ORQ_EXPORT extern const int orq_brush_table_size;
ORQ_EXPORT extern const int orq_font_table_size;
