#include "orq_test_support.h"

#include <orq_dock_widget.h>
#include <orq_dock_widget_button.h>
#include <orq_dock_widget_button_bar.h>
#include <orq_dock_widget_titlebar_widget.h>
#include <orq_main_window.h>

#include <QBoxLayout>
#include <QFrame>
#include <QLabel>
#include <QMenu>
#include <QMouseEvent>
#include <QToolButton>
#include <QtTest>

#include <tinyxml2.h>

namespace {

// The central widget of a tool: a press anywhere in it closes slid-out docks.
class CENTRAL : public QLabel {
public:
  explicit CENTRAL(ORQ_MAIN_WINDOW* window)
      : QLabel(QStringLiteral("documents"))
      , m_window(window)
  {
  }

protected:
  void mousePressEvent(QMouseEvent* event) override
  {
    m_window->hide_unpinned_widgets(event);
    QLabel::mousePressEvent(event);
  }

private:
  ORQ_MAIN_WINDOW* m_window;
};

struct WINDOW {
  ORQ_MAIN_WINDOW window;
  CENTRAL* central;

  WINDOW()
      : central(new CENTRAL(&window))
  {
    window.setCentralWidget(central);
    window.resize(1000, 700);
    window.move(40, 30);
  }

  ORQ_DOCK_WIDGET* dock(const QString& title, Qt::DockWidgetArea area)
  {
    auto* dock = new ORQ_DOCK_WIDGET(title, &window);
    dock->setObjectName(title);
    dock->setWidget(new QLabel(title));
    window.addDockWidget(area, dock);
    return dock;
  }

  bool show()
  {
    window.show();
    return QTest::qWaitForWindowExposed(&window);
  }

  ORQ_DOCK_WIDGET_BUTTON_BAR* bar(Qt::ToolBarArea area) const
  {
    return window.get_dock_bar_of_area().value(area);
  }
};

QToolButton* titlebar_button(ORQ_DOCK_WIDGET* dock, ORQ_DOCK_WIDGET_TITLEBAR_WIDGET_BUTTON_ENUM which)
{
  return dock->get_titlebar()->get_title_bar_button(which);
}

// Unpins the dock with a click on its pin button, as a user does.
void unpin(ORQ_DOCK_WIDGET* dock)
{
  QToolButton* pin = titlebar_button(dock, ORQ_DOCK_WIDGET_TITLEBAR_PIN_BUTTON);
  QVERIFY(pin && pin->isVisible());
  QTest::mouseClick(pin, Qt::LeftButton);
}

QStringList names_in(QLayout* layout)
{
  QStringList names;
  for (int i = 0; i < layout->count(); ++i)
    if (QWidget* widget = layout->itemAt(i)->widget())
      names << widget->objectName();
  return names;
}

} // namespace

class TST_DOCK_WIDGET : public QObject {
  Q_OBJECT
private slots:
  void initTestCase() { orq_test_strict_messages(); }

