#pragma once

#include <string_view>

/// Notifications that ask the lists to read their records anew. Posted on the main thread.
namespace tavrik {

/// At the end of an apply.
inline constexpr std::string_view kReloadApplicationsAfterApply = "ReloadApplicationsAfterApply";
inline constexpr std::string_view kUpdateApplicationStateAfterApply = "UpdateApplicationStateAfterApply";

/// What was staged has been discarded.
inline constexpr std::string_view kReloadApplicationsAfterDiscard = "ReloadApplicationsAfterDiscard";

/// A backup was restored.
inline constexpr std::string_view kReloadApplicationsAfterBackupRestore =
    "ReloadApplicationsAfterBackupRestore";

} // namespace tavrik
