#pragma once
// The tree view of the suite's hierarchical reports (an ORQ_TREE_MODEL or
// the filter proxy over one). When a report is rebuilt the view comes back
// as the user left it: expanded rows (and optionally check states) are
// remembered by row path, "Design||Unit A||Port 3", and hidden columns and
// widths are kept per user in the settings registry, matched by header text.
// The header's context menu shows and hides columns; Ctrl+C copies the
// selected rows as tab-separated text in tree order.
#include "orq_export.h"

#include <QBitArray>
#include <QMap>
#include <QModelIndex>
#include <QString>
#include <QTreeView>

#include <memory>
#include <ostream>

class ORQ_TREE_PATH_MEMORY;
class QKeyEvent;
class QMenu;
class QStandardItem;

class ORQ_EXPORT ORQ_TREE_VIEW : public QTreeView {
  Q_OBJECT
public:
  explicit ORQ_TREE_VIEW(QWidget* parent = nullptr);
  ~ORQ_TREE_VIEW() override;

  // clear empties both memories first; the whole-tree form does so before
  // each top-level row, so only the last top-level subtree is then kept.
  void save_expandable_state(bool clear);
  void save_expandable_state(const QModelIndex& index, bool clear);
  void save_expandable_state(QStandardItem* item, bool clear);
  // True when anything is remembered; the whole-tree form answers false for
  // a model without rows. Rows not remembered are collapsed.
  bool restore_expandable_state();
  bool restore_expandable_state(const QModelIndex& index);
  bool was_item_expanded_previously(const QModelIndex& index);

  // Whether saving remembers check states too (off by default).
  void set_remember_check_states(bool remember);
  bool remembers_check_states() const;
  // What saving remembered, by row path: expanded states, and check states
  // as 0 unchecked, 1 partially checked, 2 checked. Each is made when asked
  // for, from the memory as it is then: ask again after saving.
  const QMap<QString, bool>& expansion_memory() const;
  const QMap<QString, int>& check_state_memory() const;

  // An always-hidden column is hidden at once, never shown by loaded
  // settings and never offered in the column menu. Negative columns are
  // ignored.
  void set_column_always_hidden(int column, bool always_hidden);
  bool is_column_always_hidden(int column) const;

  // The registry key of the column settings; empty means the parent
  // widget's object name. Both directions do nothing without a parent.
  void set_column_visibility_registry_string(const QString& registry_string);
  QString column_visibility_registry_string() const;
  void save_column_visibility_to_registry();
  void load_column_visibility_from_registry();

  // Writes the subtree under index (every row for an invalid index), one
  // line per row, "|" and one "-" per level before the first cell, each
  // visible cell followed by a tab. Collapsed rows are included. Returns
  // false, after a warning, when the stream fails; nothing more is written.
  bool dump_tree_view_data(const QModelIndex& index, std::ostream& stream, int level);

  // The selected rows' visible cells in tree order, tab-separated, one line
  // each: what Ctrl+C puts on the clipboard.
  QString selected_rows_text() const;

public slots:
  void copy_selection_to_clipboard();

signals:
  void column_visibility_changed(int column);

protected:
  QString get_path(const QModelIndex& index);
  QString get_path(QStandardItem* item);
  // One checkable entry per offered column; nothing with fewer than two columns.
  virtual void populate_column_selection_menu(QMenu* menu);
  void keyPressEvent(QKeyEvent* event) override;

private slots:
  void show_column_selection_menu();

private:
  struct RESTORE_WALK;

  void remember(const QModelIndex& row, int node, int children);
  void remember_row(const QModelIndex& row);
  void remember_subtree(const QModelIndex& index);
  void remember_children(const QModelIndex& row, const QStandardItem* item, int node);
  bool remembered_expanded(const QString& path) const;
  void restore_row(const QModelIndex& row);
  void restore_subtree(RESTORE_WALK& walk, const QModelIndex& index);
  void restore_children(RESTORE_WALK& walk, const QModelIndex& row, const QStandardItem* item, int node);
  QString registry_key() const;

  // The expansion memory and the check-state memory, both by row path.
  std::unique_ptr<ORQ_TREE_PATH_MEMORY> m_memory;
  bool m_check_state_switch = false;
  QBitArray m_always_hidden_columns;
  QString m_registry_string;
};
