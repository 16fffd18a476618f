// A small tool of the suite that the tests start as a child process, to see
// what a real process does: its files, its standard error, its exit.
//   orq_test_app event-log N        start up, feed N rounds of input, shut down
//   orq_test_app processors ROOT    start up against a processor tree, print counts
//   orq_test_app bad-connect        orq_safe_connect with a signal that does not exist
//   orq_test_app require            a failed precondition of module ORQ
//   orq_test_app illegal-action     a catalogue lookup with a value beyond the catalogue
//   orq_test_app qt-fatal           qFatal under the full message handler
//   orq_test_app message-window     Qt messages mirrored into the message window
//   orq_test_app start-up           full start-up and shutdown, print the settings problem
//   orq_test_app theme-before-app   a theme colour asked for before the application exists
//   orq_test_app theme-after-app    a theme colour asked for after the application ended
//   orq_test_app tool-bar-icons     the tool-bar icon size chosen for the screen, and what was stored
//   orq_test_app drag-no-callback   a drag whose callback is missing when the mouse moves
//   orq_test_app drag-fixed-points  a rubber band whose fixed points share neither x nor y
//   orq_test_app theme-paint        what theme pens and brushes paint in a fresh process whose
//                                   palette highlight is green, then after it turns red
#include <orq.h>

#include <gen_internal_error.h>
#include <gen_machine_info.h>
#include <gen_settings.h>

#include <QComboBox>
#include <QDialog>
#include <QGuiApplication>
#include <QImage>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QPlainTextEdit>
#include <QScreen>
#include <QTest>
#include <QThread>
#include <QTimer>
#include <QVBoxLayout>

#include <cstdio>
#include <cstring>
#include <memory>

