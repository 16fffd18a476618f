// ORQ_TREE_MODEL: navigation, levels, counts and tree order on real models,
// each under QAbstractItemModelTester.
#include "orq_test_support.h"

#include <orq.h>

#include <QAbstractItemModelTester>
#include <QRandomGenerator>
#include <QSortFilterProxyModel>

#include <algorithm>
#include <memory>

namespace {

// Builds a model from "[A[B C[D]] E]": names in column 0, "<name>.1" in column 1.
struct TREE {
  ORQ_TREE_MODEL model;
  std::unique_ptr<QAbstractItemModelTester> tester{
      new QAbstractItemModelTester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest)};

  explicit TREE(const QString& text)
  {
    orq_test_fill_tree(model.invisibleRootItem(), text, 2);
  }

  QModelIndex at(const QString& name, int column = 0) const
  {
    const QModelIndexList found =
        model.match(model.index(0, 0), Qt::DisplayRole, name, 1, Qt::MatchExactly | Qt::MatchRecursive);
    return found.isEmpty() ? QModelIndex() : found.first().siblingAtColumn(column);
  }
};

QString name_of(const QModelIndex& index)
{
  if (!index.isValid())
    return QStringLiteral("-");
  const QString name = index.siblingAtColumn(0).data().toString();
  return index.column() ? name + QStringLiteral("@") + QString::number(index.column()) : name;
}

QString names(const QList<QModelIndex>& list)
{
  QStringList out;
  for (const QModelIndex& index : list)
    out << name_of(index);
  return out.join(QLatin1Char(' '));
}

// A random tree of n rows with up to three columns in some rows.
void fill_random(ORQ_TREE_MODEL& model, int n, QRandomGenerator& random)
{
  QList<QStandardItem*> items{model.invisibleRootItem()};
  for (int i = 0; i < n; ++i) {
    QStandardItem* parent = items[int(random.bounded(items.size()))];
    auto* item = new QStandardItem(QString::number(i));
    QList<QStandardItem*> row{item};
    for (int c = int(random.bounded(3)); c > 0; --c)
      row << new QStandardItem(QStringLiteral("c"));
    parent->appendRow(row);
    items << item;
    // Now and then rows hang below a cell of another column too: the sort
    // must then take the path walk, with the same results.
    if (row.size() > 1 && random.bounded(40) == 0)
      items << row.last();
  }
}

QList<QModelIndex> all_cells(const QAbstractItemModel& model, const QModelIndex& parent = {})
{
  QList<QModelIndex> cells;
  for (int r = 0; r < model.rowCount(parent); ++r) {
    for (int c = 0; c < model.columnCount(parent); ++c) {
      const QModelIndex cell = model.index(r, c, parent);
      if (cell.isValid() && (c == 0 || model.data(cell).isValid()))
        cells << cell;
      if (c > 0 && model.hasChildren(cell))
        cells << all_cells(model, cell);
    }
    cells << all_cells(model, model.index(r, 0, parent));
  }
  return cells;
}

// What sort_index_list_by_positions must give: invalid indexes first in
// input order, then a stable sort of the valid ones under the relation.
QList<QModelIndex> sorted_by_the_relation(const QList<QModelIndex>& list)
{
  QList<QModelIndex> invalid;
  QList<QModelIndex> valid;
  for (const QModelIndex& index : list)
    (index.isValid() ? valid : invalid) << index;
  std::stable_sort(valid.begin(), valid.end(), orq_tree_order_indexes);
  return invalid << valid;
}

// Sorts list twice, once as the only holder of its data and once while a
// copy shares it, and tells whether both give what the relation gives.
bool sorts_like_the_relation(const ORQ_TREE_MODEL& model, const QList<QModelIndex>& list)
{
  const QList<QModelIndex> expected = sorted_by_the_relation(list);
  QList<QModelIndex> alone;
  alone.reserve(list.size());
  for (const QModelIndex& index : list)
    alone.append(index);
  model.sort_index_list_by_positions(alone);
  QList<QModelIndex> shared = list;
  model.sort_index_list_by_positions(shared);
  return alone == expected && shared == expected;
}

