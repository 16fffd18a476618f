#include "floorplan_renderer.h"

#include "floorplan_blend.h"
#include "floorplan_data.h"
#include "floorplan_selection.h"

#include <orq_color.h>
#include <orq_font.h>
#include <orq_pen.h>

#include <QElapsedTimer>
#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <cstring>

namespace {

struct BLOCK_STYLE {
  const char* cell;
  ORQ_COLOR_RESOURCE color;
  int shade; // percent: above 100 lighter, below darker
};

// Fences take the block colours of the theme; macros share its macro colour,
// told apart by shade, so the Options dialog recolours each family at once.
// clang-format off
const BLOCK_STYLE k_block_styles[] = {
  {"CPU_CLUSTER", ORQ_FPV_BLOCK_FILL_COLOR, 100},
  {"PCIE_CTRL",   ORQ_FPV_BLOCK_SOFT_COLOR, 100},
  {"DSP_SLICE",   ORQ_FPV_GUIDE_COLOR,      100},
  {"NOC_ROUTER",  ORQ_FPV_BOUND_COLOR,      100},
  {"SRAM_64K",    ORQ_FPV_MACRO_FILL_COLOR, 100},
  {"DDR_PHY",     ORQ_FPV_MACRO_FILL_COLOR,  75},
  {"SERDES_X4",   ORQ_FPV_MACRO_FILL_COLOR, 125},
  {"PLL",         ORQ_FPV_MACRO_FILL_COLOR, 145},
};
// clang-format on

QColor theme_color(ORQ_COLOR_RESOURCE id)
{
  return ORQ_COLOR::get_default_color(id);
}

QColor shaded(const QColor& color, int shade)
{
  if (shade > 100)
    return color.lighter(shade);
  if (shade < 100)
    return color.darker(10000 / std::max(1, shade));
  return color;
}

QColor block_color(const FLOORPLAN_BLOCK& block)
{
  for (const BLOCK_STYLE& style : k_block_styles)
    if (block.cell == QLatin1String(style.cell))
      return shaded(theme_color(style.color), style.shade);
  return theme_color(block.hard ? ORQ_FPV_MACRO_FILL_COLOR : ORQ_FPV_BLOCK_FILL_COLOR);
}

QColor with_alpha(QColor color, int alpha)
{
  color.setAlpha(alpha);
  return color;
}

// Theme pens are widths in device pixels whatever the zoom; on a printer
// they grow with the dots so they keep their weight on paper.
QPen theme_pen(ORQ_PEN_RESOURCE id, double pen_scale)
{
  QPen pen = *ORQ_PEN(id).get_pen();
  pen.setCosmetic(true);
  pen.setWidthF(std::max(1.0, pen.widthF()) * pen_scale);
  return pen;
}

QRectF rect_of(const FP_BOX& box)
{
  return QRectF(box.x1, box.y1, box.x2 - box.x1, box.y2 - box.y1);
}


void fill_lut(std::uint32_t* lut, const QColor& color, double alpha_per_level, int alpha_floor)
{
  lut[0] = 0;
  for (int level = 1; level < 256; ++level) {
    const int alpha = std::clamp(int(std::lround(alpha_floor + level * alpha_per_level)), 0, 255);
    lut[level] = qPremultiply(qRgba(color.red(), color.green(), color.blue(), alpha));
  }
}

// Fills outer less inner (inner lies inside outer, or does not meet it).
void fill_frame(QPainter* painter, const QRectF& outer, const QRectF& inner, const QColor& color)
{
  const QRectF hole = inner & outer;
  if (hole.isEmpty()) {
    painter->fillRect(outer, color);
    return;
  }
  const QRectF parts[] = {
      QRectF(QPointF(outer.left(), outer.top()), QPointF(outer.right(), hole.top())),
      QRectF(QPointF(outer.left(), hole.bottom()), QPointF(outer.right(), outer.bottom())),
      QRectF(QPointF(outer.left(), hole.top()), QPointF(hole.left(), hole.bottom())),
      QRectF(QPointF(hole.right(), hole.top()), QPointF(outer.right(), hole.bottom()))};
  for (const QRectF& part : parts)
    if (part.width() > 0 && part.height() > 0)
      painter->fillRect(part, color);
}

double lap(QElapsedTimer& clock)
{
  const double ms = double(clock.nsecsElapsed()) / 1e6;
  clock.restart();
  return ms;
}

FP_BOX box_of(const QRectF& rect)
{
  auto clamp = [](double v) { return std::int32_t(std::clamp(v, -2.0e9, 2.0e9)); };
  return {clamp(std::floor(rect.left())), clamp(std::floor(rect.top())), clamp(std::ceil(rect.right())),
          clamp(std::ceil(rect.bottom()))};
}

} // namespace

