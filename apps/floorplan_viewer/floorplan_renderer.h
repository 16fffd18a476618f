#pragma once
// Draws a FLOORPLAN_DATA with any QPainter whose world transform maps
// logical units to the device: screen, magnifying glass, bird's-eye view,
// printer. Only what meets the visible rectangle is looked at, through the
// indexes; shapes too small to see one by one are drawn as coverage.
//
// Level of detail, by the height of a placement row on the device:
//   under 3 pixels  cells and nets come from the coverage levels (an image
//                   whose tiles are about a pixel), rows from 2 pixels on
//   3 pixels on     each cell a rectangle
//   5 pixels on     each net a line
//   10 pixels on    cells outlined; 36 on, their cell type written in them
// Blocks, macros, pads and power are always drawn as shapes; block names
// when the block is large enough on the device to hold them.
#include "floorplan_coverage.h"
#include "floorplan_line_layer.h"

#include <QColor>
#include <QImage>
#include <QLineF>
#include <QRect>
#include <QRectF>
#include <QSize>

#include <cstdint>
#include <vector>

class FLOORPLAN_DATA;
class FLOORPLAN_SELECTION;
class QPainter;

struct FP_PAINT_OPTIONS {
  bool show_pads = true;
  bool show_block_names = true;
  // Cells, nets, rows and names are left out: the bird's-eye view.
  bool overview = false;
  // Detail is chosen for device pixels times this: a printer's fine dots
  // would otherwise ask for every cell of the chip.
  double detail_scale = 1.0;
};

// What a frame drew, for tests and the benchmark.
struct FP_PAINT_STATS {
  int coverage_level = -1; // -1: no coverage image
  QSize coverage_size;
  int cells = 0;
  int nets = 0;
  int fixed = 0;
  int names = 0;
  bool rows_drawn = false;
  // Where the frame's time went, in milliseconds.
  double base_ms = 0;   // background, die, rows
  double detail_ms = 0; // coverage image, or cells and nets
  double fixed_ms = 0;  // power, blocks, pads, outlines
  double names_ms = 0;
};

class FLOORPLAN_RENDERER {
public:
  // Row height on the device, in pixels, from which cells are drawn one
  // by one: a cell is then at least about two pixels wide.
  static constexpr double k_cell_row_pixels = 3.0;
  // And from which nets are lines; between the two they stay coverage.
  static constexpr double k_net_row_pixels = 5.0;

  void set_data(const FLOORPLAN_DATA* data);
  // visible: the logical rectangle to draw, usually the device's area mapped
  // back through the painter's world transform.
  FP_PAINT_STATS paint(QPainter* painter, const QRectF& visible, const FP_PAINT_OPTIONS& options,
                       const FLOORPLAN_SELECTION* selection = nullptr);
  // Whether a scale (device pixels per logical unit) shows cells one by one.
  bool shows_cells(double scale) const;

private:
  struct FRAME;
  // With cells false only the wiring: the cells are drawn one by one.
  void paint_coverage(FRAME& frame, bool cells);
  void paint_cells(FRAME& frame);
  void paint_nets(FRAME& frame);
  void paint_fixed(FRAME& frame);
  void paint_names(FRAME& frame);
  void update_selection_coverage(const FLOORPLAN_SELECTION& selection);

  const FLOORPLAN_DATA* m_data = nullptr;
  // Coverage of the selected cells, rebuilt when the selection changes.
  FLOORPLAN_COVERAGE m_selection_coverage;
  const FLOORPLAN_SELECTION* m_selection_source = nullptr;
  int m_selection_version = -1;
  bool m_selection_has_cells = false;
  // Kept between frames so a frame allocates nothing once warm.
  std::vector<std::vector<QRect>> m_cell_batches;
  std::vector<QRect> m_selected_cells;
  std::vector<QRect> m_insets;
  std::vector<QLineF> m_lines;
  std::vector<std::uint32_t> m_fixed_ids;
  std::vector<std::uint8_t> m_owner_map;
  FLOORPLAN_LINE_LAYER m_line_layer;
  QImage m_image;
};
