// The manager and the wrappers against real settings files in the test's
// private home.
#include "orq_test_support.h"

#include <orq.h>

#include <gen_message_service.h>
#include <gen_settings.h>

#include "orq_theme_id_map_p.h"

#include <QSettings>

namespace {
ORQ_GDI_MANAGER* mgr()
{
  return ORQ_GDI_MANAGER::get_instance();
}

// Writes raw values into the registry and reloads every kind from it.
void store_and_load(const QString& key, const QVariantMap& values)
{
  for (auto it = values.cbegin(); it != values.cend(); ++it)
    gen_settings().set_value(key, it.key(), it.value());
  gen_settings().sync();
  mgr()->load_colors();
  mgr()->load_pens();
  mgr()->load_fonts();
}

void clear_settings()
{
  for (const QString& key :
       {ORQ_GDI_MANAGER::k_colors_key, ORQ_GDI_MANAGER::k_pens_key, ORQ_GDI_MANAGER::k_fonts_key})
    for (const QString& name : gen_settings().names(key))
      gen_settings().remove(key, name);
  gen_settings().sync();
  mgr()->load_colors();
  mgr()->load_pens();
  mgr()->load_fonts();
}

// A tool's wrappers that write something of their own after the theme's
// part: written as a tool writes them against the headers, with override.
template <typename BASE> class TOOL_WRAPPER : public BASE {
public:
  using BASE::BASE;
  QDataStream& operator<<(QDataStream& stream) override
  {
    BASE::operator<<(stream);
    return stream << QStringLiteral("tool");
  }
};

QString stored(const QString& key, const QString& name)
{
  // Read the file itself, not the registry's cache.
  gen_settings().sync();
  QSettings file(gen_settings().file_name(), QSettings::IniFormat);
  return file.value(key + QLatin1Char('/') + name).toString();
}
} // namespace

class TST_THEME_MANAGER : public QObject {
  Q_OBJECT
private slots:
  void initTestCase() { orq_test_strict_messages(); }
  void init() { clear_settings(); }
  void cleanupTestCase() { clear_settings(); }

  void colour_overrides_data()
  {
    QTest::addColumn<int>("version");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("expected");
    QTest::newRow("changeable colour, version 11") << 11 << "ORQ_GED_NET_COLOR"
                                                   << "#123456"
                                                   << "#123456";
    QTest::newRow("upper-case hex digits") << 11 << "ORQ_GED_NET_COLOR"
                                           << "#ABCDEF"
                                           << "#abcdef";
    QTest::newRow("version 10 is ignored") << 10 << "ORQ_GED_NET_COLOR"
                                           << "#123456"
                                           << "#1b5e20";
    QTest::newRow("no version is ignored") << 0 << "ORQ_GED_NET_COLOR"
                                           << "#123456"
                                           << "#1b5e20";
    QTest::newRow("not changeable") << 11 << "ORQ_RED_COLOR"
                                    << "#123456"
                                    << "#ff0000";
    QTest::newRow("fixed tool colour") << 11 << "ORQ_IO_BANK_3_COLOR"
                                       << "#123456"
                                       << "#2ca02c";
    QTest::newRow("colour name") << 11 << "ORQ_GED_NET_COLOR"
                                 << "red"
                                 << "#ff0000";
    QTest::newRow("colour name in capitals") << 11 << "ORQ_GED_NET_COLOR"
                                             << "DarkOrange"
                                             << "#ff8c00";
    QTest::newRow("three digits") << 11 << "ORQ_GED_NET_COLOR"
                                  << "#abc"
                                  << "#aabbcc";
    QTest::newRow("twelve digits") << 11 << "ORQ_GED_NET_COLOR"
                                   << "#111122223333"
                                   << "#112233";
    QTest::newRow("not a colour name") << 11 << "ORQ_GED_NET_COLOR"
                                       << "reddish"
                                       << "#1b5e20";
    QTest::newRow("name after a blank") << 11 << "ORQ_GED_NET_COLOR"
                                        << " #123456"
                                        << "#1b5e20";
    QTest::newRow("five digits") << 11 << "ORQ_GED_NET_COLOR"
                                 << "#12345"
                                 << "#1b5e20";
    QTest::newRow("seven digits") << 11 << "ORQ_GED_NET_COLOR"
                                  << "#1234567"
                                  << "#1b5e20";
    QTest::newRow("not hexadecimal") << 11 << "ORQ_GED_NET_COLOR"
                                     << "#12345g"
                                     << "#1b5e20";
    QTest::newRow("empty") << 11 << "ORQ_GED_NET_COLOR"
                           << ""
                           << "#1b5e20";
    QTest::newRow("huge text") << 11 << "ORQ_GED_NET_COLOR" << QString(100000, QLatin1Char('#')) << "#1b5e20";
  }

