// ORQ_TREE_VIEW against references written straight from its rules, on
// random reports: the expansion and check-state memories against plain maps
// from path string, filled and read row by row with the view's own
// get_path, with texts that hold "|" and "||", equal texts side by side,
// parents with many rows, repeated saves and rebuilds with rows renamed,
// reordered, added and removed; tools that rename a row or save while a
// restore runs; and the text dump's bytes with texts beyond ASCII and a
// line longer than any write.
#include "orq_test_support.h"

#include <orq.h>

#include <QAbstractItemModelTester>
#include <QRandomGenerator>

#include <functional>
#include <memory>
#include <sstream>

namespace {

struct ROW {
  QString text;
  int check = 0;
  QList<ROW> children;
};

// Mostly plain names, some of them equal; a few hold bars that make one
// path string out of different rows.
const QStringList k_texts{QStringLiteral("a"),    QStringLiteral("b"),   QStringLiteral("c"),
                          QStringLiteral("a"),    QStringLiteral("u_1"), QStringLiteral("u_2"),
                          QStringLiteral("a||b"), QStringLiteral("a|"),  QStringLiteral("|b"),
                          QStringLiteral("||"),   QStringLiteral(""),    QStringLiteral("b c")};

QList<ROW> random_rows(QRandomGenerator& random, int depth, int& budget)
{
  QList<ROW> rows;
  // Now and then a parent with more rows than a scan of siblings covers.
  const int count = random.bounded(10) == 0 ? 10 + random.bounded(20) : random.bounded(5);
  for (int i = 0; i < count && budget > 0; ++i) {
    --budget;
    ROW row{k_texts.at(random.bounded(k_texts.size())), random.bounded(3), {}};
    if (depth < 4 && random.bounded(3) != 0)
      row.children = random_rows(random, depth + 1, budget);
    rows << row;
  }
  return rows;
}

// The report rebuilt: some rows renamed, some sibling lists reordered, rows
// added and removed.
void change(QRandomGenerator& random, QList<ROW>& rows)
{
  if (rows.size() > 1 && random.bounded(4) == 0)
    std::reverse(rows.begin(), rows.end());
  if (!rows.isEmpty() && random.bounded(8) == 0)
    rows.removeAt(random.bounded(rows.size()));
  if (random.bounded(8) == 0)
    rows.insert(random.bounded(rows.size() + 1), ROW{QStringLiteral("new"), 0, {}});
  for (ROW& row : rows) {
    if (random.bounded(10) == 0)
      row.text = k_texts.at(random.bounded(k_texts.size()));
    change(random, row.children);
  }
}

// Each subtree is complete before it joins the model, as a report's
// builder makes it.
void add_rows(QStandardItem* parent, const QList<ROW>& rows)
{
  for (const ROW& row : rows) {
    auto* item = new QStandardItem(row.text);
    item->setCheckable(true);
    item->setCheckState(Qt::CheckState(row.check));
    add_rows(item, row.children);
    parent->appendRow({item, new QStandardItem(row.text + QStringLiteral(".1"))});
  }
}

void build(ORQ_TREE_MODEL& model, const QList<ROW>& rows)
{
  model.clear();
  model.setHorizontalHeaderLabels({QStringLiteral("Name"), QStringLiteral("Value")});
  add_rows(model.invisibleRootItem(), rows);
}

class PATH_VIEW : public ORQ_TREE_VIEW {
public:
  using ORQ_TREE_VIEW::get_path;
};

void each_row(const QAbstractItemModel& model, const QModelIndex& parent,
              const std::function<void(const QModelIndex&)>& visit)
{
  for (int r = 0; r < model.rowCount(parent); ++r) {
    const QModelIndex row = model.index(r, 0, parent);
    visit(row);
    each_row(model, row, visit);
  }
}

// The memories as the rules read, one path string at a time.
struct REFERENCE {
  QMap<QString, bool> expanded;
  QMap<QString, int> checks;

  void clear()
  {
    expanded.clear();
    checks.clear();
  }