struct FLOORPLAN_RENDERER::FRAME {
  QPainter* painter;
  const FLOORPLAN& plan;
  const FP_PAINT_OPTIONS& options;
  const FLOORPLAN_SELECTION* selection;
  QTransform transform;
  double scale;  // device pixels per logical unit
  double detail; // the same, in the pixels detail is chosen for
  double pen_scale;
  double row_pixels;
  FP_BOX box;
  std::vector<QColor> owner_colors; // 0 the top level, 1 + block index
  FP_PAINT_STATS stats;
  // The visible device area and a little more: what device rectangles are
  // clipped to before Qt sees them.
  QRect device_clip;

  // Many small shapes are drawn in device pixels with the painter's
  // transform reset: Qt fills integer rectangles on an untransformed
  // painter about ten times faster than transformed QRectF ones. Rounding
  // both edges keeps neighbours touching without overlap.
  QRect device_rect(const FP_BOX& b) const
  {
    const double ax = b.x1 * transform.m11() + transform.dx();
    const double bx = b.x2 * transform.m11() + transform.dx();
    const double ay = b.y1 * transform.m22() + transform.dy();
    const double by = b.y2 * transform.m22() + transform.dy();
    auto edge = [](double v) { return int(std::lround(std::clamp(v, -1.0e8, 1.0e8))); };
    const int x1 = edge(std::min(ax, bx));
    const int x2 = std::max(x1 + 1, edge(std::max(ax, bx)));
    const int y1 = edge(std::min(ay, by));
    const int y2 = std::max(y1 + 1, edge(std::max(ay, by)));
    return QRect(x1, y1, x2 - x1, y2 - y1) & device_clip;
  }
  QPointF device_point(double x, double y) const
  {
    return QPointF(x * transform.m11() + transform.dx(), y * transform.m22() + transform.dy());
  }
};

void FLOORPLAN_RENDERER::set_data(const FLOORPLAN_DATA* data)
{
  m_data = data;
  m_selection_source = nullptr;
  m_selection_version = -1;
  m_selection_has_cells = false;
  m_selection_coverage = FLOORPLAN_COVERAGE();
}

bool FLOORPLAN_RENDERER::shows_cells(double scale) const
{
  return m_data && m_data->plan().row_height * scale >= k_cell_row_pixels;
}

