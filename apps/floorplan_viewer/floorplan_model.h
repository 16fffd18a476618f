#pragma once
// A generated floor plan: a die with an I/O ring and placed blocks, the same
// for the same seed, so screenshots can be compared from run to run.
#include <QColor>
#include <QRect>
#include <QString>
#include <QVector>

struct FLOORPLAN_BLOCK {
  QString name;
  QString cell;
  QRect rect; // logical units (nanometres / 1000)
  QColor fill;
};

struct FLOORPLAN {
  QRect die;
  QRect core;
  QVector<QRect> io_pads;
  QVector<FLOORPLAN_BLOCK> blocks;
};

FLOORPLAN make_floorplan(unsigned seed, int block_count);