  void remember(PATH_VIEW& view, const QModelIndex& row)
  {
    const QString path = view.get_path(row);
    const int children = view.model()->rowCount(row);
    expanded.insert(path, children == 0 ? true : view.isExpanded(row));
    if (view.remembers_check_states()) {
      const int state = row.data(Qt::CheckStateRole).toInt();
      checks.insert(path, state == Qt::Checked ? 2 : state != 0 ? 1 : 0);
    }
    for (int r = 0; r < children; ++r)
      remember(view, view.model()->index(r, 0, row));
  }
};

// Rows in pre-order as 0 and 1 for collapsed and expanded, leaves included.
QString expanded_rows(const QTreeView& view)
{
  QString out;
  each_row(*view.model(), {}, [&](const QModelIndex& row) {
    out += view.isExpanded(row) ? QLatin1Char('1') : QLatin1Char('0');
  });
  return out;
}

// The dump line by line, as its rules read.
QByteArray reference_dump(const QTreeView& view, const QModelIndex& index, int level)
{
  const QAbstractItemModel* model = view.model();
  QByteArray out;
  if (index.isValid()) {
    for (int c = 0; c < model->columnCount(); ++c) {
      const QModelIndex cell = model->index(index.row(), c, index.parent());
      if (!cell.isValid() || view.isColumnHidden(c))
        continue;
      if (c == 0 && level > 0)
        out += '|' + QByteArray(level, '-');
      out += cell.data().toString().toLocal8Bit() + '\t';
    }
    out += '\n';
  }
  for (int r = 0; r < model->rowCount(index); ++r)
    out += reference_dump(view, model->index(r, 0, index), level + 1);
  return out;
}

bool inside(const QModelIndex& row, const QModelIndex& top)
{
  for (QModelIndex at = row; at.isValid(); at = at.parent())
    if (at == top)
      return true;
  return false;
}

} // namespace

class TST_TREE_VIEW_REFERENCE : public QObject {
  Q_OBJECT
private slots:
  void initTestCase() { orq_test_strict_messages(); }

  void memory_and_restore_follow_the_path_strings()
  {
    for (quint32 seed = 1; seed <= quint32(orq_test_rounds(30, 6)); ++seed) {
      QRandomGenerator random(seed);
      int budget = 40 + random.bounded(300);
      QList<ROW> rows = random_rows(random, 0, budget);
      rows << ROW{QStringLiteral("top"), 0, {}};
      ORQ_TREE_MODEL model;
      QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
      build(model, rows);
      PATH_VIEW view;
      view.setModel(&model);
      view.set_remember_check_states(random.bounded(2) == 0);
      QList<QModelIndex> all;
      each_row(model, {}, [&](const QModelIndex& row) { all << row; });
      for (const QModelIndex& row : all)
        if (random.bounded(2) == 0)
          view.expand(row);

      // One or two saves of the whole tree or of a subtree, kept or cleared.
      REFERENCE reference;
      for (int save = 0; save < 1 + int(random.bounded(2)); ++save) {
        const bool clear = random.bounded(2) == 0;
        const QModelIndex top = all.at(random.bounded(all.size()));
        switch (random.bounded(3)) {
        case 0:
          view.save_expandable_state(clear);
          for (int r = 0; r < model.rowCount(); ++r) {
            if (clear)
              reference.clear();
            reference.remember(view, model.index(r, 0));
          }
          break;
        case 1:
          view.save_expandable_state(QModelIndex(), clear);
          if (clear)
            reference.clear();
          for (int r = 0; r < model.rowCount(); ++r)
            reference.remember(view, model.index(r, 0));
          break;
        default:
          view.save_expandable_state(top, clear);
          if (clear)
            reference.clear();
          reference.remember(view, top);
          break;
        }
        QCOMPARE(view.expansion_memory(), reference.expanded);
        QCOMPARE(view.check_state_memory(), reference.checks);
      }

      change(random, rows);
      build(model, rows);
      all.clear();
      each_row(model, {}, [&](const QModelIndex& row) { all << row; });
      for (const QModelIndex& row : all)
        if (random.bounded(3) == 0)
          view.expand(row);
      const QString before = expanded_rows(view);
      const QModelIndex top = random.bounded(2) == 0 ? QModelIndex() : all.at(random.bounded(all.size()));
      QString expected;
      for (int i = 0; i < all.size(); ++i)
        expected += !top.isValid() || inside(all.at(i), top)
                        ? (reference.expanded.value(view.get_path(all.at(i)), false) ? QLatin1Char('1')
                                                                                     : QLatin1Char('0'))
                        : before.at(i);
      const bool answer =
          top.isValid() ? view.restore_expandable_state(top) : view.restore_expandable_state();
      // The whole-tree form answers false for a report left without rows.
      QCOMPARE(answer, !reference.expanded.isEmpty() && (top.isValid() || model.rowCount() > 0));
      QCOMPARE(expanded_rows(view), expected);
      QString remembered, remembered_expected, checks, checks_expected;
      for (const QModelIndex& row : all) {
        remembered += view.was_item_expanded_previously(row) ? QLatin1Char('1') : QLatin1Char('0');
        remembered_expected +=
            reference.expanded.value(view.get_path(row), false) ? QLatin1Char('1') : QLatin1Char('0');
        if (view.remembers_check_states() && (!top.isValid() || inside(row, top))) {
          checks += QString::number(row.data(Qt::CheckStateRole).toInt());
          checks_expected += QString::number(int(Qt::PartiallyChecked));
        }
      }
      QCOMPARE(remembered, remembered_expected);
      QCOMPARE(checks, checks_expected);
    }
  }

