#include "orq_birds_eye_view.h"

#include "orq_actions.h"
#include "orq_color.h"
#include "orq_view.h"
#include "orq_zoom_scroll_area.h"

#include <QMainWindow>
#include <QMouseEvent>
#include <QPainter>
#include <QPixmap>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>

namespace {
constexpr int k_margin = 4;

// The overview is drawn once into a picture and kept: the outline of the
// visible part moves on every scroll, the drawing does not.
class BIRDS_EYE_CANVAS : public QWidget {
public:
  explicit BIRDS_EYE_CANVAS(ORQ_BIRDS_EYE_VIEW* owner)
      : QWidget(owner)
      , m_owner(owner)
  {
    setObjectName(QStringLiteral("birds_eye_canvas"));
    setMouseTracking(false);
    setCursor(Qt::PointingHandCursor);
    setMinimumSize(80, 60);
    setAttribute(Qt::WA_OpaquePaintEvent);
  }

  QSize sizeHint() const override { return {260, 200}; }

  QTransform transform() const
  {
    const ORQ_VIEW* view = m_owner->get_view();
    if (!view)
      return {};
    const QRect logical = view->get_logical_rect();
    const QRectF area = QRectF(rect()).adjusted(k_margin, k_margin, -k_margin, -k_margin);
    if (logical.width() <= 0 || logical.height() <= 0 || area.width() <= 0 || area.height() <= 0)
      return {};
    const double k = std::min(area.width() / logical.width(), area.height() / logical.height());
    const double dx = area.left() + (area.width() - logical.width() * k) / 2.0 - logical.left() * k;
    const double dy = area.top() + (area.height() - logical.height() * k) / 2.0 - logical.top() * k;
    return QTransform(k, 0, 0, k, dx, dy);
  }

  void invalidate()
  {
    m_picture = QPixmap();
    update();
  }

protected:
  void paintEvent(QPaintEvent* event) override
  {
    if (m_picture.size() != size() * devicePixelRatioF())
      draw_picture(event);
    QPainter painter(this);
    painter.drawPixmap(0, 0, m_picture);
    const QRect visible = transform().mapRect(QRectF(m_owner->get_visible_logical_rect())).toAlignedRect();
    if (visible.isEmpty())
      return;
    // Outside the visible part dimmed, the part itself outlined.
    QRegion outside(rect());
    outside -= visible;
    painter.setClipRegion(outside);
    painter.fillRect(rect(), QColor(0, 0, 0, 60));
    painter.setClipping(false);
    QColor highlight = ORQ_COLOR(ORQ_WINDOW_HIGHLIGHT_COLOR).get_color();
    painter.setPen(QPen(highlight, 2));
    highlight.setAlpha(40);
    painter.setBrush(highlight);
    painter.drawRect(visible.adjusted(0, 0, -1, -1));
  }

  void resizeEvent(QResizeEvent*) override { m_picture = QPixmap(); }

  void mousePressEvent(QMouseEvent* event) override
  {
    if (event->button() == Qt::LeftButton)
      move_to(event->pos());
  }

  void mouseMoveEvent(QMouseEvent* event) override
  {
    if (event->buttons() & Qt::LeftButton)
      move_to(event->pos());
  }

  void wheelEvent(QWheelEvent* event) override
  {
    event->accept();
    ORQ_VIEW* view = m_owner->get_view();
    ORQ_ZOOM_SCROLL_AREA* area = m_owner->get_scroll_area();
    if (!view || !area || event->angleDelta().y() == 0)
      return;
    // About the drawing's point under the mouse, as the main view's wheel.
    QPoint anchor = view->get_physical(transform().inverted().map(event->position().toPoint()));
    if (event->angleDelta().y() > 0)
      area->zoom_in(&anchor, 1.25f);
    else
      area->zoom_out(&anchor, 1.25f);
  }

private:
  void draw_picture(QPaintEvent* event)
  {
    const qreal ratio = devicePixelRatioF();
    m_picture = QPixmap(size() * ratio);
    m_picture.setDevicePixelRatio(ratio);
    m_picture.fill(ORQ_COLOR(ORQ_WINDOW_BACKGROUND_COLOR).get_color());
    ORQ_VIEW* view = m_owner->get_view();
    if (!view)
      return;
    QPainter painter(&m_picture);
    painter.setTransform(transform());
    view->paint_birds_eye_view(&painter, event, this, rect());
  }

