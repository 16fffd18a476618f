#include "floorplan_line_layer.h"

#include "floorplan_blend.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <utility>

namespace {
// Liang-Barsky: the part of the line inside [0, w) x [0, h), false if none.
bool clip(double& x0, double& y0, double& x1, double& y1, double w, double h)
{
  double t0 = 0;
  double t1 = 1;
  const double dx = x1 - x0;
  const double dy = y1 - y0;
  const double p[4] = {-dx, dx, -dy, dy};
  const double q[4] = {x0, w - 1 - x0, y0, h - 1 - y0};
  for (int i = 0; i < 4; ++i) {
    if (p[i] == 0) {
      if (q[i] < 0)
        return false;
      continue;
    }
    const double r = q[i] / p[i];
    if (p[i] < 0)
      t0 = std::max(t0, r);
    else
      t1 = std::min(t1, r);
    if (t0 > t1)
      return false;
  }
  const double ax = x0 + t0 * dx;
  const double ay = y0 + t0 * dy;
  x1 = x0 + t1 * dx;
  y1 = y0 + t1 * dy;
  x0 = ax;
  y0 = ay;
  return true;
}
} // namespace

void FLOORPLAN_LINE_LAYER::begin(const QRect& area, const QColor& color)
{
  if (m_image.size() != area.size()) {
    m_image = QImage(area.size(), QImage::Format_ARGB32_Premultiplied);
    m_image.fill(0);
    m_previous_dirty = QRect();
  } else {
    // Only what the last frame drew needs clearing.
    const QRect drawn = m_previous_dirty | m_dirty;
    for (int y = drawn.top(); y <= drawn.bottom(); ++y)
      std::memset(reinterpret_cast<unsigned*>(m_image.scanLine(y)) + drawn.left(), 0,
                  std::size_t(drawn.width()) * 4);
  }
  m_bits = reinterpret_cast<unsigned*>(m_image.bits());
  m_stride = int(m_image.bytesPerLine() / 4);
  m_width = m_image.width();
  m_height = m_image.height();
  m_area = area;
  m_dirty = QRect();
  m_previous_dirty = QRect();
  m_color = qPremultiply(color.rgba());
  m_pixels = 0;
}

inline void FLOORPLAN_LINE_LAYER::plot(int x, int y, unsigned coverage)
{
  if (unsigned(x) >= unsigned(m_width) || unsigned(y) >= unsigned(m_height) || coverage == 0)
    return;
  unsigned* pixel = m_bits + std::size_t(y) * std::size_t(m_stride) + std::size_t(x);
  *pixel = fpv_over(fpv_byte_mul(m_color, coverage), *pixel);
  ++m_pixels;
}

void FLOORPLAN_LINE_LAYER::add(const QLineF& line)
{
  double x0 = line.x1() - m_area.left();
  double y0 = line.y1() - m_area.top();
  double x1 = line.x2() - m_area.left();
  double y1 = line.y2() - m_area.top();
  if (!clip(x0, y0, x1, y1, m_image.width(), m_image.height()))
    return;
  const QRect bounds =
      QRectF(QPointF(std::min(x0, x1), std::min(y0, y1)), QPointF(std::max(x0, x1), std::max(y0, y1)))
          .toAlignedRect()
          .adjusted(-1, -1, 1, 1);
  m_dirty |= bounds & m_image.rect();
  // Xiaolin Wu's line: along the major axis, each step shares its ink
  // between the two pixels the line passes between.
  const bool steep = std::abs(y1 - y0) > std::abs(x1 - x0);
  if (steep) {
    std::swap(x0, y0);
    std::swap(x1, y1);
  }
  if (x0 > x1) {
    std::swap(x0, x1);
    std::swap(y0, y1);
  }
  const double dx = x1 - x0;
  const double gradient = dx < 1e-9 ? 0.0 : (y1 - y0) / dx;
  const int first = int(std::lround(x0));
  const int last = int(std::lround(x1));
  // 16.16 fixed point: no floating point rounding in the loop.
  const std::int64_t step = std::llround(gradient * 65536.0);
  std::int64_t y = std::llround((y0 + gradient * (first - x0)) * 65536.0);
  for (int x = first; x <= last; ++x, y += step) {
    const int iy = int(y >> 16);
    const unsigned lower = unsigned((y >> 8) & 0xff);
    if (steep) {
      plot(iy, x, 255u - lower);
      plot(iy + 1, x, lower);
    } else {
      plot(x, iy, 255u - lower);
      plot(x, iy + 1, lower);
    }
  }
}

void FLOORPLAN_LINE_LAYER::finish(QPainter* painter)
{
  m_previous_dirty = m_dirty;
  if (m_dirty.isEmpty())
    return;
  painter->drawImage(m_area.topLeft() + m_dirty.topLeft(), m_image, m_dirty);
}
