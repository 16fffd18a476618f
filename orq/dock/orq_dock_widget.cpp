#include "orq_dock_widget.h"

#include "orq_dock_widget_button.h"
#include "orq_dock_widget_button_bar.h"
#include "orq_main_window.h"
#include "orq_require_p.h"

#include "gen_help.h"

#include <QAction>
#include <QApplication>
#include <QChildEvent>
#include <QCursor>
#include <QKeyEvent>
#include <QLoggingCategory>
#include <QTimer>

#include <tinyxml2.h>

#include <new>

Q_LOGGING_CATEGORY(orq_dock, "orq.dock")

namespace {

// clang-format off
const struct {
  const char* name;
  int value;
} feature_names[] = {
  {"DockWidgetClosable",         QDockWidget::DockWidgetClosable},
  {"DockWidgetMovable",          QDockWidget::DockWidgetMovable},
  {"DockWidgetFloatable",        QDockWidget::DockWidgetFloatable},
  {"DockWidgetVerticalTitleBar", QDockWidget::DockWidgetVerticalTitleBar},
  {"AllDockWidgetFeatures",      7},
  {"NoDockWidgetFeatures",       QDockWidget::NoDockWidgetFeatures},
};
// clang-format on

// The slide-back re-check period of a slid-out dock.
constexpr int slide_back_ms = 500;

} // namespace

ORQ_DOCK_WIDGET::ORQ_DOCK_WIDGET(const QString& title, QWidget* parent, Qt::WindowFlags flags)
    : QDockWidget(title, parent, flags)
{
  setup(parent);
  update_title();
}

ORQ_DOCK_WIDGET::ORQ_DOCK_WIDGET(QWidget* parent, Qt::WindowFlags flags)
    : QDockWidget(parent, flags)
{
  setup(parent);
}

ORQ_DOCK_WIDGET::ORQ_DOCK_WIDGET(QWidget* parent, Qt::WindowFlags flags, const std::string& xml)
    : QDockWidget(parent, flags)
{
  setup(parent);
  tinyxml2::XMLDocument document(true, tinyxml2::PRESERVE_WHITESPACE);
  if (document.Parse(xml.c_str(), xml.size()) != tinyxml2::XML_SUCCESS) {
    qCWarning(orq_dock, "Dock description could not be read: %s", document.ErrorStr());
    return;
  }
  xml_customize(document.FirstChildElement());
}

ORQ_DOCK_WIDGET::ORQ_DOCK_WIDGET(const tinyxml2::XMLElement* element, QWidget* parent, Qt::WindowFlags flags)
    : QDockWidget(parent, flags)
{
  setup(parent);
  xml_customize(element);
}

ORQ_DOCK_WIDGET::~ORQ_DOCK_WIDGET()
{
  // Focus moves while the base class tears the dock down; the title bar
  // must not ask a dock that is no longer one.
  disconnect(qApp, nullptr, m_titlebar, nullptr);
  // The button lives in a bar of the window; it must not outlive its dock.
  remove_button_from_bar();
  delete m_button;
}

void ORQ_DOCK_WIDGET::setup(QWidget* parent)
{
  m_area = Qt::BottomDockWidgetArea;
  m_visibility = VISIBLE;
  m_track_area = m_slide_back = m_pin_available = true;

  m_delay_timer = new QTimer(this);
  m_delay_timer->setSingleShot(true);
  connect(this, &QDockWidget::dockLocationChanged, this, &ORQ_DOCK_WIDGET::dock_location_changed);
  connect(this, &QDockWidget::topLevelChanged, this, &ORQ_DOCK_WIDGET::floating_status_changed);
  connect(m_delay_timer, &QTimer::timeout, this, &ORQ_DOCK_WIDGET::delay_tick);
  // Features the tool sets are the tool's: a vertical title bar among them
  // is no longer one the dock added.
  connect(this, &QDockWidget::featuresChanged, this, [this] {
    if (!m_setting_own_features)
      m_added_vertical_title_bar = false;
  });

  m_titlebar = new (std::nothrow) ORQ_DOCK_WIDGET_TITLEBAR_WIDGET(this);
  if (!m_titlebar)
    ORQ_INTERNAL_ERROR("Not enough memory to complete operation");
  setTitleBarWidget(m_titlebar);
  connect(m_titlebar, &ORQ_DOCK_WIDGET_TITLEBAR_WIDGET::search_button_clicked, this,
          &ORQ_DOCK_WIDGET::search_button_clicked);
  connect(m_titlebar, &ORQ_DOCK_WIDGET_TITLEBAR_WIDGET::float_button_clicked, this,
          &ORQ_DOCK_WIDGET::float_button_clicked);

  // The title bar shows whether the focus is inside the dock.
  connect(qApp, &QApplication::focusChanged, m_titlebar,
          [this] { m_titlebar->update_button_active_state(); });

  setMouseTracking(true);
  setMinimumWidth(200);
  m_pinned = true;
  m_titlebar->set_pushpin_button_checked(true);

  m_parent = qobject_cast<ORQ_MAIN_WINDOW*>(parent);
  if (!m_parent) {
    m_pin_available = false;
    m_titlebar->set_pin_available(false);
    m_titlebar->set_pushpin_button_visibility(false);
  }
}