  void colour_overrides()
  {
    QFETCH(int, version);
    QFETCH(QString, name);
    QFETCH(QString, value);
    QFETCH(QString, expected);
    QVariantMap values{{name, value}, {QStringLiteral("ORQ_MSW_INFO_COLOR"), QStringLiteral("#010203")}};
    if (version)
      values.insert(QStringLiteral("Color_version"), version);
    store_and_load(ORQ_GDI_MANAGER::k_colors_key, values);
    const ORQ_COLOR_RESOURCE id = mgr()->find_color(name);
    QCOMPARE(ORQ_COLOR(id).get_color().name(), expected);
    // Pens drawn in the colour take it at once, with no refresh asked for.
    if (id == ORQ_GED_NET_COLOR) {
      QCOMPARE(ORQ_PEN(ORQ_GED_NET_PEN).get_pen()->color().name(), expected);
      QCOMPARE(mgr()->get_pen_data(ORQ_GED_NET_PEN)->m_pen.color().name(), expected);
    }
    // A bad value loses nothing else.
    QCOMPARE(ORQ_COLOR(ORQ_MSW_INFO_COLOR).get_color().name(),
             version == 11 ? QStringLiteral("#010203") : QStringLiteral("#008000"));
  }

  void stored_value_for_a_system_colour_is_ignored()
  {
    store_and_load(ORQ_GDI_MANAGER::k_colors_key,
                   {{QStringLiteral("Color_version"), 11},
                    {QStringLiteral("ORQ_WINDOW_TEXT_COLOR"), QStringLiteral("#123456")}});
    QCOMPARE(ORQ_COLOR(ORQ_WINDOW_TEXT_COLOR).get_color(),
             QGuiApplication::palette().color(QPalette::WindowText));
  }

  void saving_writes_version_11_and_only_what_changed()
  {
    store_and_load(ORQ_GDI_MANAGER::k_colors_key,
                   {{QStringLiteral("Color_version"), 10},
                    {QStringLiteral("ORQ_GED_BUS_COLOR"), QStringLiteral("#111111")}});
    ORQ_COLOR::set_default_color(ORQ_GED_NET_COLOR, QColor(0x20, 0x30, 0x40));
    ORQ_COLOR::set_default_color(ORQ_GED_GRID_COLOR, QColor(0x10, 0x10, 0x10));
    ORQ_COLOR::set_default_color(ORQ_GED_GRID_COLOR, QColor(QStringLiteral("#e4e7eb"))); // back to default
    ORQ_COLOR::set_default_color(ORQ_RED_COLOR, QColor(0, 0, 1)); // a tool may; it is never saved
    ORQ_COLOR::save_colors_in_registry();
    QCOMPARE(stored(ORQ_GDI_MANAGER::k_colors_key, QStringLiteral("Color_version")), QStringLiteral("11"));
    QCOMPARE(stored(ORQ_GDI_MANAGER::k_colors_key, QStringLiteral("ORQ_GED_NET_COLOR")),
             QStringLiteral("#203040"));
    QCOMPARE(stored(ORQ_GDI_MANAGER::k_colors_key, QStringLiteral("ORQ_GED_GRID_COLOR")), QString());
    QCOMPARE(stored(ORQ_GDI_MANAGER::k_colors_key, QStringLiteral("ORQ_GED_BUS_COLOR")), QString());
    QCOMPARE(stored(ORQ_GDI_MANAGER::k_colors_key, QStringLiteral("ORQ_RED_COLOR")), QString());
    QCOMPARE(ORQ_COLOR(ORQ_RED_COLOR).get_color(), QColor(0, 0, 1));
    // The file reads back as it was written.
    GEN_SETTINGS reread(gen_settings().file_name());
    QCOMPARE(reread.problem(), QString());
    mgr()->load_colors();
    QCOMPARE(ORQ_COLOR(ORQ_GED_NET_COLOR).get_color(), QColor(0x20, 0x30, 0x40));
    QCOMPARE(ORQ_COLOR(ORQ_RED_COLOR).get_color(), QColor(255, 0, 0));
  }

