#pragma once

#include <QStringList>

namespace cursors {
class Connection;
}

/// Makes the file delivered with the program: all tables; the two system categories; the group
/// "Administratoren" with all rights and its user "Admin" with the empty password; the one row of `System`
/// with the given year, fee and hours 0. Error 3204 if the file exists, 3044 if its folder does not.
void createDatabase(const QString& path, const QString& password, int year);

/// Adds missing tables, fields and indexes to a file, so that a newer program can open it. First copies the
/// file into the folder `keptIn` as "uw01 vor Ergänzung" and the time. Changes no rows; a new field is Null
/// in all of them, a new Boolean False. Adds everything or nothing. Returns the names of the added tables and
/// fields, such as "Boote" and "Gruppen.Boote". Errors: 3024 if there is no file, 3031 for a wrong password,
/// 3260 if another process uses the file, 75 if it can't be copied.
QStringList completeDatabase(const QString& path, const QString& password, const QString& keptIn);

// The rows of a new file one by one, for a file that has lost them. Existing categories and groups are left
// alone.

void seedSystem(cursors::Connection& file, int year);
void seedCategories(cursors::Connection& file);
void seedGroup(cursors::Connection& file);
/// Adds the user "Admin" with the empty password to the first group that may manage users, or moves it there.
void seedUser(cursors::Connection& file);