void ORQ_DOCK_WIDGET::set_own_features(DockWidgetFeatures features)
{
  m_setting_own_features = true;
  setFeatures(features);
  m_setting_own_features = false;
}

Qt::DockWidgetArea ORQ_DOCK_WIDGET::get_area() const
{
  return m_area;
}

ORQ_MAIN_WINDOW* ORQ_DOCK_WIDGET::get_parent() const
{
  return m_parent;
}

ORQ_DOCK_WIDGET_VISIBILITY_ENUM ORQ_DOCK_WIDGET::get_visibility() const
{
  return m_visibility;
}

bool ORQ_DOCK_WIDGET::is_closed() const
{
  return m_visibility == CLOSED;
}

bool ORQ_DOCK_WIDGET::is_detached() const
{
  return m_visibility == DETACHED;
}

bool ORQ_DOCK_WIDGET::is_minimized() const
{
  return m_visibility == MINIMIZED;
}

bool ORQ_DOCK_WIDGET::is_pinned() const
{
  return m_pinned;
}

bool ORQ_DOCK_WIDGET::is_pin_available() const
{
  return m_pin_available;
}

ORQ_DOCK_WIDGET_TITLEBAR_WIDGET* ORQ_DOCK_WIDGET::get_titlebar() const
{
  return m_titlebar;
}

ORQ_DOCK_WIDGET_BUTTON* ORQ_DOCK_WIDGET::get_button() const
{
  return m_button.data();
}

void ORQ_DOCK_WIDGET::set_area(Qt::DockWidgetArea area)
{
  m_area = area;
}

void ORQ_DOCK_WIDGET::set_visibility(ORQ_DOCK_WIDGET_VISIBILITY_ENUM visibility)
{
  m_visibility = visibility;
}

void ORQ_DOCK_WIDGET::set_is_pinned(bool pinned)
{
  m_pinned = pinned;
  if (!pinned)
    hide();
  m_visibility = pinned ? VISIBLE : MINIMIZED;
  m_titlebar->set_pushpin_button_checked(pinned);
}

void ORQ_DOCK_WIDGET::set_menu(QMenu* menu)
{
  m_titlebar->set_menu(menu);
}

void ORQ_DOCK_WIDGET::set_size(int width, int height)
{
  m_saved_minimum_size = minimumSize();
  m_saved_maximum_size = maximumSize();
  if (width >= 0 && width <= maximumWidth()) {
    setMinimumWidth(width);
    setMaximumWidth(width);
  }
  if (height >= 0 && height <= maximumHeight()) {
    setMinimumHeight(height);
    setMaximumHeight(height);
  }
  // Inside a main window the dock area follows at once; the limits alone
  // would be dropped before the window lays out again.
  if (m_parent && m_parent->dockWidgetArea(this) != Qt::NoDockWidgetArea) {
    if (width >= 0 && minimumWidth() == width)
      m_parent->resizeDocks({this}, {width}, Qt::Horizontal);
    if (height >= 0 && minimumHeight() == height)
      m_parent->resizeDocks({this}, {height}, Qt::Vertical);
  }
  QTimer::singleShot(1, this, &ORQ_DOCK_WIDGET::restore_min_max_sizes);
}

