// ORQ_MDI_AREA with real documents, tab bars and clicks: tab titles and
// closing by title (a refusing document stays, the base class closes
// nothing behind our back), the user's tab choice, tab tool tips, the
// bulletin banner and web pictures, and the page each picture opens.
#include "orq_test_support.h"

#include <orq.h>

#include <gen_config_vars.h>
#include <gen_message_service.h>
#include <gen_settings.h>
#include <gen_web_locator.h>

#include <QCloseEvent>
#include <QFile>
#include <QImage>
#include <QLabel>
#include <QMdiSubWindow>
#include <QPainter>
#include <QPointer>
#include <QStyle>
#include <QTabBar>
#include <QTemporaryDir>

namespace {
const QString kTabsName = QStringLiteral("mdi_tabs");

// A document that counts the requests to close it and may refuse them.
class DOCUMENT : public QWidget {
public:
  explicit DOCUMENT(const QString& title, bool refuse = false)
      : m_refuse(refuse)
  {
    setWindowTitle(title);
  }
  int m_close_requests = 0;

protected:
  void closeEvent(QCloseEvent* event) override
  {
    ++m_close_requests;
    if (m_refuse)
      event->ignore();
    else
      event->accept();
  }

private:
  bool m_refuse;
};

class RECORDING_WEB_LOCATOR : public GEN_WEB_LOCATOR {
public:
  bool open_page(int page) override
  {
    m_pages.append(page);
    return true;
  }
  QList<int> m_pages;
};

class RECORDING_MESSAGES : public GEN_MESSAGE_SERVICE {
public:
  void debug_log(const QString& tag, const QString& text) override { m_lines.append(tag + ": " + text); }
  QStringList m_lines;
};

class BETA_CONFIG_VARS : public GEN_CONFIG_VARS {
public:
  bool get_bool(const QString& name, bool default_value) override
  {
    return name == QLatin1String("show_beta_background") ? true : default_value;
  }
  int get_int(const QString&, int default_value) override { return default_value; }
  QString get_string(const QString&, const QString& default_value) override { return default_value; }
};

QTabBar* tab_bar(const ORQ_MDI_AREA& area)
{
  return area.findChild<QTabBar*>(QString(), Qt::FindDirectChildrenOnly);
}

QStringList tab_texts(const ORQ_MDI_AREA& area)
{
  QStringList texts;
  if (QTabBar* bar = tab_bar(area))
    for (int i = 0; i < bar->count(); ++i)
      texts << bar->tabText(i);
  return texts;
}

QMdiSubWindow* add_document(ORQ_MDI_AREA& area, DOCUMENT* document)
{
  QMdiSubWindow* sub = area.addSubWindow(document);
  sub->show();
  return sub;
}

QImage label_image(const QLabel* label)
{
  return label->pixmap(Qt::ReturnByValue).toImage();
}
} // namespace

class TST_MDI_AREA : public QObject {
  Q_OBJECT
private slots:
  void initTestCase() { orq_test_strict_messages(); }
  void init() { gen_settings().remove(GEN_SETTINGS::group_key(2), kTabsName); }
  void cleanup()
  {
    gen_settings().remove(GEN_SETTINGS::group_key(2), kTabsName);
    gen_set_web_locator(nullptr);
    gen_set_message_service(nullptr);
    gen_set_config_vars(nullptr);
  }

  void tabs_by_default_with_the_tab_bar_settled()
  {
    ORQ_MDI_AREA area;
    QCOMPARE(area.viewMode(), QMdiArea::TabbedView);
    QVERIFY(area.tabsClosable());
    QVERIFY(area.tabsMovable());
    QTabBar* bar = tab_bar(area);
    QVERIFY(bar);
    QCOMPARE(bar->elideMode(), Qt::ElideNone);
    QVERIFY(bar->documentMode());
    QVERIFY(!bar->expanding());
    QCOMPARE(area.background().color(), ORQ_COLOR(ORQ_WINDOW_BACKGROUND_COLOR).get_color());
  }

