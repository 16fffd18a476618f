#include "orq_test_support.h"

#include <orq_dock_mgr.h>
#include <orq_dock_widget_button_bar.h>
#include <orq_main_window.h>

#include <gen_help.h>

#include <QMenu>
#include <QMenuBar>
#include <QLineEdit>
#include <QtTest>

namespace {

} // namespace

class TST_MAIN_WINDOW : public QObject {
  Q_OBJECT
private slots:
  void initTestCase() { orq_test_strict_messages(); }

  void four_hidden_button_bars_one_per_edge()
  {
    ORQ_MAIN_WINDOW window;
    QVERIFY(window.isDockNestingEnabled());
    QCOMPARE(window.styleSheet(), QStringLiteral("QMainWindow::separator:hover { background: darkgray; }"));
    const QHash<Qt::ToolBarArea, ORQ_DOCK_WIDGET_BUTTON_BAR*> bars = window.get_dock_bar_of_area();
    QCOMPARE(bars.size(), 4);
    const QList<QPair<Qt::ToolBarArea, QString>> titles{{Qt::LeftToolBarArea, "Left Button Toolbar"},
                                                        {Qt::RightToolBarArea, "Right Button Toolbar"},
                                                        {Qt::TopToolBarArea, "Top Button Toolbar"},
                                                        {Qt::BottomToolBarArea, "Bottom Button Toolbar"}};
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    for (const auto& title : titles) {
      ORQ_DOCK_WIDGET_BUTTON_BAR* bar = bars.value(title.first);
      QVERIFY(bar);
      QCOMPARE(bar->windowTitle(), title.second);
      QCOMPARE(bar->parentWidget(), &window);
      QCOMPARE(window.toolBarArea(bar), title.first);
      QVERIFY(bar->isHidden());
      QVERIFY(!bar->isMovable());
      QCOMPARE(bar->iconSize(), QSize(16, 16));
    }
    // The dock manager comes on first request and stays.
    ORQ_DOCK_MGR* mgr = window.get_dock_mgr();
    QVERIFY(mgr);
    QCOMPARE(window.get_dock_mgr(), mgr);
  }

  void finds_menu_actions_by_text_data()
  {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("found"); // object name, empty for none
    QTest::newRow("a menu by its text with the mnemonic") << "&Edit"
                                                          << "edit_menu";
    QTest::newRow("a menu by its text without it") << "Edit"
                                                   << "edit_menu";
    QTest::newRow("an entry of a submenu") << "Zoom In"
                                           << "zoom_in";
    QTest::newRow("the first of two equal texts, depth first") << "Messages"
                                                                << "view_messages";
    QTest::newRow("only the first ampersand goes") << "Save && Close"
                                                   << "";
    QTest::newRow("case matters") << "edit"
                                  << "";
    QTest::newRow("nothing") << "Nothing"
                             << "";
    QTest::newRow("empty text matches nothing") << ""
                                                << "";
  }

  void finds_menu_actions_by_text()
  {
    QFETCH(QString, text);
    QFETCH(QString, found);
    ORQ_MAIN_WINDOW window;
    QMenu* file = window.menuBar()->addMenu(QStringLiteral("&File"));
    file->addAction(QStringLiteral("Save & Close"))->setObjectName(QStringLiteral("save_close"));
    file->addSeparator();
    QMenu* view = window.menuBar()->addMenu(QStringLiteral("&View"));
    view->menuAction()->setObjectName(QStringLiteral("view_menu"));
    QMenu* zoom = view->addMenu(QStringLiteral("&Zoom"));
    zoom->addAction(QStringLiteral("Zoom &In"))->setObjectName(QStringLiteral("zoom_in"));
    QMenu* panels = view->addMenu(QStringLiteral("Panels"));
    panels->addAction(QStringLiteral("&Messages"))->setObjectName(QStringLiteral("view_messages"));
    view->addAction(QStringLiteral("Messages"))->setObjectName(QStringLiteral("second_messages"));
    QMenu* edit = window.menuBar()->addMenu(QStringLiteral("&Edit"));
    edit->menuAction()->setObjectName(QStringLiteral("edit_menu"));
    edit->addAction(QStringLiteral("Messages"))->setObjectName(QStringLiteral("third_messages"));
    QAction* action = window.get_main_menu_action(text);
    QCOMPARE(action ? action->objectName() : QString(), found);
  }

  void f1_asks_for_help_on_the_focused_widget()
  {
    ORQ_TEST_HELP_RECORDER help;
    gen_set_help(&help);
    ORQ_MAIN_WINDOW window;
    auto* edit = new QLineEdit;
    edit->setObjectName(QStringLiteral("netlist_filter"));
    window.setCentralWidget(edit);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    window.activateWindow();
    edit->setFocus();
    QTRY_VERIFY(edit->hasFocus());
    QTest::keyClick(edit, Qt::Key_F1);
    gen_set_help(nullptr);
    QCOMPARE(help.topics, QStringList{QStringLiteral("netlist_filter")});
  }
};

ORQ_TEST_REGISTER(TST_MAIN_WINDOW);
#include "tst_main_window.moc"
