// ORQ_TREE_VIEW: the expansion and check-state memories across resets and
// through a proxy, column settings in real per-user settings files, the
// header's column menu, the text dump's bytes, copying and F1 help.
#include "orq_test_support.h"

#include <orq.h>

#include <gen_help.h>
#include <gen_settings.h>

#include <QAbstractItemModelTester>
#include <QClipboard>
#include <QDir>
#include <QHeaderView>
#include <QMenu>
#include <QSignalSpy>

#include <fstream>
#include <memory>
#include <sstream>
#include <streambuf>

namespace {

// Fills a model from "[A[B C] D]": name in column 0, then "<name>.1",
// "<name>.2", ... up to the header's column count.
void fill(ORQ_TREE_MODEL& model, const QString& text, const QStringList& headers)
{
  model.clear();
  model.setHorizontalHeaderLabels(headers);
  orq_test_fill_tree(model.invisibleRootItem(), text, headers.size());
}

const QStringList k_two_columns{QStringLiteral("Name"), QStringLiteral("Value")};

// A view over a model built from a tree string, both under test.
struct FIXTURE {
  QWidget parent;
  ORQ_TREE_MODEL model;
  std::unique_ptr<QAbstractItemModelTester> tester;
  ORQ_TREE_VIEW* view = new ORQ_TREE_VIEW(&parent);

  explicit FIXTURE(const QString& text, const QStringList& headers = k_two_columns)
  {
    fill(model, text, headers);
    tester.reset(
        new QAbstractItemModelTester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest));
    view->setModel(&model);
  }

  QModelIndex at(const QString& name) const
  {
    const QModelIndexList found = view->model()->match(view->model()->index(0, 0), Qt::DisplayRole, name, 1,
                                                       Qt::MatchExactly | Qt::MatchRecursive);
    return found.isEmpty() ? QModelIndex() : found.first();
  }
};

// The tree as "[A+[B C] D]": '+' marks an expanded row that has children.
QString expansion(const QTreeView& view, const QModelIndex& parent = {})
{
  const QAbstractItemModel* model = view.model();
  QStringList rows;
  for (int r = 0; r < model->rowCount(parent); ++r) {
    const QModelIndex row = model->index(r, 0, parent);
    QString text = row.data().toString();
    if (model->rowCount(row) > 0)
      text += (view.isExpanded(row) ? QStringLiteral("+") : QString()) + expansion(view, row);
    rows << text;
  }
  return QLatin1Char('[') + rows.join(QLatin1Char(' ')) + QLatin1Char(']');
}

QString memory_keys(const ORQ_TREE_VIEW& view)
{
  QStringList out;
  for (auto it = view.expansion_memory().cbegin(); it != view.expansion_memory().cend(); ++it)
    out << it.key() + (it.value() ? QStringLiteral("=1") : QStringLiteral("=0"));
  return out.join(QLatin1Char(' '));
}

// The tree's check states as "[A:2[B:1] C:0]".
QString check_states(const QAbstractItemModel& model, const QModelIndex& parent = {})
{
  QStringList rows;
  for (int r = 0; r < model.rowCount(parent); ++r) {
    const QModelIndex row = model.index(r, 0, parent);
    QString text =
        row.data().toString() + QLatin1Char(':') + QString::number(row.data(Qt::CheckStateRole).toInt());
    if (model.rowCount(row) > 0)
      text += check_states(model, row);
    rows << text;
  }
  return QLatin1Char('[') + rows.join(QLatin1Char(' ')) + QLatin1Char(']');
}

// Exposes the menu operation a header's context menu uses.
class MENU_VIEW : public ORQ_TREE_VIEW {
public:
  using ORQ_TREE_VIEW::get_path;
  using ORQ_TREE_VIEW::ORQ_TREE_VIEW;
  using ORQ_TREE_VIEW::populate_column_selection_menu;
};

QString entries(const QMenu& menu)
{
  QStringList out;
  for (const QAction* action : menu.actions())
    out << action->text() + (action->isChecked() ? QStringLiteral("*") : QString()) +
               (action->isEnabled() ? QString() : QStringLiteral("!"));
  return out.join(QLatin1Char(' '));
}