// A hierarchy like a design's: each row goes below a random earlier row (or
// the top), in up to depth levels; rows have 1 to columns cells, the model as
// many columns as its widest row, so shorter rows have empty cells.
struct SHAPE {
  int rows;
  int depth;
  int columns;
  bool below_other_columns; // some rows hang below a cell of another column
  bool chain;               // every row below the one before
};

void fill_shaped(QStandardItemModel& model, const SHAPE& shape, QRandomGenerator& random)
{
  QList<QStandardItem*> open{model.invisibleRootItem()};
  QList<int> depth{-1};
  for (int i = 0; i < shape.rows; ++i) {
    const int pick = shape.chain ? open.size() - 1 : int(random.bounded(open.size()));
    QList<QStandardItem*> row{new QStandardItem(QString::number(i))};
    for (int c = int(random.bounded(shape.columns)); c > 0; --c)
      row << new QStandardItem(QStringLiteral("c"));
    open[pick]->appendRow(row);
    const int level = depth[pick] + 1; // of the new row, 0 at the top
    if (level + 1 >= shape.depth)
      continue; // no room for rows below it
    open << row.first();
    depth << level;
    if (shape.below_other_columns && row.size() > 1 && random.bounded(20) == 0) {
      open << row.last();
      depth << level;
    }
  }
}

// Every valid index, empty cells and rows below any column included.
QList<QModelIndex> every_index(const QAbstractItemModel& model, const QModelIndex& parent = {})
{
  QList<QModelIndex> found;
  for (int r = 0; r < model.rowCount(parent); ++r)
    for (int c = 0; c < model.columnCount(parent); ++c) {
      const QModelIndex cell = model.index(r, c, parent);
      found << cell;
      if (model.hasChildren(cell))
        found << every_index(model, cell);
    }
  return found;
}

} // namespace

class TST_TREE_MODEL : public QObject {
  Q_OBJECT
private slots:
  void initTestCase() { orq_test_strict_messages(); }

  void levels_and_total_counts()
  {
    TREE tree(QStringLiteral("[A[B C[D] E] F]"));
    QCOMPARE(tree.model.get_level(tree.at(QStringLiteral("A"))), 0);
    QCOMPARE(tree.model.get_level(tree.at(QStringLiteral("C"), 1)), 1);
    QCOMPARE(tree.model.get_level(tree.at(QStringLiteral("D"))), 2);
    QCOMPARE(tree.model.get_level(QModelIndex()), -1);
    QCOMPARE(tree.model.get_level(static_cast<const QStandardItem*>(nullptr)), -1);
    QCOMPARE(tree.model.get_level(tree.model.invisibleRootItem()), -1);
    QCOMPARE(tree.model.get_level(tree.model.itemFromIndex(tree.at(QStringLiteral("D")))), 2);
    // Two top-level rows, three children under one, one grandchild: 6.
    QCOMPARE(tree.model.get_total_count(nullptr), 6);
    QCOMPARE(tree.model.get_total_count(tree.model.itemFromIndex(tree.at(QStringLiteral("A")))), 4);
    QCOMPARE(tree.model.get_total_count(tree.model.itemFromIndex(tree.at(QStringLiteral("F")))), 0);
  }

  void a_row_without_its_first_column_is_an_internal_error()
  {
    TREE tree(QStringLiteral("[A]"));
    tree.tester.reset(); // the model is broken on purpose here
    tree.model.item(0)->setChild(0, 1, new QStandardItem(QStringLiteral("only column 1")));
    QCOMPARE(orq_test_internal_error([&] { tree.model.get_total_count(nullptr); }),
             QStringLiteral("child != NULL"));
  }

  void pre_order_walks_data()
  {
    QTest::addColumn<QString>("tree");
    QTest::addColumn<QString>("order");
    QTest::newRow("flat") << "[A B C]"
                          << "A B C";
    QTest::newRow("nested") << "[A[B C[D]] E[F[G[H]]] I]"
                            << "A B C D E F G H I";
    QTest::newRow("one deep chain") << "[A[B[C[D]]]]"
                                    << "A B C D";
  }

