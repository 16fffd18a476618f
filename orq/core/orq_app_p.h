#pragma once
// Start-up pieces of ORQ_APP that tests reach directly.
#include "orq_export.h"

#include <QString>

struct ORQ_PROCESSOR_LIMITS {
  int cores;
  int logical;
};

// What the processor manager is given, from the machine's counts (0 when a
// query failed), the orq_max_kpx_concurrency cap and the hyperthreading switch.
ORQ_EXPORT ORQ_PROCESSOR_LIMITS orq_processor_limits(int physical_cores, int logical_processors,
                                                     int max_concurrency, bool hyperthreading);

// The full Qt message handler that the constructor installs.
void orq_install_full_message_handler();
// The filtering handler of copy_argv_for_qt.
void orq_install_filtering_message_handler();
