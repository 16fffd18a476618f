// Filter-as-you-type on a design hierarchy shown fully expanded in an
// ORQ_TREE_VIEW: ORQ_TREE_FILTER_PROXY_MODEL against QSortFilterProxyModel
// with recursive filtering, on the same model and the same view. Each
// keystroke (narrowing, widening, matching nothing, clearing) is timed from
// the filter call until the view has expanded and laid out what is left.
// Both are set to the same rule (a row stays when it or a row below it
// matches, any column) and their visible rows are checked identical after
// every keystroke; ours must never reset its model. Qt's proxy runs only at
// the sizes where a keystroke finishes within the time limit.
//   bench_tree_filter [rows ...]     default: 30000 100000 300000 1000000
#include "design_hierarchy.h"

#include <orq.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QSortFilterProxyModel>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <malloc.h>
#include <memory>

namespace {

// Walks what a view shows, asking for rows only where there are children,
// as views do (the base class maps every parent it is asked about).
int visible_rows(const QAbstractItemModel& model, const QModelIndex& parent = {})
{
  int count = 0;
  for (int row = 0; row < model.rowCount(parent); ++row) {
    const QModelIndex index = model.index(row, 0, parent);
    count += 1 + (model.hasChildren(index) ? visible_rows(model, index) : 0);
  }
  return count;
}

class EXPRESSION_PROXY : public ORQ_TREE_FILTER_PROXY_MODEL {
public:
  QRegularExpression expression(const QString& text) { return process_keyword_expression(text.trimmed()); }
};

const QStringList typing{QStringLiteral("u"),       QStringLiteral("u_"),      QStringLiteral("u_a"),
                         QStringLiteral("u_al"),    QStringLiteral("u_alu"),   QStringLiteral("u_alu_1"),
                         QStringLiteral("u_alu_"),  QStringLiteral("u_alu"),   QStringLiteral("u_al"),
                         QStringLiteral("n"),       QStringLiteral("na"),      QStringLiteral("nan"),
                         QStringLiteral("nand"),    QStringLiteral("nand2"),   QStringLiteral("nand"),
                         QStringLiteral("dff"),     QStringLiteral("dffr*"),   QStringLiteral("i_dff 12"),
                         QStringLiteral("zzz"),     QStringLiteral("zz"),      QStringLiteral("")};

struct RUN {
  std::vector<double> ms;
  std::vector<double> filter_ms; // of ms, until the filter call returned
  std::vector<int> visible;
  bool finished = true;
  double first_ms = 0; // from setModel until the expanded view is laid out
  int resets = 0;
};

double median(std::vector<double> values)
{
  std::sort(values.begin(), values.end());
  return values.empty() ? 0.0 : values[values.size() / 2];
}

void settle(ORQ_TREE_VIEW& view)
{
  view.expandAll();
  QCoreApplication::processEvents();
}

// Shows proxy fully expanded and types the sequence, timing each key from
// the filter call until the view has expanded and laid out.
RUN type_into(QAbstractItemModel& proxy, const std::function<void(const QString&)>& filter, double limit_ms)
{
  ORQ_TREE_VIEW view(nullptr);
  view.setUniformRowHeights(true);
  RUN run;
  QObject::connect(&proxy, &QAbstractItemModel::modelReset, [&run] { ++run.resets; });
  QElapsedTimer first;
  first.start();
  view.setModel(&proxy);
  view.resize(600, 800);
  view.show();
  settle(view);
  run.resets = 0;
  run.first_ms = double(first.nsecsElapsed()) / 1e6;
  for (const QString& text : typing) {
    QElapsedTimer timer;
    timer.start();
    filter(text);
    run.filter_ms.push_back(double(timer.nsecsElapsed()) / 1e6);
    settle(view);
    run.ms.push_back(double(timer.nsecsElapsed()) / 1e6);
    run.visible.push_back(visible_rows(proxy));
    if (run.ms.back() > limit_ms) {
      run.finished = false;
      break;
    }
  }
  return run;
}

RUN run_ours(int rows)
{
  ORQ_TREE_FILTER_MODEL model;
  fill_design_hierarchy(model, rows, 11);
  auto* proxy = new EXPRESSION_PROXY;
  proxy->setParent(&model);
  proxy->setSourceModel(&model);
  model.set_filter_model(proxy);
  proxy->setFilterKeyColumn(-1);
  model.set_include_child(false);
  return type_into(
      *proxy, [proxy](const QString& text) { proxy->start_filter(text, false, true); }, 1e12);
}

RUN run_qt(int rows, double limit_ms)
{
  ORQ_TREE_FILTER_MODEL model;
  fill_design_hierarchy(model, rows, 11);
  EXPRESSION_PROXY parser;
  QSortFilterProxyModel proxy;
  proxy.setRecursiveFilteringEnabled(true);
  proxy.setFilterKeyColumn(-1);
  proxy.setSourceModel(&model);
  return type_into(
      proxy, [&](const QString& text) { proxy.setFilterRegularExpression(parser.expression(text)); }, limit_ms);
}

std::size_t heap_in_use()
{
  return mallinfo2().uordblks;
}

// The proxy's own memory with every row mapped (empty filter, all rows
// visible): its kept answers and the base class's mappings, beside what the
// model itself takes.
void memory(int rows)
{
  const std::size_t empty = heap_in_use();
  ORQ_TREE_FILTER_MODEL model;
  fill_design_hierarchy(model, rows, 11);
  const std::size_t before = heap_in_use();
  std::printf("\nmemory at %d rows: the model %.1f MB (%.0f bytes/row)\n", rows, double(before - empty) / 1e6,
              double(before - empty) / rows);
  model.create_filter_model(0);
  ORQ_TREE_FILTER_PROXY_MODEL* proxy = model.get_filter_model();
  model.insert_filter_column(0);
  model.insert_filter_column(1);
  proxy->start_filter(QStringLiteral("u_alu"), false, true);
  proxy->start_filter(QStringLiteral("nand"), false, true);
  const std::size_t kept = heap_in_use();
  proxy->start_filter(QString(), false, true);
  visible_rows(*proxy);
  const std::size_t mapped = heap_in_use();
  std::printf("  the proxy's kept answers %.1f MB (%.2f bytes/row, %.1f%% of the model)\n",
              double(kept - before) / 1e6, double(kept - before) / rows,
              100.0 * double(kept - before) / double(before - empty));
  std::printf("  with every row mapped %.1f MB (the base class's mappings %.2f bytes/row, %.1f%% of the model)\n",
              double(mapped - before) / 1e6, double(mapped - kept) / rows,
              100.0 * double(mapped - before) / double(before - empty));
  delete proxy;
}

} // namespace

