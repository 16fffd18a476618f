#pragma once
// What ORQ_TREE_FILTER_PROXY_MODEL keeps between keystrokes: the shape of the
// source tree in breadth-first blocks (the rows of one parent are one block
// of consecutive slots), one byte of answers per row, and the rows that
// recent expressions matched, so that typing on narrows the search and a
// backspace finds its answers again.
#include "orq_index_key_table_p.h"

#include <QList>
#include <QModelIndex>
#include <QRegularExpression>

#include <cstdint>
#include <string>
#include <vector>

class QAbstractItemModel;
class QStandardItem;

// Answers QString::contains(expression) without a regular-expression match
// for the forms filter expressions take (literals, words in any order,
// wildcards) on plain ASCII text; anything else goes to the expression.
class ORQ_FILTER_MATCHER {
public:
  ORQ_FILTER_MATCHER() = default;
  explicit ORQ_FILTER_MATCHER(const QRegularExpression& expression);

  bool matches(const QString& text) const;
  // Whether every text this matches is matched by wider too.
  bool narrows(const ORQ_FILTER_MATCHER& wider) const;
  const QRegularExpression& expression() const { return m_expression; }
  bool matches_everything() const { return m_kind == ALL; }

private:
  enum KIND { ALL, NONE, LITERALS, SEQUENCE, EXPRESSION };
  bool parse_lookaheads(const QString& pattern);
  bool parse_sequence(const QString& pattern);
  bool fold(const QString& text) const;

  KIND m_kind = ALL;
  bool m_fold_case = true;
  // The ^(?=.*w) form looks at the first line only; a plain literal anywhere.
  bool m_first_line = false;
  std::vector<std::string> m_literals;
  QRegularExpression m_expression;
  mutable std::string m_folded;
};

// What decides whether a row matches by itself.
struct ORQ_FILTER_SETTINGS {
  QRegularExpression expression;
  int key_column = 0;
  int role = Qt::DisplayRole;
  QList<int> columns;

  bool operator==(const ORQ_FILTER_SETTINGS& other) const
  {
    return key_column == other.key_column && role == other.role && expression == other.expression &&
           columns == other.columns;
  }
};

class ORQ_TREE_FILTER_CACHE {
public:
  enum : std::uint8_t {
    SELF = 1,  // matches by its own texts
    BELOW = 2, // some row below matches by itself
    ABOVE = 4, // some ancestor matches by itself
  };
  static constexpr std::uint32_t NONE = 0xffffffffu;

  explicit ORQ_TREE_FILTER_CACHE(const QAbstractItemModel* model);

  void drop();
  bool has_answers() const { return m_has_answers; }
  // Answers for settings as they stand.
  void compute(const ORQ_FILTER_SETTINGS& settings);
  bool answers_for(const ORQ_FILTER_SETTINGS& settings) const
  {
    return m_has_answers && m_settings == settings;
  }

  // The block (parent number) of a source parent; NONE when not known.
  std::uint32_t block_of(const QModelIndex& parent) const;
  std::uint32_t block_size(std::uint32_t block) const { return m_base[block + 1] - m_base[block]; }
  std::uint32_t slot(std::uint32_t block, int row) const { return m_base[block] + std::uint32_t(row); }
  std::uint8_t flags(std::uint32_t slot) const { return m_flags[slot]; }
  std::size_t slot_count() const { return m_flags.size(); }

  // Whether a row is kept under the switches, by its slot.
  bool accepted(std::uint32_t slot, bool include_child, bool include_root) const
  {
    const std::uint8_t f = m_flags[slot];
    return (f & (SELF | BELOW)) || (include_child && (f & ABOVE)) || (include_root && slot < m_base[1]);
  }
  // One bit per slot: accepted() of every row.
  std::vector<std::uint64_t> accepted_bits(bool include_child, bool include_root) const;
  // How many runs of neighbouring rows are kept now and were not in before,
  // or the other way round: what an in-place re-filter would announce.
  std::size_t changed_runs(const std::vector<std::uint64_t>& before, bool include_child,
                           bool include_root) const;
  // Per block: whether its rows can be shown, that is whether its owner and
  // every row above that are kept.
  std::vector<std::uint8_t> shown_blocks(bool include_child, bool include_root) const;
  // Whether the source row of index is shown; true when the structure does
  // not know its parent.
  bool shown(const QModelIndex& index, const std::vector<std::uint8_t>& shown_blocks, bool include_child,
             bool include_root) const;

  std::size_t memory_bytes() const;

private:
  struct HISTORY {
    ORQ_FILTER_MATCHER matcher;
    std::vector<std::uint64_t> rows;
    std::size_t count = 0;
  };
  void build_structure();
  template <typename VISIT> void for_each_block_row(std::uint32_t block, VISIT&& visit) const;
  bool row_matches(std::uint32_t block, int row, const ORQ_FILTER_MATCHER& matcher,
                   const ORQ_FILTER_SETTINGS& settings, QString& joined) const;
  void match_rows(const ORQ_FILTER_SETTINGS& settings, std::vector<std::uint64_t>& rows, std::size_t& count);

  const QAbstractItemModel* m_model;
  // Set when the model is exactly a standard item model of ours or Qt's, whose
  // items can be read without going through index() and data().
  bool m_items = false;
  bool m_has_structure = false;
  bool m_has_answers = false;
  ORQ_FILTER_SETTINGS m_settings;

  // Per block: the parent (item or index), its first slot, its own row's
  // slot (NONE for the top level).
  std::vector<QStandardItem*> m_block_items;
  std::vector<QModelIndex> m_block_indexes;
  std::vector<std::uint32_t> m_base; // one more than blocks: the end
  std::vector<std::uint32_t> m_owner_slot;
  std::vector<std::uint32_t> m_owner_block;
  // From (parent's internal id, parent's row) to its block.
  ORQ_INDEX_KEY_TABLE m_blocks;

  std::vector<std::uint8_t> m_flags; // per slot
  std::vector<HISTORY> m_history;    // most recent first
};
