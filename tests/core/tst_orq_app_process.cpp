// What a real tool process does, seen from outside: the helper tool is
// started as a child with its own home, and its files, output and exit are
// checked.
#include "orq_test_support.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

namespace {
struct CHILD {
  int exit_code = -1;
  QProcess::ExitStatus status = QProcess::NormalExit;
  QString out;
  QString err;
};

CHILD run_helper(const QString& dir, const QStringList& args, const QByteArray& ini = QByteArray(),
                 const QStringList& extra_env = {})
{
  if (!ini.isNull()) {
    QFile file(dir + QStringLiteral("/vantor.ini"));
    if (file.open(QIODevice::WriteOnly))
      file.write(ini);
  }
  QProcess process;
  QProcessEnvironment env = orq_test_child_environment(dir);
  for (const QString& assignment : extra_env)
    env.insert(assignment.section(QLatin1Char('='), 0, 0), assignment.section(QLatin1Char('='), 1));
  process.setProcessEnvironment(env);
  process.setWorkingDirectory(dir);
  process.start(orq_test_helper_path(), args);
  CHILD child;
  if (!process.waitForFinished(60000)) {
    process.kill();
    process.waitForFinished();
    child.err = QStringLiteral("timed out");
    return child;
  }
  child.exit_code = process.exitCode();
  child.status = process.exitStatus();
  child.out = QString::fromLocal8Bit(process.readAllStandardOutput());
  child.err = QString::fromLocal8Bit(process.readAllStandardError());
  return child;
}

QString the_event_log(const QString& dir)
{
  const QStringList logs = QDir(dir).entryList({QStringLiteral("orq_test_app_event_log_*.json")});
  return logs.size() == 1 ? dir + QLatin1Char('/') + logs.first() : QString();
}

QByteArray read_all(const QString& path)
{
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
} // namespace

class TST_ORQ_APP_PROCESS : public QObject {
  Q_OBJECT
private slots:
  void initTestCase() { orq_test_strict_messages(); }

  void event_log_of_a_run_without_logged_events_is_an_empty_array()
  {
    QTemporaryDir dir;
    const CHILD child = run_helper(dir.path(), {QStringLiteral("event-log"), QStringLiteral("0")},
                                   QByteArray(), {QStringLiteral("VANTOR_EVENT_LOGGING=")});
    QCOMPARE(child.exit_code, 0);
    const QString log = the_event_log(dir.path());
    QVERIFY2(!log.isEmpty(), qPrintable(QDir(dir.path()).entryList().join(QLatin1Char(' '))));
    QVERIFY(QFileInfo(log).fileName().contains(QRegularExpression(
        QStringLiteral("^orq_test_app_event_log_\\d{4}-\\d\\d-\\d\\dT\\d\\d-\\d\\d-\\d\\d\\.json$"))));
    QCOMPARE(read_all(log), QByteArray("[]"));
  }

  void no_event_log_without_the_variable()
  {
    QTemporaryDir dir;
    const CHILD child = run_helper(dir.path(), {QStringLiteral("event-log"), QStringLiteral("2")});
    QCOMPARE(child.exit_code, 0);
    QCOMPARE(the_event_log(dir.path()), QString());
  }