namespace {
int run(ORQ_APP& app, const QStringList& args)
{
  const QString mode = args.value(1);
  if (mode == QLatin1String("event-log")) {
    const int rounds = args.value(2).toInt();
    if (rounds > 0) {
      QWidget window;
      window.setObjectName(QStringLiteral("main"));
      auto* layout = new QVBoxLayout(&window);
      auto* edit = new QLineEdit(&window);
      edit->setObjectName(QStringLiteral("name_edit"));
      layout->addWidget(edit);
      window.show();
      if (!QTest::qWaitForWindowExposed(&window))
        return 4;
      for (int i = 0; i < rounds; ++i) {
        QTest::keyClick(edit, Qt::Key_A);
        QTest::mouseClick(edit, Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
      }
      // Between the records, make the log unwritable: that record is lost,
      // the next one is written.
      if (args.value(3) == QLatin1String("block")) {
        ORQ_APP_EVENT_FILTER* filter = app.findChild<ORQ_APP_EVENT_FILTER*>();
        const QString log = filter->get_log_file_name();
        const QString aside = log + QStringLiteral(".aside");
        QFile::rename(log, aside);
        QDir().mkdir(log); // a directory cannot be opened for appending
        QTest::keyClick(edit, Qt::Key_B);
        QDir().rmdir(log);
        QFile::rename(aside, log);
        QTest::keyClick(edit, Qt::Key_C);
      }
    }
    return 0;
  }
  if (mode == QLatin1String("processors")) {
    std::printf("cores=%d logical=%d\n", gen_processor_mgr().cores(),
                gen_processor_mgr().logical_processors());
    return 0;
  }
  if (mode == QLatin1String("bad-connect")) {
    QObject sender;
    QObject receiver;
    orq_safe_connect(&sender, SIGNAL(no_such_signal(int)), &receiver, SLOT(deleteLater()), Qt::AutoConnection,
                     "tool_window.cpp", 77);
    return 0;
  }
  if (mode == QLatin1String("require")) {
    const void* m_view = nullptr;
    GEN_REQUIRE("ORQ", m_view != NULL);
    return 0;
  }
  if (mode == QLatin1String("drag-no-callback")) {
    QWidget widget;
    widget.resize(100, 100);
    QTimer::singleShot(0, &widget, [&widget] {
      QMouseEvent move(QEvent::MouseMove, QPointF(20, 20), widget.mapToGlobal(QPoint(20, 20)), Qt::NoButton,
                       Qt::LeftButton, Qt::NoModifier);
      QCoreApplication::sendEvent(&widget, &move);
    });
    ORQ_DRAG_TRACKER::track(&widget, QPoint(10, 10), nullptr, 0.0);
    return 0;
  }
  if (mode == QLatin1String("drag-fixed-points")) {
    QWidget widget;
    ORQ_DRAG_TRACKER::track_rect(&widget, QPoint(5, 5), QPoint(10, 10), QPoint(20, 30), nullptr, 0.0);
    return 0;
  }
  if (mode == QLatin1String("illegal-action")) {
    std::printf("%s\n", orq_get_menu_text(static_cast<ORQ_ACTION_ENUM>(ORQ_ACTION_COUNT + 1)));
    return 0;
  }
  if (mode == QLatin1String("qt-fatal")) {
    qFatal("the display connection is gone");
    return 0;
  }
  if (mode == QLatin1String("message-window")) {
    ORQ_MAIN_WINDOW window;
    window.show();
    if (!QTest::qWaitForWindowExposed(&window))
      return 4;
    qWarning("first message");
    qWarning("QString::arg: Argument missing: \"%%1 of %%2\", 7 <b>");
    std::unique_ptr<QThread> worker(QThread::create([] { qCritical("from a worker thread"); }));
    worker->start();
    worker->wait();
    QCoreApplication::processEvents();
    auto* dialog = window.findChild<QDialog*>(QStringLiteral("orq_qt_message_window"));
    if (!dialog)
      return 3;
    std::printf("title=%s\n", qPrintable(dialog->windowTitle()));
    std::printf("visible=%d\n", dialog->isVisible() ? 1 : 0);
    std::printf("text=%s\n", qPrintable(dialog->findChild<QPlainTextEdit*>()->toPlainText()));
    return 0;
  }
  if (mode == QLatin1String("tool-bar-icons")) {
    const bool large = ORQ_TOOL_BAR::get_large_icon_setting(nullptr);
    bool stored = false;
    const bool has_stored = gen_settings().get_group_bool(59, QStringLiteral("large_icons"), &stored);
    gen_settings().sync();
    const QSize screen = QGuiApplication::primaryScreen()->availableGeometry().size();
    std::printf("screen=%dx%d\nlarge=%d\nstored=%s\n", screen.width(), screen.height(), large ? 1 : 0,
                has_stored ? (stored ? "true" : "false") : "none");
    return 0;
  }
  if (mode == QLatin1String("theme-paint")) {
    // No call into the theme before the first paint: what a tool draws
    // first is what the user sees first.
    QPalette palette = QGuiApplication::palette();
    palette.setColor(QPalette::Highlight, QColor(0, 255, 0));
    QApplication::setPalette(palette);
    auto painted = [] {
      QImage image(8, 8, QImage::Format_ARGB32);
      image.fill(Qt::white);
      QPainter painter(&image);
      painter.setPen(*ORQ_PEN(ORQ_RECT_TRACKER_SOLID_PEN).get_pen());
      painter.drawLine(0, 1, 7, 1);
      painter.setPen(*ORQ_PEN(ORQ_GED_NET_PEN).get_pen());
      painter.drawLine(0, 3, 7, 3);
      painter.fillRect(QRect(0, 5, 8, 2), ORQ_BRUSH(ORQ_WINDOW_HIGHLIGHT_BRUSH).get_brush());
      painter.end();
      return QStringLiteral("tracker=%1 net=%2 brush=%3")
          .arg(image.pixelColor(4, 1).name(), image.pixelColor(4, 3).name(), image.pixelColor(4, 5).name());
    };
    std::printf("first: %s\n", qPrintable(painted()));
    palette.setColor(QPalette::Highlight, QColor(255, 0, 0));
    QApplication::setPalette(palette);
    std::printf("after: %s\n", qPrintable(painted()));
    const ORQ_GDI_MANAGER* mgr = ORQ_GDI_MANAGER::get_instance();
    std::printf("records: pen=%s brush=%s\n",
                qPrintable(mgr->get_pen_data(ORQ_RECT_TRACKER_SOLID_PEN)->m_pen.color().name()),
                qPrintable(mgr->get_brush_data(ORQ_WINDOW_HIGHLIGHT_BRUSH)->m_brush.color().name()));
    return 0;
  }
  if (mode == QLatin1String("theme-after-app")) {
    std::printf("during=%s\n", qPrintable(ORQ_COLOR(ORQ_RED_COLOR).get_color().name()));
    std::fflush(stdout);
    return 0;
  }
  if (mode == QLatin1String("start-up")) {
    gen_settings().set_value(QStringLiteral("Test"), QStringLiteral("started"), true);
    const bool saved = gen_settings().sync();
    std::printf("problem=%s\nsaved=%d\n", qPrintable(gen_settings().problem()), saved ? 1 : 0);
    return 0;
  }
  std::fprintf(stderr, "orq_test_app: unknown mode %s\n", qPrintable(mode));
  return 2;
}
} // namespace

int main(int argc, char** argv)
{
  const QByteArray mode = argc > 1 ? QByteArray(argv[1]) : QByteArray();
  if (mode == "theme-before-app") {
    std::printf("%s\n", qPrintable(ORQ_COLOR(ORQ_RED_COLOR).get_color().name()));
    return 0;
  }
  // The processor tree must be in place before init_instance reads it.
  std::unique_ptr<GEN_MACHINE_INFO> machine;
  if (argc > 2 && std::strcmp(argv[1], "processors") == 0) {
    machine = std::make_unique<GEN_MACHINE_INFO>(QString::fromLocal8Bit(argv[2]));
    gen_set_machine_info(machine.get());
  }
  auto** args = const_cast<const char**>(argv);
  char** qt_argv = ORQ_APP::copy_argv_for_qt(argc, args);
  int qt_argc = argc;
  int rc = 0;
  {
    ORQ_APP app(qt_argc, qt_argv);
    QCoreApplication::setApplicationName(QStringLiteral("orq_test_app"));
    app.init_instance(argc, args);
    rc = run(app, QCoreApplication::arguments());
    app.exit_instance();
  }
  gen_set_machine_info(nullptr);
  if (mode == "theme-after-app")
    std::printf("%s\n", qPrintable(ORQ_COLOR(ORQ_RED_COLOR).get_color().name()));
  return rc;
}
