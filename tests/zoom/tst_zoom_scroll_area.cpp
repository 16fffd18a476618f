#include "tst_zoom_fixture.h"

#include <functional>

namespace {
using AREA_CALL = std::function<void(ORQ_ZOOM_SCROLL_AREA&)>;

QList<QAction*> direct_actions(const QObject* parent)
{
  return parent->findChildren<QAction*>(QString(), Qt::FindDirectChildrenOnly);
}

// A zoom's anchor, in the viewport's pixels: well away from the viewport's
// centre, so that zooming about the wrong point shows.
const QPoint k_anchor(130, 90);
} // namespace

Q_DECLARE_METATYPE(AREA_CALL)

class TST_ZOOM_SCROLL_AREA : public QObject {
  Q_OBJECT
private slots:
  void nine_actions_in_creation_order()
  {
    ORQ_ZOOM_SCROLL_AREA area;
    const QList<QAction*> expected{
        area.get_zoom_tool_action(),      area.get_pan_tool_action(), area.get_magnifying_action(),
        area.get_birds_eye_view_action(), area.get_zoom_fit_action(), area.get_zoom_selection_action(),
        area.get_zoom_in_action(),        area.get_zoom_out_action(), area.get_set_zoom_action()};
    QCOMPARE(direct_actions(&area), expected);
    const ORQ_ACTION_ENUM ids[] = {ORQ_ZOOM_TOOL_ACTION,      ORQ_PAN_TOOL_ACTION, ORQ_MAGNIFYING_TOOL_ACTION,
                                   ORQ_BIRDS_EYE_VIEW_ACTION, ORQ_ZOOM_FIT_ACTION, ORQ_ZOOM_SELECTION_ACTION,
                                   ORQ_ZOOM_IN_ACTION,        ORQ_ZOOM_OUT_ACTION, ORQ_ZOOM_ACTION};
    for (int i = 0; i < expected.size(); ++i)
      QCOMPARE(expected[i]->objectName(), orq_get_action_enum_string(ids[i]));
    QCOMPARE(area.get_zoom_tool_action()->isCheckable(), true);
    QCOMPARE(area.get_zoom_in_action()->isCheckable(), false);
  }

  void mode_actions_go_on_a_tool_bar()
  {
    ORQ_ZOOM_SCROLL_AREA area;
    ORQ_TOOL_BAR bar;
    area.add_mode_actions(&bar);
    QCOMPARE(bar.actions(), (QList<QAction*>{area.get_zoom_tool_action(), area.get_magnifying_action(),
                                             area.get_pan_tool_action()}));
    area.remove_mode_actions(&bar);
    QVERIFY(bar.actions().isEmpty());
  }

  void extras_follow_set_view_data()
  {
    QTest::addColumn<bool>("extras");
    QTest::newRow("with magnifier and overview") << true;
    QTest::newRow("without") << false;
  }

  void extras_follow_set_view()
  {
    QFETCH(bool, extras);
    ZOOM_FIXTURE fixture(extras);
    ORQ_ZOOM_SCROLL_AREA* area = fixture.area;
    QCOMPARE(area->get_magnifying_action()->isVisible(), extras);
    QCOMPARE(area->get_birds_eye_view_action()->isVisible(), extras);
    QCOMPARE(area->get_birds_eye_view() != nullptr, extras);
    QVERIFY(area->get_zoom_fit_action()->isVisible());
    QCOMPARE(area->get_view(), fixture.view);
    area->show_actions(false);
    for (QAction* action : direct_actions(area))
      QVERIFY(!action->isVisible());
    area->show_actions(true);
    QCOMPARE(area->get_magnifying_action()->isVisible(), extras);
    QVERIFY(area->get_pan_tool_action()->isVisible());
  }

