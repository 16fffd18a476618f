#include "floorplan_data.h"

#include <QElapsedTimer>

namespace {
// Wiring drawn as coverage is a density: this much length per tile side
// reads as a fully covered tile. Local nets then come out at a third to a
// half, congested spots brighter.
constexpr double k_net_density_scale = 0.4;

double elapsed_ms(const QElapsedTimer& timer)
{
  return double(timer.nsecsElapsed()) / 1e6;
}
} // namespace

FLOORPLAN_DATA::FLOORPLAN_DATA(unsigned seed, int block_count, int shape_count)
{
  QElapsedTimer timer;
  timer.start();
  m_plan = make_floorplan(seed, block_count, shape_count);
  m_timings.generate_ms = elapsed_ms(timer);

  timer.restart();
  const FP_BOX die = FP_BOX::from_rect(m_plan.die);
  m_fixed.build(m_plan.shapes, 0, m_plan.end(FP_KIND::ROW), die);
  m_cells.build(m_plan.shapes, m_plan.begin(FP_KIND::CELL), m_plan.end(FP_KIND::CELL), die);
  m_nets.build(m_plan.shapes, m_plan.begin(FP_KIND::NET), m_plan.end(FP_KIND::NET), die);
  m_timings.index_ms = elapsed_ms(timer);

  timer.restart();
  reset_coverage_like(m_coverage, COVERAGE_CHANNELS);
  const double net_scale = k_net_density_scale / m_plan.row_height;
  for (std::uint32_t id = m_plan.begin(FP_KIND::CELL); id < m_plan.end(FP_KIND::CELL); ++id)
    m_coverage.add_area(COVERAGE_CELLS, m_plan.shapes[id].box);
  for (std::uint32_t id = m_plan.begin(FP_KIND::NET); id < m_plan.end(FP_KIND::NET); ++id)
    m_coverage.add_line(COVERAGE_NETS, m_plan.shapes[id].box, m_plan.shapes[id].sub != 0, net_scale);
  m_coverage.finish();
  m_timings.coverage_ms = elapsed_ms(timer);
}

void FLOORPLAN_DATA::reset_coverage_like(FLOORPLAN_COVERAGE& coverage, int channels) const
{
  // Level 0 tiles are a row high and start on a row boundary, so a tile row
  // is a placement row: rows stay distinct while they are a pixel or two.
  const std::int32_t tile = std::max(1, m_plan.row_height);
  const FP_BOX die = FP_BOX::from_rect(m_plan.die);
  const FP_BOX core = FP_BOX::from_rect(m_plan.core);
  const std::int32_t x = core.x1 - (core.x1 - die.x1 + tile - 1) / tile * tile;
  const std::int32_t y = core.y1 - (core.y1 - die.y1 + tile - 1) / tile * tile;
  coverage.reset(die, x, y, tile, channels);
}

std::size_t FLOORPLAN_DATA::memory_bytes() const
{
  return m_plan.memory_bytes() + m_fixed.memory_bytes() + m_cells.memory_bytes() + m_nets.memory_bytes() +
         m_coverage.memory_bytes();
}
