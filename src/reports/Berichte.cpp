#include "Berichte.h"

#include <map>
#include <memory>

namespace Berichte {

namespace {

std::map<QString, std::shared_ptr<Report>>& made() {
    static std::map<QString, std::shared_ptr<Report>> byName;
    return byName;
}

} // namespace

Report& bericht(const QString& name, std::shared_ptr<Report> (*make)()) {
    std::shared_ptr<Report>& report = made()[name];
    if (!report) report = make();
    return *report;
}

void vergisseAlle() { made().clear(); }

} // namespace Berichte
