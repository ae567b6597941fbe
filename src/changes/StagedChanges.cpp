#include "changes/StagedChanges.h"

namespace tavrik {

bool StagedChanges::empty() const {
    return *this == StagedChanges();
}

} // namespace tavrik
