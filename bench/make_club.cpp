// Makes the program folder that benchmarks of one size copy: make_club FOLDER SIZE

#include "ClubFile.h"

#include <QByteArray>
#include <QCoreApplication>

int main(int argc, char* argv[]) {
    const QCoreApplication application(argc, argv);
    if (argc != 3) return 2;
    makeClub(QString::fromLocal8Bit(argv[1]), ClubSize{QByteArray(argv[2]).toInt()});
}
