#include "orq_tree_filter_proxy_model.h"

#include "orq_tree_filter_cache_p.h"

#include <QPersistentModelIndex>


namespace {

// Shared by every filter proxy of the process: a tool reads one number,
// whichever of its reports last filtered.
quint32 search_result_count = 0;

QString escaped(const QString& text)
{
  static const QString special = QStringLiteral(".^$|()[]{}*+?\\");
  QString result;
  result.reserve(text.size() * 2);
  for (const QChar c : text) {
    if (special.contains(c))
      result += QLatin1Char('\\');
    result += c;
  }
  return result;
}

using CACHE = ORQ_TREE_FILTER_CACHE;

// Below this many source rows, or with fewer persistent indexes (views
// holding few expanded rows), re-filtering in place is cheap and keeps
// views as they are. Above, each run of hidden rows costs a view a pass
// over everything it shows.
constexpr std::size_t reset_rows = 2000;
constexpr int reset_persistent = 10;

} // namespace

ORQ_TREE_FILTER_PROXY_MODEL::ORQ_TREE_FILTER_PROXY_MODEL(QObject* parent)
    : QSortFilterProxyModel(parent)
    , include_child(true)
    , include_invisible_root_child(false)
    , m_cache(new ORQ_TREE_FILTER_CACHE(nullptr))
{
  // Until it is given a regular expression the base class hands out a fresh
  // empty one on every call, compiled anew for every row it is matched
  // against: seconds for the first layout of a million-row design.
  QSortFilterProxyModel::setFilterRegularExpression(QRegularExpression());
}

ORQ_TREE_FILTER_PROXY_MODEL::~ORQ_TREE_FILTER_PROXY_MODEL() = default;

void ORQ_TREE_FILTER_PROXY_MODEL::insert_filter_column(int column)
{
  filter_column_list.append(column);
}

void ORQ_TREE_FILTER_PROXY_MODEL::clear_filter_column_list()
{
  filter_column_list.clear();
}

void ORQ_TREE_FILTER_PROXY_MODEL::set_include_invisible_root_child(bool include)
{
  include_invisible_root_child = include;
}

unsigned int ORQ_TREE_FILTER_PROXY_MODEL::get_search_result_count() const
{
  return search_result_count;
}

void ORQ_TREE_FILTER_PROXY_MODEL::setSourceModel(QAbstractItemModel* source_model)
{
  if (QAbstractItemModel* old = sourceModel())
    disconnect(old, nullptr, this, nullptr);
  m_cache.reset(new ORQ_TREE_FILTER_CACHE(source_model));
  // Connected before the base class connects its own handlers: a change of
  // data has no announcement ahead of it, and the base class re-filters the
  // changed rows the moment it hears of it.
  if (source_model) {
    auto drop = [this] { drop_kept_answers(); };
    connect(source_model, &QAbstractItemModel::dataChanged, this, drop);
    connect(source_model, &QAbstractItemModel::rowsAboutToBeInserted, this, drop);
    connect(source_model, &QAbstractItemModel::rowsAboutToBeRemoved, this, drop);
    connect(source_model, &QAbstractItemModel::rowsAboutToBeMoved, this, drop);
    connect(source_model, &QAbstractItemModel::columnsAboutToBeInserted, this, drop);
    connect(source_model, &QAbstractItemModel::columnsAboutToBeRemoved, this, drop);
    connect(source_model, &QAbstractItemModel::columnsAboutToBeMoved, this, drop);
    connect(source_model, &QAbstractItemModel::layoutAboutToBeChanged, this, drop);
    connect(source_model, &QAbstractItemModel::modelAboutToBeReset, this, drop);
    connect(source_model, &QObject::destroyed, this, drop);
  }
  QSortFilterProxyModel::setSourceModel(source_model);
}

void ORQ_TREE_FILTER_PROXY_MODEL::drop_kept_answers()
{
  m_cache->drop();
}

QRegularExpression ORQ_TREE_FILTER_PROXY_MODEL::process_keyword_expression(QString expression)
{
  QString pattern;
  const QChar quote = QLatin1Char('"');
  if (expression.startsWith(quote) && expression.endsWith(quote)) {
    pattern = escaped(expression.mid(1, expression.size() - 2));
  } else if (expression.contains(QLatin1Char('*'))) {
    pattern = escaped(expression).replace(QStringLiteral("\\*"), QStringLiteral(".*"));
  } else if (expression.contains(QRegularExpression(QStringLiteral("\\s+")))) {
    const QStringList words =
        escaped(expression).split(QRegularExpression(QStringLiteral("\\s+")), Qt::SkipEmptyParts);
    if (words.size() == 1) {
      pattern = words.first();
    } else {
      pattern = QStringLiteral("^");
      for (const QString& word : words)
        pattern += QStringLiteral("(?=.*") + word + QLatin1Char(')');
    }
  } else {
    // One plain word is taken as a regular expression as typed, so users can
    // write a.c or ^top; the other forms are literal.
    pattern = expression;
  }
  return QRegularExpression(pattern, QRegularExpression::CaseInsensitiveOption);
}

