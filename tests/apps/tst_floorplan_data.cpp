// The sample tool's generated chip, its indexes, coverage levels and
// selection, checked against the shapes themselves.
#include "orq_test_support.h"

#include "floorplan_data.h"
#include "floorplan_selection.h"

#include <QRandomGenerator>

#include <algorithm>
#include <cstring>

namespace {

std::vector<std::uint32_t> brute_force(const FLOORPLAN& plan, const FP_BOX& box, std::uint32_t first,
                                       std::uint32_t last)
{
  std::vector<std::uint32_t> ids;
  for (std::uint32_t id = first; id < last; ++id)
    if (plan.shapes[id].box.intersects(box))
      ids.push_back(id);
  return ids;
}

std::vector<std::uint32_t> sorted(std::vector<std::uint32_t> ids)
{
  std::sort(ids.begin(), ids.end());
  return ids;
}

// A rectangle of the kind a row asks for, somewhere over or near the die.
FP_BOX random_box(QRandomGenerator& random, const FLOORPLAN& plan, const QString& kind)
{
  const QRect die = plan.die;
  const int x = die.left() - 20000 + int(random.bounded(die.width() + 40000));
  const int y = die.top() - 20000 + int(random.bounded(die.height() + 40000));
  int w = 0;
  int h = 0;
  if (kind == QLatin1String("a few cells")) {
    w = int(random.bounded(4 * plan.row_height)) + 1;
    h = int(random.bounded(2 * plan.row_height)) + 1;
  } else if (kind == QLatin1String("a zoomed viewport")) {
    w = int(random.bounded(die.width() / 20)) + 1;
    h = w * 5 / 8;
  } else if (kind == QLatin1String("a quarter of the die")) {
    w = die.width() / 2;
    h = die.height() / 2;
  } else if (kind == QLatin1String("a point")) {
    w = 0;
    h = 0;
  } else if (kind == QLatin1String("a thin column")) {
    w = 0;
    h = int(random.bounded(die.height()));
  } else if (kind == QLatin1String("a thin strip")) {
    w = int(random.bounded(die.width()));
    h = 1;
  } else if (kind == QLatin1String("the whole die and more")) {
    return {die.left() - 1000, die.top() - 1000, die.right() + 1000, die.bottom() + 1000};
  } else if (kind == QLatin1String("outside the die")) {
    return {die.right() + 10, die.top(), die.right() + 5000, die.bottom()};
  }
  return {x, y, x + w, y + h};
}

} // namespace

class TST_FLOORPLAN_DATA : public QObject {
  Q_OBJECT
private slots:
  void initTestCase() { orq_test_strict_messages(); }

  void same_seed_gives_the_same_design_data()
  {
    QTest::addColumn<unsigned>("seed");
    QTest::addColumn<int>("blocks");
    QTest::addColumn<int>("shapes");
    QTest::newRow("default size") << 7u << 18 << orq_test_rounds(1000000, 100000);
    QTest::newRow("small chip, few blocks") << 3u << 5 << 20000;
    QTest::newRow("one block") << 11u << 1 << 5000;
    QTest::newRow("every block slot") << 1234u << 24 << 200000;
  }

  void same_seed_gives_the_same_design()
  {
    QFETCH(unsigned, seed);
    QFETCH(int, blocks);
    QFETCH(int, shapes);
    const FLOORPLAN a = make_floorplan(seed, blocks, shapes);
    const FLOORPLAN b = make_floorplan(seed, blocks, shapes);
    const FLOORPLAN other = make_floorplan(seed + 1, blocks, shapes);
    QCOMPARE(a.shapes.size(), b.shapes.size());
    QVERIFY(std::memcmp(a.shapes.data(), b.shapes.data(), a.shapes.size() * sizeof(FP_SHAPE)) == 0);
    QCOMPARE(a.first, b.first);
    QCOMPARE(a.blocks.size(), b.blocks.size());
    for (int i = 0; i < a.blocks.size(); ++i) {
      QCOMPARE(a.blocks[i].name, b.blocks[i].name);
      QCOMPARE(a.blocks[i].rect, b.blocks[i].rect);
    }
    QVERIFY(a.shapes.size() != other.shapes.size() ||
            std::memcmp(a.shapes.data(), other.shapes.data(), a.shapes.size() * sizeof(FP_SHAPE)) != 0);
  }

