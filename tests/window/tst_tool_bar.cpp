// ORQ_TOOL_BAR: the icon size rule on real screens of two sizes (a child
// process on a screen of that size), the stored choice, the small_icons
// switch, the icon edge from the theme font, every tool bar of a window,
// and F1 asking for the "Customize" help.
#include "orq_test_support.h"

#include <orq.h>

#include <gen_help.h>
#include <gen_settings.h>

#include <QDir>
#include <QFile>
#include <QFontMetrics>
#include <QProcess>
#include <QScreen>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QVBoxLayout>

namespace {
const QString kLargeName = QStringLiteral("large_icons");

class RECORDING_HELP : public GEN_HELP {
public:
  bool show_help(QWidget* context, const QString& topic) override
  {
    m_calls.append(qMakePair(context, topic));
    return true;
  }
  QList<QPair<QWidget*, QString>> m_calls;
};

QString stored_large()
{
  bool value = false;
  if (!gen_settings().get_group_bool(59, kLargeName, &value))
    return QStringLiteral("none");
  return value ? QStringLiteral("true") : QStringLiteral("false");
}

int font_edge()
{
  return QFontMetrics(ORQ_FONT(ORQ_GUI_FONT).get_font()).height();
}

struct CHILD_ANSWER {
  QString screen;
  QString large;
  QString stored;
  QString error;
};

// Runs the helper on a private display of the given size, with its own home;
// stored and config are what that home holds before it starts.
CHILD_ANSWER run_on_screen(const QSize& size, const QString& stored, const QString& config)
{
  CHILD_ANSWER answer;
  QTemporaryDir dir;
  if (!dir.isValid()) {
    answer.error = QStringLiteral("no temporary directory");
    return answer;
  }
  if (!stored.isEmpty()) {
    GEN_SETTINGS settings(dir.path() + QStringLiteral("/.config/Vantor/vantor_settings.ini"));
    settings.set_group_bool(59, kLargeName, stored == QLatin1String("true"));
    settings.sync();
  }
  if (!config.isEmpty()) {
    QFile ini(dir.filePath(QStringLiteral("vantor.ini")));
    if (!ini.open(QIODevice::WriteOnly)) {
      answer.error = QStringLiteral("cannot write vantor.ini");
      return answer;
    }
    ini.write(config.toUtf8());
  }
  QProcessEnvironment env = orq_test_child_environment(dir.path());
  env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
  env.remove(QStringLiteral("DISPLAY"));
  QProcess child;
  child.setProcessEnvironment(env);
  child.setWorkingDirectory(dir.path());
  const QString screen = QStringLiteral("-screen 0 %1x%2x24").arg(size.width()).arg(size.height());
  child.start(QStringLiteral("xvfb-run"), {QStringLiteral("-a"), QStringLiteral("-s"), screen,
                                           orq_test_helper_path(), QStringLiteral("tool-bar-icons")});
  if (!child.waitForFinished(60000) || child.exitCode() != 0) {
    answer.error = QString::fromLocal8Bit(child.readAllStandardError());
    return answer;
  }
  const QStringList lines = QString::fromLocal8Bit(child.readAllStandardOutput()).split(QLatin1Char('\n'));
  for (const QString& line : lines) {
    if (line.startsWith(QLatin1String("screen=")))
      answer.screen = line.mid(7);
    else if (line.startsWith(QLatin1String("large=")))
      answer.large = line.mid(6);
    else if (line.startsWith(QLatin1String("stored=")))
      answer.stored = line.mid(7);
  }
  return answer;
}
} // namespace

class TST_TOOL_BAR : public QObject {
  Q_OBJECT
private slots:
  void initTestCase() { orq_test_strict_messages(); }
  void init() { gen_settings().remove(GEN_SETTINGS::group_key(59), kLargeName); }
  void cleanup()
  {
    gen_settings().remove(GEN_SETTINGS::group_key(59), kLargeName);
    gen_set_help(nullptr);
  }

  void screen_size_decides_when_nothing_is_stored_data()
  {
    QTest::addColumn<QSize>("screen");
    QTest::addColumn<QString>("stored_before");
    QTest::addColumn<QString>("config");
    QTest::addColumn<QString>("large");
    QTest::addColumn<QString>("stored_after");
    QTest::newRow("1366x768: small, and stored") << QSize(1366, 768) << QString() << QString() << "0"
                                                 << "false";
    QTest::newRow("1920x1080: large, nothing stored") << QSize(1920, 1080) << QString() << QString() << "1"
                                                      << "none";
    QTest::newRow("1600x1079 is too low") << QSize(1600, 1079) << QString() << QString() << "0"
                                          << "false";
    QTest::newRow("1366x768: stored large wins") << QSize(1366, 768) << "true" << QString() << "1"
                                                 << "true";
    QTest::newRow("1920x1080: stored small wins") << QSize(1920, 1080) << "false" << QString() << "0"
                                                  << "false";
    QTest::newRow("small_icons beats a stored large") << QSize(1920, 1080) << "true"
                                                      << "small_icons=on\n"
                                                      << "0"
                                                      << "true";
    QTest::newRow("small_icons on a large screen") << QSize(1920, 1080) << QString() << "small_icons=on\n"
                                                   << "0"
                                                   << "none";
  }
  void screen_size_decides_when_nothing_is_stored()
  {
    if (QStandardPaths::findExecutable(QStringLiteral("xvfb-run")).isEmpty())
      QSKIP("xvfb-run is not installed");
    QFETCH(QSize, screen);
    QFETCH(QString, stored_before);
    QFETCH(QString, config);
    QFETCH(QString, large);
    QFETCH(QString, stored_after);
    const CHILD_ANSWER answer = run_on_screen(screen, stored_before, config);
    QVERIFY2(answer.error.isEmpty(), qPrintable(answer.error));
    QCOMPARE(answer.screen, QStringLiteral("%1x%2").arg(screen.width()).arg(screen.height()));
    QCOMPARE(answer.large, large);
    QCOMPARE(answer.stored, stored_after);
  }

