#include "floorplan_variants.h"

#include <iterator>

namespace {

struct VARIANT_ROW {
  const char* cell;
  const char* tag;
  const char* description;
};

// clang-format off
const VARIANT_ROW k_variants[] = {
  {"SRAM_64K",  "HD",   "High density, one port"},
  {"SRAM_64K",  "HS",   "High speed, one port"},
  {"SRAM_64K",  "2P",   "Two ports, read while writing"},
  {"DDR_PHY",   "X32",  "One 32-bit channel"},
  {"DDR_PHY",   "X64",  "One 64-bit channel, wider"},
  {"SERDES_X4", "16G",  "Four lanes at 16 Gb/s"},
  {"SERDES_X4", "32G",  "Four lanes at 32 Gb/s"},
  {"SERDES_X4", "LP",   "Four lanes, low power"},
  {"PLL",       "INT",  "Integer-N"},
  {"PLL",       "FRAC", "Fractional-N"},
  {"PLL",       "LC",   "LC tank, lowest jitter"},
};
// clang-format on

// By position in a macro's list: the same three colours on every kind, so
// a glance tells which macros left the default.
const QRgb k_variant_colors[] = {0x4fd3ff, 0xffa630, 0xff5ad8};

} // namespace

QVector<FP_BLOCK_VARIANT> fp_block_variants(const QString& cell)
{
  QVector<FP_BLOCK_VARIANT> variants;
  for (const VARIANT_ROW& row : k_variants) {
    if (cell != QLatin1String(row.cell))
      continue;
    const QString tag = QLatin1String(row.tag);
    const int at = variants.size() % int(std::size(k_variant_colors));
    variants.append(
        {cell + QLatin1Char('_') + tag, tag, QLatin1String(row.description), QColor(k_variant_colors[at])});
  }
  return variants;
}
