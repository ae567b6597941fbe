#pragma once

#include "platform/Machine.h"
#include "remote/RemoteProblem.h"

#include <QString>

#include <optional>

namespace tavrik {

/// Why nothing came of a request, and what to do about it.
QString networkSentence(RemoteFailure failure);

/// "14", "12.6": without the parts that are 0, or any, at the end.
QString systemText(const SystemVersion& version);

/// "macOS 12 or later", "macOS 12 to 15"; empty when there is no limit.
QString systemsText(const std::optional<SystemVersion>& minimum, const std::optional<SystemVersion>& maximum);

} // namespace tavrik
