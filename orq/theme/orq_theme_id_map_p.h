#pragma once
// The theme manager's identifier-to-record maps. Identifiers are small and
// dense, so each map is a table indexed by identifier: a lookup in a paint
// loop is one load.
#include "orq_require_p.h"

#include <cstddef>
#include <utility>
#include <vector>

template <typename DATA> class ORQ_THEME_ID_MAP {
public:
  // The record and true, or the record already there and false.
  std::pair<DATA*, bool> insert(int id, const DATA& data)
  {
    if (id < 0)
      return {nullptr, false};
    const std::size_t at = std::size_t(id);
    if (at >= m_data.size()) {
      m_data.resize(at + 1);
      m_present.resize(at + 1, 0);
    }
    if (m_present[at])
      return {&m_data[at], false};
    m_data[at] = data;
    m_present[at] = 1;
    return {&m_data[at], true};
  }
  DATA* find(int id)
  {
    return id >= 0 && std::size_t(id) < m_data.size() && m_present[std::size_t(id)] ? &m_data[std::size_t(id)]
                                                                                    : nullptr;
  }
  const DATA* find(int id) const { return const_cast<ORQ_THEME_ID_MAP*>(this)->find(id); }
  template <typename F> void for_each(F&& f) const
  {
    for (std::size_t id = 0; id < m_data.size(); ++id)
      if (m_present[id])
        f(m_data[id]);
  }

private:
  std::vector<DATA> m_data;
  std::vector<char> m_present;
};

// Adds one table row; a second row with the same identifier means the
// table itself is broken.
template <typename DATA> DATA& orq_theme_insert_row(ORQ_THEME_ID_MAP<DATA>& map, int id, const DATA& data)
{
  const std::pair<DATA*, bool> inserted = map.insert(id, data);
  ORQ_REQUIRE(inserted.second);
  return *inserted.first;
}
