#include "gen_internal_error.h"

#include "gen_message_service.h"

#include <QFileInfo>

#include <atomic>
#include <cstdio>
#include <cstdlib>

namespace {
std::atomic<GEN_INTERNAL_ERROR_HANDLER> g_handler{nullptr};

void default_handler(const QString& report, const char*, const char*, const char*, int)
{
  const QByteArray bytes = report.toLocal8Bit();
  std::fprintf(stderr, "%s\n", bytes.constData());
  std::fflush(stderr);
  gen_message_service().debug_log(QStringLiteral("internal error"), report);
}
}  // namespace

GEN_INTERNAL_ERROR_HANDLER gen_set_internal_error_handler(GEN_INTERNAL_ERROR_HANDLER handler)
{
  return g_handler.exchange(handler);
}

QString gen_format_internal_error(const char* condition, const char* module, const char* file,
                                  int line)
{
  // Only the file's own name: build trees differ, the name is what a
  // developer searches for.
  const QString file_name = file ? QFileInfo(QString::fromLocal8Bit(file)).fileName()
                                 : QStringLiteral("<unknown>");
  return QStringLiteral("Internal error in module %1 (%2:%3):\n%4")
      .arg(QString::fromLatin1(module ? module : "?"), file_name, QString::number(line),
           QString::fromLocal8Bit(condition ? condition : ""));
}

void gen_internal_error(const QString& text, const char* module, const char* file, int line)
{
  const QByteArray condition = text.toLocal8Bit();
  gen_internal_error(condition.constData(), module, file, line);
}

void gen_internal_error(const char* condition, const char* module, const char* file, int line)
{
  const QString report = gen_format_internal_error(condition, module, file, line);
  GEN_INTERNAL_ERROR_HANDLER handler = g_handler.load();
  if (handler)
    handler(report, condition, module, file, line);
  else
    default_handler(report, condition, module, file, line);
  std::abort();
}
