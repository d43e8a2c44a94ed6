#include "Schema.h"

#include <array>

namespace {

using enum FieldKind;

constexpr auto systemFields = std::to_array<FieldSpec>({
    {u"FJahr", Long},
    {u"JBeitrag", Number},
    {u"PflichtStd", Number},
    {u"Verein", Text},
    {u"Strasse", Text},
    {u"PLZ", Text},
    {u"Ort", Text},
    {u"Tel", Text},
});

constexpr auto fischFields = std::to_array<FieldSpec>({
    {u"FNr", AutoNumber},
    {u"FName", Text},
    {u"Notiz", Text},
});

constexpr auto gewaesserFields = std::to_array<FieldSpec>({
    {u"GNr", AutoNumber},
    {u"GName", Text},
    {u"Notiz", Text},
});

constexpr auto fangFields = std::to_array<FieldSpec>({
    {u"FangNr", AutoNumber},
    {u"FangJahr", Long},
    {u"FangMonat", Long},
    {u"FischNr", Long},
    {u"GNr", Long},
    {u"Notiz", Text},
    {u"Anzahl", Long},
    {u"Gewicht", Long},
});

constexpr auto besatzungFields = std::to_array<FieldSpec>({
    {u"BNr", AutoNumber},
    {u"BJahr", Long},
    {u"FNr", Long},
    {u"GNr", Long},
    {u"Zeit", Text},
    {u"Menge", Double},
});

constexpr auto kategoFields = std::to_array<FieldSpec>({
    {u"KategoNr", AutoNumber},
    {u"Kategorie", Text},
});

constexpr auto kontaktFields = std::to_array<FieldSpec>({
    {u"KNr", AutoNumber}, {u"KategoNr", Long},       {u"Anrede", Text},   {u"Nachname", Text},
    {u"Vorname", Text},   {u"Strasse", Text},        {u"PLZ", Text},      {u"Ort", Text},
    {u"Tel1", Text},      {u"Tel2", Text},           {u"Mobil", Text},    {u"Fax", Text},
    {u"EMail", Text},     {u"Firma", Text},          {u"GebDatum", Date}, {u"Bankeinzug", Boolean},
    {u"BLZ", Text},       {u"KreditInstitut", Text}, {u"KontoNr", Text},  {u"Notiz", Text},
});

constexpr auto mitgliedFields = std::to_array<FieldSpec>({
    {u"KNr", Long},
    {u"Geschlecht", Boolean},
    {u"Befreit", Boolean},
    {u"Bezahlt", Boolean},
    {u"Eintritt", Date},
    {u"Austritt", Date},
    {u"JG", Boolean},
});

constexpr auto arbeitFields = std::to_array<FieldSpec>({
    {u"ArbNr", AutoNumber},
    {u"KNr", Long},
    {u"Jahr", Long},
    {u"Datum", Date},
    {u"ArbStd", Double},
    {u"Notiz", Text},
});

constexpr auto benutzerFields = std::to_array<FieldSpec>({
    {u"BNr", AutoNumber},
    {u"Name", Text},
    {u"Passwort", Text},
    {u"GNr", Long},
});

constexpr auto gruppenFields = std::to_array<FieldSpec>({
    {u"GNr", AutoNumber},
    {u"GName", Text},
    {u"Fangbuch", Boolean},
    {u"Fangauswertung", Boolean},
    {u"KontUebers", Boolean},
    {u"KontListe", Boolean},
    {u"Kontakt", Boolean},
    {u"Arbeit", Boolean},
    {u"Besatz", Boolean},
    {u"Basis", Boolean},
    {u"Benutzerverwaltung", Boolean},
    {u"System", Boolean},
});

// The staging tables take the values of a grid: names and months as texts, amounts as numbers, which the
// report formats and adds up. Only the weight in the stocking plan, which is never added up, is taken as the
// text shown.
constexpr auto druckFanglisteFields = std::to_array<FieldSpec>({
    {u"FangNr", Long},
    {u"Name", Text},
    {u"Gewässer", Text},
    {u"Monat", Text},
    {u"FangJahr", Long},
    {u"Anzahl", Long},
    {u"Gewicht", Long},
});

// The birthday is a text: an unknown one is empty, as in the grid.
constexpr auto druckMitglListFields = std::to_array<FieldSpec>({
    {u"KontaktNr", Long},
    {u"Nachname", Text},
    {u"Vorname", Text},
    {u"Strasse", Text},
    {u"PLZ", Text},
    {u"Ort", Text},
    {u"Tel", Text},
    {u"GebDatum", Text},
});

constexpr auto druckArbStdFields = std::to_array<FieldSpec>({
    {u"KontaktNr", Long},
    {u"Nachname", Text},
    {u"Vorname", Text},
    {u"pflstd", Double},
    {u"GelStd", Double},
    {u"SollHaben", Double},
});

constexpr auto druckArbListeFields = std::to_array<FieldSpec>({
    {u"ArbNr", Long},
    {u"GelStd", Double},
    {u"Datum", Date},
});

constexpr auto druckBesatzlisteFields = std::to_array<FieldSpec>({
    {u"BNr", Long},
    {u"FName", Text},
    {u"GName", Text},
    {u"Zeit", Text},
    {u"Menge", Text},
});

constexpr auto tables = std::to_array<TableSpec>({
    {u"System", systemFields, false},
    {u"Fisch", fischFields, true},
    {u"Gewaesser", gewaesserFields, true},
    {u"Fang", fangFields, true},
    {u"Besatzung", besatzungFields, true},
    {u"Katego", kategoFields, true},
    {u"Kontakt", kontaktFields, true},
    {u"Mitglied", mitgliedFields, true},
    {u"Arbeit", arbeitFields, true},
    {u"Gruppen", gruppenFields, true},
    {u"Benutzer", benutzerFields, true},
    {u"Druck_Fangliste", druckFanglisteFields, false},
    {u"Druck_MitglList", druckMitglListFields, false},
    {u"Druck_ArbStd", druckArbStdFields, false},
    {u"Druck_ArbListe", druckArbListeFields, false},
    {u"Druck_Besatzliste", druckBesatzlisteFields, false},
});

// Indexes for frequent searches. Joins start from the catch or the contact and find other tables' rows by
// their primary keys, so the fields that hold those numbers need no index.
constexpr auto indexes = std::to_array<const char*>({
    R"("FangJahrMonat" ON "Fang"("FangJahr", "FangMonat"))",
    R"("ArbeitMitgliedJahr" ON "Arbeit"("KNr", "Jahr"))",
    R"("ArbeitJahr" ON "Arbeit"("Jahr"))",
    R"("ArbeitDatum" ON "Arbeit"("Datum"))",
    R"("KontaktKatego" ON "Kontakt"("KategoNr"))",
    R"("BesatzungJahr" ON "Besatzung"("BJahr"))",
    R"("BenutzerGruppe" ON "Benutzer"("GNr"))",
});

QByteArray columnType(FieldKind kind) {
    switch (kind) {
    case AutoNumber:
        return "INTEGER PRIMARY KEY AUTOINCREMENT";
    case Long:
    case Number:
        return "INTEGER";
    case Boolean:
        return "INTEGER NOT NULL DEFAULT 0";
    case Double:
    case Date:
        return "REAL";
    default:
        return "TEXT";
    }
}

} // namespace

