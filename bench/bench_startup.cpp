// Process start to the first painted main window: a tool built on the
// library (ORQ_APP's full start-up, a main window whose actions come from
// the action catalogue) against bench_startup_bare, a Qt program that does
// not link the library and shows a QMainWindow of the same shape, its icons
// read by Qt's own SVG engine from the same pictures. Two pairings:
//   20    a menu and a tool bar of 20 common actions
//   all   every catalogue action, one menu per first letter of the
//         enumerator names, icons where the catalogue has one, against
//         the same menus of plain actions without icons
// A third bare child shows the whole-catalogue menus with the same icons as
// files, for reference only: Qt reads each such picture as the icon is made,
// the catalogue when it is first painted. Each run is a fresh process; the
// clock stops when the child reports its first paint. The whole-catalogue
// children then describe their menus and the descriptions must match.
//   bench_startup [runs]
//   bench_startup --child [all]    one ORQ child, e.g. under a profiler
#include <orq.h>

#include "bench_paint_watch.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QMainWindow>
#include <QMenuBar>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>
#include <QToolBar>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <functional>
#include <iterator>
#include <vector>

namespace {

const ORQ_ACTION_ENUM k_menu[] = {
    ORQ_NEW_ACTION,       ORQ_OPEN_ACTION,     ORQ_SAVE_ACTION,     ORQ_SAVE_AS_ACTION,
    ORQ_PRINT_ACTION,     ORQ_EXIT_ACTION,     ORQ_UNDO_ACTION,     ORQ_REDO_ACTION,
    ORQ_CUT_ACTION,       ORQ_COPY_ACTION,     ORQ_PASTE_ACTION,    ORQ_DELETE_ACTION,
    ORQ_FIND_ACTION,      ORQ_ZOOM_IN_ACTION,  ORQ_ZOOM_OUT_ACTION, ORQ_ZOOM_FIT_ACTION,
    ORQ_ZOOM_TOOL_ACTION, ORQ_PAN_TOOL_ACTION, ORQ_OPTIONS_ACTION,  ORQ_VANTOR_HELP_ACTION};

// The whole catalogue laid out as a tool would: one menu per first letter of
// the enumerator names, menus in order of their first action, actions in
// value order within a menu. The bare program gets the same layout.
QString menu_title(ORQ_ACTION_ENUM id)
{
  return QLatin1Char('&') + orq_get_action_enum_string(id).at(4);
}

std::vector<std::vector<ORQ_ACTION_ENUM>> catalogue_menus()
{
  std::vector<std::vector<ORQ_ACTION_ENUM>> menus;
  QHash<QString, size_t> index_of;
  for (int value = 1; value <= ORQ_ACTION_COUNT; ++value) {
    const auto id = static_cast<ORQ_ACTION_ENUM>(value);
    const auto found = index_of.constFind(menu_title(id));
    if (found == index_of.constEnd()) {
      index_of.insert(menu_title(id), menus.size());
      menus.push_back({id});
    } else {
      menus[*found].push_back(id);
    }
  }
  return menus;
}

void add_common_actions(ORQ_MAIN_WINDOW& window)
{
  QMenu* menu = window.menuBar()->addMenu(QStringLiteral("&File"));
  QToolBar* bar = window.addToolBar(QStringLiteral("Standard"));
  for (ORQ_ACTION_ENUM id : k_menu) {
    QAction* action = orq_create_action(id, &window);
    menu->addAction(action);
    bar->addAction(action);
  }
}

void add_all_actions(ORQ_MAIN_WINDOW& window)
{
  for (const std::vector<ORQ_ACTION_ENUM>& ids : catalogue_menus()) {
    QMenu* menu = window.menuBar()->addMenu(menu_title(ids.front()));
    for (ORQ_ACTION_ENUM id : ids)
      menu->addAction(orq_create_action(id, &window));
  }
}

int run_orq(int argc, char** argv)
{
  const bool all = argc >= 3 && std::strcmp(argv[2], "all") == 0;
  auto** args = const_cast<const char**>(argv);
  char** qt_argv = ORQ_APP::copy_argv_for_qt(argc, args);
  int qt_argc = argc;
  ORQ_APP app(qt_argc, qt_argv);
  app.init_instance(argc, args);
  ORQ_MAIN_WINDOW window;
  if (all)
    add_all_actions(window);
  else
    add_common_actions(window);
  BENCH_PAINT_WATCH watch(all ? std::function<QByteArray()>([&window] { return bench_menu_shape(window); })
                              : std::function<QByteArray()>());
  window.installEventFilter(&watch);
  window.resize(800, 600);
  window.show();
  const int rc = app.exec();
  app.exit_instance();
  return rc;
}

// The time to the child's first paint in ms, -1 when it did not paint. The
// line a child prints after that goes to description when one is asked for.
double time_child(const QString& program, const QStringList& args, QByteArray* description = nullptr)
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
  if (description)
    *description = child.readLine().trimmed();
  return ms;
}