FP_PAINT_STATS FLOORPLAN_RENDERER::paint(QPainter* painter, const QRectF& visible,
                                         const FP_PAINT_OPTIONS& options,
                                         const FLOORPLAN_SELECTION* selection)
{
  if (!m_data)
    return {};
  const FLOORPLAN& plan = m_data->plan();
  // The whole logical-to-device mapping, window and viewport included.
  const QTransform transform = painter->combinedTransform();
  const double scale = std::max(1e-12, std::sqrt(std::abs(transform.m11() * transform.m22())));
  const double detail_scale = std::clamp(options.detail_scale, 1e-3, 1.0);
  FRAME frame{painter,
              plan,
              options,
              selection,
              transform,
              scale,
              scale * detail_scale,
              1.0 / detail_scale,
              0.0,
              box_of(visible),
              {},
              {},
              {}};
  frame.row_pixels = plan.row_height * frame.detail;
  frame.device_clip = transform.mapRect(visible).toAlignedRect().adjusted(-2, -2, 2, 2);
  frame.owner_colors.push_back(theme_color(ORQ_FPV_BLOCK_FIXED_COLOR));
  for (const FLOORPLAN_BLOCK& block : plan.blocks)
    frame.owner_colors.push_back(block_color(block));

  QElapsedTimer clock;
  clock.start();
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing, false);
  painter->setRenderHint(QPainter::SmoothPixmapTransform, false);
  painter->setPen(Qt::NoPen);
  // Background, die edge, I/O ring (the band the pads sit on), the die
  // between ring and core, the core: each pixel filled once, which matters
  // when all five cover the whole device.
  const QRectF die(plan.die);
  const QRectF ring = die.adjusted(2000, 2000, -2000, -2000);
  const QRectF inner = die.adjusted(45000, 45000, -45000, -45000);
  fill_frame(painter, visible, die, theme_color(ORQ_FPV_BACKGROUND_COLOR));
  fill_frame(painter, die, ring, theme_color(ORQ_FPV_DIE_COLOR));
  fill_frame(painter, ring, inner, theme_color(ORQ_FPV_IO_RING_COLOR));
  fill_frame(painter, inner, QRectF(plan.core), theme_color(ORQ_FPV_DIE_COLOR));
  painter->fillRect(QRectF(plan.core) & visible, theme_color(ORQ_FPV_CORE_COLOR));

  m_fixed_ids.clear();
  m_data->fixed_index().query(frame.box, [this](std::uint32_t id) { m_fixed_ids.push_back(id); });
  // Kinds are contiguous in the model: sorted ids come kind by kind, in the
  // order they are drawn.
  std::sort(m_fixed_ids.begin(), m_fixed_ids.end());
  frame.stats.fixed = int(m_fixed_ids.size());

  // Device-space drawing below needs an axis-parallel mapping; anything
  // else (no view of ours rotates) keeps to the coverage.
  const bool axis_parallel = transform.type() <= QTransform::TxScale;
  const bool cells_one_by_one = axis_parallel && !options.overview && frame.row_pixels >= k_cell_row_pixels;
  if (axis_parallel && !options.overview && frame.row_pixels >= 2.0) {
    // Rows under the cells, flipped ones a shade lighter as in a layout.
    std::vector<QRect> rows[2];
    std::vector<QRect> ticks;
    const bool sites = plan.site_width * frame.detail >= 6.0;
    const int site = plan.site_width;
    const double tick = plan.row_height / 6.0;
    for (std::uint32_t id : m_fixed_ids) {
      const FP_SHAPE& shape = plan.shapes[id];
      if (shape.kind != FP_KIND::ROW)
        continue;
      rows[shape.sub & 1].push_back(frame.device_rect(shape.box));
      if (!sites)
        continue;
      // Site marks along the row once a site is a few pixels wide.
      const std::int32_t x1 = std::max(shape.box.x1, frame.box.x1 - site);
      const std::int32_t x2 = std::min(shape.box.x2, frame.box.x2 + site);
      for (std::int32_t x = shape.box.x1 + (x1 - shape.box.x1) / site * site; x <= x2; x += site) {
        const QPointF top = frame.device_point(x, shape.box.y2 - tick);
        const QPointF bottom = frame.device_point(x, shape.box.y2);
        ticks.push_back(QRect(
            QPoint(int(top.x()), int(std::min(top.y(), bottom.y()))),
            QSize(std::max(1, int(frame.pen_scale)), std::max(1, int(std::abs(bottom.y() - top.y()))))));
      }
    }
    painter->save();
    painter->resetTransform();
    const QColor row = theme_color(ORQ_FPV_ROW_COLOR);
    for (int flipped = 0; flipped < 2; ++flipped) {
      painter->setBrush(flipped ? row.lighter(115) : row);
      painter->drawRects(rows[flipped].data(), int(rows[flipped].size()));
    }
    // One-pixel rectangles: Qt fills those far faster than it strokes.
    painter->setBrush(theme_pen(ORQ_FPV_SITE_PEN, 1).color());
    painter->drawRects(ticks.data(), int(ticks.size()));
    painter->restore();
    frame.stats.rows_drawn = true;
  }

  frame.stats.base_ms = lap(clock);
  if (cells_one_by_one) {
    paint_cells(frame);
    if (frame.row_pixels >= k_net_row_pixels)
      paint_nets(frame);
    else
      paint_coverage(frame, false);
  } else {
    paint_coverage(frame, true);
  }
  frame.stats.detail_ms = lap(clock);
  paint_fixed(frame);
  frame.stats.fixed_ms = lap(clock);
  if (!options.overview)
    paint_names(frame);
  painter->restore();
  frame.stats.names_ms = lap(clock);
  return frame.stats;
}