  void event_log_records_input_as_one_json_array()
  {
    QTemporaryDir dir;
    const CHILD child = run_helper(dir.path(), {QStringLiteral("event-log"), QStringLiteral("2")},
                                   QByteArray(), {QStringLiteral("VANTOR_EVENT_LOGGING=1")});
    QCOMPARE(child.exit_code, 0);
    QJsonParseError error{};
    const QJsonDocument doc = QJsonDocument::fromJson(read_all(the_event_log(dir.path())), &error);
    QVERIFY2(error.error == QJsonParseError::NoError, qPrintable(error.errorString()));
    QVERIFY(doc.isArray());
    const QJsonArray records = doc.array();

    QMap<QString, int> seen;
    qint64 last_delta = -1;
    QJsonObject key_press;
    QJsonObject mouse_press;
    for (const QJsonValue& value : records) {
      const QJsonObject record = value.toObject();
      QVERIFY(record.value(QStringLiteral("timedelta")).toDouble() >= last_delta);
      last_delta = qint64(record.value(QStringLiteral("timedelta")).toDouble());
      const QJsonObject event = record.value(QStringLiteral("event")).toObject();
      const QString type = event.value(QStringLiteral("eventTypeString")).toString();
      seen[type] += 1;
      const QJsonObject object = record.value(QStringLiteral("object")).toObject();
      if (type == QLatin1String("KeyPress") &&
          object.value(QStringLiteral("objectName")) == QLatin1String("name_edit"))
        key_press = record;
      if (type == QLatin1String("MouseButtonPress") && key_press.isEmpty() == false && mouse_press.isEmpty())
        mouse_press = record;
    }
    QCOMPARE(seen.value(QStringLiteral("KeyPress")) >= 2, true);
    QCOMPARE(seen.value(QStringLiteral("KeyRelease")) >= 2, true);
    QCOMPARE(seen.value(QStringLiteral("MouseButtonPress")) >= 2, true);
    QCOMPARE(seen.value(QStringLiteral("MouseButtonRelease")) >= 2, true);
    for (const QString& type : seen.keys())
      QVERIFY2(
          QStringList({"ApplicationStateChange", "ContextMenu", "KeyPress", "KeyRelease",
                       "MouseButtonDblClick", "MouseButtonPress", "MouseButtonRelease", "MouseMove",
                       "ShortcutOverride", "Wheel", "NonClientAreaMouseMove", "NonClientAreaMouseButtonPress",
                       "NonClientAreaMouseButtonRelease", "NonClientAreaMouseButtonDblClick"})
              .contains(type),
          qPrintable(type));

    const QJsonObject key = key_press.value(QStringLiteral("event")).toObject();
    QCOMPARE(key.value(QStringLiteral("eventType")).toInt(), 6);
    QCOMPARE(key.value(QStringLiteral("key")).toInt(), int(Qt::Key_A));
    QCOMPARE(key.value(QStringLiteral("text")).toString(), QStringLiteral("a"));
    QCOMPARE(key.value(QStringLiteral("count")).toInt(), 1);
    QCOMPARE(key.value(QStringLiteral("isAutoRepeat")).toBool(), false);
    QVERIFY(key.contains(QStringLiteral("modifiers")));
    QVERIFY(key.contains(QStringLiteral("timestamp")));
    const QJsonObject object = key_press.value(QStringLiteral("object")).toObject();
    QCOMPARE(object.value(QStringLiteral("className")).toString(), QStringLiteral("QLineEdit"));
    QCOMPARE(object.value(QStringLiteral("objectNamePath")).toString(), QStringLiteral("/main/name_edit"));
    QCOMPARE(object.value(QStringLiteral("classNamePath")).toString(), QStringLiteral("/QWidget/QLineEdit"));

    const QJsonObject mouse = mouse_press.value(QStringLiteral("event")).toObject();
    QCOMPARE(mouse.value(QStringLiteral("eventType")).toInt(), 2);
    QCOMPARE(mouse.value(QStringLiteral("pos")).toObject(), (QJsonObject{{"x", 5}, {"y", 5}}));
    QCOMPARE(mouse.value(QStringLiteral("localPos")).toObject(), (QJsonObject{{"x", 5.0}, {"y", 5.0}}));
    QCOMPARE(mouse.value(QStringLiteral("button")).toInt(), int(Qt::LeftButton));
    QVERIFY(mouse.value(QStringLiteral("globalPos")).isObject());
    QVERIFY(mouse.contains(QStringLiteral("buttons")));
  }

