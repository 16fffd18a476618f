// The sample tool's drawing and its view, in the test process: what the
// renderer draws at each zoom, and how the view selects and reports.
#include "orq_test_support.h"

#include "floorplan_view.h"

#include <orq.h>
#include <orq_zoom_scroll_area.h>

#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QSet>
#include <QSignalSpy>
#include <QTimer>

#include <algorithm>
#include <memory>

namespace {

// The same in every build: the die keeps its size and the rows grow as the
// count falls, so at a given row height on the screen a smaller chip shows
// a larger share of its cells, and the culling checks below are shares.
constexpr int k_shapes = 200000;

// The die centred in a 1280 x 800 image at zoom times the fit-all scale.
QTransform transform_for(const FLOORPLAN& plan, double zoom)
{
  const QRectF die(plan.die);
  const double fit = std::min(1280 / die.width(), 800 / die.height()) * 0.98;
  QTransform transform;
  transform.translate(640, 400);
  transform.scale(fit * zoom, fit * zoom);
  transform.translate(-die.center().x(), -die.center().y());
  return transform;
}

struct FRAME {
  QImage image;
  FP_PAINT_STATS stats;
};

FRAME paint(FLOORPLAN_RENDERER& renderer, const FLOORPLAN& plan, double zoom,
            const FLOORPLAN_SELECTION* selection = nullptr)
{
  FRAME frame{QImage(1280, 800, QImage::Format_ARGB32_Premultiplied), {}};
  frame.image.fill(Qt::black);
  QPainter painter(&frame.image);
  const QTransform transform = transform_for(plan, zoom);
  painter.setWorldTransform(transform);
  frame.stats = renderer.paint(&painter, transform.inverted().mapRect(QRectF(0, 0, 1280, 800)),
                               FP_PAINT_OPTIONS(), selection);
  return frame;
}

// The block of the first fence and the first macro.
const FLOORPLAN_BLOCK* first_block(const FLOORPLAN& plan, bool hard)
{
  for (const FLOORPLAN_BLOCK& block : plan.blocks)
    if (block.hard == hard)
      return &block;
  return nullptr;
}

} // namespace

class TST_FLOORPLAN_VIEW : public QObject {
  Q_OBJECT
private slots:
  void initTestCase()
  {
    orq_test_strict_messages();
    m_data = std::make_unique<FLOORPLAN_DATA>(7, 18, k_shapes);
  }

  void detail_follows_the_zoom_data()
  {
    // Zooms given by the height of a placement row on the screen.
    QTest::addColumn<double>("row_pixels");
    QTest::addColumn<bool>("coverage"); // cells as coverage
    QTest::addColumn<bool>("lines");
    QTest::addColumn<bool>("cell_types");
    QTest::newRow("rows half a pixel: coverage") << 0.5 << true << false << false;
    QTest::newRow("rows two pixels: coverage still") << 2.0 << true << false << false;
    QTest::newRow("rows four pixels: cells, nets as coverage") << 4.0 << false << false << false;
    QTest::newRow("rows eight pixels: cells and nets") << 8.0 << false << true << false;
    QTest::newRow("rows sixty pixels: cell types written") << 60.0 << false << true << true;
  }

  // What a frame drew matches the row height on the screen, and no frame
  // walks every shape.
  void detail_follows_the_zoom()
  {
    QFETCH(double, row_pixels);
    QFETCH(bool, coverage);
    QFETCH(bool, lines);
    QFETCH(bool, cell_types);
    const FLOORPLAN& plan = m_data->plan();
    const double zoom = row_pixels / (plan.row_height * transform_for(plan, 1).m11());
    FLOORPLAN_RENDERER renderer;
    renderer.set_data(m_data.get());
    const FRAME frame = paint(renderer, plan, zoom);
    // Nets not drawn as lines are coverage, with the cells or over them.
    QCOMPARE(frame.stats.coverage_level >= 0, !lines);
    QCOMPARE(frame.stats.cells > 0, !coverage);
    QCOMPARE(row_pixels >= FLOORPLAN_RENDERER::k_cell_row_pixels, !coverage);
    QCOMPARE(frame.stats.nets > 0, lines);
    QCOMPARE(frame.stats.names > 0 && !coverage && row_pixels >= 36, cell_types);
    QVERIFY(frame.stats.cells < int(plan.count(FP_KIND::CELL)) / 4);
    QVERIFY(frame.stats.nets < int(plan.count(FP_KIND::NET)) / 4);
    if (coverage) {
      // The coverage image is about as large as the device area it covers.
      QVERIFY(frame.stats.coverage_size.width() <= 1280 * 1.3);
      QVERIFY(frame.stats.coverage_size.height() <= 800 * 1.3);
    }
    // A drawing, not a fill: many colours.
    QSet<QRgb> colours;
    for (int y = 0; y < 800; y += 7)
      for (int x = 0; x < 1280; x += 7)
        colours.insert(frame.image.pixel(x, y));
    QVERIFY2(colours.size() > 20, qPrintable(QString::number(colours.size())));
  }

