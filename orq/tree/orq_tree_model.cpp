#include "orq_tree_model.h"

#include "orq_index_key_table_p.h"
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
// sit in column 0 (rows hang on their column-0 items): then two paths first
// differ in rows unless one index is a cell of the other's row, and tree
// order is a pre-order rank with a subtree end per row, compared in O(1).
struct RANKED {
  const void* pointer; // with row and column, the index's identity
  int row;
  int column;
  std::uint32_t rank;
  std::uint32_t end; // one past the last rank below this row
  int position;      // in the input list
};

bool ranked_before(const RANKED& a, const RANKED& b)
{
  if (a.row == b.row && a.column == b.column && a.pointer == b.pointer)
    return true;
  if (a.rank == b.rank)
    return false; // cells of one row
  if (a.rank < b.rank && b.rank < a.end)
    return a.column == 0; // a's row holds b: only its column-0 cell is on b's path
  if (b.rank < a.rank && a.rank < b.end)
    return false;
  return a.rank < b.rank;
}

// Ranks the rows the valid indexes lie on; false when an index is not of
// model or hangs below a cell other than column 0.
bool rank_rows(const QStandardItemModel& model, const QList<QModelIndex>& list, std::vector<RANKED>& out)
{
  struct NODE {
    int parent;
    int row;
  };
  std::vector<NODE> nodes;
  nodes.reserve(size_t(list.size()) * 2);
  ORQ_INDEX_KEY_TABLE node_of(size_t(list.size()) * 2);
  const QStandardItem* root = model.invisibleRootItem();
  bool ok = true;
  // The node of (parent item, row), made with its ancestors on first need.
  auto node = [&](const QStandardItem* parent, int row, auto& self) -> int {
    const std::uint32_t known = node_of.find(quintptr(parent), row);
    if (known != ORQ_INDEX_KEY_TABLE::NONE)
      return int(known);
    int above = -1;
    if (parent != root) {
      // Siblings share their parent's node: found by the item itself, it
      // costs no walk up the model (row -1 marks the item's own entry).
      std::uint32_t owner = node_of.find(quintptr(parent), -1);
      if (owner == ORQ_INDEX_KEY_TABLE::NONE) {
        if (parent->column() != 0) {
          ok = false;
          return -1;
        }
        const QStandardItem* grand = parent->parent();
        const int found = self(grand ? grand : root, parent->row(), self);
        if (!ok)
          return -1;
        owner = node_of.insert(quintptr(parent), -1, std::uint32_t(found));
      }
      above = int(owner);
    }
    nodes.push_back({above, row});
    node_of.insert(quintptr(parent), row, std::uint32_t(nodes.size() - 1));
    return int(nodes.size() - 1);
  };
  std::vector<int> node_of_entry;
  node_of_entry.reserve(size_t(list.size()));
  for (const QModelIndex& index : list) {
    if (!index.isValid())
      continue;
    if (index.model() != &model)
      return false;
    node_of_entry.push_back(node(static_cast<const QStandardItem*>(index.internalPointer()), index.row(), node));
    if (!ok)
      return false;
  }
  // Children in row order, then one depth-first walk for ranks and ends.
  std::vector<int> order(nodes.size());
  for (size_t n = 0; n < nodes.size(); ++n)
    order[n] = int(n);
  std::sort(order.begin(), order.end(), [&](int a, int b) {
    return nodes[size_t(a)].parent != nodes[size_t(b)].parent ? nodes[size_t(a)].parent < nodes[size_t(b)].parent
                                                              : nodes[size_t(a)].row < nodes[size_t(b)].row;
  });
  std::vector<int> first(nodes.size() + 1, 0); // children of n: order[first[n+1] .. ) shifted by one for -1
  for (const NODE& n : nodes)
    ++first[size_t(n.parent + 1)];
  std::vector<int> begin(nodes.size() + 2, 0);
  for (size_t p = 0; p <= nodes.size(); ++p)
    begin[p + 1] = begin[p] + first[p];
  std::vector<std::uint32_t> rank(nodes.size()), end(nodes.size());
  std::uint32_t next = 0;
  std::vector<std::pair<int, int>> stack; // node, next child position
  stack.emplace_back(-1, begin[0]);
  while (!stack.empty()) {
    auto& [at, child] = stack.back();
    if (child < begin[size_t(at + 2)]) {
      const int n = order[size_t(child++)];
      rank[size_t(n)] = next++;
      stack.emplace_back(n, begin[size_t(n + 1)]);
    } else {
      if (at >= 0)
        end[size_t(at)] = next;
      stack.pop_back();
    }
  }
  int valid = 0;
  for (int position = 0; position < list.size(); ++position) {
    const QModelIndex& index = list.at(position);
    if (!index.isValid())
      continue;
    const int n = node_of_entry[size_t(valid++)];
    out.push_back({index.internalPointer(), index.row(), index.column(), rank[size_t(n)], end[size_t(n)], position});
  }
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
  std::vector<RANKED> ranked;
  ranked.reserve(size_t(list.size()));
  if (rank_rows(*this, list, ranked)) {
    // The same comparisons as the path walk below gives, so the stable sort
    // puts every entry where the walk would.
    std::stable_sort(ranked.begin(), ranked.end(), ranked_before);
    QList<QModelIndex> sorted;
    sorted.reserve(list.size());
    for (const QModelIndex& index : qAsConst(list))
      if (!index.isValid())
        sorted.append(index);
    for (const RANKED& entry : ranked)
      sorted.append(list.at(entry.position));
    list.swap(sorted);
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
