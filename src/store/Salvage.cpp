#include "Salvage.h"

#include "Clock.h"
#include "Essentials.h"
#include "PageReader.h"
#include "PageSweep.h"
#include "RawContent.h"
#include "SafetyCopy.h"
#include "UnfinishedFile.h"

#include <QFile>
#include <limits>

namespace {

/// Enough to meet pages of any kind.
constexpr int samplePages = 64;
constexpr int diskError = 3043;

void createTables(Connection& target) {
    for (const QByteArray& statement : schemaStatements()) target.execute(statement);
}

} // namespace

FileHold salvageFile(const QString& source, const QString& target, const QString& password,
                     const QString& keptIn) {
    const auto content = std::make_shared<RawContent>(source);
    content->lock();
    PageReader pages(*content, password, std::numeric_limits<int>::max());
    UnfinishedFile file(target, password);
    if (!QFile::setPermissions(target, QFile::permissions(source))) throw runtimeError(70);
    createTables(file.connection());
    PageSweep sweep(pages, file.connection());
    if (!sweep.run()) throw runtimeError(3056, source);
    raiseCounters(file.connection(), sweep.counters());
    restoreEssentials(file.connection());
    keepDamagedFile(*content, source, keptIn, now());
    file.finish();
    return content;
}

bool fitsOtherPages(const QString& path, const QString& password) {
    try {
        PageReader pages(RawContent(path), password, samplePages);
        for (int page = 2; page <= pages.pageCount(); ++page)
            if (pages.rowsOf(page, [](const Statement&) { return false; })) return true;
    } catch (const RuntimeError& error) {
        if (error.number == diskError) throw;
        // Without room for the copy it can't be told.
    }
    return false;
}
