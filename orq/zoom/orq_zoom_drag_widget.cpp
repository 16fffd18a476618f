#include "orq_zoom_drag_widget.h"

#include "orq_require_p.h"

namespace {
bool s_zoom_drag_active = false;
} // namespace

void ORQ_ZOOM_DRAG_WIDGET::start_zoom_drag(ORQ_ZOOM_SCROLL_AREA* scroll_area, ORQ_VIEW* view, const QPoint&)
{
  ORQ_REQUIRE(view != NULL);
  ORQ_REQUIRE(scroll_area != NULL);
  // The drag itself is not drawn yet: every press comes back to the scroll
  // area as a click, which zooms out by one step.
  s_zoom_drag_active = false;
}

bool ORQ_ZOOM_DRAG_WIDGET::is_zoom_drag_activate()
{
  return s_zoom_drag_active;
}
