#pragma once

#include <QString>

/// The path of a database file in the making. Unless it is kept, the file is removed when this ends.
class UnfinishedPath {
public:
    /// Error 3204 if the file exists, 3044 if its folder doesn't.
    explicit UnfinishedPath(const QString& path);
    ~UnfinishedPath();
    UnfinishedPath(const UnfinishedPath&) = delete;
    UnfinishedPath& operator=(const UnfinishedPath&) = delete;

    const QString& path() const { return m_path; }
    void keep() { m_kept = true; }

private:
    QString m_path;
    bool m_kept = false;
};