  void broken_preconditions_are_internal_errors_data()
  {
    QTest::addColumn<bool>("with_view");
    QTest::addColumn<AREA_CALL>("call");
    QTest::addColumn<QString>("condition");
    QTest::newRow("no view to set") << false
                                    << AREA_CALL([](ORQ_ZOOM_SCROLL_AREA& a) { a.set_view(nullptr, false); })
                                    << "view != NULL";
    QTest::newRow("no tool bar") << false
                                 << AREA_CALL([](ORQ_ZOOM_SCROLL_AREA& a) { a.add_mode_actions(nullptr); })
                                 << "bar != NULL";
    QTest::newRow("no tool bar to leave")
        << false << AREA_CALL([](ORQ_ZOOM_SCROLL_AREA& a) { a.remove_mode_actions(nullptr); })
        << "bar != NULL";
    QTest::newRow("fit without a view")
        << false << AREA_CALL([](ORQ_ZOOM_SCROLL_AREA& a) { a.zoom_fit(); }) << "m_view != NULL";
    QTest::newRow("zoom without a view")
        << false << AREA_CALL([](ORQ_ZOOM_SCROLL_AREA& a) { a.zoom_in(); }) << "m_view != NULL";
    QTest::newRow("zoom selection without a view")
        << false << AREA_CALL([](ORQ_ZOOM_SCROLL_AREA& a) { a.zoom_selected(); }) << "m_view != NULL";
    QTest::newRow("rectangle without a view")
        << false << AREA_CALL([](ORQ_ZOOM_SCROLL_AREA& a) { a.zoom_rect(QRect(0, 0, 9, 9)); })
        << "m_view != NULL";
    QTest::newRow("delta 0") << true << AREA_CALL([](ORQ_ZOOM_SCROLL_AREA& a) {
      QPoint p(10, 10);
      a.zoom_in(&p, 0.0f);
    }) << "delta != 0";
    QTest::newRow("null rectangle") << true
                                    << AREA_CALL([](ORQ_ZOOM_SCROLL_AREA& a) { a.zoom_rect(QRect()); })
                                    << "rect.isNull() == false";
    QTest::newRow("zero-wide rectangle")
        << true << AREA_CALL([](ORQ_ZOOM_SCROLL_AREA& a) { a.zoom_rect(QRect(5, 5, 0, 10)); })
        << "rect.isEmpty() == false";
    QTest::newRow("zero-high rectangle out")
        << true << AREA_CALL([](ORQ_ZOOM_SCROLL_AREA& a) { a.zoom_out_rect(QRect(5, 5, 10, 0)); })
        << "rect.isEmpty() == false";
    QTest::newRow("null logical rectangle")
        << true << AREA_CALL([](ORQ_ZOOM_SCROLL_AREA& a) { a.zoom_on_logical_rect(QRect()); })
        << "rect.isNull() == false";
    QTest::newRow("null rectangle to scroll to")
        << true << AREA_CALL([](ORQ_ZOOM_SCROLL_AREA& a) { a.scroll_to_logical_rect(QRect()); })
        << "rect.isNull() == false";
    QTest::newRow("no room to zoom into") << true << AREA_CALL([](ORQ_ZOOM_SCROLL_AREA& a) {
      a.resize(1, 1);
      a.zoom_on_logical_rect(QRect(0, 0, 10, 10));
    }) << "max_size.width() > 0 && max_size.height() > 0";
    QTest::newRow("no room to scroll") << true << AREA_CALL([](ORQ_ZOOM_SCROLL_AREA& a) {
      a.resize(1, 1);
      a.scroll_to_logical_rect(QRect(0, 0, 10, 10));
    }) << "max_size.width() > 0 && max_size.height() > 0";
  }

  void broken_preconditions_are_internal_errors()
  {
    QFETCH(bool, with_view);
    QFETCH(AREA_CALL, call);
    QFETCH(QString, condition);
    ORQ_ZOOM_SCROLL_AREA area;
    area.resize(500, 400);
    if (with_view)
      area.set_view(new TEST_VIEW, false);
    QCOMPARE(orq_test_internal_error([&] { call(area); }), condition);
  }

