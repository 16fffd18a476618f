#include "tst_zoom_fixture.h"

#include <QApplication>
#include <QLabel>

#include <functional>

namespace {
// What the overlay showed while its loop ran, read after the last move.
struct SEEN {
  bool loop = false;
  bool overlay_visible = false;
  QString label = QStringLiteral("<no label>");
  bool label_visible = false;
  QPoint label_pos;
  bool active = false;
  QCursor cursor;
  QImage picture;
};

// The press, in the viewport's pixels: room above and below for the drags.
const QPoint k_press(250, 100);

// Presses button with modifiers at k_press, moves by offsets with
// move_buttons held, reads the overlay and releases at the last point: the
// moves and the release queued before the drag's loop starts.
SEEN zoom_drag(ZOOM_FIXTURE& fixture, Qt::MouseButton button, Qt::KeyboardModifiers modifiers,
               const QVector<QPoint>& offsets, Qt::MouseButtons move_buttons)
{
  TEST_VIEW* view = fixture.view;
  const QPoint at = view->mapFrom(fixture.viewport(), k_press);
  SEEN seen;
  // Goes with this call: a press that opened no loop leaves nothing queued
  // that would outlive what it refers to.
  QObject guard;
  QTimer::singleShot(0, &guard, [&] {
    QPoint last = at;
    for (const QPoint& offset : offsets) {
      last = at + offset;
      send_mouse(view, QEvent::MouseMove, last, Qt::NoButton, move_buttons, modifiers);
    }
    if (auto* overlay = view->findChild<ORQ_ZOOM_DRAG_WIDGET*>()) {
      seen.loop = true;
      seen.overlay_visible = overlay->isVisible();
      // The read-out follows the drag as the overlay is drawn: draw it now.
      if (seen.overlay_visible)
        seen.picture = overlay->grab().toImage().convertToFormat(QImage::Format_ARGB32);
      if (auto* label = overlay->findChild<QLabel*>(QStringLiteral("zoom_drag_label"))) {
        seen.label = label->text();
        seen.label_visible = label->isVisible();
        seen.label_pos = overlay->mapToParent(label->pos());
      }
      seen.active = ORQ_ZOOM_DRAG_WIDGET::is_zoom_drag_activate();
      seen.cursor = view->cursor();
    }
    send_mouse(view, QEvent::MouseButtonRelease, last, button, Qt::NoButton, modifiers);
  });
  send_mouse(view, QEvent::MouseButtonPress, at, button, button, modifiers);
  return seen;
}

// Whether a pixel of the highlight colour lies within a pixel of point.
bool line_at(const QImage& image, const QPoint& point)
{
  const QRgb highlight = QApplication::palette().color(QPalette::Highlight).rgb();
  for (int dy = -1; dy <= 1; ++dy)
    for (int dx = -1; dx <= 1; ++dx) {
      const QPoint p = point + QPoint(dx, dy);
      if (image.rect().contains(p) && qAlpha(image.pixel(p)) == 255 &&
          (image.pixel(p) & 0xffffff) == (highlight & 0xffffff))
        return true;
    }
  return false;
}

bool zoom_mode(ZOOM_FIXTURE& fixture)
{
  fixture.area->get_zoom_tool_action()->trigger();
  settle();
  return fixture.area->get_zoom_tool_action()->isChecked();
}

using DRAG_CALL = std::function<void(ORQ_ZOOM_SCROLL_AREA*, ORQ_VIEW*)>;
} // namespace

Q_DECLARE_METATYPE(DRAG_CALL)

class TST_ZOOM_DRAG : public QObject {
  Q_OBJECT
private slots:
  void right_drag_zooms_by_its_height_data()
  {
    QTest::addColumn<QPoint>("offset");
    QTest::addColumn<QString>("label");
    QTest::addColumn<float>("zoom");
    // Five pixels a per cent.
    QTest::newRow("100 up is 120%") << QPoint(0, -100) << "120%" << 1.2f;
    QTest::newRow("100 down is 80%") << QPoint(0, 100) << "80%" << 0.8f;
    QTest::newRow("600 down stops at 0.5%") << QPoint(0, 600) << "0.5%" << 0.005f;
    QTest::newRow("2 down is 99.6%") << QPoint(0, 2) << "99.6%" << 0.996f;
    QTest::newRow("only the height counts") << QPoint(-80, -50) << "110%" << 1.1f;
    QTest::newRow("no ceiling") << QPoint(0, -1000) << "300%" << 3.0f;
    QTest::newRow("sideways only is 100%") << QPoint(150, 0) << "100%" << 1.0f;
  }

