// The main window's share of zooming: the mode tools, the hints that say
// what the mouse does in each mode, and the zoom commands the suite reaches
// through the main window.
#include "floorplan_window.h"

#include <orq.h>
#include <orq_zoom_scroll_area.h>

#include <QAction>
#include <QActionGroup>
#include <QLabel>
#include <QMenu>

namespace {
struct MODE_HINT {
  const char* action; // the mode tool's object name; null for selection mode
  const char* text;
};

// Short enough for the status bar's left part beside the read-outs of a
// window of the default size; the arrows are the directions of a drag.
// clang-format off
const MODE_HINT k_mode_hints[] = {
  {nullptr,                      "Drag \u2196 zooms in, \u2197 out, \u2199 fits, \u2198 selects; Shift+Ctrl+drag pans"},
  {"ORQ_ZOOM_TOOL_ACTION",       "Click zooms in, Shift/right click out; right drag up/down zooms"},
  {"ORQ_MAGNIFYING_TOOL_ACTION", "Press to show the lens; wheel magnifies, Ctrl+wheel resizes"},
  {"ORQ_PAN_TOOL_ACTION",        "Drag to pan"},
};
// clang-format on

QString hint_for(const QAction* mode)
{
  const QString name = mode ? mode->objectName() : QString();
  for (const MODE_HINT& hint : k_mode_hints)
    if ((hint.action == nullptr && mode == nullptr) || (hint.action && name == QLatin1String(hint.action)))
      return QString::fromUtf8(hint.text);
  return QString();
}
} // namespace

void FLOORPLAN_WINDOW::build_zoom_actions(QMenu* view_menu)
{
  // The three tools are exclusive, and none checked is the plan's own
  // selection mode: a group that lets the checked one be unchecked.
  m_modes = new QActionGroup(this);
  m_modes->setExclusionPolicy(QActionGroup::ExclusionPolicy::ExclusiveOptional);
  m_zoom_area->insert_modes(m_modes);
  // The tool bar shows a tool's status tip while the mouse is over it: it
  // tells what the mouse will do, not the catalogue's general words.
  for (QAction* mode : m_modes->actions())
    mode->setStatusTip(hint_for(mode));
  // Shift+Ctrl with the left button pans while the keys are held; the mode
  // the user was in comes back when one goes up.
  QAction* pan = m_zoom_area->get_pan_tool_action();
  connect(m_modes, &QActionGroup::triggered, this, [this, pan](QAction* action) {
    if (action != pan)
      m_mode_before_pan = action->isChecked() ? action : nullptr;
    show_mode_hint();
  });
  connect(m_zoom_area, &ORQ_ZOOM_SCROLL_AREA::pan_mode_off, this, [this, pan] {
    if (m_mode_before_pan)
      m_mode_before_pan->setChecked(true);
    m_zoom_area->on_switch_mode(m_mode_before_pan ? m_mode_before_pan.data() : pan);
    show_mode_hint();
  });
  view_menu->addAction(m_zoom_area->get_zoom_tool_action());
  view_menu->addAction(m_zoom_area->get_magnifying_action());
  view_menu->addAction(m_zoom_area->get_pan_tool_action());
  view_menu->addSeparator();
  view_menu->addAction(m_zoom_area->get_zoom_fit_action());
  view_menu->addAction(m_zoom_area->get_zoom_selection_action());
  view_menu->addAction(m_zoom_area->get_zoom_in_action());
  view_menu->addAction(m_zoom_area->get_zoom_out_action());
  view_menu->addAction(m_zoom_area->get_set_zoom_action());
  view_menu->addAction(m_zoom_area->get_birds_eye_view_action());
  // The area zooms on the action itself; the flash follows, once the view
  // has its new zoom.
  connect(m_zoom_area->get_zoom_selection_action(), &QAction::triggered, this,
          &FLOORPLAN_WINDOW::flash_selection);
}

QString FLOORPLAN_WINDOW::mode_hint() const
{
  return hint_for(m_modes ? m_modes->checkedAction() : nullptr);
}

void FLOORPLAN_WINDOW::show_mode_hint()
{
  // In the left label, where the hover read-out goes: it stays until the
  // mouse moves over the plan, which is where the user goes next.
  m_hover->setText(mode_hint());
}

void FLOORPLAN_WINDOW::set_zoom(float factor)
{
  m_zoom_area->set_zoom(factor);
}

void FLOORPLAN_WINDOW::open_set_zoom_dlg()
{
  m_zoom_area->open_set_zoom_dlg();
}
