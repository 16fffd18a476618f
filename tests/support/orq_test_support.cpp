#include "orq_test_support.h"

#include <QApplication>
#include <QDir>
#include <QStandardItem>
#include <QTemporaryDir>
#include <QThread>

#include <gen_internal_error.h>

#include <atomic>
#include <stdexcept>

// QtTest keeps its list of announced messages private; this count is the
// only way to see whether the message just handled was one of them.
class QTestLog {
public:
  static int unhandledIgnoreMessages();
};

namespace {
struct UNWIND_INTERNAL_ERROR {
  QString condition;
};

void unwinding_handler(const QString&, const char* condition, const char*, const char*, int)
{
  throw UNWIND_INTERNAL_ERROR{QString::fromLocal8Bit(condition)};
}

QtMessageHandler g_qtest_handler = nullptr;
std::atomic<bool> g_thread_message{false};

QTemporaryDir& home_dir()
{
  static auto* dir = new QTemporaryDir(QDir::tempPath() + QStringLiteral("/orq_test_XXXXXX"));
  return *dir;
}

void strict_handler(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
  const int announced_before = QTestLog::unhandledIgnoreMessages();
  g_qtest_handler(type, context, message);
  if (type == QtDebugMsg || type == QtInfoMsg)
    return;
  if (QTestLog::unhandledIgnoreMessages() < announced_before)
    return;
  // The offscreen platform says so whenever a dialog asks it for window
  // manager services it does not have; that is the test platform talking.
  if (message.startsWith(QLatin1String("This plugin does not support ")))
    return;
  if (QCoreApplication::instance() && QThread::currentThread() == QCoreApplication::instance()->thread()) {
    const QByteArray text = "unannounced message: " + message.toLocal8Bit();
    QTest::qFail(text.constData(), context.file ? context.file : __FILE__, context.file ? context.line : __LINE__);
  } else {
    g_thread_message = true;
  }
}
}  // namespace

void orq_test_isolate_environment()
{
  QTemporaryDir& dir = home_dir();
  const QByteArray home = QFile::encodeName(dir.path());
  qputenv("HOME", home);
  qputenv("XDG_CONFIG_HOME", home + "/.config");
  qputenv("VANTOR_INI", home + "/vantor.ini");
  QDir().mkpath(dir.path() + QStringLiteral("/runtime"));
  QFile::setPermissions(dir.path() + QStringLiteral("/runtime"),
                        QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
  qputenv("XDG_RUNTIME_DIR", home + "/runtime");
  for (const char* name : {"VANTOR_SHOW_QT_MESSAGES", "VANTOR_ENABLE_QT_MESSAGES", "VANTOR_EVENT_LOGGING",
                           "VANTOR_DEBUG", "VANTOR_DEBUG_LOG", "VANTOR_PROFILE", "VANTOR_REGRESSION_TEST",
                           "KESTREL_QT_DEBUG_BREAK_ON_QT_MSG"})
    qunsetenv(name);
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
    qputenv("QT_QPA_PLATFORM", "offscreen");
  QDir::setCurrent(dir.path());
}

QString orq_test_home()
{
  return home_dir().path();
}

void orq_test_strict_messages()
{
  QtMessageHandler current = qInstallMessageHandler(strict_handler);
  if (current != strict_handler)
    g_qtest_handler = current;
}

bool orq_test_unexpected_message_from_thread()
{
  return g_thread_message.load();
}

QString orq_test_helper_path()
{
  return QStringLiteral(ORQ_TEST_HELPER_PATH);
}

QProcessEnvironment orq_test_child_environment(const QString& dir)
{
  QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
  env.insert(QStringLiteral("HOME"), dir);
  env.insert(QStringLiteral("XDG_CONFIG_HOME"), dir + QStringLiteral("/.config"));
  env.insert(QStringLiteral("VANTOR_INI"), dir + QStringLiteral("/vantor.ini"));
  env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
  // A child that aborts on purpose must not leave a core file behind, and
  // the sanitizer build must let the abort through as an abort.
  env.insert(QStringLiteral("ASAN_OPTIONS"),
             env.value(QStringLiteral("ASAN_OPTIONS")) + QStringLiteral(":handle_abort=0:disable_coredump=1"));
  return env;
}

std::vector<std::function<std::unique_ptr<QObject>()>>& orq_test_registry()
{
  static std::vector<std::function<std::unique_ptr<QObject>()>> registry;
  return registry;
}

int orq_test_run_all(int argc, char** argv)
{
  int failed = 0;
  for (const auto& make : orq_test_registry()) {
    std::unique_ptr<QObject> test = make();
    failed += QTest::qExec(test.get(), argc, argv) != 0 ? 1 : 0;
    test.reset();
    // Objects that asked to be deleted later (finished animations, closed
    // dialogs) go now, before the next class and before the leak check.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  return failed != 0 || orq_test_unexpected_message_from_thread() ? 1 : 0;
}

QString orq_test_internal_error(const std::function<void()>& body)
{
  const GEN_INTERNAL_ERROR_HANDLER previous = gen_set_internal_error_handler(unwinding_handler);
  QString condition;
  try {
    body();
  } catch (const UNWIND_INTERNAL_ERROR& e) {
    condition = e.condition.isNull() ? QStringLiteral("") : e.condition;
  }
  gen_set_internal_error_handler(previous);
  return condition;
}

void orq_test_fill_tree(QStandardItem* root, const QString& text, int columns)
{
  QList<QStandardItem*> stack{root};
  QStandardItem* last = nullptr;
  QString name;
  auto flush = [&] {
    if (name.isEmpty())
      return;
    last = new QStandardItem(name);
    QList<QStandardItem*> row{last};
    for (int c = 1; c < columns; ++c)
      row << new QStandardItem(name + QLatin1Char('.') + QString::number(c));
    stack.last()->appendRow(row);
    name.clear();
  };
  for (const QChar c : text.mid(1, text.size() - 2)) {
    if (c == QLatin1Char('[')) {
      flush();
      stack.append(last);
    } else if (c == QLatin1Char(']')) {
      flush();
      stack.removeLast();
    } else if (c == QLatin1Char(' ')) {
      flush();
    } else {
      name += c;
    }
  }
  flush();
}
