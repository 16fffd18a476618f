#include "orq_tree_model.h"

#include "orq_require_p.h"

#include <QHash>

#include <algorithm>
#include <cstdint>
#include <vector>

namespace {

void require_comparable(const QModelIndex& a, const QModelIndex& b)
{
  if (!a.isValid() || !b.isValid())
    ORQ_INTERNAL_ERROR("Not a valid index!");
  if (a.model() != b.model())
    ORQ_INTERNAL_ERROR("Models for given indices do not match!");
}

// The walk of orq_tree_order_indexes over two paths given top-level first as
// (row, column) pairs. Below a shared ancestor, two path elements are the
// same index exactly when row and column agree, so no model is consulted.
template <typename PATH> bool path_comes_before(const PATH& a, int a_length, const PATH& b, int b_length)
{
  for (int step = 0;; ++step) {
    if (step == b_length)
      return step == a_length;
    const auto& ea = a[step];
    const auto& eb = b[step];
    if (ea.first != eb.first || ea.second != eb.second)
      return ea.first < eb.first;
    if (step + 1 == a_length)
      return true;
  }
}

using CELL = std::pair<int, int>;

std::vector<CELL> path_of(const QModelIndex& index)
{
  std::vector<CELL> path;
  for (QModelIndex at = index; at.isValid(); at = at.parent())
    path.emplace_back(at.row(), at.column());
  std::reverse(path.begin(), path.end());
  return path;
}

// The common case, every index of one standard model whose ancestors all
// sit in column 0 (rows hang on their column-0 items). Then two paths first
// differ in rows unless one index is a cell of the other's row, so tree
// order is a pre-order rank per row plus the rank one past its subtree.
struct ROW_KEY {
  std::uint32_t rank;
  std::uint32_t end;
  int column;
  int position; // in the input list
};

// What the path walk answers for two such indexes, whatever their columns.
bool row_key_before(const ROW_KEY& a, const ROW_KEY& b)
{
  if (a.rank == b.rank)
    return a.column == b.column; // one row: only the index itself comes first
  if (a.rank > b.rank)
    return false; // after b's row, or below it where b's row comes first
  // Below a's row only its column-0 cell is on b's path.
  return a.column == 0 || b.rank >= a.end;
}

constexpr std::uint32_t NONE = 0xffffffffu;

struct PARENT_ITEM {
  const QStandardItem* item;
  std::uint32_t parent; // its own parent item's number
  int row;
};

// Dense numbers for the parent items of a selection and their ancestors.
// The table holds numbers only, the items sit in one array: on a cold run
// every fresh page costs more than the lookups, so memory is kept small.
class PARENT_NUMBERS {
public:
  PARENT_NUMBERS(const QStandardItem* root, std::size_t expected)
  {
    std::size_t capacity = 64;
    while (capacity < expected)
      capacity *= 2;
    m_slots.assign(capacity, NONE);
    m_items.reserve(expected + 1); // pages are only paid for once written
    number(root);
  }

  // The item's number, a new one (and nothing known about it) on first sight.
  std::uint32_t number(const QStandardItem* item)
  {
    const std::size_t mask = m_slots.size() - 1;
    std::size_t at = hash(item);
    for (;; ++at) {
      const std::uint32_t known = m_slots[at & mask];
      if (known == NONE)
        break;
      if (m_items[known].item == item)
        return known;
    }
    m_items.push_back({item, NONE, -1});
    const auto added = std::uint32_t(m_items.size() - 1);
    if (m_items.size() * 2 > m_slots.size()) {
      m_slots.assign(m_slots.size() * 2, NONE);
      for (std::uint32_t n = 0; n <= added; ++n)
        place(n);
    } else {
      m_slots[at & mask] = added;
    }
    return added;
  }

  std::vector<PARENT_ITEM>& items() { return m_items; }

private:
  static std::size_t hash(const QStandardItem* item)
  {
    std::uint64_t x = std::uint64_t(quintptr(item)) * 0x9E3779B97F4A7C15ull;
    return std::size_t(x ^ (x >> 29));
  }

  void place(std::uint32_t number)
  {
    const std::size_t mask = m_slots.size() - 1;
    std::size_t at = hash(m_items[number].item);
    while (m_slots[at & mask] != NONE)
      ++at;
    m_slots[at & mask] = number;
  }

