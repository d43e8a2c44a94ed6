#include "LineText.h"

using namespace Qt::StringLiterals;

QString lineText(const QString& text) {
    return QString(text).replace(u'\r', u"\\r"_s).replace(u'\n', u"\\n"_s);
}
