#pragma once
// A sheet of every icon of the catalogue at 16 and 32 pixels with its name,
// for looking them over.
#include <QImage>

QImage make_icon_sheet();
