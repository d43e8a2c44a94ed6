#include "Platform.h"
#include "PlayedProgram.h"
#include "Walk.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <cstdio>
#include <sys/wait.h>
#include <unistd.h>

namespace {

struct Order {
    quint32 seed;
    int steps;
    qint64 seconds; ///< 0 is one walk
    QString trace;  ///< empty for a file that goes again unless the walk fails

    QString traceFile() const {
        return trace.isEmpty() ? QDir::tempPath() + u"/uw_walk-%1.txt"_qs.arg(seed) : trace;
    }
};

Order readOrder(const QStringList& arguments) {
    QCommandLineParser parser;
    parser.setApplicationDescription(u"Lets random users loose on the program."_qs);
    parser.addHelpOption();
    parser.addOptions(
        {{u"seed"_qs, u"of the first walk; the next one has the next"_qs, u"N"_qs, u"1"_qs},
         {u"steps"_qs, u"of each walk"_qs, u"N"_qs, u"2500"_qs},
         {u"seconds"_qs, u"one walk after the other until so many are over"_qs, u"N"_qs, u"0"_qs},
         {u"trace"_qs, u"where the scenario that repeats the last walk goes"_qs, u"FILE"_qs}});
    parser.process(arguments);
    return {parser.value(u"seed"_qs).toUInt(), parser.value(u"steps"_qs).toInt(),
            parser.value(u"seconds"_qs).toLongLong(), parser.value(u"trace"_qs)};
}

void hear(QtMsgType, const QMessageLogContext&, const QString& message) {
    if (!Platform::isUsual(message)) Walk::hear(message);
}

int walk(int argc, char* argv[], const Order& order) {
    Platform::settleEnvironment();
    qInstallMessageHandler(&hear);
    QApplication application(argc, argv);
    Platform::settleApplication(application, Theme::Mode::Light);
    const QTemporaryDir place(QDir::tempPath() + u"/uw Zufall XXXXXX"_qs);
    QFile trace(order.traceFile());
    if (!trace.open(QIODevice::WriteOnly)) return 2;
    PlayedProgram program(place.filePath(u"programm"_qs), place.path());
    Walk walk(program, order.seed, order.steps, trace);
    walk.play();
    return walk.isSound() ? 0 : 1;
}

/// The last steps, as lines that can be played again.
void tellEndOf(const QString& trace) {
    constexpr qsizetype told = 30;
    QFile file(trace);
    if (!file.open(QIODevice::ReadOnly)) return;
    const QList<QByteArray> lines = file.readAll().trimmed().split('\n');
    const QByteArray end = lines.mid(std::max<qsizetype>(0, lines.size() - told)).join('\n');
    std::fprintf(stderr, "%s\n", end.constData());
}

/// In a process of its own: whatever becomes of it, its steps can be told, and what it has leaked too.
bool isSound(int argc, char* argv[], const Order& order) {
    std::fflush(nullptr);
    const pid_t child = fork();
    if (child == 0) std::exit(walk(argc, argv, order));
    int status = 0;
    waitpid(child, &status, 0);
    const QString trace = order.traceFile();
    if (status == 0 && order.trace.isEmpty()) QFile::remove(trace);
    if (status == 0) return true;
    std::fprintf(stderr, "seed %u ended with status %d; its last steps (all are in %s):\n", order.seed,
                 status, qPrintable(trace));
    tellEndOf(trace);
    return false;
}

} // namespace

int main(int argc, char* argv[]) {
    QStringList arguments;
    for (int i = 0; i < argc; ++i) arguments.append(QString::fromLocal8Bit(argv[i]));
    Order order = readOrder(arguments);
    QElapsedTimer clock;
    clock.start();
    bool sound = true;
    do {
        sound = isSound(argc, argv, order) && sound;
        std::printf("seed %u is done after %lld s\n", order.seed, clock.elapsed() / 1000LL);
        ++order.seed;
    } while (clock.elapsed() < order.seconds * 1000);
    return sound ? 0 : 1;
}