  void sub_windows_when_the_user_turned_tabs_off()
  {
    gen_settings().set_group_bool(2, kTabsName, false);
    ORQ_MDI_AREA area;
    QCOMPARE(area.viewMode(), QMdiArea::SubWindowView);
    QVERIFY(!tab_bar(area));

    gen_settings().set_group_bool(2, kTabsName, true);
    area.set_tabs();
    QCOMPARE(area.viewMode(), QMdiArea::TabbedView);
    QVERIFY(tab_bar(area));
    QCOMPARE(tab_bar(area)->elideMode(), Qt::ElideNone);
  }

  void modified_document_shows_a_star_in_its_tab()
  {
    ORQ_MDI_AREA area;
    auto* doc = new DOCUMENT(QStringLiteral("name[*]"));
    add_document(area, doc);
    add_document(area, new DOCUMENT(QStringLiteral("other")));
    QCOMPARE(tab_texts(area), QStringList({"name", "other"}));
    doc->setWindowModified(true);
    QTRY_COMPARE(tab_texts(area), QStringList({"name*", "other"}));

    // The tab's text carries the star, and closing by it still finds the document.
    QPointer<DOCUMENT> watch(doc);
    area.close_tab(0);
    QTRY_VERIFY(watch.isNull());
    QCOMPARE(tab_texts(area), QStringList({"other"}));
  }

  void close_tab_closes_the_first_document_of_that_title()
  {
    ORQ_MDI_AREA area;
    area.resize(500, 400);
    area.show();
    QVERIFY(QTest::qWaitForWindowExposed(&area));
    auto* first = new DOCUMENT(QStringLiteral("same"), true);
    auto* second = new DOCUMENT(QStringLiteral("same"), true);
    auto* third = new DOCUMENT(QStringLiteral("third"), true);
    for (DOCUMENT* d : {first, second, third})
      add_document(area, d);
    QCOMPARE(tab_texts(area), QStringList({"same", "same", "third"}));

    area.close_tab(1);
    QCOMPARE(first->m_close_requests, 1);
    QCOMPARE(second->m_close_requests, 0);
    QCOMPARE(third->m_close_requests, 0);
    QCOMPARE(area.subWindowList().size(), 3); // refused

    area.close_tab(2);
    QCOMPARE(third->m_close_requests, 1);
    area.close_tab(7);
    area.close_tab(-1);
    QCOMPARE(first->m_close_requests + second->m_close_requests + third->m_close_requests, 2);
    QCOMPARE(tab_texts(area), QStringList({"same", "same", "third"}));
  }

  void close_tab_closes_exactly_one_document()
  {
    ORQ_MDI_AREA area;
    auto* a = new DOCUMENT(QStringLiteral("alpha"));
    auto* b = new DOCUMENT(QStringLiteral("beta"));
    auto* c = new DOCUMENT(QStringLiteral("gamma"));
    QPointer<DOCUMENT> watch_b(b);
    for (DOCUMENT* d : {a, b, c})
      add_document(area, d);
    area.close_tab(1);
    QTRY_VERIFY(watch_b.isNull());
    QCOMPARE(tab_texts(area), QStringList({"alpha", "gamma"}));
    QCOMPARE(a->m_close_requests, 0);
    QCOMPARE(c->m_close_requests, 0);
  }

  void tab_close_button_goes_through_close_tab_only()
  {
    ORQ_MDI_AREA area;
    area.resize(500, 400);
    area.show();
    QVERIFY(QTest::qWaitForWindowExposed(&area));
    auto* first = new DOCUMENT(QStringLiteral("same"));
    auto* second = new DOCUMENT(QStringLiteral("same"));
    QPointer<DOCUMENT> watch_first(first);
    QPointer<DOCUMENT> watch_second(second);
    add_document(area, first);
    add_document(area, second);
    QTabBar* bar = tab_bar(area);
    const auto side = static_cast<QTabBar::ButtonPosition>(
        bar->style()->styleHint(QStyle::SH_TabBar_CloseButtonPosition, nullptr, bar));
    QWidget* button = bar->tabButton(1, side);
    QVERIFY(button);

    // The second tab's button: by title the first document goes, and the
    // base class must not close the second one as well.
    QTest::mouseClick(button, Qt::LeftButton);
    QTRY_VERIFY(watch_first.isNull());
    QVERIFY(!watch_second.isNull());
    QCOMPARE(second->m_close_requests, 0);
    QCOMPARE(tab_texts(area), QStringList({"same"}));
  }

