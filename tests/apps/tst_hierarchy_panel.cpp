// The viewer's Hierarchy panel in the test process, driven as a user drives
// it: rows opened with the keyboard and picked with the mouse, a filter typed
// into its line and cleared with its button or backspaces, columns changed on
// the header; what comes back, and what File > Export Hierarchy writes.
#include "orq_test_support.h"

#include "design_hierarchy.h"
#include "hierarchy_expectations.h"
#include "hierarchy_panel.h"

#include <gen_settings.h>
#include <orq_color.h>
#include <orq_line_edit_filter.h>
#include <orq_tree_filter_model.h>
#include <orq_tree_filter_proxy_model.h>
#include <orq_tree_view.h>

#include <QApplication>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QMenu>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QToolButton>

#include <functional>
#include <memory>

namespace {

const QString k_columns_key =
    QStringLiteral("TreeViewColumns/%1").arg(QLatin1String(HIERARCHY_PANEL::k_column_settings_name));

// The proxy row at a path of column-0 texts, or an invalid index.
QModelIndex row_at(QAbstractItemModel* model, const QString& path)
{
  QModelIndex at;
  for (const QString& name : path.split(QStringLiteral("||"))) {
    QModelIndex found;
    for (int r = 0; r < model->rowCount(at) && !found.isValid(); ++r)
      if (model->index(r, 0, at).data().toString() == name)
        found = model->index(r, 0, at);
    if (!found.isValid())
      return QModelIndex();
    at = found;
  }
  return at;
}

QString path_of(const QModelIndex& index)
{
  QStringList parts;
  for (QModelIndex at = index; at.isValid(); at = at.parent())
    parts.prepend(at.data().toString());
  return parts.join(QStringLiteral("||"));
}

// The path of the n-th child row under a proxy row.
QString child_path(QAbstractItemModel* model, const QString& parent, int n)
{
  const QModelIndex under = row_at(model, parent);
  return path_of(model->index(n, 0, under));
}

struct PANEL {
  std::unique_ptr<HIERARCHY_PANEL> panel;
  ORQ_TREE_VIEW* view = nullptr;
  ORQ_LINE_EDIT_FILTER* filter = nullptr;
  QAbstractItemModel* shown = nullptr;
};

PANEL make_panel(int rows)
{
  PANEL made;
  made.panel = std::make_unique<HIERARCHY_PANEL>(rows, 7u, nullptr);
  made.panel->resize(440, 600);
  made.panel->show();
  made.view = made.panel->view();
  made.filter = made.panel->filter_line();
  made.shown = made.view->model();
  return made;
}

// A click on the row, as a user picks it; with Ctrl it adds to the selection.
void click_row(ORQ_TREE_VIEW* view, const QString& path, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
  const QModelIndex row = row_at(view->model(), path);
  QVERIFY2(row.isValid(), qPrintable(path));
  view->scrollTo(row);
  QTest::mouseClick(view->viewport(), Qt::LeftButton, modifiers, view->visualRect(row).center());
  QCOMPARE(path_of(view->currentIndex()), path);
}

// Picked, then opened or closed with the arrow keys.
void open_row(ORQ_TREE_VIEW* view, const QString& path, bool open)
{
  click_row(view, path);
  QTest::keyClick(view, open ? Qt::Key_Right : Qt::Key_Left);
  QCOMPARE(view->isExpanded(row_at(view->model(), path)), open);
}

bool current_row_in_view(ORQ_TREE_VIEW* view)
{
  const QModelIndex current = view->currentIndex();
  return current.isValid() && view->viewport()->rect().contains(view->visualRect(current));
}

QString top_row(ORQ_TREE_VIEW* view)
{
  return path_of(view->indexAt(QPoint(5, 2)));
}

// Each filter the panel runs ends in one status update.
void wait_for_filters(QSignalSpy& spy, int count)
{
  QTRY_COMPARE_WITH_TIMEOUT(spy.count(), count, 10000);
}

// The user's place in a 20,000-row design: the first partition open with
// its third module, the other partitions closed, and two leaves far down
// the module picked, so the view has scrolled.
QString make_a_place(PANEL& p)
{
  const QString top = QStringLiteral("chip_top");
  const QString first = child_path(p.shown, top, 0);
  for (int partition = 1; partition < p.shown->rowCount(row_at(p.shown, top)); ++partition)
    open_row(p.view, child_path(p.shown, top, partition), false);
  const QString module = child_path(p.shown, first, 2);
  open_row(p.view, module, true);
  click_row(p.view, child_path(p.shown, module, 300));
  click_row(p.view, child_path(p.shown, module, 302), Qt::ControlModifier);
  return module;
}

QByteArray read_all(const QString& file_name)
{
  QFile file(file_name);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<unreadable>");
}

// A right click on the header and a click on the column's entry in the menu.
void toggle_in_header_menu(ORQ_TREE_VIEW* view, const QString& name)
{
  bool clicked = false;
  QTimer::singleShot(0, view, [&] {
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (!menu)
      return;
    for (QAction* action : menu->actions())
      if (action->text() == name) {
        QTest::mouseClick(menu, Qt::LeftButton, Qt::NoModifier, menu->actionGeometry(action).center());
        clicked = true;
      }
    // A disabled entry leaves the menu open, as it does for a user.
    if (menu->isVisible())
      menu->close();
  });
  QWidget* header = view->header()->viewport();
  const QPoint at(10, header->height() / 2);
  QContextMenuEvent event(QContextMenuEvent::Mouse, at, header->mapToGlobal(at));
  QApplication::sendEvent(header, &event);
  QVERIFY2(clicked, qPrintable(name));
}

// The settings of a fresh user: nothing stored for the panel's columns.
void forget_column_settings()
{
  for (const QString& name : gen_settings().names(k_columns_key))
    gen_settings().remove(k_columns_key, name);
  gen_settings().sync();
}

} // namespace

