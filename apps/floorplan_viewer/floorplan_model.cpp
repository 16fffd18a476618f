#include "floorplan_model.h"

#include <QLocale>

#include <algorithm>
#include <cmath>

namespace {

// splitmix64: tiny, fast, and the same sequence on every platform and Qt
// version, which the screenshots rely on.
class FP_RANDOM {
public:
  explicit FP_RANDOM(std::uint64_t seed)
      : m_state(seed * 0x9E3779B97F4A7C15ull + 0x2545F4914F6CDD1Dull)
  {
  }
  std::uint64_t next()
  {
    std::uint64_t z = (m_state += 0x9E3779B97F4A7C15ull);
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ull;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBull;
    return z ^ (z >> 31);
  }
  // Uniform in [0, n) by multiply and shift: no division on the hot path.
  std::uint32_t bounded(std::uint32_t n)
  {
    return std::uint32_t((std::uint64_t(std::uint32_t(next())) * n) >> 32);
  }
  int range(int low, int high) { return low + int(bounded(std::uint32_t(high - low + 1))); }
  double real() { return double(next() >> 11) * (1.0 / 9007199254740992.0); }

private:
  std::uint64_t m_state;
};

struct BLOCK_KIND {
  const char* cell;
  bool hard;
  int min_percent; // of its slot of the block grid
  int max_percent;
};

// clang-format off
const BLOCK_KIND k_block_kinds[] = {
  {"CPU_CLUSTER", false, 70, 92},
  {"DDR_PHY",     true,  45, 70},
  {"SRAM_64K",    true,  40, 65},
  {"PCIE_CTRL",   false, 60, 85},
  {"PLL",         true,  18, 28},
  {"DSP_SLICE",   false, 65, 90},
  {"SERDES_X4",   true,  40, 60},
  {"NOC_ROUTER",  false, 55, 80},
};
// clang-format on
constexpr int k_block_kind_count = int(sizeof(k_block_kinds) / sizeof(k_block_kinds[0]));

constexpr int k_die_width = 1200000; // 1.2 mm in nanometres
constexpr int k_die_height = 900000;
constexpr int k_io_ring = 60000;
// Rows hold cells at this fraction of their length inside fences, and at
// about this fraction (varied smoothly over the die) at the top level.
constexpr double k_fence_density = 0.78;
constexpr double k_top_density = 0.50;
// Of the shapes asked for, about this share are cells; nets take the rest.
constexpr double k_cell_share = 0.70;

// A smooth field in [0, 1] over the die, so the top-level logic clumps the
// way placed logic does instead of spreading evenly.
double density_field(double x, double y, double phase_x, double phase_y)
{
  const double a = std::sin(x / 97000.0 + phase_x) * std::sin(y / 71000.0 + phase_y);
  const double b = std::sin((x + y) / 153000.0 + phase_y) * 0.5;
  return std::clamp(0.5 + 0.35 * a + 0.15 * b, 0.0, 1.0);
}

struct SPAN {
  int x1;
  int x2;
  int owner; // 0 top level, 1 + block index for a fence, -1 blocked
};

// Paints [x1, x2) with owner over a sorted list of spans covering the row.
void paint_span(std::vector<SPAN>& spans, int x1, int x2, int owner)
{
  std::vector<SPAN> out;
  out.reserve(spans.size() + 2);
  for (const SPAN& span : spans) {
    if (span.x2 <= x1 || span.x1 >= x2) {
      out.push_back(span);
      continue;
    }
    if (span.x1 < x1)
      out.push_back({span.x1, x1, span.owner});
    out.push_back({std::max(span.x1, x1), std::min(span.x2, x2), owner});
    if (span.x2 > x2)
      out.push_back({x2, span.x2, span.owner});
  }
  spans.swap(out);
}

FP_SHAPE make_shape(FP_KIND kind, int x1, int y1, int x2, int y2, std::uint8_t sub = 0,
                    std::uint16_t owner = 0)
{
  return {{x1, y1, x2, y2}, kind, sub, owner};
}

} // namespace

