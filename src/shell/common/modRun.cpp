#include "modRun.h"

#include "ComboBox.h"
#include "Conversions.h"
#include "DataTable.h"
#include "ErrorTail.h"
#include "EventGuard.h"
#include "MsgBox.h"
#include "Session.h"
#include "TextBox.h"
#include "ValueLabel.h"

#include <QCheckBox>
#include <algorithm>
#include <array>
#include <cstdlib>
#include <limits>

namespace modRun {

namespace {

void tellWrongMonth(const QString& inserted) {
    MsgBox(u"FEHLER: Monatsbezeichnung fehlerhaft ! Es wird Standartmonat - "_qs + inserted +
               u" - eingesetzt.\n\rBitte ändern Sie den Datensatz um diesen fehler zu vermeiden !"_qs,
           vbCritical);
}

constexpr int backspace = 8;
constexpr int enter = 13;

bool isDigit(int code) { return code >= '0' && code <= '9'; }
bool isLetter(int code) { return (code >= 'A' && code <= 'Z') || (code >= 'a' && code <= 'z'); }

int passOr0(int code, bool accepted) { return accepted ? code : 0; }

} // namespace

void SetzeGridFarben(SelectionStyle& style) {
    style.back = QColor(255, 255, 255);
    style.fore = QColor(0, 0, 0);
    style.style = 1;
}

void connectGridFocus(DataTable* grid) {
    QObject::connect(grid, &DataTable::OnGridGotFocus, grid,
                     [grid] { runEvent([grid] { SetzeGridFarben(grid->selectionStyle()); }); });
    QObject::connect(grid, &DataTable::OnGridLostFocus, grid,
                     [grid] { runEvent([grid] { grid->selectRows(0, grid->rowCount(), false); }); });
}

void leereAuswahlBeiFokus(DataTable* grid) {
    QObject::connect(grid, &DataTable::OnGridGotFocus, grid,
                     [grid] { runEvent([grid] { grid->selectRows(0, grid->rowCount(), false); }); });
}

void beginneBearbeitung(const ValueLabel* nummer, int row) {
    session().AktZeile = row;
    if (nummer->Caption().isEmpty()) return beendeVorgang();
    session().Modus = u"EDIT"_qs;
}

void vergissOffenen() { session().Modus = u"SAVE"_qs; }

void beendeVorgang() {
    session().Modus = u"SAVE"_qs;
    session().OffenAuf = nullptr;
}

void legeOffenenBeiseite(const Screen& screen) {
    if (session().Modus != u"EDIT"_qs) return;
    session().Modus = u"SAVE"_qs;
    session().OffenAuf = &screen;
}

void nimmOffenenWiederAuf(const Screen& screen) {
    if (session().OffenAuf != &screen) return;
    session().Modus = u"EDIT"_qs;
    session().OffenAuf = nullptr;
}

int zeileVon(const DataTable* grid, const ValueLabel* nummer, int row) {
    int gefunden = 0;
    return grid->find(0, gefunden, nummer->Caption()) < 0 ? row : gefunden;
}

bool finde(ErrorTail& step, Recordset& satz, const Value& nummer) {
    step([&] { satz.Index(u"PrimaryKey"_qs); });
    return step([&] { satz.Seek(u"="_qs, nummer); }) && !satz.NoMatch();
}

void leseZellen(ErrorTail& step, const std::vector<Recordset::Field>& felder, std::span<Value> zeile) {
    for (std::size_t i = 0; i < felder.size(); ++i) step([&] { zeile[i] = felder[i].Value(); });
}

void MeldeNichtVorhanden() {
    MsgBox(u"FEHLER: Datensatz nicht vorhanden o. nicht vorhanden !"_qs, vbCritical);
}

void MeldeNichtsGefunden() {
    MsgBox(u"Keine passenden Datensätze gefunden, bitte versuchen Sie es erneut!"_qs, vbInformation);
}

void MeldeEingabeFehler(QWidget* schuld) {
    MsgBox(u"ACHTUNG: Eingabefelder nicht korrekt, Vorgang abgebrochen !"_qs, vbInformation);
    schuld->setFocus();
    // A box that sends the focus on when it loses it has done so now.
    schuld->setFocus();
}

QWidget* erstesLeere(std::initializer_list<Eingabe> eingaben) {
    const auto leere = std::ranges::find_if(eingaben, &Eingabe::leer);
    return leere == eingaben.end() ? nullptr : leere->feld;
}

bool fehlerfrei(QWidget* schuld) {
    if (schuld) MeldeEingabeFehler(schuld);
    return !schuld;
}

void MeldeAbgebrochen() { MsgBox(u"Vorgang von User abgebrochen !"_qs, vbInformation); }

void MeldeKeinZugriff() {
    MsgBox(u"Sie haben keine Zugriffsberechtigung auf diese Funktion !"_qs, vbInformation);
}

bool WertAusCheckBox(const QCheckBox* box) { return box->isChecked(); }

int CheckBoxAusWert(const Recordset::Field& field) { return field.Value() == Value(true) ? 1 : 0; }

bool WertAusOption(const QAbstractButton* option) { return option->isChecked(); }

QString textOderLeer(const Recordset::Field& field) {
    const Value value = field.Value();
    return value.isNull() ? QString() : CStr(value);
}

Date DatumAusText(const TextBox* box) {
    const Value text(box->Text());
    return CDate(IsDate(text) ? text : Value(u"00:00:0000"_qs));
}

QString TextAusDatum(const Recordset::Field& field) {
    const Value value = field.Value();
    return value.isNull() || CDate(value).isEmpty() ? QString() : CStr(value);
}

const QStringList& Monatsnamen() {
    static const QStringList names = {u"Januar"_qs,    u"Februar"_qs, u"März"_qs,     u"April"_qs,
                                      u"Mai"_qs,       u"Juni"_qs,    u"Juli"_qs,     u"August"_qs,
                                      u"September"_qs, u"Oktober"_qs, u"November"_qs, u"Dezember"_qs};
    return names;
}

QString ErmittleMonatsname(qint32 number) {
    if (number >= 1 && number <= Monatsnamen().size()) return Monatsnamen()[number - 1];
    tellWrongMonth(u"Januar"_qs);
    return u"Januar"_qs;
}

qint16 ErmittleMonatsNr(const QString& name) {
    const qsizetype place = Monatsnamen().indexOf(name);
    if (place >= 0) return static_cast<qint16>(place + 1);
    tellWrongMonth(u"1"_qs);
    return 1;
}

void haengeJahreAn(ComboBox* combo, qint32 lowest, qint32 highest, qint16 akt) {
    using Year = std::numeric_limits<qint16>;
    constexpr qint64 nahe = 200;
    const auto haengeAn = [&](qint64 von, qint64 bis) {
        for (qint64 jahr = std::max<qint64>(von, Year::min()); jahr <= std::min<qint64>(bis, Year::max());
             ++jahr)
            if (jahr - von < nahe || bis - jahr < nahe || std::abs(jahr - akt) < nahe)
                combo->AddItem(QString::number(jahr));
    };
    haengeAn(lowest, highest);
    if (highest < akt) haengeAn(akt, akt);
    haengeAn(akt, lowest - qint64(1));
}

QString WochentagName(int number) {
    static const std::array<QString, 7> names = {u"Sonntag"_qs,  u"Montag"_qs,     u"Dienstag"_qs,
                                                 u"Mittwoch"_qs, u"Donnerstag"_qs, u"Freistag"_qs,
                                                 u"Samstag"_qs};
    return number >= 1 && number <= 7 ? names[static_cast<std::size_t>(number - 1)] : QString();
}

void GridVerweiseAbgleichen(DataTable* grid, int column, const QString& text, const QString& mode,
                            const QString& oldText) {
    if (mode == u"LOESCHEN"_qs) {
        grid->removeRowsWithText(column, text);
    } else if (mode == u"UPDATE"_qs) {
        for (int row = 0; grid->find(column, row, oldText) >= 0; ++row) grid->setCell(row, column, text);
    }
}

int FilterZiffern(int code) { return passOr0(code, isDigit(code) || code == backspace || code == enter); }

int FilterKomma(int code) {
    return passOr0(code, isDigit(code) || code == backspace || code == enter || code == ',');
}

int FilterTelefon(int code) {
    return passOr0(code, isDigit(code) || code == backspace || code == '-' || code == ' ');
}

int FilterDatum(int code) { return passOr0(code, isDigit(code) || code == backspace || code == '.'); }

int FilterSuche(int code) {
    return passOr0(code, isDigit(code) || isLetter(code) || code == backspace || code == '*' || code == ' ');
}

} // namespace modRun
