#include "Scope.h"

#include "DialectError.h"

namespace dialect {

FieldReference fieldOf(const Source& source, int field) {
    const FieldSpec& found = source.table->fields[static_cast<size_t>(field)];
    return {source.alias + '.' + quotedName(found.name), &found};
}

const Source* Scope::findSource(QStringView name) const {
    for (const Source& source : m_sources)
        if (name.compare(source.name, Qt::CaseInsensitive) == 0) return &source;
    return nullptr;
}

FieldReference Scope::resolve(const QString& fieldName) const {
    const Source* found = nullptr;
    int field = -1;
    for (const Source& source : m_sources) {
        const int index = source.table->fieldIndex(fieldName);
        if (index < 0) continue;
        if (found != nullptr) throw runtimeError(RuntimeError::ambiguousField, fieldName);
        found = &source;
        field = index;
    }
    if (found != nullptr) return fieldOf(*found, field);
    if (m_outer == nullptr) throw unknownField();
    return m_outer->resolve(fieldName);
}

FieldReference Scope::resolve(const QString& sourceName, const QString& fieldName) const {
    if (const Source* source = findSource(sourceName)) {
        const int field = source->table->fieldIndex(fieldName);
        if (field < 0) throw unknownField();
        return fieldOf(*source, field);
    }
    if (m_outer == nullptr) throw unknownField();
    return m_outer->resolve(sourceName, fieldName);
}

} // namespace dialect