void ORQ_DOCK_WIDGET::restore_min_max_sizes()
{
  if (m_saved_minimum_size.isValid())
    setMinimumSize(m_saved_minimum_size);
  if (m_saved_maximum_size.isValid())
    setMaximumSize(m_saved_maximum_size);
}

void ORQ_DOCK_WIDGET::add_titlebar_widget(QWidget* widget)
{
  m_titlebar->add_widget(widget);
}

void ORQ_DOCK_WIDGET::click_titlebar_button(ORQ_DOCK_WIDGET_TITLEBAR_WIDGET_BUTTON_ENUM button)
{
  m_titlebar->press_button(button);
}

Qt::ToolBarArea ORQ_DOCK_WIDGET::to_toolbar_area(Qt::DockWidgetArea area)
{
  switch (area) {
  case Qt::RightDockWidgetArea:
    return Qt::RightToolBarArea;
  case Qt::TopDockWidgetArea:
    return Qt::TopToolBarArea;
  case Qt::BottomDockWidgetArea:
    return Qt::BottomToolBarArea;
  default:
    return Qt::LeftToolBarArea;
  }
}

void ORQ_DOCK_WIDGET::emit_pre_window_exiting()
{
  // The signal's name is part of the interface tools connect to; it keeps
  // its spelling.
  emit pre_window_existing();
}

void ORQ_DOCK_WIDGET::set_close_button_visibility(bool visible)
{
  m_titlebar->set_close_button_visibility(visible);
}

void ORQ_DOCK_WIDGET::set_detach_button_visibility(bool visible)
{
  m_titlebar->set_detach_button_visibility(visible);
}

void ORQ_DOCK_WIDGET::set_float_button_visibility(bool visible)
{
  m_titlebar->set_float_button_visibility(visible);
}

void ORQ_DOCK_WIDGET::set_menu_button_visibility(bool visible)
{
  m_titlebar->set_menu_button_visibility(visible);
}

void ORQ_DOCK_WIDGET::set_pushpin_button_visibility(bool visible)
{
  m_titlebar->set_pushpin_button_visibility(visible && m_pin_available);
}

void ORQ_DOCK_WIDGET::set_search_button_visibility(bool visible)
{
  m_titlebar->set_search_button_visibility(visible);
}

bool ORQ_DOCK_WIDGET::is_within_widget(int margin) const
{
  const QPoint pos = mapFromGlobal(QCursor::pos());
  if (m_area == Qt::LeftDockWidgetArea || m_area == Qt::TopDockWidgetArea)
    return QRect(QPoint(0, 0), size() + QSize(3, 3)).contains(pos); // fixed slack, whatever margin says
  // Only the side facing the window's centre is checked, on purpose: the
  // mouse on the bar beyond the far edge keeps the dock out.
  return pos.x() >= -margin && pos.y() >= -margin;
}

void ORQ_DOCK_WIDGET::xml_customize(const tinyxml2::XMLElement* element)
{
  if (!element)
    return;
  if (const tinyxml2::XMLElement* title = element->FirstChildElement("setWindowTitle"))
    if (const char* text = title->GetText())
      if (*text)
        setWindowTitle(QString::fromUtf8(text));
  const tinyxml2::XMLElement* features = element->FirstChildElement("setFeatures");
  if (!features)
    return;
  int result = 0;
  bool known = false;
  for (const tinyxml2::XMLElement* child = features->FirstChildElement(); child;
       child = child->NextSiblingElement()) {
    const char* text = child->GetText();
    if (!text)
      continue;
    for (const auto& feature : feature_names) {
      if (qstrcmp(feature.name, text) == 0) {
        result |= feature.value;
        known = true;
      }
    }
  }
  if (known)
    setFeatures(QDockWidget::DockWidgetFeatures(result));
}

void ORQ_DOCK_WIDGET::set_visible_and_raise(bool visible)
{
  setVisible(visible);
  if (visible)
    raise();
}

