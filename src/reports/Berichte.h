#pragma once

#include "Report.h"

/// The five reports. A report lives, and keeps its captions, as long as a print run or a preview uses it. The
/// next call after that makes a new one.
namespace Berichte {

using Bericht = std::shared_ptr<Report>;

Bericht rpt_BesatzListe();
Bericht rpt_Fangliste();
Bericht rpt_MitglList();
Bericht rpt_ArbStd();

Bericht rpt_ArbListe();
/// The title of rpt_ArbListe without the year that follows it.
QString titelArbListe();

} // namespace Berichte
