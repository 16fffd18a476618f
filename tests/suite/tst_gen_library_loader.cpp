#include "orq_test_support.h"

#include <gen_library_loader.h>

#include <QCoreApplication>
#include <QProcess>

#include <atomic>
#include <cstring>
#include <thread>
#include <vector>

#include <dlfcn.h>

namespace {
const QString k_plugin_dir = QStringLiteral(ORQ_TEST_PLUGIN_DIR);
const QString k_search_dir = QStringLiteral(ORQ_TEST_PLUGIN_SEARCH_DIR);
const QString k_plugin_a = k_plugin_dir + QStringLiteral("/liborq_test_plugin_a.so");
const QString k_plugin_b = k_plugin_dir + QStringLiteral("/search/liborq_test_plugin_b.so");

int call(void* function)
{
  int (*answer)() = nullptr;
  std::memcpy(&answer, &function, sizeof answer);
  return answer();
}

// A loader of its own kind: bare names are taken from one directory only.
class DIRECTORY_LOADER : public GEN_LIBRARY_LOADER {
public:
  explicit DIRECTORY_LOADER(const QString& dir)
      : m_dir(dir)
  {
  }
  HANDLE load(const QString& name) override
  {
    return GEN_LIBRARY_LOADER::load(m_dir + QStringLiteral("/lib") + name + QStringLiteral(".so"));
  }

private:
  QString m_dir;
};
} // namespace

class TST_GEN_LIBRARY_LOADER : public QObject {
  Q_OBJECT
private slots:
  void initTestCase() { orq_test_strict_messages(); }

  void loads_by_full_path_and_finds_the_function()
  {
    GEN_LIBRARY_LOADER& loader = gen_library_loader();
    GEN_LIBRARY_LOADER::HANDLE library = loader.load(k_plugin_a);
    QVERIFY2(library, qPrintable(loader.system_error()));
    void* function = loader.find_function(library, QStringLiteral("orq_test_plugin_a_answer"));
    QVERIFY2(function, qPrintable(loader.system_error()));
    QCOMPARE(call(function), 42);
    QVERIFY(loader.unload(library));
  }

  void libraries_are_loaded_privately()
  {
    // Two tools' libraries may export the same names; neither may see the other's.
    GEN_LIBRARY_LOADER& loader = gen_library_loader();
    GEN_LIBRARY_LOADER::HANDLE a = loader.load(k_plugin_a);
    GEN_LIBRARY_LOADER::HANDLE b = loader.load(k_plugin_b);
    QVERIFY(a && b && a != b);
    QVERIFY(!dlsym(RTLD_DEFAULT, "orq_test_plugin_a_answer"));
    QVERIFY(!loader.find_function(b, QStringLiteral("orq_test_plugin_a_answer")));
    QCOMPARE(call(loader.find_function(b, QStringLiteral("orq_test_plugin_b_answer"))), 7);
    QVERIFY(loader.unload(a));
    QVERIFY(loader.unload(b));
  }

  void missing_library_says_why_data()
  {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("mentioned");
    QTest::newRow("bare name") << "orq_no_such_library"
                               << "liborq_no_such_library.so";
    QTest::newRow("full path") << "/nonexistent/orq/libgone.so"
                               << "/nonexistent/orq/libgone.so";
    QTest::newRow("file name") << "liborq_no_such_library.so"
                               << "liborq_no_such_library.so";
    QTest::newRow("versioned file name") << "liborq_no_such_library.so.3"
                                         << "liborq_no_such_library.so.3";
    QTest::newRow("relative path") << "plugins/liborq_gone.so"
                                   << "plugins/liborq_gone.so";
    QTest::newRow("a directory") << QDir::tempPath() << QDir::tempPath();
  }

  void missing_library_says_why()
  {
    QFETCH(QString, name);
    QFETCH(QString, mentioned);
    GEN_LIBRARY_LOADER& loader = gen_library_loader();
    QVERIFY(!loader.load(name));
    QVERIFY2(loader.system_error().contains(mentioned), qPrintable(loader.system_error()));
    QCOMPARE(loader.error_data(), name);
  }

