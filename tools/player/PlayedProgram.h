#pragma once

#include "DatabaseFile.h"
#include "FixedClock.h"
#include "QueuedDialogs.h"
#include "RecordedBoxes.h"

#include <QString>
#include <memory>

class Program;

/// The program under play: its folder, what stands around it, and its lives one after the other.
class PlayedProgram {
public:
    /// The folder is made when it is first needed, unless there is a database in it already. Relative names
    /// of pictures and PDFs lead to the other one.
    PlayedProgram(QString folder, QString pictures);
    ~PlayedProgram();
    PlayedProgram(const PlayedProgram&) = delete;
    PlayedProgram& operator=(const PlayedProgram&) = delete;

    void setToday(QDate day) { m_clock.setDay(day); }
    void setFishingYear(int year);
    void wantDemoClub();

    const QString& folder();
    QString outputPath(const QString& name) const;
    void runShell(const QString& command);

    void start();
    bool isRunning() const;
    /// CommandFailure unless it runs.
    void requireRunning() const;
    /// Ends it without asking or storing anything.
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
