// The check that decides whether a settings file is kept aside as damaged.
#include <gen_settings.h>

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
  GEN_SETTINGS::is_well_formed(QByteArray(reinterpret_cast<const char*>(data), int(size)));
  return 0;
}
