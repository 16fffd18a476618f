#include "gen_process.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <mutex>
#include <unistd.h>

namespace {
std::atomic<GEN_PROCESS*> g_service{nullptr};
std::mutex g_env_mutex;
}  // namespace

GEN_PROCESS::~GEN_PROCESS() = default;

void GEN_PROCESS::add_kind(unsigned flags)
{
  m_kind.fetch_or(flags);
}

unsigned GEN_PROCESS::kind() const
{
  return m_kind.load();
}

QString GEN_PROCESS::module_file_name() const
{
  const QString exe = QFile::symLinkTarget(QStringLiteral("/proc/self/exe"));
  if (!exe.isEmpty())
    return QFileInfo(exe).fileName();
  return QString::fromLocal8Bit(program_invocation_short_name);
}

QString GEN_PROCESS::program_base_name() const
{
  const QString name = module_file_name();
  const int dot = name.indexOf(QLatin1Char('.'));
  return dot < 0 ? name : name.left(dot);
}

void GEN_PROCESS::set_env(const char* name, const char* value)
{
  std::lock_guard<std::mutex> lock(g_env_mutex);
  ::setenv(name, value, 1);
}

bool GEN_PROCESS::is_debugger_attached() const
{
  QFile status(QStringLiteral("/proc/self/status"));
  if (!status.open(QIODevice::ReadOnly | QIODevice::Text))
    return false;
  while (!status.atEnd()) {
    const QByteArray line = status.readLine();
    if (line.startsWith("TracerPid:"))
      return line.mid(10).trimmed().toInt() != 0;
  }
  return false;
}

void GEN_PROCESS::debugger_output(const QString& text)
{
  // Linux has no separate channel: a debugger sees what the process writes to
  // a file descriptor it watches, so without one there is nothing to do.
  if (!is_debugger_attached())
    return;
  const QByteArray bytes = text.toLocal8Bit();
  ssize_t written = ::write(STDERR_FILENO, bytes.constData(), static_cast<size_t>(bytes.size()));
  (void)written;
}

void GEN_PROCESS::debug_break()
{
  if (is_debugger_attached()) {
    std::raise(SIGTRAP);
    return;
  }
  std::fprintf(stderr, "debug break requested, but no debugger is attached to process %d\n",
               static_cast<int>(::getpid()));
}

GEN_PROCESS& gen_process()
{
  static GEN_PROCESS default_service;
  GEN_PROCESS* service = g_service.load();
  return service ? *service : default_service;
}

void gen_set_process(GEN_PROCESS* service)
{
  g_service.store(service);
}