  void pre_order_walks()
  {
    QFETCH(QString, tree);
    QFETCH(QString, order);
    TREE model(tree);
    QStringList forward;
    for (QModelIndex i = model.model.index(0, 0); i.isValid(); i = model.model.get_next(i))
      forward << name_of(i);
    QCOMPARE(forward.join(QLatin1Char(' ')), order);
    QStringList backward;
    for (QModelIndex i = model.model.get_last(QModelIndex()); i.isValid(); i = model.model.get_prev(i))
      backward.prepend(name_of(i));
    QCOMPARE(backward.join(QLatin1Char(' ')), order);
  }

  void navigation_edges()
  {
    TREE tree(QStringLiteral("[A[B[X] C] D E[F]]"));
    ORQ_TREE_MODEL& m = tree.model;
    QCOMPARE(name_of(m.get_next(tree.at(QStringLiteral("F")))), QStringLiteral("-"));
    QCOMPARE(name_of(m.get_prev(tree.at(QStringLiteral("A")))), QStringLiteral("-"));
    QCOMPARE(name_of(m.get_prev(tree.at(QStringLiteral("D")))), QStringLiteral("C"));
    QCOMPARE(name_of(m.get_prev(tree.at(QStringLiteral("C")))), QStringLiteral("X"));
    QCOMPARE(name_of(m.get_prev(tree.at(QStringLiteral("B")))), QStringLiteral("A"));
    // Column 1 stays in column 1 among siblings and drops to column 0 when
    // it has to climb to an ancestor's sibling.
    QCOMPARE(name_of(m.get_next(tree.at(QStringLiteral("D"), 1))), QStringLiteral("E@1"));
    QCOMPARE(name_of(m.get_next(tree.at(QStringLiteral("C"), 1))), QStringLiteral("D"));
    QCOMPARE(name_of(m.get_last(tree.at(QStringLiteral("A")))), QStringLiteral("C"));
    QCOMPARE(name_of(m.get_last(tree.at(QStringLiteral("D")))), QStringLiteral("D"));
    QCOMPARE(name_of(m.get_last(QModelIndex())), QStringLiteral("F"));
    QCOMPARE(name_of(m.get_next_sibling(tree.at(QStringLiteral("B"), 1))), QStringLiteral("C@1"));
    QCOMPARE(name_of(m.get_next_sibling(tree.at(QStringLiteral("C")))), QStringLiteral("-"));
    QCOMPARE(name_of(m.get_prev_sibling(tree.at(QStringLiteral("D")))), QStringLiteral("A"));
    QCOMPARE(name_of(m.get_prev_sibling(QModelIndex())), QStringLiteral("-"));
    QCOMPARE(name_of(m.get_next(QModelIndex())), QStringLiteral("-"));
    ORQ_TREE_MODEL empty;
    QVERIFY(!empty.get_last(QModelIndex()).isValid());
    QCOMPARE(empty.get_total_count(nullptr), 0);
  }

  void persistent_indexes_are_listed()
  {
    TREE tree(QStringLiteral("[A[B] C]"));
    const QPersistentModelIndex kept(tree.at(QStringLiteral("B")));
    QCOMPARE(names(tree.model.get_persistent_index_list()), QStringLiteral("B"));
    tree.model.item(0)->insertRow(0, new QStandardItem(QStringLiteral("N")));
    QCOMPARE(kept.row(), 1);
  }

  void tree_order_data()
  {
    QTest::addColumn<QString>("a");
    QTest::addColumn<QString>("b");
    QTest::addColumn<bool>("before");
    QTest::addColumn<bool>("after");
    QTest::newRow("itself") << "B"
                            << "B" << true << true;
    QTest::newRow("parent and child") << "A"
                                      << "B" << true << false;
    QTest::newRow("grandparent and grandchild") << "A"
                                                << "X" << true << false;
    QTest::newRow("siblings in rows 0 and 2") << "B"
                                              << "D" << true << false;
    QTest::newRow("cousins") << "X"
                             << "D" << true << false;
    QTest::newRow("two columns of one row") << "C"
                                            << "C@1" << false << false;
    QTest::newRow("a row's second column and its child") << "B@1"
                                                         << "X" << false << false;
    QTest::newRow("across top-level rows") << "D"
                                           << "E" << true << false;
  }

