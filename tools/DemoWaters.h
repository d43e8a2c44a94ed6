#pragma once

#include <QVector>

class Database;
class DemoDice;

/// The numbers that the store gave the fish and the waters, in the order of the lists in DemoWaters.cpp.
struct DemoWaters {
    QVector<qint32> fish;
    QVector<qint32> waters;
};

DemoWaters addFishAndWaters(Database& database);
void addStocking(Database& database, DemoDice& dice, const DemoWaters& numbers, int year);
void addCatches(Database& database, DemoDice& dice, const DemoWaters& numbers, int year);
