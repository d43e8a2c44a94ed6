#include "SeqData.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace SeqData {

QString path(const QString& programFolder, const QString& name) {
    const QDir folder(programFolder + u"/SeqData"_s);
    // Sorted: if two files differ only in case, every spelling must give the same one.
    for (const QString& entry : folder.entryList(QDir::Files | QDir::Hidden, QDir::Name))
        if (entry.compare(name, Qt::CaseInsensitive) == 0) return folder.filePath(entry);
    return folder.filePath(name);
}

} // namespace SeqData
