#pragma once

#include "DataTable.h"
#include "Report.h"

#include <functional>

class Screen;

/// The text of a cell, as the grid shows it.
Value wieGezeigt(const DataTable& grid, int row, int column);
/// The cell as a 32-bit integer.
Value ganzzahl(const DataTable& grid, int row, int column);

/// A field of the staging table. In the report Text1 shows the first one, Text2 the next, and so on.
struct Druckspalte {
    int column; ///< of the grid
    QString feld;
    Value (*wert)(const DataTable& grid, int row, int column) = &wieGezeigt;
};

/// The parts of a print run in which the reports differ.
struct Druckauftrag {
    QString modul; ///< named, with `routine`, in the error message box
    QString routine;
    Screen& aufrufer;      ///< shows the hourglass
    const DataTable& grid; ///< its rows are printed, in its order
    QString tabelle;       ///< the staging table
    std::vector<Druckspalte> spalten;
    std::shared_ptr<Report> (*report)();
    /// Sets the report's own labels and the fields of its sums.
    std::function<void(Report&)> richteEin;
};

/// Runs one of the five reports: writes the grid's rows into the staging table through a second connection,
/// binds the report to them, and prints it (`wort` "drucken") or previews it ("vorschau"). Staged rows stay
/// until the next run. If a preview comes to the front, leaves NachReport set, so that the screen keeps its
/// contents when it comes back. Otherwise clears NachReport: the next return to the screen is from another
/// one.
void drucke(const Druckauftrag& auftrag, const QString& wort);
