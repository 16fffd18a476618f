// What the action and icon catalogue costs a tool at start-up, measured in
// fresh processes because only the first use builds the tables:
//   catalog  first orq_get_icon call, then all 746 actions with their icons
//   bare     plain Qt: 746 actions with no text, icon or shortcut
//   naive    plain Qt: 766 icons made straight from their SVG files, then
//            746 actions with text and those icons
// Each mode runs in its own child process; the table shows the median.
//   bench_catalog [runs]
#include <orq.h>

#include <QAction>
#include <QApplication>
#include <QElapsedTimer>
#include <QProcess>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <vector>

namespace {

double run_mode(const char* mode)
{
  QObject owner;
  QElapsedTimer timer;
  if (std::strcmp(mode, "catalog") == 0) {
    timer.start();
    const QIcon first = orq_get_icon(ORQ_ZOOM_TOOL_ICON);
    for (int value = 1; value <= ORQ_ACTION_COUNT; ++value)
      orq_create_action(static_cast<ORQ_ACTION_ENUM>(value), &owner);
    Q_UNUSED(first);
  } else if (std::strcmp(mode, "bare") == 0) {
    timer.start();
    for (int value = 1; value <= ORQ_ACTION_COUNT; ++value)
      new QAction(&owner);
  } else {
    std::vector<QString> paths;
    for (int value = 1; value <= ORQ_ICON_COUNT; ++value)
      paths.push_back(orq_get_icon_file_names(static_cast<ORQ_ICON_ENUM>(value)).first());
    timer.start();
    std::vector<QIcon> icons;
    for (const QString& path : paths) {
      QIcon icon;
      icon.addFile(path, QSize(), QIcon::Normal, QIcon::Off);
      icons.push_back(icon);
    }
    for (int value = 1; value <= ORQ_ACTION_COUNT; ++value) {
      auto* action =
          new QAction(QString::fromUtf8(orq_get_menu_text(static_cast<ORQ_ACTION_ENUM>(value))), &owner);
      action->setIcon(icons[size_t(value) % icons.size()]);
    }
  }
  const double ms = double(timer.nsecsElapsed()) / 1e6;
  // The work must have happened: every action exists, and the catalogue's
  // icons draw the same pixels as icons read straight from the files.
  if (owner.findChildren<QAction*>().size() != ORQ_ACTION_COUNT)
    return -1;
  if (std::strcmp(mode, "catalog") == 0 &&
      orq_get_icon(ORQ_COPY_ICON).pixmap(16).toImage() !=
          QIcon(orq_get_icon_file_names(ORQ_COPY_ICON).first()).pixmap(16).toImage())
    return -1;
  return ms;
}

double median(std::vector<double> values)
{
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
}

} // namespace

int main(int argc, char** argv)
{
  qputenv("QT_QPA_PLATFORM", "offscreen");
  if (argc == 3 && std::strcmp(argv[1], "--child") == 0) {
    char** qt_argv = ORQ_APP::copy_argv_for_qt(argc, const_cast<const char**>(argv));
    int qt_argc = argc;
    ORQ_APP app(qt_argc, qt_argv);
    std::printf("%.3f\n", run_mode(argv[2]));
    return 0;
  }
  QCoreApplication app(argc, argv);
  const int runs = argc > 1 ? std::max(1, std::atoi(argv[1])) : 7;
  const char* modes[] = {"catalog", "bare", "naive"};
  double results[3];
  for (int m = 0; m < 3; ++m) {
    std::vector<double> times;
    for (int run = 0; run < runs; ++run) {
      QProcess child;
      child.start(QCoreApplication::applicationFilePath(),
                  {QStringLiteral("--child"), QLatin1String(modes[m])});
      child.waitForFinished(60000);
      const double ms = QString::fromLatin1(child.readAllStandardOutput()).trimmed().toDouble();
      if (child.exitCode() != 0 || ms < 0) {
        std::fprintf(stderr, "bench_catalog: mode %s failed\n", modes[m]);
        return 1;
      }
      times.push_back(ms);
    }
    results[m] = median(times);
  }
  std::printf("Catalogue start-up cost, median of %d fresh processes\n\n", runs);
  std::printf("| Work | Time |\n|---|---|\n");
  std::printf("| First orq_get_icon + 746 catalogue actions with icons | %.2f ms |\n", results[0]);
  std::printf("| Plain Qt: 746 bare actions | %.2f ms |\n", results[1]);
  std::printf("| Plain Qt: 766 icons from SVG + 746 actions | %.2f ms |\n", results[2]);
  std::printf("\nCatalogue %.1f us per action; target under 30 ms: %s\n",
              results[0] * 1000.0 / ORQ_ACTION_COUNT, results[0] < 30.0 ? "met" : "MISSED");
  return 0;
}
