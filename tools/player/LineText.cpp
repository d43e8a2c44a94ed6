#include "LineText.h"

QString lineText(const QString& text) {
    return QString(text).replace(u'\r', u"\\r"_qs).replace(u'\n', u"\\n"_qs);
}