  void inverted_rectangle_changes_nothing_data()
  {
    QTest::addColumn<AREA_CALL>("call");
    const QRect inverted(QPoint(300, 300), QPoint(100, 100));
    QTest::newRow("zoom_rect") << AREA_CALL([=](ORQ_ZOOM_SCROLL_AREA& a) { a.zoom_rect(inverted); });
    QTest::newRow("zoom_out_rect") << AREA_CALL([=](ORQ_ZOOM_SCROLL_AREA& a) { a.zoom_out_rect(inverted); });
    QTest::newRow("zoom_on_logical_rect")
        << AREA_CALL([=](ORQ_ZOOM_SCROLL_AREA& a) { a.zoom_on_logical_rect(inverted); });
    QTest::newRow("scroll_to_logical_rect")
        << AREA_CALL([=](ORQ_ZOOM_SCROLL_AREA& a) { a.scroll_to_logical_rect(inverted); });
    QTest::newRow("inverted in height only")
        << AREA_CALL([=](ORQ_ZOOM_SCROLL_AREA& a) { a.zoom_rect(QRect(10, 300, 200, -100)); });
  }

  void inverted_rectangle_changes_nothing()
  {
    QFETCH(AREA_CALL, call);
    ZOOM_FIXTURE fixture;
    QVERIFY(fixture.show());
    QSignalSpy zoomed(fixture.area, &ORQ_ZOOM_SCROLL_AREA::zoom_level_changed);
    call(*fixture.area);
    settle();
    QCOMPARE(fixture.view->get_zoom(), 1.0f);
    QCOMPARE(fixture.scroll(), QPoint(600, 500));
    QCOMPARE(zoomed.count(), 0);
  }

  void zoom_about_a_point_data()
  {
    QTest::addColumn<bool>("out");
    QTest::addColumn<float>("delta");
    QTest::addColumn<float>("factor");
    QTest::newRow("in by 1.25") << false << 1.25f << 1.25f;
    QTest::newRow("in by 3") << false << 3.0f << 3.0f;
    QTest::newRow("in by less than 1 zooms out") << false << 0.5f << 0.5f;
    QTest::newRow("out by 1.25") << true << 1.25f << 0.8f;
    QTest::newRow("out by 1 keeps the zoom") << true << 1.0f << 1.0f;
  }

  void zoom_about_a_point()
  {
    QFETCH(bool, out);
    QFETCH(float, delta);
    QFETCH(float, factor);
    ZOOM_FIXTURE fixture;
    QVERIFY(fixture.show());
    QSignalSpy zoomed(fixture.area, &ORQ_ZOOM_SCROLL_AREA::zoom_level_changed);
    const QPoint logical = fixture.logical_at(k_anchor);
    QPoint point = fixture.view->mapFrom(fixture.viewport(), k_anchor);
    if (out)
      fixture.area->zoom_out(&point, delta);
    else
      fixture.area->zoom_in(&point, delta);
    settle();
    QVERIFY(same_zoom(fixture.view->get_zoom(), factor));
    QCOMPARE(zoomed.count(), 1);
    QCOMPARE(zoomed.first().first().toFloat(), fixture.view->get_zoom());
    QVERIFY2(near(fixture.on_screen(logical), k_anchor, 1),
             qPrintable(QStringLiteral("at %1,%2")
                            .arg(fixture.on_screen(logical).x())
                            .arg(fixture.on_screen(logical).y())));
  }

  void zoom_in_at_the_maximum_keeps_everything()
  {
    ZOOM_FIXTURE fixture;
    fixture.view->set_zoom_min_max(0.001f, 2.0f);
    fixture.view->set_zoom(2.0f);
    QVERIFY(fixture.show());
    const QPoint before = fixture.scroll();
    const QPoint logical = fixture.logical_at(k_anchor);
    QSignalSpy zoomed(fixture.area, &ORQ_ZOOM_SCROLL_AREA::zoom_level_changed);
    QPoint point = fixture.view->mapFrom(fixture.viewport(), k_anchor);
    fixture.area->zoom_in(&point, 2.0f);
    settle();
    QCOMPARE(fixture.view->get_zoom(), 2.0f);
    QCOMPARE(fixture.scroll(), before);
    QCOMPARE(fixture.on_screen(logical), k_anchor);
    QCOMPARE(zoomed.count(), 1);
  }

  void zoom_fit_fills_the_viewport()
  {
    ZOOM_FIXTURE fixture;
    QVERIFY(fixture.show());
    QSignalSpy zoomed(fixture.area, &ORQ_ZOOM_SCROLL_AREA::zoom_level_changed);
    fixture.area->get_zoom_fit_action()->trigger();
    const QSize size = fixture.area->maximumViewportSize();
    const float expected = qMin(float(size.width() - 1) / 2000.0f, float(size.height() - 1) / 1500.0f);
    QVERIFY(same_zoom(fixture.view->get_zoom(), expected));
    QCOMPARE(zoomed.count(), 1);
    settle();
    // Everything shows: no scrolling is left.
    QCOMPARE(fixture.area->horizontalScrollBar()->maximum(), 0);
    QCOMPARE(fixture.area->verticalScrollBar()->maximum(), 0);
  }

