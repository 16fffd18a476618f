#include "orq_test_support.h"

#include "orq_app_p.h"

#include <orq.h>

#include <gen_help.h>
#include <gen_memory.h>
#include <gen_tcl.h>
#include <gen_undo_redo_mgr.h>

#include <QComboBox>
#include <QFontComboBox>
#include <QFontDatabase>
#include <QLineEdit>
#include <QPainter>
#include <QPointer>
#include <QSpinBox>
#include <QStyleFactory>
#include <QStyleOption>

#include <memory>
#include <thread>

namespace {
// Records what the help service is asked; the dialogs under test must route
// F1 to whatever service the tool installed.
class RECORDING_HELP : public GEN_HELP {
public:
  bool show_help(QWidget* context, const QString& topic) override
  {
    contexts << context;
    topics << topic;
    return true;
  }
  QList<QWidget*> contexts;
  QStringList topics;
};

QStringList g_recorded;
void recording_handler(QtMsgType, const QMessageLogContext&, const QString& message)
{
  g_recorded << message;
}

// A tool calls copy_argv_for_qt once, before Qt starts. Calling it again in
// a running test process must leave the test's message handler in place; the
// style it replaces belongs to the application, which deletes it.
char** copy_argv_again(int argc, const char** argv, bool restore_handler = true)
{
  const QtMessageHandler handler = qInstallMessageHandler(nullptr);
  qInstallMessageHandler(handler);
  char** copy = ORQ_APP::copy_argv_for_qt(argc, argv);
  if (restore_handler)
    qInstallMessageHandler(handler);
  return copy;
}

QImage render(const std::function<void(QPainter&)>& draw)
{
  QImage image(40, 40, QImage::Format_ARGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  draw(painter);
  return image;
}
} // namespace

class TST_ORQ_APP : public QObject {
  Q_OBJECT
private slots:
  void initTestCase() { orq_test_strict_messages(); }

  void application_object_is_reachable()
  {
    QVERIFY(orq_get_app());
    QCOMPARE(orq_get_app(), qobject_cast<ORQ_APP*>(qApp));
    QVERIFY(orq_get_app()->get_undo_redo_mgr());
    QVERIFY(qApp->findChild<ORQ_APP_EVENT_FILTER*>());
    QVERIFY(qobject_cast<ORQ_PROXY_STYLE*>(QApplication::style()));
    QCOMPARE(orq_get_app()->get_main_window(), nullptr);
    ORQ_MAIN_WINDOW window;
    QCOMPARE(orq_get_app()->get_main_window(), &window);
    QCOMPARE(orq_get_app()->get_main_frame(), &window);
  }

  // Runs before anything here replaces the style, so that it sees the one
  // copy_argv_for_qt set before the application existed.
  void replaced_start_up_style_is_deleted()
  {
    const QPointer<QStyle> start_up = QApplication::style();
    QVERIFY(qobject_cast<ORQ_PROXY_STYLE*>(start_up.data()));
    QCOMPARE(start_up->parent(), qApp);
    // A tool that switches styles must not leave the first one behind.
    QApplication::setStyle(new ORQ_PROXY_STYLE);
    QVERIFY(start_up.isNull());
    QVERIFY(qobject_cast<ORQ_PROXY_STYLE*>(QApplication::style()));
  }

  void copy_argv_for_qt_data()
  {
    QTest::addColumn<int>("argc");
    QTest::addColumn<QStringList>("args"); // "<null>" stands for a null entry
    QTest::addColumn<bool>("null_vector");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("no arguments") << 0 << QStringList{"tool"} << false << QStringList();
    QTest::newRow("null vector") << 2 << QStringList() << true << QStringList();
    QTest::newRow("three arguments") << 3 << QStringList{"tool", "-platform", "offscreen"} << false
                                     << QStringList{"tool", "-platform", "offscreen"};
    QTest::newRow("null entry before argc")
        << 3 << QStringList{"tool", "<null>", "lost"} << false << QStringList{"tool", "<null>", "<null>"};
    QTest::newRow("empty string") << 2 << QStringList{"tool", ""} << false << QStringList{"tool", ""};
  }

