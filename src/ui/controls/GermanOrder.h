#pragma once

class QCollator;

/// The order of a German index: regardless of case, umlauts beside their vowels.
const QCollator& germanOrder();
