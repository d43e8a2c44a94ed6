#include "DemoWaters.h"

#include "Database.h"
#include "DemoDice.h"
#include "DemoTable.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace {

enum Habitat : unsigned { Still = 1, Flowing = 2, Anywhere = 3 };

struct Fish {
    const char16_t* name;
    const char16_t* note;
    unsigned habitat;
    int lightest; ///< grams
    int heaviest;
    int atOnce; ///< most fish in one entry
    int fromMonth;
    int toMonth;
    int frequency; ///< share among the catches
};

// Seasons are without the close seasons; fish caught all year have 1 to 12.
constexpr Fish fishes[] = {
    {u"Karpfen", u"Entnahmefenster 40 bis 65 cm", Still, 1400, 9800, 2, 3, 11, 14},
    {u"Schleie", u"Mindestmaß 28 cm", Still, 450, 1900, 3, 5, 10, 9},
    {u"Hecht", u"Schonzeit 15.02. bis 30.04., Mindestmaß 55 cm", Anywhere, 1300, 7600, 1, 5, 12, 10},
    {u"Zander", u"Schonzeit 15.03. bis 31.05., Mindestmaß 50 cm", Still, 1200, 5400, 2, 6, 12, 8},
    {u"Barsch", u"", Anywhere, 120, 980, 8, 1, 12, 13},
    {u"Aal", u"Mindestmaß 50 cm", Anywhere, 350, 1400, 3, 4, 10, 8},
    {u"Wels", u"kein Schonmaß", Still, 3500, 28000, 1, 6, 9, 2},
    {u"Brasse", u"", Anywhere, 600, 2900, 6, 3, 11, 11},
    {u"Rotauge", u"", Anywhere, 80, 420, 15, 1, 12, 14},
    {u"Rotfeder", u"", Still, 90, 450, 10, 4, 10, 6},
    {u"Güster", u"", Anywhere, 100, 480, 8, 3, 11, 3},
    {u"Bachforelle", u"Schonzeit 15.10. bis 15.03., nur Kunstköder", Flowing, 280, 1500, 3, 4, 9, 7},
    {u"Regenbogenforelle", u"", Anywhere, 300, 1700, 4, 1, 12, 7},
    {u"Döbel", u"", Flowing, 350, 2400, 3, 1, 12, 5},
    {u"Barbe", u"Schonzeit 01.05. bis 15.06.", Flowing, 900, 3800, 2, 7, 11, 3},
    {u"Quappe", u"Beifang im Winter melden", Flowing, 300, 1300, 2, 1, 2, 1},
    {u"Giebel", u"", Still, 250, 1100, 5, 4, 10, 3},
    {u"Karausche", u"bitte zurücksetzen und melden", Still, 200, 900, 3, 5, 9, 1},
};

struct Water {
    const char16_t* name;
    const char16_t* note;
    unsigned habitat;
};

constexpr Water waters[] = {
    {u"Großer Auensee", u"14,2 ha, Nachtangeln erlaubt", Still},
    {u"Kiesgrube Nord", u"Befahren mit Booten verboten", Still},
    {u"Rohrdommelweiher", u"Schilfgürtel am Nordufer ist Schonbezirk", Still},
    {u"Ziegeleiteich", u"", Still},
    {u"Jugendteich", u"nur für Mitglieder der Jugendgruppe und ihre Betreuer", Still},
    {u"Altarm Weidenwinkel", u"Zufahrt über den Wirtschaftsweg", Still},
    {u"Leise (Oberlauf)", u"Fliegenstrecke bis zur Steinbrücke", Flowing},
    {u"Leise (Unterlauf)", u"", Flowing},
    {u"Mühlgraben", u"Wehr und Fischtreppe: 50 m Abstand", Flowing},
};

struct Stocking {
    int fish;
    int water;
    const char16_t* time;
    int kilograms;
};

// The plan of a usual year; the quantities change a little from year to year.
constexpr Stocking plan[] = {
    {0, 0, u"Ende März", 180},
    {0, 1, u"Ende März", 120},
    {0, 4, u"April", 40},
    {1, 2, u"April", 45},
    {1, 3, u"April", 30},
    {2, 5, u"Mai (vorgestreckt)", 12},
    {3, 0, u"Oktober", 35},
    {3, 1, u"Oktober", 25},
    {5, 7, u"Mai (Farmaale)", 15},
    {11, 6, u"15.03. bis 30.03.", 60},
    {11, 8, u"15.03. bis 30.03.", 35},
    {12, 4, u"vor dem Jugendfischen", 50},
    {12, 3, u"Herbst", 80},
    {8, 2, u"November", 55},
    {13, 7, u"Herbst", 20},
};