  void zoom_selected_fills_the_viewport()
  {
    ZOOM_FIXTURE fixture;
    QVERIFY(fixture.show());
    const QRect selected(800, 600, 200, 100);
    fixture.view->selected = selected;
    QSignalSpy zoomed(fixture.area, &ORQ_ZOOM_SCROLL_AREA::zoom_level_changed);
    fixture.area->get_zoom_selection_action()->trigger();
    settle();
    const QSize size = fixture.area->maximumViewportSize();
    const float expected = qMin(float(size.width() + 1) / 200.0f, float(size.height() + 1) / 100.0f);
    QVERIFY2(same_zoom(fixture.view->get_zoom(), expected),
             qPrintable(QString::number(fixture.view->get_zoom())));
    QCOMPARE(zoomed.count(), 1);
    // The selection's outer edges, on the screen.
    const QPoint top_left = fixture.on_screen(selected.topLeft());
    const QPoint bottom_right = fixture.on_screen(selected.topLeft() + QPoint(200, 100));
    const QPoint centre = (top_left + bottom_right) / 2;
    QVERIFY2(near(centre, fixture.viewport()->rect().center(), 2),
             qPrintable(QStringLiteral("centre %1,%2").arg(centre.x()).arg(centre.y())));
    QVERIFY(qAbs(bottom_right.x() - top_left.x() - (size.width() + 1)) <= 1);
  }

  void zoom_selected_without_a_selection_does_nothing()
  {
    ZOOM_FIXTURE fixture;
    QVERIFY(fixture.show());
    QSignalSpy zoomed(fixture.area, &ORQ_ZOOM_SCROLL_AREA::zoom_level_changed);
    fixture.area->zoom_selected();
    fixture.view->selected = QRect(QPoint(900, 700), QPoint(800, 600));
    fixture.area->zoom_selected();
    settle();
    QCOMPARE(fixture.view->get_zoom(), 1.0f);
    QCOMPARE(fixture.scroll(), QPoint(600, 500));
    QCOMPARE(zoomed.count(), 0);
  }

  void wheel_with_ctrl_zooms_about_the_wheel_data()
  {
    QTest::addColumn<int>("delta");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<float>("factor");
    QTest::newRow("up") << 120 << int(Qt::ControlModifier) << 1.25f;
    QTest::newRow("down") << -120 << int(Qt::ControlModifier) << 0.8f;
    QTest::newRow("no turn zooms out") << 0 << int(Qt::ControlModifier) << 0.8f;
    QTest::newRow("fine up with Alt") << 120 << int(Qt::ControlModifier | Qt::AltModifier) << 1.01f;
    QTest::newRow("fine down with Alt") << -120 << int(Qt::ControlModifier | Qt::AltModifier) << 1.0f / 1.01f;
  }

  void wheel_with_ctrl_zooms_about_the_wheel()
  {
    QFETCH(int, delta);
    QFETCH(int, modifiers);
    QFETCH(float, factor);
    ZOOM_FIXTURE fixture;
    QVERIFY(fixture.show());
    QSignalSpy zoomed(fixture.area, &ORQ_ZOOM_SCROLL_AREA::zoom_level_changed);
    const QPoint logical = fixture.logical_at(k_anchor);
    send_wheel(fixture.viewport(), k_anchor, delta, Qt::KeyboardModifiers(modifiers));
    settle();
    QVERIFY2(same_zoom(fixture.view->get_zoom(), factor),
             qPrintable(QString::number(fixture.view->get_zoom())));
    QCOMPARE(zoomed.count(), 1);
    QVERIFY(near(fixture.on_screen(logical), k_anchor, 1));
  }

