// ORQ_TCL_ACTION against the suite's real Tcl interpreter.
#include "orq_test_support.h"

#include <gen_tcl.h>
#include <orq.h>

#include <QApplication>
#include <QMessageBox>
#include <QTimer>

namespace {

// Closes the next modal message box and hands back its text.
class BOX_CLOSER : public QObject {
public:
  BOX_CLOSER()
  {
    connect(&m_timer, &QTimer::timeout, this, [this] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (!box)
        return;
      m_object_name = box->objectName();
      m_text = box->text();
      m_icon = box->icon();
      box->accept();
      ++m_closed;
    });
    m_timer.start(10);
  }
  QString m_text;
  QString m_object_name;
  QMessageBox::Icon m_icon = QMessageBox::NoIcon;
  int m_closed = 0;

private:
  QTimer m_timer;
};

} // namespace

class TST_TCL_ACTION : public QObject {
  Q_OBJECT
private slots:
  void initTestCase() { orq_test_strict_messages(); }

  void every_constructor_runs_the_command_when_triggered_data()
  {
    QTest::addColumn<int>("constructor");
    QTest::newRow("parent") << 0;
    QTest::newRow("text") << 1;
    QTest::newRow("icon and text") << 2;
  }

  void every_constructor_runs_the_command_when_triggered()
  {
    QFETCH(int, constructor);
    QObject owner;
    ORQ_TCL_ACTION* action =
        constructor == 0   ? new ORQ_TCL_ACTION(&owner)
        : constructor == 1 ? new ORQ_TCL_ACTION(QStringLiteral("Run"), &owner)
                           : new ORQ_TCL_ACTION(orq_get_icon(ORQ_PLAY_ICON), QStringLiteral("Run"), &owner);
    QVERIFY(action->get_tcl_function().empty());
    gen_tcl().set_var(QStringLiteral("orq_answer"), QStringLiteral("none"));
    std::string command = "set ::orq_answer [expr {6 * 7}]";
    action->set_tcl_function(command.c_str());
    command.assign("set ::orq_answer changed"); // the action keeps its own copy
    action->trigger();
    QCOMPARE(gen_tcl().get_var(QStringLiteral("orq_answer")), QStringLiteral("42"));
    if (constructor > 0)
      QCOMPARE(action->text(), QStringLiteral("Run"));
  }

  void a_failing_command_shows_the_tcl_error_and_the_action_stays_usable()
  {
    QObject owner;
    ORQ_TCL_ACTION action(QStringLiteral("Broken"), &owner);
    action.set_tcl_function("proc orq_fails {} { error \"bad design database\" }; orq_fails");
    BOX_CLOSER closer;
    action.trigger();
    QCOMPARE(closer.m_closed, 1);
    QCOMPARE(closer.m_object_name, QStringLiteral("orq_message_box"));
    QCOMPARE(closer.m_icon, QMessageBox::Critical);
    const QString error_info = gen_tcl().get_var(QStringLiteral("errorInfo"));
    QCOMPARE(closer.m_text, QStringLiteral("Invalid internal command: \n") + error_info);
    QVERIFY2(error_info.startsWith(QLatin1String("bad design database")), qPrintable(error_info));
    QVERIFY(error_info.contains(QLatin1String("(procedure \"orq_fails\" line 1)")));

    action.set_tcl_function("no_such_command 1 2");
    action.trigger();
    QCOMPARE(closer.m_closed, 2);
    QVERIFY(closer.m_text.startsWith(
        QLatin1String("Invalid internal command: \ninvalid command name \"no_such_command\"")));

    action.set_tcl_function("set ::orq_after_failure yes");
    action.trigger();
    QCOMPARE(closer.m_closed, 2);
    QCOMPARE(gen_tcl().get_var(QStringLiteral("orq_after_failure")), QStringLiteral("yes"));
  }

  void an_empty_command_does_nothing()
  {
    QObject owner;
    ORQ_TCL_ACTION action(&owner);
    action.set_tcl_function("set ::orq_touched 1");
    action.set_tcl_function(nullptr);
    QVERIFY(action.get_tcl_function().empty());
    gen_tcl().eval(QStringLiteral("unset -nocomplain ::orq_touched"));
    BOX_CLOSER closer;
    action.trigger();
    QCOMPARE(closer.m_closed, 0);
    bool exists = true;
    gen_tcl().get_var(QStringLiteral("orq_touched"), &exists);
    QVERIFY(!exists);
  }
};

ORQ_TEST_REGISTER(TST_TCL_ACTION);
#include "tst_tcl_action.moc"