void FLOORPLAN_RENDERER::update_selection_coverage(const FLOORPLAN_SELECTION& selection)
{
  if (&selection == m_selection_source && selection.version() == m_selection_version)
    return;
  m_selection_source = &selection;
  m_selection_version = selection.version();
  const FLOORPLAN& plan = m_data->plan();
  const std::vector<std::uint32_t>& ids = selection.ids();
  const auto first = std::lower_bound(ids.begin(), ids.end(), plan.begin(FP_KIND::CELL));
  const auto last = std::lower_bound(ids.begin(), ids.end(), plan.end(FP_KIND::CELL));
  m_selection_has_cells = first != last;
  m_selection_coverage = FLOORPLAN_COVERAGE();
  if (!m_selection_has_cells)
    return;
  m_data->reset_coverage_like(m_selection_coverage, 1);
  for (auto it = first; it != last; ++it)
    m_selection_coverage.add_area(0, plan.shapes[*it].box);
  m_selection_coverage.finish();
}

void FLOORPLAN_RENDERER::paint_coverage(FRAME& frame, bool cells)
{
  const FLOORPLAN_COVERAGE& coverage = m_data->coverage();
  if (coverage.is_empty())
    return;
  // The finest level whose tiles are at least about a pixel: the image is
  // never much larger than the device area it covers.
  int level = 0;
  while (level + 1 < coverage.levels() && coverage.tile(level) * frame.detail < 0.85)
    ++level;
  const double tile = coverage.tile(level);
  const int columns = coverage.columns(level);
  const int rows = coverage.rows(level);
  auto tile_index = [tile](std::int64_t v, std::int32_t origin, int count) {
    return int(std::clamp<std::int64_t>(std::int64_t(std::floor((double(v) - origin) / tile)), 0, count - 1));
  };
  const int c1 = tile_index(frame.box.x1, coverage.origin_x(), columns);
  const int c2 = tile_index(frame.box.x2, coverage.origin_x(), columns);
  const int r1 = tile_index(frame.box.y1, coverage.origin_y(), rows);
  const int r2 = tile_index(frame.box.y2, coverage.origin_y(), rows);
  const int w = c2 - c1 + 1;
  const int h = r2 - r1 + 1;
  if (w <= 0 || h <= 0)
    return;
  if (m_image.size() != QSize(w, h))
    m_image = QImage(w, h, QImage::Format_ARGB32_Premultiplied);

  // Which fence each tile's centre lies in: its cells take that colour.
  const FLOORPLAN& plan = frame.plan;
  m_owner_map.assign(std::size_t(w) * std::size_t(h), 0);
  for (int b = 0; b < plan.blocks.size() && b < 255; ++b) {
    const FLOORPLAN_BLOCK& block = plan.blocks.at(b);
    if (block.hard)
      continue;
    const FP_BOX box = FP_BOX::from_rect(block.rect);
    const int bx1 = std::max(c1, int(std::ceil((box.x1 - coverage.origin_x()) / tile - 0.5)));
    const int bx2 = std::min(c2, int(std::floor((box.x2 - coverage.origin_x()) / tile - 0.5)));
    const int by1 = std::max(r1, int(std::ceil((box.y1 - coverage.origin_y()) / tile - 0.5)));
    const int by2 = std::min(r2, int(std::floor((box.y2 - coverage.origin_y()) / tile - 0.5)));
    for (int r = by1; r <= by2 && bx1 <= bx2; ++r)
      std::memset(m_owner_map.data() + std::size_t(r - r1) * std::size_t(w) + std::size_t(bx1 - c1), b + 1,
                  std::size_t(bx2 - bx1 + 1));
  }

  // Colour tables: coverage straight to alpha for cells; wiring density
  // fainter; the selection strong wherever it touches a tile.
  std::vector<std::uint32_t> cell_lut(frame.owner_colors.size() * 256);
  for (std::size_t owner = 0; owner < frame.owner_colors.size(); ++owner)
    fill_lut(cell_lut.data() + owner * 256, frame.owner_colors[owner], 1.0, 0);
  std::uint32_t net_lut[256];
  fill_lut(net_lut, theme_color(ORQ_FPV_FLYLINE_COLOR), 0.6, 0);
  std::uint32_t selection_lut[256];
  fill_lut(selection_lut, theme_color(ORQ_FPV_BLOCK_SELECTED_COLOR), 105.0 / 255, 150);

  const std::uint8_t* selected = nullptr;
  if (cells && frame.selection && !frame.options.overview) {
    update_selection_coverage(*frame.selection);
    if (m_selection_has_cells && level < m_selection_coverage.levels())
      selected = m_selection_coverage.data(level);
  }
  const int channels = coverage.channels();
  for (int y = 0; y < h; ++y) {
    const std::uint8_t* source =
        coverage.data(level) +
        (std::size_t(r1 + y) * std::size_t(columns) + std::size_t(c1)) * std::size_t(channels);
    const std::uint8_t* owner = m_owner_map.data() + std::size_t(y) * std::size_t(w);
    auto* out = reinterpret_cast<std::uint32_t*>(m_image.scanLine(y));
    for (int x = 0; x < w; ++x, source += channels) {
      std::uint32_t pixel =
          cells ? cell_lut[std::size_t(owner[x]) * 256 + source[FLOORPLAN_DATA::COVERAGE_CELLS]] : 0u;
      if (const std::uint8_t wiring = source[FLOORPLAN_DATA::COVERAGE_NETS])
        pixel = fpv_over(net_lut[wiring], pixel);
      out[x] = pixel;
    }
    if (selected) {
      const std::uint8_t* line = selected + std::size_t(r1 + y) * std::size_t(columns) + std::size_t(c1);
      for (int x = 0; x < w; ++x)
        if (line[x])
          out[x] = fpv_over(selection_lut[line[x]], out[x]);
    }
  }
  frame.painter->drawImage(
      QRectF(coverage.origin_x() + c1 * tile, coverage.origin_y() + r1 * tile, w * tile, h * tile), m_image);
  frame.stats.coverage_level = level;
  frame.stats.coverage_size = QSize(w, h);
}