  void tree_order()
  {
    QFETCH(QString, a);
    QFETCH(QString, b);
    QFETCH(bool, before);
    QFETCH(bool, after);
    TREE tree(QStringLiteral("[A[B[X] C D] E]"));
    auto find = [&](const QString& name) {
      const QStringList parts = name.split(QLatin1Char('@'));
      return tree.at(parts[0], parts.value(1).toInt());
    };
    QCOMPARE(orq_tree_order_indexes(find(a), find(b)), before);
    QCOMPARE(orq_tree_order_indexes(find(b), find(a)), after);
  }

  void tree_order_of_bad_pairs_is_an_internal_error()
  {
    TREE one(QStringLiteral("[A B]"));
    TREE other(QStringLiteral("[A B]"));
    QCOMPARE(
        orq_test_internal_error([&] { orq_tree_order_indexes(QModelIndex(), one.at(QStringLiteral("A"))); }),
        QStringLiteral("Not a valid index!"));
    QCOMPARE(
        orq_test_internal_error([&] { orq_tree_order_indexes(one.at(QStringLiteral("A")), QModelIndex()); }),
        QStringLiteral("Not a valid index!"));
    QCOMPARE(orq_test_internal_error(
                 [&] { orq_tree_order_indexes(one.at(QStringLiteral("A")), other.at(QStringLiteral("B"))); }),
             QStringLiteral("Models for given indices do not match!"));
    QList<QModelIndex> mixed{one.at(QStringLiteral("B")), other.at(QStringLiteral("A"))};
    QCOMPARE(orq_test_internal_error([&] { one.model.sort_index_list_by_positions(mixed); }),
             QStringLiteral("Models for given indices do not match!"));
  }

  void sort_by_positions_data()
  {
    QTest::addColumn<QStringList>("input");
    QTest::addColumn<QString>("sorted");
    QTest::newRow("invalid entries lead") << QStringList{"-", "C2", "P", "-", "C1"} << "- - P C1 C2";
    QTest::newRow("cells of one row keep their order") << QStringList{"C1@1", "P", "C1"} << "P C1@1 C1";
    QTest::newRow("duplicates") << QStringList{"C2", "C1", "C2", "P"} << "P C1 C2 C2";
    QTest::newRow("one entry") << QStringList{"C2"} << "C2";
    QTest::newRow("empty") << QStringList{} << "";
    QTest::newRow("deep and shallow") << QStringList{"Q", "G", "C2", "P", "C1"} << "P C1 G C2 Q";
  }

  void sort_by_positions()
  {
    QFETCH(QStringList, input);
    QFETCH(QString, sorted);
    TREE tree(QStringLiteral("[P[C1[G] C2] Q]"));
    QList<QModelIndex> list;
    for (const QString& name : input) {
      const QStringList parts = name.split(QLatin1Char('@'));
      list << (name == QLatin1String("-") ? QModelIndex() : tree.at(parts[0], parts.value(1).toInt()));
    }
    tree.model.sort_index_list_by_positions(list);
    QCOMPARE(names(list), sorted);
  }

  void sort_by_positions_of_every_short_list_matches_the_relation_data()
  {
    QTest::addColumn<bool>("below_a_second_column");
    QTest::newRow("rows below column 0 only") << false;
    QTest::newRow("a row below a second column") << true;
  }

