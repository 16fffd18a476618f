// ORQ_TREE_ITEM_RADIO_BUTTON_DELEGATE painted into images: which rows get an
// indicator, its state and place read back from the pixels, the text moved
// right of it, and the size hint grown only in height.
#include "orq_test_support.h"

#include <orq.h>

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QProxyStyle>
#include <QStandardItemModel>
#include <QStyleFactory>
#include <QTreeView>

#include <memory>

namespace {

const QColor on_colour(0, 200, 0);
const QColor off_colour(200, 0, 0);
const QColor neither_colour(0, 0, 200);
const QColor selected_colour(250, 220, 120);

// A style whose radio indicator is a solid block coloured by its state (the
// platform styles draw "off" and "neither" alike) and whose metrics are odd
// numbers, so that each step of the layout shows in the pixels.
class TST_RADIO_STYLE : public QProxyStyle {
public:
  explicit TST_RADIO_STYLE(int exclusive_height)
      : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion")))
      , m_exclusive_height(exclusive_height)
  {
  }

  int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override
  {
    switch (metric) {
    case PM_ExclusiveIndicatorWidth:
      return 14;
    case PM_ExclusiveIndicatorHeight:
      return m_exclusive_height;
    case PM_RadioButtonLabelSpacing:
      return 7;
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
      return 11;
    default:
      return QProxyStyle::pixelMetric(metric, option, widget);
    }
  }

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override
  {
    if (element == PE_IndicatorRadioButton) {
      const QColor colour = option->state & State_On    ? on_colour
                            : option->state & State_Off ? off_colour
                                                        : neither_colour;
      painter->fillRect(option->rect, colour);
    } else if (element == PE_PanelItemViewItem && option->state & State_Selected) {
      painter->fillRect(option->rect, selected_colour);
    } else {
      QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
  }

private:
  int m_exclusive_height;
};

// Installs a style for the whole application, the only place the delegate
// takes its style from, and then puts the tool's own style object back. Qt
// deletes a replaced style whose parent is the application, so the tool's is
// held here meanwhile; handing it back makes the test style the one deleted.
class SCOPED_APP_STYLE {
public:
  explicit SCOPED_APP_STYLE(QStyle* style)
      : m_previous(QApplication::style())
  {
    m_previous->setParent(nullptr);
    QApplication::setStyle(style);
  }
  ~SCOPED_APP_STYLE() { QApplication::setStyle(m_previous.release()); }
  SCOPED_APP_STYLE(const SCOPED_APP_STYLE&) = delete;
  SCOPED_APP_STYLE& operator=(const SCOPED_APP_STYLE&) = delete;

private:
  std::unique_ptr<QStyle> m_previous;
};

constexpr int flag_role = Qt::UserRole + 3;
constexpr int state_role = Qt::UserRole + 2;

// The cell sits away from the image's corner so that its own x and y count.
const QSize image_size(220, 34);
const QRect cell(10, 5, 200, 20);

QStyleOptionViewItem cell_option(bool selected = false)
{
  QStyleOptionViewItem option;
  option.rect = cell;
  option.state = QStyle::State_Enabled | QStyle::State_Active;
  if (selected)
    option.state |= QStyle::State_Selected;
  option.palette = QApplication::palette();
  option.font = QApplication::font();
  option.fontMetrics = QFontMetrics(option.font);
  option.direction = Qt::LeftToRight;
  option.showDecorationSelected = true;
  return option;
}

template <typename PAINT> QImage render(PAINT paint)
{
  QImage image(image_size, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::white);
  QPainter painter(&image);
  paint(&painter);
  return image;
}

QImage render_with(const QStyledItemDelegate& delegate, const QStyleOptionViewItem& option,
                   const QModelIndex& index)
{
  return render([&](QPainter* painter) { delegate.paint(painter, option, index); });
}

// The bounding box of the pixels of one colour; empty when there are none.
QRect box_of(const QImage& image, const QColor& colour)
{
  QRect box;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      if (image.pixelColor(x, y) == colour)
        box |= QRect(x, y, 1, 1);
  return box;
}

// The leftmost column holding a dark (text) pixel, or -1. Every channel must
// be dark, so that the indicator's saturated colours do not count.
int first_text_column(const QImage& image)
{
  for (int x = 0; x < image.width(); ++x)
    for (int y = 0; y < image.height(); ++y) {
      const QColor colour = image.pixelColor(x, y);
      if (qMax(colour.red(), qMax(colour.green(), colour.blue())) < 110)
        return x;
    }
  return -1;
}

std::unique_ptr<QStandardItemModel> one_row_model(const QVariant& flag, const QVariant& state)
{
  auto model = std::make_unique<QStandardItemModel>();
  auto* item = new QStandardItem(QStringLiteral("Alternative B"));
  if (flag.isValid())
    item->setData(flag, flag_role);
  if (state.isValid())
    item->setData(state, state_role);
  model->appendRow(item);
  return model;
}

} // namespace

class TST_TREE_ITEM_RADIO_BUTTON_DELEGATE : public QObject {
  Q_OBJECT
private slots:
  void initTestCase() { orq_test_strict_messages(); }

