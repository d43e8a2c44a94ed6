#include "DemoTable.h"

#include "Database.h"

DemoTable::DemoTable(Database& database, const QString& name)
    : m_rows(database.OpenRecordset(name, dbOpenTable)) {
    m_rows.Index(QStringLiteral("PrimaryKey"));
}

void DemoTable::add(std::initializer_list<Cell> cells) {
    m_rows.AddNew();
    for (const auto& [field, value] : cells) m_rows.Collect(QString::fromUtf16(field), value);
    m_rows.Update();
}

qint32 DemoTable::addNumbered(const QString& keyField, std::initializer_list<Cell> cells) {
    add(cells);
    m_rows.MoveLast();
    return m_rows.Collect(keyField).number();
}
