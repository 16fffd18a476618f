#pragma once
// A generated design hierarchy for the viewer's hierarchy panel and the
// filter benchmark: a top cell, partitions, modules, and most rows leaf
// cells under the modules, in two columns (instance name, cell type).
#include <orq_tree_model.h>

void fill_design_hierarchy(ORQ_TREE_MODEL& model, int rows, unsigned seed);

// Adds a third column, "Area", to a filled hierarchy: each leaf's cell area
// and each parent's total below it, in square micrometres with two decimals.
void add_design_areas(ORQ_TREE_MODEL& model);

// The area of a leaf cell type in hundredths of a square micrometre; 0 for
// a type that is not a leaf cell.
int design_cell_area(const QString& cell);
