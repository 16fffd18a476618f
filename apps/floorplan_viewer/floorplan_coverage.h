#pragma once
// How much of each square tile a kind of shape covers, kept at every power
// of two of the tile size, like the levels of a mipmap: a view too far out
// to draw shapes one by one draws the level whose tiles are about a pixel.
//
// Each tile holds one byte per channel (0 nothing, 255 all covered); the
// channels of a tile sit side by side. Level 0 is built from the shapes,
// every other level is the mean of the four tiles below it.
#include "floorplan_model.h"

#include <cstdint>
#include <vector>

class FLOORPLAN_COVERAGE {
public:
  // Level 0 tiles are tile units square, the first one's top-left corner at
  // (x, y); there are enough to cover world.
  void reset(const FP_BOX& world, std::int32_t x, std::int32_t y, std::int32_t tile, int channels);
  // Adds the part of each tile the box covers (the box taken half-open).
  void add_area(int channel, const FP_BOX& box);
  // Adds scale times the length of the line inside each tile.
  void add_line(int channel, const FP_BOX& box, bool anti_diagonal, double scale);
  // Turns the sums into bytes and builds the coarser levels.
  void finish();

  bool is_empty() const { return m_levels.empty(); }
  int channels() const { return m_channels; }
  int levels() const { return int(m_levels.size()); }
  std::int32_t origin_x() const { return m_x; }
  std::int32_t origin_y() const { return m_y; }
  std::int32_t tile(int level) const { return m_tile << level; }
  int columns(int level) const { return m_levels[std::size_t(level)].columns; }
  int rows(int level) const { return m_levels[std::size_t(level)].rows; }
  // rows x columns x channels bytes.
  const std::uint8_t* data(int level) const { return m_levels[std::size_t(level)].bytes.data(); }
  std::size_t memory_bytes() const;

private:
  struct LEVEL {
    int columns;
    int rows;
    std::vector<std::uint8_t> bytes;
  };
  void add(int column, int row, int channel, double fraction);

  std::int32_t m_x = 0;
  std::int32_t m_y = 0;
  std::int32_t m_tile = 1;
  int m_columns = 0;
  int m_rows = 0;
  int m_channels = 1;
  // Level 0 while shapes are added, in 1/65535ths: bytes would lose the
  // many small parts a tile gets from its neighbours' shapes.
  std::vector<std::uint16_t> m_sums;
  std::vector<LEVEL> m_levels;
};
