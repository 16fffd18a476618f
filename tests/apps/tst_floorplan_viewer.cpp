// The sample tool, run as a user runs it.
#include "orq_test_support.h"

#include <orq.h>

#include "floorplan_model.h"
#include "viewer_process.h"

#include <QImage>
#include <QSet>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>

namespace {
int distinct_colours(const QImage& image)
{
  QSet<QRgb> colours;
  for (int y = 0; y < image.height(); y += 4)
    for (int x = 0; x < image.width(); x += 4)
      colours.insert(image.pixel(x, y));
  return colours.size();
}
} // namespace

class TST_FLOORPLAN_VIEWER : public QObject {
  Q_OBJECT
private slots:
  void initTestCase() { orq_test_strict_messages(); }

  void screenshot_shows_the_floor_plan_data()
  {
    QTest::addColumn<QByteArray>("settings");
    QTest::newRow("fresh home") << QByteArray();
    QTest::newRow("damaged settings file") << QByteArray("\x00\xff\x13garbage\n[", 12);
  }

  void screenshot_shows_the_floor_plan()
  {
    QFETCH(QByteArray, settings);
    QTemporaryDir home;
    const QString settings_file = home.filePath(QStringLiteral(".config/Vantor/vantor_settings.ini"));
    if (!settings.isNull()) {
      QDir().mkpath(QFileInfo(settings_file).absolutePath());
      QFile file(settings_file);
      QVERIFY(file.open(QIODevice::WriteOnly));
      file.write(settings);
    }
    const QString png = home.filePath(QStringLiteral("shot.png"));
    QString err;
    QCOMPARE(run_viewer(home.path(), {QStringLiteral("--screenshot"), png}, &err), 0);
    const QImage image(png);
    QVERIFY(!image.isNull());
    QCOMPARE(image.size(), QSize(1280, 800));
    // Die, pads and blocks of eight cell colours, with text: far more than a
    // blank window's handful of colours.
    QVERIFY2(distinct_colours(image) > 40, qPrintable(QString::number(distinct_colours(image))));
    if (!settings.isNull()) {
      QVERIFY2(err.contains(QStringLiteral("is damaged")), qPrintable(err));
      const QStringList copies = QDir(QFileInfo(settings_file).absolutePath())
                                     .entryList({QStringLiteral("vantor_settings.ini.damaged-*")});
      QCOMPARE(copies.size(), 1);
    }
  }

  void same_seed_draws_the_same_plan()
  {
    QTemporaryDir home;
    const QString a = home.filePath(QStringLiteral("a.png"));
    const QString b = home.filePath(QStringLiteral("b.png"));
    const QString c = home.filePath(QStringLiteral("c.png"));
    QCOMPARE(run_viewer(home.path(),
                        {QStringLiteral("--screenshot"), a, QStringLiteral("--seed"), QStringLiteral("3")}),
             0);
    QCOMPARE(run_viewer(home.path(),
                        {QStringLiteral("--screenshot"), b, QStringLiteral("--seed"), QStringLiteral("3")}),
             0);
    QCOMPARE(run_viewer(home.path(),
                        {QStringLiteral("--screenshot"), c, QStringLiteral("--seed"), QStringLiteral("4")}),
             0);
    QCOMPARE(QImage(a), QImage(b));
    QVERIFY(QImage(a) != QImage(c));
  }

  void theme_overrides_come_back_after_a_restart_data()
  {
    QTest::addColumn<QByteArray>("colors");
    QTest::addColumn<QString>("corner");
    QTest::newRow("no overrides") << QByteArray() << "#1e2430";
    QTest::newRow("background override")
        << QByteArray("Color_version=11\nORQ_FPV_BACKGROUND_COLOR=#ff0000\n") << "#ff0000";
    QTest::newRow("older version ignored")
        << QByteArray("Color_version=10\nORQ_FPV_BACKGROUND_COLOR=#ff0000\n") << "#1e2430";
    QTest::newRow("malformed value ignored")
        << QByteArray("Color_version=11\nORQ_FPV_BACKGROUND_COLOR=#ff00\n") << "#1e2430";
  }