void ORQ_DOCK_WIDGET::set_visible_and_raise(QAction* action)
{
  ORQ_REQUIRE(action);
  show();
  raise();
  action->setChecked(true);
}

void ORQ_DOCK_WIDGET::detach()
{
  setFloating(!isFloating());
}

void ORQ_DOCK_WIDGET::open_widget()
{
  if (!isFloating() && !m_pinned && m_button)
    add_button();
  m_titlebar->set_pushpin_button_checked(m_pinned);
  if (m_parent && m_button)
    if (ORQ_DOCK_WIDGET_BUTTON_BAR* bar = m_parent->get_dock_bar_of_area().value(m_button->get_area()))
      bar->update();
  show();
}

void ORQ_DOCK_WIDGET::close_widget(bool value)
{
  Q_UNUSED(value) // a close is a close, whoever asks
  m_visibility = CLOSED;
  remove_button_from_bar();
  m_pinned = false;
  m_titlebar->set_pushpin_button_checked(false);
  hide();
}

void ORQ_DOCK_WIDGET::add_button()
{
  if (!m_parent)
    return;
  // A dock that is in no area of the window goes to the left bar.
  const Qt::ToolBarArea bar_area = to_toolbar_area(m_parent->dockWidgetArea(this));
  ORQ_DOCK_WIDGET_BUTTON_BAR* bar = m_parent->get_dock_bar_of_area().value(bar_area);
  if (m_button) {
    // A button moving to another edge leaves its old bar first.
    if (m_button->get_area() != bar_area)
      remove_button_from_bar();
    m_button->set_area(bar_area);
    m_button->setChecked(false);
  } else {
    m_button = new ORQ_DOCK_WIDGET_BUTTON(this, m_parent);
    m_button->set_area(bar_area);
  }
  if (bar) {
    bar->add_button(m_button);
    bar->update();
  }
  m_delay_timer->stop();
}

void ORQ_DOCK_WIDGET::remove_button_from_bar()
{
  // The bar is the button's parent while it holds it; asking the window
  // instead would fail while the window itself is being destroyed.
  if (!m_button)
    return;
  if (auto* bar = qobject_cast<ORQ_DOCK_WIDGET_BUTTON_BAR*>(m_button->parentWidget())) {
    bar->remove_button(m_button);
    bar->update();
  }
}

void ORQ_DOCK_WIDGET::dock_location_changed(Qt::DockWidgetArea area)
{
  m_area = area;
  if (m_visibility != DETACHED) {
    // Docks along the top and bottom edges carry their title on the left,
    // leaving the height to their content. On the left and right the dock
    // takes back only a vertical title bar it added itself: one the tool
    // asked for stays.
    if (area == Qt::TopDockWidgetArea || area == Qt::BottomDockWidgetArea) {
      if (!(features() & DockWidgetVerticalTitleBar)) {
        set_own_features(features() | DockWidgetVerticalTitleBar);
        m_added_vertical_title_bar = true;
      }
    } else if ((area == Qt::LeftDockWidgetArea || area == Qt::RightDockWidgetArea) &&
               m_added_vertical_title_bar) {
      set_own_features(features() & ~DockWidgetVerticalTitleBar);
      m_added_vertical_title_bar = false;
    }
  }
  if (m_visibility == MINIMIZED && m_parent && !m_button) {
    m_button = new ORQ_DOCK_WIDGET_BUTTON(this, m_parent);
    m_button->set_area(to_toolbar_area(area));
    if (ORQ_DOCK_WIDGET_BUTTON_BAR* bar = m_parent->get_dock_bar_of_area().value(to_toolbar_area(area)))
      bar->add_button(m_button);
  }
  m_titlebar->update_orientation();
  schedule_repaint();
}

void ORQ_DOCK_WIDGET::floating_status_changed(bool floating)
{
  if (floating) {
    set_own_features(features() & ~DockWidgetVerticalTitleBar);
    m_added_vertical_title_bar = false;
    m_pinned = true;
    m_visibility = DETACHED;
    m_titlebar->set_pin_available(false);
    m_titlebar->set_pushpin_button_visibility(false);
    m_titlebar->set_pushpin_button_checked(true);
    m_titlebar->update_orientation();
    remove_button_from_bar();
  } else {
    m_titlebar->set_pin_available(m_pin_available);
    m_titlebar->set_pushpin_button_visibility(m_pin_available);
    setFloating(false);
    if (m_visibility == DETACHED)
      m_visibility = m_pinned ? VISIBLE : MINIMIZED;
    open_widget();
  }
  schedule_repaint();
}

