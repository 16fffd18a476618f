#include "orq_tree_filter_proxy_model.h"

#include "orq_tree_filter_cache_p.h"

#include <QPersistentModelIndex>
#include <QSignalBlocker>

#include <algorithm>


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

// Below this many source rows every re-filter is done in place by the base
// class; so is one that changes at most a few runs of rows. Otherwise each
// run would cost every view and persistent index a pass of its own.
constexpr std::size_t layout_change_rows = 2000;
constexpr std::size_t in_place_runs = 16;
// The rule may look at this many rows after a change before the answers are
// worked out again, whatever the size of the tree.
constexpr std::size_t rule_work_floor = 4096;

bool reads_role(const QVector<int>& roles, int role)
{
  return roles.contains(role) || (role == Qt::DisplayRole && roles.contains(Qt::EditRole)) ||
         (role == Qt::EditRole && roles.contains(Qt::DisplayRole));
}

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
  // Only what this class connected: the base class keeps its own handlers,
  // which it does not make again for the same model.
  for (const QMetaObject::Connection& connection : m_connections)
    disconnect(connection);
  m_connections.clear();
  m_cache.reset(new ORQ_TREE_FILTER_CACHE(source_model));
  m_source_changing = false;
  m_rule_work = 0;
  m_tree_rows = 0;
  if (source_model)
    watch(source_model);
  QSortFilterProxyModel::setSourceModel(source_model);
}

// Connected before the base class connects its own handlers, so that the
// answers are gone before it re-filters anything a change touched. The
// kept answers hold item pointers and indexes of the source's shape: they
// go when a change is announced and again when it is done, whatever may
// have asked in between.
void ORQ_TREE_FILTER_PROXY_MODEL::watch(QAbstractItemModel* source_model)
{
  using MODEL = QAbstractItemModel;
  auto announced = [this] {
    drop_kept_answers();
    m_source_changing = true;
  };
  auto done = [this] {
    drop_kept_answers();
    m_source_changing = false;
  };
  m_connections = {
      connect(source_model, &MODEL::rowsAboutToBeInserted, this, announced),
      connect(source_model, &MODEL::rowsInserted, this, done),
      connect(source_model, &MODEL::rowsAboutToBeRemoved, this, announced),
      connect(source_model, &MODEL::rowsRemoved, this, done),
      connect(source_model, &MODEL::rowsAboutToBeMoved, this, announced),
      connect(source_model, &MODEL::rowsMoved, this, done),
      connect(source_model, &MODEL::columnsAboutToBeInserted, this, announced),
      connect(source_model, &MODEL::columnsInserted, this, done),
      connect(source_model, &MODEL::columnsAboutToBeRemoved, this, announced),
      connect(source_model, &MODEL::columnsRemoved, this, done),
      connect(source_model, &MODEL::columnsAboutToBeMoved, this, announced),
      connect(source_model, &MODEL::columnsMoved, this, done),
      connect(source_model, &MODEL::layoutAboutToBeChanged, this, announced),
      connect(source_model, &MODEL::layoutChanged, this, done),
      connect(source_model, &MODEL::modelAboutToBeReset, this, announced),
      connect(source_model, &MODEL::modelReset, this, done),
      // A change of data is only reported once it is made. Only the texts
      // matching reads matter: a check box or a radio state keeps the
      // answers.
      connect(source_model, &MODEL::dataChanged, this,
              [this](const QModelIndex&, const QModelIndex&, const QVector<int>& roles) {
                if (roles.isEmpty() || reads_role(roles, filterRole()) ||
                    (!filter_column_list.isEmpty() && reads_role(roles, Qt::DisplayRole)))
                  drop_kept_answers();
              }),
      connect(source_model, &QObject::destroyed, this,
              [this] {
                m_cache.reset(new ORQ_TREE_FILTER_CACHE(nullptr));
                m_source_changing = false;
              }),
      // invalidate() and the base class's own layout changes (sorting,
      // re-filtering a changed row); this class's own change is not one.
      connect(this, &MODEL::layoutAboutToBeChanged, this,
              [this] {
                if (!m_switching)
                  drop_kept_answers();
              }),
  };
}

void ORQ_TREE_FILTER_PROXY_MODEL::invalidateFilter()
{
  drop_kept_answers();
  QSortFilterProxyModel::invalidateFilter();
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
  m_rule_work += std::size_t(rows);
  for (int row = 0; row < rows; ++row) {
    if (filter_accepts_row_itself(row, index) || children_is_accepted(row, index))
      return true;
  }
  return false;
}

