#pragma once

#include <QString>

/// Writes a picture of the frame with what stands in front of it, or of the window that stands alone, at the
/// screen's own resolution. CommandFailure if there is no window or the file can't be written.
void savePicture(const QString& path);
