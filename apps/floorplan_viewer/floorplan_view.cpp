#include "floorplan_view.h"

#include "floorplan_variants.h"

#include <orq_font.h>

#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QPrinter>

#include <algorithm>

namespace {
// Zoom 1 is a pixel a micrometre: the user's 100% means the same on every
// screen and window size.
constexpr float k_zoom_scaling = 1.0f / 1000.0f;
// Room round the die, so a fitted drawing shows where the die ends.
constexpr int k_margin = 30000;
// Printers are drawn in as much detail as a screen of this many dots an
// inch would show: a 1200 dpi page would otherwise ask for every cell.
constexpr double k_print_detail_dpi = 150.0;

QString micrometres(int nanometres)
{
  return QString::number(nanometres / 1000.0, 'f', nanometres < 10000 ? 3 : 1);
}
} // namespace

FLOORPLAN_VIEW::FLOORPLAN_VIEW(std::unique_ptr<FLOORPLAN_DATA> data, QWidget* parent)
    : ORQ_VIEW(parent)
{
  setMouseTracking(true);
  setAttribute(Qt::WA_OpaquePaintEvent);
  set_zoom_scaling(k_zoom_scaling);
  set_data(std::move(data));
  // From a whole die on a few pixels to a few pixels a nanometre; the view
  // itself caps the top where the widget would outgrow what Qt allows.
  set_zoom_min_max(0.02f, 20000.0f);
}

FLOORPLAN_VIEW::~FLOORPLAN_VIEW() = default;

void FLOORPLAN_VIEW::set_data(std::unique_ptr<FLOORPLAN_DATA> data)
{
  Q_ASSERT(data);
  m_data = std::move(data);
  m_renderer.set_data(m_data.get());
  m_selection.reset(m_data->plan().shapes.size());
  m_selected_rect = QRect();
  set_logical_size(m_data->plan().die.adjusted(-k_margin, -k_margin, k_margin, k_margin));
  m_block_variants.clear();
  for (const FLOORPLAN_BLOCK& block : m_data->plan().blocks)
    m_block_variants.append(fp_block_variants(block.cell).isEmpty() ? -1 : 0);
  update();
  emit selection_changed(selection_text());
  emit data_replaced();
}

int FLOORPLAN_VIEW::block_variant(int block) const
{
  return m_block_variants.value(block, -1);
}

bool FLOORPLAN_VIEW::set_block_variant(int block, int variant)
{
  if (block < 0 || block >= m_block_variants.size() || variant < 0 ||
      variant >= fp_block_variants(floorplan().blocks.at(block).cell).size())
    return false;
  if (m_block_variants[block] != variant) {
    m_block_variants[block] = variant;
    update();
    emit block_variant_changed(block, variant);
  }
  return true;
}

void FLOORPLAN_VIEW::paint_block_variants(QPainter* painter) const
{
  // In device pixels, so the outline and the tag read the same at any zoom.
  const QTransform to_device = painter->combinedTransform();
  painter->save();
  painter->resetTransform();
  const ORQ_FONT font(ORQ_FPV_CELL_TYPE_FONT);
  painter->setFont(font.get_font());
  const QFontMetrics metrics(painter->font(), painter->device());
  for (int b = 0; b < m_block_variants.size(); ++b) {
    if (m_block_variants[b] < 0)
      continue;
    const FLOORPLAN_BLOCK& block = floorplan().blocks.at(b);
    const FP_BLOCK_VARIANT variant = fp_block_variants(block.cell).value(m_block_variants[b]);
    const QRectF device = to_device.mapRect(QRectF(block.rect));
    if (device.width() < 8 || device.height() < 8)
      continue;
    painter->setPen(QPen(variant.color, 2));
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(device.adjusted(3, 3, -3, -3));
    // The tag in the bottom-left corner, where the name's plate is not.
    const QSize tag(metrics.horizontalAdvance(variant.tag) + 6, metrics.height() + 2);
    if (device.width() < tag.width() + 8 || device.height() < tag.height() * 3)
      continue;
    const QRectF plate(device.left() + 4, device.bottom() - 4 - tag.height(), tag.width(), tag.height());
    painter->fillRect(plate, variant.color);
    painter->setPen(Qt::black);
    painter->drawText(plate, Qt::AlignCenter, variant.tag);
  }
  painter->restore();
}

