#include "orq_images.h"

#include "orq_icons.h"
#include "orq_require_p.h"

#include <QBitmap>
#include <QMovie>

#include <iterator>

namespace {

struct CURSOR_ROW {
  const char* bitmap;
  const char* mask;
  int hot_x;
  int hot_y;
};

// clang-format off
const CURSOR_ROW k_cursors[] = {
  {nullptr, nullptr, 0, 0},
  {"orq_zoomin_cur.png",                 "orq_zoomin_cur_mask.png",                 11, 11},
  {"orq_zoomout_cur.png",                "orq_zoomout_cur_mask.png",                11, 11},
  {"orq_clock_assignment_cursor.png",    "orq_clock_assignment_cursor_mask.png",     0,  0},
  {"orq_create_ll_region.png",           "orq_create_ll_region_mask.png",            0,  0},
  {"orq_move_cursor.png",                "orq_move_cursor_mask.png",                 8,  8},
  {"orq_arrow_cursor.png",               "orq_arrow_cursor_mask.png",                8,  6},
  {"orq_forbidden_cursor.png",           "orq_forbidden_cursor_mask.png",           15, 15},
  {"orq_arrow_forbidden_cursor.png",     "orq_arrow_forbidden_cursor_mask.png",      4,  2},
  {"orq_magnifying_cur.png",             "orq_magnifying_cur_mask.png",             11, 11},
};

const char* const k_pixmaps[] = {
  nullptr,
  "orq_splash_screen.png", "orq_fpv_splash_screen.png",
  "orq_update_check.png", "orq_update_available.png", "orq_update_downloading.png", "orq_update_ready.png",
  "orq_update_installed.png", "orq_update_failed.png", "orq_update_settings.png",
  "orq_documentation_url.png", "orq_notification_center.png", "orq_mdi_watermark.png",
  "orq_welcome_screen.png", "orq_out_of_date_watermark.png", "orq_mwpim_cec.png", "orq_mwpim_config.png",
  "orq_web_welcome_screen.png", "orq_ip_catalog_banner.png", "orq_release_notes_banner.png",
  "orq_tedq_error_indicator.png", "orq_ip_upgrade_screenshot.png",
};

const char* const k_movies[] = {nullptr, "orq_ip_rgenwheel.gif", "orq_busy_spinner.gif"};

struct FILE_TYPE_ROW {
  FIO_FILE_TYPE type;
  ORQ_ICON_ENUM icon;
};

// Design files show the icon of the tool that edits them.
const FILE_TYPE_ROW k_file_types[] = {
  {FIO_VERILOG_FILE,        ORQ_VERILOG_FILE_ICON},
  {FIO_SYSTEMVERILOG_FILE,  ORQ_SYSTEMVERILOG_FILE_ICON},
  {FIO_VHDL_FILE,           ORQ_VHDL_FILE_ICON},
  {FIO_BLOCK_DIAGRAM_FILE,  ORQ_BLOCK_DIAGRAM_FILE_ICON},
  {FIO_SYMBOL_FILE,         ORQ_SYMBOL_FILE_ICON},
  {FIO_CONSTRAINT_FILE,     ORQ_CONSTRAINT_FILE_ICON},
  {FIO_ASSIGNMENT_FILE,     ORQ_ASSIGNMENT_FILE_ICON},
  {FIO_PROJECT_FILE,        ORQ_PROJECT_FILE_ICON},
  {FIO_TCL_FILE,            ORQ_TCL_FILE_ICON},
  {FIO_NETLIST_FILE,        ORQ_NETLIST_FILE_ICON},
  {FIO_WAVEFORM_FILE,       ORQ_WAVEFORM_FILE_ICON},
  {FIO_VCD_FILE,            ORQ_VCD_FILE_ICON},
  {FIO_MEMORY_INIT_FILE,    ORQ_MEMORY_INIT_FILE_ICON},
  {FIO_PROGRAMMING_FILE,    ORQ_PROGRAMMING_FILE_ICON},
  {FIO_BITSTREAM_FILE,      ORQ_BITSTREAM_FILE_ICON},
  {FIO_PIN_FILE,            ORQ_PIN_FILE_ICON},
  {FIO_REPORT_FILE,         ORQ_REPORT_FILE_ICON},
  {FIO_TIMING_REPORT_FILE,  ORQ_TIMING_REPORT_FILE_ICON},
  {FIO_POWER_REPORT_FILE,   ORQ_POWER_REPORT_FILE_ICON},
  {FIO_FLOORPLAN_FILE,      ORQ_FLOORPLAN_FILE_ICON},
  {FIO_IP_VARIATION_FILE,   ORQ_IP_VARIATION_FILE_ICON},
  {FIO_DEBUG_FILE,          ORQ_DEBUG_FILE_ICON},
  {FIO_SIMULATION_FILE,     ORQ_SIMULATION_FILE_ICON},
  {FIO_ARCHIVE_FILE,        ORQ_ARCHIVE_FILE_ICON},
  {FIO_LOG_FILE,            ORQ_LOG_FILE_ICON},
  {FIO_HTML_FILE,           ORQ_HTML_FILE_ICON},
};
// clang-format on

static_assert(std::size(k_file_types) == 26, "the suite has 26 file types with their own icon");

bool valid_cursor(int cursor)
{
  return cursor >= 1 && cursor < int(std::size(k_cursors));
}
bool valid_pixmap(int pixmap)
{
  return pixmap >= 1 && pixmap < int(std::size(k_pixmaps));
}
bool valid_movie(int movie)
{
  return movie >= 1 && movie < int(std::size(k_movies));
}

} // namespace

QString orq_get_cursor_file_name(ORQ_CURSOR_ENUM cursor, bool mask)
{
  if (!valid_cursor(cursor))
    ORQ_INTERNAL_ERROR("Invalid cursor type");
  return QLatin1String(":/cursors/") +
         QLatin1String(mask ? k_cursors[cursor].mask : k_cursors[cursor].bitmap);
}

QCursor orq_get_cursor(ORQ_CURSOR_ENUM cursor)
{
  if (!valid_cursor(cursor))
    ORQ_INTERNAL_ERROR("Invalid cursor type");
  const CURSOR_ROW& row = k_cursors[cursor];
  return QCursor(QBitmap(orq_get_cursor_file_name(cursor, false)),
                 QBitmap(orq_get_cursor_file_name(cursor, true)), row.hot_x, row.hot_y);
}

QString orq_get_pixmap_file_name(ORQ_PIXMAP_ENUM pixmap)
{
  if (!valid_pixmap(pixmap))
    ORQ_INTERNAL_ERROR("Invalid pixmap type");
  return QLatin1String(":/pixmaps/") + QLatin1String(k_pixmaps[pixmap]);
}

QPixmap orq_get_pixmap(ORQ_PIXMAP_ENUM pixmap)
{
  return QPixmap(orq_get_pixmap_file_name(pixmap));
}

QString orq_get_movie_file_name(ORQ_MOVIE_ENUM movie)
{
  if (!valid_movie(movie))
    ORQ_INTERNAL_ERROR("Invalid movie type");
  return QLatin1String(":/movies/") + QLatin1String(k_movies[movie]);
}

QMovie* orq_get_movie(ORQ_MOVIE_ENUM movie)
{
  return new QMovie(orq_get_movie_file_name(movie));
}

QIcon orq_get_file_type_icon(FIO_FILE_TYPE type)
{
  for (const FILE_TYPE_ROW& row : k_file_types) {
    if (row.type == type)
      return orq_get_icon(row.icon);
  }
  return orq_get_icon(ORQ_GENERIC_FILE_ICON);
}
