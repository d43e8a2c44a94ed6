#pragma once

/// The platform's system-information tool.
namespace modSysInfo {

/// Starts the first tool that is there and does not wait for it; without one a box says so.
void StartSysInfo();

} // namespace modSysInfo
