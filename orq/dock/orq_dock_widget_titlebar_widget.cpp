#include "orq_dock_widget_titlebar_widget.h"

#include "orq_dock_widget.h"
#include "orq_dock_widget_button.h"
#include "orq_dock_widget_button_bar.h"
#include "orq_icons.h"
#include "orq_main_window.h"
#include "orq_require_p.h"

#include <QApplication>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

// The title of a vertical title bar, read from bottom to top.
class VERTICAL_LABEL : public QLabel {
public:
  using QLabel::QLabel;

  QSize sizeHint() const override { return QLabel::sizeHint().transposed(); }
  QSize minimumSizeHint() const override
  {
    const int line = fontMetrics().height();
    return {line, line};
  }

protected:
  void paintEvent(QPaintEvent*) override
  {
    QPainter painter(this);
    painter.rotate(-90);
    painter.translate(-height(), 0);
    const QRect box(0, 0, height(), width());
    painter.drawText(box, Qt::AlignLeft | Qt::AlignVCenter,
                     fontMetrics().elidedText(text(), Qt::ElideRight, box.width()));
  }
};

QIcon pin_icon(bool pinned)
{
  return orq_get_icon(pinned ? ORQ_DOCK_PIN_ICON : ORQ_DOCK_UNPIN_ICON);
}

} // namespace

ORQ_DOCK_WIDGET_TITLEBAR_WIDGET::ORQ_DOCK_WIDGET_TITLEBAR_WIDGET(ORQ_DOCK_WIDGET* dock)
    : QWidget(dock)
    , m_dock(dock)
{
  m_outer = new QVBoxLayout(this);
  m_outer->setObjectName(QStringLiteral("verticalLayout_2"));
  m_outer->setContentsMargins(0, 0, 0, 0);
  m_outer->setSpacing(0);

  m_frame = new QFrame(this);
  m_frame->setObjectName(QStringLiteral("m_frame"));
  m_frame->setWindowTitle(QStringLiteral("Frame"));
  m_h_layout = new QHBoxLayout(m_frame);
  m_h_layout->setObjectName(QStringLiteral("m_h_layout"));
  m_h_layout->setContentsMargins(4, 1, 1, 1);
  m_h_layout->setSpacing(1);
  m_title = new QLabel(QStringLiteral("Title"), m_frame);
  m_title->setObjectName(QStringLiteral("m_title"));
  m_title->setMinimumWidth(20);
  m_title->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  m_h_layout->addWidget(m_title, 1);
  m_float_button = make_button("m_float_button", QStringLiteral("Float"), QStringLiteral("Float"), true);
  m_search_button = make_button("m_search_button", QStringLiteral("Search"), QStringLiteral("Search"), true);
  m_menu_button = make_button("m_menu_button", QStringLiteral("Menu"), QStringLiteral("Open Menu"), false);
  m_pin_button = make_button("m_pin_button", QStringLiteral("Auto Hide"), QStringLiteral("Auto Hide"), true);
  m_detach_button = make_button("m_detach_button", QStringLiteral("Detach"), QStringLiteral("Detach"), false);
  m_close_button = make_button("m_close_button", QStringLiteral("Close"), QStringLiteral("Close"), false);
  for (QToolButton* button :
       {m_float_button, m_search_button, m_menu_button, m_pin_button, m_detach_button, m_close_button}) {
    button->setParent(m_frame);
    m_h_layout->addWidget(button);
  }
  m_outer->addWidget(m_frame);

  m_frame_v = new QFrame(this);
  m_frame_v->setObjectName(QStringLiteral("m_frame_v"));
  m_frame_v->setWindowTitle(QStringLiteral("Frame"));
  m_v_layout = new QVBoxLayout(m_frame_v);
  m_v_layout->setObjectName(QStringLiteral("m_v_layout"));
  m_v_layout->setContentsMargins(1, 1, 1, 4);
  m_v_layout->setSpacing(1);
  m_close_button_v = make_button("m_close_button_v", QStringLiteral("Close"), QStringLiteral("Close"), false);
  m_detach_button_v =
      make_button("m_detach_button_v", QStringLiteral("Detach"), QStringLiteral("Detach"), false);
  m_pin_button_v =
      make_button("m_pin_button_v", QStringLiteral("Auto Hide"), QStringLiteral("Auto Hide"), true);
  m_menu_button_v = make_button("m_menu_button_v", QStringLiteral("Menu"), QStringLiteral("Open Menu"), false);
  m_search_button_v =
      make_button("m_search_button_v", QStringLiteral("Search"), QStringLiteral("Search"), true);
  m_float_button_v = make_button("m_float_button_v", QStringLiteral("Float"), QStringLiteral("Float"), true);
  for (QToolButton* button : {m_close_button_v, m_detach_button_v, m_pin_button_v, m_menu_button_v,
                              m_search_button_v, m_float_button_v}) {
    button->setParent(m_frame_v);
    m_v_layout->addWidget(button);
  }
  m_title_v = new VERTICAL_LABEL(QStringLiteral("Title"), m_frame_v);
  m_title_v->setObjectName(QStringLiteral("m_title_v"));
  m_v_layout->addWidget(m_title_v, 1);
  m_outer->addWidget(m_frame_v);
  m_frame_v->hide();

  m_float_button->setIcon(orq_get_icon(ORQ_DOCK_FLOAT_ICON));
  m_float_button_v->setIcon(orq_get_icon(ORQ_DOCK_FLOAT_ICON));
  m_search_button->setIcon(orq_get_icon(ORQ_DOCK_SEARCH_ICON));
  m_search_button_v->setIcon(orq_get_icon(ORQ_DOCK_SEARCH_ICON));
  m_menu_button->setIcon(orq_get_icon(ORQ_DOCK_MENU_ICON));
  m_menu_button_v->setIcon(orq_get_icon(ORQ_DOCK_MENU_ICON));
  m_detach_button->setIcon(orq_get_icon(ORQ_DOCK_RESTORE_ICON));
  m_detach_button_v->setIcon(orq_get_icon(ORQ_DOCK_RESTORE_ICON));
  m_close_button->setIcon(orq_get_icon(ORQ_DOCK_CLOSE_ICON));
  m_close_button_v->setIcon(orq_get_icon(ORQ_DOCK_CLOSE_ICON));
  set_pushpin_button_checked(true);
  // Float and search belong to docks that offer them; the menu button
  // appears with a menu.
  set_float_button_visibility(false);
  set_search_button_visibility(false);
  set_menu_button_visibility(false);

  for (QToolButton* pin : {m_pin_button, m_pin_button_v})
    connect(pin, &QToolButton::clicked, this, &ORQ_DOCK_WIDGET_TITLEBAR_WIDGET::toggle_pin);
  for (QToolButton* close : {m_close_button, m_close_button_v})
    connect(close, &QToolButton::clicked, dock, [dock] { dock->close_widget(); });
  for (QToolButton* detach : {m_detach_button, m_detach_button_v})
    connect(detach, &QToolButton::clicked, dock, &ORQ_DOCK_WIDGET::detach);
  for (QToolButton* menu : {m_menu_button, m_menu_button_v})
    connect(menu, &QToolButton::pressed, this, &ORQ_DOCK_WIDGET_TITLEBAR_WIDGET::menu_button_pressed);
  for (QToolButton* search : {m_search_button, m_search_button_v})
    connect(search, &QToolButton::clicked, this, &ORQ_DOCK_WIDGET_TITLEBAR_WIDGET::search_button_clicked_slot);
  for (QToolButton* flt : {m_float_button, m_float_button_v})
    connect(flt, &QToolButton::clicked, this, &ORQ_DOCK_WIDGET_TITLEBAR_WIDGET::float_button_clicked_slot);
}

