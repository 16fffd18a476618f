#pragma once
// The implementations a macro may be built from: a memory in a dense or a
// fast flavour, a PHY of one channel width or another, and so on. Fences
// have none. Which one each macro of a plan uses is the user's choice in the
// Block Variants report; the plan draws it on the macro.
#include <QColor>
#include <QString>
#include <QVector>

struct FP_BLOCK_VARIANT {
  QString name;        // the implementation's cell, "SRAM_64K_HS"
  QString tag;         // what the plan writes on the macro, "HS"
  QString description; // one line for the report
  QColor color;        // the outline the plan draws round the macro
};

// In the order the report lists them; the first is what a new plan uses.
QVector<FP_BLOCK_VARIANT> fp_block_variants(const QString& cell);
