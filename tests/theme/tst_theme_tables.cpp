// The theme tables against the numbers and rows they must keep.
#include "orq_test_support.h"

#include "orq_theme_tables_p.h"

#include <orq.h>

#include <QFont>
#include <QRegularExpression>

namespace {
QMap<int, const ORQ_COLOR_ENTRY*> colors_by_id()
{
  QMap<int, const ORQ_COLOR_ENTRY*> map;
  for (int i = 0; i < orq_color_table_size; ++i)
    map.insert(orq_color_table[i].id, &orq_color_table[i]);
  return map;
}

const ORQ_COLOR_ENTRY* color_named(const QString& name)
{
  for (int i = 0; i < orq_color_table_size; ++i)
    if (QLatin1String(orq_color_table[i].name) == name)
      return &orq_color_table[i];
  return nullptr;
}

const ORQ_PEN_ENTRY* pen_by_id(int id)
{
  for (int i = 0; i < orq_pen_table_size; ++i)
    if (orq_pen_table[i].id == id)
      return &orq_pen_table[i];
  return nullptr;
}

const ORQ_FONT_ENTRY* font_by_id(int id)
{
  for (int i = 0; i < orq_font_table_size; ++i)
    if (orq_font_table[i].id == id)
      return &orq_font_table[i];
  return nullptr;
}
}  // namespace

class TST_THEME_TABLES : public QObject {
  Q_OBJECT
private slots:
  void initTestCase() { orq_test_strict_messages(); }

  void color_table_shape()
  {
    const auto map = colors_by_id();
    QCOMPARE(orq_color_table_size, 572);
    QCOMPARE(map.size(), 572);
    QCOMPARE(map.firstKey(), 1);
    QCOMPARE(map.lastKey(), 576);
    QCOMPARE(int(ORQ_MAX_COLOR), 577);
    for (int unused : {544, 545, 554, 555})
      QVERIFY2(!map.contains(unused), qPrintable(QString::number(unused)));
    int changeable = 0;
    QSet<QString> names;
    static const QRegularExpression name_rule(QStringLiteral("^ORQ_[A-Z0-9_]+_COLOR$|^ORQ_COLOR_CORVAN_[A-Z_0-9]+$"));
    for (int i = 0; i < orq_color_table_size; ++i) {
      const ORQ_COLOR_ENTRY& e = orq_color_table[i];
      changeable += e.changeable;
      names.insert(QLatin1String(e.name));
      QVERIFY2(name_rule.match(QLatin1String(e.name)).hasMatch(), e.name);
      QVERIFY2(QColor(QLatin1String(e.color)).isValid(), e.name);
      QCOMPARE(QColor(QLatin1String(e.color)).alpha(), 255);
      if (i > 0)
        QVERIFY(e.id > orq_color_table[i - 1].id);  // table order is identifier order
    }
    QCOMPARE(changeable, 427);
    QCOMPARE(names.size(), 572);
  }

