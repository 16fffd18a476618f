#include "tst_zoom_fixture.h"

#include <QPainterPath>

#include <functional>

namespace {
using DURING = std::function<void(ORQ_MAGNIFYING_GLASS_WIDGET*)>;

// Reaches the protected box arithmetic; never shown.
class LENS_PROBE : public ORQ_MAGNIFYING_GLASS_WIDGET {
public:
  using ORQ_MAGNIFYING_GLASS_WIDGET::get_bounding_box;
  using ORQ_MAGNIFYING_GLASS_WIDGET::ORQ_MAGNIFYING_GLASS_WIDGET;
};

// The press that opens the lens, in the viewport's pixels: well inside it,
// so the lens and its handle stay over the view.
const QPoint k_press(150, 110);

// Switches to magnifying mode the way the tool bar does.
bool magnifying_mode(ZOOM_FIXTURE& fixture)
{
  QAction* action = fixture.area->get_magnifying_action();
  if (!fixture.group.actions().contains(action))
    return false;
  action->trigger();
  return fixture.group.checkedAction() == action;
}

// Presses button at k_press and, while the lens's loop runs, hands the lens
// to during and releases. Whether a lens was there to hand over.
bool with_lens(ZOOM_FIXTURE& fixture, Qt::MouseButton button, const DURING& during)
{
  TEST_VIEW* view = fixture.view;
  const QPoint at = view->mapFrom(fixture.viewport(), k_press);
  bool seen = false;
  // Goes with this call: a press that opened no loop leaves nothing queued
  // that would outlive what it refers to.
  QObject guard;
  QTimer::singleShot(0, &guard, [&] {
    if (auto* lens = fixture.area->findChild<ORQ_MAGNIFYING_GLASS_WIDGET*>()) {
      seen = true;
      during(lens);
    }
    send_mouse(view, QEvent::MouseButtonRelease, at, button, Qt::NoButton);
  });
  send_mouse(view, QEvent::MouseButtonPress, at, button, button);
  return seen;
}

QRect box(const QPoint& centre, double radius)
{
  const int r = qRound(radius);
  return QRect(centre - QPoint(r, r), QSize(3 * r, 3 * r));
}

// The press point in the coordinates the lens keeps its centre in.
QPoint press_in_area(const ZOOM_FIXTURE& fixture)
{
  return fixture.area->mapFromGlobal(fixture.viewport()->mapToGlobal(k_press));
}

int opaque_pixels(const QImage& image, const QRect& rect)
{
  int count = 0;
  for (int y = rect.top(); y <= rect.bottom(); ++y)
    for (int x = rect.left(); x <= rect.right(); ++x)
      count += qAlpha(image.pixel(x, y)) > 0 ? 1 : 0;
  return count;
}
} // namespace

class TST_MAGNIFYING_GLASS : public QObject {
  Q_OBJECT
private slots:
  // Size and magnification are kept for the process: every test starts
  // from the values a new process has.
  void init()
  {
    ORQ_MAGNIFYING_GLASS_WIDGET::set_size_level(2.0);
    ORQ_MAGNIFYING_GLASS_WIDGET::set_magnification(3.0);
  }

  void opens_at_the_press_with_the_kept_size()
  {
    ORQ_MAGNIFYING_GLASS_WIDGET::set_size_level(3.0);
    ZOOM_FIXTURE fixture(true);
    QVERIFY(fixture.show());
    QVERIFY(magnifying_mode(fixture));
    QPoint centre;
    QRect geometry;
    double radius = 0;
    bool visible = false;
    QCursor cursor;
    const bool seen = with_lens(fixture, Qt::LeftButton, [&](ORQ_MAGNIFYING_GLASS_WIDGET* lens) {
      centre = lens->get_centre();
      geometry = lens->geometry();
      radius = lens->get_radius();
      visible = lens->isVisible();
      cursor = fixture.view->cursor();
    });
    QVERIFY(seen);
    QVERIFY(visible);
    QCOMPARE(radius, 150.0);
    QCOMPARE(centre, press_in_area(fixture));
    QCOMPARE(geometry, box(centre, 150.0));
    QCOMPARE(cursor.shape(), Qt::CrossCursor);
  }

