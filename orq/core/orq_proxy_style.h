#pragma once
// The application style of every tool: the platform style with dock
// separators drawn as splitter handles and dialog buttons laid out the
// suite's way, without icons. The pictures of tool bar extension buttons are
// read when first drawn rather than when a tool bar is made.
#include "orq_export.h"

#include <QProxyStyle>

class ORQ_EXPORT ORQ_PROXY_STYLE : public QProxyStyle {
  Q_OBJECT
public:
  ORQ_PROXY_STYLE();
  explicit ORQ_PROXY_STYLE(QStyle* base);

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget = nullptr) const override;
  int styleHint(StyleHint hint, const QStyleOption* option = nullptr, const QWidget* widget = nullptr,
                QStyleHintReturn* hint_return = nullptr) const override;
  QIcon standardIcon(StandardPixmap standard_icon, const QStyleOption* option = nullptr,
                     const QWidget* widget = nullptr) const override;
};
