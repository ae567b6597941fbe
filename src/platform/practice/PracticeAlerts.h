#pragma once

#include "platform/Alerts.h"

namespace tavrik::practice {

/// Stands in where nobody can be asked: presses the default button, as Return would.
class PracticeAlerts : public Alerts {
public:
    std::size_t ask(const Alert& alert) override;
};

} // namespace tavrik::practice
