#pragma once
// Shared pieces of every test binary: a private home and configuration for
// the whole run, a strict message check, and the path of the helper tool.
#include <gen_help.h>

#include <QProcessEnvironment>
#include <QString>
#include <QStringList>
#include <QtTest>

#include <functional>

// Gives the process its own temporary HOME, XDG_CONFIG_HOME, working
// directory and VANTOR_INI, and clears the VANTOR_ diagnostics switches, so
// that no test reads or writes a developer's own settings.
void orq_test_isolate_environment();
QString orq_test_home();

// From initTestCase on, any qWarning or qCritical that the test did not
// announce with QTest::ignoreMessage fails the running test.
void orq_test_strict_messages();
bool orq_test_unexpected_message_from_thread();

// Runs body with an internal-error handler that unwinds instead of aborting;
// returns the failed condition's text, or a null string when none was reported.
QString orq_test_internal_error(const std::function<void()>& body);

// The helper executable built beside the tests, and an environment for it
// with a fresh home inside dir.
QString orq_test_helper_path();
QProcessEnvironment orq_test_child_environment(const QString& dir);

class QStandardItem;

// Fills root from a tree string, "[A[B C[D]] E]": the names in column 0,
// "<name>.1", "<name>.2", ... in the columns after it, up to columns.
void orq_test_fill_tree(QStandardItem* root, const QString& text, int columns);

// Records what help is asked for instead of opening a browser.
class ORQ_TEST_HELP_RECORDER : public GEN_HELP {
public:
  QStringList topics;
  bool show_help(QWidget*, const QString& topic) override
  {
    topics << topic;
    return true;
  }
};

// How many rounds a randomised test runs: all of them in an ordinary build,
// a few under the sanitizers, which track every allocation.
#ifdef ORQ_TEST_SANITIZED
constexpr int orq_test_rounds(int ordinary, int sanitized)
{
  return (void)ordinary, sanitized;
}
#else
constexpr int orq_test_rounds(int ordinary, int sanitized)
{
  return (void)sanitized, ordinary;
}
#endif

// Test classes register themselves; a binary's main runs them all, in the
// order of registration, and fails if any fails.
#include <functional>
#include <memory>
#include <vector>

std::vector<std::function<std::unique_ptr<QObject>()>>& orq_test_registry();
int orq_test_run_all(int argc, char** argv);

#define ORQ_TEST_REGISTER(TestClass)                                                               \
  static const bool orq_registered_##TestClass = [] {                                              \
    orq_test_registry().push_back([] { return std::unique_ptr<QObject>(new TestClass); });         \
    return true;                                                                                   \
  }()

// A test main whose application object is a real ORQ_APP, started the way a
// tool starts it.
#define ORQ_TEST_MAIN_ORQ_APP()                                                                    \
  int main(int argc, char** argv)                                                                  \
  {                                                                                                \
    orq_test_isolate_environment();                                                                \
    auto** args = const_cast<const char**>(argv);                                                  \
    char** qt_argv = ORQ_APP::copy_argv_for_qt(argc, args);                                        \
    int qt_argc = argc;                                                                            \
    ORQ_APP app(qt_argc, qt_argv);                                                                 \
    app.init_instance(argc, args);                                                                 \
    const int rc = orq_test_run_all(argc, argv);                                                   \
    app.exit_instance();                                                                           \
    return rc;                                                                                     \
  }

// A test main with a plain QApplication, for the suite services.
#define ORQ_TEST_MAIN_PLAIN()                                                                      \
  int main(int argc, char** argv)                                                                  \
  {                                                                                                \
    orq_test_isolate_environment();                                                                \
    QApplication app(argc, argv);                                                                  \
    return orq_test_run_all(argc, argv);                                                           \
  }