  void the_theme_colours_are_what_is_drawn()
  {
    const FLOORPLAN& plan = m_data->plan();
    FLOORPLAN_RENDERER renderer;
    renderer.set_data(m_data.get());
    const QColor before = ORQ_COLOR::get_default_color(ORQ_FPV_BACKGROUND_COLOR);
    const QRgb corner = paint(renderer, plan, 1).image.pixel(2, 2);
    QCOMPARE(corner, before.rgb());
    ORQ_COLOR::set_default_color(ORQ_FPV_BACKGROUND_COLOR, QColor(0x12, 0x34, 0x56));
    const QRgb changed = paint(renderer, plan, 1).image.pixel(2, 2);
    ORQ_COLOR::set_default_color(ORQ_FPV_BACKGROUND_COLOR, before);
    QCOMPARE(changed, QColor(0x12, 0x34, 0x56).rgb());
  }

  void selected_cells_are_highlighted_data()
  {
    QTest::addColumn<double>("row_pixels");
    QTest::newRow("coverage") << 1.0;
    QTest::newRow("cells one by one") << 20.0;
  }

  // Selecting cells changes the picture where they are, toward the
  // selection colour, and nowhere else.
  void selected_cells_are_highlighted()
  {
    QFETCH(double, row_pixels);
    const FLOORPLAN& plan = m_data->plan();
    const double zoom = row_pixels / (plan.row_height * transform_for(plan, 1).m11());
    FLOORPLAN_RENDERER renderer;
    renderer.set_data(m_data.get());
    const QTransform transform = transform_for(plan, zoom);
    // A patch of the screen holding a fair number of cells.
    QRect device;
    std::vector<std::uint32_t> ids;
    for (int x = 300; x < 1000 && ids.size() < 8; x += 97) {
      device = QRect(x, 330, 200, 140);
      const FP_BOX box = FP_BOX::from_rect(transform.inverted().mapRect(device));
      ids.clear();
      m_data->cell_index().query(box, [&](std::uint32_t id) {
        if (box.contains(plan.shapes[id].box))
          ids.push_back(id);
      });
    }
    QVERIFY(ids.size() >= 8);
    FLOORPLAN_SELECTION selection;
    selection.reset(plan.shapes.size());
    selection.select(ids, FLOORPLAN_SELECTION::REPLACE);
    const FRAME plain = paint(renderer, plan, zoom);
    const FRAME selected = paint(renderer, plan, zoom, &selection);
    const QColor orange = ORQ_COLOR::get_default_color(ORQ_FPV_BLOCK_SELECTED_COLOR);
    const QRect near = device.adjusted(-3, -3, 3, 3);
    int inside = 0;
    int outside = 0;
    double toward = 0;
    for (int y = 0; y < 800; ++y)
      for (int x = 0; x < 1280; ++x) {
        const QRgb before = plain.image.pixel(x, y);
        const QRgb after = selected.image.pixel(x, y);
        if (before == after)
          continue;
        if (!near.contains(x, y)) {
          ++outside;
          continue;
        }
        ++inside;
        auto distance = [&orange](QRgb p) {
          return std::abs(qRed(p) - orange.red()) + std::abs(qGreen(p) - orange.green()) +
                 std::abs(qBlue(p) - orange.blue());
        };
        toward += distance(before) - distance(after);
      }
    QCOMPARE(outside, 0);
    QVERIFY2(inside > 200, qPrintable(QString::number(inside)));
    QVERIFY2(toward / inside > 40, qPrintable(QString::number(toward / inside)));
  }