void FLOORPLAN_RENDERER::paint_cells(FRAME& frame)
{
  const FLOORPLAN& plan = frame.plan;
  m_cell_batches.resize(frame.owner_colors.size());
  for (std::vector<QRect>& batch : m_cell_batches)
    batch.clear();
  m_selected_cells.clear();
  const FP_SHAPE* shapes = plan.shapes.data();
  const std::size_t owners = m_cell_batches.size();
  const FLOORPLAN_SELECTION* selection =
      frame.selection && !frame.selection->is_empty() ? frame.selection : nullptr;
  int count = 0;
  m_data->cell_index().query(frame.box, [&](std::uint32_t id) {
    const FP_SHAPE& shape = shapes[id];
    const QRect rect = frame.device_rect(shape.box);
    if (rect.isEmpty())
      return;
    m_cell_batches[std::min<std::size_t>(shape.owner, owners - 1)].push_back(rect);
    if (selection && selection->contains(id))
      m_selected_cells.push_back(rect);
    ++count;
  });
  frame.stats.cells = count;
  QPainter* painter = frame.painter;
  painter->save();
  painter->resetTransform();
  painter->setPen(Qt::NoPen);
  // Outlines only once cells are big enough for a line not to drown them:
  // the cell in a darker shade, its inside one pixel in.
  const bool outline = frame.row_pixels >= 10.0;
  const int border = std::max(1, int(std::lround(frame.pen_scale)));
  for (std::size_t owner = 0; owner < owners; ++owner) {
    const std::vector<QRect>& batch = m_cell_batches[owner];
    if (batch.empty())
      continue;
    const QColor color = frame.owner_colors[owner];
    painter->setBrush(outline ? color.darker(170) : color);
    painter->drawRects(batch.data(), int(batch.size()));
    if (!outline)
      continue;
    m_insets.clear();
    for (const QRect& rect : batch)
      if (rect.width() > 2 * border && rect.height() > 2 * border)
        m_insets.push_back(rect.adjusted(border, border, -border, -border));
    painter->setBrush(color);
    painter->drawRects(m_insets.data(), int(m_insets.size()));
  }
  if (!m_selected_cells.empty()) {
    QPen pen = theme_pen(ORQ_FPV_BLOCK_SELECTED_PEN, frame.pen_scale);
    // A small cell keeps some of its own colour inside the outline.
    pen.setWidthF(
        std::min(pen.widthF(), std::max(1.0, std::floor(frame.row_pixels / 5.0)) * frame.pen_scale));
    pen.setJoinStyle(Qt::MiterJoin);
    painter->setPen(pen);
    painter->setBrush(with_alpha(theme_color(ORQ_FPV_BLOCK_SELECTED_COLOR), 110));
    for (QRect& rect : m_selected_cells)
      rect.adjust(0, 0, -1, -1); // a pen draws one pixel beyond the width
    painter->drawRects(m_selected_cells.data(), int(m_selected_cells.size()));
  }
  painter->setPen(Qt::NoPen);
  painter->setBrush(Qt::NoBrush);

  // Cell types inside the cells, where they fit.
  if (frame.row_pixels >= 36.0) {
    const ORQ_FONT font(ORQ_FPV_CELL_TYPE_FONT);
    const QFont qfont = font.get_font();
    const QFontMetricsF metrics(qfont, painter->device());
    const std::vector<FP_CELL_MASTER>& masters = fp_cell_masters();
    std::vector<double> widths(masters.size());
    for (std::size_t m = 0; m < masters.size(); ++m)
      widths[m] = metrics.horizontalAdvance(QLatin1String(masters[m].name));
    painter->setFont(qfont);
    painter->setPen(font.get_text_color().get_color());
    painter->setRenderHint(QPainter::TextAntialiasing, true);
    m_data->cell_index().query(frame.box, [&](std::uint32_t id) {
      const FP_SHAPE& shape = shapes[id];
      const QRect device = frame.device_rect(shape.box);
      if (device.width() >= widths[shape.sub] + 6 && device.height() >= metrics.height() + 4) {
        painter->drawText(device, Qt::AlignCenter, QLatin1String(masters[shape.sub].name));
        ++frame.stats.names;
      }
    });
  }
  painter->restore();
}

