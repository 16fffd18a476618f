#include "tst_zoom_fixture.h"

#include <QLabel>

#include <cmath>
#include <functional>
#include <limits>

namespace {
using VIEW_CALL = std::function<void(TEST_VIEW&)>;

const float k_nan = std::numeric_limits<float>::quiet_NaN();
} // namespace

Q_DECLARE_METATYPE(VIEW_CALL)

class TST_VIEW : public QObject {
  Q_OBJECT
private slots:
  void max_is_capped_by_the_largest_widget_data()
  {
    QTest::addColumn<QRect>("logical");
    QTest::addColumn<float>("requested");
    QTest::addColumn<float>("expected");
    const float largest = std::numeric_limits<float>::max();
    QTest::newRow("one unit, largest float") << QRect(0, 0, 1, 1) << largest << 16777215.0f;
    QTest::newRow("1,000,000 wide caps at 16") << QRect(0, 0, 1000000, 10) << largest << 16.0f;
    QTest::newRow("below the cap is kept") << QRect(0, 0, 1000000, 10) << 4.0f << 4.0f;
    QTest::newRow("width 0 is not a cap") << QRect(0, 0, 0, 1) << largest << 16777215.0f;
    QTest::newRow("width 0, the height caps") << QRect(0, 0, 0, 1000) << largest << 16777.0f;
    QTest::newRow("integer division") << QRect(0, 0, 3, 2) << largest << 5592405.0f;
    QTest::newRow("the smaller cap wins") << QRect(0, 0, 100, 1000) << largest << 16777.0f;
  }

  void max_is_capped_by_the_largest_widget()
  {
    QFETCH(QRect, logical);
    QFETCH(float, requested);
    QFETCH(float, expected);
    TEST_VIEW view;
    // Made with the largest float, which the one-unit drawing caps.
    QCOMPARE(view.get_max(), 16777215.0f);
    view.set_logical_size(logical);
    QCOMPARE(view.set_max(requested), expected);
    QCOMPARE(view.get_max(), expected);
    view.set_zoom(1e30f);
    QCOMPARE(view.get_zoom(), expected);
  }

  void zoom_fit_data()
  {
    QTest::addColumn<QRect>("logical");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<float>("expected");
    QTest::newRow("one pixel spare each way") << QRect(0, 0, 100, 50) << QSize(101, 51) << 1.0f;
    QTest::newRow("the height limits") << QRect(0, 0, 100, 50) << QSize(201, 51) << 1.0f;
    QTest::newRow("double") << QRect(-40, 7, 100, 50) << QSize(201, 101) << 2.0f;
    QTest::newRow("half, the width limits") << QRect(0, 0, 100, 50) << QSize(51, 1000) << 0.5f;
    QTest::newRow("clamped to the minimum") << QRect(0, 0, 100, 50) << QSize(1, 1) << 0.001f;
    QTest::newRow("clamped to the cap") << QRect(0, 0, 1000000, 10) << QSize(32000001, 1000) << 16.0f;
  }

  void zoom_fit()
  {
    QFETCH(QRect, logical);
    QFETCH(QSize, size);
    QFETCH(float, expected);
    TEST_VIEW view;
    view.set_logical_size(logical);
    view.zoom_fit(size);
    QVERIFY2(same_zoom(view.get_zoom(), expected), qPrintable(QString::number(view.get_zoom())));
  }

  void zoom_in_returns_the_ratio_applied_data()
  {
    QTest::addColumn<float>("start");
    QTest::addColumn<bool>("out");
    QTest::addColumn<float>("delta");
    QTest::addColumn<float>("ratio");
    QTest::addColumn<float>("expected");
    QTest::newRow("in, free") << 1.0f << false << 2.0f << 2.0f << 2.0f;
    QTest::newRow("in at the maximum") << 8.0f << false << 2.0f << 1.0f << 8.0f;
    QTest::newRow("in, stopped by the maximum") << 6.0f << false << 2.0f << 8.0f / 6.0f << 8.0f;
    QTest::newRow("out, free") << 1.0f << true << 2.0f << 2.0f << 0.5f;
    QTest::newRow("out at the minimum") << 0.5f << true << 2.0f << 1.0f << 0.5f;
    QTest::newRow("out, stopped by the minimum") << 0.75f << true << 2.0f << 1.5f << 0.5f;
  }

