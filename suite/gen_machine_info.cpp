#include "gen_machine_info.h"

#include <QFile>
#include <QSet>

#include <atomic>
#include <cstring>
#include <string>
#include <utility>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {
std::atomic<GEN_MACHINE_INFO*> g_info{nullptr};
std::atomic<GEN_PROCESSOR_MGR*> g_mgr{nullptr};

// Every tool scans the topology twice while it starts, and reads three files
// per processor each time, so the scan uses plain system calls: a sorted
// QDir listing that stats every entry, a regular expression compiled on first
// use and QFile's bookkeeping cost far more than the kernel's answers. The
// rules stay QDir's and QFile's: directories or links to them, named "cpu"
// and decimal digits; a file opens when it exists and is not a directory.
bool is_cpu_name(const char* name)
{
  if (std::strncmp(name, "cpu", 3) != 0 || name[3] == '\0')
    return false;
  for (const char* c = name + 3; *c; ++c)
    if (*c < '0' || *c > '9')
      return false;
  return true;
}

bool is_directory(const std::string& path, unsigned char type)
{
  if (type == DT_DIR)
    return true;
  if (type != DT_LNK && type != DT_UNKNOWN)
    return false;
  struct stat info {};
  return ::stat(path.c_str(), &info) == 0 && S_ISDIR(info.st_mode);
}

QByteArray read_small_file(const std::string& path, bool* ok)
{
  const int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
  struct stat info {};
  *ok = fd >= 0 && ::fstat(fd, &info) == 0 && !S_ISDIR(info.st_mode);
  char buffer[256];
  ssize_t size = 0;
  while (*ok && size < ssize_t(sizeof buffer)) {
    const ssize_t got = ::read(fd, buffer + size, sizeof buffer - size);
    if (got <= 0)
      break;
    size += got;
  }
  if (fd >= 0)
    ::close(fd);
  return *ok ? QByteArray(buffer, int(size)).trimmed() : QByteArray();
}

struct CPU_SCAN {
  int logical = 0;
  QSet<QPair<int, int>> cores;
  bool topology_complete = true;
};

CPU_SCAN scan(const QString& root)
{
  CPU_SCAN result;
  const std::string root_path = QFile::encodeName(root).toStdString();
  DIR* dir = ::opendir(root_path.c_str());
  if (!dir)
    return result;
  while (const dirent* entry = ::readdir(dir)) {
    if (!is_cpu_name(entry->d_name))
      continue;
    const std::string base = root_path + '/' + entry->d_name;
    if (!is_directory(base, entry->d_type))
      continue;
    bool ok = false;
    // cpu0 usually has no "online" file: it cannot be taken offline.
    const QByteArray online = read_small_file(base + "/online", &ok);
    if (ok && online == "0")
      continue;
    ++result.logical;
    bool package_ok = false;
    bool core_ok = false;
    const int package = read_small_file(base + "/topology/physical_package_id", &package_ok).toInt();
    const int core = read_small_file(base + "/topology/core_id", &core_ok).toInt();
    if (package_ok && core_ok)
      result.cores.insert(qMakePair(package, core));
    else
      result.topology_complete = false;
  }
  ::closedir(dir);
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
