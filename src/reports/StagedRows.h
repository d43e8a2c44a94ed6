#pragma once

#include "Ado.h"
#include "ReportRows.h"

/// The rows of a staging table as a report takes them over.
class StagedRows final : public ReportRowSource {
public:
    explicit StagedRows(ADODB::Recordset& rows);

    QStringList fields() const override { return m_rows.FieldNames(); }
    bool next(std::vector<Value>& row) override;

private:
    ADODB::Recordset& m_rows;
    std::vector<Field> m_fields;
    bool m_begun = false;
};