  std::vector<std::uint32_t> m_slots;
  std::vector<PARENT_ITEM> m_items;
};

struct ROW_CELL {
  int row;
  int column;
  int position; // in the input list
};

// Stable, and cheap for the handful of children most rows have.
template <typename T, typename LESS> void sort_small_runs(T* begin, T* end, LESS less)
{
  if (end - begin > 32) {
    std::stable_sort(begin, end, less);
    return;
  }
  for (T* at = begin + 1; at < end; ++at) {
    T moving = *at;
    T* hole = at;
    for (; hole > begin && less(moving, hole[-1]); --hole)
      *hole = hole[-1];
    *hole = moving;
  }
}

// Whether two indexes of one row share a column, i.e. one is listed twice.
bool has_repeated_column(const ROW_CELL* begin, const ROW_CELL* end, std::vector<int>& columns)
{
  if (end - begin <= 8) {
    for (const ROW_CELL* a = begin; a < end; ++a)
      for (const ROW_CELL* b = a + 1; b < end; ++b)
        if (a->column == b->column)
          return true;
    return false;
  }
  columns.clear();
  for (const ROW_CELL* at = begin; at < end; ++at)
    columns.push_back(at->column);
  std::sort(columns.begin(), columns.end());
  return std::adjacent_find(columns.begin(), columns.end()) != columns.end();
}

// Puts the positions of list's valid indexes into tree order. False, with
// nothing done, when an index is not of model or a row hangs below a cell
// other than column 0. On a cold run every fresh page of memory costs more
// than the work done in it, so buffers are few and reused.
bool sort_rows_of(const QStandardItemModel& model, const QList<QModelIndex>& list, std::vector<int>& order)
{
  const int size = list.size();
  PARENT_NUMBERS numbers(model.invisibleRootItem(), std::size_t(size));
  // The parent item's number per input position, -1 for an invalid index.
  std::vector<int> parent_of(std::size_t(size), -1);
  const QStandardItem* last_item = nullptr;
  int last_number = -1;
  for (int position = 0; position < size; ++position) {
    const QModelIndex& index = list.at(position);
    if (!index.isValid())
      continue;
    if (index.model() != &model)
      return false;
    const auto* item = static_cast<const QStandardItem*>(index.internalPointer());
    if (item != last_item) { // siblings often come together
      last_item = item;
      last_number = int(numbers.number(item));
    }
    parent_of[std::size_t(position)] = last_number;
  }
  // Where the newly numbered items sit, one generation at a time: asking
  // the model about many items in one loop, with nothing depending on the
  // previous answer, lets their memory be fetched side by side instead of
  // in one walk up the tree after another.
  std::vector<const QStandardItem*> above;
  for (std::size_t first = 1; first < numbers.items().size();) {
    const std::size_t last = numbers.items().size();
    above.resize(last - first);
    for (std::size_t n = first; n < last; ++n) {
      PARENT_ITEM& parent = numbers.items()[n];
      const QModelIndex at = model.indexFromItem(parent.item);
      if (at.column() != 0)
        return false;
      parent.row = at.row();
      above[n - first] = static_cast<const QStandardItem*>(at.internalPointer());
    }
    for (std::size_t n = first; n < last; ++n)
      numbers.items()[n].parent = numbers.number(above[n - first]);
    first = last;
  }
  const std::vector<PARENT_ITEM>& parents = numbers.items();
  const std::size_t parent_count = parents.size();

  // Each parent's indexes by row, input order kept within a row, through a
  // counting sort on the parent; cell_begin[p] .. cell_begin[p + 1] is p's.
  std::vector<int> cell_begin(parent_count + 1, 0);
  for (const int parent : parent_of)
    if (parent >= 0)
      ++cell_begin[std::size_t(parent)];
  for (std::size_t p = 1; p <= parent_count; ++p)
    cell_begin[p] += cell_begin[p - 1];
  const auto cell_count = std::size_t(cell_begin[parent_count]);
  std::vector<ROW_CELL> grouped(cell_count);
  for (int position = size - 1; position >= 0; --position) {
    const int parent = parent_of[std::size_t(position)];
    if (parent < 0)
      continue;
    const QModelIndex& index = list.at(position);
    grouped[std::size_t(--cell_begin[std::size_t(parent)])] = {index.row(), index.column(), position};
  }
  const auto by_row = [](const ROW_CELL& a, const ROW_CELL& b) { return a.row < b.row; };
  for (std::size_t p = 0; p < parent_count; ++p)
    sort_small_runs(grouped.data() + cell_begin[p], grouped.data() + cell_begin[p + 1], by_row);
  // The same for each parent's child items; their rows differ.
  std::vector<int> kid_begin(parent_count + 1, 0);
  for (std::size_t p = 1; p < parent_count; ++p)
    ++kid_begin[parents[p].parent];
  for (std::size_t p = 1; p <= parent_count; ++p)
    kid_begin[p] += kid_begin[p - 1];
  std::vector<std::uint32_t> kids(parent_count - 1);
  for (std::size_t p = parent_count - 1; p >= 1; --p)
    kids[std::size_t(--kid_begin[parents[p].parent])] = std::uint32_t(p);
  const auto by_item_row = [&parents](std::uint32_t a, std::uint32_t b) {
    return parents[a].row < parents[b].row;
  };
  for (std::size_t p = 0; p < parent_count; ++p)
    sort_small_runs(kids.data() + kid_begin[p], kids.data() + kid_begin[p + 1], by_item_row);

  // The relation is plain order by rank unless an index is listed twice (it
  // compares before itself) or a cell of another column than 0 has rows
  // below its row (neither before nor after them, though its row's first
  // cell is).
  bool by_rank = true;
  std::vector<int> columns;
  for (std::size_t p = 0; p < parent_count && by_rank; ++p) {
    int kid = kid_begin[p];
    for (int cell = cell_begin[p]; cell < cell_begin[p + 1] && by_rank;) {
      const int row = grouped[std::size_t(cell)].row;
      int run_end = cell + 1;
      bool other_column = grouped[std::size_t(cell)].column != 0;
      for (; run_end < cell_begin[p + 1] && grouped[std::size_t(run_end)].row == row; ++run_end)
        other_column |= grouped[std::size_t(run_end)].column != 0;
      while (kid < kid_begin[p + 1] && parents[kids[std::size_t(kid)]].row < row)
        ++kid;
      if (other_column && kid < kid_begin[p + 1] && parents[kids[std::size_t(kid)]].row == row)
        by_rank = false;
      else if (run_end - cell > 1 &&
               has_repeated_column(grouped.data() + cell, grouped.data() + run_end, columns))
        by_rank = false;
      cell = run_end;
    }
  }

  // One depth-first walk merges each parent's indexes and child items by
  // row. Plain order by rank is the pre-order itself: any stable sort gives
  // that one result. Otherwise the outcome depends on which pairs get
  // compared, so the stable sort runs on keys that answer each pair as the
  // path walk would.
  std::vector<ROW_KEY> keys(by_rank ? 0 : std::size_t(size));
  if (by_rank)
    order.swap(parent_of); // no longer needed: its pages are warm
  order.clear();
  order.reserve(std::size_t(size));
  struct FRAME {
    std::uint32_t parent;
    int cell; // next index of the group
    int kid;  // next child item
    int open; // indexes of the row whose subtree is being walked
    int open_end;
  };
  std::vector<FRAME> stack{{0, cell_begin[0], kid_begin[0], 0, 0}};
  std::uint32_t next = 0;
  while (!stack.empty()) {
    FRAME& frame = stack.back();
    for (int k = frame.open; k < frame.open_end; ++k)
      keys[std::size_t(grouped[std::size_t(k)].position)].end = next;
    frame.open = frame.open_end;
    const int cell_end = cell_begin[frame.parent + 1];
    const int kid_end = kid_begin[frame.parent + 1];
    const bool has_cell = frame.cell < cell_end;
    const bool has_kid = frame.kid < kid_end;
    if (!has_cell && !has_kid) {
      stack.pop_back();
      continue;
    }
    const int kid_row = has_kid ? parents[kids[std::size_t(frame.kid)]].row : 0;
    const int cell_row = has_cell ? grouped[std::size_t(frame.cell)].row : 0;
    const int row = has_cell && (!has_kid || cell_row < kid_row) ? cell_row : kid_row;
    const std::uint32_t rank = next++;
    const int first = frame.cell;
    for (; frame.cell < cell_end && grouped[std::size_t(frame.cell)].row == row; ++frame.cell) {
      const ROW_CELL& cell = grouped[std::size_t(frame.cell)];
      if (by_rank)
        order.push_back(cell.position);
      else
        keys[std::size_t(cell.position)] = {rank, next, cell.column, cell.position};
    }
    if (has_kid && kid_row == row) {
      if (!by_rank) {
        frame.open = first;
        frame.open_end = frame.cell;
      }
      const std::uint32_t kid = kids[std::size_t(frame.kid++)];
      stack.push_back({kid, cell_begin[kid], kid_begin[kid], 0, 0});
    }
  }
  if (by_rank)
    return true;
  std::vector<ROW_KEY> valid;
  valid.reserve(grouped.size());
  for (int position = 0; position < size; ++position)
    if (parent_of[std::size_t(position)] >= 0)
      valid.push_back(keys[std::size_t(position)]);
  std::stable_sort(valid.begin(), valid.end(), row_key_before);
  for (const ROW_KEY& key : valid)
    order.push_back(key.position);
  return true;
}

} // namespace

