// Typed filter text and the texts of rows: the first line is what the user
// typed, the others are row texts. The filter proxy's fast matcher must
// answer exactly as the regular expression the text turns into.
#include "orq_tree_filter_cache_p.h"
#include "orq_tree_filter_proxy_model.h"

#include <cstdint>
#include <cstdlib>

namespace {

class EXPRESSIONS : public ORQ_TREE_FILTER_PROXY_MODEL {
public:
  using ORQ_TREE_FILTER_PROXY_MODEL::process_keyword_expression;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
  const QString input = QString::fromUtf8(reinterpret_cast<const char*>(data), int(size));
  QStringList lines = input.split(QLatin1Char('\n'));
  static EXPRESSIONS proxy;
  const QRegularExpression expression = proxy.process_keyword_expression(lines.takeFirst().trimmed());
  const ORQ_FILTER_MATCHER matcher(expression);
  // Line breaks inside row texts matter to the word form, so the rest is
  // also tried as one text.
  lines << lines.join(QLatin1Char('\n'));
  for (const QString& text : lines) {
    const bool expected = expression.isValid() && expression.match(text).hasMatch();
    if (matcher.matches(text) != expected)
      std::abort();
  }
  return 0;
}
