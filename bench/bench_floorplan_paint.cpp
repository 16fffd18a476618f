// Painting the generated floor plan into a 1280 x 800 image at fit-all,
// 10x and 100x about the die's centre:
//   ours      FLOORPLAN_RENDERER: indexes, coverage levels, detail by size
//   Qt        a QGraphicsScene with one item per shape (rectangle items,
//             line items for the nets), rendered over the same rectangle
//   floor     QPainter::drawRects / drawLines of exactly the visible shapes,
//             picked by brute force once, outside the clock
// Each frame is timed from the first paint call until the painter ends;
// the median of several frames is reported. The visible shapes found
// through the indexes are checked against the brute-force pick.
//   bench_floorplan_paint [shapes ...]     default: 100000 1000000 4000000
// The QGraphicsScene runs up to 1,000,000 shapes: at 4,000,000 it needs
// several gigabytes and minutes per fit-all frame.
#include "floorplan_data.h"
#include "floorplan_renderer.h"

#include <orq_color.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QGraphicsLineItem>
#include <QGraphicsRectItem>
#include <QGraphicsScene>
#include <QImage>
#include <QLocale>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <functional>
#include <malloc.h>
#include <memory>
#include <vector>

namespace {

const QSize k_viewport(1280, 800);
constexpr int k_qt_limit = 1000000;

struct VIEW {
  const char* name;
  double zoom; // times the fit-all scale
};
const VIEW k_views[] = {{"fit-all", 1}, {"10x", 10}, {"100x", 100}};

std::size_t heap_in_use()
{
  const struct mallinfo2 info = mallinfo2();
  return info.uordblks + info.hblkhd;
}

double median(std::vector<double> values)
{
  std::sort(values.begin(), values.end());
  return values.empty() ? 0.0 : values[values.size() / 2];
}

// Warms up once, then times frames until enough or the time is spent.
double time_frames(int frames, double budget_ms, const std::function<void()>& frame)
{
  frame();
  std::vector<double> ms;
  QElapsedTimer total;
  total.start();
  while (int(ms.size()) < frames && (ms.size() < 3 || total.nsecsElapsed() / 1e6 < budget_ms)) {
    QElapsedTimer timer;
    timer.start();
    frame();
    ms.push_back(double(timer.nsecsElapsed()) / 1e6);
  }
  return median(ms);
}

QTransform view_transform(const FLOORPLAN& plan, double zoom)
{
  const QRectF die(plan.die);
  const double fit = std::min(k_viewport.width() / die.width(), k_viewport.height() / die.height()) * 0.98;
  QTransform transform;
  transform.translate(k_viewport.width() / 2.0, k_viewport.height() / 2.0);
  transform.scale(fit * zoom, fit * zoom);
  transform.translate(-die.center().x(), -die.center().y());
  return transform;
}

QColor kind_color(FP_KIND kind)
{
  switch (kind) {
  case FP_KIND::DIE:
    return ORQ_COLOR::get_default_color(ORQ_FPV_DIE_COLOR);
  case FP_KIND::CORE:
    return ORQ_COLOR::get_default_color(ORQ_FPV_CORE_COLOR);
  case FP_KIND::PAD:
    return ORQ_COLOR::get_default_color(ORQ_FPV_PAD_COLOR);
  case FP_KIND::POWER:
    return ORQ_COLOR::get_default_color(ORQ_FPV_POWER_STRIPE_COLOR);
  case FP_KIND::BLOCK:
    return ORQ_COLOR::get_default_color(ORQ_FPV_MACRO_FILL_COLOR);
  case FP_KIND::ROW:
    return ORQ_COLOR::get_default_color(ORQ_FPV_ROW_COLOR);
  case FP_KIND::CELL:
    return ORQ_COLOR::get_default_color(ORQ_FPV_BLOCK_FILL_COLOR);
  default:
    return ORQ_COLOR::get_default_color(ORQ_FPV_FLYLINE_COLOR);
  }
}

QLineF net_line(const FP_SHAPE& shape)
{
  const FP_BOX& b = shape.box;
  return shape.sub ? QLineF(b.x1, b.y2, b.x2, b.y1) : QLineF(b.x1, b.y1, b.x2, b.y2);
}

QRectF rect_of(const FP_BOX& b)
{
  return QRectF(b.x1, b.y1, b.x2 - b.x1, b.y2 - b.y1);
}

// The floor: every visible shape of a kind in one call, by kind.
struct FLOOR {
  std::vector<std::vector<QRectF>> rects = std::vector<std::vector<QRectF>>(std::size_t(FP_KIND::COUNT));
  std::vector<QLineF> lines;
};

void paint_floor(QImage& image, const QTransform& transform, const FLOOR& floor)
{
  QPainter painter(&image);
  painter.fillRect(image.rect(), ORQ_COLOR::get_default_color(ORQ_FPV_BACKGROUND_COLOR));
  painter.setWorldTransform(transform);
  painter.setPen(Qt::NoPen);
  for (std::size_t kind = 0; kind < floor.rects.size(); ++kind) {
    if (floor.rects[kind].empty())
      continue;
    painter.setBrush(kind_color(FP_KIND(kind)));
    painter.drawRects(floor.rects[kind].data(), int(floor.rects[kind].size()));
  }
  QPen pen(kind_color(FP_KIND::NET));
  pen.setCosmetic(true);
  painter.setPen(pen);
  painter.drawLines(floor.lines.data(), int(floor.lines.size()));
}

std::unique_ptr<QGraphicsScene> make_scene(const FLOORPLAN& plan)
{
  auto scene = std::make_unique<QGraphicsScene>(QRectF(plan.die));
  std::vector<QBrush> brushes;
  for (int kind = 0; kind < int(FP_KIND::COUNT); ++kind)
    brushes.emplace_back(kind_color(FP_KIND(kind)));
  QPen line_pen(kind_color(FP_KIND::NET));
  line_pen.setCosmetic(true);
  for (const FP_SHAPE& shape : plan.shapes) {
    if (shape.kind == FP_KIND::NET)
      scene->addLine(net_line(shape), line_pen);
    else
      scene->addRect(rect_of(shape.box), Qt::NoPen, brushes[std::size_t(shape.kind)]);
  }
  return scene;
}

QString number(double value)
{
  return QLocale(QLocale::English).toString(qlonglong(value));
}

struct ROW {
  int shapes;
  const char* view;
  std::size_t visible;
  double ours;
  double qt; // 0: not run
  double floor;
  FP_PAINT_STATS stats;
};

} // namespace