  void stored_choice_wins_in_process()
  {
    // The test screen is smaller than 1600x1080, so with nothing stored
    // the answer is small and it is kept.
    QVERIFY(QGuiApplication::primaryScreen()->availableGeometry().width() < 1600 ||
            QGuiApplication::primaryScreen()->availableGeometry().height() < 1080);
    QCOMPARE(ORQ_TOOL_BAR::get_large_icon_setting(nullptr), false);
    QCOMPARE(stored_large(), QStringLiteral("false"));

    gen_settings().set_group_bool(59, kLargeName, true);
    QWidget widget;
    QCOMPARE(ORQ_TOOL_BAR::get_large_icon_setting(&widget), true);
    QCOMPARE(ORQ_TOOL_BAR::get_large_icon_setting(nullptr), true);
    QCOMPARE(stored_large(), QStringLiteral("true"));
  }

  void new_tool_bar_takes_the_setting_and_its_title()
  {
    gen_settings().set_group_bool(59, kLargeName, true);
    ORQ_TOOL_BAR large_bar(QStringLiteral("Standard"));
    QCOMPARE(large_bar.iconSize(), QSize(int(font_edge() * 1.5), int(font_edge() * 1.5)));
    QCOMPARE(large_bar.accessibleName(), QStringLiteral("Standard"));

    gen_settings().set_group_bool(59, kLargeName, false);
    ORQ_TOOL_BAR small_bar;
    QCOMPARE(small_bar.iconSize(), QSize(font_edge(), font_edge()));
    QCOMPARE(small_bar.accessibleName(), QString());
  }

  void icon_edge_follows_the_theme_font()
  {
    ORQ_TOOL_BAR bar(QStringLiteral("Edit"));
    const int edge = font_edge();
    QVERIFY(edge > 0);
    bar.set_large_icons(true);
    QCOMPARE(bar.iconSize(), QSize(static_cast<int>(edge * 1.5), static_cast<int>(edge * 1.5)));
    QCOMPARE(stored_large(), QStringLiteral("true"));
    bar.set_large_icons(false);
    QCOMPARE(bar.iconSize(), QSize(edge, edge));
    QCOMPARE(stored_large(), QStringLiteral("false"));
  }

  void window_changes_every_tool_bar_of_its_own()
  {
    ORQ_MAIN_WINDOW window;
    auto* first = new ORQ_TOOL_BAR(QStringLiteral("File"), &window);
    auto* second = new ORQ_TOOL_BAR(QStringLiteral("View"), &window);
    window.addToolBar(first);
    window.addToolBar(second);
    auto* plain = new QToolBar(QStringLiteral("Plain"), &window);
    window.addToolBar(plain);
    plain->setIconSize(QSize(7, 7));
    ORQ_TOOL_BAR elsewhere(QStringLiteral("Elsewhere"));
    elsewhere.set_large_icons(false);

    const int edge = font_edge();
    const QSize large(static_cast<int>(edge * 1.5), static_cast<int>(edge * 1.5));
    ORQ_TOOL_BAR::set_large_icons(&window, true);
    QCOMPARE(first->iconSize(), large);
    QCOMPARE(second->iconSize(), large);
    QCOMPARE(plain->iconSize(), QSize(7, 7));
    QCOMPARE(elsewhere.iconSize(), QSize(edge, edge));
    QCOMPARE(stored_large(), QStringLiteral("true"));

    ORQ_TOOL_BAR::set_large_icons(&window, false);
    QCOMPARE(first->iconSize(), QSize(edge, edge));
    QCOMPARE(second->iconSize(), QSize(edge, edge));
    ORQ_TOOL_BAR::set_large_icons(nullptr, true);
    QCOMPARE(first->iconSize(), QSize(edge, edge));
  }

  void f1_asks_for_customize_help()
  {
    RECORDING_HELP help;
    gen_set_help(&help);
    QWidget holder;
    auto* layout = new QVBoxLayout(&holder);
    auto* bar = new ORQ_TOOL_BAR(QStringLiteral("Standard"), &holder);
    layout->addWidget(bar);
    holder.show();
    QVERIFY(QTest::qWaitForWindowExposed(&holder));
    QTest::keyClick(bar, Qt::Key_A);
    QCOMPARE(help.m_calls.size(), 0);
    QTest::keyClick(bar, Qt::Key_F1);
    QCOMPARE(help.m_calls.size(), 1);
    QCOMPARE(help.m_calls.at(0).first, bar);
    QCOMPARE(help.m_calls.at(0).second, QStringLiteral("Customize"));
    gen_set_help(nullptr);
  }
};

ORQ_TEST_REGISTER(TST_TOOL_BAR);

#include "tst_tool_bar.moc"
