#pragma once

#include "WordProcessor.h"

/// LibreOffice as the word processor, where its `soffice` is on the PATH. The document becomes a file beside
/// its data source, since a letter finds its data by that neighbourhood. complete() stores it, release()
/// opens it. Nothing in the user's office profile is touched.
///
/// The file is "Serienbrief.odt". One that is there already is opened again as long as it holds the letter
/// just as it would be written; else it is the user's own work and stays, and the letter becomes
/// "Serienbrief 2.odt" and so on.
///
/// complete() tells of an office without the part that reads the data, and fails where the file can't be
/// written.
class LibreOfficeWriter final : public OfficeProgram<WordProcessor> {
public:
    /// It offers no object of a running program: always error 429.
    std::unique_ptr<WordProcessor> running() override;
    std::unique_ptr<WordProcessor> start() override;
};
