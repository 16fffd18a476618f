#pragma once
// The dynamic-library loader: tools contribute windows from shared libraries
// that are found by name at run time. A bare name resolves the way the
// platform does it: "lib<name>.so" on the library search path
// (LD_LIBRARY_PATH, the system's cache and directories), then beside the
// executable. A name with a '/' or ending in ".so" (or ".so.N") is used as
// given. Libraries are loaded with RTLD_NOW | RTLD_LOCAL, so a missing
// symbol fails at load and one library's names never bind another's.
#include "gen_export.h"

#include <QString>

class GEN_EXPORT GEN_LIBRARY_LOADER {
public:
  using HANDLE = void*;

  virtual ~GEN_LIBRARY_LOADER();
  // The loaded library, or null; then system_error() and error_data() say why.
  virtual HANDLE load(const QString& name);
  // The exported symbol, or null (system_error() says why).
  virtual void* find_function(HANDLE library, const QString& name);
  // Drops one reference taken by load(); false when library was not loaded
  // by this process's loader or all its references are already dropped.
  virtual bool unload(HANDLE library);
  // The platform's text for why this thread's last call failed; empty when
  // it succeeded.
  virtual QString system_error() const;
  // What this thread's last failed call concerned: the library name as asked
  // for; empty when the call succeeded.
  virtual QString error_data() const;

  // Where name would be looked for beside the executable; empty for a name
  // that is used as given, which is never looked for there.
  static QString file_name_for(const QString& name);
};

// The process's loader; null restores the default one.
GEN_EXPORT GEN_LIBRARY_LOADER& gen_library_loader();
GEN_EXPORT void gen_set_library_loader(GEN_LIBRARY_LOADER* service);
