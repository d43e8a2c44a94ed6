#pragma once

#include <QStringList>

/// What a user sees of a control or a menu item, as text.
namespace ControlText {

/// Text of a box, label, combo box or cell; on or off; value of a progress bar.
QString shown(const QString& name);
bool isEnabled(const QString& name);
bool isVisible(const QString& name);

QStringList entries(const QString& comboName);
QString heads(const QString& gridName);
/// Rows of a grid or of a child table, entries of a combo box.
int count(const QString& name);

} // namespace ControlText