  void title_bar_holds_both_button_sets()
  {
    WINDOW w;
    ORQ_DOCK_WIDGET* dock = w.dock(QStringLiteral("Messages"), Qt::LeftDockWidgetArea);
    ORQ_DOCK_WIDGET_TITLEBAR_WIDGET* bar = dock->get_titlebar();
    QCOMPARE(dock->titleBarWidget(), bar);
    QCOMPARE(bar->layout()->objectName(), QStringLiteral("verticalLayout_2"));
    QCOMPARE(names_in(bar->layout()), QStringList({"m_frame", "m_frame_v"}));
    QCOMPARE(names_in(bar->findChild<QFrame*>("m_frame")->layout()),
             QStringList({"m_title", "m_float_button", "m_search_button", "m_menu_button", "m_pin_button",
                          "m_detach_button", "m_close_button"}));
    QCOMPARE(bar->findChild<QFrame*>("m_frame")->layout()->objectName(), QStringLiteral("m_h_layout"));
    QCOMPARE(names_in(bar->findChild<QFrame*>("m_frame_v")->layout()),
             QStringList({"m_close_button_v", "m_detach_button_v", "m_pin_button_v", "m_menu_button_v",
                          "m_search_button_v", "m_float_button_v", "m_title_v"}));
    QCOMPARE(bar->findChild<QFrame*>("m_frame_v")->layout()->objectName(), QStringLiteral("m_v_layout"));
    const QList<QPair<const char*, QString>> tips{{"m_menu_button", "Open Menu"},
                                                  {"m_pin_button", "Auto Hide"},
                                                  {"m_detach_button", "Detach"},
                                                  {"m_close_button", "Close"}};
    for (const auto& tip : tips) {
      for (const QString& name : {QString::fromLatin1(tip.first), QString::fromLatin1(tip.first) + "_v"}) {
        auto* button = bar->findChild<QToolButton*>(name);
        QVERIFY2(button, qPrintable(name));
        QCOMPARE(button->toolTip(), tip.second);
        QCOMPARE(button->accessibleName(), tip.second);
      }
    }
    QCOMPARE(bar->findChild<QToolButton*>("m_pin_button")->text(), QStringLiteral("Auto Hide"));
    QCOMPARE(bar->text(), QStringLiteral("Messages"));
    dock->setWindowTitle(QStringLiteral("Compile Messages"));
    QCOMPARE(bar->text(), QStringLiteral("Compile Messages"));
    QCOMPARE(dock->accessibleName(), QStringLiteral("Compile Messages"));
  }

  void unpinning_leaves_a_button_in_the_bar_of_its_edge_data()
  {
    QTest::addColumn<int>("area");
    QTest::addColumn<int>("bar");
    QTest::newRow("left") << int(Qt::LeftDockWidgetArea) << int(Qt::LeftToolBarArea);
    QTest::newRow("right") << int(Qt::RightDockWidgetArea) << int(Qt::RightToolBarArea);
    QTest::newRow("top, vertical title bar") << int(Qt::TopDockWidgetArea) << int(Qt::TopToolBarArea);
    QTest::newRow("bottom, vertical title bar")
        << int(Qt::BottomDockWidgetArea) << int(Qt::BottomToolBarArea);
  }

  void unpinning_leaves_a_button_in_the_bar_of_its_edge()
  {
    QFETCH(int, area);
    QFETCH(int, bar);
    WINDOW w;
    ORQ_DOCK_WIDGET* dock = w.dock(QStringLiteral("Messages"), Qt::DockWidgetArea(area));
    QVERIFY(w.show());
    for (ORQ_DOCK_WIDGET_BUTTON_BAR* each : w.window.get_dock_bar_of_area())
      QVERIFY(each->isHidden());
    QCOMPARE(dock->get_area(), Qt::DockWidgetArea(area));
    unpin(dock);
    QVERIFY(dock->isHidden());
    QVERIFY(dock->is_minimized());
    QVERIFY(!dock->is_pinned());
    ORQ_DOCK_WIDGET_BUTTON* button = dock->get_button();
    QVERIFY(button);
    QCOMPARE(int(button->get_area()), bar);
    QVERIFY(w.bar(Qt::ToolBarArea(bar))->isVisible());
    QVERIFY(w.bar(Qt::ToolBarArea(bar))->get_button_action_map().contains(button));
    QVERIFY(button->isVisible());
    QCOMPARE(button->text(), QStringLiteral("Messages"));
    QCOMPARE(button->accessibleName(), QStringLiteral("Messages"));
    QVERIFY(!button->isChecked());
    const bool side = bar == Qt::LeftToolBarArea || bar == Qt::RightToolBarArea;
    QCOMPARE(button->sizeHint().height() > button->sizeHint().width(), side);

    // Pinning again takes the button out of the bar.
    QTest::mouseClick(button, Qt::LeftButton);
    QTRY_VERIFY(dock->isVisible());
    unpin(dock); // the same button now pins
    QVERIFY(dock->is_pinned());
    QCOMPARE(dock->get_visibility(), VISIBLE);
    QVERIFY(dock->isVisible());
    QVERIFY(w.bar(Qt::ToolBarArea(bar))->get_button_action_map().isEmpty());
    QVERIFY(w.bar(Qt::ToolBarArea(bar))->isHidden());
  }

