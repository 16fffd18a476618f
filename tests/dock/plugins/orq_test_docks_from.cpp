// A tool library whose entry point learns why the dock is wanted.
#include <orq_dock_mgr.h>
#include <orq_dock_widget.h>
#include <orq_main_window.h>

extern "C" {

Q_DECL_EXPORT ORQ_DOCK_WIDGET* orq_test_docks_from_create_dock_widget(ORQ_MAIN_WINDOW* window,
                                                                      ORQ_DOCK_FROM_ENUM from)
{
  auto* dock = new ORQ_DOCK_WIDGET(QStringLiteral("From %1").arg(int(from)), window);
  window->addDockWidget(Qt::RightDockWidgetArea, dock);
  return dock;
}
}
