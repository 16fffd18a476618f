#include "orq_dock_widget_button.h"

#include "orq_dock_widget.h"
#include "orq_dock_widget_button_bar.h"
#include "orq_main_window.h"

#include <QAction>
#include <QStyleOptionToolButton>
#include <QStylePainter>

ORQ_DOCK_WIDGET_BUTTON::ORQ_DOCK_WIDGET_BUTTON(ORQ_DOCK_WIDGET* dock, QWidget* parent)
    : QToolButton(parent)
    , m_area(Qt::LeftToolBarArea)
    , m_dock(dock)
{
  setAutoRaise(true);
  setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  setCheckable(true);
  setFocusPolicy(Qt::NoFocus);
  const QString title = dock ? dock->windowTitle() : QString();
  setText(title);
  setObjectName(QStringLiteral("orq_dock_widget_button"));
  setAccessibleName(title);
  setToolTip(title);
  if (dock && dock->get_parent())
    if (QAction* action = dock->get_parent()->get_main_menu_action(title))
      setIcon(action->icon());
  connect(this, &QToolButton::clicked, this, &ORQ_DOCK_WIDGET_BUTTON::on_clicked);
}

ORQ_DOCK_WIDGET_BUTTON::~ORQ_DOCK_WIDGET_BUTTON() = default;

void ORQ_DOCK_WIDGET_BUTTON::set_area(Qt::ToolBarArea area)
{
  m_area = area;
  updateGeometry();
  update();
}

Qt::ToolBarArea ORQ_DOCK_WIDGET_BUTTON::get_area() const
{
  return m_area;
}

ORQ_DOCK_WIDGET* ORQ_DOCK_WIDGET_BUTTON::get_dock() const
{
  return m_dock;
}

QSize ORQ_DOCK_WIDGET_BUTTON::sizeHint() const
{
  const QSize hint = QToolButton::sizeHint();
  if (m_area == Qt::LeftToolBarArea || m_area == Qt::RightToolBarArea)
    return hint.transposed();
  return hint;
}

void ORQ_DOCK_WIDGET_BUTTON::on_clicked(bool checked)
{
  if (!m_dock)
    return;
  if (!checked) {
    m_dock->hide();
    m_dock->setFloating(false);
    return;
  }
  // At most one dock slides out of a bar at a time.
  if (auto* bar = qobject_cast<ORQ_DOCK_WIDGET_BUTTON_BAR*>(parentWidget())) {
    const QMap<QWidget*, QAction*> buttons = bar->get_button_action_map();
    for (auto it = buttons.cbegin(); it != buttons.cend(); ++it) {
      auto* other = qobject_cast<ORQ_DOCK_WIDGET_BUTTON*>(it.key());
      if (!other || other == this)
        continue;
      if (other->get_dock())
        other->get_dock()->hide();
      other->setChecked(false);
    }
  }
  m_dock->show();
  m_dock->raise();
}

void ORQ_DOCK_WIDGET_BUTTON::paintEvent(QPaintEvent* event)
{
  if (m_area != Qt::LeftToolBarArea && m_area != Qt::RightToolBarArea) {
    QToolButton::paintEvent(event);
    return;
  }
  // Along a side edge the button reads from top to bottom on the right and
  // from bottom to top on the left, like the edge it sits on.
  QStylePainter painter(this);
  QStyleOptionToolButton option;
  initStyleOption(&option);
  if (m_area == Qt::LeftToolBarArea) {
    painter.rotate(-90);
    painter.translate(-height(), 0);
  } else {
    painter.rotate(90);
    painter.translate(0, -width());
  }
  option.rect = QRect(0, 0, height(), width());
  painter.drawComplexControl(QStyle::CC_ToolButton, option);
}