ORQ_DOCK_WIDGET_TITLEBAR_WIDGET::~ORQ_DOCK_WIDGET_TITLEBAR_WIDGET() = default;

QToolButton* ORQ_DOCK_WIDGET_TITLEBAR_WIDGET::make_button(const char* name, const QString& text,
                                                          const QString& tip, bool checkable)
{
  auto* button = new QToolButton(this);
  button->setObjectName(QString::fromLatin1(name));
  button->setText(text);
  button->setToolTip(tip);
  button->setAccessibleName(tip);
  button->setCheckable(checkable);
  button->setAutoRaise(true);
  button->setFocusPolicy(Qt::NoFocus);
  button->setIconSize(QSize(12, 12));
  return button;
}

void ORQ_DOCK_WIDGET_TITLEBAR_WIDGET::set_text(const QString& text)
{
  m_title->setText(text);
  m_title_v->setText(text);
  m_title->setToolTip(text);
  m_title_v->setToolTip(text);
  m_title_v->update();
}

QString ORQ_DOCK_WIDGET_TITLEBAR_WIDGET::text() const
{
  return m_title->text();
}

void ORQ_DOCK_WIDGET_TITLEBAR_WIDGET::set_pushpin_button_checked(bool checked)
{
  m_pin_checked = checked;
  for (QToolButton* pin : {m_pin_button, m_pin_button_v}) {
    pin->setChecked(checked);
    pin->setIcon(pin_icon(checked));
  }
}

bool ORQ_DOCK_WIDGET_TITLEBAR_WIDGET::is_pushpin_button_checked() const
{
  return m_pin_checked;
}