  void regression_test_mode_ignores_overrides()
  {
    gen_message_service().set_regression_test_mode(true);
    store_and_load(ORQ_GDI_MANAGER::k_colors_key,
                   {{QStringLiteral("Color_version"), 11},
                    {QStringLiteral("ORQ_GED_NET_COLOR"), QStringLiteral("#123456")}});
    gen_message_service().set_regression_test_mode(false);
    QCOMPARE(ORQ_COLOR(ORQ_GED_NET_COLOR).get_color().name(), QStringLiteral("#1b5e20"));
  }

  void pen_overrides_data()
  {
    QTest::addColumn<QString>("value");
    QTest::addColumn<bool>("applied");
    QTest::newRow("valid") << "ORQ_RED_COLOR 2 32 128 5 4294901760" << true;
    QTest::newRow("five fields") << "ORQ_RED_COLOR 2 32 128 5" << false;
    QTest::newRow("seven fields") << "ORQ_RED_COLOR 2 32 128 5 4294901760 9" << false;
    QTest::newRow("unknown colour name") << "ORQ_NO_SUCH_COLOR 2 32 128 5 4294901760" << false;
    QTest::newRow("pen style out of range") << "ORQ_RED_COLOR 99 32 128 5 4294901760" << false;
    QTest::newRow("cap style out of range") << "ORQ_RED_COLOR 2 7 128 5 4294901760" << false;
    QTest::newRow("join style out of range") << "ORQ_RED_COLOR 2 32 3 5 4294901760" << false;
    QTest::newRow("negative width") << "ORQ_RED_COLOR 2 32 128 -1 4294901760" << false;
    QTest::newRow("huge width") << "ORQ_RED_COLOR 2 32 128 99999999999 4294901760" << false;
    QTest::newRow("rgb beyond 32 bits") << "ORQ_RED_COLOR 2 32 128 5 99999999999" << false;
    QTest::newRow("words") << "a pen that is red" << false;
  }

  void pen_overrides()
  {
    QFETCH(QString, value);
    QFETCH(bool, applied);
    store_and_load(ORQ_GDI_MANAGER::k_pens_key,
                   {{QStringLiteral("Pen_version"), 11}, {QStringLiteral("ORQ_GED_NET_PEN"), value}});
    ORQ_PEN pen(ORQ_GED_NET_PEN);
    if (applied) {
      QCOMPARE(pen.get_style(), Qt::DashLine);
      QCOMPARE(pen.get_cap_style(), Qt::RoundCap);
      QCOMPARE(pen.get_pen()->joinStyle(), Qt::RoundJoin);
      QCOMPARE(pen.get_width(), 5);
      QCOMPARE(pen.get_color(), ORQ_COLOR(ORQ_RED_COLOR));
      ORQ_PEN::save_pens_in_registry();
      QCOMPARE(stored(ORQ_GDI_MANAGER::k_pens_key, QStringLiteral("ORQ_GED_NET_PEN")), value);
    } else {
      QCOMPARE(pen.get_style(), Qt::SolidLine);
      QCOMPARE(pen.get_width(), 1);
      QCOMPARE(pen.get_color(), ORQ_COLOR(ORQ_GED_NET_COLOR));
    }
  }

