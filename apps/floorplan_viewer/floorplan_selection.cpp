#include "floorplan_selection.h"

#include <QLocale>

#include <algorithm>
#include <array>
#include <iterator>

void FLOORPLAN_SELECTION::reset(std::size_t shape_count)
{
  m_size = shape_count;
  m_bits.assign((shape_count + 63) / 64, 0);
  m_ids.clear();
  ++m_version;
}

void FLOORPLAN_SELECTION::set_bit(std::uint32_t id, bool on)
{
  if (on)
    m_bits[id >> 6] |= std::uint64_t(1) << (id & 63);
  else
    m_bits[id >> 6] &= ~(std::uint64_t(1) << (id & 63));
}

bool FLOORPLAN_SELECTION::select(std::vector<std::uint32_t> ids, MODE mode)
{
  ids.erase(std::remove_if(ids.begin(), ids.end(), [this](std::uint32_t id) { return id >= m_size; }),
            ids.end());
  std::sort(ids.begin(), ids.end());
  ids.erase(std::unique(ids.begin(), ids.end()), ids.end());
  std::vector<std::uint32_t> next;
  switch (mode) {
  case REPLACE:
    next = std::move(ids);
    break;
  case ADD:
    std::set_union(m_ids.begin(), m_ids.end(), ids.begin(), ids.end(), std::back_inserter(next));
    break;
  case TOGGLE:
    std::set_symmetric_difference(m_ids.begin(), m_ids.end(), ids.begin(), ids.end(),
                                  std::back_inserter(next));
    break;
  }
  if (next == m_ids)
    return false;
  // Only the bits of the old and the new selection are touched, never the
  // whole bit set.
  for (std::uint32_t id : m_ids)
    set_bit(id, false);
  for (std::uint32_t id : next)
    set_bit(id, true);
  m_ids.swap(next);
  ++m_version;
  return true;
}

bool FLOORPLAN_SELECTION::clear()
{
  return select({}, REPLACE);
}

QRect FLOORPLAN_SELECTION::bounding_rect(const FLOORPLAN& plan) const
{
  if (m_ids.empty())
    return {};
  FP_BOX box = plan.shapes[m_ids.front()].box;
  for (std::uint32_t id : m_ids) {
    const FP_BOX& b = plan.shapes[id].box;
    box = {std::min(box.x1, b.x1), std::min(box.y1, b.y1), std::max(box.x2, b.x2), std::max(box.y2, b.y2)};
  }
  return box.to_rect();
}

QString FLOORPLAN_SELECTION::describe(const FLOORPLAN& plan) const
{
  if (m_ids.empty())
    return QStringLiteral("Nothing selected");
  if (m_ids.size() == 1)
    return QStringLiteral("%1 (%2)").arg(plan.shape_name(m_ids.front()), plan.shape_type(m_ids.front()));
  std::array<std::size_t, std::size_t(FP_KIND::COUNT)> counts = {};
  // The ids are sorted and kinds are contiguous: one binary search a kind.
  for (std::size_t k = 0; k < counts.size(); ++k) {
    const FP_KIND kind = FP_KIND(k);
    counts[k] = std::size_t(std::lower_bound(m_ids.begin(), m_ids.end(), plan.end(kind)) -
                            std::lower_bound(m_ids.begin(), m_ids.end(), plan.begin(kind)));
  }
  const QLocale english(QLocale::English);
  QStringList parts;
  auto part = [&](FP_KIND kind, const char* one, const char* many) {
    const std::size_t n = counts[std::size_t(kind)];
    if (n)
      parts << QStringLiteral("%1 %2").arg(english.toString(qulonglong(n)),
                                           QLatin1String(n == 1 ? one : many));
  };
  part(FP_KIND::BLOCK, "block", "blocks");
  part(FP_KIND::CELL, "cell", "cells");
  part(FP_KIND::PAD, "pad", "pads");
  part(FP_KIND::ROW, "row", "rows");
  part(FP_KIND::NET, "net", "nets");
  return parts.join(QStringLiteral(", ")) + QStringLiteral(" selected");
}
