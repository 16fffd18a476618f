#include "icon_sheet.h"

#include <orq.h>

#include <QPainter>

QImage make_icon_sheet()
{
  const int columns = 6;
  const int cell_w = 250;
  const int cell_h = 40;
  const int rows = (ORQ_ICON_COUNT + columns - 1) / columns;
  QImage sheet(columns * cell_w, rows * cell_h + 30, QImage::Format_ARGB32_Premultiplied);
  sheet.fill(QColor(0xfa, 0xfb, 0xfc));
  QPainter painter(&sheet);
  QFont label(QStringLiteral("Corvan Clear"), 7);
  painter.setFont(label);
  painter.drawText(QRect(8, 4, sheet.width(), 20), Qt::AlignVCenter,
                   QStringLiteral("%1 icons of the catalogue at 16 and 32 pixels").arg(ORQ_ICON_COUNT));
  for (int value = 1; value <= ORQ_ICON_COUNT; ++value) {
    const auto icon = static_cast<ORQ_ICON_ENUM>(value);
    const int x = ((value - 1) % columns) * cell_w;
    const int y = 30 + ((value - 1) / columns) * cell_h;
    if (((value - 1) / columns) % 2)
      painter.fillRect(x, y, cell_w, cell_h, QColor(0xee, 0xf1, 0xf4));
    const QIcon picture = orq_get_icon(icon);
    picture.paint(&painter, QRect(x + 4, y + 12, 16, 16));
    picture.paint(&painter, QRect(x + 24, y + 4, 32, 32));
    QString name = orq_get_icon_file_names(icon).value(0).section(QLatin1Char('/'), -1);
    name = name.mid(4, name.lastIndexOf(QLatin1Char('.')) - 4);
    painter.setPen(QColor(0x30, 0x38, 0x40));
    painter.drawText(QRect(x + 62, y, cell_w - 64, cell_h), Qt::AlignVCenter | Qt::TextWrapAnywhere, name);
  }
  return sheet;
}
