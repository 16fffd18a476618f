#include "orq_icons.h"

#include "orq_catalog_tables_p.h"
#include "orq_lazy_icon_engine_p.h"

#include <QHash>
#include <QVector>

namespace {

bool is_valid(ORQ_ICON_ENUM icon)
{
  return icon >= 1 && icon <= ORQ_ICON_COUNT;
}

} // namespace

QIcon orq_get_icon(ORQ_ICON_ENUM icon)
{
  static const QVector<QIcon> icons = [] {
    QVector<QIcon> all(ORQ_ICON_COUNT + 1);
    for (int value = 1; value <= ORQ_ICON_COUNT; ++value) {
      QIcon entry(new ORQ_LAZY_ICON_ENGINE);
      entry.addFile(QString::fromLatin1(orq_icon_table[value].path), QSize(), QIcon::Normal, QIcon::Off);
      all[value] = entry;
    }
    return all;
  }();
  return is_valid(icon) ? icons[icon] : QIcon();
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
