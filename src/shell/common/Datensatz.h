#pragma once

#include "Meldungen.h"
#include "Recordset.h"

#include <QString>
#include <functional>
#include <vector>

class ErrorTail;

/// Writing of records. Each call is one transaction: it opens the table, runs the statements and closes the
/// table, which commits. Returns true if the database holds the new values: show them only then. Returns
/// false if nothing was changed; a message box has said why.
/// An inner call is part of the outer call's transaction. Make it after the outer record has been written,
/// and pass its result on.
namespace Datensatz {

/// Sets the fields of the copy buffer. Use a step for each field: if one can't be set, the record is still
/// saved without it.
using Felder = std::function<void(Recordset&)>;
/// Runs on the record just written, to read values for the screen or to write dependent records. Return false
/// to roll back the transaction.
using Danach = std::function<bool(Recordset&)>;

/// Reads fields of the record just written into `werte`. A field that can't be read becomes Null.
Danach lies(ErrorTail& step, std::vector<Value>& werte, const QStringList& felder);

/// For statements other than those below. `anweisungen` returns false to roll back.
bool schreibe(ErrorTail& step, const QString& tabelle, const std::function<bool(Recordset&)>& anweisungen);

/// Adds a record. In `danach` it is the current record.
bool speichere(ErrorTail& step, const QString& tabelle, const Felder& felder, const Danach& danach);
/// Changes the record of this number. `fehlt` shows the message box for an unknown number.
bool aendere(ErrorTail& step, const QString& tabelle, const Value& nummer, const Felder& felder,
             const Danach& danach = {}, void (*fehlt)() = &modRun::MeldeNichtVorhanden);
/// Deletes the record of this number. In `danach` there is no current record. `fehlt` as above.
bool loesche(ErrorTail& step, const QString& tabelle, const Value& nummer, const Danach& danach = {},
             void (*fehlt)() = &modRun::MeldeNichtVorhanden);

/// Seeks the record of this number in an open table. Returns false if there is none or the seek failed. There
/// is no current record then: skip the statements that need one.
bool finde(ErrorTail& step, Recordset& satz, const Value& nummer);

} // namespace Datensatz
