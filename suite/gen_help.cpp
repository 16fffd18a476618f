#include "gen_help.h"

#include "gen_config_vars.h"
#include "gen_message_service.h"

#include <QDesktopServices>

#include <atomic>

namespace {
std::atomic<GEN_HELP*> g_service{nullptr};
}

GEN_HELP::~GEN_HELP() = default;

QUrl GEN_HELP::help_url(const QString& topic) const
{
  const QString base = gen_config_vars().get_string(QStringLiteral("vantor_help_url"), QString());
  if (base.isEmpty() || topic.isEmpty())
    return {};
  QUrl url = QUrl::fromUserInput(base);
  url.setPath(url.path() + (url.path().endsWith(QLatin1Char('/')) ? QString() : QStringLiteral("/"))
              + topic + QStringLiteral(".html"));
  return url;
}

bool GEN_HELP::show_help(QWidget*, const QString& topic)
{
  gen_message_service().debug_log(QStringLiteral("help"), topic);
  const QUrl url = help_url(topic);
  return url.isValid() && QDesktopServices::openUrl(url);
}

GEN_HELP& gen_help()
{
  static GEN_HELP default_service;
  GEN_HELP* service = g_service.load();
  return service ? *service : default_service;
}

void gen_set_help(GEN_HELP* service)
{
  g_service.store(service);
}
