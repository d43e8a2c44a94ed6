#include "LineBreaks.h"

namespace {
bool isBreak(QChar character) { return character == u'\r' || character == u'\n'; }
} // namespace

QString withPlainBreaks(const QString& text) {
    QString plain;
    plain.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (!isBreak(text[i])) {
            plain += text[i];
            continue;
        }
        plain += u'\n';
        const bool pair = i + 1 < text.size() && isBreak(text[i + 1]) && text[i + 1] != text[i];
        if (pair) ++i;
    }
    return plain;
}
