// The anchor of bench_startup: a plain Qt program, not linked to the
// library, that shows a main window with a menu and a tool bar of 20 actions
// whose icons Qt's SVG engine reads from files, and reports its first paint.
//   bench_startup_bare DIR FILE...
#include "bench_paint_watch.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QMainWindow>
#include <QMenuBar>
#include <QTimer>
#include <QToolBar>

#include <cstdio>

int main(int argc, char** argv)
{
  QApplication app(argc, argv);
  const QStringList args = QCoreApplication::arguments();
  const QDir dir(args.value(1));
  QMainWindow window;
  QMenu* menu = window.menuBar()->addMenu(QStringLiteral("&File"));
  QToolBar* bar = window.addToolBar(QStringLiteral("Standard"));
  for (int i = 2; i < args.size(); ++i) {
    auto* action = new QAction(QIcon(dir.filePath(args[i])), QStringLiteral("Action %1").arg(i), &window);
    menu->addAction(action);
    bar->addAction(action);
  }
  BENCH_PAINT_WATCH watch;
  window.installEventFilter(&watch);
  window.resize(800, 600);
  window.show();
  return app.exec();
}
