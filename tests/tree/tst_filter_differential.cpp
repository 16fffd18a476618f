// ORQ_TREE_FILTER_PROXY_MODEL against a plain proxy that applies the
// acceptance rule literally on every call, with nothing kept: the same
// random trees, small and above the size where re-filtering becomes a
// layout change, expressions of every form, every switch combination, with
// and without an expanded view, and edits of the source of every kind in
// between. The rows kept and the search count must agree after every
// keystroke and after every edit.
#include "orq_test_support.h"

#include <orq.h>

#include <QAbstractItemModelTester>
#include <QRandomGenerator>
#include <QSortFilterProxyModel>
#include <QTreeView>

#include <memory>

namespace {

// The rule as written: a row is kept when it matches by itself, when it is a
// top-level row and those are all kept, when an ancestor matches by itself,
// or when any row below it does. Rows kept by the first two are counted.
class PLAIN_PROXY : public QSortFilterProxyModel {
public:
  bool include_child = true;
  bool include_root = false;
  QList<int> columns;
  unsigned count = 0;

  void filter(const QRegularExpression& expression, bool filter)
  {
    count = 0;
    setFilterRegularExpression(
        filter ? expression : QRegularExpression(QStringLiteral(" "), QRegularExpression::CaseInsensitiveOption));
  }

protected:
  bool itself(int row, const QModelIndex& parent) const
  {
    const QRegularExpression expression = filterRegularExpression();
    // An invalid expression matches nothing; only a missing key cell lets
    // the base class accept (it would warn once per row if asked).
    if (!expression.isValid())
      return filterKeyColumn() != -1 && !sourceModel()->index(row, filterKeyColumn(), parent).isValid();
    if (QSortFilterProxyModel::filterAcceptsRow(row, parent))
      return true;
    if (columns.isEmpty())
      return false;
    QString joined;
    for (const int column : columns)
      joined += sourceModel()->index(row, column, parent).data().toString() + QLatin1Char(' ');
    return expression.match(joined).hasMatch();
  }

  bool below(int row, const QModelIndex& parent) const
  {
    const QModelIndex index = sourceModel()->index(row, 0, parent);
    if (!index.isValid())
      return false;
    for (int child = 0; child < sourceModel()->rowCount(index); ++child)
      if (itself(child, index) || below(child, index))
        return true;
    return false;
  }

