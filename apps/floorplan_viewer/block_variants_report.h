#pragma once
// Block Variants: each macro of the plan with the implementations it may be
// built from as child rows, one of them on. A click on a variant row (or
// Space or Enter on it) turns it on and its siblings off, and the plan draws
// the choice on the macro. The radio buttons are drawn by the library's
// delegate from two roles of each variant row; the report sets them.
#include <QVector>
#include <QWidget>

class FLOORPLAN_VIEW;
class ORQ_TREE_MODEL;
class ORQ_TREE_VIEW;
class QModelIndex;
class QStandardItem;

class BLOCK_VARIANTS_REPORT : public QWidget {
  Q_OBJECT
public:
  // The roles and codes the radio-button delegate reads.
  static constexpr int k_radio_role = Qt::UserRole + 3;
  static constexpr int k_radio_state_role = Qt::UserRole + 2;
  static constexpr int k_radio_on = 256;
  static constexpr int k_radio_off = 257;
  // Where the report keeps which block and variant a row stands for.
  static constexpr int k_block_role = Qt::UserRole;
  static constexpr int k_variant_role = Qt::UserRole + 1;

  explicit BLOCK_VARIANTS_REPORT(FLOORPLAN_VIEW* plan, QWidget* parent = nullptr);
  ~BLOCK_VARIANTS_REPORT() override;

  // Turns the variant row of index on, its siblings off, and the plan
  // follows; false for a row that is not a variant.
  bool choose(const QModelIndex& index);
  // "u_sram_64k_4 SRAM_64K_HS; ..." for every macro, in plan order.
  QString choices_text() const;

  ORQ_TREE_VIEW* view() const { return m_view; }
  ORQ_TREE_MODEL* model() const { return m_model; }

protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

private:
  void rebuild();
  void show_choice(int block, int variant);

  FLOORPLAN_VIEW* m_plan;
  ORQ_TREE_MODEL* m_model;
  ORQ_TREE_VIEW* m_view;
  // Each block's row by block index; null for a block without variants.
  QVector<QStandardItem*> m_block_rows;
};
