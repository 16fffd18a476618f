#include "orq_zoom_scroll_area.h"

#include "orq_actions.h"
#include "orq_birds_eye_view.h"
#include "orq_drag_tracker.h"
#include "orq_images.h"
#include "orq_magnifying_glass_widget.h"
#include "orq_mouse_gesture_widget.h"
#include "orq_require_p.h"
#include "orq_selection_mode_mouse_gesture_widget.h"
#include "orq_set_zoom_dlg.h"
#include "orq_tool_bar.h"
#include "orq_view.h"
#include "orq_zoom_drag_widget.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QComboBox>
#include <QCursor>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTimer>
#include <QWheelEvent>

namespace {
QAction* make_action(ORQ_ACTION_ENUM id, QObject* parent, bool checkable)
{
  QAction* action = orq_create_action(id, parent);
  action->setObjectName(orq_get_action_enum_string(id));
  if (checkable)
    action->setCheckable(true);
  return action;
}

bool is_right(const QMouseEvent* event)
{
  return event->button() == Qt::RightButton;
}

// The event's own modifiers count too: an event replayed or sent by a tool
// carries Shift without the application's key state having seen it.
bool shift_held(Qt::KeyboardModifiers modifiers)
{
  return (modifiers | QGuiApplication::keyboardModifiers()) & Qt::ShiftModifier;
}
} // namespace

ORQ_ZOOM_SCROLL_AREA::ORQ_ZOOM_SCROLL_AREA(QWidget* parent)
    : QScrollArea(parent)
    , m_zoom_tool_action(make_action(ORQ_ZOOM_TOOL_ACTION, this, true))
    , m_pan_tool_action(make_action(ORQ_PAN_TOOL_ACTION, this, true))
    , m_zoom_fit_action(nullptr)
    , m_zoom_selection_action(nullptr)
    , m_zoom_in_action(nullptr)
    , m_zoom_out_action(nullptr)
    , m_magnifying_tool_action(make_action(ORQ_MAGNIFYING_TOOL_ACTION, this, true))
    , m_set_zoom_action(nullptr)
    , m_birds_eye_view_action(make_action(ORQ_BIRDS_EYE_VIEW_ACTION, this, true))
{
  // Made in this order, whatever order the fields have: tools that list the
  // area's actions by their children get them so.
  m_zoom_fit_action = make_action(ORQ_ZOOM_FIT_ACTION, this, false);
  m_zoom_selection_action = make_action(ORQ_ZOOM_SELECTION_ACTION, this, false);
  m_zoom_in_action = make_action(ORQ_ZOOM_IN_ACTION, this, false);
  m_zoom_out_action = make_action(ORQ_ZOOM_OUT_ACTION, this, false);
  m_set_zoom_action = make_action(ORQ_ZOOM_ACTION, this, false);
  connect(m_zoom_fit_action, &QAction::triggered, this, [this] { zoom_fit(); });
  connect(m_zoom_selection_action, &QAction::triggered, this, [this] { zoom_selected(); });
  connect(m_zoom_in_action, &QAction::triggered, this, [this] { zoom_in(); });
  connect(m_zoom_out_action, &QAction::triggered, this, [this] { zoom_out(); });
  connect(m_set_zoom_action, &QAction::triggered, this, &ORQ_ZOOM_SCROLL_AREA::open_set_zoom_dlg);
  // The view is as large as the zoomed drawing, and never smaller than the
  // viewport: its minimum size carries the zoom to the layout.
  setWidgetResizable(true);
}

ORQ_ZOOM_SCROLL_AREA::~ORQ_ZOOM_SCROLL_AREA()
{
  // The bird's-eye view may live in a main window's dock area; it shows
  // this area's view and goes with it.
  delete m_birds_eye_view.data();
  if (m_view)
    m_view->removeEventFilter(this);
}

