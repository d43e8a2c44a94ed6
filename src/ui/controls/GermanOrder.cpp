#include "GermanOrder.h"

#include <QCollator>

const QCollator& germanOrder() {
    static const QCollator order = [] {
        QCollator collator(QLocale(QLocale::German, QLocale::Germany));
        collator.setCaseSensitivity(Qt::CaseInsensitive);
        return collator;
    }();
    return order;
}