  bool filterAcceptsRow(int row, const QModelIndex& parent) const override
  {
    if (itself(row, parent) || (include_root && !parent.isValid())) {
      ++const_cast<PLAIN_PROXY*>(this)->count;
      return true;
    }
    if (include_child)
      for (QModelIndex ancestor = parent; ancestor.isValid(); ancestor = ancestor.parent())
        if (itself(ancestor.row(), ancestor.parent()))
          return true;
    return below(row, parent);
  }
};

class EXPOSED_PROXY : public ORQ_TREE_FILTER_PROXY_MODEL {
public:
  using ORQ_TREE_FILTER_PROXY_MODEL::process_keyword_expression;
};

QString kept_tree(const QAbstractItemModel& model, const QModelIndex& parent = {})
{
  QString text;
  for (int row = 0; row < model.rowCount(parent); ++row) {
    const QModelIndex index = model.index(row, 0, parent);
    text += QLatin1Char(' ') + index.data().toString();
    if (model.rowCount(index) > 0)
      text += QLatin1Char('[') + kept_tree(model, index) + QLatin1Char(']');
  }
  return text;
}

// Texts that make every form of expression find something, including cases
// the fast matcher must leave to the regular-expression engine.
const QStringList words{QStringLiteral("abc"),       QStringLiteral("ABC"),      QStringLiteral("xabcx"),
                        QStringLiteral("abc def"),   QStringLiteral("def abc"),  QStringLiteral("x abc y"),
                        QStringLiteral("a.c"),       QStringLiteral("abdef"),    QStringLiteral("defg"),
                        QStringLiteral("ab\ncd"),    QStringLiteral("\u00c4bc"), QStringLiteral("a*c"),
                        QStringLiteral(""),          QStringLiteral("u_alu_3"),  QStringLiteral("NAND2X1"),
                        QStringLiteral("kelvin \u212a"), QStringLiteral("abc "), QStringLiteral(" abc")};

// What users type: prefixes while typing, the forms, and broken patterns.
const QStringList inputs{QStringLiteral("a"),       QStringLiteral("ab"),      QStringLiteral("abc"),
                         QStringLiteral("ABC"),     QStringLiteral("abc*"),    QStringLiteral("a*c"),
                         QStringLiteral("abc def"), QStringLiteral("def abc"), QStringLiteral("\" abc \""),
                         QStringLiteral("\"abc"),   QStringLiteral("\""),      QStringLiteral("a.c"),
                         QStringLiteral("a.c*"),    QStringLiteral("abc("),    QStringLiteral("^abc"),
                         QStringLiteral(""),        QStringLiteral("  "),      QStringLiteral("d"),
                         QStringLiteral("de"),      QStringLiteral("def"),     QStringLiteral("k"),
                         QStringLiteral("\u00e4bc"), QStringLiteral("u_alu"),  QStringLiteral("c d"),
                         QStringLiteral("*"),       QStringLiteral("x abc"),   QStringLiteral("nand2")};

// Reached through its items by the proxy's kept answers only when it is
// exactly the library's model; this one is read through index() and data().
class RESETTABLE_MODEL : public ORQ_TREE_FILTER_MODEL {
public:
  void reset()
  {
    beginResetModel();
    endResetModel();
  }
};

struct CASE {
  std::unique_ptr<ORQ_TREE_FILTER_MODEL> model;
  ORQ_TREE_FILTER_MODEL& source;
  PLAIN_PROXY plain;
  EXPOSED_PROXY* ours = nullptr;
  std::unique_ptr<QAbstractItemModelTester> testers[3];
  std::unique_ptr<QTreeView> views[2];
  QRandomGenerator random;

  CASE(quint32 seed, bool with_views, int rows)
      : model(seed % 2 ? new RESETTABLE_MODEL : new ORQ_TREE_FILTER_MODEL)
      , source(*model)
      , random(seed)
  {
    columns = 1 + int(random.bounded(3));
    grow(rows);
    auto* proxy = new EXPOSED_PROXY;
    proxy->setParent(&source);
    proxy->setSourceModel(&source);
    source.set_filter_model(proxy);
    ours = proxy;
    plain.setSourceModel(&source);
    // The testers check the whole model on every change, too slow for the
    // large trees; they map rows too, so both proxies have one or neither.
    if (rows < 2000) {
      testers[0].reset(new QAbstractItemModelTester(&source, QAbstractItemModelTester::FailureReportingMode::QtTest));
      testers[1].reset(new QAbstractItemModelTester(ours, QAbstractItemModelTester::FailureReportingMode::QtTest));
      testers[2].reset(new QAbstractItemModelTester(&plain, QAbstractItemModelTester::FailureReportingMode::QtTest));
    }
    if (with_views) {
      views[0].reset(new QTreeView);
      views[0]->setModel(ours);
      views[1].reset(new QTreeView);
      views[1]->setModel(&plain);
      for (auto& view : views) {
        view->resize(300, 2000);
        view->expandAll();
      }
    }
  }

  int columns = 1;

  QString word() { return words.at(int(random.bounded(words.size()))); }

  QList<QStandardItem*> new_row()
  {
    QList<QStandardItem*> row;
    for (int column = 0; column < columns; ++column)
      row << (column > 0 && random.bounded(5) == 0 ? nullptr : new QStandardItem(word()));
    if (!row.first())
      row.first() = new QStandardItem(word());
    return row;
  }