QByteArray read_all(const QString& path)
{
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void write_all(const QString& path, const QByteArray& data)
{
  QDir().mkpath(QFileInfo(path).absolutePath());
  QFile file(path);
  QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
  file.write(data);
}

// A stream buffer that takes limit bytes and then fails every write.
class LIMITED_BUFFER : public std::streambuf {
public:
  explicit LIMITED_BUFFER(std::size_t limit)
      : m_limit(limit)
  {
  }
  std::string written;

protected:
  int_type overflow(int_type ch) override
  {
    if (ch == traits_type::eof() || written.size() >= m_limit)
      return traits_type::eof();
    written += char(ch);
    return ch;
  }
  std::streamsize xsputn(const char* s, std::streamsize n) override
  {
    std::streamsize done = 0;
    while (done < n && written.size() < m_limit)
      written += s[done++];
    return done;
  }

private:
  std::size_t m_limit;
};

const QString k_root = QStringLiteral("TreeViewColumns/");

} // namespace

class TST_TREE_VIEW : public QObject {
  Q_OBJECT
private slots:
  void initTestCase() { orq_test_strict_messages(); }

  void defaults_suit_reports()
  {
    FIXTURE f(QStringLiteral("[A]"));
    QVERIFY(f.view->uniformRowHeights());
    QCOMPARE(f.view->selectionBehavior(), QAbstractItemView::SelectRows);
    QCOMPARE(f.view->selectionMode(), QAbstractItemView::ExtendedSelection);
    QCOMPARE(f.view->header()->contextMenuPolicy(), Qt::CustomContextMenu);
    QVERIFY(!f.view->remembers_check_states());
  }

  void expansion_survives_a_reset()
  {
    FIXTURE f(QStringLiteral("[A[B[C] D] E[F]]"));
    f.view->expand(f.at(QStringLiteral("A")));
    f.view->expand(f.at(QStringLiteral("B")));
    QCOMPARE(expansion(*f.view), QStringLiteral("[A+[B+[C] D] E[F]]"));
    f.view->save_expandable_state(QModelIndex(), true);
    QCOMPARE(memory_keys(*f.view), QStringLiteral("A=1 A||B=1 A||B||C=1 A||D=1 E=0 E||F=1"));

    // The report is rebuilt with a new branch G; everything opens first so
    // that collapsing is the restore's doing.
    fill(f.model, QStringLiteral("[A[B[C] D] E[F] G[H]]"), k_two_columns);
    QCOMPARE(expansion(*f.view), QStringLiteral("[A[B[C] D] E[F] G[H]]"));
    f.view->expandAll();
    QVERIFY(f.view->restore_expandable_state());
    QCOMPARE(expansion(*f.view), QStringLiteral("[A+[B+[C] D] E[F] G[H]]"));
    QVERIFY(f.view->was_item_expanded_previously(f.at(QStringLiteral("B"))));
    QVERIFY(!f.view->was_item_expanded_previously(f.at(QStringLiteral("E"))));
    QVERIFY(!f.view->was_item_expanded_previously(f.at(QStringLiteral("G"))));
    QVERIFY(!f.view->was_item_expanded_previously(QModelIndex()));
  }

  void restore_answers_whether_anything_is_remembered()
  {
    FIXTURE f(QStringLiteral("[A[B]]"));
    f.view->expandAll();
    QVERIFY(!f.view->restore_expandable_state());
    QCOMPARE(expansion(*f.view), QStringLiteral("[A[B]]"));
    f.view->save_expandable_state(QModelIndex(), true);
    QVERIFY(f.view->restore_expandable_state(f.at(QStringLiteral("A"))));
    // A model without rows gives false whatever is remembered.
    f.model.clear();
    QVERIFY(!f.view->restore_expandable_state());
  }

  void a_subtree_is_restored_alone()
  {
    FIXTURE f(QStringLiteral("[A[B[C]] D[E]]"));
    f.view->expandAll();
    f.view->save_expandable_state(QModelIndex(), true);
    f.view->collapseAll();
    QVERIFY(f.view->restore_expandable_state(f.at(QStringLiteral("B"))));
    QCOMPARE(expansion(*f.view), QStringLiteral("[A[B+[C]] D[E]]"));
  }

  // QStandardItem::setRowCount on an item without columns makes rows that
  // have no index at all.
  void rows_without_columns_are_passed_over()
  {
    FIXTURE f(QStringLiteral("[A[B[C]] D]"));
    f.model.itemFromIndex(f.at(QStringLiteral("D")))->setRowCount(2);
    f.view->expand(f.at(QStringLiteral("A")));
    f.view->save_expandable_state(QModelIndex(), true);
    f.view->save_expandable_state(f.at(QStringLiteral("D")), false);
    f.view->collapseAll();
    QVERIFY(f.view->restore_expandable_state());
    QVERIFY(f.view->restore_expandable_state(f.at(QStringLiteral("D"))));
    QVERIFY(f.view->isExpanded(f.at(QStringLiteral("A"))));
    QVERIFY(!f.view->isExpanded(f.at(QStringLiteral("B"))));
  }

