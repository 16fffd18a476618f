// ORQ_TREE_FILTER_PROXY_MODEL: expression forms, the rows kept for each
// kind of expression and switch, the signals and the shared count, search
// use, edits of a filtered source, and large expanded views.
#include "orq_test_support.h"

#include "orq_tree_filter_cache_p.h"

#include <orq.h>

#include <QAbstractItemModelTester>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTreeView>

#include <memory>

namespace {

class EXPOSED_PROXY : public ORQ_TREE_FILTER_PROXY_MODEL {
public:
  using ORQ_TREE_FILTER_PROXY_MODEL::process_keyword_expression;
};

// A tree from "a|a1{b;c{d}};e": rows separated by ';', columns by '|',
// children in braces. Texts may hold blanks.
void build(QStandardItem* parent, const QString& text, int& at)
{
  QStringList cells{QString()};
  QStandardItem* last = nullptr;
  auto flush = [&] {
    if (cells.size() == 1 && cells.first().isEmpty())
      return;
    QList<QStandardItem*> row;
    for (const QString& cell : cells)
      row << new QStandardItem(cell);
    parent->appendRow(row);
    last = row.first();
    cells = QStringList{QString()};
  };
  while (at < text.size()) {
    const QChar c = text.at(at++);
    if (c == QLatin1Char(';')) {
      flush();
    } else if (c == QLatin1Char('|')) {
      cells << QString();
    } else if (c == QLatin1Char('{')) {
      flush();
      build(last, text, at);
    } else if (c == QLatin1Char('}')) {
      break;
    } else {
      cells.last() += c;
    }
  }
  flush();
}

QString kept_tree(const QAbstractItemModel& model, const QModelIndex& parent = {})
{
  QStringList rows;
  for (int row = 0; row < model.rowCount(parent); ++row) {
    const QModelIndex index = model.index(row, 0, parent);
    QString text = index.data().toString();
    if (model.rowCount(index) > 0)
      text += QLatin1Char('{') + kept_tree(model, index) + QLatin1Char('}');
    rows << text;
  }
  return rows.join(QLatin1Char(';'));
}

struct FILTERED {
  ORQ_TREE_FILTER_MODEL model;
  EXPOSED_PROXY* proxy = new EXPOSED_PROXY;
  std::unique_ptr<QAbstractItemModelTester> tester;

  explicit FILTERED(const QString& tree, int key_column = 0)
  {
    int at = 0;
    build(model.invisibleRootItem(), tree, at);
    proxy->setParent(&model);
    proxy->setSourceModel(&model);
    proxy->setFilterKeyColumn(key_column);
    model.set_filter_model(proxy);
    tester.reset(new QAbstractItemModelTester(proxy, QAbstractItemModelTester::FailureReportingMode::QtTest));
  }
};

} // namespace

class TST_TREE_FILTER_PROXY : public QObject {
  Q_OBJECT
private slots:
  void expression_forms_data()
  {
    QTest::addColumn<QString>("input");
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<bool>("valid");
    QTest::newRow("plain word") << "abc" << "abc" << true;
    QTest::newRow("plain word keeps regex meaning") << "a.c" << "a.c" << true;
    QTest::newRow("plain word anchored") << "^top" << "^top" << true;
    QTest::newRow("unbalanced plain word") << "abc(" << "abc(" << false;
    QTest::newRow("wildcard") << "abc*" << "abc.*" << true;
    QTest::newRow("wildcard escapes the rest") << "a.b*" << "a\\.b.*" << true;
    QTest::newRow("wildcard keeps blanks") << "ab c*" << "ab c.*" << true;
    QTest::newRow("wildcard in the middle") << "a*(c" << "a.*\\(c" << true;
    QTest::newRow("two words") << "abc def" << "^(?=.*abc)(?=.*def)" << true;
    QTest::newRow("three words, runs of blanks") << "a  b\tc" << "^(?=.*a)(?=.*b)(?=.*c)" << true;
    QTest::newRow("words are escaped") << "a|b c.d" << "^(?=.*a\\|b)(?=.*c\\.d)" << true;
    QTest::newRow("one word with blanks around") << " abc " << "abc" << true;
    QTest::newRow("quoted keeps blanks") << "\" abc \"" << " abc " << true;
    QTest::newRow("quoted star is literal") << "\"a*b\"" << "a\\*b" << true;
    QTest::newRow("quoted regex characters") << "\"(x)\"" << "\\(x\\)" << true;
    QTest::newRow("lone quote") << "\"" << "" << true;
    QTest::newRow("two quotes") << "\"\"" << "" << true;
    QTest::newRow("opening quote only") << "\"abc" << "\"abc" << true;
    QTest::newRow("empty") << "" << "" << true;
  }

