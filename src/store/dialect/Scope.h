#pragma once

#include "Schema.h"

#include <QByteArray>
#include <QString>
#include <vector>

namespace dialect {

/// A table in a FROM clause and its name in the statement.
struct Source {
    const TableSpec* table;
    QString name;
    QByteArray alias; ///< its name in the rewritten statement
};

/// A field as the rewritten statement names it.
struct FieldReference {
    QByteArray sql;
    const FieldSpec* field;
};

/// The tables whose fields a SELECT can name: its own and, in a sub-select, those of the outer statement.
class Scope {
public:
    explicit Scope(const Scope* outer)
        : m_outer(outer) {}

    void add(Source source) { m_sources.push_back(std::move(source)); }
    const std::vector<Source>& sources() const { return m_sources; }
    const Source* findSource(QStringView name) const;

    /// Error 3061 for an unknown field, 3079 for one that several tables have.
    FieldReference resolve(const QString& fieldName) const;
    FieldReference resolve(const QString& sourceName, const QString& fieldName) const;

private:
    const Scope* m_outer;
    std::vector<Source> m_sources;
};

FieldReference fieldOf(const Source& source, int field);

} // namespace dialect
