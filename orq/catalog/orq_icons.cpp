#include "orq_icons.h"

#include "orq_catalog_tables_p.h"
#include "orq_lazy_icon_engine_p.h"

#include <QHash>

#include <mutex>

namespace {

bool is_valid(ORQ_ICON_ENUM icon)
{
  return icon >= 1 && icon <= ORQ_ICON_COUNT;
}

} // namespace

QIcon orq_get_icon(ORQ_ICON_ENUM icon)
{
  if (!is_valid(icon))
    return QIcon();
  // Each icon is made the first time it is asked for and kept, so that every
  // caller shares one icon (and one picture once painted). A tool asks for a
  // small part of the catalogue; making all 766 up front cost a tool with a
  // few dozen actions more than the actions themselves. A plain mutex: a
  // once-flag per icon made each first request twice as dear.
  static std::mutex mutex;
  static QIcon icons[ORQ_ICON_COUNT + 1];
  static bool made[ORQ_ICON_COUNT + 1];
  std::lock_guard<std::mutex> lock(mutex);
  if (!made[icon]) {
    icons[icon] = QIcon(new ORQ_LAZY_ICON_ENGINE);
    icons[icon].addFile(QString::fromLatin1(orq_icon_table[icon].path), QSize(), QIcon::Normal, QIcon::Off);
    made[icon] = true;
  }
  return icons[icon];
}

ORQ_ICON_ENUM orq_get_icon_enum(const QString& name)
{
  static const QHash<QString, int> values = orq_catalog_name_map(orq_icon_table);
  return static_cast<ORQ_ICON_ENUM>(values.value(name, 0));
}

QStringList orq_get_icon_file_names(ORQ_ICON_ENUM icon)
{
  if (!is_valid(icon))
    return {};
  return {QString::fromLatin1(orq_icon_table[icon].path)};
}
