#pragma once

#include "OfficeProgram.h"

#include <QString>

/// The source of a mail merge's records, with all options for opening it.
struct MailMergeSource {
    QString name; ///< full path of the file, whose first line has the names of the fields
    bool confirmConversions = false;
    bool readOnly = false;
    bool linkToSource = false;
    bool addToRecentFiles = false;
    QString passwordDocument;
    QString passwordTemplate;
    QString writePasswordDocument;
    QString writePasswordTemplate;
    bool revert = false;
    int format = 0; ///< 0: the program detects it
    QString connection;
    QString sqlStatement;
    QString sqlStatement1;
};

/// A running word processor, as the routines use it. Text and fields are inserted at the selection, which is
/// behind what was typed last.
class WordProcessor {
public:
    virtual ~WordProcessor() = default;
    virtual void setVisible(bool on) = 0;
    virtual void addDocument() = 0;
    virtual void setMainDocumentType(int type) = 0; ///< 0: form letters
    virtual void openDataSource(const MailMergeSource& source) = 0;
    virtual void editMainDocument() = 0;
    virtual void typeText(const QString& text) = 0;
    virtual void typeParagraph() = 0;
    virtual void insertField(const QString& name) = 0;
    /// Call when everything is typed. Prepares the document to be shown. Returns a message for the user,
    /// empty if there is none. Error if the document can't be stored.
    virtual QString complete() { return {}; }
    /// Call last. From then on the document belongs to the user.
    virtual void release() = 0;
};