void ORQ_TREE_FILTER_PROXY_MODEL::start_filter(const QString& keyword, bool match_case, bool filter)
{
  emit filter_start();
  search_result_count = 0;
  regexp_filter(keyword, match_case, filter);
}

void ORQ_TREE_FILTER_PROXY_MODEL::regexp_filter(const QString& keyword, bool match_case, bool filter)
{
  Q_UNUSED(match_case) // always case-insensitive: "abc" also finds "ABC"
  const QRegularExpression expression = process_keyword_expression(keyword.trimmed());
  search_result_count = 0;
  if (filter) {
    refilter(expression);
    emit filter_content(expression);
  } else {
    // Every joined text ends in a blank, so with filter columns this hides
    // nothing; the view highlights what the real expression finds.
    refilter(QRegularExpression(QStringLiteral(" "), QRegularExpression::CaseInsensitiveOption));
    emit search_content(expression);
  }
  if (!expression.pattern().isEmpty())
    emit filter_done();
  else
    emit filter_cancel();
}

bool ORQ_TREE_FILTER_PROXY_MODEL::matches_joined_text(int source_row, const QModelIndex& source_parent,
                                                      const QRegularExpression& expression) const
{
  QString joined;
  for (const int column : filter_column_list) {
    joined += sourceModel()->index(source_row, column, source_parent).data(Qt::DisplayRole).toString();
    joined += QLatin1Char(' ');
  }
  return expression.match(joined).hasMatch();
}

bool ORQ_TREE_FILTER_PROXY_MODEL::filter_accepts_row_itself(int source_row, const QModelIndex& source_parent) const
{
  const QRegularExpression expression = filterRegularExpression();
  if (expression.isValid()) {
    if (QSortFilterProxyModel::filterAcceptsRow(source_row, source_parent))
      return true;
  } else if (filterKeyColumn() != -1 &&
             !sourceModel()->index(source_row, filterKeyColumn(), source_parent).isValid()) {
    // The base class lets a row through when its key cell does not exist,
    // whatever the expression; with an invalid one it would also complain
    // once per row, so it is not asked.
    return true;
  }
  if (filter_column_list.isEmpty() || !expression.isValid())
    return false;
  return matches_joined_text(source_row, source_parent, expression);
}

bool ORQ_TREE_FILTER_PROXY_MODEL::children_is_accepted(int source_row, const QModelIndex& source_parent) const
{
  const QModelIndex index = sourceModel()->index(source_row, 0, source_parent);
  if (!index.isValid())
    return false;
  const int rows = sourceModel()->rowCount(index);
  for (int row = 0; row < rows; ++row) {
    if (filter_accepts_row_itself(row, index) || children_is_accepted(row, index))
      return true;
  }
  return false;
}

bool ORQ_TREE_FILTER_PROXY_MODEL::accepts_by_rule(int source_row, const QModelIndex& source_parent) const
{
  if (filter_accepts_row_itself(source_row, source_parent) ||
      (include_invisible_root_child && !source_parent.isValid())) {
    ++search_result_count;
    return true;
  }
  if (include_child) {
    for (QModelIndex ancestor = source_parent; ancestor.isValid(); ancestor = ancestor.parent())
      if (filter_accepts_row_itself(ancestor.row(), ancestor.parent()))
        return true;
  }
  return children_is_accepted(source_row, source_parent);
}

bool ORQ_TREE_FILTER_PROXY_MODEL::filterAcceptsRow(int source_row, const QModelIndex& source_parent) const
{
  CACHE& cache = *m_cache;
  const std::uint32_t block =
      m_resetting || cache.answers_for({filterRegularExpression(), filterKeyColumn(), filterRole(), filter_column_list})
          ? cache.block_of(source_parent)
          : CACHE::NONE;
  if (block == CACHE::NONE || source_row < 0 || std::uint32_t(source_row) >= cache.block_size(block))
    return accepts_by_rule(source_row, source_parent);
  const std::uint8_t flags = cache.flags(cache.slot(block, source_row));
  const bool top_level = block == 0;
  if ((flags & CACHE::SELF) || (include_invisible_root_child && top_level)) {
    if (!m_resetting)
      ++search_result_count;
    return true;
  }
  return (include_child && (flags & CACHE::ABOVE)) || (flags & CACHE::BELOW);
}

// The base class re-filters in place: every run of rows that changes is
// removed or inserted on its own, and each removal walks all persistent
// indexes while a tree view lays out what it shows again. With an expanded
// view over a large tree one keystroke is quadratic. Such views are reset
// first, which also drops the base class's mappings; what the views map
// again during the reset gets the new answers and is counted when the
// expression is stored right after, as if the reset had followed it.
void ORQ_TREE_FILTER_PROXY_MODEL::refilter(const QRegularExpression& expression)
{
  if (sourceModel()) {
    m_cache->compute({expression, filterKeyColumn(), filterRole(), filter_column_list});
    if (m_cache->slot_count() >= reset_rows && persistentIndexList().size() >= reset_persistent) {
      m_resetting = true;
      beginResetModel();
      endResetModel();
      m_resetting = false;
    }
  }
  setFilterRegularExpression(expression);
}
