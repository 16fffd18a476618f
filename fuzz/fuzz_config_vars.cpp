// The configuration-variable file: any bytes must parse without a crash, and
// every warning must name the line it is about.
#include <gen_config_vars.h>

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
  const QByteArray text(reinterpret_cast<const char*>(data), int(size));
  const int lines = text.count('\n') + 1;
  const auto entries = GEN_INI_CONFIG_VARS::parse(text, QStringLiteral("vantor.ini"), [](const QString& w) {
    if (!w.startsWith(QStringLiteral("vantor.ini:")))
      std::abort();
  });
  for (auto it = entries.cbegin(); it != entries.cend(); ++it) {
    if (it.value().line < 1 || it.value().line > lines || it.key().isEmpty())
      std::abort();
    bool ok = false;
    gen_parse_bool(it.value().value, &ok);
    it.value().value.toInt(&ok, 0);
  }
  return 0;
}
