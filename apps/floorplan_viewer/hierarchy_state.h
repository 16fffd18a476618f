#pragma once
// Where the user was in a filtered tree before the filter: the rows they had
// expanded, by row path ("chip_top||u_part0||u_alu_3"), the selection and the
// current row as indexes of the source model, and how far the view was
// scrolled. The proxy may reset or re-map its own indexes on any keystroke;
// the source's rows and texts stay, so this comes back whatever it did.
#include <QItemSelection>
#include <QPersistentModelIndex>
#include <QSet>
#include <QString>
#include <QStringList>

class QSortFilterProxyModel;
class QStandardItem;
class QTreeView;

class HIERARCHY_STATE {
public:
  // view shows proxy, whose source is a QStandardItemModel.
  void save(QTreeView* view, QSortFilterProxyModel* proxy);
  // Expands the remembered rows and nothing else, selects what was selected
  // that the proxy shows, and scrolls as before; the current row is scrolled
  // into view and, when it lies in a collapsed branch, its branch opened.
  void restore(QTreeView* view, QSortFilterProxyModel* proxy) const;
  // The selection and current row only, as source indexes: a row the user
  // picked while filtering replaces the one picked before.
  void take_selection(QTreeView* view, QSortFilterProxyModel* proxy);
  // Selects the remembered rows the proxy shows and makes the remembered
  // current row current again, when it is shown; nothing else changes.
  void restore_selection(QTreeView* view, QSortFilterProxyModel* proxy) const;
  void clear();
  bool is_empty() const;

  QSet<QString> expanded_paths() const { return m_expanded; }
  const QItemSelection& selection() const { return m_selection; }
  const QPersistentModelIndex& current() const { return m_current; }

  // The row path of a source item: its column-0 ancestors' texts and its own.
  static QString path_of(const QStandardItem* item);

private:
  QSet<QString> m_expanded;
  QItemSelection m_selection;
  QPersistentModelIndex m_current;
  int m_scroll = 0;
  bool m_saved = false;
};
