#pragma once

#include "Report.h"

#include <memory>

/// The five reports by name, made on first use; their labels keep what was last set for as long as the
/// program runs.
namespace Berichte {

/// The report of this name, made by the first call.
Report& bericht(const QString& name, std::shared_ptr<Report> (*make)());
/// Called where a program begins, so that nothing of an earlier one in the same process is left.
void vergisseAlle();

Report& rpt_BesatzListe();
Report& rpt_Fangliste();
Report& rpt_MitglList();
Report& rpt_ArbStd();

Report& rpt_ArbListe();
/// Its title; the year stands behind it.
QString titelArbListe();

} // namespace Berichte
