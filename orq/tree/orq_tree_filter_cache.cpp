#include "orq_tree_filter_cache_p.h"

#include "orq_tree_filter_model.h"

#include <QStandardItemModel>

#include <algorithm>
#include <cstring>
#include <typeinfo>

namespace {

bool is_meta(ushort c)
{
  switch (c) {
  case '.': case '^': case '$': case '|': case '(': case ')': case '[': case ']':
  case '{': case '}': case '*': case '+': case '?': case '\\':
    return true;
  default:
    return false;
  }
}

// Reads an escaped literal from pattern at pos up to a stop; false when the
// text holds anything a regular expression would read as more than itself.
bool read_literal(const QString& pattern, int& pos, bool fold_case, std::string& out,
                  bool (*stop)(const QString&, int))
{
  while (pos < pattern.size() && !stop(pattern, pos)) {
    ushort c = pattern.at(pos).unicode();
    if (c == '\\') {
      if (pos + 1 >= pattern.size() || !is_meta(pattern.at(pos + 1).unicode()))
        return false;
      c = pattern.at(pos + 1).unicode();
      pos += 2;
    } else {
      if (is_meta(c))
        return false;
      ++pos;
    }
    if (c >= 0x80)
      return false;
    out.push_back(char(fold_case && c >= 'A' && c <= 'Z' ? c + ('a' - 'A') : c));
  }
  return true;
}

bool at_group_end(const QString& pattern, int pos)
{
  return pattern.at(pos) == QLatin1Char(')');
}

bool at_wildcard(const QString& pattern, int pos)
{
  return pattern.at(pos) == QLatin1Char('.') && pos + 1 < pattern.size() && pattern.at(pos + 1) == QLatin1Char('*');
}

bool contains(const std::string& text, std::size_t from, const std::string& literal, std::size_t* end = nullptr)
{
  if (literal.empty()) {
    if (end)
      *end = from;
    return true;
  }
  if (from > text.size())
    return false;
  const void* found = memmem(text.data() + from, text.size() - from, literal.data(), literal.size());
  if (!found)
    return false;
  if (end)
    *end = std::size_t(static_cast<const char*>(found) - text.data()) + literal.size();
  return true;
}

} // namespace

ORQ_FILTER_MATCHER::ORQ_FILTER_MATCHER(const QRegularExpression& expression)
    : m_expression(expression)
{
  const QString pattern = expression.pattern();
  const auto options = expression.patternOptions();
  if (!expression.isValid()) {
    m_kind = NONE;
    return;
  }
  if (pattern.isEmpty()) {
    m_kind = ALL;
    return;
  }
  if (options != QRegularExpression::CaseInsensitiveOption && options != QRegularExpression::NoPatternOption) {
    m_kind = EXPRESSION;
    return;
  }
  m_fold_case = options == QRegularExpression::CaseInsensitiveOption;
  if (parse_lookaheads(pattern) || parse_sequence(pattern))
    return;
  m_literals.clear();
  m_kind = EXPRESSION;
}

// ^(?=.*a)(?=.*b): every word somewhere on the first line.
bool ORQ_FILTER_MATCHER::parse_lookaheads(const QString& pattern)
{
  static const QString open = QStringLiteral("(?=.*");
  if (!pattern.startsWith(QLatin1Char('^')))
    return false;
  int pos = 1;
  while (pos < pattern.size()) {
    if (pattern.midRef(pos, open.size()) != open)
      return false;
    pos += open.size();
    std::string literal;
    if (!read_literal(pattern, pos, m_fold_case, literal, at_group_end) || pos >= pattern.size())
      return false;
    ++pos; // the closing parenthesis
    m_literals.push_back(literal);
  }
  if (m_literals.empty())
    return false;
  m_kind = LITERALS;
  m_first_line = true;
  return true;
}

