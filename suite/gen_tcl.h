#pragma once
// The suite's Tcl layer: one Tcl 8.6 interpreter owned by the GUI thread, and
// a queue through which any thread posts Tcl work for the GUI thread to run
// when it flushes the queue.
#include "gen_export.h"

#include <QString>

#include <deque>
#include <functional>
#include <mutex>

struct Tcl_Interp;

class GEN_EXPORT GEN_TCL {
public:
  enum RESULT { OK = 0, ERROR = 1 };  // Tcl's TCL_OK and TCL_ERROR
  using WORK = std::function<void(GEN_TCL&)>;

  GEN_TCL();
  virtual ~GEN_TCL();
  GEN_TCL(const GEN_TCL&) = delete;
  GEN_TCL& operator=(const GEN_TCL&) = delete;

  // The interpreter, created on first use. Use it from one thread only.
  Tcl_Interp* interp();

  // Evaluates a script at global level; *result gets the interpreter result
  // (the error message on failure). Returns Tcl's completion code.
  virtual int eval(const QString& script, QString* result = nullptr);
  // The value of a global variable; *exists tells whether it is set.
  virtual QString get_var(const QString& name, bool* exists = nullptr);
  virtual void set_var(const QString& name, const QString& value);
  // The errorInfo of the last failed evaluation.
  QString error_info();

  // Thread-safe: queue work for the interpreter's thread.
  void post(WORK work);
  void post_script(const QString& script);
  // Runs queued work in posting order, including work posted while it runs
  // only on the next flush. Returns the number of items run.
  virtual int flush_queue();
  int pending() const;
  // How many flushes have run; lets callers see the pump is alive.
  quint64 flush_count() const;

private:
  Tcl_Interp* m_interp = nullptr;
  mutable std::mutex m_queue_mutex;
  std::deque<WORK> m_queue;
  quint64 m_flushes = 0;
};

GEN_EXPORT GEN_TCL& gen_tcl();
GEN_EXPORT void gen_set_tcl(GEN_TCL* service);
