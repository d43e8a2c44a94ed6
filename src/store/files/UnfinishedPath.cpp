#include "UnfinishedPath.h"

#include "InterruptedFile.h"
#include "RuntimeError.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

UnfinishedPath::UnfinishedPath(const QString& path)
    : m_path(path) {
    const QFileInfo file(path);
    // A link that leads nowhere would be followed.
    if (file.exists() || file.isSymLink()) throw runtimeError(3204, path);
    if (!file.absoluteDir().exists()) throw runtimeError(3044, file.absolutePath());
}

UnfinishedPath::~UnfinishedPath() {
    if (m_kept) return;
    QFile::remove(m_path);
    for (const QString& journal : engine::journalsOf(m_path)) QFile::remove(journal);
}
