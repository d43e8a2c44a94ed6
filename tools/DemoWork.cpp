#include "DemoWork.h"

#include "Database.h"
#include "DemoDice.h"
#include "DemoTable.h"

#include <QHash>

namespace {

struct WorkDay {
    int month;
    int day;
    const char16_t* task;
};

// The work day is the first Saturday from this day of the month on.
constexpr WorkDay workDays[] = {
    {2, 14, u"Schilfschnitt am Rohrdommelweiher"},
    {3, 8, u"Frühjahrsputz an allen Gewässern"},
    {3, 22, u"Besatz, Helfer am Ufer"},
    {4, 12, u"Stege am Großen Auensee gerichtet"},
    {5, 17, u"Wege und Parkplatz gemäht"},
    {6, 14, u"Aufbau Sommerfest"},
    {7, 19, u"Wasserpflanzen im Jugendteich entfernt"},
    {8, 23, u"Vereinsheim gestrichen"},
    {9, 20, u"Hegefischen, Aufbau und Waage"},
    {10, 11, u"Herbstputz, Müll gesammelt"},
    {10, 25, u"Besatz, Helfer am Ufer"},
    {11, 15, u"Fischtreppe am Mühlgraben geräumt"},
};
constexpr int springMonths = 4;

QDate saturdayFrom(int year, const WorkDay& workDay) {
    const QDate from(year, workDay.month, workDay.day);
    return from.addDays((Qt::Saturday - from.dayOfWeek() + 7) % 7);
}

/// Writes the bookings and adds up each member's hours of the year.
class Ledger {
public:
    Ledger(Database& database, DemoDice& dice)
        : m_rows(database, QStringLiteral("Arbeit"))
        , m_dice(dice) {}

    void beginYear(int year) {
        m_year = year;
        m_lastSums = std::exchange(m_sums, {});
    }

    void carryOver(const DemoMember& member, double balance) {
        const QString kind = balance > 0 ? QStringLiteral("Mehrleistungsübertrag aus Arbeitsjahr %1")
                                         : QStringLiteral("Minderleistungsübertrag aus Arbeitsjahr %1");
        book(member, QDate(m_year, 1, 1), balance, kind.arg(m_year - 1));
    }

    void workDay(const QVector<DemoMember>& members, const WorkDay& workDay) {
        const QDate date = saturdayFrom(m_year, workDay);
        for (const DemoMember& member : members) {
            const bool inClub = member.joined <= date && (!member.left.isValid() || member.left >= date);
            if (inClub && !member.exempt && comes(member)) {
                book(member, date, m_dice.between(4, 10) / 2.0, QString::fromUtf16(workDay.task));
            }
        }
    }

    double sumOfLastYear(const DemoMember& member) const { return m_lastSums.value(member.number); }

private:
    /// Depends on the member: some come often, some hardly ever.
    bool comes(const DemoMember& member) { return m_dice.chance(10 + member.number * 7 % 40); }

    void book(const DemoMember& member, QDate date, double hours, const QString& note) {
        m_rows.add({{u"KNr", member.number},
                    {u"Jahr", m_year},
                    {u"Datum", Date::fromQDate(date)},
                    {u"ArbStd", hours},
                    {u"Notiz", note}});
        m_sums[member.number] += hours;
    }

    DemoTable m_rows;
    DemoDice& m_dice;
    qint32 m_year = 0;
    QHash<qint32, double> m_sums;
    QHash<qint32, double> m_lastSums;
};

} // namespace

void addWork(Database& database, DemoDice& dice, const QVector<DemoMember>& members, int year, double duty) {
    Ledger ledger(database, dice);
    for (int workYear = year - 2; workYear <= year; ++workYear) {
        ledger.beginYear(workYear);
        for (const DemoMember& member : members) {
            if (member.exempt || member.joined.year() >= workYear) continue;
            // Of the years before the first one the file has balances, but no bookings.
            const double sum =
                workYear == year - 2 ? duty + dice.between(-12, 12) / 2.0 : ledger.sumOfLastYear(member);
            ledger.carryOver(member, sum - duty);
        }
        for (const WorkDay& workDay : workDays) {
            if (workYear < year || workDay.month <= springMonths) ledger.workDay(members, workDay);
        }
    }
}
