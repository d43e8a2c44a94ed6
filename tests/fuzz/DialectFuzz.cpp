#include "Connection.h"
#include "Database.h"
#include "Fuzz.h"
#include "Lexer.h"
#include "NewDatabase.h"
#include "Recordset.h"
#include "SelectRewriter.h"

#include <QTemporaryDir>
#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace {

/// A small club. Nothing in it is ever changed.
class Club {
public:
    Club() {
        const QString path = m_folder.filePath(u"uw01.mdb"_s);
        createDatabase(path, m_key, 2005);
        m_connection =
            std::make_shared<cursors::Connection>(path, m_key, cursors::Connection::Access::ReadWrite);
        for (const char* rows :
             {"INSERT INTO Fisch VALUES (1, 'Hecht', NULL), (2, 'Äsche', 'selten')",
              "INSERT INTO Gewaesser VALUES (1, 'Waldsee', NULL), (2, 'Mühlbach', '')",
              "INSERT INTO Fang VALUES (1, 2005, 1, 1, 1, 'früh', 3, 1500), (2, 2005, 7, 2, 2, '', 1, 0.5)",
              "INSERT INTO Kontakt (KNr, KategoNr, Nachname, Vorname, GebDatum, Bankeinzug) VALUES"
              " (1, 1, 'Müller', 'Jörg', 25569.0, 1), (2, 3, 'Weiß', NULL, 0.0, 0)",
              "INSERT INTO Mitglied VALUES (1, 1, 0, 1, 36526.0, 0.0, 0)"})
            m_connection->execute(rows);
        sqlite3_progress_handler(m_connection->handle(), steps, &Club::isTooLong, this);
    }

    /// The kinds of the found values. Stops after `mostRows` of them, since a join may find many.
    QStringList rows(const QString& select) {
        m_steps = 0;
        QStringList found;
        Recordset rows = Database(m_connection).OpenRecordset(select, dbOpenDynaset);
        const std::vector<Recordset::Field> fields = rows.Fields();
        for (; !rows.Eof() && found.size() < mostRows; rows.MoveNext())
            for (const Recordset::Field& field : fields)
                found += QString::number(static_cast<int>(field.Value().kind()));
        return found;
    }

    bool wasTooLong() const { return m_steps > mostSteps; }

private:
    static constexpr int steps = 1000;
    static constexpr int mostSteps = 2000;
    static constexpr int mostRows = 100;
    static int isTooLong(void* club) { return ++static_cast<Club*>(club)->m_steps > mostSteps ? 1 : 0; }

    QTemporaryDir m_folder;
    QString m_key = u"x'"_s + QString(64, u'7') + u'\'';
    std::shared_ptr<cursors::Connection> m_connection;
    int m_steps = 0;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size) {
    static Club club;
    constexpr int interrupted = 3000;
    constexpr int notPrepared[] = {3000, 3061, 3075, 3078, 3360};
    const QString select =
        QString::fromUtf8(reinterpret_cast<const char*>(bytes), static_cast<qsizetype>(size));
    const int refused = errorOf([&] {
        dialect::LexedStatement statement;
        dialect::lexStatement(select, statement);
        dialect::rewriteSelect(select, statement);
    });
    QStringList first, second;
    const int number = errorOf([&] { first = club.rows(select); });
    if (club.wasTooLong()) return 0;
    require(refused == 0 || number == refused, "what is not rewritten is not run");
    // A short statement can't exceed SQLite's limits. Rewritten, it is SQL and must be prepared.
    if (refused == 0 && size < 500)
        for (const int fault : notPrepared) require(number != fault, "what is rewritten is prepared");
    require(number != interrupted, "each failure has a number of its own");
    const int again = errorOf([&] { second = club.rows(select); });
    require(again == number && second == first, "a statement from the cache finds the same");
    return 0;
}
