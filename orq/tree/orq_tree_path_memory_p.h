#pragma once
// What a tree view remembers per row path ("Design||Unit A||Port 3"): an
// expanded state and, optionally, a check state. The paths are kept as a
// tree of their parts, so that a walk over a model finds each row's entry
// one step from its parent's, comparing the row's own text only, instead of
// building every path string and looking it up among a million others. The
// parts' characters lie end to end in the order they were saved, which is
// the order a restore reads them in.
//
// A path string is cut into parts at each "||" from the left. Any string
// gives exactly one such list and joins back to itself, so two paths share
// an entry exactly when their strings are equal, whatever "|" the texts
// hold. A row's parts are its ancestors' texts and its own as long as none
// of them contains "|"; callers step by text only then, and otherwise go by
// the whole string.
#include <QMap>
#include <QString>
#include <QStringView>

#include <cstdint>
#include <memory>
#include <vector>

class ORQ_TREE_PATH_MEMORY {
public:
  // The node of the empty path, which is never an entry, and "no node".
  static constexpr int ROOT = 0;
  static constexpr int NONE = -1;

  ORQ_TREE_PATH_MEMORY();
  ~ORQ_TREE_PATH_MEMORY();

  void clear();
  bool has_expansion() const { return m_expansion_entries > 0; }

  static bool is_plain(QStringView text) { return text.indexOf(QLatin1Char('|')) < 0; }

  // The node of a whole path string, NONE when none was made for it. plain
  // tells whether its parts are free of "|", so that rows below it may step
  // by text.
  int find(const QString& path, bool* plain = nullptr) const;
  int insert(const QString& path, bool* plain = nullptr);

  // The child of node for one plain part. A walk over siblings in the order
  // they were saved meets each at *cursor (start it at first_child): that
  // costs one comparison, and only other orders pay for a lookup.
  int first_child(int node) const { return m_nodes[std::size_t(node)].first_child; }
  int find_child(int node, QStringView part, int* cursor);
  int insert_child(int node, QStringView part, int* cursor);

  // -1 when nothing is remembered for the node.
  int expanded(int node) const { return m_nodes[std::size_t(node)].expanded; }
  int check_state(int node) const { return m_nodes[std::size_t(node)].check; }
  void set_expanded(int node, bool expanded);
  void set_check_state(int node, int state);

  // Changes whenever a node is made or the memory is cleared; node numbers
  // and cursors taken before are then stale.
  std::uint64_t generation() const { return m_generation; }

  // The entries as maps from path string, built when asked for after a change.
  const QMap<QString, bool>& expansion_map() const;
  const QMap<QString, int>& check_state_map() const;

private:
  struct NODE {
    std::size_t part_at = 0;
    int part_size = 0;
    int parent = NONE;
    int first_child = NONE;
    int last_child = NONE;
    int next_sibling = NONE;
    int children = 0;
    // Into m_tables once the node has more children than a scan should visit.
    int table = NONE;
    // Of part; set for the children of a node with a table.
    uint hash = 0;
    qint8 expanded = -1;
    qint8 check = -1;
  };

  QStringView part(const NODE& node) const
  {
    return QStringView(m_parts.data() + node.part_at, node.part_size);
  }
  int lookup(int node, QStringView part) const;
  int add(int node, QStringView part);
  void index_children(int node);
  void table_insert(std::vector<int>& table, int child);
  void build_maps() const;

  std::vector<NODE> m_nodes;
  std::vector<QChar> m_parts;
  // Open addressing over node numbers, a power of two in size, NONE for free.
  std::vector<std::vector<int>> m_tables;
  int m_expansion_entries = 0;
  std::uint64_t m_generation = 0;
  mutable bool m_maps_stale = false;
  mutable QMap<QString, bool> m_expansion_map;
  mutable QMap<QString, int> m_check_state_map;
};
