#include "floorplan_demo.h"

#include "floorplan_demo_p.h"

#include "floorplan_view.h"
#include "floorplan_window.h"

#include <orq.h>
#include <orq_zoom_scroll_area.h>

#include <QAction>
#include <QComboBox>
#include <QCoreApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QTimer>

#include <functional>

namespace {
// How the zoom drag and the gesture move from the press, in pixels.
const QPoint k_zoom_drag_move(0, -120);
const QPoint k_gesture_move(-150, -150);

// The mode as the tool bar sets it: that tool checked, or none of them for
// selection mode. Triggered, not just checked, so the window follows too.
void switch_mode(ORQ_ZOOM_SCROLL_AREA* area, QAction* mode)
{
  for (QAction* tool :
       {area->get_zoom_tool_action(), area->get_magnifying_action(), area->get_pan_tool_action()})
    if (tool != mode && tool->isChecked())
      tool->trigger();
  if (mode && !mode->isChecked())
    mode->trigger();
}

bool parse_point(const QString& text, QPoint* point)
{
  const QStringList parts = text.split(QLatin1Char(','));
  bool x_ok = false;
  bool y_ok = false;
  if (parts.size() == 2)
    *point = QPoint(parts[0].trimmed().toInt(&x_ok), parts[1].trimmed().toInt(&y_ok));
  return x_ok && y_ok;
}

// Drawn twice: the overlays place their read-outs as they are drawn, so the
// second frame is the one that shows them where they belong.
QImage grab_shown(FLOORPLAN_WINDOW& window)
{
  window.grab_with_floating_panels();
  return window.grab_with_floating_panels();
}

QString at_text(const QPoint& point)
{
  return QStringLiteral("%1,%2").arg(point.x()).arg(point.y());
}

// Presses button at point of the view and, from inside the loop the press
// starts, moves by move (in two steps) with the button held, lets read look
// at what shows, and releases.
void press_move_release(FLOORPLAN_VIEW* view, const QPoint& point, Qt::MouseButton button, const QPoint& move,
                        const std::function<void()>& read)
{
  // Goes with this call: a press that starts no loop leaves nothing queued
  // that would outlive what it refers to.
  QObject guard;
  QTimer::singleShot(0, &guard, [&] {
    if (!move.isNull()) {
      demo_send_mouse(view, QEvent::MouseMove, point + move / 2, Qt::NoButton, button);
      demo_send_mouse(view, QEvent::MouseMove, point + move, Qt::NoButton, button);
    }
    read();
    demo_send_mouse(view, QEvent::MouseButtonRelease, point + move, button, Qt::NoButton);
  });
  demo_send_mouse(view, QEvent::MouseButtonPress, point, button, button);
}

FLOORPLAN_DEMO set_zoom_by_the_read_out(FLOORPLAN_WINDOW& window, const QString& typed)
{
  FLOORPLAN_DEMO demo;
  auto* read_out = window.findChild<QLabel*>(QStringLiteral("zoom_status"));
  if (!read_out) {
    demo.error = QStringLiteral("no zoom read-out in the status bar");
    return demo;
  }
  QString offered;
  bool done = false;
  int tries = 0;
  QObject guard;
  // The click opens the dialog from a queued call: look for it until it is
  // there, from inside its own loop once it runs.
  std::function<void()> answer = [&] {
    auto* dialog = window.findChild<ORQ_SET_ZOOM_DLG*>();
    if (!dialog || !dialog->isVisible()) {
      if (++tries < 100)
        QTimer::singleShot(0, &guard, answer);
      else
        done = true;
      return;
    }
    offered = dialog->get_current_text();
    dialog->get_combo_box()->setEditText(typed);
    dialog->accept();
    done = true;
  };
  const QPoint middle = read_out->rect().center();
  demo_send_mouse(read_out, QEvent::MouseButtonPress, middle, Qt::LeftButton, Qt::LeftButton);
  demo_send_mouse(read_out, QEvent::MouseButtonRelease, middle, Qt::LeftButton, Qt::NoButton);
  QTimer::singleShot(0, &guard, answer);
  while (!done)
    QCoreApplication::processEvents();
  if (offered.isEmpty()) {
    demo.error = QStringLiteral("a click on the zoom read-out opened no Zoom dialog");
    return demo;
  }
  demo.report = QStringLiteral("the zoom read-out opened the Zoom dialog at %1; %2 typed: %3")
                    .arg(offered, typed, window.zoom_status());
  return demo;
}
} // namespace

FLOORPLAN_DEMO run_floorplan_demo(FLOORPLAN_WINDOW& window, const QString& kind, const QString& argument)
{
  if (kind == QLatin1String("set-zoom"))
    return set_zoom_by_the_read_out(window, argument);
  if (kind == QLatin1String("hierarchy") || kind == QLatin1String("export-hierarchy") ||
      kind == QLatin1String("variants"))
    return run_report_demo(window, kind, argument);

  FLOORPLAN_DEMO demo;
  QPoint visible;
  if (!parse_point(argument, &visible)) {
    demo.error = QStringLiteral("%1 wants X,Y, not \"%2\"").arg(kind, argument);
    return demo;
  }
  ORQ_ZOOM_SCROLL_AREA* area = window.zoom_area();
  FLOORPLAN_VIEW* view = window.view();
  const QPoint point = view->get_viewport_rect().topLeft() + visible;

  if (kind == QLatin1String("lens")) {
    switch_mode(area, area->get_magnifying_action());
    press_move_release(view, point, Qt::LeftButton, QPoint(), [&] {
      auto* lens = area->findChild<ORQ_MAGNIFYING_GLASS_WIDGET*>();
      if (!lens)
        return;
      demo.image = grab_shown(window);
      demo.report = QStringLiteral("lens at %1 (%2 in the window), radius %3, magnification %4")
                        .arg(at_text(visible))
                        .arg(at_text(view->mapTo(&window, point)))
                        .arg(lens->get_radius())
                        .arg(ORQ_MAGNIFYING_GLASS_WIDGET::get_magnification());
    });
  } else if (kind == QLatin1String("zoom-drag")) {
    switch_mode(area, area->get_zoom_tool_action());
    press_move_release(view, point, Qt::RightButton, k_zoom_drag_move, [&] {
      auto* overlay = view->findChild<ORQ_ZOOM_DRAG_WIDGET*>();
      if (!overlay || !overlay->isVisible())
        return;
      demo.image = grab_shown(window);
      demo.report = QStringLiteral("zoom drag from %1, %2 px up: %3")
                        .arg(at_text(visible))
                        .arg(-k_zoom_drag_move.y())
                        .arg(overlay->get_label()->text());
    });
  } else if (kind == QLatin1String("gesture")) {
    switch_mode(area, nullptr);
    press_move_release(view, point, Qt::LeftButton, k_gesture_move, [&] {
      auto* overlay = view->findChild<ORQ_MOUSE_GESTURE_WIDGET*>();
      if (!overlay || !overlay->isVisible())
        return;
      demo.image = grab_shown(window);
      demo.report = QStringLiteral("gesture from %1, %2 px up-left: %3")
                        .arg(at_text(visible))
                        .arg(-k_gesture_move.y())
                        .arg(overlay->get_label()->text());
    });
  } else {
    demo.error = QStringLiteral("unknown kind \"%1\" (lens, zoom-drag, gesture, set-zoom, hierarchy, "
                                "export-hierarchy or variants)")
                     .arg(kind);
    return demo;
  }
  if (demo.image.isNull())
    demo.error = QStringLiteral("no %1 showed at %2").arg(kind, at_text(visible));
  return demo;
}