void ORQ_ZOOM_SCROLL_AREA::set_view(ORQ_VIEW* view, bool magnify_and_birds_eye)
{
  ORQ_REQUIRE(view != NULL);
  if (m_view && m_view != view)
    m_view->removeEventFilter(this);
  m_view = view;
  if (widget() != view)
    setWidget(view);
  view->installEventFilter(this);
  if (view->focusPolicy() == Qt::NoFocus)
    view->setFocusPolicy(Qt::WheelFocus); // keys scroll on release: the view needs the keys
  m_magnifying_tool_action->setVisible(magnify_and_birds_eye);
  m_birds_eye_view_action->setVisible(magnify_and_birds_eye);
  delete m_birds_eye_view.data();
  if (!magnify_and_birds_eye)
    return;
  m_birds_eye_view = new ORQ_BIRDS_EYE_VIEW(this, view);
  m_birds_eye_view->hide();
  m_birds_eye_view_action->setChecked(false);
  connect(m_birds_eye_view_action, &QAction::triggered, m_birds_eye_view.data(), &QWidget::setVisible);
  connect(m_birds_eye_view.data(), &ORQ_BIRDS_EYE_VIEW::dock_widget_active_state_changed,
          m_birds_eye_view_action, &QAction::setChecked);
  connect(view, &ORQ_VIEW::update_birds_eye_view_size, m_birds_eye_view.data(),
          &ORQ_BIRDS_EYE_VIEW::update_geometry);
}

ORQ_VIEW* ORQ_ZOOM_SCROLL_AREA::get_view() const
{
  return m_view;
}

QAction* ORQ_ZOOM_SCROLL_AREA::get_zoom_in_action() const
{
  return m_zoom_in_action;
}

QAction* ORQ_ZOOM_SCROLL_AREA::get_zoom_out_action() const
{
  return m_zoom_out_action;
}

QAction* ORQ_ZOOM_SCROLL_AREA::get_magnifying_action() const
{
  return m_magnifying_tool_action;
}

QAction* ORQ_ZOOM_SCROLL_AREA::get_set_zoom_action() const
{
  return m_set_zoom_action;
}

QAction* ORQ_ZOOM_SCROLL_AREA::get_birds_eye_view_action() const
{
  return m_birds_eye_view_action;
}

QAction* ORQ_ZOOM_SCROLL_AREA::get_zoom_tool_action() const
{
  return m_zoom_tool_action;
}

QAction* ORQ_ZOOM_SCROLL_AREA::get_pan_tool_action() const
{
  return m_pan_tool_action;
}

QAction* ORQ_ZOOM_SCROLL_AREA::get_zoom_fit_action() const
{
  return m_zoom_fit_action;
}

QAction* ORQ_ZOOM_SCROLL_AREA::get_zoom_selection_action() const
{
  return m_zoom_selection_action;
}

ORQ_BIRDS_EYE_VIEW* ORQ_ZOOM_SCROLL_AREA::get_birds_eye_view() const
{
  return m_birds_eye_view;
}

void ORQ_ZOOM_SCROLL_AREA::hide_birds_eye_view()
{
  if (m_birds_eye_view)
    m_birds_eye_view->hide();
}

QList<QAction*> ORQ_ZOOM_SCROLL_AREA::all_actions() const
{
  return {m_zoom_tool_action,  m_pan_tool_action,       m_magnifying_tool_action,
          m_birds_eye_view_action, m_zoom_fit_action, m_zoom_selection_action,
          m_zoom_in_action,    m_zoom_out_action,       m_set_zoom_action};
}

void ORQ_ZOOM_SCROLL_AREA::add_mode_actions(ORQ_TOOL_BAR* bar)
{
  ORQ_REQUIRE(bar != NULL);
  bar->addAction(m_zoom_tool_action);
  bar->addAction(m_magnifying_tool_action);
  bar->addAction(m_pan_tool_action);
}

void ORQ_ZOOM_SCROLL_AREA::remove_mode_actions(ORQ_TOOL_BAR* bar)
{
  ORQ_REQUIRE(bar != NULL);
  bar->removeAction(m_zoom_tool_action);
  bar->removeAction(m_magnifying_tool_action);
  bar->removeAction(m_pan_tool_action);
}

void ORQ_ZOOM_SCROLL_AREA::insert_modes(QActionGroup* group)
{
  group->addAction(m_zoom_tool_action);
  group->addAction(m_magnifying_tool_action);
  group->addAction(m_pan_tool_action);
  connect(group, &QActionGroup::triggered, this, &ORQ_ZOOM_SCROLL_AREA::on_switch_mode, Qt::UniqueConnection);
}