  void indicator_follows_the_roles_data()
  {
    QTest::addColumn<QVariant>("flag");
    QTest::addColumn<QVariant>("state");
    QTest::addColumn<QString>("expected");

    QTest::newRow("flag true, 256 is on") << QVariant(true) << QVariant(256) << "on";
    QTest::newRow("flag true, 257 is off") << QVariant(true) << QVariant(257) << "off";
    QTest::newRow("flag true, 0 is neither") << QVariant(true) << QVariant(0) << "neither";
    QTest::newRow("flag true, 1 is neither") << QVariant(true) << QVariant(1) << "neither";
    QTest::newRow("flag true, Qt::Checked is neither")
        << QVariant(true) << QVariant(int(Qt::Checked)) << "neither";
    QTest::newRow("flag true, no state is neither") << QVariant(true) << QVariant() << "neither";
    QTest::newRow("flag true, unconvertible state is neither")
        << QVariant(true) << QVariant(QStringLiteral("on")) << "neither";
    QTest::newRow("flag true, state text 257 is off")
        << QVariant(true) << QVariant(QStringLiteral("257")) << "off";
    QTest::newRow("flag text true draws the indicator")
        << QVariant(QStringLiteral("true")) << QVariant(256) << "on";
    QTest::newRow("flag 1 draws the indicator") << QVariant(1) << QVariant(257) << "off";
    QTest::newRow("flag text 0 is plain") << QVariant(QStringLiteral("0")) << QVariant(256) << "plain";
    QTest::newRow("flag false is plain") << QVariant(false) << QVariant(256) << "plain";
    QTest::newRow("no flag is plain") << QVariant() << QVariant(256) << "plain";
    QTest::newRow("unconvertible flag is plain") << QVariant(QPoint(1, 1)) << QVariant(256) << "plain";
  }

  void indicator_follows_the_roles()
  {
    QFETCH(QVariant, flag);
    QFETCH(QVariant, state);
    QFETCH(QString, expected);
    SCOPED_APP_STYLE style(new TST_RADIO_STYLE(14));
    const auto model = one_row_model(flag, state);
    const QModelIndex index = model->index(0, 0);
    ORQ_TREE_ITEM_RADIO_BUTTON_DELEGATE delegate(nullptr);
    const QImage image = render_with(delegate, cell_option(), index);

    const QRect on = box_of(image, on_colour);
    const QRect off = box_of(image, off_colour);
    const QRect neither = box_of(image, neither_colour);
    const QString seen = !on.isEmpty()        ? QStringLiteral("on")
                         : !off.isEmpty()     ? QStringLiteral("off")
                         : !neither.isEmpty() ? QStringLiteral("neither")
                                              : QStringLiteral("plain");
    QCOMPARE(seen, expected);
    QCOMPARE(int(!on.isEmpty()) + int(!off.isEmpty()) + int(!neither.isEmpty()), expected == "plain" ? 0 : 1);

    if (expected == QLatin1String("plain")) {
      // A plain row is exactly what the standard delegate draws.
      const QStyledItemDelegate standard;
      QCOMPARE(image, render_with(standard, cell_option(), index));
    } else {
      // The check-box indicator's place (11 x 11, centred in the cell's
      // height) half the 7-pixel spacing to the right.
      QCOMPARE(on | off | neither, QRect(cell.x() + 3, cell.y() + (cell.height() - 11) / 2, 11, 11));
    }
  }

