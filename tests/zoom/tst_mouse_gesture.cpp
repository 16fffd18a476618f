#include "tst_zoom_fixture.h"

#include <QLabel>

#include <functional>

namespace {
enum OUTCOME { FACTOR, FIT, RECTANGLE, NOTHING };

// What the overlay showed while its loop ran.
struct SEEN {
  QString label = QStringLiteral("<no overlay>");
  bool label_visible = false;
  int quadrant = -2;
};

// Presses the left button at press (viewport pixels), moves by offset and
// releases there, the moves queued before the overlay's loop starts.
SEEN left_gesture(ZOOM_FIXTURE& fixture, const QPoint& press, const QPoint& offset,
                  Qt::KeyboardModifiers move_modifiers = Qt::NoModifier, bool release = true,
                  Qt::MouseButtons move_buttons = Qt::LeftButton)
{
  TEST_VIEW* view = fixture.view;
  const QPoint at = view->mapFrom(fixture.viewport(), press);
  SEEN seen;
  QTimer::singleShot(0, view, [&, view, at] {
    send_mouse(view, QEvent::MouseMove, at + offset / 2, Qt::NoButton, Qt::LeftButton);
    send_mouse(view, QEvent::MouseMove, at + offset, Qt::NoButton, move_buttons, move_modifiers);
    if (auto* overlay = view->findChild<ORQ_MOUSE_GESTURE_WIDGET*>()) {
      seen.quadrant = overlay->get_quadrant();
      auto* label = overlay->findChild<QLabel*>(QStringLiteral("gesture_label"));
      seen.label = label ? label->text() : QStringLiteral("<no label>");
      seen.label_visible = label && label->isVisible();
    }
    if (release) {
      send_mouse(view, QEvent::MouseButtonRelease, at + offset, Qt::LeftButton, Qt::NoButton);
      return;
    }
    // Should the move not end the loop, a release does, rather than a hang.
    QTimer::singleShot(0, view, [view, at, offset] {
      if (view->findChild<ORQ_MOUSE_GESTURE_WIDGET*>())
        send_mouse(view, QEvent::MouseButtonRelease, at + offset, Qt::LeftButton, Qt::NoButton);
    });
  });
  send_mouse(view, QEvent::MouseButtonPress, at, Qt::LeftButton, Qt::LeftButton);
  return seen;
}

float fit_zoom(const ZOOM_FIXTURE& fixture)
{
  const QSize size = fixture.area->maximumViewportSize();
  return qMin(float(size.width() - 1) / 2000.0f, float(size.height() - 1) / 1500.0f);
}

// The zoom that zoom_rect gives a rectangle of the view's pixels at zoom 1.
float rect_zoom(const ZOOM_FIXTURE& fixture, const QSize& rect)
{
  const QSize size = fixture.area->maximumViewportSize();
  return qMin(float(size.width() + 1) / float(rect.width()), float(size.height() + 1) / float(rect.height()));
}

using GESTURE_CALL = std::function<void(ORQ_ZOOM_SCROLL_AREA*, ORQ_VIEW*)>;
} // namespace

Q_DECLARE_METATYPE(GESTURE_CALL)

