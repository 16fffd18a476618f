#include "orq_tree_item_delegate.h"

ORQ_TREE_ITEM_DELEGATE::ORQ_TREE_ITEM_DELEGATE(QObject* parent)
    : QStyledItemDelegate(parent)
{
}

ORQ_TREE_ITEM_DELEGATE::~ORQ_TREE_ITEM_DELEGATE() = default;