  void zoom_in_returns_the_ratio_applied()
  {
    QFETCH(float, start);
    QFETCH(bool, out);
    QFETCH(float, delta);
    QFETCH(float, ratio);
    QFETCH(float, expected);
    TEST_VIEW view;
    view.set_logical_size(QRect(0, 0, 100, 100));
    view.set_zoom_min_max(0.5f, 8.0f);
    view.set_zoom(start);
    const float applied = out ? view.zoom_out(delta) : view.zoom_in(delta);
    QVERIFY2(same_zoom(applied, ratio), qPrintable(QString::number(applied)));
    QVERIFY(same_zoom(view.get_zoom(), expected));
    // The transform follows the zoom.
    QCOMPARE(view.get_physical(QPoint(10, 0)).x() - view.get_physical(QPoint(0, 0)).x(),
             qRound(10 * expected));
  }

  void clamping_tests_min_first_data()
  {
    QTest::addColumn<float>("min");
    QTest::addColumn<float>("max");
    QTest::addColumn<float>("candidate");
    QTest::addColumn<float>("expected");
    QTest::newRow("below") << 0.5f << 8.0f << 0.1f << 0.5f;
    QTest::newRow("above") << 0.5f << 8.0f << 9.0f << 8.0f;
    QTest::newRow("inside") << 0.5f << 8.0f << 2.0f << 2.0f;
    QTest::newRow("min above max wins") << 10.0f << 5.0f << 7.0f << 10.0f;
    QTest::newRow("NaN passes") << 0.5f << 8.0f << k_nan << k_nan;
  }

  void clamping_tests_min_first()
  {
    QFETCH(float, min);
    QFETCH(float, max);
    QFETCH(float, candidate);
    QFETCH(float, expected);
    TEST_VIEW view;
    view.set_logical_size(QRect(0, 0, 100, 100));
    view.set_min(min);
    view.set_max(max);
    view.set_zoom_internal(candidate);
    const float zoom = view.get_absolute_zoom_multiplier();
    if (std::isnan(expected))
      QVERIFY2(std::isnan(zoom), qPrintable(QString::number(zoom)));
    else
      QCOMPARE(zoom, expected);
  }

  void zoom_scaling_keeps_the_absolute_zoom()
  {
    TEST_VIEW view;
    view.set_logical_size(QRect(0, 0, 100, 100));
    view.set_zoom_min_max(0.5f, 8.0f);
    view.set_zoom(2.0f);
    view.set_zoom_scaling(4.0f);
    QCOMPARE(view.get_absolute_zoom_multiplier(), 2.0f);
    QCOMPARE(view.get_zoom(), 0.5f);
    QCOMPARE(view.get_min(), 2.0f);
    QCOMPARE(view.get_max(), 32.0f);
    // From now on the zoom the user sees is relative to the scaling.
    view.set_zoom(1.0f);
    QCOMPARE(view.get_absolute_zoom_multiplier(), 4.0f);
    view.set_zoom_min_max(0.25f, 2.0f);
    QCOMPARE(view.get_min(), 1.0f);
    QCOMPARE(view.get_max(), 8.0f);
    view.set_zoom_scaling(2.0f);
    QCOMPARE(view.get_zoom(), 2.0f);
    QCOMPARE(view.get_max(), 4.0f);
  }

  void logical_size_truncates_data()
  {
    QTest::addColumn<float>("zoom");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QSize>("expected");
    QTest::newRow("thirds") << 3.0f << QSize(10, 11) << QSize(3, 3);
    QTest::newRow("toward zero when negative") << 3.0f << QSize(-10, -11) << QSize(-3, -3);
    QTest::newRow("below one") << 0.3f << QSize(10, 1) << QSize(33, 3);
  }

  void logical_size_truncates()
  {
    QFETCH(float, zoom);
    QFETCH(QSize, size);
    QFETCH(QSize, expected);
    TEST_VIEW view;
    view.set_logical_size(QRect(0, 0, 100, 100));
    // The static scaling never applies to sizes.
    view.set_static_scaling_transform(QTransform::fromScale(2, 5));
    view.set_zoom(zoom);
    QCOMPARE(view.get_logical(size), expected);
  }

