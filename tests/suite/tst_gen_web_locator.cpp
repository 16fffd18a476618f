#include "orq_test_support.h"

#include <gen_config_vars.h>
#include <gen_web_locator.h>

#include <QTemporaryDir>

namespace {
// Makes the process's configuration the given file for the scope's lifetime.
class CONFIGURATION {
public:
  explicit CONFIGURATION(const QByteArray& text)
  {
    const QString path = m_dir.filePath(QStringLiteral("vantor.ini"));
    QFile file(path);
    if (file.open(QIODevice::WriteOnly))
      file.write(text);
    m_vars = std::make_unique<GEN_INI_CONFIG_VARS>(path);
    gen_set_config_vars(m_vars.get());
  }
  ~CONFIGURATION() { gen_set_config_vars(nullptr); }

private:
  QTemporaryDir m_dir;
  std::unique_ptr<GEN_INI_CONFIG_VARS> m_vars;
};
}  // namespace

class TST_GEN_WEB_LOCATOR : public QObject {
  Q_OBJECT
private slots:
  void initTestCase() { orq_test_strict_messages(); }

  void without_a_base_nothing_opens()
  {
    CONFIGURATION configuration("vantor_help_url=https://help.example.org\n");
    QTemporaryDir dir;
    const QString log = dir.filePath(QStringLiteral("debug.log"));
    qputenv("VANTOR_DEBUG_LOG", QFile::encodeName(log));
    const bool opened = gen_web_locator().open_page(11);
    qunsetenv("VANTOR_DEBUG_LOG");
    QVERIFY(!opened);
    QCOMPARE(gen_web_locator().page_url(5), QUrl());
    QFile file(log);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QString line = QString::fromUtf8(file.readAll());
    QVERIFY2(line.contains(QStringLiteral("[web] page 11: no address")), qPrintable(line));
  }

  void page_url_data()
  {
    QTest::addColumn<QByteArray>("base");
    QTest::addColumn<int>("page");
    QTest::addColumn<QString>("expected");
    const QByteArray plain("https://vantor.example.org");
    const QByteArray slash("https://vantor.example.org/");
    const QByteArray nested("https://vantor.example.org/docs/web/");
    QTest::newRow("bulletin") << plain << 5 << "https://vantor.example.org/page/5";
    QTest::newRow("documentation") << plain << 11 << "https://vantor.example.org/page/11";
    QTest::newRow("notification centre") << plain << 12 << "https://vantor.example.org/page/12";
    QTest::newRow("base with a closing slash") << slash << 5 << "https://vantor.example.org/page/5";
    QTest::newRow("base with a path") << QByteArray("https://vantor.example.org/docs") << 11
                                      << "https://vantor.example.org/docs/page/11";
    QTest::newRow("base with a path and a closing slash") << nested << 12
                                                          << "https://vantor.example.org/docs/web/page/12";
    QTest::newRow("base with doubled closing slashes") << QByteArray("https://vantor.example.org//") << 12
                                                       << "https://vantor.example.org/page/12";
    QTest::newRow("base with a port") << QByteArray("http://intranet:8080/") << 11 << "http://intranet:8080/page/11";
    QTest::newRow("page zero") << plain << 0 << "";
    QTest::newRow("negative page") << plain << -1 << "";
    QTest::newRow("negative page, base with a slash") << slash << -1 << "";
    QTest::newRow("no base") << QByteArray() << 11 << "";
  }

  void page_url()
  {
    QFETCH(QByteArray, base);
    QFETCH(int, page);
    QFETCH(QString, expected);
    CONFIGURATION configuration(base.isEmpty() ? QByteArray() : "vantor_web_url=" + base + "\n");
    QCOMPARE(gen_web_locator().page_url(page).toString(), expected);
  }

  void null_restores_the_default_locator()
  {
    // A tool may send pages somewhere of its own.
    class FIXED_LOCATOR : public GEN_WEB_LOCATOR {
    public:
      QUrl page_url(int page) const override
      {
        return QUrl(QStringLiteral("file:///pages/%1.html").arg(page));
      }
    };
    GEN_WEB_LOCATOR& default_locator = gen_web_locator();
    FIXED_LOCATOR own;
    gen_set_web_locator(&own);
    QCOMPARE(&gen_web_locator(), static_cast<GEN_WEB_LOCATOR*>(&own));
    QCOMPARE(gen_web_locator().page_url(12), QUrl(QStringLiteral("file:///pages/12.html")));
    gen_set_web_locator(nullptr);
    QCOMPARE(&gen_web_locator(), &default_locator);
    CONFIGURATION configuration{QByteArray()};
    QCOMPARE(gen_web_locator().page_url(12), QUrl());
  }
};

ORQ_TEST_REGISTER(TST_GEN_WEB_LOCATOR);
#include "tst_gen_web_locator.moc"