  void the_shape_count_is_reached_data()
  {
    QTest::addColumn<int>("shapes");
    QTest::newRow("1,000") << 1000;
    QTest::newRow("10,000") << 10000;
    QTest::newRow("100,000") << 100000;
    QTest::newRow("1,000,000") << orq_test_rounds(1000000, 200000);
  }

  void the_shape_count_is_reached()
  {
    QFETCH(int, shapes);
    const FLOORPLAN plan = make_floorplan(7, 18, shapes);
    QVERIFY2(plan.shapes.size() >= std::size_t(shapes), qPrintable(QString::number(plan.shapes.size())));
    // Cells and nets make the bulk, about seven cells to three nets.
    const double cells =
        double(plan.count(FP_KIND::CELL)) / double(plan.count(FP_KIND::CELL) + plan.count(FP_KIND::NET));
    QVERIFY2(cells > 0.6 && cells < 0.8, qPrintable(QString::number(cells)));
    QVERIFY(plan.count(FP_KIND::NET) > 0);
    QCOMPARE(plan.count(FP_KIND::DIE), 1u);
    QCOMPARE(plan.count(FP_KIND::CORE), 1u);
    QCOMPARE(plan.count(FP_KIND::BLOCK), 18u);
    QVERIFY(plan.count(FP_KIND::PAD) > 100);
  }

  void the_design_is_well_formed_data()
  {
    QTest::addColumn<unsigned>("seed");
    QTest::addColumn<int>("blocks");
    QTest::addColumn<int>("shapes");
    QTest::newRow("default blocks") << 7u << 18 << 100000;
    QTest::newRow("few blocks, tall rows") << 5u << 4 << 8000;
    QTest::newRow("every block slot") << 99u << 24 << 300000;
  }

  // Cells sit in the rows, one after another, never on a macro or its halo,
  // coloured by the fence they stand in; nets join cell centres.
  void the_design_is_well_formed()
  {
    QFETCH(unsigned, seed);
    QFETCH(int, blocks);
    QFETCH(int, shapes);
    const FLOORPLAN plan = make_floorplan(seed, blocks, shapes);
    const FP_BOX die = FP_BOX::from_rect(plan.die);
    const FP_BOX core = FP_BOX::from_rect(plan.core);
    for (const FP_SHAPE& shape : plan.shapes)
      QVERIFY(die.contains(shape.box));
    for (std::size_t kind = 0; kind < std::size_t(FP_KIND::COUNT); ++kind)
      for (std::uint32_t id = plan.begin(FP_KIND(kind)); id < plan.end(FP_KIND(kind)); ++id)
        QCOMPARE(int(plan.shapes[id].kind), int(kind));
    QCOMPARE(std::size_t(plan.end(FP_KIND::NET)), plan.shapes.size());

    const FP_SHAPE* previous = nullptr;
    for (std::uint32_t id = plan.begin(FP_KIND::CELL); id < plan.end(FP_KIND::CELL); ++id) {
      const FP_SHAPE& cell = plan.shapes[id];
      QVERIFY(core.contains(cell.box));
      QCOMPARE((cell.box.y1 - core.y1) % plan.row_height, 0);
      QCOMPARE(cell.box.height(), plan.row_height);
      QCOMPARE((cell.box.x1 - core.x1) % plan.site_width, 0);
      QCOMPARE(cell.box.width(), fp_cell_masters()[cell.sub].sites * plan.site_width);
      if (previous && previous->box.y1 == cell.box.y1)
        QVERIFY2(previous->box.x2 <= cell.box.x1, "cells of a row overlap");
      previous = &cell;
      const int cx = (cell.box.x1 + cell.box.x2) / 2;
      const int cy = (cell.box.y1 + cell.box.y2) / 2;
      int fence = 0;
      for (int b = 0; b < plan.blocks.size(); ++b) {
        const FLOORPLAN_BLOCK& block = plan.blocks[b];
        const FP_BOX box = FP_BOX::from_rect(block.rect);
        if (block.hard) {
          const FP_BOX halo{box.x1 - plan.halo, box.y1 - plan.halo, box.x2 + plan.halo, box.y2 + plan.halo};
          QVERIFY2(!(halo.x1 < cell.box.x2 && cell.box.x1 < halo.x2 && halo.y1 < cell.box.y2 &&
                     cell.box.y1 < halo.y2),
                   "a cell stands on a macro or its halo");
        } else if (box.x1 <= cx && cx < box.x2 && box.y1 <= cy && cy < box.y2) {
          fence = b + 1;
        }
      }
      QCOMPARE(int(cell.owner), fence);
    }

    const FLOORPLAN_DATA data(seed, blocks, shapes);
    auto is_cell_centre = [&](int x, int y) {
      bool found = false;
      data.cell_index().query(FP_BOX{x, y, x, y}, [&](std::uint32_t id) {
        const FP_BOX& b = plan.shapes[id].box;
        found = found || ((b.x1 + b.x2) / 2 == x && (b.y1 + b.y2) / 2 == y);
      });
      return found;
    };
    for (std::uint32_t id = plan.begin(FP_KIND::NET); id < plan.end(FP_KIND::NET); id += 97) {
      const FP_SHAPE& net = plan.shapes[id];
      const int ya = net.sub ? net.box.y2 : net.box.y1;
      const int yb = net.sub ? net.box.y1 : net.box.y2;
      QVERIFY(is_cell_centre(net.box.x1, ya));
      QVERIFY(is_cell_centre(net.box.x2, yb));
    }
  }