  void a_click_selects_what_is_under_the_mouse_data()
  {
    QTest::addColumn<QString>("clicks");
    QTest::addColumn<QString>("expected");
    QTest::newRow("a macro") << "macro"
                             << "macro";
    QTest::newRow("a fence") << "fence"
                             << "fence";
    QTest::newRow("an empty spot clears") << "macro,empty"
                                          << "";
    QTest::newRow("another block replaces") << "macro,fence"
                                            << "fence";
    QTest::newRow("Ctrl adds") << "macro,ctrl fence"
                               << "macro fence";
    QTest::newRow("Ctrl again removes") << "macro,ctrl fence,ctrl macro"
                                        << "fence";
    QTest::newRow("Ctrl on an empty spot keeps") << "macro,ctrl empty"
                                                 << "macro";
    QTest::newRow("zoomed in, a cell") << "zoom,cell"
                                       << "cell";
    QTest::newRow("the right button does nothing") << "macro,right fence"
                                                   << "macro";
  }

  void a_click_selects_what_is_under_the_mouse()
  {
    QFETCH(QString, clicks);
    QFETCH(QString, expected);
    FLOORPLAN_VIEW* view = make_view();
    const FLOORPLAN& plan = view->floorplan();
    const FLOORPLAN_BLOCK* macro = first_block(plan, true);
    const FLOORPLAN_BLOCK* fence = first_block(plan, false);
    QVERIFY(macro && fence);
    QSignalSpy changes(view, &FLOORPLAN_VIEW::selection_changed);
    std::uint32_t cell = plan.shapes.size();
    for (const QString& click : clicks.split(QLatin1Char(','))) {
      const QStringList words = click.split(QLatin1Char(' '));
      const QString what = words.last();
      if (what == QLatin1String("zoom")) {
        view->set_zoom(300.0f);
        continue;
      }
      QPoint logical;
      if (what == QLatin1String("macro"))
        logical = macro->rect.center();
      else if (what == QLatin1String("fence"))
        logical = fence->rect.center();
      else if (what == QLatin1String("empty"))
        logical = plan.die.topLeft() - QPoint(10000, 10000);
      else {
        // A cell in the fence, clicked in its middle.
        const FP_BOX box = FP_BOX::from_rect(fence->rect);
        view->data().cell_index().query(box, [&](std::uint32_t id) {
          if (cell == plan.shapes.size() && plan.shapes[id].owner)
            cell = id;
        });
        const FP_BOX& c = plan.shapes[cell].box;
        logical = QPoint((c.x1 + c.x2) / 2, (c.y1 + c.y2) / 2);
      }
      const Qt::KeyboardModifiers modifiers =
          words.contains(QLatin1String("ctrl")) ? Qt::ControlModifier : Qt::NoModifier;
      const Qt::MouseButton button =
          words.contains(QLatin1String("right")) ? Qt::RightButton : Qt::LeftButton;
      const QPoint physical = view->get_physical(logical);
      QMouseEvent press(QEvent::MouseButtonPress, physical, view->mapToGlobal(physical), button, button,
                        modifiers);
      view->selection_mode_no_mouse_gesture(&press);
    }
    std::vector<std::uint32_t> ids;
    for (const QString& word : expected.split(QLatin1Char(' '), Qt::SkipEmptyParts))
      ids.push_back(word == QLatin1String("macro")   ? macro->shape
                    : word == QLatin1String("fence") ? fence->shape
                                                     : cell);
    std::sort(ids.begin(), ids.end());
    QCOMPARE(view->selection().ids(), ids);
    QCOMPARE(view->get_selected_rect(), view->selection().bounding_rect(plan));
    QCOMPARE(view->get_selected_rect().isNull(), ids.empty());
    if (!changes.isEmpty())
      QCOMPARE(changes.last().at(0).toString(), view->selection_text());
    if (ids.size() == 1)
      QCOMPARE(view->selection_text(),
               QStringLiteral("%1 (%2)").arg(plan.shape_name(ids[0]), plan.shape_type(ids[0])));
  }

