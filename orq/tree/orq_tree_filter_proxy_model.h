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
// rather than a subtree scan per row. A keystroke that shows or hides many
// runs of rows of a large tree is announced as one layout change instead of
// a removal or insertion per run; either way every persistent index (a
// view's expanded rows, its selection, a tool's own) whose row stays keeps
// it, and the rows kept and the search count are those of the rule itself.
#include "orq_export.h"

#include <QList>
#include <QMetaObject>
#include <QRegularExpression>
#include <QSortFilterProxyModel>

#include <memory>
#include <vector>

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
  // Hides QSortFilterProxyModel's: the kept answers go with what a subclass
  // changed in its own rule.
  void invalidateFilter();

  bool include_child;
  bool include_invisible_root_child;
  QList<int> filter_column_list;

private:
  bool matches_joined_text(int source_row, const QModelIndex& source_parent,
                           const QRegularExpression& expression) const;
  bool accepts_by_rule(int source_row, const QModelIndex& source_parent) const;
  bool answers_usable() const;
  void refilter(const QRegularExpression& expression);
  void refilter_as_layout_change(const QRegularExpression& expression);
  void drop_kept_answers();
  void watch(QAbstractItemModel* source_model);

  std::unique_ptr<ORQ_TREE_FILTER_CACHE> m_cache;
  std::vector<QMetaObject::Connection> m_connections;
  // Between a source's announcement of a change and its report of it the
  // source is half-changed: nothing is worked out from it then.
  bool m_source_changing = false;
  // Set while a layout change maps rows with answers for an expression the
  // base class has not been given yet.
  bool m_switching = false;
  // Set while the base class asks again about rows already counted.
  bool m_quiet = false;
  // Rows the rule has looked at since the answers were last worked out;
  // past the tree's size, working them out again is cheaper.
  mutable std::size_t m_rule_work = 0;
  mutable std::size_t m_tree_rows = 0;
  // The switches the base class's mappings were last filtered with.
  bool m_filtered_child = true;
  bool m_filtered_root = false;
};