  void static_scaling_comes_before_the_zoom()
  {
    TEST_VIEW view;
    // No wider than the drawing, which would be centred in it.
    view.resize(1, 1);
    view.set_static_scaling_transform(QTransform::fromScale(2, 1));
    view.set_logical_size(QRect(0, 0, 100, 100));
    view.set_zoom(3.0f);
    QCOMPARE(view.get_physical(QPoint(10, 10)), QPoint(60, 30));
    QCOMPARE(view.get_logical(QPoint(60, 30)), QPoint(10, 10));
    QCOMPARE(view.get_physical(QRect(0, 0, 10, 10)), QRect(0, 0, 60, 30));
    QCOMPARE(view.minimumSize(), QSize(300, 300));
  }

  void small_drawing_is_centred_data()
  {
    QTest::addColumn<QRect>("logical");
    QTest::addColumn<float>("zoom");
    QTest::addColumn<QPoint>("top_left");
    // A 500 x 400 view: 300 pixels wide leaves 100 on each side.
    QTest::newRow("300 wide at zoom 1") << QRect(40, 10, 300, 100) << 1.0f << QPoint(100, 150);
    QTest::newRow("300 wide at zoom 2") << QRect(40, 10, 150, 50) << 2.0f << QPoint(100, 150);
    QTest::newRow("odd surplus truncated") << QRect(0, 0, 301, 399) << 1.0f << QPoint(99, 0);
    QTest::newRow("as large as the view") << QRect(7, 9, 500, 400) << 1.0f << QPoint(0, 0);
  }

  void small_drawing_is_centred()
  {
    QFETCH(QRect, logical);
    QFETCH(float, zoom);
    QFETCH(QPoint, top_left);
    TEST_VIEW view;
    view.resize(500, 400);
    view.set_logical_size(logical);
    view.set_zoom(zoom);
    QCOMPARE(view.get_physical(logical.topLeft()), top_left);
  }

  void viewport_rect_is_the_scrolled_part()
  {
    ZOOM_FIXTURE fixture;
    QVERIFY(fixture.show());
    QCOMPARE(fixture.view->get_viewport_rect(), QRect(QPoint(600, 500), fixture.area->maximumViewportSize()));
    TEST_VIEW alone;
    alone.resize(120, 80);
    QCOMPARE(alone.get_viewport_rect(), QRect(0, 0, 120, 80));
  }

  void adjust_size_to_ratio_data()
  {
    QTest::addColumn<double>("ratio");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QSize>("expected");
    QTest::newRow("ratio 0 does nothing") << 0.0 << QSize(100, 50) << QSize(100, 50);
    QTest::newRow("negative does nothing") << -1.0 << QSize(100, 50) << QSize(100, 50);
    QTest::newRow("2, height grows") << 2.0 << QSize(100, 50) << QSize(100, 200);
    QTest::newRow("2, width grows") << 2.0 << QSize(100, 300) << QSize(150, 300);
    QTest::newRow("1, square") << 1.0 << QSize(100, 40) << QSize(100, 100);
    QTest::newRow("1.5, truncated") << 1.5 << QSize(3, 1) << QSize(3, 4);
    QTest::newRow("0.5, already there") << 0.5 << QSize(100, 50) << QSize(100, 50);
    QTest::newRow("0.5, width grows") << 0.5 << QSize(100, 80) << QSize(160, 80);
    QTest::newRow("0.5, height grows") << 0.5 << QSize(300, 80) << QSize(300, 150);
    QTest::newRow("0.3, truncated") << 0.3 << QSize(10, 7) << QSize(23, 7);
  }

  void adjust_size_to_ratio()
  {
    QFETCH(double, ratio);
    QFETCH(QSize, size);
    QFETCH(QSize, expected);
    TEST_VIEW view;
    view.adjust_size_to_ratio(ratio, size);
    QCOMPARE(size, expected);
  }

