#include "DemoPeople.h"

#include "Database.h"
#include "DemoDice.h"
#include "DemoNames.h"
#include "DemoTable.h"

#include <QSet>
#include <algorithm>

namespace {

constexpr qint32 activeCategory = 1;
constexpr qint32 passiveCategory = 2;

struct Person {
    bool male = true;
    bool active = true;
    bool youth = false;
    bool exempt = false;
    bool paid = true;
    QString surname;
    QString givenName;
    QString note;
    QDate born;
    QDate joined;
    QDate left;
};

Value dateValue(QDate date) { return date.isValid() ? Date::fromQDate(date) : Date{}; }

QDate someDay(DemoDice& dice, int year) { return {year, dice.between(1, 12), dice.between(1, 28)}; }

/// Gives the person a name not used so far, since members are searched by name.
void name(Person& person, DemoDice& dice, QSet<QString>& taken) {
    QString whole;
    do {
        person.surname = QString::fromUtf16(DemoNames::surname(dice));
        person.givenName = QString::fromUtf16(DemoNames::givenName(dice, person.male, person.born.year()));
        whole = person.surname + u' ' + person.givenName;
    } while (taken.contains(whole));
    taken.insert(whole);
}

Person somebody(DemoDice& dice, int year, int youngest, int oldest) {
    Person person;
    person.male = dice.chance(87);
    person.born = someDay(dice, year - dice.between(youngest, oldest));
    person.paid = dice.chance(84);
    return person;
}

Person adult(DemoDice& dice, int year, bool active) {
    Person person = somebody(dice, year, 20, 84);
    const int age = year - person.born.year();
    const int yearsIn = std::min(dice.below(age - 12), dice.below(age - 12));
    // Members join at the turn of the year, or between the general meeting and the summer party.
    person.joined = QDate(year - std::min(yearsIn, 60), dice.chance(60) ? 1 : dice.between(3, 7), 1);
    person.active = active;
    person.exempt = !active || age >= 70;
    if (yearsIn >= 40) person.note = QStringLiteral("Ehrennadel in Gold");
    if (active && yearsIn >= 3 && dice.chance(6)) {
        person.left = QDate(year - dice.between(1, 2), 12, 31);
        person.note = QStringLiteral("zum Jahresende ausgetreten");
    }
    return person;
}

Person youngster(DemoDice& dice, int year) {
    Person person = somebody(dice, year, 10, 17);
    const int age = year - person.born.year();
    person.joined = QDate(year - dice.below(age - 8), dice.between(1, 6), 1);
    person.youth = true;
    person.exempt = age < 14;
    return person;
}

QVector<Person> everybody(DemoDice& dice, int year) {
    QVector<Person> people;
    for (int i = 0; i < 186; ++i) people.append(adult(dice, year, true));
    for (int i = 0; i < 44; ++i) people.append(adult(dice, year, false));
    for (int i = 0; i < 27; ++i) people.append(youngster(dice, year));
    std::stable_sort(people.begin(), people.end(),
                     [](const Person& one, const Person& other) { return one.joined < other.joined; });
    QSet<QString> taken;
    for (Person& person : people) name(person, dice, taken);
    return people;
}

/// Chooses the board: members of middle age, exempt from work hours.
void elect(QVector<Person>& people, int year) {
    auto candidate = people.begin();
    for (const char16_t* office : DemoNames::offices()) {
        candidate = std::find_if(candidate, people.end(), [year](const Person& person) {
            return person.active && !person.exempt && !person.left.isValid() &&
                   year - person.born.year() > 35;
        });
        if (candidate == people.end()) return;
        candidate->note = QString::fromUtf16(office);
        candidate->exempt = true;
        candidate->paid = true;
        std::advance(candidate, std::min<qsizetype>(9, people.end() - candidate));
    }
}

QString landline(DemoDice& dice) {
    return QStringLiteral("040 66969-%1").arg(dice.below(1000), 3, 10, QLatin1Char('0'));
}

QString mobile(DemoDice& dice) {
    const QString screen = dice.chance(50) ? QStringLiteral("0171 39200%1") : QStringLiteral("0176 040690%1");
    return screen.arg(dice.below(100), 2, 10, QLatin1Char('0'));
}

QString mailAddress(const Person& person) {
    QString address = person.givenName.toLower() + u'.' + person.surname.toLower();
    const std::pair<const char16_t*, const char16_t*> spellings[] = {
        {u"ä", u"ae"}, {u"ö", u"oe"}, {u"ü", u"ue"}, {u"ß", u"ss"}};
    for (const auto& [umlaut, letters] : spellings) {
        address.replace(QString::fromUtf16(umlaut), QString::fromUtf16(letters));
    }
    return address + QStringLiteral("@example.org");
}

QString houseNumber(DemoDice& dice) { return u' ' + QString::number(dice.between(1, 68)); }

QString streetAndNumber(DemoDice& dice) {
    return QString::fromUtf16(DemoNames::street(dice)) + houseNumber(dice);
}

struct Account {
    bool debited = false;
    QString bankCode;
    QString bank;
    QString number;
};

Account someAccount(DemoDice& dice) {
    if (!dice.chance(68)) return {};
    const DemoNames::Bank& bank = DemoNames::bank(dice);
    return {true, QString::fromUtf16(bank.code), QString::fromUtf16(bank.name),
            QString::number(1000000 + dice.below(9000000))};
}

QString ifChance(DemoDice& dice, int percent, const QString& text) {
    return dice.chance(percent) ? text : QString();
}

qint32 addContact(DemoTable& contacts, DemoDice& dice, const Person& person) {
    const DemoNames::Town& town = DemoNames::town(dice);
    const Account account = someAccount(dice);
    return contacts.addNumbered(QStringLiteral("KNr"),
                                {{u"KategoNr", person.active ? activeCategory : passiveCategory},
                                 {u"Anrede", person.youth ? u"" : (person.male ? u"Herr" : u"Frau")},
                                 {u"Nachname", person.surname},
                                 {u"Vorname", person.givenName},
                                 {u"Strasse", streetAndNumber(dice)},
                                 {u"PLZ", town.postCode},
                                 {u"Ort", town.name},
                                 {u"Tel1", ifChance(dice, 80, landline(dice))},
                                 {u"Tel2", ifChance(dice, 20, landline(dice))},
                                 {u"Mobil", ifChance(dice, 75, mobile(dice))},
                                 {u"Fax", ifChance(dice, 5, landline(dice))},
                                 {u"EMail", ifChance(dice, 60, mailAddress(person))},
                                 {u"Firma", u""},
                                 {u"GebDatum", dateValue(dice.chance(3) ? QDate() : person.born)},
                                 {u"Bankeinzug", account.debited},
                                 {u"BLZ", account.bankCode},
                                 {u"KreditInstitut", account.bank},
                                 {u"KontoNr", account.number},
                                 {u"Notiz", person.note}});
}

void addMembership(DemoTable& members, qint32 number, const Person& person) {
    members.add({{u"KNr", number},
                 {u"Geschlecht", person.male},
                 {u"Befreit", person.exempt},
                 {u"Bezahlt", person.paid},
                 {u"Eintritt", dateValue(person.joined)},
                 {u"Austritt", dateValue(person.left)},
                 {u"JG", person.youth}});
}

void addFirm(DemoTable& contacts, DemoDice& dice, qint32 category, const DemoNames::Firm& firm) {
    const DemoNames::Town& town = DemoNames::town(dice);
    const bool male = dice.chance(60);
    contacts.add({{u"KategoNr", category},
                  {u"Anrede", male ? u"Herr" : u"Frau"},
                  {u"Nachname", DemoNames::surname(dice)},
                  {u"Vorname", DemoNames::givenName(dice, male, 1975)},
                  {u"Strasse", streetAndNumber(dice)},
                  {u"PLZ", town.postCode},
                  {u"Ort", town.name},
                  {u"Tel1", u""},
                  {u"Tel2", landline(dice)},
                  {u"Mobil", ifChance(dice, 40, mobile(dice))},
                  {u"Fax", ifChance(dice, 60, landline(dice))},
                  {u"EMail", QStringLiteral("kontakt%1@example.org").arg(dice.between(10, 99))},
                  {u"Firma", firm.name},
                  {u"GebDatum", Date{}},
                  {u"Bankeinzug", false},
                  {u"BLZ", u""},
                  {u"KreditInstitut", u""},
                  {u"KontoNr", u""},
                  {u"Notiz", firm.note}});
}

} // namespace

QVector<DemoMember> addMembers(Database& database, DemoDice& dice, int year) {
    QVector<Person> people = everybody(dice, year);
    elect(people, year);
    DemoTable contacts(database, QStringLiteral("Kontakt"));
    DemoTable members(database, QStringLiteral("Mitglied"));
    QVector<DemoMember> added;
    for (const Person& person : people) {
        const qint32 number = addContact(contacts, dice, person);
        addMembership(members, number, person);
        added.append({number, person.exempt, person.joined, person.left});
    }
    return added;
}

void addFirms(Database& database, DemoDice& dice) {
    DemoTable categories(database, QStringLiteral("Katego"));
    DemoTable contacts(database, QStringLiteral("Kontakt"));
    QString category;
    qint32 number = 0;
    for (const DemoNames::Firm& firm : DemoNames::firms()) {
        if (category != firm.category) {
            category = QString::fromUtf16(firm.category);
            number = categories.addNumbered(QStringLiteral("KategoNr"), {{u"Kategorie", category}});
        }
        addFirm(contacts, dice, number, firm);
    }
}
