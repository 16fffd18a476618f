#include "orq_theme_p.h"

#include "orq_require_p.h"

ORQ_GDI_MANAGER* orq_gdi_mgr()
{
  ORQ_GDI_MANAGER* gdi_mgr = ORQ_GDI_MANAGER::get_instance();
  ORQ_REQUIRE(gdi_mgr != NULL);
  return gdi_mgr;
}

bool orq_theme_color_exists(int color)
{
  if (color == ORQ_MIN_COLOR)
    return true;
  return orq_gdi_mgr()->get_color_data(ORQ_COLOR_RESOURCE(color)) != nullptr;
}