bool orq_tree_order_indexes(const QModelIndex& a, const QModelIndex& b)
{
  require_comparable(a, b);
  // Reflexive on purpose: callers sort with it, and an index listed twice
  // stays where the stable sort puts it.
  if (a.row() == b.row() && a.column() == b.column() && a.internalPointer() == b.internalPointer())
    return true;
  const std::vector<CELL> path_a = path_of(a);
  const std::vector<CELL> path_b = path_of(b);
  return path_comes_before(path_a, int(path_a.size()), path_b, int(path_b.size()));
}

ORQ_TREE_MODEL::ORQ_TREE_MODEL(QObject* parent)
    : QStandardItemModel(parent)
{
}

ORQ_TREE_MODEL::~ORQ_TREE_MODEL() = default;

int ORQ_TREE_MODEL::get_level(const QModelIndex& index) const
{
  if (!index.isValid())
    return -1;
  return get_level(itemFromIndex(index));
}

int ORQ_TREE_MODEL::get_level(const QStandardItem* item) const
{
  if (!item || item == invisibleRootItem())
    return -1;
  int level = 0;
  for (const QStandardItem* parent = item->parent(); parent && parent != invisibleRootItem();
       parent = parent->parent())
    ++level;
  return level;
}

int ORQ_TREE_MODEL::get_total_count(QStandardItem* item) const
{
  QStandardItem* root = item ? item : invisibleRootItem();
  int total = root->rowCount();
  for (int row = 0; row < root->rowCount(); ++row) {
    QStandardItem* child = root->child(row, 0);
    ORQ_REQUIRE(child != NULL);
    total += get_total_count(child);
  }
  return total;
}