  void text_moves_right_of_the_indicator()
  {
    SCOPED_APP_STYLE style(new TST_RADIO_STYLE(14));
    const auto radio_model = one_row_model(true, 256);
    const auto plain_model = one_row_model(QVariant(), QVariant());
    ORQ_TREE_ITEM_RADIO_BUTTON_DELEGATE delegate(nullptr);
    const QStyledItemDelegate standard;

    const QImage radio = render_with(delegate, cell_option(), radio_model->index(0, 0));
    const QImage plain = render_with(standard, cell_option(), plain_model->index(0, 0));
    const int plain_text = first_text_column(plain);
    QVERIFY(plain_text >= cell.x());
    // Indicator width 14 and spacing 7 kept in front of the text.
    QCOMPARE(first_text_column(radio), plain_text + 14 + 7);

    // The text is the standard cell drawn in the narrowed rectangle.
    QStyleOptionViewItem narrowed = cell_option();
    narrowed.rect.setLeft(cell.x() + 21);
    const QImage shifted = render_with(standard, narrowed, plain_model->index(0, 0));
    const QRect text_part(cell.x() + 21, 0, image_size.width() - cell.x() - 21, image_size.height());
    QCOMPARE(radio.copy(text_part), shifted.copy(text_part));
  }

  void selection_continues_under_the_indicator()
  {
    SCOPED_APP_STYLE style(new TST_RADIO_STYLE(14));
    const auto model = one_row_model(true, 257);
    ORQ_TREE_ITEM_RADIO_BUTTON_DELEGATE delegate(nullptr);
    const QImage image = render_with(delegate, cell_option(true), model->index(0, 0));

    // Above and below the indicator the kept space carries the selection,
    // from the cell's left edge on, and nothing left of the cell does.
    for (int x = cell.x(); x <= cell.x() + 21; ++x) {
      QCOMPARE(image.pixelColor(x, cell.top()), selected_colour);
      QCOMPARE(image.pixelColor(x, cell.bottom()), selected_colour);
    }
    QCOMPARE(image.pixelColor(cell.x() - 1, cell.top()), QColor(Qt::white));
    QCOMPARE(image.pixelColor(cell.right(), cell.top()), selected_colour);
    QCOMPARE(box_of(image, off_colour).size(), QSize(11, 11));
  }

  void platform_indicator_matches_the_style_data()
  {
    QTest::addColumn<int>("state_code");
    QTest::addColumn<int>("style_state");
    QTest::newRow("256 draws the style's on indicator") << 256 << int(QStyle::State_On);
    QTest::newRow("257 draws the style's off indicator") << 257 << int(QStyle::State_Off);
  }

  void platform_indicator_matches_the_style()
  {
    QFETCH(int, state_code);
    QFETCH(int, style_state);
    // The tool's own application style, as a tool runs the delegate.
    QStyle* style = QApplication::style();
    const auto model = one_row_model(true, state_code);
    ORQ_TREE_ITEM_RADIO_BUTTON_DELEGATE delegate(nullptr);
    const QStyleOptionViewItem option = cell_option();
    const QImage image = render_with(delegate, option, model->index(0, 0));

    const int spacing = style->pixelMetric(QStyle::PM_RadioButtonLabelSpacing, &option);
    const QRect place =
        style->subElementRect(QStyle::SE_CheckBoxIndicator, &option).translated(spacing / 2, 0);
    QVERIFY(!place.isEmpty());
    auto reference = [&](QStyle::State state) {
      return render([&](QPainter* painter) {
        QStyleOption indicator;
        indicator.rect = place;
        indicator.palette = option.palette;
        indicator.state = option.state | state;
        style->drawPrimitive(QStyle::PE_IndicatorRadioButton, &indicator, painter);
      });
    };
    const QImage expected = reference(QStyle::State(style_state));
    const QImage other = reference(style_state == QStyle::State_On ? QStyle::State_Off : QStyle::State_On);
    // The two references must differ, or the comparison proves nothing.
    QVERIFY(expected.copy(place) != other.copy(place));
    QCOMPARE(image.copy(place), expected.copy(place));
  }

