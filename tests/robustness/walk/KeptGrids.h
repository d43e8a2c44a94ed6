#pragma once

#include <QMap>
#include <QSet>
#include <QString>
#include <QStringList>

class PlayedProgram;
class Screen;

/// Checks the grids that the program fills once and then updates cell by cell: each must show the same as a
/// fresh load of the file. Where the program may let a grid differ, the grid is not checked until the next
/// start. Grids of search results are not checked, as they change only with the next search.
class KeptGrids {
public:
    struct Mask;

    /// The state before a command.
    struct Moment {
        QString front;              ///< the screen in front, empty if there is none
        const Mask* mask = nullptr; ///< the part in front, null if none writes a row
        QString number;             ///< the number of its record
        QString name;               ///< the record's name in the file
        QString typed;              ///< the record's name on the screen
        bool otherRow = false;      ///< the row to be written is not the record's
        bool otherPage = false;     ///< another page of the screen shows a record too
        QString movedContact;       ///< shown contact of another category than the one chosen
    };

    explicit KeptGrids(PlayedProgram& program)
        : m_program(program) {}

    /// Call when a session begins: all grids are fresh.
    void beginSession() { m_leftOut.clear(); }
    Moment before(const Screen* front) const;
    /// `failed`: a message box reported an error.
    void after(const Moment& moment, bool failed);

    /// Remembers the shown rows.
    void remember();
    /// The differences between a fresh load and the remembered rows, a line each. Fills the program's grids.
    /// Call right after the program has been started again.
    QStringList differences();

private:
    void leaveOutAfterError(const QString& front);
    void leaveOutNamesakes();
    void leaveOutAfterChange(const Moment& moment);
    QString nameOf(const Mask& mask, const QString& number) const;
    QString value(const QString& query) const;
    QMap<QString, QStringList> shown() const;
    void loadAnew() const;

    PlayedProgram& m_program;
    QSet<QString> m_leftOut;
    QString m_version; ///< of the file's content
    QMap<QString, QStringList> m_shown;
    // The values of the selectors.
    qint16 m_fishingYear = 0;
    qint16 m_month = 0;
    qint16 m_stockingYear = 0;
    int m_member = 0;
    int m_workYear = 0;
    QStringList m_openCategories;
};
