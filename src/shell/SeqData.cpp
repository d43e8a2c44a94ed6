#include "SeqData.h"

#include "Session.h"

#include <QDir>

namespace SeqData {

QString path(const QString& name) {
    const QDir folder(programFolder() + u"/SeqData"_qs);
    if (folder.exists(name)) return folder.filePath(name);
    for (const QString& entry : folder.entryList(QDir::Files | QDir::Hidden))
        if (entry.compare(name, Qt::CaseInsensitive) == 0) return folder.filePath(entry);
    return folder.filePath(name);
}

} // namespace SeqData