void ORQ_ZOOM_SCROLL_AREA::remove_modes(QActionGroup* group)
{
  group->removeAction(m_zoom_tool_action);
  group->removeAction(m_magnifying_tool_action);
  group->removeAction(m_pan_tool_action);
  disconnect(group, &QActionGroup::triggered, this, &ORQ_ZOOM_SCROLL_AREA::on_switch_mode);
}

void ORQ_ZOOM_SCROLL_AREA::insert_actions(QWidget* widget, QAction* before)
{
  widget->insertActions(before, all_actions());
}

void ORQ_ZOOM_SCROLL_AREA::remove_actions(QWidget* widget)
{
  for (QAction* action : all_actions())
    widget->removeAction(action);
}

void ORQ_ZOOM_SCROLL_AREA::show_actions(bool show)
{
  // The magnifier and the overview stay hidden where the view has none.
  const bool extras = !m_birds_eye_view.isNull();
  for (QAction* action : all_actions())
    action->setVisible(show && (extras || (action != m_magnifying_tool_action && action != m_birds_eye_view_action)));
}

void ORQ_ZOOM_SCROLL_AREA::set_enabled(bool enabled)
{
  for (QAction* action : all_actions())
    action->setEnabled(enabled);
}

void ORQ_ZOOM_SCROLL_AREA::set_zoom_drag_mode(bool on)
{
  m_zoom_drag_mode = on;
}

void ORQ_ZOOM_SCROLL_AREA::set_ensure_visible(bool on)
{
  m_ensure_visible = on;
}

QPoint ORQ_ZOOM_SCROLL_AREA::map_coord_from_scroll_area_to_view(QPoint point) const
{
  ORQ_REQUIRE(m_view != NULL);
  return m_view->mapFromGlobal(mapToGlobal(point));
}

void ORQ_ZOOM_SCROLL_AREA::set_view_cursor(const QCursor& cursor)
{
  if (m_view)
    m_view->setCursor(cursor);
}

void ORQ_ZOOM_SCROLL_AREA::emit_zoom_changed()
{
  emit zoom_level_changed(m_view->get_zoom());
  m_view->update();
}

// ---- zooming -------------------------------------------------------------

void ORQ_ZOOM_SCROLL_AREA::zoom_in(QPoint* point, float delta)
{
  ORQ_REQUIRE(m_view != NULL);
  ORQ_REQUIRE(delta != 0);
  QScrollBar* horizontal = horizontalScrollBar();
  QScrollBar* vertical = verticalScrollBar();
  const int cx = horizontal->value() + horizontal->pageStep() / 2;
  const int cy = vertical->value() + vertical->pageStep() / 2;

  QPoint anchor(cx, cy);
  bool from_cursor = false;
  if (point) {
    anchor = *point;
  } else {
    const QPoint global = QCursor::pos();
    QWidget* under = QApplication::widgetAt(global);
    if (under && (under == m_view || m_view->isAncestorOf(under))) {
      anchor = m_view->mapFromGlobal(global);
      m_zoom_point = m_view->get_logical(anchor);
      from_cursor = true;
    }
  }
  const int dx = cx - anchor.x();
  const int dy = cy - anchor.y();
  // Crossed page steps: the new maxima only have to be large enough not to
  // clamp the values set below before the layout catches up, and the tools
  // built on this rely on the slack it gives.
  const int horizontal_max = horizontal->maximum() + vertical->pageStep();
  const int vertical_max = vertical->maximum() + horizontal->pageStep();

  const float ratio = delta > 1.0f ? m_view->zoom_in(delta) : 1.0f / m_view->zoom_out(1.0f / delta);

  horizontal->setMaximum(int(float(horizontal_max) * ratio));
  vertical->setMaximum(int(float(vertical_max) * ratio));
  anchor = anchor * ratio;
  horizontal->setValue(anchor.x() + dx - horizontal->pageStep() / 2);
  vertical->setValue(anchor.y() + dy - vertical->pageStep() / 2);

  emit_zoom_changed();
  send_fake_mouse_event();
  if (from_cursor)
    QTimer::singleShot(0, this, &ORQ_ZOOM_SCROLL_AREA::adjust_cursor);
}