  void empty_name_fails_clearly()
  {
    GEN_LIBRARY_LOADER& loader = gen_library_loader();
    QVERIFY(!loader.load(QStringLiteral("orq_no_such_library")));
    QVERIFY(!loader.load(QString()));
    QCOMPARE(loader.system_error(), QStringLiteral("No library name was given."));
    QCOMPARE(loader.error_data(), QString());
  }

  void missing_symbol_leaves_the_library_loaded()
  {
    GEN_LIBRARY_LOADER& loader = gen_library_loader();
    GEN_LIBRARY_LOADER::HANDLE library = loader.load(k_plugin_a);
    QVERIFY(library);
    QVERIFY(!loader.find_function(library, QStringLiteral("orq_no_such_symbol")));
    QVERIFY2(loader.system_error().contains(QStringLiteral("orq_no_such_symbol")),
             qPrintable(loader.system_error()));
    QCOMPARE(loader.error_data(), k_plugin_a);
    QCOMPARE(call(loader.find_function(library, QStringLiteral("orq_test_plugin_a_answer"))), 42);
    QVERIFY(loader.unload(library));
  }

  void a_reason_lasts_until_the_next_call_data()
  {
    QTest::addColumn<int>("next"); // 0 load, 1 find_function, 2 unload
    QTest::newRow("a load that succeeds") << 0;
    QTest::newRow("a symbol that is found") << 1;
    QTest::newRow("an unload that succeeds") << 2;
  }

  void a_reason_lasts_until_the_next_call()
  {
    QFETCH(int, next);
    GEN_LIBRARY_LOADER& loader = gen_library_loader();
    GEN_LIBRARY_LOADER::HANDLE library = loader.load(k_plugin_a);
    QVERIFY(library);
    QVERIFY(!loader.load(QStringLiteral("orq_no_such_library")));
    QCOMPARE(loader.error_data(), QStringLiteral("orq_no_such_library"));
    QVERIFY(!loader.system_error().isEmpty());
    // Whatever succeeds next must not be explained by the old failure.
    switch (next) {
    case 0:
      QVERIFY(loader.unload(loader.load(k_plugin_a)));
      break;
    case 1:
      QVERIFY(loader.find_function(library, QStringLiteral("orq_test_plugin_a_answer")));
      break;
    case 2:
      break;
    }
    if (next != 2)
      QCOMPARE(loader.system_error(), QString());
    QVERIFY(loader.unload(library));
    QCOMPARE(loader.system_error(), QString());
    QCOMPARE(loader.error_data(), QString());
  }

  void find_function_needs_a_loaded_library()
  {
    GEN_LIBRARY_LOADER& loader = gen_library_loader();
    QVERIFY(!loader.find_function(nullptr, QStringLiteral("orq_test_plugin_a_answer")));
    QVERIFY(loader.system_error().contains(QStringLiteral("orq_test_plugin_a_answer")));
    int not_a_library = 0;
    QVERIFY(!loader.find_function(&not_a_library, QStringLiteral("orq_test_plugin_a_answer")));
    QVERIFY(!loader.system_error().isEmpty());
  }

  void unload_drops_one_reference_at_a_time()
  {
    GEN_LIBRARY_LOADER& loader = gen_library_loader();
    GEN_LIBRARY_LOADER::HANDLE first = loader.load(k_plugin_a);
    GEN_LIBRARY_LOADER::HANDLE second = loader.load(k_plugin_a);
    QVERIFY(first);
    QCOMPARE(second, first);
    QVERIFY(loader.unload(first));
    // The second reference keeps the library usable.
    QCOMPARE(call(loader.find_function(first, QStringLiteral("orq_test_plugin_a_answer"))), 42);
    QVERIFY(loader.unload(first));
    // Each load's reference went back to the dynamic linker: the library is gone.
    QVERIFY(!dlopen(QFile::encodeName(k_plugin_a).constData(), RTLD_NOW | RTLD_NOLOAD));
    QVERIFY(!loader.unload(first));
    QVERIFY(!loader.system_error().isEmpty());
    QVERIFY(!loader.find_function(first, QStringLiteral("orq_test_plugin_a_answer")));
  }

