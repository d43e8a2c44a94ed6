#pragma once

#include <QByteArray>
#include <QString>
#include <functional>
#include <vector>

class QXmlStreamWriter;

/// A file of an office document, or a folder (with the "/" at its end) that is a document by itself.
struct PackagePart {
    const char* name;
    const char* mediaType;
    QByteArray content;
};

/// An XML part: a root element with the namespaces of office documents, which `fill` fills. What is left open
/// is closed.
QByteArray packageXml(const QString& root, const std::function<void(QXmlStreamWriter&)>& fill);

/// The file of a document of that media type. The same parts always give the same bytes. Error 7 if there is
/// no memory for it.
QByteArray officePackage(const QByteArray& mediaType, const std::vector<PackagePart>& parts);
