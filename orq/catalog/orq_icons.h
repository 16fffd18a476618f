#pragma once
// The icon catalogue: every ORQ_ICON_ENUM value names one resource under
// ":/icons/". Icons are cheap to hand out; a picture is read the first time
// something paints it.
#include "orq_export.h"
#include "orq_icon_enum.h"

#include <QIcon>
#include <QString>
#include <QStringList>

// A copy of the catalogue's icon; a null icon for a value outside the catalogue.
ORQ_EXPORT QIcon orq_get_icon(ORQ_ICON_ENUM icon);
// The value of an enumerator name ("ORQ_ZOOM_TOOL_ICON"); 0 for an unknown name.
ORQ_EXPORT ORQ_ICON_ENUM orq_get_icon_enum(const QString& name);
// The resource paths of the icon; empty for a value outside the catalogue.
ORQ_EXPORT QStringList orq_get_icon_file_names(ORQ_ICON_ENUM icon);