void ORQ_ZOOM_SCROLL_AREA::zoom_out(QPoint* point, float delta)
{
  zoom_in(point, 1.0f / delta);
}

void ORQ_ZOOM_SCROLL_AREA::adjust_cursor()
{
  if (!m_view)
    return;
  const QPoint global = m_view->mapToGlobal(m_view->get_physical(m_zoom_point));
  m_view->repaint();
  QCursor::setPos(global);
}

void ORQ_ZOOM_SCROLL_AREA::zoom_fit()
{
  ORQ_REQUIRE(m_view != NULL);
  m_view->zoom_fit(maximumViewportSize());
  emit_zoom_changed();
}

void ORQ_ZOOM_SCROLL_AREA::set_zoom(float factor)
{
  ORQ_REQUIRE(m_view != NULL);
  ORQ_REQUIRE(factor > 0.0f);
  // About the viewport's centre, like any zoom that no mouse points at.
  QPoint centre(horizontalScrollBar()->value() + horizontalScrollBar()->pageStep() / 2,
                verticalScrollBar()->value() + verticalScrollBar()->pageStep() / 2);
  zoom_in(&centre, factor / m_view->get_zoom());
}

// An inverted rectangle (negative width or height) asks for nothing; a null
// or empty one is a caller's fault. Qt counts inverted rectangles as empty,
// so the inverted test must come between the two.
#define ORQ_REQUIRE_ZOOM_RECT(rect)                                                                \
  do {                                                                                             \
    ORQ_REQUIRE(m_view != NULL);                                                                   \
    ORQ_REQUIRE(rect.isNull() == false);                                                           \
    if (rect.width() < 0 || rect.height() < 0)                                                     \
      return;                                                                                      \
    ORQ_REQUIRE(rect.isEmpty() == false);                                                          \
  } while (false)

void ORQ_ZOOM_SCROLL_AREA::zoom_into_logical(const QRect& logical, const QSize& size, bool centre_by_page_step)
{
  const float fx = float(size.width() + 1) / float(logical.width());
  const float fy = float(size.height() + 1) / float(logical.height());
  const float f = fx <= fy ? fx : fy;
  m_view->set_zoom(f / m_view->get_zoom_scaling());

  QScrollBar* horizontal = horizontalScrollBar();
  QScrollBar* vertical = verticalScrollBar();
  vertical->setMaximum(m_view->height());
  horizontal->setMaximum(m_view->width());
  const QRect physical = m_view->get_physical(logical);
  const int page_height = centre_by_page_step ? vertical->pageStep() : size.height();
  const int page_width = centre_by_page_step ? horizontal->pageStep() : size.width();
  vertical->setValue(physical.top() - (page_height - physical.height()) / 2);
  horizontal->setValue(physical.left() - (page_width - physical.width()) / 2);
  emit_zoom_changed();
}

void ORQ_ZOOM_SCROLL_AREA::zoom_rect(const QRect& rect)
{
  ORQ_REQUIRE_ZOOM_RECT(rect);
  zoom_into_logical(m_view->get_logical(rect), maximumViewportSize(), true);
}

void ORQ_ZOOM_SCROLL_AREA::zoom_on_logical_rect(const QRect& rect)
{
  ORQ_REQUIRE_ZOOM_RECT(rect);
  QSize max_size = maximumViewportSize();
  if (verticalScrollBar()->isVisible())
    max_size.rwidth() -= verticalScrollBar()->width();
  if (horizontalScrollBar()->isVisible())
    max_size.rheight() -= horizontalScrollBar()->height();
  ORQ_REQUIRE(max_size.width() > 0 && max_size.height() > 0);
  zoom_into_logical(rect, max_size, false);
}

void ORQ_ZOOM_SCROLL_AREA::scroll_to_logical_rect(const QRect& rect)
{
  ORQ_REQUIRE_ZOOM_RECT(rect);
  const QSize max_size = maximumViewportSize();
  ORQ_REQUIRE(max_size.width() > 0 && max_size.height() > 0);
  const QRect physical = m_view->get_physical(rect);
  verticalScrollBar()->setValue(physical.top() - (max_size.height() - physical.height()) / 2);
  horizontalScrollBar()->setValue(physical.left() - (max_size.width() - physical.width()) / 2);
  m_view->update();
}