class TST_HIERARCHY_PANEL : public QObject {
  Q_OBJECT
private slots:
  void initTestCase() { orq_test_strict_messages(); }
  void init() { forget_column_settings(); }

  void clearing_the_filter_brings_back_the_place_data()
  {
    QTest::addColumn<QString>("typed");
    QTest::addColumn<bool>("backspaces");
    QTest::newRow("the picked rows' cell type, clear button") << "sdff" << false;
    QTest::newRow("the picked rows' cell type, backspaces") << "sdff" << true;
    QTest::newRow("an instance prefix") << "u_dma" << false;
    QTest::newRow("two words") << "dff 1" << false;
    QTest::newRow("a regular expression") << "^i_nan_1" << true;
    QTest::newRow("nothing matches") << "zzzz" << false;
    QTest::newRow("an invalid expression") << "abc(" << false;
    QTest::newRow("blanks only") << "   " << true;
  }

  // 20,000 rows: the proxy's large-tree path, whatever it does to its own
  // indexes on the way.
  void clearing_the_filter_brings_back_the_place()
  {
    QFETCH(QString, typed);
    QFETCH(bool, backspaces);
    PANEL p = make_panel(20000);
    const QString module = make_a_place(p);
    const QString before = p.panel->view_state_text();
    QVERIFY2(before.contains(QStringLiteral("expanded: chip_top; chip_top||u_part0; %1\n").arg(module)),
             qPrintable(before));
    QVERIFY2(before.contains(child_path(p.shown, module, 302)), qPrintable(before));
    QVERIFY2(before.contains(child_path(p.shown, module, 300)), qPrintable(before));
    const QString top = top_row(p.view);
    QVERIFY(current_row_in_view(p.view));

    QSignalSpy filtered(p.panel.get(), &HIERARCHY_PANEL::status_changed);
    QTest::keyClicks(p.filter, typed);
    wait_for_filters(filtered, 1);
    if (backspaces) {
      for (int i = 0; i < typed.size(); ++i)
        QTest::keyClick(p.filter, Qt::Key_Backspace);
    } else {
      QTest::mouseClick(p.filter->get_clear_button(), Qt::LeftButton);
    }
    QVERIFY(p.filter->text().isEmpty());
    wait_for_filters(filtered, 2);
    QCOMPARE(p.panel->view_state_text(), before);
    QCOMPARE(top_row(p.view), top);
    QVERIFY(current_row_in_view(p.view));
    QVERIFY2(!p.panel->status_text().contains(QLatin1String("matches")), qPrintable(p.panel->status_text()));
  }

