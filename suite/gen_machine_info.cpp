#include "gen_machine_info.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSet>

#include <atomic>
#include <utility>

namespace {
std::atomic<GEN_MACHINE_INFO*> g_info{nullptr};
std::atomic<GEN_PROCESSOR_MGR*> g_mgr{nullptr};

QByteArray read_small_file(const QString& path, bool* ok)
{
  QFile file(path);
  *ok = file.open(QIODevice::ReadOnly);
  return *ok ? file.read(256).trimmed() : QByteArray();
}

struct CPU_SCAN {
  int logical = 0;
  QSet<QPair<int, int>> cores;
  bool topology_complete = true;
};

CPU_SCAN scan(const QString& root)
{
  CPU_SCAN result;
  const QDir dir(root);
  static const QRegularExpression cpu_dir(QStringLiteral("^cpu[0-9]+$"));
  const QStringList entries = dir.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
  for (const QString& entry : entries) {
    if (!cpu_dir.match(entry).hasMatch())
      continue;
    const QString base = dir.filePath(entry);
    bool ok = false;
    // cpu0 usually has no "online" file: it cannot be taken offline.
    const QByteArray online = read_small_file(base + QStringLiteral("/online"), &ok);
    if (ok && online == "0")
      continue;
    ++result.logical;
    bool package_ok = false;
    bool core_ok = false;
    const int package =
        read_small_file(base + QStringLiteral("/topology/physical_package_id"), &package_ok).toInt();
    const int core = read_small_file(base + QStringLiteral("/topology/core_id"), &core_ok).toInt();
    if (package_ok && core_ok)
      result.cores.insert(qMakePair(package, core));
    else
      result.topology_complete = false;
  }
  return result;
}
}  // namespace

GEN_MACHINE_INFO::GEN_MACHINE_INFO(const QString& cpu_root)
    : m_root(cpu_root.isEmpty() ? QStringLiteral("/sys/devices/system/cpu") : cpu_root)
{
}

GEN_MACHINE_INFO::~GEN_MACHINE_INFO() = default;

int GEN_MACHINE_INFO::physical_core_count() const
{
  const CPU_SCAN result = scan(m_root);
  // A partial topology would undercount; better to say "unknown".
  return result.topology_complete ? result.cores.size() : 0;
}

int GEN_MACHINE_INFO::logical_processor_count() const
{
  return scan(m_root).logical;
}

GEN_MACHINE_INFO& gen_machine_info()
{
  static GEN_MACHINE_INFO default_service;
  GEN_MACHINE_INFO* service = g_info.load();
  return service ? *service : default_service;
}

void gen_set_machine_info(GEN_MACHINE_INFO* service)
{
  g_info.store(service);
}

GEN_PROCESSOR_MGR::~GEN_PROCESSOR_MGR() = default;

void GEN_PROCESSOR_MGR::init(int cores, int logical)
{
  m_cores.store(cores);
  m_logical.store(logical);
  m_initialized.store(true);
}

bool GEN_PROCESSOR_MGR::is_initialized() const
{
  return m_initialized.load();
}

int GEN_PROCESSOR_MGR::cores() const
{
  return m_cores.load();
}

int GEN_PROCESSOR_MGR::logical_processors() const
{
  return m_logical.load();
}

GEN_PROCESSOR_MGR& gen_processor_mgr()
{
  static GEN_PROCESSOR_MGR default_service;
  GEN_PROCESSOR_MGR* service = g_mgr.load();
  return service ? *service : default_service;
}

void gen_set_processor_mgr(GEN_PROCESSOR_MGR* service)
{
  g_mgr.store(service);
}
