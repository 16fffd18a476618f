#pragma once
// The scroll area that hosts an ORQ_VIEW: owns the zoom and mode actions and
// turns wheel turns, keys, clicks, drags and gestures into zooming, panning
// and scrolling, keeping the point under the mouse where it is.
//
// Modes: the zoom, pan and magnifying tool actions are checkable; with none
// checked the view is in its own selection mode.
#include "orq_export.h"

#include <QEvent>
#include <QPointer>
#include <QScrollArea>

class ORQ_BIRDS_EYE_VIEW;
class ORQ_TOOL_BAR;
class ORQ_VIEW;
class QAction;
class QActionGroup;
class QMouseEvent;

class ORQ_EXPORT ORQ_ZOOM_SCROLL_AREA : public QScrollArea {
  Q_OBJECT
public:
  explicit ORQ_ZOOM_SCROLL_AREA(QWidget* parent = nullptr);
  ~ORQ_ZOOM_SCROLL_AREA() override;

  // Hosts view. With magnify_and_birds_eye, the magnifying tool and the
  // bird's-eye view are offered; otherwise their actions are hidden.
  void set_view(ORQ_VIEW* view, bool magnify_and_birds_eye);
  ORQ_VIEW* get_view() const;

  QAction* get_zoom_in_action() const;
  QAction* get_zoom_out_action() const;
  QAction* get_magnifying_action() const;
  QAction* get_set_zoom_action() const;
  QAction* get_birds_eye_view_action() const;
  QAction* get_zoom_tool_action() const;
  QAction* get_pan_tool_action() const;
  QAction* get_zoom_fit_action() const;
  QAction* get_zoom_selection_action() const;
  // The overview window, null unless the view was set with one.
  ORQ_BIRDS_EYE_VIEW* get_birds_eye_view() const;
  void hide_birds_eye_view();

  // The zoom, magnifying and pan tools, in that order.
  void add_mode_actions(ORQ_TOOL_BAR* bar);
  void remove_mode_actions(ORQ_TOOL_BAR* bar);
  // Puts the three mode actions into group, whose triggers switch the mode.
  void insert_modes(QActionGroup* group);
  void remove_modes(QActionGroup* group);
  // All nine actions, before before (or at the end).
  void insert_actions(QWidget* widget, QAction* before = nullptr);
  void remove_actions(QWidget* widget);
  void show_actions(bool show);
  void set_enabled(bool enabled);
  // Whether a right drag in zoom mode zooms continuously.
  void set_zoom_drag_mode(bool on);
  // Whether a drag held near an edge of the view scrolls there.
  void set_ensure_visible(bool on);
  // From this widget's pixels into the view's.
  QPoint map_coord_from_scroll_area_to_view(QPoint point) const;
  // Whether a gesture may start here: never in pan or magnifying mode.
  bool current_mode_supports_mouse_gesture(const QPoint& point);
  // A press in zoom mode: a gesture or a click.
  bool zoom_mode_mouse_press_event(QEvent* event, bool show_gesture);

  // Zooms and centres so that the logical rect fills the viewport.
  virtual void zoom_on_logical_rect(const QRect& rect);
  // Centres the logical rect without zooming.
  virtual void scroll_to_logical_rect(const QRect& rect);

public slots:
  // Zooms into rect, in the view's pixels.
  virtual void zoom_rect(const QRect& rect);
  void on_switch_mode(QAction* action);
  // Zooms by delta about *point (the view's pixels), else about the cursor
  // when it is over the view, else about the viewport's centre.
  virtual void zoom_in(QPoint* point = nullptr, float delta = 1.25f);
  virtual void zoom_out(QPoint* point = nullptr, float delta = 1.25f);
  virtual void zoom_fit();
  bool pan_view(QEvent::Type event_type, QPoint point, Qt::MouseButtons mouse_button);
  void zoom_mode_no_mouse_gesture(QMouseEvent* mouse_event, bool show_right_click_rect);
  // Puts the cursor back on the logical point it was on when the zoom began.
  void adjust_cursor();
  virtual void zoom_selected();
  // Zooms out so that the viewport shrinks into rect, in the view's pixels.
  virtual void zoom_out_rect(const QRect& rect);
  // factor is the zoom the user sees.
  void set_zoom(float factor);
  void open_set_zoom_dlg();

signals:
  void zoom_level_changed(float zoom_level);
  void pan_mode_off();

protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

  // A mouse move posted to the view, so hover feedback follows what moved
  // under a still mouse.
  void send_fake_mouse_event();

private:
  bool zoom_mode_event_filter(QEvent* event);
  bool magnifying_mode_event_filter(QEvent* event);
  bool remaining_event_filter(QEvent* event);
  void set_view_cursor(const QCursor& cursor);
  void zoom_into_logical(const QRect& logical, const QSize& size, bool centre_by_page_step);
  void emit_zoom_changed();
  QList<QAction*> all_actions() const;

  QAction* m_zoom_tool_action;
  QAction* m_pan_tool_action;
  QAction* m_zoom_fit_action;
  QAction* m_zoom_selection_action;
  QAction* m_zoom_in_action;
  QAction* m_zoom_out_action;
  QAction* m_magnifying_tool_action;
  QAction* m_set_zoom_action;
  QAction* m_birds_eye_view_action;
  QPointer<ORQ_VIEW> m_view;
  QPointer<ORQ_BIRDS_EYE_VIEW> m_birds_eye_view;
  QPoint m_press_point;
  QPoint m_zoom_point;
  bool m_panning = false;
  bool m_zoom_drag_mode = true;
  bool m_ensure_visible = true;
  int m_pan_start_horizontal = 0;
  int m_pan_start_vertical = 0;
};
