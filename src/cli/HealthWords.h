#pragma once

#include <QJsonArray>

#include <string>
#include <vector>

namespace tavrik {

struct HealthFinding;
struct HealthRepair;

/// Whether they tell of the same thing, at two moments.
bool isSame(const HealthFinding& one, const HealthFinding& other);

/// What the findings of its kind stand below: "Restyled applications".
std::string headingOf(const HealthFinding& finding);

/// By their field names.
QJsonArray toJson(const std::vector<HealthFinding>& findings);
/// With an "outcome" where the repair was tried: "isMended" and its sentence.
QJsonArray toJson(const std::vector<HealthFinding>& findings, const HealthRepair& repair);

} // namespace tavrik
