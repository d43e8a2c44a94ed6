#include "ProgramFolder.h"
#include "RuntimeError.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDate>
#include <QTextStream>
#include <optional>

namespace {

struct Order {
    QString folder;
    int year = 0;
    bool demo = false;
    bool complete = false;
};

const auto usage =
    QStringLiteral("usage: uferwart-neu FOLDER [--jahr N] [--demo]\n"
                   "       uferwart-neu FOLDER --ergaenzen\n\n"
                   "Makes a program folder: database, first rows and the folders beside it.\n"
                   "  --jahr N   the fishing year to begin with, 1900 to 9999 (default: this year)\n"
                   "  --demo     with an invented club to look at\n"
                   "  --ergaenzen  adds the tables and fields that the folder's database lacks;\n"
                   "               a copy of it goes to Sicherung first\n");

/// Nothing if the arguments are invalid.
std::optional<Order> readOrder(const QStringList& words) {
    QCommandLineParser parser;
    const QCommandLineOption yearOption(QStringLiteral("jahr"), QString(), QStringLiteral("N"),
                                        QString::number(QDate::currentDate().year()));
    const QCommandLineOption demoOption(QStringLiteral("demo"));
    const QCommandLineOption completeOption(QStringLiteral("ergaenzen"));
    if (!parser.addOptions({yearOption, demoOption, completeOption}) || !parser.parse(words)) return {};
    const QStringList folders = parser.positionalArguments();
    bool isNumber = false;
    const int year = parser.value(yearOption).toInt(&isNumber);
    if (folders.size() != 1 || folders.first().isEmpty() || !isNumber || year < 1900 || year > 9999)
        return {};
    const bool complete = parser.isSet(completeOption);
    if (complete && (parser.isSet(demoOption) || parser.isSet(yearOption))) return {};
    return Order{folders.first(), year, parser.isSet(demoOption), complete};
}

void carryOut(const Order& order) {
    if (!order.complete) return makeProgramFolder(order.folder, order.year, order.demo);
    for (const QString& name : completeProgramFolder(order.folder)) QTextStream(stdout) << name << '\n';
}

} // namespace

int main(int argc, char* argv[]) {
    const QCoreApplication application(argc, argv);
    const QStringList words = QCoreApplication::arguments();
    if (words.size() == 2 && (words[1] == u"--help" || words[1] == u"-h")) {
        QTextStream(stdout) << usage;
        return 0;
    }
    const std::optional<Order> order = readOrder(words);
    if (!order) {
        QTextStream(stderr) << usage;
        return 2;
    }
    try {
        carryOut(*order);
    } catch (const RuntimeError& error) {
        QTextStream(stderr) << "uferwart-neu: " << error.description << " (" << error.number << ")\n";
        return 1;
    }
    return 0;
}
