#pragma once
// Memory services: the allocator's release rate and message function, memory
// tracking by program name, and the profiling service that writes a summary
// of a run (wall and processor time, peak memory) when VANTOR_PROFILE is set.
#include "gen_export.h"

#include <QElapsedTimer>
#include <QString>

#include <mutex>

class GEN_EXPORT GEN_MEMORY {
public:
  virtual ~GEN_MEMORY();

  // Passed on to the process's allocator when it has a release-rate control
  // (a tcmalloc-compatible allocator preloaded or linked); always recorded.
  virtual void set_release_rate(double rate);
  virtual double release_rate() const;
  // True when the running allocator took the last rate.
  bool allocator_applied_rate() const;

  // The allocator's message function: printf-style, shown on standard error
  // when level <= VANTOR_MEMORY_VERBOSITY (default 0), always kept in the
  // debug log.
  virtual void message(int level, const char* format, ...)
#if defined(__GNUC__)
      __attribute__((format(printf, 3, 4)))
#endif
      ;

  virtual void set_program_name(const QString& name);
  QString program_name() const;
  virtual void shutdown_thread_cache_tracking();
  bool is_thread_cache_tracking() const;

  // Resident set size of this process in bytes, current and peak; 0 if unknown.
  static qint64 current_rss();
  static qint64 peak_rss();

private:
  mutable std::mutex m_mutex;
  double m_rate = 0.0;
  bool m_applied = false;
  QString m_program;
  bool m_tracking = true;
};

GEN_EXPORT GEN_MEMORY& gen_memory();
GEN_EXPORT void gen_set_memory(GEN_MEMORY* service);

class GEN_EXPORT GEN_PROFILER {
public:
  virtual ~GEN_PROFILER();
  virtual void init(const QString& program, bool debug_enabled);
  // Writes "<program>_profile.txt" in the working directory when VANTOR_PROFILE
  // is set (or debug was enabled at init and final is true); returns its path
  // or an empty string.
  virtual QString finalize(const QString& program, bool final);
  bool is_running() const;

private:
  mutable std::mutex m_mutex;
  QElapsedTimer m_timer;
  bool m_debug = false;
};

GEN_EXPORT GEN_PROFILER& gen_profiler();
GEN_EXPORT void gen_set_profiler(GEN_PROFILER* service);
