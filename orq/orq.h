#pragma once
// Everything a tool of the suite builds its windows from, in one include.
// Each header can also be included on its own by its class's name.
#include "orq_export.h"

#include "orq_actions.h"
#include "orq_app.h"
#include "orq_app_event_filter.h"
#include "orq_brush.h"
#include "orq_color.h"
#include "orq_dialog.h"
#include "orq_font.h"
#include "orq_fonts.h"
#include "orq_gdi_manager.h"
#include "orq_icons.h"
#include "orq_images.h"
#include "orq_main_window.h"
#include "orq_message_box.h"
#include "orq_pen.h"
#include "orq_proxy_style.h"
#include "orq_safe_connect.h"
#include "orq_tcl_action.h"
#include "orq_theme_options_page.h"
#include "orq_tree_model.h"