  // The actions have no point of their own: the cursor's, when it is over
  // the view, else the viewport's centre. The scroll bars can follow here,
  // so the cursor stays where it was.
  void zoom_actions_go_about_the_cursor_over_the_view_data()
  {
    QTest::addColumn<bool>("over_view");
    QTest::addColumn<bool>("out");
    QTest::newRow("in, about the cursor") << true << false;
    QTest::newRow("out, about the cursor") << true << true;
    QTest::newRow("in, about the centre") << false << false;
    QTest::newRow("out, about the centre") << false << true;
  }

  void zoom_actions_go_about_the_cursor_over_the_view()
  {
    QFETCH(bool, over_view);
    QFETCH(bool, out);
    ZOOM_FIXTURE fixture;
    QVERIFY(fixture.show());
    const QPoint anchor = over_view ? k_anchor : fixture.viewport()->rect().center();
    const QPoint global = fixture.viewport()->mapToGlobal(k_anchor);
    if (over_view) {
      QCursor::setPos(global);
      settle();
      if (QCursor::pos() != global)
        QSKIP("this platform does not move the cursor");
    }
    const QPoint logical = fixture.logical_at(anchor);
    (out ? fixture.area->get_zoom_out_action() : fixture.area->get_zoom_in_action())->trigger();
    settle();
    QVERIFY(same_zoom(fixture.view->get_zoom(), out ? 0.8f : 1.25f));
    QVERIFY(near(fixture.on_screen(logical), anchor, 1));
    if (over_view)
      QVERIFY(near(QCursor::pos(), global, 1));
  }

  void cursor_is_put_back_where_the_scroll_bars_stop()
  {
    ZOOM_FIXTURE fixture;
    QVERIFY(fixture.show());
    fixture.scroll_to(0, 0);
    // Near the top-left corner the scroll bars cannot go below 0 when
    // zooming out, so the point under the wheel moves and the cursor with it.
    const QPoint at(40, 30);
    const QPoint global = fixture.viewport()->mapToGlobal(at);
    QCursor::setPos(global);
    settle();
    if (QCursor::pos() != global)
      QSKIP("this platform does not move the cursor");
    const QPoint logical = fixture.logical_at(at);
    send_wheel(fixture.viewport(), at, -120, Qt::ControlModifier);
    settle();
    QCOMPARE(fixture.scroll(), QPoint(0, 0));
    const QPoint moved_to = fixture.on_screen(logical);
    QVERIFY(!near(moved_to, at, 3));
    QVERIFY(near(QCursor::pos(), fixture.viewport()->mapToGlobal(moved_to), 1));
  }

  void wheel_scrolls_data()
  {
    QTest::addColumn<int>("delta");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QPoint>("moved");
    // A single step of 100 pixels; a notch is 120.
    QTest::newRow("notch down") << -120 << int(Qt::NoModifier) << QPoint(0, 300);
    QTest::newRow("notch up") << 120 << int(Qt::NoModifier) << QPoint(0, -300);
    QTest::newRow("Shift scrolls across") << -120 << int(Qt::ShiftModifier) << QPoint(300, 0);
    QTest::newRow("Alt, 25 times finer") << -120 << int(Qt::AltModifier) << QPoint(0, 12);
    QTest::newRow("Alt, a small turn truncates to nothing") << -5 << int(Qt::AltModifier) << QPoint(0, 0);
    QTest::newRow("half a notch") << 60 << int(Qt::NoModifier) << QPoint(0, -150);
  }

  void wheel_scrolls()
  {
    QFETCH(int, delta);
    QFETCH(int, modifiers);
    QFETCH(QPoint, moved);
    ZOOM_FIXTURE fixture;
    QVERIFY(fixture.show());
    fixture.area->horizontalScrollBar()->setSingleStep(100);
    fixture.area->verticalScrollBar()->setSingleStep(100);
    send_wheel(fixture.viewport(), QPoint(100, 100), delta, Qt::KeyboardModifiers(modifiers));
    settle();
    QCOMPARE(fixture.scroll(), QPoint(600, 500) + moved);
    QCOMPARE(fixture.view->get_zoom(), 1.0f);
  }

