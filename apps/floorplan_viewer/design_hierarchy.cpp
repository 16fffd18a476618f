#include "design_hierarchy.h"

#include <QRandomGenerator>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <vector>

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

namespace {

// clang-format off
const struct {
  const char* cell;
  int area; // hundredths of a square micrometre, so sums stay exact
} cell_areas[] = {
  {"NAND2X1",   106}, {"NOR2X1",  106}, {"INVX2",    80}, {"DFFRX2",   530},
  {"AOI21X1",   133}, {"OAI22X1", 160}, {"MUX2X1",  240}, {"XOR2X1",   210},
  {"BUFX4",     130}, {"SDFFX1",  610}, {"AND3X1",  160}, {"CLKBUFX8", 270},
  {"LATCHX1",   350}, {"FILL4",    53},
};
// clang-format on

QString area_text(qint64 hundredths)
{
  return QStringLiteral("%1.%2").arg(hundredths / 100).arg(hundredths % 100, 2, 10, QLatin1Char('0'));
}

// Depth-first without recursion: a million rows would be a million frames.
qint64 add_areas_below(QStandardItem* top)
{
  struct FRAME {
    QStandardItem* item;
    int next_child;
    qint64 sum;
  };
  std::vector<FRAME> stack{{top, 0, 0}};
  qint64 total = 0;
  while (!stack.empty()) {
    FRAME& frame = stack.back();
    if (frame.next_child < frame.item->rowCount()) {
      QStandardItem* child = frame.item->child(frame.next_child++, 0);
      stack.push_back({child, 0, 0});
      continue;
    }
    QStandardItem* item = frame.item;
    QStandardItem* parent = item->parent() ? item->parent() : item->model()->invisibleRootItem();
    const int row = item->row();
    const qint64 area = item->rowCount() > 0 ? frame.sum : design_cell_area(parent->child(row, 1)->text());
    stack.pop_back();
    parent->setChild(row, 2, new QStandardItem(area_text(area)));
    if (stack.empty())
      total = area;
    else
      stack.back().sum += area;
  }
  return total;
}

} // namespace

int design_cell_area(const QString& cell)
{
  for (const auto& row : cell_areas)
    if (cell == QLatin1String(row.cell))
      return row.area;
  return 0;
}

void add_design_areas(ORQ_TREE_MODEL& model)
{
  QStandardItem* root = model.invisibleRootItem();
  for (int row = 0; row < root->rowCount(); ++row)
    add_areas_below(root->child(row, 0));
  model.setHorizontalHeaderItem(2, new QStandardItem(QStringLiteral("Area")));
}
