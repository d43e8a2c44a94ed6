#pragma once

#include "DemoPeople.h"

/// Adds the ledger of the years `year` - 2 to `year`: the carry-over rows as the change of year writes them,
/// and what was done on the club's work days; of the last year only those of the spring.
void addWork(Database& database, DemoDice& dice, const QVector<DemoMember>& members, int year, double duty);
