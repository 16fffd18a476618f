#include "orq_test_support.h"

#include <orq.h>

#include <QPainter>
#include <QRubberBand>
#include <QScrollArea>
#include <QScrollBar>
#include <QTimer>

#include <functional>
#include <vector>

namespace {
// A widget that counts what reaches it, to see what a drag lets through.
class COUNTING_WIDGET : public QWidget {
public:
  int presses = 0;
  int wheels = 0;
  int paints = 0;
  int timers = 0;

protected:
  void timerEvent(QTimerEvent*) override { ++timers; }
  void mousePressEvent(QMouseEvent*) override { ++presses; }
  void wheelEvent(QWheelEvent*) override { ++wheels; }
  void paintEvent(QPaintEvent*) override { ++paints; }
};

// One step of a scripted drag, sent to the widget while the drag's loop runs.
struct STEP {
  enum KIND { MOVE, PRESS, RELEASE, KEY_PRESS, KEY_RELEASE, WHEEL } kind;
  QPoint point;
  Qt::Key key = Qt::Key_unknown;
};

using SCRIPT = std::vector<STEP>;

STEP move_to(int x, int y)
{
  return {STEP::MOVE, QPoint(x, y)};
}

void send_mouse(QWidget* widget, QEvent::Type type, const QPoint& point, Qt::MouseButtons buttons)
{
  QMouseEvent event(type, point, widget->mapToGlobal(point), Qt::LeftButton, buttons, Qt::NoModifier);
  QCoreApplication::sendEvent(widget, &event);
}

void play(QWidget* widget, const SCRIPT& script)
{
  for (const STEP& step : script) {
    switch (step.kind) {
    case STEP::MOVE:
      send_mouse(widget, QEvent::MouseMove, step.point, Qt::LeftButton);
      break;
    case STEP::PRESS:
      send_mouse(widget, QEvent::MouseButtonPress, step.point, Qt::LeftButton);
      break;
    case STEP::RELEASE:
      send_mouse(widget, QEvent::MouseButtonRelease, step.point, Qt::NoButton);
      break;
    case STEP::KEY_PRESS:
    case STEP::KEY_RELEASE: {
      QKeyEvent event(step.kind == STEP::KEY_PRESS ? QEvent::KeyPress : QEvent::KeyRelease, step.key,
                      Qt::NoModifier);
      QCoreApplication::sendEvent(widget, &event);
      break;
    }
    case STEP::WHEEL: {
      QWheelEvent event(QPointF(step.point), QPointF(widget->mapToGlobal(step.point)), QPoint(),
                        QPoint(0, 120), Qt::LeftButton, Qt::NoModifier, Qt::NoScrollPhase, false);
      QCoreApplication::sendEvent(widget, &event);
      break;
    }
    }
  }
}

// Queues the script before the drag's loop starts, as a user's input would
// arrive, and ends the drag with a release if the script does not.
void queue(QWidget* widget, SCRIPT script)
{
  QTimer::singleShot(0, widget, [widget, script] {
    play(widget, script);
    send_mouse(widget, QEvent::MouseButtonRelease, QPoint(), Qt::NoButton);
  });
}

QRect corners(int left, int top, int right, int bottom)
{
  return QRect(QPoint(left, top), QPoint(right, bottom));
}

// Records what the tracker hands on.
class RECORDING_CALLBACK : public ORQ_DRAG_TRACKER_CALLBACK {
public:
  QVector<QPair<QPoint, QPoint>> calls;
  void update_drag_position(const QPoint& previous, const QPoint& current) override
  {
    calls.append(qMakePair(previous, current));
  }
};

// Snaps the mouse to a 10-pixel grid before the tracker uses it.
class SNAPPING_CALLBACK : public RECORDING_CALLBACK {
public:
  QPoint adjust_mouse_point(const QPoint& point) override
  {
    return QPoint(point.x() / 10 * 10, point.y() / 10 * 10);
  }
};

QColor pixel(const QImage& image, const QPoint& point)
{
  return image.pixelColor(point);
}
} // namespace

Q_DECLARE_METATYPE(SCRIPT)

