#pragma once
// A generated design hierarchy for the viewer's hierarchy panel and the
// filter benchmark: a top cell, partitions, modules, and most rows leaf
// cells under the modules, in two columns (instance name, cell type).
#include <orq_tree_model.h>

void fill_design_hierarchy(ORQ_TREE_MODEL& model, int rows, unsigned seed);
