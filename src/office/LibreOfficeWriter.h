#pragma once

#include "WordProcessor.h"

/// LibreOffice as the word processor, if its `soffice` is on the PATH. complete() stores the letter as a file
/// in the folder of its data source, since the letter looks for its data there. release() opens it. The
/// user's LibreOffice profile is never changed.
///
/// The file is "Serienbrief.odt". An existing file is used again if its content is the same. Else it is the
/// user's work and stays, and the letter becomes "Serienbrief 2.odt" and so on.
///
/// complete() reports a LibreOffice without the part that reads the data. Error 53 if the data file can't be
/// read, 70 or 61 if the letter can't be written.
class LibreOfficeWriter final : public OfficeProgram<WordProcessor> {
public:
    std::unique_ptr<WordProcessor> start() override;
};
