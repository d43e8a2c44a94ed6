#pragma once

#include "DemoPeople.h"

/// Adds the ledger of the years `year` - 2 to `year`: the carry-over rows as the change of the year writes
/// them, and the hours of the club's work days, in the last year those of the spring only. `duty` is a
/// member's hours a year.
void addWork(Database& database, DemoDice& dice, const QVector<DemoMember>& members, int year, double duty);