  void keys_scroll_on_release_data()
  {
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QPoint>("steps");
    QTest::addColumn<QPoint>("pages");
    QTest::newRow("Left") << int(Qt::Key_Left) << 0 << QPoint(-3, 0) << QPoint();
    QTest::newRow("Right") << int(Qt::Key_Right) << 0 << QPoint(3, 0) << QPoint();
    QTest::newRow("Up") << int(Qt::Key_Up) << 0 << QPoint(0, -3) << QPoint();
    QTest::newRow("Down") << int(Qt::Key_Down) << 0 << QPoint(0, 3) << QPoint();
    QTest::newRow("PageUp") << int(Qt::Key_PageUp) << 0 << QPoint() << QPoint(0, -1);
    QTest::newRow("PageDown") << int(Qt::Key_PageDown) << 0 << QPoint() << QPoint(0, 1);
    QTest::newRow("Shift+PageDown goes across")
        << int(Qt::Key_PageDown) << int(Qt::ShiftModifier) << QPoint() << QPoint(1, 0);
    QTest::newRow("Shift+PageUp goes across")
        << int(Qt::Key_PageUp) << int(Qt::ShiftModifier) << QPoint() << QPoint(-1, 0);
    QTest::newRow("other keys do nothing") << int(Qt::Key_A) << 0 << QPoint() << QPoint();
  }

  void keys_scroll_on_release()
  {
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(QPoint, steps);
    QFETCH(QPoint, pages);
    ZOOM_FIXTURE fixture;
    QVERIFY(fixture.show());
    QScrollBar* h = fixture.area->horizontalScrollBar();
    QScrollBar* v = fixture.area->verticalScrollBar();
    h->setSingleStep(7);
    v->setSingleStep(11);
    const QPoint expected(600 + steps.x() * 7 + pages.x() * h->pageStep(),
                          500 + steps.y() * 11 + pages.y() * v->pageStep());
    send_key(fixture.view, QEvent::KeyPress, key, Qt::KeyboardModifiers(modifiers));
    settle();
    QCOMPARE(fixture.scroll(), QPoint(600, 500));
    send_key(fixture.view, QEvent::KeyRelease, key, Qt::KeyboardModifiers(modifiers));
    settle();
    QCOMPARE(fixture.scroll(), expected);
  }

  void mode_sets_the_cursor_data()
  {
    QTest::addColumn<int>("mode");
    QTest::addColumn<QCursor>("cursor");
    QTest::newRow("zoom") << 0 << orq_get_cursor(ORQ_ZOOM_IN_CURSOR);
    QTest::newRow("pan") << 1 << QCursor(Qt::OpenHandCursor);
    QTest::newRow("magnifying") << 2 << orq_get_cursor(ORQ_MAGNIFYING_CURSOR);
  }

  void mode_sets_the_cursor()
  {
    QFETCH(int, mode);
    QFETCH(QCursor, cursor);
    // The three cursors differ, or this test could not tell them apart.
    QVERIFY(!same_cursor(orq_get_cursor(ORQ_ZOOM_IN_CURSOR), orq_get_cursor(ORQ_ZOOM_OUT_CURSOR)));
    QVERIFY(!same_cursor(orq_get_cursor(ORQ_ZOOM_IN_CURSOR), orq_get_cursor(ORQ_MAGNIFYING_CURSOR)));
    ZOOM_FIXTURE fixture(true);
    QVERIFY(fixture.show());
    QAction* actions[] = {fixture.area->get_zoom_tool_action(), fixture.area->get_pan_tool_action(),
                          fixture.area->get_magnifying_action()};
    actions[mode]->trigger();
    QVERIFY(actions[mode]->isChecked());
    QVERIFY(same_cursor(fixture.view->cursor(), cursor));
  }

  void shift_flips_the_zoom_cursor()
  {
    ZOOM_FIXTURE fixture;
    QVERIFY(fixture.show());
    fixture.area->get_zoom_tool_action()->trigger();
    send_key(fixture.view, QEvent::KeyPress, Qt::Key_Shift, Qt::ShiftModifier);
    QVERIFY(same_cursor(fixture.view->cursor(), orq_get_cursor(ORQ_ZOOM_OUT_CURSOR)));
    send_key(fixture.view, QEvent::KeyRelease, Qt::Key_Shift);
    QVERIFY(same_cursor(fixture.view->cursor(), orq_get_cursor(ORQ_ZOOM_IN_CURSOR)));
  }

