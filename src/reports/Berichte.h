#pragma once

#include "Report.h"

/// The five reports by name, made on first use; their labels keep what was last set for as long as the
/// program runs.
namespace Berichte {

Report& rpt_BesatzListe();
Report& rpt_Fangliste();
Report& rpt_MitglList();
Report& rpt_ArbStd();

Report& rpt_ArbListe();
/// Its title; the year stands behind it.
QString titelArbListe();

} // namespace Berichte