const std::vector<FP_CELL_MASTER>& fp_cell_masters()
{
  // clang-format off
  static const std::vector<FP_CELL_MASTER> masters = {
    {"INV_X1",    3, 14}, {"INV_X2",    4,  6}, {"BUF_X1",   4,  8}, {"BUF_X4",    7,  3},
    {"NAND2_X1",  4, 14}, {"NOR2_X1",   4, 10}, {"AND2_X1",  5,  6}, {"OR2_X1",    5,  5},
    {"AOI21_X1",  5,  8}, {"OAI21_X1",  5,  8}, {"AOI22_X1", 6,  5}, {"XOR2_X1",   8,  4},
    {"XNOR2_X1",  8,  3}, {"MUX2_X1",   9,  5}, {"HA_X1",   10,  2}, {"FA_X1",    16,  2},
    {"DFF_X1",   19,  9}, {"DFFR_X1",  22,  4}, {"CLKBUF_X8", 12, 1}, {"TIEHI",     2,  1},
  };
  // clang-format on
  return masters;
}

QString FLOORPLAN::shape_name(std::uint32_t id) const
{
  if (id >= shapes.size())
    return {};
  const FP_SHAPE& shape = shapes[id];
  switch (shape.kind) {
  case FP_KIND::DIE:
    return QStringLiteral("die");
  case FP_KIND::CORE:
    return QStringLiteral("core");
  case FP_KIND::PAD: {
    static const char* const prefixes[] = {"IO", "VDD", "VSS", "CORNER"};
    return QStringLiteral("%1_%2").arg(QLatin1String(prefixes[shape.sub & 3])).arg(id - begin(FP_KIND::PAD));
  }
  case FP_KIND::POWER:
    return QStringLiteral("%1_%2_%3")
        .arg(QLatin1String(shape.sub & FP_POWER_GROUND ? "VSS" : "VDD"),
             QLatin1String(shape.sub & FP_POWER_RING ? "ring" : "stripe"))
        .arg(id - begin(FP_KIND::POWER));
  case FP_KIND::BLOCK:
    return blocks.value(shape.owner).name;
  case FP_KIND::ROW:
    return QStringLiteral("ROW_%1").arg(shape.owner);
  case FP_KIND::CELL: {
    const QString leaf = QStringLiteral("u_%1_%2")
                             .arg(QString::fromLatin1(fp_cell_masters()[shape.sub].name).toLower())
                             .arg(id - begin(FP_KIND::CELL));
    return shape.owner ? blocks.value(shape.owner - 1).name + QLatin1Char('/') + leaf : leaf;
  }
  case FP_KIND::NET:
    return QStringLiteral("n_%1").arg(id - begin(FP_KIND::NET));
  case FP_KIND::COUNT:
    break;
  }
  return {};
}

QString FLOORPLAN::shape_type(std::uint32_t id) const
{
  if (id >= shapes.size())
    return {};
  const FP_SHAPE& shape = shapes[id];
  switch (shape.kind) {
  case FP_KIND::PAD: {
    static const char* const types[] = {"PAD_SIGNAL", "PAD_POWER", "PAD_GROUND", "PAD_CORNER"};
    return QLatin1String(types[shape.sub & 3]);
  }
  case FP_KIND::BLOCK:
    return blocks.value(shape.owner).cell;
  case FP_KIND::CELL:
    return QLatin1String(fp_cell_masters()[shape.sub].name);
  case FP_KIND::ROW:
    return QStringLiteral("CORE_ROW");
  case FP_KIND::POWER:
    return QStringLiteral("POWER");
  case FP_KIND::NET:
    return QStringLiteral("NET");
  default:
    return shape_name(id).toUpper();
  }
}