  void names_are_derived_from_the_shapes()
  {
    const FLOORPLAN plan = make_floorplan(7, 18, 20000);
    const FLOORPLAN_BLOCK& block = plan.blocks.at(3);
    QCOMPARE(block.name, QStringLiteral("u_%1_3").arg(block.cell.toLower()));
    QCOMPARE(plan.shape_name(block.shape), block.name);
    QCOMPARE(plan.shape_type(block.shape), block.cell);
    std::uint32_t fenced = plan.end(FP_KIND::CELL);
    for (std::uint32_t id = plan.begin(FP_KIND::CELL);
         id < plan.end(FP_KIND::CELL) && fenced == plan.end(FP_KIND::CELL); ++id)
      if (plan.shapes[id].owner)
        fenced = id;
    QVERIFY(fenced < plan.end(FP_KIND::CELL));
    const FP_SHAPE& cell = plan.shapes[fenced];
    const QString master = QString::fromLatin1(fp_cell_masters()[cell.sub].name);
    QCOMPARE(plan.shape_name(fenced), QStringLiteral("%1/u_%2_%3")
                                          .arg(plan.blocks[cell.owner - 1].name, master.toLower())
                                          .arg(fenced - plan.begin(FP_KIND::CELL)));
    QCOMPARE(plan.shape_type(fenced), master);
  }

  void the_indexes_find_what_brute_force_finds_data()
  {
    QTest::addColumn<QString>("kind");
    QTest::addColumn<int>("shapes");
    for (const int shapes : {3000, 200000}) {
      for (const char* kind : {"a few cells", "a zoomed viewport", "a quarter of the die", "a point",
                               "a thin column", "a thin strip", "the whole die and more", "outside the die"})
        QTest::newRow(qPrintable(QStringLiteral("%1, %2 shapes").arg(QLatin1String(kind)).arg(shapes)))
            << QString::fromLatin1(kind) << shapes;
    }
  }

  void the_indexes_find_what_brute_force_finds()
  {
    QFETCH(QString, kind);
    QFETCH(int, shapes);
    const FLOORPLAN_DATA data(7, 18, shapes);
    const FLOORPLAN& plan = data.plan();
    QRandomGenerator random(quint32(qHash(kind)));
    const int rounds = orq_test_rounds(40, 5);
    for (int round = 0; round < rounds; ++round) {
      const FP_BOX box = random_box(random, plan, kind);
      QCOMPARE(sorted(data.fixed_index().query(box)), brute_force(plan, box, 0, plan.end(FP_KIND::ROW)));
      QCOMPARE(sorted(data.cell_index().query(box)),
               brute_force(plan, box, plan.begin(FP_KIND::CELL), plan.end(FP_KIND::CELL)));
      QCOMPARE(sorted(data.net_index().query(box)),
               brute_force(plan, box, plan.begin(FP_KIND::NET), plan.end(FP_KIND::NET)));
    }
  }

