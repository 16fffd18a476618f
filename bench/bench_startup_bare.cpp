// The anchor of bench_startup: a plain Qt program, not linked to the
// library, that shows a main window and reports its first paint. Either a
// menu and a tool bar of 20 actions whose icons Qt's SVG engine reads from
// files, or the menus a list file describes, one line each:
//   menu<TAB>title
//   action<TAB>text<TAB>picture file in the list's folder, or nothing
//   bench_startup_bare DIR FILE...
//   bench_startup_bare --menus LIST
#include "bench_paint_watch.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMainWindow>
#include <QMenuBar>
#include <QTimer>
#include <QToolBar>

#include <cstdio>

namespace {

void add_actions(QMainWindow& window, const QStringList& args)
{
  const QDir dir(args.value(1));
  QMenu* menu = window.menuBar()->addMenu(QStringLiteral("&File"));
  QToolBar* bar = window.addToolBar(QStringLiteral("Standard"));
  for (int i = 2; i < args.size(); ++i) {
    auto* action = new QAction(QIcon(dir.filePath(args[i])), QStringLiteral("Action %1").arg(i), &window);
    menu->addAction(action);
    bar->addAction(action);
  }
}

bool add_menus(QMainWindow& window, const QString& list_name)
{
  QFile list(list_name);
  if (!list.open(QIODevice::ReadOnly))
    return false;
  const QDir dir = QFileInfo(list_name).dir();
  const QStringList lines = QString::fromUtf8(list.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
  QMenu* menu = nullptr;
  for (const QString& line : lines) {
    const QStringList fields = line.split(QLatin1Char('\t'));
    if (fields.value(0) == QLatin1String("menu")) {
      menu = window.menuBar()->addMenu(fields.value(1));
    } else if (menu) {
      const QString picture = fields.value(2);
      auto* action = new QAction(fields.value(1), &window);
      if (!picture.isEmpty())
        action->setIcon(QIcon(dir.filePath(picture)));
      menu->addAction(action);
    }
  }
  return true;
}

} // namespace

int main(int argc, char** argv)
{
  QApplication app(argc, argv);
  const QStringList args = QCoreApplication::arguments();
  QMainWindow window;
  const bool menus = args.value(1) == QLatin1String("--menus");
  if (!menus)
    add_actions(window, args);
  else if (!add_menus(window, args.value(2)))
    return 1;
  BENCH_PAINT_WATCH watch(menus ? std::function<QByteArray()>([&window] { return bench_menu_shape(window); })
                                : std::function<QByteArray()>());
  window.installEventFilter(&watch);
  window.resize(800, 600);
  window.show();
  return app.exec();
}
