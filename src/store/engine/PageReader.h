#pragma once

#include "DatabaseHandle.h"
#include "Statement.h"

#include <QTemporaryDir>
#include <functional>

namespace engine {

class RawContent;

/// Reads the rows of a damaged file page by page. It works on a copy in which the first page, which holds the
/// way to all the others, is one of its own with the same salt: so neither damage there nor in the tables'
/// inner pages stands between it and the rows. What the first page held is lost to it.
class PageReader {
public:
    /// How many of the first bytes must be whole: they are the salt that makes the key.
    static constexpr qint64 saltBytes = 16;

    /// Copies at most so many pages. Error 3056 if there is not even the salt, 3043 if the disk does not give
    /// a page, 3026 if there is no room for the copy, 75 if there can be no folder for it. A part of a page
    /// at the end is left out.
    PageReader(const RawContent& original, const QString& password, int mostPages);

    int pageCount() const { return m_pageCount; }

    /// Shows every row that the page leads to until `take` says false. Column 0 is the row's number, the
    /// table's fields follow; those beyond the row's own are Stored::Other. Rows of which a part lies on a
    /// damaged page are passed over. False if the page is damaged, no table's, or leads to such a page.
    bool rowsOf(int page, const std::function<bool(const Statement&)>& take);

private:
    void growCopy(const QByteArray& salt, const QString& password);
    void fillCopy(const RawContent& original) const;
    void turnTo(int page);
    bool passOver(qint64& row);

    QTemporaryDir m_folder;
    QString m_copy;
    int m_pageCount = 0;
    DatabaseHandle m_pointing; ///< changes where the one table of the copy begins
    DatabaseHandle m_reading;
    Statement m_begin, m_point, m_commit;
    Statement m_rows, m_next;
};

/// Whether the password opens any page but the first, that is: whether a first page that it does not open is
/// damaged. Error 3043 if the disk does not give a page.
bool fitsOtherPages(const QString& path, const QString& password);

} // namespace engine