  void a_leaf_is_remembered_as_expanded()
  {
    FIXTURE f(QStringLiteral("[A[B C]]"));
    f.view->save_expandable_state(QModelIndex(), true);
    QCOMPARE(memory_keys(*f.view), QStringLiteral("A=0 A||B=1 A||C=1"));
    // So the row opens once it has children of its own.
    f.model.itemFromIndex(f.at(QStringLiteral("B")))->appendRow(new QStandardItem(QStringLiteral("X")));
    f.view->expand(f.at(QStringLiteral("A")));
    QVERIFY(f.view->restore_expandable_state());
    QCOMPARE(expansion(*f.view), QStringLiteral("[A[B+[X] C]]"));
  }

  void save_forms_data()
  {
    QTest::addColumn<QString>("form");
    QTest::addColumn<bool>("clear");
    QTest::addColumn<QString>("remembered");
    // Whole tree with clear: only the last top-level subtree survives.
    QTest::newRow("whole tree, clear") << "whole" << true << "E=1 E||F=1";
    QTest::newRow("whole tree, keep") << "whole" << false << "A=1 A||B=1 E=1 E||F=1 Z=1";
    QTest::newRow("invalid index, clear") << "invalid" << true << "A=1 A||B=1 E=1 E||F=1";
    QTest::newRow("invalid index, keep") << "invalid" << false << "A=1 A||B=1 E=1 E||F=1 Z=1";
    QTest::newRow("index of A, clear") << "index" << true << "A=1 A||B=1";
    QTest::newRow("item of A, keep") << "item" << false << "A=1 A||B=1 Z=1";
    QTest::newRow("null item, clear") << "null item" << true << "A=1 A||B=1 E=1 E||F=1";
  }

  void save_forms()
  {
    QFETCH(QString, form);
    QFETCH(bool, clear);
    QFETCH(QString, remembered);
    FIXTURE f(QStringLiteral("[A[B] E[F]]"));
    f.view->expandAll();
    // Something remembered before, under a path this tree does not have.
    FIXTURE other(QStringLiteral("[Z]"));
    other.view->save_expandable_state(QModelIndex(), false);
    f.view->setModel(&other.model);
    f.view->save_expandable_state(QModelIndex(), false);
    f.view->setModel(&f.model);
    f.view->expandAll();
    if (form == QLatin1String("whole"))
      f.view->save_expandable_state(clear);
    else if (form == QLatin1String("invalid"))
      f.view->save_expandable_state(QModelIndex(), clear);
    else if (form == QLatin1String("index"))
      f.view->save_expandable_state(f.at(QStringLiteral("A")), clear);
    else if (form == QLatin1String("item"))
      f.view->save_expandable_state(f.model.itemFromIndex(f.at(QStringLiteral("A"))), clear);
    else
      f.view->save_expandable_state(static_cast<QStandardItem*>(nullptr), clear);
    QCOMPARE(memory_keys(*f.view), remembered);
  }

  void paths_join_display_texts_of_the_ancestors()
  {
    QWidget parent;
    ORQ_TREE_MODEL model;
    fill(model, QStringLiteral("[Design[Unit]]"), k_two_columns);
    model.itemFromIndex(model.index(0, 0, model.index(0, 0)))
        ->appendRow(new QStandardItem(QStringLiteral("Port 3")));
    auto* view = new MENU_VIEW(&parent);
    view->setModel(&model);
    const QModelIndex port = model.index(0, 0, model.index(0, 0, model.index(0, 0)));
    QCOMPARE(view->get_path(port), QStringLiteral("Design||Unit||Port 3"));
    QCOMPARE(view->get_path(model.itemFromIndex(port)), QStringLiteral("Design||Unit||Port 3"));
    // A cell of another column is keyed by its own text under the row's ancestors.
    QCOMPARE(view->get_path(port.parent().siblingAtColumn(1)), QStringLiteral("Design||Unit.1"));
    ORQ_TREE_FILTER_PROXY_MODEL proxy;
    proxy.setSourceModel(&model);
    view->setModel(&proxy);
    QCOMPARE(view->get_path(proxy.mapFromSource(port)), QStringLiteral("Port 3"));
    QCOMPARE(view->get_path(model.itemFromIndex(port)), QString());
  }

