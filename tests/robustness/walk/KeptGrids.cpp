#include "KeptGrids.h"

#include "Arbeit.h"
#include "Clock.h"
#include "ComboBox.h"
#include "ControlText.h"
#include "Conversions.h"
#include "DataTable.h"
#include "Fangbuch.h"
#include "GridCells.h"
#include "KontaktUebers.h"
#include "PlayedProgram.h"
#include "RuntimeError.h"
#include "Screens.h"
#include "Session.h"
#include "modArbeit.h"
#include "modBesatzList.h"
#include "modFangbuch.h"
#include "modKontakt.h"

#include <cmath>
#include <optional>

/// A part of a screen that changes records: the label with the record's number and the grid whose row is
/// written too. `text` and the members after it are set only if other grids show the record's name.
struct KeptGrids::Mask {
    QString screen;
    QString number;
    QString grid;
    QString text{};
    QString table{};
    QString key{};
    QString name{};
};

namespace {

const QString catches = u"Fangbuch.tblFList"_qs;
const QString overview = u"KontaktUebers.tblKUebers"_qs;
const QString stocking = u"Besatzung.tblBList"_qs;
const QString users = u"Benutzer.tblBenutzer"_qs;
const QString hours = u"Arbeit.tblArbStd"_qs;
const QString parameters = u"System.tblSystem"_qs;

const KeptGrids::Mask masks[] = {{u"Fangbuch"_qs, u"Fangbuch.lblFNr"_qs, catches},
                                 {u"Basis"_qs, u"Basis.lblFNr"_qs, u"Basis.tblFBasis"_qs, u"Basis.txtFArt"_qs,
                                  u"Fisch"_qs, u"FNr"_qs, u"FName"_qs},
                                 {u"Basis"_qs, u"Basis.lblGNr"_qs, u"Basis.tblGBasis"_qs,
                                  u"Basis.txtGName"_qs, u"Gewaesser"_qs, u"GNr"_qs, u"GName"_qs},
                                 {u"Katego"_qs, u"Katego.lblKategoNr"_qs, u"Katego.tblKatego"_qs},
                                 {u"Benutzer"_qs, u"Benutzer.lblBNr"_qs, users},
                                 {u"Benutzer"_qs, u"Benutzer.lblGNr"_qs, u"Benutzer.tblZugriff"_qs,
                                  u"Benutzer.txtGruppe"_qs, u"Gruppen"_qs, u"GNr"_qs, u"GName"_qs},
                                 {u"Besatzung"_qs, u"Besatzung.lblBNr"_qs, stocking},
                                 {u"Arbeit"_qs, u"Arbeit.lblArbNr"_qs, hours}};

/// In EDIT, a screen writes the row opened last, wherever that was: on its other page, on another screen or
/// before a change of the year.
bool writesOtherRow(const KeptGrids::Mask& mask, const QString& number) {
    const int row = session().AktZeile;
    if (session().Modus != u"EDIT"_qs) return false;
    return row >= GridCells::count(mask.grid) ||
           GridCells::cellText(mask.grid + u"[%1,0]"_qs.arg(row)) != number;
}

/// A number with `decimals` decimals, typed or formatted. Other texts stay.
QString rounded(const QString& text, int decimals) {
    try {
        const double scale = std::pow(10, decimals);
        return QString::number(std::nearbyint(CDbl(text) * scale) / scale, 'f', decimals);
    } catch (const RuntimeError&) {
        return text;
    }
}

/// A row as a fresh load shows it, with permitted differences removed.
QString levelled(const QString& grid, QStringList row) {
    if (grid == catches) {
        row[3].clear();              // The month's name comes from the screen, which may not have caught up.
        row[4] = rounded(row[4], 0); // A changed row shows its numbers as typed.
        row[5] = rounded(row[5], 0);
    }
    if (grid == hours) row[2] = rounded(row[2], 2);
    if (grid == parameters) row[1] = rounded(row[1], 0);
    if (grid == users) row[3] = row[3].toLower(); // The group may have been typed.
    if (grid == overview) {
        row[1].clear();                      // After the start all categories are closed.
        row[2].replace(u"  ["_qs, u" ["_qs); // One space after a new contact, else two.
    }
    return row.join(u'|');
}

QStringList rowsOf(const QString& grid) {
    QStringList rows;
    for (const QString& line : GridCells::rows(grid)) {
        const QStringList row = line.split(u'|');
        // A catch of a deleted fish or water is first listed without the name, later not at all.
        const bool listed = grid != catches || (!row[1].isEmpty() && !row[2].isEmpty());
        if (listed) rows.append(levelled(grid, row));
    }
    rows.sort();
    return rows;
}

/// -1 if there is none.
int rowOfCategory(const QString& number) {
    const QStringList rows = GridCells::rows(overview);
    for (int row = 0; row < int(rows.size()); ++row)
        if (rows[row].startsWith(number + u'|')) return row;
    return -1;
}

/// The contacts of an opened category. Empty if it has the placeholder: a new contact puts that in the
/// contacts' place if the last press in the overview has closed a category.
std::optional<QStringList> contactsOf(const QString& category) {
    QStringList contacts;
    const int row = rowOfCategory(category);
    if (row < 0 || !screen<KontaktUebers>().tblKUebers->hasChild(row)) return contacts;
    for (const QString& line : GridCells::rows(overview + u"[%1]"_qs.arg(row))) {
        QStringList cells = line.split(u'|');
        if (cells[0].isEmpty()) return std::nullopt;
        cells[1].clear(); // The picture appears at the next opening.
        cells[8].clear(); // Day and month are swapped then.
        contacts.append(cells.join(u'|'));
    }
    contacts.sort();
    return contacts;
}

} // namespace