  void font_overrides_data()
  {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("value");
    QTest::addColumn<bool>("applied");
    const QString good = QStringLiteral("1 ORQ_RED_COLOR ORQ_WHITE_COLOR 14 1 1 0 0 0 5, DejaVu Serif");
    QTest::newRow("valid") << "ORQ_GUI_FONT" << good << true;
    QTest::newRow("not changeable") << "ORQ_TOOLTIP_FONT" << good << false;
    QTest::newRow("nine fields") << "ORQ_GUI_FONT"
                                 << "1 ORQ_RED_COLOR ORQ_WHITE_COLOR 14 1 1 0 0 0, DejaVu Serif" << false;
    QTest::newRow("eleven fields") << "ORQ_GUI_FONT"
                                   << "1 ORQ_RED_COLOR ORQ_WHITE_COLOR 14 1 1 0 0 0 5 3, DejaVu Serif"
                                   << false;
    QTest::newRow("no face") << "ORQ_GUI_FONT"
                             << "1 ORQ_RED_COLOR ORQ_WHITE_COLOR 14 1 1 0 0 0 5, " << false;
    QTest::newRow("no comma") << "ORQ_GUI_FONT"
                              << "1 ORQ_RED_COLOR ORQ_WHITE_COLOR 14 1 1 0 0 0 5 DejaVu Serif" << false;
    QTest::newRow("flag not 0 or 1") << "ORQ_GUI_FONT"
                                     << "2 ORQ_RED_COLOR ORQ_WHITE_COLOR 14 1 1 0 0 0 5, DejaVu Serif"
                                     << false;
    QTest::newRow("unknown colour") << "ORQ_GUI_FONT"
                                    << "1 RED ORQ_WHITE_COLOR 14 1 1 0 0 0 5, DejaVu Serif" << false;
    QTest::newRow("huge point size") << "ORQ_GUI_FONT"
                                     << "1 ORQ_RED_COLOR ORQ_WHITE_COLOR 99999999 1 1 0 0 0 5, X" << false;
    QTest::newRow("zero point size") << "ORQ_GUI_FONT"
                                     << "1 ORQ_RED_COLOR ORQ_WHITE_COLOR 0 1 1 0 0 0 5, X" << false;
    QTest::newRow("style hint out of range") << "ORQ_GUI_FONT"
                                             << "1 ORQ_RED_COLOR ORQ_WHITE_COLOR 14 1 1 0 0 0 42, X" << false;
  }

  void font_overrides()
  {
    QFETCH(QString, name);
    QFETCH(QString, value);
    QFETCH(bool, applied);
    store_and_load(ORQ_GDI_MANAGER::k_fonts_key, {{QStringLiteral("Font_version"), 11}, {name, value}});
    const ORQ_FONT_RESOURCE id = name == QLatin1String("ORQ_GUI_FONT") ? ORQ_GUI_FONT : ORQ_TOOLTIP_FONT;
    const ORQ_FONT font(id);
    if (applied) {
      QCOMPARE(font.get_face_name(), QStringLiteral("DejaVu Serif"));
      QCOMPARE(font.get_point_size(), 14);
      QVERIFY(font.get_bold());
      QVERIFY(font.get_italic());
      QCOMPARE(font.get_text_color(), ORQ_COLOR(ORQ_RED_COLOR));
      QCOMPARE(font.get_background_color(), ORQ_COLOR(ORQ_WHITE_COLOR));
      ORQ_FONT::save_fonts_in_registry();
      QCOMPARE(stored(ORQ_GDI_MANAGER::k_fonts_key, name), value);
    } else {
      QCOMPARE(font.get_face_name(), QStringLiteral("Corvan Clear"));
      QCOMPARE(font.get_point_size(), 9);
      QVERIFY(!font.get_italic());
    }
  }

  void system_colours_follow_the_palette()
  {
    const QPalette original = QGuiApplication::palette();
    const ORQ_COLOR text(ORQ_WINDOW_TEXT_COLOR);
    ORQ_PEN pen(ORQ_WINDOW_TEXT_PEN);
    ORQ_PEN tracker(ORQ_RECT_TRACKER_DOTTED_PEN);
    ORQ_BRUSH brush(ORQ_WINDOW_TEXT_BRUSH);
    QPalette changed = original;
    changed.setColor(QPalette::WindowText, QColor(1, 2, 3));
    changed.setColor(QPalette::Highlight, QColor(4, 5, 6));
    QApplication::setPalette(changed);
    // Nobody refreshes: wrappers and the manager's records follow by themselves.
    QCOMPARE(text.get_color(), QColor(1, 2, 3));
    QCOMPARE(pen.get_pen()->color(), QColor(1, 2, 3));
    QCOMPARE(tracker.get_pen()->color(), QColor(4, 5, 6));
    QCOMPARE(tracker.get_pen()->style(), Qt::DotLine);
    QCOMPARE(brush.get_brush().color(), QColor(1, 2, 3));
    QCOMPARE(mgr()->get_pen_data(ORQ_WINDOW_TEXT_PEN)->m_pen.color(), QColor(1, 2, 3));
    QCOMPARE(mgr()->get_brush_data(ORQ_WINDOW_HIGHLIGHT_BRUSH)->m_brush.color(), QColor(4, 5, 6));
    // A literal copy keeps the colour it was made in.
    ORQ_PEN literal = tracker;
    literal.set_width(3);
    QApplication::setPalette(original);
    QCOMPARE(literal.get_pen()->color(), QColor(4, 5, 6));
    QCOMPARE(text.get_color(), original.color(QPalette::WindowText));
    QCOMPARE(tracker.get_pen()->color(), original.color(QPalette::Highlight));
    QCOMPARE(mgr()->get_pen_data(ORQ_RECT_TRACKER_SOLID_PEN)->m_pen.color(),
             original.color(QPalette::Highlight));
  }

