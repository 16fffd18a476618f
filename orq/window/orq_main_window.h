#pragma once
// The base of every tool's main window: four auto-hide button bars (one
// per edge) for unpinned docks, the dock manager that makes docks from the
// suite's tool libraries, F1 context help, and menu-bar actions by text.
#include "orq_export.h"

#include <QHash>
#include <QList>
#include <QMainWindow>

class QAction;
class QMouseEvent;
class ORQ_DOCK_MGR;
class ORQ_DOCK_WIDGET_BUTTON_BAR;

class ORQ_EXPORT ORQ_MAIN_WINDOW : public QMainWindow {
  Q_OBJECT
public:
  explicit ORQ_MAIN_WINDOW(QWidget* parent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags());
  ~ORQ_MAIN_WINDOW() override;

  // Made on first call; owned by the window.
  ORQ_DOCK_MGR* get_dock_mgr();
  QHash<Qt::ToolBarArea, ORQ_DOCK_WIDGET_BUTTON_BAR*> get_dock_bar_of_area() const;
  // The menu-bar action whose text, without its first '&', is text (also
  // given with or without '&'); the first one in menu order, or null.
  QAction* get_main_menu_action(const QString& text);
  // Hides the slid-out unpinned docks the press was outside of.
  void hide_unpinned_widgets(QMouseEvent* event);
  void hide_unpinned_widgets(QMouseEvent* event, Qt::ToolBarArea area);

signals:
  void update_actions();

public slots:
  void show_widget_inspector();
  // Context help for the widget that has the focus.
  void f1_help();
  // For windows that host zoomable views; the base does nothing.
  virtual void set_zoom(float factor);
  virtual void open_set_zoom_dlg();

protected:
  void add_button_bar(Qt::ToolBarArea area);
  QAction* find_main_menu_action(const QString& text, const QList<QAction*>& actions);

private:
  ORQ_DOCK_MGR* m_dock_mgr = nullptr;
  QHash<Qt::ToolBarArea, ORQ_DOCK_WIDGET_BUTTON_BAR*> m_button_bars;
};
