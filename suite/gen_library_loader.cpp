#include "gen_library_loader.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QRegularExpression>

#include <atomic>
#include <mutex>

#include <dlfcn.h>

namespace {
std::atomic<GEN_LIBRARY_LOADER*> g_service{nullptr};

// Each thread sees only its own failures, as with dlerror(): one thread's
// failed load must not overwrite the reason another thread is about to show.
// Every call starts afresh, so a reason never outlives the call it explains.
struct FAILURE {
  QString system_error;
  QString data;
};
thread_local FAILURE t_failure;

void fail(const QString& system_error, const QString& data)
{
  t_failure.system_error = system_error;
  t_failure.data = data;
}

QString last_dl_error(const QString& fallback)
{
  const char* text = dlerror();
  return text ? QString::fromLocal8Bit(text) : fallback;
}

// dlclose() or dlsym() on a handle that dlopen() did not return is undefined
// behaviour, so the loader only acts on handles it handed out, and counts
// their references so that unload() can tell a stale handle from a live one.
// The lock is held across dlopen()/dlclose() to keep the counts in step
// with the dynamic linker's; it is recursive because a library's
// constructors may themselves load libraries.
struct LOADED {
  QString name;
  int references = 0;
};
std::recursive_mutex g_mutex;
QHash<void*, LOADED>& loaded()
{
  static QHash<void*, LOADED> libraries;
  return libraries;
}

bool is_file_name(const QString& name)
{
  static const QRegularExpression versioned_so(QStringLiteral("\\.so(\\.\\d+)+$"));
  return name.contains(QLatin1Char('/')) || name.endsWith(QLatin1String(".so")) ||
         versioned_so.match(name).hasMatch();
}

QString executable_dir()
{
  // applicationDirPath() warns without an application object; a tool may
  // load libraries before it creates one.
  if (QCoreApplication::instance())
    return QCoreApplication::applicationDirPath();
  return QFileInfo(QFile::symLinkTarget(QStringLiteral("/proc/self/exe"))).absolutePath();
}

void* open(const QString& file)
{
  return dlopen(QFile::encodeName(file).constData(), RTLD_NOW | RTLD_LOCAL);
}
} // namespace

GEN_LIBRARY_LOADER::~GEN_LIBRARY_LOADER() = default;

QString GEN_LIBRARY_LOADER::file_name_for(const QString& name)
{
  if (name.isEmpty() || is_file_name(name))
    return {};
  return executable_dir() + QStringLiteral("/lib") + name + QStringLiteral(".so");
}

GEN_LIBRARY_LOADER::HANDLE GEN_LIBRARY_LOADER::load(const QString& name)
{
  t_failure = FAILURE();
  if (name.isEmpty()) {
    fail(QStringLiteral("No library name was given."), name);
    return nullptr;
  }
  std::lock_guard<std::recursive_mutex> lock(g_mutex);
  void* handle = nullptr;
  if (is_file_name(name)) {
    handle = open(name);
    if (!handle) {
      fail(last_dl_error(QStringLiteral("%1: cannot be loaded").arg(name)), name);
      return nullptr;
    }
  } else {
    const QString file = QStringLiteral("lib") + name + QStringLiteral(".so");
    handle = open(file);
    if (!handle) {
      const QString search_error = last_dl_error(QStringLiteral("%1: cannot be loaded").arg(file));
      const QString beside = file_name_for(name);
      if (QFileInfo::exists(beside)) {
        handle = open(beside);
        // The copy beside the executable was found but is broken (a missing
        // dependency, a wrong architecture): that is the reason worth showing.
        if (!handle) {
          fail(last_dl_error(QStringLiteral("%1: cannot be loaded").arg(beside)), name);
          return nullptr;
        }
      } else {
        fail(search_error, name);
        return nullptr;
      }
    }
  }
  LOADED& entry = loaded()[handle];
  if (entry.references++ == 0)
    entry.name = name;
  return handle;
}

void* GEN_LIBRARY_LOADER::find_function(HANDLE library, const QString& name)
{
  t_failure = FAILURE();
  if (!library) {
    fail(QStringLiteral("No library was given to look for %1 in.").arg(name), QString());
    return nullptr;
  }
  std::lock_guard<std::recursive_mutex> lock(g_mutex);
  const auto it = loaded().constFind(library);
  if (it == loaded().constEnd()) {
    fail(QStringLiteral("Looking for %1 in a library that is not loaded.").arg(name), QString());
    return nullptr;
  }
  // A null result is ambiguous on its own; only a fresh dlerror() says
  // whether the symbol is missing.
  dlerror();
  void* function = dlsym(library, QFile::encodeName(name).constData());
  if (!function) {
    fail(last_dl_error(QStringLiteral("%1: symbol %2 is null").arg(it->name, name)), it->name);
    return nullptr;
  }
  return function;
}

bool GEN_LIBRARY_LOADER::unload(HANDLE library)
{
  t_failure = FAILURE();
  std::lock_guard<std::recursive_mutex> lock(g_mutex);
  const auto it = loaded().find(library);
  if (!library || it == loaded().end()) {
    fail(QStringLiteral("The library to unload is not loaded."), QString());
    return false;
  }
  // Every dlopen() took a reference of the dynamic linker's own, so every
  // unload gives one back; the entry goes with the last.
  const QString name = it->name;
  if (--it->references == 0)
    loaded().erase(it);
  if (dlclose(library) != 0) {
    fail(last_dl_error(QStringLiteral("%1: cannot be unloaded").arg(name)), name);
    return false;
  }
  return true;
}

QString GEN_LIBRARY_LOADER::system_error() const
{
  return t_failure.system_error;
}

QString GEN_LIBRARY_LOADER::error_data() const
{
  return t_failure.data;
}

GEN_LIBRARY_LOADER& gen_library_loader()
{
  static GEN_LIBRARY_LOADER default_service;
  GEN_LIBRARY_LOADER* service = g_service.load();
  return service ? *service : default_service;
}

void gen_set_library_loader(GEN_LIBRARY_LOADER* service)
{
  g_service.store(service);
}
