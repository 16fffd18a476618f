// The demos of the reports: the hierarchy before a filter, while it filters
// and once it is cleared; File > Export Hierarchy... answered as a user
// answers it; the Hierarchy panel's columns changed on the header; variants
// picked in the Block Variants report.
#include "floorplan_demo.h"

#include "block_variants_report.h"
#include "floorplan_demo_p.h"
#include "floorplan_variants.h"
#include "floorplan_view.h"
#include "floorplan_window.h"

#include <orq_line_edit_filter.h>
#include <orq_tree_filter_proxy_model.h>
#include <orq_tree_view.h>

#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPainter>
#include <QPushButton>
#include <QToolButton>

#include <algorithm>
#include <functional>

namespace {

struct HIERARCHY {
  QWidget* panel = nullptr;
  ORQ_TREE_VIEW* view = nullptr;
  ORQ_LINE_EDIT_FILTER* filter = nullptr;
};

HIERARCHY find_hierarchy(FLOORPLAN_WINDOW& window)
{
  HIERARCHY found;
  found.panel = window.hierarchy_panel();
  if (found.panel) {
    found.view = found.panel->findChild<ORQ_TREE_VIEW*>(QStringLiteral("hierarchy_view"));
    found.filter = found.panel->findChild<ORQ_LINE_EDIT_FILTER*>(QStringLiteral("hierarchy_filter"));
  }
  return found;
}

int column_named(QTreeView* view, const QString& name)
{
  for (int c = 0; c < view->header()->count(); ++c)
    if (view->model()->headerData(c, Qt::Horizontal, Qt::DisplayRole).toString() == name)
      return c;
  return -1;
}

// Right click on the header, then a click on the column's entry of the menu
// that opens.
QString toggle_through_the_header_menu(QTreeView* view, const QString& name)
{
  QHeaderView* header = view->header();
  QString problem = QStringLiteral("the header offered no menu");
  QObject guard;
  QTimer::singleShot(0, &guard, [&] {
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (!menu)
      return;
    problem = QStringLiteral("the header's menu offers no %1").arg(name);
    for (QAction* action : menu->actions()) {
      if (action->text() != name)
        continue;
      if (!action->isEnabled()) {
        problem = QStringLiteral("the header's menu does not let %1 go").arg(name);
        break;
      }
      const QPoint at = menu->actionGeometry(action).center();
      demo_click(menu, at);
      problem.clear();
      break;
    }
    if (!problem.isEmpty())
      menu->close();
  });
  const QPoint at(header->viewport()->width() / 2, header->viewport()->height() / 2);
  QContextMenuEvent event(QContextMenuEvent::Mouse, at, header->viewport()->mapToGlobal(at));
  QCoreApplication::sendEvent(header->viewport(), &event);
  return problem;
}

// A drag of the section's right edge, as a user widens a column.
QString drag_width(QTreeView* view, int column, int width)
{
  QHeaderView* header = view->header();
  if (view->isColumnHidden(column))
    return QStringLiteral("a hidden column has no edge to drag");
  const int edge = header->sectionViewportPosition(column) + header->sectionSize(column) - 1;
  const int y = header->height() / 2;
  const QPoint from(edge, y);
  const QPoint to(edge + width - header->sectionSize(column), y);
  QWidget* target = header->viewport();
  demo_send_mouse(target, QEvent::MouseButtonPress, from, Qt::LeftButton, Qt::LeftButton);
  demo_send_mouse(target, QEvent::MouseMove, (from + to) / 2, Qt::NoButton, Qt::LeftButton);
  demo_send_mouse(target, QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton);
  demo_send_mouse(target, QEvent::MouseButtonRelease, to, Qt::LeftButton, Qt::NoButton);
  if (header->sectionSize(column) != width)
    return QStringLiteral("the drag left the column %1 pixels wide").arg(header->sectionSize(column));
  return QString();
}

QString state_of(QWidget* panel)
{
  QString text;
  QMetaObject::invokeMethod(panel, "view_state_text", Q_RETURN_ARG(QString, text));
  return text.replace(QLatin1Char('\n'), QStringLiteral(" | "));
}

// Laid out before it is drawn: a status text that grew takes its new room
// only once the layout requests posted with it are handled.
QImage settled_grab(FLOORPLAN_WINDOW& window)
{
  for (int i = 0; i < 3; ++i)
    QCoreApplication::processEvents();
  return window.grab_with_floating_panels();
}

QString status_of(QWidget* panel)
{
  QString text;
  QMetaObject::invokeMethod(panel, "status_text", Q_RETURN_ARG(QString, text));
  return text;
}

// The user's place in the tree: every partition but the first closed, a
// module of the first opened by a double click, a leaf of it clicked. The
// leaf is near enough to the top that one picture shows the whole path.
// Returns the leaf's cell type, which is what the demo then types.
QString make_a_place(const HIERARCHY& hierarchy, QString* problem)
{
  ORQ_TREE_VIEW* view = hierarchy.view;
  QAbstractItemModel* model = view->model();
  const QModelIndex top = model->index(0, 0);
  for (int p = 1; p < model->rowCount(top); ++p)
    view->collapse(model->index(p, 0, top));
  const QModelIndex partition = model->index(0, 0, top);
  const int modules = model->rowCount(partition);
  if (modules == 0) {
    *problem = QStringLiteral("the hierarchy has no modules to open");
    return QString();
  }
  const QModelIndex module = model->index(std::min(1, modules - 1), 0, partition);
  view->scrollTo(module);
  demo_double_click(view->viewport(), view->visualRect(module).center());
  const int leaves = model->rowCount(module);
  if (!view->isExpanded(module) || leaves == 0) {
    *problem = QStringLiteral("a double click did not open %1").arg(module.data().toString());
    return QString();
  }
  const QModelIndex leaf = model->index(std::min(12, leaves - 1), 0, module);
  view->scrollTo(leaf);
  demo_click(view->viewport(), view->visualRect(leaf).center());
  if (view->currentIndex() != leaf) {
    *problem = QStringLiteral("a click did not pick %1").arg(leaf.data().toString());
    return QString();
  }
  return leaf.siblingAtColumn(1).data().toString().toLower();
}

FLOORPLAN_DEMO hierarchy_demo(FLOORPLAN_WINDOW& window, const QString& stage)
{
  FLOORPLAN_DEMO demo;
  const HIERARCHY hierarchy = find_hierarchy(window);
  if (!hierarchy.view || !hierarchy.filter) {
    demo.error = QStringLiteral("hierarchy: there is no Hierarchy panel");
    return demo;
  }
  if (stage != QLatin1String("before") && stage != QLatin1String("filtered") &&
      stage != QLatin1String("cleared")) {
    demo.error = QStringLiteral("hierarchy wants before, filtered or cleared, not \"%1\"").arg(stage);
    return demo;
  }
  const QString typed = make_a_place(hierarchy, &demo.error);
  if (!demo.error.isEmpty())
    return demo;
  const QString before = state_of(hierarchy.panel);
  if (stage == QLatin1String("before")) {
    demo.image = settled_grab(window);
    demo.report = QStringLiteral("hierarchy before a filter: %1").arg(before);
    return demo;
  }
  // Typed into the filter line, then the panel's own pause before it
  // filters; the panel hears the proxy first, so its work is done when the
  // demo hears it.
  auto* proxy = qobject_cast<ORQ_TREE_FILTER_PROXY_MODEL*>(hierarchy.view->model());
  if (!proxy) {
    demo.error = QStringLiteral("hierarchy: the view does not show the filter proxy");
    return demo;
  }
  int answers = 0;
  QObject guard;
  QObject::connect(proxy, &ORQ_TREE_FILTER_PROXY_MODEL::filter_done, &guard, [&] { ++answers; });
  QObject::connect(proxy, &ORQ_TREE_FILTER_PROXY_MODEL::filter_cancel, &guard, [&] { ++answers; });
  hierarchy.filter->setFocus();
  demo_type(hierarchy.filter, typed);
  if (!demo_wait_until([&] { return answers > 0; }) ||
      !status_of(hierarchy.panel).contains(QLatin1String("matches"))) {
    demo.error = QStringLiteral("hierarchy: typing %1 did not filter").arg(typed);
    return demo;
  }
  const QString filtered = state_of(hierarchy.panel);
  if (stage == QLatin1String("filtered")) {
    demo.image = settled_grab(window);
    demo.report = QStringLiteral("hierarchy filtered by \"%1\" (%2): %3")
                      .arg(typed, status_of(hierarchy.panel), filtered);
    return demo;
  }
  const int before_clear = answers;
  QToolButton* clear = hierarchy.filter->get_clear_button();
  demo_click(clear, clear->rect().center());
  if (!demo_wait_until([&] { return answers > before_clear; }) ||
      status_of(hierarchy.panel).contains(QLatin1String("matches"))) {
    demo.error = QStringLiteral("hierarchy: the clear button did not clear the filter");
    return demo;
  }
  const QModelIndex current = hierarchy.view->currentIndex();
  const bool in_view =
      current.isValid() && hierarchy.view->viewport()->rect().contains(hierarchy.view->visualRect(current));
  demo.image = settled_grab(window);
  demo.report = QStringLiteral("hierarchy cleared after \"%1\"; current row %2; before {%3} after {%4}")
                    .arg(typed, in_view ? QStringLiteral("in view") : QStringLiteral("out of view"), before,
                         state_of(hierarchy.panel));
  return demo;
}

// Answers whatever the export puts up, as a user would: the file name typed
// into the dialog and Save pressed, Yes to replacing a file, OK to an error.
// What it saw, in order, for the report.
FLOORPLAN_DEMO export_hierarchy_demo(FLOORPLAN_WINDOW& window, const QString& file_name)
{
  FLOORPLAN_DEMO demo;
  QAction* action = window.findChild<QAction*>(QStringLiteral("FPV_EXPORT_HIERARCHY_ACTION"));
  if (!action || !action->isEnabled()) {
    demo.error = QStringLiteral("export-hierarchy: File > Export Hierarchy... is not there");
    return demo;
  }
  if (file_name.isEmpty()) {
    demo.error = QStringLiteral("export-hierarchy wants a file name");
    return demo;
  }
  QStringList seen;
  int dialogs = 0;
  QObject guard;
  std::function<void()> answer = [&] {
    // Queued first: the click below may run a dialog's loop of its own.
    QTimer::singleShot(10, &guard, answer);
    QWidget* modal = QApplication::activeModalWidget();
    if (auto* box = qobject_cast<QMessageBox*>(modal)) {
      const bool error = box->objectName() == QLatin1String("orq_message_box");
      seen << (error ? QStringLiteral("error: ") : QStringLiteral("asked: ")) + box->text().simplified();
      QAbstractButton* button = box->button(error ? QMessageBox::Ok : QMessageBox::Yes);
      if (button)
        button->click();
      else
        box->reject();
    } else if (auto* dialog = qobject_cast<QFileDialog*>(modal)) {
      // A name the dialog does not take keeps it open: the second time it
      // is given up, as a user would cancel.
      if (++dialogs > 1) {
        seen << QStringLiteral("the dialog did not take the name");
        dialog->reject();
      } else {
        auto* name = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        auto* buttons = dialog->findChild<QDialogButtonBox*>(QStringLiteral("buttonBox"));
        QPushButton* save = buttons ? buttons->button(QDialogButtonBox::Save) : nullptr;
        if (!name || !save) {
          seen << QStringLiteral("a dialog without a name field or Save button");
          dialog->reject();
        } else {
          name->setFocus();
          name->selectAll();
          demo_type(name, file_name);
          seen << QStringLiteral("typed into \"%1\"").arg(dialog->windowTitle());
          save->click();
        }
      }
    }
  };
  QTimer::singleShot(0, &guard, answer);
  action->trigger();
  demo.image = settled_grab(window);
  demo.report = QStringLiteral("export-hierarchy: %1").arg(seen.join(QStringLiteral("; ")));
  return demo;
}

// The window with the report's dialog where it stands beside it, as the
// user sees them together.
QImage grab_with_dialog(FLOORPLAN_WINDOW& window, QWidget* dialog)
{
  const QImage shown = settled_grab(window);
  const QRect frame = dialog->frameGeometry();
  const QRect bounds = window.geometry() | frame;
  QImage canvas(bounds.size(), QImage::Format_RGB32);
  canvas.fill(QColor(0x50, 0x55, 0x5c));
  QPainter painter(&canvas);
  painter.drawImage(window.geometry().topLeft() - bounds.topLeft(), shown);
  const QPoint at = dialog->geometry().topLeft() - bounds.topLeft();
  painter.fillRect(QRect(at + QPoint(5, 5), dialog->size()), QColor(0, 0, 0, 90));
  painter.drawImage(at, dialog->grab().toImage());
  painter.setPen(QColor(0x30, 0x30, 0x30));
  painter.drawRect(QRect(at, dialog->size()).adjusted(0, 0, -1, -1));
  return canvas;
}

// Tools > Block Variants..., then a click on each named variant's row, for
// the first macro that offers it.
FLOORPLAN_DEMO variants_demo(FLOORPLAN_WINDOW& window, const QString& argument)
{
  FLOORPLAN_DEMO demo;
  QAction* action = window.findChild<QAction*>(QStringLiteral("FPV_BLOCK_VARIANTS_ACTION"));
  if (!action) {
    demo.error = QStringLiteral("variants: Tools > Block Variants... is not there");
    return demo;
  }
  action->trigger();
  auto* report = window.findChild<BLOCK_VARIANTS_REPORT*>();
  if (!report || !report->isVisible()) {
    demo.error = QStringLiteral("variants: Tools > Block Variants... showed no report");
    return demo;
  }
  QCoreApplication::processEvents();
  ORQ_TREE_VIEW* view = report->view();
  QAbstractItemModel* model = view->model();
  const QStringList wanted = argument.isEmpty()
                                 ? QStringList{QStringLiteral("SRAM_64K_HS"), QStringLiteral("PLL_FRAC"),
                                               QStringLiteral("SERDES_X4_LP")}
                                 : argument.split(QLatin1Char(','), Qt::SkipEmptyParts);
  QStringList clicked;
  for (const QString& name : wanted) {
    QModelIndex found;
    for (int b = 0; b < model->rowCount() && !found.isValid(); ++b)
      for (int v = 0; v < model->rowCount(model->index(b, 0)) && !found.isValid(); ++v)
        if (model->index(v, 0, model->index(b, 0)).data().toString() == name)
          found = model->index(v, 0, model->index(b, 0));
    if (!found.isValid()) {
      demo.error = QStringLiteral("variants: no macro offers %1").arg(name);
      return demo;
    }
    view->scrollTo(found);
    demo_click(view->viewport(), view->visualRect(found).center());
    clicked << QStringLiteral("%1 of %2").arg(name, found.parent().data().toString());
  }
  // Beside the window, so the picture shows the whole plan with it.
  view->scrollToTop();
  report->window()->move(window.geometry().topRight() + QPoint(16, 60));
  QStringList drawn;
  const FLOORPLAN& plan = window.view()->floorplan();
  for (int b = 0; b < plan.blocks.size(); ++b) {
    const int variant = window.view()->block_variant(b);
    if (variant > 0)
      drawn << plan.blocks.at(b).name + QLatin1Char(' ') +
                   fp_block_variants(plan.blocks.at(b).cell).at(variant).tag;
  }
  demo.image = grab_with_dialog(window, report->window());
  demo.report =
      QStringLiteral("variants: clicked %1; on: %2; the plan draws %3")
          .arg(clicked.join(QStringLiteral(", ")), report->choices_text(),
               drawn.isEmpty() ? QStringLiteral("first variants only") : drawn.join(QStringLiteral(", ")));
  return demo;
}

} // namespace

