#include "floorplan_widget.h"

#include <QMouseEvent>
#include <QPainter>

FLOORPLAN_WIDGET::FLOORPLAN_WIDGET(QWidget* parent)
    : QWidget(parent)
{
  setMouseTracking(true);
  setAutoFillBackground(true);
  QPalette p = palette();
  p.setColor(QPalette::Window, QColor(0x1e2430));
  setPalette(p);
}

void FLOORPLAN_WIDGET::set_floorplan(const FLOORPLAN& plan)
{
  m_plan = plan;
  update();
}

QSize FLOORPLAN_WIDGET::sizeHint() const
{
  return {960, 720};
}

QTransform FLOORPLAN_WIDGET::logical_to_widget() const
{
  const QRectF die = m_plan.die;
  if (die.isEmpty())
    return {};
  const double margin = 16.0;
  const double scale = std::min((width() - 2 * margin) / die.width(), (height() - 2 * margin) / die.height());
  const double dx = (width() - die.width() * scale) / 2.0;
  const double dy = (height() - die.height() * scale) / 2.0;
  return QTransform(scale, 0, 0, scale, dx - die.left() * scale, dy - die.top() * scale);
}

void FLOORPLAN_WIDGET::paintEvent(QPaintEvent*)
{
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QTransform t = logical_to_widget();

  painter.setPen(QPen(QColor(0x8a94a6), 2));
  painter.setBrush(QColor(0x2b3242));
  painter.drawRect(t.mapRect(QRectF(m_plan.die)));
  painter.setPen(QPen(QColor(0x56607a), 1, Qt::DashLine));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(t.mapRect(QRectF(m_plan.core)));

  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(0xc9a227));
  for (const QRect& pad : m_plan.io_pads)
    painter.drawRect(t.mapRect(QRectF(pad)));

  QFont label_font = font();
  label_font.setPointSizeF(std::max(6.0, label_font.pointSizeF() * 0.85));
  painter.setFont(label_font);
  for (const FLOORPLAN_BLOCK& block : m_plan.blocks) {
    const QRectF r = t.mapRect(QRectF(block.rect));
    painter.setPen(QPen(block.fill.lighter(140), 1.5));
    QColor fill = block.fill;
    fill.setAlpha(170);
    painter.setBrush(fill);
    painter.drawRect(r);
    painter.setPen(Qt::white);
    painter.drawText(r.adjusted(4, 2, -4, -2), Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap,
                     block.name + QLatin1Char('\n') + block.cell);
  }
}

void FLOORPLAN_WIDGET::mouseMoveEvent(QMouseEvent* event)
{
  const QPointF logical = logical_to_widget().inverted().map(QPointF(event->pos()));
  for (const FLOORPLAN_BLOCK& block : m_plan.blocks)
    if (QRectF(block.rect).contains(logical)) {
      emit block_hovered(QStringLiteral("%1 (%2)  %3 x %4 um")
                             .arg(block.name, block.cell)
                             .arg(block.rect.width() / 1000.0)
                             .arg(block.rect.height() / 1000.0));
      return;
    }
  emit block_hovered(QStringLiteral("x %1 um, y %2 um").arg(logical.x() / 1000.0, 0, 'f', 2).arg(logical.y() / 1000.0, 0, 'f', 2));
}