  void the_index_copes_with_odd_shapes_data()
  {
    QTest::addColumn<QString>("shapes");
    QTest::newRow("all the same") << "same";
    QTest::newRow("points only") << "points";
    QTest::newRow("one shape as large as the world") << "huge";
    QTest::newRow("long horizontal and vertical lines") << "lines";
    QTest::newRow("nothing") << "none";
  }

  void the_index_copes_with_odd_shapes()
  {
    QFETCH(QString, shapes);
    const FP_BOX world{0, 0, 100000, 50000};
    std::vector<FP_SHAPE> list;
    QRandomGenerator random(5);
    for (int i = 0; i < 500 && shapes != QLatin1String("none"); ++i) {
      FP_BOX box{40, 40, 90, 70};
      const int x = int(random.bounded(100000));
      const int y = int(random.bounded(50000));
      if (shapes == QLatin1String("points"))
        box = {x, y, x, y};
      else if (shapes == QLatin1String("huge"))
        box = i == 0 ? world : FP_BOX{x, y, std::min(100000, x + 10), std::min(50000, y + 10)};
      else if (shapes == QLatin1String("lines"))
        box = i % 2 ? FP_BOX{0, y, 100000, y} : FP_BOX{x, 0, x, 50000};
      list.push_back({box, FP_KIND::NET, 0, 0});
    }
    FLOORPLAN_INDEX index;
    index.build(list, 0, std::uint32_t(list.size()), world);
    for (int round = 0; round < 200; ++round) {
      const int x = int(random.bounded(110000)) - 5000;
      const int y = int(random.bounded(60000)) - 5000;
      const FP_BOX box{x, y, x + int(random.bounded(20000)), y + int(random.bounded(10000))};
      std::vector<std::uint32_t> expected;
      for (std::uint32_t id = 0; id < list.size(); ++id)
        if (list[id].box.intersects(box))
          expected.push_back(id);
      QCOMPARE(sorted(index.query(box)), expected);
    }
  }

  // Every level adds up to the cells' area, to rounding.
  void coverage_levels_keep_the_covered_area()
  {
    const FLOORPLAN_DATA data(7, 18, 100000);
    const FLOORPLAN& plan = data.plan();
    const FLOORPLAN_COVERAGE& coverage = data.coverage();
    QVERIFY(coverage.levels() > 4);
    QCOMPARE(coverage.tile(0), plan.row_height);
    double area = 0;
    for (std::uint32_t id = plan.begin(FP_KIND::CELL); id < plan.end(FP_KIND::CELL); ++id)
      area += double(plan.shapes[id].box.width()) * plan.shapes[id].box.height();
    for (int level = 0; level < coverage.levels(); ++level) {
      const std::uint8_t* bytes = coverage.data(level);
      double sum = 0;
      const std::size_t tiles = std::size_t(coverage.columns(level)) * std::size_t(coverage.rows(level));
      for (std::size_t t = 0; t < tiles; ++t)
        sum += bytes[t * std::size_t(coverage.channels()) + FLOORPLAN_DATA::COVERAGE_CELLS];
      const double tile = coverage.tile(level);
      const double covered = sum / 255.0 * tile * tile;
      QVERIFY2(std::abs(covered - area) / area < 0.02,
               qPrintable(QStringLiteral("level %1: %2 against %3").arg(level).arg(covered).arg(area)));
    }
  }