bool ORQ_TREE_FILTER_PROXY_MODEL::accepts_by_rule(int source_row, const QModelIndex& source_parent) const
{
  ++m_rule_work;
  if (filter_accepts_row_itself(source_row, source_parent) ||
      (include_invisible_root_child && !source_parent.isValid())) {
    if (!m_quiet)
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

// The answers for the filter as it stands, worked out again once the rule
// has done as much work since the last change as that would cost.
bool ORQ_TREE_FILTER_PROXY_MODEL::answers_usable() const
{
  if (m_switching)
    return true;
  const ORQ_FILTER_SETTINGS settings{filterRegularExpression(), filterKeyColumn(), filterRole(), filter_column_list};
  if (m_cache->answers_for(settings))
    return true;
  if (m_source_changing || !sourceModel() || m_rule_work < std::max(m_tree_rows, rule_work_floor))
    return false;
  m_cache->compute(settings);
  m_tree_rows = m_cache->slot_count();
  m_rule_work = 0;
  return true;
}

bool ORQ_TREE_FILTER_PROXY_MODEL::filterAcceptsRow(int source_row, const QModelIndex& source_parent) const
{
  const CACHE& cache = *m_cache;
  const std::uint32_t block = answers_usable() ? cache.block_of(source_parent) : CACHE::NONE;
  if (block == CACHE::NONE || source_row < 0 || std::uint32_t(source_row) >= cache.block_size(block))
    return accepts_by_rule(source_row, source_parent);
  const std::uint8_t flags = cache.flags(cache.slot(block, source_row));
  const bool top_level = block == 0;
  if ((flags & CACHE::SELF) || (include_invisible_root_child && top_level)) {
    if (!m_quiet)
      ++search_result_count;
    return true;
  }
  return (include_child && (flags & CACHE::ABOVE)) || (flags & CACHE::BELOW);
}

void ORQ_TREE_FILTER_PROXY_MODEL::refilter(const QRegularExpression& expression)
{
  const bool child = include_child;
  const bool root = include_invisible_root_child;
  if (!sourceModel() || m_source_changing) {
    setFilterRegularExpression(expression);
    return;
  }
  CACHE& cache = *m_cache;
  // What the base class shows now, when the answers it was given are known.
  const bool known =
      cache.answers_for({filterRegularExpression(), filterKeyColumn(), filterRole(), filter_column_list}) &&
      m_filtered_child == child && m_filtered_root == root;
  std::vector<std::uint64_t> before;
  if (known)
    before = cache.accepted_bits(child, root);
  cache.compute({expression, filterKeyColumn(), filterRole(), filter_column_list});
  m_tree_rows = cache.slot_count();
  m_rule_work = 0;
  m_filtered_child = child;
  m_filtered_root = root;
  if (cache.slot_count() < layout_change_rows ||
      (known && cache.changed_runs(before, child, root) <= in_place_runs)) {
    setFilterRegularExpression(expression);
    return;
  }
  refilter_as_layout_change(expression);
}

// The base class re-filters in place: every run of rows that changes is
// removed or inserted on its own, each rebuilding its parent's row map and
// walking every persistent index, while views lay out again. With many runs
// that is quadratic. Instead the views are told of one layout change: the
// persistent indexes of rows that go are let go, the base class's maps are
// dropped and made again with the new answers (which maps the remaining
// persistent indexes in one pass), and only then is it given the new
// expression, which changes nothing more.
void ORQ_TREE_FILTER_PROXY_MODEL::refilter_as_layout_change(const QRegularExpression& expression)
{
  const CACHE& cache = *m_cache;
  const bool child = include_child;
  const bool root = include_invisible_root_child;
  const std::vector<std::uint8_t> shown_blocks = cache.shown_blocks(child, root);
  m_switching = true;
  emit layoutAboutToBeChanged();
  const QModelIndexList persistent = persistentIndexList();
  QModelIndexList hidden;
  for (const QModelIndex& index : persistent)
    if (!cache.shown(mapToSource(index), shown_blocks, child, root))
      hidden.append(index);
  // The base class would map a persistent index under a parent that goes
  // to a row without a parent in the proxy.
  QModelIndexList nowhere;
  nowhere.reserve(hidden.size());
  for (int i = 0; i < hidden.size(); ++i)
    nowhere.append(QModelIndex());
  changePersistentIndexList(hidden, nowhere);
  {
    const QSignalBlocker blocker(this);
    invalidate();
    // Given an expression, the base class maps the top level if it is not
    // yet: those rows are counted now, as every view will map them.
    rowCount();
    m_quiet = true; // the rows it asks about again were counted just now
    setFilterRegularExpression(expression);
    m_quiet = false;
  }
  m_switching = false;
  emit layoutChanged();
}
