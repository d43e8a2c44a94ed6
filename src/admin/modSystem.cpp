#include "modSystem.h"

#include "Conversions.h"
#include "DataTable.h"
#include "Datenbank.h"
#include "ErrorTail.h"
#include "Format.h"
#include "Info.h"
#include "Recordset.h"
#include "Screens.h"
#include "Session.h"
#include "System.h"
#include "TextBox.h"

#include <QLabel>
#include <array>

using namespace Qt::StringLiterals;

namespace modSystem {

namespace {

const QString twoDecimals = u"###0.00"_s;
const QString labelJahresbeitrag = u"Jahresbeitrag"_s;
const QString labelFangjahr = u"akt. Fangjahr"_s;
const QString labelPflichtStd = u"Pflicht-Std. (Arbeit)"_s;

/// A line of the address: a field of System and the text box.
struct AddressLine {
    QString field;
    TextBox* box;
};

std::array<AddressLine, 5> address() {
    const System& screen = the<System>();
    return {{{u"Verein"_s, screen.txtVerein},
             {u"Strasse"_s, screen.txtStrasse},
             {u"PLZ"_s, screen.txtPLZ},
             {u"Ort"_s, screen.txtOrt},
             {u"Tel"_s, screen.txtTelefon}}};
}

struct Parameter {
    QString field;
    TextBox* box;
    QString label;
};

void writeParameter(Recordset& parameter, const Parameter& which) {
    const QString text = which.box->text();
    if (!text.isEmpty()) parameter.Collect(which.field, CLng(text));
}

void showParameter(const Parameter& which) {
    const QString text = which.box->text();
    DataTable* grid = the<System>().tblSystem;
    int row = 0;
    if (text.isEmpty() || grid->find(0, row, which.label) < 0) return;
    grid->setCell(row, 1, text);
    grid->markRow(row);
}

/// Copies the parameters that other screens need into the session, in the form shown in the grid.
void merkeParameter(const DataTable& grid) {
    const auto wert = [&](const QString& label) {
        int row = 0;
        return grid.find(0, row, label) < 0 ? Value() : grid.cell(row, 1);
    };
    session().FJahr = wert(labelFangjahr);
    session().PflichtStd = wert(labelPflichtStd);
}

/// Copies the address into the session, and shows it in Info and in the boxes.
void showAddress(ErrorTail& step, const Recordset& parameter) {
    const auto text = [&](const AddressLine& line) { return CStr(parameter.Fields(line.field).Value()); };
    auto shown = session().Anschrift.begin();
    for (const AddressLine& line : address()) {
        QString& label = *shown++;
        step([&] { label = text(line); });
    }
    the<Info>().zeigeAnschrift();
    for (const AddressLine& line : address()) step([&] { line.box->setText(text(line)); });
}

} // namespace

void loadTblSystem() {
    withErrorTail(u"modStart"_s, u"loadTblSystem"_s, [](ErrorTail& step) {
        Recordset parameter;
        DataTable* grid = the<System>().tblSystem;
        step([&] { parameter = oeffneAbfrage(u"SELECT * FROM System"_s); });
        if (step.test([&] { return parameter.RecordCount() != 0; })) step([&] { parameter.MoveFirst(); });
        step.forEachRow(parameter, [&] {
            const auto value = [&](const QString& field) { return parameter.Fields(field).Value(); };
            step([&] { grid->appendRow({labelJahresbeitrag, Format(value(u"JBeitrag"_s), twoDecimals)}); });
            step([&] { grid->appendRow({labelFangjahr, value(u"FJahr"_s)}); });
            step([&] { grid->appendRow({labelPflichtStd, Format(value(u"PflichtStd"_s), twoDecimals)}); });
            merkeParameter(*grid);
            showAddress(step, parameter);
        });
        step([&] { parameter.Close(); });
    });
}

void UpdateParameter() {
    const System& screen = the<System>();
    const Parameter changed[] = {{u"FJahr"_s, screen.txtFJahr, labelFangjahr},
                                 {u"JBeitrag"_s, screen.txtJB, labelJahresbeitrag},
                                 {u"PflichtStd"_s, screen.txtArbStd, labelPflichtStd}};
    Recordset parameter = oeffneTabelle(u"System"_s);
    parameter.Edit();
    for (const Parameter& which : changed) writeParameter(parameter, which);
    parameter.Update();
    parameter.Close();
    for (const Parameter& which : changed) showParameter(which);
    merkeParameter(*screen.tblSystem);
    LeereParameter();
}

void UpdateAdresse() {
    Recordset parameter = oeffneTabelle(u"System"_s);
    parameter.Edit();
    for (const AddressLine& line : address()) parameter.Collect(line.field, line.box->text());
    parameter.Update();
    parameter.Close();
    auto shown = session().Anschrift.begin();
    for (const AddressLine& line : address()) *shown++ = line.box->text();
    the<Info>().zeigeAnschrift();
}

void LeereParameter() {
    System& screen = the<System>();
    for (TextBox* box : {screen.txtJB, screen.txtFJahr, screen.txtArbStd}) box->setText(QString());
}

void LadeParameter(int row) {
    System& screen = the<System>();
    const std::array<TextBox*, 3> boxes = {screen.txtJB, screen.txtFJahr, screen.txtArbStd};
    if (row >= static_cast<int>(boxes.size())) return;
    TextBox* box = boxes[static_cast<std::size_t>(row)];
    box->setText(screen.tblSystem->cellText(row, 1));
    box->setFocus();
    box->selectAll();
}

} // namespace modSystem
