#include "orq_test_support.h"

#include <gen_internal_error.h>
#include <gen_message_service.h>
#include <gen_undo_redo_mgr.h>

#include <QAction>
#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>
#include <QUndoCommand>

#include <stdexcept>

namespace {
struct THROWN_INTERNAL_ERROR : std::runtime_error {
  using std::runtime_error::runtime_error;
};

void throwing_handler(const QString& report, const char*, const char*, const char*, int)
{
  throw THROWN_INTERNAL_ERROR(report.toStdString());
}

class APPEND_COMMAND : public QUndoCommand {
public:
  APPEND_COMMAND(QStringList* list, const QString& item)
      : QUndoCommand(QStringLiteral("Add %1").arg(item))
      , m_list(list)
      , m_item(item)
  {
  }
  void redo() override { m_list->append(m_item); }
  void undo() override { m_list->removeLast(); }

private:
  QStringList* m_list;
  QString m_item;
};
} // namespace

class TST_GEN_MESSAGE_SERVICE : public QObject {
  Q_OBJECT
private slots:
  void initTestCase() { orq_test_strict_messages(); }

  void format_data()
  {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("args");
    QTest::addColumn<QString>("expected");
    QTest::newRow("typed arguments") << "%1!s! has %2!d! pins" << QStringList{"u_pll", "12"}
                                     << "u_pll has 12 pins";
    QTest::newRow("plain arguments in any order") << "%2 before %1" << QStringList{"a", "b"} << "b before a";
    QTest::newRow("doubled percent") << "100%% of %1" << QStringList{"x"} << "100% of x";
    QTest::newRow("lone percent sign") << "100% done" << QStringList{} << "100% done";
    QTest::newRow("missing argument expands to nothing") << "[%1!s!][%2!s!]" << QStringList{"a"} << "[a][]";
    QTest::newRow("two-digit index") << "%10!s!"
                                     << QStringList{"1", "2", "3", "4", "5", "6", "7", "8", "9", "ten"}
                                     << "ten";
    QTest::newRow("unterminated tag keeps the rest") << "%1!s" << QStringList{"a"} << "a!s";
  }

  void format()
  {
    QFETCH(QString, text);
    QFETCH(QStringList, args);
    QFETCH(QString, expected);
    QCOMPARE(gen_format_message_text(text, args), expected);
  }

  void catalogue_message_reaches_listeners()
  {
    GEN_MESSAGE_SERVICE service;
    QList<GEN_MESSAGE> seen;
    const int id = service.add_listener([&seen](const GEN_MESSAGE& m) { seen << m; });
    service.post_message(189000, {QStringLiteral("libfloorplan_docks.so"), QStringLiteral("No such file")});
    service.remove_listener(id);
    service.post_message(189000, {QStringLiteral("ignored"), QStringLiteral("ignored")});
    QCOMPARE(seen.size(), 1);
    QCOMPARE(seen.first().number, 189000);
    QCOMPARE(seen.first().kind, GEN_MESSAGE_KIND::OK_ONLY);
    QCOMPARE(seen.first().text, QStringLiteral("Can't open dockable window -- can't load library "
                                               "\"libfloorplan_docks.so\". No such file."));
  }

  void unknown_message_number_says_so()
  {
    GEN_MESSAGE_SERVICE service;
    QVERIFY(service.format_message(4711, {QStringLiteral("x")}).contains(QStringLiteral("4711")));
  }

  void run_modes_come_from_arguments_and_environment_data()
  {
    QTest::addColumn<QStringList>("argv");
    QTest::addColumn<QByteArray>("env");
    QTest::addColumn<bool>("regression");
    QTest::addColumn<bool>("debug");
    QTest::newRow("plain") << QStringList{"tool"} << QByteArray() << false << false;
    QTest::newRow("-regression argument")
        << QStringList{"tool", "-regression"} << QByteArray() << true << false;
    QTest::newRow("VANTOR_REGRESSION_TEST")
        << QStringList{"tool"} << QByteArray("VANTOR_REGRESSION_TEST") << true << false;
    QTest::newRow("VANTOR_DEBUG") << QStringList{"tool"} << QByteArray("VANTOR_DEBUG") << false << true;
  }

