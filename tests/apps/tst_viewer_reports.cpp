// The viewer's reports, run as a user runs the tool: the Hierarchy panel's
// columns across restarts, File > Export Hierarchy... and its dialog, the
// filter demo's way back to the user's place, and Block Variants.
#include "orq_test_support.h"

#include "design_hierarchy.h"
#include "floorplan_model.h"
#include "hierarchy_expectations.h"
#include "viewer_process.h"

#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QLocale>
#include <QSettings>
#include <QTemporaryDir>

namespace {
// The hierarchy a run of the viewer shows: the same generator, the same rows.
QByteArray viewer_hierarchy_dump(int rows, const QString& typed, const QList<int>& columns)
{
  ORQ_TREE_MODEL model;
  fill_design_hierarchy(model, rows, 7);
  add_design_areas(model);
  return hierarchy_expected_dump(model, typed, columns);
}
} // namespace

class TST_VIEWER_REPORTS : public QObject {
  Q_OBJECT
private slots:
  void initTestCase() { orq_test_strict_messages(); }

  void hierarchy_columns_come_back_after_a_restart_data()
  {
    QTest::addColumn<QStringList>("changes");
    QTest::addColumn<QString>("shows");
    QTest::newRow("Cell hidden") << QStringList{QStringLiteral("hide:Cell")} << "Cell hidden";
    QTest::newRow("Instance widened") << QStringList{QStringLiteral("width:Instance=260")} << "Instance 260";
    // The last column shown fills the rest of the view; the ones before it
    // are what a drag sizes.
    QTest::newRow("Area hidden, Instance narrowed")
        << QStringList{QStringLiteral("hide:Area"), QStringLiteral("width:Instance=120")}
        << "Instance 120, Cell ";
    QTest::newRow("hidden, then shown again")
        << QStringList{QStringLiteral("hide:Cell"), QStringLiteral("show:Cell"),
                       QStringLiteral("width:Instance=150")}
        << "Instance 150, Cell ";
  }

  // Changed on the header in one run, as the user changes them; the next
  // run starts with them, from the per-user settings alone.
  void hierarchy_columns_come_back_after_a_restart()
  {
    QFETCH(QStringList, changes);
    QFETCH(QString, shows);
    QTemporaryDir home;
    const QString png = home.filePath(QStringLiteral("shot.png"));
    QString out;
    QCOMPARE(run_viewer(home.path(), {QStringLiteral("--screenshot"), png}, nullptr, &out), 0);
    const QString fresh = printed(out, QStringLiteral("hierarchy columns"));
    QVERIFY2(fresh.startsWith(QLatin1String("Instance ")), qPrintable(out));
    QVERIFY(!fresh.contains(QLatin1String("hidden")));

    QStringList args;
    for (const QString& change : changes)
      args << QStringLiteral("--hierarchy-column") << change;
    QString err;
    QCOMPARE(run_viewer(home.path(), args + QStringList{QStringLiteral("--screenshot"), png}, &err, &out), 0);
    const QString changed = printed(out, QStringLiteral("hierarchy columns"));
    QVERIFY2(changed.contains(shows), qPrintable(changed + QLatin1Char('\n') + err));
    QVERIFY(changed != fresh);

    QCOMPARE(run_viewer(home.path(), {QStringLiteral("--screenshot"), png}, nullptr, &out), 0);
    QCOMPARE(printed(out, QStringLiteral("hierarchy columns")), changed);
    const QSettings settings(home.filePath(QStringLiteral(".config/Vantor/vantor_settings.ini")),
                             QSettings::IniFormat);
    QCOMPARE(settings.value(QStringLiteral("TreeViewColumns/FloorplanViewerHierarchy/Cell_column_visibility"))
                 .toString(),
             changed.contains(QLatin1String("Cell hidden")) ? QStringLiteral("true")
                                                            : QStringLiteral("false"));
  }

  void a_column_change_that_cannot_be_made_is_reported_data()
  {
    QTest::addColumn<QString>("change");
    QTest::addColumn<QString>("why");
    QTest::newRow("no such column") << "hide:Owner"
                                    << "the hierarchy has no column \"Owner\"";
    QTest::newRow("no such verb") << "fold:Cell"
                                  << "wants hide:NAME, show:NAME or width:NAME=PIXELS";
    QTest::newRow("no width") << "width:Cell"
                              << "width wants NAME=PIXELS above 0";
  }

  void a_column_change_that_cannot_be_made_is_reported()
  {
    QFETCH(QString, change);
    QFETCH(QString, why);
    QTemporaryDir home;
    QString err;
    QCOMPARE(run_viewer(home.path(),
                        {QStringLiteral("--hierarchy-column"), change, QStringLiteral("--screenshot"),
                         home.filePath(QStringLiteral("shot.png"))},
                        &err),
             1);
    QVERIFY2(err.contains(QStringLiteral("floorplan_viewer: --hierarchy-column %1: %2").arg(change, why)),
             qPrintable(err));
  }

