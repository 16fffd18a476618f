#pragma once
// The selected shapes of a floor plan: a sorted list of indexes for walking
// them and a bit per shape for asking about one, so a selection of a
// million cells costs no more per frame than one of three blocks.
#include "floorplan_model.h"

#include <QRect>
#include <QString>

#include <cstdint>
#include <vector>

class FLOORPLAN_SELECTION {
public:
  enum MODE { REPLACE, ADD, TOGGLE };

  // Empties the selection and sizes it for shape_count shapes.
  void reset(std::size_t shape_count);
  // ids in any order, repeats allowed. Returns whether anything changed.
  bool select(std::vector<std::uint32_t> ids, MODE mode);
  bool clear();

  bool contains(std::uint32_t id) const { return id < m_size && (m_bits[id >> 6] >> (id & 63)) & 1u; }
  const std::vector<std::uint32_t>& ids() const { return m_ids; }
  bool is_empty() const { return m_ids.empty(); }
  // Goes up with every change, so caches built from a selection know when
  // they are stale.
  int version() const { return m_version; }
  // The logical bounding rectangle, null when nothing is selected.
  QRect bounding_rect(const FLOORPLAN& plan) const;
  // "u_cpu_cluster_3 (CPU_CLUSTER)", "3 blocks, 1,204 cells selected",
  // "Nothing selected".
  QString describe(const FLOORPLAN& plan) const;

private:
  void set_bit(std::uint32_t id, bool on);

  std::size_t m_size = 0;
  std::vector<std::uint64_t> m_bits;
  std::vector<std::uint32_t> m_ids;
  int m_version = 0;
};
