#include "Upkeep.h"

#include "FileReplacement.h"
#include "SafetyCopy.h"

namespace Upkeep {

void replaceDatabase(const QString& newFile, const QString& oldPath) { ::replaceDatabase(newFile, oldPath); }

void keepSafetyCopy(const QString& file, const QString& password, const QString& folder,
                    const QDateTime& time) {
    ::keepSafetyCopy(file, password, folder, time);
}

bool isCopyUnfinished(const QString& file, const QString& folder) { return ::isCopyUnfinished(file, folder); }

void forgetUnfinishedCopy(const QString& file, const QString& folder) {
    ::forgetUnfinishedCopy(file, folder);
}

} // namespace Upkeep