  void zoom_mode_clicks_data()
  {
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("button");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<float>("factor");
    const int dbl = QEvent::MouseButtonDblClick;
    const int press = QEvent::MouseButtonPress;
    QTest::newRow("double click zooms in") << dbl << int(Qt::LeftButton) << 0 << 1.25f;
    QTest::newRow("Shift double click zooms out")
        << dbl << int(Qt::LeftButton) << int(Qt::ShiftModifier) << 0.8f;
    QTest::newRow("right double click zooms out") << dbl << int(Qt::RightButton) << 0 << 0.8f;
    QTest::newRow("Shift right double click zooms in")
        << dbl << int(Qt::RightButton) << int(Qt::ShiftModifier) << 1.25f;
    QTest::newRow("right click zooms out") << press << int(Qt::RightButton) << 0 << 0.8f;
    QTest::newRow("Shift right click zooms in")
        << press << int(Qt::RightButton) << int(Qt::ShiftModifier) << 1.25f;
  }

  void zoom_mode_clicks()
  {
    QFETCH(int, type);
    QFETCH(int, button);
    QFETCH(int, modifiers);
    QFETCH(float, factor);
    ZOOM_FIXTURE fixture;
    QVERIFY(fixture.show());
    fixture.area->get_zoom_tool_action()->trigger();
    settle();
    const QPoint logical = fixture.logical_at(k_anchor);
    const QPoint at = fixture.view->mapFrom(fixture.viewport(), k_anchor);
    const auto b = Qt::MouseButton(button);
    const auto m = Qt::KeyboardModifiers(modifiers);
    // A right press in zoom mode waits in the zoom drag's loop for its
    // release: queue the release before the press.
    TEST_VIEW* view = fixture.view;
    QTimer::singleShot(0, view,
                       [=] { send_mouse(view, QEvent::MouseButtonRelease, at, b, Qt::NoButton, m); });
    send_mouse(view, QEvent::Type(type), at, b, b, m);
    settle();
    QVERIFY2(same_zoom(fixture.view->get_zoom(), factor),
             qPrintable(QString::number(fixture.view->get_zoom())));
    QVERIFY(near(fixture.on_screen(logical), k_anchor, 1));
  }

  void right_drag_without_zoom_drag_data()
  {
    QTest::addColumn<QPoint>("offset");
    QTest::addColumn<bool>("rectangle");
    QTest::newRow("more than 10 across zooms out into it") << QPoint(200, 5) << true;
    QTest::newRow("more than 10 down zooms out into it") << QPoint(-3, 150) << true;
    QTest::newRow("up and left") << QPoint(-100, -60) << true;
    QTest::newRow("10 across is 11 pixels wide") << QPoint(10, 0) << true;
    QTest::newRow("9 each way is a click") << QPoint(9, 9) << false;
  }

  void right_drag_without_zoom_drag()
  {
    QFETCH(QPoint, offset);
    QFETCH(bool, rectangle);
    ZOOM_FIXTURE fixture;
    QVERIFY(fixture.show());
    fixture.area->set_zoom_drag_mode(false);
    fixture.area->get_zoom_tool_action()->trigger();
    settle();
    TEST_VIEW* view = fixture.view;
    const QPoint press = view->mapFrom(fixture.viewport(), QPoint(150, 120));
    const QRect dragged = corners(press, press + offset);
    const QRect logical = view->get_logical(dragged);
    const QPoint anchor_logical = view->get_logical(press);
    QTimer::singleShot(0, view, [=] {
      send_mouse(view, QEvent::MouseMove, press + offset / 2, Qt::NoButton, Qt::RightButton);
      send_mouse(view, QEvent::MouseMove, press + offset, Qt::NoButton, Qt::RightButton);
      send_mouse(view, QEvent::MouseButtonRelease, press + offset, Qt::RightButton, Qt::NoButton);
    });
    send_mouse(view, QEvent::MouseButtonPress, press, Qt::RightButton, Qt::RightButton);
    if (rectangle) {
      const QSize size = fixture.area->maximumViewportSize();
      const float expected = qMax(float(logical.height() + 1) / float(size.height()),
                                  float(logical.width() + 1) / float(size.width()));
      QVERIFY2(same_zoom(view->get_zoom(), expected), qPrintable(QString::number(view->get_zoom())));
      QCOMPARE(fixture.scroll(), view->get_physical(logical).topLeft());
    } else {
      settle();
      QVERIFY(same_zoom(view->get_zoom(), 0.8f));
      QVERIFY(near(fixture.on_screen(anchor_logical), QPoint(150, 120), 1));
    }
  }