  void right_drag_zooms_by_its_height()
  {
    QFETCH(QPoint, offset);
    QFETCH(QString, label);
    QFETCH(float, zoom);
    ZOOM_FIXTURE fixture;
    // Limits that leave every row's zoom reachable.
    fixture.view->set_zoom_min_max(0.001f, 100.0f);
    QVERIFY(fixture.show());
    QVERIFY(zoom_mode(fixture));
    const QPoint at = fixture.view->mapFrom(fixture.viewport(), k_press);
    // The scroll area's centre: half a page each way.
    const QPoint centre(fixture.viewport()->width() / 2, fixture.viewport()->height() / 2);
    const QPoint logical = fixture.logical_at(centre);
    QSignalSpy zoomed(fixture.area, &ORQ_ZOOM_SCROLL_AREA::zoom_level_changed);
    const SEEN seen =
        zoom_drag(fixture, Qt::RightButton, Qt::NoModifier, {offset / 2, offset}, Qt::RightButton);

    QVERIFY(seen.loop);
    QVERIFY(seen.active);
    QVERIFY(seen.overlay_visible);
    QCOMPARE(seen.label, label);
    QVERIFY(seen.label_visible);
    const bool down = offset.y() > 0;
    QCOMPARE(seen.label_pos, QPoint(at.x() - 40, down ? at.y() - 40 : at.y()));
    QVERIFY(same_cursor(seen.cursor, orq_get_cursor(down ? ORQ_ZOOM_OUT_CURSOR : ORQ_ZOOM_IN_CURSOR)));
    QVERIFY2(line_at(seen.picture, at + offset / 2), "no line from the press to the mouse");

    // Applied once, at the release, about the viewport's centre (the cursor
    // is not over the view); the same zoom is signalled even when nothing
    // changed.
    QVERIFY(ORQ_ZOOM_DRAG_WIDGET::is_zoom_drag_activate());
    QVERIFY(!fixture.view->findChild<ORQ_ZOOM_DRAG_WIDGET*>());
    QCOMPARE(zoomed.count(), 1);
    QCOMPARE(zoomed.first().first().toFloat(), fixture.view->get_zoom());
    QVERIFY2(same_zoom(fixture.view->get_zoom(), zoom),
             qPrintable(QString::number(fixture.view->get_zoom())));
    QVERIFY(same_cursor(fixture.view->cursor(), orq_get_cursor(ORQ_ZOOM_IN_CURSOR)));
    settle();
    if (zoom >= 0.5f)
      QVERIFY2(near(fixture.on_screen(logical), centre, 1),
               qPrintable(QStringLiteral("at %1,%2 scroll %3,%4")
                              .arg(fixture.on_screen(logical).x())
                              .arg(fixture.on_screen(logical).y())
                              .arg(fixture.scroll().x())
                              .arg(fixture.scroll().y())));
  }

  void release_applies_the_last_height()
  {
    ZOOM_FIXTURE fixture;
    QVERIFY(fixture.show());
    QVERIFY(zoom_mode(fixture));
    // Down first, then back up past the press: only where it ends counts.
    const SEEN seen = zoom_drag(fixture, Qt::RightButton, Qt::NoModifier,
                                {QPoint(0, 80), QPoint(0, 200), QPoint(5, -50)}, Qt::RightButton);
    QCOMPARE(seen.label, QStringLiteral("110%"));
    QVERIFY(same_cursor(seen.cursor, orq_get_cursor(ORQ_ZOOM_IN_CURSOR)));
    QVERIFY(same_zoom(fixture.view->get_zoom(), 1.1f));
  }

  void press_without_a_right_drag_is_a_click_data()
  {
    QTest::addColumn<int>("button");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QVector<QPoint>>("moves");
    QTest::addColumn<int>("move_buttons");
    QTest::addColumn<float>("zoom");
    const int right = Qt::RightButton;
    const int left = Qt::LeftButton;
    const int ctrl = Qt::ControlModifier;
    const QVector<QPoint> up{QPoint(0, -50), QPoint(0, -100)};
    QTest::newRow("right click zooms out") << right << 0 << QVector<QPoint>() << right << 0.8f;
    QTest::newRow("Shift right click zooms in")
        << right << int(Qt::ShiftModifier) << QVector<QPoint>() << right << 1.25f;
    QTest::newRow("Ctrl-left click zooms in") << left << ctrl << QVector<QPoint>() << left << 1.25f;
    QTest::newRow("left moves after a Ctrl-left press never drag") << left << ctrl << up << left << 1.25f;
    QTest::newRow("moves with both buttons do not drag") << right << 0 << up << (left | right) << 0.8f;
  }

