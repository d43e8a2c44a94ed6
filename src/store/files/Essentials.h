#pragma once

#include "Connection.h"

#include <QHash>

// What a file needs, beyond the rows that could be saved, for the program to work on it.

/// Sees to it that no number is given out again: neither one that was given out last, as far as that is known
/// by the tables' names, nor one that rows still refer to.
void raiseCounters(cursors::Connection& file, const QHash<QString, qint64>& known);

/// Puts the record of the parameters back into a file that is whole but lacks it.
void restoreParameters(const QString& path, const QString& password);

/// The parameters, the two system categories, somebody who can log in, and the member's row of each contact
/// that is a member. Nothing that is there is changed. What refers to rows that are gone stays.
void restoreEssentials(cursors::Connection& file);