  void expression_forms()
  {
    QFETCH(QString, input);
    QFETCH(QString, pattern);
    QFETCH(bool, valid);
    EXPOSED_PROXY proxy;
    const QRegularExpression expression = proxy.process_keyword_expression(input);
    QCOMPARE(expression.pattern(), pattern);
    QCOMPARE(expression.patternOptions(), QRegularExpression::CaseInsensitiveOption);
    QCOMPARE(expression.isValid(), valid);
  }

  void rows_kept_data()
  {
    QTest::addColumn<QString>("tree");
    QTest::addColumn<QString>("input");
    QTest::addColumn<QList<int>>("columns");
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("include_child");
    QTest::addColumn<bool>("include_root");
    QTest::addColumn<QString>("kept");
    QTest::addColumn<int>("count");
    const QList<int> none;
    QTest::newRow("case-insensitive") << "xabcx;xyz" << "ABC" << none << 0 << true << false << "xabcx" << 1;
    QTest::newRow("words in different columns")
        << "r1|def 1|abc;r2|def 1|x;r3|abc def|" << "abc def" << QList<int>{1, 2} << 0 << true << false << "r1;r3"
        << 2;
    QTest::newRow("words and a wildcard") << "abc defg;def abc" << "abc def*" << none << 0 << true << false
                                          << "abc defg" << 1;
    QTest::newRow("quoted blanks") << "x abc y;xabc y" << "\" abc \"" << none << 0 << true << false << "x abc y"
                                   << 1;
    QTest::newRow("quoted blanks meet the column separator")
        << "r1|z|abc;r2|abc|z" << "\" abc \"" << QList<int>{1, 2} << 0 << true << false << "r1" << 1;
    QTest::newRow("plain word is a regular expression") << "abc;axc;ab" << "a.c" << none << 0 << true << false
                                                        << "abc;axc" << 2;
    QTest::newRow("wildcard form is literal") << "abc;a.cd" << "a.c*" << none << 0 << true << false << "a.cd"
                                              << 1;
    QTest::newRow("empty keeps everything") << "a{b};c" << "  " << none << 0 << true << false << "a{b};c" << 3;
    QTest::newRow("lone quote keeps everything") << "a{b};c" << "\"" << none << 0 << true << false << "a{b};c"
                                                 << 3;
    QTest::newRow("descendant of a match, include_child")
        << "abc{leaf;other};x" << "abc" << none << 0 << true << false << "abc{leaf;other}" << 1;
    QTest::newRow("descendant of a match, no include_child")
        << "abc{leaf;other};x" << "abc" << none << 0 << false << false << "abc" << 1;
    QTest::newRow("ancestors of a match stay") << "top{mid{abc;x};y}" << "abc" << none << 0 << false << false
                                               << "top{mid{abc}}" << 1;
    QTest::newRow("top-level rows kept with include_root")
        << "top{x};other;abc" << "abc" << none << 0 << true << true << "top;other;abc" << 3;
    QTest::newRow("top-level rows without include_root") << "top{x};other;abc" << "abc" << none << 0 << true
                                                         << false << "abc" << 1;
    QTest::newRow("invalid expression keeps nothing") << "abc(;abc" << "abc(" << QList<int>{0} << 0 << true
                                                      << false << "" << 0;
    QTest::newRow("missing key cell keeps every row") << "a{b};c" << "zzz" << none << 5 << true << false
                                                      << "a{b};c" << 3;
    QTest::newRow("any column as key") << "a|xabc;b|x;abc|y" << "abc" << none << -1 << true << false
                                       << "a;abc" << 2;
    QTest::newRow("non-ASCII text, Unicode case folding") << "\u00c4bc;abc" << "\u00e4bc" << none << 0 << true
                                                          << false << "\u00c4bc" << 1;
    QTest::newRow("Kelvin sign matches k") << "\u212aelvin;x" << "kelvin" << none << 0 << true << false
                                           << "\u212aelvin" << 1;
    QTest::newRow("words on the first line only") << "abc\ndef;abc def" << "abc def" << none << 0 << true
                                                  << false << "abc def" << 1;
  }

