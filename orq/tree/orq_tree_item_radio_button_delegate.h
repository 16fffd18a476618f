#pragma once
// Draws a radio-button indicator in front of the text of the rows the model
// flags, so that a report can offer one of several rows to pick. The model
// decides through two roles; the delegate only draws, a tool changes the state.
#include "orq_export.h"
#include "orq_tree_item_delegate.h"

class ORQ_EXPORT ORQ_TREE_ITEM_RADIO_BUTTON_DELEGATE : public ORQ_TREE_ITEM_DELEGATE {
  Q_OBJECT
public:
  // The row shows a radio button when this role converts to true.
  static constexpr int radio_flag_role = Qt::UserRole + 3;
  // The indicator's state; only the two codes below are on or off.
  static constexpr int radio_state_role = Qt::UserRole + 2;
  static constexpr int radio_state_on = 256;
  static constexpr int radio_state_off = 257;

  explicit ORQ_TREE_ITEM_RADIO_BUTTON_DELEGATE(QObject* parent);
  ~ORQ_TREE_ITEM_RADIO_BUTTON_DELEGATE() override;

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  // The height covers the indicator; the width stays the plain one.
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};
