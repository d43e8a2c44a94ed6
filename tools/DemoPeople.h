#pragma once

#include <QDate>
#include <QVector>

class Database;
class DemoDice;

/// The part of a member that addWork() needs.
struct DemoMember {
    qint32 number = 0;
    bool exempt = false;
    QDate joined;
    QDate left; ///< invalid while the member is in the club
};

/// Adds the members, those with the longest membership first.
QVector<DemoMember> addMembers(Database& database, DemoDice& dice, int year);
/// Adds the contacts of the other categories.
void addFirms(Database& database, DemoDice& dice);