  void release_dismisses_the_lens()
  {
    ZOOM_FIXTURE fixture(true);
    QVERIFY(fixture.show());
    QVERIFY(magnifying_mode(fixture));
    QSignalSpy zoomed(fixture.area, &ORQ_ZOOM_SCROLL_AREA::zoom_level_changed);
    QVERIFY(with_lens(fixture, Qt::RightButton, [](ORQ_MAGNIFYING_GLASS_WIDGET*) {}));
    // The press returned: the loop is over and the lens with it.
    QVERIFY(!fixture.area->findChild<ORQ_MAGNIFYING_GLASS_WIDGET*>());
    QVERIFY(same_cursor(fixture.view->cursor(), orq_get_cursor(ORQ_MAGNIFYING_CURSOR)));
    QVERIFY(fixture.area->get_magnifying_action()->isChecked());
    settle();
    QCOMPARE(zoomed.count(), 0);
    QCOMPARE(fixture.view->get_zoom(), 1.0f);
    QCOMPARE(fixture.scroll(), QPoint(600, 500));
    // And the next press opens a new one.
    QVERIFY(with_lens(fixture, Qt::LeftButton, [](ORQ_MAGNIFYING_GLASS_WIDGET*) {}));
    QVERIFY(!fixture.area->findChild<ORQ_MAGNIFYING_GLASS_WIDGET*>());
  }

  void no_lens_outside_magnifying_mode()
  {
    ZOOM_FIXTURE fixture(true);
    QVERIFY(fixture.show());
    fixture.area->get_pan_tool_action()->trigger();
    QVERIFY(!with_lens(fixture, Qt::LeftButton, [](ORQ_MAGNIFYING_GLASS_WIDGET*) {}));
  }

  void size_steps_with_ctrl_wheel_data()
  {
    QTest::addColumn<QVector<int>>("deltas");
    QTest::addColumn<double>("level");
    QTest::newRow("a notch up") << QVector<int>{120} << 3.0;
    QTest::newRow("three up reach the ceiling") << QVector<int>{120, 120, 120} << 5.0;
    QTest::newRow("past the ceiling stays 5") << QVector<int>{120, 120, 120, 120} << 5.0;
    QTest::newRow("a notch down") << QVector<int>{-120} << 1.0;
    QTest::newRow("down floors at 1") << QVector<int>{-120, -120} << 1.0;
    QTest::newRow("no turn counts as down") << QVector<int>{0} << 1.0;
    QTest::newRow("a small turn up is a step") << QVector<int>{1} << 3.0;
    QTest::newRow("down to the floor and up again") << QVector<int>{-120, -120, 120, 120} << 3.0;
  }

  void size_steps_with_ctrl_wheel()
  {
    QFETCH(QVector<int>, deltas);
    QFETCH(double, level);
    ZOOM_FIXTURE fixture(true);
    QVERIFY(fixture.show());
    QVERIFY(magnifying_mode(fixture));
    TEST_VIEW* view = fixture.view;
    const QPoint at = view->mapFrom(fixture.viewport(), k_press);
    QPoint opened;
    QPoint centre;
    QRect geometry;
    double radius = 0;
    QVERIFY(with_lens(fixture, Qt::LeftButton, [&](ORQ_MAGNIFYING_GLASS_WIDGET* lens) {
      opened = lens->get_centre();
      for (int delta : deltas)
        send_wheel(view, at, delta, Qt::ControlModifier);
      centre = lens->get_centre();
      geometry = lens->geometry();
      radius = lens->get_radius();
    }));
    QCOMPARE(radius, level * 50.0);
    // It grows and shrinks about its centre.
    QCOMPARE(centre, opened);
    QCOMPARE(geometry, box(opened, level * 50.0));
    QCOMPARE(ORQ_MAGNIFYING_GLASS_WIDGET::get_size_level(), level);
    QCOMPARE(ORQ_MAGNIFYING_GLASS_WIDGET::get_magnification(), 3.0);
    // The wheel went to the lens, not to the view's zoom.
    QCOMPARE(view->get_zoom(), 1.0f);
  }