  void a_place_far_from_the_filtered_rows_is_scrolled_back_into_view()
  {
    PANEL p = make_panel(20000);
    const QString top = QStringLiteral("chip_top");
    const QString last_partition = child_path(p.shown, top, p.shown->rowCount(row_at(p.shown, top)) - 1);
    const QString module = child_path(p.shown, last_partition, 1);
    open_row(p.view, module, true);
    const QString leaf = child_path(p.shown, module, 200);
    click_row(p.view, leaf);
    p.view->scrollTo(row_at(p.shown, leaf), QAbstractItemView::PositionAtBottom);
    const QString before = p.panel->view_state_text();
    QSignalSpy filtered(p.panel.get(), &HIERARCHY_PANEL::status_changed);
    // Rows of the first partition only: the view scrolls to the top while
    // filtering.
    QTest::keyClicks(p.filter, QStringLiteral("u_part0"));
    wait_for_filters(filtered, 1);
    QVERIFY(!current_row_in_view(p.view));
    QTest::mouseClick(p.filter->get_clear_button(), Qt::LeftButton);
    wait_for_filters(filtered, 2);
    QCOMPARE(p.panel->view_state_text(), before);
    QVERIFY(current_row_in_view(p.view));
  }

  void rows_that_stay_keep_their_selection_while_filtering_data()
  {
    QTest::addColumn<int>("rows");
    QTest::newRow("600 rows") << 600;
    QTest::newRow("20,000 rows") << 20000;
  }

  // One keystroke at a time, each filtered before the next: the picked row
  // matches every prefix of its own name.
  void rows_that_stay_keep_their_selection_while_filtering()
  {
    QFETCH(int, rows);
    PANEL p = make_panel(rows);
    const QString module = child_path(p.shown, child_path(p.shown, QStringLiteral("chip_top"), 0), 0);
    open_row(p.view, module, true);
    const QString leaf = child_path(p.shown, module, 12);
    click_row(p.view, leaf);
    const QString name = leaf.section(QStringLiteral("||"), -1);
    QSignalSpy filtered(p.panel.get(), &HIERARCHY_PANEL::status_changed);
    for (int i = 0; i < name.size(); ++i) {
      QTest::keyClick(p.filter, name.at(i).toLatin1());
      wait_for_filters(filtered, i + 1);
      QCOMPARE(path_of(p.view->currentIndex()), leaf);
      const QModelIndexList selected = p.view->selectionModel()->selectedRows();
      QCOMPARE(selected.size(), 1);
      QCOMPARE(path_of(selected.first()), leaf);
      QVERIFY(p.view->isExpanded(row_at(p.shown, module)));
    }
    // A keystroke that filters the row out takes the selection with it.
    QTest::keyClick(p.filter, 'z');
    wait_for_filters(filtered, name.size() + 1);
    QVERIFY(!p.view->selectionModel()->hasSelection());
  }

  void a_row_picked_while_filtering_is_where_clearing_comes_back()
  {
    PANEL p = make_panel(20000);
    const QString module = make_a_place(p);
    const QString before = p.panel->view_state_text();
    QSignalSpy filtered(p.panel.get(), &HIERARCHY_PANEL::status_changed);
    QTest::keyClicks(p.filter, QStringLiteral("nand"));
    wait_for_filters(filtered, 1);
    // A matching row in another partition, which was closed before.
    const QString top = QStringLiteral("chip_top");
    const QString other = child_path(p.shown, child_path(p.shown, top, 1), 0);
    const QString picked = child_path(p.shown, other, 3);
    QVERIFY(picked.contains(QLatin1String("i_nan_")));
    click_row(p.view, picked);
    QTest::keyClick(p.filter, Qt::Key_Backspace);
    QTest::keyClick(p.filter, Qt::Key_Backspace);
    QTest::keyClick(p.filter, Qt::Key_Backspace);
    QTest::keyClick(p.filter, Qt::Key_Backspace);
    wait_for_filters(filtered, 2);
    QCOMPARE(path_of(p.view->currentIndex()), picked);
    const QModelIndexList selected = p.view->selectionModel()->selectedRows();
    QCOMPARE(selected.size(), 1);
    QCOMPARE(path_of(selected.first()), picked);
    QVERIFY(current_row_in_view(p.view));
    // The rows open before are open again, and the path to the new pick.
    QVERIFY(p.view->isExpanded(row_at(p.shown, module)));
    QVERIFY(p.view->isExpanded(row_at(p.shown, other)));
    QVERIFY(before.contains(QStringLiteral("expanded: chip_top; chip_top||u_part0; %1\n").arg(module)));
  }