QString FLOORPLAN_VIEW::selection_text() const
{
  return m_selection.describe(m_data->plan());
}

void FLOORPLAN_VIEW::paint(QPainter* painter, QPaintEvent*, QWidget*, QRect rect, bool printing)
{
  QRect device = rect;
  if (device.isEmpty() && painter->device())
    device = QRect(0, 0, painter->device()->width(), painter->device()->height());
  const QRectF visible = painter->combinedTransform().inverted().mapRect(QRectF(device));
  FP_PAINT_OPTIONS options;
  options.show_pads = m_show_pads;
  options.show_block_names = m_show_block_names;
  if (printing && painter->device())
    options.detail_scale = std::min(1.0, k_print_detail_dpi / std::max(1, painter->device()->logicalDpiX()));
  const FP_PAINT_STATS stats = m_renderer.paint(painter, visible, options, &m_selection);
  paint_block_variants(painter);
  if (!printing && !get_paint_magnify_glass())
    m_last_stats = stats;
}

void FLOORPLAN_VIEW::paint_birds_eye_view(QPainter* painter, QPaintEvent*, QWidget*, QRect rect)
{
  // The overview: coverage and the large shapes, no names, no cells.
  FP_PAINT_OPTIONS options;
  options.overview = true;
  options.show_pads = m_show_pads;
  options.show_block_names = false;
  m_renderer.paint(painter, painter->combinedTransform().inverted().mapRect(QRectF(rect)), options,
                   &m_selection);
}

bool FLOORPLAN_VIEW::print(QPrinter* printer)
{
  QPainter painter;
  if (!painter.begin(printer))
    return false;
  adjust_painter(&painter, printer);
  const QRect page = printer->pageLayout().paintRectPixels(printer->resolution());
  // Everything the page can show, wherever the printer puts its origin.
  paint(&painter, nullptr, nullptr, QRect(QPoint(0, 0), page.bottomRight()), true);
  return painter.end();
}

QRect FLOORPLAN_VIEW::get_selected_rect() const
{
  return m_selected_rect;
}

bool FLOORPLAN_VIEW::is_rect_selection_enabled() const
{
  return true;
}

bool FLOORPLAN_VIEW::current_mode_supports_mouse_gesture(const QPoint&)
{
  return true;
}

std::uint32_t FLOORPLAN_VIEW::shape_at(const QPoint& logical) const
{
  const FLOORPLAN& plan = m_data->plan();
  const std::uint32_t none = std::uint32_t(plan.shapes.size());
  const FP_BOX point{logical.x(), logical.y(), logical.x(), logical.y()};
  // Cells share their edges; the one whose half-open box holds the point
  // wins, so a click on a boundary picks one cell.
  auto holds = [&](std::uint32_t id) {
    const FP_BOX& b = plan.shapes[id].box;
    return b.x1 <= point.x1 && point.x1 < b.x2 && b.y1 <= point.y1 && point.y1 < b.y2;
  };
  if (m_renderer.shows_cells(get_absolute_zoom_multiplier())) {
    std::uint32_t cell = none;
    m_data->cell_index().query(point, [&](std::uint32_t id) {
      if (holds(id))
        cell = id;
    });
    if (cell != none)
      return cell;
  }
  // Of nested shapes, the smallest: a pad over the die, a macro over the core.
  std::uint32_t best = none;
  double best_area = 0;
  m_data->fixed_index().query(point, [&](std::uint32_t id) {
    const FP_SHAPE& shape = plan.shapes[id];
    if ((shape.kind != FP_KIND::BLOCK && shape.kind != FP_KIND::PAD) || !holds(id))
      return;
    if (shape.kind == FP_KIND::PAD && !m_show_pads)
      return;
    const double area = double(shape.box.width()) * shape.box.height();
    if (best == none || area < best_area) {
      best = id;
      best_area = area;
    }
  });
  return best;
}

