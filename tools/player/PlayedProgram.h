#pragma once

#include "DatabaseFile.h"
#include "FixedClock.h"
#include "QueuedDialogs.h"
#include "RecordedBoxes.h"

#include <QString>
#include <memory>

class Program;

/// The program that a scenario runs: its folder, clock, message boxes and dialogs. It may be started several
/// times.
class PlayedProgram {
public:
    /// Makes `folder` when it is first needed, unless it has a database already. Relative names of pictures
    /// and PDF files are relative to `pictures`.
    PlayedProgram(QString folder, QString pictures);
    ~PlayedProgram();
    PlayedProgram(const PlayedProgram&) = delete;
    PlayedProgram& operator=(const PlayedProgram&) = delete;

    void setToday(QDate day) { m_clock.setDay(day); }
    // For the new folder. CommandFailure if it has been made already.
    void setFishingYear(int year);
    void wantDemoClub();

    const QString& folder();
    QString outputPath(const QString& name) const;
    void runShell(const QString& command);

    void start();
    bool isRunning() const;
    /// CommandFailure unless the program is running.
    void requireRunning() const;
    /// Ends the program without asking or storing anything.
    void end();

    RecordedBoxes& boxes() { return m_boxes; }
    QueuedDialogs& dialogs() { return m_dialogs; }
    DatabaseFile& file();

private:
    void requireNoFolder() const;

    QString m_folder;
    QString m_pictures;
    bool m_made;
    bool m_demo = false;
    int m_year = 0; ///< 0 is the year of the clock
    FixedClock m_clock;
    RecordedBoxes m_boxes;
    QueuedDialogs m_dialogs;
    std::unique_ptr<DatabaseFile> m_file;
    std::unique_ptr<Program> m_program;
};
