#pragma once
// Creates dockable windows whose content lives in the suite's tool
// libraries: the library is loaded by name at run time and its creation
// entry point called. Owned by the main window (get_dock_mgr()).
#include "orq_export.h"

#include <QMap>
#include <QString>
#include <QWidget>

#include <string>

class ORQ_DOCK_WIDGET;
class ORQ_MAIN_WINDOW;
namespace tinyxml2 {
class XMLElement;
}

// The docks the suite's tools contribute; each names a library, or a
// library and one of its views ("library:view").
enum ORQ_DOCK_ENUM {
  ORQ_DOCK_MESSAGES = 0,
  ORQ_DOCK_PROJECT_NAVIGATOR = 1,
  ORQ_DOCK_TASKS = 2,
  ORQ_DOCK_TCL_CONSOLE = 3,
  ORQ_DOCK_IP_CATALOG = 4,
  ORQ_DOCK_NODE_FINDER = 5,
  ORQ_DOCK_PROPERTIES = 6,
  ORQ_DOCK_REPORTS = 7,
  ORQ_DOCK_BOOKMARKS = 8,
  ORQ_DOCK_TEMPLATES = 9,
  ORQ_DOCK_CHANGE_MANAGER = 10,
  ORQ_DOCK_PARTITIONS = 11,
  ORQ_DOCK_TCL_SCRIPTS = 12,
  ORQ_DOCK_PROJECT_HIERARCHY = 13,
  ORQ_DOCK_PROJECT_FILES = 14,
  ORQ_DOCK_PROJECT_DESIGN_UNITS = 15,
  ORQ_DOCK_PROJECT_IP_COMPONENTS = 16,
};

// Why a dock is being made, for the three-argument entry points.
enum ORQ_DOCK_FROM_ENUM {
  ORQ_DOCK_FROM_MENU = 0,     // the user asked for it
  ORQ_DOCK_FROM_STARTUP = 1,  // a saved layout brings it back
  ORQ_DOCK_FROM_SCRIPT = 2,   // a Tcl command or another tool asked
};

class ORQ_EXPORT ORQ_DOCK_MGR {
public:
  ORQ_DOCK_MGR();
  ~ORQ_DOCK_MGR();
  ORQ_DOCK_MGR(const ORQ_DOCK_MGR&) = delete;
  ORQ_DOCK_MGR& operator=(const ORQ_DOCK_MGR&) = delete;

  // Loads the library named for which and calls
  // "<library>[_<view>]_create_dock_widget(ORQ_MAIN_WINDOW*)". Null when the
  // library or its entry point is missing or it made nothing; a load
  // failure posts message 189000. A null window gets a new main window.
  ORQ_DOCK_WIDGET* create_dock_widget(ORQ_DOCK_ENUM which, ORQ_MAIN_WINDOW* window);
  // The module string used whole as library name and entry-point base:
  // "<module>_create_dock_widget(ORQ_MAIN_WINDOW*, ORQ_DOCK_FROM_ENUM)".
  ORQ_DOCK_WIDGET* create_dock_widget(ORQ_DOCK_ENUM which, ORQ_DOCK_FROM_ENUM from, ORQ_MAIN_WINDOW* window);
  // From a description element: its dll_name and access_function, the
  // latter called as (element, parent, flags).
  ORQ_DOCK_WIDGET* create_dock_widget(const tinyxml2::XMLElement* element, QWidget* parent,
                                      Qt::WindowFlags flags = Qt::WindowFlags());
  // The same from the element's text; malformed text yields null.
  ORQ_DOCK_WIDGET* create_dock_widget(const std::string& xml, QWidget* parent,
                                      Qt::WindowFlags flags = Qt::WindowFlags());

  // The module string of a dock, and a tool's own choice of library for it.
  QString get_module(ORQ_DOCK_ENUM which) const;
  void set_module(ORQ_DOCK_ENUM which, const QString& module);

private:
  QMap<ORQ_DOCK_ENUM, QString> m_modules;
};

// Entry-point types a tool library exports (extern "C").
using ORQ_CREATE_DOCK_WIDGET_FUNCTION = ORQ_DOCK_WIDGET* (*)(ORQ_MAIN_WINDOW*);
using ORQ_CREATE_DOCK_WIDGET_FROM_FUNCTION = ORQ_DOCK_WIDGET* (*)(ORQ_MAIN_WINDOW*, ORQ_DOCK_FROM_ENUM);
using ORQ_CREATE_DOCK_WIDGET_XML_FUNCTION = ORQ_DOCK_WIDGET* (*)(const tinyxml2::XMLElement*, QWidget*,
                                                                  Qt::WindowFlags);