  void export_hierarchy_writes_the_rows_shown_data()
  {
    QTest::addColumn<QStringList>("args");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QList<int>>("columns");
    QTest::newRow("everything") << QStringList() << "" << QList<int>{0, 1, 2};
    QTest::newRow("filtered") << QStringList{QStringLiteral("--filter"), QStringLiteral("nand")} << "nand"
                              << QList<int>{0, 1, 2};
    QTest::newRow("a column hidden on the header")
        << QStringList{QStringLiteral("--hierarchy-column"), QStringLiteral("hide:Cell")} << ""
        << QList<int>{0, 2};
  }

  // Through File > Export Hierarchy... and its dialog, and from the command
  // line: the same bytes, those of the generated rows.
  void export_hierarchy_writes_the_rows_shown()
  {
    QFETCH(QStringList, args);
    QFETCH(QString, typed);
    QFETCH(QList<int>, columns);
    QTemporaryDir home;
    const QString through_dialog = home.filePath(QStringLiteral("dialog.txt"));
    const QString from_command_line = home.filePath(QStringLiteral("option.txt"));
    QString out;
    QString err;
    QCOMPARE(run_viewer(home.path(),
                        args + QStringList{QStringLiteral("--export-hierarchy"), from_command_line,
                                           QStringLiteral("--demo"), QStringLiteral("export-hierarchy"),
                                           through_dialog, QStringLiteral("--screenshot"),
                                           home.filePath(QStringLiteral("shot.png"))},
                        &err, &out),
             0);
    QVERIFY2(
        out.contains(QStringLiteral("floorplan_viewer: hierarchy written to %1\n").arg(from_command_line)),
        qPrintable(out + err));
    QCOMPARE(printed(out, QStringLiteral("demo")),
             QStringLiteral("export-hierarchy: typed into \"Export Hierarchy\""));
    const QByteArray expected = viewer_hierarchy_dump(500, typed, columns);
    QVERIFY(expected.count('\n') > (typed.isEmpty() ? 499 : 10));
    QCOMPARE(file_bytes(through_dialog), expected);
    QCOMPARE(file_bytes(from_command_line), expected);
  }

  void export_hierarchy_answers_what_the_dialog_asks_data()
  {
    QTest::addColumn<QString>("target");
    QTest::addColumn<bool>("existing");
    QTest::addColumn<QString>("seen");
    QTest::addColumn<bool>("written");
    QTest::newRow("a file that exists is replaced after asking")
        << "hierarchy.txt" << true
        << "typed into \"Export Hierarchy\"; asked: hierarchy.txt already exists. Do you want to replace it?"
        << true;
    QTest::newRow("a directory that does not exist")
        << "no/such/dir/hierarchy.txt" << false
        << "typed into \"Export Hierarchy\"; error: Cannot write %1: No such file or directory" << false;
    QTest::newRow("a directory is opened, not written")
        << "taken" << false << "typed into \"Export Hierarchy\"; the dialog did not take the name" << false;
  }

  void export_hierarchy_answers_what_the_dialog_asks()
  {
    QFETCH(QString, target);
    QFETCH(bool, existing);
    QFETCH(QString, seen);
    QFETCH(bool, written);
    QTemporaryDir home;
    QVERIFY(QDir(home.path()).mkpath(QStringLiteral("taken")));
    const QString file = home.filePath(target);
    if (existing) {
      QFile old(file);
      QVERIFY(old.open(QIODevice::WriteOnly));
      old.write(QByteArray(100000, 'x'));
    }
    QString out;
    QString err;
    QCOMPARE(run_viewer(home.path(),
                        {QStringLiteral("--demo"), QStringLiteral("export-hierarchy"), file,
                         QStringLiteral("--screenshot"), home.filePath(QStringLiteral("shot.png"))},
                        &err, &out),
             0);
    if (seen.contains(QLatin1String("%1")))
      seen = seen.arg(file);
    QCOMPARE(printed(out, QStringLiteral("demo")), QStringLiteral("export-hierarchy: ") + seen);
    if (written)
      QCOMPARE(file_bytes(file), viewer_hierarchy_dump(500, QString(), {0, 1, 2}));
    else if (!QFileInfo(file).isDir())
      QVERIFY(!QFileInfo::exists(file));
    // What went wrong also goes to the message service, which keeps it.
    QCOMPARE(err.contains(QStringLiteral("Cannot write")), seen.contains(QLatin1String("error:")));
  }

  void hierarchy_filter_cleared_comes_back_to_the_place_data()
  {
    QTest::addColumn<int>("rows");
    QTest::newRow("3,000 rows") << 3000;
    QTest::newRow("20,000 rows, three partitions") << 20000;
  }

