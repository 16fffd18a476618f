#pragma once
// The filter-as-you-type proxy of the suite's hierarchical reports. What the
// user typed becomes a case-insensitive regular expression that is matched
// against the key column and the joined texts of chosen columns; a row stays
// when it matches, when a descendant matches, when an ancestor matches
// (include_child) or when it is a top-level row (include_invisible_root_child).
// In search use nothing is hidden and the expression is only announced.
//
// Answers are worked out for the whole source tree once per expression and
// kept until the source changes, so a keystroke costs one pass over the rows
// rather than a subtree scan per row. On a large tree whose views hold many
// persistent indexes (expanded rows), a re-filter first resets the views;
// tools expand what they want shown on filter_done and filter_cancel.
#include "orq_export.h"

#include <QList>
#include <QRegularExpression>
#include <QSortFilterProxyModel>

#include <memory>

class ORQ_TREE_FILTER_MODEL;
class ORQ_TREE_FILTER_CACHE;

class ORQ_EXPORT ORQ_TREE_FILTER_PROXY_MODEL : public QSortFilterProxyModel {
  Q_OBJECT
  friend class ORQ_TREE_FILTER_MODEL;

public:
  explicit ORQ_TREE_FILTER_PROXY_MODEL(QObject* parent = nullptr);
  ~ORQ_TREE_FILTER_PROXY_MODEL() override;

  // Columns whose display texts, each followed by one blank, are joined for
  // matching. Changing them takes effect with the next filter.
  void insert_filter_column(int column);
  void clear_filter_column_list();
  void set_include_invisible_root_child(bool include);
  // Rows accepted since the last start_filter or regexp_filter, counted over
  // every filter proxy of the process.
  unsigned int get_search_result_count() const;

  // Watches the source for changes that make the kept answers stale.
  void setSourceModel(QAbstractItemModel* source_model) override;

public slots:
  // match_case is ignored: matching is always case-insensitive.
  void start_filter(const QString& keyword, bool match_case, bool filter);
  void regexp_filter(const QString& keyword, bool match_case, bool filter);

signals:
  void filter_start();
  void filter_done();
  void filter_cancel();
  void search_content(const QRegularExpression& regExp);
  void filter_content(const QRegularExpression& regExp);

protected:
  // "abc" literal, abc* wildcard, "abc def" all words in any order,
  // otherwise the word as a regular expression.
  QRegularExpression process_keyword_expression(QString expression);
  // The rule itself, without the kept answers: whether a source row matches
  // by its own texts, and whether any row below it does.
  bool filter_accepts_row_itself(int source_row, const QModelIndex& source_parent) const;
  bool children_is_accepted(int source_row, const QModelIndex& source_parent) const;
  bool filterAcceptsRow(int source_row, const QModelIndex& source_parent) const override;

  bool include_child;
  bool include_invisible_root_child;
  QList<int> filter_column_list;

private:
  bool matches_joined_text(int source_row, const QModelIndex& source_parent,
                           const QRegularExpression& expression) const;
  bool accepts_by_rule(int source_row, const QModelIndex& source_parent) const;
  void refilter(const QRegularExpression& expression);
  void drop_kept_answers();

  std::unique_ptr<ORQ_TREE_FILTER_CACHE> m_cache;
  bool m_resetting = false;
};