  void a_dragged_rectangle_selects_what_lies_wholly_inside_data()
  {
    // device: pixels from the core's centre, or from the view's corner.
    QTest::addColumn<double>("zoom");
    QTest::addColumn<QRect>("device");
    QTest::addColumn<bool>("from_corner");
    QTest::newRow("fit-all, round a whole block") << 1.0 << QRect() << false;
    QTest::newRow("fit-all, a patch of cells") << 1.0 << QRect(-150, 40, 60, 40) << false;
    QTest::newRow("zoomed, a few cells") << 40.0 << QRect(-60, -40, 120, 80) << false;
    QTest::newRow("outside the die") << 1.0 << QRect(0, 0, 5, 5) << true;
  }

  void a_dragged_rectangle_selects_what_lies_wholly_inside()
  {
    QFETCH(double, zoom);
    QFETCH(QRect, device);
    QFETCH(bool, from_corner);
    FLOORPLAN_VIEW* view = make_view();
    const FLOORPLAN& plan = view->floorplan();
    view->set_zoom(float(zoom) * view->get_zoom());
    QRect physical = from_corner ? device : device.translated(view->get_physical(plan.core.center()));
    if (device.isNull())
      physical = view->get_physical(first_block(plan, true)->rect.adjusted(-5000, -5000, 5000, 5000));
    QSignalSpy changes(view, &FLOORPLAN_VIEW::selection_changed);
    view->do_rect_selection(physical, physical.center());
    const FP_BOX box = FP_BOX::from_rect(view->get_logical(physical));
    std::vector<std::uint32_t> expected;
    int blocks = 0;
    int cells = 0;
    for (std::uint32_t id = 0; id < plan.shapes.size(); ++id) {
      const FP_SHAPE& shape = plan.shapes[id];
      if (!box.contains(shape.box))
        continue;
      if (shape.kind == FP_KIND::BLOCK || shape.kind == FP_KIND::CELL || shape.kind == FP_KIND::PAD)
        expected.push_back(id);
      blocks += shape.kind == FP_KIND::BLOCK;
      cells += shape.kind == FP_KIND::CELL;
    }
    QCOMPARE(view->selection().ids(), expected);
    QCOMPARE(changes.size(), expected.empty() ? 0 : 1);
    if (device.isNull())
      QCOMPARE(blocks, 1);
    if (expected.size() > 1 && blocks + cells == int(expected.size())) {
      QStringList parts;
      if (blocks)
        parts << QStringLiteral("%1 block%2").arg(blocks).arg(blocks == 1 ? "" : "s");
      if (cells)
        parts << QStringLiteral("%1 cell%2")
                     .arg(QLocale(QLocale::English).toString(cells))
                     .arg(cells == 1 ? "" : "s");
      QCOMPARE(changes.last().at(0).toString(),
               parts.join(QStringLiteral(", ")) + QStringLiteral(" selected"));
    }
  }

  void hovering_names_what_is_under_the_mouse_data()
  {
    QTest::addColumn<QString>("where");
    QTest::addColumn<QString>("expected");
    QTest::newRow("a macro") << "macro"
                             << "^u_[a-z0-9_]+_\\d+ \\([A-Z0-9_]+\\)  [0-9.]+ x [0-9.]+ um$";
    QTest::newRow("outside the die") << "outside"
                                     << "^x -[0-9.]+ um, y -[0-9.]+ um$";
    QTest::newRow("zoomed, a cell")
        << "cell"
        << "^u_[a-z0-9_]+_\\d+/u_[a-z0-9_]+_\\d+ \\([A-Z0-9_]+\\)  [0-9.]+ x [0-9.]+ um$";
  }