  void event_record_that_cannot_be_written_is_skipped_and_logging_goes_on()
  {
    QTemporaryDir dir;
    const CHILD child =
        run_helper(dir.path(), {QStringLiteral("event-log"), QStringLiteral("1"), QStringLiteral("block")},
                   QByteArray(), {QStringLiteral("VANTOR_EVENT_LOGGING=1")});
    QCOMPARE(child.exit_code, 0);
    QJsonParseError error{};
    const QJsonDocument doc = QJsonDocument::fromJson(read_all(the_event_log(dir.path())), &error);
    QVERIFY2(error.error == QJsonParseError::NoError, qPrintable(error.errorString()));
    QStringList keys;
    for (const QJsonValue& value : doc.array()) {
      const QJsonObject event = value.toObject().value(QStringLiteral("event")).toObject();
      if (event.value(QStringLiteral("eventTypeString")) == QLatin1String("KeyPress"))
        keys << event.value(QStringLiteral("text")).toString();
    }
    QCOMPARE(keys, (QStringList{"a", "c"}));
  }

  void processor_manager_gets_the_capped_counts_data()
  {
    QTest::addColumn<int>("cores");
    QTest::addColumn<int>("threads");
    QTest::addColumn<QByteArray>("ini");
    QTest::addColumn<QString>("expected");
    QTest::newRow("8/16, cap 2, no hyperthreading")
        << 8 << 2 << QByteArray("orq_max_kpx_concurrency=2\n") << "cores=2 logical=2";
    QTest::newRow("8/16, default cap") << 8 << 2 << QByteArray() << "cores=4 logical=4";
    QTest::newRow("8/16, cap 12, no hyperthreading")
        << 8 << 2 << QByteArray("orq_max_kpx_concurrency=12\n") << "cores=8 logical=12";
    QTest::newRow("8/16, cap 12, hyperthreading")
        << 8 << 2 << QByteArray("orq_max_kpx_concurrency=12\nenable_vantor_hyperthreading=on\n")
        << "cores=8 logical=12";
    QTest::newRow("3 cores, cap 8") << 3 << 1 << QByteArray("orq_max_kpx_concurrency=8\n")
                                    << "cores=3 logical=3";
    QTest::newRow("malformed cap falls back to 4")
        << 8 << 2 << QByteArray("orq_max_kpx_concurrency=lots\n") << "cores=4 logical=4";
  }

  void processor_manager_gets_the_capped_counts()
  {
    QFETCH(int, cores);
    QFETCH(int, threads);
    QFETCH(QByteArray, ini);
    QFETCH(QString, expected);
    QTemporaryDir dir;
    const QString root = dir.filePath(QStringLiteral("cpu"));
    int n = 0;
    for (int t = 0; t < threads; ++t)
      for (int c = 0; c < cores; ++c, ++n) {
        const QString topology = root + QStringLiteral("/cpu%1/topology").arg(n);
        QDir().mkpath(topology);
        QFile package(topology + QStringLiteral("/physical_package_id"));
        QVERIFY(package.open(QIODevice::WriteOnly));
        package.write("0\n");
        QFile core(topology + QStringLiteral("/core_id"));
        QVERIFY(core.open(QIODevice::WriteOnly));
        core.write(QByteArray::number(c) + '\n');
      }
    const CHILD child = run_helper(dir.path(), {QStringLiteral("processors"), root}, ini);
    QCOMPARE(child.exit_code, 0);
    QCOMPARE(child.out.trimmed(), expected);
    if (ini.contains("lots"))
      QVERIFY2(
          child.err.contains(QStringLiteral("vantor.ini:1: orq_max_kpx_concurrency=lots is not an integer; "
                                            "the default 4 is used")),
          qPrintable(child.err));
  }

