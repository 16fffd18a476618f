#pragma once
// Finds the shapes whose boxes meet a rectangle, in time that follows the
// number found: what a frame of a zoomed view needs from a million shapes.
//
// Each shape goes into exactly one bin of one grid. There is a grid for
// every pair of (width class, height class), bins doubling per class along
// each axis, so long thin shapes (rows, stripes, long nets) sit in bins
// shaped like them and a query never wades through shapes far from it. A
// shape is filed under the bin of its top-left corner and is no bigger than
// its bin, so a query looks one bin further left and up than it reaches.
#include "floorplan_model.h"

#include <cstdint>
#include <vector>

class FLOORPLAN_INDEX {
public:
  // Indexes shapes[first, last) inside world; shapes must outlive the index
  // and stay unchanged.
  void build(const std::vector<FP_SHAPE>& shapes, std::uint32_t first, std::uint32_t last,
             const FP_BOX& world);

  // Calls visit(id) once for every indexed shape whose box meets box.
  template <class VISIT> void query(const FP_BOX& box, VISIT&& visit) const;
  std::vector<std::uint32_t> query(const FP_BOX& box) const;

  std::size_t size() const { return m_count; }
  std::size_t memory_bytes() const;
  // Grids holding shapes, and bins in them: for the benchmark's report.
  int grid_count() const { return int(m_grids.size()); }
  std::size_t bin_count() const;

private:
  struct GRID {
    std::int32_t bin_w;
    std::int32_t bin_h;
    std::int32_t columns;
    std::int32_t rows;
    std::vector<std::uint32_t> start; // columns * rows + 1
    std::vector<std::uint32_t> ids;
  };

  const std::vector<FP_SHAPE>* m_shapes = nullptr;
  FP_BOX m_world;
  std::size_t m_count = 0;
  std::vector<GRID> m_grids;
};

template <class VISIT> void FLOORPLAN_INDEX::query(const FP_BOX& box, VISIT&& visit) const
{
  if (!m_shapes || box.x2 < m_world.x1 || box.y2 < m_world.y1 || box.x1 > m_world.x2 || box.y1 > m_world.y2)
    return;
  const FP_SHAPE* shapes = m_shapes->data();
  const std::int64_t qx1 = std::int64_t(box.x1) - m_world.x1;
  const std::int64_t qy1 = std::int64_t(box.y1) - m_world.y1;
  const std::int64_t qx2 = std::int64_t(box.x2) - m_world.x1;
  const std::int64_t qy2 = std::int64_t(box.y2) - m_world.y1;
  for (const GRID& grid : m_grids) {
    // A shape filed one bin left or up may still reach into the box.
    const std::int64_t c1 = std::max<std::int64_t>(0, (qx1 < 0 ? 0 : qx1 / grid.bin_w) - 1);
    const std::int64_t r1 = std::max<std::int64_t>(0, (qy1 < 0 ? 0 : qy1 / grid.bin_h) - 1);
    const std::int64_t c2 = std::min<std::int64_t>(grid.columns - 1, qx2 / grid.bin_w);
    const std::int64_t r2 = std::min<std::int64_t>(grid.rows - 1, qy2 / grid.bin_h);
    for (std::int64_t r = r1; r <= r2; ++r) {
      const std::uint32_t* start = grid.start.data() + r * grid.columns;
      // Bins of one grid row are consecutive: one run of ids per row.
      for (std::uint32_t i = start[c1], end = start[c2 + 1]; i < end; ++i) {
        const std::uint32_t id = grid.ids[i];
        if (shapes[id].box.intersects(box))
          visit(id);
      }
    }
  }
}