  void rows_kept()
  {
    QFETCH(QString, tree);
    QFETCH(QString, input);
    QFETCH(QList<int>, columns);
    QFETCH(int, key);
    QFETCH(bool, include_child);
    QFETCH(bool, include_root);
    QFETCH(QString, kept);
    QFETCH(int, count);
    FILTERED filtered(tree, key);
    for (const int column : columns)
      filtered.model.insert_filter_column(column);
    filtered.model.set_include_child(include_child);
    filtered.model.set_include_invisible_root_child(include_root);
    filtered.proxy->start_filter(input, true, true);
    QCOMPARE(kept_tree(*filtered.proxy), kept);
    QCOMPARE(int(filtered.proxy->get_search_result_count()), count);
  }

  void signals_in_order_data()
  {
    QTest::addColumn<QString>("call");
    QTest::addColumn<QString>("input");
    QTest::addColumn<bool>("filter");
    QTest::addColumn<QStringList>("emitted");
    QTest::newRow("filter") << "start" << "abc" << true
                            << QStringList{"filter_start", "filter_content abc", "filter_done"};
    QTest::newRow("filter cleared") << "start" << "  " << true
                                    << QStringList{"filter_start", "filter_content ", "filter_cancel"};
    QTest::newRow("lone quote") << "start" << "\"" << true
                                << QStringList{"filter_start", "filter_content ", "filter_cancel"};
    QTest::newRow("search") << "start" << "a b" << false
                            << QStringList{"filter_start", "search_content ^(?=.*a)(?=.*b)", "filter_done"};
    QTest::newRow("regexp_filter alone") << "regexp" << "abc*" << true
                                         << QStringList{"filter_content abc.*", "filter_done"};
    QTest::newRow("invalid expression still done") << "regexp" << "x(" << true
                                                   << QStringList{"filter_content x(", "filter_done"};
  }

  void signals_in_order()
  {
    QFETCH(QString, call);
    QFETCH(QString, input);
    QFETCH(bool, filter);
    QFETCH(QStringList, emitted);
    FILTERED filtered(QStringLiteral("abc;x"));
    QStringList seen;
    ORQ_TREE_FILTER_PROXY_MODEL* proxy = filtered.proxy;
    connect(proxy, &ORQ_TREE_FILTER_PROXY_MODEL::filter_start, this, [&] { seen << "filter_start"; });
    connect(proxy, &ORQ_TREE_FILTER_PROXY_MODEL::filter_done, this, [&] { seen << "filter_done"; });
    connect(proxy, &ORQ_TREE_FILTER_PROXY_MODEL::filter_cancel, this, [&] { seen << "filter_cancel"; });
    connect(proxy, &ORQ_TREE_FILTER_PROXY_MODEL::search_content, this,
            [&](const QRegularExpression& expression) { seen << "search_content " + expression.pattern(); });
    connect(proxy, &ORQ_TREE_FILTER_PROXY_MODEL::filter_content, this,
            [&](const QRegularExpression& expression) { seen << "filter_content " + expression.pattern(); });
    if (call == "start")
      proxy->start_filter(input, false, filter);
    else
      proxy->regexp_filter(input, false, filter);
    QCOMPARE(seen, emitted);
  }

  // Search use hides nothing as long as there are filter columns: every
  // joined text ends in a blank. Without them, only key texts holding a
  // blank stay.
  void search_use_data()
  {
    QTest::addColumn<QList<int>>("columns");
    QTest::addColumn<QString>("kept");
    QTest::newRow("with filter columns") << QList<int>{0} << "a b{c};d{e f};g";
    QTest::newRow("without filter columns") << QList<int>{} << "a b{c};d{e f}";
  }

  void search_use()
  {
    QFETCH(QList<int>, columns);
    QFETCH(QString, kept);
    FILTERED filtered(QStringLiteral("a b{c};d{e f};g"));
    for (const int column : columns)
      filtered.model.insert_filter_column(column);
    QSignalSpy search(filtered.proxy, &ORQ_TREE_FILTER_PROXY_MODEL::search_content);
    filtered.proxy->start_filter(QStringLiteral("zzz"), false, false);
    QCOMPARE(kept_tree(*filtered.proxy), kept);
    QCOMPARE(search.count(), 1);
    QCOMPARE(search.first().first().value<QRegularExpression>().pattern(), QStringLiteral("zzz"));
    QCOMPARE(filtered.proxy->filterRegularExpression().pattern(), QStringLiteral(" "));
  }

