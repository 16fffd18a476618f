#pragma once
// The standard action catalogue: one table of menu texts, status tips,
// shortcuts and icons shared by every tool, so the same command reads and
// behaves the same everywhere. Lookups by value stop with an internal error
// for a value outside 1..ORQ_ACTION_COUNT; the name lookups answer 0 or "".
#include "orq_action_enum.h"
#include "orq_action_texts.h"
#include "orq_export.h"

#include <QString>

class QAction;
class QObject;

// A new action owned by parent, configured from the catalogue (text, status
// tip, icon, shortcut, tool tip). The partition-planner row gives an
// ORQ_TCL_ACTION. An invalid value gives a bare action.
ORQ_EXPORT QAction* orq_create_action(ORQ_ACTION_ENUM action, QObject* parent);

ORQ_EXPORT const char* orq_get_menu_text(ORQ_ACTION_ENUM action);
ORQ_EXPORT const char* orq_get_statustip(ORQ_ACTION_ENUM action);
// "Help Topics" for ORQ_VANTOR_HELP_ACTION; null for all others, whose tool
// tips orq_create_action derives.
ORQ_EXPORT const char* orq_get_tooltip(ORQ_ACTION_ENUM action);
ORQ_EXPORT const char* orq_get_custom_shortcut(ORQ_ACTION_ENUM action);
ORQ_EXPORT const char* orq_get_tcl_function(ORQ_ACTION_ENUM action);

// The menu text with " && " read as " AND " and without "&" and "...".
ORQ_EXPORT QString orq_get_menu_text_without_symbol(ORQ_ACTION_ENUM action);

// "ORQ_COPY_ACTION" for ORQ_COPY_ACTION; empty outside 1..ORQ_ACTION_COUNT.
ORQ_EXPORT QString orq_get_action_enum_string(ORQ_ACTION_ENUM action);
// The inverse, exact and case-sensitive; 0 for an unknown name.
ORQ_EXPORT ORQ_ACTION_ENUM orq_get_action_enum(const QString& name);