class TST_DRAG_TRACKER : public QObject {
  Q_OBJECT
private slots:
  void free_rubber_band_data()
  {
    QTest::addColumn<QPoint>("start");
    QTest::addColumn<SCRIPT>("script");
    QTest::addColumn<QRect>("expected");
    QTest::newRow("click without a move is empty at the start")
        << QPoint(30, 30) << SCRIPT{} << QRect(30, 30, 0, 0);
    QTest::newRow("down and right") << QPoint(10, 10) << SCRIPT{move_to(50, 40)} << corners(10, 10, 50, 40);
    QTest::newRow("up and left, normalised")
        << QPoint(50, 40) << SCRIPT{move_to(10, 10)} << corners(10, 10, 50, 40);
    QTest::newRow("the last move counts")
        << QPoint(10, 10) << SCRIPT{move_to(90, 90), move_to(30, 20), move_to(40, 25)}
        << corners(10, 10, 40, 25);
    QTest::newRow("past the bottom-right edge, clipped")
        << QPoint(150, 50) << SCRIPT{move_to(300, 150)} << corners(150, 50, 199, 99);
    QTest::newRow("past the top-left edge, clipped")
        << QPoint(20, 20) << SCRIPT{move_to(-30, -10)} << corners(0, 0, 20, 20);
    QTest::newRow("a press during the drag does nothing")
        << QPoint(10, 10) << SCRIPT{move_to(50, 40), {STEP::PRESS, QPoint(5, 5)}, move_to(60, 45)}
        << corners(10, 10, 60, 45);
    QTest::newRow("other keys go on") << QPoint(10, 10)
                                      << SCRIPT{move_to(50, 40),
                                                {STEP::KEY_PRESS, QPoint(), Qt::Key_Space},
                                                {STEP::KEY_RELEASE, QPoint(), Qt::Key_Space},
                                                move_to(30, 30)}
                                      << corners(10, 10, 30, 30);
    QTest::newRow("Escape cancels") << QPoint(10, 10)
                                    << SCRIPT{move_to(50, 40),
                                              {STEP::KEY_PRESS, QPoint(), Qt::Key_Escape},
                                              move_to(90, 90)}
                                    << QRect();
    QTest::newRow("Escape's release alone cancels")
        << QPoint(10, 10) << SCRIPT{move_to(50, 40), {STEP::KEY_RELEASE, QPoint(), Qt::Key_Escape}}
        << QRect();
  }

  void free_rubber_band()
  {
    QFETCH(QPoint, start);
    QFETCH(SCRIPT, script);
    QFETCH(QRect, expected);
    COUNTING_WIDGET widget;
    widget.resize(200, 100);
    queue(&widget, script);
    const QRect result = ORQ_DRAG_TRACKER::track_rect(&widget, start, nullptr, 0.0);
    QCOMPARE(result, expected);
    QCOMPARE(result.isNull(), expected.isNull());
    QCOMPARE(widget.presses, 0);
    // The band goes with the call; the widget's filters are its own again.
    QVERIFY(widget.findChildren<QRubberBand*>().isEmpty());
    QTest::mousePress(&widget, Qt::LeftButton, Qt::NoModifier, QPoint(3, 3));
    QCOMPARE(widget.presses, 1);
  }

