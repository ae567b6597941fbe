#pragma once

#include <QJsonArray>

#include <vector>

namespace tavrik {

struct HealthFinding;
struct HealthRepair;

/// By their field names.
QJsonArray toJson(const std::vector<HealthFinding>& findings);
/// With an "outcome" where the repair was tried: "isMended" and its sentence.
QJsonArray toJson(const std::vector<HealthFinding>& findings, const HealthRepair& repair);

} // namespace tavrik
