#include "Fuzz.h"

#include <QDirIterator>
#include <QFile>

/// Feeds every file of the given folders. Fails if there is none.
int main(int argc, char** argv) {
    int fed = 0;
    for (int i = 1; i < argc; ++i) {
        QDirIterator inputs(QString::fromLocal8Bit(argv[i]), QDir::Files);
        for (; inputs.hasNext(); ++fed) {
            QFile input(inputs.next());
            std::fprintf(stderr, "%s\n", qPrintable(input.fileName()));
            require(input.open(QIODevice::ReadOnly), "the input can be read");
            const QByteArray bytes = input.readAll();
            LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t*>(bytes.constData()),
                                   static_cast<size_t>(bytes.size()));
        }
    }
    return fed > 0 ? 0 : 1;
}