// a.*b.*c: the literals in this order on one line; one literal anywhere.
bool ORQ_FILTER_MATCHER::parse_sequence(const QString& pattern)
{
  int pos = 0;
  while (pos < pattern.size()) {
    std::string literal;
    if (!read_literal(pattern, pos, m_fold_case, literal, at_wildcard))
      return false;
    if (!literal.empty())
      m_literals.push_back(literal);
    if (pos < pattern.size())
      pos += 2; // the wildcard
  }
  m_kind = m_literals.empty() ? ALL : m_literals.size() == 1 ? LITERALS : SEQUENCE;
  return true;
}

// Lower-cases plain ASCII text into the scratch buffer. Text with other
// characters or line breaks is left to the expression: case folding beyond
// ASCII and where a line ends are the regular-expression engine's to decide.
bool ORQ_FILTER_MATCHER::fold(const QString& text) const
{
  const int size = text.size();
  m_folded.resize(std::size_t(size));
  const ushort* in = text.utf16();
  char* out = &m_folded[0];
  ushort any = 0;
  bool breaks = false;
  if (m_fold_case) {
    for (int i = 0; i < size; ++i) {
      const ushort c = in[i];
      any |= c;
      breaks |= (c >= 0x0a && c <= 0x0d);
      out[i] = char(c >= 'A' && c <= 'Z' ? c + ('a' - 'A') : c);
    }
  } else {
    for (int i = 0; i < size; ++i) {
      const ushort c = in[i];
      any |= c;
      breaks |= (c >= 0x0a && c <= 0x0d);
      out[i] = char(c);
    }
  }
  return any < 0x80 && !breaks;
}

bool ORQ_FILTER_MATCHER::matches(const QString& text) const
{
  switch (m_kind) {
  case ALL:
    return true;
  case NONE:
    return false;
  case EXPRESSION:
    return m_expression.match(text).hasMatch();
  case LITERALS:
  case SEQUENCE:
    break;
  }
  if (!fold(text))
    return m_expression.match(text).hasMatch();
  if (m_kind == LITERALS) {
    for (const std::string& literal : m_literals)
      if (!contains(m_folded, 0, literal))
        return false;
    return true;
  }
  std::size_t at = 0;
  for (const std::string& literal : m_literals)
    if (!contains(m_folded, at, literal, &at))
      return false;
  return true;
}

bool ORQ_FILTER_MATCHER::narrows(const ORQ_FILTER_MATCHER& wider) const
{
  if (wider.m_kind == ALL || m_kind == NONE)
    return true;
  if (m_kind != LITERALS || wider.m_kind != LITERALS || m_fold_case != wider.m_fold_case)
    return false;
  // On text with several lines a literal anywhere says nothing about the
  // first line.
  if (wider.m_first_line && !m_first_line)
    return false;
  for (const std::string& needed : wider.m_literals) {
    const bool implied = std::any_of(m_literals.begin(), m_literals.end(), [&](const std::string& own) {
      return own.find(needed) != std::string::npos;
    });
    if (!implied)
      return false;
  }
  return true;
}

ORQ_TREE_FILTER_CACHE::ORQ_TREE_FILTER_CACHE(const QAbstractItemModel* model)
    : m_model(model)
{
  // Only models whose data() is the standard one may be read through their
  // items; a subclass could answer data() differently.
  if (model) {
    const std::type_info& type = typeid(*model);
    m_items = type == typeid(QStandardItemModel) || type == typeid(ORQ_TREE_MODEL) ||
              type == typeid(ORQ_TREE_FILTER_MODEL);
  }
}

void ORQ_TREE_FILTER_CACHE::drop()
{
  m_has_structure = false;
  m_has_answers = false;
  std::vector<QStandardItem*>().swap(m_block_items);
  std::vector<QModelIndex>().swap(m_block_indexes);
  std::vector<std::uint32_t>().swap(m_base);
  std::vector<std::uint32_t>().swap(m_owner_slot);
  std::vector<std::uint32_t>().swap(m_owner_block);
  m_blocks.reset(0);
  std::vector<std::uint8_t>().swap(m_flags);
  m_history.clear();
}