  void check_states_are_recorded_and_restored_as_partial()
  {
    FIXTURE f(QStringLiteral("[A[B C] D]"));
    const QList<std::pair<QString, Qt::CheckState>> states{{QStringLiteral("A"), Qt::Checked},
                                                           {QStringLiteral("B"), Qt::PartiallyChecked},
                                                           {QStringLiteral("C"), Qt::Unchecked}};
    for (const auto& state : states) {
      QStandardItem* item = f.model.itemFromIndex(f.at(state.first));
      item->setCheckable(true);
      item->setCheckState(state.second);
    }
    f.view->save_expandable_state(QModelIndex(), true);
    QVERIFY(f.view->check_state_memory().isEmpty());
    f.view->set_remember_check_states(true);
    f.view->save_expandable_state(QModelIndex(), true);
    QCOMPARE(f.view->check_state_memory(),
             (QMap<QString, int>{{"A", 2}, {"A||B", 1}, {"A||C", 0}, {"D", 0}}));
    QVERIFY(f.view->restore_expandable_state());
    // Every restored row is partially checked, whatever was remembered.
    QCOMPARE(check_states(f.model), QStringLiteral("[A:1[B:1 C:1] D:1]"));
  }

  void rows_of_equal_text_share_one_state_through_a_proxy()
  {
    QWidget parent;
    ORQ_TREE_MODEL model;
    fill(model, QStringLiteral("[A[N[x]] B[N[y]]]"), k_two_columns);
    ORQ_TREE_FILTER_PROXY_MODEL proxy;
    proxy.setSourceModel(&model);
    QAbstractItemModelTester tester(&proxy, QAbstractItemModelTester::FailureReportingMode::QtTest);
    auto* view = new ORQ_TREE_VIEW(&parent);
    view->setModel(&proxy);
    const QModelIndex a = proxy.index(0, 0);
    const QModelIndex b = proxy.index(1, 0);
    const QModelIndex a_net = proxy.index(0, 0, a);
    const QModelIndex b_net = proxy.index(0, 0, b);
    view->expand(a);
    view->expand(b);
    view->expand(b_net);
    QCOMPARE(expansion(*view), QStringLiteral("[A+[N[x]] B+[N+[y]]]"));
    view->save_expandable_state(QModelIndex(), true);
    QCOMPARE(memory_keys(*view), QStringLiteral("A=1 B=1 N=1 x=1 y=1"));
    QVERIFY(view->was_item_expanded_previously(a_net));
    view->collapseAll();
    // A row is set by its own text alone; its subtree is left as it is.
    QVERIFY(view->restore_expandable_state(a_net));
    QCOMPARE(expansion(*view), QStringLiteral("[A[N+[x]] B[N[y]]]"));
    // The whole-tree restore reaches the top-level rows only.
    QVERIFY(view->restore_expandable_state());
    QCOMPARE(expansion(*view), QStringLiteral("[A+[N+[x]] B+[N[y]]]"));

    // The later of two equal texts wins when saving.
    view->expandAll();
    view->collapse(b_net);
    view->save_expandable_state(QModelIndex(), true);
    QVERIFY(!view->was_item_expanded_previously(a_net));
  }

  void a_proxy_row_remembers_only_its_children()
  {
    QWidget parent;
    ORQ_TREE_MODEL model;
    fill(model, QStringLiteral("[A[N[x]] B[M]]"), k_two_columns);
    ORQ_TREE_FILTER_PROXY_MODEL proxy;
    proxy.setSourceModel(&model);
    auto* view = new ORQ_TREE_VIEW(&parent);
    view->setModel(&proxy);
    view->expandAll();
    view->save_expandable_state(true);
    QCOMPARE(memory_keys(*view), QStringLiteral("M=1"));
    view->save_expandable_state(proxy.index(0, 0), false);
    QCOMPARE(memory_keys(*view), QStringLiteral("M=1 N=1 x=1"));
  }

