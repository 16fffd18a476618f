#include "orq_dock_mgr.h"

#include "orq_dock_widget.h"
#include "orq_main_window.h"

#include "gen_library_loader.h"
#include "gen_message_service.h"

#include <QLoggingCategory>

#include <tinyxml2.h>

#include <memory>

Q_DECLARE_LOGGING_CATEGORY(orq_dock)

namespace {

constexpr int failed_to_load_library = 189000;

// clang-format off
const struct {
  ORQ_DOCK_ENUM which;
  const char* module;
} default_modules[] = {
  {ORQ_DOCK_MESSAGES,              "vantor_messages"},
  {ORQ_DOCK_PROJECT_NAVIGATOR,     "vantor_project_navigator"},
  {ORQ_DOCK_TASKS,                 "vantor_tasks"},
  {ORQ_DOCK_TCL_CONSOLE,           "vantor_tcl_console"},
  {ORQ_DOCK_IP_CATALOG,            "vantor_ip_catalog"},
  {ORQ_DOCK_NODE_FINDER,           "vantor_node_finder"},
  {ORQ_DOCK_PROPERTIES,            "vantor_properties"},
  {ORQ_DOCK_REPORTS,               "vantor_reports"},
  {ORQ_DOCK_BOOKMARKS,             "vantor_bookmarks"},
  {ORQ_DOCK_TEMPLATES,             "vantor_templates"},
  {ORQ_DOCK_CHANGE_MANAGER,        "vantor_change_manager"},
  {ORQ_DOCK_PARTITIONS,            "vantor_partitions"},
  {ORQ_DOCK_TCL_SCRIPTS,           "vantor_tcl_console:tcl_scripts"},
  {ORQ_DOCK_PROJECT_HIERARCHY,     "vantor_project_navigator:hierarchy"},
  {ORQ_DOCK_PROJECT_FILES,         "vantor_project_navigator:files"},
  {ORQ_DOCK_PROJECT_DESIGN_UNITS,  "vantor_project_navigator:design_units"},
  {ORQ_DOCK_PROJECT_IP_COMPONENTS, "vantor_project_navigator:ip_components"},
};
// clang-format on

// Message 189000 with what the loader says of its last call: the library
// concerned (the one asked for, when the loader names none) and its reason.
void post_load_failure(const QString& library)
{
  const GEN_LIBRARY_LOADER& loader = gen_library_loader();
  gen_message_service().post_message(
      failed_to_load_library,
      {loader.error_data().isEmpty() ? library : loader.error_data(), loader.system_error()});
}

// Loads library, posting the failure; null when it could not be loaded.
GEN_LIBRARY_LOADER::HANDLE load(const QString& library)
{
  GEN_LIBRARY_LOADER::HANDLE handle = gen_library_loader().load(library);
  if (!handle)
    post_load_failure(library);
  return handle;
}

// Loads library and calls its entry point through call. A missing entry
// point leaves the library loaded and says nothing; one that makes no dock
// is reported, as a library that could not be loaded is, and its library
// unloaded.
template <typename FUNCTION, typename CALL>
ORQ_DOCK_WIDGET* load_and_call(const QString& library, const QString& entry, CALL call)
{
  GEN_LIBRARY_LOADER::HANDLE handle = load(library);
  if (!handle)
    return nullptr;
  GEN_LIBRARY_LOADER& loader = gen_library_loader();
  auto function = entry.isEmpty() ? nullptr : reinterpret_cast<FUNCTION>(loader.find_function(handle, entry));
  if (!function)
    return nullptr;
  ORQ_DOCK_WIDGET* dock = call(function);
  if (!dock) {
    post_load_failure(library);
    loader.unload(handle);
  }
  return dock;
}

// Makes a dock in window, or in a new main window when there is none; a
// window made here goes again if no dock comes of it.
template <typename MAKE> ORQ_DOCK_WIDGET* in_window(ORQ_MAIN_WINDOW* window, MAKE make)
{
  std::unique_ptr<ORQ_MAIN_WINDOW> own_window(window ? nullptr : new ORQ_MAIN_WINDOW);
  ORQ_DOCK_WIDGET* dock = make(window ? window : own_window.get());
  if (dock)
    own_window.release(); // the dock's window now
  return dock;
}

QString child_text(const tinyxml2::XMLElement* element, const char* name)
{
  const tinyxml2::XMLElement* child = element->FirstChildElement(name);
  const char* text = child ? child->GetText() : nullptr;
  return text ? QString::fromUtf8(text).trimmed() : QString();
}

} // namespace

