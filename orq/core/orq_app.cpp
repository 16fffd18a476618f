#include "orq_app.h"

#include "orq_app_event_filter.h"
#include "orq_app_p.h"
#include "orq_fonts.h"
#include "orq_main_window.h"
#include "orq_proxy_style.h"
#include "orq_safe_connect.h"

#include "gen_config_vars.h"
#include "gen_machine_info.h"
#include "gen_memory.h"
#include "gen_message_service.h"
#include "gen_process.h"
#include "gen_tcl.h"
#include "gen_undo_redo_mgr.h"

#include <QStyle>
#include <QTimer>

#include <algorithm>
#include <cstring>
#include <vector>

namespace {
// The argument copies belong to the process: Qt keeps pointers into them for
// its whole life. Keeping them here also tells leak checkers they are held.
std::vector<char*>& argument_store()
{
  // Never destroyed, so the copies stay reachable until the very end.
  static auto* store = new std::vector<char*>;
  return *store;
}

char* keep_copy(const char* text)
{
  const size_t length = std::strlen(text);
  char* copy = new char[length + 1];
  std::memcpy(copy, text, length + 1);
  argument_store().push_back(copy);
  return copy;
}

const QString& executable_base_name()
{
  static const QString name = gen_process().program_base_name();
  return name;
}

int max_kpx_concurrency()
{
  static const int value = gen_config_vars().get_int(QStringLiteral("orq_max_kpx_concurrency"), 4);
  return value;
}

bool hyperthreading_enabled()
{
  static const bool value =
      gen_config_vars().get_bool(QStringLiteral("enable_vantor_hyperthreading"), false);
  return value;
}
}  // namespace

ORQ_PROCESSOR_LIMITS orq_processor_limits(int physical_cores, int logical_processors,
                                          int max_concurrency, bool hyperthreading)
{
  int cores = physical_cores > 0 ? physical_cores : 1;
  int logical = logical_processors > 0 ? logical_processors : cores;
  cores = std::min(cores, max_concurrency);
  logical = std::min(logical, max_concurrency);
  if (hyperthreading)
    return {cores, logical};
  return {std::min(cores, logical), logical};
}

char** ORQ_APP::copy_argv_for_qt(int argc, const char** argv)
{
  char** result = nullptr;
  if (argc > 0 && argv) {
    result = new char*[static_cast<size_t>(argc) + 1]();
    argument_store().push_back(reinterpret_cast<char*>(result));
  }

  orq_install_filtering_message_handler();
  qWarning("Enabling Qt messages.");

  GEN_MEMORY& memory = gen_memory();
  if (!qEnvironmentVariableIsSet("TCMALLOC_RELEASE_RATE")) {
    memory.set_release_rate(256.0);
    memory.message(1, "TCMALLOC_RELEASE_RATE set to approporiate rate by GUI");
  } else {
    memory.message(2, "TCMALLOC_RELEASE_RATE set by user");
  }
  memory.message(1, "TCMALLOC_RELEASE_RATE is: %f", memory.release_rate());

  qputenv("QMLSCENE_DEVICE", "software");
  gen_process().set_env("QML_DISABLE_DISK_CACHE", "1");

  QApplication::setStyle(new ORQ_PROXY_STYLE);

  if (result)
    for (int i = 0; i < argc && argv[i]; ++i)
      result[i] = keep_copy(argv[i]);
  return result;
}

ORQ_APP::ORQ_APP(int& argc, char** argv)
    : QApplication(argc, argv)
{
  // copy_argv_for_qt sets the style before there is an application to be its
  // parent, and Qt deletes a replaced style only when the application is its
  // parent: a tool that later sets another style would leak the first one.
  // At exit the application deletes its current style either way.
  QStyle* start_up_style = QApplication::style();
  if (!start_up_style->parent())
    start_up_style->setParent(this);
  if (gen_config_vars().get_bool(QStringLiteral("orq_app_debug_break"), false))
    gen_process().debug_break();
  orq_install_full_message_handler();
  orq_load_fonts_from_resources();
  gen_process().add_kind(GEN_PROCESS_UI | GEN_PROCESS_QT);
}

ORQ_APP::~ORQ_APP() = default;

bool ORQ_APP::init_instance(int argc, const char** argv)
{
  installEventFilter(new ORQ_APP_EVENT_FILTER(this));
  gen_message_service().init(argc, argv);

  m_undo_redo_mgr = new GEN_UNDO_REDO_MGR(this);

  auto* tcl_timer = new QTimer(this);
  orq_safe_connect(tcl_timer, SIGNAL(timeout()), this, SLOT(flush_tcl_queue()), Qt::AutoConnection,
                   __FILE__, __LINE__);
  tcl_timer->start(100);

  const QString& base_name = executable_base_name();
  gen_memory().set_program_name(base_name);
  gen_profiler().init(base_name, gen_message_service().is_debug_enabled());

  const GEN_MACHINE_INFO& machine = gen_machine_info();
  const ORQ_PROCESSOR_LIMITS limits =
      orq_processor_limits(machine.physical_core_count(), machine.logical_processor_count(),
                           max_kpx_concurrency(), hyperthreading_enabled());
  gen_processor_mgr().init(limits.cores, limits.logical);
  return true;
}

void ORQ_APP::exit_instance()
{
  delete m_undo_redo_mgr;
  m_undo_redo_mgr = nullptr;
  const QString base_name = gen_process().program_base_name();
  gen_message_service().shutdown();
  gen_profiler().finalize(base_name, true);
  gen_memory().shutdown_thread_cache_tracking();
}

ORQ_MAIN_WINDOW* ORQ_APP::get_main_window()
{
  const QWidgetList widgets = topLevelWidgets();
  for (QWidget* widget : widgets)
    if (auto* window = qobject_cast<ORQ_MAIN_WINDOW*>(widget))
      return window;
  return nullptr;
}

ORQ_MAIN_WINDOW* ORQ_APP::get_main_frame()
{
  return get_main_window();
}

GEN_UNDO_REDO_MGR* ORQ_APP::get_undo_redo_mgr()
{
  return m_undo_redo_mgr;
}

void ORQ_APP::flush_tcl_queue()
{
  gen_tcl().flush_queue();
}

ORQ_APP* orq_get_app()
{
  return qobject_cast<ORQ_APP*>(QCoreApplication::instance());
}