  void a_tool_may_set_a_colour_users_may_not_change()
  {
    QVERIFY(!ORQ_COLOR::can_change_default_color(ORQ_CORVAN_RED_COLOR));
    ORQ_COLOR::set_default_color(ORQ_CORVAN_RED_COLOR, QColor(9, 8, 7));
    QCOMPARE(ORQ_COLOR(ORQ_CORVAN_RED_COLOR).get_color(), QColor(9, 8, 7));
    ORQ_COLOR::set_default_color(ORQ_BLACK_COLOR, QColor(1, 1, 1));
    QCOMPARE(ORQ_PEN(ORQ_BLACK_PEN).get_pen()->color(), QColor(1, 1, 1));
    ORQ_COLOR::save_colors_in_registry();
    QCOMPARE(stored(ORQ_GDI_MANAGER::k_colors_key, QStringLiteral("ORQ_CORVAN_RED_COLOR")), QString());
    QCOMPARE(stored(ORQ_GDI_MANAGER::k_colors_key, QStringLiteral("ORQ_BLACK_COLOR")), QString());
  }

  void wrappers_follow_their_resource_until_set_to_a_literal()
  {
    ORQ_COLOR net(ORQ_GED_NET_COLOR);
    ORQ_COLOR literal(QColor(9, 9, 9));
    ORQ_COLOR::set_default_color(ORQ_GED_NET_COLOR, QColor(7, 7, 7));
    QCOMPARE(net.get_color(), QColor(7, 7, 7));
    QCOMPARE(literal.get_color(), QColor(9, 9, 9));
    net.set_color(QColor(1, 1, 1));
    QCOMPARE(net.get_resource(), ORQ_MIN_COLOR);
    ORQ_COLOR::set_default_color(ORQ_GED_NET_COLOR, QColor(8, 8, 8));
    QCOMPARE(net.get_color(), QColor(1, 1, 1));
    ORQ_COLOR::reset_colors({ORQ_GED_NET_COLOR});
    QCOMPARE(ORQ_COLOR(ORQ_GED_NET_COLOR).get_color().name(), QStringLiteral("#1b5e20"));

    ORQ_PEN pen(ORQ_GED_BUS_PEN);
    ORQ_PEN::set_default_pen_width(ORQ_GED_BUS_PEN, 6);
    QCOMPARE(pen.get_width(), 6);
    pen.set_width(2);
    QCOMPARE(pen.get_resource(), ORQ_MIN_PEN);
    QCOMPARE(ORQ_PEN(ORQ_GED_BUS_PEN).get_width(), 6);
    ORQ_PEN::set_default_pen_color(ORQ_GED_BUS_PEN, ORQ_RED_COLOR);
    QCOMPARE(ORQ_PEN(ORQ_GED_BUS_PEN).get_color(), ORQ_COLOR(ORQ_RED_COLOR));
    QCOMPARE(ORQ_PEN(ORQ_GED_BUS_PEN).get_pen()->color(), QColor(255, 0, 0));

    ORQ_FONT font(ORQ_HEADER_FOOTER_FONT);
    ORQ_FONT copy = ORQ_FONT::get_default_font(ORQ_HEADER_FOOTER_FONT);
    copy.set_point_size(20);
    ORQ_FONT::set_default_font(ORQ_HEADER_FOOTER_FONT, &copy);
    QCOMPARE(font.get_point_size(), 20);
    ORQ_FONT::reset_fonts({ORQ_HEADER_FOOTER_FONT});
    QCOMPARE(font.get_point_size(), 10);
    QVERIFY(ORQ_FONT::can_change_default_font(ORQ_HEADER_FOOTER_FONT));
    QVERIFY(!ORQ_FONT::can_change_default_font(ORQ_TOOLTIP_FONT));
    QVERIFY(ORQ_COLOR::can_change_default_color(ORQ_GENERAL_BACKGROUND_COLOR));
    QVERIFY(!ORQ_COLOR::can_change_default_color(ORQ_WINDOW_TEXT_COLOR));
  }