void ORQ_ZOOM_SCROLL_AREA::zoom_out_rect(const QRect& rect)
{
  ORQ_REQUIRE_ZOOM_RECT(rect);
  const QSize size = maximumViewportSize();
  const QRect logical = m_view->get_logical(rect);
  const float f = std::max(float(logical.height() + 1) / float(size.height()),
                           float(logical.width() + 1) / float(size.width()));
  // Given as it stands, not divided by the zoom scaling as zoom_rect does:
  // tools with a scaling have tuned their zoom-out drags to this.
  m_view->set_zoom(f);
  verticalScrollBar()->setMaximum(m_view->height());
  horizontalScrollBar()->setMaximum(m_view->width());
  const QRect physical = m_view->get_physical(logical);
  verticalScrollBar()->setValue(physical.top());
  horizontalScrollBar()->setValue(physical.left());
  emit_zoom_changed();
}

#undef ORQ_REQUIRE_ZOOM_RECT

void ORQ_ZOOM_SCROLL_AREA::zoom_selected()
{
  ORQ_REQUIRE(m_view != NULL);
  const QRect selected = m_view->get_selected_rect();
  if (selected.left() > selected.right() || selected.top() > selected.bottom())
    return;
  QRect physical = m_view->get_physical(selected);
  float step = 1.1f;
  while (physical.isNull() || physical.left() > physical.right() || physical.top() > physical.bottom()) {
    step = step / m_view->get_zoom();
    const float before = m_view->get_absolute_zoom_multiplier();
    zoom_in(nullptr, step);
    physical = m_view->get_physical(selected);
    // At a limit the selection cannot be brought any larger; stop there
    // rather than loop for ever.
    if (m_view->get_absolute_zoom_multiplier() == before)
      return;
  }
  zoom_rect(physical);
}

void ORQ_ZOOM_SCROLL_AREA::open_set_zoom_dlg()
{
  ORQ_REQUIRE(m_view != NULL);
  const float scaling = m_view->get_zoom_scaling();
  ORQ_SET_ZOOM_DLG dialog(m_view->get_min() / scaling * 100.0f, m_view->get_max() / scaling * 100.0f, this);
  dialog.select_current_zoom(m_view->get_zoom());
  if (dialog.exec() != QDialog::Accepted)
    return;
  if (dialog.get_current_text() == ORQ_SET_ZOOM_DLG::fit_in_window_text()) {
    zoom_fit();
    return;
  }
  const float value = dialog.get_selected_zoom() / 100.0f;
  const float zoom = m_view->get_zoom();
  if (value > zoom)
    zoom_in(nullptr, value / zoom);
  else
    zoom_out(nullptr, zoom / value);
}

// ---- modes ---------------------------------------------------------------

void ORQ_ZOOM_SCROLL_AREA::on_switch_mode(QAction* action)
{
  if (!m_view)
    return;
  // An exclusive group that allows none checked hands the unchecked action
  // over too: that is the way back to the view's own selection mode.
  if (!action || !action->isChecked()) {
    m_view->unsetCursor();
    return;
  }
  if (action == m_zoom_tool_action)
    set_view_cursor(orq_get_cursor(shift_held(Qt::NoModifier) ? ORQ_ZOOM_OUT_CURSOR : ORQ_ZOOM_IN_CURSOR));
  else if (action == m_pan_tool_action)
    set_view_cursor(Qt::OpenHandCursor);
  else if (action == m_magnifying_tool_action)
    set_view_cursor(orq_get_cursor(ORQ_MAGNIFYING_CURSOR));
}

bool ORQ_ZOOM_SCROLL_AREA::current_mode_supports_mouse_gesture(const QPoint& point)
{
  if (m_pan_tool_action->isChecked() || m_magnifying_tool_action->isChecked())
    return false;
  return m_view && m_view->current_mode_supports_mouse_gesture(point);
}

