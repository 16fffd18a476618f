// A tool library as the suite's tools build them: docks made on request
// through C entry points that the dock manager finds by name.
#include <orq_dock_widget.h>
#include <orq_main_window.h>

#include <QLabel>

namespace {
ORQ_DOCK_WIDGET* make(const QString& title, ORQ_MAIN_WINDOW* window)
{
  auto* dock = new ORQ_DOCK_WIDGET(title, window);
  dock->setObjectName(title);
  dock->setWidget(new QLabel(title, dock));
  window->addDockWidget(Qt::LeftDockWidgetArea, dock);
  return dock;
}
} // namespace

extern "C" {

Q_DECL_EXPORT ORQ_DOCK_WIDGET* orq_test_docks_create_dock_widget(ORQ_MAIN_WINDOW* window)
{
  return make(QStringLiteral("Whole library"), window);
}

Q_DECL_EXPORT ORQ_DOCK_WIDGET* orq_test_docks_panel_create_dock_widget(ORQ_MAIN_WINDOW* window)
{
  return make(QStringLiteral("Panel view"), window);
}

// A view that declines: nothing to show.
Q_DECL_EXPORT ORQ_DOCK_WIDGET* orq_test_docks_empty_create_dock_widget(ORQ_MAIN_WINDOW*)
{
  return nullptr;
}

Q_DECL_EXPORT ORQ_DOCK_WIDGET* orq_test_docks_from_xml(const tinyxml2::XMLElement* element, QWidget* parent,
                                                       Qt::WindowFlags flags)
{
  auto* dock = new ORQ_DOCK_WIDGET(element, parent, flags);
  dock->setObjectName(QStringLiteral("from_xml"));
  return dock;
}
}
