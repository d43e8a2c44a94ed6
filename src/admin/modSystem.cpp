#include "modSystem.h"

#include "Conversions.h"
#include "ErrorTail.h"
#include "Format.h"
#include "Info.h"
#include "Screens.h"
#include "Session.h"
#include "System.h"

#include <array>

using namespace Qt::StringLiterals;

namespace modSystem {

namespace {

/// A line of the address: a field of System, its text box and its place in the session.
struct AddressLine {
    QString field;
    TextBox* box;
    QString& saved;
};

std::array<AddressLine, 5> address() {
    const System& screen = the<System>();
    auto& [verein, strasse, plz, ort, telefon] = session().Anschrift;
    return {{{u"Verein"_s, screen.txtVerein, verein},
             {u"Strasse"_s, screen.txtStrasse, strasse},
             {u"PLZ"_s, screen.txtPLZ, plz},
             {u"Ort"_s, screen.txtOrt, ort},
             {u"Tel"_s, screen.txtTelefon, telefon}}};
}

struct Parameter {
    QString field;
    QString label; ///< in the grid
    TextBox* box;
};

/// The parameters in the order in which they are written.
std::array<Parameter, 3> parameters() {
    const System& screen = the<System>();
    return {{{u"FJahr"_s, u"akt. Fangjahr"_s, screen.txtFJahr},
             {u"JBeitrag"_s, u"Jahresbeitrag"_s, screen.txtJB},
             {u"PflichtStd"_s, u"Pflicht-Std. (Arbeit)"_s, screen.txtArbStd}}};
}

/// Copies the parameters that other screens need into the session, in the form shown in the grid.
void merkeParameter() {
    const auto wert = [grid = the<System>().tblSystem](const Parameter& which) {
        const int row = grid->rowOf(which.label);
        return row < 0 ? Value() : grid->cell(row, 1);
    };
    const auto [fangjahr, beitrag, pflichtStd] = parameters();
    session().FJahr = wert(fangjahr);
    session().PflichtStd = wert(pflichtStd);
}

/// Copies the address into the session, and shows it in Info and in the boxes.
void showAddress(ErrorTail& step, const Recordset& system) {
    const auto text = [&](const AddressLine& line) { return CStr(system.Collect(line.field)); };
    for (const AddressLine& line : address()) step([&] { line.saved = text(line); });
    the<Info>().zeigeAnschrift();
    for (const AddressLine& line : address()) step([&] { line.box->setText(text(line)); });
}

/// Sets fields of the record, for which `write` is called, and saves it.
void aendere(const std::function<void(Recordset&)>& write) {
    Recordset system = oeffneTabelle(u"System"_s);
    system.Edit();
    write(system);
    system.Update();
    system.Close();
}

} // namespace

void loadTblSystem() {
    withErrorTail(u"modStart"_s, u"loadTblSystem"_s, [](ErrorTail& step) {
        const auto twoDecimals = [](const Value& number) -> Value { return Format(number, u"###0.00"_s); };
        const auto show = [&](const Recordset& system) {
            DataTable* grid = the<System>().tblSystem;
            const auto [fangjahr, beitrag, pflichtStd] = parameters();
            const auto value = [&](const Parameter& which) { return system.Collect(which.field); };
            step([&] { grid->appendRow({beitrag.label, twoDecimals(value(beitrag))}); });
            step([&] { grid->appendRow({fangjahr.label, value(fangjahr)}); });
            step([&] { grid->appendRow({pflichtStd.label, twoDecimals(value(pflichtStd))}); });
            merkeParameter();
            showAddress(step, system);
        };
        liesSatz(
            step, [] { return u"SELECT * FROM System"_s; },
            [&](Recordset& system) {
                step([&] { system.MoveFirst(); });
                step.forEachRow(system, [&] { show(system); });
            });
    });
}

void UpdateParameter() {
    aendere([](Recordset& system) {
        for (const auto& [field, label, box] : parameters())
            if (!box->text().isEmpty()) system.Collect(field, CLng(box->text()));
    });
    DataTable* grid = the<System>().tblSystem;
    for (const auto& [field, label, box] : parameters()) {
        const int row = grid->rowOf(label);
        if (box->text().isEmpty() || row < 0) continue;
        grid->setCell(row, 1, box->text());
        grid->markRow(row);
    }
    merkeParameter();
    LeereParameter();
}

void UpdateAdresse() {
    aendere([](Recordset& system) {
        for (const AddressLine& line : address()) system.Collect(line.field, line.box->text());
    });
    for (const AddressLine& line : address()) line.saved = line.box->text();
    the<Info>().zeigeAnschrift();
}

void LeereParameter() {
    for (const Parameter& which : parameters()) which.box->setText({});
}

void LadeParameter(int row) {
    System& screen = the<System>();
    LeereParameter();
    // A damaged file may have given the grid rows beyond the three.
    const std::array boxes = {screen.txtJB, screen.txtFJahr, screen.txtArbStd};
    if (static_cast<std::size_t>(row) < boxes.size()) {
        TextBox* box = boxes[static_cast<std::size_t>(row)];
        box->setText(screen.tblSystem->cellText(row, 1));
        box->setFocus();
        box->selectAll();
    }
    screen.openRecord(screen.tblSystem->cellText(row, 0), row);
}

} // namespace modSystem