ORQ_DOCK_MGR::ORQ_DOCK_MGR()
{
  for (const auto& row : default_modules)
    m_modules.insert(row.which, QString::fromLatin1(row.module));
}

ORQ_DOCK_MGR::~ORQ_DOCK_MGR() = default;

QString ORQ_DOCK_MGR::get_module(ORQ_DOCK_ENUM which) const
{
  return m_modules.value(which);
}

void ORQ_DOCK_MGR::set_module(ORQ_DOCK_ENUM which, const QString& module)
{
  m_modules.insert(which, module);
}

ORQ_DOCK_WIDGET* ORQ_DOCK_MGR::create_dock_widget(ORQ_DOCK_ENUM which, ORQ_MAIN_WINDOW* window)
{
  const QString module = m_modules.value(which);
  return in_window(window, [&module](ORQ_MAIN_WINDOW* into) -> ORQ_DOCK_WIDGET* {
    if (module.isEmpty())
      return nullptr;
    const QStringList parts = module.split(QLatin1Char(':'), Qt::KeepEmptyParts, Qt::CaseSensitive);
    const QString library = parts.at(0);
    const QString base = parts.size() >= 2 ? library + QLatin1Char('_') + parts.at(1) : library;
    return load_and_call<ORQ_CREATE_DOCK_WIDGET_FUNCTION>(
        library, base + QStringLiteral("_create_dock_widget"), [into](auto create) { return create(into); });
  });
}

ORQ_DOCK_WIDGET* ORQ_DOCK_MGR::create_dock_widget(ORQ_DOCK_ENUM which, ORQ_DOCK_FROM_ENUM from,
                                                  ORQ_MAIN_WINDOW* window)
{
  // The module string is used whole here, a view name included.
  const QString module = m_modules.value(which);
  return in_window(window, [&module, from](ORQ_MAIN_WINDOW* into) -> ORQ_DOCK_WIDGET* {
    if (module.isEmpty())
      return nullptr;
    return load_and_call<ORQ_CREATE_DOCK_WIDGET_FROM_FUNCTION>(
        module, module + QStringLiteral("_create_dock_widget"),
        [into, from](auto create) { return create(into, from); });
  });
}

ORQ_DOCK_WIDGET* ORQ_DOCK_MGR::create_dock_widget(const tinyxml2::XMLElement* element, QWidget* parent,
                                                  Qt::WindowFlags flags)
{
  if (!element)
    return nullptr;
  const QString library = child_text(element, "dll_name");
  if (library.isEmpty())
    return nullptr;
  return load_and_call<ORQ_CREATE_DOCK_WIDGET_XML_FUNCTION>(
      library, child_text(element, "access_function"),
      [element, parent, flags](auto create) { return create(element, parent, flags); });
}

ORQ_DOCK_WIDGET* ORQ_DOCK_MGR::create_dock_widget(const std::string& xml, QWidget* parent,
                                                  Qt::WindowFlags flags)
{
  tinyxml2::XMLDocument document(true, tinyxml2::PRESERVE_WHITESPACE);
  if (document.Parse(xml.c_str(), xml.size()) != tinyxml2::XML_SUCCESS) {
    qCWarning(orq_dock, "Dock description could not be read: %s", document.ErrorStr());
    return nullptr;
  }
  return create_dock_widget(document.FirstChildElement(), parent, flags);
}
