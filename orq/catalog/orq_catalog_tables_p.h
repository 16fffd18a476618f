#pragma once
// The generated catalogue rows, indexed by enumerator value (row 0 is empty).
#include "orq_action_enum.h"
#include "orq_action_texts.h"
#include "orq_icon_enum.h"

#include <QHash>
#include <QKeySequence>
#include <QString>

struct ORQ_ACTION_ROW {
  const char* name; // the enumerator name
  const char* menu_text;
  const char* statustip;
  const char* custom_shortcut; // portable text; null for none
  const char* tcl_function;    // null for all but one
  const char* tooltip;         // null where the tool tip is derived
  QKeySequence::StandardKey standard_key;
  ORQ_ICON_ENUM icon; // 0 for none
};

struct ORQ_ICON_ROW {
  const char* name; // the enumerator name
  const char* path; // the icon's own resource path
};

extern const ORQ_ACTION_ROW orq_action_table[ORQ_ACTION_COUNT + 1];
extern const ORQ_ICON_ROW orq_icon_table[ORQ_ICON_COUNT + 1];

// A map from every row's enumerator name to its value, for the name lookups.
template <typename ROW, int N> QHash<QString, int> orq_catalog_name_map(const ROW (&rows)[N])
{
  QHash<QString, int> map;
  map.reserve(N - 1);
  for (int value = 1; value < N; ++value)
    map.insert(QString::fromLatin1(rows[value].name), value);
  return map;
}
