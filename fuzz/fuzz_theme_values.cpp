// Stored theme values as a user's settings file may hold them after a hand
// edit or a crash: line one is a colour, line two a pen, line three a font.
// Whatever the text, the manager keeps pens and fonts that Qt can paint
// with, and painting with them stays inside the picture.
#include "orq_brush.h"
#include "orq_color.h"
#include "orq_font.h"
#include "orq_gdi_manager.h"
#include "orq_pen.h"

#include <gen_settings.h>

#include <QApplication>
#include <QDir>
#include <QImage>
#include <QPainter>

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
  static int argc = 1;
  static char name[] = "fuzz_theme_values";
  static char* argv[] = {name, nullptr};
  static QApplication* app = [] {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // The settings file goes into a private home, never the user's.
    const QString home = QDir::temp().filePath(QStringLiteral("fuzz_theme_values_home"));
    QDir().mkpath(home);
    qputenv("HOME", QFile::encodeName(home));
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(home + QStringLiteral("/.config")));
    return new QApplication(argc, argv);
  }();
  Q_UNUSED(app)
  const QStringList lines =
      QString::fromUtf8(reinterpret_cast<const char*>(data), int(size)).split(QLatin1Char('\n'));
  GEN_SETTINGS& settings = gen_settings();
  settings.set_value(ORQ_GDI_MANAGER::k_colors_key, QStringLiteral("Color_version"), 11);
  settings.set_value(ORQ_GDI_MANAGER::k_pens_key, QStringLiteral("Pen_version"), 11);
  settings.set_value(ORQ_GDI_MANAGER::k_fonts_key, QStringLiteral("Font_version"), 11);
  settings.set_value(ORQ_GDI_MANAGER::k_colors_key, QStringLiteral("ORQ_GED_NET_COLOR"), lines.value(0));
  settings.set_value(ORQ_GDI_MANAGER::k_pens_key, QStringLiteral("ORQ_GED_NET_PEN"), lines.value(1));
  settings.set_value(ORQ_GDI_MANAGER::k_fonts_key, QStringLiteral("ORQ_GUI_FONT"), lines.value(2));
  ORQ_GDI_MANAGER* mgr = ORQ_GDI_MANAGER::get_instance();
  mgr->load_colors();
  mgr->load_pens();
  mgr->load_fonts();

  ORQ_PEN pen(ORQ_GED_NET_PEN);
  const QPen* painted = pen.get_pen();
  const ORQ_FONT font(ORQ_GUI_FONT);
  if (!ORQ_COLOR(ORQ_GED_NET_COLOR).get_color().isValid() || painted->width() < 0 ||
      painted->width() > 1000 || font.get_point_size() < 1 || font.get_point_size() > 1000 ||
      font.get_face_name().isEmpty())
    std::abort();
  QImage image(16, 16, QImage::Format_ARGB32);
  QPainter painter(&image);
  painter.setPen(*painted);
  painter.setFont(font.get_font());
  painter.drawLine(0, 0, 15, 15);
  painter.drawText(QPointF(1, 12), QStringLiteral("Ag"));
  return 0;
}