  void press_without_a_right_drag_is_a_click()
  {
    QFETCH(int, button);
    QFETCH(int, modifiers);
    QFETCH(QVector<QPoint>, moves);
    QFETCH(int, move_buttons);
    QFETCH(float, zoom);
    ZOOM_FIXTURE fixture;
    QVERIFY(fixture.show());
    QVERIFY(zoom_mode(fixture));
    const QPoint logical = fixture.logical_at(k_press);
    QSignalSpy zoomed(fixture.area, &ORQ_ZOOM_SCROLL_AREA::zoom_level_changed);
    const SEEN seen = zoom_drag(fixture, Qt::MouseButton(button), Qt::KeyboardModifiers(modifiers), moves,
                                Qt::MouseButtons(move_buttons));
    // The drag waited for the release and never showed.
    QVERIFY(seen.loop);
    QVERIFY(!seen.active);
    QVERIFY(!seen.overlay_visible);
    QVERIFY(!seen.label_visible);
    QVERIFY(!ORQ_ZOOM_DRAG_WIDGET::is_zoom_drag_activate());
    QVERIFY(!fixture.view->findChild<ORQ_ZOOM_DRAG_WIDGET*>());
    // Then the scroll area took the press as a click, about the press.
    QCOMPARE(zoomed.count(), 1);
    QVERIFY2(same_zoom(fixture.view->get_zoom(), zoom),
             qPrintable(QString::number(fixture.view->get_zoom())));
    settle();
    QVERIFY(near(fixture.on_screen(logical), k_press, 1));
  }

  void no_drag_outside_zoom_drag_mode()
  {
    ZOOM_FIXTURE fixture;
    QVERIFY(fixture.show());
    fixture.area->set_zoom_drag_mode(false);
    QVERIFY(zoom_mode(fixture));
    // A right press now starts the rubber band; the release ends it.
    const SEEN seen = zoom_drag(fixture, Qt::RightButton, Qt::NoModifier, {}, Qt::RightButton);
    QVERIFY(!seen.loop);
    QVERIFY(same_zoom(fixture.view->get_zoom(), 0.8f));
  }

  void no_drag_outside_zoom_mode()
  {
    ZOOM_FIXTURE fixture;
    QVERIFY(fixture.show());
    QSignalSpy zoomed(fixture.area, &ORQ_ZOOM_SCROLL_AREA::zoom_level_changed);
    const SEEN seen = zoom_drag(fixture, Qt::RightButton, Qt::NoModifier, {QPoint(0, -100)}, Qt::RightButton);
    QVERIFY(!seen.loop);
    settle();
    QCOMPARE(zoomed.count(), 0);
    QCOMPARE(fixture.view->get_zoom(), 1.0f);
  }

  void null_arguments_are_internal_errors_data()
  {
    QTest::addColumn<DRAG_CALL>("call");
    QTest::addColumn<QString>("condition");
    QTest::newRow("no view") << DRAG_CALL([](ORQ_ZOOM_SCROLL_AREA* a, ORQ_VIEW*) {
      ORQ_ZOOM_DRAG_WIDGET::start_zoom_drag(a, nullptr, QPoint());
    }) << "source_view != NULL";
    QTest::newRow("no scroll area") << DRAG_CALL([](ORQ_ZOOM_SCROLL_AREA*, ORQ_VIEW* v) {
      ORQ_ZOOM_DRAG_WIDGET::start_zoom_drag(nullptr, v, QPoint());
    }) << "scroll_area != NULL";
    QTest::newRow("overlay without a view") << DRAG_CALL([](ORQ_ZOOM_SCROLL_AREA* a, ORQ_VIEW*) {
      ORQ_ZOOM_DRAG_WIDGET overlay(a, nullptr, QPoint());
    }) << "source_view != NULL";
    QTest::newRow("overlay without a scroll area") << DRAG_CALL([](ORQ_ZOOM_SCROLL_AREA*, ORQ_VIEW* v) {
      ORQ_ZOOM_DRAG_WIDGET overlay(nullptr, v, QPoint());
    }) << "scroll_area != NULL";
  }

  void null_arguments_are_internal_errors()
  {
    QFETCH(DRAG_CALL, call);
    QFETCH(QString, condition);
    ORQ_ZOOM_SCROLL_AREA area;
    auto* view = new TEST_VIEW;
    area.set_view(view, false);
    QCOMPARE(orq_test_internal_error([&] { call(&area, view); }), condition);
    QVERIFY(!view->findChild<ORQ_ZOOM_DRAG_WIDGET*>());
  }
};

ORQ_TEST_REGISTER(TST_ZOOM_DRAG);
#include "tst_zoom_drag.moc"