std::uint32_t ORQ_TREE_FILTER_CACHE::block_of(const QModelIndex& parent) const
{
  if (!parent.isValid())
    return m_has_structure ? 0 : NONE;
  // Rows hang on their column-0 cells; other parents are not kept.
  if (!m_has_structure || parent.column() != 0 || parent.model() != m_model)
    return NONE;
  return m_blocks.find(parent.internalId(), parent.row());
}

// Breadth-first: the blocks are numbered in the order their owners are
// met, so an owner's slot is always below its children's, and the slot_total of
// one block follow each other.
void ORQ_TREE_FILTER_CACHE::build_structure()
{
  drop();
  std::uint32_t slot_total = 0;
  std::vector<std::pair<quintptr, int>> keys; // per block after the first
  auto add_block = [&](std::uint32_t owner_slot, std::uint32_t owner_block) {
    m_base.push_back(slot_total);
    m_owner_slot.push_back(owner_slot);
    m_owner_block.push_back(owner_block);
  };
  if (m_items) {
    const auto* model = static_cast<const QStandardItemModel*>(m_model);
    m_block_items.push_back(model->invisibleRootItem());
    add_block(NONE, NONE);
    for (std::uint32_t block = 0; block < m_block_items.size(); ++block) {
      QStandardItem* parent = m_block_items[block];
      m_base[block] = slot_total;
      const int rows = parent->rowCount();
      for (int row = 0; row < rows; ++row) {
        QStandardItem* child = parent->child(row, 0);
        if (child && child->rowCount() > 0) {
          m_block_items.push_back(child);
          keys.emplace_back(quintptr(parent), row);
          add_block(slot_total + std::uint32_t(row), block);
        }
      }
      slot_total += std::uint32_t(rows);
    }
  } else {
    m_block_indexes.emplace_back();
    add_block(NONE, NONE);
    for (std::uint32_t block = 0; block < m_block_indexes.size(); ++block) {
      const QModelIndex parent = m_block_indexes[block];
      m_base[block] = slot_total;
      const int rows = m_model->rowCount(parent);
      for (int row = 0; row < rows; ++row) {
        const QModelIndex child = m_model->index(row, 0, parent);
        if (child.isValid() && m_model->rowCount(child) > 0) {
          m_block_indexes.push_back(child);
          keys.emplace_back(child.internalId(), row);
          add_block(slot_total + std::uint32_t(row), block);
        }
      }
      slot_total += std::uint32_t(rows);
    }
  }
  m_base.push_back(slot_total);
  m_blocks.reset(keys.size());
  for (std::size_t k = 0; k < keys.size(); ++k)
    m_blocks.insert(keys[k].first, keys[k].second, std::uint32_t(k + 1));
  m_flags.assign(slot_total, 0);
  m_has_structure = true;
}

bool ORQ_TREE_FILTER_CACHE::row_matches(std::uint32_t block, int row, const ORQ_FILTER_MATCHER& matcher,
                                        const ORQ_FILTER_SETTINGS& settings, QString& joined) const
{
  // The same texts QSortFilterProxyModel's own test and the joined columns
  // read: data(role).toString(), an empty text for a missing cell.
  auto text = [&](int column, int role) -> QString {
    if (m_items) {
      const QStandardItem* item = m_block_items[block]->child(row, column);
      return item ? item->data(role).toString() : QString();
    }
    return m_model->index(row, column, m_block_indexes[block]).data(role).toString();
  };
  const int columns =
      m_items ? m_block_items[block]->columnCount() : m_model->columnCount(m_block_indexes[block]);
  const int key = settings.key_column;
  if (key == -1) {
    for (int column = 0; column < columns; ++column)
      if (matcher.matches(text(column, settings.role)))
        return true;
  } else if (key < 0 || key >= columns) {
    return true; // no such cell: the base filter lets the row through
  } else if (matcher.matches(text(key, settings.role))) {
    return true;
  }
  if (settings.columns.isEmpty())
    return false;
  joined.resize(0);
  for (const int column : settings.columns) {
    if (column >= 0 && column < columns)
      joined += text(column, Qt::DisplayRole);
    joined += QLatin1Char(' ');
  }
  return matcher.matches(joined);
}