  void named_colors_data()
  {
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("id");
    QTest::addColumn<QString>("color");
    QTest::addColumn<int>("changeable");
    QTest::addColumn<int>("system");
    QTest::addColumn<int>("role");
    const char* basic[][2] = {{"BLACK", "#000000"},      {"WHITE", "#ffffff"},     {"BLUE", "#0000ff"},
                              {"GREEN", "#00ff00"},      {"RED", "#ff0000"},       {"CYAN", "#00ffff"},
                              {"PINK", "#ff00ff"},       {"YELLOW", "#ffff00"},    {"DARK_BLUE", "#000080"},
                              {"DARK_GREEN", "#008000"}, {"DARK_RED", "#800000"},  {"DARK_CYAN", "#008080"},
                              {"DARK_PINK", "#800080"},  {"BROWN", "#808000"},     {"DARK_GRAY", "#808080"},
                              {"GRAY", "#c0c0c0"},       {"STEEL_BLUE", "#004be6"}, {"PURPLE", "#432fdb"},
                              {"DARK_ORANGE", "#ff8c00"}};
    for (int i = 0; i < 19; ++i) {
      const QString name = QStringLiteral("ORQ_%1_COLOR").arg(QLatin1String(basic[i][0]));
      QTest::newRow(qPrintable(name)) << name << i + 1 << basic[i][1] << 0 << 0 << 0;
    }
    const char* system[][2] = {{"WINDOW_TEXT", "WindowText"},
                               {"WINDOW_BACKGROUND", "Base"},
                               {"WINDOW_HIGHLIGHT", "Highlight"},
                               {"WINDOW_HIGHLIGHT_TEXT", "HighlightedText"},
                               {"WINDOW_3D_FACE", "Button"},
                               {"WINDOW_3D_HIGHLIGHT", "Light"},
                               {"WINDOW_3D_LIGHT", "Midlight"},
                               {"WINDOW_3D_SHADOW", "Mid"},
                               {"WINDOW_3D_DARK_SHADOW", "Dark"},
                               {"WINDOW_TOOLTIP_BKGND", "AlternateBase"},
                               {"WINDOW_TOOLTIP_TEXT", "Text"}};
    const QMetaEnum roles = QMetaEnum::fromType<QPalette::ColorRole>();
    for (int i = 0; i < 11; ++i) {
      const QString name = QStringLiteral("ORQ_%1_COLOR").arg(QLatin1String(system[i][0]));
      QTest::newRow(qPrintable(name)) << name << i + 20 << "#000000" << 0 << 1 << roles.keyToValue(system[i][1]);
    }
    QTest::newRow("general background") << "ORQ_GENERAL_BACKGROUND_COLOR" << 31 << "" << 1 << 0
                                        << int(QPalette::Window);
    const char* msw[][2] = {{"EXTRA_INFO", "#008000"},        {"INFO", "#008000"},  {"WARNING", "#0000ff"},
                            {"CRITICAL_WARNING", "#ff00ff"},  {"ERROR", "#ff0000"},
                            {"KEYWORD_HIGHLIGHT_TEXT", "#000000"}, {"KEYWORD_HIGHLIGHT_BKGND", "#ffff00"}};
    for (auto& row : msw) {
      const QString name = QStringLiteral("ORQ_MSW_%1_COLOR").arg(QLatin1String(row[0]));
      QTest::newRow(qPrintable(name)) << name << -1 << row[1] << 1 << 0 << 0;
    }
  }

  void named_colors()
  {
    QFETCH(QString, name);
    QFETCH(int, id);
    QFETCH(QString, color);
    QFETCH(int, changeable);
    QFETCH(int, system);
    QFETCH(int, role);
    const ORQ_COLOR_ENTRY* e = color_named(name);
    QVERIFY2(e, qPrintable(name));
    if (id > 0)
      QCOMPARE(int(e->id), id);
    if (!color.isEmpty())
      QCOMPARE(QColor(QLatin1String(e->color)).name(), color);
    QCOMPARE(int(e->changeable), changeable);
    QCOMPARE(e->system, system);
    QCOMPARE(e->role, role);
  }

