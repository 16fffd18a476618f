#pragma once
// An action that runs a Tcl command of the suite when triggered. A command
// that fails shows the Tcl error to the user; the action stays usable.
#include "orq_export.h"

#include <QAction>

#include <string>

class ORQ_EXPORT ORQ_TCL_ACTION : public QAction {
  Q_OBJECT
public:
  explicit ORQ_TCL_ACTION(QObject* parent);
  ORQ_TCL_ACTION(const QString& text, QObject* parent);
  ORQ_TCL_ACTION(const QIcon& icon, const QString& text, QObject* parent);

  // Keeps a copy of the command; null clears it.
  void set_tcl_function(const char* command);
  const std::string& get_tcl_function() const { return m_tcl_function; }

protected slots:
  void execute_action();

private:
  void connect_trigger();

  std::string m_tcl_function;
};
