#pragma once

#include "ErrorTail.h"
#include "Recordset.h"

#include <functional>
#include <memory>

class DataTable;
class Report;
class Screen;

/// The parts of a print run in which the reports differ.
struct Druckauftrag {
    QString modul; ///< named, with `routine`, in the error message box
    QString routine;
    Screen& aufrufer;      ///< shows the hourglass
    const DataTable& grid; ///< its rows are printed, in its order
    QString tabelle;       ///< the staging table
    std::shared_ptr<Report> (*report)();
    /// Writes the fields of a grid row into a new staging row.
    std::function<void(ErrorTail&, Recordset&, const DataTable& grid, int row)> schreibeZeile;
    /// Sets the report's own labels and binds its controls.
    std::function<void(ErrorTail&, Report&)> richteEin;
};

/// Runs one of the five reports: writes the grid's rows into the staging table through a second connection,
/// binds the report to them, and prints it (`wort` "drucken") or previews it ("vorschau"). Staged rows stay
/// until the next run.
void drucke(const Druckauftrag& auftrag, const QString& wort);

/// Runs a print routine for a screen. If a preview comes to the front, leaves NachReport set, so that the
/// screen keeps its contents when it comes back. Otherwise clears NachReport: the next return to the screen
/// is from another one.
void druckeFuer(const Screen& aufrufer, const std::function<void()>& routine);
