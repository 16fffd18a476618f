// ORQ_TREE_FILTER_PROXY_MODEL against a plain proxy that applies the
// acceptance rule literally on every call, with nothing kept: the same
// random trees, expressions of every form, every switch combination, with
// and without an expanded view, and edits of the source in between. The
// rows kept and the search count must agree exactly.
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

struct CASE {
  ORQ_TREE_FILTER_MODEL source;
  PLAIN_PROXY plain;
  EXPOSED_PROXY* ours = nullptr;
  std::unique_ptr<QAbstractItemModelTester> testers[3];
  std::unique_ptr<QTreeView> views[2];
  QRandomGenerator random;

  CASE(quint32 seed, bool with_views)
      : random(seed)
  {
    const int rows = 20 + int(random.bounded(120));
    const int columns = 1 + int(random.bounded(3));
    QList<QStandardItem*> parents{source.invisibleRootItem()};
    for (int i = 0; i < rows; ++i) {
      QStandardItem* parent = parents.at(int(random.bounded(parents.size())));
      QList<QStandardItem*> row;
      for (int column = 0; column < columns; ++column)
        row << (column > 0 && random.bounded(5) == 0 ? nullptr : new QStandardItem(word()));
      if (!row.first())
        row.first() = new QStandardItem(word());
      parent->appendRow(row);
      parents << row.first();
    }
    auto* proxy = new EXPOSED_PROXY;
    proxy->setParent(&source);
    proxy->setSourceModel(&source);
    source.set_filter_model(proxy);
    ours = proxy;
    plain.setSourceModel(&source);
    testers[0].reset(new QAbstractItemModelTester(&source, QAbstractItemModelTester::FailureReportingMode::QtTest));
    testers[1].reset(new QAbstractItemModelTester(ours, QAbstractItemModelTester::FailureReportingMode::QtTest));
    testers[2].reset(new QAbstractItemModelTester(&plain, QAbstractItemModelTester::FailureReportingMode::QtTest));
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

  QString word() { return words.at(int(random.bounded(words.size()))); }

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

  void filter(const QString& input, bool filter)
  {
    ours->start_filter(input, false, filter);
    plain.filter(ours->process_keyword_expression(input.trimmed()), filter);
    if (views[0]) {
      for (auto& view : views) {
        view->expandAll();
        view->doItemsLayout();
      }
    }
  }

  // A random edit of the source: a new text, a new row or a removed row.
  void edit()
  {
    const int pick = int(random.bounded(3));
    QList<QStandardItem*> items;
    for (int row = 0; row < source.rowCount(); ++row)
      items << source.item(row);
    for (int i = 0; i < items.size(); ++i)
      for (int row = 0; row < items.at(i)->rowCount(); ++row)
        if (QStandardItem* child = items.at(i)->child(row))
          items << child;
    QStandardItem* item = items.at(int(random.bounded(items.size())));
    if (pick == 0) {
      item->setText(word());
    } else if (pick == 1) {
      item->appendRow(new QStandardItem(word()));
    } else if (item->parent() && item->parent()->rowCount() > 1) {
      item->parent()->removeRow(item->row());
    } else {
      item->setText(word());
    }
  }
};

} // namespace

class TST_FILTER_DIFFERENTIAL : public QObject {
  Q_OBJECT
private slots:
  void same_rows_and_count_as_the_rule_data()
  {
    QTest::addColumn<quint32>("seed");
    QTest::addColumn<bool>("with_views");
    for (quint32 seed = 1; seed <= quint32(orq_test_rounds(12, 1)); ++seed) {
      QTest::addRow("seed %u", seed) << seed << false;
      QTest::addRow("seed %u, expanded views", seed) << seed << true;
    }
  }

  void same_rows_and_count_as_the_rule()
  {
    QFETCH(quint32, seed);
    QFETCH(bool, with_views);
    CASE test(seed, with_views);
    const QList<QList<int>> column_lists{{}, {0}, {1, 0}, {0, 0}, {2}, {1}};
    const QList<int> key_columns{0, 0, 1, -1, 7};
    const int steps = orq_test_rounds(9, 3);
    int checks = 0;
    for (int combination = 0; combination < 8; ++combination) {
      const bool include_child = combination & 1;
      const bool include_root = combination & 2;
      const bool filter = !(combination & 4);
      const QList<int> columns = column_lists.at(int(test.random.bounded(column_lists.size())));
      const int key = key_columns.at(int(test.random.bounded(key_columns.size())));
      test.set_switches(key, columns, include_child, include_root);
      // Typing: a run of inputs, some repeated (backspace finds an earlier
      // expression), and now and then an edit of the source.
      for (int step = 0; step < steps; ++step) {
        const QString input = inputs.at(int(test.random.bounded(inputs.size())));
        if (test.random.bounded(6) == 0)
          test.edit();
        test.filter(input, filter || test.random.bounded(5) == 0);
        const QString context = QStringLiteral("input '%1' key %2 columns %3 child %4 root %5 step %6")
                                    .arg(input)
                                    .arg(key)
                                    .arg(columns.size())
                                    .arg(include_child)
                                    .arg(include_root)
                                    .arg(step);
        QCOMPARE(kept_tree(*test.ours), kept_tree(test.plain));
        QVERIFY2(test.ours->get_search_result_count() == test.plain.count,
                 qPrintable(context + QStringLiteral(": count %1, rule %2")
                                          .arg(test.ours->get_search_result_count())
                                          .arg(test.plain.count)));
        ++checks;
      }
    }
    QCOMPARE(checks, 8 * steps);
  }
};

ORQ_TEST_REGISTER(TST_FILTER_DIFFERENTIAL);
#include "tst_filter_differential.moc"
