#pragma once

#include "OfficeProgram.h"

#include <QString>

/// Where a mail merge takes its records from, with all that the opening of a data source can be told.
struct MailMergeSource {
    QString name; ///< full path of the file; its first line holds the names of the fields
    bool confirmConversions = false;
    bool readOnly = false;
    bool linkToSource = false;
    bool addToRecentFiles = false;
    QString passwordDocument;
    QString passwordTemplate;
    QString writePasswordDocument;
    QString writePasswordTemplate;
    bool revert = false;
    int format = 0; ///< 0: the program finds out by itself
    QString connection;
    QString sqlStatement;
    QString sqlStatement1;
};

/// A word processor that has been reached: what the routines ask of it. Text and fields go where the
/// selection is, which is behind what was typed last.
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
    /// Makes the document ready to be shown. Returns what the user must know before that, empty for nothing.
    /// Error if the document can't be stored.
    virtual QString complete() { return {}; }
    /// The last step: the document is the user's from here on.
    virtual void release() = 0;
};