QString KeptGrids::value(const QString& query) const { return m_program.file().query(query).value(0); }

QString KeptGrids::nameOf(const Mask& mask, const QString& number) const {
    return value(u"SELECT %1 FROM %2 WHERE %3 = '%4'"_qs.arg(mask.name, mask.table, mask.key, number));
}

KeptGrids::Moment KeptGrids::before(const Screen* front) const {
    Moment moment;
    if (!front) return moment;
    moment.front = front->objectName();
    for (const Mask& mask : masks) {
        if (mask.screen != moment.front) continue;
        const QString number = ControlText::shown(mask.number);
        if (ControlText::isVisible(mask.number)) {
            moment.mask = &mask;
            moment.number = number;
            moment.otherRow = writesOtherRow(mask, number);
        } else if (!number.isEmpty()) {
            moment.otherPage = true;
        }
    }
    if (moment.mask && !moment.mask->text.isEmpty()) {
        moment.name = nameOf(*moment.mask, moment.number);
        moment.typed = ControlText::shown(moment.mask->text);
    }
    if (moment.front == u"Kontakt"_qs) {
        const QString number = ControlText::shown(u"Kontakt.lblKNr"_qs);
        const QString category =
            value(u"SELECT Kategorie FROM Katego NATURAL JOIN Kontakt WHERE KNr = '%1'"_qs.arg(number));
        if (category != ControlText::shown(u"Kontakt.cboKatego"_qs)) moment.movedContact = number;
    }
    return moment;
}

void KeptGrids::after(const Moment& moment, bool failed) {
    if (moment.front.isEmpty()) return;
    if (failed) leaveOutAfterError(moment.front);
    const QString version = value(u"PRAGMA data_version"_qs);
    if (std::exchange(m_version, version) == version) return;
    if (moment.otherRow) m_leftOut.insert(moment.mask->grid);
    leaveOutNamesakes();
    leaveOutAfterChange(moment);
}

/// A routine continues after an error: it may write the row without the record.
void KeptGrids::leaveOutAfterError(const QString& front) {
    for (const Mask& mask : masks)
        if (mask.screen == front) m_leftOut.insert(mask.grid);
    if (front == u"Basis"_qs) m_leftOut.insert(catches);
    if (front == u"Kontakt"_qs || front == u"Katego"_qs) m_leftOut.insert(overview);
}

/// Lists and rows are found by name. With two of one name, one is used for both or none is found.
void KeptGrids::leaveOutNamesakes() {
    const QString twice = u"SELECT 1 FROM %1 GROUP BY %2 COLLATE NOCASE HAVING COUNT(*) > 1"_qs;
    const std::pair<QString, QString> lists[] = {
        {twice.arg(u"Fisch"_qs, u"FName"_qs), catches},
        {twice.arg(u"Gewaesser"_qs, u"GName"_qs), catches},
        {twice.arg(u"Gruppen"_qs, u"GName"_qs), users},
        {twice.arg(u"Katego"_qs, u"Kategorie"_qs), overview},
        // A category's count is read from within the first brackets.
        {u"SELECT 1 FROM Katego WHERE instr(Kategorie, '[')"_qs, overview}};
    for (const auto& [query, grid] : lists)
        if (!value(query).isEmpty()) m_leftOut.insert(grid);
}

