// ORQ_TREE_VIEW on report-sized trees against plain Qt doing the same job on
// the same data, results checked identical:
//  - the expansion kept across a rebuilt report: save_expandable_state
//    before the model is rebuilt (a reset), restore_expandable_state after,
//    against a set of the expanded rows' paths and QTreeView::setExpanded
//    per row while the layout is pending; the expanded rows are compared
//    row by row with what the user had open;
//  - dump_tree_view_data of every row against a recursive QTextStream dump
//    of the same text, in memory and to a file; the bytes are compared.
// Each figure is the median over the runs, wall clock with the main
// thread's processor time in brackets (the latter is what other processes
// on the machine disturb least). The exit code is non-zero when a result
// differs, never for a time.
//   bench_tree_view [runs] [expansion|dump]      default: 3 runs, both
#include <orq.h>

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QSet>
#include <QTextStream>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <fstream>
#include <functional>
#include <sstream>
#include <utility>
#include <vector>

namespace {

struct TIME {
  double wall_ms = 0;
  double cpu_ms = 0;
};

double thread_cpu_ms()
{
  timespec now{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
  return double(now.tv_sec) * 1e3 + double(now.tv_nsec) / 1e6;
}

class STOPWATCH {
public:
  STOPWATCH() { restart(); }
  void restart()
  {
    m_wall.start();
    m_cpu = thread_cpu_ms();
  }
  TIME lap() const { return {double(m_wall.nsecsElapsed()) / 1e6, thread_cpu_ms() - m_cpu}; }

private:
  QElapsedTimer m_wall;
  double m_cpu = 0;
};

TIME median(const std::vector<TIME>& times)
{
  std::vector<double> wall, cpu;
  for (const TIME& time : times) {
    wall.push_back(time.wall_ms);
    cpu.push_back(time.cpu_ms);
  }
  std::sort(wall.begin(), wall.end());
  std::sort(cpu.begin(), cpu.end());
  return times.empty() ? TIME{} : TIME{wall[wall.size() / 2], cpu[cpu.size() / 2]};
}

TIME sum(const TIME& a, const TIME& b)
{
  return {a.wall_ms + b.wall_ms, a.cpu_ms + b.cpu_ms};
}

QByteArray cell(const TIME& time)
{
  return QByteArray::number(time.wall_ms, 'f', 1) + " ms (" + QByteArray::number(time.cpu_ms, 'f', 1) + ")";
}

QByteArray load_average()
{
  QFile file(QStringLiteral("/proc/loadavg"));
  return file.open(QIODevice::ReadOnly) ? file.readAll().split(' ').mid(0, 3).join(' ')
                                        : QByteArray("unknown");
}

// A design's hierarchy: chips, cores under them, units under the cores and
// nets under the units; the second column is the cell, the third (dump
// only) an area. Each chip's subtree is built before it joins the model, as
// a report's builder does.
struct SHAPE {
  int chips;
  int cores;
  int units;
  int nets;
  int columns;
  qint64 rows() const { return qint64(chips) * (1 + cores * (1 + qint64(units) * (1 + nets))); }
  // Every chip and core, and ten units in eleven, as open_as_the_user_left_it.
  qint64 expanded() const { return qint64(chips) * (1 + cores * (1 + qint64(units - (units + 10) / 11))); }
};

void fill(ORQ_TREE_MODEL& model, const SHAPE& shape)
{
  const QString top = QStringLiteral("TOP"), core = QStringLiteral("CORE"), alu = QStringLiteral("ALU"),
                nand = QStringLiteral("NAND2");
  auto row = [&](const QString& name, const QString& cell, int area) {
    QList<QStandardItem*> cells{new QStandardItem(name), new QStandardItem(cell)};
    if (shape.columns > 2)
      cells << new QStandardItem(QString::number(area * 0.25, 'f', 2));
    return cells;
  };
  model.clear();
  const QStringList headers{QStringLiteral("Name"), QStringLiteral("Cell"), QStringLiteral("Area")};
  model.setHorizontalHeaderLabels(headers.mid(0, shape.columns));
  for (int c = 0; c < shape.chips; ++c) {
    QList<QStandardItem*> chip = row(QStringLiteral("chip_%1").arg(c), top, 40000 + c);
    for (int k = 0; k < shape.cores; ++k) {
      QList<QStandardItem*> core_row = row(QStringLiteral("u_core_%1").arg(k), core, 400 + k);
      for (int u = 0; u < shape.units; ++u) {
        QList<QStandardItem*> unit = row(QStringLiteral("u_alu_%1").arg(u), alu, 40 + u);
        for (int n = 0; n < shape.nets; ++n)
          unit.first()->appendRow(row(QStringLiteral("n_%1").arg(n), nand, n));
        core_row.first()->appendRow(unit);
      }
      chip.first()->appendRow(core_row);
    }
    model.appendRow(chip);
  }
}

// The rows in pre-order, each with whether it has children.
void walk(const QAbstractItemModel& model, const QModelIndex& parent,
          const std::function<void(const QModelIndex&, bool)>& visit)
{
  const int rows = model.rowCount(parent);
  for (int r = 0; r < rows; ++r) {
    const QModelIndex index = model.index(r, 0, parent);
    const bool children = model.hasChildren(index);
    visit(index, children);
    if (children)
      walk(model, index, visit);
  }
}

void open_as_the_user_left_it(QTreeView& view)
{
  walk(*view.model(), {}, [&](const QModelIndex& index, bool children) {
    const bool unit = index.parent().parent().isValid();
    if (children && (!unit || index.row() % 11 != 0))
      view.expand(index);
  });
}

// Per row in pre-order: 1 when the view has it expanded, plus 2 for a row
// with children.
std::vector<char> expansion(const QTreeView& view)
{
  std::vector<char> flags;
  walk(*view.model(), {}, [&](const QModelIndex& index, bool children) {
    flags.push_back(char((view.isExpanded(index) ? 1 : 0) + (children ? 2 : 0)));
  });
  return flags;
}

// The memory keeps a leaf as expanded, so that it opens once it gains
// children, and the restore expands it: after it, every leaf is expanded on
// top of what the user had open.
std::vector<char> with_leaves_expanded(std::vector<char> flags)
{
  for (char& flag : flags)
    if (!(flag & 2))
      flag = 1;
  return flags;
}

// Plain Qt: the "||"-joined display texts of the expanded rows in a set;
// after the reset each row with children whose path is in the set is
// expanded. Leaves need no path: an expanded leaf shows nothing, and the
// variant that matches our result expands every one.
class QT_MEMORY {
public:
  QT_MEMORY(QTreeView& view, bool leaves)
      : m_view(view)
      , m_leaves(leaves)
  {
  }

  void save()
  {
    m_paths.clear();
    save(QModelIndex(), QString());
  }

  void restore() { restore(QModelIndex(), QString()); }

private:
  void save(const QModelIndex& parent, const QString& parent_path)
  {
    const QAbstractItemModel& model = *m_view.model();
    const int rows = model.rowCount(parent);
    for (int r = 0; r < rows; ++r) {
      const QModelIndex index = model.index(r, 0, parent);
      if (!model.hasChildren(index))
        continue;
      const QString text = index.data().toString();
      const QString path = parent.isValid() ? parent_path + QLatin1String("||") + text : text;
      if (m_view.isExpanded(index))
        m_paths.insert(path);
      save(index, path);
    }
  }

  void restore(const QModelIndex& parent, const QString& parent_path)
  {
    const QAbstractItemModel& model = *m_view.model();
    const int rows = model.rowCount(parent);
    for (int r = 0; r < rows; ++r) {
      const QModelIndex index = model.index(r, 0, parent);
      if (!model.hasChildren(index)) {
        if (m_leaves)
          m_view.setExpanded(index, true);
        continue;
      }
      const QString text = index.data().toString();
      const QString path = parent.isValid() ? parent_path + QLatin1String("||") + text : text;
      if (m_paths.contains(path))
        m_view.setExpanded(index, true);
      restore(index, path);
    }
  }

  QTreeView& m_view;
  bool m_leaves;
  QSet<QString> m_paths;
};

enum class METHOD { ours, qt_parents, qt_same, qt_calls_only };

const char* method_name(METHOD method)
{
  switch (method) {
  case METHOD::ours:
    return "ORQ_TREE_VIEW save / restore_expandable_state";
  case METHOD::qt_parents:
    return "Qt: path set, setExpanded on the parents";
  case METHOD::qt_same:
    return "Qt: path set, setExpanded on parents and leaves";
  case METHOD::qt_calls_only:
    return "Qt: the same setExpanded calls alone";
  }
  return "";
}

struct TIMES {
  std::vector<TIME> save, restore, layout;
};

// Each run opens the rows as the user had them, lets the view lay them out,
// saves, rebuilds the report (a model reset) and restores; the expanded rows
// are then checked.
bool run_expansion(const SHAPE& shape, METHOD method, int runs, TIMES* times)
{
  ORQ_TREE_MODEL model;
  fill(model, shape);
  ORQ_TREE_VIEW view;
  view.setModel(&model);
  view.resize(600, 800);
  view.show();
  for (int run = 0; run < runs; ++run) {
    // Not collapseAll: after a reset, expanding only marks rows until the
    // next layout, as after the report was first built.
    view.reset();
    open_as_the_user_left_it(view);
    QCoreApplication::processEvents();
    const std::vector<char> before = expansion(view);
    QT_MEMORY qt(view, method == METHOD::qt_same);

    STOPWATCH watch;
    if (method == METHOD::ours)
      view.save_expandable_state(QModelIndex(), true);
    else if (method != METHOD::qt_calls_only)
      qt.save();
    times->save.push_back(watch.lap());

    fill(model, shape);
    // Which row gets which state is worked out before the clock starts.
    std::vector<std::pair<QModelIndex, bool>> calls;
    if (method == METHOD::qt_calls_only) {
      std::size_t at = 0;
      walk(model, {}, [&](const QModelIndex& index, bool children) {
        calls.emplace_back(index, children ? (before[at] & 1) != 0 : true);
        ++at;
      });
    }

    watch.restart();
    bool answer = true;
    if (method == METHOD::ours)
      answer = view.restore_expandable_state();
    else if (method == METHOD::qt_calls_only)
      for (const auto& call : calls)
        view.setExpanded(call.first, call.second);
    else
      qt.restore();
    times->restore.push_back(watch.lap());

    watch.restart();
    QCoreApplication::processEvents();
    times->layout.push_back(watch.lap());

    const std::vector<char> expected = method == METHOD::qt_parents ? before : with_leaves_expanded(before);
    if (!answer || expansion(view) != expected) {
      std::fprintf(stderr, "bench_tree_view: %s left other rows expanded than expected (run %d)\n",
                   method_name(method), run);
      return false;
    }
  }
  return true;
}

bool expansion_table(int runs)
{
  std::printf("Expansion across a rebuilt report: save, rebuild (a model reset), restore while the layout is "
              "pending; medians of %d runs, wall (processor); load average %s\n\n",
              runs, load_average().constData());
  std::printf(
      "| rows | expanded parents | method | save | restore | save + restore | first layout after |\n");
  std::printf("|---|---|---|---|---|---|---|\n");
  const std::vector<SHAPE> shapes{{10, 100, 110, 9, 2}, {20, 100, 110, 9, 2}};
  std::vector<TIME> ours_save, ours_restore, qt_restore, calls_restore;
  for (const SHAPE& shape : shapes) {
    for (METHOD method : {METHOD::ours, METHOD::qt_parents, METHOD::qt_same, METHOD::qt_calls_only}) {
      TIMES times;
      if (!run_expansion(shape, method, runs, &times))
        return false;
      const TIME save = median(times.save), restore = median(times.restore);
      if (method == METHOD::ours) {
        ours_save.push_back(save);
        ours_restore.push_back(restore);
      } else if (method == METHOD::qt_parents) {
        qt_restore.push_back(restore);
      } else if (method == METHOD::qt_calls_only) {
        calls_restore.push_back(restore);
      }
      std::printf("| %lld | %lld | %s | %s | %s | %s | %s |\n", shape.rows(), shape.expanded(),
                  method_name(method), method == METHOD::qt_calls_only ? "-" : cell(save).constData(),
                  cell(restore).constData(), cell(sum(save, restore)).constData(),
                  cell(median(times.layout)).constData());
      std::fflush(stdout);
    }
  }
  const double rows = double(shapes[0].rows());
  const double own = ours_restore[0].cpu_ms - calls_restore[0].cpu_ms;
  std::printf("\nours at %lld rows: save %.0f ns per row, restore %.0f ns per row, of which the view's "
              "setExpanded calls alone take %.0f and the walk over the memory %.0f (processor time)\n",
              shapes[0].rows(), ours_save[0].cpu_ms * 1e6 / rows, ours_restore[0].cpu_ms * 1e6 / rows,
              calls_restore[0].cpu_ms * 1e6 / rows, own * 1e6 / rows);
  const double growth = ours_restore[1].cpu_ms / ours_restore[0].cpu_ms;
  std::printf("restore under 150 ms at %lld rows: %s (%.1f ms wall, %.1f processor; the setExpanded calls "
              "alone %.1f)\n",
              shapes[0].rows(), ours_restore[0].wall_ms < 150 ? "met" : "MISSED", ours_restore[0].wall_ms,
              ours_restore[0].cpu_ms, calls_restore[0].cpu_ms);
  std::printf("restore at twice the rows at most 2.2x: %s (%.2fx processor, %.2fx wall)\n",
              growth <= 2.2 ? "met" : "MISSED", growth, ours_restore[1].wall_ms / ours_restore[0].wall_ms);
  std::printf("against Qt setting the parents alone: %.2fx the time at %lld rows\n\n",
              ours_restore[0].cpu_ms / qt_restore[0].cpu_ms, shapes[0].rows());
  return true;
}

// Plain Qt: the same lines written recursively through a QTextStream,
// which encodes to the locale's 8-bit encoding as the dump does.
void qt_dump(QTextStream& out, const QTreeView& view, const QModelIndex& parent, int level)
{
  const QAbstractItemModel& model = *view.model();
  const int columns = model.columnCount();
  const int rows = model.rowCount(parent);
  for (int r = 0; r < rows; ++r) {
    out << '|' << QString(level + 1, QLatin1Char('-'));
    for (int c = 0; c < columns; ++c)
      if (!view.isColumnHidden(c))
        out << model.index(r, c, parent).data().toString() << '\t';
    out << '\n';
    qt_dump(out, view, model.index(r, 0, parent), level + 1);
  }
}

// The model reads a dump cannot do without: every visible cell's display
// text, nothing written.
qint64 read_cells(const QTreeView& view, const QModelIndex& parent)
{
  const QAbstractItemModel& model = *view.model();
  const int columns = model.columnCount();
  const int rows = model.rowCount(parent);
  qint64 characters = 0;
  for (int r = 0; r < rows; ++r) {
    for (int c = 0; c < columns; ++c)
      if (!view.isColumnHidden(c))
        characters += model.data(model.index(r, c, parent)).toString().size();
    characters += read_cells(view, model.index(r, 0, parent));
  }
  return characters;
}

QByteArray read_all(const QString& path)
{
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool dump_table(int runs)
{
  const SHAPE shape{10, 100, 100, 9, 3};
  ORQ_TREE_MODEL model;
  fill(model, shape);
  ORQ_TREE_VIEW view;
  view.setModel(&model);
  const QString file_ours = QDir::tempPath() + QStringLiteral("/bench_tree_view_ours.txt");
  const QString file_qt = QDir::tempPath() + QStringLiteral("/bench_tree_view_qt.txt");
  std::vector<TIME> ours_memory, ours_file, qt_memory, qt_file, reads;
  qint64 bytes_per_dump = 0;
  for (int run = 0; run < runs; ++run) {
    STOPWATCH watch;
    std::ostringstream stream;
    const bool written = view.dump_tree_view_data(QModelIndex(), stream, 0);
    ours_memory.push_back(watch.lap());

    QByteArray bytes;
    watch.restart();
    {
      QTextStream out(&bytes, QIODevice::WriteOnly);
      qt_dump(out, view, QModelIndex(), 0);
    }
    qt_memory.push_back(watch.lap());

    watch.restart();
    bool written_to_file = false;
    {
      std::ofstream file(QFile::encodeName(file_ours).constData(), std::ios::binary | std::ios::trunc);
      written_to_file = view.dump_tree_view_data(QModelIndex(), file, 0);
    }
    ours_file.push_back(watch.lap());

    watch.restart();
    {
      QFile file(file_qt);
      if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        std::fprintf(stderr, "bench_tree_view: cannot write %s\n", qPrintable(file_qt));
        return false;
      }
      QTextStream out(&file);
      qt_dump(out, view, QModelIndex(), 0);
    }
    qt_file.push_back(watch.lap());

    watch.restart();
    const qint64 characters = read_cells(view, QModelIndex());
    reads.push_back(watch.lap());

    const QByteArray ours = QByteArray::fromStdString(stream.str());
    if (!written || !written_to_file || characters <= 0 || ours != bytes || read_all(file_ours) != ours ||
        read_all(file_qt) != bytes) {
      std::fprintf(stderr, "bench_tree_view: the dump's bytes differ from the plain Qt dump's (run %d)\n",
                   run);
      return false;
    }
    bytes_per_dump = bytes.size();
  }
  QFile::remove(file_ours);
  QFile::remove(file_qt);
  const double rows = double(shape.rows());
  std::printf(
      "Text dump of %lld rows, %d columns, %.1f MB (%.1f bytes per row), identical bytes; medians of %d "
      "runs, wall (processor); load average %s\n\n",
      shape.rows(), shape.columns, double(bytes_per_dump) / 1e6, double(bytes_per_dump) / rows, runs,
      load_average().constData());
  std::printf("| dump | to memory | ns per row | to a file | ns per row |\n|---|---|---|---|---|\n");
  const TIME om = median(ours_memory), of = median(ours_file), qm = median(qt_memory), qf = median(qt_file);
  std::printf("| dump_tree_view_data (std::ostringstream; std::ofstream) | %s | %.0f | %s | %.0f |\n",
              cell(om).constData(), om.cpu_ms * 1e6 / rows, cell(of).constData(), of.cpu_ms * 1e6 / rows);
  std::printf("| recursive QTextStream (on a QByteArray; on a QFile) | %s | %.0f | %s | %.0f |\n",
              cell(qm).constData(), qm.cpu_ms * 1e6 / rows, cell(qf).constData(), qf.cpu_ms * 1e6 / rows);
  const TIME rd = median(reads);
  std::printf("| the model reads alone (every visible cell's text, nothing written) | %s | %.0f | - | - |\n",
              cell(rd).constData(), rd.cpu_ms * 1e6 / rows);
  std::printf("\nunder 250 ms: %s in memory (%.1f ms wall, %.1f processor), %s to a file (%.1f ms wall, %.1f "
              "processor); %.2fx and %.2fx the time of the QTextStream dump\n",
              om.wall_ms < 250 ? "met" : "MISSED", om.wall_ms, om.cpu_ms, of.wall_ms < 250 ? "met" : "MISSED",
              of.wall_ms, of.cpu_ms, om.cpu_ms / qm.cpu_ms, of.cpu_ms / qf.cpu_ms);
  return true;
}

} // namespace

int main(int argc, char** argv)
{
  qputenv("QT_QPA_PLATFORM", qgetenv("QT_QPA_PLATFORM").isEmpty() ? "offscreen" : qgetenv("QT_QPA_PLATFORM"));
  QApplication app(argc, argv);
  const int runs = argc > 1 ? std::max(1, std::atoi(argv[1])) : 3;
  const QByteArray part = argc > 2 ? QByteArray(argv[2]) : QByteArray();
  if (part.isEmpty() || part == "expansion")
    if (!expansion_table(runs))
      return 1;
  if (part.isEmpty() || part == "dump")
    if (!dump_table(std::max(runs, 5)))
      return 1;
  return 0;
}