  void magnification_steps_with_the_wheel_data()
  {
    QTest::addColumn<double>("start");
    QTest::addColumn<QVector<int>>("deltas");
    QTest::addColumn<double>("magnification");
    QTest::newRow("a notch up adds one") << 3.0 << QVector<int>{120} << 4.0;
    QTest::newRow("up has no ceiling") << 3.0 << QVector<int>(20, 120) << 23.0;
    QTest::newRow("a notch down takes one") << 3.0 << QVector<int>{-120} << 2.0;
    QTest::newRow("down at 1.0 stays 1.0") << 1.0 << QVector<int>{-120} << 1.0;
    QTest::newRow("down floors at 1.0") << 3.0 << QVector<int>{-120, -120, -120, -120} << 1.0;
    QTest::newRow("no turn counts as down") << 3.0 << QVector<int>{0} << 2.0;
  }

  void magnification_steps_with_the_wheel()
  {
    QFETCH(double, start);
    QFETCH(QVector<int>, deltas);
    QFETCH(double, magnification);
    ORQ_MAGNIFYING_GLASS_WIDGET::set_magnification(start);
    ZOOM_FIXTURE fixture(true);
    QVERIFY(fixture.show());
    QVERIFY(magnifying_mode(fixture));
    TEST_VIEW* view = fixture.view;
    const QPoint at = view->mapFrom(fixture.viewport(), k_press);
    QRect before;
    QRect after;
    QVERIFY(with_lens(fixture, Qt::LeftButton, [&](ORQ_MAGNIFYING_GLASS_WIDGET* lens) {
      before = lens->geometry();
      for (int delta : deltas)
        send_wheel(view, at, delta, Qt::NoModifier);
      after = lens->geometry();
    }));
    QCOMPARE(ORQ_MAGNIFYING_GLASS_WIDGET::get_magnification(), magnification);
    QCOMPARE(ORQ_MAGNIFYING_GLASS_WIDGET::get_size_level(), 2.0);
    QCOMPARE(after, before);
    QCOMPARE(view->get_zoom(), 1.0f);
    QCOMPARE(fixture.scroll(), QPoint(600, 500));
  }

  void follows_the_left_button_alone_data()
  {
    QTest::addColumn<int>("button");
    QTest::addColumn<int>("move_buttons");
    QTest::addColumn<bool>("follows");
    QTest::newRow("left follows") << int(Qt::LeftButton) << int(Qt::LeftButton) << true;
    QTest::newRow("right stays") << int(Qt::RightButton) << int(Qt::RightButton) << false;
    QTest::newRow("left with right too stays")
        << int(Qt::LeftButton) << int(Qt::LeftButton | Qt::RightButton) << false;
    QTest::newRow("the middle button instead") << int(Qt::LeftButton) << int(Qt::MiddleButton) << false;
  }

  void follows_the_left_button_alone()
  {
    QFETCH(int, button);
    QFETCH(int, move_buttons);
    QFETCH(bool, follows);
    ZOOM_FIXTURE fixture(true);
    QVERIFY(fixture.show());
    QVERIFY(magnifying_mode(fixture));
    TEST_VIEW* view = fixture.view;
    const QPoint at = view->mapFrom(fixture.viewport(), k_press);
    const QPoint move(40, -30);
    QRect opened;
    QRect moved;
    QPoint centre;
    QVERIFY(with_lens(fixture, Qt::MouseButton(button), [&](ORQ_MAGNIFYING_GLASS_WIDGET* lens) {
      opened = lens->geometry();
      send_mouse(view, QEvent::MouseMove, at + move / 2, Qt::NoButton, Qt::MouseButtons(move_buttons));
      send_mouse(view, QEvent::MouseMove, at + move, Qt::NoButton, Qt::MouseButtons(move_buttons));
      moved = lens->geometry();
      centre = lens->get_centre();
    }));
    const QPoint pressed = press_in_area(fixture);
    if (follows) {
      QCOMPARE(centre, pressed + move);
      QCOMPARE(moved, box(pressed + move, 100.0));
    } else {
      QCOMPARE(centre, pressed);
      QCOMPARE(moved, opened);
    }
  }

  void bounding_box_is_three_radii_data()
  {
    QTest::addColumn<QPointF>("centre");
    QTest::addColumn<double>("radius");
    QTest::addColumn<double>("extra");
    QTest::addColumn<QRect>("expected");
    QTest::newRow("left of the area") << QPointF(-10, 20) << 100.0 << 0.0 << QRect(-110, -80, 300, 300);
    QTest::newRow("the largest lens") << QPointF(300, 200) << 250.0 << 0.0 << QRect(50, -50, 750, 750);
    QTest::newRow("an extra margin") << QPointF(0, 0) << 50.0 << 10.0 << QRect(-60, -60, 180, 180);
    QTest::newRow("fractions round to the nearest")
        << QPointF(-10.4, 20.7) << 100.0 << 0.0 << QRect(-110, -79, 300, 300);
  }