  void internal_errors_report_on_standard_error_and_abort_data()
  {
    QTest::addColumn<QString>("mode");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("failed precondition")
        << "require"
        << QStringList{QStringLiteral("Internal error in module ORQ (orq_test_app.cpp:"),
                       QStringLiteral("):\nm_view != NULL")};
    QTest::newRow("connection that failed")
        << "bad-connect"
        << QStringList{
               QStringLiteral("Internal error in module ORQ (orq_safe_connect.cpp:"),
               QStringLiteral(
                   "Error connecting SIGNAL QObject::no_such_signal(int) to SLOT QObject::1deleteLater()"),
               QStringLiteral("\tSIGNAL signature is invalid and maps to QObject::no_such_signal(int)"),
               QStringLiteral("\tConnect location: tool_window.cpp: 77")};
    QTest::newRow("theme before the application exists")
        << "theme-before-app"
        << QStringList{QStringLiteral("(orq_theme.cpp:"), QStringLiteral("):\ngdi_mgr != NULL")};
    QTest::newRow("theme after the application ended")
        << "theme-after-app"
        << QStringList{QStringLiteral("(orq_gdi_manager.cpp:"),
                       QStringLiteral("):\n!ORQ_GDI_MANAGER::m_instance_has_been_deleted")};
    QTest::newRow("action beyond the catalogue")
        << "illegal-action"
        << QStringList{QStringLiteral("Internal error in module ORQ (orq_actions.cpp:"),
                       QStringLiteral("):\nThe calling function has passed an illegal ORQ_ACTION_ENUM")};
    QTest::newRow("drag without a callback")
        << "drag-no-callback"
        << QStringList{QStringLiteral("Internal error in module ORQ (orq_drag_tracker.cpp:"),
                       QStringLiteral("):\nm_callback != NULL")};
    QTest::newRow("rubber band with a slanted fixed edge")
        << "drag-fixed-points"
        << QStringList{QStringLiteral("Internal error in module ORQ (orq_drag_tracker_callback.cpp:"),
                       QStringLiteral("):\nIncorrect fixed points")};
    QTest::newRow("fatal Qt message")
        << "qt-fatal"
        << QStringList{QStringLiteral("Internal error in module ORQ (orq_message_handler.cpp:"),
                       QStringLiteral("the display connection is gone")};
  }

  void internal_errors_report_on_standard_error_and_abort()
  {
    QFETCH(QString, mode);
    QFETCH(QStringList, expected);
    QTemporaryDir dir;
    const CHILD child = run_helper(dir.path(), {mode});
    QCOMPARE(child.status, QProcess::CrashExit);
    for (const QString& part : expected)
      QVERIFY2(child.err.contains(part), qPrintable(child.err));
  }

  void qt_messages_are_printed_and_mirrored_into_the_message_window()
  {
    QTemporaryDir dir;
    const CHILD child =
        run_helper(dir.path(), {QStringLiteral("message-window")}, QByteArray("qt_msg=on\nqt_msg_wnd=on\n"));
    QCOMPARE(child.exit_code, 0);
    QVERIFY2(child.err.contains(QStringLiteral("qWarning: first message\n")), qPrintable(child.err));
    QVERIFY(child.err.contains(QStringLiteral("qCritical: from a worker thread\n")));
    QVERIFY2(child.out.contains(QStringLiteral("title=qt_msg for orq_test_app\n")), qPrintable(child.out));
    QVERIFY(child.out.contains(QStringLiteral("visible=1\n")));
    const QString text = child.out.section(QStringLiteral("text="), 1);
    QVERIFY2(
        text.contains(QRegularExpression(QStringLiteral("qWarning: first message\\(\\d+ ms elapsed\\)"))),
        qPrintable(text));
    QVERIFY2(text.contains(
                 QRegularExpression(QStringLiteral("qCritical: from a worker thread\\(\\d+ ms elapsed\\)"))),
             qPrintable(text));
    // A message holding "%1" or markup reads as it was written.
    const QString odd = QStringLiteral("QString::arg: Argument missing: \"%1 of %2\", 7 <b>");
    QVERIFY2(child.err.contains(QStringLiteral("qWarning: ") + odd + QLatin1Char('\n')),
             qPrintable(child.err));
    QVERIFY2(text.contains(QRegularExpression(QStringLiteral("qWarning: ") + QRegularExpression::escape(odd) +
                                              QStringLiteral("\\(\\d+ ms elapsed\\)"))),
             qPrintable(text));
  }

  void qt_messages_with_source_name_file_and_line()
  {
    QTemporaryDir dir;
    const CHILD child = run_helper(dir.path(), {QStringLiteral("message-window")},
                                   QByteArray("qt_msg=on\nqt_msg_with_source=on\n"));
    QCOMPARE(child.exit_code, 3); // no window without qt_msg_wnd
    QVERIFY2(child.err.contains(QRegularExpression(
                 QStringLiteral("qWarning \\(.*orq_test_app\\.cpp:\\d+\\): first message\n"))),
             qPrintable(child.err));
  }