  void house_palette_and_ramps()
  {
    const QStringList house = {"RED", "ORANGE", "YELLOW", "GREEN", "LIGHT_BLUE", "BLUE", "DARK_BLUE",
                               "LIGHT_GRAY", "GRAY", "DARK_GRAY", "CHARCOAL"};
    for (int i = 0; i < house.size(); ++i) {
      const ORQ_COLOR_ENTRY* e = color_named(QStringLiteral("ORQ_CORVAN_%1_COLOR").arg(house[i]));
      QVERIFY(e);
      QCOMPARE(int(e->id), 32 + i);
      QCOMPARE(int(e->changeable), 0);
    }
    // 43 to 88: ten hues, lightest tint to darkest shade.
    static const QRegularExpression step(QStringLiteral("^ORQ_COLOR_CORVAN_([A-Z]+)(_T2|_T1|_S1|_S2)?$"));
    QMap<QString, QStringList> hues;
    QString last_hue;
    for (int id = 43; id <= 88; ++id) {
      const ORQ_COLOR_ENTRY* e = colors_by_id().value(id);
      const QRegularExpressionMatch m = step.match(QLatin1String(e->name));
      QVERIFY2(m.hasMatch(), e->name);
      QCOMPARE(int(e->changeable), 0);
      if (m.captured(1) != last_hue)
        QVERIFY2(!hues.contains(m.captured(1)), "a hue's steps stand together");
      last_hue = m.captured(1);
      hues[last_hue] << (m.captured(2).isEmpty() ? QStringLiteral("B") : m.captured(2).mid(1));
      // Tints are lighter than the base, shades darker.
    }
    QCOMPARE(hues.size(), 10);
    int full = 0;
    int without_s2 = 0;
    int without_t2 = 0;
    const QStringList order = {"T2", "T1", "B", "S1", "S2"};
    for (const QStringList& steps : hues) {
      QStringList sorted = steps;
      std::sort(sorted.begin(), sorted.end(), [&](const QString& a, const QString& b) {
        return order.indexOf(a) < order.indexOf(b);
      });
      QCOMPARE(steps, sorted);
      full += steps.size() == 5;
      without_s2 += steps == QStringList({"T2", "T1", "B", "S1"});
      without_t2 += steps == QStringList({"T1", "B", "S1", "S2"});
    }
    QCOMPARE(full, 6);
    QCOMPARE(without_s2, 3);
    QCOMPARE(without_t2, 1);
  }

  void tool_groups()
  {
    QMap<QString, int> groups;
    static const QRegularExpression group(QStringLiteral("^ORQ_([A-Z]+)_"));
    for (const ORQ_COLOR_ENTRY* e : colors_by_id())
      if (e->id >= 89)
        groups[group.match(QLatin1String(e->name)).captured(1)] += 1;
    QCOMPARE(groups.value(QStringLiteral("MSW")), 7);
    QCOMPARE(groups.value(QStringLiteral("IO")), 24);
    QCOMPARE(groups.value(QStringLiteral("PROG")), 7);
    int largest = 0;
    for (int n : groups)
      largest = std::max(largest, n);
    QCOMPARE(largest, 96);
    for (int bank = 1; bank <= 24; ++bank)
      QVERIFY(color_named(QStringLiteral("ORQ_IO_BANK_%1_COLOR").arg(bank)));
    QVERIFY(color_named(QStringLiteral("ORQ_GED_BACKGROUND_COLOR")));
  }

  void pen_table_shape()
  {
    QCOMPARE(orq_pen_table_size, 153);
    QMap<int, int> styles;
    QMap<int, int> caps;
    QMap<int, int> widths;
    QSet<int> ids;
    for (int i = 0; i < orq_pen_table_size; ++i) {
      const ORQ_PEN_ENTRY& e = orq_pen_table[i];
      ids.insert(e.id);
      styles[e.style] += 1;
      caps[e.cap] += 1;
      widths[e.width] += 1;
      QCOMPARE(e.join, Qt::MiterJoin);
      QCOMPARE(e.reserved, 0);
      QVERIFY2(colors_by_id().contains(e.color), e.name);
      QVERIFY(QByteArray(e.name).startsWith("ORQ_") && QByteArray(e.name).endsWith("_PEN"));
    }
    for (int unused : {17, 111, 112, 155})
      QVERIFY(!ids.contains(unused));
    QCOMPARE(*std::max_element(ids.begin(), ids.end()), 157);
    QCOMPARE(styles.value(Qt::SolidLine), 141);
    QCOMPARE(styles.value(Qt::DashLine), 6);
    QCOMPARE(styles.value(Qt::DotLine), 6);
    QCOMPARE(caps.value(Qt::SquareCap), 104);
    QCOMPARE(caps.value(Qt::RoundCap), 32);
    QCOMPARE(caps.value(Qt::FlatCap), 17);
    QCOMPARE(widths.value(1), 85);
    QCOMPARE(widths.value(2), 32);
    QCOMPARE(widths.firstKey(), 0);
    QCOMPARE(widths.lastKey(), 10);
  }

