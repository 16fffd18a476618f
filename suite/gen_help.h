#pragma once
// The help service: context help for a widget by topic. The default service
// opens "<base>/<topic>.html" in the desktop's browser when the configuration
// variable vantor_help_url names a base; without it, help is a no-op.
#include "gen_export.h"

#include <QString>
#include <QUrl>

class QWidget;

class GEN_EXPORT GEN_HELP {
public:
  virtual ~GEN_HELP();
  // Returns false when no help could be shown.
  virtual bool show_help(QWidget* context, const QString& topic);
  // The page the default service would open for topic; empty without a base.
  virtual QUrl help_url(const QString& topic) const;
};

GEN_EXPORT GEN_HELP& gen_help();
GEN_EXPORT void gen_set_help(GEN_HELP* service);
