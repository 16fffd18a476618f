// The Block Variants report beside a real floor-plan view: a click (or Space,
// or Enter) on a variant row turns it on and its siblings off, through the
// roles the radio-button delegate draws from, and the plan draws the choice
// on the macro.
#include "orq_test_support.h"

#include "block_variants_report.h"
#include "floorplan_variants.h"
#include "floorplan_view.h"

#include <orq_tree_item_radio_button_delegate.h>
#include <orq_tree_model.h>
#include <orq_tree_view.h>
#include <orq_zoom_scroll_area.h>

#include <QSignalSpy>

#include <memory>

namespace {

using REPORT = BLOCK_VARIANTS_REPORT;

int first_block_of(const FLOORPLAN& plan, const QString& cell)
{
  for (int b = 0; b < plan.blocks.size(); ++b)
    if (plan.blocks.at(b).cell == cell)
      return b;
  return -1;
}

QModelIndex block_row(const REPORT& report, int block)
{
  QAbstractItemModel* model = report.view()->model();
  for (int r = 0; r < model->rowCount(); ++r)
    if (model->index(r, 0).data(REPORT::k_block_role).toInt() == block)
      return model->index(r, 0);
  return QModelIndex();
}

QModelIndex variant_row(const REPORT& report, int block, int variant)
{
  const QModelIndex parent = block_row(report, block);
  return report.view()->model()->index(variant, 0, parent);
}

// The radio states of a block's variant rows: "257 256 257".
QString states_of(const REPORT& report, int block)
{
  const QModelIndex parent = block_row(report, block);
  QStringList states;
  for (int v = 0; v < report.view()->model()->rowCount(parent); ++v)
    states << variant_row(report, block, v).data(REPORT::k_radio_state_role).toString();
  return states.join(QLatin1Char(' '));
}

QString expected_states(int count, int on)
{
  QStringList states;
  for (int v = 0; v < count; ++v)
    states << QString::number(v == on ? REPORT::k_radio_on : REPORT::k_radio_off);
  return states.join(QLatin1Char(' '));
}

void click(ORQ_TREE_VIEW* view, const QModelIndex& row, int column = 0)
{
  const QModelIndex cell = row.siblingAtColumn(column);
  view->scrollTo(cell);
  QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, view->visualRect(cell).center());
}

bool near(QRgb pixel, const QColor& color)
{
  return qAbs(qRed(pixel) - color.red()) <= 12 && qAbs(qGreen(pixel) - color.green()) <= 12 &&
         qAbs(qBlue(pixel) - color.blue()) <= 12;
}

// How many pixels of the macro, as the plan draws it on the screen, have
// the colour.
int pixels_of(FLOORPLAN_VIEW* view, int block, const QColor& color)
{
  const QRect device = view->get_physical(view->floorplan().blocks.at(block).rect);
  const QImage image = view->grab(device).toImage();
  int count = 0;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      count += near(image.pixel(x, y), color) ? 1 : 0;
  return count;
}

} // namespace

class TST_BLOCK_VARIANTS : public QObject {
  Q_OBJECT
private slots:
  void initTestCase() { orq_test_strict_messages(); }

  void init()
  {
    m_area = std::make_unique<ORQ_ZOOM_SCROLL_AREA>();
    m_view = new FLOORPLAN_VIEW(std::make_unique<FLOORPLAN_DATA>(7, 18, 100000));
    m_area->set_view(m_view, false);
    m_area->resize(1000, 700);
    m_area->show();
    QCoreApplication::processEvents();
    m_area->zoom_fit();
    m_report = std::make_unique<REPORT>(m_view);
    m_report->resize(460, 600);
    m_report->show();
    QCoreApplication::processEvents();
  }

  void cleanup()
  {
    m_report.reset();
    m_area.reset();
  }

