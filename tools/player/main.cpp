#include "Platform.h"
#include "Player.h"
#include "Theme.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr int wrongArguments = 2;

void passMessage(QtMsgType, const QMessageLogContext&, const QString& message) {
    if (!Platform::isUsual(message)) std::fprintf(stderr, "%s\n", qPrintable(message));
}

struct Arguments {
    QString file;
    QString keep;
    QString folder;
    bool verbose = false;
    bool dark = false;
};

Arguments readArguments(const QApplication& application) {
    QCommandLineParser parser;
    parser.setApplicationDescription(u"Runs a scenario against the program."_s);
    parser.addHelpOption();
    parser.addPositionalArgument(u"FILE"_s, u"the scenario"_s);
    parser.addOptions({{u"keep"_s, u"keeps pictures and the program folder there"_s, u"DIR"_s},
                       {u"folder"_s, u"uses this program folder and keeps it"_s, u"DIR"_s},
                       {u"verbose"_s, u"prints every command and its output"_s},
                       {u"theme"_s, u"dark or light"_s, u"THEME"_s, u"light"_s}});
    parser.process(application);
    const QString theme = parser.value(u"theme"_s);
    if (parser.positionalArguments().size() != 1 || (theme != u"dark"_s && theme != u"light"_s))
        parser.showHelp(wrongArguments);
    return {parser.positionalArguments().first(), parser.value(u"keep"_s), parser.value(u"folder"_s),
            parser.isSet(u"verbose"_s), theme == u"dark"_s};
}

int play(const Arguments& arguments, const QString& keep, const QString& script) {
    const QString name = QFileInfo(arguments.file).completeBaseName();
    QDir().mkpath(keep);
    const QString made = QDir(keep).absoluteFilePath(name + u".programm"_s);
    QDir(made).removeRecursively();
    const QString folder = arguments.folder.isEmpty() ? made : arguments.folder;
    PlayedProgram program(folder, keep);
    Player player(parseScript(script), program, {arguments.file, arguments.verbose});
    return player.play() == 0 ? 0 : 1;
}

} // namespace

int main(int argc, char* argv[]) {
    Platform::settleEnvironment();
    qInstallMessageHandler(&passMessage);
    QApplication application(argc, argv);
    const Arguments arguments = readArguments(application);
    Platform::settleApplication(arguments.dark ? Theme::Mode::Dark : Theme::Mode::Light);
    QFile file(arguments.file);
    if (!file.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "%s can't be read\n", qPrintable(arguments.file));
        return wrongArguments;
    }
    // A folder with spaces and umlauts in its path, as clubs have them.
    const QTemporaryDir passing(QDir::tempPath() + u"/uw Verein Äsche & Söhne XXXXXX"_s);
    const QString keep = arguments.keep.isEmpty() ? passing.path() : arguments.keep;
    return play(arguments, keep, QString::fromUtf8(file.readAll()));
}