  void theme_overrides_come_back_after_a_restart()
  {
    QFETCH(QByteArray, colors);
    QFETCH(QString, corner);
    QTemporaryDir home;
    const QString settings_file = home.filePath(QStringLiteral(".config/Vantor/vantor_settings.ini"));
    QDir().mkpath(QFileInfo(settings_file).absolutePath());
    QFile file(settings_file);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("[Theme]\n");
    for (const QByteArray& line : colors.split('\n'))
      if (!line.isEmpty())
        file.write("Colors\\" + line + '\n');
    file.close();
    const QString png = home.filePath(QStringLiteral("shot.png"));
    QCOMPARE(run_viewer(home.path(), {QStringLiteral("--hierarchy-rows"), QStringLiteral("0"),
                                      QStringLiteral("--screenshot"), png}),
             0);
    const QImage image(png);
    // Just inside the drawing, left of the die, below the menu bar.
    QCOMPARE(QColor(image.pixel(4, image.height() / 2)).name(), corner);
  }

  void panels_come_back_after_a_restart()
  {
    QTemporaryDir home;
    const QString png = home.filePath(QStringLiteral("shot.png"));
    QString out;
    QCOMPARE(run_viewer(home.path(),
                        {QStringLiteral("--panel"), QStringLiteral("unpin:Messages"), QStringLiteral("--panel"),
                         QStringLiteral("close:Tcl Console"), QStringLiteral("--screenshot"), png},
                        nullptr, &out),
             0);
    QVERIFY2(out.contains(QStringLiteral("panel: Messages auto-hidden\n")), qPrintable(out));
    QCOMPARE(run_viewer(home.path(), {QStringLiteral("--screenshot"), png}, nullptr, &out), 0);
    QVERIFY2(out.contains(QStringLiteral("panel: Hierarchy pinned, shown\n")), qPrintable(out));
    QVERIFY(out.contains(QStringLiteral("panel: Messages auto-hidden\n")));
    QVERIFY(out.contains(QStringLiteral("panel: Tcl Console closed\n")));
    // View > Reset Layout brings every panel back, docked and pinned.
    QCOMPARE(run_viewer(home.path(),
                        {QStringLiteral("--trigger"), QStringLiteral("ORQ_RESET_LAYOUT_ACTION"),
                         QStringLiteral("--screenshot"), png},
                        nullptr, &out),
             0);
    for (const char* panel : {"Hierarchy", "Messages", "Tcl Console"})
      QVERIFY2(out.contains(QStringLiteral("panel: %1 pinned, shown\n").arg(QLatin1String(panel))), qPrintable(out));
  }

  void a_layout_that_cannot_be_restored_gives_the_default_data()
  {
    QTest::addColumn<QString>("damage");
    QTest::addColumn<QString>("why");
    QTest::newRow("damaged window state") << "state" << "it is damaged or comes from another version";
    QTest::newRow("state of another version") << "version" << "it is damaged or comes from another version";
    QTest::newRow("a panel that no longer exists") << "ghost" << "the panel \"ghost_dock\" no longer exists";
    QTest::newRow("damaged panel list") << "list" << "it is damaged";
  }