// The catalogue icon an action was given, found by identity; 0 for none.
ORQ_ICON_ENUM icon_of(const QAction& action, const QHash<qint64, int>& icon_by_key)
{
  return static_cast<ORQ_ICON_ENUM>(action.icon().isNull() ? 0 : icon_by_key.value(action.icon().cacheKey()));
}

// The bare program's lists for the whole catalogue, with every picture the
// catalogue's actions use copied out of the resources beside them: one list
// without icons for the pairing, and one with them for the reference row.
// Returns the number of actions with an icon, -1 when a file cannot be
// written.
int write_menu_lists(const QDir& dir, const QString& list_name, const QString& plain_list_name)
{
  QHash<qint64, int> icon_by_key;
  for (int value = 1; value <= ORQ_ICON_COUNT; ++value)
    icon_by_key.insert(orq_get_icon(static_cast<ORQ_ICON_ENUM>(value)).cacheKey(), value);
  QObject owner;
  QByteArray list;
  QByteArray plain_list;
  int icons = 0;
  for (const std::vector<ORQ_ACTION_ENUM>& ids : catalogue_menus()) {
    const QByteArray menu = "menu\t" + menu_title(ids.front()).toUtf8() + '\n';
    list += menu;
    plain_list += menu;
    for (ORQ_ACTION_ENUM id : ids) {
      const QAction* action = orq_create_action(id, &owner);
      QString picture;
      if (const ORQ_ICON_ENUM icon = icon_of(*action, icon_by_key)) {
        const QString file = orq_get_icon_file_names(icon).value(0);
        picture = QFileInfo(file).fileName();
        if (!QFile::exists(dir.filePath(picture)) && !QFile::copy(file, dir.filePath(picture)))
          return -1;
        ++icons;
      } else if (!action->icon().isNull()) {
        return -1;
      }
      list += "action\t" + action->text().toUtf8() + '\t' + picture.toUtf8() + '\n';
      plain_list += "action\t" + action->text().toUtf8() + "\t\n";
    }
  }
  QFile file(list_name);
  QFile plain_file(plain_list_name);
  const bool written = file.open(QIODevice::WriteOnly) && file.write(list) == list.size() &&
                       plain_file.open(QIODevice::WriteOnly) &&
                       plain_file.write(plain_list) == plain_list.size();
  return written ? icons : -1;
}

// One child program timed over the runs, and the description of its menus
// that it printed after its first paint (when asked for one).
struct CHILD {
  QString name;
  QString program;
  QStringList args;
  bool describes = false;
  std::vector<double> times{};
  QByteArray shape{};
};

double median(std::vector<double> times)
{
  std::sort(times.begin(), times.end());
  return times[times.size() / 2];
}

// The part of a menu description without the icon counts.
QByteArray without_icons(const QByteArray& shape)
{
  return shape.left(shape.indexOf(" | "));
}

} // namespace

