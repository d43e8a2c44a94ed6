#pragma once

#include <QDate>
#include <QString>

/// Actions of a user on controls. CommandFailure if a control is missing, of another kind or out of reach.
namespace ControlActions {

void type(const QString& name, const QString& text);
void set(const QString& name, const QString& text);
void paste(const QString& name, const QString& text);
void choose(const QString& name, const QString& entry);
void tick(const QString& name, bool on);
void option(const QString& name);
void click(const QString& name);
void setDate(const QString& name, QDate date);
void selectTab(const QString& name, int page);
void focus(const QString& name);
void pressKey(const QString& screenName, const QString& key);
void close(const QString& screenName);
void clickBarItem(const QString& key);
void openCell(const QString& grid, const QString& row, const QString& column);
void pressCell(const QString& grid, const QString& row, const QString& column, Qt::MouseButton button);
void logIn(const QString& name, const QString& password);

} // namespace ControlActions
