#pragma once
// The title bar of every dock of the suite: a title and the float, search,
// menu, pin (auto hide), detach and close buttons, in a horizontal set and a
// vertical set for docks along the top and bottom edges that carry their
// title on the left side. Tools may add widgets of their own to it.
#include "orq_export.h"

#include <QList>
#include <QPoint>
#include <QWidget>

class QFrame;
class QHBoxLayout;
class QLabel;
class QMenu;
class QToolButton;
class QVBoxLayout;
class ORQ_DOCK_WIDGET;

enum ORQ_DOCK_WIDGET_TITLEBAR_WIDGET_BUTTON_ENUM {
  ORQ_DOCK_WIDGET_TITLEBAR_MENU_BUTTON = 1,
  ORQ_DOCK_WIDGET_TITLEBAR_PIN_BUTTON = 2,
  ORQ_DOCK_WIDGET_TITLEBAR_DETACH_BUTTON = 3,
  ORQ_DOCK_WIDGET_TITLEBAR_CLOSE_BUTTON = 4,
};

class ORQ_EXPORT ORQ_DOCK_WIDGET_TITLEBAR_WIDGET : public QWidget {
  Q_OBJECT
public:
  explicit ORQ_DOCK_WIDGET_TITLEBAR_WIDGET(ORQ_DOCK_WIDGET* dock);
  ~ORQ_DOCK_WIDGET_TITLEBAR_WIDGET() override;

  void set_text(const QString& text);
  QString text() const;
  void set_pushpin_button_checked(bool checked);
  bool is_pushpin_button_checked() const;
  void set_pin_available(bool available);
  bool is_pin_available() const;
  // The menu the menu button opens; not owned.
  void set_menu(QMenu* menu);
  QMenu* menu() const;
  // A widget of the tool's, placed before the buttons in either orientation.
  void add_widget(QWidget* widget);

  void set_close_button_visibility(bool visible);
  void set_detach_button_visibility(bool visible);
  void set_float_button_visibility(bool visible);
  void set_menu_button_visibility(bool visible);
  void set_pushpin_button_visibility(bool visible);
  void set_search_button_visibility(bool visible);

  bool is_vertical() const;
  // The centre of a button in title-bar coordinates, for the current
  // orientation; a null point for an unknown or hidden button.
  QPoint get_icon_position(ORQ_DOCK_WIDGET_TITLEBAR_WIDGET_BUTTON_ENUM button) const;
  // The button of the current orientation, or null.
  QToolButton* get_title_bar_button(ORQ_DOCK_WIDGET_TITLEBAR_WIDGET_BUTTON_ENUM button) const;
  // Which visible button of the current orientation lies under pos, or 0.
  int icon_hit_test(const QPoint& pos) const;
  // Does what a click on the button does.
  void press_button(ORQ_DOCK_WIDGET_TITLEBAR_WIDGET_BUTTON_ENUM button);
  // Shows the active look when the dock holds the focus.
  void update_button_active_state();
  void update_button_active_state(bool active);
  // Switches between the horizontal and vertical sets as the dock's
  // features say.
  void update_orientation();
  // Moves the tool's widgets into the layout of the current orientation.
  void update_added_widget_to_vert_or_horz();

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

signals:
  void search_button_clicked(bool checked);
  void float_button_clicked(bool checked);

public slots:
  void toggle_pin(bool pinned);
  void menu_button_pressed();
  void search_button_clicked_slot(bool checked);
  void float_button_clicked_slot(bool checked);

private:
  QToolButton* make_button(const char* name, const QString& text, const QString& tip, bool checkable);
  void insert_added_widgets_to_layout(bool vertical);

  ORQ_DOCK_WIDGET* m_dock;
  QVBoxLayout* m_outer;
  QFrame* m_frame;
  QHBoxLayout* m_h_layout;
  QLabel* m_title;
  QToolButton* m_float_button;
  QToolButton* m_search_button;
  QToolButton* m_menu_button;
  QToolButton* m_pin_button;
  QToolButton* m_detach_button;
  QToolButton* m_close_button;
  QFrame* m_frame_v;
  QVBoxLayout* m_v_layout;
  QToolButton* m_close_button_v;
  QToolButton* m_detach_button_v;
  QToolButton* m_pin_button_v;
  QToolButton* m_menu_button_v;
  QToolButton* m_search_button_v;
  QToolButton* m_float_button_v;
  QLabel* m_title_v;
  bool m_pin_checked = true;
  bool m_pin_available = true;
  bool m_active = false;
  QMenu* m_menu = nullptr;
  QList<QWidget*> m_added_widgets;
};
