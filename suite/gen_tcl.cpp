#include "gen_tcl.h"

#include "gen_internal_error.h"
#include "gen_message_service.h"

#include <tcl.h>

#include <atomic>

#include <dlfcn.h>

namespace {
std::atomic<GEN_TCL*> g_service{nullptr};

// The Tcl library is loaded when the first interpreter is made, not with the
// suite: mapping it and binding the nine hundred functions of its stubs
// table cost every tool's start-up, and many sessions never run Tcl. The
// suite calls Tcl through its stubs table; only the two functions that come
// before an interpreter are looked up by name. A tool that links Tcl itself
// gets the same library, already loaded.
struct TCL_LIBRARY {
  void (*find_executable)(const char* argv0) = nullptr;
  Tcl_Interp* (*create_interp)() = nullptr;
};

const TCL_LIBRARY& tcl_library()
{
  static const TCL_LIBRARY library = [] {
    TCL_LIBRARY entry;
    void* handle = dlopen(GEN_TCL_LIBRARY_NAME, RTLD_NOW | RTLD_GLOBAL);
    if (handle) {
      entry.find_executable = reinterpret_cast<void (*)(const char*)>(dlsym(handle, "Tcl_FindExecutable"));
      entry.create_interp = reinterpret_cast<Tcl_Interp* (*)()>(dlsym(handle, "Tcl_CreateInterp"));
    }
    if (!entry.find_executable || !entry.create_interp)
      gen_internal_error(QStringLiteral("Cannot load the Tcl library %1: %2")
                             .arg(QLatin1String(GEN_TCL_LIBRARY_NAME), QString::fromLocal8Bit(dlerror())),
                         "GEN", __FILE__, __LINE__);
    entry.find_executable(nullptr);
    return entry;
  }();
  return library;
}
}  // namespace

GEN_TCL::GEN_TCL() = default;

GEN_TCL::~GEN_TCL()
{
  if (m_interp)
    Tcl_DeleteInterp(m_interp);
}

Tcl_Interp* GEN_TCL::interp()
{
  if (!m_interp) {
    m_interp = tcl_library().create_interp();
    if (!Tcl_InitStubs(m_interp, TCL_VERSION, 0))
      gen_internal_error(QStringLiteral("The Tcl library %1 is not Tcl %2")
                             .arg(QLatin1String(GEN_TCL_LIBRARY_NAME), QLatin1String(TCL_VERSION)),
                         "GEN", __FILE__, __LINE__);
    // Without init.tcl the core commands still work; only library procedures
    // (auto-loaded packages) are missing, so a tool can go on.
    if (Tcl_Init(m_interp) != TCL_OK)
      gen_message_service().debug_log(QStringLiteral("tcl"),
                                       QStringLiteral("Tcl_Init failed: %1")
                                           .arg(QString::fromUtf8(Tcl_GetStringResult(m_interp))));
  }
  return m_interp;
}

int GEN_TCL::eval(const QString& script, QString* result)
{
  Tcl_Interp* tcl = interp();
  const QByteArray utf8 = script.toUtf8();
  const int code = Tcl_EvalEx(tcl, utf8.constData(), utf8.size(), TCL_EVAL_GLOBAL);
  if (result)
    *result = QString::fromUtf8(Tcl_GetStringResult(tcl));
  return code;
}

QString GEN_TCL::get_var(const QString& name, bool* exists)
{
  const QByteArray utf8 = name.toUtf8();
  const char* value = Tcl_GetVar(interp(), utf8.constData(), TCL_GLOBAL_ONLY);
  if (exists)
    *exists = value != nullptr;
  return value ? QString::fromUtf8(value) : QString();
}

void GEN_TCL::set_var(const QString& name, const QString& value)
{
  Tcl_SetVar(interp(), name.toUtf8().constData(), value.toUtf8().constData(), TCL_GLOBAL_ONLY);
}

QString GEN_TCL::error_info()
{
  return get_var(QStringLiteral("errorInfo"));
}

void GEN_TCL::post(WORK work)
{
  std::lock_guard<std::mutex> lock(m_queue_mutex);
  m_queue.push_back(std::move(work));
}

void GEN_TCL::post_script(const QString& script)
{
  post([script](GEN_TCL& tcl) {
    QString result;
    if (tcl.eval(script, &result) != OK)
      gen_message_service().warning(QStringLiteral("Tcl error in queued command: %1\n%2")
                                        .arg(result, tcl.error_info()));
  });
}

int GEN_TCL::flush_queue()
{
  std::deque<WORK> batch;
  {
    std::lock_guard<std::mutex> lock(m_queue_mutex);
    batch.swap(m_queue);
    ++m_flushes;
  }
  for (WORK& work : batch)
    work(*this);
  return static_cast<int>(batch.size());
}

int GEN_TCL::pending() const
{
  std::lock_guard<std::mutex> lock(m_queue_mutex);
  return static_cast<int>(m_queue.size());
}

quint64 GEN_TCL::flush_count() const
{
  std::lock_guard<std::mutex> lock(m_queue_mutex);
  return m_flushes;
}

GEN_TCL& gen_tcl()
{
  static GEN_TCL default_service;
  GEN_TCL* service = g_service.load();
  return service ? *service : default_service;
}

void gen_set_tcl(GEN_TCL* service)
{
  g_service.store(service);
}
