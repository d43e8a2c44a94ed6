#include "StoredText.h"

#include <QList>
#include <QStringDecoder>

QString storableText(const QString& text) {
    if (text.isValidUtf16()) return text;
    QString storable;
    storable.reserve(text.size());
    for (const uint sign : text.toUcs4()) storable += QChar::fromUcs4(sign);
    return storable;
}

QByteArray storedBytes(const QString& text) { return storableText(text).toUtf8(); }

QString storedText(QByteArrayView bytes) {
    constexpr QByteArrayView byteOrderMark("\xef\xbb\xbf");
    if (!bytes.startsWith(byteOrderMark)) return QString::fromUtf8(bytes);
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom);
    return decoder(bytes);
}