  void refusing_document_stays_after_its_close_button()
  {
    ORQ_MDI_AREA area;
    area.resize(500, 400);
    area.show();
    QVERIFY(QTest::qWaitForWindowExposed(&area));
    auto* doc = new DOCUMENT(QStringLiteral("keep me"), true);
    add_document(area, doc);
    QTabBar* bar = tab_bar(area);
    const auto side = static_cast<QTabBar::ButtonPosition>(
        bar->style()->styleHint(QStyle::SH_TabBar_CloseButtonPosition, nullptr, bar));
    QTest::mouseClick(bar->tabButton(0, side), Qt::LeftButton);
    QCOMPARE(doc->m_close_requests, 1);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(area.subWindowList().size(), 1);
    QCOMPARE(tab_texts(area), QStringList({"keep me"}));
  }

  void tab_tooltip_ignores_marker_and_blanks()
  {
    ORQ_MDI_AREA area;
    add_document(area, new DOCUMENT(QStringLiteral("doc[*]")));
    add_document(area, new DOCUMENT(QStringLiteral("Doc")));
    add_document(area, new DOCUMENT(QStringLiteral("doc")));
    QTabBar* bar = tab_bar(area);
    area.update_tab_tooltip(QStringLiteral("doc[*]"), QStringLiteral("  /work/doc[*]  "));
    QCOMPARE(bar->tabToolTip(0), QStringLiteral("/work/doc"));
    QCOMPARE(bar->tabToolTip(1), QString()); // case counts
    QCOMPARE(bar->tabToolTip(2), QStringLiteral("/work/doc"));

    area.update_tab_tooltip(QStringLiteral("[*]"), QStringLiteral("nothing"));
    area.update_tab_tooltip(QString(), QStringLiteral("nothing"));
    QCOMPARE(bar->tabToolTip(0), QStringLiteral("/work/doc"));
    QCOMPARE(bar->tabToolTip(1), QString());
  }

  void tab_tooltips_follow_their_sub_windows()
  {
    ORQ_MDI_AREA area;
    auto* first = new DOCUMENT(QStringLiteral("one"));
    first->setToolTip(QStringLiteral("document tip"));
    QMdiSubWindow* first_sub = add_document(area, first);
    auto* second = new DOCUMENT(QStringLiteral("two"));
    second->setToolTip(QStringLiteral("widget tip"));
    QMdiSubWindow* second_sub = add_document(area, second);
    second_sub->setToolTip(QStringLiteral("sub-window tip"));
    Q_UNUSED(first_sub);
    area.update_tab_tooltips();
    QTabBar* bar = tab_bar(area);
    QCOMPARE(bar->tabToolTip(0), QStringLiteral("document tip"));
    QCOMPARE(bar->tabToolTip(1), QStringLiteral("sub-window tip"));

    gen_settings().set_group_bool(2, kTabsName, false);
    ORQ_MDI_AREA windows;
    add_document(windows, new DOCUMENT(QStringLiteral("x")));
    windows.update_tab_tooltips(); // no tab bar: nothing to do
    windows.update_tab_tooltip(QStringLiteral("x"), QStringLiteral("tip"));
  }

