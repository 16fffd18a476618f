#include "block_variants_report.h"

#include "floorplan_variants.h"
#include "floorplan_view.h"

#include <orq_tree_item_radio_button_delegate.h>
#include <orq_tree_model.h>
#include <orq_tree_view.h>

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QStyle>
#include <QVBoxLayout>

BLOCK_VARIANTS_REPORT::BLOCK_VARIANTS_REPORT(FLOORPLAN_VIEW* plan, QWidget* parent)
    : QWidget(parent)
    , m_plan(plan)
    , m_model(new ORQ_TREE_MODEL(this))
    , m_view(new ORQ_TREE_VIEW(this))
{
  setObjectName(QStringLiteral("block_variants_report"));
  m_view->setObjectName(QStringLiteral("block_variants_view"));
  m_view->setModel(m_model);
  m_view->setItemDelegate(new ORQ_TREE_ITEM_RADIO_BUTTON_DELEGATE(m_view));
  m_view->setEditTriggers(QAbstractItemView::NoEditTriggers);
  m_view->setSelectionMode(QAbstractItemView::SingleSelection);
  m_view->installEventFilter(this);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(m_view);

  // The delegate only draws: the report turns a clicked or activated row on.
  connect(m_view, &QAbstractItemView::clicked, this, &BLOCK_VARIANTS_REPORT::choose);
  connect(m_view, &QAbstractItemView::activated, this, &BLOCK_VARIANTS_REPORT::choose);
  // The plan holds the choice; the rows show what it holds, whoever chose.
  connect(m_plan, &FLOORPLAN_VIEW::block_variant_changed, this, &BLOCK_VARIANTS_REPORT::show_choice);
  connect(m_plan, &FLOORPLAN_VIEW::data_replaced, this, &BLOCK_VARIANTS_REPORT::rebuild);
  rebuild();
}

BLOCK_VARIANTS_REPORT::~BLOCK_VARIANTS_REPORT() = default;

void BLOCK_VARIANTS_REPORT::rebuild()
{
  m_model->clear();
  m_model->setHorizontalHeaderLabels(
      {QStringLiteral("Block / variant"), QStringLiteral("Cell"), QStringLiteral("Description")});
  m_block_rows.clear();
  const QVector<FLOORPLAN_BLOCK>& blocks = m_plan->floorplan().blocks;
  for (int b = 0; b < blocks.size(); ++b) {
    const QVector<FP_BLOCK_VARIANT> variants = fp_block_variants(blocks.at(b).cell);
    if (variants.isEmpty()) {
      m_block_rows.append(nullptr);
      continue;
    }
    auto* name = new QStandardItem(blocks.at(b).name);
    name->setData(b, k_block_role);
    QList<QStandardItem*> row{name, new QStandardItem(blocks.at(b).cell), new QStandardItem};
    for (int v = 0; v < variants.size(); ++v) {
      auto* variant = new QStandardItem(variants.at(v).name);
      variant->setData(b, k_block_role);
      variant->setData(v, k_variant_role);
      variant->setData(true, k_radio_role);
      auto* tag = new QStandardItem(variants.at(v).tag);
      tag->setData(variants.at(v).color, Qt::DecorationRole);
      name->appendRow({variant, tag, new QStandardItem(variants.at(v).description)});
    }
    m_model->appendRow(row);
    m_block_rows.append(name);
    show_choice(b, m_plan->block_variant(b));
  }
  m_view->expandAll();
  m_view->resizeColumnToContents(0);
  m_view->resizeColumnToContents(1);
  // The delegate draws the indicator inside the width the text asks for;
  // the room for it is added here, or the names would be cut short.
  const QStyle* style = QApplication::style();
  m_view->setColumnWidth(0, m_view->columnWidth(0) + style->pixelMetric(QStyle::PM_ExclusiveIndicatorWidth) +
                                style->pixelMetric(QStyle::PM_RadioButtonLabelSpacing));
}

void BLOCK_VARIANTS_REPORT::show_choice(int block, int variant)
{
  QStandardItem* name = m_block_rows.value(block);
  if (!name)
    return;
  for (int v = 0; v < name->rowCount(); ++v)
    name->child(v, 0)->setData(v == variant ? k_radio_on : k_radio_off, k_radio_state_role);
  QStandardItem* parent = name->parent() ? name->parent() : m_model->invisibleRootItem();
  // The block's own row says what it uses, for a report read collapsed.
  parent->child(name->row(), 2)
      ->setText(variant >= 0 && variant < name->rowCount()
                    ? QStringLiteral("uses %1").arg(name->child(variant, 0)->text())
                    : QString());
}

bool BLOCK_VARIANTS_REPORT::choose(const QModelIndex& index)
{
  const QModelIndex row = index.siblingAtColumn(0);
  if (!row.isValid() || !row.data(k_radio_role).toBool())
    return false;
  return m_plan->set_block_variant(row.data(k_block_role).toInt(), row.data(k_variant_role).toInt());
}

QString BLOCK_VARIANTS_REPORT::choices_text() const
{
  QStringList choices;
  for (QStandardItem* name : m_block_rows) {
    if (!name)
      continue;
    for (int v = 0; v < name->rowCount(); ++v)
      if (name->child(v, 0)->data(k_radio_state_role).toInt() == k_radio_on)
        choices << name->text() + QLatin1Char(' ') + name->child(v, 0)->text();
  }
  return choices.join(QStringLiteral("; "));
}

bool BLOCK_VARIANTS_REPORT::eventFilter(QObject* watched, QEvent* event)
{
  // Space picks the current row, as it checks a radio button.
  if (watched == m_view && event->type() == QEvent::KeyPress &&
      static_cast<QKeyEvent*>(event)->key() == Qt::Key_Space &&
      static_cast<QKeyEvent*>(event)->modifiers() == Qt::NoModifier) {
    if (choose(m_view->currentIndex()))
      return true;
  }
  return QWidget::eventFilter(watched, event);
}