  void sort_by_positions_of_every_short_list_matches_the_relation()
  {
    // Every list of two to five entries drawn from a row, its second cell,
    // its child and grandchild, another row's second cell, an empty cell and
    // an invalid index: duplicates and cells that compare neither way, in
    // every order. A row below a second column replaces one of them.
    QFETCH(bool, below_a_second_column);
    TREE tree(QStringLiteral("[A[B[X] C] D]"));
    tree.model.setColumnCount(3); // D's third cell stays empty
    QList<QModelIndex> letters{tree.at(QStringLiteral("A")),
                               tree.at(QStringLiteral("A"), 1),
                               tree.at(QStringLiteral("B")),
                               tree.at(QStringLiteral("X")),
                               tree.at(QStringLiteral("C"), 1),
                               tree.model.index(1, 2),
                               QModelIndex()};
    if (below_a_second_column) {
      const QModelIndex b_1 = tree.at(QStringLiteral("B"), 1);
      tree.model.itemFromIndex(b_1)->appendRow(new QStandardItem(QStringLiteral("Y")));
      letters[4] = tree.model.index(0, 0, b_1);
    }
    for (const QModelIndex& letter : qAsConst(letters).mid(0, 6))
      QVERIFY(letter.isValid());
    QVERIFY(!tree.model.itemFromIndex(letters[5]) || tree.model.itemFromIndex(letters[5])->text().isEmpty());
    // Lists of five take seconds under the sanitizers, which track every
    // allocation the relation's path walk makes.
    const int longest = orq_test_rounds(5, 4);
    int lists = 0;
    int expected_lists = 0;
    for (int length = 2; length <= longest; ++length) {
      int count = 1;
      for (int k = 0; k < length; ++k)
        count *= int(letters.size());
      expected_lists += count;
      QVector<int> digits(length, 0);
      for (;;) {
        QList<QModelIndex> list;
        for (const int digit : qAsConst(digits))
          list << letters[digit];
        QVERIFY2(sorts_like_the_relation(tree.model, list), qPrintable(names(list)));
        ++lists;
        int at = 0;
        while (at < length && ++digits[at] == letters.size())
          digits[at++] = 0;
        if (at == length)
          break;
      }
    }
    QCOMPARE(lists, expected_lists);
  }

  void sort_by_positions_of_large_lists_matches_the_relation_data()
  {
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("depth");
    QTest::addColumn<int>("columns");
    QTest::addColumn<bool>("below_other_columns");
    QTest::addColumn<bool>("chain");
    QTest::addColumn<QString>("pick"); // rows, cells or whole rows
    QTest::addColumn<int>("entries");
    QTest::addColumn<int>("repeated"); // per cent of entries listed again
    QTest::addColumn<int>("invalid");  // per cent
    QTest::newRow("rows of a deep tree") << 4000 << 8 << 2 << false << false << "rows" << 4000 << 0 << 0;
    QTest::newRow("some rows of a deep tree and invalid entries")
        << 4000 << 8 << 2 << false << false << "rows" << 1500 << 0 << 5;
    QTest::newRow("rows listed twice") << 3000 << 8 << 2 << false << false << "rows" << 3000 << 10 << 2;
    QTest::newRow("whole rows") << 2000 << 8 << 3 << false << false << "whole rows" << 1200 << 0 << 0;
    QTest::newRow("whole rows of wide rows, some twice")
        << 1500 << 6 << 12 << false << false << "whole rows" << 400 << 5 << 3;
    QTest::newRow("cells anywhere, empty ones too")
        << 2000 << 8 << 4 << false << false << "cells" << 3000 << 0 << 3;
    QTest::newRow("rows below cells of other columns")
        << 2000 << 8 << 3 << true << false << "cells" << 3000 << 5 << 3;
    QTest::newRow("rows of a flat list") << 3000 << 1 << 2 << false << false << "rows" << 3000 << 0 << 0;
    QTest::newRow("whole rows of a flat list, some twice")
        << 2000 << 1 << 3 << false << false << "whole rows" << 1000 << 10 << 0;
    QTest::newRow("cells of a flat list") << 3000 << 1 << 3 << false << false << "cells" << 3000 << 0 << 0;
    QTest::newRow("rows of one long chain") << 1500 << 1500 << 2 << false << true << "rows" << 400 << 3 << 0;
  }