std::size_t FLOORPLAN::memory_bytes() const
{
  std::size_t bytes = sizeof(*this) + shapes.capacity() * sizeof(FP_SHAPE);
  for (const FLOORPLAN_BLOCK& block : blocks)
    bytes += sizeof(block) + std::size_t(block.name.capacity() + block.cell.capacity()) * 2;
  return bytes;
}

FLOORPLAN make_floorplan(unsigned seed, int block_count, int shape_count)
{
  FP_RANDOM random(seed);
  FLOORPLAN plan;
  plan.die = QRect(0, 0, k_die_width, k_die_height);
  plan.core = plan.die.adjusted(k_io_ring, k_io_ring, -k_io_ring, -k_io_ring);
  const FP_BOX die = FP_BOX::from_rect(plan.die);
  const FP_BOX core = FP_BOX::from_rect(plan.core);
  std::vector<FP_SHAPE>& shapes = plan.shapes;
  auto mark = [&](FP_KIND kind) { plan.first[std::size_t(kind)] = std::uint32_t(shapes.size()); };

  mark(FP_KIND::DIE);
  shapes.push_back({die, FP_KIND::DIE, 0, 0});
  mark(FP_KIND::CORE);
  shapes.push_back({core, FP_KIND::CORE, 0, 0});

  // The pad ring: a corner cell at each corner, pads between them facing
  // the core, power and ground pads spread among the signals.
  mark(FP_KIND::PAD);
  const int pad_in = 4000;
  const int pad_depth = 38000;
  const int pad_width = 24000;
  const int pad_pitch = 34000;
  const int corner = pad_in + pad_depth;
  for (const auto& [x, y] :
       {std::pair{die.x1 + pad_in, die.y1 + pad_in}, std::pair{die.x2 - corner, die.y1 + pad_in},
        std::pair{die.x1 + pad_in, die.y2 - corner}, std::pair{die.x2 - corner, die.y2 - corner}})
    shapes.push_back(make_shape(FP_KIND::PAD, x, y, x + pad_depth, y + pad_depth, FP_PAD_CORNER));
  int pad_number = 0;
  auto pad_kind = [&] {
    const int slot = pad_number++ % 6;
    return std::uint8_t(slot == 2 ? FP_PAD_POWER : slot == 5 ? FP_PAD_GROUND : FP_PAD_SIGNAL);
  };
  const int first_pad = corner + 10000;
  for (int x = die.x1 + first_pad; x + pad_width <= die.x2 - first_pad; x += pad_pitch) {
    shapes.push_back(
        make_shape(FP_KIND::PAD, x, die.y1 + pad_in, x + pad_width, die.y1 + corner, pad_kind()));
    shapes.push_back(
        make_shape(FP_KIND::PAD, x, die.y2 - corner, x + pad_width, die.y2 - pad_in, pad_kind()));
  }
  for (int y = die.y1 + first_pad; y + pad_width <= die.y2 - first_pad; y += pad_pitch) {
    shapes.push_back(
        make_shape(FP_KIND::PAD, die.x1 + pad_in, y, die.x1 + corner, y + pad_width, pad_kind()));
    shapes.push_back(
        make_shape(FP_KIND::PAD, die.x2 - corner, y, die.x2 - pad_in, y + pad_width, pad_kind()));
  }

  // Power: two rings round the core, then stripe pairs across it.
  mark(FP_KIND::POWER);
  for (int ring = 0; ring < 2; ++ring) {
    const int outer = 45000 + ring * 7000;
    const int width = 4500;
    const FP_BOX o{die.x1 + outer, die.y1 + outer, die.x2 - outer, die.y2 - outer};
    const std::uint8_t sub = std::uint8_t(FP_POWER_RING | (ring ? FP_POWER_GROUND : 0));
    shapes.push_back(make_shape(FP_KIND::POWER, o.x1, o.y1, o.x2, o.y1 + width, sub));
    shapes.push_back(make_shape(FP_KIND::POWER, o.x1, o.y2 - width, o.x2, o.y2, sub));
    shapes.push_back(make_shape(FP_KIND::POWER, o.x1, o.y1 + width, o.x1 + width, o.y2 - width, sub));
    shapes.push_back(make_shape(FP_KIND::POWER, o.x2 - width, o.y1 + width, o.x2, o.y2 - width, sub));
  }
  const int stripe = 2500;
  for (int x = core.x1 + 30000; x + 8000 + stripe < core.x2; x += 60000)
    for (int ground = 0; ground < 2; ++ground)
      shapes.push_back(make_shape(FP_KIND::POWER, x + ground * 8000, core.y1, x + ground * 8000 + stripe,
                                  core.y2, std::uint8_t(ground ? FP_POWER_GROUND : 0)));
  for (int y = core.y1 + 45000; y + 8000 + stripe < core.y2; y += 90000)
    for (int ground = 0; ground < 2; ++ground)
      shapes.push_back(make_shape(FP_KIND::POWER, core.x1, y + ground * 8000, core.x2,
                                  y + ground * 8000 + stripe, std::uint8_t(ground ? FP_POWER_GROUND : 0)));

  // Blocks on a coarse grid of the core so they never overlap: hard macros
  // smaller than their slot, fences filling most of theirs.
  mark(FP_KIND::BLOCK);
  const int columns = 6;
  const int grid_rows = std::max(1, (block_count + columns - 1) / columns);
  const int slot_w = plan.core.width() / columns;
  const int slot_h = plan.core.height() / grid_rows;
  for (int i = 0; i < block_count && i < columns * grid_rows; ++i) {
    const BLOCK_KIND& kind = k_block_kinds[random.bounded(k_block_kind_count)];
    const int w = slot_w * random.range(kind.min_percent, kind.max_percent) / 100;
    const int h = slot_h * random.range(kind.min_percent, kind.max_percent) / 100;
    const int x = core.x1 + (i % columns) * slot_w + random.range(0, slot_w - w);
    const int y = core.y1 + (i / columns) * slot_h + random.range(0, slot_h - h);
    const QString cell = QLatin1String(kind.cell);
    plan.blocks.append({QStringLiteral("u_%1_%2").arg(cell.toLower()).arg(i), cell, QRect(x, y, w, h),
                        kind.hard, std::uint32_t(shapes.size())});
    shapes.push_back(make_shape(FP_KIND::BLOCK, x, y, x + w, y + h, kind.hard ? 1 : 0, std::uint16_t(i)));
  }

  // The row height follows from the number of cells wanted: the area the
  // rows can fill, at their densities, divided by the mean cell area.
  const std::vector<FP_CELL_MASTER>& masters = fp_cell_masters();
  std::vector<std::uint8_t> pick; // weighted master choice in one lookup
  double mean_sites = 0;
  for (std::size_t m = 0; m < masters.size(); ++m) {
    pick.insert(pick.end(), std::size_t(masters[m].weight), std::uint8_t(m));
    mean_sites += double(masters[m].sites) * masters[m].weight;
  }
  mean_sites /= double(pick.size());
  const int fixed_shapes = int(shapes.size());
  const double wanted_cells = std::max(16.0, k_cell_share * (shape_count - fixed_shapes));
  double fence_area = 0;
  double macro_area = 0;
  const double halo_guess = 6000;
  for (const FLOORPLAN_BLOCK& block : plan.blocks) {
    if (block.hard)
      macro_area += (block.rect.width() + 2 * halo_guess) * (block.rect.height() + 2 * halo_guess);
    else
      fence_area += double(block.rect.width()) * block.rect.height();
  }
  const double core_area = double(plan.core.width()) * plan.core.height();
  const double fillable =
      fence_area * k_fence_density + std::max(0.0, core_area - fence_area - macro_area) * k_top_density;
  // Site width is a fifth of the row height.
  const double height = std::sqrt(fillable * 5.0 / (mean_sites * wanted_cells));
  plan.row_height = std::clamp(int(std::lround(height / 10.0)) * 10, 10, plan.core.height() / 4);
  plan.site_width = plan.row_height / 5;
  plan.halo = std::max(6000, 2 * plan.row_height);
  // Closed boxes: the last row ends on the core's bottom edge, not past it.
  plan.row_count = (core.y2 - core.y1) / plan.row_height;
  const int site = plan.site_width;
  const int row_h = plan.row_height;

  // Rows, cut where hard macros and their halos stand.
  mark(FP_KIND::ROW);
  std::vector<std::vector<SPAN>> row_spans(std::size_t(plan.row_count));
  for (int r = 0; r < plan.row_count; ++r) {
    const int y1 = core.y1 + r * row_h;
    const int y2 = y1 + row_h;
    std::vector<SPAN>& spans = row_spans[std::size_t(r)];
    spans.push_back({core.x1, core.x2, 0});
    for (int b = 0; b < plan.blocks.size(); ++b) {
      const FLOORPLAN_BLOCK& block = plan.blocks.at(b);
      const FP_BOX box = FP_BOX::from_rect(block.rect);
      const int mid = (y1 + y2) / 2;
      if (!block.hard && box.y1 <= mid && mid < box.y2)
        paint_span(spans, box.x1, box.x2, 1 + b);
    }
    for (const FLOORPLAN_BLOCK& block : plan.blocks) {
      const FP_BOX box = FP_BOX::from_rect(block.rect);
      if (block.hard && box.y1 - plan.halo < y2 && y1 < box.y2 + plan.halo)
        paint_span(spans, box.x1 - plan.halo, box.x2 + plan.halo, -1);
    }
    // Spans start and end on the site grid.
    for (SPAN& span : spans) {
      span.x1 = core.x1 + (span.x1 - core.x1 + site - 1) / site * site;
      span.x2 = core.x1 + (span.x2 - core.x1) / site * site;
    }
    for (std::size_t s = 0; s < spans.size();) {
      if (spans[s].owner < 0) {
        ++s;
        continue;
      }
      std::size_t e = s;
      while (e + 1 < spans.size() && spans[e + 1].owner >= 0)
        ++e;
      if (spans[e].x2 - spans[s].x1 >= 4 * site)
        shapes.push_back(make_shape(FP_KIND::ROW, spans[s].x1, y1, spans[e].x2, y2, std::uint8_t(r & 1),
                                    std::uint16_t(std::min(r, 65535))));
      s = e + 1;
    }
  }

  // Cells, left to right in each row, with whitespace between them drawn so
  // that the row reaches its density on average.
  mark(FP_KIND::CELL);
  const std::size_t cell_budget = std::size_t(std::max(0, shape_count - int(shapes.size())));
  shapes.reserve(
      std::max<std::size_t>(std::size_t(shape_count), shapes.size() + std::size_t(wanted_cells * 1.2)));
  std::vector<std::uint32_t> row_first(std::size_t(plan.row_count) + 1);
  const double phase_x = random.real() * 6.28;
  const double phase_y = random.real() * 6.28;
  for (int r = 0; r < plan.row_count; ++r) {
    row_first[std::size_t(r)] = std::uint32_t(shapes.size());
    const int y1 = core.y1 + r * row_h;
    for (const SPAN& span : row_spans[std::size_t(r)]) {
      if (span.owner < 0)
        continue;
      int x = span.x1;
      while (x < span.x2 && shapes.size() - plan.begin(FP_KIND::CELL) < cell_budget) {
        const double field = density_field(x, y1, phase_x, phase_y);
        const double density =
            span.owner ? k_fence_density * (0.85 + 0.3 * field) : k_top_density * (0.3 + 1.4 * field);
        const std::uint8_t m = pick[random.bounded(std::uint32_t(pick.size()))];
        const int w = masters[m].sites * site;
        if (x + w > span.x2)
          break;
        shapes.push_back(make_shape(FP_KIND::CELL, x, y1, x + w, y1 + row_h, m, std::uint16_t(span.owner)));
        const double mean_gap = masters[m].sites * (1.0 / std::clamp(density, 0.05, 0.98) - 1.0);
        x += w + int(random.real() * (2.0 * mean_gap + 1.0)) * site;
      }
    }
  }
  row_first[std::size_t(plan.row_count)] = std::uint32_t(shapes.size());

  // Nets: two-point connections from a cell to another, mostly its
  // neighbours, some a few rows away, a few far across the die.
  mark(FP_KIND::NET);
  const std::uint32_t cells_begin = plan.begin(FP_KIND::CELL);
  const std::uint32_t cells = std::uint32_t(shapes.size()) - cells_begin;
  const int nets = cells < 2 ? 0 : std::max(0, shape_count - int(shapes.size()));
  auto cell_row = [&](std::uint32_t id) { return (shapes[id].box.y1 - core.y1) / row_h; };
  auto nearest_in_row = [&](int r, int x) -> std::uint32_t {
    const auto first = shapes.begin() + row_first[std::size_t(r)];
    const auto last = shapes.begin() + row_first[std::size_t(r) + 1];
    if (first == last)
      return std::uint32_t(-1);
    auto at = std::lower_bound(first, last, x, [](const FP_SHAPE& s, int v) { return s.box.x1 < v; });
    if (at == last)
      --at;
    return std::uint32_t(at - shapes.begin());
  };
  for (int n = 0; n < nets; ++n) {
    std::uint32_t a = 0;
    std::uint32_t b = std::uint32_t(-1);
    // Connections longer than their kind allows (a neighbour in the list at
    // the other end of the next row, across a macro, a nearly empty row) are
    // drawn again from another cell.
    for (int attempt = 0; attempt < 8; ++attempt) {
      a = cells_begin + random.bounded(cells);
      const std::uint32_t roll = random.bounded(100);
      int limit = 24 * row_h;
      if (roll < 82) {
        // Most connections are to a cell a few places along the row.
        const int step =
            (roll < 70 ? random.range(1, 4) : random.range(5, 12)) * (random.bounded(2) ? 1 : -1);
        b = std::uint32_t(
            std::clamp<std::int64_t>(std::int64_t(a) + step, cells_begin, cells_begin + cells - 1));
      } else {
        const bool far = roll >= 99;
        const int rows_away = far ? std::max(1, plan.row_count / 24) : 3;
        const int x_away = far ? plan.core.width() / 40 : 5 * row_h;
        limit = 2 * (x_away + rows_away * row_h);
        const int r = std::clamp(cell_row(a) + random.range(-rows_away, rows_away), 0, plan.row_count - 1);
        b = nearest_in_row(r, shapes[a].box.x1 + random.range(-x_away, x_away));
      }
      if (b != std::uint32_t(-1) && b != a &&
          std::abs(shapes[b].box.x1 - shapes[a].box.x1) + std::abs(shapes[b].box.y1 - shapes[a].box.y1) <=
              limit)
        break;
      b = std::uint32_t(-1);
    }
    if (b == std::uint32_t(-1))
      b = a + 1 < cells_begin + cells ? a + 1 : a - 1;
    const FP_BOX& p = shapes[a].box;
    const FP_BOX& q = shapes[b].box;
    const int px = (p.x1 + p.x2) / 2;
    const int py = (p.y1 + p.y2) / 2;
    const int qx = (q.x1 + q.x2) / 2;
    const int qy = (q.y1 + q.y2) / 2;
    // Normalised box; sub says which diagonal the line takes.
    const bool anti = (qx - px) * std::int64_t(qy - py) < 0;
    shapes.push_back(make_shape(FP_KIND::NET, std::min(px, qx), std::min(py, qy), std::max(px, qx),
                                std::max(py, qy), anti ? 1 : 0));
  }
  mark(FP_KIND::COUNT);
  shapes.shrink_to_fit();
  return plan;
}
