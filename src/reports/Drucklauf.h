#pragma once

#include "ErrorTail.h"
#include "Recordset.h"

#include <functional>
#include <memory>

class DataTable;
class Report;
class Screen;

/// What a report has of its own in the way from a grid to paper.
struct Druckauftrag {
    QString modul; ///< with `routine`, what the error box names
    QString routine;
    Screen& aufrufer;      ///< shows the hourglass
    const DataTable& grid; ///< whose rows are printed, in its order
    QString tabelle;       ///< the staging table
    std::shared_ptr<Report> (*report)();
    /// Writes the fields of a grid row into a new staging row.
    std::function<void(ErrorTail&, Recordset&, int row)> schreibeZeile;
    /// Sets the report's own labels and binds its controls.
    std::function<void(ErrorTail&, Report&)> richteEin;
};

/// The way that all five reports go: the rows of the grid are staged through the second connection, and the
/// report, bound to them, is printed ("drucken") or shown ("vorschau"). Staged rows stay until the next run.
void drucke(const Druckauftrag& auftrag, const QString& wort);

/// Runs a print routine for a screen, which must not lose what it shows when a preview takes the front: until
/// it is back, NachReport is set. After anything but a preview the next return is from another screen.
void druckeFuer(const Screen& aufrufer, const std::function<void()>& routine);