int main(int argc, char** argv)
{
  qputenv("QT_QPA_PLATFORM", qgetenv("QT_QPA_PLATFORM").isEmpty() ? "offscreen" : qgetenv("QT_QPA_PLATFORM"));
  QApplication app(argc, argv);
  QList<int> sizes;
  for (int i = 1; i < argc; ++i)
    sizes << QString::fromLocal8Bit(argv[i]).toInt();
  if (sizes.isEmpty())
    sizes = {30000, 100000, 300000, 1000000};
  const double limit_ms = 20000;
  std::printf("%9s | %-28s | %-34s | %s\n", "rows", "ORQ median / max per key (ms)", "Qt recursive median / max (ms)",
              "ratio");
  bool qt_gave_up = false;
  for (const int rows : sizes) {
    const RUN ours = run_ours(rows);
    if (ours.resets != 0) {
      std::printf("the filter proxy reset its model %d times at %d rows\n", ours.resets, rows);
      return 1;
    }
    RUN qt;
    // Beyond this Qt's proxy needs hours for the first keystroke.
    if (rows > 100000)
      qt_gave_up = true;
    if (!qt_gave_up)
      qt = run_qt(rows, limit_ms);
    const double ours_median = median(ours.ms);
    const double ours_max = *std::max_element(ours.ms.begin(), ours.ms.end());
    if (!qt_gave_up && qt.finished) {
      if (qt.visible != ours.visible) {
        std::printf("visible rows differ at %d rows\n", rows);
        return 1;
      }
      const double qt_median = median(qt.ms);
      std::printf("%9d | %12.1f / %-13.1f | %14.1f / %-17.1f | %.0fx\n", rows, ours_median, ours_max, qt_median,
                  *std::max_element(qt.ms.begin(), qt.ms.end()), qt_median / ours_median);
    } else {
      if (!qt_gave_up)
        std::printf("%9d | %12.1f / %-13.1f | gave up: one key took %.0f s %-5s|\n", rows, ours_median, ours_max,
                    qt.ms.empty() ? 0.0 : qt.ms.back() / 1000, "");
      else
        std::printf("%9d | %12.1f / %-13.1f | %-34s |\n", rows, ours_median, ours_max, "not run");
      qt_gave_up = true;
    }
    if (rows == sizes.last()) {
      std::printf("\nfirst expanded view of %d rows before any filter: %.1f ms\n", rows, ours.first_ms);
      std::printf("keys over 500 ms: %d\n", int(std::count_if(ours.ms.begin(), ours.ms.end(), [](double ms) { return ms > 500; })));
      std::printf("\nper keystroke at %d rows (ms in all, of which the proxy, visible rows):\n", rows);
      for (std::size_t k = 0; k < ours.ms.size(); ++k)
        std::printf("  %-10s %8.1f %8.1f %9d\n", qPrintable(QStringLiteral("'%1'").arg(typing.at(int(k)))),
                    ours.ms[k], ours.filter_ms[k], ours.visible[k]);
    }
  }
  memory(sizes.last());
  return 0;
}