  void unload_refuses_what_was_never_loaded()
  {
    GEN_LIBRARY_LOADER& loader = gen_library_loader();
    QVERIFY(!loader.unload(nullptr));
    int not_a_library = 0;
    QVERIFY(!loader.unload(&not_a_library));
  }

  void errors_belong_to_their_thread()
  {
    GEN_LIBRARY_LOADER& loader = gen_library_loader();
    QVERIFY(!loader.load(QStringLiteral("orq_missing_in_main_thread")));
    QString fresh_thread_error = QStringLiteral("not run");
    QString other_thread_data;
    std::thread other([&] {
      fresh_thread_error = loader.system_error();
      loader.load(QStringLiteral("orq_missing_in_other_thread"));
      other_thread_data = loader.error_data();
    });
    other.join();
    QCOMPARE(fresh_thread_error, QString());
    QCOMPARE(other_thread_data, QStringLiteral("orq_missing_in_other_thread"));
    QCOMPARE(loader.error_data(), QStringLiteral("orq_missing_in_main_thread"));
    QVERIFY(loader.system_error().contains(QStringLiteral("liborq_missing_in_main_thread.so")));
  }

  void concurrent_loads_keep_count()
  {
    GEN_LIBRARY_LOADER& loader = gen_library_loader();
    std::vector<std::thread> threads;
    std::atomic<int> answers{0};
    for (int t = 0; t < 4; ++t)
      threads.emplace_back([&] {
        for (int i = 0; i < 50; ++i) {
          GEN_LIBRARY_LOADER::HANDLE library = loader.load(k_plugin_a);
          if (library &&
              call(loader.find_function(library, QStringLiteral("orq_test_plugin_a_answer"))) == 42)
            ++answers;
          loader.unload(library);
        }
      });
    for (std::thread& thread : threads)
      thread.join();
    QCOMPARE(answers.load(), 200);
    QVERIFY(!dlopen(QFile::encodeName(k_plugin_a).constData(), RTLD_NOW | RTLD_NOLOAD));
  }

  void file_name_for_is_beside_the_executable_data()
  {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("expected");
    const QString dir = QCoreApplication::applicationDirPath();
    QTest::newRow("bare name") << "orq_tool_windows" << dir + "/liborq_tool_windows.so";
    QTest::newRow("file name") << "liborq_tool_windows.so"
                               << "";
    QTest::newRow("versioned file name") << "liborq_tool_windows.so.2"
                                         << "";
    QTest::newRow("path") << "tools/orq_tool_windows"
                          << "";
    QTest::newRow("empty") << ""
                           << "";
  }

  void file_name_for_is_beside_the_executable()
  {
    QFETCH(QString, name);
    QFETCH(QString, expected);
    QCOMPARE(GEN_LIBRARY_LOADER::file_name_for(name), expected);
  }

