#pragma once
// The item model of the suite's hierarchical reports: a QStandardItemModel
// whose rows hang on their column-0 items, with depth-first navigation,
// depths, row counts of whole subtrees, and tree order for index lists
// (a selection is put into display order before it is copied).
#include "orq_export.h"

#include <QList>
#include <QModelIndex>
#include <QStandardItemModel>

// Whether a comes before b in depth-first order: an ancestor before its
// descendants, then by row. Only rows are compared, so two cells of one row
// come neither before nor after each other; an index comes before itself.
// Both indexes must be valid and of one model (internal error otherwise).
ORQ_EXPORT bool orq_tree_order_indexes(const QModelIndex& a, const QModelIndex& b);

class ORQ_EXPORT ORQ_TREE_MODEL : public QStandardItemModel {
  Q_OBJECT
public:
  explicit ORQ_TREE_MODEL(QObject* parent = nullptr);
  ~ORQ_TREE_MODEL() override;

  // 0 for a top-level row, one more per generation; -1 for an invalid
  // index, an index without item and the invisible root.
  int get_level(const QModelIndex& index) const;
  int get_level(const QStandardItem* item) const;
  // All rows below item at every depth; null stands for the invisible root.
  int get_total_count(QStandardItem* item) const;

  // Depth-first (pre-order) neighbours; invalid past either end.
  QModelIndex get_next(const QModelIndex& index);
  QModelIndex get_prev(const QModelIndex& index);
  // The deepest last descendant; of an invalid index, the model's last row.
  QModelIndex get_last(const QModelIndex& index);
  QModelIndex get_next_sibling(const QModelIndex& index);
  QModelIndex get_prev_sibling(const QModelIndex& index);

  QList<QModelIndex> get_persistent_index_list();
  // Invalid indexes first in their input order, then the valid ones in tree
  // order; indexes that compare neither way keep their input order.
  void sort_index_list_by_positions(QList<QModelIndex>& list) const;
};
