#include "RuntimeError.h"

RuntimeError runtimeError(const RuntimeError::Kind& kind) {
    QString description = kind.text.toString();
    for (const QStringView subject : {u" '%1'", u": %1", u"'%1' ", u"%1 "})
        description.remove(subject.toString());
    return {kind.number, description};
}

RuntimeError runtimeError(const RuntimeError::Kind& kind, const QString& subject) {
    return {kind.number, kind.text.toString().replace(QStringLiteral("%1"), subject)};
}
