#include "orq_proxy_style.h"

#include "orq_lazy_icon_engine_p.h"

#include <QApplication>
#include <QPointer>
#include <QStyleOption>

ORQ_PROXY_STYLE::ORQ_PROXY_STYLE() = default;

ORQ_PROXY_STYLE::ORQ_PROXY_STYLE(QStyle* base)
    : QProxyStyle(base)
{
}

void ORQ_PROXY_STYLE::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                    const QWidget* widget) const
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

QIcon ORQ_PROXY_STYLE::standardIcon(StandardPixmap standard_icon, const QStyleOption* option,
                                    const QWidget* widget) const
{
  if (standard_icon != SP_ToolBarHorizontalExtensionButton &&
      standard_icon != SP_ToolBarVerticalExtensionButton)
    return QProxyStyle::standardIcon(standard_icon, option, widget);
  // Every tool bar, the main window's four hidden button bars included, asks
  // for its extension button's icon when it is made, and Qt reads those
  // pictures at once, starting its image plugins: a fair part of a tool's
  // start-up for a button that shows only when a bar overflows. The icon is
  // the base style's, asked for with the same option when first used.
  // Without an option the picture follows the application's direction, which
  // is kept as it is now in case it changes before the first use.
  const bool has_option = option != nullptr;
  QStyleOption copy = has_option ? *option : QStyleOption();
  if (!has_option)
    copy.direction = QGuiApplication::layoutDirection();
  const QPointer<const ORQ_PROXY_STYLE> style(this);
  const QPointer<const QWidget> asker(widget);
  return QIcon(new ORQ_LAZY_ICON_ENGINE([=] {
    const bool same_direction = copy.direction == QGuiApplication::layoutDirection();
    const QStyleOption* used = has_option || !same_direction ? &copy : nullptr;
    if (style)
      return style->QProxyStyle::standardIcon(standard_icon, used, asker.data());
    return QApplication::style()->standardIcon(standard_icon, used, asker.data());
  }));
}
