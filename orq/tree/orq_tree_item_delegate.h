#pragma once
// The item delegate of the suite's tree views. It draws as QStyledItemDelegate
// does; delegates with extra drawing derive from it so that a tree view can
// hold any of them as its own.
#include "orq_export.h"

#include <QStyledItemDelegate>

class ORQ_EXPORT ORQ_TREE_ITEM_DELEGATE : public QStyledItemDelegate {
  Q_OBJECT
public:
  explicit ORQ_TREE_ITEM_DELEGATE(QObject* parent = nullptr);
  ~ORQ_TREE_ITEM_DELEGATE() override;
};
