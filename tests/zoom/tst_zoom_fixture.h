#pragma once
// Shared by the zoomable-view tests: a view whose protected operations and
// hooks a test can reach, a shown scroll area hosting it, and the events a
// user's mouse, wheel and keys would send to the view.
#include "orq_test_support.h"

#include <orq.h>

#include <QActionGroup>
#include <QBitmap>
#include <QKeyEvent>
#include <QMainWindow>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QTimer>
#include <QWheelEvent>

#include <memory>

class TEST_VIEW : public ORQ_VIEW {
public:
  using ORQ_VIEW::adjust_size_to_ratio;
  using ORQ_VIEW::ORQ_VIEW;
  using ORQ_VIEW::set_logical_size;
  using ORQ_VIEW::set_max;
  using ORQ_VIEW::set_min;
  using ORQ_VIEW::set_static_scaling_transform;
  using ORQ_VIEW::set_zoom_internal;

  // What a call of paint() was given, as the magnifying glass calls it.
  struct PAINT_CALL {
    bool magnify_glass = false;
    QRect magnify_glass_rect;
    QTransform transform;
    bool clipped = false;
    QWidget* target = nullptr;
    QRect rect;
    bool printing = false;
  };

  QRect selected;
  bool gestures = false;
  bool rect_selection = true;
  QVector<QRect> rect_selections;
  int clicks = 0;
  QVector<PAINT_CALL> paints;

  void paint(QPainter* painter, QPaintEvent*, QWidget* target, QRect rect, bool printing) override
  {
    // Only those into another widget: the view's own frames would fill the
    // list in every test.
    if (target != this || get_paint_magnify_glass())
      paints.append({get_paint_magnify_glass(), get_paint_magnify_glass_rect(), painter->worldTransform(),
                     painter->hasClipping(), target, rect, printing});
  }
  QRect get_selected_rect() const override { return selected; }
  bool is_rect_selection_enabled() const override { return rect_selection; }
  bool current_mode_supports_mouse_gesture(const QPoint&) override { return gestures; }
  void do_rect_selection(const QRect& rect, const QPoint&) override { rect_selections << rect; }
  void selection_mode_no_mouse_gesture(QMouseEvent*) override { ++clicks; }
};

// Lets queued calls, layout requests and posted mouse moves run, so that
// what a test reads is what the user would see once the screen settles.
inline void settle()
{
  for (int i = 0; i < 3; ++i)
    QCoreApplication::processEvents();
}

inline void send_mouse(QWidget* widget, QEvent::Type type, const QPoint& pos, Qt::MouseButton button,
                       Qt::MouseButtons buttons, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
  QMouseEvent event(type, pos, widget->mapToGlobal(pos), button, buttons, modifiers);
  QCoreApplication::sendEvent(widget, &event);
}

// Send it to the viewport: a wheel the view leaves goes there only in the
// platform's delivery, not through sendEvent.
inline void send_wheel(QWidget* widget, const QPoint& pos, int delta, Qt::KeyboardModifiers modifiers)
{
  QWheelEvent event(QPointF(pos), QPointF(widget->mapToGlobal(pos)), QPoint(), QPoint(0, delta), Qt::NoButton,
                    modifiers, Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(widget, &event);
}

// Sent, not simulated: a simulated key or click would leave its modifiers
// in the application's state for the tests that follow.
inline bool send_key(QWidget* widget, QEvent::Type type, int key,
                     Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
  QKeyEvent event(type, key, modifiers);
  QCoreApplication::sendEvent(widget, &event);
  return event.isAccepted();
}

// Bitmap cursors made twice are not the same object: compare what they show.
inline bool same_cursor(const QCursor& a, const QCursor& b)
{
  if (a.shape() != b.shape() || a.hotSpot() != b.hotSpot())
    return false;
  if (a.shape() != Qt::BitmapCursor)
    return true;
  return a.bitmap(Qt::ReturnByValue).toImage() == b.bitmap(Qt::ReturnByValue).toImage() &&
         a.mask(Qt::ReturnByValue).toImage() == b.mask(Qt::ReturnByValue).toImage();
}

inline QRect corners(const QPoint& a, const QPoint& b)
{
  return QRect(QPoint(qMin(a.x(), b.x()), qMin(a.y(), b.y())),
               QPoint(qMax(a.x(), b.x()), qMax(a.y(), b.y())));
}

inline bool near(const QPoint& a, const QPoint& b, int tolerance)
{
  return qAbs(a.x() - b.x()) <= tolerance && qAbs(a.y() - b.y()) <= tolerance;
}

inline bool same_zoom(float a, float b)
{
  return qAbs(a - b) <= 1e-4f * qMax(qAbs(a), qAbs(b));
}

// A drawing of 2000 x 1500 units at zoom 1 in a shown 500 x 400 scroll area
// (inside a main window when asked), scrolled away from every edge, with
// the three mode actions in an exclusive group and no mode checked.
class ZOOM_FIXTURE {
public:
  explicit ZOOM_FIXTURE(bool extras = false, bool in_main_window = false)
  {
    if (in_main_window) {
      auto* window = new QMainWindow;
      m_top.reset(window);
      area = new ORQ_ZOOM_SCROLL_AREA(window);
      window->setCentralWidget(area);
      window->resize(800, 450);
    } else {
      area = new ORQ_ZOOM_SCROLL_AREA;
      m_top.reset(area);
      area->resize(500, 400);
    }
    group.setExclusive(true);
    view = new TEST_VIEW;
    view->set_logical_size(QRect(0, 0, 2000, 1500));
    area->set_view(view, extras);
    area->insert_modes(&group);
    m_top->move(60, 40);
  }

  ~ZOOM_FIXTURE()
  {
    m_top.reset();
    settle();
  }

  // Whether the window came up; the cursor is parked outside it, so zooms
  // without a point go about the viewport's centre.
  bool show()
  {
    QCursor::setPos(QPoint(2, 2));
    m_top->show();
    if (!QTest::qWaitForWindowExposed(m_top.get()))
      return false;
    scroll_to(600, 500);
    return true;
  }

  void scroll_to(int x, int y)
  {
    settle();
    area->horizontalScrollBar()->setValue(x);
    area->verticalScrollBar()->setValue(y);
    settle();
  }

  QPoint scroll() const { return {area->horizontalScrollBar()->value(), area->verticalScrollBar()->value()}; }
  QWidget* viewport() const { return area->viewport(); }
  // Where a logical point is on the screen, in the viewport's pixels.
  QPoint on_screen(const QPoint& logical) const
  {
    return view->mapTo(viewport(), view->get_physical(logical));
  }
  QPoint logical_at(const QPoint& viewport_point) const
  {
    return view->get_logical(view->mapFrom(viewport(), viewport_point));
  }
  QWidget* top() const { return m_top.get(); }

  QActionGroup group{nullptr};
  ORQ_ZOOM_SCROLL_AREA* area = nullptr;
  TEST_VIEW* view = nullptr;

private:
  std::unique_ptr<QWidget> m_top;
};
