#pragma once
// The design-hierarchy panel: a generated hierarchy (instance, cell, area) in
// an ORQ_TREE_VIEW, filtered as the user types, with the matching rows
// highlighted. Clearing the filter brings back the rows the user had open
// and selected; the columns' widths and visibility are kept per user. It
// lives in the viewer's panel library; the window reaches it through its
// meta-object.
#include "hierarchy_state.h"

#include <QList>
#include <QPersistentModelIndex>
#include <QWidget>

class ORQ_LINE_EDIT_FILTER;
class ORQ_TREE_FILTER_MODEL;
class ORQ_TREE_FILTER_PROXY_MODEL;
class ORQ_TREE_VIEW;
class QTimer;
class MATCH_DELEGATE;

class HIERARCHY_PANEL : public QWidget {
  Q_OBJECT
public:
  // The settings-registry key of the view's column settings.
  static const char* const k_column_settings_name;

  HIERARCHY_PANEL(int rows, unsigned seed, QWidget* parent);
  ~HIERARCHY_PANEL() override;

  // Sets the filter text and filters at once, without the typing delay.
  Q_INVOKABLE void filter_now(const QString& text);
  // "Hierarchy: N rows", and "| M matches" while a filter is on.
  Q_INVOKABLE QString status_text() const;
  QSize sizeHint() const override;
  // Writes every generated row as "instance<TAB>cell" (for tests).
  Q_INVOKABLE bool dump(const QString& file_name) const;
  // Writes the view's rows as File > Export Hierarchy does: what the filter
  // keeps, collapsed rows included, hidden columns left out. An existing
  // file is replaced only once the whole text is written. Returns why it
  // could not, or an empty string.
  Q_INVOKABLE QString export_hierarchy(const QString& file_name);
  // The columns as the header shows them: "Instance 180, Cell hidden, ...".
  Q_INVOKABLE QString column_text() const;
  // Open rows, selection and current row by path, one line each (tests and
  // the demo compare them before and after a filter).
  Q_INVOKABLE QString view_state_text() const;

  ORQ_TREE_VIEW* view() const { return m_view; }
  ORQ_LINE_EDIT_FILTER* filter_line() const { return m_filter; }
  ORQ_TREE_FILTER_MODEL* model() const { return m_model; }
  ORQ_TREE_FILTER_PROXY_MODEL* proxy() const { return m_proxy; }

signals:
  void status_changed(const QString& text);

protected:
  void hideEvent(QHideEvent* event) override;

private:
  void run_filter();
  void before_filter();
  void show_result(bool filtered);
  void keep_user_collapsed();
  void save_columns();

  int m_rows;
  bool m_filtered = false;
  ORQ_TREE_FILTER_MODEL* m_model;
  ORQ_TREE_FILTER_PROXY_MODEL* m_proxy;
  ORQ_LINE_EDIT_FILTER* m_filter;
  ORQ_TREE_VIEW* m_view;
  MATCH_DELEGATE* m_delegate;
  QTimer* m_delay;
  QTimer* m_column_save;
  // Where the user was before the filter started from an empty text.
  HIERARCHY_STATE m_before_filter;
  // The selection as it stood before each re-filter, and as this panel left
  // it after the last one: a difference is the user's own pick.
  HIERARCHY_STATE m_last_keystroke;
  QPersistentModelIndex m_current_after_filter;
  // Rows the user closed while filtering: a later keystroke keeps them closed.
  QList<QPersistentModelIndex> m_closed_while_filtering;
  bool m_adjusting = false;
};
