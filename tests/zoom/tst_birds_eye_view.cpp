#include "tst_zoom_fixture.h"

namespace {
// The canvas pixel nearest to a logical point, and the logical point that
// pixel stands for: a click can only hit whole pixels.
QPoint canvas_point(const ORQ_BIRDS_EYE_VIEW* overview, const QPoint& logical)
{
  return overview->get_canvas_transform().map(QPointF(logical)).toPoint();
}

QPoint logical_of(const ORQ_BIRDS_EYE_VIEW* overview, const QPoint& canvas)
{
  return overview->get_canvas_transform().inverted().map(canvas);
}

// Shows the overview through its action and waits until it is laid out.
bool open(ZOOM_FIXTURE& fixture)
{
  fixture.area->get_birds_eye_view_action()->trigger();
  ORQ_BIRDS_EYE_VIEW* overview = fixture.area->get_birds_eye_view();
  return QTest::qWaitFor([&] { return overview->isVisible() && overview->get_canvas()->width() > 80; });
}
} // namespace

class TST_BIRDS_EYE_VIEW : public QObject {
  Q_OBJECT
private slots:
  void docks_right_and_follows_its_action()
  {
    ZOOM_FIXTURE fixture(true, true);
    QVERIFY(fixture.show());
    ORQ_BIRDS_EYE_VIEW* overview = fixture.area->get_birds_eye_view();
    QAction* action = fixture.area->get_birds_eye_view_action();
    QVERIFY(overview);
    QVERIFY(!overview->isVisible());
    QVERIFY(!action->isChecked());
    QCOMPARE(overview->get_view(), fixture.view);
    QVERIFY(open(fixture));
    auto* window = qobject_cast<QMainWindow*>(fixture.top());
    QCOMPARE(overview->parentWidget(), window);
    QCOMPARE(window->dockWidgetArea(overview), Qt::RightDockWidgetArea);
    QVERIFY(action->isChecked());
    // Closed some other way, the action follows.
    overview->hide();
    QVERIFY(!action->isChecked());
    action->trigger();
    QVERIFY(overview->isVisible());
    action->trigger();
    QVERIFY(!overview->isVisible());
    QVERIFY(!action->isChecked());
    overview->show();
    fixture.area->hide_birds_eye_view();
    QVERIFY(!overview->isVisible());
  }

  void floats_where_there_is_no_main_window()
  {
    ZOOM_FIXTURE fixture(true);
    QVERIFY(fixture.show());
    QVERIFY(open(fixture));
    ORQ_BIRDS_EYE_VIEW* overview = fixture.area->get_birds_eye_view();
    QVERIFY(overview->isFloating());
    QVERIFY(overview->isWindow());
  }

  void canvas_shows_the_whole_drawing()
  {
    ZOOM_FIXTURE fixture(true, true);
    QVERIFY(fixture.show());
    QVERIFY(open(fixture));
    ORQ_BIRDS_EYE_VIEW* overview = fixture.area->get_birds_eye_view();
    const QRectF drawing = overview->get_canvas_transform().mapRect(QRectF(0, 0, 2000, 1500));
    const QRectF canvas = overview->get_canvas()->rect();
    QVERIFY(canvas.contains(drawing));
    // Fitted: it touches two opposite margins.
    QVERIFY(drawing.width() >= canvas.width() - 9 || drawing.height() >= canvas.height() - 9);
    // The outline is the part the scroll area shows.
    QCOMPARE(overview->get_visible_logical_rect().topLeft(), QPoint(600, 500));
    fixture.view->set_zoom(2.0f);
    fixture.scroll_to(300, 200);
    QCOMPARE(overview->get_visible_logical_rect().topLeft(), QPoint(150, 100));
  }

  void click_and_drag_move_the_main_view_data()
  {
    QTest::addColumn<QPoint>("press");
    QTest::addColumn<QPoint>("release");
    QTest::newRow("click on the lower right") << QPoint(1500, 1000) << QPoint(1500, 1000);
    QTest::newRow("click on the upper left") << QPoint(500, 400) << QPoint(500, 400);
    QTest::newRow("drag across") << QPoint(1500, 1000) << QPoint(800, 700);
  }

  void click_and_drag_move_the_main_view()
  {
    QFETCH(QPoint, press);
    QFETCH(QPoint, release);
    ZOOM_FIXTURE fixture(true, true);
    QVERIFY(fixture.show());
    QVERIFY(open(fixture));
    ORQ_BIRDS_EYE_VIEW* overview = fixture.area->get_birds_eye_view();
    QWidget* canvas = overview->get_canvas();
    const QPoint from = canvas_point(overview, press);
    const QPoint to = canvas_point(overview, release);
    const QPoint target = logical_of(overview, to);
    QTest::mousePress(canvas, Qt::LeftButton, Qt::NoModifier, from);
    if (to != from)
      send_mouse(canvas, QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton);
    QTest::mouseRelease(canvas, Qt::LeftButton, Qt::NoModifier, to);
    settle();
    // The target sits in the middle of the outline, which is the viewport
    // as large as it is without scroll bars.
    const QSize size = fixture.area->maximumViewportSize();
    const QPoint middle(size.width() / 2, size.height() / 2);
    QVERIFY2(
        near(fixture.on_screen(target), middle, 2),
        qPrintable(
            QStringLiteral("%1,%2").arg(fixture.on_screen(target).x()).arg(fixture.on_screen(target).y())));
    QVERIFY(near(overview->get_visible_logical_rect().center(), target, 2));
    QCOMPARE(fixture.view->get_zoom(), 1.0f);
  }

  void wheel_on_the_canvas_zooms_about_its_point_data()
  {
    QTest::addColumn<int>("delta");
    QTest::addColumn<float>("factor");
    QTest::newRow("up") << 120 << 1.25f;
    QTest::newRow("down") << -120 << 0.8f;
    QTest::newRow("no turn does nothing") << 0 << 1.0f;
  }

  void wheel_on_the_canvas_zooms_about_its_point()
  {
    QFETCH(int, delta);
    QFETCH(float, factor);
    ZOOM_FIXTURE fixture(true, true);
    QVERIFY(fixture.show());
    QVERIFY(open(fixture));
    ORQ_BIRDS_EYE_VIEW* overview = fixture.area->get_birds_eye_view();
    const QPoint at = canvas_point(overview, fixture.logical_at(QPoint(150, 100)));
    const QPoint logical = logical_of(overview, at);
    const QPoint before = fixture.on_screen(logical);
    send_wheel(overview->get_canvas(), at, delta, Qt::NoModifier);
    settle();
    QVERIFY(same_zoom(fixture.view->get_zoom(), factor));
    QVERIFY(near(fixture.on_screen(logical), before, 1));
  }
};

ORQ_TEST_REGISTER(TST_BIRDS_EYE_VIEW);
#include "tst_birds_eye_view.moc"