  void count_is_shared_by_every_proxy()
  {
    FILTERED first(QStringLiteral("abc;abcd;x"));
    FILTERED second(QStringLiteral("abc;y"));
    first.proxy->start_filter(QStringLiteral("abc"), false, true);
    QCOMPARE(kept_tree(*first.proxy), QStringLiteral("abc;abcd"));
    QCOMPARE(second.proxy->get_search_result_count(), 2u);
    second.proxy->start_filter(QStringLiteral("abc"), false, true);
    QCOMPARE(kept_tree(*second.proxy), QStringLiteral("abc"));
    QCOMPARE(first.proxy->get_search_result_count(), 1u);
  }

  // The kept answers must not outlive the data they were worked out from:
  // the base class re-filters a changed row the moment it hears of it.
  void edits_after_filtering_are_answered_by_the_new_data()
  {
    FILTERED filtered(QStringLiteral("top{abc;x;y}"));
    filtered.proxy->start_filter(QStringLiteral("abc"), false, true);
    QCOMPARE(kept_tree(*filtered.proxy), QStringLiteral("top{abc}"));
    QStandardItem* top = filtered.model.item(0);
    top->child(1)->setText(QStringLiteral("xabc"));
    QCOMPARE(kept_tree(*filtered.proxy), QStringLiteral("top{abc;xabc}"));
    top->child(0)->setText(QStringLiteral("gone"));
    QCOMPARE(kept_tree(*filtered.proxy), QStringLiteral("top{xabc}"));
    top->appendRow(new QStandardItem(QStringLiteral("abc again")));
    QCOMPARE(kept_tree(*filtered.proxy), QStringLiteral("top{xabc;abc again}"));
    filtered.proxy->start_filter(QStringLiteral("y"), false, true);
    QCOMPARE(kept_tree(*filtered.proxy), QStringLiteral("top{y}"));
  }

  // A keystroke never loses the user's place: a row that stays keeps its
  // persistent indexes (a tool's own, the view's selection, current row and
  // expansion), whether the rows that go are removed one run at a time or,
  // on a large tree, in one layout change. Nothing is reset, and a keystroke
  // that changes no row announces nothing.
  void keystrokes_keep_the_users_place_data()
  {
    QTest::addColumn<int>("modules");
    QTest::addColumn<bool>("layout_change");
    QTest::newRow("small tree, rows removed in place") << 8 << false;
    QTest::newRow("2,440 rows, one layout change") << 40 << true;
  }

  void keystrokes_keep_the_users_place()
  {
    QFETCH(int, modules);
    QFETCH(bool, layout_change);
    QObject owner; // the proxy becomes a child of the model's parent
    ORQ_TREE_FILTER_MODEL& model = *new ORQ_TREE_FILTER_MODEL(&owner);
    for (int m = 0; m < modules; ++m) {
      auto* module = new QStandardItem(QStringLiteral("u_mod_%1").arg(m));
      for (int i = 0; i < 60; ++i)
        module->appendRow(new QStandardItem(QStringLiteral("i_%1_%2").arg(i % 7 ? "nand" : "dff").arg(i)));
      model.appendRow(module);
    }
    model.create_filter_model(0);
    model.insert_filter_column(0); // search use then hides nothing
    ORQ_TREE_FILTER_PROXY_MODEL* proxy = model.get_filter_model();
    QAbstractItemModelTester tester(proxy, QAbstractItemModelTester::FailureReportingMode::QtTest);
    QTreeView view;
    view.setModel(proxy);
    view.resize(300, 400);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    view.expandAll();
    auto instance = [&](int m, int i) { return proxy->index(i, 0, proxy->index(m, 0)); };
    view.selectionModel()->setCurrentIndex(instance(3, 14), QItemSelectionModel::ClearAndSelect);
    view.selectionModel()->select(instance(5, 7), QItemSelectionModel::Select);
    const QPersistentModelIndex tool_index = instance(6, 21);
    const QPersistentModelIndex going = instance(6, 22);
    QSignalSpy resets(proxy, &QAbstractItemModel::modelReset);
    QSignalSpy layouts(proxy, &QAbstractItemModel::layoutChanged);
    QSignalSpy removals(proxy, &QAbstractItemModel::rowsRemoved);
    QSignalSpy insertions(proxy, &QAbstractItemModel::rowsInserted);

    proxy->start_filter(QStringLiteral("dff"), false, true);
    QCOMPARE(resets.count(), 0);
    QCOMPARE(layouts.count(), layout_change ? 1 : 0);
    QCOMPARE(removals.isEmpty(), layout_change);
    QCOMPARE(proxy->rowCount(proxy->index(modules - 1, 0)), 9);
    QVERIFY(tool_index.isValid());
    QCOMPARE(tool_index.data().toString(), QStringLiteral("i_dff_21"));
    QCOMPARE(tool_index.parent().data().toString(), QStringLiteral("u_mod_6"));
    QCOMPARE(tool_index.row(), 3);
    QVERIFY(!going.isValid());
    QCOMPARE(view.currentIndex().data().toString(), QStringLiteral("i_dff_14"));
    QCOMPARE(view.currentIndex().parent().data().toString(), QStringLiteral("u_mod_3"));
    QStringList selected;
    for (const QModelIndex& index : view.selectionModel()->selectedRows())
      selected << index.parent().data().toString() + QLatin1Char('/') + index.data().toString();
    selected.sort();
    QCOMPARE(selected, QStringList({QStringLiteral("u_mod_3/i_dff_14"), QStringLiteral("u_mod_5/i_dff_7")}));
    for (int m = 0; m < modules; ++m)
      QVERIFY2(view.isExpanded(proxy->index(m, 0)), qPrintable(QString::number(m)));
    // What the view lays out is the filtered tree, expanded as before.
    view.scrollTo(tool_index);
    QCOMPARE(view.indexAt(view.visualRect(tool_index).center()), QModelIndex(tool_index));

    // A trailing blank, and search use over an unfiltered tree, change no row.
    const int layouts_before = layouts.count();
    const int removals_before = removals.count();
    proxy->start_filter(QStringLiteral("dff "), false, true);
    proxy->start_filter(QStringLiteral(" dff"), false, true);
    QCOMPARE(layouts.count(), layouts_before);
    QCOMPARE(removals.count(), removals_before);
    proxy->start_filter(QString(), false, true);
    const int layouts_unfiltered = layouts.count();
    const int insertions_unfiltered = insertions.count();
    proxy->start_filter(QStringLiteral("nand"), false, false);
    QCOMPARE(layouts.count(), layouts_unfiltered);
    QCOMPARE(insertions.count(), insertions_unfiltered);
    QCOMPARE(resets.count(), 0);
    QCOMPARE(proxy->rowCount(proxy->index(0, 0)), 60);
    QVERIFY(tool_index.isValid());
    QCOMPARE(tool_index.row(), 21);
    QCOMPARE(view.currentIndex().data().toString(), QStringLiteral("i_dff_14"));
    QVERIFY(view.isExpanded(proxy->index(3, 0)));
  }

