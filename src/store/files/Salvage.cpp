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

void createTables(cursors::Connection& target) {
    for (const QByteArray& statement : schemaStatements()) target.execute(statement);
}

} // namespace

std::shared_ptr<const void> salvageFile(const QString& source, const QString& target, const QString& password,
                                        const QString& keptIn) {
    const auto content = std::make_shared<engine::RawContent>(source);
    content->lock();
    engine::PageReader pages(*content, password, std::numeric_limits<int>::max());
    UnfinishedFile file(target, password);
    if (!QFile::setPermissions(target, QFile::permissions(source)))
        throw runtimeError(RuntimeError::accessDenied);
    createTables(file.connection());
    PageSweep sweep(pages, file.connection());
    if (!sweep.run()) throw runtimeError(RuntimeError::cannotBeRepaired, source);
    raiseCounters(file.connection(), sweep.counters());
    restoreEssentials(file.connection());
    keepFileBefore(QStringLiteral("Reparatur"), *content, source, keptIn, now());
    file.finish();
    return content;
}
