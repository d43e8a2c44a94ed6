#pragma once

#include <QString>
#include <optional>

class ComboBox;

// From a name of the base data to its number and back, asked of the file. A name stands for the first record
// that has it. Where there is none, a number is 0 and a name is empty.

qint32 ErmittleFischNr(const QString& name);
QString ErmittleFischname(qint32 number);
qint32 ErmittleGewaesserNr(const QString& name);
QString ErmittleGewaessername(qint32 number);
qint32 ErmittleKategoNr(const QString& name);
QString ErmittleKategoName(qint32 number);

/// The number behind a name in a combo box, by one of the lookups above. Nothing, after a box, if the file
/// does not know the name: 0 is nobody's number. A lookup that failed has shown its own boxes; its 0 is
/// passed on.
std::optional<qint32> ermittleNummer(qint32 (*ermittle)(const QString&), ComboBox* name);

/// The numbers behind the two names that catches and stockings are stored by.
struct ArtUndGewaesser {
    qint32 fisch;
    qint32 gewaesser;
};
/// Nothing, after a box, if the file does not know one of the names.
std::optional<ArtUndGewaesser> ermittleNummern(ComboBox* fisch, ComboBox* gewaesser);