  void every_macro_is_listed_with_its_variants_the_first_on()
  {
    const FLOORPLAN& plan = m_view->floorplan();
    int macros = 0;
    for (int b = 0; b < plan.blocks.size(); ++b) {
      const QVector<FP_BLOCK_VARIANT> variants = fp_block_variants(plan.blocks.at(b).cell);
      QCOMPARE(block_row(*m_report, b).isValid(), !variants.isEmpty());
      if (variants.isEmpty()) {
        QCOMPARE(m_view->block_variant(b), -1);
        continue;
      }
      ++macros;
      const QModelIndex row = block_row(*m_report, b);
      QCOMPARE(row.data().toString(), plan.blocks.at(b).name);
      // The block's own row carries no radio button.
      QVERIFY(!row.data(REPORT::k_radio_role).isValid());
      QCOMPARE(m_report->view()->model()->rowCount(row), variants.size());
      for (int v = 0; v < variants.size(); ++v) {
        QCOMPARE(variant_row(*m_report, b, v).data().toString(), variants.at(v).name);
        QCOMPARE(variant_row(*m_report, b, v).data(REPORT::k_radio_role).toBool(), true);
      }
      QCOMPARE(states_of(*m_report, b), expected_states(variants.size(), 0));
      QVERIFY(m_report->view()->isExpanded(row));
      QCOMPARE(m_view->block_variant(b), 0);
    }
    // Seed 7 has memories, PHYs, SERDES and PLLs among its 18 blocks.
    QVERIFY(macros >= 4);
    QVERIFY(qobject_cast<ORQ_TREE_ITEM_RADIO_BUTTON_DELEGATE*>(m_report->view()->itemDelegate()));
  }

  void a_click_on_a_variant_turns_it_on_and_its_siblings_off_data()
  {
    QTest::addColumn<QString>("cell");
    QTest::addColumn<QList<int>>("clicks");
    QTest::addColumn<int>("column");
    QTest::newRow("memory, second") << "SRAM_64K" << QList<int>{1} << 0;
    QTest::newRow("memory, third, on its description") << "SRAM_64K" << QList<int>{2} << 2;
    QTest::newRow("memory, third then back to the first") << "SRAM_64K" << QList<int>{2, 0} << 0;
    QTest::newRow("PHY, second, on its tag") << "DDR_PHY" << QList<int>{1} << 1;
    QTest::newRow("SERDES, third") << "SERDES_X4" << QList<int>{2} << 0;
    QTest::newRow("PLL, second then third") << "PLL" << QList<int>{1, 2} << 0;
    QTest::newRow("PLL, the one already on") << "PLL" << QList<int>{0} << 0;
  }

  void a_click_on_a_variant_turns_it_on_and_its_siblings_off()
  {
    QFETCH(QString, cell);
    QFETCH(QList<int>, clicks);
    QFETCH(int, column);
    const int block = first_block_of(m_view->floorplan(), cell);
    QVERIFY2(block >= 0, qPrintable(cell));
    const QVector<FP_BLOCK_VARIANT> variants = fp_block_variants(cell);
    const QString others_before = m_report->choices_text().remove(
        QStringLiteral("%1 %2").arg(m_view->floorplan().blocks.at(block).name, variants.first().name));
    QSignalSpy changed(m_view, &FLOORPLAN_VIEW::block_variant_changed);
    int on = 0;
    int expected_signals = 0;
    for (int v : clicks) {
      click(m_report->view(), variant_row(*m_report, block, v), column);
      expected_signals += v != on ? 1 : 0;
      on = v;
      QCOMPARE(states_of(*m_report, block), expected_states(variants.size(), on));
      QCOMPARE(m_view->block_variant(block), on);
    }
    QCOMPARE(changed.count(), expected_signals);
    if (expected_signals > 0)
      QCOMPARE(changed.last(), (QList<QVariant>{block, on}));
    QCOMPARE(block_row(*m_report, block).siblingAtColumn(2).data().toString(),
             QStringLiteral("uses %1").arg(variants.at(on).name));
    // Only this block changed.
    QCOMPARE(m_report->choices_text().remove(QStringLiteral("%1 %2").arg(
                 m_view->floorplan().blocks.at(block).name, variants.at(on).name)),
             others_before);
    // The plan draws the chosen variant's outline and tag on the macro,
    // and no other variant's.
    QCoreApplication::processEvents();
    QVERIFY2(pixels_of(m_view, block, variants.at(on).color) > 40,
             qPrintable(QString::number(pixels_of(m_view, block, variants.at(on).color))));
    for (int v = 0; v < variants.size(); ++v)
      if (v != on)
        QCOMPARE(pixels_of(m_view, block, variants.at(v).color), 0);
  }