QString change_hierarchy_column(FLOORPLAN_WINDOW& window, const QString& change)
{
  const HIERARCHY hierarchy = find_hierarchy(window);
  if (!hierarchy.view)
    return QStringLiteral("there is no Hierarchy panel");
  const int colon = change.indexOf(QLatin1Char(':'));
  const QString verb = change.left(colon);
  QString name = change.mid(colon + 1);
  int width = -1;
  if (verb == QLatin1String("width")) {
    const int equals = name.lastIndexOf(QLatin1Char('='));
    bool ok = false;
    width = equals > 0 ? name.mid(equals + 1).toInt(&ok) : -1;
    if (!ok || width <= 0)
      return QStringLiteral("width wants NAME=PIXELS above 0, not \"%1\"").arg(name);
    name = name.left(equals);
  } else if (colon < 0 || (verb != QLatin1String("hide") && verb != QLatin1String("show"))) {
    return QStringLiteral("wants hide:NAME, show:NAME or width:NAME=PIXELS, not \"%1\"").arg(change);
  }
  const int column = column_named(hierarchy.view, name);
  if (column < 0)
    return QStringLiteral("the hierarchy has no column \"%1\"").arg(name);
  if (width > 0)
    return drag_width(hierarchy.view, column, width);
  if (hierarchy.view->isColumnHidden(column) == (verb == QLatin1String("hide")))
    return QString();
  return toggle_through_the_header_menu(hierarchy.view, name);
}

FLOORPLAN_DEMO run_report_demo(FLOORPLAN_WINDOW& window, const QString& kind, const QString& argument)
{
  if (kind == QLatin1String("hierarchy"))
    return hierarchy_demo(window, argument);
  if (kind == QLatin1String("export-hierarchy"))
    return export_hierarchy_demo(window, argument);
  if (kind == QLatin1String("variants"))
    return variants_demo(window, argument);
  FLOORPLAN_DEMO demo;
  demo.error = QStringLiteral("unknown kind \"%1\"").arg(kind);
  return demo;
}