  void copy_argv_for_qt()
  {
    QFETCH(int, argc);
    QFETCH(QStringList, args);
    QFETCH(bool, null_vector);
    QFETCH(QStringList, expected);
    std::vector<QByteArray> storage;
    std::vector<const char*> argv;
    for (const QString& a : args)
      storage.push_back(a.toLocal8Bit());
    for (size_t i = 0; i < storage.size(); ++i)
      argv.push_back(args.at(int(i)) == QLatin1String("<null>") ? nullptr : storage[i].constData());
    argv.push_back(nullptr);

    char** copy = copy_argv_again(argc, null_vector ? nullptr : argv.data());

    if (expected.isEmpty()) {
      QCOMPARE(copy, nullptr);
      return;
    }
    QVERIFY(copy);
    for (int i = 0; i < argc; ++i) {
      if (expected.at(i) == QLatin1String("<null>")) {
        QCOMPARE(copy[i], nullptr);
        continue;
      }
      QVERIFY(copy[i] != argv[size_t(i)]); // a copy, not the caller's buffer
      QCOMPARE(QString::fromLocal8Bit(copy[i]), expected.at(i));
    }
    QCOMPARE(copy[argc], nullptr);
  }

  void copy_argv_for_qt_prepares_the_process()
  {
    qunsetenv("TCMALLOC_RELEASE_RATE");
    qunsetenv("QMLSCENE_DEVICE");
    qunsetenv("QML_DISABLE_DISK_CACHE");
    const char* argv[] = {"tool", nullptr};
    copy_argv_again(1, argv);
    QCOMPARE(qgetenv("QMLSCENE_DEVICE"), QByteArray("software"));
    QCOMPARE(qgetenv("QML_DISABLE_DISK_CACHE"), QByteArray("1"));
    QCOMPARE(gen_memory().release_rate(), 256.0);
    QVERIFY(qobject_cast<ORQ_PROXY_STYLE*>(QApplication::style()));
  }

  void filtering_handler_passes_messages_only_when_asked_data()
  {
    QTest::addColumn<QByteArray>("variable");
    QTest::addColumn<QStringList>("passed");
    QTest::newRow("neither variable") << QByteArray() << QStringList();
    QTest::newRow("VANTOR_SHOW_QT_MESSAGES")
        << QByteArray("VANTOR_SHOW_QT_MESSAGES") << QStringList{"Enabling Qt messages.", "a warning"};
    QTest::newRow("VANTOR_ENABLE_QT_MESSAGES")
        << QByteArray("VANTOR_ENABLE_QT_MESSAGES") << QStringList{"Enabling Qt messages.", "a warning"};
  }

  void filtering_handler_passes_messages_only_when_asked()
  {
    QFETCH(QByteArray, variable);
    QFETCH(QStringList, passed);
    if (!variable.isEmpty())
      qputenv(variable.constData(), ""); // set, even if empty, is enough
    g_recorded.clear();
    const QtMessageHandler before = qInstallMessageHandler(recording_handler);
    const char* argv[] = {"tool", nullptr};
    // The filtering handler passes on to the one installed before it: here
    // the recorder.
    copy_argv_again(1, argv, false);
    qWarning("a warning");
    qInstallMessageHandler(before);
    if (!variable.isEmpty())
      qunsetenv(variable.constData());
    QCOMPARE(g_recorded, passed);
  }

  void processor_limits_data()
  {
    QTest::addColumn<int>("cores");
    QTest::addColumn<int>("logical");
    QTest::addColumn<int>("max");
    QTest::addColumn<bool>("hyperthreading");
    QTest::addColumn<int>("expected_cores");
    QTest::addColumn<int>("expected_logical");
    QTest::newRow("8/16, cap 2, no hyperthreading") << 8 << 16 << 2 << false << 2 << 2;
    QTest::newRow("8/16, cap 2, hyperthreading") << 8 << 16 << 2 << true << 2 << 2;
    QTest::newRow("8/16, default cap 4") << 8 << 16 << 4 << false << 4 << 4;
    QTest::newRow("8/16, cap 12, no hyperthreading") << 8 << 16 << 12 << false << 8 << 12;
    QTest::newRow("8/16, cap 32, hyperthreading") << 8 << 16 << 32 << true << 8 << 16;
    QTest::newRow("core query failed") << 0 << 16 << 4 << false << 1 << 4;
    QTest::newRow("logical query failed takes the cores") << 3 << 0 << 4 << true << 3 << 3;
    QTest::newRow("both failed") << 0 << 0 << 4 << true << 1 << 1;
    QTest::newRow("more cores than logical") << 6 << 4 << 8 << false << 4 << 4;
    QTest::newRow("more cores than logical, hyperthreading") << 6 << 4 << 8 << true << 6 << 4;
  }