  void hovering_names_what_is_under_the_mouse()
  {
    QFETCH(QString, where);
    QFETCH(QString, expected);
    FLOORPLAN_VIEW* view = make_view();
    const FLOORPLAN& plan = view->floorplan();
    QPoint logical = first_block(plan, true)->rect.center();
    if (where == QLatin1String("outside"))
      logical = plan.die.topLeft() - QPoint(5000, 5000);
    if (where == QLatin1String("cell")) {
      view->set_zoom(300.0f);
      const FLOORPLAN_BLOCK* fence = first_block(plan, false);
      logical = fence->rect.center();
      std::uint32_t cell = plan.shapes.size();
      view->data().cell_index().query(FP_BOX::from_rect(fence->rect), [&](std::uint32_t id) {
        if (cell == plan.shapes.size() && plan.shapes[id].owner)
          cell = id;
      });
      const FP_BOX& c = plan.shapes[cell].box;
      logical = QPoint((c.x1 + c.x2) / 2, (c.y1 + c.y2) / 2);
    }
    QSignalSpy hovered(view, &FLOORPLAN_VIEW::block_hovered);
    const QPoint physical = view->get_physical(logical);
    QMouseEvent move(QEvent::MouseMove, physical, view->mapToGlobal(physical), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(view, &move);
    QVERIFY(!hovered.isEmpty());
    const QString text = hovered.last().at(0).toString();
    QVERIFY2(QRegularExpression(expected).match(text).hasMatch(), qPrintable(text));
  }

  void the_scroll_area_zooms_selection_and_fit()
  {
    FLOORPLAN_VIEW* view = make_view();
    const FLOORPLAN& plan = view->floorplan();
    const QRect target = first_block(plan, true)->rect;
    view->select_logical_rect(target.adjusted(-1, -1, 1, 1), FLOORPLAN_SELECTION::REPLACE);
    QCOMPARE(view->get_selected_rect(), target);
    const float fitted = view->get_zoom();
    m_area->zoom_selected();
    QVERIFY(view->get_zoom() > fitted * 3);
    // The block fills the viewport's shorter side, near enough.
    const QRect physical = view->get_physical(target);
    const QSize viewport = m_area->maximumViewportSize();
    QVERIFY(physical.width() >= viewport.width() * 0.8 || physical.height() >= viewport.height() * 0.8);
    m_area->zoom_fit();
    QVERIFY(std::abs(view->get_zoom() / fitted - 1.0f) < 0.01f);
  }

  // The lens's painter is scaled and clipped to a circle; the renderer
  // draws much of the detail in device pixels with the transform reset, so
  // the clip must still hold and the picture match a plain one at that
  // scale. The screen's frame statistics are the screen's alone.
  void the_lens_draws_the_plan_enlarged()
  {
    FLOORPLAN_VIEW* view = make_view();
    // No frame: the lens's centre is then exactly the pointer's place.
    m_area->setFrameShape(QFrame::NoFrame);
    // Over the middle of a fence, among its cells.
    const QPoint target = first_block(view->floorplan(), false)->rect.center();
    m_area->set_zoom(10.0f);
    m_area->scroll_to_logical_rect(QRect(target, QSize(1, 1)));
    QCoreApplication::processEvents();
    ORQ_MAGNIFYING_GLASS_WIDGET::set_size_level(2.0);
    ORQ_MAGNIFYING_GLASS_WIDGET::set_magnification(3.0);
    m_area->get_magnifying_action()->trigger();
    QVERIFY(m_area->get_magnifying_action()->isChecked());
    const QPoint press = view->get_physical(target);
    QVERIFY(m_area->viewport()->rect().contains(view->mapTo(m_area->viewport(), press)));
    const int before = view->last_paint_stats().cells;
    QImage lens_image;
    QPointF logical_centre;
    double radius = 0;
    int cells_after = -1;
    QObject guard;
    QTimer::singleShot(0, &guard, [&] {
      if (auto* lens = m_area->findChild<ORQ_MAGNIFYING_GLASS_WIDGET*>()) {
        radius = lens->get_radius();
        lens_image = QImage(lens->size(), QImage::Format_ARGB32_Premultiplied);
        lens_image.fill(Qt::transparent);
        lens->render(&lens_image, QPoint(), QRegion(), QWidget::DrawChildren);
        cells_after = view->last_paint_stats().cells;
        const QPoint centre = lens->get_centre();
        const double z = view->get_absolute_zoom_multiplier();
        const QPoint origin = view->get_logical(QPoint(0, 0));
        logical_centre = QPointF((centre.x() + m_area->horizontalScrollBar()->value()) / z + origin.x(),
                                 (centre.y() + m_area->verticalScrollBar()->value()) / z + origin.y());
      }
      QMouseEvent release(QEvent::MouseButtonRelease, press, view->mapToGlobal(press), Qt::LeftButton,
                          Qt::NoButton, Qt::NoModifier);
      QCoreApplication::sendEvent(view, &release);
    });
    QMouseEvent down(QEvent::MouseButtonPress, press, view->mapToGlobal(press), Qt::LeftButton,
                     Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(view, &down);
    QVERIFY(!lens_image.isNull());
    QCOMPARE(radius, 100.0);
    QCOMPARE(cells_after, before);
    // What was under the pointer is at the lens's centre.
    QVERIFY(std::abs(logical_centre.x() - view->get_logical(press).x()) <=
            1.0 / view->get_absolute_zoom_multiplier());

    // The same drawing at zoom times three, centred on the same point.
    const double scale = view->get_absolute_zoom_multiplier() * 3.0;
    QImage reference(lens_image.size(), QImage::Format_ARGB32_Premultiplied);
    reference.fill(Qt::transparent);
    {
      QPainter painter(&reference);
      painter.scale(scale, scale);
      painter.translate(-(logical_centre.x() - radius / scale), -(logical_centre.y() - radius / scale));
      view->paint(&painter, nullptr, view, reference.rect(), false);
    }
    // Inside the glass, short of its rim: the plan, as the plain picture
    // has it. Outside the circle and the handle: nothing.
    int inside = 0;
    int same = 0;
    for (int y = 0; y < lens_image.height(); ++y)
      for (int x = 0; x < lens_image.width(); ++x) {
        const double dx = x + 0.5 - radius;
        const double dy = y + 0.5 - radius;
        if (dx * dx + dy * dy < 0.8 * radius * 0.8 * radius) {
          ++inside;
          same += lens_image.pixel(x, y) == reference.pixel(x, y) ? 1 : 0;
        }
      }
    QVERIFY2(same > inside * 95 / 100, qPrintable(QStringLiteral("%1 of %2").arg(same).arg(inside)));
    QCOMPARE(qAlpha(lens_image.pixel(lens_image.width() - 5, 5)), 0);
    QCOMPARE(qAlpha(lens_image.pixel(5, lens_image.height() - 5)), 0);
    // More than a flat fill: the cells, three times as large.
    QSet<QRgb> colours;
    for (int y = int(radius) - 50; y < int(radius) + 50; y += 2)
      for (int x = int(radius) - 50; x < int(radius) + 50; x += 2)
        colours.insert(lens_image.pixel(x, y));
    QVERIFY2(colours.size() > 3, qPrintable(QString::number(colours.size())));
  }

  void printing_draws_the_whole_drawing_on_the_page()
  {
    FLOORPLAN_VIEW* view = make_view();
    QImage page(1100, 850, QImage::Format_ARGB32_Premultiplied);
    page.fill(Qt::white);
    QPainter painter(&page);
    // A page's worth of painter, scaled as a printer's would be.
    const QRectF logical = view->get_logical_rect();
    const double k = std::min(1100 / logical.width(), 850 / logical.height());
    painter.setWorldTransform(QTransform(k, 0, 0, k, -logical.left() * k, -logical.top() * k));
    const QTransform transform = painter.worldTransform();
    view->paint(&painter, nullptr, nullptr, page.rect(), true);
    painter.end();
    const QRect die = transform.mapRect(view->floorplan().die);
    QCOMPARE(QColor(page.pixel(die.center())).name() != QStringLiteral("#ffffff"), true);
    const QRgb background = ORQ_COLOR::get_default_color(ORQ_FPV_BACKGROUND_COLOR).rgb();
    QCOMPARE(page.pixel(1, 1), background);
  }

private:
  // A fresh view of the shared design in a shown scroll area, fitted; the
  // area owns it.
  FLOORPLAN_VIEW* make_view()
  {
    m_area = std::make_unique<ORQ_ZOOM_SCROLL_AREA>();
    auto data = std::make_unique<FLOORPLAN_DATA>(7, 18, k_shapes);
    auto* view = new FLOORPLAN_VIEW(std::move(data));
    m_area->set_view(view, false);
    m_area->resize(1000, 700);
    m_area->show();
    QCoreApplication::processEvents();
    m_area->zoom_fit();
    QCoreApplication::processEvents();
    return view;
  }

  std::unique_ptr<FLOORPLAN_DATA> m_data;
  std::unique_ptr<ORQ_ZOOM_SCROLL_AREA> m_area;
};

ORQ_TEST_REGISTER(TST_FLOORPLAN_VIEW);
#include "tst_floorplan_view.moc"