  void column_settings_go_to_the_per_user_file()
  {
    FIXTURE f(QStringLiteral("[A[B]]"),
              {QStringLiteral("Name"), QStringLiteral("Type"), QStringLiteral("Size")});
    f.parent.setObjectName(QStringLiteral("netlist_report"));
    f.view->setColumnWidth(0, 123);
    f.view->setColumnWidth(2, 45);
    f.view->setColumnHidden(1, true);
    f.view->save_column_visibility_to_registry();

    const QString path = GEN_SETTINGS::default_file_name();
    QCOMPARE(gen_settings().file_name(), path);
    QVERIFY(path.startsWith(orq_test_home()));
    GEN_SETTINGS reread(path);
    QCOMPARE(reread.problem(), QString());
    const QString key = k_root + QStringLiteral("netlist_report");
    QCOMPARE(reread.names(key),
             (QStringList{"Name_column_size", "Name_column_visibility", "Size_column_size",
                          "Size_column_visibility", "Type_column_size", "Type_column_visibility"}));
    // "visibility" holds true for a hidden column.
    QCOMPARE(reread.value(key, QStringLiteral("Type_column_visibility")).toString(), QStringLiteral("true"));
    QCOMPARE(reread.value(key, QStringLiteral("Name_column_visibility")).toString(), QStringLiteral("false"));
    QCOMPARE(reread.value(key, QStringLiteral("Name_column_size")).toString(), QStringLiteral("123"));
    QCOMPARE(reread.value(key, QStringLiteral("Size_column_size")).toString(), QStringLiteral("45"));
  }

  void column_settings_are_matched_by_header_text()
  {
    const QString path = orq_test_home() + QStringLiteral("/column_settings/matched.ini");
    write_all(path, "[TreeViewColumns]\n"
                    "cell_report\\Name_column_visibility=false\n"
                    "cell_report\\Name_column_size=123\n"
                    "cell_report\\Type_column_visibility=true\n"
                    "cell_report\\Type_column_size=77\n"
                    "cell_report\\Size_column_visibility=false\n"
                    "cell_report\\Size_column_size=45\n");
    GEN_SETTINGS settings(path);
    QCOMPARE(settings.problem(), QString());
    gen_set_settings(&settings);
    // Reordered, with a new column and an always-hidden one.
    FIXTURE f(QStringLiteral("[A[B]]"),
              {QStringLiteral("Size"), QStringLiteral("Fresh"), QStringLiteral("Name"),
               QStringLiteral("Type"), QStringLiteral("Later")});
    f.view->set_column_visibility_registry_string(QStringLiteral("cell_report"));
    f.view->set_column_always_hidden(0, true);
    f.view->setColumnHidden(4, true);
    f.view->setColumnWidth(1, 7);
    f.view->setColumnWidth(3, 9);
    f.view->load_column_visibility_from_registry();
    gen_set_settings(nullptr);
    // Stored visible, always hidden: stays hidden, width as stored.
    QVERIFY(f.view->isColumnHidden(0));
    QVERIFY(!f.view->isColumnHidden(2));
    QCOMPARE(f.view->columnWidth(2), 123);
    QVERIFY(f.view->isColumnHidden(3));
    // A hidden column's width shows once it is shown again.
    f.view->setColumnHidden(0, false);
    f.view->setColumnHidden(3, false);
    QCOMPARE(f.view->columnWidth(0), 45);
    QCOMPARE(f.view->columnWidth(3), 77);
    // Nothing stored: hidden state alone, width to the contents.
    QVERIFY(!f.view->isColumnHidden(1));
    QVERIFY(f.view->isColumnHidden(4));
    QVERIFY(f.view->columnWidth(1) != 7);
    const int fitted = f.view->columnWidth(1);
    f.view->resizeColumnToContents(1);
    QCOMPARE(f.view->columnWidth(1), fitted);
  }

  void the_key_defaults_to_the_parent_name_and_needs_a_parent()
  {
    FIXTURE f(QStringLiteral("[A]"));
    f.parent.setObjectName(QStringLiteral("pin_report"));
    f.view->setColumnWidth(0, 88);
    f.view->save_column_visibility_to_registry();
    QCOMPARE(gen_settings()
                 .value(k_root + QStringLiteral("pin_report"), QStringLiteral("Name_column_size"))
                 .toInt(),
             88);
    f.view->set_column_visibility_registry_string(QStringLiteral("pin_report_2"));
    f.view->save_column_visibility_to_registry();
    QVERIFY(gen_settings().contains(k_root + QStringLiteral("pin_report_2"),
                                    QStringLiteral("Value_column_size")));

    ORQ_TREE_VIEW orphan;
    orphan.setModel(&f.model);
    orphan.set_column_visibility_registry_string(QStringLiteral("orphan_report"));
    orphan.save_column_visibility_to_registry();
    QVERIFY(gen_settings().names(k_root + QStringLiteral("orphan_report")).isEmpty());

    f.parent.setObjectName(QString());
    f.view->set_column_visibility_registry_string(QString());
    QCOMPARE(orq_test_internal_error([&] { f.view->save_column_visibility_to_registry(); }),
             QStringLiteral("!registry_string.isEmpty()"));
    QCOMPARE(orq_test_internal_error([&] { f.view->load_column_visibility_from_registry(); }),
             QStringLiteral("!registry_string.isEmpty()"));
  }

