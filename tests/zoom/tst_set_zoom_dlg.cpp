#include "tst_zoom_fixture.h"

#include <QComboBox>
#include <QLineEdit>
#include <QValidator>

#include <cmath>
#include <limits>

namespace {
QStringList items(const QComboBox* combo)
{
  QStringList texts;
  for (int i = 0; i < combo->count(); ++i)
    texts << combo->itemText(i);
  return texts;
}

void type(QComboBox* combo, const QString& text)
{
  combo->lineEdit()->clear();
  QTest::keyClicks(combo->lineEdit(), text);
}
} // namespace

class TST_SET_ZOOM_DLG : public QObject {
  Q_OBJECT
private slots:
  void items_between_the_limits_data()
  {
    QTest::addColumn<float>("min");
    QTest::addColumn<float>("max");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("10 to 1600") << 10.0f << 1600.0f
                                << QStringList{"12.5%",  "25.0%",  "50.0%",   "100.0%",       "200.0%",
                                               "400.0%", "800.0%", "1600.0%", "Fit in Window"};
    QTest::newRow("limits themselves are in")
        << 12.5f << 200.0f << QStringList{"12.5%", "25.0%", "50.0%", "100.0%", "200.0%", "Fit in Window"};
    QTest::newRow("100 always is") << 100.0f << 100.0f << QStringList{"100.0%", "Fit in Window"};
    QTest::newRow("halving goes on") << 1.0f << 150.0f
                                     << QStringList{"1.6%",  "3.1%",  "6.3%",   "12.5%",
                                                    "25.0%", "50.0%", "100.0%", "Fit in Window"};
  }

  void items_between_the_limits()
  {
    QFETCH(float, min);
    QFETCH(float, max);
    QFETCH(QStringList, expected);
    ORQ_SET_ZOOM_DLG dialog(min, max);
    QComboBox* combo = dialog.get_combo_box();
    QCOMPARE(items(combo), expected);
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Zoom"));
    QCOMPARE(dialog.objectName(), QStringLiteral("ORQ_SET_ZOOM_DLG_UI"));
    QCOMPARE(combo->objectName(), QStringLiteral("comboBox"));
    QVERIFY(combo->isEditable());
    QCOMPARE(combo->insertPolicy(), QComboBox::InsertAlphabetically);
    QVERIFY(!combo->duplicatesEnabled());
    QVERIFY(combo->itemData(combo->count() - 1).isNull());
  }

  // A drawing too large for the size cap leaves a view without a finite
  // maximum, and a tiny minimum over a large scaling comes out as 0 %.
  void unbounded_limits_still_give_a_list_data()
  {
    QTest::addColumn<float>("min");
    QTest::addColumn<float>("max");
    QTest::addColumn<int>("below");
    const float infinite = std::numeric_limits<float>::infinity();
    QTest::newRow("no maximum") << 10.0f << infinite << 3;
    QTest::newRow("largest float maximum") << 10.0f << std::numeric_limits<float>::max() << 3;
    QTest::newRow("minimum 0") << 0.0f << 1600.0f << -1;
  }

  void unbounded_limits_still_give_a_list()
  {
    QFETCH(float, min);
    QFETCH(float, max);
    QFETCH(int, below);
    ORQ_SET_ZOOM_DLG dialog(min, max);
    const QStringList texts = items(dialog.get_combo_box());
    QVERIFY(texts.size() < 400);
    if (below >= 0)
      QCOMPARE(texts.indexOf(QStringLiteral("100.0%")), below);
    QCOMPARE(texts.last(), QStringLiteral("Fit in Window"));
    for (const QString& text : texts.mid(0, texts.size() - 1))
      QVERIFY2(std::isfinite(QString(text).remove(QLatin1Char('%')).toFloat()), qPrintable(text));
  }

  void opens_for_a_drawing_beyond_the_size_cap()
  {
    ORQ_ZOOM_SCROLL_AREA area;
    auto* view = new TEST_VIEW;
    area.set_view(view, false);
    view->set_zoom(0.01f);
    view->set_logical_size(QRect(0, 0, 20000000, 10));
    // No limit asked for, and none that the cap can give: the maximum in
    // per cent is infinite.
    view->set_zoom_min_max(0.001f, std::numeric_limits<float>::max());
    QCOMPARE(view->get_max(), std::numeric_limits<float>::max());
    int offered = -1;
    QTimer::singleShot(0, &area, [&] {
      if (auto* dialog = area.findChild<ORQ_SET_ZOOM_DLG*>()) {
        offered = dialog->get_combo_box()->count();
        dialog->reject();
      }
    });
    area.get_set_zoom_action()->trigger();
    QVERIFY(offered > 9 && offered < 400);
    QCOMPARE(view->get_zoom(), 0.01f);
  }

  void current_zoom_is_selected_data()
  {
    QTest::addColumn<float>("zoom");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("count");
    QTest::newRow("a new value goes after Fit in Window") << 1.234f << "123.4%" << 9 << 10;
    QTest::newRow("100 is there") << 1.0f << "100.0%" << 3 << 9;
    QTest::newRow("the smallest is there") << 0.125f << "12.5%" << 0 << 9;
    QTest::newRow("rounded to one decimal") << 0.33333f << "33.3%" << 9 << 10;
  }

  void current_zoom_is_selected()
  {
    QFETCH(float, zoom);
    QFETCH(QString, text);
    QFETCH(int, index);
    QFETCH(int, count);
    ORQ_SET_ZOOM_DLG dialog(10.0f, 1600.0f);
    dialog.select_current_zoom(zoom);
    QCOMPARE(dialog.get_combo_box()->count(), count);
    QCOMPARE(dialog.get_combo_box()->currentIndex(), index);
    QCOMPARE(dialog.get_current_text(), text);
  }