void FLOORPLAN_RENDERER::paint_nets(FRAME& frame)
{
  m_lines.clear();
  const FP_SHAPE* shapes = frame.plan.shapes.data();
  m_data->net_index().query(frame.box, [&](std::uint32_t id) {
    const FP_BOX& b = shapes[id].box;
    if (shapes[id].sub)
      m_lines.emplace_back(frame.device_point(b.x1, b.y2), frame.device_point(b.x2, b.y1));
    else
      m_lines.emplace_back(frame.device_point(b.x1, b.y1), frame.device_point(b.x2, b.y2));
  });
  frame.stats.nets = int(m_lines.size());
  if (m_lines.empty())
    return;
  QPainter* painter = frame.painter;
  painter->save();
  painter->resetTransform();
  const QPen pen = theme_pen(ORQ_FPV_FLYLINE_PEN, frame.pen_scale);
  if (pen.widthF() <= 1.5 && pen.style() == Qt::SolidLine) {
    m_line_layer.begin(frame.device_clip, pen.color());
    for (const QLineF& line : m_lines)
      m_line_layer.add(line);
    m_line_layer.finish(painter);
  } else {
    // Wider or dashed flylines chosen in the Options dialog: Qt's stroker.
    painter->setRenderHint(QPainter::Antialiasing, true);
    painter->setPen(pen);
    painter->drawLines(m_lines.data(), int(m_lines.size()));
  }
  painter->restore();
}