QModelIndex ORQ_TREE_MODEL::get_next(const QModelIndex& index)
{
  if (!index.isValid())
    return {};
  QStandardItem* item = itemFromIndex(index);
  if (!item)
    return {};
  if (item->hasChildren()) {
    const QModelIndex first_child = this->index(0, 0, index);
    if (first_child.isValid())
      return first_child;
  }
  QModelIndex at = index;
  QModelIndex candidate = at.sibling(at.row() + 1, at.column());
  while (!candidate.isValid()) {
    at = at.parent();
    if (!at.isValid())
      return {};
    candidate = at.sibling(at.row() + 1, at.column());
  }
  return candidate;
}

QModelIndex ORQ_TREE_MODEL::get_prev(const QModelIndex& index)
{
  if (!index.isValid())
    return {};
  const QModelIndex previous = index.sibling(index.row() - 1, index.column());
  if (previous.isValid())
    return get_last(previous);
  return index.parent();
}

QModelIndex ORQ_TREE_MODEL::get_last(const QModelIndex& index)
{
  if (!index.isValid()) {
    const int rows = rowCount();
    return rows > 0 ? get_last(this->index(rows - 1, 0)) : QModelIndex();
  }
  QStandardItem* item = itemFromIndex(index);
  if (!item)
    return index;
  while (item->hasChildren() && item->child(item->rowCount() - 1, 0))
    item = item->child(item->rowCount() - 1, 0);
  return indexFromItem(item);
}

QModelIndex ORQ_TREE_MODEL::get_next_sibling(const QModelIndex& index)
{
  return index.isValid() ? index.sibling(index.row() + 1, index.column()) : QModelIndex();
}

QModelIndex ORQ_TREE_MODEL::get_prev_sibling(const QModelIndex& index)
{
  return index.isValid() ? index.sibling(index.row() - 1, index.column()) : QModelIndex();
}

QList<QModelIndex> ORQ_TREE_MODEL::get_persistent_index_list()
{
  return persistentIndexList();
}

