#pragma once

#include <QString>

namespace cursors {
class Connection;
}

/// Makes the file that is delivered with the program: all tables, the two system categories, the group
/// "Administratoren" with all rights, the user "Admin" with the empty password in it, and the one row of
/// `System` with the given year, fee and hours 0. Error 3204 if the file exists, 3044 if its folder doesn't.
void createDatabase(const QString& path, const QString& password, int year);

// The same rows one by one, for a file that has lost them. Categories and group are left alone if they are
// there.

void seedSystem(cursors::Connection& file, int year);
void seedCategories(cursors::Connection& file);
void seedGroup(cursors::Connection& file);
/// In the first group that may manage the users.
void seedUser(cursors::Connection& file);