  void fixed_points_data()
  {
    QTest::addColumn<QPoint>("start");
    QTest::addColumn<QPoint>("fixed_1");
    QTest::addColumn<QPoint>("fixed_2");
    QTest::addColumn<SCRIPT>("script");
    QTest::addColumn<QRect>("expected");
    // A vertical edge from (10, 10) to (10, 50): y spans 10 to 50, only the
    // width follows the mouse.
    QTest::newRow("vertical edge, moved right") << QPoint(30, 30) << QPoint(10, 10) << QPoint(10, 50)
                                                << SCRIPT{move_to(80, 200)} << corners(10, 10, 80, 50);
    QTest::newRow("vertical edge, moved left of it") << QPoint(30, 30) << QPoint(10, 10) << QPoint(10, 50)
                                                     << SCRIPT{move_to(2, 5)} << corners(2, 10, 10, 50);
    QTest::newRow("vertical edge, click")
        << QPoint(30, 30) << QPoint(10, 10) << QPoint(10, 50) << SCRIPT{} << corners(10, 10, 30, 50);
    QTest::newRow("horizontal edge, moved down") << QPoint(30, 30) << QPoint(10, 10) << QPoint(60, 10)
                                                 << SCRIPT{move_to(150, 40)} << corners(10, 10, 60, 40);
    QTest::newRow("horizontal edge, click")
        << QPoint(30, 30) << QPoint(10, 10) << QPoint(60, 10) << SCRIPT{} << corners(10, 10, 60, 30);
    QTest::newRow("fixed corner") << QPoint(30, 30) << QPoint(10, 10) << QPoint(10, 10)
                                  << SCRIPT{move_to(40, 30)} << corners(10, 10, 40, 30);
    QTest::newRow("fixed corner, click")
        << QPoint(30, 30) << QPoint(10, 10) << QPoint(10, 10) << SCRIPT{} << corners(10, 10, 10, 10);
    QTest::newRow("fixed corner, Escape")
        << QPoint(30, 30) << QPoint(10, 10) << QPoint(10, 10)
        << SCRIPT{move_to(40, 30), {STEP::KEY_PRESS, QPoint(), Qt::Key_Escape}} << QRect();
  }

  void fixed_points()
  {
    QFETCH(QPoint, start);
    QFETCH(QPoint, fixed_1);
    QFETCH(QPoint, fixed_2);
    QFETCH(SCRIPT, script);
    QFETCH(QRect, expected);
    QWidget widget;
    widget.resize(200, 100);
    queue(&widget, script);
    QCOMPARE(ORQ_DRAG_TRACKER::track_rect(&widget, start, fixed_1, fixed_2, nullptr, 0.0), expected);
  }

  void callback_receives_points_data()
  {
    QTest::addColumn<double>("ratio");
    QTest::addColumn<SCRIPT>("script");
    QTest::addColumn<QVector<QPoint>>("previous");
    QTest::addColumn<QVector<QPoint>>("current");
    const QPoint s(100, 100);
    // The offset lands on the mouse's own coordinate, and the previous point
    // stays the start for the whole drag.
    QTest::newRow("ratio 2, mostly across")
        << 2.0 << SCRIPT{move_to(140, 105)} << QVector<QPoint>{s} << QVector<QPoint>{QPoint(140, 105 + 20)};
    QTest::newRow("ratio 2, mostly down")
        << 2.0 << SCRIPT{move_to(105, 140)} << QVector<QPoint>{s} << QVector<QPoint>{QPoint(105 + 80, 140)};
    QTest::newRow("ratio 2, up and left")
        << 2.0 << SCRIPT{move_to(60, 95)} << QVector<QPoint>{s} << QVector<QPoint>{QPoint(60, 95 - 20)};
    QTest::newRow("ratio 2, down and left")
        << 2.0 << SCRIPT{move_to(95, 140)} << QVector<QPoint>{s} << QVector<QPoint>{QPoint(95 - 80, 140)};
    QTest::newRow("ratio 3, truncated")
        << 3.0 << SCRIPT{move_to(110, 100)} << QVector<QPoint>{s} << QVector<QPoint>{QPoint(110, 103)};
    QTest::newRow("ratio 2, two moves keep the start")
        << 2.0 << SCRIPT{move_to(140, 105), move_to(120, 100)} << QVector<QPoint>{s, s}
        << QVector<QPoint>{QPoint(140, 125), QPoint(120, 110)};
    QTest::newRow("free, previous follows")
        << 0.0 << SCRIPT{move_to(140, 105), move_to(120, 100)} << QVector<QPoint>{s, QPoint(140, 105)}
        << QVector<QPoint>{QPoint(140, 105), QPoint(120, 100)};
    QTest::newRow("free, a press and a wheel are not moves")
        << 0.0 << SCRIPT{{STEP::PRESS, QPoint(3, 3)}, {STEP::WHEEL, QPoint(4, 4)}, move_to(7, 8)}
        << QVector<QPoint>{s} << QVector<QPoint>{QPoint(7, 8)};
  }

