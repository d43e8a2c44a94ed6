#pragma once

#include <QDate>
#include <QVector>

class Database;
class DemoDice;

/// What the work hours need to know of a member.
struct DemoMember {
    qint32 number = 0;
    bool exempt = false;
    QDate joined;
    QDate left; ///< invalid while he is in the club
};

/// Adds the members, the longest-standing first, and the contacts of the other categories.
QVector<DemoMember> addMembers(Database& database, DemoDice& dice, int year);
void addFirms(Database& database, DemoDice& dice);
