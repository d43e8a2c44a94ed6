#pragma once

/// The printers of the machine.
class PrinterList {
public:
    virtual ~PrinterList() = default;
    virtual int count() const = 0;
};

/// Puts an implementation in force; it must outlive its use. With null, the platform's printers count, and
/// the PDF file that its print dialog always offers as one more.
void setPrinterList(PrinterList* list);

int printerCount();