  void damaged_stored_values_are_ignored_data()
  {
    QTest::addColumn<QByteArray>("lines");
    QTest::addColumn<QString>("warning");
    QTest::addColumn<bool>("value_hidden");
    QTest::addColumn<bool>("value_fitted");
    QTest::newRow("visibility not a bool")
        << QByteArray("r\\Value_column_visibility=perhaps\nr\\Value_column_size=60\n")
        << "Ignoring the stored value TreeViewColumns/r/Value_column_visibility, which is not a bool" << false
        << false;
    QTest::newRow("size not a number")
        << QByteArray("r\\Value_column_visibility=true\nr\\Value_column_size=wide\n")
        << "Ignoring the stored value TreeViewColumns/r/Value_column_size, which is not a column width"
        << true << true;
    QTest::newRow("negative size")
        << QByteArray("r\\Value_column_visibility=true\nr\\Value_column_size=-5\n")
        << "Ignoring the stored value TreeViewColumns/r/Value_column_size, which is not a column width"
        << true << true;
    QTest::newRow("absurd size")
        << QByteArray("r\\Value_column_visibility=true\nr\\Value_column_size=99999999999\n")
        << "Ignoring the stored value TreeViewColumns/r/Value_column_size, which is not a column width"
        << true << true;
    QTest::newRow("list instead of a size")
        << QByteArray("r\\Value_column_visibility=true\nr\\Value_column_size=1, 2\n")
        << "Ignoring the stored value TreeViewColumns/r/Value_column_size, which is not a column width"
        << true << true;
  }

  void damaged_stored_values_are_ignored()
  {
    QFETCH(QByteArray, lines);
    QFETCH(QString, warning);
    QFETCH(bool, value_hidden);
    QFETCH(bool, value_fitted);
    const QString path = orq_test_home() + QStringLiteral("/column_settings/damaged.ini");
    write_all(path, "[TreeViewColumns]\nr\\Name_column_visibility=true\nr\\Name_column_size=66\n" + lines);
    GEN_SETTINGS settings(path);
    gen_set_settings(&settings);
    FIXTURE f(QStringLiteral("[Alpha[Beta]]"));
    f.view->set_column_visibility_registry_string(QStringLiteral("r"));
    // Widths are compared as stored, not as stretched into the view.
    f.view->header()->setStretchLastSection(false);
    f.view->setColumnWidth(1, 3);
    QTest::ignoreMessage(QtWarningMsg, qPrintable(warning));
    f.view->load_column_visibility_from_registry();
    gen_set_settings(nullptr);
    // The other values are applied all the same.
    QVERIFY(f.view->isColumnHidden(0));
    QCOMPARE(f.view->isColumnHidden(1), value_hidden);
    f.view->setColumnHidden(0, false);
    QCOMPARE(f.view->columnWidth(0), 66);
    f.view->setColumnHidden(1, false);
    if (value_fitted) {
      QVERIFY(f.view->columnWidth(1) != 3);
      const int fitted = f.view->columnWidth(1);
      f.view->resizeColumnToContents(1);
      QCOMPARE(f.view->columnWidth(1), fitted);
    } else {
      QCOMPARE(f.view->columnWidth(1), 60);
    }
  }

  void a_single_column_offers_nothing()
  {
    QWidget parent;
    ORQ_TREE_MODEL model;
    fill(model, QStringLiteral("[A]"), {QStringLiteral("Name")});
    auto* view = new MENU_VIEW(&parent);
    view->setModel(&model);
    QMenu menu;
    view->populate_column_selection_menu(&menu);
    QVERIFY(menu.actions().isEmpty());
  }

