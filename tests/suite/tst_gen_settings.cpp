#include "orq_test_support.h"

#include <gen_message_service.h>
#include <gen_settings.h>

#include <QTemporaryDir>

namespace {
QByteArray read_all(const QString& path)
{
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void write_all(const QString& path, const QByteArray& data)
{
  QFile file(path);
  QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
  file.write(data);
}
}  // namespace

class TST_GEN_SETTINGS : public QObject {
  Q_OBJECT
private slots:
  void initTestCase() { orq_test_strict_messages(); }

  void values_survive_a_new_registry()
  {
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("Vantor/vantor_settings.ini"));
    {
      GEN_SETTINGS settings(path);
      settings.set_value(QStringLiteral("Theme/Colors"), QStringLiteral("Color_version"), 11);
      settings.set_value(QStringLiteral("Theme/Colors"), QStringLiteral("ORQ_WINDOW_TEXT_COLOR"),
                         QStringLiteral("#102030"));
      settings.set_group_bool(2, QStringLiteral("mdi_tabs"), false);
      QVERIFY(settings.sync());
    }
    GEN_SETTINGS settings(path);
    QCOMPARE(settings.problem(), QString());
    QCOMPARE(settings.value(QStringLiteral("Theme/Colors"), QStringLiteral("Color_version")).toInt(), 11);
    QCOMPARE(settings.names(QStringLiteral("Theme/Colors")),
             (QStringList{"Color_version", "ORQ_WINDOW_TEXT_COLOR"}));
    bool tabs = true;
    QVERIFY(settings.get_group_bool(2, QStringLiteral("mdi_tabs"), &tabs));
    QCOMPARE(tabs, false);
    settings.remove(QStringLiteral("Theme/Colors"), QStringLiteral("ORQ_WINDOW_TEXT_COLOR"));
    QVERIFY(!settings.contains(QStringLiteral("Theme/Colors"), QStringLiteral("ORQ_WINDOW_TEXT_COLOR")));
  }

  void default_file_is_under_the_user_config_directory()
  {
    QCOMPARE(GEN_SETTINGS::default_file_name(),
             orq_test_home() + QStringLiteral("/.config/Vantor/vantor_settings.ini"));
  }

  void group_bool_ignores_damaged_values_data()
  {
    QTest::addColumn<QString>("stored");
    QTest::addColumn<bool>("found");
    QTest::addColumn<bool>("value");
    QTest::newRow("true") << "true" << true << true;
    QTest::newRow("false") << "false" << true << false;
    QTest::newRow("one") << "1" << true << true;
    QTest::newRow("junk") << "perhaps" << false << true;
    QTest::newRow("empty") << "" << false << true;
  }

  void group_bool_ignores_damaged_values()
  {
    QFETCH(QString, stored);
    QFETCH(bool, found);
    QFETCH(bool, value);
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("s.ini"));
    write_all(path, "[Groups]\n59\\large_icons=" + stored.toUtf8() + "\n");
    GEN_SETTINGS settings(path);
    bool result = true;
    QCOMPARE(settings.get_group_bool(59, QStringLiteral("large_icons"), &result), found);
    QCOMPARE(result, value);
  }

  void damaged_file_is_kept_aside_and_never_stops_start_up_data()
  {
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("readable_entry");
    QTest::newRow("binary junk") << QByteArray("\x7f" "ELF\x02\x01\x01\x00\x00\x00garbage", 18) << false;
    QTest::newRow("truncated write") << QByteArray("[Viewer]\ngeometry=1\n[Theme\nColor_ver") << true;
    QTest::newRow("invalid UTF-8") << QByteArray("[Viewer]\ngeometry=1\nname=\xc3\x28\n") << true;
  }

  void damaged_file_is_kept_aside_and_never_stops_start_up()
  {
    QFETCH(QByteArray, content);
    QFETCH(bool, readable_entry);
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("s.ini"));
    write_all(path, content);
    QList<GEN_MESSAGE> seen;
    const int id = gen_message_service().add_listener([&seen](const GEN_MESSAGE& m) { seen << m; });
    GEN_SETTINGS settings(path);
    gen_message_service().remove_listener(id);
    QCOMPARE(seen.size(), 1);
    QVERIFY(seen.first().text.contains(QStringLiteral("is damaged; a copy was kept as")));
    QVERIFY(!settings.problem().isEmpty());

    // The user's bytes are kept, whatever the registry writes next.
    const QStringList copies = QDir(dir.path()).entryList({QStringLiteral("s.ini.damaged-*")});
    QCOMPARE(copies.size(), 1);
    QCOMPARE(read_all(dir.filePath(copies.first())), content);
    if (readable_entry)
      QCOMPARE(settings.value(QStringLiteral("Viewer"), QStringLiteral("geometry")).toInt(), 1);
    settings.set_value(QStringLiteral("Viewer"), QStringLiteral("state"), 2);
    QVERIFY(settings.sync());
    GEN_SETTINGS again(path);
    QCOMPARE(again.problem(), QString());
    QCOMPARE(again.value(QStringLiteral("Viewer"), QStringLiteral("state")).toInt(), 2);
  }

  void directory_in_place_of_the_file_gives_defaults()
  {
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("s.ini"));
    QVERIFY(QDir().mkdir(path));
    GEN_SETTINGS settings(path);
    QVERIFY(settings.problem().contains(QStringLiteral("is a directory")));
    QCOMPARE(settings.value(QStringLiteral("Viewer"), QStringLiteral("geometry"), 5).toInt(), 5);
    settings.set_value(QStringLiteral("Viewer"), QStringLiteral("geometry"), 6);
    settings.set_value(QStringLiteral("Viewer"), QStringLiteral("state"), 7);
    settings.remove(QStringLiteral("Viewer"), QStringLiteral("state"));
    // The session keeps its changes; the disk is never touched.
    QCOMPARE(settings.value(QStringLiteral("Viewer"), QStringLiteral("geometry"), 5).toInt(), 6);
    QVERIFY(!settings.contains(QStringLiteral("Viewer"), QStringLiteral("state")));
    QCOMPARE(settings.names(QStringLiteral("Viewer")), QStringList{"geometry"});
    QVERIFY(!settings.sync());
    QVERIFY(QFileInfo(path).isDir());
  }
};

ORQ_TEST_REGISTER(TST_GEN_SETTINGS);
#include "tst_gen_settings.moc"