  void a_bar_slides_out_one_dock_at_a_time()
  {
    WINDOW w;
    ORQ_DOCK_WIDGET* first = w.dock(QStringLiteral("Messages"), Qt::LeftDockWidgetArea);
    ORQ_DOCK_WIDGET* second = w.dock(QStringLiteral("Tcl Console"), Qt::LeftDockWidgetArea);
    ORQ_DOCK_WIDGET* right = w.dock(QStringLiteral("Properties"), Qt::RightDockWidgetArea);
    QVERIFY(w.show());
    unpin(first);
    unpin(second);
    unpin(right);
    QCOMPARE(w.bar(Qt::LeftToolBarArea)->get_button_action_map().size(), 2);
    QTest::mouseClick(right->get_button(), Qt::LeftButton);
    QTest::mouseClick(first->get_button(), Qt::LeftButton);
    QVERIFY(first->isVisible());
    QVERIFY(first->get_button()->isChecked());
    QTest::mouseClick(second->get_button(), Qt::LeftButton);
    QVERIFY(second->isVisible());
    QVERIFY(first->isHidden());
    QVERIFY(!first->get_button()->isChecked());
    QVERIFY2(right->isVisible(), "another bar's dock stays out");
    // A second click slides it back.
    QTest::mouseClick(second->get_button(), Qt::LeftButton);
    QVERIFY(second->isHidden());
    QVERIFY(!second->isFloating());
  }

  void slide_back_follows_the_margin_rule_data()
  {
    QTest::addColumn<int>("area");
    QTest::addColumn<QPoint>("offset"); // from the dock's top-left, or from its top-right with x < 0
    QTest::addColumn<bool>("from_right");
    QTest::addColumn<bool>("stays");
    QTest::newRow("right dock, mouse inside")
        << int(Qt::RightDockWidgetArea) << QPoint(20, 20) << false << true;
    QTest::newRow("right dock, mouse far to the right")
        << int(Qt::RightDockWidgetArea) << QPoint(200, 20) << true << true;
    QTest::newRow("right dock, mouse just left of it")
        << int(Qt::RightDockWidgetArea) << QPoint(-2, 20) << false << true;
    QTest::newRow("right dock, mouse left beyond the margin")
        << int(Qt::RightDockWidgetArea) << QPoint(-10, 20) << false << false;
    QTest::newRow("bottom dock, mouse below it")
        << int(Qt::BottomDockWidgetArea) << QPoint(20, 500) << false << true;
    QTest::newRow("bottom dock, mouse above beyond the margin")
        << int(Qt::BottomDockWidgetArea) << QPoint(20, -10) << false << false;
    QTest::newRow("left dock, mouse within the fixed slack")
        << int(Qt::LeftDockWidgetArea) << QPoint(2, 20) << true << true;
    QTest::newRow("left dock, mouse right of it")
        << int(Qt::LeftDockWidgetArea) << QPoint(10, 20) << true << false;
    QTest::newRow("left dock, mouse over the bar")
        << int(Qt::LeftDockWidgetArea) << QPoint(-10, 20) << false << false;
  }

  void slide_back_follows_the_margin_rule()
  {
    QFETCH(int, area);
    QFETCH(QPoint, offset);
    QFETCH(bool, from_right);
    QFETCH(bool, stays);
    WINDOW w;
    ORQ_DOCK_WIDGET* dock = w.dock(QStringLiteral("Messages"), Qt::DockWidgetArea(area));
    QVERIFY(w.show());
    unpin(dock);
    QTest::mouseClick(dock->get_button(), Qt::LeftButton);
    QVERIFY(dock->isVisible());
    const QPoint origin = from_right ? QPoint(dock->width(), 0) : QPoint(0, 0);
    QCursor::setPos(dock->mapToGlobal(origin + offset));
    QCOMPARE(QCursor::pos(), dock->mapToGlobal(origin + offset));
    QCOMPARE(dock->is_within_widget(3), stays);
    dock->delay_tick();
    QCOMPARE(dock->isVisible(), stays);
    QCOMPARE(dock->get_button()->isChecked(), stays);
  }