  void run_modes_come_from_arguments_and_environment()
  {
    QFETCH(QStringList, argv);
    QFETCH(QByteArray, env);
    QFETCH(bool, regression);
    QFETCH(bool, debug);
    std::vector<QByteArray> storage;
    std::vector<const char*> pointers;
    for (const QString& a : argv)
      storage.push_back(a.toLocal8Bit());
    for (const QByteArray& a : storage)
      pointers.push_back(a.constData());
    if (!env.isEmpty())
      qputenv(env.constData(), "1");
    GEN_MESSAGE_SERVICE service;
    service.init(int(pointers.size()), pointers.data());
    if (!env.isEmpty())
      qunsetenv(env.constData());
    QCOMPARE(service.is_regression_test_mode(), regression);
    QCOMPARE(service.is_debug_enabled(), debug);
    // In regression-test mode nothing waits for a click; an OK-only message
    // is answered OK.
    if (regression)
      QCOMPARE(service.prompt(189000, {}, QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Cancel),
               QMessageBox::Ok);
  }

  void an_ok_only_message_offers_ok_alone()
  {
    GEN_MESSAGE_SERVICE service;
    QMessageBox::StandardButtons offered;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QTimer::singleShot(0, [&] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (!box)
        return;
      offered = box->standardButtons();
      icon = box->icon();
      box->button(QMessageBox::Ok) ? box->button(QMessageBox::Ok)->click() : box->reject();
    });
    const QMessageBox::StandardButton answer =
        service.prompt(189000, {QStringLiteral("lib"), QStringLiteral("why")},
                       QMessageBox::Yes | QMessageBox::No, QMessageBox::No);
    QCOMPARE(offered, QMessageBox::StandardButtons(QMessageBox::Ok));
    QCOMPARE(icon, QMessageBox::Critical);
    QCOMPARE(answer, QMessageBox::Ok);
  }

  void debug_log_is_written_where_asked()
  {
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("debug.log"));
    qputenv("VANTOR_DEBUG_LOG", QFile::encodeName(path));
    GEN_MESSAGE_SERVICE service;
    service.debug_log(QStringLiteral("qWarning"), QStringLiteral("first"));
    service.warning(QStringLiteral("second"));
    qunsetenv("VANTOR_DEBUG_LOG");
    service.debug_log(QStringLiteral("qWarning"), QStringLiteral("not logged"));
    QFile log(path);
    QVERIFY(log.open(QIODevice::ReadOnly));
    const QList<QByteArray> lines = log.readAll().trimmed().split('\n');
    QCOMPARE(lines.size(), 2);
    QVERIFY(lines.at(0).endsWith("[qWarning] first"));
    QVERIFY(lines.at(1).endsWith("[Warning] second"));
  }

  void internal_error_report_names_condition_module_file_and_line()
  {
    QCOMPARE(gen_format_internal_error("m_view != NULL", "ORQ", "/src/orq/zoom/orq_view.cpp", 212),
             QStringLiteral("Internal error in module ORQ (orq_view.cpp:212):\nm_view != NULL"));
  }

  void installed_handler_sees_the_report()
  {
    const GEN_INTERNAL_ERROR_HANDLER previous = gen_set_internal_error_handler(throwing_handler);
    QString report;
    try {
      const float delta = -1.0f;
      GEN_REQUIRE("ORQ", delta > 0.0f);
    } catch (const THROWN_INTERNAL_ERROR& e) {
      report = QString::fromStdString(e.what());
    }
    gen_set_internal_error_handler(previous);
    QVERIFY2(report.startsWith(QStringLiteral("Internal error in module ORQ (tst_gen_message_service.cpp:")),
             qPrintable(report));
    QVERIFY(report.endsWith(QStringLiteral("):\ndelta > 0.0f")));
  }

  void undo_redo_manager_runs_commands_in_order()
  {
    GEN_UNDO_REDO_MGR mgr;
    QStringList list;
    QAction* undo = mgr.create_undo_action(&mgr, QStringLiteral("Undo"));
    QVERIFY(!undo->isEnabled());
    mgr.push(new APPEND_COMMAND(&list, QStringLiteral("a")));
    mgr.begin_macro(QStringLiteral("Add b and c"));
    mgr.push(new APPEND_COMMAND(&list, QStringLiteral("b")));
    mgr.push(new APPEND_COMMAND(&list, QStringLiteral("c")));
    mgr.end_macro();
    QCOMPARE(list, (QStringList{"a", "b", "c"}));
    QVERIFY(undo->isEnabled());
    QCOMPARE(undo->text(), QStringLiteral("Undo Add b and c"));
    mgr.undo();
    QCOMPARE(list, QStringList{"a"});
    QCOMPARE(mgr.redo_text(), QStringLiteral("Add b and c"));
    mgr.redo();
    QCOMPARE(list, (QStringList{"a", "b", "c"}));
    mgr.undo();
    mgr.undo();
    QVERIFY(list.isEmpty());
    QVERIFY(!mgr.can_undo());
    QVERIFY(!undo->isEnabled());
  }
};

ORQ_TEST_REGISTER(TST_GEN_MESSAGE_SERVICE);
#include "tst_gen_message_service.moc"
