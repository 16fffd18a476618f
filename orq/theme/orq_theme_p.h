#pragma once
// What the theme wrappers share: the manager they all need, or the internal
// error when there is none yet.
#include "orq_gdi_manager.h"

ORQ_GDI_MANAGER* orq_gdi_mgr();
bool orq_theme_color_exists(int color);
