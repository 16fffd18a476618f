#pragma once
// Machine information (processor topology) and the processor manager, which
// holds how many cores and logical processors the suite's parallel work uses.
#include "gen_export.h"

#include <QString>

#include <atomic>

class GEN_EXPORT GEN_MACHINE_INFO {
public:
  // Reads the processor topology below cpu_root, the kernel's
  // /sys/devices/system/cpu by default.
  explicit GEN_MACHINE_INFO(const QString& cpu_root = QString());
  virtual ~GEN_MACHINE_INFO();

  // Distinct (package, core) pairs of the online processors; 0 if unknown.
  virtual int physical_core_count() const;
  // Online logical processors; 0 if unknown.
  virtual int logical_processor_count() const;

private:
  QString m_root;
};

GEN_EXPORT GEN_MACHINE_INFO& gen_machine_info();
GEN_EXPORT void gen_set_machine_info(GEN_MACHINE_INFO* service);

class GEN_EXPORT GEN_PROCESSOR_MGR {
public:
  virtual ~GEN_PROCESSOR_MGR();
  virtual void init(int cores, int logical);
  bool is_initialized() const;
  // What init() was given; 1 before init().
  int cores() const;
  int logical_processors() const;

private:
  std::atomic<int> m_cores{1};
  std::atomic<int> m_logical{1};
  std::atomic<bool> m_initialized{false};
};

GEN_EXPORT GEN_PROCESSOR_MGR& gen_processor_mgr();
GEN_EXPORT void gen_set_processor_mgr(GEN_PROCESSOR_MGR* service);