  // Rows hung under random earlier rows: deep and wide at once.
  void grow(int rows)
  {
    QList<QStandardItem*> parents{source.invisibleRootItem()};
    for (int i = 0; i < rows; ++i) {
      QStandardItem* parent = parents.at(int(random.bounded(parents.size())));
      const QList<QStandardItem*> row = new_row();
      parent->appendRow(row);
      parents << row.first();
    }
  }

  QList<QStandardItem*> all_items()
  {
    QList<QStandardItem*> items;
    for (int row = 0; row < source.rowCount(); ++row)
      if (QStandardItem* item = source.item(row))
        items << item;
    for (int i = 0; i < items.size(); ++i)
      for (int row = 0; row < items.at(i)->rowCount(); ++row)
        if (QStandardItem* child = items.at(i)->child(row))
          items << child;
    return items;
  }

  void set_switches(int key_column, const QList<int>& columns, bool include_child, bool include_root)
  {
    ours->setFilterKeyColumn(key_column);
    plain.setFilterKeyColumn(key_column);
    source.clear_filter_column_list();
    for (const int column : columns)
      source.insert_filter_column(column);
    plain.columns = columns;
    source.set_include_child(include_child);
    plain.include_child = include_child;
    source.set_include_invisible_root_child(include_root);
    plain.include_root = include_root;
  }

  // A keystroke done in place is counted as QSortFilterProxyModel's own
  // re-filter counts it, which asks again about rows a view maps while rows
  // are being inserted. One announced as a layout change counts every row
  // the views map once, as if the proxy had just been given its source: the
  // reference is then given its source again too, and both go on from the
  // same maps.
  void filter(const QString& input, bool filter)
  {
    int layout_changes = 0;
    const QMetaObject::Connection counting =
        QObject::connect(ours, &QAbstractItemModel::layoutChanged, [&] { ++layout_changes; });
    ours->start_filter(input, false, filter);
    QObject::disconnect(counting);
    if (layout_changes > 0)
      plain.setSourceModel(&source);
    plain.filter(ours->process_keyword_expression(input.trimmed()), filter);
    if (views[0]) {
      for (auto& view : views) {
        view->expandAll();
        view->doItemsLayout();
      }
    }
  }

  // A random edit of the source, of every kind a model announces: a new
  // text, a check state (which matching does not read), rows inserted in the
  // middle or removed, a sort, an item replaced with its subtree, a column
  // inserted, a reset, a clear.
  QString edit()
  {
    QList<QStandardItem*> items = all_items();
    if (items.isEmpty()) {
      grow(5 + int(random.bounded(20)));
      return QStringLiteral("regrow");
    }
    QStandardItem* item = items.at(int(random.bounded(items.size())));
    QStandardItem* parent = item->parent() ? item->parent() : source.invisibleRootItem();
    switch (random.bounded(12)) {
    case 0:
    case 1:
      item->setText(word());
      return QStringLiteral("text");
    case 2:
      item->setCheckable(true);
      item->setCheckState(random.bounded(2) ? Qt::Checked : Qt::Unchecked);
      return QStringLiteral("check state");
    case 3:
      parent->insertRow(item->row(), new_row());
      return QStringLiteral("insert in the middle");
    case 4:
      item->appendRow(new_row());
      return QStringLiteral("append");
    case 5:
    case 6:
      parent->removeRow(item->row());
      return QStringLiteral("remove");
    case 7:
      source.sort(int(random.bounded(columns)), random.bounded(2) ? Qt::AscendingOrder : Qt::DescendingOrder);
      return QStringLiteral("sort");
    case 8:
      parent->setChild(item->row(), 0, new QStandardItem(word()));
      return QStringLiteral("set item");
    case 9:
      // After the first: the rows hang on their first cells.
      source.insertColumn(1 + int(random.bounded(source.columnCount())));
      ++columns;
      return QStringLiteral("insert column");
    case 10:
      if (auto* resettable = dynamic_cast<RESETTABLE_MODEL*>(&source)) {
        resettable->reset();
        return QStringLiteral("reset");
      }
      item->setText(word());
      return QStringLiteral("text");
    default:
      if (random.bounded(4) == 0) {
        source.clear();
        columns = 1;
        return QStringLiteral("clear");
      }
      parent->removeRows(0, parent->rowCount() / 2);
      return QStringLiteral("remove half");
    }
  }
};

} // namespace