  void a_layout_that_cannot_be_restored_gives_the_default()
  {
    QFETCH(QString, damage);
    QFETCH(QString, why);
    QTemporaryDir home;
    const QString png = home.filePath(QStringLiteral("shot.png"));
    QCOMPARE(run_viewer(home.path(),
                        {QStringLiteral("--panel"), QStringLiteral("unpin:Messages"), QStringLiteral("--panel"),
                         QStringLiteral("float:Tcl Console"), QStringLiteral("--screenshot"), png}),
             0);
    {
      QSettings settings(home.filePath(QStringLiteral(".config/Vantor/vantor_settings.ini")), QSettings::IniFormat);
      const QString layout = QStringLiteral("FloorplanViewer/layout");
      QByteArray state = settings.value(layout).toByteArray();
      QVERIFY(state.size() > 8);
      if (damage == QLatin1String("state"))
        settings.setValue(layout, state.left(state.size() / 2) + QByteArray(40, '\x7f'));
      else if (damage == QLatin1String("version"))
        settings.setValue(layout, state.replace(4, 4, QByteArray::fromHex("00000063")));
      else if (damage == QLatin1String("ghost"))
        settings.setValue(QStringLiteral("FloorplanViewer/panels"),
                          QStringList{QStringLiteral("hierarchy_dock|1|0"), QStringLiteral("ghost_dock|1|0")});
      else
        settings.setValue(QStringLiteral("FloorplanViewer/panels"), QStringList{QStringLiteral("messages_dock|x")});
    }
    QString err;
    QString out;
    QCOMPARE(run_viewer(home.path(), {QStringLiteral("--screenshot"), png}, &err, &out), 0);
    QVERIFY2(err.contains(QStringLiteral("The saved window layout could not be restored (%1); the default layout "
                                         "is used.")
                              .arg(why)),
             qPrintable(err));
    for (const char* panel : {"Hierarchy", "Messages", "Tcl Console"})
      QVERIFY2(out.contains(QStringLiteral("panel: %1 pinned, shown\n").arg(QLatin1String(panel))), qPrintable(out));
  }

  void panels_slide_out_and_float_in_the_screenshot()
  {
    QTemporaryDir home;
    const QString png = home.filePath(QStringLiteral("shot.png"));
    QString out;
    QCOMPARE(run_viewer(home.path(),
                        {QStringLiteral("--panel"), QStringLiteral("unpin:Messages"), QStringLiteral("--panel"),
                         QStringLiteral("slide-out:Messages"), QStringLiteral("--panel"),
                         QStringLiteral("float:Tcl Console"), QStringLiteral("--screenshot"), png},
                        nullptr, &out),
             0);
    QVERIFY2(out.contains(QStringLiteral("panel: Messages auto-hidden, shown\n")), qPrintable(out));
    QVERIFY(out.contains(QStringLiteral("panel: Tcl Console floating, shown\n")));
    QString err;
    QCOMPARE(run_viewer(home.path(), {QStringLiteral("--panel"), QStringLiteral("slide-out:Nothing"),
                                      QStringLiteral("--screenshot"), png},
                        &err),
             1);
    QVERIFY(err.contains(QStringLiteral("floorplan_viewer: cannot slide-out:Nothing")));
  }

  // The panel's count is checked against the generated rows themselves,
  // matched here with the expression the typed text stands for.
  void hierarchy_filter_counts_the_matching_rows_data()
  {
    QTest::addColumn<QString>("typed");
    QTest::newRow("instance prefix") << "u_alu";
    QTest::newRow("cell type") << "nand2";
    QTest::newRow("two words") << "dff 12";
    QTest::newRow("wildcard") << "alu*blk";
    QTest::newRow("nothing typed") << "";
  }