bool ORQ_ZOOM_SCROLL_AREA::pan_view(QEvent::Type event_type, QPoint point, Qt::MouseButtons mouse_button)
{
  QScrollBar* horizontal = horizontalScrollBar();
  QScrollBar* vertical = verticalScrollBar();
  switch (event_type) {
  case QEvent::MouseButtonPress:
    m_press_point = point;
    m_pan_start_horizontal = horizontal->value();
    m_pan_start_vertical = vertical->value();
    if (mouse_button & Qt::LeftButton) {
      m_panning = true;
      set_view_cursor(Qt::ClosedHandCursor);
    }
    return true;
  case QEvent::MouseButtonRelease:
    m_panning = false;
    set_view_cursor(Qt::OpenHandCursor);
    return true;
  case QEvent::MouseMove:
    if (m_panning) {
      horizontal->setValue(m_pan_start_horizontal - (point.x() - m_press_point.x()));
      vertical->setValue(m_pan_start_vertical - (point.y() - m_press_point.y()));
    }
    return true;
  case QEvent::ContextMenu:
    return true;
  default:
    return false;
  }
}

void ORQ_ZOOM_SCROLL_AREA::zoom_mode_no_mouse_gesture(QMouseEvent* mouse_event, bool show_right_click_rect)
{
  ORQ_REQUIRE(m_view != NULL);
  const bool right = is_right(mouse_event);
  const bool shift = mouse_event->modifiers() & Qt::ShiftModifier;
  if (show_right_click_rect && right != shift) {
    const QRect rect = ORQ_DRAG_TRACKER::track_rect(m_view, m_press_point, nullptr, 0.0);
    if (rect.width() > 10 || rect.height() > 10) {
      zoom_out_rect(rect);
      return;
    }
  }
  m_zoom_point = m_view->get_logical(mouse_event->pos());
  QPoint point = m_press_point;
  if (right == shift)
    zoom_in(&point, 1.25f);
  else
    zoom_out(&point, 1.25f);
  QTimer::singleShot(0, this, &ORQ_ZOOM_SCROLL_AREA::adjust_cursor);
}

bool ORQ_ZOOM_SCROLL_AREA::zoom_mode_mouse_press_event(QEvent* event, bool show_gesture)
{
  auto* mouse = static_cast<QMouseEvent*>(event);
  m_press_point = mouse->pos();
  const bool shift_is_right = bool(mouse->modifiers() & Qt::ShiftModifier) == is_right(mouse);
  set_view_cursor(orq_get_cursor(shift_is_right ? ORQ_ZOOM_IN_CURSOR : ORQ_ZOOM_OUT_CURSOR));
  if (show_gesture && shift_is_right)
    ORQ_MOUSE_GESTURE_WIDGET::show_mouse_gesture(this, m_view, mouse->pos());
  else
    zoom_mode_no_mouse_gesture(mouse, show_gesture);
  return true;
}

bool ORQ_ZOOM_SCROLL_AREA::zoom_mode_event_filter(QEvent* event)
{
  switch (event->type()) {
  case QEvent::MouseButtonPress: {
    auto* mouse = static_cast<QMouseEvent*>(event);
    const bool ctrl = mouse->modifiers() & Qt::ControlModifier;
    if (is_right(mouse) != ctrl && m_zoom_drag_mode) {
      m_press_point = mouse->pos();
      ORQ_ZOOM_DRAG_WIDGET::start_zoom_drag(this, m_view, m_press_point);
      if (ORQ_ZOOM_DRAG_WIDGET::is_zoom_drag_activate())
        return true;
      return zoom_mode_mouse_press_event(event, false);
    }
    return zoom_mode_mouse_press_event(event, true);
  }
  case QEvent::MouseButtonDblClick: {
    auto* mouse = static_cast<QMouseEvent*>(event);
    m_press_point = mouse->pos();
    QPoint point = m_press_point;
    if (bool(mouse->modifiers() & Qt::ShiftModifier) == is_right(mouse)) {
      set_view_cursor(orq_get_cursor(ORQ_ZOOM_IN_CURSOR));
      zoom_in(&point, 1.25f);
    } else {
      set_view_cursor(orq_get_cursor(ORQ_ZOOM_OUT_CURSOR));
      zoom_out(&point, 1.25f);
    }
    QTimer::singleShot(0, this, &ORQ_ZOOM_SCROLL_AREA::adjust_cursor);
    return true;
  }
  case QEvent::MouseMove:
    m_press_point = static_cast<QMouseEvent*>(event)->pos();
    return false;
  case QEvent::MouseButtonRelease:
  case QEvent::ContextMenu:
    return true;
  case QEvent::KeyPress:
    keyPressEvent(static_cast<QKeyEvent*>(event));
    return true;
  default:
    return false;
  }
}

