#include "floorplan_model.h"

#include <QRandomGenerator>
#include <QStringList>

#include <algorithm>

FLOORPLAN make_floorplan(unsigned seed, int block_count)
{
  QRandomGenerator random(seed);
  FLOORPLAN plan;
  plan.die = QRect(0, 0, 12000, 9000);
  plan.core = plan.die.adjusted(900, 900, -900, -900);

  // Pads along the four edges of the die, between the corners.
  const int pad = 420;
  for (int x = 1000; x + pad < plan.die.right() - 900; x += 560) {
    plan.io_pads.append(QRect(x, 120, pad, 600));
    plan.io_pads.append(QRect(x, plan.die.bottom() - 720, pad, 600));
  }
  for (int y = 1000; y + pad < plan.die.bottom() - 900; y += 560) {
    plan.io_pads.append(QRect(120, y, 600, pad));
    plan.io_pads.append(QRect(plan.die.right() - 720, y, 600, pad));
  }

  const QStringList cells = {QStringLiteral("CPU_CLUSTER"), QStringLiteral("DDR_PHY"),
                             QStringLiteral("SRAM_64K"),    QStringLiteral("PCIE_CTRL"),
                             QStringLiteral("PLL"),         QStringLiteral("DSP_SLICE"),
                             QStringLiteral("SERDES_X4"),   QStringLiteral("NOC_ROUTER")};
  const QVector<QColor> fills = {QColor(0x4e79a7), QColor(0xf28e2b), QColor(0x76b7b2), QColor(0x59a14f),
                                 QColor(0xedc948), QColor(0xb07aa1), QColor(0xff9da7), QColor(0x9c755f)};

  // Blocks on a coarse grid of the core so they never overlap.
  const int columns = 6;
  const int rows = std::max(1, (block_count + columns - 1) / columns);
  const int cell_w = plan.core.width() / columns;
  const int cell_h = plan.core.height() / rows;
  for (int i = 0; i < block_count && i < columns * rows; ++i) {
    const int c = i % columns;
    const int r = i / columns;
    const int kind = int(random.bounded(cells.size()));
    const int w = cell_w * (55 + int(random.bounded(40))) / 100;
    const int h = cell_h * (55 + int(random.bounded(40))) / 100;
    const int x = plan.core.left() + c * cell_w + int(random.bounded(cell_w - w + 1));
    const int y = plan.core.top() + r * cell_h + int(random.bounded(cell_h - h + 1));
    plan.blocks.append({QStringLiteral("u_%1_%2").arg(cells.at(kind).toLower()).arg(i), cells.at(kind),
                        QRect(x, y, w, h), fills.at(kind)});
  }
  return plan;
}