  void a_row_closed_while_filtering_stays_closed_on_the_next_keystroke()
  {
    PANEL p = make_panel(3000);
    QSignalSpy filtered(p.panel.get(), &HIERARCHY_PANEL::status_changed);
    QTest::keyClicks(p.filter, QStringLiteral("dff"));
    wait_for_filters(filtered, 1);
    const QString partition = child_path(p.shown, QStringLiteral("chip_top"), 0);
    const QString closed = child_path(p.shown, partition, 1);
    const QString open = child_path(p.shown, partition, 2);
    QVERIFY(p.view->isExpanded(row_at(p.shown, closed)));
    open_row(p.view, closed, false);
    QTest::keyClick(p.filter, 'r');
    wait_for_filters(filtered, 2);
    QVERIFY(!p.view->isExpanded(row_at(p.shown, closed)));
    QVERIFY(p.view->isExpanded(row_at(p.shown, open)));
    // Opened again by the user, it stays open.
    open_row(p.view, closed, true);
    QTest::keyClick(p.filter, 'x');
    wait_for_filters(filtered, 3);
    QVERIFY(p.view->isExpanded(row_at(p.shown, closed)));
  }

  void matching_rows_are_highlighted_while_filtering()
  {
    PANEL p = make_panel(3000);
    const QString module = child_path(p.shown, child_path(p.shown, QStringLiteral("chip_top"), 0), 0);
    open_row(p.view, module, true);
    const QRgb highlight = ORQ_COLOR(ORQ_MSW_KEYWORD_HIGHLIGHT_BKGND_COLOR).get_color().rgb();
    auto painted = [&] {
      const QImage image = p.view->viewport()->grab().toImage();
      int count = 0;
      for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
          count += image.pixel(x, y) == highlight ? 1 : 0;
      return count;
    };
    QCOMPARE(painted(), 0);
    QSignalSpy filtered(p.panel.get(), &HIERARCHY_PANEL::status_changed);
    QTest::keyClicks(p.filter, QStringLiteral("nand"));
    wait_for_filters(filtered, 1);
    QVERIFY(painted() > 0);
    QTest::mouseClick(p.filter->get_clear_button(), Qt::LeftButton);
    wait_for_filters(filtered, 2);
    QCOMPARE(painted(), 0);
  }

  void export_writes_the_rows_the_view_shows_data()
  {
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("hidden");
    QTest::addColumn<QList<int>>("columns");
    QTest::newRow("everything") << ""
                                << "" << QList<int>{0, 1, 2};
    QTest::newRow("Area hidden") << ""
                                 << "Area" << QList<int>{0, 1};
    QTest::newRow("Cell hidden") << ""
                                 << "Cell" << QList<int>{0, 2};
    QTest::newRow("filtered by a cell type") << "nand"
                                             << "" << QList<int>{0, 1, 2};
    // Modules match by their cell type; their leaves come with them.
    QTest::newRow("filtered by the modules' cell types, Cell hidden") << "_blk"
                                                                      << "Cell" << QList<int>{0, 2};
    QTest::newRow("nothing matches") << "zzzz"
                                     << "" << QList<int>{0, 1, 2};
  }

  // Byte for byte against the rows worked out here from the model itself;
  // collapsed rows are written too.
  void export_writes_the_rows_the_view_shows()
  {
    QFETCH(QString, typed);
    QFETCH(QString, hidden);
    QFETCH(QList<int>, columns);
    PANEL p = make_panel(3000);
    if (!hidden.isEmpty())
      toggle_in_header_menu(p.view, hidden);
    if (!typed.isEmpty()) {
      QSignalSpy filtered(p.panel.get(), &HIERARCHY_PANEL::status_changed);
      QTest::keyClicks(p.filter, typed);
      wait_for_filters(filtered, 1);
      // Closed rows are written all the same.
      p.view->collapseAll();
    }
    QTemporaryDir dir;
    const QString file = dir.filePath(QStringLiteral("hierarchy.txt"));
    QCOMPARE(p.panel->export_hierarchy(file), QString());
    const QByteArray expected = hierarchy_expected_dump(*p.panel->model(), typed, columns);
    const QByteArray written = read_all(file);
    QCOMPARE(written.count('\n'), expected.count('\n'));
    QCOMPARE(written, expected);
    if (typed == QLatin1String("zzzz"))
      QCOMPARE(written, QByteArray());
    else
      QVERIFY(written.startsWith("|-chip_top\t"));
  }

  void an_export_replaces_a_longer_file_as_a_whole()
  {
    PANEL p = make_panel(600);
    QTemporaryDir dir;
    const QString file = dir.filePath(QStringLiteral("hierarchy.txt"));
    {
      QFile old(file);
      QVERIFY(old.open(QIODevice::WriteOnly));
      old.write(QByteArray(200000, 'x'));
    }
    QCOMPARE(p.panel->export_hierarchy(file), QString());
    QCOMPARE(read_all(file), hierarchy_expected_dump(*p.panel->model(), QString(), {0, 1, 2}));
  }

