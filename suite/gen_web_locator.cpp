#include "gen_web_locator.h"

#include "gen_config_vars.h"
#include "gen_message_service.h"

#include <QDesktopServices>

#include <atomic>

namespace {
std::atomic<GEN_WEB_LOCATOR*> g_service{nullptr};
}

GEN_WEB_LOCATOR::~GEN_WEB_LOCATOR() = default;

QUrl GEN_WEB_LOCATOR::page_url(int page) const
{
  const QString base = gen_config_vars().get_string(QStringLiteral("vantor_web_url"), QString());
  if (base.isEmpty() || page < 1)
    return {};
  QUrl url = QUrl::fromUserInput(base);
  // The base may be written with or without its closing slash; either way
  // the page is one level below it.
  QString path = url.path();
  while (path.endsWith(QLatin1Char('/')))
    path.chop(1);
  url.setPath(path + QStringLiteral("/page/") + QString::number(page));
  return url;
}

bool GEN_WEB_LOCATOR::open_page(int page)
{
  const QUrl url = page_url(page);
  gen_message_service().debug_log(QStringLiteral("web"),
                                   QStringLiteral("page %1: %2").arg(page).arg(
                                       url.isValid() ? url.toString() : QStringLiteral("no address")));
  return url.isValid() && QDesktopServices::openUrl(url);
}

GEN_WEB_LOCATOR& gen_web_locator()
{
  static GEN_WEB_LOCATOR default_service;
  GEN_WEB_LOCATOR* service = g_service.load();
  return service ? *service : default_service;
}

void gen_set_web_locator(GEN_WEB_LOCATOR* service)
{
  g_service.store(service);
}