  void pan_follows_the_mouse_data()
  {
    QTest::addColumn<QPoint>("move");
    QTest::newRow("right and down") << QPoint(30, 20);
    QTest::newRow("left") << QPoint(-40, 0);
    QTest::newRow("up") << QPoint(0, -25);
  }

  void pan_follows_the_mouse()
  {
    QFETCH(QPoint, move);
    ZOOM_FIXTURE fixture;
    QVERIFY(fixture.show());
    fixture.area->get_pan_tool_action()->trigger();
    QCOMPARE(fixture.view->cursor().shape(), Qt::OpenHandCursor);
    TEST_VIEW* view = fixture.view;
    QWidget* viewport = fixture.viewport();
    const QPoint start(200, 150);
    send_mouse(view, QEvent::MouseButtonPress, view->mapFrom(viewport, start), Qt::LeftButton,
               Qt::LeftButton);
    QCOMPARE(view->cursor().shape(), Qt::ClosedHandCursor);
    // The view moves under the mouse: its own coordinates of the same screen
    // point change, the screen point is what counts.
    send_mouse(view, QEvent::MouseMove, view->mapFrom(viewport, start + move / 2), Qt::NoButton,
               Qt::LeftButton);
    send_mouse(view, QEvent::MouseMove, view->mapFrom(viewport, start + move), Qt::NoButton, Qt::LeftButton);
    QCOMPARE(fixture.scroll(), QPoint(600, 500) - move);
    send_mouse(view, QEvent::MouseButtonRelease, view->mapFrom(viewport, start + move), Qt::LeftButton,
               Qt::NoButton);
    QCOMPARE(view->cursor().shape(), Qt::OpenHandCursor);
    send_mouse(view, QEvent::MouseMove, view->mapFrom(viewport, start), Qt::NoButton, Qt::NoButton);
    settle();
    QCOMPARE(fixture.scroll(), QPoint(600, 500) - move);
  }

  void shift_ctrl_press_pans_until_a_key_goes_up_data()
  {
    QTest::addColumn<int>("key");
    QTest::newRow("Ctrl released") << int(Qt::Key_Control);
    QTest::newRow("Shift released") << int(Qt::Key_Shift);
  }

  void shift_ctrl_press_pans_until_a_key_goes_up()
  {
    QFETCH(int, key);
    ZOOM_FIXTURE fixture;
    QVERIFY(fixture.show());
    QSignalSpy off(fixture.area, &ORQ_ZOOM_SCROLL_AREA::pan_mode_off);
    TEST_VIEW* view = fixture.view;
    const Qt::KeyboardModifiers both = Qt::ShiftModifier | Qt::ControlModifier;
    send_mouse(view, QEvent::MouseButtonPress, view->mapFrom(fixture.viewport(), QPoint(200, 150)),
               Qt::LeftButton, Qt::LeftButton, both);
    QVERIFY(fixture.area->get_pan_tool_action()->isChecked());
    QCOMPARE(view->cursor().shape(), Qt::ClosedHandCursor);
    send_mouse(view, QEvent::MouseMove, view->mapFrom(fixture.viewport(), QPoint(190, 140)), Qt::NoButton,
               Qt::LeftButton, both);
    QCOMPARE(fixture.scroll(), QPoint(610, 510));
    send_mouse(view, QEvent::MouseButtonRelease, view->mapFrom(fixture.viewport(), QPoint(190, 140)),
               Qt::LeftButton, Qt::NoButton, both);
    QCOMPARE(off.count(), 0);
    send_key(view, QEvent::KeyRelease, key, both);
    QVERIFY(!fixture.area->get_pan_tool_action()->isChecked());
    QCOMPARE(off.count(), 1);
  }
};

ORQ_TEST_REGISTER(TST_ZOOM_SCROLL_AREA);
#include "tst_zoom_scroll_area.moc"
