#pragma once
// Facts about the running process that several services need: what kind of
// process it is, its program name, the environment, and the debugger.
#include "gen_export.h"

#include <QString>

#include <atomic>

enum GEN_PROCESS_KIND_FLAG : unsigned {
  GEN_PROCESS_UI = 0x1,  // shows a user interface
  GEN_PROCESS_QT = 0x2,  // runs a Qt application object
};

class GEN_EXPORT GEN_PROCESS {
public:
  virtual ~GEN_PROCESS();

  void add_kind(unsigned flags);
  unsigned kind() const;

  // The executable's file name, e.g. "floorplan_viewer".
  virtual QString module_file_name() const;
  // The module file name cut before its first ".".
  QString program_base_name() const;

  // setenv that is safe against concurrent setenv calls of the suite.
  virtual void set_env(const char* name, const char* value);

  // The debugger's output channel (only while a debugger is attached).
  virtual void debugger_output(const QString& text);
  virtual bool is_debugger_attached() const;
  // Stops in the attached debugger; without one, says so on standard error
  // instead of killing the process with an unhandled trap.
  virtual void debug_break();

private:
  std::atomic<unsigned> m_kind{0};
};

GEN_EXPORT GEN_PROCESS& gen_process();
GEN_EXPORT void gen_set_process(GEN_PROCESS* service);