// Entries a year by month, about 830 together.
constexpr int catchesOfMonth[] = {18, 16, 30, 60, 98, 116, 114, 112, 104, 86, 52, 26};

constexpr const char16_t* catchNotes[] = {
    u"beim Nachtansitz", u"auf Köderfisch",   u"auf Mais und Boilie", u"auf Gummifisch vom Ufer",
    u"Hegefischen",      u"Königsfischen",    u"zurückgesetzt",       u"auf Nymphe",
    u"auf Tauwurm",      u"Wasser sehr trüb", u"Gemeinschaftsangeln",
};

QVector<int> inSeason(int month) {
    QVector<int> lots;
    for (int index = 0; index < static_cast<int>(std::size(fishes)); ++index) {
        const Fish& fish = fishes[index];
        if (month >= fish.fromMonth && month <= fish.toMonth)
            lots.append(QVector<int>(fish.frequency, index));
    }
    return lots;
}

int waterFor(DemoDice& dice, const Fish& fish) {
    for (;;) {
        const int index = dice.below(static_cast<int>(std::size(waters)));
        if ((waters[index].habitat & fish.habitat) != 0) return index;
    }
}

qint32 weightOf(DemoDice& dice, const Fish& fish, int count) {
    qint32 grams = 0;
    for (int i = 0; i < count; ++i) {
        // The smaller of two random numbers, since big fish are rare.
        const int range = fish.heaviest - fish.lightest;
        grams += fish.lightest + std::min(dice.below(range), dice.below(range));
    }
    return grams / 10 * 10;
}

void addCatch(DemoTable& catches, DemoDice& dice, const DemoWaters& numbers, int year, int month, int index) {
    const Fish& fish = fishes[index];
    const int count = 1 + std::min(dice.below(fish.atOnce), dice.below(fish.atOnce));
    const Value note = dice.chance(12) ? dice.pick(catchNotes) : u"";
    catches.add({{u"FangJahr", year},
                 {u"FangMonat", month},
                 {u"FischNr", numbers.fish[index]},
                 {u"GNr", numbers.waters[waterFor(dice, fish)]},
                 {u"Notiz", note},
                 {u"Anzahl", count},
                 {u"Gewicht", weightOf(dice, fish, count)}});
}

} // namespace

DemoWaters addFishAndWaters(Database& database) {
    DemoWaters numbers;
    DemoTable fishTable(database, QStringLiteral("Fisch"));
    for (const Fish& fish : fishes) {
        numbers.fish.append(
            fishTable.addNumbered(QStringLiteral("FNr"), {{u"FName", fish.name}, {u"Notiz", fish.note}}));
    }
    DemoTable waterTable(database, QStringLiteral("Gewaesser"));
    for (const Water& water : waters) {
        numbers.waters.append(
            waterTable.addNumbered(QStringLiteral("GNr"), {{u"GName", water.name}, {u"Notiz", water.note}}));
    }
    return numbers;
}

void addStocking(Database& database, DemoDice& dice, const DemoWaters& numbers, int year) {
    DemoTable table(database, QStringLiteral("Besatzung"));
    for (const Stocking& stocking : plan) {
        const double quantity = stocking.kilograms * dice.between(16, 24) / 20.0;
        table.add({{u"BJahr", year},
                   {u"FNr", numbers.fish[stocking.fish]},
                   {u"GNr", numbers.waters[stocking.water]},
                   {u"Zeit", stocking.time},
                   {u"Menge", std::round(quantity * 2) / 2}});
    }
}

void addCatches(Database& database, DemoDice& dice, const DemoWaters& numbers, int year) {
    DemoTable catches(database, QStringLiteral("Fang"));
    for (int month = 1; month <= 12; ++month) {
        const QVector<int> lots = inSeason(month);
        const int usual = catchesOfMonth[month - 1];
        const int entries = dice.between(usual * 9 / 10, usual * 11 / 10);
        for (int i = 0; i < entries; ++i) {
            addCatch(catches, dice, numbers, year, month, lots[dice.below(static_cast<int>(lots.size()))]);
        }
    }
}
