#include <QCoreApplication>
#include <QDir>
#include <QImage>
#include <QImageReader>
#include <QTextStream>

namespace {

constexpr int sizes[] = {16, 22, 24, 32, 48, 64, 128, 256, 512};

/// Writes FOLDER/NxN/apps/NAME.png; false if the picture can't be read or the file can't be written.
bool drawInSize(const QString& picture, const QString& folder, int size) {
    QImageReader reader(picture);
    reader.setScaledSize({size, size});
    const QImage image = reader.read();
    const QString place = QStringLiteral("%1/%2x%2/apps").arg(folder).arg(size);
    const QString name = QFileInfo(picture).completeBaseName();
    return !image.isNull() && QDir().mkpath(place) &&
           image.save(QStringLiteral("%1/%2.png").arg(place, name));
}

} // namespace

// icon-sizes PICTURE FOLDER: draws an icon in the sizes that menus and docks use.
int main(int argc, char* argv[]) {
    const QCoreApplication application(argc, argv);
    const QStringList words = QCoreApplication::arguments();
    if (words.size() != 3) {
        QTextStream(stderr) << "usage: icon-sizes PICTURE FOLDER\n";
        return 2;
    }
    for (const int size : sizes) {
        if (drawInSize(words[1], words[2], size)) continue;
        QTextStream(stderr) << "icon-sizes: " << words[1] << " can't be drawn into " << words[2] << "\n";
        return 1;
    }
    return 0;
}
