#include "Feldwerte.h"

#include "Conversions.h"
#include "ErrorTail.h"
#include "TextBox.h"

using namespace Qt::StringLiterals;

namespace modRun {

void leseZellen(ErrorTail& step, const std::vector<Recordset::Field>& felder, std::span<Value> zeile) {
    for (std::size_t i = 0; i < felder.size(); ++i) step([&] { zeile[i] = felder[i].Value(); });
}

QString textOderLeer(const Recordset::Field& field) {
    const Value value = field.Value();
    return value.isNull() ? QString() : CStr(value);
}

Date DatumAusText(const TextBox* box) {
    const Value text(box->text());
    return CDate(IsDate(text) ? text : Value(u"00:00:0000"_s));
}

QString TextAusDatum(const Recordset::Field& field) {
    const Value value = field.Value();
    return value.isNull() || CDate(value).isEmpty() ? QString() : CStr(value);
}

} // namespace modRun
