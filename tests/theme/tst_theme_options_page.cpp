// The options page driven as a user drives it: rows, buttons, the real
// colour and font dialogs.
#include "orq_test_support.h"

#include <orq.h>

#include <gen_settings.h>

#include <QColorDialog>
#include <QFontDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QTabWidget>
#include <QTreeWidget>

namespace {
// Answers the next modal dialog once it is up.
template <typename DIALOG>
void answer_next(const std::function<void(DIALOG*)>& answer)
{
  auto* poll = new QTimer;
  QObject::connect(poll, &QTimer::timeout, [poll, answer] {
    if (auto* dialog = qobject_cast<DIALOG*>(QApplication::activeModalWidget())) {
      poll->stop();
      poll->deleteLater();
      answer(dialog);
    }
  });
  poll->start(10);
}

QTreeWidgetItem* row(QTreeWidget* list, const QString& resource_name)
{
  for (int i = 0; i < list->topLevelItemCount(); ++i)
    if (list->topLevelItem(i)->toolTip(0) == resource_name)
      return list->topLevelItem(i);
  return nullptr;
}

QPushButton* button(QWidget* page, const QString& text)
{
  for (QPushButton* b : page->findChildren<QPushButton*>())
    if (b->text() == text)
      return b;
  return nullptr;
}

QString stored(const QString& key, const QString& name)
{
  QSettings file(gen_settings().file_name(), QSettings::IniFormat);
  return file.value(key + QLatin1Char('/') + name).toString();
}
}  // namespace

class TST_THEME_OPTIONS_PAGE : public QObject {
  Q_OBJECT
private slots:
  void initTestCase() { orq_test_strict_messages(); }

  void cleanup()
  {
    ORQ_GDI_MANAGER* mgr = ORQ_GDI_MANAGER::get_instance();
    mgr->reset_colors({ORQ_GED_NET_COLOR, ORQ_GENERAL_BACKGROUND_COLOR});
    mgr->reset_fonts({ORQ_GUI_FONT});
  }

  void lists_every_changeable_colour_and_font()
  {
    ORQ_THEME_OPTIONS_PAGE page;
    QCOMPARE(page.get_color_list()->topLevelItemCount(), 427);
    QCOMPARE(page.get_font_list()->topLevelItemCount(), 78);
    QVERIFY(row(page.get_color_list(), QStringLiteral("ORQ_GENERAL_BACKGROUND_COLOR")));
    QVERIFY(!row(page.get_color_list(), QStringLiteral("ORQ_RED_COLOR")));
    QVERIFY(!row(page.get_font_list(), QStringLiteral("ORQ_TOOLTIP_FONT")));
    QCOMPARE(ORQ_THEME_OPTIONS_PAGE::display_name(QStringLiteral("ORQ_GED_NET_SELECTED_COLOR")),
             QStringLiteral("GED: Net Selected"));
    QCOMPARE(ORQ_THEME_OPTIONS_PAGE::display_name(QStringLiteral("ORQ_GUI_BOLD_FONT")), QStringLiteral("Gui Bold"));
  }

  void colour_picked_in_the_dialog_takes_effect_data()
  {
    QTest::addColumn<bool>("accept");
    QTest::newRow("chosen") << true;
    QTest::newRow("cancelled") << false;
  }

  void colour_picked_in_the_dialog_takes_effect()
  {
    QFETCH(bool, accept);
    ORQ_THEME_OPTIONS_PAGE page;
    page.show();
    QVERIFY(QTest::qWaitForWindowExposed(&page));
    QSignalSpy changed(&page, &ORQ_THEME_OPTIONS_PAGE::theme_changed);
    QTreeWidgetItem* item = row(page.get_color_list(), QStringLiteral("ORQ_GED_NET_COLOR"));
    page.get_color_list()->setCurrentItem(item);
    answer_next<QColorDialog>([accept](QColorDialog* dialog) {
      dialog->setCurrentColor(QColor(0x12, 0x34, 0x56));
      accept ? dialog->accept() : dialog->reject();
    });
    QTest::mouseClick(button(&page, QStringLiteral("&Change...")), Qt::LeftButton);
    if (accept) {
      QCOMPARE(ORQ_COLOR(ORQ_GED_NET_COLOR).get_color(), QColor(0x12, 0x34, 0x56));
      QCOMPARE(changed.count(), 1);
      QCOMPARE(item->text(1), QStringLiteral("#123456"));
      QVERIFY(item->font(0).bold());
    } else {
      QCOMPARE(ORQ_COLOR(ORQ_GED_NET_COLOR).get_color().name(), QStringLiteral("#1b5e20"));
      QCOMPARE(changed.count(), 0);
    }
    QTest::mouseClick(button(&page, QStringLiteral("&Reset")), Qt::LeftButton);
    QCOMPARE(ORQ_COLOR(ORQ_GED_NET_COLOR).get_color().name(), QStringLiteral("#1b5e20"));
    QCOMPARE(item->text(1), QStringLiteral("#1b5e20"));
  }

