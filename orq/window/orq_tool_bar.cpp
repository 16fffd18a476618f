#include "orq_tool_bar.h"

#include "orq_font.h"
#include "orq_main_window.h"

#include "gen_config_vars.h"
#include "gen_help.h"
#include "gen_settings.h"

#include <QFontMetrics>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QScreen>

namespace {
// The settings group and value that keep the user's icon size.
constexpr int kLargeIconsGroup = 59;
const char kLargeIconsName[] = "large_icons";

// Below this, large icons crowd out the tool bars' other buttons.
constexpr int kLargeIconMinWidth = 1600;
constexpr int kLargeIconMinHeight = 1080;

bool small_icons_forced()
{
  // The switch belongs to the process, and tool bars are made often.
  static const bool forced = gen_config_vars().get_bool(QStringLiteral("small_icons"), false);
  return forced;
}

QScreen* screen_of(QWidget* widget)
{
  if (widget)
    if (QScreen* screen = widget->screen())
      return screen;
  return QGuiApplication::primaryScreen();
}
} // namespace

ORQ_TOOL_BAR::ORQ_TOOL_BAR(const QString& title, QWidget* parent)
    : QToolBar(title, parent)
{
  setup();
}

ORQ_TOOL_BAR::ORQ_TOOL_BAR(QWidget* parent)
    : QToolBar(parent)
{
  setup();
}

ORQ_TOOL_BAR::~ORQ_TOOL_BAR() = default;

void ORQ_TOOL_BAR::setup()
{
  set_large_icons(get_large_icon_setting(parentWidget()));
  setAccessibleName(windowTitle());
}

bool ORQ_TOOL_BAR::get_large_icon_setting(QWidget* widget)
{
  const bool forced_small = small_icons_forced();
  bool large = true;
  if (!gen_settings().get_group_bool(kLargeIconsGroup, QLatin1String(kLargeIconsName), &large)) {
    large = true;
    const QScreen* screen = screen_of(widget);
    const QRect available = screen ? screen->availableGeometry() : QRect();
    // Decided once for the user, so that the choice is theirs from then on.
    if (screen && (available.width() < kLargeIconMinWidth || available.height() < kLargeIconMinHeight)) {
      large = false;
      gen_settings().set_group_bool(kLargeIconsGroup, QLatin1String(kLargeIconsName), false);
    }
  }
  return forced_small ? false : large;
}

void ORQ_TOOL_BAR::set_large_icons(bool large)
{
  int edge = QFontMetrics(ORQ_FONT(ORQ_GUI_FONT).get_font()).height();
  if (large)
    edge = static_cast<int>(edge * 1.5);
  setIconSize(QSize(edge, edge));
  gen_settings().set_group_bool(kLargeIconsGroup, QLatin1String(kLargeIconsName), large);
}

void ORQ_TOOL_BAR::set_large_icons(ORQ_MAIN_WINDOW* window, bool large)
{
  if (!window)
    return;
  const QList<ORQ_TOOL_BAR*> bars = window->findChildren<ORQ_TOOL_BAR*>();
  for (ORQ_TOOL_BAR* bar : bars)
    bar->set_large_icons(large);
}

void ORQ_TOOL_BAR::keyPressEvent(QKeyEvent* event)
{
  if (event->key() == Qt::Key_F1) {
    event->accept();
    gen_help().show_help(this, get_help_topic_string());
    return;
  }
  QWidget::keyPressEvent(event);
}

QString ORQ_TOOL_BAR::get_help_topic_string() const
{
  return QStringLiteral("Customize");
}
