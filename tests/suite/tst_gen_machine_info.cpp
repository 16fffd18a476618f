#include "orq_test_support.h"

#include <gen_machine_info.h>
#include <gen_message_service.h>
#include <gen_tcl.h>

#include <QTemporaryDir>
#include <QThread>

#include <thread>

namespace {
// Writes a processor tree the way the kernel lays it out: cpuN/online and
// cpuN/topology/{physical_package_id,core_id}.
struct CPU {
  int package;
  int core;
  bool online;
  bool topology;
};

void write_file(const QString& path, const QByteArray& text)
{
  QDir().mkpath(QFileInfo(path).absolutePath());
  QFile file(path);
  QVERIFY(file.open(QIODevice::WriteOnly));
  file.write(text + '\n');
}

void write_tree(const QString& root, const QVector<CPU>& cpus)
{
  for (int i = 0; i < cpus.size(); ++i) {
    const QString base = root + QStringLiteral("/cpu%1").arg(i);
    QDir().mkpath(base);
    if (i > 0)
      write_file(base + QStringLiteral("/online"), cpus[i].online ? "1" : "0");
    if (cpus[i].topology) {
      write_file(base + QStringLiteral("/topology/physical_package_id"), QByteArray::number(cpus[i].package));
      write_file(base + QStringLiteral("/topology/core_id"), QByteArray::number(cpus[i].core));
    }
  }
  // Entries that are not processors are ignored.
  QDir().mkpath(root + QStringLiteral("/cpufreq"));
  write_file(root + QStringLiteral("/online"), "0-" + QByteArray::number(cpus.size() - 1));
}

QVector<CPU> hyperthreaded(int packages, int cores, int threads)
{
  QVector<CPU> cpus;
  for (int t = 0; t < threads; ++t)
    for (int p = 0; p < packages; ++p)
      for (int c = 0; c < cores; ++c)
        cpus.append({p, c, true, true});
  return cpus;
}
} // namespace

Q_DECLARE_METATYPE(QVector<CPU>)

class TST_GEN_MACHINE_INFO : public QObject {
  Q_OBJECT
private slots:
  void initTestCase() { orq_test_strict_messages(); }

  void counts_data()
  {
    QTest::addColumn<QVector<CPU>>("cpus");
    QTest::addColumn<int>("physical");
    QTest::addColumn<int>("logical");
    QTest::newRow("8 cores, 16 threads") << hyperthreaded(1, 8, 2) << 8 << 16;
    QTest::newRow("4 cores, no hyperthreading") << hyperthreaded(1, 4, 1) << 4 << 4;
    QTest::newRow("2 packages of 2 cores, 2 threads") << hyperthreaded(2, 2, 2) << 4 << 8;
    QVector<CPU> offline = hyperthreaded(1, 4, 2);
    offline[7].online = false;
    offline[3].online = false;
    QTest::newRow("offline processors do not count") << offline << 3 << 6;
    QVector<CPU> partial = hyperthreaded(1, 2, 1);
    partial[1].topology = false;
    QTest::newRow("missing topology means unknown cores") << partial << 0 << 2;
    QTest::newRow("no processors") << QVector<CPU>() << 0 << 0;
  }

  void counts()
  {
    QFETCH(QVector<CPU>, cpus);
    QFETCH(int, physical);
    QFETCH(int, logical);
    QTemporaryDir dir;
    if (!cpus.isEmpty())
      write_tree(dir.path(), cpus);
    const GEN_MACHINE_INFO info(dir.path());
    QCOMPARE(info.physical_core_count(), physical);
    QCOMPARE(info.logical_processor_count(), logical);
  }

  void this_machine_has_processors()
  {
    const GEN_MACHINE_INFO info;
    QVERIFY(info.logical_processor_count() >= 1);
    QVERIFY(info.physical_core_count() <= info.logical_processor_count());
    QCOMPARE(info.logical_processor_count(), QThread::idealThreadCount());
  }

