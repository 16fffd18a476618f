#include "orq_tree_path_memory_p.h"

#include <QHashFunctions>

#include <utility>

namespace {

// Up to this many siblings are found by a scan; a node with more gets a
// table, as the rows of a report often sit by the thousand under one parent.
constexpr int k_scan_limit = 8;

const QString k_separator = QStringLiteral("||");

// Calls part(text) for each part of path from the left; stops when part
// returns false, and returns whether it never did.
template <typename PART> bool for_each_part(QStringView path, PART part)
{
  const QStringView separator(k_separator);
  qsizetype from = 0;
  for (;;) {
    const qsizetype at = path.indexOf(separator, from);
    if (at < 0)
      return part(path.mid(from));
    if (!part(path.mid(from, at - from)))
      return false;
    from = at + separator.size();
  }
}

// Qt's string hash keeps neighbouring names in neighbouring low bits.
std::size_t slot_of(uint hash)
{
  return std::size_t((std::uint64_t(hash) * 0x9E3779B97F4A7C15ull) >> 32);
}

} // namespace

ORQ_TREE_PATH_MEMORY::ORQ_TREE_PATH_MEMORY()
{
  clear();
}

ORQ_TREE_PATH_MEMORY::~ORQ_TREE_PATH_MEMORY() = default;

void ORQ_TREE_PATH_MEMORY::clear()
{
  // The vectors keep their capacity: the next save is usually of the same size.
  m_nodes.clear();
  m_nodes.emplace_back();
  m_parts.clear();
  m_tables.clear();
  m_expansion_entries = 0;
  ++m_generation;
  m_maps_stale = true;
}

int ORQ_TREE_PATH_MEMORY::lookup(int node, QStringView part) const
{
  const NODE& parent = m_nodes[std::size_t(node)];
  if (parent.table != NONE) {
    const std::vector<int>& table = m_tables[std::size_t(parent.table)];
    const std::size_t mask = table.size() - 1;
    const uint hash = qHash(part);
    for (std::size_t at = slot_of(hash);; ++at) {
      const int child = table[at & mask];
      if (child == NONE)
        return NONE;
      const NODE& candidate = m_nodes[std::size_t(child)];
      if (candidate.hash == hash && this->part(candidate) == part)
        return child;
    }
  }
  for (int child = parent.first_child; child != NONE; child = m_nodes[std::size_t(child)].next_sibling)
    if (this->part(m_nodes[std::size_t(child)]) == part)
      return child;
  return NONE;
}

int ORQ_TREE_PATH_MEMORY::add(int node, QStringView part)
{
  const int child = int(m_nodes.size());
  m_nodes.emplace_back();
  NODE& added = m_nodes.back();
  added.part_at = m_parts.size();
  added.part_size = int(part.size());
  added.parent = node;
  m_parts.insert(m_parts.end(), part.begin(), part.end());
  NODE& parent = m_nodes[std::size_t(node)];
  if (parent.last_child == NONE)
    parent.first_child = child;
  else
    m_nodes[std::size_t(parent.last_child)].next_sibling = child;
  parent.last_child = child;
  ++parent.children;
  if (parent.table != NONE &&
      std::size_t(parent.children) * 2 <= m_tables[std::size_t(parent.table)].size()) {
    added.hash = qHash(part);
    table_insert(m_tables[std::size_t(parent.table)], child);
  } else if (parent.children > k_scan_limit) {
    index_children(node);
  }
  ++m_generation;
  return child;
}

void ORQ_TREE_PATH_MEMORY::index_children(int node)
{
  NODE& parent = m_nodes[std::size_t(node)];
  std::size_t size = 16;
  while (size < std::size_t(parent.children) * 4)
    size *= 2;
  if (parent.table == NONE) {
    parent.table = int(m_tables.size());
    m_tables.emplace_back();
  }
  std::vector<int>& table = m_tables[std::size_t(parent.table)];
  table.assign(size, NONE);
  for (int child = parent.first_child; child != NONE; child = m_nodes[std::size_t(child)].next_sibling) {
    NODE& entry = m_nodes[std::size_t(child)];
    entry.hash = qHash(part(entry));
    table_insert(table, child);
  }
}

void ORQ_TREE_PATH_MEMORY::table_insert(std::vector<int>& table, int child)
{
  const std::size_t mask = table.size() - 1;
  std::size_t at = slot_of(m_nodes[std::size_t(child)].hash);
  while (table[at & mask] != NONE)
    ++at;
  table[at & mask] = child;
}

int ORQ_TREE_PATH_MEMORY::find(const QString& path, bool* plain) const
{
  int node = ROOT;
  bool all_plain = true;
  const bool found = for_each_part(QStringView(path), [&](QStringView part) {
    all_plain = all_plain && is_plain(part);
    node = lookup(node, part);
    return node != NONE;
  });
  if (plain)
    *plain = all_plain;
  return found ? node : NONE;
}

int ORQ_TREE_PATH_MEMORY::insert(const QString& path, bool* plain)
{
  int node = ROOT;
  bool all_plain = true;
  for_each_part(QStringView(path), [&](QStringView part) {
    all_plain = all_plain && is_plain(part);
    const int child = lookup(node, part);
    node = child != NONE ? child : add(node, part);
    return true;
  });
  if (plain)
    *plain = all_plain;
  return node;
}

int ORQ_TREE_PATH_MEMORY::find_child(int node, QStringView part, int* cursor)
{
  const int expected = *cursor;
  if (expected != NONE && this->part(m_nodes[std::size_t(expected)]) == part) {
    *cursor = m_nodes[std::size_t(expected)].next_sibling;
    return expected;
  }
  const int child = lookup(node, part);
  if (child != NONE)
    *cursor = m_nodes[std::size_t(child)].next_sibling;
  return child;
}

int ORQ_TREE_PATH_MEMORY::insert_child(int node, QStringView part, int* cursor)
{
  const int child = find_child(node, part, cursor);
  return child != NONE ? child : add(node, part);
}

void ORQ_TREE_PATH_MEMORY::set_expanded(int node, bool expanded)
{
  NODE& entry = m_nodes[std::size_t(node)];
  if (entry.expanded < 0)
    ++m_expansion_entries;
  entry.expanded = expanded ? 1 : 0;
  m_maps_stale = true;
}

void ORQ_TREE_PATH_MEMORY::set_check_state(int node, int state)
{
  m_nodes[std::size_t(node)].check = qint8(state);
  m_maps_stale = true;
}

const QMap<QString, bool>& ORQ_TREE_PATH_MEMORY::expansion_map() const
{
  build_maps();
  return m_expansion_map;
}

const QMap<QString, int>& ORQ_TREE_PATH_MEMORY::check_state_map() const
{
  build_maps();
  return m_check_state_map;
}

void ORQ_TREE_PATH_MEMORY::build_maps() const
{
  if (!m_maps_stale)
    return;
  m_maps_stale = false;
  m_expansion_map.clear();
  m_check_state_map.clear();
  // A node is always made after its parent, so the parent's path is ready.
  std::vector<QString> paths(m_nodes.size());
  for (std::size_t id = 1; id < m_nodes.size(); ++id) {
    const NODE& node = m_nodes[id];
    QString& path = paths[id];
    if (node.parent != ROOT)
      path = paths[std::size_t(node.parent)] + k_separator;
    path += part(node);
    if (node.expanded >= 0)
      m_expansion_map.insert(paths[id], node.expanded != 0);
    if (node.check >= 0)
      m_check_state_map.insert(paths[id], node.check);
  }
}