QString count_mismatch(const CASE& test)
{
  return QStringLiteral("count %1, rule %2").arg(test.ours->get_search_result_count()).arg(test.plain.count);
}

class TST_FILTER_DIFFERENTIAL : public QObject {
  Q_OBJECT
private slots:
  void same_rows_and_count_as_the_rule_data()
  {
    QTest::addColumn<quint32>("seed");
    QTest::addColumn<bool>("with_views");
    QTest::addColumn<int>("rows");
    for (quint32 seed = 1; seed <= quint32(orq_test_rounds(12, 1)); ++seed) {
      const int rows = 20 + int(QRandomGenerator(seed).bounded(120));
      QTest::addRow("seed %u", seed) << seed << false << rows;
      QTest::addRow("seed %u, expanded views", seed) << seed << true << rows;
    }
    // Above the size where a keystroke that changes many runs of rows is
    // announced as a layout change.
    for (quint32 seed = 101; seed <= 100 + quint32(orq_test_rounds(4, 1)); ++seed)
      QTest::addRow("seed %u, %d rows, expanded views", seed, 2000 + 50 * int(seed - 100))
          << seed << true << 2000 + 50 * int(seed - 100);
  }

  void same_rows_and_count_as_the_rule()
  {
    QFETCH(quint32, seed);
    QFETCH(bool, with_views);
    QFETCH(int, rows);
    CASE test(seed, with_views, rows);
    test.filter(QString(), true); // the count is shared: start it for this case
    const QList<QList<int>> column_lists{{}, {0}, {1, 0}, {0, 0}, {2}, {1}};
    const QList<int> key_columns{0, 0, 1, -1, 7};
    const int steps = rows > 2000 ? orq_test_rounds(6, 2) : orq_test_rounds(9, 3);
    int checks = 0;
    for (int combination = 0; combination < 8; ++combination) {
      const bool include_child = combination & 1;
      const bool include_root = combination & 2;
      const bool filter = !(combination & 4);
      const QList<int> columns = column_lists.at(int(test.random.bounded(column_lists.size())));
      const int key = key_columns.at(int(test.random.bounded(key_columns.size())));
      test.set_switches(key, columns, include_child, include_root);
      // Typing: a run of inputs, some repeated (backspace finds an earlier
      // expression), and now and then edits of the source, each compared
      // before the next keystroke.
      for (int step = 0; step < steps; ++step) {
        const QString input = inputs.at(int(test.random.bounded(inputs.size())));
        const QString context = QStringLiteral("input '%1' key %2 columns %3 child %4 root %5 step %6")
                                    .arg(input)
                                    .arg(key)
                                    .arg(columns.size())
                                    .arg(include_child)
                                    .arg(include_root)
                                    .arg(step);
        while (test.random.bounded(4) == 0) {
          const QString edit = test.edit();
          const QString after = context + QStringLiteral(", after edit: ") + edit;
          QVERIFY2(kept_tree(*test.ours) == kept_tree(test.plain), qPrintable(after));
          QVERIFY2(test.ours->get_search_result_count() == test.plain.count,
                   qPrintable(after + QStringLiteral(": ") + count_mismatch(test)));
        }
        test.filter(input, filter || test.random.bounded(5) == 0);
        QCOMPARE(kept_tree(*test.ours), kept_tree(test.plain));
        QVERIFY2(test.ours->get_search_result_count() == test.plain.count,
                 qPrintable(context + QStringLiteral(": ") + count_mismatch(test)));
        ++checks;
      }
    }
    QCOMPARE(checks, 8 * steps);
  }
};

ORQ_TEST_REGISTER(TST_FILTER_DIFFERENTIAL);
#include "tst_filter_differential.moc"
