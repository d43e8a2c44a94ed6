#pragma once

#include <QString>
#include <optional>

class ComboBox;

// Look-up of the number for a name of the base data, and of the name for a number, in the database. Of
// several records with a name the first counts. If there is none, the number is 0 and the name is empty.

qint32 ErmittleFischNr(const QString& name);
QString ErmittleFischname(qint32 number);
qint32 ErmittleGewaesserNr(const QString& name);
QString ErmittleGewaessername(qint32 number);
qint32 ErmittleKategoNr(const QString& name);
QString ErmittleKategoName(qint32 number);

/// The number for the name in a combo box, by one of the look-ups above. Returns nullopt after a message box
/// if the name is unknown. Returns 0 if the look-up failed, since it has shown its own message boxes.
std::optional<qint32> ermittleNummer(qint32 (*ermittle)(const QString&), ComboBox* name);

/// The numbers that catches and stockings store instead of the names of fish and water.
struct ArtUndGewaesser {
    qint32 fisch;
    qint32 gewaesser;
};
/// Calls ermittleNummer() for both names. Returns nullopt after a message box if one is unknown.
std::optional<ArtUndGewaesser> ermittleNummern(ComboBox* fisch, ComboBox* gewaesser);