  void a_failed_export_says_why_and_keeps_what_was_there_data()
  {
    QTest::addColumn<QString>("target");
    QTest::addColumn<QString>("why");
    QTest::newRow("a directory that does not exist") << "no/such/dir/hierarchy.txt"
                                                     << "No such file or directory";
    QTest::newRow("a directory in the file's place") << "taken"
                                                     << "";
  }

  void a_failed_export_says_why_and_keeps_what_was_there()
  {
    QFETCH(QString, target);
    QFETCH(QString, why);
    PANEL p = make_panel(600);
    QTemporaryDir dir;
    QVERIFY(QDir(dir.path()).mkpath(QStringLiteral("taken/inside")));
    const QString file = dir.filePath(target);
    const QString place = p.panel->view_state_text();
    const QString problem = p.panel->export_hierarchy(file);
    QVERIFY2(problem.startsWith(QStringLiteral("Cannot write %1: ").arg(file)), qPrintable(problem));
    QVERIFY2(problem.endsWith(why), qPrintable(problem));
    QCOMPARE(p.panel->view_state_text(), place);
    // Nothing half-written beside it, what stood there still stands, and
    // the next export to a good place works.
    QCOMPARE(QDir(dir.path()).entryList(QDir::Files | QDir::NoDotAndDotDot), QStringList());
    QVERIFY(QFileInfo(dir.filePath(QStringLiteral("taken/inside"))).isDir());
    const QString good = dir.filePath(QStringLiteral("good.txt"));
    QCOMPARE(p.panel->export_hierarchy(good), QString());
    QCOMPARE(read_all(good), hierarchy_expected_dump(*p.panel->model(), QString(), {0, 1, 2}));
  }

  void column_changes_on_the_header_are_kept_for_the_next_panel()
  {
    PANEL p = make_panel(600);
    QSignalSpy changed(p.view, &ORQ_TREE_VIEW::column_visibility_changed);
    toggle_in_header_menu(p.view, QStringLiteral("Cell"));
    QVERIFY(p.view->isColumnHidden(1));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.first().first().toInt(), 1);
    // A drag of the Instance column's right edge.
    QHeaderView* header = p.view->header();
    const int edge = header->sectionSize(0) - 1;
    const int y = header->height() / 2;
    QTest::mousePress(header->viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(edge, y));
    QMouseEvent move(QEvent::MouseMove, QPoint(edge + 37, y), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(header->viewport(), &move);
    QTest::mouseRelease(header->viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(edge + 37, y));
    const int width = header->sectionSize(0);
    QCOMPARE(width, edge + 1 + 37);
    // Written once the drag has settled, into the per-user file.
    QTRY_COMPARE(QSettings(gen_settings().file_name(), QSettings::IniFormat)
                     .value(k_columns_key + QStringLiteral("/Instance_column_size"))
                     .toInt(),
                 width);
    const QSettings file(gen_settings().file_name(), QSettings::IniFormat);
    QCOMPARE(file.value(k_columns_key + QStringLiteral("/Cell_column_visibility")).toString(),
             QStringLiteral("true"));
    QCOMPARE(file.value(k_columns_key + QStringLiteral("/Area_column_visibility")).toString(),
             QStringLiteral("false"));

    PANEL next = make_panel(600);
    QVERIFY(next.view->isColumnHidden(1));
    QVERIFY(!next.view->isColumnHidden(2));
    QCOMPARE(next.view->columnWidth(0), width);
    QCOMPARE(next.panel->column_text(), p.panel->column_text());
  }

  void the_header_menu_keeps_the_last_column()
  {
    PANEL p = make_panel(600);
    toggle_in_header_menu(p.view, QStringLiteral("Cell"));
    toggle_in_header_menu(p.view, QStringLiteral("Area"));
    QVERIFY(p.view->isColumnHidden(1));
    QVERIFY(p.view->isColumnHidden(2));
    // The one column left is offered, but cannot go.
    toggle_in_header_menu(p.view, QStringLiteral("Instance"));
    QVERIFY(!p.view->isColumnHidden(0));
    // Shown again, a column takes the width of its contents.
    toggle_in_header_menu(p.view, QStringLiteral("Area"));
    QVERIFY(!p.view->isColumnHidden(2));
    QVERIFY(p.view->columnWidth(2) > 0);
  }
};

ORQ_TEST_REGISTER(TST_HIERARCHY_PANEL);
#include "tst_hierarchy_panel.moc"
