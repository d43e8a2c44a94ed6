#pragma once

#include "Meldungen.h"
#include "Recordset.h"

#include <QString>
#include <functional>
#include <vector>

class ErrorTail;

/// How routines write records. Each call is one action: it opens the table, runs the statements and closes
/// it, which commits. The answer is true if the file holds what was written. Only then show it: a call that
/// answers false has changed nothing in the file and has told why.
/// A call inside another one belongs to its action. Make it after the outer record has been written, and pass
/// its answer on.
namespace Datensatz {

/// Sets the fields of the copy buffer. A field that can't be set costs that field, not the record.
using Felder = std::function<void(Recordset&)>;
/// Runs on the record just written: reads what the screen will show, writes what belongs to it. False takes
/// the action back.
using Danach = std::function<bool(Recordset&)>;

/// Reads fields of the record just written into `werte`. One that can't be read is Null there.
Danach lies(ErrorTail& step, std::vector<Value>& werte, const QStringList& felder);

/// Any other order of statements. `anweisungen` answers whether they have written.
bool schreibe(ErrorTail& step, const QString& tabelle, const std::function<bool(Recordset&)>& anweisungen);

/// Adds a record. `danach` finds it as the current one.
bool speichere(ErrorTail& step, const QString& tabelle, const Felder& felder, const Danach& danach);
/// Changes the record of this number. `fehlt` tells that there is none.
bool aendere(ErrorTail& step, const QString& tabelle, const Value& nummer, const Felder& felder,
             const Danach& danach = {}, void (*fehlt)() = &modRun::MeldeNichtVorhanden);
/// Deletes the record of this number. `danach` finds no current record.
bool loesche(ErrorTail& step, const QString& tabelle, const Value& nummer, const Danach& danach = {},
             void (*fehlt)() = &modRun::MeldeNichtVorhanden);

/// Seeks the record of this number in an open table. False also when the seek itself failed: there is then no
/// current record, and the routine tells that instead of stumbling over each further statement.
bool finde(ErrorTail& step, Recordset& satz, const Value& nummer);

} // namespace Datensatz