class TST_MOUSE_GESTURE : public QObject {
  Q_OBJECT
private slots:
  void zoom_mode_gestures_data()
  {
    QTest::addColumn<QPoint>("offset");
    QTest::addColumn<QString>("label");
    QTest::addColumn<int>("quadrant");
    QTest::addColumn<int>("outcome");
    QTest::addColumn<float>("factor");
    // The press is at (250, 200) of the viewport; gestures zoom about its
    // centre (the cursor is not over the view), clicks about the press.
    QTest::newRow("up-left zooms in by 1.2")
        << QPoint(-100, -100) << "zoom in 120%" << 3 << int(FACTOR) << 1.2f;
    QTest::newRow("up-right zooms out by 1.25")
        << QPoint(100, -100) << "zoom out 80%" << 0 << int(FACTOR) << 0.8f;
    QTest::newRow("far up-right stops at 0.5%")
        << QPoint(600, -600) << "zoom out 0.5%" << 0 << int(FACTOR) << 0.005f;
    QTest::newRow("only the height counts")
        << QPoint(-300, -10) << "zoom in 102%" << 3 << int(FACTOR) << 1.02f;
    QTest::newRow("down-left fits") << QPoint(-100, 100) << "zoom fit" << 2 << int(FIT) << 0.0f;
    QTest::newRow("down-right zooms into the rectangle")
        << QPoint(100, 60) << "zoom in" << 1 << int(RECTANGLE) << 0.0f;
    QTest::newRow("within 9 x 9 is a click") << QPoint(9, 9) << "zoom in" << 1 << int(FACTOR) << 1.25f;
    QTest::newRow("up-left within 9 x 9 is a click too")
        << QPoint(-9, -9) << "zoom in 101.8%" << 3 << int(FACTOR) << 1.25f;
    QTest::newRow("up-right within 9 x 9 is a click")
        << QPoint(9, -9) << "zoom out 98.2%" << 0 << int(FACTOR) << 1.25f;
    QTest::newRow("down-left within 9 x 9 is a click")
        << QPoint(-9, 9) << "zoom fit" << 2 << int(FACTOR) << 1.25f;
    QTest::newRow("10 across is a gesture")
        << QPoint(10, -1) << "zoom out 99.8%" << 0 << int(FACTOR) << 0.998f;
  }

  void zoom_mode_gestures()
  {
    QFETCH(QPoint, offset);
    QFETCH(QString, label);
    QFETCH(int, quadrant);
    QFETCH(int, outcome);
    QFETCH(float, factor);
    ZOOM_FIXTURE fixture;
    QVERIFY(fixture.show());
    fixture.area->get_zoom_tool_action()->trigger();
    settle();
    const QPoint press(250, 200);
    const bool click = qAbs(offset.x()) < 10 && qAbs(offset.y()) < 10;
    const QPoint anchor = click ? press : fixture.viewport()->rect().center();
    const QPoint logical = fixture.logical_at(anchor);
    QSignalSpy zoomed(fixture.area, &ORQ_ZOOM_SCROLL_AREA::zoom_level_changed);
    const SEEN seen = left_gesture(fixture, press, offset);
    QCOMPARE(seen.label, label);
    QVERIFY(seen.label_visible);
    QCOMPARE(seen.quadrant, quadrant);
    // The overlay went with its gesture.
    QVERIFY(!fixture.view->findChild<ORQ_MOUSE_GESTURE_WIDGET*>());
    QCOMPARE(zoomed.count(), 1);
    float expected = factor;
    if (outcome == FIT)
      expected = fit_zoom(fixture);
    else if (outcome == RECTANGLE)
      expected = rect_zoom(fixture, QSize(qAbs(offset.x()) + 1, qAbs(offset.y()) + 1));
    QVERIFY2(same_zoom(fixture.view->get_zoom(), expected),
             qPrintable(QString::number(fixture.view->get_zoom())));
    settle();
    if (outcome == FACTOR && factor > 0.5f)
      QVERIFY(near(fixture.on_screen(logical), anchor, 1));
  }

  void a_modifier_or_another_button_ends_the_gesture_data()
  {
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<int>("buttons");
    QTest::newRow("Shift") << int(Qt::ShiftModifier) << int(Qt::LeftButton);
    QTest::newRow("Ctrl") << int(Qt::ControlModifier) << int(Qt::LeftButton);
    QTest::newRow("the right button too") << 0 << int(Qt::LeftButton | Qt::RightButton);
    QTest::newRow("the right button instead") << 0 << int(Qt::RightButton);
  }

