#pragma once
// Cursors, pixmaps and animations of the library, and the icons of the
// suite's file types. An invalid cursor, pixmap or movie value is an
// internal error.
#include "fio_file_type.h"
#include "orq_export.h"

#include <QCursor>
#include <QIcon>
#include <QPixmap>

class QMovie;

// Bitmap and mask pairs under ":/cursors/", with their hot spots.
enum ORQ_CURSOR_ENUM {
  ORQ_ZOOM_IN_CURSOR = 1,          // 11, 11
  ORQ_ZOOM_OUT_CURSOR = 2,         // 11, 11
  ORQ_CLOCK_ASSIGNMENT_CURSOR = 3, // 0, 0
  ORQ_CREATE_LL_REGION_CURSOR = 4, // 0, 0
  ORQ_MOVE_CURSOR = 5,             // 8, 8
  ORQ_ARROW_CURSOR = 6,            // 8, 6
  ORQ_FORBIDDEN_CURSOR = 7,        // 15, 15
  ORQ_ARROW_FORBIDDEN_CURSOR = 8,  // 4, 2
  ORQ_MAGNIFYING_CURSOR = 9        // 11, 11
};

// Pictures under ":/pixmaps/"; 3 to 9 belong to the suite's update notices.
enum ORQ_PIXMAP_ENUM {
  ORQ_SPLASH_SCREEN_PIXMAP = 1,
  ORQ_FPV_SPLASH_SCREEN_PIXMAP = 2,
  ORQ_UPDATE_CHECK_PIXMAP = 3,
  ORQ_UPDATE_AVAILABLE_PIXMAP = 4,
  ORQ_UPDATE_DOWNLOADING_PIXMAP = 5,
  ORQ_UPDATE_READY_PIXMAP = 6,
  ORQ_UPDATE_INSTALLED_PIXMAP = 7,
  ORQ_UPDATE_FAILED_PIXMAP = 8,
  ORQ_UPDATE_SETTINGS_PIXMAP = 9,
  ORQ_DOCUMENTATION_URL_PIXMAP = 10,
  ORQ_NOTIFICATION_CENTER_PIXMAP = 11,
  ORQ_MDI_WATERMARK_PIXMAP = 12,
  ORQ_WELCOME_SCREEN_PIXMAP = 13,
  ORQ_OUT_OF_DATE_WATERMARK_PIXMAP = 14,
  ORQ_MWPIM_CEC_PIXMAP = 15,
  ORQ_MWPIM_CONFIG_PIXMAP = 16,
  ORQ_WEB_WELCOME_SCREEN_PIXMAP = 17,
  ORQ_IP_CATALOG_BANNER_PIXMAP = 18,
  ORQ_RELEASE_NOTES_BANNER_PIXMAP = 19,
  ORQ_TEDQ_ERROR_INDICATOR_PIXMAP = 20,
  ORQ_IP_UPGRADE_SCREENSHOT_PIXMAP = 21
};

// Animated GIFs under ":/movies/".
enum ORQ_MOVIE_ENUM { ORQ_IP_RGENWHEEL_MOVIE = 1, ORQ_BUSY_SPINNER_MOVIE = 2 };

ORQ_EXPORT QCursor orq_get_cursor(ORQ_CURSOR_ENUM cursor);
ORQ_EXPORT QPixmap orq_get_pixmap(ORQ_PIXMAP_ENUM pixmap);
// A new movie; the caller owns it.
ORQ_EXPORT QMovie* orq_get_movie(ORQ_MOVIE_ENUM movie);
// The icon of one of the suite's file types; ORQ_GENERIC_FILE_ICON for the rest.
ORQ_EXPORT QIcon orq_get_file_type_icon(FIO_FILE_TYPE type);

// Table facts for tools and tests that walk the catalogues.
ORQ_EXPORT QString orq_get_cursor_file_name(ORQ_CURSOR_ENUM cursor, bool mask);
ORQ_EXPORT QString orq_get_pixmap_file_name(ORQ_PIXMAP_ENUM pixmap);
ORQ_EXPORT QString orq_get_movie_file_name(ORQ_MOVIE_ENUM movie);