  void move_to(const QPoint& pos)
  {
    ORQ_VIEW* view = m_owner->get_view();
    ORQ_ZOOM_SCROLL_AREA* area = m_owner->get_scroll_area();
    if (!view || !area)
      return;
    const QPoint centre = transform().inverted().map(pos);
    QSize size = m_owner->get_visible_logical_rect().size().expandedTo(QSize(1, 1));
    area->scroll_to_logical_rect(QRect(centre - QPoint(size.width() / 2, size.height() / 2), size));
  }

  ORQ_BIRDS_EYE_VIEW* m_owner;
  QPixmap m_picture;
};
} // namespace

ORQ_BIRDS_EYE_VIEW::ORQ_BIRDS_EYE_VIEW(ORQ_ZOOM_SCROLL_AREA* scroll_area, ORQ_VIEW* view)
    : ORQ_DOCK_WIDGET(orq_get_menu_text_without_symbol(ORQ_BIRDS_EYE_VIEW_ACTION), scroll_area)
    , m_scroll_area(scroll_area)
    , m_view(view)
    , m_canvas(new BIRDS_EYE_CANVAS(this))
{
  setObjectName(QStringLiteral("birds_eye_view"));
  setWidget(m_canvas);
  QWidget::setVisible(false);
  for (QScrollBar* bar : {scroll_area->horizontalScrollBar(), scroll_area->verticalScrollBar()}) {
    connect(bar, &QScrollBar::valueChanged, this, &ORQ_BIRDS_EYE_VIEW::update_view_rect);
    connect(bar, &QScrollBar::rangeChanged, this, &ORQ_BIRDS_EYE_VIEW::update_view_rect);
  }
  connect(scroll_area, &ORQ_ZOOM_SCROLL_AREA::zoom_level_changed, this, &ORQ_BIRDS_EYE_VIEW::update_view_rect);
}

ORQ_BIRDS_EYE_VIEW::~ORQ_BIRDS_EYE_VIEW() = default;

ORQ_ZOOM_SCROLL_AREA* ORQ_BIRDS_EYE_VIEW::get_scroll_area() const
{
  return m_scroll_area;
}

ORQ_VIEW* ORQ_BIRDS_EYE_VIEW::get_view() const
{
  return m_view;
}

QWidget* ORQ_BIRDS_EYE_VIEW::get_canvas() const
{
  return m_canvas;
}

QTransform ORQ_BIRDS_EYE_VIEW::get_canvas_transform() const
{
  return static_cast<BIRDS_EYE_CANVAS*>(m_canvas)->transform();
}

QRect ORQ_BIRDS_EYE_VIEW::get_visible_logical_rect() const
{
  if (!m_view)
    return {};
  return m_view->get_logical(m_view->get_viewport_rect().intersected(m_view->rect()));
}

void ORQ_BIRDS_EYE_VIEW::setVisible(bool visible)
{
  if (visible)
    place_in_window();
  ORQ_DOCK_WIDGET::setVisible(visible);
}

void ORQ_BIRDS_EYE_VIEW::place_in_window()
{
  if (!m_scroll_area)
    return;
  // The window is looked up at the first showing: a document may be put
  // into its main window after its view was set.
  auto* main_window = qobject_cast<QMainWindow*>(m_scroll_area->window());
  if (main_window && parentWidget() != main_window) {
    main_window->addDockWidget(Qt::RightDockWidgetArea, this);
    return;
  }
  if (!main_window && !isFloating()) {
    setFloating(true);
    resize(sizeHint().expandedTo(QSize(260, 220)));
    const QPoint corner = m_scroll_area->mapToGlobal(QPoint(m_scroll_area->width(), 0));
    move(corner - QPoint(width() + 24, -24));
  }
}

void ORQ_BIRDS_EYE_VIEW::update_geometry()
{
  static_cast<BIRDS_EYE_CANVAS*>(m_canvas)->invalidate();
}

void ORQ_BIRDS_EYE_VIEW::refresh()
{
  static_cast<BIRDS_EYE_CANVAS*>(m_canvas)->invalidate();
}

void ORQ_BIRDS_EYE_VIEW::update_view_rect()
{
  if (isVisible())
    m_canvas->update();
}
