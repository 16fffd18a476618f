#pragma once
// The design-hierarchy panel: a generated hierarchy in a tree view, filtered
// as the user types, with the matching rows highlighted. It lives in the
// viewer's panel library; the window reaches it through its meta-object.
#include <QWidget>

class ORQ_LINE_EDIT_FILTER;
class ORQ_TREE_FILTER_MODEL;
class ORQ_TREE_FILTER_PROXY_MODEL;
class QTimer;
class QTreeView;
class MATCH_DELEGATE;

class HIERARCHY_PANEL : public QWidget {
  Q_OBJECT
public:
  HIERARCHY_PANEL(int rows, unsigned seed, QWidget* parent);

  // Sets the filter text and filters at once, without the typing delay.
  Q_INVOKABLE void filter_now(const QString& text);
  // "Hierarchy: N rows", and "| M matches" while a filter is on.
  Q_INVOKABLE QString status_text() const;
  QSize sizeHint() const override;
  // Writes every generated row as "instance<TAB>cell" (for tests).
  Q_INVOKABLE bool dump(const QString& file_name) const;

signals:
  void status_changed(const QString& text);

private:
  void run_filter();
  void show_result(bool filtered);

  int m_rows;
  bool m_filtered = false;
  ORQ_TREE_FILTER_MODEL* m_model;
  ORQ_TREE_FILTER_PROXY_MODEL* m_proxy;
  ORQ_LINE_EDIT_FILTER* m_filter;
  QTreeView* m_view;
  MATCH_DELEGATE* m_delegate;
  QTimer* m_delay;
};