  void a_click_on_a_block_row_changes_nothing()
  {
    const int block = first_block_of(m_view->floorplan(), QStringLiteral("SRAM_64K"));
    const QString before = m_report->choices_text();
    QSignalSpy changed(m_view, &FLOORPLAN_VIEW::block_variant_changed);
    click(m_report->view(), block_row(*m_report, block));
    QCOMPARE(m_report->choices_text(), before);
    QCOMPARE(changed.count(), 0);
    QCOMPARE(states_of(*m_report, block), expected_states(3, 0));
  }

  void space_and_enter_pick_the_current_variant_data()
  {
    QTest::addColumn<int>("key");
    QTest::newRow("Space") << int(Qt::Key_Space);
    QTest::newRow("Enter") << int(Qt::Key_Return);
  }

  void space_and_enter_pick_the_current_variant()
  {
    QFETCH(int, key);
    const int block = first_block_of(m_view->floorplan(), QStringLiteral("SERDES_X4"));
    ORQ_TREE_VIEW* view = m_report->view();
    click(view, block_row(*m_report, block));
    view->setFocus();
    // Down to the third variant: the block's row, then three rows below it.
    for (int i = 0; i < 3; ++i)
      QTest::keyClick(view, Qt::Key_Down);
    QCOMPARE(view->currentIndex(), variant_row(*m_report, block, 2));
    QCOMPARE(m_view->block_variant(block), 0);
    QTest::keyClick(view, Qt::Key(key));
    QCOMPARE(m_view->block_variant(block), 2);
    QCOMPARE(states_of(*m_report, block), expected_states(3, 2));
  }

  void the_on_and_off_rows_are_drawn_differently()
  {
    const int block = first_block_of(m_view->floorplan(), QStringLiteral("SRAM_64K"));
    ORQ_TREE_VIEW* view = m_report->view();
    view->clearSelection();
    view->setCurrentIndex(QModelIndex());
    // The indicator sits where the text of a plain row would start.
    auto indicator = [&](int v) {
      const QRect cell = view->visualRect(variant_row(*m_report, block, v));
      return view->viewport()->grab(QRect(cell.topLeft(), QSize(cell.height(), cell.height()))).toImage();
    };
    QCOMPARE(indicator(1), indicator(2));
    QVERIFY(indicator(0) != indicator(1));
    m_view->set_block_variant(block, 1);
    QCoreApplication::processEvents();
    QCOMPARE(indicator(0), indicator(2));
    QVERIFY(indicator(1) != indicator(0));
  }

  // A choice made elsewhere (a command, the plan itself) shows in the rows.
  void the_report_follows_the_plan()
  {
    const int block = first_block_of(m_view->floorplan(), QStringLiteral("PLL"));
    QVERIFY(m_view->set_block_variant(block, 2));
    QCOMPARE(states_of(*m_report, block), expected_states(3, 2));
    QVERIFY(!m_view->set_block_variant(block, 3));
    QVERIFY(!m_view->set_block_variant(-1, 0));
    const int fence = first_block_of(m_view->floorplan(), QStringLiteral("CPU_CLUSTER"));
    if (fence >= 0)
      QVERIFY(!m_view->set_block_variant(fence, 0));
    QCOMPARE(m_view->block_variant(block), 2);
  }

  void other_data_starts_every_macro_on_its_first_variant()
  {
    const int block = first_block_of(m_view->floorplan(), QStringLiteral("SRAM_64K"));
    click(m_report->view(), variant_row(*m_report, block, 2));
    QCOMPARE(m_view->block_variant(block), 2);
    m_view->set_data(std::make_unique<FLOORPLAN_DATA>(8, 18, 100000));
    const FLOORPLAN& plan = m_view->floorplan();
    QStringList expected;
    for (int b = 0; b < plan.blocks.size(); ++b) {
      const QVector<FP_BLOCK_VARIANT> variants = fp_block_variants(plan.blocks.at(b).cell);
      QCOMPARE(m_view->block_variant(b), variants.isEmpty() ? -1 : 0);
      if (!variants.isEmpty())
        expected << plan.blocks.at(b).name + QLatin1Char(' ') + variants.first().name;
    }
    QCOMPARE(m_report->choices_text(), expected.join(QStringLiteral("; ")));
  }

private:
  std::unique_ptr<ORQ_ZOOM_SCROLL_AREA> m_area;
  FLOORPLAN_VIEW* m_view = nullptr;
  std::unique_ptr<REPORT> m_report;
};

ORQ_TEST_REGISTER(TST_BLOCK_VARIANTS);
#include "tst_block_variants.moc"
