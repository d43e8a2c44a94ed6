#pragma once

#include "ErrorTail.h"
#include "Meldungen.h"

#include <optional>

/// Writing of records. Each call is one transaction: it opens the table, runs the statements and closes the
/// table, which commits. A result tells that the database holds the new values: show them only then. No
/// result, or false, tells that nothing was changed; a message box has said why.
/// An inner call is part of the outer call's transaction. Make it after the outer record has been written,
/// and pass its result on.
namespace Datensatz {

/// Values of fields, as for a grid row.
using Zeile = std::vector<Value>;
/// Sets the fields of the copy buffer. Use a step for each field: if one can't be set, the record is still
/// saved without it.
using Felder = std::function<void(Recordset&)>;
/// Writes dependent records when the record is written. Gets the values read from it. Return false to roll
/// back the transaction.
using Dazu = std::function<bool(const Zeile&)>;

/// Reads fields of the current record. A field that can't be read becomes Null.
Zeile lies(ErrorTail& step, const Recordset& satz, const QStringList& felder);

/// For statements other than those below. `anweisungen` returns false to roll back.
bool schreibe(ErrorTail& step, const QString& tabelle, const std::function<bool(Recordset&)>& anweisungen);

/// Adds a record and reads the fields `gelesen` of it.
std::optional<Zeile> speichere(ErrorTail& step, const QString& tabelle, const Felder& felder,
                               const QStringList& gelesen, const Dazu& dazu = {});
/// Changes the record of this number. `fehlt` shows the message box for an unknown number.
std::optional<Zeile> aendere(ErrorTail& step, const QString& tabelle, const Value& nummer,
                             const Felder& felder, const QStringList& gelesen = {}, const Dazu& dazu = {},
                             void (*fehlt)() = &modRun::MeldeNichtVorhanden);
/// Deletes the record of this number. `dazu` and `fehlt` as above.
bool loesche(ErrorTail& step, const QString& tabelle, const Value& nummer, const Dazu& dazu = {},
             void (*fehlt)() = &modRun::MeldeNichtVorhanden);

/// Seeks the record of this number in an open table. Returns false if there is none or the seek failed. There
/// is no current record then: skip the statements that need one.
bool finde(ErrorTail& step, Recordset& satz, const Value& nummer);

} // namespace Datensatz
