#pragma once

#include <QVector>

class Database;
class DemoDice;

/// Numbers of the fish and of the waters, in the order of the lists they were made from.
struct DemoWaters {
    QVector<qint32> fish;
    QVector<qint32> waters;
};

DemoWaters addFishAndWaters(Database& database);
void addStocking(Database& database, DemoDice& dice, const DemoWaters& numbers, int year);
void addCatches(Database& database, DemoDice& dice, const DemoWaters& numbers, int year);
