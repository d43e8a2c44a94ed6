#pragma once

#include "Report.h"

#include <memory>

/// The five reports. One is made when it is asked for and no run or preview has it in use; its labels keep
/// what was last set for as long as it is in use.
namespace Berichte {

using Bericht = std::shared_ptr<Report>;

/// The report that this makes, the same one while it is in use.
Bericht bericht(Bericht (*make)());

Bericht rpt_BesatzListe();
Bericht rpt_Fangliste();
Bericht rpt_MitglList();
Bericht rpt_ArbStd();

Bericht rpt_ArbListe();
/// Its title; the year stands behind it.
QString titelArbListe();

} // namespace Berichte