  void a_slid_out_dock_slides_back_by_itself_once_the_mouse_has_left()
  {
    WINDOW w;
    ORQ_DOCK_WIDGET* dock = w.dock(QStringLiteral("Messages"), Qt::RightDockWidgetArea);
    QVERIFY(w.show());
    unpin(dock);
    QCursor::setPos(dock->get_button()->mapToGlobal(QPoint(2, 2)));
    QTest::mouseClick(dock->get_button(), Qt::LeftButton);
    QVERIFY(dock->isVisible());
    // Over its own bar, beyond the far edge: it stays, checked twice a second.
    QTest::qWait(1200);
    QVERIFY(dock->isVisible());
    QCursor::setPos(dock->mapToGlobal(QPoint(-50, 10)));
    QTRY_VERIFY_WITH_TIMEOUT(dock->isHidden(), 3000);
    QVERIFY(!dock->get_button()->isChecked());
  }

  void a_click_outside_closes_slid_out_docks_only()
  {
    WINDOW w;
    ORQ_DOCK_WIDGET* unpinned = w.dock(QStringLiteral("Messages"), Qt::LeftDockWidgetArea);
    ORQ_DOCK_WIDGET* pinned = w.dock(QStringLiteral("Properties"), Qt::RightDockWidgetArea);
    QVERIFY(w.show());
    unpin(unpinned);
    QTest::mouseClick(unpinned->get_button(), Qt::LeftButton);
    QVERIFY(unpinned->isVisible());
    // A press inside the slid-out dock keeps it.
    QMouseEvent inside(QEvent::MouseButtonPress, QPointF(5, 5), unpinned->mapToGlobal(QPoint(5, 5)),
                       Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    w.window.hide_unpinned_widgets(&inside);
    QVERIFY(unpinned->isVisible());
    QTest::mouseClick(w.central, Qt::LeftButton, Qt::NoModifier, w.central->rect().center());
    QVERIFY(unpinned->isHidden());
    QVERIFY(!unpinned->get_button()->isChecked());
    QVERIFY(pinned->isVisible());
  }

  void closing_an_unpinned_dock_removes_its_button()
  {
    WINDOW w;
    ORQ_DOCK_WIDGET* dock = w.dock(QStringLiteral("Messages"), Qt::LeftDockWidgetArea);
    QVERIFY(w.show());
    unpin(dock);
    QTest::mouseClick(dock->get_button(), Qt::LeftButton);
    QTest::mouseClick(titlebar_button(dock, ORQ_DOCK_WIDGET_TITLEBAR_CLOSE_BUTTON), Qt::LeftButton);
    QVERIFY(dock->is_closed());
    QVERIFY(dock->isHidden());
    QVERIFY(!dock->is_pinned());
    QVERIFY(w.bar(Qt::LeftToolBarArea)->get_button_action_map().isEmpty());
    QVERIFY(w.bar(Qt::LeftToolBarArea)->isHidden());
    // Reopened, as the View menu does it: pinned and docked.
    dock->show();
    QVERIFY(dock->is_pinned());
    QCOMPARE(dock->get_visibility(), VISIBLE);
    QVERIFY(titlebar_button(dock, ORQ_DOCK_WIDGET_TITLEBAR_PIN_BUTTON)->isChecked());
    // Unpinned again, the dock finds its old button.
    ORQ_DOCK_WIDGET_BUTTON* button = dock->get_button();
    unpin(dock);
    QCOMPARE(dock->get_button(), button);
    QVERIFY(w.bar(Qt::LeftToolBarArea)->get_button_action_map().contains(button));
  }

  void title_bar_follows_the_edge_and_floating()
  {
    WINDOW w;
    ORQ_DOCK_WIDGET* dock = w.dock(QStringLiteral("Messages"), Qt::LeftDockWidgetArea);
    QVERIFY(w.show());
    auto* frame = dock->get_titlebar()->findChild<QFrame*>("m_frame");
    auto* frame_v = dock->get_titlebar()->findChild<QFrame*>("m_frame_v");
    QVERIFY(!(dock->features() & QDockWidget::DockWidgetVerticalTitleBar));
    w.window.addDockWidget(Qt::TopDockWidgetArea, dock);
    QTRY_COMPARE(dock->get_area(), Qt::TopDockWidgetArea);
    QVERIFY(dock->features() & QDockWidget::DockWidgetVerticalTitleBar);
    QVERIFY(frame_v->isVisible());
    QVERIFY(frame->isHidden());
    QTRY_VERIFY(dock->get_titlebar()->width() < dock->get_titlebar()->height());

    QTest::mouseClick(titlebar_button(dock, ORQ_DOCK_WIDGET_TITLEBAR_DETACH_BUTTON), Qt::LeftButton);
    QVERIFY(dock->isFloating());
    QVERIFY(dock->is_detached());
    QVERIFY(!(dock->features() & QDockWidget::DockWidgetVerticalTitleBar));
    QVERIFY(frame->isVisible());
    QVERIFY(dock->findChild<QToolButton*>("m_pin_button")->isHidden());
    QVERIFY(!dock->get_titlebar()->is_pin_available());

    dock->click_titlebar_button(ORQ_DOCK_WIDGET_TITLEBAR_DETACH_BUTTON);
    QVERIFY(!dock->isFloating());
    QVERIFY(dock->is_pinned());
    QCOMPARE(dock->get_visibility(), VISIBLE);
    QVERIFY(!dock->findChild<QToolButton*>("m_pin_button_v")->isHidden());
    QVERIFY(dock->get_titlebar()->is_pin_available());
  }

  void a_vertical_title_bar_the_tool_asked_for_stays_on_every_edge_data()
  {
    QTest::addColumn<int>("how"); // 0 setFeatures before docking, 1 description, 2 setFeatures on top
    QTest::newRow("features set by the tool") << 0;
    QTest::newRow("features from a description") << 1;
    QTest::newRow("features set anew while on top") << 2;
  }

  void a_vertical_title_bar_the_tool_asked_for_stays_on_every_edge()
  {
    QFETCH(int, how);
    WINDOW w;
    const QDockWidget::DockWidgetFeatures asked =
        QDockWidget::DockWidgetClosable | QDockWidget::DockWidgetVerticalTitleBar;
    ORQ_DOCK_WIDGET* dock = nullptr;
    if (how == 1) {
      dock = new ORQ_DOCK_WIDGET(&w.window, Qt::WindowFlags(),
                                 "<dock><setFeatures><f>DockWidgetClosable</f>"
                                 "<f>DockWidgetVerticalTitleBar</f></setFeatures></dock>");
      dock->setWidget(new QLabel(QStringLiteral("described")));
      w.window.addDockWidget(Qt::LeftDockWidgetArea, dock);
    } else {
      dock = w.dock(QStringLiteral("Messages"), how == 0 ? Qt::LeftDockWidgetArea : Qt::TopDockWidgetArea);
      if (how == 0)
        dock->setFeatures(asked);
    }
    QVERIFY(w.show());
    if (how == 2) {
      QTRY_COMPARE(dock->get_area(), Qt::TopDockWidgetArea);
      dock->setFeatures(asked);
    }
    QCOMPARE(dock->features(), asked);
    for (Qt::DockWidgetArea area :
         {Qt::TopDockWidgetArea, Qt::RightDockWidgetArea, Qt::BottomDockWidgetArea, Qt::LeftDockWidgetArea}) {
      w.window.addDockWidget(area, dock);
      QTRY_COMPARE(dock->get_area(), area);
      QCOMPARE(dock->features(), asked);
      QVERIFY(dock->get_titlebar()->findChild<QFrame*>("m_frame_v")->isVisible());
    }
  }

  void a_dock_in_no_area_hides_into_the_left_bar()
  {
    WINDOW w;
    ORQ_DOCK_WIDGET* docked = w.dock(QStringLiteral("Docked"), Qt::RightDockWidgetArea);
    auto* loose = new ORQ_DOCK_WIDGET(QStringLiteral("Loose"), &w.window);
    QVERIFY(w.show());
    QTRY_COMPARE(docked->get_area(), Qt::RightDockWidgetArea);
    loose->set_area(Qt::RightDockWidgetArea);
    QCOMPARE(w.window.dockWidgetArea(loose), Qt::NoDockWidgetArea);
    loose->add_button();
    QVERIFY(loose->get_button());
    QCOMPARE(loose->get_button()->get_area(), Qt::LeftToolBarArea);
    QVERIFY(w.bar(Qt::LeftToolBarArea)->get_button_action_map().contains(loose->get_button()));
    QVERIFY(!w.bar(Qt::RightToolBarArea)->get_button_action_map().contains(loose->get_button()));
  }

  void an_unpinned_dock_that_floats_leaves_its_bar()
  {
    WINDOW w;
    ORQ_DOCK_WIDGET* dock = w.dock(QStringLiteral("Messages"), Qt::RightDockWidgetArea);
    QVERIFY(w.show());
    unpin(dock);
    QTest::mouseClick(dock->get_button(), Qt::LeftButton);
    dock->click_titlebar_button(ORQ_DOCK_WIDGET_TITLEBAR_DETACH_BUTTON);
    QVERIFY(dock->is_detached());
    QVERIFY(dock->is_pinned());
    QVERIFY(w.bar(Qt::RightToolBarArea)->get_button_action_map().isEmpty());
  }

  void without_a_main_window_there_is_no_auto_hide()
  {
    QWidget parent;
    ORQ_DOCK_WIDGET dock(QStringLiteral("Loose"), &parent);
    QVERIFY(!dock.get_parent());
    QVERIFY(!dock.is_pin_available());
    QVERIFY(!dock.get_titlebar()->is_pin_available());
    QVERIFY(dock.findChild<QToolButton*>("m_pin_button")->isHidden());
    QVERIFY(dock.findChild<QToolButton*>("m_pin_button_v")->isHidden());
    dock.set_pushpin_button_visibility(true);
    QVERIFY(dock.findChild<QToolButton*>("m_pin_button")->isHidden());
    QCOMPARE(orq_test_internal_error([&] { dock.get_titlebar()->toggle_pin(false); }),
             QStringLiteral("Dock widget parent is not set up yet"));
    QCOMPARE(orq_test_internal_error([&] { dock.set_visible_and_raise(static_cast<QAction*>(nullptr)); }),
             QStringLiteral("action"));
  }

  void title_bar_buttons_do_what_they_say()
  {
    WINDOW w;
    ORQ_DOCK_WIDGET* dock = w.dock(QStringLiteral("Messages"), Qt::LeftDockWidgetArea);
    QVERIFY(w.show());
    QSignalSpy searched(dock, &ORQ_DOCK_WIDGET::search_button_clicked);
    QSignalSpy floated(dock, &ORQ_DOCK_WIDGET::float_button_clicked);
    dock->set_search_button_visibility(true);
    dock->set_float_button_visibility(true);
    QTest::mouseClick(dock->findChild<QToolButton*>("m_search_button"), Qt::LeftButton);
    QTest::mouseClick(dock->findChild<QToolButton*>("m_float_button"), Qt::LeftButton);
    QCOMPARE(searched.count(), 1);
    QCOMPARE(searched.first().first().toBool(), true);
    QCOMPARE(floated.count(), 1);

    ORQ_DOCK_WIDGET_TITLEBAR_WIDGET* bar = dock->get_titlebar();
    const QPoint close_at = bar->get_icon_position(ORQ_DOCK_WIDGET_TITLEBAR_CLOSE_BUTTON);
    QCOMPARE(bar->icon_hit_test(close_at), int(ORQ_DOCK_WIDGET_TITLEBAR_CLOSE_BUTTON));
    QCOMPARE(bar->icon_hit_test(QPoint(2, 2)), 0);
    QVERIFY(bar->get_icon_position(ORQ_DOCK_WIDGET_TITLEBAR_MENU_BUTTON).isNull()); // no menu yet

    dock->click_titlebar_button(ORQ_DOCK_WIDGET_TITLEBAR_MENU_BUTTON);
    QVERIFY(dock->isVisible());
    dock->click_titlebar_button(ORQ_DOCK_WIDGET_TITLEBAR_PIN_BUTTON);
    QVERIFY(dock->is_minimized());
    dock->click_titlebar_button(ORQ_DOCK_WIDGET_TITLEBAR_PIN_BUTTON);
    QVERIFY(dock->is_pinned());
    dock->click_titlebar_button(ORQ_DOCK_WIDGET_TITLEBAR_CLOSE_BUTTON);
    QVERIFY(dock->is_closed());
  }

  void the_menu_button_opens_the_menu()
  {
    WINDOW w;
    ORQ_DOCK_WIDGET* dock = w.dock(QStringLiteral("Messages"), Qt::LeftDockWidgetArea);
    QMenu menu;
    QAction* clear = menu.addAction(QStringLiteral("Clear"));
    QSignalSpy triggered(clear, &QAction::triggered);
    dock->set_menu(&menu);
    QVERIFY(w.show());
    QToolButton* button = dock->findChild<QToolButton*>("m_menu_button");
    QVERIFY(button->isVisible());
    QTimer::singleShot(0, this, [&] {
      if (auto* open = qobject_cast<QMenu*>(QApplication::activePopupWidget())) {
        open->activeAction(); // reachable while it runs
        clear->trigger();
        open->close();
      }
    });
    QTest::mousePress(button, Qt::LeftButton);
    QTest::mouseRelease(button, Qt::LeftButton);
    QCOMPARE(triggered.count(), 1);
  }

  void tool_widgets_move_with_the_orientation()
  {
    WINDOW w;
    ORQ_DOCK_WIDGET* dock = w.dock(QStringLiteral("Messages"), Qt::LeftDockWidgetArea);
    auto* extra = new QToolButton;
    extra->setObjectName(QStringLiteral("extra"));
    dock->add_titlebar_widget(extra);
    QVERIFY(w.show());
    QCOMPARE(extra->parentWidget()->objectName(), QStringLiteral("m_frame"));
    QCOMPARE(names_in(extra->parentWidget()->layout()).mid(0, 3),
             QStringList({"m_title", "extra", "m_float_button"}));
    w.window.addDockWidget(Qt::BottomDockWidgetArea, dock);
    QTRY_COMPARE(extra->parentWidget()->objectName(), QStringLiteral("m_frame_v"));
    QVERIFY(extra->isVisible());
    QCOMPARE(names_in(extra->parentWidget()->layout()).mid(5),
             QStringList({"m_float_button_v", "extra", "m_title_v"}));
  }

  void descriptions_customise_title_and_features_data()
  {
    QTest::addColumn<QString>("xml");
    QTest::addColumn<QString>("title");
    QTest::addColumn<int>("features");
    const QString start = QStringLiteral("<d><setWindowTitle>Before</setWindowTitle></d>");
    const int defaults = 7;
    QTest::newRow("movable and closable")
        << "<d><setFeatures><a>DockWidgetMovable</a><b>DockWidgetClosable</b>"
           "</setFeatures></d>"
        << "Before" << 3;
    QTest::newRow("unknown names change nothing")
        << "<d><setFeatures><a>Sticky</a><b>dockwidgetmovable</b></setFeatures></d>"
        << "Before" << defaults;
    QTest::newRow("no features clears them")
        << "<d><setFeatures><a>NoDockWidgetFeatures</a></setFeatures></d>"
        << "Before" << 0;
    QTest::newRow("all of them") << "<d><setFeatures><x>AllDockWidgetFeatures</x></setFeatures></d>"
                                 << "Before" << 7;
    QTest::newRow("vertical title bar") << "<d><setFeatures><x>DockWidgetVerticalTitleBar</x><x/>"
                                           "<x>DockWidgetFloatable</x></setFeatures></d>"
                                        << "Before" << 12;
    QTest::newRow("empty feature list") << "<d><setFeatures/></d>"
                                        << "Before" << defaults;
    QTest::newRow("a new title") << "<d><setWindowTitle>Timing Paths</setWindowTitle></d>"
                                 << "Timing Paths" << defaults;
    QTest::newRow("an empty title keeps the old one") << "<d><setWindowTitle></setWindowTitle></d>"
                                                      << "Before" << defaults;
    QTest::newRow("nested title element is not text") << "<d><setWindowTitle><b>x</b></setWindowTitle></d>"
                                                      << "Before" << defaults;
  }

  void descriptions_customise_title_and_features()
  {
    QFETCH(QString, xml);
    QFETCH(QString, title);
    QFETCH(int, features);
    WINDOW w;
    ORQ_DOCK_WIDGET dock(&w.window, Qt::WindowFlags(),
                         std::string("<d><setWindowTitle>Before</setWindowTitle></d>"));
    QCOMPARE(dock.windowTitle(), QStringLiteral("Before"));
    tinyxml2::XMLDocument document;
    QCOMPARE(document.Parse(xml.toUtf8().constData()), tinyxml2::XML_SUCCESS);
    dock.xml_customize(document.FirstChildElement());
    QCOMPARE(dock.windowTitle(), title);
    QCOMPARE(int(dock.features()), features);
    QCOMPARE(dock.get_titlebar()->text(), title);
  }

  void a_broken_description_leaves_the_dock_as_it_was()
  {
    WINDOW w;
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("Dock description could not be read"));
    ORQ_DOCK_WIDGET dock(&w.window, Qt::WindowFlags(), std::string("<d><setWindowTitle>X</d>"));
    QVERIFY(dock.windowTitle().isEmpty());
    QCOMPARE(int(dock.features()), 7);
    dock.xml_customize(nullptr);
    QVERIFY(dock.windowTitle().isEmpty());
  }

