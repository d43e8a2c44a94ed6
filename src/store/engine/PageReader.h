#pragma once

#include "DatabaseHandle.h"
#include "Statement.h"

#include <QTemporaryDir>
#include <functional>

namespace engine {

class RawContent;

/// Reads the rows of a damaged file page by page. It works on a copy with a new first page of the same salt,
/// since the first page leads to all others. So damage in the first page, or in inner pages of a table, hides
/// no rows. The content of the original first page is not read.
class PageReader {
public:
    /// The number of bytes at the beginning that must be undamaged: the salt for the key.
    static constexpr qint64 saltBytes = 16;

    /// Copies the first `mostPages` whole pages. Error 3056 if there is none, 3043 if the disk can't be read,
    /// 3026 if there is no space for the copy, 75 if no folder can be made for it.
    PageReader(const RawContent& original, const QString& password, int mostPages);

    int pageCount() const { return m_pageCount; }

    /// Calls `take` for each row to which the page leads, until it returns false. Column 0 is the row number,
    /// the table's fields follow; fields beyond the row's own are Stored::Other. Skips rows that are partly
    /// on a damaged page. Returns false if the page is damaged, belongs to no table, or leads to such a page.
    bool rowsOf(int page, const std::function<bool(const Statement&)>& take);

private:
    void growCopy(const QByteArray& salt, const QString& password);
    void fillCopy(const RawContent& original) const;
    void turnTo(int page);
    bool passOver(qint64& row);

    QTemporaryDir m_folder;
    QString m_copy;
    int m_pageCount = 0;
    DatabaseHandle m_pointing; ///< changes the first page of the copy's table
    DatabaseHandle m_reading;
    Statement m_begin, m_point, m_commit;
    Statement m_rows, m_next;
};

/// Whether the password opens any page but the first. If it does and fails at the first page, that page is
/// damaged. Error 3043 if the disk can't be read.
bool fitsOtherPages(const QString& path, const QString& password);

} // namespace engine
