#include "hierarchy_state.h"

#include <QItemSelectionModel>
#include <QScrollBar>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QTreeView>

#include <utility>
#include <vector>

namespace {
// A selection is kept through source indexes, three persistent ones a row;
// beyond this many rows (a select-all of a large design) only the current
// row is kept, which is what the user is looking at.
constexpr int k_max_kept_rows = 10000;

int selected_rows(const QItemSelection& selection)
{
  int rows = 0;
  for (const QItemSelectionRange& range : selection)
    rows += range.height();
  return rows;
}
} // namespace

QString HIERARCHY_STATE::path_of(const QStandardItem* item)
{
  QStringList parts;
  for (const QStandardItem* at = item; at; at = at->parent())
    parts.prepend(at->text());
  return parts.join(QStringLiteral("||"));
}

void HIERARCHY_STATE::save(QTreeView* view, QSortFilterProxyModel* proxy)
{
  clear();
  auto* source = qobject_cast<QStandardItemModel*>(proxy->sourceModel());
  Q_ASSERT(source);
  // Only open branches are visited, so saving costs what the view shows,
  // not what the design holds. A branch left open under a closed one is not
  // seen; the user sees it closed either way.
  std::vector<QModelIndex> open{QModelIndex()};
  while (!open.empty()) {
    const QModelIndex parent = open.back();
    open.pop_back();
    const int rows = proxy->rowCount(parent);
    for (int r = 0; r < rows; ++r) {
      const QModelIndex row = proxy->index(r, 0, parent);
      // Expanding everything marks leaves as well; only rows that open count.
      if (!view->isExpanded(row) || !proxy->hasChildren(row))
        continue;
      m_expanded.insert(path_of(source->itemFromIndex(proxy->mapToSource(row))));
      open.push_back(row);
    }
  }
  take_selection(view, proxy);
  m_scroll = view->verticalScrollBar()->value();
  m_saved = true;
}

void HIERARCHY_STATE::take_selection(QTreeView* view, QSortFilterProxyModel* proxy)
{
  const QItemSelection shown = view->selectionModel()->selection();
  m_selection =
      selected_rows(shown) <= k_max_kept_rows ? proxy->mapSelectionToSource(shown) : QItemSelection();
  m_current = proxy->mapToSource(view->currentIndex());
}

void HIERARCHY_STATE::restore(QTreeView* view, QSortFilterProxyModel* proxy) const
{
  auto* source = qobject_cast<QStandardItemModel*>(proxy->sourceModel());
  Q_ASSERT(source);
  view->collapseAll();
  // Every ancestor of a remembered row was remembered too (saving descends
  // through open rows only), so the walk needs no other guide.
  QStandardItem* root = source->invisibleRootItem();
  std::vector<std::pair<QStandardItem*, QString>> open{{root, QString()}};
  while (!open.empty()) {
    const auto [parent, prefix] = open.back();
    open.pop_back();
    for (int r = 0; r < parent->rowCount(); ++r) {
      QStandardItem* child = parent->child(r, 0);
      const QString path = parent == root ? child->text() : prefix + QStringLiteral("||") + child->text();
      if (!m_expanded.contains(path))
        continue;
      const QModelIndex shown = proxy->mapFromSource(child->index());
      if (shown.isValid())
        view->setExpanded(shown, true);
      open.emplace_back(child, path);
    }
  }

  restore_selection(view, proxy);
  const QModelIndex current = proxy->mapFromSource(m_current);
  // A row picked while filtering may lie in a branch that was closed.
  for (QModelIndex up = current.parent(); up.isValid(); up = up.parent())
    if (!view->isExpanded(up))
      view->setExpanded(up, true);
  // Laid out first, so the scroll bar has its range back; then the current
  // row is brought into view only if the old position does not show it.
  view->visualRect(proxy->index(0, 0));
  view->verticalScrollBar()->setValue(m_scroll);
  if (current.isValid())
    view->scrollTo(current, QAbstractItemView::EnsureVisible);
}

void HIERARCHY_STATE::restore_selection(QTreeView* view, QSortFilterProxyModel* proxy) const
{
  QItemSelectionModel* selection = view->selectionModel();
  selection->select(proxy->mapSelectionFromSource(m_selection), QItemSelectionModel::ClearAndSelect);
  const QModelIndex current = proxy->mapFromSource(m_current);
  if (current.isValid())
    selection->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
}

void HIERARCHY_STATE::clear()
{
  m_expanded.clear();
  m_selection.clear();
  m_current = QPersistentModelIndex();
  m_scroll = 0;
  m_saved = false;
}

bool HIERARCHY_STATE::is_empty() const
{
  return !m_saved;
}