  void a_modifier_or_another_button_ends_the_gesture()
  {
    QFETCH(int, modifiers);
    QFETCH(int, buttons);
    ZOOM_FIXTURE fixture;
    QVERIFY(fixture.show());
    fixture.area->get_zoom_tool_action()->trigger();
    settle();
    QSignalSpy zoomed(fixture.area, &ORQ_ZOOM_SCROLL_AREA::zoom_level_changed);
    // No release is queued: the move alone must end the overlay's loop.
    const SEEN seen = left_gesture(fixture, QPoint(250, 200), QPoint(-100, -100),
                                   Qt::KeyboardModifiers(modifiers), false, Qt::MouseButtons(buttons));
    QVERIFY(!seen.label_visible);
    QVERIFY(!fixture.view->findChild<ORQ_MOUSE_GESTURE_WIDGET*>());
    send_mouse(fixture.view, QEvent::MouseButtonRelease, QPoint(250, 200), Qt::LeftButton, Qt::NoButton);
    settle();
    QCOMPARE(zoomed.count(), 0);
    QCOMPARE(fixture.view->get_zoom(), 1.0f);
    QCOMPARE(fixture.scroll(), QPoint(600, 500));
  }

  // The percentage of an upward drag stays in the overlay when the mouse
  // comes down again; the fit gesture just does not show it.
  void down_left_after_up_left_shows_only_fit()
  {
    ZOOM_FIXTURE fixture;
    QVERIFY(fixture.show());
    fixture.area->get_zoom_tool_action()->trigger();
    settle();
    TEST_VIEW* view = fixture.view;
    const QPoint at = view->mapFrom(fixture.viewport(), QPoint(250, 200));
    QString up_label;
    QString fit_label;
    float kept = 0;
    int quadrant = -2;
    QObject guard;
    QTimer::singleShot(0, &guard, [&] {
      send_mouse(view, QEvent::MouseMove, at + QPoint(-50, -50), Qt::NoButton, Qt::LeftButton);
      auto* overlay = view->findChild<ORQ_MOUSE_GESTURE_WIDGET*>();
      if (overlay)
        up_label = overlay->get_label()->text();
      send_mouse(view, QEvent::MouseMove, at + QPoint(-60, 40), Qt::NoButton, Qt::LeftButton);
      if (overlay) {
        fit_label = overlay->get_label()->text();
        kept = overlay->get_zoom_percentage();
        quadrant = overlay->get_quadrant();
      }
      send_mouse(view, QEvent::MouseButtonRelease, at + QPoint(-60, 40), Qt::LeftButton, Qt::NoButton);
    });
    send_mouse(view, QEvent::MouseButtonPress, at, Qt::LeftButton, Qt::LeftButton);
    QCOMPARE(up_label, QStringLiteral("zoom in 110%"));
    QCOMPARE(fit_label, QStringLiteral("zoom fit"));
    QCOMPARE(quadrant, 2);
    QCOMPARE(kept, 110.0f);
    QVERIFY(same_zoom(view->get_zoom(), fit_zoom(fixture)));
  }

  void selection_mode_gestures_data()
  {
    QTest::addColumn<bool>("rect_selection");
    QTest::addColumn<QPoint>("offset");
    QTest::addColumn<QString>("label");
    QTest::addColumn<int>("selections");
    QTest::addColumn<int>("clicks");
    QTest::addColumn<bool>("zoomed");
    QTest::newRow("down-right selects") << true << QPoint(100, 80) << "select" << 1 << 0 << false;
    QTest::newRow("down-right zooms where the view does not select")
        << false << QPoint(100, 80) << "zoom in" << 0 << 0 << true;
    QTest::newRow("a click is the view's") << true << QPoint(3, 2) << "select" << 0 << 1 << false;
    QTest::newRow("up-left still zooms in") << true << QPoint(-50, -50) << "zoom in 110%" << 0 << 0 << true;
  }

  void selection_mode_gestures()
  {
    QFETCH(bool, rect_selection);
    QFETCH(QPoint, offset);
    QFETCH(QString, label);
    QFETCH(int, selections);
    QFETCH(int, clicks);
    QFETCH(bool, zoomed);
    ZOOM_FIXTURE fixture;
    QVERIFY(fixture.show());
    fixture.view->gestures = true;
    fixture.view->rect_selection = rect_selection;
    const QPoint press(200, 150);
    const QPoint at = fixture.view->mapFrom(fixture.viewport(), press);
    const SEEN seen = left_gesture(fixture, press, offset);
    QCOMPARE(seen.label, label);
    QCOMPARE(fixture.view->rect_selections.size(), selections);
    if (selections)
      QCOMPARE(fixture.view->rect_selections.first(), corners(at, at + offset));
    QCOMPARE(fixture.view->clicks, clicks);
    QCOMPARE(fixture.view->get_zoom() != 1.0f, zoomed);
  }