  void sort_by_positions_of_large_lists_matches_the_relation()
  {
    QFETCH(int, rows);
    QFETCH(int, depth);
    QFETCH(int, columns);
    QFETCH(bool, below_other_columns);
    QFETCH(bool, chain);
    QFETCH(QString, pick);
    QFETCH(int, entries);
    QFETCH(int, repeated);
    QFETCH(int, invalid);
    // A quarter of the size under the sanitizers; the shapes stay the same.
    const int scale = orq_test_rounds(1, 4);
    rows = std::max(1, rows / scale);
    depth = chain ? rows : depth;
    entries = std::max(1, entries / scale);
    for (quint32 seed = 1; seed <= quint32(orq_test_rounds(4, 1)); ++seed) {
      QRandomGenerator random(seed);
      ORQ_TREE_MODEL model;
      fill_shaped(model, {rows, depth, columns, below_other_columns, chain}, random);
      QList<QModelIndex> list;
      if (pick == QLatin1String("cells")) {
        const QList<QModelIndex> cells = every_index(model);
        for (int i = 0; i < entries; ++i)
          list << cells[int(random.bounded(cells.size()))];
      } else {
        QList<QModelIndex> row_heads;
        for (QModelIndex i = model.index(0, 0); i.isValid(); i = model.get_next(i))
          row_heads << i;
        std::shuffle(row_heads.begin(), row_heads.end(), random);
        for (const QModelIndex& head : row_heads.mid(0, entries)) {
          const int cells = pick == QLatin1String("rows") ? 1 : model.columnCount(head.parent());
          for (int c = 0; c < cells; ++c)
            list << head.siblingAtColumn(c);
        }
        std::shuffle(list.begin(), list.end(), random);
      }
      for (int i = list.size() * repeated / 100; i > 0; --i) {
        const QModelIndex again = list[int(random.bounded(list.size()))];
        list.insert(int(random.bounded(list.size() + 1)), again);
      }
      for (int i = list.size() * invalid / 100; i > 0; --i)
        list.insert(int(random.bounded(list.size() + 1)), QModelIndex());
      QVERIFY2(sorts_like_the_relation(model, list), qPrintable(QStringLiteral("seed %1").arg(seed)));
    }
  }

  void sort_by_positions_of_another_models_indexes_matches_the_relation()
  {
    // Indexes of other models sort among themselves by the plain rule.
    ORQ_TREE_MODEL tree;
    QRandomGenerator random(5);
    fill_shaped(tree, {600, 6, 3, false, false}, random);
    QSortFilterProxyModel proxy;
    proxy.setSourceModel(&tree);
    QStandardItemModel plain;
    fill_shaped(plain, {600, 6, 3, true, false}, random);
    const ORQ_TREE_MODEL sorter;
    for (const QAbstractItemModel* model :
         {static_cast<const QAbstractItemModel*>(&proxy), static_cast<const QAbstractItemModel*>(&plain)}) {
      const QList<QModelIndex> cells = every_index(*model);
      QList<QModelIndex> list;
      for (int i = 0; i < 1500; ++i)
        list << (random.bounded(30) == 0 ? QModelIndex() : cells[int(random.bounded(cells.size()))]);
      QVERIFY(sorts_like_the_relation(sorter, list));
      QVERIFY(sorts_like_the_relation(tree, list));
    }
  }

  void sort_by_positions_matches_a_stable_sort_with_the_relation()
  {
    // The fast sort must ask the same questions as a stable sort under
    // orq_tree_order_indexes itself, so its results are the same on any
    // mix of rows, cells of one row, duplicates and invalid indexes.
    QRandomGenerator random(20261122);
    for (int round = 0; round < orq_test_rounds(80, 20); ++round) {
      ORQ_TREE_MODEL model;
      fill_random(model, 5 + int(random.bounded(300)), random);
      QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
      const QList<QModelIndex> cells = all_cells(model);
      QList<QModelIndex> list;
      for (int i = int(random.bounded(400)); i > 0; --i)
        list << (random.bounded(20) == 0 ? QModelIndex() : cells[int(random.bounded(cells.size()))]);
      QList<QModelIndex> expected;
      QList<QModelIndex> valid;
      for (const QModelIndex& index : qAsConst(list))
        (index.isValid() ? valid : expected) << index;
      std::stable_sort(valid.begin(), valid.end(), orq_tree_order_indexes);
      expected << valid;
      model.sort_index_list_by_positions(list);
      QCOMPARE(list, expected);
    }
  }
};

ORQ_TEST_REGISTER(TST_TREE_MODEL);
#include "tst_tree_model.moc"
