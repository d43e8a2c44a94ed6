#pragma once

#include <QByteArray>
#include <vector>

/// A file in a ZIP file.
struct ZipPart {
    enum Method { Stored, Compressed };

    const char* name;
    QByteArray content;
    Method method = Compressed;
};

/// A ZIP file. The same parts always give the same bytes. Error 7 if memory runs out.
QByteArray zipFile(const std::vector<ZipPart>& parts);