  void size_hint_grows_in_height_only_data()
  {
    QTest::addColumn<QVariant>("flag");
    QTest::addColumn<int>("indicator_height");
    QTest::addColumn<bool>("radio");

    QTest::newRow("flagged, tall indicator") << QVariant(true) << 57 << true;
    QTest::newRow("flag text true, tall indicator") << QVariant(QStringLiteral("true")) << 57 << true;
    QTest::newRow("flagged, short indicator") << QVariant(true) << 3 << true;
    QTest::newRow("flag text 0, tall indicator") << QVariant(QStringLiteral("0")) << 57 << false;
    QTest::newRow("no flag, tall indicator") << QVariant() << 57 << false;
  }

  void size_hint_grows_in_height_only()
  {
    QFETCH(QVariant, flag);
    QFETCH(int, indicator_height);
    QFETCH(bool, radio);
    SCOPED_APP_STYLE style(new TST_RADIO_STYLE(indicator_height));
    const auto model = one_row_model(flag, 256);
    const QModelIndex index = model->index(0, 0);
    ORQ_TREE_ITEM_RADIO_BUTTON_DELEGATE delegate(nullptr);
    const QStyledItemDelegate standard;
    const QSize plain = standard.sizeHint(cell_option(), index);
    QVERIFY(plain.height() < 57);
    QVERIFY(plain.height() > 3);

    const QSize hint = delegate.sizeHint(cell_option(), index);
    // The indicator's width is not added: the text shares the plain width.
    QCOMPARE(hint.width(), plain.width());
    QCOMPARE(hint.height(), radio ? qMax(plain.height(), indicator_height) : plain.height());
  }

  void tree_view_rows_take_the_indicator_height()
  {
    SCOPED_APP_STYLE style(new TST_RADIO_STYLE(40));
    QStandardItemModel model;
    auto* parent = new QStandardItem(QStringLiteral("Variants"));
    const int states[] = {256, 257, 0};
    for (const int state : states) {
      auto* child = new QStandardItem(QStringLiteral("Variant %1").arg(state));
      child->setData(true, flag_role);
      child->setData(state, state_role);
      parent->appendRow(child);
    }
    model.appendRow(parent);
    QTreeView view;
    view.setModel(&model);
    view.setItemDelegate(new ORQ_TREE_ITEM_RADIO_BUTTON_DELEGATE(&view));
    view.expandAll();
    view.resize(300, 250);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));

    QVERIFY(view.visualRect(model.index(0, 0)).height() < 40);
    const QImage image = view.viewport()->grab().toImage().convertToFormat(QImage::Format_ARGB32);
    const QColor colours[] = {on_colour, off_colour, neither_colour};
    for (int row = 0; row < 3; ++row) {
      const QRect rect = view.visualRect(model.index(row, 0, model.index(0, 0)));
      QCOMPARE(rect.height(), 40);
      const QRect indicator = box_of(image, colours[row]);
      QCOMPARE(indicator.size(), QSize(11, 11));
      QVERIFY2(rect.contains(indicator), qPrintable(QStringLiteral("row %1").arg(row)));
      QCOMPARE(indicator.left(), rect.left() + 3);
    }
  }
};

ORQ_TEST_REGISTER(TST_TREE_ITEM_RADIO_BUTTON_DELEGATE);
#include "tst_tree_item_radio_button_delegate.moc"
