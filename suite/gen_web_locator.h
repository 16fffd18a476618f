#pragma once
// The web-page locator: opens the suite's web pages by number (5 bulletin,
// 11 documentation, 12 notification centre, and the pages of the
// VANTOR_*_WEB_PAGE actions). The default service opens
// "<vantor_web_url>/page/<number>" in the desktop's browser when the
// configuration variable vantor_web_url names a base; without it, a no-op.
#include "gen_export.h"

#include <QUrl>

class GEN_EXPORT GEN_WEB_LOCATOR {
public:
  virtual ~GEN_WEB_LOCATOR();
  // The page's address; empty without a base or for a number below 1.
  virtual QUrl page_url(int page) const;
  // Returns false when no page could be opened.
  virtual bool open_page(int page);
};

// The process's locator; null restores the default one.
GEN_EXPORT GEN_WEB_LOCATOR& gen_web_locator();
GEN_EXPORT void gen_set_web_locator(GEN_WEB_LOCATOR* service);