  void only_processor_directories_and_links_to_them_count()
  {
    QTemporaryDir dir;
    QTemporaryDir elsewhere;
    write_tree(dir.path(), hyperthreaded(1, 2, 1));
    write_file(elsewhere.path() + QStringLiteral("/cpu2/topology/physical_package_id"), "0");
    write_file(elsewhere.path() + QStringLiteral("/cpu2/topology/core_id"), "2");
    QVERIFY(QFile::link(elsewhere.path() + QStringLiteral("/cpu2"), dir.path() + QStringLiteral("/cpu2")));
    QVERIFY(QFile::link(elsewhere.path() + QStringLiteral("/gone"), dir.path() + QStringLiteral("/cpu3")));
    write_file(dir.path() + QStringLiteral("/cpu4"), "not a directory");
    write_file(dir.path() + QStringLiteral("/cpu5x/topology/core_id"), "5");
    QDir().mkpath(dir.path() + QStringLiteral("/cpu6/online"));
    const GEN_MACHINE_INFO info(dir.path());
    // cpu6's "online" cannot be read as a file, so it counts as online; it
    // has no topology, which leaves the core count unknown.
    QCOMPARE(info.logical_processor_count(), 4);
    QCOMPARE(info.physical_core_count(), 0);
    QDir(dir.path() + QStringLiteral("/cpu6")).removeRecursively();
    QCOMPARE(info.logical_processor_count(), 3);
    QCOMPARE(info.physical_core_count(), 3);
  }

  void tcl_evaluates_and_reports_errors()
  {
    GEN_TCL tcl;
    QString result;
    QCOMPARE(tcl.eval(QStringLiteral("set cell u_pll; string toupper $cell"), &result), int(GEN_TCL::OK));
    QCOMPARE(result, QStringLiteral("U_PLL"));
    QCOMPARE(tcl.get_var(QStringLiteral("cell")), QStringLiteral("u_pll"));
    bool exists = true;
    tcl.get_var(QStringLiteral("no_such_variable"), &exists);
    QVERIFY(!exists);
    QCOMPARE(tcl.eval(QStringLiteral("proc f {} { error \"bad net\" }; f"), &result), int(GEN_TCL::ERROR));
    QCOMPARE(result, QStringLiteral("bad net"));
    QVERIFY(tcl.error_info().contains(QStringLiteral("(procedure \"f\" line 1)")));
  }

  void tcl_work_from_threads_runs_in_the_flushing_thread_in_order()
  {
    GEN_TCL tcl;
    tcl.eval(QStringLiteral("set ::log {}"));
    const int threads = 4;
    const int per_thread = 50;
    QVector<Qt::HANDLE> ran_on;
    std::vector<std::thread> workers;
    for (int t = 0; t < threads; ++t)
      workers.emplace_back([&tcl, &ran_on, t] {
        for (int i = 0; i < per_thread; ++i) {
          tcl.post_script(QStringLiteral("lappend ::log %1.%2").arg(t).arg(i));
          tcl.post([&ran_on](GEN_TCL&) { ran_on.append(QThread::currentThreadId()); });
        }
      });
    for (std::thread& w : workers)
      w.join();
    QCOMPARE(tcl.pending(), 2 * threads * per_thread);
    QCOMPARE(tcl.flush_queue(), 2 * threads * per_thread);
    QCOMPARE(tcl.pending(), 0);
    QCOMPARE(ran_on.size(), threads * per_thread);
    for (Qt::HANDLE id : ran_on)
      QCOMPARE(id, QThread::currentThreadId());
    // Each thread's items keep their order.
    QString result;
    tcl.eval(QStringLiteral("llength $::log"), &result);
    QCOMPARE(result.toInt(), threads * per_thread);
    for (int t = 0; t < threads; ++t) {
      tcl.eval(QStringLiteral("lsearch -all -inline -glob $::log %1.*").arg(t), &result);
      QStringList expected;
      for (int i = 0; i < per_thread; ++i)
        expected << QStringLiteral("%1.%2").arg(t).arg(i);
      QCOMPARE(result, expected.join(QLatin1Char(' ')));
    }
  }

  void failing_queued_script_warns_and_the_queue_goes_on()
  {
    GEN_TCL tcl;
    QStringList warnings;
    const int id =
        gen_message_service().add_listener([&warnings](const GEN_MESSAGE& m) { warnings << m.text; });
    tcl.post_script(QStringLiteral("no_such_command 1 2"));
    tcl.post_script(QStringLiteral("set ::after 1"));
    QCOMPARE(tcl.flush_queue(), 2);
    gen_message_service().remove_listener(id);
    QCOMPARE(warnings.size(), 1);
    QVERIFY(warnings.first().startsWith(
        QStringLiteral("Tcl error in queued command: invalid command name \"no_such_command\"")));
    QCOMPARE(tcl.get_var(QStringLiteral("after")), QStringLiteral("1"));
  }
};

ORQ_TEST_REGISTER(TST_GEN_MACHINE_INFO);
#include "tst_gen_machine_info.moc"
