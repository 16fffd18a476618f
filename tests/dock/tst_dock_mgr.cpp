#include "orq_test_support.h"

#include <orq_dock_mgr.h>
#include <orq_dock_widget.h>
#include <orq_main_window.h>

#include <gen_library_loader.h>
#include <gen_message_service.h>

#include <QApplication>
#include <QtTest>

namespace {

QString message_189000(const QString& library, const QString& why)
{
  return QStringLiteral("Can't open dockable window -- can't load library \"%1\". %2.").arg(library, why);
}

} // namespace

class TST_DOCK_MGR : public QObject {
  Q_OBJECT
  QList<GEN_MESSAGE> m_messages;
  int m_listener = 0;

  QList<GEN_MESSAGE> posted(int number) const
  {
    QList<GEN_MESSAGE> found;
    for (const GEN_MESSAGE& message : m_messages)
      if (message.number == number)
        found << message;
    return found;
  }

private slots:
  void initTestCase()
  {
    orq_test_strict_messages();
    m_listener =
        gen_message_service().add_listener([this](const GEN_MESSAGE& message) { m_messages << message; });
  }
  void cleanupTestCase() { gen_message_service().remove_listener(m_listener); }
  void init() { m_messages.clear(); }

  void every_dock_names_a_library_or_a_view()
  {
    ORQ_DOCK_MGR mgr;
    QSet<QString> seen;
    for (int which = 0; which <= 16; ++which) {
      const QString module = mgr.get_module(ORQ_DOCK_ENUM(which));
      QVERIFY2(!module.isEmpty(), qPrintable(QString::number(which)));
      QVERIFY(!seen.contains(module));
      seen << module;
      QCOMPARE(module.contains(QLatin1Char(':')), which >= 12);
    }
    QCOMPARE(mgr.get_module(ORQ_DOCK_TCL_SCRIPTS), mgr.get_module(ORQ_DOCK_TCL_CONSOLE) + ":tcl_scripts");
    const QString navigator = mgr.get_module(ORQ_DOCK_PROJECT_NAVIGATOR);
    QCOMPARE(mgr.get_module(ORQ_DOCK_PROJECT_HIERARCHY), navigator + ":hierarchy");
    QCOMPARE(mgr.get_module(ORQ_DOCK_PROJECT_FILES), navigator + ":files");
    QCOMPARE(mgr.get_module(ORQ_DOCK_PROJECT_DESIGN_UNITS), navigator + ":design_units");
    QCOMPARE(mgr.get_module(ORQ_DOCK_PROJECT_IP_COMPONENTS), navigator + ":ip_components");
  }

  void creates_docks_from_libraries_by_name_data()
  {
    QTest::addColumn<QString>("module");
    QTest::addColumn<QString>("title");   // empty: no dock
    QTest::addColumn<QString>("library"); // named by message 189000, empty: no message
    QTest::newRow("a whole library") << "orq_test_docks"
                                     << "Whole library"
                                     << "";
    QTest::newRow("a view of a library") << "orq_test_docks:panel"
                                         << "Panel view"
                                         << "";
    QTest::newRow("a view that makes nothing") << "orq_test_docks:empty"
                                               << ""
                                               << "orq_test_docks";
    QTest::newRow("a missing entry point") << "orq_test_docks:no_such_view"
                                           << ""
                                           << "";
    QTest::newRow("an empty view name") << "orq_test_docks:"
                                        << ""
                                        << "";
    QTest::newRow("a missing library") << "orq_test_no_such_library"
                                       << ""
                                       << "orq_test_no_such_library";
    QTest::newRow("a missing library with a view") << "orq_test_no_such_library:panel"
                                                   << ""
                                                   << "orq_test_no_such_library";
    QTest::newRow("no module") << ""
                               << ""
                               << "";
  }

  void creates_docks_from_libraries_by_name()
  {
    QFETCH(QString, module);
    QFETCH(QString, title);
    QFETCH(QString, library);
    ORQ_MAIN_WINDOW window;
    ORQ_DOCK_MGR* mgr = window.get_dock_mgr();
    QCOMPARE(window.get_dock_mgr(), mgr);
    mgr->set_module(ORQ_DOCK_MESSAGES, module);
    ORQ_DOCK_WIDGET* dock = mgr->create_dock_widget(ORQ_DOCK_MESSAGES, &window);
    if (title.isEmpty()) {
      QVERIFY(!dock);
      QVERIFY(window.findChildren<ORQ_DOCK_WIDGET*>().isEmpty());
    } else {
      QVERIFY(dock);
      QCOMPARE(dock->windowTitle(), title);
      QCOMPARE(dock->get_parent(), &window);
      QCOMPARE(window.dockWidgetArea(dock), Qt::LeftDockWidgetArea);
    }
    const QList<GEN_MESSAGE> messages = posted(189000);
    QCOMPARE(messages.size(), library.isEmpty() ? 0 : 1);
    if (!library.isEmpty())
      QVERIFY2(messages.first().text.startsWith(message_189000(library, QString()).chopped(2)),
               qPrintable(messages.first().text));
  }

