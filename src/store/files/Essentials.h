#pragma once

#include "Connection.h"

#include <QHash>

// Restores data without which the program can't work on a salvaged file.

/// Raises the counters of AutoNumbers so that no number is given out again: neither the last ones given out,
/// in `known` by table, nor any to which rows still refer.
void raiseCounters(cursors::Connection& file, const QHash<QString, qint64>& known);

/// Adds the row of `System` to an undamaged file that lacks it.
void restoreParameters(const QString& path, const QString& password);

/// Adds what is missing of: the row of `System`, the two system categories, a user who can log in and manage
/// users, and the row in `Mitglied` of each contact that is a member. Changes nothing that is there.
/// References to lost rows stay.
void restoreEssentials(cursors::Connection& file);