  void callback_receives_points()
  {
    QFETCH(double, ratio);
    QFETCH(SCRIPT, script);
    QFETCH(QVector<QPoint>, previous);
    QFETCH(QVector<QPoint>, current);
    COUNTING_WIDGET widget;
    widget.resize(300, 300);
    RECORDING_CALLBACK callback;
    queue(&widget, script);
    ORQ_DRAG_TRACKER::track(&widget, QPoint(100, 100), &callback, ratio);
    QCOMPARE(callback.calls.size(), previous.size());
    for (int i = 0; i < previous.size(); ++i) {
      QCOMPARE(callback.calls[i].first, previous[i]);
      QCOMPARE(callback.calls[i].second, current[i]);
    }
    QVERIFY(!callback.cancelled());
    QCOMPARE(widget.presses, 0);
    QCOMPARE(widget.wheels, 0);
  }

  void adjusted_point_is_what_the_callback_gets()
  {
    QWidget widget;
    widget.resize(300, 300);
    SNAPPING_CALLBACK callback;
    queue(&widget, SCRIPT{move_to(47, 33), move_to(61, 99)});
    ORQ_DRAG_TRACKER::track(&widget, QPoint(5, 5), &callback, 0.0);
    QCOMPARE(callback.calls.size(), 2);
    QCOMPARE(callback.calls[0], qMakePair(QPoint(5, 5), QPoint(40, 30)));
    QCOMPARE(callback.calls[1], qMakePair(QPoint(40, 30), QPoint(60, 90)));
  }

  void widget_repaints_during_the_drag()
  {
    COUNTING_WIDGET widget;
    widget.resize(100, 100);
    widget.show();
    QVERIFY(QTest::qWaitForWindowExposed(&widget));
    int paints_during = -1;
    QTimer::singleShot(0, &widget, [&] {
      const int before = widget.paints;
      widget.repaint();
      paints_during = widget.paints - before;
      send_mouse(&widget, QEvent::MouseButtonRelease, QPoint(), Qt::NoButton);
    });
    ORQ_DRAG_TRACKER::track_rect(&widget, QPoint(10, 10), nullptr, 0.0);
    QCOMPARE(paints_during, 1);
  }

  // Only input belongs to the drag: the view's own timers and the calls
  // queued to it go on while the user drags.
  void timers_and_queued_calls_reach_the_widget_during_the_drag()
  {
    COUNTING_WIDGET widget;
    widget.resize(100, 100);
    const int timer = widget.startTimer(5);
    bool queued_call_ran = false;
    QTimer::singleShot(0, &widget, [&] {
      QTRY_VERIFY(widget.timers >= 2);
      QMetaObject::invokeMethod(
          &widget,
          [&] {
            queued_call_ran = true;
            send_mouse(&widget, QEvent::MouseButtonRelease, QPoint(), Qt::NoButton);
          },
          Qt::QueuedConnection);
    });
    ORQ_DRAG_TRACKER::track_rect(&widget, QPoint(10, 10), nullptr, 0.0);
    widget.killTimer(timer);
    QVERIFY(queued_call_ran);
    QVERIFY(widget.timers >= 2);
  }

  // The band is drawn in the theme's tracker pens, which follow the
  // palette's highlight while the drag runs.
  void rubber_band_draws_in_the_tracker_pens()
  {
    QWidget widget;
    widget.resize(200, 200);
    widget.show();
    QVERIFY(QTest::qWaitForWindowExposed(&widget));
    const QPalette saved = QApplication::palette();
    QImage green;
    QImage red;
    QTimer::singleShot(0, &widget, [&] {
      play(&widget, SCRIPT{move_to(120, 90)});
      QRubberBand* band = widget.findChild<QRubberBand*>();
      if (band) {
        QPalette palette = saved;
        palette.setColor(QPalette::Highlight, QColor(0, 200, 0));
        QApplication::setPalette(palette);
        green = band->grab().toImage();
        palette.setColor(QPalette::Highlight, QColor(220, 0, 0));
        QApplication::setPalette(palette);
        red = band->grab().toImage();
      }
      send_mouse(&widget, QEvent::MouseButtonRelease, QPoint(), Qt::NoButton);
    });
    const QRect result = ORQ_DRAG_TRACKER::track_rect(&widget, QPoint(20, 10), nullptr, 0.0);
    QApplication::setPalette(saved);
    QCOMPARE(result, corners(20, 10, 120, 90));
    QVERIFY(!green.isNull());
    QCOMPARE(green.size(), result.size());
    QCOMPARE(pixel(green, QPoint(0, 40)), QColor(0, 200, 0));
    QCOMPARE(pixel(red, QPoint(0, 40)), QColor(220, 0, 0));
    QCOMPARE(pixel(red, QPoint(green.width() - 1, 40)), QColor(220, 0, 0));
  }

