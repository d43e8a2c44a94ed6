#pragma once

#include <QCollator>

/// The order of a German index: regardless of case, umlauts beside their vowels.
inline const QCollator& germanOrder() {
    static const QCollator order = [] {
        QCollator collator(QLocale(QLocale::German, QLocale::Germany));
        collator.setCaseSensitivity(Qt::CaseInsensitive);
        return collator;
    }();
    return order;
}