bool ORQ_ZOOM_SCROLL_AREA::magnifying_mode_event_filter(QEvent* event)
{
  if (event->type() == QEvent::MouseButtonPress) {
    const QPoint global = static_cast<QMouseEvent*>(event)->globalPos();
    m_press_point = global;
    ORQ_MAGNIFYING_GLASS_WIDGET::magnifying(this, m_view, global);
    return true;
  }
  return event->type() == QEvent::MouseButtonRelease;
}

bool ORQ_ZOOM_SCROLL_AREA::remaining_event_filter(QEvent* event)
{
  if (event->type() != QEvent::MouseButtonPress)
    return false;
  auto* mouse = static_cast<QMouseEvent*>(event);
  if (mouse->button() == Qt::LeftButton && mouse->modifiers() == Qt::NoModifier &&
      current_mode_supports_mouse_gesture(mouse->pos())) {
    ORQ_SELECTION_MODE_MOUSE_GESTURE_WIDGET::show_mouse_gesture(this, m_view, mouse->pos());
    return true;
  }
  if (!m_pan_tool_action->isChecked() && !m_magnifying_tool_action->isChecked() &&
      m_view->current_mode_supports_mouse_gesture(mouse->pos())) {
    m_view->selection_mode_no_mouse_gesture(mouse);
    return true;
  }
  return false;
}

bool ORQ_ZOOM_SCROLL_AREA::eventFilter(QObject* watched, QEvent* event)
{
  if (!m_view || watched != m_view)
    return QScrollArea::eventFilter(watched, event);

  const QEvent::Type type = event->type();
  if (type == QEvent::MouseButtonPress) {
    auto* mouse = static_cast<QMouseEvent*>(event);
    const Qt::KeyboardModifiers both = Qt::ShiftModifier | Qt::ControlModifier;
    if ((mouse->modifiers() & both) == both && mouse->button() == Qt::LeftButton && !m_pan_tool_action->isChecked())
      m_pan_tool_action->trigger(); // a temporary pan, until Shift or Ctrl goes up
  }
  if (type == QEvent::KeyRelease && m_pan_tool_action->isChecked()) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Shift || key == Qt::Key_Control) {
      m_pan_tool_action->setChecked(false);
      emit pan_mode_off();
    }
  }

  if (m_zoom_tool_action->isChecked()) {
    if (zoom_mode_event_filter(event))
      return true;
  } else if (m_pan_tool_action->isChecked()) {
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseMove: {
      auto* mouse = static_cast<QMouseEvent*>(event);
      if (pan_view(type, mouse->globalPos(), mouse->buttons() | mouse->button()))
        return true;
      break;
    }
    case QEvent::ContextMenu:
      return pan_view(type, static_cast<QContextMenuEvent*>(event)->globalPos(), Qt::NoButton);
    default:
      break;
    }
  } else if (m_magnifying_tool_action->isChecked()) {
    if (magnifying_mode_event_filter(event))
      return true;
  } else {
    if (type == QEvent::DragMove && m_ensure_visible) {
      const QPoint pos = static_cast<QDragMoveEvent*>(event)->pos();
      ensureVisible(pos.x(), pos.y(), 50, 50);
    } else if (type == QEvent::Paint && m_birds_eye_view) {
      m_birds_eye_view->update_view_rect();
    }
  }
  if (remaining_event_filter(event))
    return true;
  // The base class follows the view's resizes to set the scroll bars' ranges.
  return QScrollArea::eventFilter(watched, event);
}

// ---- wheel and keys ------------------------------------------------------