  void selection_mode_needs_the_views_consent()
  {
    ZOOM_FIXTURE fixture;
    QVERIFY(fixture.show());
    fixture.view->gestures = false;
    // No overlay takes this press, so nothing waits for its release.
    send_mouse(fixture.view, QEvent::MouseButtonPress, QPoint(700, 600), Qt::LeftButton, Qt::LeftButton);
    send_mouse(fixture.view, QEvent::MouseMove, QPoint(800, 700), Qt::NoButton, Qt::LeftButton);
    send_mouse(fixture.view, QEvent::MouseButtonRelease, QPoint(800, 700), Qt::LeftButton, Qt::NoButton);
    QVERIFY(fixture.view->rect_selections.isEmpty());
    QCOMPARE(fixture.view->clicks, 0);
    // In pan mode the view is not asked.
    fixture.view->gestures = true;
    fixture.area->get_pan_tool_action()->trigger();
    QVERIFY(!fixture.area->current_mode_supports_mouse_gesture(QPoint(700, 600)));
    send_mouse(fixture.view, QEvent::MouseButtonPress, QPoint(700, 600), Qt::LeftButton, Qt::LeftButton);
    send_mouse(fixture.view, QEvent::MouseButtonRelease, QPoint(700, 600), Qt::LeftButton, Qt::NoButton);
    QCOMPARE(fixture.view->clicks, 0);
  }

  void null_arguments_are_internal_errors_data()
  {
    QTest::addColumn<GESTURE_CALL>("call");
    QTest::addColumn<QString>("condition");
    QTest::newRow("no view") << GESTURE_CALL([](ORQ_ZOOM_SCROLL_AREA* a, ORQ_VIEW*) {
      ORQ_MOUSE_GESTURE_WIDGET::show_mouse_gesture(a, nullptr, QPoint());
    }) << "view != nullptr";
    QTest::newRow("no scroll area") << GESTURE_CALL([](ORQ_ZOOM_SCROLL_AREA*, ORQ_VIEW* v) {
      ORQ_MOUSE_GESTURE_WIDGET::show_mouse_gesture(nullptr, v, QPoint());
    }) << "scroll_area != nullptr";
    QTest::newRow("selection mode, no view") << GESTURE_CALL([](ORQ_ZOOM_SCROLL_AREA* a, ORQ_VIEW*) {
      ORQ_SELECTION_MODE_MOUSE_GESTURE_WIDGET::show_mouse_gesture(a, nullptr, QPoint());
    }) << "view != nullptr";
    QTest::newRow("overlay without a view") << GESTURE_CALL([](ORQ_ZOOM_SCROLL_AREA* a, ORQ_VIEW*) {
      ORQ_MOUSE_GESTURE_WIDGET overlay(a, nullptr, QPoint());
    }) << "m_view != nullptr";
    QTest::newRow("overlay without a scroll area") << GESTURE_CALL([](ORQ_ZOOM_SCROLL_AREA*, ORQ_VIEW* v) {
      ORQ_MOUSE_GESTURE_WIDGET overlay(nullptr, v, QPoint());
    }) << "m_scroll_area != nullptr";
  }

  void null_arguments_are_internal_errors()
  {
    QFETCH(GESTURE_CALL, call);
    QFETCH(QString, condition);
    ORQ_ZOOM_SCROLL_AREA area;
    auto* view = new TEST_VIEW;
    area.set_view(view, false);
    QCOMPARE(orq_test_internal_error([&] { call(&area, view); }), condition);
    QVERIFY(!view->findChild<ORQ_MOUSE_GESTURE_WIDGET*>());
  }
};

ORQ_TEST_REGISTER(TST_MOUSE_GESTURE);
#include "tst_mouse_gesture.moc"
