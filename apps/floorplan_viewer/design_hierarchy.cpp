#include "design_hierarchy.h"

#include <QRandomGenerator>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace {

const char* const cells[] = {"NAND2X1", "NOR2X1", "INVX2",   "DFFRX2",   "AOI21X1", "OAI22X1", "MUX2X1",
                             "XOR2X1",  "BUFX4",  "SDFFX1",  "AND3X1",   "CLKBUFX8", "LATCHX1", "FILL4"};
const char* const modules[] = {"alu", "fifo", "regfile", "decoder", "lsu", "mmu",      "cache", "dma",
                               "uart", "spi", "pll_ctl", "crossbar", "fpu", "bpu", "csr", "irq"};

} // namespace

void fill_design_hierarchy(ORQ_TREE_MODEL& model, int rows, unsigned seed)
{
  QRandomGenerator random(seed);
  int made = 0;
  auto row = [&made](const QString& name, const QString& cell) {
    ++made;
    return QList<QStandardItem*>{new QStandardItem(name), new QStandardItem(cell)};
  };
  QList<QStandardItem*> top = row(QStringLiteral("chip_top"), QStringLiteral("CHIP_TOP"));
  // Modules of a few hundred leaf cells, under a square root's worth of
  // partitions: the shape of a flattened netlist.
  const int leaves_per_module = 400;
  const int modules_needed = std::max(1, rows / (leaves_per_module + 1));
  const int partitions = std::max(1, int(std::sqrt(double(modules_needed)) / 2));
  QList<QStandardItem*> lowest;
  for (int p = 0; p < partitions && made < rows; ++p) {
    QList<QStandardItem*> partition = row(QStringLiteral("u_part%1").arg(p), QStringLiteral("PARTITION"));
    top.first()->appendRow(partition);
    const int children = (modules_needed + partitions - 1) / partitions;
    for (int m = 0; m < children && made < rows; ++m) {
      const QString kind = QLatin1String(modules[random.bounded(int(std::size(modules)))]);
      QList<QStandardItem*> module =
          row(QStringLiteral("u_%1_%2").arg(kind).arg(m), kind.toUpper() + QStringLiteral("_BLK"));
      partition.first()->appendRow(module);
      lowest << module.first();
    }
  }
  // The leaves make up the rest, spread evenly, so the total is what was asked.
  const int leaves_left = lowest.isEmpty() ? 0 : std::max(0, rows - made);
  for (int m = 0; m < lowest.size(); ++m) {
    QStandardItem* module = lowest.at(m);
    const int count = leaves_left / int(lowest.size()) + (m < leaves_left % int(lowest.size()) ? 1 : 0);
    QList<QList<QStandardItem*>> leaves;
    for (int i = 0; i < count; ++i) {
      const QString cell = QLatin1String(cells[random.bounded(int(std::size(cells)))]);
      leaves << row(QStringLiteral("i_%1_%2").arg(cell.left(3).toLower()).arg(i), cell);
    }
    for (const auto& leaf : leaves)
      module->appendRow(leaf);
  }
  model.setHorizontalHeaderLabels({QStringLiteral("Instance"), QStringLiteral("Cell")});
  model.appendRow(top);
}
