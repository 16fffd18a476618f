// ORQ_TREE_FILTER_MODEL: mapping between its items and the proxy's
// indexes, with and without a proxy, who owns the proxy, and the settings
// it passes on.
#include "orq_test_support.h"

#include <orq.h>

#include <QAbstractItemModelTester>
#include <QPointer>

#include <memory>

namespace {

// top{abc{leaf};x}: column 1 holds the name with ".1".
void fill(ORQ_TREE_FILTER_MODEL& model)
{
  auto row = [](const QString& name) {
    return QList<QStandardItem*>{new QStandardItem(name), new QStandardItem(name + QStringLiteral(".1"))};
  };
  QList<QStandardItem*> top = row(QStringLiteral("top"));
  QList<QStandardItem*> abc = row(QStringLiteral("abc"));
  abc.first()->appendRow(row(QStringLiteral("leaf")));
  top.first()->appendRow(abc);
  top.first()->appendRow(row(QStringLiteral("x")));
  model.appendRow(top);
}

QStandardItem* find(ORQ_TREE_FILTER_MODEL& model, const QString& name)
{
  const QModelIndexList found = model.match(model.index(0, 0), Qt::DisplayRole, name, 1,
                                            Qt::MatchExactly | Qt::MatchRecursive);
  return found.isEmpty() ? nullptr : model.itemFromIndex(found.first());
}

} // namespace

class TST_TREE_FILTER_MODEL : public QObject {
  Q_OBJECT
private slots:
  void without_a_proxy_indexes_are_its_own()
  {
    ORQ_TREE_FILTER_MODEL model;
    fill(model);
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    QStandardItem* abc = find(model, QStringLiteral("abc"));
    const QModelIndex index = model.indexFromItem(abc);
    QCOMPARE(model.get_index_from_item(abc), index);
    QCOMPARE(model.get_item_from_index(index), abc);
    QCOMPARE(model.map_index_from_source(index), index);
    QCOMPARE(model.map_index_to_source(index), index);
    QVERIFY(model.has_children(index));
    QVERIFY(model.match_filter_index_from_model_source(index));
    // Tools set this before they make the proxy; it must not need one.
    model.set_include_child(false);
    QVERIFY(!model.get_filter_model());
  }

  void the_proxy_belongs_to_the_models_parent()
  {
    QObject owner;
    QPointer<ORQ_TREE_FILTER_PROXY_MODEL> proxy;
    {
      auto* model = new ORQ_TREE_FILTER_MODEL(&owner);
      model->create_filter_model(1);
      proxy = model->get_filter_model();
      QVERIFY(proxy);
      QCOMPARE(proxy->parent(), &owner);
      QCOMPARE(proxy->sourceModel(), model);
      QCOMPARE(proxy->filterKeyColumn(), 1);
      proxy->setSourceModel(nullptr);
      delete model;
    }
    QVERIFY(proxy);
  }

  void a_second_proxy_is_an_internal_error()
  {
    QObject owner; // the proxy becomes a child of the model's parent
    ORQ_TREE_FILTER_MODEL& model = *new ORQ_TREE_FILTER_MODEL(&owner);
    model.create_filter_model(0);
    QCOMPARE(orq_test_internal_error([&] { model.create_filter_model(0); }), QStringLiteral("m_filter_model == NULL"));
  }

  void proxy_indexes_map_to_items_and_back()
  {
    QObject owner; // the proxy becomes a child of the model's parent
    ORQ_TREE_FILTER_MODEL& model = *new ORQ_TREE_FILTER_MODEL(&owner);
    fill(model);
    model.create_filter_model(0);
    ORQ_TREE_FILTER_PROXY_MODEL* proxy = model.get_filter_model();
    QAbstractItemModelTester tester(proxy, QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.set_include_child(false);
    proxy->start_filter(QStringLiteral("abc"), false, true);

    QStandardItem* abc = find(model, QStringLiteral("abc"));
    QStandardItem* x = find(model, QStringLiteral("x"));
    QStandardItem* leaf = find(model, QStringLiteral("leaf"));
    const QModelIndex shown = model.get_index_from_item(abc);
    QVERIFY(shown.isValid());
    QCOMPARE(shown.model(), proxy);
    QCOMPARE(model.get_item_from_index(shown), abc);
    QCOMPARE(model.map_index_to_source(shown), model.indexFromItem(abc));
    QCOMPARE(model.map_index_from_source(model.indexFromItem(abc)), shown);
    QVERIFY(!model.get_index_from_item(x).isValid());
    QVERIFY(model.match_filter_index_from_model_source(model.indexFromItem(abc)));
    QVERIFY(!model.match_filter_index_from_model_source(model.indexFromItem(x)));
    // What has children is answered for what is visible.
    QVERIFY(!model.has_children(shown));
    QVERIFY(model.hasChildren(model.indexFromItem(abc)));

    model.set_include_child(true);
    proxy->start_filter(QStringLiteral("abc"), false, true);
    QVERIFY(model.has_children(model.get_index_from_item(abc)));
    QVERIFY(model.get_index_from_item(leaf).isValid());
  }

  void settings_reach_the_proxy_with_the_next_filter()
  {
    QObject owner; // the proxy becomes a child of the model's parent
    ORQ_TREE_FILTER_MODEL& model = *new ORQ_TREE_FILTER_MODEL(&owner);
    fill(model);
    model.create_filter_model(0);
    ORQ_TREE_FILTER_PROXY_MODEL* proxy = model.get_filter_model();
    proxy->start_filter(QStringLiteral("x.1"), false, true);
    QVERIFY(!model.get_index_from_item(find(model, QStringLiteral("x"))).isValid());
    model.insert_filter_column(1);
    QVERIFY(!model.get_index_from_item(find(model, QStringLiteral("x"))).isValid());
    proxy->start_filter(QStringLiteral("x.1"), false, true);
    QVERIFY(model.get_index_from_item(find(model, QStringLiteral("x"))).isValid());
    model.clear_filter_column_list();
    model.set_include_invisible_root_child(true);
    proxy->start_filter(QStringLiteral("nothing"), false, true);
    QCOMPARE(proxy->rowCount(), 1);
    QCOMPARE(proxy->rowCount(proxy->index(0, 0)), 0);
  }

  void a_proxy_set_by_hand_is_used_as_it_is()
  {
    ORQ_TREE_FILTER_MODEL model;
    fill(model);
    ORQ_TREE_FILTER_PROXY_MODEL proxy;
    proxy.setSourceModel(&model);
    model.set_filter_model(&proxy);
    proxy.start_filter(QStringLiteral("leaf"), false, true);
    QVERIFY(!model.get_index_from_item(find(model, QStringLiteral("x"))).isValid());
    model.set_filter_model(nullptr);
    QStandardItem* x = find(model, QStringLiteral("x"));
    QCOMPARE(model.get_index_from_item(x), model.indexFromItem(x));
  }
};

ORQ_TEST_REGISTER(TST_TREE_FILTER_MODEL);
#include "tst_tree_filter_model.moc"