int main(int argc, char** argv)
{
  qputenv("QT_QPA_PLATFORM", "offscreen");
  if (argc >= 2 && std::strcmp(argv[1], "--child") == 0)
    return run_orq(argc, argv);

  // A GUI application, so the parent can make the catalogue's actions and
  // see which icon each one gets.
  QApplication app(argc, argv);
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
  const QString list_name = pictures.filePath(QStringLiteral("menus.txt"));
  const QString plain_list_name = pictures.filePath(QStringLiteral("menus_without_icons.txt"));
  const int icons = write_menu_lists(QDir(pictures.path()), list_name, plain_list_name);
  if (icons < 0) {
    std::fprintf(stderr, "bench_startup: cannot write the bare program's menu lists\n");
    return 1;
  }
  const QString self = QCoreApplication::applicationFilePath();
  const QString bare = QFileInfo(self).dir().filePath(QStringLiteral("bench_startup_bare"));
  const int runs = argc > 1 ? std::max(3, std::atoi(argv[1])) : 15;
  const QString all = QString::number(ORQ_ACTION_COUNT);
  enum { BARE_COMMON, ORQ_COMMON, BARE_ALL, ORQ_ALL, BARE_ALL_ICONS };
  CHILD children[] = {
      {QStringLiteral("Bare Qt: QApplication + QMainWindow, 20 actions with SVG icons"), bare, bare_args,
       false},
      {QStringLiteral("ORQ tool: full start-up + ORQ_MAIN_WINDOW, 20 catalogue actions"),
       self,
       {QStringLiteral("--child")},
       false},
      {QStringLiteral("Bare Qt: QApplication + QMainWindow, %1 plain actions in the same menus").arg(all),
       bare,
       {QStringLiteral("--menus"), plain_list_name},
       true},
      {QStringLiteral("ORQ tool: full start-up + ORQ_MAIN_WINDOW, all %1 catalogue actions in menus")
           .arg(all),
       self,
       {QStringLiteral("--child"), QStringLiteral("all")},
       true},
      {QStringLiteral("Reference only: bare Qt, the same %1 actions and menus with the same SVG icons")
           .arg(all),
       bare,
       {QStringLiteral("--menus"), list_name},
       true}};
  // Interleaved, so that a busy moment of the machine hits every child.
  for (int run = 0; run < runs; ++run) {
    for (CHILD& child : children) {
      child.times.push_back(time_child(child.program, child.args, child.describes ? &child.shape : nullptr));
      if (child.times.back() < 0) {
        std::fprintf(stderr, "bench_startup: a child did not paint: %s\n", qPrintable(child.name));
        return 1;
      }
    }
    // The same job on both sides: the same menus, texts and icons.
    const QByteArray& orq_shape = children[ORQ_ALL].shape;
    if (orq_shape != children[BARE_ALL_ICONS].shape ||
        without_icons(orq_shape) != without_icons(children[BARE_ALL].shape)) {
      std::fprintf(stderr, "bench_startup: the windows differ\n  ORQ:  %s\n  plain: %s\n  icons: %s\n",
                   orq_shape.constData(), children[BARE_ALL].shape.constData(),
                   children[BARE_ALL_ICONS].shape.constData());
      return 1;
    }
  }
  double ms[std::size(children)];
  for (size_t i = 0; i < std::size(children); ++i)
    ms[i] = median(children[i].times);
  const double common_ratio = ms[ORQ_COMMON] / ms[BARE_COMMON];
  const double all_ratio = ms[ORQ_ALL] / ms[BARE_ALL];
  std::printf("Process start to first painted main window, median of %d runs (offscreen)\n\n", runs);
  std::printf("| Program | Time | ORQ / bare |\n|---|---|---|\n");
  std::printf("| %s | %.1f ms | |\n", qPrintable(children[BARE_COMMON].name), ms[BARE_COMMON]);
  std::printf("| %s | %.1f ms | %.2f |\n", qPrintable(children[ORQ_COMMON].name), ms[ORQ_COMMON],
              common_ratio);
  std::printf("| %s | %.1f ms | |\n", qPrintable(children[BARE_ALL].name), ms[BARE_ALL]);
  std::printf("| %s | %.1f ms | %.2f |\n", qPrintable(children[ORQ_ALL].name), ms[ORQ_ALL], all_ratio);
  std::printf("| %s | %.1f ms | (%.2f) |\n", qPrintable(children[BARE_ALL_ICONS].name), ms[BARE_ALL_ICONS],
              ms[ORQ_ALL] / ms[BARE_ALL_ICONS]);
  // Plain Qt's SVG engine reads every file as the icon is made; the catalogue
  // reads a picture only when it is first painted, so the pairing that counts
  // is against plain actions. What one catalogue action costs inside a
  // running process is bench_catalog's subject.
  std::printf("\nBare Qt's SVG icons: %d in the menus, %.1f us each to make\n", icons,
              (ms[BARE_ALL_ICONS] - ms[BARE_ALL]) * 1000 / icons);
  const bool met = common_ratio <= 1.2 && all_ratio <= 1.2;
  std::printf("Target: both ORQ / bare ratios at most 1.20: %s\n", met ? "met" : "MISSED");
  return 0;
}
