#pragma once

#include <QByteArray>
#include <QString>
#include <functional>
#include <vector>

class QXmlStreamWriter;

/// A file of an office document, or a folder that is a document itself. A folder's name ends with "/".
struct PackagePart {
    const char* name;
    const char* mediaType;
    QByteArray content;
};

/// An XML part. Writes the root element with the namespaces of office documents and calls `fill` for its
/// content. Closes elements that `fill` leaves open.
QByteArray packageXml(const QString& root, const std::function<void(QXmlStreamWriter&)>& fill);

/// An office document of this media type. The same parts always give the same bytes. Error 7 if memory runs
/// out.
QByteArray officePackage(const QByteArray& mediaType, const std::vector<PackagePart>& parts);
