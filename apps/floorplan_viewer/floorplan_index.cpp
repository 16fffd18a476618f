#include "floorplan_index.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {
constexpr int k_classes = 32; // per axis; a class doubles the bin

std::int32_t median(std::vector<std::int32_t>& values)
{
  if (values.empty())
    return 1;
  auto middle = values.begin() + std::ptrdiff_t(values.size() / 2);
  std::nth_element(values.begin(), middle, values.end());
  return std::max(1, *middle);
}

int size_class(std::int64_t extent, std::int64_t base)
{
  int c = 0;
  while ((base << c) < extent && c < k_classes - 1)
    ++c;
  return c;
}
} // namespace

void FLOORPLAN_INDEX::build(const std::vector<FP_SHAPE>& shapes, std::uint32_t first, std::uint32_t last,
                            const FP_BOX& world)
{
  m_shapes = &shapes;
  m_grids.clear();
  m_count = last > first ? last - first : 0;
  m_world = world;
  for (std::uint32_t id = first; id < last; ++id) {
    const FP_BOX& box = shapes[id].box;
    m_world = {std::min(m_world.x1, box.x1), std::min(m_world.y1, box.y1), std::max(m_world.x2, box.x2),
               std::max(m_world.y2, box.y2)};
  }
  if (m_count == 0)
    return;
  const std::int64_t world_w = std::int64_t(m_world.x2) - m_world.x1 + 1;
  const std::int64_t world_h = std::int64_t(m_world.y2) - m_world.y1 + 1;

  // The first bin is as big as a typical shape, and no smaller than what
  // gives a few shapes a bin, stretched the way typical shapes are.
  std::vector<std::int32_t> widths;
  std::vector<std::int32_t> heights;
  const std::uint32_t step = std::max<std::uint32_t>(1, std::uint32_t(m_count / 4096));
  for (std::uint32_t id = first; id < last; id += step) {
    widths.push_back(shapes[id].box.width());
    heights.push_back(shapes[id].box.height());
  }
  const double typical_w = median(widths);
  const double typical_h = median(heights);
  const double aspect = std::clamp(typical_w / typical_h, 1.0 / 64, 64.0);
  const double side = std::sqrt(double(world_w) * double(world_h) * 4.0 / double(m_count));
  const std::int64_t base_w =
      std::clamp<std::int64_t>(std::llround(std::max(typical_w, side * std::sqrt(aspect))), 1, world_w);
  const std::int64_t base_h =
      std::clamp<std::int64_t>(std::llround(std::max(typical_h, side / std::sqrt(aspect))), 1, world_h);

  std::array<int, k_classes * k_classes> slot;
  slot.fill(-1);
  std::vector<std::uint8_t> grid_of(m_count);
  for (std::uint32_t id = first; id < last; ++id) {
    const FP_BOX& box = shapes[id].box;
    const int cx = size_class(box.width(), base_w);
    const int cy = size_class(box.height(), base_h);
    int& s = slot[std::size_t(cx * k_classes + cy)];
    if (s < 0) {
      s = int(m_grids.size());
      GRID grid;
      grid.bin_w = std::int32_t(std::min(base_w << cx, world_w));
      grid.bin_h = std::int32_t(std::min(base_h << cy, world_h));
      grid.columns = std::int32_t((world_w + grid.bin_w - 1) / grid.bin_w);
      grid.rows = std::int32_t((world_h + grid.bin_h - 1) / grid.bin_h);
      m_grids.push_back(std::move(grid));
    }
    grid_of[id - first] = std::uint8_t(s);
  }
  Q_ASSERT(m_grids.size() < 256);

  auto bin_of = [this](const GRID& grid, const FP_BOX& box) {
    return std::size_t((box.y1 - m_world.y1) / grid.bin_h) * std::size_t(grid.columns) +
           std::size_t((box.x1 - m_world.x1) / grid.bin_w);
  };
  // Counting sort into bins: counts, running ends, then filled from the
  // back so that start[b] ends as the first of bin b and ids stay ascending.
  for (GRID& grid : m_grids)
    grid.start.assign(std::size_t(grid.columns) * std::size_t(grid.rows) + 1, 0);
  for (std::uint32_t id = first; id < last; ++id) {
    GRID& grid = m_grids[grid_of[id - first]];
    ++grid.start[bin_of(grid, shapes[id].box)];
  }
  for (GRID& grid : m_grids) {
    std::uint32_t sum = 0;
    for (std::uint32_t& count : grid.start) {
      sum += count;
      count = sum;
    }
    grid.ids.resize(sum);
  }
  for (std::uint32_t id = last; id-- > first;) {
    GRID& grid = m_grids[grid_of[id - first]];
    grid.ids[--grid.start[bin_of(grid, shapes[id].box)]] = id;
  }
  for (GRID& grid : m_grids)
    grid.start.back() = std::uint32_t(grid.ids.size());
}

std::vector<std::uint32_t> FLOORPLAN_INDEX::query(const FP_BOX& box) const
{
  std::vector<std::uint32_t> ids;
  query(box, [&ids](std::uint32_t id) { ids.push_back(id); });
  return ids;
}

std::size_t FLOORPLAN_INDEX::memory_bytes() const
{
  std::size_t bytes = sizeof(*this);
  for (const GRID& grid : m_grids)
    bytes += sizeof(grid) + (grid.start.capacity() + grid.ids.capacity()) * sizeof(std::uint32_t);
  return bytes;
}

std::size_t FLOORPLAN_INDEX::bin_count() const
{
  std::size_t bins = 0;
  for (const GRID& grid : m_grids)
    bins += grid.start.size() - 1;
  return bins;
}
