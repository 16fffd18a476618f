// Process start to the first painted main window: a tool built on the
// library (ORQ_APP's full start-up, a main window whose menu and tool bar
// come from the action catalogue) against bench_startup_bare, a Qt program
// that does not link the library and shows a QMainWindow with the same 20
// actions, their icons read by Qt's own SVG engine from the same pictures.
// Each run is a fresh process; the clock stops when the child reports its
// first paint.
//   bench_startup [runs]
#include <orq.h>

#include "bench_paint_watch.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QMainWindow>
#include <QMenuBar>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>
#include <QToolBar>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <vector>

namespace {

const ORQ_ACTION_ENUM k_menu[] = {
    ORQ_NEW_ACTION,       ORQ_OPEN_ACTION,     ORQ_SAVE_ACTION,     ORQ_SAVE_AS_ACTION,
    ORQ_PRINT_ACTION,     ORQ_EXIT_ACTION,     ORQ_UNDO_ACTION,     ORQ_REDO_ACTION,
    ORQ_CUT_ACTION,       ORQ_COPY_ACTION,     ORQ_PASTE_ACTION,    ORQ_DELETE_ACTION,
    ORQ_FIND_ACTION,      ORQ_ZOOM_IN_ACTION,  ORQ_ZOOM_OUT_ACTION, ORQ_ZOOM_FIT_ACTION,
    ORQ_ZOOM_TOOL_ACTION, ORQ_PAN_TOOL_ACTION, ORQ_OPTIONS_ACTION,  ORQ_VANTOR_HELP_ACTION};

int run_orq(int argc, char** argv)
{
  auto** args = const_cast<const char**>(argv);
  char** qt_argv = ORQ_APP::copy_argv_for_qt(argc, args);
  int qt_argc = argc;
  ORQ_APP app(qt_argc, qt_argv);
  app.init_instance(argc, args);
  ORQ_MAIN_WINDOW window;
  QMenu* menu = window.menuBar()->addMenu(QStringLiteral("&File"));
  QToolBar* bar = window.addToolBar(QStringLiteral("Standard"));
  for (ORQ_ACTION_ENUM id : k_menu) {
    QAction* action = orq_create_action(id, &window);
    menu->addAction(action);
    bar->addAction(action);
  }
  BENCH_PAINT_WATCH watch;
  window.installEventFilter(&watch);
  window.resize(800, 600);
  window.show();
  const int rc = app.exec();
  app.exit_instance();
  return rc;
}

double time_child(const QString& program, const QStringList& args)
{
  QProcess child;
  QElapsedTimer timer;
  timer.start();
  child.start(program, args);
  while (!child.canReadLine()) {
    if (!child.waitForReadyRead(30000))
      return -1;
  }
  const double ms = double(timer.nsecsElapsed()) / 1e6;
  if (child.readLine().trimmed() != "painted")
    return -1;
  child.waitForFinished(30000);
  return ms;
}

} // namespace

int main(int argc, char** argv)
{
  qputenv("QT_QPA_PLATFORM", "offscreen");
  if (argc >= 2 && std::strcmp(argv[1], "--child") == 0)
    return run_orq(argc, argv);

  QCoreApplication app(argc, argv);
  // The bare program gets the same pictures as files of its own.
  QTemporaryDir pictures;
  QStringList bare_args{pictures.path()};
  for (ORQ_ACTION_ENUM id : k_menu) {
    const QString name = orq_get_action_enum_string(id).toLower() + QStringLiteral(".svg");
    QFile::copy(orq_get_icon_file_names(orq_get_icon_enum(orq_get_action_enum_string(id).replace(
                                            QLatin1String("_ACTION"), QLatin1String("_ICON"))))
                    .value(0),
                pictures.filePath(name));
    bare_args << name;
  }
  const QString self = QCoreApplication::applicationFilePath();
  const QString bare = QFileInfo(self).dir().filePath(QStringLiteral("bench_startup_bare"));
  const int runs = argc > 1 ? std::max(3, std::atoi(argv[1])) : 15;
  std::vector<double> orq_times;
  std::vector<double> bare_times;
  // Interleaved, so that a busy moment of the machine hits both sides.
  for (int run = 0; run < runs; ++run) {
    orq_times.push_back(time_child(self, {QStringLiteral("--child")}));
    bare_times.push_back(time_child(bare, bare_args));
    if (orq_times.back() < 0 || bare_times.back() < 0) {
      std::fprintf(stderr, "bench_startup: a child did not paint\n");
      return 1;
    }
  }
  std::sort(orq_times.begin(), orq_times.end());
  std::sort(bare_times.begin(), bare_times.end());
  const double orq_ms = orq_times[orq_times.size() / 2];
  const double bare_ms = bare_times[bare_times.size() / 2];
  std::printf("Process start to first painted main window, median of %d runs (offscreen)\n\n", runs);
  std::printf("| Program | Time |\n|---|---|\n");
  std::printf("| Bare Qt: QApplication + QMainWindow, 20 actions with SVG icons | %.1f ms |\n", bare_ms);
  std::printf("| ORQ tool: full start-up + ORQ_MAIN_WINDOW, 20 catalogue actions | %.1f ms |\n", orq_ms);
  std::printf("\nRatio %.2f; target at most 1.20: %s\n", orq_ms / bare_ms,
              orq_ms / bare_ms <= 1.2 ? "met" : "MISSED");
  return 0;
}