void FLOORPLAN_VIEW::select_logical_rect(const QRect& logical, FLOORPLAN_SELECTION::MODE mode)
{
  // Wholly inside: a rectangle dragged inside a block picks its cells, not
  // the block around them as well.
  const FLOORPLAN& plan = m_data->plan();
  const FP_BOX box = FP_BOX::from_rect(logical.normalized());
  std::vector<std::uint32_t> ids;
  auto take = [&](std::uint32_t id) {
    const FP_SHAPE& shape = plan.shapes[id];
    if (box.contains(shape.box) && (shape.kind == FP_KIND::BLOCK || shape.kind == FP_KIND::CELL ||
                                    (shape.kind == FP_KIND::PAD && m_show_pads)))
      ids.push_back(id);
  };
  m_data->fixed_index().query(box, take);
  m_data->cell_index().query(box, take);
  apply_selection(std::move(ids), mode);
}

void FLOORPLAN_VIEW::do_rect_selection(const QRect& rect, const QPoint&)
{
  const bool control = QGuiApplication::keyboardModifiers() & Qt::ControlModifier;
  select_logical_rect(get_logical(rect.normalized()),
                      control ? FLOORPLAN_SELECTION::ADD : FLOORPLAN_SELECTION::REPLACE);
}

void FLOORPLAN_VIEW::selection_mode_no_mouse_gesture(QMouseEvent* event)
{
  if (event->button() != Qt::LeftButton)
    return;
  const bool control = event->modifiers() & Qt::ControlModifier;
  const std::uint32_t id = shape_at(get_logical(event->pos()));
  if (id >= m_data->plan().shapes.size()) {
    // An empty spot clears, unless Ctrl asks to keep what is there.
    if (!control)
      apply_selection({}, FLOORPLAN_SELECTION::REPLACE);
    return;
  }
  apply_selection({id}, control ? FLOORPLAN_SELECTION::TOGGLE : FLOORPLAN_SELECTION::REPLACE);
}

void FLOORPLAN_VIEW::clear_selection()
{
  apply_selection({}, FLOORPLAN_SELECTION::REPLACE);
}

void FLOORPLAN_VIEW::apply_selection(std::vector<std::uint32_t> ids, FLOORPLAN_SELECTION::MODE mode)
{
  if (!m_selection.select(std::move(ids), mode))
    return;
  m_selected_rect = m_selection.bounding_rect(m_data->plan());
  update();
  emit selection_changed(selection_text());
}

void FLOORPLAN_VIEW::set_show_pads(bool show)
{
  m_show_pads = show;
  update();
}

void FLOORPLAN_VIEW::set_show_block_names(bool show)
{
  m_show_block_names = show;
  update();
}

void FLOORPLAN_VIEW::mouseMoveEvent(QMouseEvent* event)
{
  const QPoint logical = get_logical(event->pos());
  const FLOORPLAN& plan = m_data->plan();
  const std::uint32_t id = shape_at(logical);
  if (id < plan.shapes.size()) {
    const FP_BOX& box = plan.shapes[id].box;
    emit block_hovered(QStringLiteral("%1 (%2)  %3 x %4 um")
                           .arg(plan.shape_name(id), plan.shape_type(id), micrometres(box.width()),
                                micrometres(box.height())));
  } else {
    emit block_hovered(QStringLiteral("x %1 um, y %2 um")
                           .arg(logical.x() / 1000.0, 0, 'f', 2)
                           .arg(logical.y() / 1000.0, 0, 'f', 2));
  }
  ORQ_VIEW::mouseMoveEvent(event);
}
