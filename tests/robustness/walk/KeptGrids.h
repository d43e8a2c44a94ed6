#pragma once

#include <QMap>
#include <QSet>
#include <QString>
#include <QStringList>

class PlayedProgram;
class Screen;

/// Watches the grids that the program fills once and then keeps in step with the file cell by cell: each must
/// show what a fresh load of the same file does. Where the program is meant to let one differ, the watch
/// notices and leaves that grid alone until the next start. What a search has found stays as it is until the
/// next search, so those grids are not watched.
class KeptGrids {
public:
    struct Mask;

    /// What can be told before a command only.
    struct Moment {
        QString front;              ///< the screen in front; empty without one
        const Mask* mask = nullptr; ///< the one in front; null for none that writes a row
        QString number;             ///< of the record in it
        QString name;               ///< of the record, as it stands in the file
        QString typed;              ///< the same on the screen
        bool otherRow = false;      ///< the row to be written is not that of the record
        bool otherPage = false;     ///< another page of the screen shows a record too
        QString movedContact;       ///< on show, of another category than the one chosen
    };

    explicit KeptGrids(PlayedProgram& program)
        : m_program(program) {}

    /// A session begins: everything is fresh.
    void beginSession() { m_leftOut.clear(); }
    Moment before(const Screen* front) const;
    /// `failed` if a box told of an error.
    void after(const Moment& moment, bool failed);

    /// Remembers what is shown.
    void remember();
    /// What a fresh load shows otherwise than what was remembered, a line each. Fills the grids of the
    /// program, which must just have been started anew.
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
    // What the selectors stood at.
    qint16 m_fishingYear = 0;
    qint16 m_month = 0;
    qint16 m_stockingYear = 0;
    int m_member = 0;
    int m_workYear = 0;
    QStringList m_openCategories;
};
