#include "platform/practice/PracticeAlerts.h"

namespace tavrik::practice {

std::size_t PracticeAlerts::ask(const Alert&) {
    return 0;
}

} // namespace tavrik::practice
