#pragma once
// One-pixel smoothed lines drawn into an image of their own and put on the
// painter in one go. Qt's stroker spends 30 to 120 ns a pixel on thin lines
// (a span, a blend call per pixel); a zoomed frame with ten thousand nets
// would spend its whole budget there. Here a pixel costs a few ns.
#include <QColor>
#include <QImage>
#include <QLineF>
#include <QRect>

class QPainter;

class FLOORPLAN_LINE_LAYER {
public:
  // Starts a layer over area (device pixels) in color.
  void begin(const QRect& area, const QColor& color);
  void add(const QLineF& line);
  // Puts what was drawn on the painter, whose transform must be reset.
  void finish(QPainter* painter);
  // Pixels touched since begin: for the benchmark's report.
  long long pixels() const { return m_pixels; }

private:
  void plot(int x, int y, unsigned coverage);

  QImage m_image;
  // QImage::scanLine() detaches on every call; the hot loop keeps these.
  unsigned* m_bits = nullptr;
  int m_stride = 0; // in pixels
  int m_width = 0;
  int m_height = 0;
  QRect m_area;
  QRect m_dirty; // in m_image's pixels; cleared at the next begin
  QRect m_previous_dirty;
  unsigned m_color = 0; // premultiplied
  long long m_pixels = 0;
};
