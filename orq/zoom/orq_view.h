#pragma once
// The base of every drawing a tool shows: a widget that owns a rectangle of
// logical coordinates (the tool's own integer units) and a zoom, and maps
// between them and its own pixels. It lives in an ORQ_ZOOM_SCROLL_AREA,
// which does the zooming, panning and scrolling; the tool overrides paint()
// and the selection hooks.
//
// paint() receives a painter that already draws in logical coordinates, so
// the same code serves the screen, the magnifying glass and the printer.
#include "orq_export.h"

#include <QPointer>
#include <QRect>
#include <QTransform>
#include <QWidget>

class QLabel;
class QMouseEvent;
class QPainter;
class QPrinter;
class QPropertyAnimation;

class ORQ_EXPORT ORQ_VIEW : public QWidget {
  Q_OBJECT
public:
  // While it lives, the painter draws in the view's physical pixels (when
  // physical is true; else in whatever it drew before); the painter's state
  // is restored when the handle goes.
  class ORQ_EXPORT ORQ_PHYSICAL_DRAWING_HANDLE {
  public:
    ORQ_PHYSICAL_DRAWING_HANDLE(QPainter* painter, bool physical);
    ~ORQ_PHYSICAL_DRAWING_HANDLE();
    ORQ_PHYSICAL_DRAWING_HANDLE(const ORQ_PHYSICAL_DRAWING_HANDLE&) = delete;
    ORQ_PHYSICAL_DRAWING_HANDLE& operator=(const ORQ_PHYSICAL_DRAWING_HANDLE&) = delete;

  private:
    QPainter* m_painter;
  };

  explicit ORQ_VIEW(QWidget* parent = nullptr);
  ~ORQ_VIEW() override;

  QPoint get_logical(const QPoint& point) const;
  QRect get_logical(const QRect& rect) const;
  // Divides by the zoom only; the static scaling transform is not applied.
  QSize get_logical(const QSize& size) const;
  QPoint get_physical(const QPoint& point) const;
  QRect get_physical(const QRect& rect) const;
  QRect get_logical_rect() const;
  // Logical to physical.
  const QTransform& get_transform() const;

  // The zoom the user sees: the absolute multiplier divided by the scaling.
  float get_zoom() const;
  float get_zoom_scaling() const;
  // Physical pixels per logical unit.
  float get_absolute_zoom_multiplier() const;
  // The limits as absolute multipliers.
  float get_min() const;
  float get_max() const;
  // Limits as the user sees them, relative to the zoom scaling.
  void set_zoom_min_max(float min, float max);
  // Changes what zoom 1.0 means; the absolute zoom stays.
  void set_zoom_scaling(float zoom_scaling);

  // Set by the magnifying glass while it paints the view into the lens.
  void set_paint_magnify_glass(bool paint_magnify_glass, QRect rect);
  bool get_paint_magnify_glass() const;
  QRect get_paint_magnify_glass_rect() const;

  // Flashes rect (physical) in color, shrinking it to its centre over
  // duration milliseconds; small rectangles are enlarged to be seen.
  void animate_selection_rect(const QRect& rect, const QColor& color, int duration);

  // Draws the drawing. The painter draws in logical coordinates; rect is the
  // target's area in its pixels; printing is true on a printer or PDF.
  virtual void paint(QPainter* painter, QPaintEvent* event, QWidget* target, QRect rect, bool printing);
  // Draws the overview in the bird's-eye view, the painter again in logical
  // coordinates scaled to fit rect.
  virtual void paint_birds_eye_view(QPainter* painter, QPaintEvent* event, QWidget* target, QRect rect);
  // The logical rectangle of the selection, for Zoom Selection; null for none.
  virtual QRect get_selected_rect() const;
  // The visible part of the view in its physical coordinates.
  virtual QRect get_viewport_rect() const;
  virtual bool is_rect_selection_enabled() const;
  // Selects what a dragged rectangle (physical) covers.
  virtual void do_rect_selection(const QRect& rect, const QPoint& point);
  // A click in selection mode that did not become a gesture.
  virtual void selection_mode_no_mouse_gesture(QMouseEvent* event);
  // Whether a mouse gesture may start at this physical point.
  virtual bool current_mode_supports_mouse_gesture(const QPoint& point);

public slots:
  // Multiplies the zoom by delta, clamped; returns the ratio really applied.
  virtual float zoom_in(float delta);
  virtual float zoom_out(float delta);
  // Fits the logical rect into size, one pixel short of its far edges.
  virtual void zoom_fit(const QSize& size);
  // factor is the zoom the user sees.
  virtual void set_zoom(float factor);
  void on_stop_animation_rect();

signals:
  void update_birds_eye_view_size();

protected:
  QSize get_logical_size() const;
  void set_min(float min);
  float set_max(float max);
  // Clamps and stores without updating the transform.
  void set_zoom_internal(float zoom);
  void set_logical_size(const QRect& rect);
  void set_static_scaling_transform(QTransform transform);
  void update_transform();
  // The painter draws in logical coordinates, as on screen.
  void adjust_painter(QPainter* painter);
  // The painter draws the whole logical rect onto the printer's page.
  void adjust_painter(QPainter* painter, const QPrinter* printer);
  // Grows one side of size so that height / width is ratio.
  void adjust_size_to_ratio(double ratio, QSize& size);
  // Clamps into [min, max], min first: a NaN passes unchanged.
  float clamp_zoom(float zoom) const;

  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

private:
  // The scroll area keeps the transform in step with its viewport.
  friend class ORQ_ZOOM_SCROLL_AREA;

  QTransform m_transform;
  QTransform m_logical_transform;
  QTransform m_static_scaling_transform;
  float m_min = 0.001f;
  float m_max = 0.0f;
  float m_zoom = 1.0f;
  float m_zoom_scaling = 1.0f;
  QRect m_logical_rect = QRect(QPoint(0, 0), QPoint(0, 0));
  bool m_paint_magnify_glass = false;
  QRect m_magnify_glass_rect;
  QLabel* m_animation_label_rect = nullptr;
  QPropertyAnimation* m_animation_property = nullptr;
};
