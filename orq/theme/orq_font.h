#pragma once
// A font with its text and background colours that either follows a theme
// resource or holds literal values.
#include "orq_color.h"
#include "orq_export.h"
#include "orq_font_resource.h"

#include <QFont>

#include <memory>
#include <set>

struct ORQ_FONT_RECORD {
  ORQ_COLOR m_text_color;
  ORQ_COLOR m_background_color;
  QFont m_font;
};

class ORQ_EXPORT ORQ_FONT {
public:
  ORQ_FONT(ORQ_FONT_RESOURCE font);
  ORQ_FONT(const ORQ_FONT& other);
  virtual ~ORQ_FONT();
  ORQ_FONT& operator=(const ORQ_FONT& other);
  bool operator==(const ORQ_FONT& other) const;
  bool operator!=(const ORQ_FONT& other) const { return !(*this == other); }

  virtual QDataStream& operator>>(QDataStream& stream);
  virtual QDataStream& operator<<(QDataStream& stream);

  // The font to draw with.
  QFont get_font() const;
  ORQ_COLOR get_text_color() const;
  ORQ_COLOR get_background_color() const;
  QString get_face_name() const;
  int get_point_size() const;
  bool get_bold() const;
  bool get_italic() const;
  ORQ_FONT_RESOURCE get_resource() const { return m_font_resource; }

  // Each of these turns a resource font into a literal one first.
  void set_text_color(ORQ_COLOR color);
  void set_background_color(ORQ_COLOR color);
  void set_face_name(const QString& face_name);
  void set_point_size(int point_size);
  void set_bold(bool bold);
  void set_italic(bool italic);
  void set_font(ORQ_COLOR text, ORQ_COLOR background, const QString& face, int point_size, bool bold,
                bool italic);
  void set_font(ORQ_FONT_RESOURCE font);

  // A literal copy of the resource's current font.
  static ORQ_FONT get_default_font(ORQ_FONT_RESOURCE font);
  static void set_default_font(ORQ_FONT_RESOURCE font, const ORQ_FONT* value);
  static bool can_change_default_font(ORQ_FONT_RESOURCE font);
  static void reset_fonts(std::set<ORQ_FONT_RESOURCE> font_set);
  static void save_fonts_in_registry();

private:
  ORQ_FONT_RECORD current() const;
  void make_literal();

  ORQ_FONT_RESOURCE m_font_resource = ORQ_MIN_FONT;
  std::unique_ptr<ORQ_FONT_RECORD> m_font;  // null while the font follows its resource
};
