#pragma once
// An open-addressing table from a model index's identity under its parent
// (internal id and row) to a number, for the tree code's per-row lookups:
// a QHash allocates a node per entry, which dominates on millions of rows.
#include <QtGlobal>

#include <cstdint>
#include <vector>

class ORQ_INDEX_KEY_TABLE {
public:
  static constexpr std::uint32_t NONE = 0xffffffffu;

  explicit ORQ_INDEX_KEY_TABLE(std::size_t expected = 0) { reset(expected); }

  void reset(std::size_t expected)
  {
    std::size_t capacity = 16;
    while (capacity < expected * 2)
      capacity *= 2;
    m_slots.assign(capacity, SLOT{0, 0, NONE});
    m_used = 0;
  }

  std::uint32_t find(quintptr id, int row) const
  {
    const std::size_t mask = m_slots.size() - 1;
    for (std::size_t at = hash(id, row);; ++at) {
      const SLOT& slot = m_slots[at & mask];
      if (slot.value == NONE)
        return NONE;
      if (slot.id == id && slot.row == row)
        return slot.value;
    }
  }

  // The value stored for the key, or value after storing it.
  std::uint32_t insert(quintptr id, int row, std::uint32_t value)
  {
    if ((m_used + 1) * 2 > m_slots.size())
      grow();
    const std::size_t mask = m_slots.size() - 1;
    for (std::size_t at = hash(id, row);; ++at) {
      SLOT& slot = m_slots[at & mask];
      if (slot.value == NONE) {
        slot = {id, row, value};
        ++m_used;
        return value;
      }
      if (slot.id == id && slot.row == row)
        return slot.value;
    }
  }

  std::size_t memory_bytes() const { return m_slots.capacity() * sizeof(SLOT); }

private:
  struct SLOT {
    quintptr id;
    int row;
    std::uint32_t value;
  };

  static std::size_t hash(quintptr id, int row)
  {
    return (std::size_t(id) * 0x9E3779B97F4A7C15ull ^ std::size_t(std::uint32_t(row)) * 0xC2B2AE3D27D4EB4Full) >> 7;
  }

  void grow()
  {
    std::vector<SLOT> old;
    old.swap(m_slots);
    m_slots.assign(old.size() * 2, SLOT{0, 0, NONE});
    m_used = 0;
    for (const SLOT& slot : old)
      if (slot.value != NONE)
        insert(slot.id, slot.row, slot.value);
  }

  std::vector<SLOT> m_slots;
  std::size_t m_used = 0;
};
