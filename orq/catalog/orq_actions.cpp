#include "orq_actions.h"

#include "orq_catalog_tables_p.h"
#include "orq_icons.h"
#include "orq_require_p.h"
#include "orq_tcl_action.h"

#include <QAction>
#include <QHash>

namespace {

const ORQ_ACTION_ROW& row_of(ORQ_ACTION_ENUM action)
{
  if (action < 1 || action > ORQ_ACTION_COUNT)
    ORQ_INTERNAL_ERROR("The calling function has passed an illegal ORQ_ACTION_ENUM");
  return orq_action_table[action];
}

QString without_symbol(const char* menu_text)
{
  QString text = QString::fromUtf8(menu_text);
  text.replace(QLatin1String(" && "), QLatin1String(" AND "));
  text.remove(QLatin1Char('&'));
  text.remove(QLatin1String("..."));
  return text;
}

// The catalogue spells some keys out the way menus print them ("Shift+Right
// Arrow", "Ctrl+Page Down"); QKeySequence knows those keys only by their
// short names.
// clang-format off
const struct {
  const char* spelled;
  const char* portable;
} spelled_keys[] = {
  {"Left Arrow",  "Left"},
  {"Right Arrow", "Right"},
  {"Up Arrow",    "Up"},
  {"Down Arrow",  "Down"},
  {"Page Up",     "PgUp"},
  {"Page Down",   "PgDown"},
};
// clang-format on

QKeySequence parse_custom_shortcut(const char* text)
{
  QString portable = QString::fromUtf8(text);
  for (const auto& key : spelled_keys)
    portable.replace(QLatin1String(key.spelled), QLatin1String(key.portable));
  return QKeySequence(portable, QKeySequence::PortableText);
}

// A key QKeySequence could not read would never fire and would print as
// garbage in the tool tip.
bool has_unknown_key(const QKeySequence& sequence)
{
  for (int i = 0; i < sequence.count(); ++i)
    if ((sequence[uint(i)] & ~Qt::KeyboardModifierMask) == Qt::Key_unknown)
      return true;
  return false;
}

} // namespace

QAction* orq_create_action(ORQ_ACTION_ENUM action, QObject* parent)
{
  const bool valid = action >= 1 && action <= ORQ_ACTION_COUNT;
  const ORQ_ACTION_ROW* row = valid ? &orq_action_table[action] : nullptr;
  QAction* result = nullptr;
  if (row && row->tcl_function) {
    auto* tcl_action = new ORQ_TCL_ACTION(parent);
    tcl_action->set_tcl_function(row->tcl_function);
    result = tcl_action;
  } else {
    result = new QAction(parent);
  }
  if (!row)
    return result;

  result->setText(QString::fromUtf8(row->menu_text));
  result->setStatusTip(QString::fromUtf8(row->statustip));
  if (row->icon)
    result->setIcon(orq_get_icon(row->icon));
  if (row->standard_key != QKeySequence::UnknownKey)
    result->setShortcuts(row->standard_key);
  else if (row->custom_shortcut) {
    const QKeySequence shortcut = parse_custom_shortcut(row->custom_shortcut);
    Q_ASSERT(!has_unknown_key(shortcut));
    if (!has_unknown_key(shortcut))
      result->setShortcut(shortcut);
  }
  if (!result->shortcut().isEmpty())
    result->setToolTip(without_symbol(row->menu_text) + QLatin1String(" - ") +
                       result->shortcut().toString(QKeySequence::PortableText));
  if (row->tooltip)
    result->setToolTip(QString::fromUtf8(row->tooltip));
  if (action == ORQ_ZOOM_TOOL_ACTION)
    result->setCheckable(true);
  else if (action == ORQ_ZOOM_SELECTION_ACTION)
    result->setCheckable(false);
  return result;
}

const char* orq_get_menu_text(ORQ_ACTION_ENUM action)
{
  return row_of(action).menu_text;
}
const char* orq_get_statustip(ORQ_ACTION_ENUM action)
{
  return row_of(action).statustip;
}
const char* orq_get_tooltip(ORQ_ACTION_ENUM action)
{
  return row_of(action).tooltip;
}
const char* orq_get_custom_shortcut(ORQ_ACTION_ENUM action)
{
  return row_of(action).custom_shortcut;
}
const char* orq_get_tcl_function(ORQ_ACTION_ENUM action)
{
  return row_of(action).tcl_function;
}

QString orq_get_menu_text_without_symbol(ORQ_ACTION_ENUM action)
{
  return without_symbol(row_of(action).menu_text);
}

QString orq_get_action_enum_string(ORQ_ACTION_ENUM action)
{
  if (action < 1 || action > ORQ_ACTION_COUNT)
    return QString();
  return QString::fromLatin1(orq_action_table[action].name);
}

ORQ_ACTION_ENUM orq_get_action_enum(const QString& name)
{
  static const QHash<QString, int> values = orq_catalog_name_map(orq_action_table);
  return static_cast<ORQ_ACTION_ENUM>(values.value(name, 0));
}