void ORQ_TREE_FILTER_CACHE::match_rows(const ORQ_FILTER_SETTINGS& settings, std::vector<std::uint64_t>& rows,
                                       std::size_t& count)
{
  const ORQ_FILTER_MATCHER matcher(settings.expression);
  const std::size_t slot_total = m_flags.size();
  rows.assign((slot_total + 63) / 64, 0);
  count = 0;
  // An expression seen a moment ago (a backspace) has its rows already; one
  // that narrows an earlier one only needs to look at that one's rows.
  const HISTORY* narrowed = nullptr;
  for (std::size_t i = 0; i < m_history.size(); ++i) {
    const HISTORY& entry = m_history[i];
    if (entry.matcher.expression() == settings.expression) {
      rows = entry.rows;
      count = entry.count;
      HISTORY again = std::move(m_history[i]);
      m_history.erase(m_history.begin() + std::ptrdiff_t(i));
      m_history.insert(m_history.begin(), std::move(again));
      return;
    }
    if (matcher.narrows(entry.matcher) && (!narrowed || entry.count < narrowed->count))
      narrowed = &entry;
  }
  QString joined;
  auto test = [&](std::uint32_t block, std::uint32_t slot) {
    if (row_matches(block, int(slot - m_base[block]), matcher, settings, joined)) {
      rows[slot / 64] |= std::uint64_t(1) << (slot % 64);
      ++count;
    }
  };
  const std::uint32_t blocks = std::uint32_t(m_base.size() - 1);
  if (matcher.matches_everything()) {
    for (std::size_t slot = 0; slot < slot_total; ++slot)
      rows[slot / 64] |= std::uint64_t(1) << (slot % 64);
    count = slot_total;
  } else if (!narrowed) {
    for (std::uint32_t block = 0; block < blocks; ++block)
      for (std::uint32_t slot = m_base[block]; slot < m_base[block + 1]; ++slot)
        test(block, slot);
  } else {
    for (std::uint32_t block = 0; block < blocks; ++block) {
      const std::uint32_t begin = m_base[block];
      const std::uint32_t end = m_base[block + 1];
      if (begin == end)
        continue;
      for (std::uint32_t word = begin / 64; word <= (end - 1) / 64; ++word) {
        std::uint64_t bits = narrowed->rows[word];
        if (word == begin / 64)
          bits &= ~std::uint64_t(0) << (begin % 64);
        if (word == (end - 1) / 64 && end % 64)
          bits &= ~(~std::uint64_t(0) << (end % 64));
        for (; bits; bits &= bits - 1)
          test(block, word * 64 + std::uint32_t(__builtin_ctzll(bits)));
      }
    }
  }
  HISTORY entry;
  entry.matcher = matcher;
  entry.rows = rows;
  entry.count = count;
  m_history.insert(m_history.begin(), std::move(entry));
  if (m_history.size() > 6)
    m_history.pop_back();
}

