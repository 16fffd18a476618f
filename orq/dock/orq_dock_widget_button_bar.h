#pragma once
// One per edge of the main window: holds the buttons of the docks that
// were auto-hidden on that side. Hidden while it holds none.
#include "orq_export.h"

#include <QHash>
#include <QMap>
#include <QToolBar>

class ORQ_DOCK_WIDGET_BUTTON;
class ORQ_MAIN_WINDOW;

class ORQ_EXPORT ORQ_DOCK_WIDGET_BUTTON_BAR : public QToolBar {
  Q_OBJECT
public:
  ORQ_DOCK_WIDGET_BUTTON_BAR(Qt::ToolBarArea area, ORQ_MAIN_WINDOW* window);
  ~ORQ_DOCK_WIDGET_BUTTON_BAR() override;

  void add_button(ORQ_DOCK_WIDGET_BUTTON* button);
  void remove_button(ORQ_DOCK_WIDGET_BUTTON* button);
  QMap<QWidget*, QAction*> get_button_action_map() const;
  Qt::ToolBarArea get_area() const;

private:
  void forget(QObject* button);

  Qt::ToolBarArea m_area;
  QMap<QWidget*, QAction*> m_button_action_map;
  // Actions of buttons taken out of the bar, kept for their next return.
  QHash<QWidget*, QAction*> m_released;
};