  void streams_round_trip()
  {
    QByteArray bytes;
    {
      QDataStream out(&bytes, QIODevice::WriteOnly);
      ORQ_COLOR(ORQ_GED_NET_COLOR) << out;
      ORQ_COLOR(QColor(1, 2, 3, 4)) << out;
      ORQ_PEN(ORQ_GED_BUS_PEN) << out;
      ORQ_BRUSH(Qt::Dense4Pattern, ORQ_COLOR(QColor(5, 6, 7))) << out;
      ORQ_FONT(ORQ_MSG_TEXT_FONT) << out;
    }
    QDataStream in(bytes);
    ORQ_COLOR a;
    ORQ_COLOR b;
    ORQ_PEN pen{QPen()};
    ORQ_BRUSH brush(Qt::NoBrush, ORQ_COLOR());
    ORQ_FONT font(ORQ_GUI_FONT);
    a >> in;
    b >> in;
    pen >> in;
    brush >> in;
    font >> in;
    QCOMPARE(a, ORQ_COLOR(ORQ_GED_NET_COLOR));
    QCOMPARE(b.get_color(), QColor(1, 2, 3, 4));
    QCOMPARE(pen, ORQ_PEN(ORQ_GED_BUS_PEN));
    QCOMPARE(brush.get_style(), Qt::Dense4Pattern);
    QCOMPARE(brush.get_color().get_color(), QColor(5, 6, 7));
    QCOMPARE(font, ORQ_FONT(ORQ_MSG_TEXT_FONT));
  }

  void a_tool_overrides_what_wrappers_write()
  {
    TOOL_WRAPPER<ORQ_COLOR> color(ORQ_GED_NET_COLOR);
    TOOL_WRAPPER<ORQ_PEN> pen(ORQ_GED_BUS_PEN);
    TOOL_WRAPPER<ORQ_BRUSH> brush(ORQ_WINDOW_TEXT_BRUSH);
    TOOL_WRAPPER<ORQ_FONT> font(ORQ_MSG_TEXT_FONT);
    QByteArray bytes;
    {
      QDataStream out(&bytes, QIODevice::WriteOnly);
      // Through the base classes, as library code that keeps wrappers writes them.
      static_cast<ORQ_COLOR&>(color) << out;
      static_cast<ORQ_PEN&>(pen) << out;
      static_cast<ORQ_BRUSH&>(brush) << out;
      static_cast<ORQ_FONT&>(font) << out;
    }
    QDataStream in(bytes);
    QString tag;
    ORQ_COLOR c;
    c >> in;
    in >> tag;
    QCOMPARE(tag, QStringLiteral("tool"));
    ORQ_PEN p{QPen()};
    p >> in;
    in >> tag;
    QCOMPARE(tag, QStringLiteral("tool"));
    ORQ_BRUSH b(Qt::NoBrush, ORQ_COLOR());
    b >> in;
    in >> tag;
    QCOMPARE(tag, QStringLiteral("tool"));
    ORQ_FONT f(ORQ_GUI_FONT);
    f >> in;
    in >> tag;
    QCOMPARE(tag, QStringLiteral("tool"));
    QCOMPARE(f, ORQ_FONT(ORQ_MSG_TEXT_FONT));
    QVERIFY(in.atEnd());
  }

