#pragma once
// A generated floor plan with what drawing it fast needs: an index per
// kind of shape a frame asks for separately, and the coverage levels. Built
// once per design and then only read, by the view, the tests and the
// benchmark alike.
#include "floorplan_coverage.h"
#include "floorplan_index.h"
#include "floorplan_model.h"

class FLOORPLAN_DATA {
public:
  enum COVERAGE_CHANNEL { COVERAGE_CELLS, COVERAGE_NETS, COVERAGE_CHANNELS };

  struct TIMINGS {
    double generate_ms = 0;
    double index_ms = 0;
    double coverage_ms = 0;
  };

  FLOORPLAN_DATA(unsigned seed, int block_count, int shape_count);
  FLOORPLAN_DATA(const FLOORPLAN_DATA&) = delete;
  FLOORPLAN_DATA& operator=(const FLOORPLAN_DATA&) = delete;

  const FLOORPLAN& plan() const { return m_plan; }
  // Die, core, pads, power, blocks and rows: a few thousand large shapes.
  const FLOORPLAN_INDEX& fixed_index() const { return m_fixed; }
  const FLOORPLAN_INDEX& cell_index() const { return m_cells; }
  const FLOORPLAN_INDEX& net_index() const { return m_nets; }
  const FLOORPLAN_COVERAGE& coverage() const { return m_coverage; }
  // The coverage grid for other layers over the same tiles (the selection).
  void reset_coverage_like(FLOORPLAN_COVERAGE& coverage, int channels) const;

  // Every shape whose box meets box, through the three indexes.
  template <class VISIT> void query(const FP_BOX& box, VISIT&& visit) const
  {
    m_fixed.query(box, visit);
    m_cells.query(box, visit);
    m_nets.query(box, visit);
  }
  const TIMINGS& timings() const { return m_timings; }
  // Model, indexes and coverage levels.
  std::size_t memory_bytes() const;

private:
  FLOORPLAN m_plan;
  FLOORPLAN_INDEX m_fixed;
  FLOORPLAN_INDEX m_cells;
  FLOORPLAN_INDEX m_nets;
  FLOORPLAN_COVERAGE m_coverage;
  TIMINGS m_timings;
};