  void bounding_box_is_three_radii()
  {
    QFETCH(QPointF, centre);
    QFETCH(double, radius);
    QFETCH(double, extra);
    QFETCH(QRect, expected);
    ORQ_ZOOM_SCROLL_AREA area;
    auto* view = new TEST_VIEW;
    area.set_view(view, true);
    LENS_PROBE probe(&area, view, area.mapToGlobal(QPoint(5, 5)));
    QCOMPARE(probe.get_bounding_box(centre, radius, extra), expected);
  }

  void view_paints_itself_enlarged_into_the_lens()
  {
    ORQ_MAGNIFYING_GLASS_WIDGET::set_magnification(4.0);
    ZOOM_FIXTURE fixture(true);
    fixture.view->set_zoom(2.0f);
    QVERIFY(fixture.show());
    QVERIFY(magnifying_mode(fixture));
    TEST_VIEW* view = fixture.view;
    const QPoint under_press = view->get_logical(view->mapFrom(fixture.viewport(), k_press));
    QVector<TEST_VIEW::PAINT_CALL> paints;
    QImage image;
    QSize size;
    double r = 0;
    bool flag_during = true;
    QVERIFY(with_lens(fixture, Qt::LeftButton, [&](ORQ_MAGNIFYING_GLASS_WIDGET* lens) {
      view->paints.clear();
      // Drawn as over the view, without a background of its own.
      image = QImage(lens->size(), QImage::Format_ARGB32);
      image.fill(Qt::transparent);
      lens->render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
      paints = view->paints;
      size = lens->size();
      r = lens->get_radius();
      flag_during = view->get_paint_magnify_glass();
    }));
    QCOMPARE(paints.size(), 1);
    const TEST_VIEW::PAINT_CALL& call = paints.first();
    QVERIFY(call.magnify_glass);
    QCOMPARE(call.magnify_glass_rect, QRect(QPoint(0, 0), size));
    QCOMPARE(call.rect, QRect(QPoint(0, 0), size));
    QCOMPARE(call.target, static_cast<QWidget*>(view));
    QVERIFY(!call.printing);
    QVERIFY(call.clipped);
    // Absolute zoom 2 times magnification 4.
    QCOMPARE(call.transform.m11(), 8.0);
    QCOMPARE(call.transform.m22(), 8.0);
    QCOMPARE(call.transform.m12(), 0.0);
    // What was under the pointer is at the lens's centre, give or take the
    // scroll area's frame, which the lens's centre includes.
    const QPointF shown = call.transform.map(QPointF(under_press));
    const int frame = qMax(fixture.viewport()->x(), fixture.viewport()->y()) + 1;
    QVERIFY2(qAbs(shown.x() - r) <= 8.0 * frame && qAbs(shown.y() - r) <= 8.0 * frame,
             qPrintable(QStringLiteral("at %1,%2").arg(shown.x()).arg(shown.y())));
    // The flag is only up while the lens paints.
    QVERIFY(!flag_during);
    QVERIFY(!view->get_paint_magnify_glass());
    QVERIFY(view->get_paint_magnify_glass_rect().isNull());

    // The picture: clear glass inside, a dark rim at its edge, the handle
    // towards the bottom right and nothing in the top-right corner.
    QCOMPARE(image.size(), size);
    const int ri = qRound(r);
    QCOMPARE(qAlpha(image.pixel(ri, ri)), 0);
    QVERIFY(qAlpha(image.pixel(ri, qRound(0.05 * r))) > 60);
    QVERIFY(opaque_pixels(image, QRect(qRound(2.12 * r) - 2, qRound(2.12 * r) - 2, 5, 5)) > 15);
    QCOMPARE(opaque_pixels(image, QRect(size.width() - 10, 0, 10, 10)), 0);
  }
};

ORQ_TEST_REGISTER(TST_MAGNIFYING_GLASS);
#include "tst_magnifying_glass.moc"