  void overlay_pictures_are_clickable_and_named()
  {
    ORQ_MDI_AREA area;
    const QStringList names{"bulletin_banner", "documentation_image", "notification_center_image"};
    const QList<ORQ_PIXMAP_ENUM> pixmaps{ORQ_UPDATE_AVAILABLE_PIXMAP, ORQ_DOCUMENTATION_URL_PIXMAP,
                                         ORQ_NOTIFICATION_CENTER_PIXMAP};
    for (int i = 0; i < names.size(); ++i) {
      auto* label = area.findChild<QLabel*>(names.at(i));
      QVERIFY2(label, qPrintable(names.at(i)));
      QCOMPARE(label->parentWidget(), area.viewport());
      QCOMPARE(label->cursor().shape(), Qt::PointingHandCursor);
      QCOMPARE(label->sizePolicy().horizontalPolicy(), QSizePolicy::Fixed);
      QCOMPARE(label->sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
      QVERIFY(!label->accessibleName().isEmpty());
      QCOMPARE(label_image(label), orq_get_pixmap(pixmaps.at(i)).toImage());
    }
  }

  void pictures_sit_in_the_lower_right_corner()
  {
    ORQ_MDI_AREA area;
    area.resize(600, 500);
    area.show();
    QVERIFY(QTest::qWaitForWindowExposed(&area));
    const QRect viewport = area.viewport()->rect();
    auto* bulletin = area.findChild<QLabel*>(QStringLiteral("bulletin_banner"));
    auto* documentation = area.findChild<QLabel*>(QStringLiteral("documentation_image"));
    auto* notification = area.findChild<QLabel*>(QStringLiteral("notification_center_image"));
    QVERIFY(bulletin->geometry().bottom() <= documentation->geometry().top());
    QVERIFY(documentation->geometry().bottom() <= notification->geometry().top());
    QVERIFY(notification->geometry().bottom() > viewport.height() - 40);
    QVERIFY(bulletin->geometry().right() > viewport.width() - 40);
  }

  void pictures_open_their_pages()
  {
    RECORDING_WEB_LOCATOR locator;
    gen_set_web_locator(&locator);
    ORQ_MDI_AREA area;
    area.resize(600, 500);
    area.show();
    QVERIFY(QTest::qWaitForWindowExposed(&area));
    QTest::mouseClick(area.findChild<QLabel*>(QStringLiteral("documentation_image")), Qt::LeftButton);
    QTest::mouseClick(area.findChild<QLabel*>(QStringLiteral("notification_center_image")), Qt::LeftButton);
    QTest::mouseClick(area.findChild<QLabel*>(QStringLiteral("bulletin_banner")), Qt::LeftButton);
    area.on_web_bitmap_pressed();
    QCOMPARE(locator.m_pages, QList<int>({11, 12, 5, 5}));
    gen_set_web_locator(nullptr);

    // The default service without a base address does nothing.
    QTest::mouseClick(area.findChild<QLabel*>(QStringLiteral("documentation_image")), Qt::LeftButton);
    QCOMPARE(locator.m_pages.size(), 4);
  }

  void bulletin_banner_by_kind_data()
  {
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("pixmap");
    QTest::newRow("ready") << 1 << int(ORQ_UPDATE_READY_PIXMAP);
    QTest::newRow("failed") << 2 << int(ORQ_UPDATE_FAILED_PIXMAP);
    QTest::newRow("settings") << 3 << int(ORQ_UPDATE_SETTINGS_PIXMAP);
    QTest::newRow("downloading") << 4 << int(ORQ_UPDATE_DOWNLOADING_PIXMAP);
    QTest::newRow("installed") << 5 << int(ORQ_UPDATE_INSTALLED_PIXMAP);
    QTest::newRow("zero is available") << 0 << int(ORQ_UPDATE_AVAILABLE_PIXMAP);
    QTest::newRow("unknown is available") << 42 << int(ORQ_UPDATE_AVAILABLE_PIXMAP);
  }
  void bulletin_banner_by_kind()
  {
    QFETCH(int, kind);
    QFETCH(int, pixmap);
    ORQ_MDI_AREA area;
    auto* banner = area.findChild<QLabel*>(QStringLiteral("bulletin_banner"));
    // Start from a different picture, so the change itself is seen.
    area.redraw_bulletin_bitmap(kind == 1 ? 2 : 1);
    QVERIFY(label_image(banner) != orq_get_pixmap(static_cast<ORQ_PIXMAP_ENUM>(pixmap)).toImage());
    area.redraw_bulletin_bitmap(kind);
    QCOMPARE(label_image(banner), orq_get_pixmap(static_cast<ORQ_PIXMAP_ENUM>(pixmap)).toImage());
  }

  void web_bitmap_replaces_the_banner_it_names()
  {
    RECORDING_MESSAGES messages;
    gen_set_message_service(&messages);
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    QImage picture(40, 20, QImage::Format_ARGB32);
    picture.fill(QColor(10, 200, 30));
    const QString png = dir.filePath(QStringLiteral("banner.png"));
    QVERIFY(picture.save(png));
    const QString garbage = dir.filePath(QStringLiteral("broken.png"));
    {
      QFile file(garbage);
      QVERIFY(file.open(QIODevice::WriteOnly));
      file.write("not a picture at all");
    }

    ORQ_MDI_AREA area;
    auto* banner = area.findChild<QLabel*>(QStringLiteral("bulletin_banner"));
    const QImage before = label_image(banner);

    area.show_bulletin_web_bitmap(true, png, 1);
    QCOMPARE(label_image(banner), before);
    area.show_bulletin_web_bitmap(false, png, 2);
    QCOMPARE(label_image(banner), before);
    area.show_bulletin_web_bitmap(false, garbage, 1);
    QCOMPARE(label_image(banner), before);
    area.show_bulletin_web_bitmap(false, dir.filePath(QStringLiteral("missing.png")), 1);
    QCOMPARE(label_image(banner), before);

    area.show_bulletin_web_bitmap(false, png, 1);
    QCOMPARE(label_image(banner).convertToFormat(QImage::Format_ARGB32), picture);
    QCOMPARE(messages.m_lines, QStringList({"ORQ: Showing web bitmap #1", "ORQ: Showing web bitmap #2",
                                            "ORQ: Showing web bitmap #1", "ORQ: Showing web bitmap #1",
                                            "ORQ: Showing web bitmap #1"}));
  }

  void watermark_is_painted_in_the_lower_left_corner()
  {
    ORQ_MDI_AREA area;
    area.resize(600, 500);
    area.show();
    QVERIFY(QTest::qWaitForWindowExposed(&area));
    const QImage shot = area.viewport()->grab().toImage();
    const QColor background = ORQ_COLOR(ORQ_WINDOW_BACKGROUND_COLOR).get_color();
    const QPixmap watermark = orq_get_pixmap(ORQ_MDI_WATERMARK_PIXMAP);
    const qreal ratio = shot.devicePixelRatio();
    QCOMPARE(shot.pixelColor(QPoint(int(300 * ratio), int(5 * ratio))), background);
    int marked = 0;
    for (int y = shot.height() - int((watermark.height() + 10) * ratio); y < shot.height() - int(10 * ratio);
         y += 4)
      for (int x = int(10 * ratio); x < int((10 + watermark.width()) * ratio); x += 4)
        marked += shot.pixelColor(x, y) != background ? 1 : 0;
    QVERIFY2(marked > 50, qPrintable(QString::number(marked)));
  }

  void beta_background_when_switched_on()
  {
    QVERIFY(QFile::exists(QStringLiteral(":icons/orq_beta.png")));
    BETA_CONFIG_VARS vars;
    gen_set_config_vars(&vars);
    ORQ_MDI_AREA area;
    gen_set_config_vars(nullptr);
    QCOMPARE(area.background().texture().toImage(), QPixmap(QStringLiteral(":icons/orq_beta.png")).toImage());
  }
};

ORQ_TEST_REGISTER(TST_MDI_AREA);

#include "tst_mdi_area.moc"
