#pragma once
// The floor plan in an ORQ_ZOOM_SCROLL_AREA: draws through
// FLOORPLAN_RENDERER at whatever zoom, in the magnifying glass, the
// bird's-eye view and on a printer; selects blocks and cells by click and by
// dragged rectangle; says what is under the mouse.
//
// Logical units are nanometres. Zoom 1 (100%) is one pixel a micrometre.
#include "floorplan_data.h"
#include "floorplan_renderer.h"
#include "floorplan_selection.h"

#include <orq_view.h>

#include <memory>

class QPrinter;

class FLOORPLAN_VIEW : public ORQ_VIEW {
  Q_OBJECT
public:
  explicit FLOORPLAN_VIEW(std::unique_ptr<FLOORPLAN_DATA> data, QWidget* parent = nullptr);
  ~FLOORPLAN_VIEW() override;

  // Shows other data (never null), dropping the selection.
  void set_data(std::unique_ptr<FLOORPLAN_DATA> data);
  const FLOORPLAN_DATA& data() const { return *m_data; }
  const FLOORPLAN& floorplan() const { return m_data->plan(); }
  const FLOORPLAN_SELECTION& selection() const { return m_selection; }
  // What selection_changed last said.
  QString selection_text() const;

  // Selects the blocks, pads and cells lying wholly inside logical.
  void select_logical_rect(const QRect& logical, FLOORPLAN_SELECTION::MODE mode);
  // The cell (when cells are drawn one by one at the current zoom), else
  // the block or pad, at a logical point; none: the shape count.
  std::uint32_t shape_at(const QPoint& logical) const;
  // The whole drawing on one page, fitted to it; false when the printer
  // cannot be painted on (an unwritable file).
  bool print(QPrinter* printer);
  // What the last frame on the screen drew.
  const FP_PAINT_STATS& last_paint_stats() const { return m_last_stats; }
  // The implementation each block uses, an index into fp_block_variants()
  // of its cell; -1 for a block without variants. New data starts every
  // macro on its first variant.
  int block_variant(int block) const;
  // Drawn on the macro at once; false for a block or variant that is not
  // there.
  bool set_block_variant(int block, int variant);

  void paint(QPainter* painter, QPaintEvent* event, QWidget* target, QRect rect, bool printing) override;
  void paint_birds_eye_view(QPainter* painter, QPaintEvent* event, QWidget* target, QRect rect) override;
  QRect get_selected_rect() const override;
  bool is_rect_selection_enabled() const override;
  void do_rect_selection(const QRect& rect, const QPoint& point) override;
  void selection_mode_no_mouse_gesture(QMouseEvent* event) override;
  bool current_mode_supports_mouse_gesture(const QPoint& point) override;

public slots:
  void set_show_pads(bool show);
  void set_show_block_names(bool show);
  void clear_selection();

signals:
  void block_hovered(const QString& text);
  void selection_changed(const QString& text);
  void block_variant_changed(int block, int variant);
  // Other data is shown: other blocks, each on its first variant.
  void data_replaced();

protected:
  void mouseMoveEvent(QMouseEvent* event) override;

private:
  void apply_selection(std::vector<std::uint32_t> ids, FLOORPLAN_SELECTION::MODE mode);
  void paint_block_variants(QPainter* painter) const;

  std::unique_ptr<FLOORPLAN_DATA> m_data;
  FLOORPLAN_RENDERER m_renderer;
  FLOORPLAN_SELECTION m_selection;
  QRect m_selected_rect;
  bool m_show_pads = true;
  bool m_show_block_names = true;
  FP_PAINT_STATS m_last_stats;
  QVector<int> m_block_variants;
};
