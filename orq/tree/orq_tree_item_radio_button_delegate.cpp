#include "orq_tree_item_radio_button_delegate.h"

#include <QApplication>
#include <QPainter>
#include <QStyle>

namespace {

bool has_radio_button(const QModelIndex& index)
{
  // A value that does not convert (or no value at all) reads as false.
  return index.data(ORQ_TREE_ITEM_RADIO_BUTTON_DELEGATE::radio_flag_role).toBool();
}

} // namespace

ORQ_TREE_ITEM_RADIO_BUTTON_DELEGATE::ORQ_TREE_ITEM_RADIO_BUTTON_DELEGATE(QObject* parent)
    : ORQ_TREE_ITEM_DELEGATE(parent)
{
}

ORQ_TREE_ITEM_RADIO_BUTTON_DELEGATE::~ORQ_TREE_ITEM_RADIO_BUTTON_DELEGATE() = default;

void ORQ_TREE_ITEM_RADIO_BUTTON_DELEGATE::paint(QPainter* painter, const QStyleOptionViewItem& option,
                                                const QModelIndex& index) const
{
  // Plain rows skip ORQ_TREE_ITEM_DELEGATE on purpose: its clickable icons
  // have no place in a list of alternatives.
  if (!has_radio_button(index)) {
    QStyledItemDelegate::paint(painter, option, index);
    return;
  }

  QStyleOptionViewItem opt = option;
  initStyleOption(&opt, index);
  // Deliberately the application style, not the view's: the indicator looks
  // the same in every view, whatever style a single view was given.
  QStyle* style = QApplication::style();
  const int indicator_width = style->pixelMetric(QStyle::PM_ExclusiveIndicatorWidth, &option);
  const int spacing = style->pixelMetric(QStyle::PM_RadioButtonLabelSpacing, &option);

  // The text and icon move right into the cell's own width; nothing widens it.
  opt.rect.setLeft(opt.rect.left() + indicator_width + spacing);
  QStyledItemDelegate::paint(painter, opt, index);

  // The kept space gets the row's panel so that selection and hover
  // continue under the indicator. Its right edge is inclusive on purpose,
  // overlapping the shifted cell by a pixel so that no seam shows between them.
  const int x = option.rect.left();
  opt.rect.setLeft(x);
  opt.rect.setRight(x + indicator_width + spacing);
  style->drawPrimitive(QStyle::PE_PanelItemViewItem, &opt, painter, option.widget);

  // The check-box indicator rectangle of the original option, half the
  // spacing in, places the round indicator where a check box would sit.
  QRect indicator = style->subElementRect(QStyle::SE_CheckBoxIndicator, &option, option.widget);
  indicator.translate(spacing / 2, 0);
  opt.rect = indicator;

  // An unconvertible state reads as 0, which like every other code than the
  // two leaves the indicator neither on nor off.
  const int state = index.data(radio_state_role).toInt();
  if (state == radio_state_on)
    opt.state |= QStyle::State_On;
  else if (state == radio_state_off)
    opt.state |= QStyle::State_Off;
  style->drawPrimitive(QStyle::PE_IndicatorRadioButton, &opt, painter, option.widget);
}

QSize ORQ_TREE_ITEM_RADIO_BUTTON_DELEGATE::sizeHint(const QStyleOptionViewItem& option,
                                                    const QModelIndex& index) const
{
  // ORQ_TREE_ITEM_DELEGATE is skipped here as in paint, on purpose: none of
  // its icon room applies to these rows.
  QSize size = QStyledItemDelegate::sizeHint(option, index);
  if (has_radio_button(index)) {
    const int indicator_height =
        QApplication::style()->pixelMetric(QStyle::PM_ExclusiveIndicatorHeight, &option);
    // Only the height grows: the text is shifted into the existing width,
    // and a view's column widths stay those of a plain delegate.
    size.setHeight(qMax(size.height(), indicator_height));
  }
  return size;
}