void ORQ_DOCK_WIDGET_TITLEBAR_WIDGET::set_pin_available(bool available)
{
  m_pin_available = available;
}

bool ORQ_DOCK_WIDGET_TITLEBAR_WIDGET::is_pin_available() const
{
  return m_pin_available;
}

void ORQ_DOCK_WIDGET_TITLEBAR_WIDGET::set_menu(QMenu* menu)
{
  m_menu = menu;
  set_menu_button_visibility(menu != nullptr);
}

QMenu* ORQ_DOCK_WIDGET_TITLEBAR_WIDGET::menu() const
{
  return m_menu;
}

void ORQ_DOCK_WIDGET_TITLEBAR_WIDGET::add_widget(QWidget* widget)
{
  if (!widget || m_added_widgets.contains(widget))
    return;
  m_added_widgets.append(widget);
  insert_added_widgets_to_layout(is_vertical());
}

void ORQ_DOCK_WIDGET_TITLEBAR_WIDGET::insert_added_widgets_to_layout(bool vertical)
{
  // After the title in a horizontal bar, before it in a vertical one: the
  // tool's widgets always sit between the title and the buttons.
  QBoxLayout* layout = vertical ? static_cast<QBoxLayout*>(m_v_layout) : m_h_layout;
  QWidget* frame = vertical ? m_frame_v : m_frame;
  int at = vertical ? m_v_layout->indexOf(m_title_v) : m_h_layout->indexOf(m_title) + 1;
  for (QWidget* widget : qAsConst(m_added_widgets)) {
    if (widget->parentWidget() != frame)
      widget->setParent(frame);
    layout->removeWidget(widget);
    layout->insertWidget(at++, widget);
    widget->show();
  }
}

void ORQ_DOCK_WIDGET_TITLEBAR_WIDGET::update_added_widget_to_vert_or_horz()
{
  insert_added_widgets_to_layout(is_vertical());
}

void ORQ_DOCK_WIDGET_TITLEBAR_WIDGET::set_close_button_visibility(bool visible)
{
  m_close_button->setVisible(visible);
  m_close_button_v->setVisible(visible);
}

void ORQ_DOCK_WIDGET_TITLEBAR_WIDGET::set_detach_button_visibility(bool visible)
{
  m_detach_button->setVisible(visible);
  m_detach_button_v->setVisible(visible);
}

void ORQ_DOCK_WIDGET_TITLEBAR_WIDGET::set_float_button_visibility(bool visible)
{
  m_float_button->setVisible(visible);
  m_float_button_v->setVisible(visible);
}

void ORQ_DOCK_WIDGET_TITLEBAR_WIDGET::set_menu_button_visibility(bool visible)
{
  m_menu_button->setVisible(visible);
  m_menu_button_v->setVisible(visible);
}

void ORQ_DOCK_WIDGET_TITLEBAR_WIDGET::set_pushpin_button_visibility(bool visible)
{
  m_pin_button->setVisible(visible);
  m_pin_button_v->setVisible(visible);
}

void ORQ_DOCK_WIDGET_TITLEBAR_WIDGET::set_search_button_visibility(bool visible)
{
  m_search_button->setVisible(visible);
  m_search_button_v->setVisible(visible);
}

bool ORQ_DOCK_WIDGET_TITLEBAR_WIDGET::is_vertical() const
{
  return m_dock && (m_dock->features() & QDockWidget::DockWidgetVerticalTitleBar);
}

QToolButton* ORQ_DOCK_WIDGET_TITLEBAR_WIDGET::get_title_bar_button(
    ORQ_DOCK_WIDGET_TITLEBAR_WIDGET_BUTTON_ENUM button) const
{
  const bool vertical = is_vertical();
  switch (button) {
  case ORQ_DOCK_WIDGET_TITLEBAR_MENU_BUTTON:
    return vertical ? m_menu_button_v : m_menu_button;
  case ORQ_DOCK_WIDGET_TITLEBAR_PIN_BUTTON:
    return vertical ? m_pin_button_v : m_pin_button;
  case ORQ_DOCK_WIDGET_TITLEBAR_DETACH_BUTTON:
    return vertical ? m_detach_button_v : m_detach_button;
  case ORQ_DOCK_WIDGET_TITLEBAR_CLOSE_BUTTON:
    return vertical ? m_close_button_v : m_close_button;
  }
  return nullptr;
}

QPoint ORQ_DOCK_WIDGET_TITLEBAR_WIDGET::get_icon_position(ORQ_DOCK_WIDGET_TITLEBAR_WIDGET_BUTTON_ENUM button) const
{
  QToolButton* tool = get_title_bar_button(button);
  if (!tool || tool->isHidden())
    return {};
  return tool->mapTo(this, tool->rect().center());
}