  void internal_errors_data()
  {
    QTest::addColumn<int>("which");
    QTest::addColumn<QString>("condition");
    QTest::newRow("colour resource 0") << 0 << "color != ORQ_MIN_COLOR";
    QTest::newRow("pen resource 0") << 1 << "pen != ORQ_MIN_PEN";
    QTest::newRow("brush resource 0") << 2 << "brush != ORQ_MIN_BRUSH";
    QTest::newRow("font resource 0") << 3 << "font != ORQ_MIN_FONT";
    QTest::newRow("retired colour 544") << 4 << "color_data != NULL";
    QTest::newRow("negative pen width") << 5 << "width >= 0";
    QTest::newRow("reset no colours") << 6 << "!color_set.empty()";
    QTest::newRow("reset no fonts") << 7 << "!font_set.empty()";
    QTest::newRow("empty face name") << 8 << "!face_name.isEmpty()";
    QTest::newRow("unknown pen in the manager") << 9 << "i != m_pens.end()";
    QTest::newRow("retired pen 17") << 15 << "pen_data != NULL";
    QTest::newRow("brush beyond the table") << 16 << "brush_data != NULL";
    QTest::newRow("font beyond the table") << 17 << "font_data != NULL";
    QTest::newRow("identifier twice in a table") << 18 << "inserted.second";
    QTest::newRow("truncated colour stream") << 10 << "Error in ORQ_COLOR::operator >>";
    QTest::newRow("truncated pen stream") << 11 << "Error at ORQ_PEN::operator >>";
    QTest::newRow("truncated brush stream") << 12 << "Error in ORQ_BRUSH::operator >>";
    QTest::newRow("truncated font stream") << 13 << "Error at ORQ_FONT::operator >>";
    QTest::newRow("stream naming an unknown colour") << 14 << "Error in ORQ_COLOR::operator >>";
  }

  void internal_errors()
  {
    QFETCH(int, which);
    QFETCH(QString, condition);
    QByteArray truncated;
    {
      QDataStream out(&truncated, QIODevice::WriteOnly);
      out << qint32(ORQ_GED_NET_COLOR);
    }
    QByteArray unknown;
    {
      QDataStream out(&unknown, QIODevice::WriteOnly);
      out << qint32(544) << QColor(1, 2, 3);
    }
    const QString reported = orq_test_internal_error([&] {
      QDataStream in(which == 14 ? unknown : truncated);
      switch (which) {
      case 0:
        (void)ORQ_COLOR(ORQ_MIN_COLOR);
        break;
      case 1:
        (void)ORQ_PEN(ORQ_MIN_PEN);
        break;
      case 2:
        (void)ORQ_BRUSH(ORQ_MIN_BRUSH);
        break;
      case 3:
        (void)ORQ_FONT(ORQ_MIN_FONT);
        break;
      case 4:
        (void)ORQ_COLOR(ORQ_COLOR_RESOURCE(544));
        break;
      case 5:
        ORQ_PEN::set_default_pen_width(ORQ_GED_NET_PEN, -1);
        break;
      case 6:
        ORQ_COLOR::reset_colors({});
        break;
      case 7:
        ORQ_FONT::reset_fonts({});
        break;
      case 8:
        ORQ_FONT(ORQ_GUI_FONT).set_face_name(QString());
        break;
      case 9:
        ORQ_PEN::set_default_pen_width(ORQ_PEN_RESOURCE(17), 1);
        break;
      case 10:
      case 14: {
        ORQ_COLOR c;
        c >> in;
        break;
      }
      case 11: {
        ORQ_PEN p{QPen()};
        p >> in;
        break;
      }
      case 12: {
        ORQ_BRUSH b(Qt::NoBrush, ORQ_COLOR());
        b >> in;
        break;
      }
      case 13: {
        ORQ_FONT f(ORQ_GUI_FONT);
        f >> in;
        break;
      }
      case 15:
        (void)ORQ_PEN(ORQ_PEN_RESOURCE(17));
        break;
      case 16:
        (void)ORQ_BRUSH(ORQ_BRUSH_RESOURCE(30));
        break;
      case 17:
        (void)ORQ_FONT(ORQ_FONT_RESOURCE(103));
        break;
      case 18: {
        ORQ_THEME_ID_MAP<ORQ_PEN_DATA> pens;
        orq_theme_insert_row(pens, 29, ORQ_PEN_DATA());
        orq_theme_insert_row(pens, 29, ORQ_PEN_DATA());
        break;
      }
      }
    });
    QCOMPARE(reported, condition);
  }
};

ORQ_TEST_REGISTER(TST_THEME_MANAGER);
#include "tst_theme_manager.moc"
