#include "floorplan_coverage.h"

#include <algorithm>
#include <cmath>

void FLOORPLAN_COVERAGE::reset(const FP_BOX& world, std::int32_t x, std::int32_t y, std::int32_t tile,
                               int channels)
{
  m_x = x;
  m_y = y;
  m_tile = std::max(1, tile);
  m_channels = std::max(1, channels);
  m_columns = std::max(1, int((std::int64_t(world.x2) - x) / m_tile + 1));
  m_rows = std::max(1, int((std::int64_t(world.y2) - y) / m_tile + 1));
  m_levels.clear();
  m_sums.assign(std::size_t(m_columns) * std::size_t(m_rows) * std::size_t(m_channels), 0);
}

void FLOORPLAN_COVERAGE::add(int column, int row, int channel, double fraction)
{
  if (column < 0 || row < 0 || column >= m_columns || row >= m_rows)
    return;
  std::uint16_t& sum =
      m_sums[(std::size_t(row) * std::size_t(m_columns) + std::size_t(column)) * std::size_t(m_channels) +
             std::size_t(channel)];
  sum = std::uint16_t(std::min(65535.0, sum + fraction * 65535.0 + 0.5));
}

void FLOORPLAN_COVERAGE::add_area(int channel, const FP_BOX& box)
{
  if (box.x2 <= box.x1 || box.y2 <= box.y1)
    return;
  const double area = double(m_tile) * m_tile;
  const int c1 = int((box.x1 - m_x) / m_tile);
  const int c2 = int((box.x2 - 1 - m_x) / m_tile);
  const int r1 = int((box.y1 - m_y) / m_tile);
  const int r2 = int((box.y2 - 1 - m_y) / m_tile);
  for (int r = r1; r <= r2; ++r) {
    const std::int64_t top = std::max<std::int64_t>(box.y1, m_y + std::int64_t(r) * m_tile);
    const std::int64_t bottom = std::min<std::int64_t>(box.y2, m_y + std::int64_t(r + 1) * m_tile);
    for (int c = c1; c <= c2; ++c) {
      const std::int64_t left = std::max<std::int64_t>(box.x1, m_x + std::int64_t(c) * m_tile);
      const std::int64_t right = std::min<std::int64_t>(box.x2, m_x + std::int64_t(c + 1) * m_tile);
      add(c, r, channel, double(right - left) * double(bottom - top) / area);
    }
  }
}

void FLOORPLAN_COVERAGE::add_line(int channel, const FP_BOX& box, bool anti_diagonal, double scale)
{
  const double x0 = box.x1;
  const double y0 = anti_diagonal ? box.y2 : box.y1;
  const double dx = box.x2 - box.x1;
  const double dy = anti_diagonal ? -double(box.height()) : double(box.height());
  const double length = std::sqrt(dx * dx + dy * dy);
  // Samples half a tile apart never skip a tile the line crosses by more
  // than a corner; each one carries its share of the length.
  const int samples = std::max(1, int(std::ceil(length / (m_tile * 0.5))));
  const double share = length / samples * scale;
  for (int i = 0; i < samples; ++i) {
    const double t = (i + 0.5) / samples;
    add(int(std::floor((x0 + t * dx - m_x) / m_tile)), int(std::floor((y0 + t * dy - m_y) / m_tile)), channel,
        share);
  }
}

void FLOORPLAN_COVERAGE::finish()
{
  m_levels.clear();
  LEVEL base{m_columns, m_rows, std::vector<std::uint8_t>(m_sums.size())};
  for (std::size_t i = 0; i < m_sums.size(); ++i)
    base.bytes[i] = std::uint8_t((std::uint32_t(m_sums[i]) * 255u + 32767u) / 65535u);
  m_sums.clear();
  m_sums.shrink_to_fit();
  m_levels.push_back(std::move(base));
  const std::size_t channels = std::size_t(m_channels);
  // Down to a handful of tiles: the bird's-eye view's size.
  while (m_levels.back().columns > 8 || m_levels.back().rows > 8) {
    const LEVEL& below = m_levels.back();
    LEVEL level{(below.columns + 1) / 2, (below.rows + 1) / 2, {}};
    level.bytes.assign(std::size_t(level.columns) * std::size_t(level.rows) * channels, 0);
    for (int r = 0; r < level.rows; ++r) {
      for (int c = 0; c < level.columns; ++c) {
        for (std::size_t ch = 0; ch < channels; ++ch) {
          // Tiles past the edge count as empty, as the die's surroundings are.
          std::uint32_t sum = 2;
          for (int dr = 0; dr < 2; ++dr)
            for (int dc = 0; dc < 2; ++dc) {
              const int br = 2 * r + dr;
              const int bc = 2 * c + dc;
              if (br < below.rows && bc < below.columns)
                sum +=
                    below.bytes[(std::size_t(br) * std::size_t(below.columns) + std::size_t(bc)) * channels +
                                ch];
            }
          level.bytes[(std::size_t(r) * std::size_t(level.columns) + std::size_t(c)) * channels + ch] =
              std::uint8_t(sum / 4);
        }
      }
    }
    m_levels.push_back(std::move(level));
  }
}

std::size_t FLOORPLAN_COVERAGE::memory_bytes() const
{
  std::size_t bytes = sizeof(*this) + m_sums.capacity() * sizeof(std::uint16_t);
  for (const LEVEL& level : m_levels)
    bytes += sizeof(level) + level.bytes.capacity();
  return bytes;
}