  // Held below and right of a scroll area, the mouse scrolls it every 300 ms.
  void held_outside_the_scroll_area_it_scrolls()
  {
    QScrollArea area;
    auto* content = new QWidget;
    content->resize(2000, 2000);
    area.setWidget(content);
    area.resize(200, 200);
    area.show();
    QVERIFY(QTest::qWaitForWindowExposed(&area));
    const QPoint outside = area.viewport()->mapToGlobal(QPoint(400, 400));
    QCursor::setPos(outside);
    if (QCursor::pos() != outside)
      QSKIP("this platform does not move the cursor");
    int scrolled_at_release = -1;
    QTimer::singleShot(0, content, [&] {
      QTRY_VERIFY_WITH_TIMEOUT(area.verticalScrollBar()->value() > 0, 2000);
      scrolled_at_release = area.verticalScrollBar()->value();
      send_mouse(content, QEvent::MouseButtonRelease, QPoint(), Qt::NoButton);
    });
    ORQ_DRAG_TRACKER::track_rect(content, QPoint(50, 50), &area, 0.0);
    QVERIFY(scrolled_at_release > 0);
    QVERIFY(area.horizontalScrollBar()->value() > 0);
    // The timer ends with the drag.
    const int after = area.verticalScrollBar()->value();
    QTest::qWait(400);
    QCOMPARE(area.verticalScrollBar()->value(), after);
  }

  void hit_handle_data()
  {
    QTest::addColumn<QPoint>("point");
    QTest::addColumn<int>("expected");
    // Handles of QRect(10, 10, 101, 61): corners at 10 and 110 across,
    // 10 and 70 down; middles at 60 and 40.
    QTest::newRow("top-left") << QPoint(10, 10) << int(ORQ_DRAG_TRACKER::TOP_LEFT_HANDLE);
    QTest::newRow("near top-left") << QPoint(13, 7) << int(ORQ_DRAG_TRACKER::TOP_LEFT_HANDLE);
    QTest::newRow("top") << QPoint(60, 12) << int(ORQ_DRAG_TRACKER::TOP_HANDLE);
    QTest::newRow("top-right") << QPoint(110, 10) << int(ORQ_DRAG_TRACKER::TOP_RIGHT_HANDLE);
    QTest::newRow("right") << QPoint(108, 40) << int(ORQ_DRAG_TRACKER::RIGHT_HANDLE);
    QTest::newRow("bottom-right") << QPoint(113, 73) << int(ORQ_DRAG_TRACKER::BOTTOM_RIGHT_HANDLE);
    QTest::newRow("bottom") << QPoint(60, 70) << int(ORQ_DRAG_TRACKER::BOTTOM_HANDLE);
    QTest::newRow("bottom-left") << QPoint(10, 70) << int(ORQ_DRAG_TRACKER::BOTTOM_LEFT_HANDLE);
    QTest::newRow("left") << QPoint(7, 43) << int(ORQ_DRAG_TRACKER::LEFT_HANDLE);
    QTest::newRow("just beyond the distance") << QPoint(14, 10) << int(ORQ_DRAG_TRACKER::NO_HANDLE);
    QTest::newRow("inside, away from handles") << QPoint(40, 30) << int(ORQ_DRAG_TRACKER::NO_HANDLE);
  }

  void hit_handle()
  {
    QFETCH(QPoint, point);
    QFETCH(int, expected);
    QCOMPARE(int(ORQ_DRAG_TRACKER::hit_handle(point, QRect(10, 10, 101, 61), 3)), expected);
    // An inverted rectangle has the same handles.
    QCOMPARE(int(ORQ_DRAG_TRACKER::hit_handle(point, corners(110, 70, 10, 10), 3)), expected);
  }