  void selection_modes_and_their_text_data()
  {
    QTest::addColumn<QString>("steps");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("count");
    QTest::newRow("nothing") << ""
                             << "Nothing selected" << 0;
    QTest::newRow("one block") << "replace b0"
                               << "u_%1_0 (%2)" << 1;
    QTest::newRow("one cell") << "replace c0"
                              << "cell" << 1;
    QTest::newRow("blocks and cells") << "replace b0 b1 b2 c0 c1"
                                      << "3 blocks, 2 cells selected" << 5;
    QTest::newRow("a block and a thousand cells") << "replace b0 c1204"
                                                  << "1 block, 1,204 cells selected" << 1205;
    QTest::newRow("add keeps what was there") << "replace b0|add b1 c0"
                                              << "2 blocks, 1 cell selected" << 3;
    QTest::newRow("add again changes nothing") << "replace b0 b1|add b1"
                                               << "2 blocks selected" << 2;
    QTest::newRow("toggle removes and adds") << "replace b0 b1|toggle b1 b2 c0"
                                             << "2 blocks, 1 cell selected" << 3;
    QTest::newRow("replace drops the rest") << "replace b0 b1 c5|replace c3"
                                            << "cell" << 1;
    QTest::newRow("clear") << "replace b0 b1|clear"
                           << "Nothing selected" << 0;
    QTest::newRow("repeats count once") << "replace b0 b0 b0"
                                        << "u_%1_0 (%2)" << 1;
  }

  void selection_modes_and_their_text()
  {
    QFETCH(QString, steps);
    QFETCH(QString, text);
    QFETCH(int, count);
    const FLOORPLAN plan = make_floorplan(7, 18, 20000);
    FLOORPLAN_SELECTION selection;
    selection.reset(plan.shapes.size());
    for (const QString& step : steps.split(QLatin1Char('|'), Qt::SkipEmptyParts)) {
      const QStringList words = step.split(QLatin1Char(' '), Qt::SkipEmptyParts);
      std::vector<std::uint32_t> ids;
      for (const QString& word : words.mid(1)) {
        const std::uint32_t n = word.mid(1).toUInt();
        if (word.startsWith(QLatin1Char('b')))
          ids.push_back(plan.blocks.at(int(n)).shape);
        else if (word == QLatin1String("c1204"))
          for (std::uint32_t c = 0; c < 1204; ++c)
            ids.push_back(plan.begin(FP_KIND::CELL) + c);
        else
          ids.push_back(plan.begin(FP_KIND::CELL) + n);
      }
      const QString verb = words.value(0);
      const int version = selection.version();
      const auto before = selection.ids();
      if (verb == QLatin1String("clear"))
        selection.clear();
      else
        selection.select(ids, verb == QLatin1String("add")      ? FLOORPLAN_SELECTION::ADD
                              : verb == QLatin1String("toggle") ? FLOORPLAN_SELECTION::TOGGLE
                                                                : FLOORPLAN_SELECTION::REPLACE);
      // A change, and only a change, moves the version on.
      QCOMPARE(selection.version() != version, selection.ids() != before);
    }
    QCOMPARE(int(selection.ids().size()), count);
    QVERIFY(std::is_sorted(selection.ids().begin(), selection.ids().end()));
    for (std::uint32_t id = 0; id < plan.shapes.size(); ++id)
      QCOMPARE(selection.contains(id),
               std::binary_search(selection.ids().begin(), selection.ids().end(), id));
    if (text == QLatin1String("cell"))
      text = QStringLiteral("%1 (%2)").arg(plan.shape_name(selection.ids().front()),
                                           plan.shape_type(selection.ids().front()));
    else if (text.contains(QLatin1String("%1")))
      text = text.arg(plan.blocks[0].cell.toLower(), plan.blocks[0].cell);
    QCOMPARE(selection.describe(plan), text);
    FP_BOX bounds{INT32_MAX, INT32_MAX, INT32_MIN, INT32_MIN};
    for (std::uint32_t id : selection.ids()) {
      const FP_BOX& b = plan.shapes[id].box;
      bounds = {std::min(bounds.x1, b.x1), std::min(bounds.y1, b.y1), std::max(bounds.x2, b.x2),
                std::max(bounds.y2, b.y2)};
    }
    QCOMPARE(selection.bounding_rect(plan), count ? bounds.to_rect() : QRect());
  }
};

ORQ_TEST_REGISTER(TST_FLOORPLAN_DATA);
#include "tst_floorplan_data.moc"
