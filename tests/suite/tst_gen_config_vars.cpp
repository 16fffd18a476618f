#include "orq_test_support.h"

#include <gen_config_vars.h>
#include <gen_message_service.h>

#include <QTemporaryDir>

namespace {
// Collects what the message service is told while it lives.
class WARNING_RECORDER {
public:
  WARNING_RECORDER()
      : m_id(gen_message_service().add_listener([this](const GEN_MESSAGE& m) { m_messages << m.text; }))
  {
  }
  ~WARNING_RECORDER() { gen_message_service().remove_listener(m_id); }
  QStringList messages() const { return m_messages; }

private:
  int m_id;
  QStringList m_messages;
};
}  // namespace

class TST_GEN_CONFIG_VARS : public QObject {
  Q_OBJECT
private slots:
  void initTestCase() { orq_test_strict_messages(); }

  void values_data()
  {
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("kind");
    QTest::addColumn<int>("default_value");
    QTest::addColumn<int>("expected");
    QTest::addColumn<QString>("warning");

    QTest::newRow("on") << QByteArray("qt_msg=on\n") << "qt_msg" << "bool" << 0 << 1 << "";
    QTest::newRow("TRUE in capitals") << QByteArray("qt_msg=TRUE\n") << "qt_msg" << "bool" << 0 << 1 << "";
    QTest::newRow("off overrides a true default") << QByteArray("qt_msg=off") << "qt_msg" << "bool" << 1 << 0 << "";
    QTest::newRow("integer") << QByteArray("orq_max_kpx_concurrency=2\n") << "orq_max_kpx_concurrency"
                             << "int" << 4 << 2 << "";
    QTest::newRow("hexadecimal integer") << QByteArray("mask=0x10\n") << "mask" << "int" << 0 << 16 << "";
    QTest::newRow("negative integer") << QByteArray("offset=-3\n") << "offset" << "int" << 0 << -3 << "";
    QTest::newRow("spaces around name and value") << QByteArray("  n =  7  \n") << "n" << "int" << 0 << 7 << "";
    QTest::newRow("comments and blank lines") << QByteArray("# c\n\n; c\nn=5\n") << "n" << "int" << 0 << 5 << "";
    QTest::newRow("absent name gives the default") << QByteArray("other=1\n") << "n" << "int" << 9 << 9 << "";
    QTest::newRow("empty file") << QByteArray() << "qt_msg" << "bool" << 1 << 1 << "";
    QTest::newRow("line without equals sign")
        << QByteArray("qt_msg=on\nthis is not a setting\n") << "qt_msg" << "bool" << 0 << 1
        << "vantor.ini:2: ignored \"this is not a setting\": expected a line of the form name=value";
    QTest::newRow("line with empty name") << QByteArray("=on\nn=3\n") << "n" << "int" << 0 << 3
                                          << "vantor.ini:1: ignored \"=on\"";
    QTest::newRow("value neither on nor off")
        << QByteArray("x=1\nqt_msg=maybe\n") << "qt_msg" << "bool" << 0 << 0
        << "vantor.ini:2: qt_msg=maybe is not on or off; the default off is used";
    QTest::newRow("integer with trailing junk")
        << QByteArray("orq_max_kpx_concurrency=4cores\n") << "orq_max_kpx_concurrency" << "int" << 4 << 4
        << "vantor.ini:1: orq_max_kpx_concurrency=4cores is not an integer; the default 4 is used";
    QTest::newRow("integer beyond int range")
        << QByteArray("n=99999999999999999999\n") << "n" << "int" << 5 << 5
        << "vantor.ini:1: n=99999999999999999999 is not an integer; the default 5 is used";
    QTest::newRow("name set twice, the later line wins")
        << QByteArray("n=1\nn=2\n") << "n" << "int" << 0 << 2 << "vantor.ini:2: n is set again; line 1 is ignored";
    QTest::newRow("binary junk line") << QByteArray("\x01\x02\xff\xfe\nn=4\n", 9) << "n" << "int" << 0 << 4
                                      << "vantor.ini:1: ignored";
  }

  void values()
  {
    QFETCH(QByteArray, file);
    QFETCH(QString, name);
    QFETCH(QString, kind);
    QFETCH(int, default_value);
    QFETCH(int, expected);
    QFETCH(QString, warning);

    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("vantor.ini"));
    QFile out(path);
    QVERIFY(out.open(QIODevice::WriteOnly));
    out.write(file);
    out.close();

    WARNING_RECORDER recorder;
    GEN_INI_CONFIG_VARS vars(path);
    // Asked twice: a bad value is reported once, not on every read.
    for (int round = 0; round < 2; ++round) {
      const int value = kind == QLatin1String("bool") ? int(vars.get_bool(name, default_value != 0))
                                                      : vars.get_int(name, default_value);
      QCOMPARE(value, expected);
    }
    if (warning.isEmpty()) {
      QCOMPARE(recorder.messages(), QStringList());
    } else {
      QCOMPARE(recorder.messages().size(), 1);
      QVERIFY2(recorder.messages().first().startsWith(warning), qPrintable(recorder.messages().first()));
    }
  }

  void missing_file_is_silent_and_gives_defaults()
  {
    QTemporaryDir dir;
    WARNING_RECORDER recorder;
    GEN_INI_CONFIG_VARS vars(dir.filePath(QStringLiteral("absent.ini")));
    QCOMPARE(vars.get_int(QStringLiteral("orq_max_kpx_concurrency"), 4), 4);
    QCOMPARE(vars.get_bool(QStringLiteral("qt_msg"), false), false);
    QCOMPARE(vars.get_string(QStringLiteral("vantor_help_url"), QStringLiteral("none")), QStringLiteral("none"));
    QCOMPARE(recorder.messages(), QStringList());
  }

  void unreadable_file_warns_and_gives_defaults()
  {
    // A directory where the file should be cannot be read, even by root.
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("vantor.ini"));
    QVERIFY(QDir().mkdir(path));
    WARNING_RECORDER recorder;
    GEN_INI_CONFIG_VARS vars(path);
    QCOMPARE(vars.get_int(QStringLiteral("n"), 11), 11);
    QCOMPARE(recorder.messages().size(), 1);
    QVERIFY(recorder.messages().first().contains(QStringLiteral("cannot be read")));
  }

  void file_is_read_once()
  {
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("vantor.ini"));
    QFile out(path);
    QVERIFY(out.open(QIODevice::WriteOnly));
    out.write("n=1\n");
    out.close();
    GEN_INI_CONFIG_VARS vars(path);
    QCOMPARE(vars.get_int(QStringLiteral("n"), 0), 1);
    QVERIFY(out.open(QIODevice::WriteOnly | QIODevice::Truncate));
    out.write("n=2\n");
    out.close();
    QCOMPARE(vars.get_int(QStringLiteral("n"), 0), 1);
  }

  void vantor_ini_names_the_file()
  {
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("tool.ini"));
    const QByteArray saved = qgetenv("VANTOR_INI");
    qputenv("VANTOR_INI", QFile::encodeName(path));
    GEN_INI_CONFIG_VARS vars;
    qputenv("VANTOR_INI", saved);
    QCOMPARE(vars.path(), path);
  }
};

ORQ_TEST_REGISTER(TST_GEN_CONFIG_VARS);
#include "tst_gen_config_vars.moc"