  void a_missing_library_is_reported_with_the_loaders_words()
  {
    ORQ_MAIN_WINDOW window;
    window.get_dock_mgr()->set_module(ORQ_DOCK_REPORTS, QStringLiteral("orq_test_no_such_library"));
    QVERIFY(!window.get_dock_mgr()->create_dock_widget(ORQ_DOCK_REPORTS, &window));
    const QString why = gen_library_loader().system_error();
    QVERIFY(!why.isEmpty());
    QCOMPARE(posted(189000).size(), 1);
    QCOMPARE(posted(189000).first().text, message_189000(gen_library_loader().error_data(), why));
    QCOMPARE(posted(189000).first().kind, GEN_MESSAGE_KIND::OK_ONLY);
  }

  void an_entry_point_that_makes_nothing_is_reported_with_the_loaders_words()
  {
    ORQ_MAIN_WINDOW window;
    // A failure earlier in the thread must not be what the message says.
    QVERIFY(!gen_library_loader().load(QStringLiteral("orq_test_earlier_failure")));
    window.get_dock_mgr()->set_module(ORQ_DOCK_REPORTS, QStringLiteral("orq_test_docks:empty"));
    QVERIFY(!window.get_dock_mgr()->create_dock_widget(ORQ_DOCK_REPORTS, &window));
    const QList<GEN_MESSAGE> messages = posted(189000);
    QCOMPARE(messages.size(), 1);
    // The loader says nothing went wrong in loading: no reason of its own.
    QCOMPARE(messages.last().text, message_189000(QStringLiteral("orq_test_docks"), QString()));
    QCOMPARE(messages.last().kind, GEN_MESSAGE_KIND::OK_ONLY);
  }

  void the_three_argument_form_takes_the_module_whole_data()
  {
    QTest::addColumn<QString>("module");
    QTest::addColumn<int>("from");
    QTest::addColumn<QString>("title");
    QTest::newRow("from the menu") << "orq_test_docks_from" << int(ORQ_DOCK_FROM_MENU) << "From 0";
    QTest::newRow("from a script") << "orq_test_docks_from" << int(ORQ_DOCK_FROM_SCRIPT) << "From 2";
    // The colon stays in the library name, which no file carries.
    QTest::newRow("a view is not split off") << "orq_test_docks:panel" << int(ORQ_DOCK_FROM_STARTUP) << "";
  }

  void the_three_argument_form_takes_the_module_whole()
  {
    QFETCH(QString, module);
    QFETCH(int, from);
    QFETCH(QString, title);
    ORQ_MAIN_WINDOW window;
    window.get_dock_mgr()->set_module(ORQ_DOCK_TASKS, module);
    ORQ_DOCK_WIDGET* dock =
        window.get_dock_mgr()->create_dock_widget(ORQ_DOCK_TASKS, ORQ_DOCK_FROM_ENUM(from), &window);
    QCOMPARE(dock ? dock->windowTitle() : QString(), title);
    QCOMPARE(posted(189000).size(), title.isEmpty() ? 1 : 0);
    if (title.isEmpty())
      QVERIFY(posted(189000).first().text.contains(QStringLiteral("\"orq_test_docks:panel\"")));
  }

  void without_a_window_the_dock_gets_one_of_its_own()
  {
    ORQ_DOCK_MGR mgr;
    mgr.set_module(ORQ_DOCK_BOOKMARKS, QStringLiteral("orq_test_docks:panel"));
    const int windows_before = QApplication::topLevelWidgets().size();
    ORQ_DOCK_WIDGET* dock = mgr.create_dock_widget(ORQ_DOCK_BOOKMARKS, nullptr);
    QVERIFY(dock);
    std::unique_ptr<ORQ_MAIN_WINDOW> window(dock->get_parent());
    QVERIFY(window);
    QVERIFY(window->isWindow());
    window.reset();
    // A failure leaves no window behind.
    mgr.set_module(ORQ_DOCK_BOOKMARKS, QStringLiteral("orq_test_docks:empty"));
    QVERIFY(!mgr.create_dock_widget(ORQ_DOCK_BOOKMARKS, nullptr));
    mgr.set_module(ORQ_DOCK_BOOKMARKS, QStringLiteral("orq_test_no_such_library"));
    QVERIFY(!mgr.create_dock_widget(ORQ_DOCK_BOOKMARKS, nullptr));
    QVERIFY(!mgr.create_dock_widget(ORQ_DOCK_BOOKMARKS, ORQ_DOCK_FROM_MENU, nullptr));
    QCOMPARE(QApplication::topLevelWidgets().size(), windows_before);
  }

