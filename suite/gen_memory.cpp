#include "gen_memory.h"

#include "gen_message_service.h"

#include <QFile>

#include <atomic>
#include <cstdarg>
#include <cstdio>
#include <dlfcn.h>
#include <sys/resource.h>

namespace {
std::atomic<GEN_MEMORY*> g_memory{nullptr};
std::atomic<GEN_PROFILER*> g_profiler{nullptr};

qint64 status_kib(const char* key)
{
  QFile status(QStringLiteral("/proc/self/status"));
  if (!status.open(QIODevice::ReadOnly | QIODevice::Text))
    return 0;
  const QByteArray prefix = QByteArray(key) + ':';
  while (!status.atEnd()) {
    const QByteArray line = status.readLine();
    if (line.startsWith(prefix))
      return line.mid(prefix.size()).trimmed().split(' ').value(0).toLongLong();
  }
  return 0;
}

double cpu_seconds()
{
  rusage usage{};
  if (getrusage(RUSAGE_SELF, &usage) != 0)
    return 0.0;
  return double(usage.ru_utime.tv_sec + usage.ru_stime.tv_sec)
         + double(usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) / 1e6;
}
}  // namespace

GEN_MEMORY::~GEN_MEMORY() = default;

void GEN_MEMORY::set_release_rate(double rate)
{
  // glibc's malloc has no release rate; a preloaded tcmalloc exports this C
  // entry point, and then the rate is real.
  using SET_RATE = void (*)(double);
  auto set_rate = reinterpret_cast<SET_RATE>(dlsym(RTLD_DEFAULT, "MallocExtension_SetMemoryReleaseRate"));
  if (set_rate)
    set_rate(rate);
  std::lock_guard<std::mutex> lock(m_mutex);
  m_rate = rate;
  m_applied = set_rate != nullptr;
}

double GEN_MEMORY::release_rate() const
{
  using GET_RATE = double (*)();
  auto get_rate = reinterpret_cast<GET_RATE>(dlsym(RTLD_DEFAULT, "MallocExtension_GetMemoryReleaseRate"));
  if (get_rate)
    return get_rate();
  std::lock_guard<std::mutex> lock(m_mutex);
  return m_rate;
}

bool GEN_MEMORY::allocator_applied_rate() const
{
  std::lock_guard<std::mutex> lock(m_mutex);
  return m_applied;
}

void GEN_MEMORY::message(int level, const char* format, ...)
{
  char buffer[1024];
  va_list args;
  va_start(args, format);
  std::vsnprintf(buffer, sizeof buffer, format, args);
  va_end(args);
  const QString text = QString::fromLocal8Bit(buffer);
  gen_message_service().debug_log(QStringLiteral("memory"), text);
  bool ok = false;
  const int verbosity = qEnvironmentVariableIntValue("VANTOR_MEMORY_VERBOSITY", &ok);
  if (level <= (ok ? verbosity : 0)) {
    std::fprintf(stderr, "%s\n", buffer);
    std::fflush(stderr);
  }
}

void GEN_MEMORY::set_program_name(const QString& name)
{
  std::lock_guard<std::mutex> lock(m_mutex);
  m_program = name;
}

QString GEN_MEMORY::program_name() const
{
  std::lock_guard<std::mutex> lock(m_mutex);
  return m_program;
}

void GEN_MEMORY::shutdown_thread_cache_tracking()
{
  std::lock_guard<std::mutex> lock(m_mutex);
  m_tracking = false;
}

bool GEN_MEMORY::is_thread_cache_tracking() const
{
  std::lock_guard<std::mutex> lock(m_mutex);
  return m_tracking;
}

qint64 GEN_MEMORY::current_rss()
{
  return status_kib("VmRSS") * 1024;
}

qint64 GEN_MEMORY::peak_rss()
{
  return status_kib("VmHWM") * 1024;
}

GEN_MEMORY& gen_memory()
{
  static GEN_MEMORY default_service;
  GEN_MEMORY* service = g_memory.load();
  return service ? *service : default_service;
}

void gen_set_memory(GEN_MEMORY* service)
{
  g_memory.store(service);
}

GEN_PROFILER::~GEN_PROFILER() = default;

void GEN_PROFILER::init(const QString& program, bool debug_enabled)
{
  std::lock_guard<std::mutex> lock(m_mutex);
  m_timer.start();
  m_debug = debug_enabled;
  gen_message_service().debug_log(QStringLiteral("profile"),
                                  QStringLiteral("profiling %1 started").arg(program));
}

bool GEN_PROFILER::is_running() const
{
  std::lock_guard<std::mutex> lock(m_mutex);
  return m_timer.isValid();
}

QString GEN_PROFILER::finalize(const QString& program, bool final)
{
  std::lock_guard<std::mutex> lock(m_mutex);
  if (!m_timer.isValid())
    return {};
  const qint64 wall_ms = m_timer.elapsed();
  if (final)
    m_timer.invalidate();
  if (!qEnvironmentVariableIsSet("VANTOR_PROFILE") && !(m_debug && final))
    return {};
  const QString path = program + QStringLiteral("_profile.txt");
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly | QIODevice::Text | QIODevice::Truncate))
    return {};
  const QString report = QStringLiteral("program: %1\nwall_ms: %2\ncpu_s: %3\npeak_rss_bytes: %4\n")
                             .arg(program)
                             .arg(wall_ms)
                             .arg(cpu_seconds(), 0, 'f', 3)
                             .arg(GEN_MEMORY::peak_rss());
  file.write(report.toUtf8());
  return path;
}

GEN_PROFILER& gen_profiler()
{
  static GEN_PROFILER default_service;
  GEN_PROFILER* service = g_profiler.load();
  return service ? *service : default_service;
}

void gen_set_profiler(GEN_PROFILER* service)
{
  g_profiler.store(service);
}