  void dump_writes_the_bytes_of_its_rules()
  {
    for (quint32 seed = 1; seed <= quint32(orq_test_rounds(10, 3)); ++seed) {
      QRandomGenerator random(seed);
      int budget = 200 + random.bounded(2000);
      QList<ROW> rows = random_rows(random, 0, budget);
      rows << ROW{QStringLiteral("Zelle \u00e4 \u03a9"), 0, {ROW{QStringLiteral("\u00e9"), 0, {}}}};
      ORQ_TREE_MODEL model;
      build(model, rows);
      QList<QModelIndex> all;
      each_row(model, {}, [&](const QModelIndex& row) { all << row; });
      model.setData(all.at(random.bounded(all.size())).siblingAtColumn(1),
                    QString(70000, QLatin1Char('x')) + QStringLiteral("\u00e9"));
      ORQ_TREE_VIEW view;
      view.setModel(&model);
      view.setColumnHidden(random.bounded(3), true);
      std::ostringstream stream;
      QVERIFY(view.dump_tree_view_data(QModelIndex(), stream, 0));
      QCOMPARE(QByteArray::fromStdString(stream.str()), reference_dump(view, QModelIndex(), 0));
      const QModelIndex top = all.at(random.bounded(all.size()));
      const int level = random.bounded(3);
      std::ostringstream part;
      QVERIFY(view.dump_tree_view_data(top, part, level));
      QCOMPARE(QByteArray::fromStdString(part.str()), reference_dump(view, top, level));
    }
  }

  void a_row_renamed_while_restoring_is_read_as_renamed()
  {
    ORQ_TREE_MODEL model;
    build(model,
          {ROW{QStringLiteral("A"), 0, {ROW{QStringLiteral("B"), 0, {ROW{QStringLiteral("C"), 0, {}}}}}}});
    PATH_VIEW view;
    view.setModel(&model);
    view.expandAll();
    view.save_expandable_state(QModelIndex(), true);
    build(model,
          {ROW{QStringLiteral("A"), 0, {ROW{QStringLiteral("B"), 0, {ROW{QStringLiteral("C"), 0, {}}}}}}});
    // A tool that counts in a row's text how often it was opened.
    connect(&view, &QTreeView::expanded, &model, [&](const QModelIndex& row) {
      model.setData(row, row.data().toString() + QStringLiteral(" (1)"));
    });
    QVERIFY(view.restore_expandable_state());
    // B's path now starts with the new text, which was never remembered.
    QCOMPARE(view.get_path(model.index(0, 0, model.index(0, 0))), QStringLiteral("A (1)||B"));
    QCOMPARE(expanded_rows(view), QStringLiteral("100"));
  }

  void a_save_while_restoring_is_read_by_the_rows_after_it()
  {
    const QList<ROW> rows{ROW{QStringLiteral("A"), 0, {ROW{QStringLiteral("B"), 0, {}}}},
                          ROW{QStringLiteral("C"), 0, {ROW{QStringLiteral("D"), 0, {}}}}};
    ORQ_TREE_MODEL model;
    build(model, rows);
    PATH_VIEW view;
    view.setModel(&model);
    view.expandAll();
    view.save_expandable_state(QModelIndex(), true);
    build(model, rows);
    // A tool that saves the next branch whenever a row opens; C is still
    // closed when A opens, and B is then no longer remembered.
    connect(&view, &QTreeView::expanded, &model, [&](const QModelIndex& row) {
      if (row.data().toString() == QLatin1String("A"))
        view.save_expandable_state(model.index(1, 0), true);
    });
    QVERIFY(view.restore_expandable_state());
    QCOMPARE(view.expansion_memory(), (QMap<QString, bool>{{"C", false}, {"C||D", true}}));
    QCOMPARE(expanded_rows(view), QStringLiteral("1001"));
  }
};

ORQ_TEST_REGISTER(TST_TREE_VIEW_REFERENCE);
#include "tst_tree_view_reference.moc"
