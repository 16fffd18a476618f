#pragma once
// A generated chip: die, pad ring, power grid, named blocks and macros,
// placement rows, standard cells in the rows and nets between them. The
// same seed, block count and shape count give the same design, so
// screenshots can be compared from run to run.
//
// Shapes are small fixed-size records in one vector, grouped by kind; what
// a person reads (names, cell types) is derived from a shape's index when
// asked for, so a million shapes cost a few bytes each.
#include <QRect>
#include <QString>
#include <QVector>

#include <array>
#include <cstdint>
#include <vector>

enum class FP_KIND : std::uint8_t { DIE, CORE, PAD, POWER, BLOCK, ROW, CELL, NET, COUNT };

// A closed box in logical units: x1 <= x2, y1 <= y2. Lines have one of the
// two extents zero when they are horizontal or vertical.
struct FP_BOX {
  std::int32_t x1 = 0;
  std::int32_t y1 = 0;
  std::int32_t x2 = 0;
  std::int32_t y2 = 0;

  bool intersects(const FP_BOX& other) const
  {
    return x1 <= other.x2 && other.x1 <= x2 && y1 <= other.y2 && other.y1 <= y2;
  }
  bool contains(const FP_BOX& other) const
  {
    return x1 <= other.x1 && other.x2 <= x2 && y1 <= other.y1 && other.y2 <= y2;
  }
  bool contains(std::int32_t x, std::int32_t y) const { return x1 <= x && x <= x2 && y1 <= y && y <= y2; }
  std::int32_t width() const { return x2 - x1; }
  std::int32_t height() const { return y2 - y1; }
  // A QRect of width w spans [x, x + w] here: the box's width is the
  // rectangle's, as for the die, the blocks and their shapes.
  QRect to_rect() const { return QRect(x1, y1, x2 - x1, y2 - y1); }
  static FP_BOX from_rect(const QRect& rect)
  {
    return {rect.left(), rect.top(), rect.left() + rect.width(), rect.top() + rect.height()};
  }
};

// sub and owner mean, per kind:
//   PAD    sub: FP_PAD_SIGNAL, FP_PAD_POWER, FP_PAD_GROUND or FP_PAD_CORNER
//   POWER  sub: FP_POWER_GROUND and FP_POWER_RING bits
//   BLOCK  owner: index into FLOORPLAN::blocks
//   ROW    sub: 1 for a flipped row; owner: the row number (capped)
//   CELL   sub: index into fp_cell_masters(); owner: 1 + the block whose
//          fence holds the cell, 0 for top-level cells
//   NET    sub: 1 when the line runs from (x1, y2) to (x2, y1), else from
//          (x1, y1) to (x2, y2)
struct FP_SHAPE {
  FP_BOX box;
  FP_KIND kind;
  std::uint8_t sub;
  std::uint16_t owner;
};
static_assert(sizeof(FP_SHAPE) == 20, "shapes are meant to stay at 20 bytes");

enum : std::uint8_t { FP_PAD_SIGNAL, FP_PAD_POWER, FP_PAD_GROUND, FP_PAD_CORNER };
enum : std::uint8_t { FP_POWER_GROUND = 1, FP_POWER_RING = 2 };

struct FP_CELL_MASTER {
  const char* name;
  int sites;  // width in placement sites
  int weight; // how often the generator picks it
};
const std::vector<FP_CELL_MASTER>& fp_cell_masters();

struct FLOORPLAN_BLOCK {
  QString name;
  QString cell;
  QRect rect;          // logical units (nanometres)
  bool hard;           // a hard macro rows stop at; else a fence region holding cells
  std::uint32_t shape; // its index in FLOORPLAN::shapes
};

struct FLOORPLAN {
  QRect die;
  QRect core;
  int row_height = 0;
  int site_width = 0;
  int row_count = 0;
  // Keep-out ring around hard macros, where rows stop.
  int halo = 0;
  std::vector<FP_SHAPE> shapes;
  // [first, last) of each kind in shapes.
  std::array<std::uint32_t, int(FP_KIND::COUNT) + 1> first = {};
  QVector<FLOORPLAN_BLOCK> blocks;

  std::uint32_t begin(FP_KIND kind) const { return first[std::size_t(kind)]; }
  std::uint32_t end(FP_KIND kind) const { return first[std::size_t(kind) + 1]; }
  std::uint32_t count(FP_KIND kind) const { return end(kind) - begin(kind); }
  // Instance names: blocks keep u_<cell>_<i>; a cell is named after its
  // master and its ordinal, under its block when it sits in one.
  QString shape_name(std::uint32_t id) const;
  // The cell type (block type, cell master, pad kind).
  QString shape_type(std::uint32_t id) const;
  std::size_t memory_bytes() const;
};

// shape_count is the total number of shapes wanted; the result holds at
// least that many (a few more when the rows take more cells than planned).
FLOORPLAN make_floorplan(unsigned seed, int block_count, int shape_count = 1000000);