QByteArray columnDefinition(const TableSpec& table, const FieldSpec& field) {
    QByteArray definition = quotedName(field.name) + ' ' + columnType(field.kind);
    const bool isKey = table.keyed && &field == &table.fields.front();
    if (isKey && field.kind == Long) definition += " PRIMARY KEY";
    // The only enforced relation, and in this direction only: deleting a group deletes its users.
    if (table.name == u"Benutzer" && field.name == u"GNr")
        definition += " REFERENCES \"Gruppen\"(\"GNr\") ON DELETE CASCADE";
    return definition;
}

QByteArray tableDefinition(const TableSpec& table) {
    QByteArrayList columns;
    for (const FieldSpec& field : table.fields) columns += columnDefinition(table, field);
    return "CREATE TABLE " + quotedName(table.name) + " (" + columns.join(", ") + ')';
}

int TableSpec::fieldIndex(QStringView fieldName) const {
    // Called for each cell of a printed list, so names of another length are not compared.
    for (size_t i = 0; i < fields.size(); ++i) {
        const QStringView own = fields[i].name;
        const bool same = own.size() == fieldName.size() && own.compare(fieldName, Qt::CaseInsensitive) == 0;
        if (same) return static_cast<int>(i);
    }
    return -1;
}

std::span<const TableSpec> schemaTables() { return tables; }

const TableSpec* findTable(QStringView name) {
    for (const TableSpec& table : tables)
        if (table.name.compare(name, Qt::CaseInsensitive) == 0) return &table;
    return nullptr;
}

QList<QByteArray> indexStatements() {
    QList<QByteArray> statements;
    for (const QByteArray index : indexes) statements += "CREATE INDEX IF NOT EXISTS " + index;
    return statements;
}

QList<QByteArray> schemaStatements() {
    QList<QByteArray> statements;
    for (const TableSpec& table : tables) statements += tableDefinition(table);
    return statements + indexStatements();
}

QByteArray quotedName(QStringView name) { return '"' + name.toUtf8().replace('"', "\"\"") + '"'; }
