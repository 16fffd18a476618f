#pragma once
// The house fonts ("Corvan Clear"), compiled into the library under ":/fonts/".
#include "orq_export.h"

#include <QStringList>

// Registers every house font file found in the resources with the font
// database; files that are not there are skipped without a message.
ORQ_EXPORT void orq_load_fonts_from_resources();

// The file names it looks for, in loading order.
ORQ_EXPORT QStringList orq_house_font_files();