  void processor_limits()
  {
    QFETCH(int, cores);
    QFETCH(int, logical);
    QFETCH(int, max);
    QFETCH(bool, hyperthreading);
    QFETCH(int, expected_cores);
    QFETCH(int, expected_logical);
    const ORQ_PROCESSOR_LIMITS limits = orq_processor_limits(cores, logical, max, hyperthreading);
    QCOMPARE(limits.cores, expected_cores);
    QCOMPARE(limits.logical, expected_logical);
  }

  void wheel_never_changes_a_combo_box_data()
  {
    QTest::addColumn<QString>("widget");
    QTest::addColumn<bool>("with_filter");
    QTest::addColumn<bool>("changes");
    QTest::newRow("combo box") << "combo" << true << false;
    QTest::newRow("combo box subclass") << "font combo" << true << false;
    QTest::newRow("spin box") << "spin" << true << true;
    QTest::newRow("combo box without the filter") << "combo" << false << true;
  }

  void wheel_never_changes_a_combo_box()
  {
    QFETCH(QString, widget);
    QFETCH(bool, with_filter);
    QFETCH(bool, changes);
    QWidget form;
    QComboBox* combo =
        widget == QLatin1String("font combo") ? new QFontComboBox(&form) : new QComboBox(&form);
    if (combo->count() < 3)
      combo->addItems({QStringLiteral("nand2"), QStringLiteral("nor2"), QStringLiteral("inv")});
    combo->setCurrentIndex(1);
    auto* spin = new QSpinBox(&form);
    spin->setValue(5);
    form.show();
    QVERIFY(QTest::qWaitForWindowExposed(&form));
    QWidget* target = widget == QLatin1String("spin") ? static_cast<QWidget*>(spin) : combo;

    ORQ_APP_EVENT_FILTER* filter = qApp->findChild<ORQ_APP_EVENT_FILTER*>();
    if (!with_filter)
      qApp->removeEventFilter(filter);
    QWheelEvent wheel(QPointF(5, 5), target->mapToGlobal(QPoint(5, 5)), QPoint(), QPoint(0, -120),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(target, &wheel);
    if (!with_filter)
      qApp->installEventFilter(filter);

    const bool changed = target == spin ? spin->value() != 5 : combo->currentIndex() != 1;
    QCOMPARE(changed, changes);
  }

  void proxy_style_hints_data()
  {
    QTest::addColumn<int>("hint");
    QTest::newRow("dialog button layout") << int(QStyle::SH_DialogButtonLayout);
    QTest::newRow("dialog buttons have icons") << int(QStyle::SH_DialogButtonBox_ButtonsHaveIcons);
  }

  void proxy_style_hints()
  {
    QFETCH(int, hint);
    ORQ_PROXY_STYLE style(QStyleFactory::create(QStringLiteral("Fusion")));
    QCOMPARE(style.styleHint(QStyle::StyleHint(hint)), 0);
    // Other hints are the base style's.
    QCOMPARE(style.styleHint(QStyle::SH_ScrollBar_MiddleClickAbsolutePosition),
             style.baseStyle()->styleHint(QStyle::SH_ScrollBar_MiddleClickAbsolutePosition));
  }

  void dock_resize_handle_is_drawn_as_a_splitter_oriented_by_its_shape_data()
  {
    QTest::addColumn<QRect>("rect");
    QTest::addColumn<bool>("given_horizontal");
    QTest::addColumn<bool>("drawn_horizontal");
    QTest::newRow("tall, given horizontal") << QRect(18, 0, 4, 40) << true << true;
    QTest::newRow("tall, given vertical") << QRect(18, 0, 4, 40) << false << true;
    QTest::newRow("wide, given horizontal") << QRect(0, 18, 40, 4) << true << false;
    QTest::newRow("wide, given vertical") << QRect(0, 18, 40, 4) << false << false;
  }

  void dock_resize_handle_is_drawn_as_a_splitter_oriented_by_its_shape()
  {
    QFETCH(QRect, rect);
    QFETCH(bool, given_horizontal);
    QFETCH(bool, drawn_horizontal);
    ORQ_PROXY_STYLE style(QStyleFactory::create(QStringLiteral("Fusion")));
    QStyleOption option;
    option.rect = rect;
    option.palette = QApplication::palette();
    option.state = QStyle::State_Enabled | (given_horizontal ? QStyle::State_Horizontal : QStyle::State_None);
    const QImage ours = render(
        [&](QPainter& p) { style.drawPrimitive(QStyle::PE_IndicatorDockWidgetResizeHandle, &option, &p); });
    QStyleOption splitter = option;
    splitter.state =
        QStyle::State_Enabled | (drawn_horizontal ? QStyle::State_Horizontal : QStyle::State_None);
    const QImage expected =
        render([&](QPainter& p) { style.drawControl(QStyle::CE_Splitter, &splitter, &p); });
    QStyleOption wrong = option;
    wrong.state = QStyle::State_Enabled | (drawn_horizontal ? QStyle::State_None : QStyle::State_Horizontal);
    const QImage other = render([&](QPainter& p) { style.drawControl(QStyle::CE_Splitter, &wrong, &p); });
    QVERIFY2(expected != other, "the two orientations must look different for this test to mean anything");
    QCOMPARE(ours, expected);
  }

  void tool_bar_extension_icons_are_the_base_styles_data()
  {
    QTest::addColumn<int>("standard_icon");
    QTest::addColumn<bool>("with_option");
    QTest::addColumn<Qt::LayoutDirection>("made_in");
    QTest::addColumn<Qt::LayoutDirection>("used_in");
    const int horizontal = QStyle::SP_ToolBarHorizontalExtensionButton;
    const int vertical = QStyle::SP_ToolBarVerticalExtensionButton;
    QTest::newRow("horizontal, option") << horizontal << true << Qt::LeftToRight << Qt::LeftToRight;
    QTest::newRow("horizontal, right-to-left option")
        << horizontal << true << Qt::RightToLeft << Qt::LeftToRight;
    QTest::newRow("horizontal, no option") << horizontal << false << Qt::LeftToRight << Qt::LeftToRight;
    QTest::newRow("horizontal, no option, right-to-left")
        << horizontal << false << Qt::RightToLeft << Qt::RightToLeft;
    QTest::newRow("horizontal, direction turned before use")
        << horizontal << false << Qt::RightToLeft << Qt::LeftToRight;
    QTest::newRow("vertical, option") << vertical << true << Qt::LeftToRight << Qt::LeftToRight;
    QTest::newRow("vertical, no option") << vertical << false << Qt::LeftToRight << Qt::RightToLeft;
  }

  // Extension icons are made on first use; they must still be exactly the
  // pictures the base style gives at the moment the tool bar asked.
  void tool_bar_extension_icons_are_the_base_styles()
  {
    QFETCH(int, standard_icon);
    QFETCH(bool, with_option);
    QFETCH(Qt::LayoutDirection, made_in);
    QFETCH(Qt::LayoutDirection, used_in);
    const auto pixmap = QStyle::StandardPixmap(standard_icon);
    ORQ_PROXY_STYLE style(QStyleFactory::create(QStringLiteral("Fusion")));
    const std::unique_ptr<QStyle> base(QStyleFactory::create(QStringLiteral("Fusion")));
    QStyleOption option;
    option.direction = made_in;
    const Qt::LayoutDirection before = QGuiApplication::layoutDirection();
    QGuiApplication::setLayoutDirection(made_in);
    const QIcon ours = style.standardIcon(pixmap, with_option ? &option : nullptr);
    const QIcon expected = base->standardIcon(pixmap, with_option ? &option : nullptr);
    QGuiApplication::setLayoutDirection(used_in);
    const QList<QSize> sizes = ours.availableSizes();
    const QImage wrong = base->standardIcon(pixmap, nullptr).pixmap(16).toImage();
    QGuiApplication::setLayoutDirection(before);
    QVERIFY(!ours.isNull());
    QCOMPARE(sizes, expected.availableSizes());
    QVERIFY(!sizes.isEmpty());
    for (const int size : {8, 16, 32})
      QCOMPARE(ours.pixmap(size).toImage(), expected.pixmap(size).toImage());
    if (pixmap == QStyle::SP_ToolBarHorizontalExtensionButton && made_in != used_in)
      QVERIFY2(wrong != expected.pixmap(16).toImage(),
               "the two directions must differ for this row to mean anything");
  }

  void f1_asks_the_help_service_for_the_topic_data()
  {
    QTest::addColumn<QString>("topic");
    QTest::addColumn<QString>("object_name");
    QTest::addColumn<QString>("expected");
    QTest::newRow("explicit topic") << "SetZoom"
                                    << "zoom_dialog"
                                    << "SetZoom";
    QTest::newRow("object name") << ""
                                 << "zoom_dialog"
                                 << "zoom_dialog";
    QTest::newRow("class name") << ""
                                << ""
                                << "ORQ_DIALOG";
  }

  void f1_asks_the_help_service_for_the_topic()
  {
    QFETCH(QString, topic);
    QFETCH(QString, object_name);
    QFETCH(QString, expected);
    RECORDING_HELP help;
    gen_set_help(&help);
    ORQ_DIALOG dialog;
    dialog.setObjectName(object_name);
    dialog.set_help_topic(topic);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QTest::keyClick(&dialog, Qt::Key_F1);
    QTest::keyClick(&dialog, Qt::Key_F2); // other keys are not help
    gen_set_help(nullptr);
    QCOMPARE(help.topics, QStringList{expected});
    QCOMPARE(help.contexts.value(0), &dialog);
    QVERIFY(!(dialog.windowFlags() & Qt::WindowContextHelpButtonHint));
  }

  void main_window_f1_names_the_focused_widget()
  {
    RECORDING_HELP help;
    gen_set_help(&help);
    ORQ_MAIN_WINDOW window;
    auto* panel = new QWidget(&window);
    panel->setObjectName(QStringLiteral("hierarchy_panel"));
    auto* edit = new QLineEdit(panel);
    window.setCentralWidget(panel);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    window.activateWindow();
    edit->setFocus();
    QTRY_COMPARE(QApplication::focusWidget(), edit);
    QTest::keyClick(edit, Qt::Key_F1);
    gen_set_help(nullptr);
    QCOMPARE(help.topics, QStringList{QStringLiteral("hierarchy_panel")});
    QCOMPARE(help.contexts.value(0), edit);
  }

  void house_fonts_give_the_corvan_clear_family_in_four_styles()
  {
    // ORQ_APP's constructor has loaded them once already; loading again
    // registers all eight files again, each under the house family.
    auto families = [] {
      QStringList all;
      for (int id = 0; id < 256; ++id)
        all += QFontDatabase::applicationFontFamilies(id);
      return all;
    };
    const int before = families().size();
    orq_load_fonts_from_resources();
    const QStringList after = families();
    QCOMPARE(after.size(), before + 8);
    for (const QString& family : after.mid(before))
      QCOMPARE(family, QStringLiteral("Corvan Clear"));
    QFontDatabase database;
    const QStringList styles = database.styles(QStringLiteral("Corvan Clear"));
    for (const char* style : {"Regular", "Bold", "Italic", "Bold Italic"})
      QVERIFY2(styles.contains(QLatin1String(style)), qPrintable(styles.join(QLatin1Char(','))));
    QFont font(QStringLiteral("Corvan Clear"), 12);
    QCOMPARE(QFontInfo(font).family(), QStringLiteral("Corvan Clear"));
    QVERIFY(QFontMetrics(font).horizontalAdvance(QStringLiteral("Floorplan")) > 0);
  }

  void tcl_work_from_worker_threads_runs_on_the_gui_thread_within_the_flush_period()
  {
    GEN_TCL& tcl = gen_tcl();
    tcl.eval(QStringLiteral("set ::from_workers 0"));
    const int threads = 4;
    const int per_thread = 10;
    QVector<bool> on_gui_thread;
    QVector<qint64> latency_ms;
    QElapsedTimer clock;
    clock.start();
    std::vector<std::thread> workers;
    for (int t = 0; t < threads; ++t)
      workers.emplace_back([&] {
        for (int i = 0; i < per_thread; ++i) {
          const qint64 posted = clock.elapsed();
          tcl.post([&, posted](GEN_TCL& interp) {
            on_gui_thread << (QThread::currentThread() == qApp->thread());
            latency_ms << clock.elapsed() - posted;
            interp.eval(QStringLiteral("incr ::from_workers"));
          });
        }
      });
    for (std::thread& w : workers)
      w.join();
    // Nothing runs on the posting threads, nor before the GUI thread's pump.
    QVERIFY(on_gui_thread.isEmpty());
    QTRY_COMPARE_WITH_TIMEOUT(on_gui_thread.size(), threads * per_thread, 5000);
    QVERIFY(!on_gui_thread.contains(false));
    QCOMPARE(tcl.get_var(QStringLiteral("from_workers")).toInt(), threads * per_thread);
    // The pump runs every 100 ms; allow generously for a loaded machine.
    const qint64 worst = *std::max_element(latency_ms.begin(), latency_ms.end());
    QVERIFY2(worst < 1000, qPrintable(QStringLiteral("worst latency %1 ms").arg(worst)));
  }
};

ORQ_TEST_REGISTER(TST_ORQ_APP);
#include "tst_orq_app.moc"