void FLOORPLAN_RENDERER::paint_fixed(FRAME& frame)
{
  QPainter* painter = frame.painter;
  const FLOORPLAN& plan = frame.plan;
  const double scale = frame.scale;
  const bool axis_parallel = frame.transform.type() <= QTransform::TxScale;

  // Power: a stripe thinner than a pixel and a half is drawn a pixel wide,
  // so it neither vanishes nor bleeds at a distance.
  const QColor vdd = with_alpha(theme_color(ORQ_FPV_POWER_STRIPE_COLOR), 150);
  const QColor vss = with_alpha(theme_color(ORQ_FPV_GROUND_STRIPE_COLOR), 150);
  const QColor vdd_ring = with_alpha(theme_color(ORQ_FPV_POWER_RING_COLOR), 220);
  const QColor vss_ring = with_alpha(theme_color(ORQ_FPV_GROUND_STRIPE_COLOR), 220);
  for (std::uint32_t id : m_fixed_ids) {
    const FP_SHAPE& shape = plan.shapes[id];
    if (shape.kind != FP_KIND::POWER)
      continue;
    const bool ground = shape.sub & FP_POWER_GROUND;
    const QColor color = shape.sub & FP_POWER_RING ? (ground ? vss_ring : vdd_ring) : (ground ? vss : vdd);
    const QRectF rect = rect_of(shape.box);
    if (std::min(rect.width(), rect.height()) * scale >= 1.5 || !axis_parallel) {
      painter->fillRect(rect, color);
      continue;
    }
    // device_rect keeps at least a pixel: a filled rectangle, not a line,
    // since Qt fills far faster than it strokes.
    painter->save();
    painter->resetTransform();
    painter->fillRect(frame.device_rect(shape.box), color);
    painter->restore();
  }

  const QPen macro_pen = theme_pen(ORQ_FPV_MACRO_PEN, frame.pen_scale);
  const QPen halo_pen = theme_pen(ORQ_FPV_MACRO_HALO_PEN, frame.pen_scale);
  const QPen region_pen = theme_pen(ORQ_FPV_REGION_PEN, frame.pen_scale);
  const QPen selected_pen = theme_pen(ORQ_FPV_BLOCK_SELECTED_PEN, frame.pen_scale);
  for (std::uint32_t id : m_fixed_ids) {
    const FP_SHAPE& shape = plan.shapes[id];
    if (shape.kind != FP_KIND::BLOCK)
      continue;
    const FLOORPLAN_BLOCK& block = plan.blocks.at(shape.owner);
    const QRectF rect = rect_of(shape.box);
    const QColor color = frame.owner_colors[std::size_t(shape.owner) + 1];
    if (block.hard) {
      painter->setBrush(Qt::NoBrush);
      painter->setPen(halo_pen);
      painter->drawRect(rect.adjusted(-plan.halo, -plan.halo, plan.halo, plan.halo));
      painter->setPen(macro_pen);
      painter->setBrush(color);
      painter->drawRect(rect);
      // Memories show their two arrays either side of the decoder.
      if (block.cell == QLatin1String("SRAM_64K")) {
        painter->setPen(Qt::NoPen);
        painter->setBrush(color.darker(135));
        painter->drawRect(
            QRectF(rect.center().x() - rect.width() * 0.04, rect.top(), rect.width() * 0.08, rect.height()));
      }
    } else {
      QPen pen = region_pen;
      pen.setColor(color.lighter(130));
      painter->setPen(pen);
      painter->setBrush(with_alpha(color, 28));
      painter->drawRect(rect);
    }
    if (frame.selection && frame.selection->contains(id)) {
      painter->setPen(selected_pen);
      painter->setBrush(Qt::NoBrush);
      painter->drawRect(rect);
    }
  }

  if (frame.options.show_pads) {
    const QColor pad_colors[] = {theme_color(ORQ_FPV_PAD_COLOR), theme_color(ORQ_FPV_PAD_POWER_COLOR),
                                 theme_color(ORQ_FPV_PAD_GROUND_COLOR),
                                 theme_color(ORQ_FPV_IO_RING_COLOR).lighter(130)};
    const QPen pad_pen = theme_pen(ORQ_FPV_PAD_PEN, frame.pen_scale);
    for (std::uint32_t id : m_fixed_ids) {
      const FP_SHAPE& shape = plan.shapes[id];
      if (shape.kind != FP_KIND::PAD)
        continue;
      const QRectF rect = rect_of(shape.box);
      painter->setBrush(pad_colors[shape.sub & 3]);
      // An outline on a pad of a few pixels would be all outline.
      painter->setPen(std::min(rect.width(), rect.height()) * scale >= 6 ? pad_pen : QPen(Qt::NoPen));
      painter->drawRect(rect);
      if (frame.selection && frame.selection->contains(id)) {
        painter->setPen(selected_pen);
        painter->setBrush(Qt::NoBrush);
        painter->drawRect(rect);
      }
    }
  }

  painter->setBrush(Qt::NoBrush);
  painter->setPen(theme_pen(ORQ_FPV_CORE_PEN, frame.pen_scale));
  painter->drawRect(QRectF(plan.core));
  painter->setPen(theme_pen(ORQ_FPV_DIE_PEN, frame.pen_scale));
  painter->drawRect(QRectF(plan.die));
  painter->setPen(Qt::NoPen);
}

