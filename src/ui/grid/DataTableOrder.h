#pragma once

#include "DataTableColumn.h"
#include "DataTableRows.h"

/// The rows in the order of one column: for each place the row that comes there. Empty cells come before
/// numbers and dates, these before texts. Equal rows keep their order in either direction.
std::vector<int> orderedRows(const DataTableRows& rows, int column, const GridColumn& kind,
                             Qt::SortOrder order);
