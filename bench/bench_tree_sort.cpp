// Putting a selection of 100,000 rows of a deep hierarchy into tree order:
// ORQ_TREE_MODEL::sort_index_list_by_positions against a stable sort that
// calls orq_tree_order_indexes for every comparison (it walks both indexes
// up to the top each time). The results are checked identical first.
//   bench_tree_sort [rows]
#include <orq.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QRandomGenerator>

#include <algorithm>
#include <cstdio>

namespace {

// A hierarchy like a design's: every row has 0 to 6 children, down to depth 8.
void fill(ORQ_TREE_MODEL& model, int rows)
{
  QRandomGenerator random(7);
  QList<QStandardItem*> open{model.invisibleRootItem()};
  QList<int> depth{-1};
  for (int i = 0; i < rows; ++i) {
    const int pick = int(random.bounded(open.size()));
    auto* item = new QStandardItem(QStringLiteral("u_inst_%1").arg(i));
    open[pick]->appendRow({item, new QStandardItem(QStringLiteral("CELL"))});
    if (depth[pick] + 1 < 8) {
      open << item;
      depth << depth[pick] + 1;
    }
  }
}

} // namespace

int main(int argc, char** argv)
{
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  const int rows = argc > 1 ? std::max(1000, std::atoi(argv[1])) : 100000;
  ORQ_TREE_MODEL model;
  fill(model, rows);
  QList<QModelIndex> selection;
  for (QModelIndex i = model.index(0, 0); i.isValid(); i = model.get_next(i))
    selection << i;
  std::shuffle(selection.begin(), selection.end(), *QRandomGenerator::global());

  QList<QModelIndex> fast = selection;
  QElapsedTimer timer;
  timer.start();
  model.sort_index_list_by_positions(fast);
  const double fast_ms = double(timer.nsecsElapsed()) / 1e6;

  QList<QModelIndex> plain = selection;
  timer.restart();
  std::stable_sort(plain.begin(), plain.end(), orq_tree_order_indexes);
  const double plain_ms = double(timer.nsecsElapsed()) / 1e6;

  if (fast != plain) {
    std::fprintf(stderr, "bench_tree_sort: the two orders differ\n");
    return 1;
  }
  std::printf("Tree order of %d shuffled indexes (depth up to 8), identical results\n\n",
              int(selection.size()));
  std::printf("| Sort | Time |\n|---|---|\n");
  std::printf("| sort_index_list_by_positions | %.1f ms |\n", fast_ms);
  std::printf("| stable sort calling orq_tree_order_indexes | %.1f ms |\n", plain_ms);
  std::printf("\n%.0f ns per index; target under 50 ms for 100,000: %s\n", fast_ms * 1e6 / selection.size(),
              fast_ms < 50.0 ? "met" : "MISSED");
  return 0;
}
