#include "orq_proxy_style.h"

#include <QStyleOption>

ORQ_PROXY_STYLE::ORQ_PROXY_STYLE() = default;

ORQ_PROXY_STYLE::ORQ_PROXY_STYLE(QStyle* base)
    : QProxyStyle(base)
{
}

void ORQ_PROXY_STYLE::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                    QPainter* painter, const QWidget* widget) const
{
  if (element == PE_IndicatorDockWidgetResizeHandle && option) {
    // The separator between docks then looks and grips like a splitter,
    // oriented by its own shape.
    QStyleOption copy(*option);
    copy.state &= ~State_Horizontal;
    if (copy.rect.width() < copy.rect.height())
      copy.state |= State_Horizontal;
    drawControl(CE_Splitter, &copy, painter, widget);
    return;
  }
  QProxyStyle::drawPrimitive(element, option, painter, widget);
}

int ORQ_PROXY_STYLE::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                               QStyleHintReturn* hint_return) const
{
  if (hint == SH_DialogButtonLayout || hint == SH_DialogButtonBox_ButtonsHaveIcons)
    return 0;
  return QProxyStyle::styleHint(hint, option, widget, hint_return);
}
