// ORQ_TREE_MODEL: navigation, levels, counts and tree order on real models,
// each under QAbstractItemModelTester.
#include "orq_test_support.h"

#include <orq.h>

#include <QAbstractItemModelTester>
#include <QRandomGenerator>

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
    QList<QStandardItem*> stack{model.invisibleRootItem()};
    QStandardItem* last = nullptr;
    QString name;
    auto flush = [&] {
      if (name.isEmpty())
        return;
      last = new QStandardItem(name);
      stack.last()->appendRow({last, new QStandardItem(name + QStringLiteral(".1"))});
      name.clear();
    };
    for (const QChar c : text.mid(1, text.size() - 2)) {
      if (c == QLatin1Char('[')) {
        flush();
        stack.append(last);
      } else if (c == QLatin1Char(']')) {
        flush();
        stack.removeLast();
      } else if (c == QLatin1Char(' ')) {
        flush();
      } else {
        name += c;
      }
    }
    flush();
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

  void sort_by_positions_matches_a_stable_sort_with_the_relation()
  {
    // The fast sort must ask the same questions as a stable sort under
    // orq_tree_order_indexes itself, so its results are the same on any
    // mix of rows, cells of one row, duplicates and invalid indexes.
    QRandomGenerator random(20261122);
    for (int round = 0; round < 80; ++round) {
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
