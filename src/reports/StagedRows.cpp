#include "StagedRows.h"

StagedRows::StagedRows(ADODB::Recordset& rows)
    : m_rows(rows)
    , m_fields(rows.Fields()) {}

bool StagedRows::next(std::vector<Value>& row) {
    if (m_begun)
        m_rows.MoveNext();
    else
        m_rows.MoveFirst();
    m_begun = true;
    if (m_rows.Eof()) return false;
    for (std::size_t i = 0; i < m_fields.size(); ++i) row[i] = m_fields[i].Value();
    return true;
}