  void qt_messages_are_silent_by_default()
  {
    QTemporaryDir dir;
    const CHILD child = run_helper(dir.path(), {QStringLiteral("message-window")});
    QCOMPARE(child.exit_code, 3);
    QVERIFY2(!child.err.contains(QStringLiteral("first message")), qPrintable(child.err));
  }

  void damaged_settings_never_stop_start_up_data()
  {
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("as_directory");
    QTest::addColumn<QString>("problem");
    QTest::addColumn<int>("saved");
    QTest::newRow("binary junk") << QByteArray("\x00\x01\x02\x03junk", 8) << false << "is damaged" << 1;
    QTest::newRow("directory in its place") << QByteArray() << true << "is a directory" << 0;
    QTest::newRow("valid file") << QByteArray("[Test]\nother=1\n") << false << "" << 1;
  }

  void damaged_settings_never_stop_start_up()
  {
    QFETCH(QByteArray, content);
    QFETCH(bool, as_directory);
    QFETCH(QString, problem);
    QFETCH(int, saved);
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral(".config/Vantor/vantor_settings.ini"));
    QDir().mkpath(QFileInfo(path).absolutePath());
    if (as_directory) {
      QVERIFY(QDir().mkdir(path));
    } else {
      QFile file(path);
      QVERIFY(file.open(QIODevice::WriteOnly));
      file.write(content);
    }
    const CHILD child = run_helper(dir.path(), {QStringLiteral("start-up")});
    QCOMPARE(child.exit_code, 0);
    QVERIFY2(child.out.contains(QStringLiteral("saved=%1").arg(saved)), qPrintable(child.out + child.err));
    if (problem.isEmpty())
      QVERIFY(child.out.contains(QStringLiteral("problem=\n")));
    else
      QVERIFY2(child.out.contains(problem) && child.err.contains(problem), qPrintable(child.out + child.err));
  }

  void theme_pens_paint_in_the_palette_and_stored_colours_from_the_first_paint_data()
  {
    QTest::addColumn<QByteArray>("stored");
    QTest::addColumn<QString>("net");
    QTest::newRow("nothing stored") << QByteArray() << "#1b5e20";
    QTest::newRow("stored net colour")
        << QByteArray("[Theme%2FColors]\nColor_version=11\nORQ_GED_NET_COLOR=#123456\n") << "#123456";
    QTest::newRow("stored by name") << QByteArray(
                                           "[Theme%2FColors]\nColor_version=11\nORQ_GED_NET_COLOR=navy\n")
                                    << "#000080";
    QTest::newRow("stored under an old version")
        << QByteArray("[Theme%2FColors]\nColor_version=10\nORQ_GED_NET_COLOR=#123456\n") << "#1b5e20";
  }

  void theme_pens_paint_in_the_palette_and_stored_colours_from_the_first_paint()
  {
    QFETCH(QByteArray, stored);
    QFETCH(QString, net);
    QTemporaryDir dir;
    if (!stored.isEmpty()) {
      const QString path = dir.filePath(QStringLiteral(".config/Vantor/vantor_settings.ini"));
      QDir().mkpath(QFileInfo(path).absolutePath());
      QFile file(path);
      QVERIFY(file.open(QIODevice::WriteOnly));
      file.write(stored);
    }
    const CHILD child = run_helper(dir.path(), {QStringLiteral("theme-paint")});
    QCOMPARE(child.exit_code, 0);
    const QString expected = QStringLiteral("first: tracker=#00ff00 net=%1 brush=#00ff00\n"
                                            "after: tracker=#ff0000 net=%1 brush=#ff0000\n"
                                            "records: pen=#ff0000 brush=#ff0000\n")
                                 .arg(net);
    QCOMPARE(child.out, expected);
  }
};

ORQ_TEST_REGISTER(TST_ORQ_APP_PROCESS);
#include "tst_orq_app_process.moc"