  // Runs the child with a bare name: found through LD_LIBRARY_PATH, beside
  // the executable (with and without an application object), or not at all.
  void bare_names_resolve_like_the_platform_data()
  {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("function");
    QTest::addColumn<QString>("library_path");
    QTest::addColumn<bool>("with_app");
    QTest::addColumn<QStringList>("expected");
    const QString a = QStringLiteral("orq_test_plugin_a");
    const QString b = QStringLiteral("orq_test_plugin_b");
    const QString fa = QStringLiteral("orq_test_plugin_a_answer");
    const QString fb = QStringLiteral("orq_test_plugin_b_answer");
    const QString beside_a =
        QStringLiteral("beside: ") + k_plugin_dir + QStringLiteral("/liborq_test_plugin_a.so");
    const QString beside_b =
        QStringLiteral("beside: ") + k_plugin_dir + QStringLiteral("/liborq_test_plugin_b.so");
    QTest::newRow("search path") << b << fb << k_search_dir << false << QStringList{beside_b, "answer: 7"};
    QTest::newRow("search path, with an application")
        << b << fb << k_search_dir << true << QStringList{beside_b, "answer: 7"};
    QTest::newRow("beside the executable")
        << a << fa << QString() << false << QStringList{beside_a, "answer: 42"};
    QTest::newRow("beside the executable, with an application")
        << a << fa << QString() << true << QStringList{beside_a, "answer: 42"};
    QTest::newRow("beside the executable while a search path is set")
        << a << fa << k_search_dir << false << QStringList{beside_a, "answer: 42"};
    QTest::newRow("not on the search path")
        << b << fb << QString() << false
        << QStringList{
               beside_b,
               "error: liborq_test_plugin_b.so: cannot open shared object file: No such file or directory",
               "data: orq_test_plugin_b"};
    QTest::newRow("missing function") << a << fb << QString() << false
                                      << QStringList{beside_a,
                                                     "error: " + k_plugin_dir +
                                                         "/liborq_test_plugin_a.so: undefined symbol: "
                                                         "orq_test_plugin_b_answer",
                                                     "data: orq_test_plugin_a"};
  }

  void bare_names_resolve_like_the_platform()
  {
    QFETCH(QString, name);
    QFETCH(QString, function);
    QFETCH(QString, library_path);
    QFETCH(bool, with_app);
    QFETCH(QStringList, expected);
    QProcessEnvironment env = orq_test_child_environment(orq_test_home());
    const QString inherited = env.value(QStringLiteral("LD_LIBRARY_PATH"));
    QVERIFY2(!inherited.contains(QStringLiteral("orq_test")), qPrintable(inherited));
    if (!library_path.isEmpty())
      env.insert(QStringLiteral("LD_LIBRARY_PATH"),
                 inherited.isEmpty() ? library_path : library_path + QLatin1Char(':') + inherited);
    QProcess child;
    child.setProcessEnvironment(env);
    QStringList arguments{name, function};
    if (with_app)
      arguments << QStringLiteral("app");
    child.start(QStringLiteral(ORQ_TEST_LOADER_CHILD), arguments);
    QVERIFY(child.waitForFinished(30000));
    QCOMPARE(child.exitStatus(), QProcess::NormalExit);
    const QString output = QString::fromLocal8Bit(child.readAllStandardOutput()).trimmed();
    const QByteArray errors = child.readAllStandardError();
    QVERIFY2(output.split(QLatin1Char('\n')) == expected, qPrintable(output + QLatin1Char('\n') + errors));
    QCOMPARE(child.exitCode(), expected.last().startsWith(QLatin1String("answer")) ? 0 : 1);
  }

  void null_restores_the_default_loader()
  {
    GEN_LIBRARY_LOADER& default_loader = gen_library_loader();
    DIRECTORY_LOADER own(k_plugin_dir);
    gen_set_library_loader(&own);
    QCOMPARE(&gen_library_loader(), static_cast<GEN_LIBRARY_LOADER*>(&own));
    GEN_LIBRARY_LOADER::HANDLE library = gen_library_loader().load(QStringLiteral("orq_test_plugin_a"));
    QVERIFY2(library, qPrintable(gen_library_loader().system_error()));
    QCOMPARE(call(gen_library_loader().find_function(library, QStringLiteral("orq_test_plugin_a_answer"))),
             42);
    QVERIFY(gen_library_loader().unload(library));
    gen_set_library_loader(nullptr);
    QCOMPARE(&gen_library_loader(), &default_loader);
    // The default loader does not look in the plugin directory by itself.
    QVERIFY(!gen_library_loader().load(QStringLiteral("orq_test_plugin_a")));
  }
};

ORQ_TEST_REGISTER(TST_GEN_LIBRARY_LOADER);
#include "tst_gen_library_loader.moc"
