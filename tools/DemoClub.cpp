#include "DemoClub.h"

#include "Database.h"
#include "DemoDice.h"
#include "DemoTable.h"
#include "DemoWaters.h"
#include "DemoWork.h"

namespace {

constexpr qint32 fee = 65;
constexpr qint32 duty = 12;

/// Writes the club's parameters. The returned cursor has written first: keep it open until the end, since
/// closing it commits the whole club.
Recordset describeClub(Database& database) {
    Recordset club = database.OpenRecordset(QStringLiteral("System"), dbOpenTable);
    club.Edit();
    club.Collect(QStringLiteral("JBeitrag"), fee);
    club.Collect(QStringLiteral("PflichtStd"), duty);
    club.Collect(QStringLiteral("Verein"), u"Angelverein Stiller Haken Auenbrück 1953 e. V.");
    club.Collect(QStringLiteral("Strasse"), u"Am Bootshaus 3");
    club.Collect(QStringLiteral("PLZ"), u"00815");
    club.Collect(QStringLiteral("Ort"), u"Auenbrück");
    club.Collect(QStringLiteral("Tel"), u"040 66969-000");
    club.Update();
    return club;
}

struct Group {
    const char16_t* name;
    const char16_t* user;
    bool catches; ///< Fangbuch and Fangauswertung
    bool people;  ///< KontUebers, KontListe and Kontakt
    bool work;
    bool stocking; ///< Besatz and Basis
};

constexpr Group groups[] = {
    {u"Gewässerwarte", u"Gewässerwart", true, false, false, true},
    {u"Kassenwarte", u"Kassenwart", false, true, true, false},
    {u"Fanglistenerfasser", u"Erfasser", true, false, false, false},
};

void addUsers(Database& database) {
    DemoTable groupTable(database, QStringLiteral("Gruppen"));
    DemoTable users(database, QStringLiteral("Benutzer"));
    for (const Group& group : groups) {
        const qint32 number =
            groupTable.addNumbered(QStringLiteral("GNr"), {{u"GName", group.name},
                                                           {u"Fangbuch", group.catches},
                                                           {u"Fangauswertung", group.catches},
                                                           {u"KontUebers", group.people},
                                                           {u"KontListe", group.people},
                                                           {u"Kontakt", group.people},
                                                           {u"Arbeit", group.work},
                                                           {u"Besatz", group.stocking},
                                                           {u"Basis", group.stocking},
                                                           {u"Benutzerverwaltung", false},
                                                           {u"System", false}});
        users.add({{u"Name", group.user}, {u"Passwort", u""}, {u"GNr", number}});
    }
}

} // namespace

void fillDemoClub(Database& database, int year) {
    DemoDice dice(1953);
    Recordset club = describeClub(database);
    addUsers(database);
    const DemoWaters numbers = addFishAndWaters(database);
    const QVector<DemoMember> members = addMembers(database, dice, year);
    addFirms(database, dice);
    for (int past = year - 2; past <= year; ++past) {
        addStocking(database, dice, numbers, past);
        addCatches(database, dice, numbers, past);
    }
    addWork(database, dice, members, year, duty);
    club.Close();
}