int main(int argc, char** argv)
{
  qputenv("QT_QPA_PLATFORM", qgetenv("QT_QPA_PLATFORM").isEmpty() ? "offscreen" : qgetenv("QT_QPA_PLATFORM"));
  QApplication app(argc, argv);
  std::vector<int> sizes;
  for (int i = 1; i < argc; ++i)
    sizes.push_back(QString::fromLocal8Bit(argv[i]).toInt());
  if (sizes.empty())
    sizes = {100000, 1000000, 4000000};

  std::vector<ROW> rows;
  std::printf("%10s | %9s | %9s | %9s | %9s | %-44s\n", "shapes", "generate", "index", "coverage", "heap",
              "bytes per shape");
  std::vector<QString> notes;
  for (const int size : sizes) {
    const std::size_t before = heap_in_use();
    QElapsedTimer build;
    build.start();
    const FLOORPLAN_DATA data(7, 18, size);
    const std::size_t heap = heap_in_use() - before;
    const FLOORPLAN& plan = data.plan();
    const double n = double(plan.shapes.size());
    std::printf(
        "%10s | %6.0f ms | %6.0f ms | %6.0f ms | %6.1f MB | %5.1f (model %.1f, indexes %.1f, coverage %.1f; "
        "heap %.1f)\n",
        qPrintable(number(n)), data.timings().generate_ms, data.timings().index_ms,
        data.timings().coverage_ms, double(heap) / 1048576.0, double(data.memory_bytes()) / n,
        double(plan.memory_bytes()) / n,
        double(data.fixed_index().memory_bytes() + data.cell_index().memory_bytes() +
               data.net_index().memory_bytes()) /
            n,
        double(data.coverage().memory_bytes()) / n, double(heap) / n);
    std::fflush(stdout);

    std::unique_ptr<QGraphicsScene> scene;
    if (size <= k_qt_limit) {
      const std::size_t scene_before = heap_in_use();
      QElapsedTimer timer;
      timer.start();
      scene = make_scene(plan);
      const double add_ms = double(timer.nsecsElapsed()) / 1e6;
      // The scene builds its item index on the first query; that is part of
      // making it, not of a frame.
      timer.restart();
      scene->items(QRectF(plan.die.center(), QSizeF(1, 1)));
      notes.push_back(
          QStringLiteral("QGraphicsScene of %1 items: added in %2 ms, indexed in %3 ms, %4 bytes an item")
              .arg(number(n))
              .arg(add_ms, 0, 'f', 0)
              .arg(double(timer.nsecsElapsed()) / 1e6, 0, 'f', 0)
              .arg(double(heap_in_use() - scene_before) / n, 0, 'f', 0));
    }

    FLOORPLAN_RENDERER renderer;
    renderer.set_data(&data);
    QImage image(k_viewport, QImage::Format_ARGB32_Premultiplied);
    for (const VIEW& view : k_views) {
      const QTransform transform = view_transform(plan, view.zoom);
      const QRectF visible = transform.inverted().mapRect(QRectF(QPointF(0, 0), QSizeF(k_viewport)));
      const FP_BOX box{int(std::floor(visible.left())), int(std::floor(visible.top())),
                       int(std::ceil(visible.right())), int(std::ceil(visible.bottom()))};

      // The brute-force pick, which is also what the indexes must find.
      FLOOR floor;
      std::vector<std::uint32_t> brute;
      for (std::uint32_t id = 0; id < plan.shapes.size(); ++id) {
        const FP_SHAPE& shape = plan.shapes[id];
        if (!shape.box.intersects(box))
          continue;
        brute.push_back(id);
        if (shape.kind == FP_KIND::NET)
          floor.lines.push_back(net_line(shape));
        else
          floor.rects[std::size_t(shape.kind)].push_back(rect_of(shape.box));
      }
      std::vector<std::uint32_t> indexed;
      QElapsedTimer query;
      query.start();
      data.query(box, [&indexed](std::uint32_t id) { indexed.push_back(id); });
      const double query_ms = double(query.nsecsElapsed()) / 1e6;
      std::sort(indexed.begin(), indexed.end());
      if (indexed != brute) {
        std::printf("MISMATCH at %d shapes, %s: index %zu, brute force %zu\n", size, view.name,
                    indexed.size(), brute.size());
        return 1;
      }
      if (view.zoom == 10)
        notes.push_back(
            QStringLiteral("index query at %1 shapes, 10x: %2 shapes in %3 ms (%4 ns a shape found)")
                .arg(number(n))
                .arg(number(double(indexed.size())))
                .arg(query_ms, 0, 'f', 2)
                .arg(query_ms * 1e6 / std::max<std::size_t>(1, indexed.size()), 0, 'f', 0));

      ROW row{size, view.name, brute.size(), 0, 0, 0, {}};
      row.ours = time_frames(9, 3000, [&] {
        QPainter painter(&image);
        painter.setWorldTransform(transform);
        row.stats = renderer.paint(&painter, visible, FP_PAINT_OPTIONS());
      });
      row.floor = time_frames(5, 4000, [&] { paint_floor(image, transform, floor); });
      if (scene) {
        row.qt = time_frames(view.zoom == 1 ? 3 : 5, 6000, [&] {
          QPainter painter(&image);
          painter.fillRect(image.rect(), ORQ_COLOR::get_default_color(ORQ_FPV_BACKGROUND_COLOR));
          scene->render(&painter, QRectF(image.rect()), visible, Qt::IgnoreAspectRatio);
        });
      }
      rows.push_back(row);
      std::fprintf(stderr, "  %d %s done\n", size, view.name);
    }
  }

  std::printf(
      "\n1280 x 800 image, median ms per frame; the same visible shapes found by the indexes and by brute "
      "force in every row\n");
  std::printf("%10s | %-7s | %9s | %8s | %13s | %8s | %11s | %-30s\n", "shapes", "view", "visible", "ours",
              "QGraphicsView", "Qt/ours", "drawRects", "ours drew");
  for (const ROW& row : rows) {
    const QString qt = row.qt > 0 ? QString::number(row.qt, 'f', 1) : QStringLiteral("not run");
    const QString ratio =
        row.qt > 0 ? QStringLiteral("%1x").arg(row.qt / row.ours, 0, 'f', 0) : QStringLiteral("-");
    const QString drew =
        row.stats.coverage_level >= 0
            ? QStringLiteral("coverage level %1 (%2x%3)")
                  .arg(row.stats.coverage_level)
                  .arg(row.stats.coverage_size.width())
                  .arg(row.stats.coverage_size.height())
            : QStringLiteral("%1 cells, %2 nets").arg(number(row.stats.cells), number(row.stats.nets));
    std::printf("%10s | %-7s | %9s | %8.2f | %13s | %8s | %11.1f | %s\n", qPrintable(number(row.shapes)),
                row.view, qPrintable(number(double(row.visible))), row.ours, qPrintable(qt),
                qPrintable(ratio), row.floor, qPrintable(drew));
  }
  std::printf("\ngrowth of our frame time with the shape count:\n");
  for (const VIEW& view : k_views) {
    std::printf("  %-7s", view.name);
    for (const ROW& row : rows)
      if (QLatin1String(row.view) == QLatin1String(view.name))
        std::printf("  %s: %.2f ms", qPrintable(number(row.shapes)), row.ours);
    std::printf("\n");
  }
  std::printf("\n");
  for (const QString& note : notes)
    std::printf("%s\n", qPrintable(note));
  return 0;
}
