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
};

const auto usage =
    QStringLiteral("usage: uferwart-neu FOLDER [--jahr N] [--demo]\n\n"
                   "Makes a program folder: database, first rows and the folders beside it.\n"
                   "  --jahr N   the fishing year to begin with, 1900 to 9999 (default: this year)\n"
                   "  --demo     with an invented club to look at\n");

/// Nothing if the words make no order.
std::optional<Order> readOrder(const QStringList& words) {
    QCommandLineParser parser;
    const QCommandLineOption yearOption(QStringLiteral("jahr"), QString(), QStringLiteral("N"),
                                        QString::number(QDate::currentDate().year()));
    const QCommandLineOption demoOption(QStringLiteral("demo"));
    if (!parser.addOptions({yearOption, demoOption}) || !parser.parse(words)) return {};
    const QStringList folders = parser.positionalArguments();
    bool isNumber = false;
    const int year = parser.value(yearOption).toInt(&isNumber);
    if (folders.size() != 1 || folders.first().isEmpty() || !isNumber || year < 1900 || year > 9999)
        return {};
    return Order{folders.first(), year, parser.isSet(demoOption)};
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
        makeProgramFolder(order->folder, order->year, order->demo);
    } catch (const RuntimeError& error) {
        QTextStream(stderr) << "uferwart-neu: " << error.description << " (" << error.number << ")\n";
        return 1;
    }
    return 0;
}