void ORQ_ZOOM_SCROLL_AREA::wheelEvent(QWheelEvent* event)
{
  event->accept();
  if (!m_view)
    return;
  const bool alt = event->modifiers() & Qt::AltModifier;
  if (event->modifiers() & Qt::ControlModifier) {
    QPoint point = m_view->mapFromGlobal(event->globalPosition().toPoint());
    m_zoom_point = m_view->get_logical(point);
    const float step = alt ? 1.01f : 1.25f;
    if (event->angleDelta().y() > 0)
      zoom_in(&point, step);
    else
      zoom_out(&point, step);
    QTimer::singleShot(0, this, &ORQ_ZOOM_SCROLL_AREA::adjust_cursor);
    send_fake_mouse_event();
    return;
  }
  QScrollBar* bar = shift_held(event->modifiers()) ? horizontalScrollBar() : verticalScrollBar();
  const int divisor = alt ? 3000 : 120; // Alt: a fine scroll, a twenty-fifth as fast
  bar->setValue(bar->value() - (bar->singleStep() * event->angleDelta().y() * 3) / divisor);
  send_fake_mouse_event();
}

void ORQ_ZOOM_SCROLL_AREA::keyPressEvent(QKeyEvent* event)
{
  if (m_zoom_tool_action->isChecked() && event->key() == Qt::Key_Shift) {
    set_view_cursor(orq_get_cursor(ORQ_ZOOM_OUT_CURSOR));
    return;
  }
  switch (event->key()) {
  case Qt::Key_Left:
  case Qt::Key_Right:
  case Qt::Key_Up:
  case Qt::Key_Down:
  case Qt::Key_PageUp:
  case Qt::Key_PageDown:
    // Taken here and acted on at the release: a press must not scroll too.
    event->accept();
    return;
  default:
    event->ignore();
  }
}

void ORQ_ZOOM_SCROLL_AREA::keyReleaseEvent(QKeyEvent* event)
{
  if (m_zoom_tool_action->isChecked() && event->key() == Qt::Key_Shift) {
    set_view_cursor(orq_get_cursor(ORQ_ZOOM_IN_CURSOR));
    send_fake_mouse_event();
    return;
  }
  // Scrolling acts on the release, not on the press, so that a key whose
  // press opened something else never scrolls the drawing behind it.
  QScrollBar* horizontal = horizontalScrollBar();
  QScrollBar* vertical = verticalScrollBar();
  QScrollBar* paged = (event->modifiers() & Qt::ShiftModifier) ? horizontal : vertical;
  switch (event->key()) {
  case Qt::Key_Left:
    horizontal->setSliderPosition(horizontal->sliderPosition() - 3 * horizontal->singleStep());
    break;
  case Qt::Key_Right:
    horizontal->setSliderPosition(horizontal->sliderPosition() + 3 * horizontal->singleStep());
    break;
  case Qt::Key_Up:
    vertical->setSliderPosition(vertical->sliderPosition() - 3 * vertical->singleStep());
    break;
  case Qt::Key_Down:
    vertical->setSliderPosition(vertical->sliderPosition() + 3 * vertical->singleStep());
    break;
  case Qt::Key_PageUp:
    paged->triggerAction(QAbstractSlider::SliderPageStepSub);
    break;
  case Qt::Key_PageDown:
    paged->triggerAction(QAbstractSlider::SliderPageStepAdd);
    break;
  default:
    event->ignore();
    return;
  }
  event->accept();
  send_fake_mouse_event();
}

void ORQ_ZOOM_SCROLL_AREA::resizeEvent(QResizeEvent* event)
{
  QScrollArea::resizeEvent(event);
  if (m_birds_eye_view)
    m_birds_eye_view->update_geometry();
  if (m_view)
    m_view->update_transform();
}

void ORQ_ZOOM_SCROLL_AREA::send_fake_mouse_event()
{
  if (!m_view)
    return;
  const QPoint global = QCursor::pos();
  QCoreApplication::postEvent(m_view, new QMouseEvent(QEvent::MouseMove, m_view->mapFromGlobal(global), global,
                                                      Qt::NoButton, Qt::NoButton, Qt::NoModifier));
}
