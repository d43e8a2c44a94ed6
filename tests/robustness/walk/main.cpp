#include "Platform.h"
#include "PlayedProgram.h"
#include "Walk.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <cstdio>

namespace {

void hear(QtMsgType, const QMessageLogContext&, const QString& message) {
    if (!Platform::isUsual(message)) Walk::hear(message);
}

/// Runs one walk. Its trace stays if it finds something or does not return.
bool isSound(quint32 seed, int steps, const QString& folder) {
    QFile trace(QDir::tempPath() + u"/uw_walk-%1.txt"_qs.arg(seed));
    if (!trace.open(QIODevice::WriteOnly)) return false;
    std::printf("seed %u, its steps are in %s\n", seed, qPrintable(trace.fileName()));
    std::fflush(stdout);
    const QTemporaryDir place(QDir::tempPath() + u"/uw Zufall XXXXXX"_qs);
    PlayedProgram program(folder.isEmpty() ? place.filePath(u"programm"_qs) : folder, place.path());
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
    Platform::settleApplication(application, Theme::Mode::Light);
    QCommandLineParser parser;
    parser.setApplicationDescription(u"Lets random users loose on the program."_qs);
    parser.addHelpOption();
    parser.addOptions(
        {{u"seed"_qs, u"of the first walk; the next one has the next"_qs, u"N"_qs, u"1"_qs},
         {u"steps"_qs, u"of each walk"_qs, u"N"_qs, u"2500"_qs},
         {u"folder"_qs, u"walks in this program folder, which stays"_qs, u"DIR"_qs},
         {u"seconds"_qs, u"one walk after the other until so many are over"_qs, u"N"_qs, u"0"_qs}});
    parser.process(application);

    QElapsedTimer clock;
    clock.start();
    bool sound = true;
    quint32 seed = parser.value(u"seed"_qs).toUInt();
    do {
        sound = isSound(seed++, parser.value(u"steps"_qs).toInt(), parser.value(u"folder"_qs)) && sound;
    } while (clock.elapsed() < parser.value(u"seconds"_qs).toLongLong() * 1000);
    return sound ? 0 : 1;
}