  void hierarchy_filter_counts_the_matching_rows()
  {
    QFETCH(QString, typed);
    QTemporaryDir home;
    const QString png = home.filePath(QStringLiteral("shot.png"));
    const QString dump = home.filePath(QStringLiteral("rows.txt"));
    QString out;
    QCOMPARE(run_viewer(home.path(),
                        {QStringLiteral("--hierarchy-rows"), QStringLiteral("3000"), QStringLiteral("--filter"),
                         typed, QStringLiteral("--dump-hierarchy"), dump, QStringLiteral("--screenshot"), png},
                        nullptr, &out),
             0);
    struct EXPRESSIONS : ORQ_TREE_FILTER_PROXY_MODEL {
      using ORQ_TREE_FILTER_PROXY_MODEL::process_keyword_expression;
    } parser;
    const QRegularExpression expression = parser.process_keyword_expression(typed.trimmed());
    QFile rows(dump);
    QVERIFY(rows.open(QIODevice::ReadOnly));
    int total = 0;
    int matching = 0;
    for (const QByteArray& line : rows.readAll().split('\n')) {
      if (line.isEmpty())
        continue;
      ++total;
      const QList<QByteArray> cells = line.split('\t');
      matching += expression.match(QString::fromUtf8(cells.value(0) + ' ' + cells.value(1) + ' ')).hasMatch();
    }
    QCOMPARE(total, 3000);
    const QString expected = typed.isEmpty()
                                 ? QStringLiteral("Hierarchy: 3,000 rows")
                                 : QStringLiteral("Hierarchy: 3,000 rows | %1 matches").arg(QLocale(QLocale::English).toString(matching));
    QVERIFY2(out.contains(QStringLiteral("floorplan_viewer: hierarchy: ") + expected + QLatin1Char('\n')),
             qPrintable(out));
    // Matching rows are painted on the highlight colour.
    const QImage image(png);
    const QRgb highlight = ORQ_COLOR(ORQ_MSW_KEYWORD_HIGHLIGHT_BKGND_COLOR).get_color().rgb();
    int painted = 0;
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < 400; ++x)
        painted += image.pixel(x, y) == highlight;
    QCOMPARE(painted > 0, matching > 0 && !typed.isEmpty());
  }

  void unwritable_screenshot_fails_with_a_message()
  {
    QTemporaryDir home;
    QString err;
    QCOMPARE(run_viewer(home.path(),
                        {QStringLiteral("--screenshot"), home.filePath(QStringLiteral("no/such/dir/x.png"))},
                        &err),
             1);
    QVERIFY(err.contains(QStringLiteral("cannot write")));
  }

  void menu_commands_are_catalogue_actions_data()
  {
    QTest::addColumn<QStringList>("actions");
    QTest::addColumn<QString>("expected");
    const QString regenerate = QStringLiteral("ORQ_REGENERATE_FLOORPLAN_ACTION");
    const QString undo = QStringLiteral("ORQ_UNDO_ACTION");
    const QString redo = QStringLiteral("ORQ_REDO_ACTION");
    QTest::newRow("Tcl action of the partition planner")
        << QStringList{QStringLiteral("ORQ_START_PARTITION_PLANNER_ACTION")}
        << QStringLiteral("status: Partition planner: 18 blocks in 5 partitions");
    QTest::newRow("nothing triggered") << QStringList() << QStringLiteral("seed: 7");
    // 7 * 1103515245 + 12345, modulo 2^32
    QTest::newRow("regenerate") << QStringList{regenerate} << QStringLiteral("seed: 3429651764");
    QTest::newRow("regenerate, undo") << QStringList{regenerate, undo} << QStringLiteral("seed: 7");
    QTest::newRow("regenerate, undo, redo")
        << QStringList{regenerate, undo, redo} << QStringLiteral("seed: 3429651764");
  }

  void menu_commands_are_catalogue_actions()
  {
    QFETCH(QStringList, actions);
    QFETCH(QString, expected);
    QTemporaryDir home;
    QStringList args{QStringLiteral("--screenshot"), home.filePath(QStringLiteral("shot.png"))};
    for (const QString& action : actions)
      args << QStringLiteral("--trigger") << action;
    QString err;
    QString out;
    QCOMPARE(run_viewer(home.path(), args, &err, &out), 0);
    QVERIFY2(out.contains(QStringLiteral("floorplan_viewer: ") + expected + QLatin1Char('\n')),
             qPrintable(out + err));
  }

  void an_action_that_is_not_in_the_menus_is_reported()
  {
    QTemporaryDir home;
    QString err;
    QCOMPARE(run_viewer(home.path(),
                        {QStringLiteral("--trigger"), QStringLiteral("ORQ_NO_SUCH_ACTION"),
                         QStringLiteral("--screenshot"), home.filePath(QStringLiteral("shot.png"))},
                        &err),
             1);
    QVERIFY2(err.contains(QStringLiteral("floorplan_viewer: no action ORQ_NO_SUCH_ACTION in the menus")),
             qPrintable(err));
  }

  void exported_pdf_shows_the_whole_drawing()
  {
    QTemporaryDir home;
    const QString pdf = home.filePath(QStringLiteral("plan.pdf"));
    QString out;
    QCOMPARE(
        run_viewer(home.path(),
                   {QStringLiteral("--hierarchy-rows"), QStringLiteral("0"), QStringLiteral("--export-pdf"),
                    pdf, QStringLiteral("--screenshot"), home.filePath(QStringLiteral("shot.png"))},
                   nullptr, &out),
        0);
    QVERIFY2(out.contains(QStringLiteral("floorplan_viewer: PDF written to %1\n").arg(pdf)), qPrintable(out));
    QFile file(pdf);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    QVERIFY(bytes.startsWith("%PDF-"));
    QVERIFY(bytes.trimmed().endsWith("%%EOF"));
    QVERIFY2(bytes.size() > 20000, qPrintable(QString::number(bytes.size())));

    const QString pdftoppm = QStandardPaths::findExecutable(QStringLiteral("pdftoppm"));
    if (pdftoppm.isEmpty())
      QSKIP("pdftoppm (poppler-utils) is not installed: the page is not rendered");
    QProcess render;
    render.start(pdftoppm, {QStringLiteral("-r"), QStringLiteral("40"), QStringLiteral("-png"),
                            QStringLiteral("-singlefile"), pdf, home.filePath(QStringLiteral("page"))});
    QVERIFY(render.waitForFinished(60000));
    QCOMPARE(render.exitCode(), 0);
    const QImage page(home.filePath(QStringLiteral("page.png")));
    QVERIFY(!page.isNull());
    QVERIFY(page.width() > page.height()); // landscape, as the die is
    // The drawing is the die on its background, fitted to the page: what
    // is not the paper's white spans the page one way or the other.
    const QRgb paper = qRgb(255, 255, 255);
    QRect drawn;
    for (int y = 0; y < page.height(); ++y)
      for (int x = 0; x < page.width(); ++x)
        if (page.pixel(x, y) != paper)
          drawn |= QRect(x, y, 1, 1);
    QVERIFY2(drawn.width() > page.width() * 0.8 || drawn.height() > page.height() * 0.8,
             qPrintable(QStringLiteral("%1x%2 of %3x%4")
                            .arg(drawn.width())
                            .arg(drawn.height())
                            .arg(page.width())
                            .arg(page.height())));
    // Ink all over the die, not a blank frame: every part of a grid over the
    // die (the drawing less its margin) holds several colours.
    const QRect die =
        drawn.adjusted(drawn.width() / 30, drawn.height() / 30, -drawn.width() / 30, -drawn.height() / 30);
    for (int gy = 0; gy < 4; ++gy) {
      for (int gx = 0; gx < 6; ++gx) {
        const QRect part(die.left() + gx * die.width() / 6, die.top() + gy * die.height() / 4,
                         die.width() / 6, die.height() / 4);
        QSet<QRgb> colours;
        for (int y = part.top(); y <= part.bottom(); ++y)
          for (int x = part.left(); x <= part.right(); ++x)
            colours.insert(page.pixel(x, y));
        QVERIFY2(colours.size() >= 4,
                 qPrintable(QStringLiteral("part %1,%2: %3 colours").arg(gx).arg(gy).arg(colours.size())));
      }
    }
  }

  void an_unwritable_pdf_is_reported()
  {
    QTemporaryDir home;
    QString err;
    QCOMPARE(
        run_viewer(home.path(),
                   {QStringLiteral("--export-pdf"), home.filePath(QStringLiteral("no/such/dir/plan.pdf")),
                    QStringLiteral("--screenshot"), home.filePath(QStringLiteral("shot.png"))},
                   &err),
        1);
    QVERIFY2(err.contains(QStringLiteral("floorplan_viewer: cannot write %1")
                              .arg(home.filePath(QStringLiteral("no/such/dir/plan.pdf")))),
             qPrintable(err));
  }

  void zoom_and_selection_from_the_command_line_data()
  {
    QTest::addColumn<QStringList>("args");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("expected");
    QTest::newRow("zoom 100") << QStringList{QStringLiteral("--zoom"), QStringLiteral("100")} << 0
                              << "zoom: Zoom 10000.0%";
    QTest::newRow("zoom 2.5") << QStringList{QStringLiteral("--zoom"), QStringLiteral("2.5")} << 0
                              << "zoom: Zoom 250.0%";
    QTest::newRow("nothing selected") << QStringList() << 0 << "selection: Nothing selected";
    QTest::newRow("a rectangle of cells")
        << QStringList{QStringLiteral("--select-rect"), QStringLiteral("400000,300000,30000,20000")} << 0
        << "selection: cells in 400000,300000,30000,20000";
    QTest::newRow("a rectangle round the whole die")
        << QStringList{QStringLiteral("--select-rect"), QStringLiteral("-1,-1,1200002,900002")} << 0
        << "selection: cells in -1,-1,1200002,900002";
    QTest::newRow("three numbers") << QStringList{QStringLiteral("--select-rect"), QStringLiteral("1,2,3")}
                                   << 1 << "--select-rect wants x,y,w,h with w and h above 0, not 1,2,3";
    QTest::newRow("a zoom below zero") << QStringList{QStringLiteral("--zoom"), QStringLiteral("-3")} << 1
                                       << "--zoom wants a number above 0, not -3";
  }

  // The selection's text is checked against the shapes of the same design,
  // picked here by brute force.
  void zoom_and_selection_from_the_command_line()
  {
    QFETCH(QStringList, args);
    QFETCH(int, code);
    QFETCH(QString, expected);
    QTemporaryDir home;
    QString out;
    QString err;
    args << QStringLiteral("--shapes") << QStringLiteral("100000") << QStringLiteral("--screenshot")
         << home.filePath(QStringLiteral("shot.png"));
    QCOMPARE(run_viewer(home.path(), args, &err, &out), code);
    if (expected.startsWith(QLatin1String("selection: cells in "))) {
      const QStringList n = expected.mid(20).split(QLatin1Char(','));
      const QRect rect(n[0].toInt(), n[1].toInt(), n[2].toInt(), n[3].toInt());
      const FP_BOX box = FP_BOX::from_rect(rect);
      const FLOORPLAN plan = make_floorplan(7, 18, 100000);
      int blocks = 0;
      int cells = 0;
      int pads = 0;
      for (const FP_SHAPE& shape : plan.shapes) {
        if (!box.contains(shape.box))
          continue;
        blocks += shape.kind == FP_KIND::BLOCK;
        cells += shape.kind == FP_KIND::CELL;
        pads += shape.kind == FP_KIND::PAD;
      }
      const QLocale english(QLocale::English);
      QStringList parts;
      if (blocks)
        parts << QStringLiteral("%1 blocks").arg(blocks);
      parts << QStringLiteral("%1 cells").arg(english.toString(cells));
      if (pads)
        parts << QStringLiteral("%1 pads").arg(pads);
      expected =
          QStringLiteral("selection: ") + parts.join(QStringLiteral(", ")) + QStringLiteral(" selected");
    }
    if (code == 0)
      QVERIFY2(out.contains(QStringLiteral("floorplan_viewer: ") + expected + QLatin1Char('\n')),
               qPrintable(out + err));
    else
      QVERIFY2(err.contains(QStringLiteral("floorplan_viewer: ") + expected), qPrintable(err));
  }

  void zoom_selection_brings_the_selection_into_view()
  {
    QTemporaryDir home;
    QString out;
    QCOMPARE(run_viewer(home.path(),
                        {QStringLiteral("--select-rect"), QStringLiteral("400000,300000,30000,20000"),
                         QStringLiteral("--trigger"), QStringLiteral("ORQ_ZOOM_SELECTION_ACTION"),
                         QStringLiteral("--screenshot"), home.filePath(QStringLiteral("shot.png"))},
                        nullptr, &out),
             0);
    const QRegularExpressionMatch zoom =
        QRegularExpression(QStringLiteral("floorplan_viewer: zoom: Zoom ([0-9.]+)%\n")).match(out);
    QVERIFY2(zoom.hasMatch(), qPrintable(out));
    // About 30 by 20 micrometres fill a viewport of several hundred pixels:
    // far more than a pixel a micrometre.
    QVERIFY2(zoom.captured(1).toDouble() > 1000, qPrintable(out));
  }

  // The lens, drawn over the plan where the press was: the same window
  // without it differs there and nowhere else between the bars.
  void demo_lens_shows_in_the_screenshot()
  {
    QTemporaryDir home;
    const QString plain = home.filePath(QStringLiteral("plain.png"));
    const QString lens = home.filePath(QStringLiteral("lens.png"));
    const QStringList common{QStringLiteral("--default-layout"), QStringLiteral("--shapes"),
                             QStringLiteral("100000"), QStringLiteral("--zoom"), QStringLiteral("20")};
    QCOMPARE(run_viewer(home.path(), common + QStringList{QStringLiteral("--screenshot"), plain}), 0);
    QString out;
    QString err;
    QCOMPARE(run_viewer(home.path(),
                        common + QStringList{QStringLiteral("--demo"), QStringLiteral("lens"),
                                             QStringLiteral("300,200"), QStringLiteral("--screenshot"), lens},
                        &err, &out),
             0);
    const QRegularExpressionMatch said =
        QRegularExpression(QStringLiteral("floorplan_viewer: demo: lens at 300,200 \\((\\d+),(\\d+) in the "
                                          "window\\), radius 100, magnification 3\n"))
            .match(out);
    QVERIFY2(said.hasMatch(), qPrintable(out + err));
    const QPoint centre(said.captured(1).toInt(), said.captured(2).toInt());
    const QImage a = QImage(plain).convertToFormat(QImage::Format_RGB32);
    const QImage b = QImage(lens).convertToFormat(QImage::Format_RGB32);
    QCOMPARE(b.size(), a.size());
    QVERIFY(a.rect().contains(centre));
    // The lens's box: three radii from a radius above and left of the press.
    const QRect box(centre - QPoint(100, 100), QSize(300, 300));
    int inside = 0;
    int changed = 0;
    int elsewhere = 0;
    for (int y = 60; y < a.height() - 30; ++y)
      for (int x = 0; x < a.width(); ++x) {
        const bool differs = a.pixel(x, y) != b.pixel(x, y);
        const QPoint d = QPoint(x, y) - centre;
        if (d.x() * d.x() + d.y() * d.y() < 80 * 80) {
          ++inside;
          changed += differs ? 1 : 0;
        } else if (!box.contains(x, y)) {
          elsewhere += differs ? 1 : 0;
        }
      }
    // The glass shows the plan three times larger: most of it is not what
    // lay under it.
    QVERIFY2(changed > inside / 2, qPrintable(QStringLiteral("%1 of %2").arg(changed).arg(inside)));
    QCOMPARE(elsewhere, 0);
  }

  void demos_report_what_showed_data()
  {
    QTest::addColumn<QStringList>("args");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("expected");
    QTest::newRow("zoom drag 120 px up")
        << QStringList{QStringLiteral("--demo"), QStringLiteral("zoom-drag"), QStringLiteral("300,200")} << 0
        << "floorplan_viewer: demo: zoom drag from 300,200, 120 px up: 124%\n";
    QTest::newRow("gesture up-left")
        << QStringList{QStringLiteral("--demo"), QStringLiteral("gesture"), QStringLiteral("300,200")} << 0
        << "floorplan_viewer: demo: gesture from 300,200, 150 px up-left: zoom in 130%\n";
    QTest::newRow("a click on the zoom read-out")
        << QStringList{QStringLiteral("--demo"), QStringLiteral("set-zoom"), QStringLiteral("250")} << 0
        << "floorplan_viewer: demo: the zoom read-out opened the Zoom dialog at 2000.0%; 250 typed: Zoom "
           "250.0%\n";
    QTest::newRow("no point") << QStringList{QStringLiteral("--demo"), QStringLiteral("lens")} << 1
                              << "floorplan_viewer: --demo lens wants X,Y, not \"\"";
    QTest::newRow("an unknown kind") << QStringList{QStringLiteral("--demo"), QStringLiteral("loupe"),
                                                    QStringLiteral("1,1")}
                                     << 1 << "floorplan_viewer: --demo unknown kind \"loupe\"";
  }

  void demos_report_what_showed()
  {
    QFETCH(QStringList, args);
    QFETCH(int, code);
    QFETCH(QString, expected);
    QTemporaryDir home;
    QString out;
    QString err;
    args << QStringLiteral("--default-layout") << QStringLiteral("--shapes") << QStringLiteral("100000")
         << QStringLiteral("--zoom") << QStringLiteral("20") << QStringLiteral("--screenshot")
         << home.filePath(QStringLiteral("shot.png"));
    QCOMPARE(run_viewer(home.path(), args, &err, &out), code);
    QVERIFY2((code ? err : out).contains(expected), qPrintable(out + err));
    QVERIFY(!QImage(home.filePath(QStringLiteral("shot.png"))).isNull());
  }

  void a_mode_switch_says_what_the_mouse_does_data()
  {
    QTest::addColumn<QStringList>("tools");
    QTest::addColumn<QString>("hint");
    QTest::newRow("zoom") << QStringList{QStringLiteral("ORQ_ZOOM_TOOL_ACTION")}
                          << "Click zooms in, Shift/right click out; right drag up/down zooms";
    QTest::newRow("magnifying") << QStringList{QStringLiteral("ORQ_MAGNIFYING_TOOL_ACTION")}
                                << "Press to show the lens; wheel magnifies, Ctrl+wheel resizes";
    QTest::newRow("pan") << QStringList{QStringLiteral("ORQ_PAN_TOOL_ACTION")} << "Drag to pan";
    // The arrows of the hint are left out: the output's encoding is the
    // locale's.
    QTest::newRow("back to selection")
        << QStringList{QStringLiteral("ORQ_ZOOM_TOOL_ACTION"), QStringLiteral("ORQ_ZOOM_TOOL_ACTION")}
        << "selects; Shift+Ctrl+drag pans";
  }

  void a_mode_switch_says_what_the_mouse_does()
  {
    QFETCH(QStringList, tools);
    QFETCH(QString, hint);
    QTemporaryDir home;
    QStringList args{QStringLiteral("--shapes"), QStringLiteral("100000"), QStringLiteral("--screenshot"),
                     home.filePath(QStringLiteral("shot.png"))};
    for (const QString& tool : tools)
      args << QStringLiteral("--trigger") << tool;
    QString out;
    QCOMPARE(run_viewer(home.path(), args, nullptr, &out), 0);
    const QRegularExpressionMatch status =
        QRegularExpression(QStringLiteral("floorplan_viewer: status: ([^\n]*)\n")).match(out);
    QVERIFY2(status.hasMatch(), qPrintable(out));
    if (tools.size() == 1)
      QCOMPARE(status.captured(1), hint);
    else
      QVERIFY2(status.captured(1).endsWith(hint), qPrintable(status.captured(1)));
  }

  void icon_sheet_shows_every_icon()
  {
    QTemporaryDir home;
    const QString png = home.filePath(QStringLiteral("icons.png"));
    QCOMPARE(run_viewer(home.path(), {QStringLiteral("--icons"), png}), 0);
    const QImage sheet(png);
    // Six cells of 250 x 40 pixels a row, under a 30 pixel title.
    QCOMPARE(sheet.size(), QSize(6 * 250, 30 + 128 * 40));
    int drawn = 0;
    for (int cell = 0; cell < 766; ++cell) {
      const QRect picture((cell % 6) * 250 + 24, 30 + (cell / 6) * 40 + 4, 32, 32);
      const QRgb background = sheet.pixel(picture.topLeft() - QPoint(2, 0));
      int ink = 0;
      for (int y = picture.top(); y <= picture.bottom(); ++y)
        for (int x = picture.left(); x <= picture.right(); ++x)
          ink += sheet.pixel(x, y) != background ? 1 : 0;
      drawn += ink >= 32 ? 1 : 0;
    }
    QCOMPARE(drawn, 766);
  }
};

ORQ_TEST_REGISTER(TST_FLOORPLAN_VIEWER);
#include "tst_floorplan_viewer.moc"