void ORQ_TREE_MODEL::sort_index_list_by_positions(QList<QModelIndex>& list) const
{
  if (list.size() < 2)
    return;
  std::vector<int> order;
  if (sort_rows_of(*this, list, order)) {
    // Then the input position each place takes its index from, invalid
    // indexes first.
    const int valid = int(order.size());
    if (valid < list.size()) {
      order.resize(std::size_t(list.size()));
      std::move_backward(order.begin(), order.begin() + valid, order.end());
      int place = 0;
      for (int position = 0; position < list.size(); ++position)
        if (!list.at(position).isValid())
          order[std::size_t(place++)] = position;
    }
    if (!list.isDetached()) {
      // Writing would copy the shared list anyway.
      QList<QModelIndex> sorted;
      sorted.reserve(list.size());
      for (const int position : order)
        sorted.append(list.at(position));
      list.swap(sorted);
      return;
    }
    // Permuted in place along its cycles: no index is allocated anew.
    for (int start = 0; start < list.size(); ++start) {
      if (order[std::size_t(start)] == start)
        continue;
      const QModelIndex first = list.at(start);
      for (int at = start;;) {
        const int source = order[std::size_t(at)];
        order[std::size_t(at)] = at;
        if (source == start) {
          list[at] = first;
          break;
        }
        list[at] = list.at(source);
        at = source;
      }
    }
    return;
  }
  // Each index's path (top-level first, as row and column) is worked out
  // once into one flat array; ancestors shared by many indexes are looked up
  // once too. The stable sort then asks exactly the questions
  // orq_tree_order_indexes would answer, without walking up the tree for
  // every comparison.
  struct ENTRY {
    const QAbstractItemModel* model;
    const void* pointer; // with row and column, the index's identity
    int row;
    int column;
    int path_begin;
    int path_length;
    int position; // in the input list
  };
  QList<QModelIndex> invalid;
  std::vector<ENTRY> valid;
  std::vector<CELL> paths;
  valid.reserve(size_t(list.size()));
  // Appends a copy of an earlier path, then one more cell. Copies go through
  // a local value: the array may move while it grows.
  auto extend = [&paths](std::pair<int, int> above, CELL last) {
    const int begin = int(paths.size());
    for (int k = 0; k < above.second; ++k) {
      const CELL cell = paths[size_t(above.first + k)];
      paths.push_back(cell);
    }
    paths.push_back(last);
    return std::pair<int, int>{begin, above.second + 1};
  };
  // Paths of this model's parent items, each worked out once: items know
  // their row without a search, and many indexes share their ancestors.
  QHash<const QStandardItem*, std::pair<int, int>> item_paths;
  auto item_path = [&](const QStandardItem* item, auto& self) -> std::pair<int, int> {
    if (!item)
      return {0, 0};
    const auto known = item_paths.constFind(item);
    if (known != item_paths.constEnd())
      return known.value();
    const std::pair<int, int> path = extend(self(item->parent(), self), CELL(item->row(), item->column()));
    item_paths.insert(item, path);
    return path;
  };
  for (int position = 0; position < list.size(); ++position) {
    const QModelIndex& index = list.at(position);
    if (!index.isValid()) {
      invalid.append(index);
      continue;
    }
    std::pair<int, int> path;
    if (index.model() == this) {
      // A standard model's index points at its parent item; itemFromIndex
      // would make an item for an empty cell.
      const auto* parent = static_cast<const QStandardItem*>(index.internalPointer());
      path = extend(item_path(parent == invisibleRootItem() ? nullptr : parent, item_path),
                    CELL(index.row(), index.column()));
    } else {
      // Another model's index: compared with ours it is an internal error;
      // among its own kind it sorts by the plain walk up the tree.
      const std::vector<CELL> own = path_of(index);
      path = {int(paths.size()), int(own.size())};
      paths.insert(paths.end(), own.begin(), own.end());
    }
    valid.push_back({index.model(), index.internalPointer(), index.row(), index.column(), path.first,
                     path.second, position});
  }
  const CELL* cells = paths.data();
  std::stable_sort(valid.begin(), valid.end(), [cells, &list](const ENTRY& a, const ENTRY& b) {
    if (a.model != b.model)
      require_comparable(list.at(a.position), list.at(b.position));
    if (a.row == b.row && a.column == b.column && a.pointer == b.pointer)
      return true;
    return path_comes_before(cells + a.path_begin, a.path_length, cells + b.path_begin, b.path_length);
  });
  QList<QModelIndex> sorted = invalid;
  sorted.reserve(list.size());
  for (const ENTRY& entry : valid)
    sorted.append(list.at(entry.position));
  list.swap(sorted);
}
