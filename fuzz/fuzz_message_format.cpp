// Message texts with "%N!fmt!" arguments: the first line is the text, the
// others are the arguments.
#include <gen_message_service.h>

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
  const QString input = QString::fromUtf8(reinterpret_cast<const char*>(data), int(size));
  QStringList args = input.split(QLatin1Char('\n'));
  const QString text = args.takeFirst();
  gen_format_message_text(text, args);
  return 0;
}
