#pragma once

#include <QByteArray>
#include <QList>
#include <QStringView>
#include <span>

/// The kind of a field's values. A Number is read as a whole number or with its fraction, as stored in the
/// file.
enum class FieldKind : quint8 { AutoNumber, Long, Number, Double, Date, Boolean, Text };

struct FieldSpec {
    QStringView name;
    FieldKind kind;
};

struct TableSpec {
    QStringView name;
    std::span<const FieldSpec> fields;
    /// Whether the first field is the unique index "PrimaryKey".
    bool keyed;

    /// The place of a field, -1 if there is none. Names compare without regard to case.
    int fieldIndex(QStringView fieldName) const;
};

/// All tables of the file. The program never creates or alters one.
std::span<const TableSpec> schemaTables();
/// The table of this name, null if there is none. Names compare without regard to case.
const TableSpec* findTable(QStringView name);

/// Statements that make the tables and indexes in an empty file. They name only standard collations, so that
/// the standard command-line program can read the file.
QList<QByteArray> schemaStatements();
/// The parts of schemaStatements(), for a file that lacks a table, a column or an index. Existing indexes are
/// left alone.
QByteArray tableDefinition(const TableSpec& table);
QByteArray columnDefinition(const TableSpec& table, const FieldSpec& field);
QList<QByteArray> indexStatements();

/// The name of a table or field, quoted for use in a statement.
QByteArray quotedName(QStringView name);
