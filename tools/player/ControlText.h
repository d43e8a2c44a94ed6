#pragma once

#include <QStringList>

/// Controls and menu items as text, as a user sees them. CommandFailure if one is missing or of another kind.
namespace ControlText {

/// The text of a box, label, combo box or cell; `on` or `off` for a mark; the value of a progress bar.
QString shown(const QString& name);
bool isEnabled(const QString& name);
bool isVisible(const QString& name);

QStringList entries(const QString& comboName);
QString heads(const QString& gridName);
/// The number of rows of a grid or a child table, or of entries of a combo box.
int count(const QString& name);

} // namespace ControlText
