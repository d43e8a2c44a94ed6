#pragma once

#include <QStringList>

namespace cursors {
class Connection;
}

/// Makes the file that is delivered with the program: all tables, the two system categories, the group
/// "Administratoren" with all rights, the user "Admin" with the empty password in it, and the one row of
/// `System` with the given year, fee and hours 0. Error 3204 if the file exists, 3044 if its folder doesn't.
void createDatabase(const QString& path, const QString& password, int year);

/// Adds to a file what it lacks of the tables, fields and indexes that the program knows, so that a program
/// with a new table can open it. The file is first copied into the folder `keptIn` as "uw01 vor Ergänzung"
/// and the time. No row is changed; a new field is empty in all of them, a new Boolean false. Gives the names
/// of what was added, such as "Boote" and "Gruppen.Boote". It is all added or nothing. Errors: 3024 without
/// the file, 3031 for another password, 3260 while another process uses the file, 75 if it can't be copied.
QStringList completeDatabase(const QString& path, const QString& password, const QString& keptIn);

// The same rows one by one, for a file that has lost them. Categories and group are left alone if they are
// there.

void seedSystem(cursors::Connection& file, int year);
void seedCategories(cursors::Connection& file);
void seedGroup(cursors::Connection& file);
/// In the first group that may manage the users.
void seedUser(cursors::Connection& file);