  // The demo makes a place with clicks, types the picked row's cell type and
  // clears the filter with its button, in a viewer started as a user starts it.
  void hierarchy_filter_cleared_comes_back_to_the_place()
  {
    QFETCH(int, rows);
    QTemporaryDir home;
    const QString png = home.filePath(QStringLiteral("shot.png"));
    const QStringList common{QStringLiteral("--hierarchy-rows"), QString::number(rows),
                             QStringLiteral("--demo"), QStringLiteral("hierarchy")};
    QString out;
    QString err;
    QCOMPARE(run_viewer(home.path(),
                        common + QStringList{QStringLiteral("filtered"), QStringLiteral("--screenshot"), png},
                        &err, &out),
             0);
    const QRegularExpressionMatch filtered =
        QRegularExpression(
            QStringLiteral("demo: hierarchy filtered by \"([a-z0-9]+)\" \\(Hierarchy: [0-9,]+ rows \\| "
                           "([0-9,]+) matches\\): expanded: (.*) \\| selected: (.*) \\| current: (.*)\n"))
            .match(out);
    QVERIFY2(filtered.hasMatch(), qPrintable(out + err));
    // The picked row matches what was typed, so it stays picked.
    QVERIFY(filtered.captured(5).contains(QStringLiteral("||i_%1_12").arg(filtered.captured(1).left(3))));
    QCOMPARE(filtered.captured(4), filtered.captured(5));

    QCOMPARE(run_viewer(home.path(),
                        common + QStringList{QStringLiteral("cleared"), QStringLiteral("--screenshot"), png},
                        &err, &out),
             0);
    const QRegularExpressionMatch cleared =
        QRegularExpression(
            QStringLiteral("demo: hierarchy cleared after \"[a-z0-9]+\"; current row in view; before "
                           "\\{(.*)\\} after \\{(.*)\\}\n"))
            .match(out);
    QVERIFY2(cleared.hasMatch(), qPrintable(out + err));
    QCOMPARE(cleared.captured(2), cleared.captured(1));
    QVERIFY2(cleared.captured(1).startsWith(
                 QLatin1String("expanded: chip_top; chip_top||u_part0; chip_top||u_part0||")),
             qPrintable(cleared.captured(1)));
    QCOMPARE(printed(out, QStringLiteral("hierarchy")),
             QStringLiteral("Hierarchy: %1 rows").arg(QLocale(QLocale::English).toString(rows)));
  }

  void block_variants_picked_in_the_report_show_on_the_plan_data()
  {
    QTest::addColumn<QString>("clicked");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("expected");
    // "<cell> <tag>": the first macro of that cell with that tag drawn on it.
    QTest::newRow("a memory's third") << "SRAM_64K_2P" << 0 << "SRAM_64K 2P";
    QTest::newRow("a PLL, then its third") << "PLL_FRAC,PLL_LC" << 0 << "PLL LC";
    QTest::newRow("a variant no macro offers")
        << "SRAM_64K_9P" << 1 << "--demo variants: no macro offers SRAM_64K_9P";
  }

  // Tools > Block Variants... and a click on a variant's row, in a viewer
  // started as a user starts it: the report turns the row on and its
  // siblings off, and the plan draws it.
  void block_variants_picked_in_the_report_show_on_the_plan()
  {
    QFETCH(QString, clicked);
    QFETCH(int, code);
    QFETCH(QString, expected);
    QTemporaryDir home;
    const QString png = home.filePath(QStringLiteral("shot.png"));
    QString out;
    QString err;
    QCOMPARE(run_viewer(home.path(),
                        {QStringLiteral("--shapes"), QStringLiteral("100000"), QStringLiteral("--demo"),
                         QStringLiteral("variants"), clicked, QStringLiteral("--screenshot"), png},
                        &err, &out),
             code);
    if (code != 0) {
      QVERIFY2(err.contains(QStringLiteral("floorplan_viewer: ") + expected), qPrintable(err));
      return;
    }
    const QRegularExpressionMatch said =
        QRegularExpression(QStringLiteral("demo: variants: clicked (.*); on: (.*); the plan draws (.*)\n"))
            .match(out);
    QVERIFY2(said.hasMatch(), qPrintable(out + err));
    const QString last = clicked.split(QLatin1Char(',')).last();
    // One variant on per macro, the clicked one among them, and the plan
    // drawing it where it left the first.
    const QStringList on = said.captured(2).split(QStringLiteral("; "));
    QVERIFY2(on.filter(last).size() == 1, qPrintable(said.captured(2)));
    for (const QString& choice : on)
      QCOMPARE(choice.count(QLatin1Char(' ')), 1);
    const FLOORPLAN plan = make_floorplan(7, 18, 100000);
    const QString cell = expected.section(QLatin1Char(' '), 0, 0);
    QString macro;
    for (const FLOORPLAN_BLOCK& block : plan.blocks)
      if (macro.isEmpty() && block.cell == cell)
        macro = block.name;
    QCOMPARE(said.captured(3), macro + QLatin1Char(' ') + expected.section(QLatin1Char(' '), 1));
    // The report stands beside the window in the picture.
    const QImage image(png);
    QVERIFY2(image.width() > 1280 + 400, qPrintable(QString::number(image.width())));
  }
};

ORQ_TEST_REGISTER(TST_VIEWER_REPORTS);
#include "tst_viewer_reports.moc"
