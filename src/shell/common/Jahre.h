#pragma once

class ComboBox;

// The years that the file knows, for the lists of the screens. A list is not emptied first. The current year
// is always in it; a gap between it and the stored years stays a gap.

/// Appends the years of the catch book.
void loadcboFJahr(ComboBox* combo);
/// Appends the years of the work ledger.
void loadcboArbJahre(ComboBox* combo);
