// make_club FOLDER SIZE makes the program folder that the benchmarks of this size copy.

#include "ClubFile.h"

#include <QByteArray>
#include <QCoreApplication>

int main(int argc, char* argv[]) {
    const QCoreApplication application(argc, argv);
    if (argc != 3) return 2;
    makeClub(QString::fromLocal8Bit(argv[1]), ClubSize{QByteArray(argv[2]).toInt()});
}