  void the_column_menu_flips_columns()
  {
    QWidget parent;
    ORQ_TREE_MODEL model;
    fill(model, QStringLiteral("[A[B]]"),
         {QStringLiteral("Name"), QString(), QStringLiteral("Type"), QStringLiteral("Secret"),
          QStringLiteral("Size")});
    auto* view = new MENU_VIEW(&parent);
    view->setModel(&model);
    view->set_column_always_hidden(3, true);
    QVERIFY(view->isColumnHidden(3));
    view->setColumnHidden(2, true);
    view->setColumnWidth(2, 4);
    QSignalSpy changed(view, &ORQ_TREE_VIEW::column_visibility_changed);
    {
      QMenu menu;
      view->populate_column_selection_menu(&menu);
      QCOMPARE(entries(menu), QStringLiteral("Name* Type Size*"));
      menu.actions().at(1)->trigger();
    }
    QVERIFY(!view->isColumnHidden(2));
    QVERIFY(view->columnWidth(2) > 4);
    {
      QMenu menu;
      view->populate_column_selection_menu(&menu);
      QCOMPARE(entries(menu), QStringLiteral("Name* Type* Size*"));
      menu.actions().at(0)->trigger();
      menu.actions().at(2)->trigger();
    }
    QVERIFY(view->isColumnHidden(0));
    QVERIFY(view->isColumnHidden(4));
    QCOMPARE(changed.size(), 3);
    QCOMPARE(changed.at(0).at(0).toInt(), 2);
    QCOMPARE(changed.at(1).at(0).toInt(), 0);
    QCOMPARE(changed.at(2).at(0).toInt(), 4);
    // The column without a header text stays visible: Type is the last
    // offered one but not the last visible one.
    QMenu menu;
    view->populate_column_selection_menu(&menu);
    QCOMPARE(entries(menu), QStringLiteral("Name Type* Size"));
    view->setColumnHidden(1, true);
    QMenu last;
    view->populate_column_selection_menu(&last);
    QCOMPARE(entries(last), QStringLiteral("Name Type*! Size"));
  }

  void the_column_menu_needs_a_menu_and_a_model()
  {
    MENU_VIEW view;
    QMenu menu;
    QCOMPARE(orq_test_internal_error([&] { view.populate_column_selection_menu(&menu); }),
             QStringLiteral("view_model != NULL"));
    ORQ_TREE_MODEL model;
    view.setModel(&model);
    QCOMPARE(orq_test_internal_error([&] { view.populate_column_selection_menu(nullptr); }),
             QStringLiteral("menu != NULL"));
  }

  void always_hidden_columns_data()
  {
    QTest::addColumn<int>("column");
    QTest::addColumn<bool>("always_hidden");
    QTest::newRow("set") << 2 << true;
    QTest::newRow("unset") << 1 << false;
    QTest::newRow("beyond") << 9 << false;
    QTest::newRow("negative") << -1 << false;
  }

  void always_hidden_columns()
  {
    QFETCH(int, column);
    QFETCH(bool, always_hidden);
    ORQ_TREE_VIEW view;
    view.set_column_always_hidden(1, true);
    view.set_column_always_hidden(2, true);
    view.set_column_always_hidden(1, false);
    view.set_column_always_hidden(-1, true);
    QCOMPARE(view.is_column_always_hidden(column), always_hidden);
  }

  void dump_data()
  {
    QTest::addColumn<QString>("start");
    QTest::addColumn<int>("level");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("everything") << "" << 0
                                << QByteArray("|-A\tA.2\t\n|--B\tB.2\t\n|---C\tC.2\t\n|-D\tD.2\t\n");
    QTest::newRow("a subtree") << "B" << 0 << QByteArray("B\tB.2\t\n|-C\tC.2\t\n");
    QTest::newRow("a subtree deeper") << "B" << 2 << QByteArray("|--B\tB.2\t\n|---C\tC.2\t\n");
  }

  void dump()
  {
    QFETCH(QString, start);
    QFETCH(int, level);
    QFETCH(QByteArray, bytes);
    FIXTURE f(QStringLiteral("[A[B[C]] D]"),
              {QStringLiteral("Name"), QStringLiteral("Kind"), QStringLiteral("Size")});
    f.view->setColumnHidden(1, true);
    // Collapsed rows are written all the same.
    QVERIFY(!f.view->isExpanded(f.at(QStringLiteral("A"))));
    const QString path = orq_test_home() + QStringLiteral("/dump.txt");
    {
      std::ofstream stream(QFile::encodeName(path).constData(), std::ios::binary);
      QVERIFY(f.view->dump_tree_view_data(start.isEmpty() ? QModelIndex() : f.at(start), stream, level));
    }
    QCOMPARE(read_all(path), bytes);
  }

