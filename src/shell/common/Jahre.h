#pragma once

class ComboBox;

// Lists of the stored years. The list is not emptied first. The current year is always added. Years between
// it and the stored years are not filled in.

/// Appends the years of the catch book.
void loadcboFJahr(ComboBox* combo);
/// Appends the years of the work ledger.
void loadcboArbJahre(ComboBox* combo);
