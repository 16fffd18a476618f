#pragma once
// A dockable window of the suite: docked, floated ("detached"), closed, or
// unpinned into the auto-hide button bar at its edge of the main window,
// from which it slides out on a click and slides back once the mouse has
// left it.
#include "orq_dock_widget_button.h"
#include "orq_export.h"

#include <QDockWidget>
#include <QPointer>
#include <QSize>

#include <string>

class QMenu;
class QTimer;
class ORQ_DOCK_WIDGET_BUTTON;
class ORQ_DOCK_WIDGET_TITLEBAR_WIDGET;
class ORQ_MAIN_WINDOW;
namespace tinyxml2 {
class XMLElement;
}

#include "orq_dock_widget_titlebar_widget.h"

enum ORQ_DOCK_WIDGET_VISIBILITY_ENUM {
  VISIBLE = 0,   // docked and shown, pinned
  MINIMIZED = 1, // unpinned: a button in an auto-hide bar
  DETACHED = 2,  // floating
  CLOSED = 3,    // closed by the user
};

class ORQ_EXPORT ORQ_DOCK_WIDGET : public QDockWidget {
  Q_OBJECT
public:
  ORQ_DOCK_WIDGET(const QString& title, QWidget* parent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags());
  explicit ORQ_DOCK_WIDGET(QWidget* parent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags());
  // Title and features from a dock description element given as text.
  ORQ_DOCK_WIDGET(QWidget* parent, Qt::WindowFlags flags, const std::string& xml);
  ORQ_DOCK_WIDGET(const tinyxml2::XMLElement* element, QWidget* parent = nullptr,
                  Qt::WindowFlags flags = Qt::WindowFlags());
  ~ORQ_DOCK_WIDGET() override;

  Qt::DockWidgetArea get_area() const;
  ORQ_MAIN_WINDOW* get_parent() const;
  ORQ_DOCK_WIDGET_VISIBILITY_ENUM get_visibility() const;
  bool is_closed() const;
  bool is_detached() const;
  bool is_minimized() const;
  bool is_pinned() const;
  // Whether the dock can be unpinned at all: only inside a main window.
  bool is_pin_available() const;
  ORQ_DOCK_WIDGET_TITLEBAR_WIDGET* get_titlebar() const;
  // The dock's button in an auto-hide bar, null until first unpinned.
  ORQ_DOCK_WIDGET_BUTTON* get_button() const;

  void set_area(Qt::DockWidgetArea area);
  void set_visibility(ORQ_DOCK_WIDGET_VISIBILITY_ENUM visibility);
  void set_is_pinned(bool pinned);
  void set_menu(QMenu* menu);
  // Takes this size once and stays resizable.
  void set_size(int width, int height);
  void add_titlebar_widget(QWidget* widget);
  void click_titlebar_button(ORQ_DOCK_WIDGET_TITLEBAR_WIDGET_BUTTON_ENUM button);
  static Qt::ToolBarArea to_toolbar_area(Qt::DockWidgetArea area);
  void emit_pre_window_exiting();

  void set_close_button_visibility(bool visible);
  void set_detach_button_visibility(bool visible);
  void set_float_button_visibility(bool visible);
  void set_menu_button_visibility(bool visible);
  void set_pushpin_button_visibility(bool visible);
  void set_search_button_visibility(bool visible);

  // Whether the cursor is over the dock, with margin pixels of slack on the
  // side that faces the window's centre.
  bool is_within_widget(int margin) const;
  // Applies a description element's title and features.
  void xml_customize(const tinyxml2::XMLElement* element);

signals:
  void dock_widget_active_state_changed(bool active);
  void float_button_clicked(bool checked);
  void search_button_clicked(bool checked);
  void pre_window_existing();

public slots:
  void set_visible_and_raise(bool visible);
  void set_visible_and_raise(QAction* action);
  void detach();
  void open_widget();
  void close_widget(bool value = true);
  void add_button();
  void dock_location_changed(Qt::DockWidgetArea area);
  void floating_status_changed(bool floating);
  void help_button_clicked();
  void delay_tick();
  void restore_min_max_sizes();

protected:
  bool event(QEvent* event) override;
  void childEvent(QChildEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  virtual QString get_help_topic_string() const;

private:
  void setup(QWidget* parent);
  void remove_button_from_bar();
  void update_title();
  void schedule_repaint();
  void set_own_features(DockWidgetFeatures features);

  QTimer* m_delay_timer = nullptr;
  ORQ_DOCK_WIDGET_TITLEBAR_WIDGET* m_titlebar = nullptr;
  Qt::DockWidgetArea m_area = Qt::BottomDockWidgetArea;
  int m_stretch = 1;
  ORQ_MAIN_WINDOW* m_parent = nullptr;
  // Owned by its bar's action; the bar may go first when the window closes.
  QPointer<ORQ_DOCK_WIDGET_BUTTON> m_button;
  bool m_pinned = true;
  ORQ_DOCK_WIDGET_VISIBILITY_ENUM m_visibility = VISIBLE;
  bool m_track_area = true;
  bool m_slide_back = true;
  bool m_pin_available = true;
  QSize m_saved_minimum_size{-1, -1};
  QSize m_saved_maximum_size{-1, -1};
  bool m_added_vertical_title_bar = false;
  bool m_setting_own_features = false;
};