void FLOORPLAN_RENDERER::paint_names(FRAME& frame)
{
  if (!frame.options.show_block_names && !frame.options.show_pads)
    return;
  QPainter* painter = frame.painter;
  const FLOORPLAN& plan = frame.plan;
  const ORQ_FONT name_font(ORQ_FPV_BLOCK_NAME_FONT);
  const ORQ_FONT type_font(ORQ_FPV_CELL_TYPE_FONT);
  const ORQ_FONT pad_font(ORQ_FPV_PAD_NAME_FONT);
  const QFont name_qfont = name_font.get_font();
  const QFont type_qfont = type_font.get_font();
  const QFont pad_qfont = pad_font.get_font();
  const QFontMetricsF name_metrics(name_qfont, painter->device());
  const QFontMetricsF type_metrics(type_qfont, painter->device());
  const QFontMetricsF pad_metrics(pad_qfont, painter->device());
  // Text is laid out in device pixels; sizes compare in detail pixels.
  const double to_detail = frame.detail / frame.scale;
  painter->save();
  painter->setWorldTransform(QTransform());
  painter->setRenderHint(QPainter::TextAntialiasing, true);
  const QColor backing = with_alpha(theme_color(ORQ_FPV_BACKGROUND_COLOR), 170);
  for (std::uint32_t id : m_fixed_ids) {
    const FP_SHAPE& shape = plan.shapes[id];
    if (shape.kind == FP_KIND::BLOCK && frame.options.show_block_names) {
      const FLOORPLAN_BLOCK& block = plan.blocks.at(shape.owner);
      const QRectF device = frame.transform.mapRect(rect_of(shape.box));
      if (device.width() * to_detail < 36 || device.height() * to_detail < 16)
        continue;
      const double pad = 3 / to_detail;
      const QRectF inside = device.adjusted(pad, pad, -pad, -pad);
      // A name may run a little past a narrow block: cut short, a dozen
      // macros of one kind would all read the same.
      const double room = inside.width() + 20 / to_detail;
      const QString name = name_metrics.elidedText(block.name, Qt::ElideRight, room - pad);
      const bool with_type = inside.height() >= name_metrics.height() + type_metrics.height();
      const QString type =
          with_type ? type_metrics.elidedText(block.cell, Qt::ElideRight, room - pad) : QString();
      const double text_w = std::max(name_metrics.horizontalAdvance(name),
                                     with_type ? type_metrics.horizontalAdvance(type) : 0.0);
      const QRectF plate(
          inside.topLeft(),
          QSizeF(text_w + pad, name_metrics.height() + (with_type ? type_metrics.height() : 0.0)));
      // A dark plate under the words keeps them readable over the cells.
      painter->fillRect(plate, backing);
      const int flags = Qt::AlignLeft | Qt::AlignTop | Qt::TextDontClip;
      painter->setFont(name_qfont);
      painter->setPen(name_font.get_text_color().get_color());
      painter->drawText(plate.adjusted(pad / 2, 0, 0, 0), flags, name);
      if (with_type) {
        painter->setFont(type_qfont);
        painter->setPen(type_font.get_text_color().get_color());
        painter->drawText(plate.adjusted(pad / 2, name_metrics.height(), 0, 0), flags, type);
      }
      ++frame.stats.names;
    } else if (shape.kind == FP_KIND::PAD && frame.options.show_pads) {
      const QRectF device = frame.transform.mapRect(rect_of(shape.box));
      const QString name = plan.shape_name(id);
      if (std::min(device.width(), device.height()) * to_detail < pad_metrics.height() + 6 ||
          std::max(device.width(), device.height()) < pad_metrics.horizontalAdvance(name) + 6)
        continue;
      painter->setFont(pad_qfont);
      painter->setPen(pad_font.get_text_color().get_color());
      if (device.width() >= device.height()) {
        painter->drawText(device, Qt::AlignCenter, name);
      } else {
        // Pads on the left and right edges read bottom to top.
        painter->save();
        painter->translate(device.center());
        painter->rotate(-90);
        painter->drawText(QRectF(-device.height() / 2, -device.width() / 2, device.height(), device.width()),
                          Qt::AlignCenter, name);
        painter->restore();
      }
      ++frame.stats.names;
    }
  }
  painter->restore();
}
