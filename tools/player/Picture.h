#pragma once

#include <QString>

/// Writes a picture of all visible windows, at the screen's own resolution. CommandFailure if there is no
/// window or the file can't be written.
void savePicture(const QString& path);
