#include "Platform.h"
#include "PlayedProgram.h"
#include "Walk.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

void hear(QtMsgType, const QMessageLogContext&, const QString& message) {
    if (!Platform::isUsual(message)) Walk::hear(message);
}

/// Runs one walk. Its trace stays if it finds something or does not return.
bool isSound(quint32 seed, int steps, const QString& folder) {
    QFile trace(QDir::tempPath() + u"/uw_walk-%1.txt"_s.arg(seed));
    if (!trace.open(QIODevice::WriteOnly)) return false;
    std::printf("seed %u, its steps are in %s\n", seed, qPrintable(trace.fileName()));
    std::fflush(stdout);
    const QTemporaryDir place(QDir::tempPath() + u"/uw Zufall XXXXXX"_s);
    PlayedProgram program(folder.isEmpty() ? place.filePath(u"programm"_s) : folder, place.path());
    if (folder.isEmpty()) program.wantDemoClub();
    Walk walk(program, seed, steps, trace);
    walk.play();
    if (walk.isSound()) trace.remove();
    return walk.isSound();
}

} // namespace

int main(int argc, char* argv[]) {
    Platform::settleEnvironment();
    qInstallMessageHandler(&hear);
    QApplication application(argc, argv);
    Platform::settleApplication(Theme::Mode::Light);
    QCommandLineParser parser;
    parser.setApplicationDescription(u"Lets random users loose on the program."_s);
    parser.addHelpOption();
    parser.addOptions({{u"seed"_s, u"of the first walk; the next one has the next"_s, u"N"_s, u"1"_s},
                       {u"steps"_s, u"of each walk"_s, u"N"_s, u"2500"_s},
                       {u"folder"_s, u"walks in this program folder, which stays"_s, u"DIR"_s},
                       {u"seconds"_s, u"one walk after the other until so many are over"_s, u"N"_s, u"0"_s}});
    parser.process(application);

    QElapsedTimer clock;
    clock.start();
    bool sound = true;
    quint32 seed = parser.value(u"seed"_s).toUInt();
    do {
        sound = isSound(seed++, parser.value(u"steps"_s).toInt(), parser.value(u"folder"_s)) && sound;
    } while (clock.elapsed() < parser.value(u"seconds"_s).toLongLong() * 1000);
    return sound ? 0 : 1;
}
