// The floor-plan viewer: the sample tool of the framework. Run it with
// --screenshot FILE to render the main window to a PNG and exit, or with
// --icons FILE to render a sheet of every icon of the catalogue.
#include "floorplan_demo.h"
#include "floorplan_view.h"
#include "floorplan_window.h"
#include "icon_sheet.h"

#include <orq.h>
#include <orq_zoom_scroll_area.h>

#include <QAction>
#include <QCommandLineParser>
#include <QTimer>

#include <cstdio>
#include <memory>

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
  const QCommandLineOption shapes(
      QStringLiteral("shapes"),
      QStringLiteral("Number of shapes of the generated chip: pads, power, blocks, rows, "
                     "cells and nets (1000-20000000)."),
      QStringLiteral("n"), QStringLiteral("1000000"));
  const QCommandLineOption export_pdf(QStringLiteral("export-pdf"),
                                      QStringLiteral("Write the whole floor plan to a PDF file, then go on."),
                                      QStringLiteral("file"));
  const QCommandLineOption zoom(
      QStringLiteral("zoom"),
      QStringLiteral("Zoom about the centre after start, as the user sees it (1: one pixel "
                     "a micrometre; 100: a hundred)."),
      QStringLiteral("factor"));
  const QCommandLineOption select_rect(
      QStringLiteral("select-rect"),
      QStringLiteral("Select what lies inside a logical rectangle (nanometres) "
                     "before the screenshot."),
      QStringLiteral("x,y,w,h"));
  const QCommandLineOption rubber_band(
      QStringLiteral("rubber-band"),
      QStringLiteral("Show the drag tracker's rubber band from one point of the visible floor plan to "
                     "another (pixels from its top-left) in the screenshot."),
      QStringLiteral("x1,y1,x2,y2"));
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
  const QCommandLineOption export_hierarchy(
      QStringLiteral("export-hierarchy"),
      QStringLiteral("Write the Hierarchy panel's rows as File > Export Hierarchy does, then go on."),
      QStringLiteral("file"));
  const QCommandLineOption hierarchy_column(
      QStringLiteral("hierarchy-column"),
      QStringLiteral("Change a column of the Hierarchy panel as the user would, before the screenshot: "
                     "hide:NAME or show:NAME through the header's menu, width:NAME=PIXELS by dragging the "
                     "header; may be repeated."),
      QStringLiteral("change"));
  const QCommandLineOption panel(
      QStringLiteral("panel"),
      QStringLiteral("Change a panel as the user would, before the screenshot: unpin, pin, slide-out, float, "
                     "close or open, then ':' and the panel's title or object name (\"unpin:Messages\"); may be "
                     "repeated."),
      QStringLiteral("verb:panel"));
  const QCommandLineOption default_layout(QStringLiteral("default-layout"),
                                          QStringLiteral("Start with the default arrangement of the panels, "
                                                         "whatever layout was saved."));
  // For the pictures of the manual and the tests, not for users: the lens,
  // the zoom drag or a gesture held still in the screenshot.
  QCommandLineOption demo(
      QStringLiteral("demo"),
      QStringLiteral(
          "With --screenshot: show an interaction in it, started with real mouse events: lens, "
          "zoom-drag or gesture at X,Y (the next argument; pixels from the visible top-left of the "
          "floor plan), or set-zoom with the per cent to type into the dialog that a click on the "
          "zoom read-out opens; hierarchy before, filtered or cleared: a place in the Hierarchy panel, "
          "then a filter typed, then cleared; export-hierarchy FILE through its dialog; variants with "
          "variant names to click in the Block Variants report."),
      QStringLiteral("kind"));
  demo.setFlags(QCommandLineOption::HiddenFromHelp);
  parser.addOptions({screenshot, seed, blocks, shapes, options_shot, icons, trigger, hierarchy_rows, filter,
                     dump, panel, default_layout, export_pdf, zoom, select_rect, rubber_band, demo,
                     export_hierarchy, hierarchy_column});
  parser.process(app);

  if (parser.isSet(icons)) {
    const bool written = make_icon_sheet().save(parser.value(icons), "PNG");
    if (written)
      std::printf("floorplan_viewer: icon sheet written to %s\n", qPrintable(parser.value(icons)));
    app.exit_instance();
    return written ? 0 : 1;
  }

  FLOORPLAN_WINDOW window(parser.value(seed).toUInt(), qBound(1, parser.value(blocks).toInt(), 24),
                          qBound(1000, parser.value(shapes).toInt(), 20000000),
                          qBound(0, parser.value(hierarchy_rows).toInt(), 5000000),
                          !parser.isSet(default_layout));
  window.show();
  // Laid out and fitted, so a zoom given below starts from the whole chip.
  QCoreApplication::processEvents();
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

  for (const QString& change : parser.values(hierarchy_column)) {
    QCoreApplication::processEvents();
    const QString problem = change_hierarchy_column(window, change);
    if (!problem.isEmpty()) {
      std::fprintf(stderr, "floorplan_viewer: --hierarchy-column %s: %s\n", qPrintable(change),
                   qPrintable(problem));
      rc = 1;
    }
  }
  if (parser.isSet(export_hierarchy)) {
    const QString file = parser.value(export_hierarchy);
    const QString problem = window.export_hierarchy(file);
    if (problem.isEmpty()) {
      std::printf("floorplan_viewer: hierarchy written to %s\n", qPrintable(file));
    } else {
      std::fprintf(stderr, "floorplan_viewer: %s\n", qPrintable(problem));
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
  if (parser.isSet(select_rect)) {
    const QStringList parts = parser.value(select_rect).split(QLatin1Char(','));
    QVector<int> numbers;
    for (const QString& part : parts) {
      bool ok = false;
      const int number = part.trimmed().toInt(&ok);
      if (ok)
        numbers << number;
    }
    if (parts.size() != 4 || numbers.size() != 4 || numbers[2] <= 0 || numbers[3] <= 0) {
      std::fprintf(stderr, "floorplan_viewer: --select-rect wants x,y,w,h with w and h above 0, not %s\n",
                   qPrintable(parser.value(select_rect)));
      rc = 1;
    } else {
      window.view()->select_logical_rect(QRect(numbers[0], numbers[1], numbers[2], numbers[3]),
                                         FLOORPLAN_SELECTION::REPLACE);
    }
  }
  if (parser.isSet(zoom)) {
    bool ok = false;
    const float factor = parser.value(zoom).toFloat(&ok);
    if (!ok || !(factor > 0.0f)) {
      std::fprintf(stderr, "floorplan_viewer: --zoom wants a number above 0, not %s\n",
                   qPrintable(parser.value(zoom)));
      rc = 1;
    } else {
      window.zoom_area()->set_zoom(factor);
    }
  }
  if (parser.isSet(export_pdf)) {
    const QString file = parser.value(export_pdf);
    if (window.export_pdf(file)) {
      std::printf("floorplan_viewer: PDF written to %s\n", qPrintable(file));
    } else {
      std::fprintf(stderr, "floorplan_viewer: cannot write %s\n", qPrintable(file));
      rc = 1;
    }
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
    std::printf("floorplan_viewer: selection: %s\n", qPrintable(window.selection_status()));
    std::printf("floorplan_viewer: zoom: %s\n", qPrintable(window.zoom_status()));
    if (hierarchy) {
      QString text;
      QMetaObject::invokeMethod(hierarchy, "status_text", Q_RETURN_ARG(QString, text));
      std::printf("floorplan_viewer: hierarchy: %s\n", qPrintable(text));
      QMetaObject::invokeMethod(hierarchy, "column_text", Q_RETURN_ARG(QString, text));
      std::printf("floorplan_viewer: hierarchy columns: %s\n", qPrintable(text));
    }
    for (ORQ_DOCK_WIDGET* dock : window.panels())
      std::printf("floorplan_viewer: panel: %s %s%s\n", qPrintable(dock->windowTitle()),
                  dock->is_closed() ? "closed" : dock->isFloating() ? "floating" : dock->is_pinned() ? "pinned" : "auto-hidden",
                  dock->isVisible() ? ", shown" : "");
    // The band a rectangle drag shows, made as the tracker makes it and held
    // still for the picture.
    std::unique_ptr<ORQ_RECT_DRAG_TRACKER_CALLBACK> band;
    if (parser.isSet(rubber_band)) {
      const QStringList parts = parser.value(rubber_band).split(QLatin1Char(','));
      const QPoint origin = window.view()->get_viewport_rect().topLeft();
      if (parts.size() == 4) {
        const QPoint from = origin + QPoint(parts[0].toInt(), parts[1].toInt());
        const QPoint to = origin + QPoint(parts[2].toInt(), parts[3].toInt());
        band = std::make_unique<ORQ_RECT_DRAG_TRACKER_CALLBACK>(window.view(), from, nullptr);
        band->update_drag_position(from, to);
        QCoreApplication::processEvents();
      } else {
        std::fprintf(stderr, "floorplan_viewer: --rubber-band wants x1,y1,x2,y2, not %s\n",
                     qPrintable(parser.value(rubber_band)));
        rc = 1;
      }
    }
    QImage picture;
    if (parser.isSet(demo)) {
      const FLOORPLAN_DEMO shown =
          run_floorplan_demo(window, parser.value(demo), parser.positionalArguments().value(0));
      if (shown.error.isEmpty()) {
        std::printf("floorplan_viewer: demo: %s\n", qPrintable(shown.report));
      } else {
        std::fprintf(stderr, "floorplan_viewer: --demo %s\n", qPrintable(shown.error));
        rc = 1;
      }
      picture = shown.image;
    }
    if (picture.isNull())
      picture = window.grab_with_floating_panels();
    const QString file = parser.value(screenshot);
    if (!picture.save(file, "PNG")) {
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