void KeptGrids::leaveOutAfterChange(const Moment& moment) {
    if (!moment.name.isEmpty()) {
        const QString now = nameOf(*moment.mask, moment.number);
        const bool group = moment.mask->table == u"Gruppen"_qs;
        // Rows are found by the text on the screen.
        const bool gone = now.isEmpty() && moment.typed != moment.name;
        // The old name is that of the record opened last, on either page. Users keep their group's old name.
        const bool renamed = !now.isEmpty() && now != moment.name && (moment.otherPage || group);
        if (gone || renamed) m_leftOut.insert(group ? users : catches);
        // The stocking plan shows old names until its screen comes to the front.
        if (!group && now != moment.name) m_leftOut.insert(stocking);
    }
    // A deleted contact is removed from the category chosen on its screen.
    if (!moment.movedContact.isEmpty() &&
        value(u"SELECT 1 FROM Kontakt WHERE KNr = '%1'"_qs.arg(moment.movedContact)).isEmpty())
        m_leftOut.insert(overview);
}

QMap<QString, QStringList> KeptGrids::shown() const {
    QMap<QString, QStringList> grids = {{parameters, rowsOf(parameters)}};
    for (const Mask& mask : masks) {
        if (Screens::byName(mask.screen) && !m_leftOut.contains(mask.grid))
            grids[mask.grid] = rowsOf(mask.grid);
    }
    if (m_leftOut.contains(overview)) return grids;
    grids[overview] = rowsOf(overview);
    for (const QString& category : m_openCategories)
        if (const auto contacts = contactsOf(category)) grids[overview + u' ' + category] = *contacts;
    return grids;
}

void KeptGrids::remember() {
    m_fishingYear = ControlText::shown(u"Fangbuch.cboFJahr"_qs).toShort();
    m_month = qint16(screen<Fangbuch>().cboSelMonat->currentIndex() + 1);
    // It is empty before the screen's first visit.
    const QString stockingYear = ControlText::shown(u"Besatzung.cboBJahr"_qs);
    m_stockingYear = stockingYear.isEmpty() ? qint16(today().year()) : stockingYear.toShort();
    m_member = isLoaded<Arbeit>() ? ControlText::shown(u"Arbeit.lblKNr"_qs).toInt() : 0;
    m_workYear = isLoaded<Arbeit>() ? ControlText::shown(u"Arbeit.cboArbJahr"_qs).toInt() : 0;
    m_openCategories.clear();
    for (const QString& line : GridCells::rows(overview))
        if (line.section(u'|', 1, 1) == u"-"_qs) m_openCategories.append(line.section(u'|', 0, 0));
    m_shown = shown();
}

void KeptGrids::loadAnew() const {
    Session& s = session();
    s.TabelleLaedt = true; // no message boxes for empty months and years
    s.AktJahr = m_fishingYear;
    s.AktMonatNr = m_month;
    modFangbuch::loadTblFList(screen<Fangbuch>().pb);
    s.AktJahr = m_stockingYear;
    modBesatzList::loadTblBList();
    if (m_member) modArbeit::loadTblArbeit(m_member, m_workYear);
    for (const QString& category : m_openCategories)
        if (const int row = rowOfCategory(category); row >= 0)
            modKontakt::KategorieAufklappen(row, category.toInt());
    s.TabelleLaedt = false;
}

QStringList KeptGrids::differences() {
    loadAnew();
    const QMap<QString, QStringList> fresh = shown();
    QStringList differences;
    for (auto grid = m_shown.begin(); grid != m_shown.end(); ++grid) {
        QStringList missing = fresh.value(grid.key());
        for (const QString& row : grid.value())
            if (!missing.removeOne(row)) differences.append(u"%1 shows %2"_qs.arg(grid.key(), row));
        for (const QString& row : missing) differences.append(u"%1 lacks %2"_qs.arg(grid.key(), row));
    }
    return differences;
}