void ORQ_DOCK_WIDGET::help_button_clicked()
{
  gen_help().show_help(this, get_help_topic_string());
}

void ORQ_DOCK_WIDGET::delay_tick()
{
  m_delay_timer->stop();
  if (!isVisible() || m_pinned)
    return;
  if (!is_within_widget(3)) {
    hide();
    if (m_button)
      m_button->setChecked(false);
    return;
  }
  m_delay_timer->start(slide_back_ms);
}

bool ORQ_DOCK_WIDGET::event(QEvent* event)
{
  const bool result = QDockWidget::event(event);
  switch (event->type()) {
  case QEvent::MouseButtonPress:
    if (m_parent && m_track_area)
      m_area = m_parent->dockWidgetArea(this);
    break;
  case QEvent::MouseButtonRelease:
    if (m_parent && m_track_area) {
      const Qt::DockWidgetArea now = m_parent->dockWidgetArea(this);
      if (now != Qt::NoDockWidgetArea && now != m_area) {
        // Dragged to another edge: docked there anew, so the features and
        // the button follow the new edge.
        m_parent->removeDockWidget(this);
        m_parent->addDockWidget(now, this);
        show();
        emit topLevelChanged(false);
      }
    }
    break;
  case QEvent::Leave:
    if (!m_pinned) {
      if (m_delay_timer->isActive())
        m_delay_timer->stop();
      // Re-armed, not only stopped: with the timer stopped a slid-out dock
      // the mouse has left would never slide back. It slides back at the
      // next check unless the mouse returns.
      if (isVisible() && m_slide_back)
        m_delay_timer->start(slide_back_ms);
    }
    break;
  case QEvent::WindowTitleChange:
    update_title();
    break;
  default:
    break;
  }
  return result;
}

void ORQ_DOCK_WIDGET::update_title()
{
  if (!m_titlebar)
    return;
  m_titlebar->set_text(windowTitle());
  setAccessibleName(get_help_topic_string());
  if (m_button) {
    m_button->setText(windowTitle());
    m_button->setAccessibleName(windowTitle());
  }
}

void ORQ_DOCK_WIDGET::childEvent(QChildEvent* event)
{
  QDockWidget::childEvent(event);
  // The content must report moves too, or leaving the dock over it goes
  // unnoticed.
  if (event->added())
    if (auto* child = qobject_cast<QWidget*>(event->child()))
      child->setMouseTracking(true);
}

void ORQ_DOCK_WIDGET::showEvent(QShowEvent* event)
{
  QDockWidget::showEvent(event);
  emit dock_widget_active_state_changed(true);
  if (m_visibility == CLOSED) {
    m_pinned = true;
    m_visibility = VISIBLE;
    m_titlebar->set_pushpin_button_checked(true);
  }
  m_titlebar->update_button_active_state();
  // A slid-out dock checks twice a second whether the mouse has left it.
  if (!m_pinned && m_slide_back)
    m_delay_timer->start(slide_back_ms);
}

void ORQ_DOCK_WIDGET::hideEvent(QHideEvent* event)
{
  QDockWidget::hideEvent(event);
  m_delay_timer->stop();
  emit dock_widget_active_state_changed(false);
}

void ORQ_DOCK_WIDGET::paintEvent(QPaintEvent* event)
{
  QDockWidget::paintEvent(event);
}

void ORQ_DOCK_WIDGET::keyPressEvent(QKeyEvent* event)
{
  if (event->key() == Qt::Key_F1) {
    help_button_clicked();
    return;
  }
  QDockWidget::keyPressEvent(event);
}

QString ORQ_DOCK_WIDGET::get_help_topic_string() const
{
  return windowTitle();
}

void ORQ_DOCK_WIDGET::schedule_repaint()
{
  QTimer::singleShot(0, this, [this] { update(); });
}