int ORQ_DOCK_WIDGET_TITLEBAR_WIDGET::icon_hit_test(const QPoint& pos) const
{
  for (const auto button : {ORQ_DOCK_WIDGET_TITLEBAR_MENU_BUTTON, ORQ_DOCK_WIDGET_TITLEBAR_PIN_BUTTON,
                            ORQ_DOCK_WIDGET_TITLEBAR_DETACH_BUTTON, ORQ_DOCK_WIDGET_TITLEBAR_CLOSE_BUTTON}) {
    QToolButton* tool = get_title_bar_button(button);
    if (tool && !tool->isHidden() && QRect(tool->mapTo(this, QPoint(0, 0)), tool->size()).contains(pos))
      return button;
  }
  return 0;
}

void ORQ_DOCK_WIDGET_TITLEBAR_WIDGET::press_button(ORQ_DOCK_WIDGET_TITLEBAR_WIDGET_BUTTON_ENUM button)
{
  switch (button) {
  case ORQ_DOCK_WIDGET_TITLEBAR_MENU_BUTTON:
    break;
  case ORQ_DOCK_WIDGET_TITLEBAR_PIN_BUTTON:
    toggle_pin(!m_pin_checked);
    break;
  case ORQ_DOCK_WIDGET_TITLEBAR_DETACH_BUTTON:
    m_dock->detach();
    break;
  case ORQ_DOCK_WIDGET_TITLEBAR_CLOSE_BUTTON:
    m_dock->close_widget(true);
    break;
  }
}

void ORQ_DOCK_WIDGET_TITLEBAR_WIDGET::update_button_active_state()
{
  QWidget* focus = QApplication::focusWidget();
  update_button_active_state(focus && (focus == m_dock || m_dock->isAncestorOf(focus)));
}

void ORQ_DOCK_WIDGET_TITLEBAR_WIDGET::update_button_active_state(bool active)
{
  // Called on every focus change of the application: only a change repaints.
  if (active == m_active)
    return;
  m_active = active;
  for (QFrame* frame : {m_frame, m_frame_v}) {
    frame->setAutoFillBackground(active);
    QPalette palette = frame->palette();
    palette.setColor(QPalette::Window, active ? palette.color(QPalette::Highlight).lighter(170)
                                              : QApplication::palette(this).color(QPalette::Window));
    frame->setPalette(palette);
  }
}

void ORQ_DOCK_WIDGET_TITLEBAR_WIDGET::update_orientation()
{
  const bool vertical = is_vertical();
  m_frame->setVisible(!vertical);
  m_frame_v->setVisible(vertical);
  insert_added_widgets_to_layout(vertical);
  updateGeometry();
}

QSize ORQ_DOCK_WIDGET_TITLEBAR_WIDGET::sizeHint() const
{
  // The dock's layout reads the width of a vertical title bar and the
  // height of a horizontal one from here.
  return is_vertical() ? m_frame_v->sizeHint() : m_frame->sizeHint();
}

QSize ORQ_DOCK_WIDGET_TITLEBAR_WIDGET::minimumSizeHint() const
{
  return is_vertical() ? m_frame_v->minimumSizeHint() : m_frame->minimumSizeHint();
}

void ORQ_DOCK_WIDGET_TITLEBAR_WIDGET::toggle_pin(bool pinned)
{
  ORQ_MAIN_WINDOW* window = m_dock->get_parent();
  if (!window)
    ORQ_INTERNAL_ERROR("Dock widget parent is not set up yet");
  m_dock->set_is_pinned(pinned);
  if (!pinned) {
    m_dock->add_button();
    return;
  }
  if (ORQ_DOCK_WIDGET_BUTTON* button = m_dock->get_button()) {
    ORQ_DOCK_WIDGET_BUTTON_BAR* bar = window->get_dock_bar_of_area().value(button->get_area());
    if (bar) {
      bar->remove_button(button);
      bar->update();
    }
  }
  m_dock->show();
}

void ORQ_DOCK_WIDGET_TITLEBAR_WIDGET::menu_button_pressed()
{
  QToolButton* button = is_vertical() ? m_menu_button_v : m_menu_button;
  if (m_menu)
    m_menu->exec(button->mapToGlobal(QPoint(0, button->height())));
  button->setDown(false);
}

void ORQ_DOCK_WIDGET_TITLEBAR_WIDGET::search_button_clicked_slot(bool checked)
{
  emit search_button_clicked(checked);
}

void ORQ_DOCK_WIDGET_TITLEBAR_WIDGET::float_button_clicked_slot(bool checked)
{
  emit float_button_clicked(checked);
}