  void dump_writes_what_a_filter_kept()
  {
    ORQ_TREE_MODEL model;
    fill(model, QStringLiteral("[A[B] C]"), k_two_columns);
    ORQ_TREE_FILTER_PROXY_MODEL proxy;
    proxy.setSourceModel(&model);
    proxy.start_filter(QStringLiteral("B"), false, true);
    ORQ_TREE_VIEW view;
    view.setModel(&proxy);
    std::ostringstream stream;
    QVERIFY(view.dump_tree_view_data(QModelIndex(), stream, 0));
    QCOMPARE(QByteArray::fromStdString(stream.str()), QByteArray("|-A\tA.1\t\n|--B\tB.1\t\n"));
  }

  void a_failing_stream_stops_the_dump()
  {
    FIXTURE f(QStringLiteral("[A[B] C]"));
    LIMITED_BUFFER buffer(10);
    std::ostream stream(&buffer);
    QTest::ignoreMessage(QtWarningMsg, "The tree dump stopped: the stream failed while writing");
    QVERIFY(!f.view->dump_tree_view_data(QModelIndex(), stream, 0));
    QCOMPARE(QByteArray::fromStdString(buffer.written), QByteArray("|-A\tA.1\t\n|"));

    std::ofstream closed;
    QTest::ignoreMessage(QtWarningMsg, "The tree dump was not written: the stream had already failed");
    closed.setstate(std::ios::badbit);
    QVERIFY(!f.view->dump_tree_view_data(QModelIndex(), closed, 0));

    ORQ_TREE_VIEW empty;
    std::ostringstream out;
    QCOMPARE(orq_test_internal_error([&] { empty.dump_tree_view_data(QModelIndex(), out, 0); }),
             QStringLiteral("view_model != NULL"));
    QCOMPARE(orq_test_internal_error([&] { empty.save_expandable_state(true); }),
             QStringLiteral("view_model != NULL"));
    QCOMPARE(orq_test_internal_error([&] { empty.restore_expandable_state(); }),
             QStringLiteral("view_model != NULL"));
  }

  void copy_takes_the_selected_rows_in_tree_order()
  {
    FIXTURE f(QStringLiteral("[A[B] C]"),
              {QStringLiteral("Name"), QStringLiteral("Kind"), QStringLiteral("Size")});
    f.view->setColumnHidden(1, true);
    f.view->header()->moveSection(2, 0);
    f.view->expandAll();
    f.view->selectionModel()->select(f.at(QStringLiteral("C")),
                                     QItemSelectionModel::Select | QItemSelectionModel::Rows);
    f.view->selectionModel()->select(f.at(QStringLiteral("B")),
                                     QItemSelectionModel::Select | QItemSelectionModel::Rows);
    f.view->selectionModel()->select(f.at(QStringLiteral("A")),
                                     QItemSelectionModel::Select | QItemSelectionModel::Rows);
    const QString expected = QStringLiteral("A.2\tA\nB.2\tB\nC.2\tC\n");
    QCOMPARE(f.view->selected_rows_text(), expected);
    QApplication::clipboard()->clear();
    QTest::keyClick(f.view, Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QApplication::clipboard()->text(), expected);
  }

  void f1_asks_for_help_on_the_report()
  {
    ORQ_TEST_HELP_RECORDER help;
    gen_set_help(&help);
    ORQ_MAIN_WINDOW window;
    ORQ_TREE_MODEL model;
    fill(model, QStringLiteral("[A]"), k_two_columns);
    auto* view = new ORQ_TREE_VIEW;
    view->setModel(&model);
    view->set_column_visibility_registry_string(QStringLiteral("net_report"));
    window.setCentralWidget(view);
    window.setObjectName(QStringLiteral("main"));
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    window.activateWindow();
    view->setFocus();
    QTRY_VERIFY(view->hasFocus());
    QTest::keyClick(view, Qt::Key_F1);
    view->setObjectName(QStringLiteral("nets"));
    QTest::keyClick(view, Qt::Key_F1);
    gen_set_help(nullptr);
    QCOMPARE(help.topics, (QStringList{QStringLiteral("net_report"), QStringLiteral("nets")}));
  }
};

ORQ_TEST_REGISTER(TST_TREE_VIEW);
#include "tst_tree_view.moc"
