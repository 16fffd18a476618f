#include "orq_main_window.h"

#include "orq_dock_mgr.h"
#include "orq_dock_widget.h"
#include "orq_dock_widget_button.h"
#include "orq_dock_widget_button_bar.h"
#include "orq_require_p.h"
#include "orq_safe_connect.h"
#include "orq_tree_view.h"

#include "gen_help.h"
#include "gen_message_service.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>

#include <new>

ORQ_MAIN_WINDOW::ORQ_MAIN_WINDOW(QWidget* parent, Qt::WindowFlags flags)
    : QMainWindow(parent, flags)
{
  setDockNestingEnabled(true);
  for (const Qt::ToolBarArea area :
       {Qt::LeftToolBarArea, Qt::RightToolBarArea, Qt::TopToolBarArea, Qt::BottomToolBarArea})
    add_button_bar(area);
  setStyleSheet(QStringLiteral("QMainWindow::separator:hover { background: darkgray; }"));
  auto* help = new QAction(QStringLiteral("F1 Help"), this);
  help->setShortcut(QKeySequence(QStringLiteral("F1")));
  help->setShortcutContext(Qt::WidgetWithChildrenShortcut);
  addAction(help);
  orq_safe_connect(help, SIGNAL(triggered()), this, SLOT(f1_help()), Qt::AutoConnection, __FILE__,
                   __LINE__);
}

ORQ_MAIN_WINDOW::~ORQ_MAIN_WINDOW()
{
  delete m_dock_mgr;
}

ORQ_DOCK_MGR* ORQ_MAIN_WINDOW::get_dock_mgr()
{
  if (!m_dock_mgr) {
    m_dock_mgr = new (std::nothrow) ORQ_DOCK_MGR;
    if (!m_dock_mgr)
      ORQ_INTERNAL_ERROR("Not enough memory to complete operation");
  }
  return m_dock_mgr;
}

QHash<Qt::ToolBarArea, ORQ_DOCK_WIDGET_BUTTON_BAR*> ORQ_MAIN_WINDOW::get_dock_bar_of_area() const
{
  return m_button_bars;
}

void ORQ_MAIN_WINDOW::add_button_bar(Qt::ToolBarArea area)
{
  auto* bar = new ORQ_DOCK_WIDGET_BUTTON_BAR(area, this);
  addToolBar(area, bar);
  m_button_bars.insert(area, bar);
  bar->hide();
}

QAction* ORQ_MAIN_WINDOW::get_main_menu_action(const QString& text)
{
  QString wanted = text;
  const int amp = wanted.indexOf(QLatin1Char('&'));
  if (amp >= 0)
    wanted.remove(amp, 1);
  return find_main_menu_action(wanted, menuBar()->actions());
}

QAction* ORQ_MAIN_WINDOW::find_main_menu_action(const QString& text, const QList<QAction*>& actions)
{
  for (QAction* a : actions) {
    ORQ_REQUIRE(a != NULL);
    if (QMenu* menu = a->menu()) {
      if (QAction* found = find_main_menu_action(text, menu->actions()))
        return found;
    }
    QString own = a->text();
    if (own.isEmpty())
      continue;
    const int amp = own.indexOf(QLatin1Char('&'));
    if (amp >= 0)
      own.remove(amp, 1);
    if (own == text)
      return a;
  }
  return nullptr;
}

void ORQ_MAIN_WINDOW::hide_unpinned_widgets(QMouseEvent* event)
{
  for (const Qt::ToolBarArea area :
       {Qt::LeftToolBarArea, Qt::RightToolBarArea, Qt::TopToolBarArea, Qt::BottomToolBarArea})
    hide_unpinned_widgets(event, area);
}

void ORQ_MAIN_WINDOW::hide_unpinned_widgets(QMouseEvent* event, Qt::ToolBarArea area)
{
  ORQ_DOCK_WIDGET_BUTTON_BAR* bar = m_button_bars.value(area);
  if (!bar || !event)
    return;
  const QMap<QWidget*, QAction*> buttons = bar->get_button_action_map();
  for (auto it = buttons.cbegin(); it != buttons.cend(); ++it) {
    auto* button = qobject_cast<ORQ_DOCK_WIDGET_BUTTON*>(it.key());
    ORQ_DOCK_WIDGET* dock = button ? button->get_dock() : nullptr;
    if (!dock || dock->is_pinned())
      continue;
    // A docked dock's frame is in its window's coordinates, the press in
    // the screen's; both are compared on the screen.
    QRect frame = dock->frameGeometry();
    if (!dock->isWindow() && dock->parentWidget())
      frame.moveTopLeft(dock->parentWidget()->mapToGlobal(frame.topLeft()));
    if (!frame.contains(event->globalPos())) {
      dock->hide();
      button->setChecked(false);
    }
  }
}

void ORQ_MAIN_WINDOW::show_widget_inspector()
{
  // The inspector comes with the application's diagnostics; a build
  // without them notes the request in the debug log.
  gen_message_service().debug_log(QStringLiteral("ORQ"), QStringLiteral("widget inspector requested"));
}

void ORQ_MAIN_WINDOW::f1_help()
{
  QWidget* focus = QApplication::focusWidget();
  QWidget* context = focus ? focus : this;
  // A menu that is open describes its own entries; an item view says most
  // through its own name, not its viewport's.
  if (QWidget* popup = QApplication::activePopupWidget())
    if (qobject_cast<QMenu*>(popup))
      context = popup;
  if (auto* view = qobject_cast<QAbstractItemView*>(context->parentWidget()))
    if (view->viewport() == context)
      context = view;
  // Inside a report (its header, an open editor) the report is the subject,
  // and a report without a name of its own is known by its settings key.
  QString topic;
  for (QWidget* w = context; w && !qobject_cast<QMenu*>(context); w = w->parentWidget()) {
    if (auto* tree = qobject_cast<ORQ_TREE_VIEW*>(w)) {
      context = tree;
      topic = tree->objectName();
      if (topic.isEmpty())
        topic = tree->column_visibility_registry_string();
      break;
    }
  }
  // The nearest named widget says best what the user is looking at.
  for (QWidget* w = context; w && topic.isEmpty(); w = w->parentWidget())
    topic = w->objectName();
  if (topic.isEmpty())
    topic = QString::fromLatin1(metaObject()->className());
  gen_help().show_help(context, topic);
}

void ORQ_MAIN_WINDOW::set_zoom(float) {}

void ORQ_MAIN_WINDOW::open_set_zoom_dlg() {}