  void named_pens()
  {
    const char* basic[] = {"BLACK", "WHITE", "BLUE", "GREEN", "RED", "CYAN", "PINK", "YELLOW", "DARK_BLUE",
                           "DARK_GREEN", "DARK_RED", "DARK_CYAN", "DARK_PINK", "BROWN", "DARK_GRAY", "GRAY"};
    for (int id = 1; id <= 16; ++id) {
      const ORQ_PEN_ENTRY* e = pen_by_id(id);
      QCOMPARE(QLatin1String(e->name), QStringLiteral("ORQ_%1_PEN").arg(QLatin1String(basic[id - 1])));
      QCOMPARE(int(e->color), id);
      QCOMPARE(e->style, Qt::SolidLine);
      QCOMPARE(e->cap, Qt::SquareCap);
      QCOMPARE(e->width, 1);
    }
    for (int id = 18; id <= 28; ++id) {
      const ORQ_PEN_ENTRY* e = pen_by_id(id);
      QVERIFY(QByteArray(e->name).startsWith("ORQ_WINDOW_"));
      QCOMPARE(int(e->color), id + 2);  // the system colours 20 to 30
    }
    QCOMPARE(QLatin1String(pen_by_id(29)->name), QStringLiteral("ORQ_RECT_TRACKER_SOLID_PEN"));
    QCOMPARE(pen_by_id(29)->color, ORQ_WINDOW_HIGHLIGHT_COLOR);
    QCOMPARE(QLatin1String(pen_by_id(30)->name), QStringLiteral("ORQ_RECT_TRACKER_DOTTED_PEN"));
    QCOMPARE(pen_by_id(30)->style, Qt::DotLine);
    QCOMPARE(pen_by_id(30)->color, ORQ_WINDOW_HIGHLIGHT_COLOR);
  }

  void brush_table()
  {
    QCOMPARE(orq_brush_table_size, 29);
    for (int i = 0; i < 29; ++i) {
      const ORQ_BRUSH_ENTRY& e = orq_brush_table[i];
      QCOMPARE(int(e.id), i + 1);
      if (e.id <= 16)
        QCOMPARE(int(e.color), i + 1);
      else if (e.id >= 18 && e.id <= 28)
        QCOMPARE(int(e.color), int(e.id) + 2);  // the system colours 20 to 30
      QCOMPARE(e.style, e.id == 17 ? Qt::NoBrush : Qt::SolidPattern);
    }
    QCOMPARE(orq_brush_table[16].color, ORQ_WINDOW_BACKGROUND_COLOR);
    QCOMPARE(orq_brush_table[28].color, ORQ_GED_BACKGROUND_COLOR);
  }

  void font_table_shape()
  {
    QCOMPARE(orq_font_table_size, 102);
    int changeable = 0;
    int smallest = 100;
    int largest = 0;
    for (int i = 0; i < orq_font_table_size; ++i) {
      const ORQ_FONT_ENTRY& e = orq_font_table[i];
      QCOMPARE(int(e.id), i + 1);
      changeable += e.changeable;
      smallest = std::min(smallest, e.point_size);
      largest = std::max(largest, e.point_size);
      const bool mono = QLatin1String(e.face) == QLatin1String("Lucida Console");
      QVERIFY2(mono || QLatin1String(e.face) == QLatin1String("Corvan Clear"), e.name);
      QCOMPARE(e.style_hint == QFont::TypeWriter, mono);
    }
    QCOMPARE(changeable, 78);
    QCOMPARE(smallest, 6);
    QCOMPARE(largest, 24);
  }

