#include "StoredText.h"

#include <QStringDecoder>

QString storableText(const QString& text) {
    if (text.isValidUtf16()) return text;
    return QString::fromUcs4(reinterpret_cast<const char32_t*>(text.toUcs4().constData()));
}

QByteArray storedBytes(const QString& text) { return storableText(text).toUtf8(); }

QString storedText(QByteArrayView bytes) {
    constexpr QByteArrayView byteOrderMark("\xef\xbb\xbf");
    if (!bytes.startsWith(byteOrderMark)) return QString::fromUtf8(bytes);
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom);
    return decoder(bytes);
}