  void broken_preconditions_are_internal_errors_data()
  {
    QTest::addColumn<VIEW_CALL>("call");
    QTest::addColumn<QString>("condition");
    QTest::newRow("min 0") << VIEW_CALL([](TEST_VIEW& v) { v.set_zoom_min_max(0.0f, 1.0f); }) << "min > 0.0f";
    QTest::newRow("min negative") << VIEW_CALL([](TEST_VIEW& v) { v.set_min(-1.0f); }) << "min > 0.0f";
    QTest::newRow("max 0") << VIEW_CALL([](TEST_VIEW& v) { v.set_zoom_min_max(1.0f, 0.0f); }) << "max > 0.0f";
    QTest::newRow("max negative") << VIEW_CALL([](TEST_VIEW& v) { v.set_max(-2.0f); }) << "max > 0.0f";
    QTest::newRow("factor 0") << VIEW_CALL([](TEST_VIEW& v) { v.set_zoom(0.0f); }) << "factor > 0.0f";
    QTest::newRow("factor NaN") << VIEW_CALL([](TEST_VIEW& v) { v.set_zoom(k_nan); }) << "factor > 0.0f";
    QTest::newRow("zoom in by 0") << VIEW_CALL([](TEST_VIEW& v) { v.zoom_in(0.0f); }) << "delta > 0.0f";
    QTest::newRow("zoom out by -1") << VIEW_CALL([](TEST_VIEW& v) { v.zoom_out(-1.0f); }) << "delta > 0.0f";
    QTest::newRow("scaling 0") << VIEW_CALL([](TEST_VIEW& v) { v.set_zoom_scaling(0.0f); })
                               << "zoom_scaling > 0.0f";
    QTest::newRow("scaling that underflows the minimum") << VIEW_CALL([](TEST_VIEW& v) {
      v.set_min(1e-10f);
      v.set_zoom_scaling(1e-40f);
    }) << "min > 0.0f";
  }

  void broken_preconditions_are_internal_errors()
  {
    QFETCH(VIEW_CALL, call);
    QFETCH(QString, condition);
    TEST_VIEW view;
    view.set_logical_size(QRect(0, 0, 100, 100));
    QCOMPARE(orq_test_internal_error([&] { call(view); }), condition);
    QCOMPARE(view.get_absolute_zoom_multiplier(), 1.0f);
  }

  void selection_flash_data()
  {
    QTest::addColumn<QRect>("rect");
    QTest::addColumn<QRect>("label");
    // The viewport is about 500 x 400: a tenth is about 49 x 39.
    QTest::newRow("10 x 10 grows by 40") << QRect(100, 100, 10, 10) << QRect(60, 60, 90, 90);
    QTest::newRow("30 x 40 grows by 20") << QRect(100, 100, 30, 40) << QRect(80, 80, 70, 80);
    QTest::newRow("wide but low grows by 30") << QRect(100, 100, 60, 20) << QRect(70, 70, 120, 80);
    QTest::newRow("45 x 45 grows by 5") << QRect(100, 100, 45, 45) << QRect(95, 95, 55, 55);
    QTest::newRow("a tenth each way is not shown") << QRect(100, 100, 60, 50) << QRect();
  }

  void selection_flash()
  {
    QFETCH(QRect, rect);
    QFETCH(QRect, label);
    ZOOM_FIXTURE fixture;
    QVERIFY(fixture.show());
    QVERIFY(fixture.area->maximumViewportSize().width() / 10 < 50);
    fixture.view->animate_selection_rect(rect, QColor(200, 0, 0), 200);
    auto* flash = fixture.view->findChild<QLabel*>();
    QVERIFY(flash);
    QCOMPARE(flash->palette().color(flash->backgroundRole()), QColor(200, 0, 0));
    QCOMPARE(flash->isVisible(), !label.isNull());
    const QRect start = label.isNull() ? rect : label;
    QCOMPARE(flash->geometry(), start);
    // It shrinks to its centre and goes when the time is up.
    QTRY_COMPARE(flash->geometry(), QRect(start.center(), QSize(0, 0)));
    QTRY_VERIFY(!flash->isVisible());
  }

  void selection_flash_shrinks_and_can_be_stopped()
  {
    ZOOM_FIXTURE fixture;
    QVERIFY(fixture.show());
    fixture.view->animate_selection_rect(QRect(100, 100, 10, 10), Qt::blue, 5000);
    auto* flash = fixture.view->findChild<QLabel*>();
    QVERIFY(flash);
    QTRY_VERIFY(flash->width() < 90);
    QVERIFY(flash->width() > 0);
    QVERIFY(flash->geometry().contains(QPoint(104, 104)));
    fixture.view->on_stop_animation_rect();
    QVERIFY(!flash->isVisible());
    const QRect stopped = flash->geometry();
    settle();
    QCOMPARE(flash->geometry(), stopped);
    // A second flash reuses the label.
    fixture.view->animate_selection_rect(QRect(200, 100, 10, 10), Qt::blue, 100);
    QCOMPARE(fixture.view->findChildren<QLabel*>().size(), 1);
    QCOMPARE(flash->geometry(), QRect(160, 60, 90, 90));
  }
};

ORQ_TEST_REGISTER(TST_VIEW);
#include "tst_view.moc"
