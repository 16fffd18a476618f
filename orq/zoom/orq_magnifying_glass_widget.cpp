#include "orq_magnifying_glass_widget.h"

#include "orq_require_p.h"

void ORQ_MAGNIFYING_GLASS_WIDGET::magnifying(ORQ_ZOOM_SCROLL_AREA* scroll_area, ORQ_VIEW* view, QPoint)
{
  ORQ_REQUIRE(scroll_area != NULL);
  ORQ_REQUIRE(view != NULL);
  // The lens is not drawn yet; the press is taken and nothing else happens.
}
