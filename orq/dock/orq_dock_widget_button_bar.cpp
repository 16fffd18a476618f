#include "orq_dock_widget_button_bar.h"

#include "orq_dock_widget_button.h"
#include "orq_main_window.h"

#include <QAction>
#include <QWidgetAction>

namespace {
QString bar_title(Qt::ToolBarArea area)
{
  switch (area) {
  case Qt::RightToolBarArea:
    return QStringLiteral("Right Button Toolbar");
  case Qt::TopToolBarArea:
    return QStringLiteral("Top Button Toolbar");
  case Qt::BottomToolBarArea:
    return QStringLiteral("Bottom Button Toolbar");
  default:
    return QStringLiteral("Left Button Toolbar");
  }
}
} // namespace

ORQ_DOCK_WIDGET_BUTTON_BAR::ORQ_DOCK_WIDGET_BUTTON_BAR(Qt::ToolBarArea area, ORQ_MAIN_WINDOW* window)
    : QToolBar(bar_title(area), window)
    , m_area(area)
{
  setObjectName(bar_title(area).toLower().replace(QLatin1Char(' '), QLatin1Char('_')));
  setAccessibleName(windowTitle());
  setMovable(false);
  setIconSize(QSize(16, 16));
  // A bar holds what the docks put there; the user never hides it by hand.
  toggleViewAction()->setVisible(false);
}

ORQ_DOCK_WIDGET_BUTTON_BAR::~ORQ_DOCK_WIDGET_BUTTON_BAR()
{
  // The actions delete their buttons after this body; a button must not
  // then call back into a bar that is no longer whole.
  for (QWidget* button : m_button_action_map.keys() + m_released.keys())
    disconnect(button, &QObject::destroyed, this, nullptr);
}

void ORQ_DOCK_WIDGET_BUTTON_BAR::add_button(ORQ_DOCK_WIDGET_BUTTON* button)
{
  if (!button)
    return;
  QAction* action = m_button_action_map.value(button);
  if (!action) {
    // One action per button for the bar's life: the action owns the button
    // while it is out of the bar too, so the dock finds it again.
    action = m_released.take(button);
    if (!action) {
      auto* widget_action = new QWidgetAction(this);
      widget_action->setDefaultWidget(button);
      connect(button, &QObject::destroyed, this, [this, button] { forget(button); });
      action = widget_action;
    }
    addAction(action);
    m_button_action_map.insert(button, action);
  }
  action->setVisible(true);
  button->setVisible(true);
  if (isHidden())
    show();
}

void ORQ_DOCK_WIDGET_BUTTON_BAR::remove_button(ORQ_DOCK_WIDGET_BUTTON* button)
{
  QAction* action = m_button_action_map.take(button);
  if (!action)
    return;
  removeAction(action);
  m_released.insert(button, action);
  if (m_button_action_map.isEmpty())
    hide();
}

void ORQ_DOCK_WIDGET_BUTTON_BAR::forget(QObject* button)
{
  QAction* action = m_button_action_map.take(static_cast<QWidget*>(button));
  if (!action)
    action = m_released.take(static_cast<QWidget*>(button));
  // Not now: the action would delete the button a second time while it is
  // still being destroyed. Later its reference has been cleared.
  if (action)
    action->deleteLater();
  if (m_button_action_map.isEmpty())
    hide();
}

QMap<QWidget*, QAction*> ORQ_DOCK_WIDGET_BUTTON_BAR::get_button_action_map() const
{
  return m_button_action_map;
}

Qt::ToolBarArea ORQ_DOCK_WIDGET_BUTTON_BAR::get_area() const
{
  return m_area;
}