  void set_size_is_taken_once()
  {
    WINDOW w;
    ORQ_DOCK_WIDGET* dock = w.dock(QStringLiteral("Messages"), Qt::LeftDockWidgetArea);
    QVERIFY(w.show());
    const QSize maximum = dock->maximumSize();
    dock->set_size(320, -1);
    QCOMPARE(dock->minimumWidth(), 320);
    QCOMPARE(dock->maximumWidth(), 320);
    QTRY_COMPARE(dock->minimumWidth(), 200);
    QCOMPARE(dock->maximumSize(), maximum);
    QTRY_COMPARE(dock->width(), 320);
    dock->set_size(20000000, -5); // neither fits: nothing forced
    QCOMPARE(dock->minimumWidth(), 200);
  }

  void a_dock_destroyed_before_its_window_takes_its_button()
  {
    WINDOW w;
    ORQ_DOCK_WIDGET* dock = w.dock(QStringLiteral("Messages"), Qt::LeftDockWidgetArea);
    QVERIFY(w.show());
    unpin(dock);
    QPointer<ORQ_DOCK_WIDGET_BUTTON> button = dock->get_button();
    delete dock;
    QVERIFY(!button);
    QVERIFY(w.bar(Qt::LeftToolBarArea)->get_button_action_map().isEmpty());
    QTRY_VERIFY(w.bar(Qt::LeftToolBarArea)->actions().isEmpty());
  }
};

ORQ_TEST_REGISTER(TST_DOCK_WIDGET);
#include "tst_dock_widget.moc"
