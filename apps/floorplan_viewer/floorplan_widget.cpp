#include "floorplan_widget.h"

#include <orq_brush.h>
#include <orq_color.h>
#include <orq_font.h>
#include <orq_pen.h>

#include <QMouseEvent>
#include <QPainter>

FLOORPLAN_WIDGET::FLOORPLAN_WIDGET(QWidget* parent)
    : QWidget(parent)
{
  setMouseTracking(true);
  setAttribute(Qt::WA_OpaquePaintEvent);
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
  // Every colour, pen and font comes from the theme, so the Options dialog
  // changes what is drawn here.
  QPainter painter(this);
  painter.fillRect(rect(), ORQ_COLOR(ORQ_FPV_BACKGROUND_COLOR).get_color());
  painter.setRenderHint(QPainter::Antialiasing);
  const QTransform t = logical_to_widget();

  painter.setPen(*ORQ_PEN(ORQ_FPV_DIE_PEN).get_pen());
  painter.setBrush(ORQ_COLOR(ORQ_FPV_DIE_COLOR).get_color());
  painter.drawRect(t.mapRect(QRectF(m_plan.die)));
  painter.setPen(*ORQ_PEN(ORQ_FPV_CORE_PEN).get_pen());
  painter.setBrush(ORQ_COLOR(ORQ_FPV_CORE_COLOR).get_color());
  painter.drawRect(t.mapRect(QRectF(m_plan.core)));

  painter.setPen(Qt::NoPen);
  painter.setBrush(ORQ_COLOR(ORQ_FPV_PAD_COLOR).get_color());
  if (m_show_pads) {
    for (const QRect& pad : m_plan.io_pads)
      painter.drawRect(t.mapRect(QRectF(pad)));
  }

  const ORQ_FONT name_font(ORQ_FPV_BLOCK_NAME_FONT);
  const ORQ_FONT cell_font(ORQ_FPV_CELL_TYPE_FONT);
  QPen block_pen = *ORQ_PEN(ORQ_FPV_BLOCK_PEN).get_pen();
  for (const FLOORPLAN_BLOCK& block : m_plan.blocks) {
    const QRectF r = t.mapRect(QRectF(block.rect));
    block_pen.setColor(block.fill.lighter(140));
    painter.setPen(block_pen);
    QColor fill = block.fill;
    fill.setAlpha(170);
    painter.setBrush(fill);
    painter.drawRect(r);
    if (!m_show_block_names)
      continue;
    const QRectF text_rect = r.adjusted(4, 2, -4, -2);
    painter.setPen(name_font.get_text_color().get_color());
    painter.setFont(name_font.get_font());
    painter.drawText(text_rect, Qt::AlignLeft | Qt::AlignTop, block.name);
    painter.setPen(cell_font.get_text_color().get_color());
    painter.setFont(cell_font.get_font());
    painter.drawText(text_rect.adjusted(0, QFontMetricsF(name_font.get_font()).height(), 0, 0),
                     Qt::AlignLeft | Qt::AlignTop, block.cell);
  }
}

void FLOORPLAN_WIDGET::set_show_pads(bool show)
{
  m_show_pads = show;
  update();
}

void FLOORPLAN_WIDGET::set_show_block_names(bool show)
{
  m_show_block_names = show;
  update();
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
  emit block_hovered(QStringLiteral("x %1 um, y %2 um")
                         .arg(logical.x() / 1000.0, 0, 'f', 2)
                         .arg(logical.y() / 1000.0, 0, 'f', 2));
}