  void named_fonts_data()
  {
    QTest::addColumn<int>("id");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("points");
    QTest::addColumn<QString>("face");
    QTest::addColumn<int>("changeable");
    QTest::addColumn<QString>("flags");  // b, i, u
    QTest::newRow("1") << 1 << "ORQ_GUI_FONT" << 9 << "Corvan Clear" << 1 << "";
    QTest::newRow("2") << 2 << "ORQ_GUI_BOLD_FONT" << 9 << "Corvan Clear" << 1 << "b";
    QTest::newRow("3") << 3 << "ORQ_GUI_BOLD_UNDERLINE_FONT" << 9 << "Corvan Clear" << 1 << "bu";
    QTest::newRow("4") << 4 << "ORQ_GUI_UNDERLINE_FONT" << 9 << "Corvan Clear" << 1 << "u";
    QTest::newRow("5") << 5 << "ORQ_TOOLTIP_FONT" << 9 << "Corvan Clear" << 0 << "";
    QTest::newRow("6") << 6 << "ORQ_HEADER_FOOTER_FONT" << 10 << "Corvan Clear" << 1 << "";
    QTest::newRow("7") << 7 << "ORQ_MDI_BACKGROUND_FONT" << 10 << "Corvan Clear" << 0 << "";
    QTest::newRow("78") << 78 << "ORQ_ZOOM_DRAG_FONT" << 10 << "Corvan Clear" << 0 << "b";
    QTest::newRow("86") << 86 << "ORQ_MSG_TEXT_FONT" << 10 << "Lucida Console" << 1 << "";
    QTest::newRow("87") << 87 << "ORQ_MSG_COLUMN_HEADER_FONT" << 10 << "Lucida Console" << 1 << "";
    QTest::newRow("101") << 101 << "ORQ_CONWQ_CONSOLE_FONT" << 10 << "Lucida Console" << 1 << "";
    QTest::newRow("102") << 102 << "ORQ_TABLE_MONOSPACE_FONT" << 8 << "Lucida Console" << 1 << "";
  }

  void named_fonts()
  {
    QFETCH(int, id);
    QFETCH(QString, name);
    QFETCH(int, points);
    QFETCH(QString, face);
    QFETCH(int, changeable);
    QFETCH(QString, flags);
    const ORQ_FONT_ENTRY* e = font_by_id(id);
    QCOMPARE(QLatin1String(e->name), name);
    QCOMPARE(e->point_size, points);
    QCOMPARE(QLatin1String(e->face), face);
    QCOMPARE(int(e->changeable), changeable);
    QCOMPARE(bool(e->bold), flags.contains(QLatin1Char('b')));
    QCOMPARE(bool(e->italic), flags.contains(QLatin1Char('i')));
    QCOMPARE(bool(e->underline), flags.contains(QLatin1Char('u')));
    if (id <= 4) {
      QCOMPARE(e->style_hint, int(QFont::System));
      QCOMPARE(e->text_color, ORQ_WINDOW_TEXT_COLOR);
      QCOMPARE(e->background_color, ORQ_WINDOW_BACKGROUND_COLOR);
    }
    if (id == 5) {
      QCOMPARE(e->text_color, ORQ_WINDOW_TOOLTIP_TEXT_COLOR);
      QCOMPARE(e->background_color, ORQ_WINDOW_TOOLTIP_BKGND_COLOR);
    }
    if (id == 6) {
      QCOMPARE(e->text_color, ORQ_BLACK_COLOR);
      QCOMPARE(e->background_color, ORQ_WHITE_COLOR);
    }
    if (id == 7) {
      QCOMPARE(e->text_color, ORQ_GRAY_COLOR);
      QCOMPARE(e->background_color, ORQ_DARK_GRAY_COLOR);
    }
  }
};

ORQ_TEST_REGISTER(TST_THEME_TABLES);
#include "tst_theme_tables.moc"