  void typed_values_data()
  {
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<float>("zoom");
    QTest::newRow("250") << "250"
                         << "250" << 250.0f;
    QTest::newRow("with per cent") << "37.5%"
                                   << "37.5%" << 37.5f;
    QTest::newRow("a second decimal is refused") << "37.55"
                                                 << "37.5" << 37.5f;
    QTest::newRow("letters are refused") << "abc"
                                         << "" << 100.0f;
    QTest::newRow("empty is 100") << ""
                                  << "" << 100.0f;
    QTest::newRow("above the maximum") << "5000"
                                       << "5000" << 1600.0f;
    QTest::newRow("below the minimum") << "5"
                                       << "5" << 10.0f;
    QTest::newRow("seven digits are refused") << "1234567"
                                              << "123456" << 1600.0f;
  }

  void typed_values()
  {
    QFETCH(QString, typed);
    QFETCH(QString, shown);
    QFETCH(float, zoom);
    ORQ_SET_ZOOM_DLG dialog(10.0f, 1600.0f);
    type(dialog.get_combo_box(), typed);
    QCOMPARE(dialog.get_current_text(), shown);
    QCOMPARE(dialog.get_selected_zoom(), zoom);
  }

  void text_that_is_no_number_is_100()
  {
    ORQ_SET_ZOOM_DLG dialog(10.0f, 1600.0f);
    // Not typed: set as a program would, past the validator.
    dialog.get_combo_box()->setEditText(QStringLiteral("abc%"));
    QCOMPARE(dialog.get_selected_zoom(), 100.0f);
    dialog.get_combo_box()->setEditText(QStringLiteral("%%80%"));
    QCOMPARE(dialog.get_selected_zoom(), 80.0f);
  }

  void validator_data()
  {
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("state");
    QTest::newRow("six digits") << "123456" << int(QValidator::Acceptable);
    QTest::newRow("seven digits") << "1234567" << int(QValidator::Invalid);
    QTest::newRow("one decimal and per cent") << "12.5%" << int(QValidator::Acceptable);
    QTest::newRow("two decimals") << "12.25" << int(QValidator::Invalid);
    QTest::newRow("per cent alone") << "%" << int(QValidator::Invalid);
    QTest::newRow("letters") << "abc" << int(QValidator::Invalid);
    QTest::newRow("a point still to be followed") << "12." << int(QValidator::Intermediate);
  }

  void validator()
  {
    QFETCH(QString, text);
    QFETCH(int, state);
    ORQ_SET_ZOOM_DLG dialog(10.0f, 1600.0f);
    const QValidator* validator = dialog.get_combo_box()->validator();
    QVERIFY(validator);
    int pos = text.size();
    QCOMPARE(int(validator->validate(text, pos)), state);
  }

  void dialog_sets_the_zoom_data()
  {
    QTest::addColumn<QString>("typed");
    QTest::addColumn<bool>("accept");
    QTest::addColumn<float>("zoom");
    QTest::newRow("200") << "200" << true << 2.0f;
    QTest::newRow("50%") << "50%" << true << 0.5f;
    QTest::newRow("the current value again") << "100.0%" << true << 1.0f;
    QTest::newRow("Fit in Window") << "Fit in Window" << true << -1.0f;
    QTest::newRow("cancelled") << "400" << false << 1.0f;
  }

  void dialog_sets_the_zoom()
  {
    QFETCH(QString, typed);
    QFETCH(bool, accept);
    QFETCH(float, zoom);
    ZOOM_FIXTURE fixture;
    QVERIFY(fixture.show());
    fixture.view->set_zoom_min_max(0.1f, 16.0f);
    QString offered;
    QStringList offered_items;
    QTimer::singleShot(0, fixture.area, [&] {
      auto* dialog = fixture.area->findChild<ORQ_SET_ZOOM_DLG*>();
      if (!dialog)
        return;
      offered = dialog->get_current_text();
      offered_items = items(dialog->get_combo_box());
      const int index = dialog->get_combo_box()->findText(typed);
      if (index >= 0)
        dialog->get_combo_box()->setCurrentIndex(index);
      else
        type(dialog->get_combo_box(), typed);
      if (accept)
        dialog->accept();
      else
        dialog->reject();
    });
    QSignalSpy zoomed(fixture.area, &ORQ_ZOOM_SCROLL_AREA::zoom_level_changed);
    fixture.area->get_set_zoom_action()->trigger();
    QCOMPARE(offered, QStringLiteral("100.0%"));
    // The limits in per cent of what the user sees: 10 % to 1600 %.
    QCOMPARE(offered_items.first(), QStringLiteral("12.5%"));
    QCOMPARE(offered_items.at(offered_items.size() - 2), QStringLiteral("1600.0%"));
    if (zoom < 0) {
      const QSize size = fixture.area->maximumViewportSize();
      zoom = qMin(float(size.width() - 1) / 2000.0f, float(size.height() - 1) / 1500.0f);
    }
    QVERIFY2(same_zoom(fixture.view->get_zoom(), zoom),
             qPrintable(QString::number(fixture.view->get_zoom())));
    QCOMPARE(zoomed.count(), accept ? 1 : 0);
    settle();
  }
};

ORQ_TEST_REGISTER(TST_SET_ZOOM_DLG);
#include "tst_set_zoom_dlg.moc"
