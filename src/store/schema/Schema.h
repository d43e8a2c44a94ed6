#pragma once

#include <QByteArray>
#include <QList>
#include <QStringView>
#include <span>

/// What a field holds. A Number is read as a whole number or with its fraction, as it stands in the file;
/// Untyped is for computed columns whose kind only the value tells.
enum class FieldKind : quint8 { AutoNumber, Long, Number, Double, Date, Boolean, Text, Untyped };

struct FieldSpec {
    QStringView name;
    FieldKind kind;
};

struct TableSpec {
    QStringView name;
    std::span<const FieldSpec> fields;
    /// Whether the first field is the unique index "PrimaryKey".
    bool keyed;

    /// -1 if there is none. Names compare without regard to case.
    int fieldIndex(QStringView fieldName) const;
};

/// Every table of the file, fixed for good: the program never creates or alters one.
std::span<const TableSpec> schemaTables();
/// Null if there is none. Names compare without regard to case.
const TableSpec* findTable(QStringView name);

/// The statements that make the tables and indexes in an empty file. They name only standard collations, so
/// that the standard command-line program can read the file.
QList<QByteArray> schemaStatements();
/// The same one by one, for a file that lacks some of them. An index that is there is left alone.
QByteArray tableDefinition(const TableSpec& table);
QByteArray columnDefinition(const TableSpec& table, const FieldSpec& field);
QList<QByteArray> indexStatements();

/// A name of the catalogue for use in a statement.
QByteArray quotedName(QStringView name);
