#pragma once

/// The system's own program for information about the computer.
namespace modSysInfo {

/// Starts the first such program that is installed and does not wait for it. Without one it shows a message
/// box.
void StartSysInfo();

} // namespace modSysInfo