  void font_chosen_in_the_dialog_takes_effect()
  {
    ORQ_THEME_OPTIONS_PAGE page;
    page.show();
    QVERIFY(QTest::qWaitForWindowExposed(&page));
    page.get_tabs()->setCurrentWidget(page.get_font_list());
    page.get_font_list()->setCurrentItem(row(page.get_font_list(), QStringLiteral("ORQ_GUI_FONT")));
    answer_next<QFontDialog>([](QFontDialog* dialog) {
      QFont font(QStringLiteral("DejaVu Serif"), 15);
      font.setItalic(true);
      dialog->setCurrentFont(font);
      dialog->accept();
    });
    QTest::mouseClick(button(&page, QStringLiteral("&Change...")), Qt::LeftButton);
    const ORQ_FONT font(ORQ_GUI_FONT);
    QCOMPARE(font.get_face_name(), QStringLiteral("DejaVu Serif"));
    QCOMPARE(font.get_point_size(), 15);
    QVERIFY(font.get_italic());
    QCOMPARE(font.get_text_color(), ORQ_COLOR(ORQ_WINDOW_TEXT_COLOR));  // colours are kept
  }

  void apply_keeps_changes_and_revert_undoes_them()
  {
    ORQ_THEME_OPTIONS_PAGE page;
    ORQ_COLOR::set_default_color(ORQ_GED_NET_COLOR, QColor(0x22, 0x22, 0x22));
    page.apply();
    QCOMPARE(stored(ORQ_GDI_MANAGER::k_colors_key, QStringLiteral("ORQ_GED_NET_COLOR")), QStringLiteral("#222222"));
    QCOMPARE(stored(ORQ_GDI_MANAGER::k_colors_key, QStringLiteral("Color_version")), QStringLiteral("11"));
    QCOMPARE(stored(ORQ_GDI_MANAGER::k_fonts_key, QStringLiteral("Font_version")), QStringLiteral("11"));

    ORQ_THEME_OPTIONS_PAGE second;
    ORQ_COLOR::set_default_color(ORQ_GED_NET_COLOR, QColor(0x33, 0x33, 0x33));
    ORQ_COLOR::set_default_color(ORQ_GENERAL_BACKGROUND_COLOR, QColor(0x44, 0x44, 0x44));
    second.revert();
    QCOMPARE(ORQ_COLOR(ORQ_GED_NET_COLOR).get_color(), QColor(0x22, 0x22, 0x22));
    QCOMPARE(ORQ_COLOR(ORQ_GENERAL_BACKGROUND_COLOR).get_color(), QGuiApplication::palette().color(QPalette::Window));
    ORQ_COLOR::reset_colors({ORQ_GED_NET_COLOR});
    second.apply();
    QCOMPARE(stored(ORQ_GDI_MANAGER::k_colors_key, QStringLiteral("ORQ_GED_NET_COLOR")), QString());
  }

  void filter_hides_rows_that_do_not_match()
  {
    ORQ_THEME_OPTIONS_PAGE page;
    page.show();
    QVERIFY(QTest::qWaitForWindowExposed(&page));
    auto* filter = page.findChild<QLineEdit*>();
    QTest::keyClicks(filter, QStringLiteral("msw"));
    int visible = 0;
    for (int i = 0; i < page.get_color_list()->topLevelItemCount(); ++i)
      visible += page.get_color_list()->topLevelItem(i)->isHidden() ? 0 : 1;
    QCOMPARE(visible, 7);
    filter->clear();
    visible = 0;
    for (int i = 0; i < page.get_color_list()->topLevelItemCount(); ++i)
      visible += page.get_color_list()->topLevelItem(i)->isHidden() ? 0 : 1;
    QCOMPARE(visible, 427);
  }
};

ORQ_TEST_REGISTER(TST_THEME_OPTIONS_PAGE);
#include "tst_theme_options_page.moc"