  void corners_win_on_a_small_rectangle()
  {
    // On a 4x4 rectangle every point near a corner is near an edge middle too.
    QCOMPARE(ORQ_DRAG_TRACKER::hit_handle(QPoint(1, 0), QRect(0, 0, 4, 4), 2),
             ORQ_DRAG_TRACKER::TOP_LEFT_HANDLE);
    QCOMPARE(ORQ_DRAG_TRACKER::hit_handle(QPoint(3, 3), QRect(0, 0, 4, 4), 2),
             ORQ_DRAG_TRACKER::BOTTOM_RIGHT_HANDLE);
  }

  void cursors_point_along_the_resize_data()
  {
    QTest::addColumn<int>("handle");
    QTest::addColumn<int>("shape");
    QTest::newRow("top-left") << int(ORQ_DRAG_TRACKER::TOP_LEFT_HANDLE) << int(Qt::SizeFDiagCursor);
    QTest::newRow("bottom-right") << int(ORQ_DRAG_TRACKER::BOTTOM_RIGHT_HANDLE) << int(Qt::SizeFDiagCursor);
    QTest::newRow("top-right") << int(ORQ_DRAG_TRACKER::TOP_RIGHT_HANDLE) << int(Qt::SizeBDiagCursor);
    QTest::newRow("bottom-left") << int(ORQ_DRAG_TRACKER::BOTTOM_LEFT_HANDLE) << int(Qt::SizeBDiagCursor);
    QTest::newRow("top") << int(ORQ_DRAG_TRACKER::TOP_HANDLE) << int(Qt::SizeVerCursor);
    QTest::newRow("bottom") << int(ORQ_DRAG_TRACKER::BOTTOM_HANDLE) << int(Qt::SizeVerCursor);
    QTest::newRow("left") << int(ORQ_DRAG_TRACKER::LEFT_HANDLE) << int(Qt::SizeHorCursor);
    QTest::newRow("right") << int(ORQ_DRAG_TRACKER::RIGHT_HANDLE) << int(Qt::SizeHorCursor);
    QTest::newRow("none") << int(ORQ_DRAG_TRACKER::NO_HANDLE) << int(Qt::ArrowCursor);
  }

  void cursors_point_along_the_resize()
  {
    QFETCH(int, handle);
    QFETCH(int, shape);
    QCOMPARE(int(ORQ_DRAG_TRACKER::get_cursor(ORQ_DRAG_TRACKER::RESIZE_HANDLES(handle)).shape()), shape);
  }

  // Each handle is a square outlined in the tracker pen around its point.
  void handles_are_drawn_on_their_points()
  {
    QImage image(140, 100, QImage::Format_ARGB32);
    image.fill(Qt::black);
    const QRect rect(10, 10, 101, 61);
    {
      QPainter painter(&image);
      ORQ_DRAG_TRACKER::draw_resize_handles(&painter, rect);
      ORQ_DRAG_TRACKER::draw_resize_handles(&painter, QPoint(125, 20), QPoint(125, 80));
    }
    const QColor pen = ORQ_PEN(ORQ_RECT_TRACKER_SOLID_PEN).get_pen()->color();
    const int half = ORQ_DRAG_TRACKER::handle_size / 2;
    QVector<QPoint> centres{QPoint(125, 20), QPoint(125, 80)};
    for (int handle = ORQ_DRAG_TRACKER::TOP_LEFT_HANDLE; handle <= ORQ_DRAG_TRACKER::LEFT_HANDLE; ++handle)
      centres << ORQ_DRAG_TRACKER::handle_position(rect, ORQ_DRAG_TRACKER::RESIZE_HANDLES(handle));
    for (const QPoint& c : centres) {
      QCOMPARE(pixel(image, c + QPoint(-half, -half)), pen);
      QCOMPARE(pixel(image, c + QPoint(half, half)), pen);
      QCOMPARE(pixel(image, c), ORQ_BRUSH(ORQ_WINDOW_BACKGROUND_BRUSH).get_brush().color());
    }
    // Nothing between the handles.
    QCOMPARE(pixel(image, QPoint(35, 10)), QColor(Qt::black));
    QCOMPARE(pixel(image, QPoint(60, 40)), QColor(Qt::black));
  }
};

ORQ_TEST_REGISTER(TST_DRAG_TRACKER);
#include "tst_drag_tracker.moc"
