// The floor-plan viewer: the sample tool of the framework. Run it with
// --screenshot FILE to render the main window to a PNG and exit, or with
// --icons FILE to render a sheet of every icon of the catalogue.
#include "floorplan_window.h"
#include "icon_sheet.h"

#include <orq.h>

#include <QAction>
#include <QCommandLineParser>
#include <QTimer>

#include <cstdio>

int main(int argc, char** argv)
{
  auto** args = const_cast<const char**>(argv);
  char** qt_argv = ORQ_APP::copy_argv_for_qt(argc, args);
  int qt_argc = argc;
  ORQ_APP app(qt_argc, qt_argv);
  QCoreApplication::setOrganizationName(QStringLiteral("Vantor"));
  QCoreApplication::setApplicationName(QStringLiteral("floorplan_viewer"));
  app.init_instance(argc, args);

  QCommandLineParser parser;
  parser.setApplicationDescription(QStringLiteral("Floor plan viewer of the Vantor suite"));
  parser.addHelpOption();
  const QCommandLineOption screenshot(QStringLiteral("screenshot"),
                                      QStringLiteral("Render the main window to a PNG file and exit."),
                                      QStringLiteral("file"));
  const QCommandLineOption seed(QStringLiteral("seed"), QStringLiteral("Floor plan generator seed."),
                                QStringLiteral("n"), QStringLiteral("7"));
  const QCommandLineOption blocks(QStringLiteral("blocks"), QStringLiteral("Number of blocks (1-24)."),
                                  QStringLiteral("n"), QStringLiteral("18"));
  const QCommandLineOption options_shot(QStringLiteral("options-screenshot"),
                                        QStringLiteral("Render the Options dialog to a PNG file and exit."),
                                        QStringLiteral("file"));
  const QCommandLineOption icons(
      QStringLiteral("icons"), QStringLiteral("Render every icon of the catalogue to a PNG sheet and exit."),
      QStringLiteral("file"));
  const QCommandLineOption trigger(
      QStringLiteral("trigger"),
      QStringLiteral("Trigger a standard action of the menus by its enumerator name "
                     "(ORQ_..._ACTION) before the screenshot; may be repeated."),
      QStringLiteral("action"));
  const QCommandLineOption hierarchy_rows(
      QStringLiteral("hierarchy-rows"),
      QStringLiteral("Rows of the generated design hierarchy (0: no hierarchy panel)."), QStringLiteral("n"),
      QStringLiteral("200000"));
  const QCommandLineOption filter(QStringLiteral("filter"),
                                  QStringLiteral("Filter the design hierarchy with this text before the screenshot."),
                                  QStringLiteral("text"));
  const QCommandLineOption dump(QStringLiteral("dump-hierarchy"),
                                QStringLiteral("Write the generated hierarchy, one instance and cell a line."),
                                QStringLiteral("file"));
  const QCommandLineOption panel(
      QStringLiteral("panel"),
      QStringLiteral("Change a panel as the user would, before the screenshot: unpin, pin, slide-out, float, "
                     "close or open, then ':' and the panel's title or object name (\"unpin:Messages\"); may be "
                     "repeated."),
      QStringLiteral("verb:panel"));
  const QCommandLineOption default_layout(QStringLiteral("default-layout"),
                                          QStringLiteral("Start with the default arrangement of the panels, "
                                                         "whatever layout was saved."));
  parser.addOptions({screenshot, seed, blocks, options_shot, icons, trigger, hierarchy_rows, filter, dump, panel,
                     default_layout});
  parser.process(app);

  if (parser.isSet(icons)) {
    const bool written = make_icon_sheet().save(parser.value(icons), "PNG");
    if (written)
      std::printf("floorplan_viewer: icon sheet written to %s\n", qPrintable(parser.value(icons)));
    app.exit_instance();
    return written ? 0 : 1;
  }

  FLOORPLAN_WINDOW window(parser.value(seed).toUInt(), qBound(1, parser.value(blocks).toInt(), 24),
                          qBound(0, parser.value(hierarchy_rows).toInt(), 5000000), !parser.isSet(default_layout));
  window.show();
  int rc = 0;
  // The hierarchy panel comes from the panel library; it is reached through
  // its meta-object, the viewer does not link its code.
  QWidget* hierarchy = window.hierarchy_panel();
  if (parser.isSet(dump)) {
    bool written = false;
    if (hierarchy)
      QMetaObject::invokeMethod(hierarchy, "dump", Q_RETURN_ARG(bool, written), Q_ARG(QString, parser.value(dump)));
    if (!written) {
      std::fprintf(stderr, "floorplan_viewer: cannot write %s\n", qPrintable(parser.value(dump)));
      rc = 1;
    }
  }
  if (parser.isSet(filter) && hierarchy)
    QMetaObject::invokeMethod(hierarchy, "filter_now", Q_ARG(QString, parser.value(filter)));
  for (const QString& change : parser.values(panel)) {
    QCoreApplication::processEvents();
    const int colon = change.indexOf(QLatin1Char(':'));
    if (colon < 0 || !window.change_panel(change.left(colon), change.mid(colon + 1))) {
      std::fprintf(stderr, "floorplan_viewer: cannot %s\n", qPrintable(change));
      rc = 1;
    }
  }

  if (parser.isSet(options_shot)) {
    ORQ_DIALOG* dialog = window.make_options_dialog();
    dialog->show();
    QCoreApplication::processEvents();
    rc = dialog->grab().save(parser.value(options_shot), "PNG") ? 0 : 1;
    delete dialog;
  }
  for (const QString& name : parser.values(trigger)) {
    QAction* action = window.findChild<QAction*>(name);
    if (!action) {
      std::fprintf(stderr, "floorplan_viewer: no action %s in the menus\n", qPrintable(name));
      rc = 1;
      continue;
    }
    action->trigger();
  }
  if (parser.isSet(screenshot)) {
    QCoreApplication::processEvents();
    // Panels that slid out or floated settle after a round of layout.
    for (int i = 0; i < 3; ++i)
      QCoreApplication::processEvents();
    std::printf("floorplan_viewer: status: %s\n", qPrintable(window.status_text()));
    std::printf("floorplan_viewer: seed: %u\n", window.seed());
    if (hierarchy) {
      QString text;
      QMetaObject::invokeMethod(hierarchy, "status_text", Q_RETURN_ARG(QString, text));
      std::printf("floorplan_viewer: hierarchy: %s\n", qPrintable(text));
    }
    for (ORQ_DOCK_WIDGET* dock : window.panels())
      std::printf("floorplan_viewer: panel: %s %s%s\n", qPrintable(dock->windowTitle()),
                  dock->is_closed() ? "closed" : dock->isFloating() ? "floating" : dock->is_pinned() ? "pinned" : "auto-hidden",
                  dock->isVisible() ? ", shown" : "");
    const QString file = parser.value(screenshot);
    if (!window.grab_with_floating_panels().save(file, "PNG")) {
      std::fprintf(stderr, "floorplan_viewer: cannot write %s\n", qPrintable(file));
      rc = 1;
    } else {
      std::printf("floorplan_viewer: screenshot written to %s\n", qPrintable(file));
    }
  } else if (!parser.isSet(options_shot)) {
    rc = app.exec();
  }
  // Closed as a user closes it, so a screenshot run keeps its layout too.
  window.close();
  app.exit_instance();
  return rc;
}