  // A second call with the same model must leave the base class's own
  // handling of the model's end in place.
  void source_set_twice_then_destroyed()
  {
    auto* model = new QStandardItemModel;
    int at = 0;
    build(model->invisibleRootItem(), QStringLiteral("a{b;c};d"), at);
    ORQ_TREE_FILTER_PROXY_MODEL proxy;
    proxy.setSourceModel(model);
    proxy.setSourceModel(model);
    proxy.start_filter(QStringLiteral("c"), false, true);
    QCOMPARE(kept_tree(proxy), QStringLiteral("a{c}"));
    delete model;
    QVERIFY(!proxy.sourceModel());
    QCOMPARE(proxy.rowCount(), 0);
    proxy.start_filter(QStringLiteral("d"), false, true);
    QCOMPARE(proxy.rowCount(), 0);
  }

  // The fast matcher stands in for QRegularExpression::match: random inputs
  // in every form against random texts, ASCII or not, with line breaks.
  void matcher_agrees_with_the_expression()
  {
    QRandomGenerator random(5);
    const QString alphabet = QStringLiteral("abcABC .*\"()|^$\\kKs\u212a\u017f\u00e4\n\t_12");
    auto text_of = [&](int length) {
      QString text;
      for (int i = 0; i < length; ++i)
        text += alphabet.at(int(random.bounded(alphabet.size())));
      return text;
    };
    EXPOSED_PROXY proxy;
    int checked = 0;
    for (int round = 0; round < orq_test_rounds(3000, 300); ++round) {
      const QRegularExpression expression =
          proxy.process_keyword_expression(text_of(int(random.bounded(7))).trimmed());
      if (!expression.isValid())
        continue;
      const ORQ_FILTER_MATCHER matcher(expression);
      for (int t = 0; t < 20; ++t) {
        const QString text = text_of(int(random.bounded(12)));
        QVERIFY2(matcher.matches(text) == expression.match(text).hasMatch(),
                 qPrintable(QStringLiteral("pattern '%1' text '%2'").arg(expression.pattern(), text)));
        ++checked;
      }
    }
    QVERIFY(checked > orq_test_rounds(40000, 4000));
  }
};

ORQ_TEST_REGISTER(TST_TREE_FILTER_PROXY);
#include "tst_tree_filter_proxy.moc"