  void creates_docks_from_descriptions_data()
  {
    QTest::addColumn<QString>("xml");
    QTest::addColumn<QString>("title"); // empty: no dock
    QTest::addColumn<int>("features");
    QTest::addColumn<int>("messages");
    QTest::addColumn<QString>("warning"); // expected warning, a regular expression
    const QString lib = QStringLiteral("<dll_name>orq_test_docks</dll_name>");
    const QString fn = QStringLiteral("<access_function>orq_test_docks_from_xml</access_function>");
    const int defaults = int(QDockWidget::DockWidgetClosable | QDockWidget::DockWidgetMovable |
                             QDockWidget::DockWidgetFloatable);
    QTest::newRow("title and features")
        << QStringLiteral(
               "<dock>%1%2<setWindowTitle>Timing</setWindowTitle><setFeatures><f>DockWidgetMovable</f>"
               "<f>DockWidgetClosable</f></setFeatures></dock>")
               .arg(lib, fn)
        << "Timing" << 3 << 0 << "";
    QTest::newRow("any element name, unknown children ignored")
        << QStringLiteral("<panel><x/>%1<y>z</y>%2<setWindowTitle>P</setWindowTitle></panel>").arg(lib, fn)
        << "P" << defaults << 0 << "";
    QTest::newRow("no library") << QStringLiteral("<dock>%1</dock>").arg(fn) << "" << 0 << 0 << "";
    QTest::newRow("an empty library name")
        << QStringLiteral("<dock><dll_name></dll_name>%1</dock>").arg(fn) << "" << 0 << 0 << "";
    QTest::newRow("no entry point") << QStringLiteral("<dock>%1</dock>").arg(lib) << "" << 0 << 0 << "";
    QTest::newRow("a missing entry point")
        << QStringLiteral("<dock>%1<access_function>nothing_here</access_function></dock>").arg(lib) << ""
        << 0 << 0 << "";
    QTest::newRow("a missing library")
        << QStringLiteral("<dock><dll_name>orq_test_no_such_library</dll_name>%1</dock>").arg(fn) << "" << 0
        << 1 << "";
    QTest::newRow("malformed") << QStringLiteral("<dock>%1%2<setWindowTitle>T</dock>").arg(lib, fn) << "" << 0
                               << 0 << "Dock description could not be read";
    QTest::newRow("empty text") << QString() << "" << 0 << 0 << "Dock description could not be read";
    QTest::newRow("not XML at all") << QStringLiteral("\x01\x02 dock") << "" << 0 << 0
                                    << "Dock description could not be read";
    QString deep;
    for (int i = 0; i < 20000; ++i)
      deep += QStringLiteral("<a>");
    QTest::newRow("nested beyond reason") << deep << "" << 0 << 0 << "Dock description could not be read";
    QTest::newRow("entities are expanded")
        << QStringLiteral("<dock>%1%2<setWindowTitle>A &amp; B</setWindowTitle></dock>").arg(lib, fn)
        << "A & B" << defaults << 0 << "";
  }

  void creates_docks_from_descriptions()
  {
    QFETCH(QString, xml);
    QFETCH(QString, title);
    QFETCH(int, features);
    QFETCH(int, messages);
    QFETCH(QString, warning);
    if (!warning.isEmpty())
      QTest::ignoreMessage(QtWarningMsg, QRegularExpression(warning));
    ORQ_MAIN_WINDOW window;
    std::unique_ptr<ORQ_DOCK_WIDGET> dock(
        window.get_dock_mgr()->create_dock_widget(xml.toStdString(), &window, Qt::WindowFlags()));
    QCOMPARE(dock ? dock->windowTitle() : QString(), title);
    if (dock) {
      QCOMPARE(int(dock->features()), features);
      QCOMPARE(dock->get_parent(), &window);
      QCOMPARE(dock->objectName(), QStringLiteral("from_xml"));
    }
    QCOMPARE(posted(189000).size(), messages);
  }
};

ORQ_TEST_REGISTER(TST_DOCK_MGR);
#include "tst_dock_mgr.moc"