void ORQ_TREE_FILTER_CACHE::compute(const ORQ_FILTER_SETTINGS& settings)
{
  if (!m_has_structure)
    build_structure();
  if (!(m_settings.key_column == settings.key_column && m_settings.role == settings.role &&
        m_settings.columns == settings.columns))
    m_history.clear(); // rows matched under other columns say nothing now
  std::vector<std::uint64_t> rows;
  std::size_t count = 0;
  match_rows(settings, rows, count);
  const std::size_t slot_total = m_flags.size();
  std::uint8_t* flags = m_flags.data();
  for (std::size_t slot = 0; slot < slot_total; ++slot)
    flags[slot] = std::uint8_t(rows[slot / 64] >> (slot % 64) & 1u);
  const std::uint32_t blocks = std::uint32_t(m_base.size() - 1);
  // Below: children before owners, which breadth-first order gives backwards.
  for (std::uint32_t block = blocks; block-- > 1;) {
    std::uint8_t any = 0;
    for (std::uint32_t slot = m_base[block]; slot < m_base[block + 1]; ++slot)
      any |= flags[slot];
    if (any & (SELF | BELOW))
      flags[m_owner_slot[block]] |= BELOW;
  }
  // Above: owners before children.
  for (std::uint32_t block = 1; block < blocks; ++block) {
    if (flags[m_owner_slot[block]] & (SELF | ABOVE))
      for (std::uint32_t slot = m_base[block]; slot < m_base[block + 1]; ++slot)
        flags[slot] |= ABOVE;
  }
  m_settings = settings;
  m_has_answers = true;
}

std::vector<std::uint64_t> ORQ_TREE_FILTER_CACHE::accepted_bits(bool include_child, bool include_root) const
{
  const std::size_t slot_total = m_flags.size();
  std::vector<std::uint64_t> bits((slot_total + 63) / 64, 0);
  for (std::size_t slot = 0; slot < slot_total; ++slot)
    if (accepted(std::uint32_t(slot), include_child, include_root))
      bits[slot / 64] |= std::uint64_t(1) << (slot % 64);
  return bits;
}

std::size_t ORQ_TREE_FILTER_CACHE::changed_runs(const std::vector<std::uint64_t>& before, bool include_child,
                                                bool include_root) const
{
  std::size_t runs = 0;
  const std::uint32_t blocks = std::uint32_t(m_base.size() - 1);
  for (std::uint32_t block = 0; block < blocks; ++block) {
    bool in_run = false;
    for (std::uint32_t slot = m_base[block]; slot < m_base[block + 1]; ++slot) {
      const bool was = before[slot / 64] >> (slot % 64) & 1u;
      const bool changed = was != accepted(slot, include_child, include_root);
      runs += changed && !in_run;
      in_run = changed;
    }
  }
  return runs;
}

std::vector<std::uint8_t> ORQ_TREE_FILTER_CACHE::shown_blocks(bool include_child, bool include_root) const
{
  const std::size_t blocks = m_base.empty() ? 0 : m_base.size() - 1;
  std::vector<std::uint8_t> shown(blocks, 0);
  if (blocks)
    shown[0] = 1;
  // Breadth-first numbering puts every owner's block before its children's.
  for (std::size_t block = 1; block < blocks; ++block)
    shown[block] = shown[m_owner_block[block]] && accepted(m_owner_slot[block], include_child, include_root);
  return shown;
}

bool ORQ_TREE_FILTER_CACHE::shown(const QModelIndex& index, const std::vector<std::uint8_t>& shown_blocks,
                                  bool include_child, bool include_root) const
{
  const std::uint32_t block = block_of(index.parent());
  if (block == NONE || index.row() < 0 || std::uint32_t(index.row()) >= block_size(block))
    return true;
  return shown_blocks[block] && accepted(slot(block, index.row()), include_child, include_root);
}

std::size_t ORQ_TREE_FILTER_CACHE::memory_bytes() const
{
  std::size_t bytes = m_flags.capacity() + m_blocks.memory_bytes() +
                      (m_base.capacity() + m_owner_slot.capacity() + m_owner_block.capacity()) * 4 +
                      m_block_items.capacity() * sizeof(QStandardItem*) +
                      m_block_indexes.capacity() * sizeof(QModelIndex);
  for (const HISTORY& entry : m_history)
    bytes += entry.rows.capacity() * 8;
  return bytes;
}
